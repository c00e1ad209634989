"""Cleans texts: spaces, line breaks, quotes, bullets, reply marks, tags and more.

    cleaner = nerlo.Cleaner("pdf", locale="en_US", udSort=True)
    cleaner.clean("one text")
    cleaner.clean(["many", "texts"])

The work is done by the library libnerlo.so.1, outside the interpreter's lock: threads clean at the same
time. Everything here may be called on any thread.
"""
from __future__ import annotations

import array
import bisect
import codecs
import ctypes
import itertools
import json
import sys
from typing import Any, Iterable, Iterator, NamedTuple, overload

__all__ = ["Cleaner", "Counts", "Error", "OptionsError", "TextError", "count", "keys", "operations",
           "profiles", "version"]


class Error(Exception):
    """What goes wrong in this module."""


class OptionsError(Error, ValueError):
    """A profile, an option, an operation or a locale makes no sense, or a file that the options name
    cannot be used."""


class TextError(Error, ValueError):
    """A text cannot be cleaned: it is no valid Unicode, or a pattern of yours takes too much work on it.

    `index` is its place in the list, None for a single text.
    """

    def __init__(self, message: str, index: int | None = None):
        super().__init__(message if index is None else f"text {index}: {message}")
        self.reason = message
        self.index = index

    def __reduce__(self) -> tuple[Any, ...]:
        return TextError, (self.reason, self.index)


class Counts(NamedTuple):
    """What a text holds."""
    characters: int  # UTF-16 code units: an emoji counts two
    spaces: int
    words: int
    paragraphs: int


class _Counts(ctypes.Structure):
    _fields_ = [(name, ctypes.c_uint64) for name in Counts._fields]


def _load() -> ctypes.CDLL:
    try:
        library = ctypes.CDLL("libnerlo.so.1")
    except OSError as error:
        raise ImportError(f"nerlo needs its library (Debian package libnerlo1): {error}") from None
    text, size, pointer = ctypes.c_char_p, ctypes.c_size_t, ctypes.c_void_p
    signatures = {
        "nerlo_version": (text,),
        "nerlo_last_error": (text,),
        "nerlo_operations": (text,),
        "nerlo_keys": (text,),
        "nerlo_profiles": (text,),
        "nerlo_free": (None, pointer),
        "nerlo_cleaner_new": (ctypes.c_int, text, text, size, text, text, pointer),
        "nerlo_cleaner_free": (None, pointer),
        "nerlo_clean_many_utf16": (ctypes.c_int, pointer, text, pointer, size, pointer, pointer, pointer),
        "nerlo_explain": (ctypes.c_int, pointer, text, size, pointer, pointer),
        "nerlo_count": (ctypes.c_int, text, size, text, pointer),
    }
    for name, (result, *arguments) in signatures.items():
        function = getattr(library, name)
        function.restype = result
        function.argtypes = arguments
    return library


_library = _load()

# Statuses of the library.
_OPTIONS = (1, 2, 3)
_TEXT = (4, 5)
_NO_MEMORY = 7

# Texts are cleaned as UTF-16, which the interpreter and the library both convert to and from faster
# than UTF-8. These functions do without the search for a codec that str.encode() begins with.
_ENDIAN = sys.byteorder[0]
_utf16 = getattr(codecs, f"utf_16_{_ENDIAN}e_encode")
_of_utf16 = getattr(codecs, f"utf_16_{_ENDIAN}e_decode")

# Bytes that are cleaned in one call: some that stay in the processor's caches on the way in and out. A
# list of any length takes no more memory than some times this beside itself and its result.
_BLOCK = 1 << 19
# Texts that are taken from an iterator at a time, however long they are.
_SOME = 256


def _check(status: int, index: int | None = None) -> None:
    if status == 0:
        return
    message = _library.nerlo_last_error().decode(errors="replace")
    if status in _TEXT:
        raise TextError(message, index)
    if status == _NO_MEMORY:
        raise MemoryError(message)
    raise (OptionsError if status in _OPTIONS else Error)(message)


def _encoded(text: str, index: int | None = None, encode: Any = codecs.utf_8_encode) -> bytes:
    if not isinstance(text, str):
        where = "the text" if index is None else f"text {index}"
        raise TypeError(f"{where} is {type(text).__name__}, not str")
    try:
        return encode(text)[0]
    except UnicodeEncodeError as error:
        raise TextError(f"lone surrogate at character {error.start}", index) from None


def _name(name: str | int | None) -> bytes | None:
    if name is None:
        return None
    if "\0" in str(name):
        raise OptionsError("a name holds a zero byte")
    return str(name).encode(errors="replace")


def _taken(memory: ctypes.c_void_p, size: int) -> bytes:
    """The bytes that the library gave."""
    try:
        return ctypes.string_at(memory, size)
    finally:
        _library.nerlo_free(memory)


