#!/usr/bin/python3
"""The desktop program as a person meets it: the first start, its menu, its windows, the next start.

Runs inside x11-session and wayland-session; NERLO_PRO names the program under test. Keys and clicks
are real ones; the windows are looked at through the accessibility bus, the menu through the bus of the
tray.
"""
import os
import plistlib
import re
import subprocess
import time
import unittest

import dbus
import dbus.service

from desktop_session import (BUTTON, CHECK_BOX, CHECKED, LIST_ITEM, SPIN_BUTTON, TABLE_CELL, TEXT, WAYLAND,
                             Eyes, Program, ask, copy, desktop, do_until, output_of, wait_until)

PROGRAM = os.environ["NERLO_PRO"]
SESSION = os.environ["NERLO_SESSION_DIR"]
BUS_NAME = Program.BUS_NAME
CONFIG = os.path.join(os.environ["XDG_CONFIG_HOME"], "nerlo-pro/defaults.plist")
PROFILES = os.path.join(os.environ["XDG_DATA_HOME"], "nerlo-pro/Data/profiles.nrp")
PORTAL = os.path.join(os.path.dirname(os.path.abspath(__file__)), "portal-backend")
CONTROLS = (BUTTON, CHECK_BOX, LIST_ITEM, TEXT)
WATCHER = "org.kde.StatusNotifierWatcher"
PROFILE = "m_a&b&c"
PROFILE_KEYS = ("m", "shift+minus", "a", "shift+7", "b", "shift+7", "c")


def stored(path):
    try:
        with open(path, "rb") as file:
            return plistlib.load(file)
    except (OSError, plistlib.InvalidFileException, ValueError):
        return None


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
        """{label: (id, checked)} of the whole menu; keys has the shortcuts that are shown."""
        path = self.call("/StatusNotifierItem", dbus.PROPERTIES_IFACE, "Get",
                         "org.kde.StatusNotifierItem", "Menu")[0]
        self.menu_path = str(path)
        found, self.keys = {}, {}

        def walk(item):
            number, properties, children = item
            if "label" in properties:
                # As a panel shows it: "_" marks a letter, and "__" is one of the text.
                label = re.sub("_(.)", r"\1", str(properties["label"]))
                found[label] = (int(number), int(properties.get("toggle-state", -1)))
                self.keys[label] = "+".join(key for chord in properties.get("shortcut", [])
                                            for key in chord)
            for child in children:
                walk(child)
        walk(self.call(self.menu_path, "com.canonical.dbusmenu", "GetLayout", dbus.Int32(0),
                       dbus.Int32(-1), dbus.Array([], signature="s"))[1])
        return found

    def click(self, label):
        number = self.menu()[label][0]
        self.call(self.menu_path, "com.canonical.dbusmenu", "Event", dbus.Int32(number), "clicked",
                  dbus.String("", variant_level=1), dbus.UInt32(0))


class Portal:
    """The desktop's side of shortcuts where programs cannot take keys themselves."""

    def __init__(self):
        folder = os.path.join(SESSION, "portals")
        os.mkdir(folder)
        with open(os.path.join(folder, "nerlotest.portal"), "w", encoding="ascii") as file:
            file.write("[portal]\nDBusName=org.freedesktop.impl.portal.desktop.nerlotest\n"
                       "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts;\nUseIn=sway;\n")
        self.backend = subprocess.Popen([PORTAL, "serve"], stdout=subprocess.PIPE)
        self.backend.stdout.readline()
        with open(os.path.join(SESSION, "log/portal"), "wb") as log:
            self.portal = subprocess.Popen(["/usr/libexec/xdg-desktop-portal"], stderr=log,
                                           env=os.environ | {"XDG_DESKTOP_PORTAL_DIR": folder})
        bus = dbus.SessionBus()
        wait_until(lambda: bus.name_has_owner("org.freedesktop.portal.Desktop"), "the portal")

    def close(self):
        for process in (self.portal, self.backend):
            process.terminate()
            process.wait(timeout=60)
        self.backend.stdout.close()


