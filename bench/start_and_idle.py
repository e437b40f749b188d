#!/usr/bin/env python3
"""Compares the program's start and idle cost with those of a bare window of the same toolkit.

    start_and_idle.py BIN_FOLDER [--runs N] [--idle SECONDS]

Prints wall time, processor time and resident memory of a start up to the painted window (the
splash's wait left out), each as a ratio to the bare window, and the processor time and voluntary
context switches of some idle seconds, less those of the start.
"""
import argparse
import os
import statistics
import time


def run(program, *arguments):
    """One run: wall seconds, processor seconds, resident KiB, voluntary context switches."""
    begin = time.perf_counter()
    pid = os.spawnv(os.P_NOWAIT, program, [program, *arguments])
    _, status, usage = os.wait4(pid, 0)
    if status != 0:
        raise SystemExit(f"{program} failed with status {status}")
    return (time.perf_counter() - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss,
            usage.ru_nvcsw)


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", help="where start_bare and start_tarvix are")
    parser.add_argument("--runs", type=int, default=15)
    parser.add_argument("--idle", type=int, default=20)
    options = parser.parse_args()
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    programs = {name: os.path.join(options.folder, name) for name in ("start_bare", "start_tarvix")}

    runs = {name: [] for name in programs}
    for _ in range(options.runs):  # alternately, so that both meet the same machine
        for name, path in programs.items():
            runs[name].append(run(path))
    medians = {name: [statistics.median(column) for column in zip(*rows)]
               for name, rows in runs.items()}
    for name, (wall, processor, memory, _) in medians.items():
        print(f"{name:13} wall {wall * 1e3:7.1f} ms   processor {processor * 1e3:7.1f} ms   "
              f"resident {memory / 1024:6.1f} MiB")
    bare, own = medians["start_bare"], medians["start_tarvix"]
    print("ratio         " + "   ".join(
        f"{what} {own[i] / bare[i]:.2f}"
        for i, what in enumerate(("wall", "processor", "resident"))))

    if options.idle:
        for name, path in programs.items():
            _, processor, _, switches = run(path, "--idle", str(options.idle))
            print(f"{name:13} idle {options.idle} s: processor "
                  f"{(processor - medians[name][1]) * 1e3:6.1f} ms, voluntary context switches "
                  f"{switches - medians[name][3]:.0f}")


if __name__ == "__main__":
    main()
