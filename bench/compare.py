#!/usr/bin/env python3
"""Runs `nerlo` and other tools in turn on the same texts and prints how they compare.

Only ratios are printed: a time says more about the machine than about the program. Every ratio is
the median of the ratios of pairs of runs, one after the other. Started by scripts/bench.sh.
"""
import argparse
import collections
import contextlib
import json
import os
import platform
import plistlib
import random
import statistics
import subprocess
import sys
import threading
import time
import zlib

import make_corpus
from operations import ENDLESS, ENDLESS_PEAK, KEEPS, PATTERNS, READY, ROWS, STREAM_GOAL, STREAMS

LONGEST = 300  # seconds, after which a run is stopped
MEGABYTE = 1e6
Run = collections.namedtuple("Run", "wall cpu peak")


class Bench:
    def __init__(self, arguments):
        self.arguments = arguments
        self.rows, self.patterns = (
            [row for row in rows if not arguments.rows or row.name in arguments.rows]
            for rows in (ROWS, PATTERNS))
        self.cache = arguments.cache
        self.full = self.corpus(arguments.mb)
        self.sixteenth = self.corpus(arguments.mb / 16)
        home = self.folder("home")  # so that no profile of the user's changes the options
        self.environment = {"PATH": os.environ["PATH"], "HOME": home, "LC_ALL": "C.UTF-8"}
        self.tools = dict(self.environment, LC_ALL="C")
        self.utf8_tools = dict(self.tools, LC_ALL="en_US.UTF-8", LOCPATH=self.locales())

    def folder(self, *names):
        path = os.path.join(self.cache, *names)
        os.makedirs(path, exist_ok=True)
        return path

    def corpus(self, megabytes, *flags):
        with open(make_corpus.__file__, "rb") as file:  # texts of another version of that script are made anew
            maker_sum = zlib.crc32(file.read())
        kind = flags[0].strip("-") if flags else "text"
        folder = self.folder("%s-%g-%08x" % (kind, megabytes, maker_sum))
        # In a process of its own, because a child's peak is never reported below what its parent
        # used.
        maker = [sys.executable, make_corpus.__file__, *flags, folder, str(megabytes)]
        subprocess.run(maker, check=True)
        return folder

    def locales(self):
        """A locale with real sorting rules, whatever the machine has."""
        folder = self.folder("locale")
        if not os.path.exists(os.path.join(folder, "en_US.UTF-8", "LC_COLLATE")):
            subprocess.run(["localedef", "-i", "en_US", "-f", "UTF-8",
                            os.path.join(folder, "en_US.UTF-8")], check=True)
        return folder

    def ours(self, row):
        path = os.path.join(self.folder("options"), row.name + ".plist")
        with open(path, "wb") as file:
            plistlib.dump(row.options, file)
        command = row.command.format(nerlo=self.arguments.nerlo, options=path)
        return ["sh", "-c", command] if "|" in command else command.split()

    def run(self, argv, source, environment=None, output=os.devnull, descriptor=None):
        actions = [(os.POSIX_SPAWN_OPEN, 0, source, os.O_RDONLY, 0) if descriptor is None else
                   (os.POSIX_SPAWN_DUP2, descriptor, 0),
                   (os.POSIX_SPAWN_OPEN, 1, output, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o644)]
        begin = time.perf_counter()
        pid = os.posix_spawnp(argv[0], argv, environment or self.environment, file_actions=actions)
        guard = threading.Timer(LONGEST, os.kill, (pid, 9))
        guard.start()
        _, status, usage = os.wait4(pid, 0)
        wall = time.perf_counter() - begin
        guard.cancel()
        if status:
            sys.exit("bench: failed with status %d on %s: %s" % (status, source, " ".join(argv)))
        return Run(wall, max(usage.ru_utime + usage.ru_stime, 1e-5), usage.ru_maxrss * 1024)

    def pairs(self, first, second, count=None):
        """Median ratios of first() to second(), both of which give a Run, and all the runs."""
        runs = [(first(), second()) for _ in range(count or self.arguments.pairs)]
        return Run(*(statistics.median(a[k] / b[k] for a, b in runs) for k in range(3))), runs

    def text(self, row, folder=None):
        return os.path.join(folder or self.full, row.corpus + ".txt")

    def same_bytes(self, row, tool, environment):
        results = [os.path.join(self.cache, name) for name in ("ours.out", "theirs.out")]
        self.run(self.ours(row), self.text(row), output=results[0])
        self.run(tool.argv, self.text(row), environment, output=results[1])
        with open(results[0], "rb") as a, open(results[1], "rb") as b:
            same = True
            while same:
                block = a.read(1 << 20)
                same = block == b.read(1 << 20)
                if not block:
                    break
        for result in results:
            os.remove(result)
        return same

    # --- the tables

    def speed(self):
        print("Whole process, %g MB of text, ours divided by the tool's; (=): the same bytes. A peak "
              "of less than some 16 MB cannot be seen.\n" % self.arguments.mb)
        self.beside_tools(self.rows)

    def own_patterns(self):
        print("People's own patterns, as in the table of speeds.\n")
        ratios = self.beside_tools(self.patterns)
        if ratios:
            print("\nThe median of CPU: %s, the worst: %s." % (
                number(statistics.median(ratios)), number(max(ratios))))

    def beside_tools(self, rows):
        ratios = []
        table = Table("operation", "tool", "wall", "CPU", "peak", "goal", "stretch", "verdict")
        for row in rows:
            for tool in row.rivals:
                environment = self.utf8_tools if tool.utf8 else self.tools
                same = " (=)" if self.same_bytes(row, tool, environment) else ""
                ours, source = self.ours(row), self.text(row)
                ratio, _ = self.pairs(lambda: self.run(ours, source),
                                      lambda: self.run(tool.argv, source, environment))
                judged = getattr(ratio, self.arguments.judge or tool.by)
                ratios.append(ratio.cpu)
                table.add(row.title, tool.name + same, *ratio,
                          ("CPU " if tool.by == "cpu" else "") + number(tool.goal), tool.stretch,
                          verdict(judged, tool.goal, tool.stretch))
        return ratios

    def streams(self):
        print("The same through a pipe, whose writer is not counted.\n")
        rows = {row.name: row for row in ROWS}
        table = Table("operation", "tool", "wall", "CPU", "goal", "verdict")
        for name, tool_name in STREAMS:
            row = rows[name]
            tool = next(rival for rival in row.rivals if rival.name == tool_name)
            writer, ours = ["cat", self.text(row)], self.ours(row)
            ratio, _ = self.pairs(lambda: self.run_on_pipe(ours, writer, self.environment),
                                  lambda: self.run_on_pipe(tool.argv, writer, self.tools))
            table.add(row.title, tool.name, ratio.wall, ratio.cpu, "CPU " + number(STREAM_GOAL),
                      verdict(ratio.cpu, STREAM_GOAL))
        size = 1 if self.arguments.quick else 10
        print("\nThree operations on %d GB that nobody stores; the peak in MB.\n" % size)
        table = Table("text", "peak", "goal", "verdict")
        for title, maker, arguments in ENDLESS:
            script = maker.format(prose=os.path.join(self.full, "prose.txt"))
            writer = ["sh", "-c", "{ %s; } 2>/dev/null | head -c %dG" % (script, size)]
            argv = [self.arguments.nerlo, "clean", "--locale", "en_US", *arguments.split()]
            peak = self.peak_on_pipe(argv, writer) / MEGABYTE
            table.add(title, peak, number(ENDLESS_PEAK), verdict(peak, ENDLESS_PEAK))

    def peak_on_pipe(self, argv, writer):
        """Asked for while it runs: what the system tells at the end is never less than this script needs."""
        feeder = subprocess.Popen(writer, stdout=subprocess.PIPE, env=self.environment)
        process = subprocess.Popen(argv, stdin=feeder.stdout, stdout=subprocess.DEVNULL, env=self.environment)
        feeder.stdout.close()
        peak = 0
        while process.poll() is None:
            with open("/proc/%d/status" % process.pid) as status:
                peak = max([peak] + [int(line.split()[1]) for line in status if line.startswith("VmHWM")])
            time.sleep(.02)
        feeder.wait()
        if process.returncode:
            sys.exit("bench: failed with status %d: %s" % (process.returncode, " ".join(argv)))
        return peak * 1024

    def run_on_pipe(self, argv, writer, environment):
        # Not a FIFO of the cache, which another bench might read.
        reads, writes = os.pipe()
        feeder = subprocess.Popen(writer, stdout=writes, env=self.environment)
        os.close(writes)
        try:
            return self.run(argv, "/dev/fd/%d" % reads, environment, descriptor=reads)
        finally:
            os.close(reads)
            feeder.wait()

    def clip(self):
        print("A clip of 1 KB in one process, ours divided by one ICU pass of `[ ]+`, compiled each "
              "time.\n")
        names = ("first-start-pipeline-and-counts/prose/1K", "one-pattern-pass/prose/1K")
        done = subprocess.run(
            [self.arguments.nerlo_bench, "--benchmark_filter=^(%s)/" % "|".join(names),
             "--benchmark_format=json", "--benchmark_repetitions=11", "--benchmark_min_time=0.003",
             "--benchmark_enable_random_interleaving=true"],
            check=True, capture_output=True, env=self.environment)
        times = {name: [] for name in names}
        for result in json.loads(done.stdout)["benchmarks"]:
            if result["run_type"] == "iteration":
                # Processor time. It includes making the copies, which is next to nothing.
                times[result["name"].rpartition("/")[0]].append(result["cpu_time"])
        ratio = statistics.median(times[names[0]]) / statistics.median(times[names[1]])
        table = Table("clip", "CPU", "goal", "stretch", "verdict")
        table.add("first-start pipeline with counts", ratio, .5, .15, verdict(ratio, .5, .15))

    def growth(self):
        print("Growth with the text: %g MB divided by %g MB; and the peak memory at %g MB in "
              "multiples of the text's size in UTF-16.\n"
              % (self.arguments.mb, self.arguments.mb / 16, self.arguments.mb))
        table = Table("operation", "wall", "CPU", "goal", "verdict", "memory", "goal", "verdict")
        for row in self.rows:
            ours, text = self.ours(row), self.text(row)
            self.run(ours, text)  # warms up, so that no measured run is the first one
            ratio, runs = self.pairs(lambda: self.run(ours, text),
                                     lambda: self.run(ours, self.text(row, self.sixteenth)))
            size = utf16_size(text)
            allowance = 8 * MEGABYTE / size if row.memory == KEEPS else 0
            peak = max(large.peak for large, _ in runs) / size
            table.add(row.title, ratio.wall, ratio.cpu, "20", verdict(ratio.cpu, 20), peak,
                      number(row.memory) + (" + 8 MB" if allowance else ""),
                      verdict(peak, row.memory + allowance))

    def guard(self):
        print("The first-start pipeline with udProtectStructure divided by the same without it, %g MB.\n"
              % self.arguments.mb)
        row = next(row for row in ROWS if row.name == "first-start")
        plain = self.ours(row)
        guarded = plain + ["--set", "udProtectStructure=1"]
        table = Table("text", "wall", "CPU", "least CPU", "goal", "verdict")
        folder = self.corpus(self.arguments.mb, "--guarded")
        for name in make_corpus.GUARDED:
            text = os.path.join(folder, name + ".txt")
            self.run(plain, text)  # warms up
            ratio, runs = self.pairs(lambda: self.run(guarded, text), lambda: self.run(plain, text))
            least = min(on.cpu for on, _ in runs) / min(off.cpu for _, off in runs)
            table.add(name, ratio.wall, ratio.cpu, least, "CPU 1.15", verdict(ratio.cpu, 1.15))

    def hostile(self):
        print("Hostile texts, every operation: CPU time at 4 MB divided by 1 MB, and divided by that "
              "of the same operation on prose of 4 MB; the worst of each.\n")
        small, large = (self.corpus(size, "--hostile") for size in (1, 4))
        ordinary = self.corpus(4)
        prose = os.path.join(ordinary, "prose.txt")
        rows = self.rows + READY
        usual = {row.name: self.run(self.ours(row), prose).cpu for row in rows}
        table = Table("text", "4 MB / 1 MB", "operation", "goal", "verdict", "hostile / prose", "operation")
        for name in make_corpus.HOSTILE:
            paths = [os.path.join(folder, name + ".txt") for folder in (large, small)]
            growths, slowness = [], []
            for row in rows:
                ours = self.ours(row)
                pair = [lambda path=path: self.run(ours, path) for path in paths]
                ratio, runs = self.pairs(*pair, 1)
                if ratio.cpu > 5:  # measured again, as short runs vary much
                    ratio, runs = self.pairs(*pair, 5)
                growths.append((ratio.cpu, row.name))
                large_run = statistics.median(run.cpu for run, _ in runs)
                slowness.append((large_run / usual[row.name], row.name))
            growth, slow = max(growths), max(slowness)
            table.add(name, *growth, "5", verdict(growth[0], 5), *slow)

    def start(self):
        print("Start to exit on a clip of 1 KB, an options file read, ours divided by `true`.\n")
        clip = os.path.join(self.full, "clip.txt")
        by_name = {row.name: row for row in ROWS}
        table = Table("command", "wall", "CPU", "goal", "stretch", "verdict")
        for title, name, goal, stretch in (("clean, a plain operation", "tabs", 2.8, 1.5),
                                           ("clean, a pattern", "pattern", 4.5, None)):
            argv = self.ours(by_name[name])
            ratio, _ = self.pairs(lambda: self.run(argv, clip), lambda: self.run(["true"], clip),
                                  50 if self.arguments.quick else 400)
            judged = getattr(ratio, self.arguments.judge or "wall")
            table.add(title, ratio.wall, ratio.cpu, goal, stretch, verdict(judged, goal, stretch))

    def batch(self):
        print("20,000 mixed requests, `nerlo batch --jobs 2` divided by `--jobs 1`.\n")
        source = os.path.join(self.cache, "requests.jsonl")
        write_requests(source, 20000)
        command = [self.arguments.nerlo, "batch", "--locale", "en_US", "--jobs"]
        ratio, _ = self.pairs(lambda: self.run(command + ["2"], source),
                              lambda: self.run(command + ["1"], source))
        same = self.same_files(*(self.written(command + [jobs], source) for jobs in "12"))
        table = Table("requests", "wall", "CPU", "goal", "verdict")
        table.add("20,000" + (" (=)" if same else " (ANSWERS DIFFER)"), ratio.wall, ratio.cpu, .6,
                  verdict(ratio.wall, .6))

    def library(self):
        print("The first-start pipeline by libnerlo on what stands in memory, the CPU time of the clean "
              "divided by that of `nerlo clean` from a file; records of 3,000 characters, texts of %g MB. (=): "
              "the same bytes as the program, for records as each other.\n" % self.arguments.mb)
        row = next(row for row in ROWS if row.name == "first-start")
        ours = self.ours(row)
        options = ours[ours.index("--options") + 1]
        table = Table("form", "text", "CPU", "goal", "verdict")
        for corpus in ("prose", "mixed"):
            source = os.path.join(self.full, corpus + ".txt")
            sums = {"text": self.sum_of_clean(ours, source)}
            for form, title, goal in (("c-text", "C, one text", None), ("c-records", "C, records", None),
                                      ("python-list", "Python, list of records", 1.5)):
                told = []
                ratio, _ = self.pairs(lambda: self.by_library(form, source, options, told),
                                      lambda: self.run(ours, source))
                same = told[-1] == sums.setdefault(form.partition("-")[2].replace("list", "records"), told[-1])
                table.add(title + (" (=)" if same else " (BYTES DIFFER)"), corpus, ratio.cpu, goal,
                          verdict(ratio.cpu, goal) if goal else "")

    def by_library(self, form, source, options, told):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "library.py")
        done = subprocess.run([sys.executable, script, form, source, options], capture_output=True, text=True,
                              check=True, env=dict(self.environment, LD_LIBRARY_PATH=self.arguments.library,
                                                   PYTHONPATH=os.path.join(os.path.dirname(script), "..", "python"),
                                                   PYTHONDONTWRITEBYTECODE="1"))
        used, crc = done.stdout.split()
        told.append(int(crc))
        return Run(float(used), float(used), 0)

    def sum_of_clean(self, ours, source):
        result = os.path.join(self.cache, "ours.out")
        self.run(ours, source, output=result)
        with open(result, "rb") as file:
            crc = zlib.crc32(file.read())
        os.remove(result)
        return crc

    def fields(self):
        print("`nerlo batch --field text` over 16 MB of prose in some 5,500 records; the same bytes for any "
              "`--jobs`: (=).\n")
        prose = os.path.join(self.corpus(16), "prose.txt")
        source = os.path.join(self.cache, "records.jsonl")
        write_records(source, prose, 5500)
        clean = [self.arguments.nerlo, "clean", "--locale", "en_US"]
        filter_ = [self.arguments.nerlo, "batch", "--field", "text", "--locale", "en_US", "--jobs"]
        same = self.same_files(*(self.written(filter_ + [jobs], source) for jobs in "12"))
        table = Table("records", "divided by", "wall", "CPU", "goal", "verdict")
        ratio, _ = self.pairs(lambda: self.run(filter_ + ["1"], source), lambda: self.run(clean, prose))
        table.add("--jobs 1", "clean", ratio.wall, ratio.cpu, "CPU 1.5", verdict(ratio.cpu, 1.5))
        ratio, _ = self.pairs(lambda: self.run(filter_ + ["2"], source),
                              lambda: self.run(filter_ + ["1"], source))
        table.add("--jobs 2" + (" (=)" if same else " (RECORDS DIFFER)"), "--jobs 1", ratio.wall,
                  ratio.cpu, "wall 0.60", verdict(ratio.wall, .6))

    def written(self, command, source):
        output = os.path.join(self.cache, "written-" + command[-1])
        self.run(command, source, output=output)
        return output

    @staticmethod
    def same_files(*paths):
        return subprocess.run(["cmp", "-s", *paths]).returncode == 0


