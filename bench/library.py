"""Cleans a text by the library; for compare.py, which has the loader find it.

library.py FORM TEXT OPTIONS: prints the processor time of the clean alone, in seconds, and a sum of what
came out. Reading and cutting the text is not in it; for Python, its own encoding and decoding is.
"""
import array
import ctypes
import itertools
import sys
import time
import zlib

import nerlo

RECORD = 3000  # characters


def timed(clean):
    begin = time.process_time()
    result = clean()
    return time.process_time() - begin, result


def by_c(cleaner, texts):
    """One call of the C function on what stands ready in memory."""
    encoded = [text.encode() for text in texts]
    joined = b"".join(encoded)
    ends = array.array("L", itertools.accumulate(map(len, encoded)))
    places = ends.buffer_info()[0]
    memory = ctypes.c_void_p()
    function = nerlo._library.nerlo_clean_many  # in UTF-8; the module calls its twin
    function.argtypes = nerlo._library.nerlo_clean_many_utf16.argtypes
    used, status = timed(lambda: function(
        cleaner._handle, joined, places, len(ends), ctypes.byref(memory), places, None))
    if status:
        sys.exit(nerlo._library.nerlo_last_error())
    return used, ctypes.string_at(memory, ends[-1])


def by_python(cleaner, texts):
    used, clean = timed(lambda: cleaner.clean(texts))
    return used, "".join(clean).encode()


def main():
    form, path, options = sys.argv[1:]
    with open(options, "rb") as file:
        cleaner = nerlo.Cleaner(options=file.read(), locale="en_US")
    with open(path, encoding="utf-8", newline="") as file:
        text = file.read()
    size = len(text) if form == "c-text" else RECORD
    texts = [text[begin:begin + size] for begin in range(0, len(text), size)]
    used, clean = (by_python if form == "python-list" else by_c)(cleaner, texts)
    print(used, zlib.crc32(clean))


if __name__ == "__main__":
    main()
