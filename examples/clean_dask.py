#!/usr/bin/env python3
"""Cleans a folder of JSON Lines files on a Dask cluster, a file at a time on each worker.

    clean_dask.py shards clean -- --field text --profile web
    clean_dask.py --scheduler tcp://head:8786 /shared/shards /shared/clean -- --field text

What follows "--" goes to `nerlo batch`, which every worker must have; the folders must be the same for all
workers. A result takes its name only when it is whole, so that a worker that dies in the middle of a file
leaves nothing behind that counts, and another one cleans the file anew. --resume leaves out files that have
a result.
"""
import argparse
import contextlib
import os
import pathlib
import subprocess
import sys
import tempfile

from distributed import Client, LocalCluster, as_completed

UNFINISHED = ".part"


def clean(source, target, arguments):
    """Runs on a worker. Gives what `nerlo` said, its warnings."""
    part, name = tempfile.mkstemp(prefix=".", suffix=UNFINISHED, dir=target.parent)
    try:
        with open(part, "wb") as output:
            ended = subprocess.run(["nerlo", "batch", *arguments, source], stdout=output,
                                   stderr=subprocess.PIPE, check=False)
        if ended.returncode != 0:
            raise RuntimeError(f"{source}: status {ended.returncode}: {ended.stderr.decode()}")
        os.replace(name, target)
        return ended.stderr.decode()
    except BaseException:
        os.unlink(name)
        raise


def target_of(source, folder):
    """The result is plain, whatever the source is packed with."""
    return folder / (source.stem if source.suffix in (".gz", ".zst") else source.name)


def clean_all(client, arguments):
    sources = sorted(path for path in arguments.source.iterdir() if path.is_file())
    pairs = [(source, target_of(source, arguments.target)) for source in sources]
    if len({target for _, target in pairs}) != len(pairs):
        sys.exit("clean_dask.py: two files would have the same result")
    if arguments.resume:
        pairs = [(source, target) for source, target in pairs if not target.exists()]
    futures = [client.submit(clean, source, target, arguments.nerlo, pure=False)
               for source, target in pairs]
    failed = 0
    for future in as_completed(futures):
        error = future.exception()
        failed += error is not None
        print(error if error else future.result(), end="\n" if error else "", file=sys.stderr)
    for path in arguments.target.glob(".*" + UNFINISHED):  # of workers that died
        path.unlink()
    return failed


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawTextHelpFormatter)
    parser.add_argument("--scheduler", help="address of a cluster; without it, one is made on this machine")
    parser.add_argument("--workers", type=int, default=os.cpu_count(), help="of a cluster on this machine")
    parser.add_argument("--resume", action="store_true", help="leave out files that have a result")
    parser.add_argument("source", type=lambda name: pathlib.Path(name).resolve())
    parser.add_argument("target", type=lambda name: pathlib.Path(name).resolve())
    parser.add_argument("nerlo", nargs="+", metavar="ARGUMENT", help="for `nerlo batch`, behind --")
    arguments = parser.parse_args()
    arguments.target.mkdir(parents=True, exist_ok=True)
    with contextlib.ExitStack() as opened:
        cluster = arguments.scheduler or opened.enter_context(
            LocalCluster(n_workers=arguments.workers, threads_per_worker=1, dashboard_address=None))
        failed = clean_all(opened.enter_context(Client(cluster)), arguments)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
