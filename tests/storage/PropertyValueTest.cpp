#include "storage/PropertyValue.h"

#include <gtest/gtest.h>

#include <limits>

namespace nerlo::storage {
namespace {

TEST(PropertyValue, ReadsTextsAsThePlatformsStringsDo) {
    struct Row {
        const char *shows;
        const char16_t *text;
        bool asBool;
        std::int64_t asInteger;
    };
    const Row rows[] = {
        {"empty", u"", false, 0},
        {"one", u"1", true, 1},
        {"zero", u"0", false, 0},
        {"a leading zero hides the digits after it from the boolean", u"01", false, 1},
        {"white space is skipped", u" \t7 seconds", true, 7},
        {"yes and true count by their first letter", u"yes", true, 0},
        {"no is no", u"no", false, 0},
        {"a sign is for the integer only", u"-3", false, -3},
        {"plus", u"+12", false, 12},
        {"too large is clamped", u"99999999999999999999", true,
         std::numeric_limits<std::int64_t>::max()},
        {"too small is clamped", u"-99999999999999999999", false,
         std::numeric_limits<std::int64_t>::min()},
        {"the smallest number itself", u"-9223372036854775808", false,
         std::numeric_limits<std::int64_t>::min()},
    };
    for (const Row &row : rows) {
        const PropertyValue value(row.text);
        EXPECT_EQ(value.boolValue(), row.asBool) << row.shows;
        EXPECT_EQ(value.integerValue(), row.asInteger) << row.shows;
    }
}

TEST(PropertyValue, ReadsNumbersAndLeavesContainersAlone) {
    EXPECT_TRUE(PropertyValue(-1).boolValue());
    EXPECT_TRUE(PropertyValue(0.5).boolValue());
    EXPECT_EQ(PropertyValue(2.9).integerValue(), 2);
    EXPECT_EQ(PropertyValue(1e300).integerValue(), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(PropertyValue(true).integerValue(), 1);
    EXPECT_EQ(PropertyValue(42).stringValue(), u"42");
    EXPECT_FALSE(PropertyValue(PropertyArray{1}).boolValue());
    EXPECT_EQ(PropertyValue(PropertyDictionary{}).stringValue(), u"");
}

TEST(PropertyDictionary, KeepsTheOrderInWhichKeysWereFirstSet) {
    PropertyDictionary dictionary{{"b", 1}, {"a", 2}};
    dictionary.set("c", 3);
    dictionary.set("b", 4);
    EXPECT_TRUE(dictionary.remove("a"));
    EXPECT_FALSE(dictionary.remove("a"));
    EXPECT_EQ(dictionary, (PropertyDictionary{{"b", 4}, {"c", 3}}));
    EXPECT_EQ(dictionary.find("a"), nullptr);
}

} // namespace
} // namespace nerlo::storage
