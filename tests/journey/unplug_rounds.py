#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pulls the card out and puts it back at random moments: unplug_rounds.py [ROUNDS [SEED]].

The window must be right each time, and no thread and no descriptor may be left over. Run on a program that was built with
AddressSanitizer, its report or a leak makes the exit status wrong.
"""
import json
import pathlib
import random
import sys
import time

from driver import desk, wait_for


def counts(pid):
    return {what: len(list(pathlib.Path(f"/proc/{pid}/{what}").iterdir())) for what in ("task", "fd")}


def wait_for_polls(card):
    """Until the card was asked twice more: what happens once when it is plugged in is over then."""
    def asked():
        return sum(entry.get("received", "").strip() == "AT+CSQ" for entry in json.loads(card.say("log"))["log"])
    before = asked()
    wait_for("two more polls", lambda: asked() >= before + 2, 60)


def show(pid):
    """What there is, for whoever has to find what was left over."""
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        print("thread", (task / "comm").read_text().strip())
    for descriptor in pathlib.Path(f"/proc/{pid}/fd").iterdir():
        print("descriptor", descriptor.readlink())


def main():
    rounds = int(sys.argv[1]) if len(sys.argv) > 1 else 20
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else random.randrange(1 << 30)
    print(f"{rounds} rounds, seed {seed}")
    chance = random.Random(seed)
    with desk() as (card, program):
        card.say("pace", "delay=10")
        program.start()
        program.wait_text("Test Network", 30)
        wait_for_polls(card)
        card.say("unplug")
        program.wait_text("No card", 10)
        card.say("plug")  # threads that are made when they are first needed are there after this
        program.wait_text("Test Network", 10)
        wait_for_polls(card)
        before = counts(program.process.pid)
        for number in range(rounds):
            time.sleep(chance.uniform(0, 0.4))  # also in the middle of a poll or of the first reading
            card.say("unplug")
            if chance.random() < 0.5:
                program.wait_text("No card", 10)
            time.sleep(chance.uniform(0, 0.2))
            card.say("plug")
            if chance.random() < 0.7 or number == rounds - 1:
                program.wait_text("Test Network", 10)
        try:  # work that is under way ends, and so does a thread that waits for more of it
            wait_for(f"no more than {before}",
                     lambda: all(now <= before[what] for what, now in counts(program.process.pid).items()), 45)
        except AssertionError:
            show(program.process.pid)
            raise
        after = counts(program.process.pid)
        program.keys("ctrl+q")
        status = program.process.wait(60)
        assert status == 0, f"exit status {status}"
    print(f"{rounds} rounds: the window was right each time; threads and descriptors {before} -> {after}")


if __name__ == "__main__":
    main()
