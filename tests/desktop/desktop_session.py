"""A person's hands and eyes in a private session: pointer, keys, windows, the clipboard of another
program and, through the accessibility bus, what stands in the windows.

desktop() gives those of the session that runs; X11 and Wayland differ only there.
"""
import contextlib
import json
import os
import signal
import socket
import struct
import subprocess
import tempfile
import time

import dbus
import dbus.mainloop.glib
from gi.repository import GLib

# Those of the sessions.
SCREEN = (1280, 800)

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)


def wait_until(condition, what, seconds=60):
    """Until it gives something true; meanwhile this program's own objects on the bus answer."""
    end = time.monotonic() + seconds
    while True:
        while GLib.MainContext.default().iteration(False):
            pass
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError("waited in vain: " + what)
        time.sleep(0.02)


def do_until(act, condition, what):
    """Again if need be: while the focus moves, a key goes nowhere."""
    for _ in range(10):
        act()
        try:
            return wait_until(condition, what, 5)
        except AssertionError:
            pass
    raise AssertionError("done in vain: " + what)


def ask(bus, service, path, interface, method, *arguments):
    """Calls, while this program's own objects go on answering."""
    answer = []
    bus.get_object(service, path, introspect=False).get_dbus_method(method, interface)(
        *arguments, reply_handler=lambda *got: answer.append(got),
        error_handler=lambda error: answer.append(error))
    while not answer:  # an unanswered call ends with an error
        GLib.MainContext.default().iteration(True)
    if isinstance(answer[0], dbus.DBusException):
        raise answer[0]
    return answer[0]


def output_of(*command):
    """What the command printed; nothing where it fails."""
    return (read(*map(str, command), seconds=60) or b"").decode()


class Logged:
    """A program in the background, with what it has printed so far."""

    def __init__(self, *command, ready=None, stderr=None, env=None):
        self.log = tempfile.NamedTemporaryFile(dir=os.environ["NERLO_SESSION_DIR"])
        self.process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=self.log,
                                        stderr=stderr, env=env, start_new_session=True)
        if ready:
            wait_until(lambda: ready in self.lines, f"{command[0]} says {ready}")

    @property
    def text(self):
        with open(self.log.name, encoding="utf-8") as log:
            return log.read()

    @property
    def lines(self):
        return self.text.split("\n")[:-1]

    def close(self):
        """Ends it, with all that it has started."""
        with contextlib.suppress(ProcessLookupError):
            os.killpg(self.process.pid, signal.SIGKILL)
        self.process.wait()
        self.log.close()


class Program:
    """nerlo-pro, running."""

    BUS_NAME = "org.nerlo.NerloPro"
    PATH = "/org/nerlo/NerloPro"

    def __init__(self, *arguments, **environment):
        self.bus = dbus.SessionBus(private=True)
        self.bus.set_exit_on_disconnect(False)
        self.process = subprocess.Popen([os.environ["NERLO_PRO"], *arguments],
                                        env=os.environ | environment)
        wait_until(lambda: self.owner() == self.process.pid, "the program is on the bus")
        self.call("Doctor")  # answered only once the event loop runs

    def owner(self):
        """The process that has the name; one that is ending may still hold it."""
        try:
            return ask(self.bus, dbus.BUS_DAEMON_NAME, dbus.BUS_DAEMON_PATH, dbus.BUS_DAEMON_IFACE,
                       "GetConnectionUnixProcessID", self.BUS_NAME)[0]
        except dbus.DBusException:
            return None

    def call(self, method, *arguments):
        return ask(self.bus, self.BUS_NAME, self.PATH, self.BUS_NAME, method, *arguments)

    def property(self, name):
        return ask(self.bus, self.BUS_NAME, self.PATH, dbus.PROPERTIES_IFACE, "Get", self.BUS_NAME,
                   name)[0]

    def close(self):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()
        wait_until(lambda: self.owner() != self.process.pid, "the name is free")
        self.bus.close()


WAYLAND = os.environ["NERLO_SESSION"] == "wayland"


