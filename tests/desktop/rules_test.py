#!/usr/bin/python3
"""Rules of one's own, by keyboard alone: from a copied text to a rule that is tried and saved.

Runs inside x11-session; NERLO_PRO names the program.
"""
import os
import plistlib
import time
import unittest

from desktop_session import TABLE_CELL, Eyes, Program, desktop, do_until, output_of, paste, wait_until

CONFIG = os.environ["XDG_CONFIG_HOME"] + "/nerlo-pro"
DATA = os.environ["XDG_DATA_HOME"] + "/nerlo-pro/Data"
RULES_PAGE = 7
# A person who looks at the keys presses two a second: what is told here takes a minute.
MOST_KEYS = 120
NAMES = {"(": "parenleft", ")": "parenright", "\\": "backslash", "+": "plus", " ": "space",
         "$": "dollar", ".": "period"}


class RulesTest(unittest.TestCase):
    def setUp(self):
        self.desktop = desktop()
        os.makedirs(CONFIG)
        with open(CONFIG + "/defaults.plist", "wb") as file:
            plistlib.dump({"firstRunPreferences": True, "firstRunPreferencesProfiles": True,
                           "firstRunTips": False, "updateReleaseNotes3_1": True,
                           "udStatistics": 0}, file)
        self.eyes = Eyes("nerlo-pro")
        self.program = Program(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.addCleanup(self.program.close)
        self.presses = 0

    def press(self, *chords):
        self.presses += len(chords)
        self.desktop.keys(*chords)

    def write(self, text):
        self.press(*[NAMES.get(character, character) for character in text])

    def cell(self, name):
        wait_until(lambda: self.eyes.shows(TABLE_CELL, name), "the cell " + name)

    def windows(self):
        return set(output_of("xdotool", "search", "--onlyvisible", "--class", "nerlo-pro").split())

    def choose(self, place):
        """An item of the menu. Keys that come while a menu opens or closes may go elsewhere. For a
        tenth of a second after this the button's letter does not press it again."""
        before = self.windows()
        self.press(self.eyes.key("More"))
        menu = wait_until(lambda: self.windows() - before, "the menu is open")
        self.press(*["Down"] * place, "Return")
        wait_until(lambda: not self.windows() & menu, "the menu is closed")

    def saved(self):
        try:
            with open(DATA + "/profiles.nrp", "rb") as file:
                return plistlib.load(file)[0].get("sFindAndReplaceItemsProfile", [])
        except (OSError, plistlib.InvalidFileException, ValueError):
            return []

    def add_rule(self):
        """What a person does who has copied a text, from the open window to the last key."""
        self.press("ctrl+f", "Tab", "Tab", "Tab", "Tab")  # to the list of pages
        self.press(*["Down"] * RULES_PAGE)
        self.press(self.eyes.key("Take from the clipboard"))
        self.press(self.eyes.key("Add a rule"))
        self.cell("New rule")
        self.write("(\\d+) EUR")
        self.press("Tab", "Down", "Tab")
        self.cell("Kind: Pattern: replace")
        self.write("EUR $")
        self.press("Down", "Return")  # the first of the groups that are offered
        self.cell("Replace with: EUR $1")
        self.press("Return")
        self.cell("Found: 2")
        self.press(self.eyes.key("Take a sample"))
        self.cell("After: for EUR 12 only")
        self.press("Return")
        self.cell("Result: Holds")

    def test_from_a_copied_text_to_a_rule_that_is_tried_and_saved(self):
        self.desktop.copy("for 12 EUR only\nor 7 EUR")
        self.desktop.activate("Preferences")
        begin = time.monotonic()
        self.add_rule()
        rule = {"checkbox": True, "find": "(\\d+) EUR", "replace": "{delete}EUR $1",
                "samples": [{"before": "for 12 EUR only", "after": "for EUR 12 only"}]}
        wait_until(lambda: self.saved() == [rule], "the rule is saved")
        print(f"{self.presses} presses, {time.monotonic() - begin:.1f} s", flush=True)
        self.assertLess(self.presses, MOST_KEYS)
        self.program.call("Clean")
        self.desktop.expect("for EUR 12 only\nor EUR 7")

        # Deleted, and brought back by the key; copied, and pasted.
        self.press(self.eyes.key("Delete the rule"))
        wait_until(lambda: self.saved() == [], "the rule is gone")
        self.press("ctrl+z")
        wait_until(lambda: self.saved() == [rule], "the rule is back")
        self.choose(1)
        wait_until(lambda: (paste() or b"").startswith(b"nerlo-rules 1\n"), "it is copied")
        # In the list, which has the focus. The toolkit loses keys while a screen reader's bus is slow.
        do_until(lambda: self.press("ctrl+v"), lambda: self.saved() == [rule] * 2, "it is pasted")
        self.press("ctrl+shift+z", "ctrl+z")
        wait_until(lambda: self.saved() == [rule], "the paste is undone")
        # Where a field has nothing of its own to take back, the key does the same.
        self.press("ctrl+f", "ctrl+shift+z")
        wait_until(lambda: self.saved() == [rule] * 2, "the paste is done again")


if __name__ == "__main__":
    unittest.main(verbosity=2)
