#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person does with the window, from plugging in to the state on screen. See driver.py."""
import json
import os
import pathlib
import shutil
import subprocess
import sys
import unittest

from driver import Atspi, desk, wait_for

DIALLER_FILES = [pathlib.Path(name) for name in (
    "/etc/wvdial.conf", "/etc/tmpwvdial.conf", "/etc/ppp/options", "/etc/ppp/tmpoptions", "/etc/ppp/peers/wvdial",
    "/etc/ppp/peers/tmpwvdial", "/etc/ppp/pap-secrets", "/etc/ppp/chap-secrets", "/etc/resolv.conf",
    "/etc/tmpresolv.conf", "/tmp/connect_info")]
OWN_ETC = "CORVA_OWN_ETC"
# Dials write the dialler's files: into an /etc of the journeys' own, which is gone with them.
MOUNTS = """mount -t tmpfs own /mnt && mkdir /mnt/upper /mnt/work &&
    mount -t overlay own /etc -o lowerdir=/etc,upperdir=/mnt/upper,workdir=/mnt/work"""


def enter_own_etc():
    """Starts the journeys again in a mount namespace of their own, where the system gives one; says so where not."""
    if os.geteuid() != 0 or OWN_ETC in os.environ:
        return
    in_own = ["unshare", "--mount", "--propagation", "private", "sh", "-c"]
    if shutil.which("unshare") and subprocess.run([*in_own, MOUNTS], capture_output=True).returncode == 0:
        os.environ[OWN_ETC] = "1"
        os.execvp(in_own[0], [*in_own, f'{MOUNTS} && exec "$@"', "sh", sys.executable, *sys.argv])
    print("No mount namespace here: a dial would change this machine's own /etc, so nothing dials.", file=sys.stderr)


def dialler_files():
    """What stands in the system's files of the dialler, with owner and mode; None for one that is not there."""
    def look(path):
        if not path.exists():
            return None
        about = path.stat()
        return path.read_bytes(), about.st_mode, about.st_uid, about.st_gid
    return {path: look(path) for path in DIALLER_FILES}


def can_dial_in_vain():
    """Whether a dial gets as far as pppd here, and no further: rights, an own /etc, a dialler, a kernel without PPP."""
    try:
        os.close(os.open("/dev/ppp", os.O_RDWR))
    except OSError:
        return OWN_ETC in os.environ and bool(shutil.which("wvdial")) and bool(shutil.which("pppd"))
    return False


DIALS_NEED = "needs root, a mount namespace, wvdial and a kernel without PPP; see tests/vm for one with it"


def add_profile(program, name):
    """Adds a profile by keyboard."""
    program.keys("ctrl+1")
    program.wait_text("Status: Disconnected")
    program.keys("ctrl+n")
    program.wait_text("New profile")
    program.type(name)
    program.keys("alt+p")
    program.type("internet.example")
    program.keys("Return")
    program.wait_text(f"Connect goes by the profile \"{name}\".")


class Start(unittest.TestCase):
    def test_second_start_and_arguments_end_silently(self):
        with desk() as (_, program):
            program.start_on_network()
            other = subprocess.run([program.folder / "corva"], cwd=program.folder, timeout=20)
            self.assertEqual(other.returncode, 0)
            bare = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
            for arguments in (["--help"], [""], ["-platform", "none"]):
                ended = subprocess.run([program.folder / "corva", *arguments], cwd=program.folder, env=bare, timeout=20)
                self.assertEqual(ended.returncode, 0, arguments)
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

    def test_disclaimer_accepted_or_declined(self):
        with desk(setting__system_enabled="1", systemsetting__disclaimer_show="1") as (_, program):
            program.start()
            program.wait_text("Before you begin")
            program.picture("disclaimer")
            program.keys("Return")
            program.wait_text("Test Network")
            program.end()
            program.start()
            program.wait_text("Before you begin")
            program.keys("Escape")
            self.assertEqual(program.process.wait(10), 0)


class CardState(unittest.TestCase):
    def test_state_follows_the_card(self):
        with desk() as (card, program):
            program.start_on_network()
            program.picture("card")
            for words, shown in ((("operator", "00102", "long=Another Network"), "Another Network"),
                                 (("roaming", "on"), "Roaming")):
                card.say(*words)
                program.wait_text(shown)

    def test_reports_reach_the_person(self):
        with desk(call__enable="1") as (card, program):
            program.start_on_network()
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
            program.picture("no-card")


def dial_in_vain(program):
    """Presses Connect, waits for the box that says how it failed, and closes it. Returns what it said."""
    def told():
        return next((text for text in program.texts()
                     if text.startswith(("Fail to connect!", "Connection is failed!"))), None)
    program.keys("alt+c")
    program.wait_text("Initializing")
    program.picture("internet-connecting")
    text = wait_for("how the dial failed", told, 60)
    program.picture("internet-failed")
    program.keys("Return")
    program.wait_no_text(text)
    program.wait_text("Status: Disconnected")
    return text


def open_messages(program, *keys):
    """Opens the messages by keyboard, once the window has the keyboard, and presses more keys in the search."""
    def has_search():
        search = program.node("Search all messages")
        return search and search.get_state_set().contains(Atspi.StateType.FOCUSED)
    wait_for("the search", lambda: program.keys("ctrl+2", "ctrl+f") or has_search())
    if keys:
        program.keys(*keys)


