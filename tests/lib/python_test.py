#!/usr/bin/env python3
"""python_test.py SOURCE NERLO [unittest's arguments]: the Python module, beside the program."""
import concurrent.futures
import json
import os
import pathlib
import pickle
import plistlib
import random
import re
import subprocess
import sys
import threading
import unittest

import nerlo

SOURCE, NERLO = pathlib.Path(sys.argv[1]), sys.argv[2]
PARTS = ("word", "Word.", "ends", " ", "  ", "\t", "\n", "\r\n", "\n\n", ">", "> ", "• ", "- ", "-\n", "...", " .", "‘a’", '"b"', "'",
         "<b>", "</b>", "&amp;", "\u00a0", "é", "Straße", "中文", "\U0001f389", "\ufeff", "\0", "\u2028", "https://x.org/?utm_a=1")
SPACES = {"udChangeMultipleSpacesToSingleSpace": True}


def run(*arguments, text="", **more):
    environment = {"PATH": os.environ["PATH"], "HOME": "/nonexistent", "LC_ALL": "C.UTF-8"}
    return subprocess.run(arguments, input=text.encode(), capture_output=True, check=True,
                          env={**environment, **more}).stdout.decode()


def random_text(chosen):
    return "".join(chosen.choices(PARTS, k=chosen.randrange(40)))


class Cleaning(unittest.TestCase):
    def test_gives_what_the_program_gives(self):
        chosen = random.Random("texts and options")
        switches = [key["key"] for key in nerlo.keys()
                    if key["scope"] == "profile" and key["kind"] == "switch"]
        indices = [key for key in nerlo.keys() if "items" in key and key["scope"] == "profile"]
        names = [None] + [operation["name"] for operation in nerlo.operations()
                          if operation["name"] != "statistics"]
        requests, ours = [], []
        for _ in range(120):
            keys = {key: True for key in chosen.sample(switches, chosen.randrange(8))}
            keys.update((key["key"], chosen.randrange(len(key["items"]))) for key in indices)
            keys["udInsertYourPatternTextField"] = "[a-m]+"
            made = {"operation": chosen.choice(names), "locale": chosen.choice(("en_US", "tr", "de_DE"))}
            texts = [random_text(chosen) for _ in range(30)]
            cleaner = nerlo.Cleaner(**made, **keys)
            ours += zip(cleaner.clean(texts), map(cleaner.clean, texts), map(cleaner.explain, texts),
                        (nerlo.count(text, made["locale"])._asdict() for text in texts))
            for text in texts:
                requests.append({"text": text, "options": keys, "explain": True, **made})
                requests.append({"text": text, "operation": 25, "locale": made["locale"]})
        answers = run(NERLO, "batch", text="\n".join(map(json.dumps, requests))).split("\n")
        theirs = map(json.loads, filter(None, answers))
        for (many, one, steps, counts), request, clean, counted in zip(
                ours, requests[::2], theirs, theirs, strict=True):
            self.assertEqual((many, one, steps), (clean["text"], clean["text"], clean["explain"]), request)
            self.assertEqual(counts, counted["statistics"], request)

    def test_takes_profiles_and_property_lists(self):
        text = (SOURCE / "README.md").read_text()
        for profile in nerlo.profiles():
            name = profile["name"]
            self.assertEqual(nerlo.Cleaner(name, locale="en_US").clean(text),
                             run(NERLO, "clean", "--locale", "en_US", "--profile", name, text=text), name)
        over = nerlo.Cleaner("gentle", udRemoveAllSpaces=True)
        self.assertEqual(over.clean("a b\n"), nerlo.Cleaner("gentle").clean("a b\n").replace(" ", ""))
        cleaner = nerlo.Cleaner(options=plistlib.dumps(SPACES), operation="collapse-spaces")
        self.assertEqual(pickle.loads(pickle.dumps(cleaner)).clean(["a  b"]), ["a b"])
        rules = [{"find": "a", "replace": "\ud83c", "checkbox": True}]
        self.assertEqual(nerlo.Cleaner(sFindReplaceBool=True, sFindAndReplaceItemsProfile=rules).clean("a"),
                         "\ufffd")

    def test_lists_of_any_length(self):
        cleaner = nerlo.Cleaner(**SPACES)
        self.assertEqual(cleaner.clean([]), [])
        self.assertEqual(cleaner.clean(text for text in ("", "")), ["", ""])
        # Several calls of the library, texts longer than one of them, ASCII and others.
        texts = ["a  %d  %s" % (at, "é  " * (at % 3)) for at in range(300_000)] + ["b  " * 500_000, "c  c"]
        self.assertEqual(cleaner.clean(texts), [re.sub(" +", " ", text) for text in texts])

    def test_errors_are_told(self):
        for arguments, message in (
                ({}, "neither a profile"), ({"profile": "gentel"}, "no ready profile"),
                ({"udNone": 1}, "unknown key"), ({"udSort": "yes"}, "neither true nor false"),
                ({"operation": 99}, "unknown operation"), ({"profile": "a\0"}, "zero byte"),
                ({"options": b"{}", "udSort": 1}, "exclude"), ({"profile": "pdf", "locale": "?"}, "locale")):
            with self.assertRaisesRegex(nerlo.OptionsError, message):
                nerlo.Cleaner(**arguments)
        cleaner = nerlo.Cleaner(**SPACES)
        texts = ["x" * 1_100_000, "fine", "a\ud800b"]
        with self.assertRaisesRegex(nerlo.TextError, "^text 2: lone surrogate at character 1$"):
            cleaner.clean(texts)
        with self.assertRaisesRegex(nerlo.TextError, "^lone surrogate at character 0$"):
            nerlo.count("\udcff")
        with self.assertRaisesRegex(TypeError, "text 0 is int, not str"):
            cleaner.clean(b"bytes")
        hard = nerlo.Cleaner(operation=12, udInsertYourPatternTextField="((a|aa)+)\\1[xy]")
        with self.assertRaisesRegex(nerlo.TextError, "^text 2: your pattern was given up") as caught:
            hard.clean(["b" * 1_100_000, "b", "x" + "a" * 4000])
        self.assertEqual(pickle.loads(pickle.dumps(caught.exception)).index, 2)

    def test_threads_clean_at_the_same_time(self):
        cleaner = nerlo.Cleaner("pdf", locale="en_US")
        chosen = random.Random("threads")
        lists = [[random_text(chosen) for _ in range(100)] for _ in range(40)]
        alone = list(map(cleaner.clean, lists))
        with concurrent.futures.ThreadPoolExecutor(8) as threads:
            self.assertEqual(list(threads.map(cleaner.clean, lists)), alone)
        # A thread that never has to give the lock away does so for the length of a clean.
        usual = sys.getswitchinterval()
        self.addCleanup(sys.setswitchinterval, usual)
        sys.setswitchinterval(100)
        begun, cleaned = threading.Event(), []
        long = threading.Thread(target=lambda: (begun.set(), cleaned.append(cleaner.clean("two  words\n" * 500_000))))
        long.start()
        begun.wait()
        self.assertFalse(cleaned)
        long.join()

    def test_the_example(self):
        lines = [json.dumps({"id": at, "text": "two  wörds %d" % at}, ensure_ascii=False) for at in range(5000)]
        clean = run(sys.executable, str(SOURCE / "examples" / "clean_lines.py"), text="\n".join(lines),
                    **{name: os.environ[name] for name in os.environ if name.startswith(("PYTHON", "LD_", "ASAN_"))})
        self.assertEqual(clean.splitlines(), [line.replace("  ", " ") for line in lines])


if __name__ == "__main__":
    unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
