#!/usr/bin/env python3
"""Measures the strength of the tests: spoils the source in one place, runs the tests that should
wake there, and counts the mutants that no test notices.

Works on copies of the tree below the build folder and never touches the work tree. A mutant that
does not compile, or that the optimizing compiler makes the same code of, is replaced by another one. The sample depends on the seed and the sources alone.
The part `core` is what knows no window toolkit, `window` the rest of the program.

    tests/mutation/mutate.py --build /tmp/mutation            # the usual run of the core
    tests/mutation/mutate.py --build /tmp/mutation --part window
    tests/mutation/mutate.py --build /tmp/mutation --files calc/orifice_gas.cpp --count 1000
    tests/mutation/mutate.py --list --count 20                # show mutants, run nothing

Exit status: 0 when every survivor is one of those explained in README.md, else 1.
"""

import argparse
import concurrent.futures
import contextlib
import hashlib
import json
import math
import os
import queue
import random
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
from pathlib import Path

import operators

ROOT = Path(__file__).resolve().parents[2]
EXPLAINED = Path(__file__).resolve().parent / "README.md"

# What is no source of the program.
OTHER_FOLDERS = ("bench/", "build/", "docs/", "packaging/", "tests/")
# The folders that know no window toolkit.
CORE = ("app/shared/", "app/sheet/", "calc/", "numbers/", "report/page/", "units/")
# The program's entry is judged by the journeys, which a machine may skip.
NOT_JUDGED = ("main.cpp",)


def gtest(*more):
    return ["{binary}", "--gtest_fail_fast", "--gtest_brief=1", *more]


def sessions(locale):
    return [sys.executable, "{tree}/tests/reference/random_sessions.py", "--player", "{binary}",
            "--sessions", "4", "--locale", locale]


GERMANY = ["env", "LC_ALL=", "LANGUAGE=", "LC_NUMERIC=", "LANG=de_DE.UTF-8",
           "TARVIX_EXPECT_DECIMAL=,", "TARVIX_EXPECT_MILLION=1_234_567", "TARVIX_EXPECT_GROUP=2E"]

# Tests that go through all states of the window cost more than all others together.
EVERY_STATE = "AccessibleNamesTest.Every*:AccessibleNamesTest.No*"

# For each part the steps of its judgement, the quickest first: what is built, and what is then run
# on it. Of the many fonts the smallest and one in the middle tell, of the desktops a dark one.
STEPS = {
    "core": [("core_tests", gtest()), ("report_tests", gtest())],
    "window": [
        ("window_script", sessions("en_US")),
        ("fault_tests", gtest()),
        ("locale_tests", gtest()),
        ("system_locale_tests", [*GERMANY, *gtest()]),
        ("window_tests", gtest(f"--gtest_filter=-Fonts/*:Desktops/*:{EVERY_STATE}")),
        ("window_script", [sys.executable, "{tree}/tests/scenarios/run_scenarios.py",
                           "--fail-fast", "{binary}", "{tree}/tests/scenarios"]),
        ("report_window_tests", gtest()),
        ("window_tests", gtest("--gtest_filter=Fonts/*LiberationSans8:Fonts/*DejaVuSans11:"
                               f"Desktops/*Dark:{EVERY_STATE}")),
    ],
}
# What only the desktop shows: the frame of its windows, the speech of its screen reader. A journey
# needs the desktop's tools and takes its time, so each is for one file.
JOURNEYS = {"app/window/window_frame.cpp": "screen_journey",
            "ui/controls/announcements.cpp": "spoken_journey"}
# What the others hold does not reach the printer but by the page, which scenarios state.
PRINTING = ("app/window/", "report/", "ui/windows/")
CONFIGURATION = {"core": ["-DTARVIX_BUILD_WINDOW=OFF"], "window": []}

BUILD_SECONDS = 3600
# A test that takes so many times as long as on the unspoiled tree hangs; but seconds are no measure.
HANGS_AFTER = 8
LEAST_SECONDS = 40


# In the window, where one thing happens after another. Elsewhere it is put together, and the order of
# two settings in a row shows nowhere.
ORDER_MATTERS = ("app/", "ui/handlers/")