def copy(data):
    """Copies as plain text, with the session's ordinary tool. It stays to serve the text, and must not
    hold the pipes of its starter. The clipboard is taken later, in the tool's own time."""
    tool = ["wl-copy", "--type", "text/plain;charset=utf-8"] if WAYLAND else ["xclip", "-sel", "c"]
    subprocess.run(tool, input=data, check=True, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL)


def read(*tool, seconds=5):
    """The output of a tool, None if it fails. Where the owner of the clipboard ends just when it is
    asked, as xclip does when it loses it, a reader waits for ever."""
    try:
        done = subprocess.run(tool, capture_output=True, timeout=seconds)
    except subprocess.TimeoutExpired:
        return None
    return done.stdout if done.returncode == 0 else None


def paste(kind="UTF8_STRING", seconds=5):
    """The bytes of one format, None if it cannot be had."""
    tool = ["wl-paste", "--no-newline", "--type"] if WAYLAND else ["xclip", "-o", "-sel", "c", "-t"]
    return read(*tool, kind, seconds=seconds)


def formats():
    """What the clipboard offers, without what only belongs to the protocol."""
    names = (read("wl-paste", "--list-types") if WAYLAND else paste("TARGETS")) or b""
    return set(names.decode().split()) - {"TARGETS", "MULTIPLE", "TIMESTAMP", "SAVE_TARGETS"}


def expect(data, kind="UTF8_STRING"):
    """That this is what a paste brings. One that fails tells nothing: owners change, machines stall."""
    wait_until(lambda: paste(kind) == data, f"the clipboard holds {data[:40]!r}")


def copy_first(data):
    """Copies for what is asked of the program next."""
    copy(data)
    expect(data)


class Desktop:
    @staticmethod
    def copy(text):
        copy_first(text.encode())

    @staticmethod
    def expect(text):
        expect(text.encode())

    def activate(self, title):
        """Asks again: a window manager drops the request while another window comes or goes."""
        def in_front():
            windows = self.windows(title)
            return windows and (self.active() == windows[0] or self.focus(windows[0]))
        wait_until(in_front, f"{title} is in front")

    def click(self, x, y):
        self.move(x, y)
        self.press()

    def press(self):
        self.button(True)
        self.button(False)


