# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the real program on a real display with a real window manager, and the emulated card under it.

The program is seen as a screen reader sees it and worked as a person works it (xdotool); nothing here knows its code.
"""
import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402, F401

APP = pathlib.Path(os.environ["CORVA_APP"])


PAUSE = float(os.environ.get("CORVA_PAUSE", "0.05"))  # between two looks; longer where looking is slow


def wait_for(what, condition, seconds=20.0):
    """Waits on a state; fails with the state's name."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(PAUSE)
    raise AssertionError(f"not seen within {seconds} s: {what}")


class Card:
    """The emulated card in a folder of its own."""

    def __init__(self, folder, profile=None):
        self.folder = folder
        command = [APP / "cardemu", "--dir", folder]
        if profile:
            command += ["--profile", pathlib.Path(os.environ["CORVA_SOURCE"]) / "emulator/profiles" / profile]
        self.process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
        wait_for("the card's port", lambda: (folder / "at").exists())

    def say(self, *words):
        return subprocess.run([APP / "cardctl", self.folder, *words], check=True, capture_output=True, text=True).stdout

    def end(self):
        self.process.terminate()
        self.process.wait()


class Program:
    """Corva in a copy of its directory, with its own settings."""

    def __init__(self, folder, card=None, **settings):
        self.folder = folder
        if not folder.exists():
            shutil.copytree(APP, folder)
        # Everything of the start is configured, so that a test says only what it is about.
        self.configure("function", "splash_hide", "1")
        self.configure("systemsetting", "disclaimer_show", "0")
        if card:
            for port in ("at", "modem", "voice"):
                self.configure("device", f"{port}_port", str(card.folder / port))
        for name, value in settings.items():
            section, key = name.split("__")
            self.configure(section, key, value)
        self.process = None

    def configure(self, section, key, value):
        subprocess.run([self.folder / "corva-configset", section, key, value], cwd=self.folder, check=True)

    def start(self, *arguments):
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_ACCESSIBILITY="1")
        with open(self.folder / "output.txt", "ab") as log:
            self.process = subprocess.Popen([self.folder / "corva", *arguments], cwd=self.folder, env=environment,
                                            stdout=log, stderr=log)
        return self

    def start_on_network(self):
        self.start()
        self.wait_text("Test Network")

    def end(self):
        if self.process and self.process.poll() is None:
            self.process.terminate()
            self.process.wait(10)

    def accessible(self):
        """The program in the accessibility tree, or None."""
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            with contextlib.suppress(Exception):
                if application and application.get_process_id() == self.process.pid:
                    return application
        return None

    @staticmethod
    def shown_in(node, depth=0):
        """Everything that is shown in a node, itself included; asked for one by one, since each costs some time."""
        if node is None or depth > 40:
            return
        with contextlib.suppress(Exception):
            if depth >= 2 and not node.get_state_set().contains(Atspi.StateType.SHOWING):
                return
            yield node
            for i in range(node.get_child_count()):
                yield from Program.shown_in(node.get_child_at_index(i), depth + 1)

    def nodes(self):
        """Everything that is shown."""
        return self.shown_in(self.accessible())

    def each_text(self):
        for node in self.nodes():
            with contextlib.suppress(Exception):
                yield from (text for text in (node.get_name(), node.get_description()) if text)

    def texts(self):
        """Every text that a person can read now."""
        return list(self.each_text())

    def shows(self, text):
        return any(text in each for each in self.each_text())

    def wait_text(self, text, seconds=20.0):
        return wait_for(f"the text “{text}”", lambda: self.shows(text), seconds)

    def wait_no_text(self, text, seconds=20.0):
        return wait_for(f"no text “{text}” any more", lambda: not self.shows(text), seconds)

    def node(self, name, role=None):
        for node in self.nodes():
            with contextlib.suppress(Exception):
                if node.get_name() == name and (role is None or node.get_role_name() == role):
                    return node
        return None

    def press(self, name, role=None):
        """Does the first action of the control of this name."""
        node = wait_for(f"the control “{name}”", lambda: self.node(name, role))
        node.get_action_iface().do_action(0)

    def window(self):
        def search():
            result = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
                                    capture_output=True, text=True)
            return result.stdout.split()
        return wait_for("the window", search)[0]

    def keys(self, *keys):
        subprocess.run(["xdotool", "key", "--clearmodifiers", *keys], check=True)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)

    def picture(self, name):
        folder = pathlib.Path(os.environ.get("CORVA_PICTURES", self.folder.parent))
        folder.mkdir(parents=True, exist_ok=True)
        subprocess.run(["import", "-window", "root", str(folder / f"{name}.png")], check=True)


@contextlib.contextmanager
def desk(profile=None, with_card=True, **settings):
    """A folder with a card and a program that is not started yet; everything ends with the block."""
    with tempfile.TemporaryDirectory(prefix="corva-journey-") as name:
        folder = pathlib.Path(name)
        card = Card(folder / "card", profile) if with_card else None
        program = Program(folder / "app", card, **settings)
        try:
            yield card, program
        except BaseException:
            with contextlib.suppress(Exception):
                program.picture("failed")
                print((folder / "app/output.txt").read_text(errors="replace")[-4000:])
                print("shown:", program.texts())
            raise
        finally:
            program.end()
            if card:
                card.end()
