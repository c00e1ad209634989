/*
 * libnerlo: the text cleaning of `nerlo`, for programs in C and whatever calls C.
 *
 *     nerlo_cleaner *cleaner;
 *     char *clean;
 *     size_t size;
 *     if (nerlo_cleaner_new("gentle", NULL, 0, NULL, "en_US", &cleaner) != NERLO_OK ||
 *         nerlo_clean(cleaner, text, text_size, &clean, &size) != NERLO_OK) {
 *         fprintf(stderr, "%s\n", nerlo_last_error());
 *     }
 *     ...
 *     nerlo_free(clean);
 *     nerlo_cleaner_free(cleaner);
 *
 * Texts are UTF-8, in and out, but for one function; every size is a number of bytes. A text may
 * hold zero bytes, needs no zero byte behind it, may be NULL where its size is 0, and is only read.
 * A byte order mark is a character of the text like any other. Strings that have no size, such as
 * names, end with a zero byte and are UTF-8 too.
 *
 * Threads: every function may be called on any thread at any time. A cleaner never changes once it
 * is made; any number of threads may use it at once, as long as none of them frees it.
 *
 * Errors: a function that can fail gives a status. If that is not NERLO_OK, nerlo_last_error() says
 * why, and what the function was to give is NULL, 0 or not written at all. No exception leaves the
 * library. It never ends the program, writes to no file and logs nothing. It reads a file of rules
 * for addresses where options name one, and the spelling dictionaries of the system where words are
 * rejoined.
 *
 * Memory: what a function gives through a pointer to a pointer is the caller's, to be freed with
 * nerlo_free(), a cleaner with nerlo_cleaner_free(). Strings that a function returns are the
 * library's.
 *
 * The functions and values below stay as they are as long as the library is called libnerlo.so.1;
 * new ones may come.
 */
#ifndef NERLO_H
#define NERLO_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    NERLO_OK = 0,
    NERLO_BAD_ARGUMENT = 1, /* a pointer that may not be NULL is, or places are out of order */
    NERLO_BAD_OPTIONS = 2,  /* profile, options, operation or locale make no sense; a pattern among
                               them has an error */
    NERLO_UNREADABLE = 3,   /* a file that the options name cannot be read or used */
    NERLO_BAD_TEXT = 4,     /* a text is not valid UTF-8 */
    NERLO_GIVEN_UP = 5,     /* a pattern of yours takes too much work on a text. This hangs on the
                               pattern and the text alone, not on how busy the machine is */
    NERLO_STOPPED = 6,      /* a sink asked to stop */
    NERLO_OUT_OF_MEMORY = 7,
    NERLO_FAILED = 8 /* anything else; a mistake in the library */
};
typedef int nerlo_status; /* one of these */

/* The version of the library, "1.0.0". */
const char *nerlo_version(void);

/*
 * Why the last function that this thread called, and that gives a status, failed: one line in
 * English, without any of the text that was to be cleaned. Empty if it did not fail. Each thread
 * has its own; the string is good until the thread calls such a function again or ends. Not NULL.
 */
const char *nerlo_last_error(void);

/* Frees what nerlo_clean(), nerlo_clean_many() and nerlo_explain() gave. NULL is fine. */
void nerlo_free(void *memory);

/* Options, ready to clean with. */
typedef struct nerlo_cleaner nerlo_cleaner;

/*
 * Makes a cleaner. Each of the first four may be left out by NULL, but not the first three at once:
 * that would clean nothing.
 *
 * profile    the id of a ready profile, such as "gentle"; nerlo_profiles() lists them.
 * options    settings keys, as a JSON object or as a property list, XML or binary: what begins with
 *            "{" is JSON. They are put over the profile; without one, a key that is missing is off,
 * 0 or empty. In JSON, a switch is true, false, 1 or 0, an index a whole number, a text a string, a
 * list of rules an array of objects with "checkbox", "find" and "replace"; an unknown key or
 * another kind of value is NERLO_BAD_OPTIONS. In a property list, a key that this version does not
 * know has no effect. nerlo_keys() lists the keys; those of the scope "store" change no text.
 * operation  the name or the index of one operation, which runs whether or not it is on;
 *            nerlo_operations() lists them. NULL: everything that is on, in its fixed order.
 * locale     whose rules for letter case, words, sentences and sorting hold, as "de_DE" or "de-DE".
 *            NULL: the user's, as LC_ALL, LC_CTYPE and LANG state it when this is called.
 */
