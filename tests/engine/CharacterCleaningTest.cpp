#include "engine/CharacterCleaning.h"
#include "tests/engine/Rows.h"
#include "text/Utf.h"
#include "text/Variations.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <sstream>
#include <vector>

namespace nerlo::engine {
namespace {

using View = std::u16string_view;

constexpr bool CleaningOptions::*extras[] = {
    &CleaningOptions::udCleanCharactersNarrow, &CleaningOptions::udCleanCharactersCompose,
    &CleaningOptions::udCleanCharactersPlainMarks, &CleaningOptions::udCleanCharactersMarkdown};

std::u16string usual(std::u16string text) {
    return cleanCharacters(std::move(text), {});
}

std::u16string with(bool CleaningOptions::*extra, std::u16string text) {
    CleaningOptions options;
    options.*extra = true;
    return cleanCharacters(std::move(text), options);
}

TEST(CharacterCleaning, TakesOutWhatNobodySees) {
    expectRows(
        {{"a byte order mark, wherever it is", u"\uFEFFa\uFEFFb", u"ab"},
         {"zero-width characters in Latin", u"z\u200Be\u200Cr\u200Do\u2060s\u2063.\uFFFC",
          u"zeros."},
         {"bits spelt with joiners", u"\u0645\u200C\u200D\u200C\u200D\u200C\u062F",
          u"\u0645\u062F"},
         {"a non-joiner twice", u"\u0645\u06CC\u200C\u200C\u0631", u"\u0645\u06CC\u200C\u0631"},
         {"soft hyphens", u"soft\u00ADhy\u00ADphen", u"softhyphen"},
         {"one that was shown", u"hy\u00AD\n  phen \u00AD\n", u"hy-\n  phen \n"},
         {"controls, but no tab, line or page", u"a\x01\tb\x7F\u0080\nc\fd\x02\r\n",
          u"a\tb\nc\fd\r\n"},
         {"other ends of lines", u"a\vb\u0085c\u2028d\u2029e", u"a\nb\nc\nd\ne"},
         {"colours, titles, letters struck over", u"\x1B[1;31mred\x1B[0m\x1B]0;t\a N\bN_\bx\x1B",
          u"red Nx"},
         {"a message in tags", u"a\U000E0068\U000E0069b\U000E0001", u"ab"},
         {"one behind a flag, or in its place",
          u"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F\U000E0068"
          u"\U0001F3F4\U000E0068\U000E0069\U000E007F",
          u"\U0001F3F4\U000E0067\U000E0062\U000E0073\U000E0063\U000E0074\U000E007F\U0001F3F4"},
         {"one in selectors", u"\u2764\uFE0F\U000E0101\U000E0123a\uFE0F\U0001F600\uFE0E",
          u"\u2764\uFE0Fa\U0001F600"},
         {"private use, but for bullets", u"\uF0B7 a\uE000\uF8FF\U000F0000\uFDD0b", u"\u2022 ab"},
         {"ligatures of letters alone",
          u"\uFB00\uFB01\uFB02\uFB03\uFB04\uFB05\uFB06 \u0153\u00E6\u0133\u00BD",
          u"fffiflffiffl\u017Ftst \u0153\u00E6\u0133\u00BD"},
         {"Trojan source", u"/*\u202E } \u2066if (a)\u2069 \u2066 begin */",
          u"/* } if (a)  begin */"},
         {"overrides and halves of pairs in Hebrew",
          u"\u05D0\u202Eb\u202C \u2067c \u2069\u2069 \u2068d", u"\u05D0b \u2067c \u2069 d"},
         {"a pair around nothing", u"\u05D0\u2067\u200B\u2069\u202A\u202C\u200F", u"\u05D0\u200F"}},
        usual);
}

TEST(CharacterCleaning, MakesPlainBlanks) {
    expectRows(
        {{"from web pages", u"a\u00A0b \u00A0 c\u2003d\u205Fe\u3000f\u2800g", u"a b   c d e f g"},
         {"indented code", u"\u00A0\u00A0if (a\u00A0!= b\u00A0&&\u00A0c)", u"  if (a != b && c)"},
         {"not inside of numbers", u"10\u202F000\u00A0km 5\u00A0%", u"10\u202F000 km 5\u00A0%"},
         {"nor in French", u"Quoi\u202F? \u00AB\u00A0Oui\u00A0\u00BB\u00A0: non\u00A0!",
          u"Quoi\u202F? \u00AB\u00A0Oui\u00A0\u00BB\u00A0: non\u00A0!"},
         {"nor behind Polish words of one letter", u"a w\u00A0domu", u"a w\u00A0domu"},
         {"nor in Japanese, Mongolian and Ogham",
          u"\u3000\u3000\u65E5\u672C ab\u3000c \u1824\u202F\u1824 \u1681\u1680\u1682",
          u"\u3000\u3000\u65E5\u672C ab c \u1824\u202F\u1824 \u1681\u1680\u1682"}},
        usual);
}

TEST(CharacterCleaning, LeavesWhatScriptsNeed) {
    for (
        const View text : {
            View(
                u"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645 PDF\u200C\u0647\u0627"), // Persian
            View(u"\u0644\u0650\u200D VLC, \u200D\u0647\u200D"), // Arabic
            View(u"\u0915\u094D\u200D\u0937 \u0930\u094D\u200D\u092F "
                 u"\u0930\u200D\u094D\u092F"),                                // Hindi
            View(u"\u0DC1\u0DCA\u200D\u0DBB\u0DD3 \u0DBD\u0D82\u0D9A\u0DCF"), // Sinhala
            View(u"\u05D0\u05B8\u034F\u05B4 \u200F(1)\u200E, \u202Ahttp://a\u202C \u202B%u "
                 u"\u05D0"),                                                       // Hebrew
            View(u"\u1780\u17B6\u179A\u200B\u1792\u17D2\u179C\u17BE\u00A0\u17D4"), // Khmer
            View(u"\u1820\u180B\u180E\u1820 \u115F\u1161"), // Mongolian, old Hangul
            View(u"\u8FBB\U000E0100\u6F22\uFE00"),          // variants of ideographs
        }) {
        const std::u16string given(text);
        EXPECT_EQ(reference::escaped(usual(given)), reference::escaped(given));
    }
}

TEST(CharacterCleaning, NarrowsAndMakesMarksPlain) {
    expectRows({{"letters, digits and addresses",
                 u"\uFF21\uFF22\uFF23\uFF11\uFF12\uFF1A\uFF13 \uFF41\uFF20\uFF42\uFF0E\uFF43",
                 u"ABC12:3 a@b.c"},
                {"not the marks of Chinese", u"\u4F60\uFF0C\uFF08\uFF21\uFF09\uFF01",
                 u"\u4F60\uFF0C\uFF08A\uFF09\uFF01"}},
               [](auto text) { return with(extras[0], text); });
    expectRows({{"one character for letter and mark", u"e\u0301\u00A0\u1112\u1161\u11AB \u0340",
                 u"\u00E9 \uD55C \u0300"}},
               [](auto text) { return with(extras[1], text); });
    expectRows(
        {{"quotes, dots, hyphens", u"\u201CIt\u2019s\u2026\u201D non\u2011stop 1\u20132 \u22121",
          u"\"It's...\" non-stop 1-2 -1"},
         {"a dash between words stands apart",
          u"a\u2014b, **c**\u2014d \u2014 e \u2014\u201Cf\u2014\u201D",
          u"a - b, **c** - d - e - \"f-\""},
         {"at the begin of a line it begins no list", u"\u2014 Yes.\n1\u20142", u"-- Yes.\n1-2"},
         {"in a dialogue", u"\u2014\u00BFYa? \u2014dijo\u2014.",
          u"\u2014\u00BFYa? \u2014dijo\u2014."},
         {"not in Chinese", u"\u201C\u4F60\u201D\u2014\u2014\u2026\u2026",
          u"\u201C\u4F60\u201D\u2014\u2014\u2026\u2026"}},
        [](auto text) { return with(extras[2], text); });
}

TEST(CharacterCleaning, TakesMarkdownOut) {
    expectRows({{"a key of a telephone is none", u"*\uFE0F\u20E3 a*", u"*\uFE0F\u20E3 a*"},
                {"bold, emphasis, code", u"**a b** and *c*, `d` ***e***: \u8FD9**\u91CD**\u8981",
                 u"a b and c, d e: \u8FD9\u91CD\u8981"},
                {"headings and lists", u"## Words ##\n- a\n  * b\n      - c\n1. d\n# **x**",
                 u"Words\n\u2022 a\n  \u25E6 b\n      \u2023 c\n1. d\nx"},
                {"a fence", u"a\n```python\nx = 1\n```\nb", u"a\nx = 1\nb"},
                {"not where its code would be taken for marks",
                 u"```\n# x\n```\n~~~\n- a\n~~~\n`a*b*c` `` ` `` `# x`",
                 u"```\n# x\n```\n~~~\n- a\n~~~\n`a*b*c` `` ` `` # x"},
                {"a line that begins with code", u"`# x` y", u"`# x` y"},
                {"a fence without an end", u"```\n**a**", u"```\n**a**"},
                {"arithmetics, file names, rules, tags",
                 u"2 * 3 * 4, 2**3**4, *.c and *.h, a/**/b/**/c, /*d*/\n* * *\n***\n#tag \\**a**",
                 u"2 * 3 * 4, 2**3**4, *.c and *.h, a/**/b/**/c, /*d*/\n* * *\n***\n#tag \\**a**"}},
               [](auto text) { return with(extras[3], text); });
}

TEST(CharacterCleaning, EachClassHasASwitchAndACount) {
    // One character for each class, in their order.
    constexpr View text =
        u"\x01\U000E0041\uE000\u00ADa\uFE0F\u200E\u200B\uFB01\uFF21\u2003e\u0301\n\u2026\n*b*";
    CleaningOptions options;
    for (const CharacterClass &row : characterClasses()) {
        options.*row.otherwise = row.usual;
    }
    EXPECT_EQ(cleanCharacters(std::u16string(text), options), text) << "all of them kept";
    for (const CharacterClass &row : characterClasses()) {
        options.*row.otherwise = !row.usual;
        std::size_t count = 0;
        const std::u16string alone = row.clean(std::u16string(text), count);
        EXPECT_EQ(cleanCharacters(std::u16string(text), options), alone) << row.name;
        EXPECT_NE(alone, text) << row.name;
        EXPECT_EQ(count, row.name == "markdown" ? 2 : 1) << row.name;
        options.*row.otherwise = row.usual;
    }
}

TEST(CharacterCleaning, ASecondRunChangesNothing) {
    const auto tokens = reference::tokensOf(
        u"a|b|e|1|2| | |\n|\r\n|\n\n|\t|*|**|***|`|``|```|# |#|- |* "
        u"|-|:|?|!|;|%|=|(|<|\u00AB|\u00BB|\u00A0|\u202F|"
        u"\u2009|\u2003|\u3000|\u2014|\u2013|\u2026|\u201C|\u201D|\u2019|\u00AD|\u200B|\u200C|"
        u"\u200D|\u2060|\uFEFF|\u034F|"
        u"\u200E|\u200F|\u202A|\u202B|\u202C|\u202E|\u2066|\u2068|\u2069|\u05D0|\u0645|\u0650|"
        u"\u0915|\u094D|\u17B6|\u1820|"
        u"\u180B|\u180E|\u115F|\u1112|\u1161|\u11AB|\u0301|\u0323|\u212B|\u1FEF|\u037E|\u2000|"
        u"\uFF21|\uFF1A|\uFF11|"
        u"\uFF0C|\u4F60|\uFB01|\u2764|\uFE0F|\uFE0E|\u20E3|\U0001F468|\U0001F3FB|\U0001F3F4|"
        u"\U000E0067|\U000E007F|\U000E0101|"
        u"\u0085|\b|\x1B|\x1B[|m|\uE000|\uF0B7|~~~|_|\\|/|0|\u2800|\u3164",
        u'|');
    reference::Random random(40);
    for (int round = 0; round < 20'000; ++round) {
        CleaningOptions options;
        for (const CharacterClass &row : characterClasses()) {
            options.*row.otherwise = random.oneIn(3) ? row.usual : !row.usual;
        }
        const std::u16string given = random.text(tokens);
        const std::u16string once = cleanCharacters(given, options);
        ASSERT_EQ(reference::escaped(cleanCharacters(once, options)), reference::escaped(once))
            << "round " << round << ", from " << reference::escaped(given);
    }
}

// --- against the standard's own files

constexpr char folder[] = "/usr/share/unicode/";

std::string contentOf(const std::string &name) {
    std::stringstream content;
    content << std::ifstream(folder + name).rdbuf();
    return content.str();
}

// Of Debian's package unicode-data, which is of the version that the tables are made from.
class UnicodeFiles : public testing::Test {
  protected:
    void SetUp() override {
        if (contentOf("emoji/emoji-test.txt").find("# Version: 15.0") == std::string::npos) {
            GTEST_SKIP() << "no files of Unicode 15 in " << folder;
        }
    }
};

std::u16string charactersOf(const std::string &codes) {
    std::u32string characters;
    std::istringstream words(codes);
    for (std::string word; words >> word;) {
        characters.push_back(static_cast<char32_t>(std::stoul(word, nullptr, 16)));
    }
    std::u16string text;
    for (const char32_t character : characters) {
        if (character > 0xFFFF) {
            text.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
            text.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
        } else {
            text.push_back(static_cast<char16_t>(character));
        }
    }
    return text;
}

// The fields of each row, which ";" separates.
std::vector<std::vector<std::string>> rowsOf(const std::string &content) {
    std::vector<std::vector<std::string>> rows;
    std::istringstream lines(content);
    for (std::string line; std::getline(lines, line);) {
        line.resize(std::min(line.find('#'), line.size()));
        if (line.empty() || line[0] == '@' || line.find(';') == std::string::npos) {
            continue;
        }
        std::istringstream fields(line);
        rows.emplace_back();
        for (std::string field; std::getline(fields, field, ';');) {
            rows.back().push_back(field);
        }
    }
    return rows;
}

TEST_F(UnicodeFiles, NoSequenceOfTheStandardIsHarmed) {
    std::size_t qualified = 0;
    for (const char *const name :
         {"emoji/emoji-test.txt", "emoji/emoji-sequences.txt", "emoji/emoji-zwj-sequences.txt",
          "emoji/emoji-variation-sequences.txt", "StandardizedVariants.txt"}) {
        for (const auto &row : rowsOf(contentOf(name))) {
            if (row[0].find("..") != std::string::npos) {
                continue; // single characters
            }
            const std::u16string sequence = charactersOf(row[0]);
            qualified += row[1].find("fully-") != std::string::npos ||
                         row[1].find("component") != std::string::npos;
            for (const std::u16string &text :
                 {sequence, u"a" + sequence + u" b", sequence + sequence}) {
                ASSERT_EQ(reference::escaped(usual(text)), reference::escaped(text)) << name;
            }
        }
    }
    EXPECT_EQ(qualified, 3664u);
}

TEST_F(UnicodeFiles, OnlySequencesOfTheStandardKeepASelector) {
    std::vector<std::u16string> known;
    for (const char *const name :
         {"emoji/emoji-variation-sequences.txt", "StandardizedVariants.txt"}) {
        for (const auto &row : rowsOf(contentOf(name))) {
            known.push_back(charactersOf(row[0]));
        }
    }
    std::ranges::sort(known);
    for (char32_t base = 0x21; base < 0x30000; ++base) {
        for (char32_t selector = 0xFE00; selector <= 0xFE0F; ++selector) {
            if (!text::isVariationSequence(base, selector)) {
                continue;
            }
            std::ostringstream codes;
            codes << std::hex << static_cast<std::uint32_t>(base) << ' '
                  << static_cast<std::uint32_t>(selector);
            ASSERT_TRUE(std::ranges::binary_search(known, charactersOf(codes.str())))
                << codes.str();
        }
    }
}

TEST_F(UnicodeFiles, ComposesAsTheStandardsTestSays) {
    const std::string command = std::string("bzip2 -dc ") + folder + "NormalizationTest.txt.bz2";
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(popen(command.c_str(), "r"), pclose);
    std::string content;
    std::array<char, 4096> buffer{};
    while (const std::size_t size = fread(buffer.data(), 1, buffer.size(), pipe.get())) {
        content.append(buffer.data(), size);
    }
    CleaningOptions options;
    for (const CharacterClass &row : characterClasses()) {
        options.*row.otherwise = row.usual;
    }
    options.udCleanCharactersCompose = true;
    const auto composed = [&](const std::string &codes) {
        return reference::escaped(cleanCharacters(charactersOf(codes), options));
    };
    const auto rows = rowsOf(content);
    ASSERT_GT(rows.size(), 19'000u);
    for (const auto &row : rows) { // source; NFC; NFD; NFKC; NFKD
        const std::string nfc = reference::escaped(charactersOf(row[1]));
        ASSERT_EQ(composed(row[0]), nfc) << row[0];
        ASSERT_EQ(composed(row[1]), nfc) << row[1];
        ASSERT_EQ(composed(row[2]), nfc) << row[2];
    }
}

} // namespace
} // namespace nerlo::engine
