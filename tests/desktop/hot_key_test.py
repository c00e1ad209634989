#!/usr/bin/python3
"""nerlo-pro's hot keys: other programs copy, press, paste and store shortcuts.

Each test runs in a session of its own: the x11 ones in x11-session, the others in wayland-session, with
the real xdg-desktop-portal in front of a backend of ours, with KDE's own service, or with neither.
NERLO_PRO names the program under test.
"""
import ctypes
import os
import plistlib
import subprocess
import time
import unittest

import dbus

from desktop_session import Logged, desktop, output_of, wait_until
from shell_test import BUS_NAME, CONFIG, PORTAL, PROGRAM, Portal

SHIFT, LOCK, SUPER = 1, 2, 64
META = 0x10000000  # KDE's number for Super
SCROLL_LOCK = 32  # put there by a test


class Keyboard:
    """What another X11 program can do with it."""

    CORE = 0x100
    FAILED = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)

    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        self.failures = 0
        self.handler = self.FAILED(self.failed)
        self.x.XSetErrorHandler(self.handler)

    def failed(self, _display, _error):
        self.failures += 1
        return 0

    def lock(self, modifiers, locked, group):
        self.x.XkbLockModifiers(self.display, self.CORE, modifiers, modifiers if locked else 0)
        self.x.XkbLockGroup(self.display, self.CORE, group)
        self.x.XSync(self.display, 0)

    def takes(self, keycode, modifiers):
        """Whether nobody else had it, whatever is locked."""
        before = self.failures
        for locked in (0, LOCK):
            self.x.XGrabKey(self.display, keycode, modifiers | locked,
                            self.x.XDefaultRootWindow(self.display), 0, 1, 1)
            self.x.XSync(self.display, 0)
        return self.failures == before

    def gives_back(self, keycode, modifiers):
        for locked in (0, LOCK):
            self.x.XUngrabKey(self.display, keycode, modifiers | locked,
                              self.x.XDefaultRootWindow(self.display))
        self.x.XSync(self.display, 0)


class Kde:
    """KDE's own service for global shortcuts, and the user's hand on its settings."""

    OURS = "org.nerlo.NerloPro"
    NAME = "org.kde.kglobalaccel"

    def __init__(self):
        self.service = subprocess.Popen(["kglobalaccel5"], stderr=subprocess.DEVNULL,
                                        env=os.environ | {"QT_QPA_PLATFORM": "offscreen"})
        bus = dbus.SessionBus()
        wait_until(lambda: bus.name_has_owner(self.NAME), "KDE's service")
        self.shortcuts = dbus.Interface(bus.get_object(self.NAME, "/kglobalaccel"),
                                        "org.kde.KGlobalAccel")

    def call(self, method, component, action, *more):
        action = dbus.Array([component, action, component.title(), action], signature="s")
        return getattr(self.shortcuts, method)(action, *more)

    def take(self, action, key):
        self.call("doRegister", "other", action)
        self.call("setShortcut", "other", action, dbus.Array([key], signature="i"), dbus.UInt32(6))

    def choose(self, action, key):
        self.call("setForeignShortcut", self.OURS, action, dbus.Array([key], signature="i"))

    def keys(self, action):
        return [key for key in self.call("shortcut", self.OURS, action) if key]

    def press(self, action):
        path = self.shortcuts.getComponent(self.OURS)
        component = dbus.SessionBus().get_object(self.NAME, path)
        component.invokeShortcut(action, dbus_interface="org.kde.kglobalaccel.Component")

    def close(self):
        self.service.terminate()
        self.service.wait(timeout=60)


