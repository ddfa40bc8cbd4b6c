# SPDX-License-Identifier: GPL-3.0-or-later
"""What the scenarios act on: the network behind the card, the card on its USB gadget, the program, the system's files."""
import contextlib
import faulthandler
import hashlib
import json
import os
import pathlib
import re
import shutil
import signal
import stat
import subprocess
import sys
import tempfile
import threading
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "journey"))
from driver import APP, Card, GLib, Program, wait_for  # noqa: E402

USER, PASSWORD = "tester", "secret"
WEB = "198.51.100.80"
DOWNLOAD = 20 * 1000 * 1000
GADGET_BINDING = pathlib.Path("/sys/kernel/config/usb_gadget/card/UDC")
EXCHANGE = pathlib.Path("/exchange")


def run(*words, **options):
    words = [str(word) for word in words]
    done = subprocess.run(words, capture_output=True, text=True, **options)
    assert done.returncode == 0, f"{' '.join(words)}: status {done.returncode}, {done.stdout}{done.stderr}".strip()
    return done.stdout


def pids(name):
    """The processes of this name. Read directly: a program that looks them up costs ten times as much in here."""
    found = []
    for folder in pathlib.Path("/proc").glob("[0-9]*"):
        with contextlib.suppress(OSError):
            if (folder / "comm").read_text().rstrip("\n") == name and ") Z " not in (folder / "stat").read_text():
                found.append(int(folder.name))
    return found


class Etc:
    """The contents, modes, owners and link targets of /etc, but for the one file that pppd leaves behind for people to
    read after each link."""

    LEFT_BY_PPPD = "/etc/ppp/resolv.conf"

    def __init__(self):
        self.files = dict(self.look())

    @staticmethod
    def look():
        for folder, _, names in os.walk("/etc"):
            for path in (folder, *(os.path.join(folder, name) for name in names)):
                if path != Etc.LEFT_BY_PPPD:
                    yield path, Etc.look_at(path)

    @staticmethod
    def look_at(path):
        about = os.lstat(path)
        content = ""
        if stat.S_ISLNK(about.st_mode):
            content = os.readlink(path)
            if path == "/etc/resolv.conf":
                content += pathlib.Path(path).read_text()
        elif stat.S_ISREG(about.st_mode):
            content = hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()
        return about.st_mode, about.st_uid, about.st_gid, content

    def has_diallers_files(self):
        """Whether the files that a connection changes are as before. Soon answered, for times."""
        with contextlib.suppress(OSError):
            return not any(map(os.path.exists, COPIES)) and all(
                self.look_at(path) == self.files[path] for path in OWN_FILES)
        return False

    def differences(self):
        now = dict(self.look())
        aspects = ("mode", "owner", "group", "content")
        for path in sorted(self.files.keys() | now.keys()):
            before, after = self.files.get(path), now.get(path)
            if before is None or after is None:
                yield f"{path} ({'new' if before is None else 'gone'})"
            elif before != after:
                yield f"{path} ({', '.join(name for name, a, b in zip(aspects, before, after) if a != b)})"

    def wait_same(self, seconds=10.0):
        """Returns once /etc is as it was."""
        end = time.monotonic() + seconds
        while different := list(self.differences()):
            assert time.monotonic() < end, f"not as before in /etc: {', '.join(different)}"
            time.sleep(0.1)


