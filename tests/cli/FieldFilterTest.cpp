// batch --field: which bytes of a record change, and which lines are bad; compressed input.
#include "cli/FieldFilter.h"
#include "cli/Failure.h"
#include "cli/JsonCursor.h"
#include "settings/JsonText.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/RunNerlo.h"
#include "tests/reference/RandomText.h"

#include <nlohmann/json.hpp>

#include <zlib.h>
#include <zstd.h>

namespace nerlo::test {

namespace {

using cli::FieldFilter;
using cli::OnError;
using nlohmann::json;
using reference::Random;

// Only one operation, so that a case can say what it makes of a text.
FieldFilter filterOf(std::vector<std::string> fields, const std::string &counts = "",
                     const char *operation = "collapse-spaces") {
    return FieldFilter({.fields = std::move(fields),
                        .options = {},
                        .operation = engine::findOperation(operation),
                        .locale = "en_US",
                        .onError = OnError::fail,
                        .counts = counts});
}

TEST(FieldFilter, ChangesTheTextsAlone) {
    struct Case {
        std::vector<std::string> fields;
        std::string line;
        std::string expected; // a line, or what is wrong with it behind a "!"
        std::string counts;
    };
    const Case cases[] = {
        {{"a"},
         "{ \"b\":1.50e+07,\"a\" :\"x  y\"\t,\"a\":\"\\u0078  \\/\",\"b\" : \"\\u00e9  \"}\r",
         "{ \"b\":1.50e+07,\"a\" :\"x y\"\t,\"a\":\"x /\",\"b\" : \"\\u00e9  \"}\r",
         ""},
        {{"a"},
         R"({"a":"\u0078 \/ )"
         "\u2028\"}",
         R"({"a":"\u0078 \/ )"
         "\u2028\"}",
         ""},
        {{"a"},
         "{\"a\":\"x  \u0085\u2028\u2029\u00e9\\uD800\\uD83D\\uDE00\\u0001\"}",
         "{\"a\":\"x \\u0085\\u2028\\u2029\u00e9\\ud800\U0001F600\\u0001\"}",
         ""},
        {{"d.t", "d.u.v"},
         R"({"t":"  ","d":{"t":"  ","u":{"v":"x  y","w":"  "}}})",
         R"({"t":"  ","d":{"t":" ","u":{"v":"x y","w":"  "}}})",
         ""},
        {{"m[].t", "n[][]"},
         R"({"m":[{"t":"  "},{},null,{"t":"  "}],"n":[[],["  ","  "]]})",
         R"({"m":[{"t":" "},{},null,{"t":" "}],"n":[[],[" "," "]]})",
         ""},
        {{R"(a\.b\[\])", "\u00e9"},
         R"({"a.b[]":"  ","\u00e9":"  "})",
         R"({"a.b[]":" ","\u00e9":" "})",
         ""},
        {{"[]"}, "\uFEFF[\"  \"]", "\uFEFF[\" \"]", ""},
        {{"a", "b.c"}, R"({"a":null,"b":null})", R"({"a":null,"b":null})", ""},
        {{"a"}, "", "", "n"},
        {{"a"}, "{} ", R"({"n":{"characters":0,"spaces":0,"words":0,"paragraphs":0}} )", "n"},
        {{"a", "b"},
         R"({"a":"x  y","b":"z"})",
         R"({"a":"x y","b":"z","n":{"characters":4,"spaces":1,"words":3,"paragraphs":2}})",
         "n"},
        {{"a"}, R"({"n":1})", "!\"n\" is there already", "n"},
        {{"a"}, R"({"a":5})", "!\"a\" is not a string", ""},
        {{"a.b"}, R"({"a":"b"})", "!\"a\" is not an object", ""},
        {{"a[]"}, R"({"a":{}})", "!\"a\" is not an array", ""},
        {{"a"}, "[]", "!the record is not an object", ""},
        {{"a"}, "{\"a\":\"\xff\"}", "!invalid UTF-8 at byte 6", ""},
        {{"a"}, "{\"a\":\"\",\"b\":\"\xed\xa0\x80\"}", "!invalid UTF-8 at byte 13", ""},
        {{"a"}, R"({"a":"x  y"}})", "!invalid JSON at byte 12", ""},
        {{"a"}, R"({"a":NaN})", "!invalid JSON at byte 5", ""},
    };
    for (const Case &each : cases) {
        for (const std::string end : {"", "\n"}) {
            const cli::Answers answers = filterOf(each.fields, each.counts).filter(each.line + end);
            EXPECT_EQ(answers.failed != 0 ? "!" + answers.firstError : answers.lines,
                      each.expected + (answers.failed != 0 ? "" : end))
                << each.line;
        }
    }
    const std::string deep = std::string(300000, '[') + std::string(300000, ']');
    EXPECT_TRUE(filterOf({"a"}).filter("{\"b\":" + deep + ",\"a\":\"  \"}").lines ==
                "{\"b\":" + deep + ",\"a\":\" \"}");
}

