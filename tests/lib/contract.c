/* What nerlo.h promises, as a program in C sees it. */
#include "nerlo.h"

#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/resource.h>

static int failures;

#define EXPECT(holds)                                                                              \
    ((holds) ? (void)0                                                                             \
             : (void)(++failures, fprintf(stderr, "%s:%d: %s (last error: \"%s\")\n", __FILE__,    \
                                          __LINE__, #holds, nerlo_last_error())))
#define SIZE(array) (sizeof(array) / sizeof((array)[0]))

static const char spaces[] = "{\"udChangeMultipleSpacesToSingleSpace\": true}";

static nerlo_cleaner *cleaner_with(const char *options, const char *operation) {
    nerlo_cleaner *cleaner = NULL;
    EXPECT(nerlo_cleaner_new(NULL, options, strlen(options), operation, "en_US", &cleaner) ==
           NERLO_OK);
    return cleaner;
}

static int is(char *bytes, size_t size, const char *wanted, size_t wanted_size) {
    const int same =
        bytes && size == wanted_size && memcmp(bytes, wanted, size) == 0 && bytes[size] == '\0';
    nerlo_free(bytes);
    return same;
}

static void options_are_checked(void) {
    static const struct {
        const char *profile, *options, *operation, *locale;
        nerlo_status status;
        const char *told; /* a part of the message */
    } rows[] = {
        {NULL, NULL, NULL, NULL, NERLO_BAD_ARGUMENT, "neither a profile"},
        {"gentel", NULL, NULL, NULL, NERLO_BAD_OPTIONS, "no ready profile \"gentel\""},
        {NULL, NULL, "join\xFF", NULL, NERLO_BAD_OPTIONS, "unknown operation \"join\xEF\xBF\xBD\""},
        {NULL, "{}", NULL, "not a locale", NERLO_BAD_OPTIONS, "unusable locale"},
        {NULL, "{\"udNone\":1}", NULL, NULL, NERLO_BAD_OPTIONS, "unknown key \"udNone\""},
        {NULL, "{\"udSort\":2}", NULL, NULL, NERLO_BAD_OPTIONS, "key \"udSort\": neither"},
        {NULL, "{\"udSort\":1", NULL, NULL, NERLO_BAD_OPTIONS, "invalid JSON at byte 11"},
        {NULL, "{\"udSort\xFF\":1}", NULL, NULL, NERLO_BAD_OPTIONS, "invalid UTF-8 at byte 8"},
        {NULL, "udSort", NULL, NULL, NERLO_BAD_OPTIONS, "neither a JSON object nor"},
        {NULL, "<plist><array/></plist>", NULL, NULL, NERLO_BAD_OPTIONS, "not a dictionary"},
        {NULL, "{\"udInsertYourPatternTextField\":\"a(\"}", "12", NULL, NERLO_BAD_OPTIONS,
         "your pattern has an error at character"},
        {NULL, "{\"udCleanLinksRules\":\"/nowhere/rules\"}", "clean-links", NULL, NERLO_UNREADABLE,
         "/nowhere/rules"},
        {"gentle", "<plist><dict><key>udNone</key><true/></dict></plist>", NULL, NULL, NERLO_OK,
         ""},
        {NULL, " \n{}", NULL, "de-DE", NERLO_OK, ""},
    };
    for (size_t at = 0; at < SIZE(rows); ++at) {
        nerlo_cleaner *cleaner = (nerlo_cleaner *)&failures; /* to see that it is overwritten */
        const char *options = rows[at].options;
        const nerlo_status status =
            nerlo_cleaner_new(rows[at].profile, options, options ? strlen(options) : 0,
                              rows[at].operation, rows[at].locale, &cleaner);
        if (status != rows[at].status || !strstr(nerlo_last_error(), rows[at].told) ||
            (cleaner != NULL) != (status == NERLO_OK)) {
            ++failures;
            fprintf(stderr, "options %zu: status %d, \"%s\"\n", at, status, nerlo_last_error());
        }
        if (status == NERLO_OK) {
            nerlo_cleaner_free(cleaner);
        }
    }
    EXPECT(nerlo_cleaner_new("gentle", NULL, 0, NULL, NULL, NULL) == NERLO_BAD_ARGUMENT);
    nerlo_cleaner_free(NULL);
    nerlo_free(NULL);
}

static void texts_are_cleaned(void) {
    static const struct {
        const char *text;
        size_t size;
        const char *clean;
        size_t clean_size;
    } rows[] = {
        {NULL, 0, "", 0},
        {"a  b", 4, "a b", 3},
        {"a  bc", 4, "a b", 3}, /* nothing behind the text is looked at */
        {"\0  \0", 4, "\0 \0", 3},
        {"\xEF\xBB\xBFk\xC3\xA4se  x", 11, "\xEF\xBB\xBFk\xC3\xA4se x", 10},
    };
    nerlo_cleaner *cleaner = cleaner_with(spaces, NULL);
    char *clean;
    size_t size;
    for (size_t at = 0; at < SIZE(rows); ++at) {
        EXPECT(nerlo_clean(cleaner, rows[at].text, rows[at].size, &clean, &size) == NERLO_OK);
        EXPECT(is(clean, size, rows[at].clean, rows[at].clean_size));
    }
    EXPECT(nerlo_clean(cleaner, "ab\xC3", 3, &clean, &size) == NERLO_BAD_TEXT);
    EXPECT(!clean && strcmp(nerlo_last_error(), "invalid UTF-8 at byte 2") == 0);
    EXPECT(nerlo_clean(cleaner, NULL, 1, &clean, &size) == NERLO_BAD_ARGUMENT);
    EXPECT(nerlo_clean(NULL, "a", 1, &clean, &size) == NERLO_BAD_ARGUMENT);
    EXPECT(nerlo_clean(cleaner, "a", 1, NULL, &size) == NERLO_BAD_ARGUMENT);

    size_t ends[] = {4, 4, 10}, failed;
    EXPECT(nerlo_clean_many(cleaner, "a  bcd  ef", ends, 3, &clean, ends, &failed) == NERLO_OK);
    EXPECT(ends[0] == 3 && ends[1] == 3 && ends[2] == 8 && is(clean, 8, "a bcd ef", 8));
    EXPECT(nerlo_clean_many(cleaner, NULL, NULL, 0, &clean, NULL, NULL) == NERLO_OK);
    EXPECT(is(clean, 0, "", 0));
    const size_t bad_ends[] = {1, 3, 4}, disordered[] = {3, 2, 4};
    EXPECT(nerlo_clean_many(cleaner, "zb\xFFz", bad_ends, 3, &clean, ends, &failed) ==
           NERLO_BAD_TEXT);
    EXPECT(!clean && failed == 1 && strcmp(nerlo_last_error(), "invalid UTF-8 at byte 1") == 0);
    EXPECT(nerlo_clean_many(cleaner, "abcd", disordered, 3, &clean, ends, &failed) ==
               NERLO_BAD_ARGUMENT &&
           failed == 3);
    static const uint16_t units[] = {'a', ' ', ' ', 0xD83C, 'b', 0xFC};
    size_t bytes[] = {8, 12, 13};
    void *clean_units;
    EXPECT(nerlo_clean_many_utf16(cleaner, units, bytes, 2, &clean_units, bytes, &failed) ==
           NERLO_OK);
    EXPECT(bytes[0] == 6 && bytes[1] == 10 && failed == 2 && memcmp(clean_units, units, 4) == 0 &&
           memcmp((char *)clean_units + 4, units + 3, 6) == 0);
    nerlo_free(clean_units);
    EXPECT(nerlo_clean_many_utf16(cleaner, units, bytes + 2, 1, &clean_units, bytes, &failed) ==
               NERLO_BAD_ARGUMENT &&
           failed == 0 && !clean_units);
    nerlo_cleaner_free(cleaner);

    /* What a pattern refers back to can only be found by trying. */
    cleaner = cleaner_with("{\"udInsertYourPatternTextField\": \"((a|aa)+)\\\\1[xy]\"}", "12");
    char many[4000];
    memset(many, 'a', sizeof many);
    many[0] = 'x';
    EXPECT(nerlo_clean(cleaner, many, sizeof many, &clean, &size) == NERLO_GIVEN_UP);
    EXPECT(!clean && strstr(nerlo_last_error(), "your pattern was given up"));
    nerlo_cleaner_free(cleaner);
}

struct taken {
    size_t size, pieces, most; /* pieces that are taken */
    int whole;                 /* every one begins with a character */
};

static int take(void *data, const char *piece, size_t size) {
    struct taken *taken = data;
    taken->size += size;
    taken->whole &= size > 0 && size <= 65536 && (piece[0] & 0xC0) != 0x80;
    return ++taken->pieces == taken->most;
}

static void a_sink_gets_pieces(void) {
    nerlo_cleaner *cleaner = cleaner_with(spaces, NULL);
    const size_t size = 300001;
    char *text = malloc(size);
    memset(text, 'x', size);
    for (size_t at = 1; at + 2 < size; at += 3) {
        memcpy(text + at, "\xE2\x82\xAC", 3);
    }
    struct taken all = {0, 0, 0, 1}, some = {0, 0, 2, 1}, none = {0, 0, 0, 1};
    EXPECT(nerlo_clean_to(cleaner, text, size, take, &all) == NERLO_OK);
    EXPECT(all.size == size && all.pieces > 4 && all.whole);
    EXPECT(nerlo_clean_to(cleaner, text, size, take, &some) == NERLO_STOPPED && some.pieces == 2);
    text[size - 1] = '\xFF'; /* nothing is handed over of a text that ends badly */
    EXPECT(nerlo_clean_to(cleaner, text, size, take, &none) == NERLO_BAD_TEXT && !none.pieces);
    EXPECT(nerlo_clean_to(cleaner, "", 0, take, &none) == NERLO_OK && !none.pieces);
    EXPECT(nerlo_clean_to(cleaner, "", 0, NULL, NULL) == NERLO_BAD_ARGUMENT);
    free(text);
    nerlo_cleaner_free(cleaner);
}

static void the_rest_is_told(void) {
    nerlo_cleaner *cleaner = cleaner_with(spaces, NULL);
    char *json;
    size_t size;
    EXPECT(nerlo_explain(cleaner, "a  b", 4, &json, &size) == NERLO_OK);
    EXPECT(json && size == strlen(json) && strstr(json, "\"collapse-spaces\"") &&
           strstr(json, "\"changes\":1,"));
    nerlo_free(json);
    EXPECT(nerlo_explain(cleaner, "\xFF", 1, &json, &size) == NERLO_BAD_TEXT && !json);
    nerlo_cleaner_free(cleaner);

    nerlo_counts counts;
    EXPECT(nerlo_count("two w\xC3\xB6rds\n\xF0\x9F\x8E\x89", 15, "en", &counts) == NERLO_OK);
    EXPECT(counts.characters == 12 && counts.spaces == 1 && counts.words == 2 &&
           counts.paragraphs == 2);
    EXPECT(nerlo_count("a", 1, "?", &counts) == NERLO_BAD_OPTIONS);
    EXPECT(strstr(nerlo_operations(), "\"join-lines\"") && strstr(nerlo_keys(), "\"udSort\"") &&
           strstr(nerlo_profiles(), "\"gentle\"") && nerlo_version()[0]);
}

static void *clean_often(void *shared) {
    const nerlo_cleaner *cleaner = shared;
    char text[64], wanted[64], *clean;
    size_t size, wrong = 0;
    for (int round = 0; round < 500; ++round) {
        const int length = sprintf(text, "%p  %d  x", (void *)text, round);
        const int wanted_length = sprintf(wanted, "%p %d x", (void *)text, round);
        wrong += nerlo_clean(cleaner, text, (size_t)length, &clean, &size) != NERLO_OK ||
                 nerlo_last_error()[0] || !is(clean, size, wanted, (size_t)wanted_length);
        text[round % length] = '\xFF';
        sprintf(wanted, "invalid UTF-8 at byte %d", round % length);
        wrong += nerlo_clean(cleaner, text, (size_t)length, &clean, &size) != NERLO_BAD_TEXT ||
                 strcmp(nerlo_last_error(), wanted) != 0;
    }
    return wrong == 0 ? NULL : shared;
}

static void threads_share_a_cleaner(void) {
    nerlo_cleaner *cleaner = cleaner_with(spaces, NULL);
    pthread_t threads[8];
    for (size_t at = 0; at < SIZE(threads); ++at) {
        EXPECT(pthread_create(&threads[at], NULL, clean_often, cleaner) == 0);
    }
    for (size_t at = 0; at < SIZE(threads); ++at) {
        void *wrong = cleaner;
        EXPECT(pthread_join(threads[at], &wrong) == 0 && !wrong);
    }
    nerlo_cleaner_free(cleaner);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
/* At every limit the clean ends well or says so, and one that said so did no harm. */
static void memory_may_end(void) {
    nerlo_cleaner *cleaner = cleaner_with(spaces, NULL);
    const size_t size = 16 << 20;
    char *text = malloc(size), *clean;
    size_t clean_size, refused = 0;
    memset(text, ' ', size);
    struct rlimit before, limit;
    getrlimit(RLIMIT_AS, &before);
    limit = before;
    for (size_t megabytes = 32; megabytes <= 512; megabytes += 16) {
        limit.rlim_cur = megabytes << 20;
        setrlimit(RLIMIT_AS, &limit);
        const nerlo_status status = nerlo_clean(cleaner, text, size, &clean, &clean_size);
        setrlimit(RLIMIT_AS, &before);
        EXPECT(status == NERLO_OK || (status == NERLO_OUT_OF_MEMORY && !clean));
        EXPECT(status == NERLO_OK || strcmp(nerlo_last_error(), "out of memory") == 0);
        refused += status == NERLO_OUT_OF_MEMORY;
        nerlo_free(clean);
    }
    EXPECT(refused > 0 && refused < 31);
    free(text);
    nerlo_cleaner_free(cleaner);
}
#else
static void memory_may_end(void) {} /* the sanitizers' own takes more than any limit */
#endif

int main(void) {
    options_are_checked();
    texts_are_cleaned();
    a_sink_gets_pieces();
    the_rest_is_told();
    memory_may_end(); /* before there are threads, which reserve much */
    threads_share_a_cleaner();
    return failures == 0 ? 0 : 1;
}