class Network:
    """What the card's calls lead to: a namespace with the users' secrets and a web server."""

    def __init__(self, folder):
        run("ip", "netns", "add", "net")
        run("ip", "-n", "net", "link", "set", "lo", "up")
        run("ip", "-n", "net", "addr", "add", f"{WEB}/32", "dev", "lo")
        own = pathlib.Path("/etc/netns/net/ppp")
        own.mkdir(parents=True)
        (own / "options").write_text("")
        for kind in ("pap", "chap"):
            (own / f"{kind}-secrets").write_text(f"{USER} * {PASSWORD} *\n")
        web = folder / "web"
        web.mkdir()
        with open(web / "file", "wb") as file:
            file.truncate(DOWNLOAD)
        run("ip", "netns", "exec", "net", "busybox", "httpd", "-p", f"{WEB}:80", "-h", web)

    @staticmethod
    def ping():
        """Pings across; "connected" may be said a moment before the route stands."""
        def answers():
            return subprocess.run(["busybox", "ping", "-c", "1", "-W", "5", WEB], capture_output=True).returncode == 0
        wait_for("an answer to a ping", answers, 5)

    @staticmethod
    def fetch():
        """Fetches the large file; how long that took, in seconds."""
        begin = time.monotonic()
        size = int(run("curl", "-sS", "-m", "300", "-o", "/dev/null", "-w", "%{size_download}", f"http://{WEB}/file"))
        assert size == DOWNLOAD, f"{size} of {DOWNLOAD} bytes came"
        return time.monotonic() - begin


class Recorder:
    """Keeps a file's last text, also when the file is gone."""

    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.text = ""
        threading.Thread(target=self.look, daemon=True).start()

    def look(self):
        while True:
            with contextlib.suppress(OSError):
                self.text = self.path.read_text(errors="replace") or self.text
            time.sleep(0.05)


class ProcessTimes:
    """The kernel's own notes of when programs began and processes ended, on time.monotonic()."""

    TRACE = pathlib.Path("/sys/kernel/tracing/instances/processes")

    def __init__(self):
        self.TRACE.mkdir(exist_ok=True)
        (self.TRACE / "trace_clock").write_text("mono")
        for event in ("fork", "exec", "exit"):
            (self.TRACE / f"events/sched/sched_process_{event}/enable").write_text("1")

    def find(self, pattern):
        """Every note of this pattern: its moment and what its group says."""
        found = re.findall(rf" (\d+\.\d+): sched_process_{pattern}", (self.TRACE / "trace").read_text())
        return [(float(moment), said) for moment, said in found]

    def began(self, program):
        """When it began, each time."""
        return [moment for moment, _ in self.find(f"(exec): filename={program} ")]

    def link_ended(self):
        """When this computer's pppds and their scripts ended. The network's side has a pppd too, and no scripts."""
        of_wvdial = {pid for _, pid in self.find(r"fork: comm=wvdial pid=\d+ child_comm=\S+ child_pid=(\d+)")}
        pppds = {pid for _, pid in self.find(r"exec: filename=/usr/sbin/pppd pid=(\d+) ")} & of_wvdial
        scripts = {pid for _, pid in self.find(r"exec: filename=/etc/ppp/ip-\S+ pid=(\d+) ")}
        ends = {pid: moment for moment, pid in self.find(r"exit: comm=\S+ pid=(\d+) ")}
        return [ends[pid] for pid in pppds | scripts if pid in ends]


class DtrWatch:
    """Calls `changed` with an interface's number and whether its DTR is up, whenever the computer sets it.

    The gadget's side cannot see it, so it is taken from the driver's own request on the bus, SET_CONTROL_LINE_STATE.
    """

    TRACING = pathlib.Path("/sys/kernel/tracing")
    REQUEST, TO_INTERFACE = 0x22, 0x21

    def __init__(self, changed):
        self.changed = changed
        if not (self.TRACING / "kprobe_events").exists():
            run("mount", "-t", "tracefs", "tracefs", self.TRACING)
        (self.TRACING / "kprobe_events").write_text(
            "p:linestate usb_control_msg request=%dx:u8 type=%cx:u8 value=%r8:u16 index=%r9:u16\n")
        event = self.TRACING / "events/kprobes/linestate"
        (event / "filter").write_text(f"request == {self.REQUEST} && type == {self.TO_INTERFACE}")
        (event / "enable").write_text("1")
        threading.Thread(target=self.look, daemon=True).start()

    def look(self):
        with open(self.TRACING / "trace_pipe") as pipe:
            for line in pipe:
                found = re.search(r"value=(\d+) index=(\d+)", line)
                if found:
                    with contextlib.suppress(subprocess.CalledProcessError):  # the card ends at this moment
                        self.changed(int(found[2]), bool(int(found[1]) & 1))


