#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long the window's thread is away while a connection is made, is up and is ended, with years of statistics.

The real window on the emulated card; what stands in wvdial's place only says that it dials, and carries something over
an interface ppp0 of its own (benchmarks/saiddial). All that happens in a network and a file system that nobody else
sees. CORVA_APP names the built program's directory.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import xml.dom.minidom

HERE = pathlib.Path(__file__).resolve().parent
SECONDS = 10  # of traffic in each round
ROUNDS = 3
PAGES = ("connection", "traffic")
BAR = 0.050  # s


def enter():
    """Begins this program anew in namespaces of its own, and there on a display of its own."""
    own = [] if os.geteuid() == 0 else ["--map-root-user"]
    system = (
        "set -e; mount -t tmpfs own /run; cp -a /etc /run/etc 2> /dev/null || true; mount --bind /run/etc /etc; "
        "mount -t tmpfs own /tmp; mkdir -p /run/lock; rm -f /etc/ppp/corva-saved.json; "
        'mount --bind "$0/saiddial" /usr/bin/wvdial; mount -t sysfs own /sys; ip link set lo up; '
        'exec "$0/../tools/on-virtual-screen" "$0/dialling.py" inside')
    command = ["unshare", *own, "--net", "--mount"]
    if subprocess.run([*command, "true"], capture_output=True).returncode != 0:
        print("NOT MEASURED: a connection in the window: this system gives no network of one's own.")
        return 0
    return subprocess.run([*command, "bash", "-c", system, HERE]).returncode


def measure(folder, page):
    """What diallingbench says: its words by what they are about."""
    sys.path.insert(0, str(HERE.parent / "tests/vm"))
    from world import Card, Internet

    card = Card(folder / f"card-{page}")
    try:
        ports = {f"device__{port}_port": str(card.folder / port) for port in ("at", "modem", "voice")}
        program = Internet(folder / f"app-{page}", **ports)
        program.set_profile()
        with program.running_bench(ROUNDS, "--years", str(SECONDS), page) as bench:
            lines = [line.split() for line in bench.communicate(timeout=300)[0].splitlines()]
    finally:
        card.end()
    said = {name: [[float(word) for word in words[-3:]] for other, *words in lines if other == name]
            for name in ("idle", "connect", "disconnect")}
    assert len(said["disconnect"]) == ROUNDS, f"not every round was to its end: {lines}, see {program.folder}/output.txt"
    records = xml.dom.minidom.parse(str(program.folder / "Data/historyRecord.xml")).getElementsByTagName("record")
    assert int(records[-1].getAttribute("received")) > 1e6, "what the link carried was not counted"
    return said


def held(gap):
    length, _, queued = gap
    return length - queued


def row(name, gaps, bar=None):
    """The middle of the rounds, by the time that the program itself held its thread."""
    length, worked, queued = sorted(gaps, key=held)[len(gaps) // 2]
    missed = bar is not None and length - queued > bar
    print(f"{name:<62} {(length - queued) * 1000:11.1f} ms   {f'bar {bar * 1000:.0f} ms' if bar else '':<10} "
          f"({worked * 1000:.0f} ms of work; {queued * 1000:.0f} ms more without a processor)"
          f"{', MISSED' if missed else ''}", flush=True)
    return missed


def main():
    if "inside" not in sys.argv:
        return enter()
    missed = False
    with tempfile.TemporaryDirectory(prefix="corva-bench-") as name:
        for page in PAGES:
            said = measure(pathlib.Path(name), page)
            where = f"the page of the {page} shown"
            row(f"longest gap of a 10 ms timer, idle, {where}", said["idle"])
            missed |= row(f"... connecting and {SECONDS} s connected, median of {ROUNDS}", said["connect"], BAR)
            missed |= row(f"... disconnecting, median of {ROUNDS}", said["disconnect"], BAR)
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