class Table:
    """A Markdown table whose rows show as soon as they are known."""

    def __init__(self, *titles):
        self.widths = [34 if place == 0 else max(7, len(title)) for place, title in enumerate(titles)]
        self.add(*titles)
        self.add(*("-" * width for width in self.widths))

    def add(self, *cells):
        texts = (cell if isinstance(cell, str) else number(cell) for cell in cells)
        padded = (text.ljust(width) for text, width in zip(texts, self.widths))
        print("| " + " | ".join(padded) + " |", flush=True)


def number(value):
    if value is None:
        return ""
    return "%.0f" % value if value >= 100 else "%.1f" % value if value >= 10 else "%.2f" % value


def verdict(value, goal, stretch=None):
    if stretch and value <= stretch:
        return "stretch"
    return "reached" if value <= goal else "missed by %.0f %%" % max(1, 100 * (value / goal - 1))


def utf16_size(path):
    continuation = bytes(range(0x80, 0xC0))
    bmp = bytes(range(0xF0))
    units = 0
    with open(path, "rb") as file:
        while block := file.read(1 << 16):
            units += len(block.translate(None, continuation))  # one for each character
            units += len(block.translate(None, bmp))  # and one more outside the BMP
    return 2 * units


def write_requests(path, count):
    """Most as from an editor, a line or a paragraph; some a page."""
    writer = make_corpus.Writer("requests")
    choose = random.Random("operations").choice
    with open(path, "w", encoding="utf-8") as file:
        for number_ in range(count):
            text = "".join(writer.prose() for _ in range(choose((1, 1, 1, 2, 8))))
            request = {"id": number_, "text": text}
            operation = choose((None, None, 3, 6, 7, 11, 16, 18, 21, 25, 33, 34))
            if operation is not None:
                request["operation"] = operation
            file.write(json.dumps(request, ensure_ascii=False) + "\n")