class HotKeyTest(unittest.TestCase):
    def setUp(self):
        self.desktop = desktop()
        self.addCleanup(self.desktop.close)

    def logged(self, *command):
        program = Logged(*command, stderr=subprocess.STDOUT)
        self.addCleanup(program.close)
        return program

    def start(self):
        self.program = self.logged(PROGRAM)

    def says(self, line):
        wait_until(lambda: line in self.program.text, f"it says {line!r}")

    def store(self, shortcut, finding=None):
        """A shortcut, by the command line; `finding` is what becomes of it while the program runs."""
        subprocess.run([PROGRAM, "--shortcut", shortcut], check=True, timeout=60)
        if finding:
            self.finds(f"{shortcut}: {finding}")

    def finds(self, finding):
        wait_until(lambda: f"\n  {finding}\n" in output_of(PROGRAM, "--doctor"), finding)

    def cleans(self, press):
        self.desktop.copy("a b c")
        press()
        self.desktop.expect("abc")

    def cleans_with(self, keys):
        self.cleans(lambda: self.desktop.keys(keys))

    def test_x11_runs_once_per_press_whatever_the_layout_and_the_locks(self):
        cleaned = []
        dbus.SessionBus().add_signal_receiver(lambda *_: cleaned.append(True), "Cleaned", BUS_NAME)
        keyboard = Keyboard()
        self.start()
        self.store("remove-all-spaces=Ctrl+Shift+R", "works")
        output_of("xset", "r", "off")  # a slow machine holds each key for long
        front = self.logged("xev", "-event", "keyboard")
        output_of("xdotool", "search", "--sync", "--onlyvisible", "--name", "Event Tester",
                  "windowactivate", "--sync")
        wait_until(lambda: self.desktop.keys("a") or "keycode 38 " in front.text, "xev gets the keys")
        presses = 0

        def presses_once():
            nonlocal presses
            presses += 1
            self.cleans_with("ctrl+shift+27")  # by place, for a layout may have no R
            wait_until(lambda: len(cleaned) >= presses, "the clean is told")
            self.assertEqual(len(cleaned), presses)

        for layout in ("us", "de", "ru", "us,ru"):
            output_of("setxkbmap", layout)
            output_of("xmodmap", "-e", "clear mod3", "-e", "add mod3 = Scroll_Lock")
            group = int(layout == "us,ru")
            for key in ("", "Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"):
                with self.subTest(layout, key=key):
                    if key:
                        self.desktop.keys(key)
                    keyboard.lock(0, False, group)
                    presses_once()
            with self.subTest(layout, key="Scroll_Lock"):
                keyboard.lock(SCROLL_LOCK, True, group)
                presses_once()
                keyboard.lock(SCROLL_LOCK, False, 0)

        # A held key repeats, some twenty times here.
        output_of("xset", "r", "on", "r", "rate", "100", "50")
        presses += 1
        self.cleans(lambda: output_of("xdotool", "keydown", "ctrl", "keydown", "shift", "keydown",
                                      "27"))
        time.sleep(0.5)
        output_of("xdotool", "keyup", "27", "keyup", "shift", "keyup", "ctrl")
        output_of("xset", "r", "off")

        self.desktop.keys("ctrl+27", "shift+27", "super+shift+27", "ctrl+shift+28")
        presses_once()  # what any of these had run would have come before
        # Of the combination the program in front has seen nothing, of the others each.
        wait_until(lambda: front.text.count("keycode 28 ") == 2, "the last of them has arrived")
        self.assertEqual(front.text.count("keycode 27 "), 2 * 3)
        self.assertEqual(self.program.text, "")

    def test_x11_follows_shortcuts_stored_by_the_command_line(self):
        keyboard = Keyboard()
        self.store("clean=Ctrl+F9")  # before a first start too, which leaves it alone
        self.start()
        self.finds("clean=Ctrl+F9: works")
        self.store("remove-all-spaces=Super+R", "works")
        self.cleans_with("super+r")
        self.store("1=super+shift+t")
        self.finds("remove-all-spaces=Super+Shift+T: works")
        self.cleans_with("super+shift+t")
        self.assertTrue(keyboard.takes(27, SUPER), "R is given back")
        self.assertFalse(keyboard.takes(28, SUPER | SHIFT))
        self.store("remove-all-spaces=")
        wait_until(lambda: keyboard.takes(28, SUPER | SHIFT), "T is given back")
        self.store("1=Super+G")
        with open(os.path.join(os.environ["XDG_CONFIG_HOME"], "kglobalshortcutsrc"), "w",
                  encoding="ascii") as file:
            file.write("[kwin]\nOverview=Meta+W,none,Overview\n")
        for status, bad, why in (
                (2, "clean", "NAME=KEYS"), (2, "cleen=Super+V", "no operation"),
                (2, "clean=Super+", "no keys"), (2, "clean=Hyper+V", "no keys"),
                (1, "clean=V", "cannot be"), (1, "clean=Shift+A", "cannot be"),
                (1, "clean=Ctrl+Q", "cannot be"), (1, "clean=Super+Shift_L", "cannot be"),
                (1, "clean=Ctrl+V", '"Paste"'), (1, "clean=Super+W", "(Overview)"),
                (1, "clean=Super+G", "'remove-all-spaces'"),
                (1, "sort-lines=Super+V", "'sort-lines'")):
            done = subprocess.run([PROGRAM, "--shortcut", "clean=Super+V", "--shortcut", bad],
                                  capture_output=True, text=True, timeout=60, check=False,
                                  env=os.environ | {"XDG_CURRENT_DESKTOP": "KDE"})
            self.assertEqual(done.returncode, status, bad)
            self.assertIn(why, done.stderr)
        self.finds("clean=Ctrl+F9: works")
        self.assertEqual(self.program.text, "")
        # Together they may change places.
        subprocess.run([PROGRAM, "--shortcut", "clean=Super+G", "--shortcut", "1=Ctrl+F9"],
                       check=True, timeout=60)
        self.finds("remove-all-spaces=Ctrl+F9: works")
        self.finds("clean=Super+G: works")

    def test_x11_says_what_is_refused(self):
        os.makedirs(os.path.dirname(CONFIG))
        with open(CONFIG, "wb") as file:
            plistlib.dump({"sSort": b"no archive"}, file)
        self.store("clean=Super+V")
        keyboard = Keyboard()
        self.assertTrue(keyboard.takes(55, SUPER))
        self.start()
        self.finds("sort-lines: what is stored is no shortcut")
        refusal = "another program has taken this key combination"
        self.says(f'hot key "sClearFormatingFromClipboard": {refusal}')
        self.finds(f"clean=Super+V: refused, {refusal}")
        # It goes on, and takes the next one that it is given.
        self.store("remove-all-spaces=Super+R", "works")
        self.cleans_with("super+r")
        # Another layout is an occasion to try again, and calls other keys by the names of those.
        keyboard.gives_back(55, SUPER)
        self.store("remove-all-spaces=Super+Z", "works")
        output_of("setxkbmap", "de")
        self.finds("clean=Super+V: works")
        self.store("sort-lines=Super+Z", "works")
        self.finds("remove-all-spaces=Super+Y: works")
        self.cleans_with("super+52")
        # So does the second of two layouts, once it is switched to.
        output_of("setxkbmap", "us,ru")
        self.finds("remove-all-spaces=Super+Z: works")
        keyboard.lock(0, False, 1)
        self.finds("remove-all-spaces=Super+\u042f: works")

    def portal(self, *command):
        return output_of(PORTAL, *command)

    def binds(self, *shortcuts):
        wait_until(lambda: self.portal("list").split("\n")[:-1] == list(shortcuts),
                   f"the portal has bound {shortcuts}")

    def press(self):
        subprocess.run([PORTAL, "press", "sRemoveAllSpaces"], check=True, timeout=60)

    def test_wayland_the_portal_binds_what_is_stored_and_its_presses_clean(self):
        self.addCleanup(Portal().close)
        self.store("remove-all-spaces=Super+Shift+R")
        self.start()
        clean = "sClearFormatingFromClipboard LOGO+v Clear formating from clipboard"
        # Nothing but what the user has set.
        self.binds(clean, "sRemoveAllSpaces LOGO+SHIFT+r Remove all spaces")
        works = ("remove-all-spaces=Super+Shift+R: works, with the desktop's keys: "
                 "Press LOGO+SHIFT+r")
        self.finds(works)
        self.cleans(self.press)
        self.program.close()
        self.start()
        self.finds(works)
        first, again = self.portal("names").split()
        self.assertEqual(first, again, "by its name a desktop knows the program again")
        self.store("remove-all-spaces=Ctrl+R")
        self.binds(clean, "sRemoveAllSpaces CTRL+r Remove all spaces")
        self.cleans(self.press)
        self.store("remove-all-spaces=")
        self.binds(clean)
        self.store("clean=")
        self.binds("")
        self.assertEqual(self.program.text, "")

    def test_wayland_a_declined_dialog_is_a_refusal(self):
        portal = Portal()
        self.addCleanup(portal.close)
        self.portal("answer", "1")
        self.start()
        clean = 'hot key "sClearFormatingFromClipboard": '
        self.says(clean + "it was declined in the desktop's dialog")
        # Asked again only for another shortcut, which may be granted in part.
        self.portal("answer", "0")
        self.portal("drop", "sClearFormatingFromClipboard")
        self.store("remove-all-spaces=Super+R")
        self.binds("sRemoveAllSpaces LOGO+r Remove all spaces")
        self.says(clean + "the desktop did not bind this shortcut")
        # What is bound stays so whatever becomes of the next.
        self.portal("answer", "1")
        self.store("sort-lines=Super+S", "refused, it was declined in the desktop's dialog")
        self.binds("sRemoveAllSpaces LOGO+r Remove all spaces")
        self.cleans(self.press)
        self.portal("answer", "0")
        self.store("sort-lines=Super+T", "works, with the desktop's keys: Press LOGO+t")
        self.binds("sRemoveAllSpaces LOGO+r Remove all spaces", "sSort LOGO+t Sort lines")
        self.cleans(self.press)
        portal.portal.terminate()
        self.says("the desktop portal has ended")

    def test_wayland_kde_binds_what_is_stored_and_what_is_chosen_there(self):
        kde = Kde()
        self.addCleanup(kde.close)
        kde.take("sSort", META | ord("T"))
        self.store("remove-all-spaces=Super+R")
        self.start()
        self.finds("clean=Super+V: works")
        self.finds("remove-all-spaces=Super+R: works")
        self.cleans(lambda: kde.press("sRemoveAllSpaces"))
        self.store("sort-lines=Super+T", "refused, taken by Other, sSort")
        self.store("remove-all-spaces=Super+Shift+F5", "works")
        self.cleans(lambda: kde.press("sRemoveAllSpaces"))
        # What the user chooses in the system settings, now or while the program is away, stays.
        kde.choose("sRemoveAllSpaces", META | ord("Y"))
        self.finds("remove-all-spaces=Super+Shift+F5: works, with the desktop's keys: Super+Y")
        output_of(PROGRAM, "--quit")
        self.start()
        self.finds("remove-all-spaces=Super+Shift+F5: works, with the desktop's keys: Super+Y")
        self.cleans(lambda: kde.press("sRemoveAllSpaces"))
        self.store("remove-all-spaces=Super+U", "works")
        self.store("remove-all-spaces=")
        wait_until(lambda: kde.keys("sRemoveAllSpaces") == [], "it is forgotten")
        self.says('hot key "sSort": taken by Other, sSort')
        kde.close()
        self.says("the desktop's global shortcuts have ended")

    def test_wayland_without_a_portal_it_says_so_and_works(self):
        self.start()
        self.says('this desktop has no GlobalShortcuts portal; bind "nerlo-pro --operation N"')
        self.cleans(lambda: output_of(PROGRAM, "--operation", "1"))


if __name__ == "__main__":
    unittest.main(verbosity=2)
