#!/usr/bin/env python3
"""at_scale_test.py SOURCE NERLO [RECORDS]: the same 100,000 records by every way of docs/at-scale.md and by the library, byte for byte.

Ends with 77 where a package is missing; where the variable CI is set, that is a failure.
"""
import ctypes
import importlib.util
import itertools
import json
import os
import pathlib
import random
import shutil
import subprocess
import sys
import tempfile

SOURCE, NERLO = pathlib.Path(sys.argv[1]), sys.argv[2]
RECORDS = int(sys.argv[3]) if len(sys.argv) > 3 else 100_000
SHARDS = 7
EXAMPLES = SOURCE / "examples"
ARGUMENTS = ["--field", "text", "--field", "turns[].said", "--profile", "gentle", "--locale", "en_US"]
PARTS = ("word", "Word.", " ", "  ", "\t", "\n", "\n\n", "> ", "• ", "...", " .", "‘a’", '"', "\\", "<b>", "é",
         "Straße", "中文", "\U0001f389", "\u2028", "\0", "\u0085")


def records():
    chosen = random.Random("records")

    def text():
        return "".join(chosen.choices(PARTS, k=chosen.randrange(16)))
    for number in range(RECORDS):
        record = {"id": number, "text": text(), "other": text(), "turns": [{"said": text()} for _ in range(number % 3)]}
        yield json.dumps(record, ensure_ascii=chosen.random() < .5, indent=None) + "\n"


def run(*command, **more):
    ended = subprocess.run(command, capture_output=True, check=False, **more)
    if ended.returncode != 0:
        sys.exit(f"{command}: {ended.returncode} {ended.stderr.decode()}")
    return ended.stdout


def by_jobs(file, _):
    return run("nerlo", "batch", *ARGUMENTS, "--jobs", "2", file)


def by_parallel(file, _):
    return run(EXAMPLES / "clean-parallel.sh", file, *ARGUMENTS, env={**os.environ, "BLOCK": "2M", "JOBS": "2"})


def by_parallel_pipe(file, _):
    with open(file, "rb") as records_:
        return run(EXAMPLES / "clean-parallel.sh", "-", *ARGUMENTS, stdin=records_,
                   env={**os.environ, "BLOCK": "2M", "JOBS": "2"})


def by_dask(file, folder, path=""):
    shards, clean = folder / "shards", folder / "clean"
    shutil.rmtree(shards, ignore_errors=True)
    shards.mkdir()
    run("split", "--number", f"l/{SHARDS}", file, shards / "shard-")
    run("/usr/bin/python3", EXAMPLES / "clean_dask.py", "--workers", "2", shards, clean, "--", *ARGUMENTS,
        env={**os.environ, "PATH": path + os.environ["PATH"]}, cwd=folder)
    parts = sorted(clean.iterdir())
    if len(parts) != SHARDS:
        sys.exit(f"Dask left {parts}")
    return b"".join(part.read_bytes() for part in parts)


def by_dask_that_loses_a_worker(file, folder):
    """In the place of `nerlo` stands a script that, the first time, kills its worker in the middle of a file."""
    tools = folder / "tools"
    tools.mkdir()
    script = tools / "nerlo"
    script.write_text(f"""#!/bin/bash
for file; do :; done
if [[ $file == *shard-ac ]] && mkdir '{folder}/killed' 2>/dev/null; then
    '{NERLO}' "$@" | head -c 1000
    exec kill -9 $PPID
fi
exec '{NERLO}' "$@"
""")
    script.chmod(0o755)
    clean = by_dask(file, folder, f"{tools}:")
    if not (folder / "killed").exists():
        sys.exit("no worker was killed")
    return clean


def texts(lines):
    """Of all records: of records, the library and the module know nothing."""
    return [text for record in map(json.loads, lines.splitlines())
            for text in (record["text"], *(turn["said"] for turn in record["turns"]))]


def by_library(given):
    library, size, pointer = ctypes.CDLL("libnerlo.so.1"), ctypes.c_size_t, ctypes.c_void_p
    cleaner, clean = pointer(), pointer()
    encoded = [text.encode() for text in given]
    ends = (size * len(given))(*itertools.accumulate(map(len, encoded)))
    if (library.nerlo_cleaner_new(b"gentle", None, size(0), None, b"en_US", ctypes.byref(cleaner)) or
            library.nerlo_clean_many(cleaner, b"".join(encoded), ends, size(len(given)), ctypes.byref(clean), ends, None)):
        sys.exit("the library failed")
    joined = ctypes.string_at(clean, ends[len(ends) - 1])
    library.nerlo_free(clean)
    library.nerlo_cleaner_free(cleaner)
    return [joined[begin:end].decode() for begin, end in itertools.pairwise((0, *ends))]


def by_module(given):
    import nerlo
    return nerlo.Cleaner("gentle", locale="en_US").clean(given)


WAYS = (("", by_jobs), ("parallel", by_parallel), ("parallel", by_parallel_pipe), ("distributed", by_dask),
        ("distributed", by_dask_that_loses_a_worker))


def is_there(package):
    return not package or shutil.which(package) or importlib.util.find_spec(package)


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    (folder / "bin").mkdir()
    (folder / "bin" / "nerlo").symlink_to(NERLO)
    os.environ.update(PATH=f"{folder}/bin:{os.environ['PATH']}", HOME=name, XDG_CONFIG_HOME=name, XDG_DATA_HOME=name)
    data = folder / "data.jsonl"
    data.write_text("".join(records()), encoding="utf-8")
    expected = run("nerlo", "batch", *ARGUMENTS, data)
    if expected == data.read_bytes():
        sys.exit("nothing was cleaned")
    missing = {package for package, _ in WAYS if not is_there(package)}
    for package, way in WAYS:
        if package not in missing and way(data, folder) != expected:
            sys.exit(f"{way.__name__}: other bytes")
    given, wanted = texts(data.read_bytes()), texts(expected)
    for way in (by_library, by_module):
        if "LD_LIBRARY_PATH" in os.environ and way(given) != wanted:
            sys.exit(f"{way.__name__}: other texts")
    if missing:
        print("not there:", *sorted(missing))
        sys.exit(1 if "CI" in os.environ else 77)