def files_of(root, part):
    """The sources of the part; of the core, where nothing is compiled for long, its headers too."""
    suffixes = ("cpp", "h") if part == "core" else ("cpp",)
    names = [path.relative_to(root).as_posix()
             for path in sorted(p for suffix in suffixes for p in root.rglob("*." + suffix))
             if path.name not in NOT_JUDGED]
    return [name for name in names if not name.startswith(OTHER_FOLDERS)
            and name.startswith(CORE) == (part == "core")]


def is_tried(mutant, part):
    return part == "core" or not mutant.swaps_statements or mutant.file.startswith(ORDER_MATTERS)


def sample(root, part, files, count, seed):
    """Mutants in random order. Each file has its share by the square root of its places, so that
    the long tables do not crowd out the procedures; what goes beyond `count` replaces mutants that
    do not compile."""
    rng = random.Random(seed)
    per_file = {}
    for name in files:
        found = [mutant for mutant in operators.mutants_of(name, (root / name).read_text())
                 if is_tried(mutant, part)]
        if found:
            rng.shuffle(found)
            per_file[name] = found
    weights = {name: math.sqrt(len(found)) for name, found in per_file.items()}
    total = sum(weights.values())
    chosen, spare = [], []
    for name, found in per_file.items():
        share = max(1, round(count * weights[name] / total))
        chosen += found[:share]
        spare += found[share:]
    # A spoiled header builds the tests again: headers come last, one after the other.
    rng.shuffle(chosen)
    chosen.sort(key=lambda mutant: mutant.file if mutant.file.endswith(".h") else "")
    rng.shuffle(spare)
    spare.sort(key=lambda mutant: mutant.file.endswith(".h"), reverse=True)
    return chosen, spare


def journey_steps(file):
    """The program's journey for a file, in the form of a step."""
    # The system's own interpreter has the bindings of the accessibility bus.
    return [("tarvix", ["/usr/bin/python3", f"{{tree}}/tests/journeys/{journey}.py", "{binary}"])
            for spoiled, journey in JOURNEYS.items() if spoiled == file]


def steps_for(file, steps):
    """The steps that should wake for a file, those of its own folder first."""
    own = {"report": "report_window_tests", "ui/windows": "window_tests",
           "ui/controls": "window_tests", "ui/form": "window_tests", "app/window": "window_tests"}
    first = [target for folder, target in own.items() if file.startswith(folder + "/")]
    waking = [step for step in steps
              if step[0] != "tarvix" and
             (step[0] != "report_window_tests" or file.startswith(PRINTING))]
    return sorted(waking, key=lambda step: step[0] not in first) + [
        step for step in journey_steps(file) if step in steps]