class GadgetCard(Card):
    """The emulated card behind a USB gadget: /dev/ttyUSB* for the computer, with the network behind its data port."""

    INTERFACES = {"modem": 0, "voice": 1, "at": 2}

    def __init__(self, folder, auth="noauth", **data):
        self.folder = folder
        self.hang_up = threading.Timer(0, self.end_call, [None])
        profile = {"line": {"dialResult": "CONNECT"},
                   "data": {"accessPoint": "internet", "peer": self.peer(auth), "hook": str(HERE / "network-card-side"),
                            **data}}
        file = folder.with_suffix(".json")
        file.write_text(json.dumps(profile))
        devices = [f"--device={port}=/dev/ttyGS{number}" for port, number in self.INTERFACES.items()]
        self.output = open(EXCHANGE / "card.txt", "ab")
        self.process = subprocess.Popen([APP / "cardemu", "--dir", folder, "--profile", file, *devices],
                                        stdout=self.output, stderr=self.output)
        wait_for("the card's control socket", (folder / "control").exists)
        self.plug()

    def dtr_changed(self, interface, is_up):
        """A lowered DTR ends the call. Not at once: pppd says goodbye over the line at the same moment, and cannot be told
        that it is dead, since the gadget has no carrier detect either. Raised again meanwhile, it ends it at once."""
        if interface != self.INTERFACES["modem"]:
            return
        waits = self.hang_up.is_alive()
        self.hang_up.cancel()
        if waits or not is_up:
            call = self.hang_up.args[0] if waits else self.network_process()
            self.hang_up = threading.Timer(0 if is_up else 3, self.end_call, [call])
            self.hang_up.start()

    def end_call(self, call):
        with contextlib.suppress(subprocess.CalledProcessError):
            if call and self.network_process() == call:
                self.say("drop-data")

    @staticmethod
    def peer(*options):
        return " ".join([str(HERE / "network-side"), *options])

    def plug(self):
        run(HERE / "gadget", "plug")
        wait_for("the card's ports", lambda: all(self.port(name) for name in self.INTERFACES))
        run("udevadm", "settle")

    def pull(self):
        run(HERE / "gadget", "unplug")

    @staticmethod
    def is_plugged():
        return bool(GADGET_BINDING.read_text().strip())

    def port(self, name):
        """The device under which the computer has this port now, or None."""
        found = list(pathlib.Path("/sys/bus/usb/devices").glob(f"*:1.{self.INTERFACES[name]}/ttyUSB*"))
        return pathlib.Path("/dev") / found[0].name if found else None

    def network_process(self):
        """The pppd of the network's side, while a call is up."""
        return json.loads(self.say("show"))["state"]["ports"]["modem"].get("peer")

    def end(self):
        if self.is_plugged():
            self.pull()
        super().end()
        self.output.close()


class Wvdial:
    """Plain wvdial, as a person starts it, with a configuration of its own."""

    SECRETS = [pathlib.Path("/etc/ppp") / f"{kind}-secrets" for kind in ("pap", "chap")]

    def __init__(self, port, folder, user=USER, password=PASSWORD):
        self.secrets = {file: file.read_bytes() for file in self.SECRETS}
        configuration = folder / "wvdial.conf"
        configuration.write_text("\n".join([
            "[Dialer Defaults]", "Phone = *99#", f"Username = {user}", f"Password = {password}", "Stupid Mode = 1",
            "Dial Command = ATDT", f"Modem = {port}", "Baud = 115200", "Init2 = AT+CGDCONT=1,\"IP\",\"internet\"",
            "Auto Reconnect = off", "Check DNS = off", "Dial Attempts = 1", ""]))
        self.log = folder / "wvdial.txt"
        self.process = subprocess.Popen(["wvdial", "-C", configuration], stdout=open(self.log, "wb"),
                                        stderr=subprocess.STDOUT)

    def text(self):
        return self.log.read_text(errors="replace")

    def end(self):
        self.process.terminate()
        self.process.wait(20)
        for file, content in self.secrets.items():  # it has added its own line
            file.write_bytes(content)


