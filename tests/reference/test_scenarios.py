#!/usr/bin/env python3
"""Plays every scenario on the model: what was worked out by hand for the program holds there, too."""

import json
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "scenarios"))
sys.path.insert(0, str(Path(__file__).resolve().parent))

import run_scenarios  # noqa: E402
from tarvix_model import Model  # noqa: E402

SCENARIOS = Path(run_scenarios.__file__).resolve().parent


def output_of(text):
    model = Model()
    written = (model.play(line) for line in text.splitlines())
    return "\n".join(json.dumps(line) for line in written if line is not None)


def main():
    played = failed = 0
    for script in sorted(SCENARIOS.rglob("*.script")):
        text = script.read_text(encoding="utf-8")
        problems = run_scenarios.check_output(run_scenarios.parse_script(text), output_of(text))
        for line, problem in problems:
            print(f"{script}:{line}: {problem}")
        played += 1
        failed += bool(problems)
    print(f"{played} scenarios played on the model, {failed} failed")
    return 0 if played and not failed else 1


if __name__ == "__main__":
    sys.exit(main())
