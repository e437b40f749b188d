#!/usr/bin/env python3
"""Measures the program beside its floors and prints one table.

    measure.py BIN_FOLDER [--runs N] [--idle SECONDS] [--write FILE]

BIN_FOLDER is the bin/ of the preset `release`. The floor of a solve is a bare loop of its square
roots and products; that of a key press and of a start a bare window of the same toolkit. What opens
windows is measured on the toolkit's platform `offscreen` and on an X server of its own with a
window manager. Figures are ratios to the floor where there is one, so that they say something about
the program and not about the machine. --write puts the table into a document.
"""
import argparse
import contextlib
import os
import pathlib
import platform
import re
import statistics
import subprocess
import tempfile
import time


@contextlib.contextmanager
def x_screen():
    """An X server without a screen, with openbox; yields the environment for programs on it."""
    with contextlib.ExitStack() as stack:
        folder = stack.enter_context(tempfile.TemporaryDirectory())

        def start(*command, **options):
            process = stack.enter_context(subprocess.Popen(
                command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options))
            stack.callback(process.terminate)

        reading, writing = os.pipe()
        start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1920x1080x24",
              "-nolisten", "tcp", "-noreset", pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as number:
            display = ":" + number.readline().strip()
        environment = {**os.environ, "DISPLAY": display, "QT_QPA_PLATFORM": "xcb"}
        ready = os.path.join(folder, "ready")
        os.mkfifo(ready)
        start("openbox", "--sm-disable", "--startup", f"sh -c 'echo ready >{ready}'",
              env=environment)
        with open(ready, encoding="ascii") as waiting:
            waiting.readline()
        yield environment


def run(command, environment):
    """One run: wall ms, processor ms, resident MiB, voluntary context switches, what it printed."""
    begin = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.PIPE, text=True)
    printed = process.stdout.read()
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    process.stdout.close()
    if status != 0:
        raise SystemExit(f"{command[0]} failed with status {process.returncode}")
    return ((time.perf_counter() - begin) * 1e3, (usage.ru_utime + usage.ru_stime) * 1e3,
            usage.ru_maxrss / 1024, usage.ru_nvcsw, printed.split())


def start_rows(folder, environment, where, runs, idle):
    program = [str(folder / "start_tarvix")]
    printed = run(program, environment)[4]
    bare = [str(folder / "start_bare")]
    commands = {"own": program, "bare": bare, "two": bare + ["--windows", *printed[2:]]}
    results = {name: [] for name in commands}
    for _ in range(runs):  # in turn, so that all meet the same machine
        for name, command in commands.items():
            results[name].append(run(command, environment))

    def median(name, column):
        return statistics.median(float(row[column]) for row in results[name])

    def printed_median(column):
        return statistics.median(float(row[4][column]) for row in results["own"])

    def ratio(column, floor):
        return f"{median('own', column) / median(floor, column):.2f}"

    splash, after_wait = printed_median(0), printed_median(1)
    yield (f"Start, {where}: processor time", "two bare windows as large", ratio(1, "two"), "1.5")
    yield (f"Start, {where}: processor time", "a bare window", ratio(1, "bare"), "1.8")
    yield (f"Start, {where}: memory", "a bare window", ratio(2, "bare"), "1.3")
    yield (f"Start, {where}: the splash's share of the processor time", "",
           f"{100 * splash / median('own', 1):.0f} %", "")
    yield (f"Start, {where}: from the end of the wait to the painted main window", "",
           f"{after_wait:.0f} ms", "15 ms")
    if idle:
        _, processor, _, switches, _ = run(program + ["--idle", str(idle)], environment)
        yield (f"Idle, {where}: processor time in {idle} s, with a blinking caret", "",
               f"{max(0, processor - median('own', 1)):.0f} ms", "")
        yield (f"Idle, {where}: waits in {idle} s, with a blinking caret", "",
               f"{switches - median('own', 3):.0f}", "")


def benchmark_times(program, environment):
    """The processor time of each benchmark, in its own unit, and the ratios that it prints."""
    printed = subprocess.run([program, "--benchmark_repetitions=3"], env=environment, text=True,
                             stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True).stdout
    times = {}
    for name, cpu in re.findall(r"^(\S+)\s+[\d.]+ \ws\s+([\d.]+) \ws", printed, re.MULTILINE):
        times[name] = min(float(cpu), times.get(name, float("inf")))
    return times, re.findall(r"^ratio (\S+) ([\d.]+)$", printed, re.MULTILINE)


def rows(folder, options):
    offscreen = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    times, ratios = benchmark_times(folder / "bench_core", offscreen)
    for name, value in ratios:
        yield (f"Solve {name}", "its bare loop", value, "1.25")
    for name, value in times.items():
        if name.startswith("Recalculation/") and "_" not in name:
            yield (f"Checks, solve and text of {name.split('/')[1]}", "", f"{value / 1e3:.1f} us", "")
    with x_screen() as screen:
        for where, environment in (("offscreen", offscreen), ("X server", screen)):
            keys, _ = benchmark_times(folder / "bench_key_press", environment)
            yield (f"Key press to the painted result, {where}", "a bare window's echo",
                   f"{keys['Calculator'] / keys['BareWindow']:.2f}", "1.5")
            yield from start_rows(folder, environment, where, options.runs, options.idle)
    pages, _ = benchmark_times(folder / "bench_report", offscreen)
    yield ("Page composed and painted as PDF", "", f"{pages['ComposeAndPaintPage']:.1f} ms", "20 ms")


def machine():
    try:
        text = pathlib.Path("/proc/cpuinfo").read_text(encoding="utf-8")
        name = re.search(r"model name\s*: (.*)", text).group(1).strip()
    except (OSError, AttributeError):
        name = platform.machine()
    return f"{name}, {os.cpu_count()} processors, {platform.system()}"


def document(table):
    return "\n".join([
        "# Performance", "",
        "How fast the program is, beside the least that the same work takes. Made by",
        "`bench/measure.py build/release/bin --write docs/performance.md` after",
        "`cmake --preset release && cmake --build --preset release`; nothing here is typed.", "",
        f"Machine: {machine()}.", "",
        "| What | Beside | Measured | Aim |", "| --- | --- | --- | --- |",
        *("| " + " | ".join(row) + " |" for row in table), "",
        "A figure with something beside it is a ratio to that. The start leaves out the time that",
        "the splash waits by the clock. The main window is built within that wait.", ""])


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=21)
    parser.add_argument("--idle", type=int, default=20)
    parser.add_argument("--write", type=pathlib.Path)
    options = parser.parse_args()
    table = list(rows(options.folder.resolve(), options))
    for what, floor, measured, aim in table:
        print(f"{what:75} {measured:>8}  {'to ' + floor if floor else '':30}"
              f" {'aim ' + aim if aim else ''}")
    if options.write:
        options.write.write_text(document(table), encoding="utf-8")


if __name__ == "__main__":
    main()
