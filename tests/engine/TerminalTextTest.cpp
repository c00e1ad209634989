#include "engine/TerminalText.h"
#include "engine/Structure.h"
#include "tests/engine/Rows.h"

#include <random>
#include <vector>

namespace nerlo::engine {
namespace {

TEST(TerminalText, TakesTheTerminalsOwnMarksOut) {
    expectRows(
        {{"colours", u"\x1B[1;31merror\x1B[0m: no \u009B1mfile", u"error: no file"},
         {"links and titles", u"\x1B]8;;https://a.org\x1B\\here\x1B]8;;\a, \x1B]0;title\awords",
          u"here, words"},
         {"an end that never comes", u"a\x1B]8;;b\nc", u"a8;;b\nc"},
         {"letters struck over by pagers", u"N\bNA\bAM\bME\bE _\bx", u"NAME x"},
         {"a frame, with its title",
          u"\u256D\u2500 Note \u2500\u2500\u256E\n\u2502 two    \u2502\n\u2502   rows \u2502\n"
          u"\u2570\u2500\u2500\u2500\u2500\u2500\u2500\u2500\u2500\u256F\nbehind",
          u"Note\ntwo\n  rows\nbehind"},
         {"the lower half of one",
          u"\u2502 > ask \u2502\n\u2570\u2500\u2500\u2500\u2500\u2500\u2500\u256F\n", u"> ask\n"},
         {"a bar in front of each row", u"\u2502 one\n\u2502\n\u2502 two", u"one\n\ntwo"},
         {"a bar in front of a table that is drawn",
          u"\u2502 a\n\u2502 // \u2502 1 \u2502 2 \u2502\n\u2502   1   \u2502\n\u2502 b",
          u"a\n// \u2502 1 \u2502 2 \u2502\n  1   \u2502\nb"},
         {"blanks in front of Markdown",
          u"  ## A\n\n  ```\n  x = 1;\n  ```\n\n  | a | b |\n  | c | d |\n",
          u"## A\n\n```\nx = 1;\n```\n\n| a | b |\n| c | d |\n"},
         {"padding up to one column", u"one     \nthree   \n\nx", u"one\nthree\n\nx"},
         {"blanks in front of everything", u"  Two sentences.\n\n  In all.\n",
          u"Two sentences.\n\nIn all.\n"}},
        unwrapTerminal);
}

TEST(TerminalText, JoinsWhatWasWrapped) {
    expectRows(
        {{"at the width that fills the rows",
          u"The quick brown fox jumps over the lazy dog\nand then it sleeps under the old oak "
          u"tree\nuntil the morning.\n\nA second one.",
          u"The quick brown fox jumps over the lazy dog and then it sleeps under the old oak tree "
          u"until the morning.\n\nA second one."},
         {"the words of an item below each other, also behind a dash",
          u"- The quick brown fox jumps over the dogs\n  - and sleeps under the old oak trees\n"
          u"  until a morning comes up over the hills\n  and the moor.\n- Next.",
          u"- The quick brown fox jumps over the dogs - and sleeps under the old oak trees until a "
          u"morning comes up over the hills and the moor.\n- Next."},
         {"not what had no room in a line of code",
          u"The quick brown fox jumps over the lazy\ndog and then it sleeps under the old oak\n"
          u"tree.\n\n    path/to/configure\nCC=path/to/msvcc.sh and some more of it\nthat stands",
          u"The quick brown fox jumps over the lazy dog and then it sleeps under the old oak "
          u"tree.\n\n    path/to/configure\nCC=path/to/msvcc.sh and some more of it\nthat stands"},
         {"one wide row in the midst of a sentence, not the rows of a log",
          u"The quick brown fox jumps over the lazy dog, and then it sleeps under the old oak "
          u"until\nthe morning.\n\n16:00:10 status installed gawk\n16:00:10 startup archives",
          u"The quick brown fox jumps over the lazy dog, and then it sleeps under the old oak "
          u"until the morning.\n\n16:00:10 status installed gawk\n16:00:10 startup archives"},
         {"an address that was cut",
          u"All of the documentation of it is found "
          u"at\nhttps://example.org/a/long/path/to/somewhere/"
          u"in\n/the/manual.html#top and in the printed copy\nof the book.",
          u"All of the documentation of it is found at "
          u"https://example.org/a/long/path/to/somewhere/"
          u"in/the/manual.html#top and in the printed copy of the book."},
         {"scripts without blanks, by their double width",
          u"\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\n"
          u"\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\n"
          u"\u6F22",
          u"\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57"
          u"\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57\u6F22\u5B57"
          u"\u6F22"}},
        unwrapTerminal);
}

TEST(TerminalText, TellsCutRowsFromWrappedOnes) {
    expectRows(
        {{"cut at 40",
          u"Rows that somebody wrapped at sixty colum\nns of an edit\n"
          u"or come out of a narrower pane cut in the\n middle of words\n"
          u"and the rest of each stands below the one\n that is full.\n"
          u"- An item as wide as the screen by chance\n- Next\n\n"
          u"    Here is Janet <janet@some.example.org\n> set in.\n",
          u"Rows that somebody wrapped at sixty columns of an edit\n"
          u"or come out of a narrower pane cut in the middle of words\n"
          u"and the rest of each stands below the one that is full.\n"
          u"- An item as wide as the screen by chance\n- Next\n\n"
          u"    Here is Janet <janet@some.example.org> set in.\n"},
         {"a pager's last row is no text",
          u"The quick brown fox jumps over the lazy dog\nand then it sleeps under the old oak "
          u"tree\nuntil the morning comes up over the hills\nnotes.txt",
          u"The quick brown fox jumps over the lazy dog and then it sleeps under the old oak tree "
          u"until the morning comes up over the hills\nnotes.txt"},
         {"a dash and a sign that came to the begin of a row",
          u"The quick brown fox jumps over the old lazy dogs\n- as far as it can - and sleeps "
          u"under the old\noak until the morning of the next day has come\nand is gone, with all "
          u"its many dreams that took\n>= six hours of sleep.",
          u"The quick brown fox jumps over the old lazy dogs - as far as it can - and sleeps under "
          u"the old oak until the morning of the next day has come and is gone, with all its many "
          u"dreams that took >= six hours of sleep."},
         {"blanks behind the words of a row",
          u"The quick brown fox jumps over the lazy \ndog and then it sleeps under an old oak "
          u"\ntree until the morning.",
          u"The quick brown fox jumps over the lazy dog and then it sleeps under an old oak tree "
          u"until the morning."},
         {"a paragraph set in, a year, and code that fills a row",
          u"    The quick brown fox came out in\n1974. It then sleeps below the page of\n"
          u"`a/very/long/path/to/some/lonely/code`\nand dreams.",
          u"    The quick brown fox came out in 1974. It then sleeps below the page of "
          u"`a/very/long/path/to/some/lonely/code` and dreams."},
         {"a bar in front of rows of which one has another",
          u"\u2502 one\n\u2502 two \u2502 three\n\u2502 four", u"one\ntwo \u2502 three\nfour"},
         {"an underline of tildes opens no fence",
          u"Heading\n~~~~~~~\nThe quick brown fox jumps over the lazy dog\nand then it sleeps "
          u"under the old oak tree\nuntil the morning.",
          u"Heading\n~~~~~~~\nThe quick brown fox jumps over the lazy dog and then it sleeps "
          u"under the old oak tree until the morning."}},
        unwrapTerminal);
}

TEST(TerminalText, LeavesAloneWhatMeansItsLines) {
    for (const std::u16string_view text : {
             u"{\n  \"name\": \"nerlo\",\n  \"list\": [\n    1,\n    2\n  ]\n}\n",
             u"    def f(x):\n        return x\n\n    print(f(1))\n",
             u"- one\n- two\n  - three\n1. four\n2. five\n",
             u"John Smith\n123 Main Street\nSpringfield, IL 62704\nUSA\n",
             u"$ make install\n$ make clean\nuser@host:~$ ls -l /usr/share/doc/somewhere\n",
             u"-rw-r--r-- 1 root root  4096 Nov 22 03:00 README.md\n"
             u"-rw-r--r-- 1 root root 12096 Nov 22 03:00 CHANGELOG.md\n",
             u"| a | b |\n|---|---|\n| 1 | 2 |\n",
             u"name   size   owner\nsrc    10     root\nlib    2      root\n",
             u"\u250C\u2500\u2500\u2500\u252C\u2500\u2500\u2500\u2510\n\u2502 a \u2502 b \u2502\n"
             u"\u2514\u2500\u2500\u2500\u2534\u2500\u2500\u2500\u2518\n",
             u"```\n\u250C\u2500\u2510\n\u2502a\u2502\n\u2514\u2500\u2518\n```\n",
             u"diff --git a/f b/f\n--- a/f\n+++ b/f\n@@ -1,2 +1,2 @@\n-old\n+new\n",
             u"```\nSome words that are long enough to look wrapped\nhere and further words that "
             u"do "
             u"so as well\nbut stand in a fence\n```\n",
             u"Checks:\n  - bugprone-use-after-move,\n    bugprone-dangling-handle,\n    "
             u"bugprone-infinite-loop,\n"
             u"    bugprone-integer-division\n",
             u"SYNOPSIS\n       A few words that are set apart from their heading by blanks\n"
             u"       and then go on below, like code would and stay as they\n       are.\n",
             u"A line with two blanks at its end  \nmeans a break.\n",
             u"commit 5f3c\nAuthor: Some Body Else <somebody.else@example.org>\n"
             u"Date:   Sun Nov 22 08:11:58 2026 +0000\n\n    subject\n\n"
             u" engine/Structure.cpp | 2 +-\n engine/Structure.h   | 1 +\n"
             u" 2 files changed, 2 insertions(+), 1 deletion(-)\n",
             u"LS(1)             User Commands             LS(1)\n\nNAME\n       ls - list files\n",
             u"- one item of a list that ends at the very edge\n- and the next one that is as long "
             u"as the other\n- and one more that is a little bit shorter\n",
         }) {
        EXPECT_EQ(reference::escaped(unwrapTerminal(std::u16string(text))),
                  reference::escaped(text));
    }
}

std::u16string randomParagraph(std::mt19937 &random, std::size_t words) {
    std::u16string text = u"The";
    for (std::size_t word = 0; word < words; ++word) {
        text += u' ';
        for (std::size_t size = 1 + random() % 9; size > 0; --size) {
            text += static_cast<char16_t>(u'a' + random() % 26);
        }
    }
    return text + u'.';
}

std::u16string wrapped(std::u16string_view words, std::size_t width, std::u16string_view indent) {
    std::u16string text;
    std::size_t column = 0;
    for (std::size_t at = 0; at < words.size();) {
        const std::size_t end = std::min(words.find(u' ', at), words.size());
        if (column > 0 && column + 1 + end - at > width) {
            text.append(u"\n").append(indent);
            column = indent.size();
        } else if (column > 0) {
            text += u' ';
            ++column;
        }
        text.append(words.substr(at, end - at));
        column += end - at;
        at = end + 1;
    }
    return text;
}

// A page of prose, items and a fence, shown at any width in a frame, with a gutter or bare.
TEST(TerminalText, GivesBackWhatWasShownAtAnyWidth) {
    std::mt19937 random(20);
    for (std::size_t width = 40; width <= 200; ++width) {
        std::u16string page;
        std::u16string shown;
        for (int paragraph = 0; paragraph < 6; ++paragraph) {
            const bool item = paragraph % 3 == 2;
            const auto words = (item ? u"- " : u"") + randomParagraph(random, 40 + random() % 60);
            page += words + u"\n\n";
            shown += wrapped(words, width, item ? u"  " : u"") + u"\n\n";
        }
        constexpr std::u16string_view fence = u"```\nint main() {\n    return 0;\n}\n```\n";
        page += fence;
        shown += fence;
        ASSERT_EQ(reference::escaped(unwrapTerminal(shown)), reference::escaped(page)) << width;
        std::u16string framed = u"\u256D" + std::u16string(width + 2, u'\u2500') + u"\u256E\n";
        for (std::size_t begin = 0; begin < shown.size();) {
            const std::size_t end = shown.find(u'\n', begin);
            const auto row = shown.substr(begin, end - begin);
            framed += u"\u2502 " + row + std::u16string(width - row.size(), u' ') + u" \u2502\n";
            begin = end + 1;
        }
        framed += u"\u2570" + std::u16string(width + 2, u'\u2500') + u"\u256F\n";
        ASSERT_EQ(reference::escaped(unwrapTerminal(framed)), reference::escaped(page)) << width;
        ASSERT_EQ(unwrapTerminal(page), page) << width;
    }
}

} // namespace
} // namespace nerlo::engine