def _blocks(texts: Iterable[str]) -> Iterator[list[str]]:
    rest = iter(texts)
    while some := list(itertools.islice(rest, _SOME)):
        try:
            ends = list(itertools.accumulate(map(len, some)))
        except TypeError:
            ends = [0] * len(some)  # the text that is none is told with its place
        begin = passed = 0
        while begin < len(some):
            end = max(bisect.bisect_right(ends, passed + _BLOCK // 2, begin), begin + 1)
            yield some[begin:end]
            begin, passed = end, ends[end - 1]


def _joined(block: list[str], index: int | None) -> tuple[bytes, array.array[int]]:
    """The texts as UTF-16, and the bytes up to the end of each."""
    try:
        joined = "".join(block)
        encoded = _utf16(joined)[0]
        if len(encoded) == 2 * len(joined):
            return encoded, array.array("L", map((2).__mul__, itertools.accumulate(map(len, block))))
    except (TypeError, UnicodeEncodeError):
        pass
    # Characters take two units here and there, or a text is at fault.
    each = [_encoded(text, None if index is None else index + at, _utf16)
            for at, text in enumerate(block)]
    return b"".join(each), array.array("L", itertools.accumulate(map(len, each)))


def _cut(encoded: bytes, ends: array.array[int]) -> list[str]:
    """The texts that end there."""
    try:
        joined = _of_utf16(encoded, "strict", True)[0]
        if len(encoded) == 2 * len(joined):
            halves = [end >> 1 for end in ends]
            return [joined[begin:end] for begin, end in zip(itertools.chain((0,), halves), halves)]
    except UnicodeDecodeError:
        pass
    # A rule may put half a pair of surrogates there, which no text can hold.
    data = memoryview(encoded)
    return [_of_utf16(data[begin:end], "replace", True)[0]
            for begin, end in zip(itertools.chain((0,), ends), ends)]


class Cleaner:
    """Options, ready to clean with. It never changes; threads may share it, and it can be pickled.

    profile    the name of a ready profile; see profiles()
    operation  the name or the index of one operation, which runs whether or not it is on; see
               operations(). None: everything that is on.
    locale     whose rules for letter case, words, sentences and sorting hold ("de_DE"). None: the
               user's, which another machine may not share.
    options    bytes of a property list, as `nerlo profiles export` writes it, in place of keys
    keys       settings, put over the profile; without one, all others are off. See keys().
    """

    _handle: ctypes.c_void_p | None = None

    def __init__(self, profile: str | None = None, *, operation: str | int | None = None,
                 locale: str | None = None, options: bytes | None = None, **keys: Any):
        self._handle = ctypes.c_void_p()
        if keys and options is not None:
            raise OptionsError("options and single keys exclude each other")
        if keys:
            options = json.dumps(keys).encode()
        self._arguments = (profile, operation, locale, options)
        size = 0 if options is None else len(options)
        _check(_library.nerlo_cleaner_new(_name(profile), options, size, _name(operation),
                                          _name(locale), ctypes.byref(self._handle)))

    def __del__(self, _free: Any = _library.nerlo_cleaner_free) -> None:
        _free(self._handle)

    def __reduce__(self) -> tuple[Any, ...]:
        return _restored, self._arguments

    @overload
    def clean(self, texts: str) -> str: ...

    @overload
    def clean(self, texts: Iterable[str]) -> list[str]: ...

    def clean(self, texts: str | Iterable[str]) -> str | list[str]:
        """The clean text, or texts. Of a list each is cleaned by itself; if one fails, all do."""
        if isinstance(texts, str):
            return self._clean_block([texts], None)[0]
        clean: list[str] = []
        for block in _blocks(texts):
            clean += self._clean_block(block, len(clean))
        return clean

    def explain(self, text: str) -> list[dict[str, Any]]:
        """What each step changes, in order: dictionaries with operation, changes, places and others,
        the "steps" of `nerlo clean --explain=json`."""
        encoded = _encoded(text)
        memory, size = ctypes.c_void_p(), ctypes.c_size_t()
        _check(_library.nerlo_explain(self._handle, encoded, len(encoded), ctypes.byref(memory),
                                      ctypes.byref(size)))
        return json.loads(_taken(memory, size.value))

    def _clean_block(self, block: list[str], index: int | None) -> list[str]:
        """`index` is that of the first text, None where there is only one."""
        # "L" is as large as size_t. The places of the results replace those of the texts.
        encoded, ends = _joined(block, index)
        places = ends.buffer_info()[0]
        memory, failed = ctypes.c_void_p(), ctypes.c_size_t()
        status = _library.nerlo_clean_many_utf16(self._handle, encoded, places, len(block),
                                                 ctypes.byref(memory), places, ctypes.byref(failed))
        _check(status, None if index is None else index + failed.value)
        return _cut(_taken(memory, ends[-1]), ends)


def _restored(profile: str | None, operation: str | int | None, locale: str | None,
              options: bytes | None) -> Cleaner:
    return Cleaner(profile, operation=operation, locale=locale, options=options)


def count(text: str, locale: str | None = None) -> Counts:
    """Characters, spaces, words and paragraphs."""
    encoded = _encoded(text)
    counts = _Counts()
    _check(_library.nerlo_count(encoded, len(encoded), _name(locale), ctypes.byref(counts)))
    return Counts(*(getattr(counts, name) for name in Counts._fields))


def _listing(json_text: bytes | None) -> list[dict[str, Any]]:
    if json_text is None:
        raise MemoryError("out of memory")
    return json.loads(json_text)


def operations() -> list[dict[str, Any]]:
    """What `operation` takes: index, name, hotKey and summary of each."""
    return _listing(_library.nerlo_operations())


def keys() -> list[dict[str, Any]]:
    """The settings: key, kind, scope, group, meaning, firstStart, and items where one is an index into
    a list. Keys of the scope "store" change no text."""
    return _listing(_library.nerlo_keys())


def profiles() -> list[dict[str, Any]]:
    """The ready profiles: name and summary of each."""
    return _listing(_library.nerlo_profiles())


def version() -> str:
    """That of the library."""
    return _library.nerlo_version().decode()
