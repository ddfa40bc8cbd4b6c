#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Start, memory and idle CPU of the real program, beside an empty Qt Widgets window in the same run.

Runs on a display (tools/on-virtual-screen). CORVA_APP names the built program's directory.
"""
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests/journey"))
from driver import APP, Card, Program, wait_for  # noqa: E402

ROUNDS = 9
IDLE_SECONDS = 20


def visible_windows(pid):
    result = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(pid)], capture_output=True, text=True)
    return result.stdout.split()


def start_time(command, folder):
    """Seconds from the start of the process to its window on the screen."""
    begin = time.monotonic()
    process = subprocess.Popen(command, cwd=folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    wait_for("the window", lambda: visible_windows(process.pid))
    return time.monotonic() - begin, process


def private_memory(pid):
    """Private bytes: what the program costs beyond the pages that it shares."""
    total = 0
    for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
        if line.startswith(("Private_Clean:", "Private_Dirty:")):
            total += int(line.split()[1]) * 1024
    return total


def cpu_seconds(pid):
    fields = pathlib.Path(f"/proc/{pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def measure(command, folder):
    """Median start time, and the last process, still running."""
    times = []
    process = None
    for _ in range(ROUNDS + 1):
        if process:
            process.terminate()
            process.wait()
        seconds, process = start_time(command, folder)
        times.append(seconds)
    return statistics.median(times[1:]), process  # the first one warms up


def row(name, value, bar):
    print(f"{name:<62} {value:>14}   {bar}")


def main():
    with tempfile.TemporaryDirectory(prefix="corva-bench-") as name:
        folder = pathlib.Path(name)
        card = Card(folder / "card")
        try:
            program = Program(folder / "app", card)
            empty_start, empty = measure([APP.parent / "benchmarks/emptywindow"], folder)
            empty_memory = private_memory(empty.pid)
            empty.terminate()
            start, running = measure([program.folder / "corva"], program.folder)
            time.sleep(5)  # the card is found and read, the echo set
            before = cpu_seconds(running.pid)
            time.sleep(IDLE_SECONDS)
            busy = (cpu_seconds(running.pid) - before) / IDLE_SECONDS
            memory = private_memory(running.pid)
            running.terminate()
            running.wait()
        finally:
            card.end()
    row("start to window shown, warm, median", f"{start * 1000:.0f} ms", "bar 400 ms")
    row("  beside an empty Qt Widgets window", f"{start / empty_start:.2f} x", f"({empty_start * 1000:.0f} ms)")
    row("private memory, idle with a card", f"{memory / 1e6:.1f} MB", "bar 30 MB")
    row("  beside an empty Qt Widgets window", f"{memory / empty_memory:.2f} x", f"({empty_memory / 1e6:.1f} MB)")
    row(f"CPU while idle with a card, over {IDLE_SECONDS} s", f"{busy * 100:.2f} %", "bar 0.5 % of a core")


if __name__ == "__main__":
    main()