class Internet(Program):
    """The program, found on its connection page."""

    def __init__(self, folder, **settings):
        # Short times, so that what waits for a time-out ends soon.
        defaults = {"window__page": "connection", "function__ppp_errcode_show": "1",
                    "network_dialer_setting__dial_timeout": "40", "network_dialer_setting__lcp-echo-interval": "2",
                    "network_dialer_setting__lcp-echo-failure": "3"}
        super().__init__(folder, **{**defaults, **settings})
        self.state_node = self.button = None

    def set_profile(self, **changes):
        """Makes the profile that is dialled; fields by the beginnings of their labels."""
        fields = {"config file name": "Test", "Phone": "*99#", "Username": USER, "Password": PASSWORD, "save user name": "1",
                  "ask user name": "0", "obtain APN": "0", "use APN": "1", "APN": "internet", "IP modal": "IP",
                  "PPP modal": "PPP", "PAP modal": "1", "CHAP modal": "0", "None modal": "0", "obtain DNS": "1",
                  "use DNS": "0", "preNameserver": "", "altNameserver": "", "obtain PDP": "1", "user PDP": "0", "PDP": "",
                  "delete Enable": "can&edit", "IMSI": "", "defaultOpenURL": "", "sectionShow": "1",
                  "defaultUsernameEditable": "1", **changes}
        text = "[ the record of <Test> ]\n"
        for label, value in fields.items():
            text += f"{label} {'' if label.endswith('server') else '= '}{value}-|-\n"
        for name in ("totalRecord", "defaultRecord"):
            file = self.folder / "Data" / f"{name}.conf"
            file.write_text(text)
            file.chmod(0o600)

    @contextlib.contextmanager
    def running_bench(self, rounds, *further):
        """The window that connects by itself so many times, and says what it measured; with this program's settings."""
        bench = shutil.copy(APP.parent / "benchmarks/diallingbench", self.folder)
        with open(self.folder / "output.txt", "wb") as log:
            self.process = subprocess.Popen([bench, str(rounds), *further], cwd=self.folder, stdout=subprocess.PIPE, stderr=log, text=True)
        try:
            yield self.process
        finally:
            self.end()

    # Every question to the program goes over the bus, which is slow in here: what stays is looked up once.

    def begin(self):
        """Starts the program and returns once it has found the card and its network."""
        self.start()
        self.wait_text("Test Network", 90)
        self.state_node, self.button = wait_for("the page of the connection", self.find_page)
        return self

    def find_page(self):
        found = {}
        for node in self.nodes():
            with contextlib.suppress(Exception):
                name = node.get_name()
                if name.startswith(("Status:", "Initializing", "Disconnecting")):
                    found["state"] = node
                elif name in ("Connect", "Cancel", "Disconnect") and node.get_role_name() == "push button":
                    found["button"] = node
            if len(found) == 2:
                return found["state"], found["button"]
        return None

    @staticmethod
    def name_now(node):
        """None when the program is too busy to say it, on a computer that is too."""
        with contextlib.suppress(GLib.Error):
            node.clear_cache()
            return node.get_name()
        return None

    def wait_state(self, state, seconds=60.0):
        """Returns the moment at which the state was seen, on time.monotonic()."""
        wait_for(f"“{state}”", lambda: self.name_now(self.state_node) == state, seconds)
        return time.monotonic()

    def press_now(self, name):
        """Presses the large button, when it has this name; returns the moment just before."""
        wait_for(f"the button “{name}”", lambda: self.name_now(self.button) == name)
        moment = time.monotonic()
        self.button.get_action_iface().do_action(0)
        return moment

    def connect(self, seconds=90.0):
        begin = self.press_now("Connect")
        return self.wait_state("Status: Connected", seconds) - begin

    def disconnect(self):
        begin = self.press_now("Disconnect")
        return self.wait_state("Status: Disconnected", 40) - begin

    def boxes(self):
        """The open boxes, each as the list of what it shows."""
        found = []
        with contextlib.suppress(GLib.Error):  # one goes at this moment
            application = self.accessible()
            for number in range(application.get_child_count()):
                window = application.get_child_at_index(number)
                if window and window.get_role_name() != "frame":
                    found.append(list(self.shown_in(window, 2)))
        return found

    def box(self, text=""):
        """The button that closes the box with this text, or None."""
        for shown in self.boxes():
            with contextlib.suppress(GLib.Error):
                names = [node.get_name() for node in shown]
                if "OK" in names and any(text in name for name in names):
                    return shown[names.index("OK")]
        return None

    def close(self, text):
        """Closes the box with this text, if there is one."""
        with contextlib.suppress(GLib.Error, AttributeError):
            self.box(text).get_action_iface().do_action(0)

    def dismiss(self, text, seconds=60.0):
        """Waits for a box with this text and closes it."""
        wait_for(f"a box with “{text}”", lambda: self.box(text), seconds)
        self.close(text)
        wait_for(f"no box with “{text}” any more", lambda: not self.box(text))

    def dismiss_all(self):
        """Closes the boxes that may be open, whatever they say."""
        while self.box():
            self.close("")

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()


