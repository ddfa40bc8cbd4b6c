#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a connection goes through, with the real wvdial and pppd, one after another: scenarios.py [--long] [WORD]...

Runs inside the machine (tests/vm/inside). Words choose the scenarios that have one of them in their title.
"""
import os
import pathlib
import random
import signal
import sys
import time
import traceback

from world import DOWNLOAD, PASSWORD, World, Wvdial, pids, wait_for

SCENARIOS = []
LONG = "--long" in sys.argv


def scenario(function):
    SCENARIOS.append(function)
    return function


def title(function):
    return function.__doc__.strip().rstrip(".")


@scenario
def plain_wvdial(world):
    """plain wvdial dials the card, pings across and fetches 20 MB."""
    with world.card(auth="require-pap") as card:
        wvdial = Wvdial(card.port("modem"), world.folder)
        try:
            begin = time.monotonic()
            wait_for("the name servers", lambda: "primary   DNS" in wvdial.text(), 60)
            took = time.monotonic() - begin
            world.network.ping()
            seconds = world.network.fetch()
        except AssertionError:
            print(wvdial.text())
            raise
        finally:
            wvdial.end()
        return f"name servers after {took:.1f} s, {DOWNLOAD / seconds / 1e6:.1f} MB/s"


def main():
    words = [word for word in sys.argv[1:] if not word.startswith("--")]
    chosen = [s for s in SCENARIOS if not words or any(word in title(s) for word in words)]
    world = World()
    failed = 0
    begin = time.monotonic()
    for function in chosen:
        start = time.monotonic()
        said = ""
        verdict = "ok"
        try:
            said = function(world) or ""
            world.check_clean()
        except Exception as problem:
            failed += 1
            verdict = "FAILED"
            said = str(problem)
            if not isinstance(problem, AssertionError):
                traceback.print_exc(file=sys.stdout)
            world.clean()
        print(f"{verdict:6} {time.monotonic() - start:6.1f} s  {title(function)}{': ' if said else ''}{said}", flush=True)
    print(f"{len(chosen) - failed} of {len(chosen)} scenarios passed in {time.monotonic() - begin:.0f} s", flush=True)
    return 1 if failed or not chosen else 0


if __name__ == "__main__":
    sys.exit(main())