// Records put together from parts, any spelling of any text included.
TEST(FieldFilter, RandomRecordsKeepEveryOtherByte) {
    Random random(31);
    const FieldFilter filter = filterOf({"t", "d.t"}, "", "remove-tabs");
    const auto pick = [&](std::initializer_list<const char *> parts) {
        return std::string(parts.begin()[random.below(parts.size())]);
    };
    for (int round = 0; round < 5000; ++round) {
        std::string line;
        std::string expected;
        const auto both = [&](const std::string &part) {
            line += part;
            expected += part;
        };
        const auto literal = [&](const char *name) {
            both("\"" + std::string(name) + "\"" + pick({":", " :", ":\t"}));
            std::u16string text = random.text(reference::plainTokens());
            const std::string same = settings::jsonOfText(text);
            const bool clean = std::erase(text, u'\t') == 0;
            line += same;
            expected += clean ? same : settings::jsonOfText(text);
        };
        both(pick(
            {"{", "{\"a\":-0.10e5,", "{\"t\\t\":\"\\t\u00e9\",", " {\"x\":[{\"t\":\"\\t\"}, 1],"}));
        literal("t");
        both(pick({",", " , ", ",\"n\":null,\"\":{\"t\":\"\\t\"},"}) + "\"d\":{");
        literal("t");
        both(pick({"}}", "},\"t\\u0009\":true}", " } } ", ",\"e\":{}}}"}) + pick({"\n", "\r\n"}));
        const cli::Answers answers = filter.filter(line);
        ASSERT_EQ(answers.firstError, "");
        ASSERT_EQ(answers.lines, expected) << line;
    }
}

bool isJson(const std::string &line) {
    cli::JsonCursor cursor(line);
    try {
        cursor.value();
        cursor.finish();
        cli::checkUtf8(line, 0, line.size());
        return true;
    } catch (const cli::BadLine &) {
        return false;
    }
}

// The parser that reads options is the measure.
TEST(JsonCursor, TakesWhatIsJson) {
    const std::string whole =
        "{\"a\":[1,-0.5e+1,{\"\":[]}, true,false ,null,\"\\ud800\\n\u00e9\"],\"b\":{}}";
    Random random(8);
    const std::string bytes = "\"\\{}[],:0-+.eE9tfnul \t\r\n\x01\x7f\x80\xc3\xa9/";
    int good = 0;
    for (int round = 0; round < 200000; ++round) {
        std::string line = whole;
        for (std::size_t change = random.below(3); change-- > 0;) {
            const std::size_t at = random.below(line.size());
            line.replace(at, random.below(3),
                         random.oneIn(3) ? "" : std::string(1, bytes[random.below(bytes.size())]));
        }
        std::string room;
        const bool wanted = json::accept(settings::withMarkedSurrogates(line, room));
        good += wanted ? 1 : 0;
        ASSERT_EQ(isJson(line), wanted) << line;
    }
    EXPECT_GT(good, 60000);
    EXPECT_LT(good, 140000);
}

TEST(FieldPaths, MustMakeSense) {
    const std::vector<std::string> bad[] = {
        {""},    {"."},    {"a."},       {"a..b"},       {".a"},           {"a[0]"},   {"a[]b"},
        {"a\\"}, {"\xff"}, {"a", "a.b"}, {"a[].b", "a"}, {"a.b", "a[].b"}, {"[]", "a"}};
    for (const auto &fields : bad) {
        EXPECT_THROW(filterOf(fields), cli::Failure) << fields.front();
    }
    EXPECT_THROW(filterOf({"a"}, "a"), cli::Failure);
    EXPECT_THROW(filterOf({"[].a"}, "n"), cli::Failure);
    EXPECT_NO_THROW(filterOf({"a", "a", "b.c", "b.d", "e[].f", "e[].g"}, "n"));
}

std::string gzip(const std::string &bytes, const TemporaryFolder &folder) {
    const std::string path = folder / "part.gz";
    const gzFile file = gzopen(path.c_str(), "wb");
    gzwrite(file, bytes.data(), static_cast<unsigned>(bytes.size()));
    gzclose(file);
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string zstd(const std::string &bytes) {
    std::string packed(ZSTD_compressBound(bytes.size()), '\0');
    packed.resize(ZSTD_compress(packed.data(), packed.size(), bytes.data(), bytes.size(), 1));
    return packed;
}

TEST(Batch, CompressedInputIsUnpacked) {
    const TemporaryFolder folder;
    const Arguments batch{"batch", "--field", "t", "--operation", "collapse-spaces"};
    const std::string line = "{\"t\":\"x  y\"}\n";
    const std::string clean = "{\"t\":\"x y\"}\n";
    for (const bool asGzip : {true, false}) {
        const auto pack = [&](const std::string &bytes) {
            return asGzip ? gzip(bytes, folder) : zstd(bytes);
        };
        const auto expect = [&](const std::string &input, int status, const std::string &out,
                                const std::string &err) {
            const Ended ended = NerloRun{batch, input, {}, {}}.toEnd();
            EXPECT_EQ(ended.status, status) << ended.err;
            EXPECT_TRUE(ended.out == out) << err;
            EXPECT_NE(ended.err.find(err), std::string::npos) << ended.err;
        };
        const std::string packed = pack(line);
        expect(packed + packed, 0, clean + clean, "");
        expect(packed + packed.substr(0, packed.size() / 2), 1, clean, "cut off");
        expect(packed + "no more of it", 1, clean, "damaged");
        // Far more than it seems to be, in one line each: only so much is ever held.
        const std::string bomb = pack("{\"x\":\"" + std::string(2 << 20, 'a') + "\"}\n");
        std::string bombs;
        for (int i = 0; i < 100; ++i) {
            bombs += bomb;
        }
        const Ended ended = NerloRun{batch, bombs, {}, "exec >/dev/null"}.toEnd();
        EXPECT_EQ(ended.status, 0) << ended.err;
        EXPECT_TRUE(!peakTellsMemory || ended.peakKilobytes < 100 << 10);
    }
    for (const char *name : {"plain.gz", "plain.zst"}) {
        std::ofstream(folder / name) << line;
        Arguments arguments = batch;
        arguments.push_back(folder / name);
        EXPECT_EQ((NerloRun{arguments, "", {}, {}}.toEnd().status), 1);
    }
}

} // namespace

} // namespace nerlo::test
