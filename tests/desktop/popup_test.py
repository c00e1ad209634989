#!/usr/bin/python3
"""The statistics popup where the compositor places no window: a picture of the screen shows where it is.

Runs inside wayland-session; NERLO_PRO names the program under test.
"""
import os
import plistlib
import subprocess
import unittest

from desktop_session import SCREEN, Program, WaylandDesktop, do_until, output_of, wait_until

PROGRAM = os.environ["NERLO_PRO"]
CONFIG = os.environ["XDG_CONFIG_HOME"]
PANEL = 40
# The popup's 75 % of black over white.
SHADE = bytes([64, 64, 64])


def popup():
    """Left, top, right and bottom of what has the popup's colour; nothing where nothing has."""
    picture = subprocess.run(["grim", "-t", "ppm", "-"], capture_output=True, check=True).stdout
    _, size, _, pixels = picture.split(b"\n", 3)
    width, height = map(int, size.split())
    rows = [pixels[3 * width * y:3 * width * (y + 1)] for y in range(height)]
    hit = [y for y, row in enumerate(rows) if 100 * SHADE[:1] in row]
    if not hit:
        return None
    row = rows[(hit[0] + hit[-1]) // 2]
    columns = [x for x in range(width) if row[3 * x:3 * x + 3] == SHADE]
    return columns[0], hit[0], columns[-1] + 1, hit[-1] + 1


class PopupTest(unittest.TestCase):
    def setUp(self):
        self.desktop = WaylandDesktop()
        self.addCleanup(self.desktop.close)
        # A panel, and a white window in front.
        with open(CONFIG + "/sway", "a") as file:
            file.write(f"default_border none\nbar {{\n position top\n height {PANEL}\n}}\n")
        output_of("swaymsg", "reload")
        editor = subprocess.Popen(["foot", "-T", "editor", "-o", "colors.background=ffffff", "cat"],
                                  stderr=subprocess.DEVNULL)
        self.addCleanup(editor.wait)
        self.addCleanup(editor.kill)
        wait_until(lambda: any(node["rect"]["y"] == PANEL for node in self.desktop.nodes()
                               if node.get("name") == "editor"), "the window is below the panel")

    def start(self, position):
        os.makedirs(CONFIG + "/nerlo-pro", exist_ok=True)
        with open(CONFIG + "/nerlo-pro/defaults.plist", "wb") as file:
            plistlib.dump({"firstRunPreferences": True, "firstRunTips": False,
                           "updateReleaseNotes3_1": True, "runInTheBackground": True,
                           "udStatisticsDelaySwitcher": 0,  # it stays until it is closed
                           "udStatisticsDefaultPosition": position}, file)
        program = Program()
        self.addCleanup(program.close)
        return program

    def box(self):
        # Again, for a copy that cannot be read within two seconds is not counted.
        return do_until(lambda: output_of(PROGRAM, "--operation", "statistics"), popup, "the popup is there")

    def click(self, x, y):
        self.desktop.click(x, y)
        wait_until(lambda: not popup(), "a click closes it")

    def test_it_stands_where_it_should_takes_no_focus_and_closes_by_a_click(self):
        self.desktop.copy("two  words")
        editor = self.desktop.windows("editor")[0]
        right, bottom = SCREEN
        for position in (0, 3, 4):
            program = self.start(position)
            left, top, end, low = self.box()
            width, height = end - left, low - top
            self.assertEqual((left, top), {
                0: (0, bottom - height),
                3: (right - width, PANEL),
                4: ((right - width + 1) // 2, (bottom + PANEL - 3 * height + 1) // 2)}[position])
            program.close()
            wait_until(lambda: not popup(), "it goes with the program")

        self.start(5)
        for x, y in ((300, 200), (right - 5, 5)):
            for _ in range(20):
                self.desktop.move(x, y)
                left, top, end, low = self.box()
                self.assertEqual(self.desktop.active(), editor)
                if low < bottom:
                    break
                self.click(left + 20, top + 20)  # a slow machine: the pointer was not found in time
            self.assertEqual((left, top), (min(x, right - (end - left)), max(y, PANEL)))
            self.click(left + 20, top + 20)
            self.assertEqual(self.desktop.active(), editor)


if __name__ == "__main__":
    unittest.main(verbosity=2)
