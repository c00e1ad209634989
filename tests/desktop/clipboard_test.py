#!/usr/bin/python3
"""The desktop program on a real desktop, with other programs that copy and paste.

Runs inside one of the sessions of this folder; NERLO_PRO names the program under test, NERLO_OWNER
the clipboard owner that misbehaves on request. NERLO_IDLE_SECONDS: how long the idle test watches.
"""
import contextlib
import itertools
import os
import plistlib
import random
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

import dbus

from desktop_session import (WAYLAND, Logged, Program, ask, copy, copy_first, desktop, expect, formats,
                             paste, read, wait_until)

PROGRAM = os.environ["NERLO_PRO"]
OWNER = os.environ["NERLO_OWNER"]
TICK = 0.5
PLAIN = {"text/plain;charset=utf-8", "UTF8_STRING", "text/plain", "STRING", "TEXT"}


def owner(*arguments):
    return contextlib.closing(Logged(OWNER, *arguments, ready="owned"))


def watch_changes():
    """Prints a line for each time that the clipboard is replaced."""
    if WAYLAND:
        return contextlib.closing(Logged("wl-paste", "--watch", "echo", "changed"))
    return contextlib.closing(Logged(OWNER, "--watch", ready="watching"))


def clipboard_manager():
    return contextlib.closing(Logged(OWNER, "--manager", ready="managing"))


def left_behind():
    """Whether a process of this session keeps the text of a program that has ended."""
    return os.environ["NERLO_SESSION_DIR"].encode() in (read("ps", "eww", "-C", "nerlo-hold") or b"")


class WatchedProgram(Program):
    def memory(self):
        """Resident, in bytes."""
        with open(f"/proc/{self.process.pid}/statm") as file:
            return int(file.read().split()[1]) * os.sysconf("SC_PAGE_SIZE")

    def main_thread_work(self):
        """Seconds of processor time so far, which do not depend on what else the machine does."""
        with open(f"/proc/{self.process.pid}/task/{self.process.pid}/schedstat") as file:
            return int(file.read().split()[0]) / 1e9

    def wakeups(self):
        """How often each of its threads has gone to sleep so far, by thread."""
        tasks = f"/proc/{self.process.pid}/task"
        counts = {}
        for task in os.listdir(tasks):
            with open(f"{tasks}/{task}/status") as file:
                counts[task] = next(int(line.split()[1]) for line in file
                                    if line.startswith("voluntary_ctxt_switches"))
        return counts


def nerlo(*arguments):
    """A second start, which hands its request over."""
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, timeout=60)