def write_records(path, prose, count):
    """The text, cut into so many records of any length, with members beside it."""
    cut = random.Random("records").uniform
    with open(prose, encoding="utf-8", newline="") as file:
        text = file.read()
    size = len(text) / count
    with open(path, "w", encoding="utf-8") as file:
        at = number_ = 0
        while at < len(text):
            end = at + round(size * cut(.2, 1.8))
            record = {"id": number_, "url": "https://example.org/%d" % number_, "text": text[at:end],
                      "meta": {"language": "en", "score": .5}}
            file.write(json.dumps(record, ensure_ascii=False) + "\n")
            at, number_ = end, number_ + 1


def machine():
    def first_line(*argv):
        with contextlib.suppress(OSError):
            return subprocess.run(argv, capture_output=True, text=True).stdout.split("\n")[0]
        return argv[0] + ": not there"

    model = platform.machine()
    with open("/proc/cpuinfo") as file:
        for line in file:
            if line.startswith("model name"):
                model = line.split(":")[1].strip()
                break
    system = platform.freedesktop_os_release().get("PRETTY_NAME", platform.system())
    memory = os.sysconf("SC_PHYS_PAGES") * os.sysconf("SC_PAGE_SIZE")
    versions = (first_line("c++", "--version"),
                "ICU " + first_line("pkg-config", "--modversion", "icu-uc"),
                first_line("perl", "-e", "print 'Perl ', $^V"),
                "Python " + platform.python_version(),
                *(first_line(tool, "--version") for tool in ("sed", "tr", "gawk", "sd")))
    return "%s, %d cores, %.0f GB; %s, Linux %s; %s" % (
        model, os.cpu_count(), memory / 1e9, system, platform.release(), "; ".join(versions))


