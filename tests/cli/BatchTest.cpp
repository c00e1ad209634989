// The batch command: many requests, hostile lines, any number of jobs.
#include "cli/BatchAnswers.h"
#include "cli/OrderedWorkers.h"
#include "engine/Operations.h"
#include "settings/JsonText.h"
#include "settings/SettingsKeys.h"
#include "tests/cli/RunNerlo.h"
#include "tests/reference/RandomText.h"
#include "text/Utf.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <future>
#include <limits>

namespace nerlo::test {

namespace {

using nlohmann::json;
using reference::Random;

std::string randomText(Random &random) {
    const reference::Tokens tokens[] = {reference::plainTokens(), reference::quoteTokens(),
                                        reference::tagTokens()};
    return text::utf16ToUtf8(random.text(tokens[random.below(std::size(tokens))]));
}

// Switches only: the value 7 as an option of sorting would shuffle the lines.
json randomOptions(Random &random) {
    json options = json::object();
    for (const settings::SettingsKey &row : settings::profileKeys()) {
        if (row.kind == settings::SettingKind::Switch && random.oneIn(3)) {
            options[row.key] = random.oneIn(2);
        }
    }
    return options;
}

std::string randomRequests(int count) {
    Random random(2024);
    std::string lines;
    for (int i = 0; i < count; ++i) {
        json request{{"id", i}, {"text", randomText(random)}};
        if (random.oneIn(2)) {
            request["options"] = randomOptions(random);
        }
        if (random.oneIn(2)) {
            const auto &rows = engine::operations();
            const engine::Operation &row = rows[random.below(rows.size())];
            request["operation"] = random.oneIn(2) ? json(row.index) : json(row.name);
        }
        if (random.oneIn(4)) {
            request["locale"] = random.locale();
        }
        lines += request.dump(-1, ' ', random.oneIn(2)) + "\n";
    }
    return lines;
}

TEST(Batch, AnswersDoNotDependOnTheJobs) {
    constexpr int count = 20000;
    const std::string requests = randomRequests(count);
    const Ended one = NerloRun{{"batch"}, requests, {}, {}}.toEnd();
    EXPECT_EQ(one.status, 0) << one.err;
    EXPECT_EQ(one.err, "");
    int id = 0;
    for (std::size_t start = 0; start < one.out.size(); ++id) {
        const std::size_t end = one.out.find('\n', start);
        const json answer = json::parse(one.out.substr(start, end - start));
        ASSERT_EQ(answer["id"], id);
        ASSERT_FALSE(answer.contains("error")) << answer;
        start = end + 1;
    }
    EXPECT_EQ(id, count);

    const Ended two = NerloRun{{"batch", "--jobs", "2"}, requests, {}, {}}.toEnd();
    EXPECT_EQ(two.status, 0) << two.err;
    EXPECT_TRUE(two.out == one.out);
}

TEST(Batch, HugeAndDeepLines) {
    const cli::BatchAnswers answers({}, "en_US");
    const std::string deep = std::string(200000, '[') + std::string(200000, ']');
    EXPECT_EQ(answers.answer("{\"id\":" + deep + ",\"text\":\"a\"}").lines,
              "{\"id\":" + deep + ",\"text\":\"a\"}\n");
    EXPECT_EQ(
        answers.answer("{\"id\":1,\"text\":\"a\",\"options\":{\"udSort\":" + deep + "}}").lines,
        "{\"id\":1,\"error\":\"key \\\"udSort\\\": neither true nor false\"}\n");
    EXPECT_EQ(answers.answer("{\"id\":1,\"text\":" + deep + "}").lines,
              "{\"id\":1,\"error\":\"\\\"text\\\" is not a string\"}\n");
    EXPECT_EQ(answers.answer(std::string(200000, '[')).lines,
              "{\"id\":null,\"error\":\"invalid JSON at byte 200000\"}\n");

    const std::string huge(4 << 20, 'a');
    const Ended ended =
        NerloRun{{"batch", "--jobs", "2"}, "{\"text\":\"" + huge + "\"}\n", {}, {}}.toEnd();
    EXPECT_EQ(ended.status, 0);
    EXPECT_TRUE(ended.out == "{\"id\":null,\"text\":\"" + huge + "\"}\n");
}

// Any units, also half pairs, which UTF-8 does not have, and what stands in for them on the way.
TEST(Batch, AnyUnitsComeBack) {
    const cli::BatchAnswers answers({}, "en_US");
    const char16_t halves[] = {0xD800, 0xDBFF, 0xDC00, 0xDFFF};
    std::vector<std::u16string_view> units{u"\uFFFE", u"---", u"000", u"7ff", u"\\", u"\"", u"u"};
    for (const char16_t &half : halves) {
        units.emplace_back(&half, 1);
    }
    Random random(7);
    for (int round = 0; round < 2000; ++round) {
        const std::u16string text = random.text(units);
        const std::string quoted = settings::jsonOfText(text);
        std::string escaped; // the same with every unit escaped
        for (const char16_t unit : text) {
            char digits[8];
            std::snprintf(digits, sizeof digits, "\\u%04X", unsigned{unit});
            escaped += digits;
        }
        const std::string expected = "{\"id\":" + quoted + ",\"text\":" + quoted + "}\n";
        EXPECT_EQ(answers.answer("{\"id\":" + quoted + ",\"text\":\"" + escaped + "\"}").lines,
                  expected);
        EXPECT_EQ(answers.answer("{\"text\":" + quoted + ",\"id\":" + quoted + "}").lines,
                  expected);
        EXPECT_EQ(answers
                      .answer("{\"id\":" + quoted +
                              ",\"text\":\"a\",\"operation\":\"add-suffix\","
                              "\"options\":{\"udSuffixTextField\":" +
                              quoted + "}}")
                      .lines,
                  "{\"id\":" + quoted + ",\"text\":" + settings::jsonOfText(u"a" + text) + "}\n");
    }
}

// Any byte at any place gives one line of JSON back.
TEST(Batch, DamagedLinesAreAnswered) {
    const cli::BatchAnswers answers({}, "en_US");
    const std::string line = R"({"id":[{"a":"\"]}"}],"text":"a\u00e9é","options":{"udSort":1}})";
    for (std::size_t at = 0; at < line.size(); ++at) {
        for (const int byte : {0x00, 0x22, 0x2C, 0x5B, 0x5C, 0x7D, 0x80, 0xFF}) {
            std::string damaged = line;
            damaged[at] = static_cast<char>(byte);
            const std::string result = answers.answer(damaged).lines;
            const json answer = json::parse(result, nullptr, false);
            EXPECT_TRUE(answer.is_object() && answer.size() == 2) << damaged << " -> " << result;
            EXPECT_EQ(result.find('\n'), result.size() - 1) << damaged;
        }
        EXPECT_TRUE(at == 0 || json::accept(answers.answer(line.substr(0, at)).lines)) << at;
    }
}

TEST(OrderedWorkers, DeliverInOrderWhateverEndsFirst) {
    std::promise<void> secondAnswered;
    std::string delivered;
    {
        cli::OrderedWorkers<std::string, std::string> workers(
            2,
            [&](const std::string &request) {
                if (request == "1") {
                    secondAnswered.get_future().wait();
                } else if (request == "2") {
                    secondAnswered.set_value();
                }
                return request;
            },
            [&](const std::vector<std::string> &ready) {
                for (const std::string &answer : ready) {
                    delivered += answer;
                }
            });
        for (const char *request : {"1", "2", "3"}) {
            workers.push(request, 1);
        }
    }
    EXPECT_EQ(delivered, "123");
}

} // namespace

} // namespace nerlo::test