class Worker:
    """A copy of the tree with its own build."""

    # The desktop of one journey must not hear the speech of another.
    one_journey = threading.Lock()

    def __init__(self, folder, root, part, files, programs, configuration):
        folder = folder.resolve()
        self.tree = folder / "tree"
        self.build = folder / "build"
        steps = STEPS[part] + [step for file in files for step in journey_steps(file)]
        self.steps = [step for step in steps if not programs or step[0] in programs]
        # What one copy has compiled, the other finds in the cache.
        self.environment = {**os.environ, "CCACHE_BASEDIR": str(folder),
                            "QT_QPA_PLATFORM": "offscreen"}
        if self.tree.exists():
            shutil.rmtree(self.tree)
        # New files, so that objects of an interrupted run are not taken for those of these sources.
        shutil.copytree(root, self.tree, copy_function=shutil.copy,
                        ignore=shutil.ignore_patterns("build", ".git"))
        # A widening left out must change something: where the other operand is a double it would
        # not, and the project's own flags refuse it.
        configure = ["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja",
                     "-DCMAKE_BUILD_TYPE=None",
                     "-DCMAKE_CXX_FLAGS=-O0 -Werror=double-promotion",
                     *CONFIGURATION[part], *[f"-D{setting}" for setting in configuration],
                     "-DTARVIX_BUILD_BENCH=OFF", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
                     "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST"]
        if shutil.which("ccache"):
            configure.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        subprocess.run(configure, check=True, stdout=subprocess.DEVNULL)
        self.commands = {entry["file"]: entry for entry in
                         json.loads((self.build / "compile_commands.json").read_text())}
        self.codes = {}
        self.patience = {}
        for target, command in self.steps:
            if not self._compiles(target):
                sys.exit(f"the unspoiled tree does not build: {target}")
            began = time.monotonic()
            if not self._passes(target, command):
                sys.exit(f"the unspoiled tree fails its tests: {target}")
            taken = time.monotonic() - began
            print(f"  {taken:5.1f} s {target} {' '.join(command[1:])[-60:]}", flush=True)
            self.patience[tuple(command)] = max(LEAST_SECONDS, HANGS_AFTER * taken)

    def _run(self, command, seconds):
        """The exit status; 1 after a timeout, when all that it has started is ended, too. Ended from
        outside, it runs again."""
        for _ in range(5):
            with subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  env=self.environment, start_new_session=True) as process:
                try:
                    status = process.wait(seconds)
                except subprocess.TimeoutExpired:
                    os.killpg(process.pid, signal.SIGKILL)
                    return 1
            if status not in (-signal.SIGKILL, -signal.SIGTERM, -signal.SIGINT, -signal.SIGHUP):
                break
        return status

    def _compiles(self, target):
        command = ["ninja", "-C", self.build, "-j1", target]
        # A second time, for a compiler that was ended from outside.
        return any(self._run(command, BUILD_SECONDS) == 0 for _ in range(2))

    def _passes(self, target, command):
        binary = next(p for p in self.build.rglob(target) if p.is_file() and os.access(p, os.X_OK))
        places = {"binary": binary, "tree": self.tree}
        with self.one_journey if target == "tarvix" else contextlib.nullcontext():
            return self._run([part.format(**places) for part in command],
                             self.patience.get(tuple(command), BUILD_SECONDS)) == 0

    def _code_of(self, file):
        """The digest of what the optimizing compiler makes of a source; nothing of a header."""
        entry = self.commands.get(str(self.tree / file))
        if entry is None:
            return None
        with tempfile.NamedTemporaryFile(suffix=".o") as made:
            words = shlex.split(entry["command"].replace(" -O0", " -O2"))
            words[words.index("-o") + 1] = made.name
            while not words[0].endswith("++"):
                del words[0]  # the compiler's cache
            done = subprocess.run(words, cwd=entry["directory"], stderr=subprocess.DEVNULL,
                                  check=False)
            return None if done.returncode else hashlib.sha256(made.read()).digest()

    def _is_same_code(self, file, original):
        """Whether the source, as it stands there spoiled, is another way to write the same."""
        spoiled = self._code_of(file)
        if file not in self.codes:
            path = self.tree / file
            text = path.read_text()
            path.write_text(original)
            self.codes[file] = self._code_of(file)
            path.write_text(text)
        return spoiled is not None and spoiled == self.codes[file]

    def judge(self, mutant):
        """'killed', 'survived', 'unbuildable' or, of a survivor, 'same code'."""
        path = self.tree / mutant.file
        original = path.read_text()
        path.write_text(mutant.apply(original))
        try:
            for target, command in steps_for(mutant.file, self.steps):
                if not self._compiles(target):
                    return "unbuildable"
                if not self._passes(target, command):
                    return "killed"
            return "same code" if self._is_same_code(mutant.file, original) else "survived"
        finally:
            path.write_text(original)


class Verdicts:
    """What was found out about these very sources and tests, so that an interrupted run goes on
    where it was. Where tests have only been added since, what the others killed stays killed:
    `again` takes that over and leaves only the survivors to be judged."""

    def __init__(self, folder, root, files, again):
        sources = self.digest(root / name for name in sorted(files))
        tests = self.digest(sorted(root.glob("tests/**/*.*")))
        self.path = folder / "verdicts" / f"{sources}-{tests}.json"
        self.known = {}
        for earlier in folder.glob(f"verdicts/{sources}-*.json") if again is not None else []:
            self.known |= {mutant: verdict for mutant, verdict
                           in json.loads(earlier.read_text()).items() if verdict != "survived"}
        if self.path.exists():
            self.known |= json.loads(self.path.read_text())

    @staticmethod
    def digest(paths):
        digest = hashlib.sha256()
        for path in paths:
            if path.is_file():
                digest.update(path.read_bytes())
        return digest.hexdigest()[:16]

    def of(self, mutant):
        return self.known.get(mutant.key())

    def add(self, mutant, verdict):
        self.known[mutant.key()] = verdict
        self.path.parent.mkdir(parents=True, exist_ok=True)
        self.path.write_text(json.dumps(self.known, indent=0))


