#!/usr/bin/python3
"""The desktop program in GNOME, by the extension of the Shell. Copies and pastes come from programs
in Xwayland, whose clipboard the Shell joins with its own.

NERLO_PRO names the program under test, NERLO_OWNER a clipboard owner with several formats, NERLO_FIELD
a program to paste into.
"""
import contextlib
import os
import plistlib
import unittest

import dbus

from desktop_session import (TEXT, Eyes, Logged, Program, WaylandDesktop, ask, expect, formats, output_of,
                             wait_until)

CONFIG = os.environ["XDG_CONFIG_HOME"] + "/nerlo-pro"
PRO = os.environ["NERLO_PRO"]
SHELL = "org.nerlo.NerloPro.Shell"
EXTENSION = "Main.extensionManager.lookup('nerlo-pro@nerlo.org').stateObj"
BUTTON = "Main.panel.statusArea['org.nerlo.NerloPro']"
FOCUSED, SEARCH = 12, "Find an operation, a profile or rules"
FOCUS = "global.display.focus_window"


def owner(*arguments):
    return contextlib.closing(Logged(os.environ["NERLO_OWNER"], *arguments, ready="owned"))


class ShellTest(unittest.TestCase):
    ENVIRONMENT = {}

    @classmethod
    def setUpClass(cls):
        # No window of its own appears meanwhile.
        os.makedirs(CONFIG, exist_ok=True)
        with open(CONFIG + "/defaults.plist", "wb") as file:
            plistlib.dump({"firstRunPreferences": True, "firstRunTips": False, "showInMenubar": True,
                           "updateReleaseNotes3_1": True, "udChangeMultipleSpacesToSingleSpace": True,
                           "udRemoveSpacesBeforeAndAfterText": True}, file)
        for shortcut in ("remove-all-spaces=Super+Shift+K", "choose=Super+Shift+J"):
            output_of(PRO, "--shortcut", shortcut)
        cls.eyes = Eyes("nerlo-pro")
        cls.program = Program("--automatic", "on", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", **cls.ENVIRONMENT)
        cls.addClassCleanup(cls.program.close)

    def shell(self, expression):
        return ask(dbus.SessionBus(), "org.gnome.Shell", "/org/gnome/Shell", "org.gnome.Shell", "Eval",
                   f"String({expression})")[1]

    def device(self, kind, *events):
        made = (f"(global.nerlo{kind} ??= imports.gi.Clutter.get_default_backend().get_default_seat()"
                f".create_virtual_device(imports.gi.Clutter.InputDeviceType.{kind}_DEVICE))")
        for method, *values in events:
            self.shell(f"{made}.{method}(imports.gi.GLib.get_monotonic_time(), {str(values)[1:-1]})")

    def keys(self, chord):
        codes = [WaylandDesktop.CODES[name] for name in chord.split("+")]
        self.device("KEYBOARD", *(("notify_key", code, down) for down in (1, 0) for code in codes))

    def bring_to_front(self, what, name):
        window = ("global.get_window_actors().map(actor => actor.meta_window)"
                  f".find(window => window.{what}() === '{name}')")
        wait_until(lambda: "undefined" not in self.shell(window), "the window")
        self.shell(f"Main.overview.hide(), {window}.activate(global.get_current_time())")
        wait_until(lambda: name in self.shell(f"{FOCUS}?.{what}()"), "the window in front")

    def expect(self, text):
        wait_until(lambda: "TEXT" in formats(), "the program owns the clipboard")
        expect(text)

    def clean_by_hot_key(self, text):
        with owner(f"UTF8_STRING={text}"):
            self.expect(text.replace("   ", " ").encode())
            self.keys("super+shift+k")
            self.expect(text.replace(" ", "").encode())


class GnomeTest(ShellTest):
    def test_hot_keys_are_the_shells(self):
        self.clean_by_hot_key("one   more")
        self.shell("global.display.grab_accelerator('<Super><Shift>l', 0)")
        output_of(PRO, "--shortcut", "sort-lines=Super+Shift+L")
        wait_until(lambda: "sort-lines=Super+Shift+L: refused, another program has taken" in
                   self.program.call("Doctor")[0], "the refusal")
        output_of(PRO, "--shortcut", "sort-lines=")

    def chooser_shows(self, text):
        search, after = (self.eyes.shows(TEXT, name) for name in (SEARCH, "After"))
        return search and after and self.eyes.state(search, FOCUSED) and text in self.eyes.text(after)

    def test_the_chooser_pastes_into_programs_of_both_kinds(self):
        for platform in ("wayland", "xcb"):
            with self.subTest(platform), contextlib.closing(Logged(
                    os.environ["NERLO_FIELD"], env=os.environ | {"QT_QPA_PLATFORM": platform})) as field:
                self.bring_to_front("get_title", "field")
                with owner(f"UTF8_STRING=for   {platform}"):
                    self.expect(f"for {platform}".encode())
                    self.device("POINTER", ("notify_absolute_motion", 140, 190))
                    wait_until(lambda: '"140,190' in self.shell("global.get_pointer()"), "the pointer")
                    self.keys("super+shift+j")
                    wait_until(lambda: self.chooser_shows(platform), "the chooser")
                    self.assertEqual(self.shell("[(r => [r.x, r.y])(" + FOCUS + ".get_frame_rect())]"), '"140,190"')
                    self.keys("shift+Return")
                    wait_until(lambda: field.lines == [f"for {platform}"], "it is pasted")

    def test_without_the_extension_it_cleans_until_that_is_back(self):
        manager, uuid = "Main.extensionManager", "'nerlo-pro@nerlo.org'"
        self.shell(f"{manager}.disableExtension({uuid})")
        wait_until(lambda: "X11" in self.program.property("Backend"), "the other way")
        with owner("UTF8_STRING=nine   ten"):
            self.expect(b"nine ten")
        self.assertEqual(self.program.call("Restore")[0], "done")
        self.shell(f"{manager}.enableExtension({uuid})")
        wait_until(lambda: "Shell" in self.program.property("Backend"), "the first way")
        wait_until(lambda: "Super+Shift+K: works" in self.program.call("Doctor")[0], "the hot keys")
        expect(b"nine   ten")  # that it is reached anew makes it no copy
        self.clean_by_hot_key("one   again")

    def test_what_is_cleaned_comes_back_with_all_its_formats(self):
        self.assertIn("GNOME, by the Shell's extension", self.program.property("Backend"))
        html, rtf = b"<b>one</b>   two", b"{\\rtf1 one   two}"
        with owner("UTF8_STRING=one   two", "text/html=" + html.decode(),
                   "text/rtf=" + rtf.decode()) as copied:
            self.expect(b"one two")
            wait_until(lambda: "replaced" in copied.lines, "the copy is replaced")
        self.assertNotIn("text/html", formats())
        self.assertEqual(self.program.call("Restore")[0], "done")
        for data, kind in ((b"one   two", "UTF8_STRING"), (html, "text/html"), (rtf, "text/rtf")):
            expect(data, kind)

    def test_a_secret_stays_one_when_the_shell_keeps_its_text(self):
        seen = EXTENSION + "._parts[0]._formats"
        hint = "x-kde-passwordManagerHint"
        with owner(hint + "=secret", "UTF8_STRING=p  w"):
            wait_until(lambda: hint in self.shell(seen), "the secret")
            # As the Shell does when the owner goes.
            self.shell("global.display.get_selection().set_owner("
                       "imports.gi.Meta.SelectionType.SELECTION_CLIPBOARD,"
                       "imports.gi.Meta.SelectionSourceMemory.new('text/plain',"
                       "new imports.gi.GLib.Bytes('p  w')))")
            wait_until(lambda: "text/plain," + hint in self.shell(seen), "it stays one")
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

    def test_the_panel_has_the_programs_icon_and_menu(self):
        def press(title):
            self.shell(f"{BUTTON}._items.find(item => item.label.text === '{title}').activate(null)")

        rows = BUTTON + "?._items.map(item => item.label.text + item._ornament)"
        self.shell(BUTTON + ".menu.open()")
        wait_until(lambda: {"Automatically clear formatting2", "Sort lines0", "profile 12", "Quit Nerlo Pro0"} <=
                   set(self.shell(rows).strip('"').split(",")), "the rows")
        wait_until(lambda: "automatic" in self.shell(BUTTON + "._icon.icon_name"), "the icon")
        press("Automatically clear formatting")
        wait_until(lambda: "idle" in self.shell(BUTTON + "._icon.icon_name"), "the row is run")
        press("Automatically clear formatting")
        wait_until(lambda: self.program.property("AutomaticMode"), "it is run again")
        self.assertIn("Tray: yes", output_of(PRO, "--doctor"))

    def test_a_copy_is_known_by_the_window_in_front(self):
        name = "First.Editor"
        with contextlib.closing(Logged("foot", "--log-level=error", "--app-id=" + name, "cat")):
            self.bring_to_front("get_wm_class", name)
            with owner("UTF8_STRING=five   six"):
                self.expect(b"five six")
            self.assertIn("program in front: " + name, self.program.call("Why")[0])

    def test_the_extension_and_the_program_listen_to_each_other_alone(self):
        shell = (SHELL, "/org/nerlo/NerloPro/Shell")
        for service, path, interface, method, *arguments in (
                (*shell, SHELL, "State"), (*shell, SHELL + ".Keys", "Grab", "<Super>F11"),
                (*shell, SHELL + ".Keys", "Paste", dbus.UInt32(47)), (*shell, SHELL + ".Keys", "Pointer"),
                (Program.BUS_NAME, Program.PATH + "/Panel", Program.BUS_NAME + ".Panel", "Rows")):
            with self.subTest(method), self.assertRaisesRegex(dbus.DBusException, "AccessDenied"):
                ask(self.program.bus, service, path, interface, method, *arguments)


class WithoutXwaylandTest(ShellTest):
    ENVIRONMENT = {"DISPLAY": ""}

    def test_it_is_a_program_of_wayland(self):
        self.clean_by_hot_key("one   last")
        self.program.call("Preferences")
        wait_until(lambda: "org.nerlo.NerloPro" in self.shell(f"{FOCUS}?.get_wm_class()"), "its window")
        self.program.close()
        expect(b"onelast")
        wait_until(lambda: self.shell(EXTENSION + "._parts[1]._grabbed.size") == '"0"', "no hot key is left")


if __name__ == "__main__":
    unittest.main(verbosity=2)
