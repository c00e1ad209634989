// The snapshot of the options, the operation table and the order of the pipeline.
#include "engine/Operations.h"
#include "tests/engine/Rows.h"

#include <algorithm>
#include <set>

namespace nerlo::engine {
namespace {

using storage::PropertyDictionary;
using storage::PropertyValue;

TEST(CleaningOptions, AreFilledAsAWhole) {
    CleaningOptions options;
    options.setAllBools({{"udSort", 1},
                         {"udStatistics", u"Yes"},
                         {"udChangeProperty10", true},
                         {"udChangeProperty1ToTextField", u"one"},
                         {"udSortCustomSeparator", u"--"},
                         {"udPrefixTextField", 12},
                         {"udSortOption", u"3 or so"},
                         {"udRemoveAllTabs", u"no"},
                         {"sOnlyOneProfile", 1},
                         {"sFindAndReplaceItems", storage::PropertyArray{}}});
    EXPECT_TRUE(options.kCheckSetters);
    EXPECT_TRUE(options.udSort);
    EXPECT_TRUE(options.udStatistics);
    EXPECT_TRUE(options.udChangeProperty[9]);
    EXPECT_FALSE(options.udChangeProperty[0]);
    EXPECT_EQ(options.udChangePropertyToTextField[0].stringValue(), u"one");
    EXPECT_EQ(options.udSortCustomSeparatorTextField.stringValue(), u"--");
    EXPECT_EQ(options.udPrefixTextField, PropertyValue(12)) << "a number stays a number";
    EXPECT_EQ(options.udSortOption, 3);
    EXPECT_FALSE(options.udRemoveAllTabs);
    EXPECT_TRUE(options.udOnlyOneProfile);
    EXPECT_TRUE(options.udFindAndReplaceItems.has_value());

    options.setAllBools({});
    CleaningOptions empty;
    empty.kCheckSetters = true;
    EXPECT_EQ(options, empty) << "no trace of the fill before";
}

TEST(Operations, HaveNamesOfTheirOwnAndKeys) {
    std::set<std::string_view> names;
    std::set<std::string_view> keys;
    for (const Operation &operation : operations()) {
        EXPECT_TRUE(names.insert(operation.name).second) << operation.name;
        EXPECT_TRUE(keys.insert(operation.hotKey).second) << operation.hotKey;
        EXPECT_EQ(findOperation(operation.name), &operation);
    }
    EXPECT_EQ(findOperation("33")->name, "join-lines");
    EXPECT_EQ(findOperation("9999"), nullptr);
    EXPECT_EQ(findOperation("-1"), nullptr);
    EXPECT_EQ(findOperation("3x"), nullptr);
    EXPECT_EQ(findOperation(""), nullptr);
}

std::vector<std::int32_t> switchedOn(const PropertyDictionary &settings) {
    CleaningOptions options;
    options.setAllBools(settings);
    std::vector<std::int32_t> indices;
    for (const Operation *operation : operationsSwitchedOn(options)) {
        indices.push_back(operation->index);
    }
    return indices;
}

TEST(Pipeline, EachSwitchRunsTheOperationThatIsNamedLikeIt) {
    PropertyDictionary all;
    for (const Operation &operation : operations()) {
        std::string key(operation.hotKey);
        if (key == "sRemoveAllSpacesTabsAndNewLines") {
            key = "udRemoveSpacesTabsAndNewLines";
        } else if (key != "sFindReplaceBool") {
            key.replace(0, 1, "ud");
        }
        const std::vector<std::int32_t> itself{operation.index};
        EXPECT_EQ(switchedOn({{key, 1}}),
                  operation.index == statisticsOperation ? std::vector<std::int32_t>() : itself)
            << key;
        all.set(key, 1);
    }
    EXPECT_EQ(switchedOn({{"udRemoveHyphensAll", 1}}), std::vector<std::int32_t>{34});
    // These keep their order, whatever else comes between them.
    const std::vector<std::int32_t> order{39, 38, 0,  1,  2,  3,  34, 5,  18, 33, 6,  7,  8,
                                          9,  10, 11, 12, 22, 13, 14, 15, 26, 27, 28, 29, 30,
                                          31, 32, 37, 16, 17, 19, 20, 21, 4,  35, 36, 24, 23};
    auto found = switchedOn(all);
    std::erase_if(found,
                  [&](auto index) { return std::ranges::find(order, index) == order.end(); });
    EXPECT_EQ(found, order);
    EXPECT_EQ(switchedOn({{"udChangeMultipleSpacesToSingleSpace", 1},
                          {"udChangeTabsAnd4Spaces", 1},
                          {"udChangeTabsAnd4SpacesOption", 1}}),
              (std::vector<std::int32_t>{17, 16}))
        << "four spaces become a tab before spaces are collapsed";
}

TEST(Pipeline, OneOperation) {
    CleaningOptions options;
    options.udChangeCaseOption = 3;
    EXPECT_EQ(runOperation(6, u"i", {options, "tr_TR", 108}), u"\u0130");
    EXPECT_EQ(runOperation(6, u"i", {options, "tr_TR", 107}), u"I") << "no locale yet";
    for (const std::int32_t unknown : {9999, -1, statisticsOperation}) {
        EXPECT_EQ(runOperation(unknown, u" a ", {options, "en_US"}), u" a ");
    }
}

} // namespace
} // namespace nerlo::engine