def explained_survivors():
    """The mutants that README.md lists between ``` lines: file, what was, what became of it."""
    text = EXPLAINED.read_text() if EXPLAINED.exists() else ""
    return {line.strip() for block in re.findall(r"```\n(.*?)```", text, re.S)
            for line in block.splitlines() if line.strip()}


def run(arguments, files, chosen, spare, verdicts):
    workers = queue.Queue()
    print(f"building {arguments.jobs} copies of the tree ...", flush=True)
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as builders:
        copies = [builders.submit(Worker, arguments.build / f"{arguments.part}{i}",
                                  arguments.source, arguments.part, files, arguments.again,
                                  arguments.cmake)
                  for i in range(arguments.jobs)]
        for copy in copies:
            workers.put(copy.result())

    def judge(mutant):
        if verdicts.of(mutant):
            return mutant, verdicts.of(mutant)
        worker = workers.get()
        try:
            return mutant, worker.judge(mutant)
        finally:
            workers.put(worker)

    results = {"killed": [], "survived": [], "unbuildable": [], "same code": []}
    started = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        pending = {pool.submit(judge, mutant) for mutant in chosen}
        while pending:
            done, pending = concurrent.futures.wait(
                pending, return_when=concurrent.futures.FIRST_COMPLETED)
            for future in done:
                mutant, verdict = future.result()
                results[verdict].append(mutant)
                verdicts.add(mutant, verdict)
                if verdict == "survived":
                    print(f"survived: {mutant.key()}", flush=True)
                elif verdict != "killed" and spare:
                    pending.add(pool.submit(judge, spare.pop()))
                judged = len(results["killed"]) + len(results["survived"])
                if verdict in ("killed", "survived") and judged % 25 == 0:
                    print(f"  {judged} judged after {time.monotonic() - started:.0f} s", flush=True)
    return results


def report(results, files):
    judged = results["killed"] + results["survived"]
    explained = explained_survivors()
    print(f"\n{'file':32} {'mutants':>8} {'killed':>8}")
    for name in sorted(files):
        of_file = [m for m in judged if m.file == name]
        if of_file:
            killed = sum(m.file == name for m in results["killed"])
            print(f"{name:32} {len(of_file):8} {killed:8}")
    print(f"{'all':32} {len(judged):8} {len(results['killed']):8}"
          f"   (and {len(results['unbuildable'])} that did not compile,"
          f" {len(results['same code'])} the same code)")
    unexplained = [m for m in results["survived"] if m.key() not in explained]
    print(f"survivors: {len(results['survived'])}, of them without an explanation:"
          f" {len(unexplained)}")
    for mutant in unexplained:
        print(f"  {mutant.key()}")
    return 1 if unexplained else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--source", type=Path, default=ROOT, help="the tree to copy")
    parser.add_argument("--build", type=Path, default=ROOT / "build" / "mutation")
    parser.add_argument("--part", choices=sorted(STEPS), default="core")
    parser.add_argument("--count", type=int, default=400, help="mutants to judge")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--files", nargs="+", help="only these files, such as calc/orifice_gas.cpp")
    parser.add_argument("--cmake", nargs="+", default=[], metavar="NAME=VALUE",
                        help="settings of the build, such as CMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold")
    parser.add_argument("--again", nargs="*", metavar="PROGRAM",
                        help="tests have been added, to these programs of tests: judge by them only"
                             " what survived before")
    parser.add_argument("--list", action="store_true", help="print the mutants, run nothing")
    arguments = parser.parse_args()

    files = files_of(arguments.source, arguments.part)
    if arguments.files:
        unknown = set(arguments.files) - set(files)
        if unknown:
            parser.error(f"no file of the part {arguments.part}: " + ", ".join(sorted(unknown)))
        files = arguments.files
    chosen, spare = sample(arguments.source, arguments.part, files, arguments.count,
                           arguments.seed)
    if arguments.list:
        for mutant in chosen:
            print(mutant.key())
        return 0
    verdicts = Verdicts(arguments.build, arguments.source, files, arguments.again)
    return report(run(arguments, files, chosen, spare, verdicts), files)


if __name__ == "__main__":
    sys.exit(main())