def main():
    tables = ("speed", "own-patterns", "streams", "clip", "growth", "hostile", "guard", "start", "batch", "fields",
              "library")
    names = [row.name for row in ROWS + PATTERNS]
    parser = argparse.ArgumentParser(
        prog="bench.sh", description="How nerlo compares with other tools, as ratios.")
    option = parser.add_argument
    option("rows", nargs="*", metavar="ROW", help="only these operations, of: " + " ".join(names))
    option("--table", action="append", choices=tables, help="only this table; can be repeated")
    option("--pairs", type=int, metavar="N", help="pairs of runs for each ratio (5)")
    option("--mb", type=float, metavar="N", help="size of the texts in megabytes (64)")
    option("--quick", action="store_true",
           help="16 MB, 1 pair, no hostile texts: a first impression")
    option("--judge", choices=("wall", "cpu"),
           help="what all verdicts go by: cpu on a busy machine")
    for name in ("nerlo", "nerlo-bench", "library", "cache"):
        option("--" + name, required=True, help=argparse.SUPPRESS)
    arguments = parser.parse_args()
    unknown = set(arguments.rows) - set(names)
    if unknown:
        parser.error("no such row: " + " ".join(sorted(unknown)))
    arguments.pairs = arguments.pairs or (1 if arguments.quick else 5)
    arguments.mb = arguments.mb or (16 if arguments.quick else 64)
    chosen = arguments.table or [table for table in tables if not (
        arguments.quick and table == "hostile" or
        arguments.rows and table not in ("speed", "own-patterns", "growth"))]
    bench = Bench(arguments)
    print("Measured on: %s. Medians of %d pairs of runs.\n" % (machine(), arguments.pairs))
    for table in chosen:
        getattr(bench, table.replace("-", "_"))()
        print()


if __name__ == "__main__":
    main()