class Messages(unittest.TestCase):
    def test_message_comes_in_and_is_answered(self):
        with desk(sms__newsmsLocation="2", sms__deliveryReportMsgDlgShow="0") as (card, program):
            program.start_on_network()
            card.say("sms", "from=+12025550123", "text=Meet <b>me</b> at eight, مرحبا", "alphabet=ucs2")
            program.wait_text("Messages, 1 new")
            open_messages(program, "Down", "Home")
            program.wait_text("Meet <b>me</b> at eight, مرحبا")
            program.wait_no_text("Messages, 1 new")
            program.picture("messages")
            program.keys("ctrl+r")
            program.wait_text("New message")
            program.type("On my way")
            program.wait_text("Symbol: 9 /1")
            program.keys("ctrl+Return")
            program.wait_text("Sent successfully 1,failed 0")
            taken = json.loads(card.say("sent"))
            self.assertIn("+12025550123", json.dumps(taken))

    def test_a_sending_is_cancelled_and_a_nearly_full_sim_told(self):
        with desk(sms__newsmsLocation="1", sms__deliveryReportMsgDlgShow="0") as (card, program):
            card.say("delay", "AT+CMGS", "3000")
            card.say("store", "SM", "capacity=10")
            program.start_on_network()
            open_messages(program, "ctrl+n")
            program.wait_text("Symbol: 0 /1")
            program.type("+12025550123, +12025550124\tOn my way")
            program.keys("ctrl+Return")
            program.wait_text("Sending ... 0 of 2")
            program.press("Cancel sending")
            program.wait_text("Do you want to cancel sending the rest SMS?")
            program.keys("alt+y")
            program.wait_text("Sent successfully 1,failed 1")
            program.wait_no_text("Cancel sending")
            self.assertNotIn("+12025550124", card.say("sent"))
            self.assertFalse(program.shows("places are used"))
            for number in range(8):  # beside the one that is there
                card.say("sms", "from=+12025550123", f"text=Message {number}")
            program.wait_text("9 of 10 places are used")

    def test_what_is_written_outlives_a_killed_program(self):
        with desk() as (_, program):
            program.start_on_network()
            open_messages(program, "ctrl+n")
            program.wait_text("Symbol: 0 /1")
            program.type("+49 151 2345\tHalf a sentence")
            drafts = program.folder / "Data/sms.xml"
            wait_for("the draft on disk", lambda: drafts.exists() and "Half a sentence" in drafts.read_text())
            program.process.kill()
            program.process.wait(10)
            program.start_on_network()
            open_messages(program)
            program.type("half")
            program.keys("Down", "Home", "Return")
            program.wait_text("Symbol: 15 /1")
            program.picture("messages-draft")


class Connection(unittest.TestCase):
    @unittest.skipUnless(can_dial_in_vain(), DIALS_NEED)
    def test_failed_dial_is_told_and_leaves_the_files_as_they_were(self):
        with desk() as (card, program):
            before = dialler_files()
            program.start_on_network()
            add_profile(program, "Prepaid")
            program.picture("internet")
            card.say("dial-result", "no-carrier")
            self.assertEqual(dial_in_vain(program), "Connection is failed!")
            self.assertEqual(dialler_files(), before)
            card.say("dial-result", "connect-then-silence")
            # On some processors wvdial ends itself now and then, by an assertion of its own; a person tries again.
            told = next((text for text in (dial_in_vain(program) for _ in range(8)) if "exit code" in text), "")
            self.assertIn("Fail to connect! exit code is 4", " ".join(told.split()))
            self.assertEqual(dialler_files(), before)
            program.keys("F1")
            program.wait_text("The dialler failed")
            program.picture("internet-why")
            program.keys("ctrl+q")
            self.assertEqual(program.process.wait(15), 0)
            self.assertEqual(dialler_files(), before)

    @unittest.skipUnless(can_dial_in_vain(), DIALS_NEED)
    def test_asked_to_end_in_the_middle_of_a_dial(self):
        with desk() as (_, program):
            before = dialler_files()
            program.start_on_network()
            add_profile(program, "Prepaid")
            program.keys("ctrl+d")
            wait_for("the files of the dial", lambda: dialler_files() != before)
            program.process.terminate()
            self.assertEqual(program.process.wait(20), 0)
            self.assertEqual(dialler_files(), before)

    def test_profiles_outlive_the_program_and_mirror(self):
        with desk() as (_, program):
            program.start_on_network()
            add_profile(program, "Prepaid")
            left = program.node("Prepaid, connects with it").get_extents(0).x
            program.keys("ctrl+q")
            program.process.wait(15)
            program.configure("function", "selected-language", "Arabic")
            program.configure("window", "geometry", "200,100,800,520")
            program.start_on_network()
            program.wait_text("Prepaid")
            program.picture("internet-arabic")
            mirrored = [node for node in program.nodes() if node.get_name().startswith("Prepaid")
                        and node.get_role_name() == "list item"]
            self.assertGreater(mirrored[0].get_extents(0).x, left)


if __name__ == "__main__":
    enter_own_etc()
    unittest.main(verbosity=2)
