#!/usr/bin/python3
"""The chooser as a person meets it: called, typed into, confirmed or left, with another program in front.

Runs inside x11-session or wayland-session; NERLO_PRO and NERLO_FIELD name the programs.
"""
import os
import plistlib
import re
import unittest

from desktop_session import TEXT, WAYLAND, Eyes, Logged, Program, desktop, do_until, wait_until

CONFIG = os.environ["XDG_CONFIG_HOME"] + "/nerlo-pro"
FIELD = os.environ["NERLO_FIELD"]
SEARCH = "Find an operation, a profile or rules"
FOCUSED = 12
LINES = "pear\napple\nfig"


class ChooserTest(unittest.TestCase):
    def setUp(self):
        self.desktop = desktop()
        self.addCleanup(self.desktop.close)
        # A program of the session's own kind, with the keyboard.
        self.field = Logged(FIELD, env=os.environ | {
            "QT_QPA_PLATFORM": "wayland" if WAYLAND else "xcb"})
        self.addCleanup(self.field.close)
        # No window of its own appears meanwhile.
        os.makedirs(CONFIG, exist_ok=True)
        with open(CONFIG + "/defaults.plist", "wb") as file:
            plistlib.dump({"firstRunPreferences": True, "firstRunTips": False,
                           "updateReleaseNotes3_1": True, "runInTheBackground": True}, file)
        self.eyes = Eyes("nerlo-pro")
        self.program = Program(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.addCleanup(self.program.close)
        self.desktop.activate("field")
        self.desktop.copy(LINES)

    def open(self):
        self.program.call("Choose")
        wait_until(self.search, "the chooser is open and has the keyboard")

    def search(self):
        field = self.eyes.shows(TEXT, SEARCH)
        return field if field and self.eyes.state(field, FOCUSED) else None

    def closed(self):
        return not self.eyes.shows(TEXT, SEARCH)

    def find(self, words):
        """Types; the first that is found is then chosen."""
        self.desktop.keys(*words)
        wait_until(lambda: self.search() and self.eyes.text(self.search()) == words, "it is typed")

    def test_enter_puts_the_result_on_the_clipboard_and_a_restore_takes_it_back(self):
        self.open()
        self.find("sort")
        self.desktop.keys("Return")
        self.desktop.expect("apple\nfig\npear")
        wait_until(self.closed, "the chooser is gone")
        self.assertEqual(self.program.call("Restore")[0], "done")
        self.desktop.expect(LINES)

    def test_what_is_shown_is_what_one_gets_and_the_arrows_choose(self):
        self.open()
        self.program.call("Choose")
        wait_until(self.closed, "called again it closes")
        self.open()
        self.find("sort")
        self.desktop.keys("Down", "Up")
        after = wait_until(lambda: self.eyes.shows(TEXT, "After"), "the result is shown")
        wait_until(lambda: self.eyes.text(after) == "apple\nfig\npear", "it is the sorted text")
        self.desktop.keys("Escape")
        wait_until(self.closed, "the chooser is gone")
        self.desktop.expect(LINES)
        do_until(lambda: self.desktop.keys("q"), lambda: self.field.lines,
                 "the other program has the keyboard again")

    def test_shift_enter_pastes_into_the_program_in_front(self):
        self.open()
        self.find("sort")
        self.desktop.keys("shift+Return")
        # The field shows a line break in its own way.
        wait_until(lambda: re.fullmatch(r"apple\W+fig\W+pear\W", self.field.text), "it is pasted")
        self.desktop.expect("apple\nfig\npear")


if __name__ == "__main__":
    unittest.main(verbosity=2)
