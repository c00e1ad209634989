// The snapshot of the options, the operation table and the order of the pipeline.
#include "engine/Operations.h"
#include "tests/engine/Rows.h"

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
    EXPECT_EQ(operations().size(), 38u);
    EXPECT_EQ(findOperation("33")->name, "join-lines");
    EXPECT_EQ(findOperation("38"), nullptr);
    EXPECT_EQ(findOperation("-1"), nullptr);
    EXPECT_EQ(findOperation("3x"), nullptr);
    EXPECT_EQ(findOperation(""), nullptr);
}

std::u16string clean(const PropertyDictionary &settings, std::u16string text) {
    CleaningOptions options;
    options.setAllBools(settings);
    return runPipeline(std::move(text), {options, "en_US"});
}

// EquivalenceTest knows the whole order.
TEST(Pipeline, RunsItsStepsInOrder) {
    EXPECT_EQ(clean({}, u" a  b\r\n"), u" a  b\r\n") << "nothing is on";
    EXPECT_EQ(clean({{"udChangeMultipleSpacesToSingleSpace", 1},
                     {"udChangeTabsAnd4Spaces", 1},
                     {"udChangeTabsAnd4SpacesOption", 1}},
                    u"a    b  c"),
              u"a\tb c")
        << "four spaces become a tab before spaces are collapsed";
    EXPECT_EQ(clean({{"udSort", 1},
                     {"udRemoveDuplicateLines", 1},
                     {"udAddPrefix", 1},
                     {"udPrefixTextField", u"c\n"}},
                    u"b\na\nb"),
              u"a\nb\nc")
        << "the prefix is sorted with the rest";
}

TEST(Pipeline, OneOperation) {
    CleaningOptions options;
    options.udChangeCaseOption = 3;
    EXPECT_EQ(runOperation(6, u"i", {options, "tr_TR", 108}), u"\u0130");
    EXPECT_EQ(runOperation(6, u"i", {options, "tr_TR", 107}), u"I") << "no locale yet";
    for (const std::int32_t unknown : {40, -1, statisticsOperation}) {
        EXPECT_EQ(runOperation(unknown, u" a ", {options, "en_US"}), u" a ");
    }
}

} // namespace
} // namespace nerlo::engine
