// Rules for addresses from files that anybody may have written.
#include "settings/LinkRulesFile.h"

#include "engine/Links.h"
#include "storage/SafeFile.h"
#include "tests/TemporaryFolder.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace nerlo::settings {
namespace {

TEST(LinkRulesFile, IsReadAsItIsMeantOrRefused) {
    const auto ofProvider = [](const std::string &members) {
        return R"({"providers": {"shop": {)" + members + "}}}";
    };
    const struct {
        std::string json;
        std::string error;
    } rows[] = {
        {ofProvider(R"("urlPattern": ".*", "rules": ["trk"], "forceRedirection": true)"), ""},
        {R"({"providers": {}, "more": [1, {"a": null}]})", ""},
        {"", "invalid JSON at byte 1"},
        {"[]", "no object \"providers\""},
        {R"({"providers": []})", "no object \"providers\""},
        {"\xFF", "invalid JSON at byte 1"},
        {ofProvider(""), "provider \"shop\": no \"urlPattern\""},
        {ofProvider(R"("urlPattern": 3)"),
         "provider \"shop\": a pattern is empty, too long or no text"},
        {ofProvider(R"("urlPattern": "a", "rules": "b")"),
         "provider \"shop\": \"rules\" is no list"},
        {ofProvider(R"("urlPattern": "a", "rawRules": ["(b"])"),
         "provider \"shop\": a pattern has an error: \"(b\""},
        {ofProvider(R"("urlPattern": "a", "completeProvider": "yes")"),
         "provider \"shop\": \"completeProvider\" is neither true nor false"},
        {std::string(1'000'000, '['), "values are nested too deeply"},
        {"[1e999]", "a number is out of range"},
    };
    for (const auto &row : rows) {
        const ParsedLinkRules parsed = parseLinkRules(row.json);
        EXPECT_EQ(parsed.error, row.error) << row.json.substr(0, 80);
        EXPECT_EQ(parsed.rules == nullptr, !row.error.empty());
    }
}

TEST(LinkRulesFile, ThatChangesIsReadAgain) {
    const test::TemporaryFolder folder;
    const std::string path = folder / "rules.json";
    const std::u16string name = text::utf8ToUtf16(path).text;
    EXPECT_EQ(readLinkRules(u"").error, "");
    EXPECT_EQ(readLinkRules(name).error, path + ": no such file");
    for (const std::string rule : {"one", "two"}) {
        storage::replaceFile(path, R"({"providers": {"a": {"urlPattern": ".", "rules": [")" + rule +
                                       R"("]}}})");
        const auto rules = readLinkRules(name).rules;
        ASSERT_TRUE(rules);
        EXPECT_EQ(engine::cleanLinks(u"https://e.org/?one=1&two=2", rules.get()),
                  rule == "one" ? u"https://e.org/?two=2" : u"https://e.org/?one=1");
    }
    EXPECT_EQ(readLinkRules(u"/dev/zero").error, "/dev/zero: File too large");
}

} // namespace
} // namespace nerlo::settings
