#!/usr/bin/python3
"""The desktop program as a person meets it: the first start, its menu, its windows, the next start.

Runs inside x11-session; NERLO_PRO names the program under test. Keys and clicks are real ones
(xdotool); windows are looked at through the accessibility bus, the menu through the bus of the tray.
"""
import os
import plistlib
import subprocess
import time
import unittest

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

PROGRAM = os.environ["NERLO_PRO"]
BUS_NAME = "org.nerlo.NerloPro"
CONFIG = os.path.join(os.environ["XDG_CONFIG_HOME"], "nerlo-pro/defaults.plist")
PROFILES = os.path.join(os.environ["XDG_DATA_HOME"], "nerlo-pro/Data/profiles.nrp")
# The letter of "Remove bullets" on its page.
BULLETS_LETTER = "alt+m"
WATCHER = "org.kde.StatusNotifierWatcher"

dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)


def wait_until(condition, what, seconds=20):
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


def xdotool(*arguments):
    done = subprocess.run(["xdotool", *map(str, arguments)], capture_output=True, text=True,
                          timeout=30)
    return done.stdout.split()


def windows(title):
    return xdotool("search", "--onlyvisible", "--name", f"^{title}$")


def window(title):
    return wait_until(lambda: windows(title), f"a window {title}")[0]


def geometry(wid):
    lines = xdotool("getwindowgeometry", "--shell", wid)
    return {key: int(value) for key, value in (line.split("=") for line in lines)}


def focus(wid):
    xdotool("windowactivate", wid)
    wait_until(lambda: xdotool("getactivewindow") == [wid], "the window is in front")


def keys(*names):
    for name in names:
        xdotool("key", name)


def press_until(key, condition, what):
    """Again if need be: while the focus moves, a key goes nowhere."""
    for _ in range(10):
        keys(key)
        try:
            return wait_until(condition, what, 2)
        except AssertionError:
            pass
    raise AssertionError("pressed in vain: " + what)