class X11Desktop(Desktop):
    def close(self):
        pass

    @staticmethod
    def windows(title):
        return output_of("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    @staticmethod
    def active():
        return output_of("xdotool", "getactivewindow").strip()

    @staticmethod
    def focus(window):
        output_of("xdotool", "windowactivate", window)

    def place(self, title):
        lines = output_of("xdotool", "getwindowgeometry", "--shell", self.windows(title)[0])
        numbers = dict(line.split("=") for line in lines.split())
        return int(numbers["X"]), int(numbers["Y"])

    @staticmethod
    def move(x, y):
        output_of("xdotool", "mousemove", x, y)

    @staticmethod
    def button(down):
        output_of("xdotool", "mousedown" if down else "mouseup", 1)

    @staticmethod
    def keys(*chords):
        output_of("xdotool", "key", "--delay", 30, *chords)


class WaylandDesktop(Desktop):
    """sway, with a keyboard and a pointer of our own: its protocol needs no more than this."""

    KEYMAP = ('xkb_keymap { xkb_keycodes { include "evdev+aliases(qwerty)" }; '
              'xkb_types { include "complete" }; xkb_compat { include "complete" }; '
              'xkb_symbols { include "pc+us+inet(evdev)" }; };\0').encode()
    CODES = {"Escape": 1, "7": 8, "9": 10, "0": 11, "minus": 12, "Tab": 15, "Return": 28, "ctrl": 29,
             "shift": 42, "alt": 56, "space": 57, "Up": 103, "Down": 108, "Delete": 111, "super": 125}
    CODES |= {letter: first + place
              for first, row in ((16, "qwertyuiop"), (30, "asdfghjkl"), (44, "zxcvbnm"))
              for place, letter in enumerate(row)}
    MASKS = {"shift": 1, "ctrl": 4, "alt": 8, "super": 64}
    LEFT_BUTTON = 0x110
    DISPLAY, REGISTRY = 1, 2

    def __init__(self):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(60)
        self.socket.connect(os.path.join(os.environ["XDG_RUNTIME_DIR"],
                                         os.environ["WAYLAND_DISPLAY"]))
        self.received = b""
        self.globals = {}
        self.last_id = self.REGISTRY
        self.send(self.DISPLAY, 1, struct.pack("I", self.REGISTRY))
        self.round_trip()
        seat = self.bind("wl_seat")
        keyboards = self.bind("zwp_virtual_keyboard_manager_v1")
        pointers = self.bind("zwlr_virtual_pointer_manager_v1")
        self.keyboard, self.pointer = self.new_id(), self.new_id()
        self.send(keyboards, 0, struct.pack("II", seat, self.keyboard))
        self.send(pointers, 0, struct.pack("II", seat, self.pointer))
        keymap = os.memfd_create("keymap")
        os.write(keymap, self.KEYMAP)
        self.send(self.keyboard, 0, struct.pack("II", 1, len(self.KEYMAP)), keymap)
        self.round_trip()

    def close(self):
        self.socket.close()

    def new_id(self):
        self.last_id += 1
        return self.last_id

    def send(self, target, opcode, body=b"", descriptor=None):
        message = struct.pack("II", target, (len(body) + 8) << 16 | opcode) + body
        if descriptor is None:
            self.socket.sendall(message)
        else:
            socket.send_fds(self.socket, [message], [descriptor])

    def bind(self, interface):
        text = interface.encode() + b"\0"
        text += b"\0" * (-len(text) % 4)
        new = self.new_id()
        self.send(self.REGISTRY, 0, struct.pack("II", self.globals[interface], len(interface) + 1)
                  + text + struct.pack("II", 1, new))
        return new

    def round_trip(self):
        """Until the compositor has done all so far. Of its events only the globals matter."""
        callback = self.new_id()
        self.send(self.DISPLAY, 0, struct.pack("I", callback))
        while True:
            while len(self.received) >= 8:
                source, word = struct.unpack_from("II", self.received)
                opcode, size = word & 0xffff, word >> 16
                if len(self.received) < size:
                    break
                body, self.received = self.received[8:size], self.received[size:]
                if source == callback:
                    return
                if source == self.DISPLAY and opcode == 0:
                    raise AssertionError("the compositor refuses: " + repr(body))
                if source == self.REGISTRY and opcode == 0:
                    name, length = struct.unpack_from("II", body)
                    self.globals[body[8:7 + length].decode()] = name
            got = self.socket.recv(65536)
            if not got:
                raise AssertionError("the compositor is gone")
            self.received += got

    @staticmethod
    def now():
        return int(time.monotonic() * 1000) & 0xffffffff

    @staticmethod
    def nodes():
        def walk(node):
            yield node
            for child in node.get("nodes", []) + node.get("floating_nodes", []):
                yield from walk(child)
        return walk(json.loads(output_of("swaymsg", "-t", "get_tree") or "{}"))

    def windows(self, title):
        return [node["id"] for node in self.nodes()
                if node.get("name") == title and node.get("pid") and node.get("visible")]

    def active(self):
        return next((node["id"] for node in self.nodes()
                     if node.get("focused") and node.get("pid")), None)

    @staticmethod
    def focus(window):
        output_of("swaymsg", f"[con_id={window}] focus")

    def move(self, x, y):
        self.send(self.pointer, 1, struct.pack("IIIII", self.now(), x, y, *SCREEN))
        self.send(self.pointer, 4)
        self.round_trip()

    def button(self, down):
        self.send(self.pointer, 2, struct.pack("III", self.now(), self.LEFT_BUTTON, int(down)))
        self.send(self.pointer, 4)
        self.round_trip()

    def keys(self, *chords):
        for chord in chords:
            names = chord.split("+")
            for down, order in ((1, names), (0, names[::-1])):
                for at, name in enumerate(order):
                    self.send(self.keyboard, 1,
                              struct.pack("III", self.now(), self.CODES[name], down))
                    held = order[:at + 1] if down else order[at + 1:]
                    mask = sum(self.MASKS.get(other, 0) for other in held)
                    self.send(self.keyboard, 2, struct.pack("IIII", mask, 0, 0, 0))
                    self.round_trip()


def desktop():
    return WaylandDesktop() if WAYLAND else X11Desktop()


ACCESSIBLE = "org.a11y.atspi.Accessible"
REGISTRY = "org.a11y.atspi.Registry"
CHECK_BOX, LIST_ITEM, BUTTON, SPIN_BUTTON, TABLE_CELL, TEXT = 7, 32, 43, 52, 56, 61
CHECKED, SHOWING = 4, 25


class Eyes:
    """The accessibility tree of one program, as a screen reader sees it."""

    def __init__(self, program):
        session = dbus.SessionBus()
        address = ask(session, "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress")[0]
        self.bus = dbus.bus.BusConnection(str(address))
        self.program = program
        self.heard = []
        self.bus.add_signal_receiver(self.named, "PropertyChange", "org.a11y.atspi.Event.Object",
                                     sender_keyword="sender", path_keyword="path")
        ask(self.bus, REGISTRY, "/org/a11y/atspi/registry", REGISTRY, "RegisterEvent",
            "object:property-change:accessible-name")

    def named(self, kind, *_, sender=None, path=None):
        if kind == "accessible-name":
            self.heard.append((sender, path))

    def names_heard(self):
        """The names of what has got a new name since the last call."""
        heard, self.heard = self.heard, []
        return [self.attribute(node, "Name") for node in dict.fromkeys(heard)]

    def call(self, node, interface, method, *arguments):
        try:
            return ask(self.bus, *node, interface, method, *arguments)[0]
        except dbus.DBusException:
            return None  # it has gone meanwhile

    def attribute(self, node, name):
        return str(self.call(node, dbus.PROPERTIES_IFACE, "Get", ACCESSIBLE, name) or "")

    def children(self, node):
        return [(str(name), str(path))
                for name, path in self.call(node, ACCESSIBLE, "GetChildren") or []]

    def state(self, node, bit):
        bits = self.call(node, ACCESSIBLE, "GetState") or [0]
        return bool(int(bits[0]) >> bit & 1)

    def role(self, node):
        return int(self.call(node, ACCESSIBLE, "GetRole") or 0)

    def shown(self):
        """All that the program shows."""
        def walk(node):
            for child in self.children(node):
                if self.state(child, SHOWING):
                    yield child
                    yield from walk(child)
        for application in self.children((REGISTRY, "/org/a11y/atspi/accessible/root")):
            if self.attribute(application, "Name") == self.program:
                yield from walk(application)

    def find(self, role, name):
        return wait_until(lambda: self.shows(role, name), f"the control {name}")

    def shows(self, role, name):
        return next((node for node in self.shown()
                     if self.role(node) == role and self.attribute(node, "Name") == name), None)

    def key(self, name):
        """The keys that press what has this name: "alt+k"."""
        def bound():
            keys = (self.call(node, "org.a11y.atspi.Action", "GetKeyBinding", 0)
                    for node in self.shown() if self.attribute(node, "Name") == name)
            return next((str(key).lower() for key in keys if key), None)
        return wait_until(bound, "keys for " + name)

    def text(self, node):
        return str(self.call(node, "org.a11y.atspi.Text", "GetText", 0, -1))

    def extents(self, role, name):
        """Left, top, width and height, once they stay: what has just appeared may move others."""
        seen = [None]

        def still():
            node = self.shows(role, name)
            seen.append(node and self.call(node, "org.a11y.atspi.Component", "GetExtents",
                                           dbus.UInt32(0)))
            return seen[-1] and seen[-1] == seen[-2]
        wait_until(still, f"the control {name} has its place")
        return [int(number) for number in seen[-1]]

    def middle(self, role, name):
        x, y, width, height = self.extents(role, name)
        return x + width // 2, y + height // 2
