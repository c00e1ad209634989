#include "text/Utf.h"

#include <gtest/gtest.h>

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <random>

namespace nerlo::text {
namespace {

using namespace std::string_literals;

// One character after the other, by ICU's macro, which narrows integers.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
Utf16Result decodedSlowly(std::string_view bytes) {
    Utf16Result result;
    const auto size = static_cast<std::int32_t>(bytes.size());
    for (std::int32_t at = 0; at < size;) {
        const auto start = static_cast<std::size_t>(at);
        UChar32 character = 0;
        U8_NEXT(bytes.data(), at, size, character);
        if (character < 0) {
            result.invalidAt = start;
            break;
        }
        if (character > 0xFFFF) {
            result.text.push_back(U16_LEAD(character));
        }
        result.text.push_back(character > 0xFFFF ? U16_TRAIL(character)
                                                 : static_cast<char16_t>(character));
    }
    return result;
}
#pragma GCC diagnostic pop

void expectSame(const std::string &bytes, std::size_t cut) {
    const Utf16Result expected = decodedSlowly(bytes);
    const Utf16Result whole = utf8ToUtf16(bytes);
    ASSERT_EQ(whole.text, expected.text);
    ASSERT_EQ(whole.invalidAt, expected.invalidAt);
    Utf8Decoder decoder;
    std::u16string text;
    for (std::size_t at = 0; at < bytes.size(); at += cut) {
        decoder.decode(std::string_view(bytes).substr(at, cut), text);
    }
    decoder.finish();
    ASSERT_EQ(decoder.invalidAt(), expected.invalidAt) << "in pieces of " << cut;
    ASSERT_EQ(text, expected.text) << "in pieces of " << cut;
    Utf8Checker checker;
    std::string characters;
    for (std::size_t at = 0; at < bytes.size(); at += cut) {
        for (std::string_view rest = std::string_view(bytes).substr(at, cut); !rest.empty();) {
            characters += checker.next(rest);
        }
    }
    checker.finish();
    ASSERT_EQ(checker.invalidAt(), expected.invalidAt) << "unread, in pieces of " << cut;
    ASSERT_EQ(characters, bytes.substr(0, expected.invalidAt.value_or(bytes.size())));
}

TEST(Utf, DecodesEveryShortSequence) {
    for (std::uint32_t lead = 0x7F; lead <= 0xFF; ++lead) {
        for (const std::uint32_t second :
             {0x00u, 0x7Fu, 0x80u, 0x8Fu, 0x90u, 0x9Fu, 0xA0u, 0xBFu, 0xC0u, 0xFFu}) {
            for (const std::uint32_t third : {0x00u, 0x7Fu, 0x80u, 0xBFu, 0xC0u}) {
                for (const std::uint32_t fourth : {0x00u, 0x80u, 0xBFu, 0xC2u}) {
                    std::string bytes("ab");
                    for (const std::uint32_t byte : {lead, second, third, fourth}) {
                        bytes.push_back(static_cast<char>(byte));
                        ASSERT_NO_FATAL_FAILURE(expectSame(bytes, 1));
                    }
                }
            }
        }
    }
}

TEST(Utf, DecodesAndEncodesRandomTexts) {
    std::mt19937 random(1);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const std::string pieces[] = {"a",
                                  "text of ASCII only, ",
                                  "\xC3\xA9",
                                  "\xD0\xB6\xD0\xB8",
                                  "\xE6\x97\xA5",
                                  "\xF0\x9F\x8E\x89",
                                  "\n",
                                  "\0"s};
    for (int round = 0; round < 4000; ++round) {
        std::string bytes;
        for (std::size_t i = below(round % 50 == 0 ? 20'000 : 60); i > 0; --i) {
            bytes += pieces[below(std::size(pieces))];
        }
        ASSERT_NO_FATAL_FAILURE(expectSame(bytes, 1 + below(40)));
        ASSERT_EQ(utf16ToUtf8(utf8ToUtf16(bytes).text), bytes);
    }
}

// The vector code looks at blocks, in which a mistake may stand anywhere, at their edges too.
TEST(Utf, FindsTheMistakesThatICUFinds) {
    std::mt19937 random(2);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const std::string characters[] = {"a",
                                      "\xC2\x80",
                                      "\xD0\xB6",
                                      "\xE0\xA0\x80",
                                      "\xED\x9F\xBF",
                                      "\xEF\xBF\xBF",
                                      "\xF0\x90\x80\x80",
                                      "\xF4\x8F\xBF\xBF",
                                      "some words of ASCII"};
    constexpr int wanted = 200'000;
    int malformed = 0;
    for (int round = 0; malformed < wanted; ++round) {
        ASSERT_LT(round, 2 * wanted);
        std::string bytes;
        for (std::size_t i = 1 + below(40); i > 0; --i) {
            bytes += characters[below(below(2) == 0 ? 3 : std::size(characters))];
        }
        const std::size_t at = below(bytes.size());
        switch (below(3)) {
        case 0:
            bytes[at] = static_cast<char>(0x80 + below(0x80));
            break;
        case 1:
            bytes.erase(at, 1);
            break;
        default:
            bytes.insert(at, 1, static_cast<char>(0x80 + below(0x80)));
        }
        ASSERT_NO_FATAL_FAILURE(expectSame(bytes, 1 + below(100)));
        malformed += utf8ToUtf16(bytes).invalidAt ? 1 : 0;
    }
}

TEST(Utf, ReplacesUnpairedSurrogates) {
    constexpr char16_t high = 0xD83C;
    constexpr char16_t low = 0xDF89;
    const std::string mark = "\xEF\xBF\xBD";
    EXPECT_EQ(utf16ToUtf8(std::u16string{high}), mark);
    EXPECT_EQ(utf16ToUtf8(std::u16string{low, high}), mark + mark);
    EXPECT_EQ(utf16ToUtf8(std::u16string{high, u'a', high, low}), mark + "a\xF0\x9F\x8E\x89");
    std::u16string text(20'000, u'\u65E5');
    text.insert(9'999, std::u16string{high, low});
    EXPECT_EQ(utf8ToUtf16(utf16ToUtf8(text)).text, text) << "across the blocks";
}

} // namespace
} // namespace nerlo::text
