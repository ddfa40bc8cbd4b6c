#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person does with the window, from plugging in to the state on screen. See driver.py."""
import json
import subprocess
import unittest

from driver import desk, wait_for


class Start(unittest.TestCase):
    def test_second_start_and_arguments_end_silently(self):
        with desk() as (_, program):
            program.start()
            program.wait_text("Test Network")
            other = subprocess.run([program.folder / "corva"], cwd=program.folder, timeout=20)
            self.assertEqual(other.returncode, 0)
            argument = subprocess.run([program.folder / "corva", "--help"], cwd=program.folder, timeout=20)
            self.assertEqual(argument.returncode, 0)
            self.assertTrue(program.shows("Test Network"), "the first one goes on")
            program.keys("ctrl+q")
            self.assertEqual(program.process.wait(10), 0)

    def test_splash_makes_way_for_the_window(self):
        with desk(function__splash_hide="0") as (_, program):
            program.start()
            program.wait_text("Software version PC:")
            program.picture("splash")
            program.wait_text("Test Network")
            program.wait_no_text("Software version PC:")

    def test_disclaimer_declined_ends_the_program(self):
        with desk(setting__system_enabled="1", systemsetting__disclaimer_show="1") as (_, program):
            program.start()
            program.wait_text("Before you begin")
            program.picture("disclaimer")
            program.keys("Escape")
            self.assertEqual(program.process.wait(10), 0)


class CardState(unittest.TestCase):
    def test_state_follows_the_card(self):
        with desk() as (card, program):
            program.start()
            program.wait_text("Test Network")
            program.picture("card")
            for words, shown in ((("operator", "00102", "long=Another Network"), "Another Network"),
                                 (("roaming", "on"), "Roaming")):
                card.say(*words)
                program.wait_text(shown)

    def test_unplugged_and_back(self):
        with desk() as (card, program):
            program.start()
            program.wait_text("Test Network")
            card.say("unplug")
            program.wait_no_text("Test Network", 5)
            program.wait_text("No card", 5)
            program.picture("no-card")
            card.say("plug")
            program.wait_text("Test Network", 10)

    def test_card_without_makers_commands(self):
        with desk(profile="standard.json") as (_, program):
            program.start()
            program.wait_text("Test Network")

    def test_reports_reach_the_person(self):
        with desk(call__enable="1") as (card, program):
            program.start()
            program.wait_text("Test Network")
            card.say("ring", "number=+12025550199")
            program.wait_text("The card is ringing.")


class Mending(unittest.TestCase):
    def test_pin_is_asked_for_and_taken(self):
        with desk(profile="locked.json") as (card, program):
            program.start()
            program.wait_text("The SIM card is locked")
            program.picture("pin")
            program.type("9999")
            program.keys("Return")
            program.wait_text("The PIN is wrong.")
            pin = str(json.loads(card.say("show"))["state"]["sim"]["pin"])
            program.keys("ctrl+a")
            program.type(pin)
            program.keys("Return")
            program.wait_text("Test Network")
            told = [line for line in (program.folder / "output.txt").read_text().splitlines() 
                    if "CPIN" in line and pin in line]
            self.assertEqual(told, [], "the log masks PINs")

    def test_why_am_i_offline(self):
        with desk(profile="nosim.json") as (card, program):
            program.start()
            wait_for("the panel", lambda: program.process.poll() is None and program.window())
            program.wait_text("SIM")
            program.keys("F1")
            program.wait_text("Why am I offline?")
            program.wait_text("One step is not in order.")
            program.picture("offline")
            program.keys("Escape")
            program.wait_no_text("One step is not in order.")
            card.say("unplug")
            program.wait_text("No card")


if __name__ == "__main__":
    unittest.main(verbosity=2)
