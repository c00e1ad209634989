#!/usr/bin/python3
"""The desktop program in GNOME, by the extension of the Shell. Copies and pastes come from programs
in Xwayland, whose clipboard the Shell joins with its own.

NERLO_PRO names the program under test, NERLO_OWNER a clipboard owner with several formats.
"""
import contextlib
import os
import unittest

import dbus

from desktop_session import Logged, Program, ask, output_of, paste, read, wait_until

SHELL = "org.nerlo.NerloPro.Shell"


def owner(*arguments):
    return contextlib.closing(Logged(os.environ["NERLO_OWNER"], *arguments, ready="owned"))


def formats():
    return (read("xclip", "-o", "-sel", "c", "-t", "TARGETS") or b"").decode().split("\n")


class GnomeTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.program = Program("--automatic", "on")
        cls.addClassCleanup(cls.program.close)

    def shell(self, expression):
        return ask(self.program.bus, "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                   f"String({expression})")[1]

    def expect(self, text):
        wait_until(lambda: "TEXT" in formats() and paste() == text, f"the clean text {text[:20]!r}")

    def test_what_is_cleaned_comes_back_with_all_its_formats(self):
        self.assertIn("GNOME, by the Shell's extension", self.program.property("Backend"))
        html, rtf = b"<b>one</b>   two", b"{\\rtf1 one   two}"
        with owner("UTF8_STRING=one   two", "text/html=" + html.decode(),
                   "text/rtf=" + rtf.decode()) as copied:
            self.expect(b"one two")
            wait_until(lambda: "replaced" in copied.lines, "the copy is replaced")
        self.assertNotIn("text/html", formats())
        self.assertEqual(self.program.call("Restore")[0], "done")
        wait_until(lambda: paste() == b"one   two", "the original")
        self.assertEqual((paste("text/html"), paste("text/rtf")), (html, rtf))

    def test_a_secret_stays_one_when_the_shell_keeps_its_text(self):
        seen = "Main.extensionManager.lookup('nerlo-pro@nerlo.org').stateObj._parts[0]._formats"
        hint = "x-kde-passwordManagerHint"
        with owner(hint + "=secret", "UTF8_STRING=p  w"):
            wait_until(lambda: hint in self.shell(seen), "the secret")
            # As the Shell does when the owner goes.
            self.shell("global.display.get_selection().set_owner("
                       "imports.gi.Meta.SelectionType.SELECTION_CLIPBOARD,"
                       "imports.gi.Meta.SelectionSourceMemory.new('text/plain',"
                       "new imports.gi.GLib.Bytes('p  w')))")
            self.assertIn("text/plain," + hint, self.shell(seen))
        with owner("UTF8_STRING=three   four"):
            self.expect(b"three four")
        self.assertNotIn(hint, self.shell(seen))

    def test_a_large_text_passes(self):
        text = b"many words  " * 300_000
        path = os.path.join(os.environ["NERLO_SESSION_DIR"], "large")
        with open(path, "wb") as file:
            file.write(text)
        with owner("UTF8_STRING=@" + path):
            self.expect(text.replace(b"  ", b" ").rstrip())

    def test_the_panel_has_the_program_in_it(self):
        button = "Main.panel.statusArea['org.nerlo.NerloPro']"

        wait_until(lambda: "automatic" in self.shell(button + "?._icon.icon_name"), "the icon")
        self.program.call("Automatic", "off")
        wait_until(lambda: "idle" in self.shell(button + "._icon.icon_name"), "the other icon")
        self.program.call("Automatic", "on")
        self.assertIn("Quit", self.shell(button + ".menu._getMenuItems().map(item => item.label.text)"))
        self.assertIn("Tray: yes", output_of(os.environ["NERLO_PRO"], "--doctor"))

    def test_a_copy_is_known_by_the_window_in_front(self):
        name = "First.Editor"
        window = ("global.get_window_actors().map(actor => actor.meta_window)"
                  f".find(window => window.get_wm_class() === '{name}')")
        with contextlib.closing(Logged("foot", "--log-level=error", "--app-id=" + name, "cat")):
            wait_until(lambda: "undefined" not in self.shell(window), "the window")
            self.shell(f"Main.overview.hide(), {window}.activate(global.get_current_time())")
            wait_until(lambda: name in self.shell("global.display.focus_window?.get_wm_class()"),
                       "the window in front")
            with owner("UTF8_STRING=five   six"):
                self.expect(b"five six")
            self.assertIn("program in front: " + name, self.program.call("Why")[0])

    def test_the_extension_listens_to_the_program_alone(self):
        with self.assertRaisesRegex(dbus.DBusException, "AccessDenied"):
            ask(self.program.bus, SHELL, "/org/nerlo/NerloPro/Shell", SHELL, "State")


if __name__ == "__main__":
    unittest.main(verbosity=2)
