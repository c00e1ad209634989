#include "cli/Findings.h"
#include "cli/ChangeWords.h"
#include "tests/cli/RunNerlo.h"
#include "tests/reference/RandomText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <filesystem>

namespace nerlo::cli {

namespace {

using reference::escaped;
using reference::Random;

TEST(AText, IsShownSoThatNothingHides) {
    const struct {
        std::u16string_view text;
        const char *shown;
    } rows[] = {
        {u"ab", "\"ab\""},
        {u" ", "U+0020"},
        {u" a b ", "U+0020 \"a b\" U+0020"},
        {u"a  b", "\"a\" U+0020 U+0020 \"b\""},
        {u"\t\u00A0", "U+0009 U+00A0"},
        {u"x\u200By\u001B[0m", "\"x\" U+200B \"y\" U+001B \"[0m\""},
        {u"\uFE0F\u3164\u202E", "U+FE0F U+3164 U+202E"},
        {u"\U0001F389\U000E0041", "\"\U0001F389\" U+E0041"},
        {u"0123456789012345678901234567890123456789a",
         "\"0123456789012345678901234567890123456789\u2026\""},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(shown(row.text), row.shown) << escaped(row.text);
    }
    // A lone half of a pair is no character of UTF-8.
    EXPECT_EQ(shown(std::u16string(1, char16_t{0xD83C})), "U+D83C");
}

TEST(APlace, IsCountedInLinesAndCharacters) {
    const std::u16string_view text = u"a\U0001F389b\r\nc\rd\n";
    const struct {
        std::size_t offset, line, column, lineByFeeds;
    } rows[] = {{0, 1, 1, 1}, {3, 1, 3, 1}, {5, 1, 5, 1}, {6, 2, 1, 2},
                {7, 2, 2, 2}, {8, 3, 1, 2}, {10, 4, 1, 3}};
    settings::TextPosition position;
    for (const auto &row : rows) {
        position.moveTo(text, row.offset);
        EXPECT_EQ(position.line, row.line) << row.offset;
        EXPECT_EQ(position.column, row.column) << row.offset;
        EXPECT_EQ(position.lineByFeeds, row.lineByFeeds) << row.offset;
    }
}

TEST(Findings, AreThereExactlyWhenTheTextChanges) {
    Random random(31);
    for (int round = 0; round < 2000; ++round) {
        const engine::CleaningOptions options = random.options();
        const engine::CleaningContext context{options, "en_US"};
        const std::u16string source = random.text(reference::plainTokens());
        const engine::Trace trace = engine::tracePipeline(source, context, SIZE_MAX);
        const bool kept = source.ends_with(u'\n') && !trace.text.ends_with(u'\n');
        const std::u16string ending = kept && random.oneIn(2) ? u"\n" : u"";
        const std::vector<Finding> findings = findingsOf(source, trace, ending);
        ASSERT_EQ(findings.empty(), trace.text + ending == source) << escaped(source);
        for (const Finding &finding : findings) {
            ASSERT_LE(finding.begin.offset, finding.end.offset);
            ASSERT_LE(finding.end.offset, source.size());
        }
    }
}

TEST(Findings, LeaveOutWhatALaterStepPutsBack) {
    engine::CleaningOptions options;
    options.udRemoveAllTabs = true;
    options.udAddSuffix = true;
    options.udSuffixTextField = u"\t";
    options.udChangeMultipleSpacesToSingleSpace = true;
    const std::u16string source = u"a  b\t";
    const engine::Trace trace =
        engine::tracePipeline(source, {.options = options, .locale = "en_US"}, SIZE_MAX);
    const std::vector<Finding> findings = findingsOf(source, trace, u"");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].step->operation->name, "collapse-spaces");
}

// Options of which one is on.
std::string onlyWith(const char *key) {
    return "<plist version='1.0'><dict><key>" + std::string(key) +
           "</key><integer>1</integer></dict></plist>";
}

test::Ended check(test::Arguments arguments, const std::string &input = {}) {
    arguments.insert(arguments.begin(), "check");
    return test::NerloRun{.arguments = arguments, .input = input, .environment = {}, .before = {}}
        .toEnd();
}

TEST(Check, SaysWhatACleanInPlaceDoes) {
    const test::TemporaryFolder folder;
    Random random(32);
    for (int round = 0; round < 30; ++round) {
        const std::string file = folder.path() + "/text";
        const std::string text = nerlo::text::utf16ToUtf8(random.text(reference::plainTokens())) +
                                 (random.oneIn(2) ? "\n" : "");
        test::putBytes(file, text);
        const test::Ended told = check({file});
        EXPECT_EQ(test::bytesOf(file), text);
        const test::Ended fixed = check({"--fix", file});
        EXPECT_EQ(told.status, test::bytesOf(file) == text ? 0 : 1) << told.err;
        EXPECT_EQ(told.out.empty(), test::bytesOf(file) == text);
        EXPECT_EQ(fixed.out, told.out);
        const std::string cleaned = test::bytesOf(file);
        test::putBytes(file, text);
        test::NerloRun{
            .arguments = {"clean", "-i", file}, .input = {}, .environment = {}, .before = {}}
            .toEnd();
        EXPECT_EQ(test::bytesOf(file), cleaned);
    }
}