def copy(text):
    subprocess.run(["xclip", "-sel", "c"], input=text.encode(), check=True,
                   stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def paste():
    try:
        done = subprocess.run(["xclip", "-o", "-sel", "c", "-t", "UTF8_STRING"],
                              capture_output=True, timeout=5)
    except subprocess.TimeoutExpired:
        return None
    return done.stdout.decode() if done.returncode == 0 else None


def stored(path):
    try:
        with open(path, "rb") as file:
            return plistlib.load(file)
    except (OSError, plistlib.InvalidFileException, ValueError):
        return None


def ask(bus, service, path, interface, method, *arguments):
    """Calls, while this program's own objects go on answering."""
    answer = []
    bus.get_object(service, path, introspect=False).get_dbus_method(method, interface)(
        *arguments, reply_handler=lambda *got: answer.append(got),
        error_handler=lambda error: answer.append(error))
    wait_until(lambda: answer, f"{method} is answered")
    if isinstance(answer[0], dbus.DBusException):
        raise answer[0]
    return answer[0]


class TrayHost(dbus.service.Object):
    """The smallest tray: it registers items and can be told about."""

    def __init__(self):
        self.bus = dbus.SessionBus()
        self.items = []
        self.name = dbus.service.BusName(WATCHER, self.bus)
        super().__init__(self.bus, "/StatusNotifierWatcher")

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        self.items.append(sender if service.startswith("/") else service)
        self.StatusNotifierItemRegistered(service)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        pass

    @dbus.service.signal(WATCHER, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.signal(WATCHER, signature="")
    def StatusNotifierHostRegistered(self):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return {"IsStatusNotifierHostRegistered": dbus.Boolean(True),
                "ProtocolVersion": dbus.Int32(0),
                "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s")}[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {"IsStatusNotifierHostRegistered": dbus.Boolean(True)}

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s")
    def Introspect(self):
        return f"""<node><interface name="{WATCHER}">
            <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
            <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
            <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
            <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
            <property name="ProtocolVersion" type="i" access="read"/>
            <signal name="StatusNotifierHostRegistered"/>
            <signal name="StatusNotifierItemRegistered"><arg type="s"/></signal>
        </interface></node>"""

    def call(self, path, interface, method, *arguments):
        """Asks the last item."""
        return ask(self.bus, self.items[-1], path, interface, method, *arguments)

    def menu(self):
        """{label: (id, checked)} of the whole menu."""
        path = self.call("/StatusNotifierItem", dbus.PROPERTIES_IFACE, "Get",
                         "org.kde.StatusNotifierItem", "Menu")[0]
        self.menu_path = str(path)
        found = {}

        def walk(item):
            number, properties, children = item
            if "label" in properties:
                found[str(properties["label"]).replace("_", "")] = (
                    int(number), int(properties.get("toggle-state", -1)))
            for child in children:
                walk(child)
        walk(self.call(self.menu_path, "com.canonical.dbusmenu", "GetLayout", dbus.Int32(0),
                       dbus.Int32(-1), dbus.Array([], signature="s"))[1])
        return found

    def click(self, label):
        number = self.menu()[label][0]
        self.call(self.menu_path, "com.canonical.dbusmenu", "Event", dbus.Int32(number), "clicked",
                  dbus.String("", variant_level=1), dbus.UInt32(0))


class Program:
    def __init__(self):
        self.bus = dbus.SessionBus(private=True)
        self.process = subprocess.Popen([PROGRAM])
        wait_until(lambda: self.bus.name_has_owner(BUS_NAME), "the program is on the bus")

    def property(self, name):
        return ask(self.bus, BUS_NAME, "/org/nerlo/NerloPro", dbus.PROPERTIES_IFACE, "Get",
                   BUS_NAME, name)[0]

    def close(self):
        if self.process.poll() is None:
            self.process.terminate()
        return self.process.wait(timeout=20)


class ShellTest(unittest.TestCase):
    def test_a_first_day(self):
        # No tray yet: the first windows are the tips and the preferences.
        program = Program()
        self.addCleanup(program.close)
        tips, preferences = window("Tips"), window("Preferences")

        # A tray that comes late gets the item.
        tray = TrayHost()
        tray.StatusNotifierHostRegistered()
        wait_until(lambda: tray.items, "the item stands in the tray")
        menu = tray.menu()
        self.assertEqual(menu["Automatically clear formatting"][1], 0)
        self.assertEqual(menu["default"][1], 1)
        for label in ("Clear formating from clipboard", "Restore the original", "Sort lines",
                      "Preferences…", "Quit Nerlo Pro"):
            self.assertIn(label, menu)
        focus(tips)
        keys("Escape")
        wait_until(lambda: not windows("Tips"), "the tips are closed")

        # Automatic from the menu; a copy comes out clean, and the popup stands at the pointer.
        tray.click("Automatically clear formatting")
        wait_until(lambda: program.property("AutomaticMode"), "the automatic mode is on")
        self.assertEqual(tray.menu()["Automatically clear formatting"][1], 1)
        xdotool("mousemove", 300, 200)
        active = xdotool("getactivewindow")
        copy("two   words")
        popup = window("Statistics")
        wait_until(lambda: paste() == "two words", "the clipboard is clean")
        place = geometry(popup)
        self.assertEqual((place["X"], place["Y"]), (300, 200))
        self.assertEqual(xdotool("getactivewindow"), active, "the popup leaves the focus alone")
        xdotool("mousemove", 310, 210, "click", 1)
        wait_until(lambda: not windows("Statistics"), "a click closes the popup")

        # A profile is added by keyboard alone.
        focus(preferences)
        press_until("alt+a", lambda: xdotool("getactivewindow") not in ([preferences], []),
                    "the prompt is open")
        xdotool("type", "Mail")
        keys("Return")
        wait_until(lambda: program.property("SelectedProfile") == "Mail", "the profile is selected")
        wait_until(lambda: not windows("Nerlo Pro"), "the prompt is closed")
        focus(preferences)

        # An option is found by the search and ticked with its letter.
        def ticked():
            return [key for record in stored(PROFILES) or [] if record["profileName"] == "Mail"
                    for key, value in record.items() if key == "udRemoveBullets" and value == 1]

        keys("ctrl+f")
        xdotool("type", "bullets milk")
        keys(BULLETS_LETTER)
        wait_until(ticked, "the option of the new profile is saved")

        # Quit from the menu, and start again: everything is as it was.
        tray.click("Quit Nerlo Pro")
        self.assertEqual(program.process.wait(timeout=20), 0)
        wait_until(lambda: not program.bus.name_has_owner(BUS_NAME), "the program has ended")
        del tray.items[:]
        program = Program()
        self.addCleanup(program.close)
        wait_until(lambda: tray.items, "the item is back")
        self.assertTrue(program.property("AutomaticMode"))
        self.assertEqual(program.property("SelectedProfile"), "Mail")
        menu = tray.menu()
        self.assertEqual((menu["default"][1], menu["Mail"][1]), (0, 1))
        self.assertEqual(windows("Tips") + windows("Preferences"), [])
        self.assertTrue(stored(CONFIG)["showInMenubar"])

        # A second start brings the window.
        self.assertEqual(subprocess.run([PROGRAM], timeout=60).returncode, 0)
        focus(window("Preferences"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