class ShellTest(unittest.TestCase):
    def setUp(self):
        self.desktop = desktop()
        self.addCleanup(self.desktop.close)
        if WAYLAND:
            self.addCleanup(Portal().close)
        self.eyes = Eyes("nerlo-pro")

    def start(self):
        program = Program(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.addCleanup(program.close)
        return program

    def click(self, role, name):
        self.desktop.click(*self.eyes.middle(role, name))

    def press_until(self, chords, condition, what):
        return do_until(lambda: self.desktop.keys(*chords), condition, what)

    def profile(self):
        records = stored(PROFILES) or []
        return next((record for record in records if record["profileName"] == PROFILE), {})

    def rules(self):
        return [(rule["find"], rule["replace"])
                for rule in self.profile().get("sFindAndReplaceItemsProfile", [])]

    def add_rule(self, find, replace):
        self.click(BUTTON, "Add a rule")
        self.eyes.find(TABLE_CELL, "New rule")
        self.press_until(["ctrl+a", *find], lambda: self.eyes.shows(TABLE_CELL, find),
                         "the rule has its text")
        self.desktop.keys("Tab", "Tab", *replace, "Return")
        wait_until(lambda: self.rules()[-1:] == [(find, replace)], "the rule is saved")

    def drag(self, source, target):
        """One row of a list over the upper edge of another."""
        x, y = self.eyes.middle(TABLE_CELL, source)
        end_x, end_y, _, _ = self.eyes.extents(TABLE_CELL, target)
        end_x += 20
        self.desktop.move(x, y)
        self.desktop.button(True)
        for step in range(1, 11):
            self.desktop.move(x + (end_x - x) * step // 10, y + (end_y - y) * step // 10)
            time.sleep(0.02)  # a hand is no faster, and moves that come together count as one
        self.desktop.button(False)

    def clean_copy(self, text, clean):
        copy(text.encode())
        self.desktop.expect(clean)

    def press_shortcut(self):
        if WAYLAND:
            wait_until(lambda: "sRemoveAllSpaces CTRL+SHIFT+k" in output_of(PORTAL, "list"),
                       "the desktop knows the shortcut")
            output_of(PORTAL, "press", "sRemoveAllSpaces")
        else:
            self.desktop.keys("ctrl+shift+k")

    def acts_as_set_up(self):
        """The bullet goes, the rules work in their order, and so does the shortcut."""
        self.clean_copy("\u2022 milk", "milk")
        self.clean_copy("a green b", "a blue b")
        self.press_shortcut()
        self.desktop.expect("ablueb")

    def choose(self, tray, place):
        """From the menu of the item, by its place."""
        tray.call("/StatusNotifierItem", "org.kde.StatusNotifierItem", "Activate", dbus.Int32(0),
                  dbus.Int32(0))
        self.desktop.keys(*["Down"] * place, "Return")

    def test_a_first_day(self):
        # No tray yet: the first windows are the tips and the preferences.
        program = self.start()
        for title in ("Tips", "Preferences"):
            wait_until(lambda: self.desktop.windows(title), "the window " + title)
        controls = [node for node in self.eyes.shown() if self.eyes.role(node) in CONTROLS]
        self.assertGreater(len(controls), 15)
        self.assertNotIn("", [self.eyes.attribute(node, "Name") for node in controls])

        # A tray that comes late gets the item.
        tray = TrayHost()
        tray.StatusNotifierHostRegistered()
        wait_until(lambda: tray.items, "the item stands in the tray")
        menu = tray.menu()
        self.assertEqual(menu["Automatically clear formatting"][1], 0)
        self.assertEqual(menu["default"][1], 1)
        for label in ("Clear formating from clipboard", "Restore the original", "Sort lines",
                      "Preferences\u2026", "Quit Nerlo Pro"):
            self.assertIn(label, menu)
        self.desktop.activate("Tips")
        self.press_until(["Escape"], lambda: not self.desktop.windows("Tips"),
                         "the tips are closed")

        # The icon is clicked: the menu opens, and the arrow keys and Return choose from it.
        self.assertFalse(program.property("AutomaticMode"))
        self.desktop.activate("Preferences")
        do_until(lambda: program.property("AutomaticMode") or self.choose(tray, 3),
                 lambda: program.property("AutomaticMode"), "the automatic mode is on")
        wait_until(lambda: tray.menu()["Automatically clear formatting"][1] == 1, "the menu shows it")

        # The popup is to stay for longer than this test is busy with it.
        self.click(LIST_ITEM, "Statistics")
        self.click(SPIN_BUTTON, "Seconds")
        self.press_until(["ctrl+a", "9", "0"],
                         lambda: stored(CONFIG).get("udStatisticsValue") == 90, "90 s are saved")

        # A copy comes out clean; the popup stands at the pointer, over the box, and has the counts.
        box = self.eyes.find(CHECK_BOX, "Close by itself")
        x, y = self.eyes.middle(CHECK_BOX, "Close by itself")
        self.desktop.move(x, y)
        active = self.desktop.active()
        self.eyes.names_heard()
        self.clean_copy("two   words", "two words")
        missing = {"Characters: 9", "Spaces: 1", "Words: 2", "Paragraphs: 1"}
        wait_until(lambda: missing.difference_update(self.eyes.names_heard()) or not missing, "its counts")
        if not WAYLAND:  # whose compositor tells nobody of such windows
            wait_until(lambda: self.desktop.windows("Statistics"), "the popup is there")
            self.assertEqual(self.desktop.place("Statistics"), (x, y))
        self.assertEqual(self.desktop.active(), active, "the popup leaves the focus alone")
        # It takes the first click, the box below it the next; on Wayland only if it found the pointer.
        self.desktop.move(x + 12, y + 6)
        if not WAYLAND:
            self.desktop.press()
            wait_until(lambda: not self.desktop.windows("Statistics"), "the popup is closed")
            self.assertTrue(self.eyes.state(box, CHECKED))
        do_until(self.desktop.press, lambda: not self.eyes.state(box, CHECKED), "it is no longer ticked")

        # A profile is added by keyboard alone.
        self.desktop.activate("Preferences")
        self.press_until(["alt+a"], lambda: self.desktop.windows("Nerlo Pro"), "the prompt is open")
        self.desktop.activate("Nerlo Pro")
        self.desktop.keys(*PROFILE_KEYS, "Return")
        wait_until(lambda: program.property("SelectedProfile") == PROFILE, "the profile is selected")
        self.desktop.activate("Preferences")

        # An option is found by the search and ticked with the pointer.
        self.press_until(["ctrl+f", *"bullets"],
                         lambda: self.eyes.shows(CHECK_BOX, "Remove bullets"),
                         "the search finds the option")
        self.click(CHECK_BOX, "Remove bullets")
        wait_until(lambda: self.profile().get("udRemoveBullets") == 1, "the option is saved")
        self.press_until(["ctrl+f", "Delete"], lambda: self.eyes.shows(LIST_ITEM, "General"),
                         "the search has ended")
        self.clean_copy("\u2022 milk", "milk")

        # Two rules, of which the second is dragged before the first.
        self.click(LIST_ITEM, "Find and replace")
        self.click(CHECK_BOX, "Apply the find-and-replace list")
        self.add_rule("red", "blue")
        self.add_rule("green", "red")
        self.clean_copy("a green b", "a red b")
        do_until(lambda: self.drag("green", "red"),
                 lambda: self.rules() == [("green", "red"), ("red", "blue")],
                 "the rules have changed places")
        self.clean_copy("a green c", "a blue c")

        # A shortcut is recorded and pressed.
        self.click(LIST_ITEM, "Spaces and tabs")
        recorder = "Shortcut: Remove all spaces, "
        self.click(BUTTON, recorder + "not set")
        self.eyes.find(BUTTON, recorder + "Type shortcut")
        self.desktop.keys("ctrl+shift+k")
        wait_until(lambda: "sRemoveAllSpaces" in (stored(CONFIG) or {}), "the shortcut is saved")
        self.acts_as_set_up()

        # Quit from the menu, and start again: everything is as it was.
        tray.click("Quit Nerlo Pro")
        self.assertEqual(program.process.wait(timeout=60), 0)
        wait_until(lambda: not program.bus.name_has_owner(BUS_NAME), "the program has ended")
        del tray.items[:]
        program = self.start()
        wait_until(lambda: tray.items, "the item is back")
        self.assertTrue(program.property("AutomaticMode"))
        self.assertEqual(program.property("SelectedProfile"), PROFILE)
        menu = tray.menu()
        self.assertEqual((menu["default"][1], menu[PROFILE][1]), (0, 1))
        self.assertEqual(self.desktop.windows("Tips") + self.desktop.windows("Preferences"), [])
        self.assertTrue(stored(CONFIG)["showInMenubar"])
        self.acts_as_set_up()

        # A second start brings the window, with the page and the rules.
        self.assertEqual(subprocess.run([PROGRAM], timeout=60, check=False).returncode, 0)
        self.desktop.activate("Preferences")
        self.eyes.find(BUTTON, "Shortcut: Remove all spaces, Ctrl+Shift+K")


if __name__ == "__main__":
    unittest.main(verbosity=2)