TEST(Check, TellsInFourForms) {
    const test::TemporaryFolder folder;
    test::putBytes(folder.path() + "/nerlo.plist", onlyWith("udChangeMultipleSpacesToSingleSpace"));
    const std::string file = folder.path() + "/a,b:c%\n::d.txt";
    test::putBytes(file, "\xEF\xBB\xBF"
                         "fine\nline  two\n");
    const auto json = nlohmann::json::parse(check({"--format", "json", file}).out);
    ASSERT_EQ(json.size(), 1U);
    EXPECT_EQ(json[0]["path"], file);
    EXPECT_EQ(json[0]["operation"], "collapse-spaces");
    EXPECT_EQ(json[0]["line"], 2);
    EXPECT_EQ(json[0]["column"], 6);
    EXPECT_EQ(json[0]["endColumn"], 7);
    EXPECT_EQ(json[0]["removed"], " ");
    EXPECT_EQ(json[0]["added"], "");

    // The members that the schema requires, and those that place a result.
    const auto sarif = nlohmann::json::parse(check({"--format", "sarif", file}).out);
    EXPECT_EQ(sarif["version"], "2.1.0");
    const auto &run = sarif["runs"].at(0);
    EXPECT_EQ(run["tool"]["driver"]["name"], "nerlo");
    EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
    for (const auto &rule : run["tool"]["driver"]["rules"]) {
        EXPECT_TRUE(rule["id"].is_string() && rule["shortDescription"]["text"].is_string());
    }
    const auto &result = run["results"].at(0);
    EXPECT_EQ(result["ruleId"], "collapse-spaces");
    EXPECT_EQ(result["message"]["text"], "removes U+0020");
    const auto &place = result["locations"].at(0)["physicalLocation"];
    const std::string uri = place["artifactLocation"]["uri"];
    EXPECT_TRUE(uri.starts_with("file:///") && uri.ends_with("/a%2Cb%3Ac%25%0A%3A%3Ad.txt")) << uri;
    EXPECT_EQ(
        place["region"],
        nlohmann::json({{"startLine", 2}, {"startColumn", 6}, {"endLine", 2}, {"endColumn", 7}}));

    // One line each, whatever the file is called.
    EXPECT_TRUE(
        check({file}).out.ends_with("/a,b:c%?::d.txt:2:6: removes U+0020 (collapse-spaces)\n"));
    EXPECT_TRUE(check({"--format=github", file})
                    .out.ends_with("/a%2Cb%3Ac%25%0A%3A%3Ad.txt,line=2,endLine=2,col=6,endColumn=7,"
                                   "title=collapse-spaces::removes U+0020\n"));
    for (const char *format : {"json", "sarif"}) {
        EXPECT_TRUE(nlohmann::json::parse(check({"--format", format}, "fine").out).is_structured());
    }
}

TEST(Check, TakesTheOptionsOfTheNearestFile) {
    const test::TemporaryFolder folder;
    const std::string top = folder.path();
    for (const char *made : {"/.git", "/in", "/in/deep", "/in/other", "/in/other/.git"}) {
        std::filesystem::create_directory(top + made);
    }
    test::putBytes(top + "/nerlo.plist", onlyWith("udSort"));
    test::putBytes(top + "/in/deep/nerlo.plist", onlyWith("udRemoveAllTabs"));
    const struct {
        const char *file, *text, *told;
    } rows[] = {
        {"/a", "a  b", ""},
        {"/b", "b\na", "sort-lines"},
        {"/in/c", "b\na", "sort-lines"},
        {"/in/deep/d", "b\na", ""},
        {"/in/deep/e", "a\tb", "remove-tabs"},
        {"/in/other/f", "a  b", "collapse-spaces"}, // a repository of its own
    };
    for (const auto &row : rows) {
        test::putBytes(top + row.file, row.text);
        const test::Ended ended = check({top + row.file});
        EXPECT_EQ(ended.status, *row.told == '\0' ? 0 : 1) << row.file << ended.err;
        EXPECT_NE(ended.out.find(row.told), std::string::npos) << row.file << ended.out;
    }
    EXPECT_EQ(check({"--set", "udSort=off", top + "/b"}).status, 0);
    EXPECT_EQ(check({"--options", top + "/in/deep/nerlo.plist", top + "/b"}).status, 0);
}

TEST(Check, RefusesWhatMakesNoSense) {
    const struct {
        test::Arguments arguments;
        int status;
    } rows[] = {
        {{"--format", "xml"}, 2},
        {{"--fix"}, 2},
        {{"--diff-from", "HEAD"}, 2},
        {{"--fix", "--diff-from", "HEAD", "x"}, 2},
        {{"/nowhere/at/all"}, 1},
        {{"--set", "udInsertYourPattern=on", "--set", "udInsertYourPatternTextField=("}, 2},
    };
    for (const auto &row : rows) {
        const test::Ended ended = check(row.arguments, "text");
        EXPECT_EQ(ended.status, row.status) << ended.err;
        EXPECT_NE(ended.err, "");
    }
}

} // namespace

} // namespace nerlo::cli