class ClipboardTest(unittest.TestCase):
    def setUp(self):
        for folder in ("XDG_CONFIG_HOME", "XDG_DATA_HOME"):
            shutil.rmtree(os.path.join(os.environ[folder], "nerlo-pro"), ignore_errors=True)

    def start(self, *arguments):
        program = WatchedProgram(*arguments)
        self.addCleanup(program.close)
        return program

    def start_automatic(self):
        program = self.start("--automatic", "on")
        self.assertEqual(nerlo("--doctor").stdout.splitlines()[-2], "Automatic cleaning: on")
        return program

    def expect_clean(self, text):
        # xclip serves one reader of a large text at a time, so it is not read while the program does.
        wait_until(lambda: WAYLAND or "TEXT" in formats(), "the program owns the clipboard")
        expect(text)
        self.assertEqual(formats() - PLAIN, set())

    def test_a_copy_is_clean_when_it_is_pasted(self):
        with owner("text/plain=before  the start", "UTF8_STRING=before  the start"):
            self.start_automatic()
            with watch_changes() as changes:
                wait_until(lambda: changes.lines, "it watches")
                with owner("UTF8_STRING=one   two", "text/plain=one   two",
                           "text/html=<b>one</b>   two"):
                    self.expect_clean(b"one two")
                # Its first line, be it of the content that there was; the copy; the clean.
                wait_until(lambda: len(changes.lines) == 3, "the copy and one clean")
                copy("drei   vier, f\u00fcnf".encode())
                self.expect_clean("drei vier, f\u00fcnf".encode())
                wait_until(lambda: len(changes.lines) == 5, "the copy and one clean")
                time.sleep(4 * TICK)
                self.assertEqual(len(changes.lines), 5, "and no more")
                expect("drei vier, f\u00fcnf".encode())

    def test_what_is_not_text_stays_as_it_is(self):
        picture = os.path.join(os.environ["NERLO_SESSION_DIR"], "picture")
        pixels = bytes(range(256)) * 1000
        with open(picture, "wb") as file:
            file.write(pixels)
        self.start_automatic()
        time.sleep(2)  # the first tick
        contents = {
            "files": ["text/uri-list=file:///a  b", "text/plain=/a  b", "UTF8_STRING=/a  b"],
            "link": ["text/x-moz-url=http://a  b", "UTF8_STRING=a  b"],
            "picture": ["image/png=@" + picture, "text/html=<img  x>"],
            "secret": ["x-kde-passwordManagerHint=secret", "UTF8_STRING=p  w", "text/plain=p  w"],
            "secret, other value": ["x-kde-passwordManagerHint=x", "UTF8_STRING=p  w"],
            "secret by its state": ["CLIPBOARD_STATE=sensitive", "UTF8_STRING=p  w"],
        }
        for name, content in contents.items():
            for on_demand in (False, True):
                with self.subTest(name, on_demand=on_demand), owner(*content) as copied:
                    if on_demand:
                        self.assertEqual(nerlo("--clean").returncode, 0)
                        self.assertEqual(nerlo("--operation", "1").returncode, 0)
                    time.sleep(3 * TICK)
                    self.assertNotIn("replaced", copied.lines)
                    asked = {line for line in copied.lines if line.startswith("send")}
                    self.assertLessEqual(asked, {"send TARGETS", "send CLIPBOARD_STATE"})
                    names = {item.rsplit("=", 1)[0] for item in content}
                    wait_until(lambda: formats() == names, "the same formats")
                    for item in content:
                        kind, value = item.rsplit("=", 1)
                        expect(pixels if value[0] == "@" else value.encode(), kind)

    def test_the_table_decides_by_what_programs_offer(self):
        """With the formats that real programs were seen to offer."""
        page = os.path.join(os.environ["NERLO_SESSION_DIR"], "page")
        with open(page, "wb") as file:
            file.write("http://docs.example.org:8765/page.html".encode("utf-16-le"))
        link, cells = (f'application/x-openoffice-{kind.lower()};windows_formatname="{kind}"=x'
                       for kind in ("Link", "Sylk"))
        code = "int main() {\n    return  0;\n}\n"
        programs = {  # more formats, the text, where it is decided, and what becomes of it
            "chromium": (["chromium/x-source-url=http://docs.example.org/page.html",
                          "text/html=<b>a</b>  b"], "a  b", "row 3", "a b"),
            "firefox": (["text/_moz_htmlcontext=x", f"text/x-moz-url-priv=@{page}",
                         "text/html=<b>a</b>  b"], "a  b", "row 3", "a b"),
            "terminal": ([], "$ make  all\ncc  x", "row 4", "$ make  all\ncc  x"),
            "editor": (["GTK_TEXT_BUFFER_CONTENTS=x"], code, "row 5", code),
            # The one profile that such settings have does nothing.
            "editor, prose": (["GTK_TEXT_BUFFER_CONTENTS=x"], "c  d", "no row", "c  d"),
            "Writer": (["text/rtf=x", link], "a  b", "row 2", "a b"),
            "Calc": (["text/html=x", link, cells], "a\t 1", "row 1", "a\t 1"),
        }
        rules = [{"format": "application/x-openoffice-sylk"},
                 {"format": "application/x-openoffice-link", "profile": "gentle"},
                 {"page": "example.org", "profile": "web"},
                 {"looks": "terminal", "profile": "terminal"},
                 {"looks": "code", "profile": "code"}]
        folder = os.path.join(os.environ["XDG_CONFIG_HOME"], "nerlo-pro")
        os.makedirs(folder, exist_ok=True)
        with open(os.path.join(folder, "defaults.plist"), "wb") as file:
            plistlib.dump({"firstRunPreferences": True, "firstRunPreferencesProfiles": True,
                           "firstRunTips": False, "updateReleaseNotes3_1": True,
                           "copyTable": [dict(rule, checkbox=True) for rule in rules]}, file)
        self.start_automatic()
        for name, (more, text, row, result) in programs.items():
            with self.subTest(name), owner(*more, f"UTF8_STRING={text}", f"text/plain={text}"):
                wait_until(lambda: row in nerlo("--why").stdout, f"{name}: {row} decides")
                expect(result.encode())
                self.assertNotIn(text, nerlo("--why").stdout)

    def test_fifty_megabytes_do_not_hold_the_program_up(self):
        words = b"fifty megabytes of text with a gap fifty"
        text = b"  ".join([b"fifty megabytes of text with a gap"] * (50_000_000 // 36))
        program = self.start_automatic()
        # Told by little output of another process: this one has to go on asking.
        look, cleaned = ((f"wl-paste | head -c {len(words)}", words) if WAYLAND
                         else ("timeout 5 xclip -o -sel c -t TARGETS | grep -x TEXT", b"TEXT\n"))
        copy(text)
        work, before, seen = [], program.main_thread_work(), None
        while seen != cleaned:
            looking = subprocess.Popen(look, shell=True, stdout=subprocess.PIPE,
                                       stderr=subprocess.DEVNULL)
            while looking.poll() is None:
                program.call("Doctor")
                now = program.main_thread_work()
                work.append(now - before)
                before = now
                time.sleep(0.002)
            seen = looking.communicate()[0]
        self.assertEqual(paste(seconds=60), text.replace(b"  ", b" "))
        print(f"\nmost work of the main thread between two answers, 50 MB: {max(work) * 1000:.1f} ms")
        self.assertLess(max(work), 0.05)

    def test_bad_owners_do_not_keep_the_next_copy_from_being_cleaned(self):
        self.start_automatic()
        copy(b"first  one")
        self.expect_clean(b"first one")
        large = "text/plain=*5000000", "UTF8_STRING=*5000000"
        misdeeds = {
            "hangs": ["--hang", "text/plain=a  b", "UTF8_STRING=a  b"],
            "delivers none": ["--refuse", "text/plain=a  b", "UTF8_STRING=a  b"],
            "stalls": ["--stall-after", "300000", *large],
            "dies": ["--die-after", "300000", *large],
            "offers nonsense": ["--more-formats", "2000", "UTF8_STRING=a  b"],
        }
        if not WAYLAND:
            misdeeds["never ends"] = ["--endless", *large]
        for patient in (False, True):
            for name, arguments in misdeeds.items():
                with self.subTest(name, patient=patient), owner(*arguments) as bad:
                    wait_until(lambda: "send TARGETS" in bad.lines or len(bad.lines) > 1
                               or "nonsense" in name, "the owner is asked")
                    if patient:  # until the owner has been given up
                        time.sleep(3)
                    copy(name.encode() + b"  over")
                    self.expect_clean(name.encode() + b" over")

    def test_two_thousand_copies(self):
        program = self.start_automatic()
        random.seed(1)
        letters = random.randbytes(2_000_000).hex().encode()

        def copy_all(count):
            for i in range(count):
                size = random.randrange(1_000_000)
                copy(letters[i:i + size] + b"  %d" % i)
            last = letters[count - 1:count - 1 + size] + b" %d" % (count - 1)
            expect(last)

        copy_all(20)  # what a first use takes once
        before = program.memory()
        copy_all(2000)
        after = program.memory()
        print(f"\nmemory before and after 2000 copies: {before // 1024} and {after // 1024} KiB")
        self.assertLess(after - before, 20 << 20)

    def test_restore_never_touches_a_newer_copy(self):
        """NERLO_RESTORES rounds, each with a copy that comes just before a restore, or with it."""
        self.start_automatic()
        self.assertEqual(nerlo("--automatic", "off").stdout, "off\n")
        newer = {
            "text": ["UTF8_STRING=newer  %d", "text/plain=newer  %d"],
            "files": ["text/uri-list=file:///newer%d", "text/plain=/newer%d"],
            "picture": ["image/png=picture %d"],
        }
        random.seed(1)

        def begin_restore():
            return subprocess.Popen([PROGRAM, "--restore"], stderr=subprocess.PIPE, text=True)

        for i in range(int(os.environ.get("NERLO_RESTORES", "20"))):
            copy_first(b"old  %d" % i)
            self.assertEqual(nerlo("--operation", "remove-all-spaces").returncode, 0)
            self.expect_clean(b"old%d" % i)
            name = list(newer)[i % 3]
            # On Wayland a copy that comes together with the restore may lose.
            together = i % 2 and not WAYLAND
            with self.subTest(name, i=i):
                if together:  # somewhere on the way of the restore
                    restore = begin_restore()
                    time.sleep(random.random() * 0.05)
                copied = Logged(OWNER, *(item % i for item in newer[name]), ready="owned")
                self.addCleanup(copied.close)
                if not together:
                    restore = begin_restore()
                told = restore.communicate(timeout=60)[1]
                if not together:
                    self.assertEqual(restore.returncode, 1)
                    self.assertEqual(told, "nerlo-pro: not restored: newer copy\n")
                for item in newer[name]:
                    kind, value = (item % i).split("=")
                    expect(value.encode(), kind)
                self.assertNotIn("replaced", copied.lines)
                copied.close()

    def test_slow_formats_hold_up_nothing(self):
        """As a large spreadsheet: the text at once, everything else at its leisure."""
        self.start_automatic()
        time.sleep(2)  # the first tick
        cleaned = []
        dbus.SessionBus().add_signal_receiver(lambda *_: cleaned.append(True), "Cleaned",
                                              Program.BUS_NAME)
        pictures = [f"image/p{i}=picture" for i in range(10)]
        texts = {"UTF8_STRING": "a  b", "text/html": "<b>a</b>  b"}
        texts_given = [f"{kind}={value}" for kind, value in texts.items()]
        for how in (["--slow", "2000"], ["--mute"]):
            cleaned.clear()
            with self.subTest(how), owner(*how, *pictures, *texts_given):
                # It takes a second and a half; to wait for all the owner's answers, fifteen or more.
                wait_until(lambda: cleaned, "the clean is done", 12)
            done = nerlo("--restore")
            self.assertEqual(done.returncode, 0)
            self.assertIn("could not be read", done.stderr)
            for kind, value in texts.items():
                expect(value.encode(), kind)

    def test_two_programs_come_to_rest(self):
        home = tempfile.mkdtemp(dir=os.environ["NERLO_SESSION_DIR"])
        other = Logged("dbus-run-session", "--", PROGRAM, "--automatic", "on",
                       env=os.environ | {"XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home})
        self.addCleanup(other.close)
        self.start_automatic()
        with watch_changes() as changes:
            for text, rich in ((b"one   two", False), (b"three   four", True), (b"one two", False)):
                with self.subTest(text, rich=rich):
                    time.sleep(2 + 2 * TICK)  # both have had their first tick, or the last copy's
                    before = len(changes.lines)
                    if not rich:
                        copy(text)
                    with owner(f"UTF8_STRING={text.decode()}", "text/html=<b>x</b>",
                               f"text/plain={text.decode()}") if rich else contextlib.nullcontext():
                        clean = text.replace(b"   ", b" ")
                        if clean != text:  # else it stays its owner's
                            self.expect_clean(clean)
                        time.sleep(8 * TICK)
                        expect(clean)
                        self.assertLessEqual(len(changes.lines) - before, 1 + 2, "a copy, and its cleans")

    def test_the_text_survives_the_program(self):
        """Kept by a clipboard manager, else by a process that is left behind until the next copy."""
        managers = [contextlib.nullcontext] if WAYLAND else [clipboard_manager, contextlib.nullcontext]
        for manager, end, text in itertools.product(managers, ("--quit", signal.SIGTERM, signal.SIGINT),
                                                    (b"small  text", b"  ".join([b"word"] * 500_000))):
            with self.subTest(manager=manager, end=end, size=len(text)), manager():
                clean = text.replace(b"  ", b" ")
                with contextlib.closing(WatchedProgram()) as program:
                    copy_first(text)
                    self.assertEqual(nerlo("--clean").returncode, 0)
                    self.expect_clean(clean)
                    nerlo(end) if end == "--quit" else program.process.send_signal(end)
                    self.assertEqual(program.process.wait(60), 0)
                expect(clean)
                wait_until(lambda: left_behind() == (manager != clipboard_manager), "who keeps it")
        rich = {"UTF8_STRING": "a  b", "text/html": "<b>a</b>  b", "x-own;x=1": "\u20ac"}
        with contextlib.closing(WatchedProgram()) as program:
            with owner(*(f"{kind}={value}" for kind, value in rich.items())):
                self.assertEqual(nerlo("--clean").returncode, 0)
                self.expect_clean(b"a b")
            self.assertEqual(nerlo("--restore").returncode, 0)
            self.assertEqual(nerlo("--quit").returncode, 0)
            self.assertEqual(program.process.wait(60), 0)
        wait_until(lambda: formats() == rich.keys(), "the same formats")
        for kind, value in rich.items():
            expect(value.encode(), kind)
        copy_first(b"newer")
        wait_until(lambda: not left_behind(), "no process is left")

    def test_the_search_of_the_desktop_runs_operations(self):
        self.start()

        def search(method, *arguments):
            return ask(dbus.SessionBus(), Program.BUS_NAME, "/org/nerlo/NerloPro/Runner",
                       "org.kde.krunner1", method, *arguments)
        for query, names in (("Clean all  tabs", ["remove-tabs", "collapse-white-space"]),
                             ("cle", ["clean"]), ("cl", []), ("cleaner", []), ("all tabs", [])):
            (found,) = search("Match", query)
            self.assertEqual(found.signature, "(sssida{sv})", "what the search can read")
            self.assertEqual([str(match[0]) for match in found], names, query)
        copy_first(b"one\ttwo")
        self.assertRaises(dbus.DBusException, search, "Run", "no-such", "")
        search("Run", "remove-tabs", "")
        self.expect_clean(b"onetwo")

    def test_one_program_per_session(self):
        program = self.start()
        self.assertEqual(nerlo().returncode, 0)
        copy_first(b"a  b c")
        self.assertEqual(nerlo("--operation", "remove-all-spaces").returncode, 0)
        expect(b"abc")
        for mode, answer in (("off", "off"), ("toggle", "on"), ("toggle", "off"), ("on", "on")):
            self.assertEqual(nerlo("--automatic", mode).stdout, answer + "\n")
        with self.assertRaises(dbus.exceptions.DBusException):
            program.call("Automatic", "maybe")
        self.assertIsNone(program.process.poll())
        self.assertEqual(nerlo("--quit").returncode, 0)
        self.assertEqual(program.process.wait(60), 0)
        self.assertEqual(nerlo("--quit").returncode, 0, "quitting what does not run is no failure")
        program = self.start()
        self.assertIn("Automatic cleaning: on", nerlo("--doctor").stdout, "it was on before")
        # One that is just ending is waited for, and not asked.
        self.assertEqual(nerlo("--quit").returncode, 0)
        successor = self.start()
        self.assertEqual(program.process.wait(60), 0)
        self.assertIsNone(successor.process.poll())

    def test_without_a_display_it_says_so(self):
        bare = {name: value for name, value in os.environ.items()
                if name not in ("DISPLAY", "WAYLAND_DISPLAY")}
        done = subprocess.run([PROGRAM], env=bare, capture_output=True, text=True, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertIn("no display", done.stderr)

    def test_idle_it_is_not_woken(self):
        seconds = float(os.environ.get("NERLO_IDLE_SECONDS", "4"))
        program = self.start_automatic()
        # Of the windows of a first start, the one that has no text field and so no caret that blinks
        # gets the focus, once the other has had it.
        hands = desktop()
        self.addCleanup(hands.close)
        for title in "Preferences", "Tips":
            hands.activate(title)
        copy(b"one  two")
        self.expect_clean(b"one two")
        # The popup closes meanwhile, and what windows have used is given back for up to half a minute:
        # the program has to come to rest.
        last = [program.wakeups(), time.monotonic()]

        def rests():
            wakeups = program.wakeups()
            if wakeups != last[0]:
                last[:] = wakeups, time.monotonic()
            return time.monotonic() - last[1] > seconds
        wait_until(rests, f"{seconds:.0f} s in which nothing wakes it", seconds + 60)


if __name__ == "__main__":
    unittest.main(verbosity=2)