COPIES = ["/etc/tmpwvdial.conf", "/etc/tmpresolv.conf", "/etc/ppp/tmpoptions", "/etc/ppp/peers/tmpwvdial",
          "/etc/ppp/corva-saved.json"]
OWN_FILES = ["/etc/wvdial.conf", "/etc/ppp/options", "/etc/ppp/peers/wvdial", "/etc/ppp/pap-secrets", "/etc/ppp/chap-secrets",
             "/etc/resolv.conf"]


def prepare_system():
    """The system's own dialler files, with contents, modes and owners that a careless restore would not bring back."""
    dip = int(run("getent", "group", "dip").split(":")[2])
    for left in COPIES:
        pathlib.Path(left).unlink(missing_ok=True)
    for path, text, mode, group in (
            ("/etc/wvdial.conf", "[Dialer Defaults]\nModem = /dev/modem\nPhone = 5550100\n", 0o640, dip),
            ("/etc/ppp/options", "# the owner's options\r\nlock\r\n", 0o640, dip),
            ("/etc/ppp/peers/wvdial", "noauth\nname wvdial\n", 0o640, dip),
            ("/etc/ppp/pap-secrets", "# the owner's\nsomebody\t*\telse\n", 0o600, 0),
            ("/etc/ppp/chap-secrets", f"# the owner's\n{USER}\t*\tolder\n", 0o600, 0)):
        file = pathlib.Path(path)
        file.parent.mkdir(parents=True, exist_ok=True)
        file.unlink(missing_ok=True)
        file.write_text(text)
        file.chmod(mode)
        os.chown(file, 0, group)
    # As a network manager has it: a link to a file elsewhere.
    pathlib.Path("/run/resolver.conf").write_text("nameserver 192.0.2.1\n")
    pathlib.Path("/etc/resolv.conf").unlink(missing_ok=True)
    pathlib.Path("/etc/resolv.conf").symlink_to("/run/resolver.conf")


