"""Cleans the member "text" of JSON Lines, on all processors:

python3 clean_lines.py pdf <in.jsonl >out.jsonl
"""
import concurrent.futures
import itertools
import json
import os
import sys

import nerlo

cleaner = nerlo.Cleaner(sys.argv[1] if len(sys.argv) > 1 else "gentle", locale="en_US")


def clean(lines):
    records = [json.loads(line) for line in lines]
    for record, text in zip(records, cleaner.clean([record["text"] for record in records])):
        record["text"] = text
    return records


blocks = iter(lambda: list(itertools.islice(sys.stdin, 1000)), [])
with concurrent.futures.ThreadPoolExecutor() as threads:
    # A few blocks at a time, so that a long input is never held as a whole.
    while some := list(itertools.islice(blocks, 2 * os.cpu_count())):
        for record in itertools.chain.from_iterable(threads.map(clean, some)):
            print(json.dumps(record, ensure_ascii=False))
