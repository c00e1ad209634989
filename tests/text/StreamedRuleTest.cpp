// Rules on a text in pieces against the same on the whole.
#include "text/StreamedRule.h"
#include "text/Replace.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace nerlo::text {
namespace {

TEST(StreamedRule, GivesTheSameInAnyPieces) {
    std::mt19937 random(1);
    const auto below = [&](std::size_t bound) { return random() % bound; };
    const auto some = [&](std::size_t most) {
        std::u16string units;
        for (std::size_t count = below(most + 1); count > 0; --count) {
            units.push_back(static_cast<char16_t>(u'a' + below(2)));
        }
        return units;
    };
    const UnitSet set(u"a");
    for (int round = 0; round < 50'000; ++round) {
        const std::u16string find = some(5);
        const std::u16string replacement = some(5);
        const std::u16string text = some(30);
        const bool isRun = below(4) == 0;
        StreamedRule rule =
            isRun ? StreamedRule::run(set, replacement) : StreamedRule::literal(find, replacement);
        const std::u16string expected =
            isRun ? replaceRuns(text, set, replacement) : replaceAll(text, find, replacement);
        std::u16string actual;
        for (std::size_t at = 0, size = 0; at < text.size(); at += size) {
            size = 1 + below(4);
            rule.feed(std::u16string_view(text).substr(at, size), actual);
            ASSERT_TRUE(expected.starts_with(actual)) << "told too early, in round " << round;
        }
        rule.finish(actual);
        ASSERT_TRUE(actual == expected) << "round " << round;
    }
}

} // namespace
} // namespace nerlo::text