nerlo_status nerlo_cleaner_new(const char *profile, const char *options, size_t options_size,
                               const char *operation, const char *locale, nerlo_cleaner **cleaner);

/* No thread may be using it. NULL is fine. */
void nerlo_cleaner_free(nerlo_cleaner *cleaner);

/*
 * Cleans one text. The result has a zero byte behind it that `*clean_size` does not count.
 *
 * Takes as much memory as seven times the text, or the result if that is longer; sorting takes
 * more.
 */
nerlo_status nerlo_clean(const nerlo_cleaner *cleaner, const char *text, size_t size, char **clean,
                         size_t *clean_size);

/*
 * Is given the next piece of a clean text: whole characters, valid until it returns, not empty.
 * Returns 0 to go on, anything else to stop. It may call the library, and must not leave by an
 * exception or a jump.
 */
typedef int (*nerlo_sink)(void *data, const char *piece, size_t size);

/*
 * Cleans one text and hands the result to `sink` in pieces of at most 64 KiB, on this thread.
 * `data` goes to the sink untouched. Nothing is handed over before the whole text is known to be
 * good. An empty result has no piece.
 */
nerlo_status nerlo_clean_to(const nerlo_cleaner *cleaner, const char *text, size_t size,
                            nerlo_sink sink, void *data);

/*
 * Cleans `count` texts, each by itself. They stand one behind the other in `texts`; the first
 * begins at 0, and text number i, counted from 0, ends before byte ends[i], where the next one
 * begins. The results stand in `*clean` in the same way, with a zero byte behind the last, and
 * `clean_ends`, which has room for `count` values and may be the same array as `ends`, says where
 * they end. If one text fails, all do, and what stands in `clean_ends` means nothing. Unless
 * `failed` is NULL, it then holds the number of the first that failed, or `count` where it was none
 * of them.
 */
nerlo_status nerlo_clean_many(const nerlo_cleaner *cleaner, const char *texts, const size_t *ends,
                              size_t count, char **clean, size_t *clean_ends, size_t *failed);

/*
 * The same for texts in UTF-16 in the machine's byte order, for callers that have them so: it saves
 * both sides a conversion. Sizes count bytes here too, and places lie at even ones; the texts may
 * stand at any address. An unpaired surrogate is a character, and no error. There is no zero behind
 * the results.
 */
nerlo_status nerlo_clean_many_utf16(const nerlo_cleaner *cleaner, const void *texts,
                                    const size_t *ends, size_t count, void **clean,
                                    size_t *clean_ends, size_t *failed);

/*
 * Tells what each step of a clean changes: a JSON array of objects, in order, with the members
 * operation, rule or characters where there are some, summary, changes, and places, the first 100
 * of the changes. A place has line, column, endLine, endColumn, removed and added, and cut where
 * one of these is not whole. Lines and columns count from 1, columns in characters. This is "steps"
 * of `nerlo clean --explain=json`; members may be added. The zero byte behind it is not counted.
 * Takes several times as long as the clean.
 */
nerlo_status nerlo_explain(const nerlo_cleaner *cleaner, const char *text, size_t size, char **json,
                           size_t *json_size);

typedef struct nerlo_counts {
    uint64_t characters; /* UTF-16 code units: an emoji counts two */
    uint64_t spaces;     /* U+0020 and U+00A0 */
    uint64_t words;      /* by the locale's rules */
    uint64_t paragraphs; /* lines; a line break at the end begins no other */
} nerlo_counts;

/* Counts what a text holds. `locale` is as for nerlo_cleaner_new(). */
nerlo_status nerlo_count(const char *text, size_t size, const char *locale, nerlo_counts *counts);

/*
 * JSON arrays of objects, as `nerlo operations --json`, `nerlo keys --json` and
 * `nerlo profiles --ready --json` print them. Made at the first call and good until the program
 * ends; NULL if there is no memory for them.
 */
const char *nerlo_operations(void);
const char *nerlo_keys(void);
const char *nerlo_profiles(void);

#ifdef __cplusplus
}
#endif

#endif
