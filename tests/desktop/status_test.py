#!/usr/bin/python3
"""What the desktop program tells others of its state: on the bus, by its status item, in its window.

Runs inside x11-session; NERLO_PRO names the program under test.
"""
import os
import plistlib
import subprocess
import unittest

import dbus

from desktop_session import CHECK_BOX, CHECKED, Eyes, Program, desktop, do_until, output_of, wait_until
from shell_test import BUS_NAME, PROFILES, PROGRAM, TrayHost, stored

AUTOSTART = os.environ["XDG_CONFIG_HOME"] + "/autostart"
LABEL = 29
WRONG = "Nerlo Pro \u2013 something does not work here"


class StatusTest(unittest.TestCase):
    def test_changes_and_problems_are_told(self):
        with open(AUTOSTART, "w"):
            pass  # so that nothing can be put below it
        tray, hands, eyes, told = TrayHost(), desktop(), Eyes("nerlo-pro"), []
        tray.bus.add_signal_receiver(
            lambda interface, changed, gone: told.append((str(interface), dict(changed))),
            "PropertiesChanged", dbus.PROPERTIES_IFACE, path="/org/nerlo/NerloPro")
        program = Program(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.addCleanup(program.close)
        wait_until(lambda: tray.items, "the item stands in the tray")

        def tooltip():
            return str(tray.call("/StatusNotifierItem", dbus.PROPERTIES_IFACE, "Get",
                                 "org.kde.StatusNotifierItem", "ToolTip")[0][2])
        self.assertEqual(tooltip(), "Nerlo Pro")
        wait_until(lambda: "SKIP_TASKBAR" in output_of(
            "xprop", "-id", *hands.windows("Preferences"), "_NET_WM_STATE"),
                   "beside the item there is no entry in the taskbar, from the first opening on")
        program.call("Automatic", "on")
        wait_until(lambda: tooltip() not in ("Nerlo Pro", WRONG), "the item shows the mode")
        automatic = tooltip()
        records = wait_until(lambda: stored(PROFILES), "the profiles are saved")
        with open(PROFILES + ".new", "wb") as file:
            plistlib.dump(records + [records[0] | {"profileName": "other"}], file)
        os.rename(PROFILES + ".new", PROFILES)
        wait_until(lambda: "other" in tray.menu(), "the program knows the new profile")
        program.call("Automatic", "on")
        program.call("Profile", "other")
        wait_until(lambda: len(told) == 2, "both changes are told")
        self.assertEqual(told, [(BUS_NAME, {"AutomaticMode": True}),
                                (BUS_NAME, {"SelectedProfile": "other"})])

        def item(name):
            return tray.menu()[name][1], tray.keys[name]
        self.assertEqual(subprocess.run([PROGRAM, "--shortcut", "profile:default=Ctrl+Super+D"],
                                        timeout=60, check=False).returncode, 0)
        wait_until(lambda: item("default") == (0, "Super+Control+D"),
                   "the menu shows the profile's shortcut")
        hands.keys("ctrl+super+d")
        wait_until(lambda: program.property("SelectedProfile") == "default", "it selects the profile")
        wait_until(lambda: (item("default")[0], item("other")) == (1, (0, "")), "the menu shows it")

        def click():
            hands.activate("Preferences")
            hands.click(*eyes.middle(CHECK_BOX, "Start at login"))

        def notice():
            return any(AUTOSTART in eyes.attribute(node, "Name") for node in eyes.shown()
                       if eyes.role(node) == LABEL)
        click()
        wait_until(notice, "the window says what is wrong")
        wait_until(lambda: tooltip() == WRONG, "the item says so too")
        box = eyes.find(CHECK_BOX, "Start at login")
        self.assertFalse(eyes.state(box, CHECKED))
        os.remove(AUTOSTART)
        click()
        wait_until(lambda: eyes.state(box, CHECKED) and not notice(), "now it is right")
        self.assertTrue(os.listdir(AUTOSTART))
        wait_until(lambda: tooltip() == automatic, "so is the item")

        # After a dialog the window has the keyboard again, also without an entry in the taskbar; a
        # second start brings it to the front, and Ctrl+Q ends the program.
        hands.activate("Preferences")
        hands.keys("alt+a")
        hands.activate("Nerlo Pro")
        do_until(lambda: hands.keys("Escape"), lambda: not hands.windows("Nerlo Pro"), "it is closed")
        wait_until(lambda: hands.active() in hands.windows("Preferences"), "the window is active")
        hands.activate("Tips")
        self.assertEqual(subprocess.run([PROGRAM], timeout=60, check=False).returncode, 0)
        wait_until(lambda: hands.active() in hands.windows("Preferences"), "the window is in front")
        hands.keys("ctrl+q")
        self.assertEqual(program.process.wait(timeout=60), 0)

    def test_without_a_bus_there_is_one_program_for_a_display(self):
        nowhere = os.environ | {"DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}

        def ask(environment, *arguments):
            done = subprocess.run([PROGRAM, *arguments], env=environment, timeout=60, check=False,
                                  stderr=subprocess.PIPE, text=True)
            return done.returncode, "runs on this display" in done.stderr
        self.assertEqual(ask(nowhere, "--quit"), (0, False))
        with subprocess.Popen([PROGRAM], env=nowhere, stderr=subprocess.PIPE) as program:
            self.addCleanup(program.kill)
            self.assertIn(b"no session bus", program.stderr.readline())
            for environment in (nowhere, os.environ):
                self.assertEqual(ask(environment, "--quit"), (1, True))
                self.assertEqual(ask(environment), (1, True))
            program.kill()
        self.assertEqual(ask(nowhere, "--quit"), (0, False))


if __name__ == "__main__":
    unittest.main(verbosity=2)