class World:
    """One machine for all scenarios; each begins and ends with nothing of a connection left."""

    def __init__(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="corva-vm-"))
        prepare_system()
        self.network = Network(self.folder)
        # Once for all: the kernel does not always let go of a serial function that was pulled out while in use.
        run(HERE / "gadget", "make", "1209", "0001", "gser.0", "gser.1", "gser.2", "ecm.0")
        self.etc = Etc()
        self.dialler_words = Recorder("/tmp/connect_info")
        self.current_card = None
        DtrWatch(lambda interface, is_up: self.current_card and self.current_card.dtr_changed(interface, is_up))
        self.process_times = ProcessTimes()
        self.count = 0

    def new_folder(self, name):
        self.count += 1
        return self.folder / f"{name}{self.count}"

    @contextlib.contextmanager
    def card(self, **options):
        self.current_card = card = GadgetCard(self.new_folder("card"), **options)
        try:
            yield card
        finally:
            self.current_card = None
            card.end()

    @contextlib.contextmanager
    def program(self, profile=None, **settings):
        program = Internet(self.new_folder("app"), **settings)
        program.set_profile(**(profile or {}))
        try:
            yield program.begin()
        except BaseException as problem:
            print("      failed at:", problem)  # what is tidied up below may fail too
            self.keep_evidence(program)
            raise
        finally:
            program.end()
            shutil.rmtree(program.folder, ignore_errors=True)  # all is memory here

    def keep_evidence(self, program):
        with contextlib.suppress(Exception):
            run("import", "-window", "root", EXCHANGE / f"failed{self.count}.png")
        with contextlib.suppress(Exception):
            print("      shown:", "; ".join(program.texts()))
        with open(EXCHANGE / f"failed{self.count}-system.txt", "w") as log:
            for words in ("ip -s address", "ip route", "ip -n net -s address", "ip -n net route", "ps ax", "ls -lR /etc/ppp",
                          "cat /etc/ppp/options", "ls -l /run", "cat /etc/resolv.conf", f"cat {ProcessTimes.TRACE}/trace",
                          "dmesg"):
                log.write(f"=== {words}\n")
                log.flush()
                subprocess.run(words.split(), stdout=log, stderr=log)
        self.keep_output(program, f"failed{self.count}")

    def keep_output(self, program, name="times"):
        """What the program, the dialler and the network's side said."""
        (EXCHANGE / f"{name}-dialler.txt").write_text(self.dialler_words.text)
        for source, what in ((program.folder / "output.txt", "output"),
                             (pathlib.Path("/tmp/network-side.log"), "network-side")):
            with contextlib.suppress(Exception):
                (EXCHANGE / f"{name}-{what}.txt").write_bytes(source.read_bytes())

    def tell_where_it_hangs(self):
        """For a scenario that does not end: where it stands, and whom the kernel holds. Then the machine ends."""
        with open(EXCHANGE / "hang.txt", "w") as log:
            faulthandler.dump_traceback(log)
            pathlib.Path("/proc/sysrq-trigger").write_text("w")
            subprocess.run(["dmesg"], stdout=log)
            subprocess.run(["ps", "axl"], stdout=log)
        print("FAILED  no end: see hang.txt", flush=True)
        with contextlib.suppress(Exception):
            run("import", "-window", "root", EXCHANGE / "hang.png", timeout=20)
        os._exit(1)

    def check_clean(self):
        """Nothing of a connection is left: no process, no interface, and /etc as before."""
        wait_for("no dialler and no pppd", lambda: not pids("wvdial") and not pids("pppd"), 15)
        assert not pathlib.Path("/sys/class/net/ppp0").exists(), "ppp0 is still there"
        self.etc.wait_same()

    def clean(self):
        """After a failure: what follows begins anew, with the system's files too."""
        for name in ("wvdial", "pppd"):
            for pid in pids(name):
                with contextlib.suppress(ProcessLookupError):
                    os.kill(pid, signal.SIGKILL)
        for backup in pathlib.Path("/run").glob("resolver.conf.*"):
            backup.unlink()
        prepare_system()
        self.etc = Etc()
