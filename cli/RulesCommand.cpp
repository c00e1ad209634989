// nerlo rules: lists of find-and-replace rules that travel.
#include "cli/ChangeWords.h"
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "engine/FindReplace.h"
#include "settings/RuleList.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <memory>

namespace nerlo::cli {

namespace {

settings::RuleList readRuleList(const std::string &file) {
    Progress progress;
    const InputFile input(file);
    const Bytes bytes = readBytes(input.descriptor(), nameOf(file), progress);
    settings::ParsedRuleList parsed = settings::parseRuleList(bytes.view());
    if (!parsed.list) {
        throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + parsed.error);
    }
    return std::move(*parsed.list);
}

// An empty text is told as such.
std::string told(std::u16string_view text) {
    return text.empty() ? "nothing" : shown(text);
}

struct Counts {
    std::size_t rules = 0;
    std::size_t samples = 0;
    std::size_t failed = 0; // rules and samples
};

// Lines about what does not hold; `place` is the file and the number of the rule.
std::string testRule(const std::string &place, const settings::TravelRule &rule, Counts &counts) {
    ++counts.rules;
    // On an empty text a pattern is compiled, and no more.
    if (const auto failure = trySample(rule, {}).failure) {
        ++counts.failed;
        return place + engine::messageOf({*failure}) + "\n";
    }
    std::string lines;
    for (std::size_t number = 1; const settings::RuleSample &sample : rule.samples) {
        ++counts.samples;
        const settings::SampleResult result = trySample(rule, sample);
        if (!result.holds) {
            ++counts.failed;
            lines += place + "sample " + std::to_string(number) + ": " +
                     (result.failure ? engine::messageOf({*result.failure})
                                     : told(sample.before) + " becomes " + told(result.given) +
                                           ", not " + told(sample.after)) +
                     "\n";
        }
        ++number;
    }
    return lines;
}

ExitStatus testRules(const std::vector<std::string> &files) {
    Counts counts;
    std::string lines;
    for (const std::string &file : files) {
        const settings::RuleList list = readRuleList(file);
        for (std::size_t number = 1; const settings::TravelRule &rule : list.rules) {
            const std::string place =
                withoutControls(nameOf(file)) + ": rule " + std::to_string(number++) + ": ";
            lines += testRule(place, rule, counts);
        }
    }
    writeOutput(lines + std::to_string(counts.rules) + " rules, " + std::to_string(counts.samples) +
                " samples, " + std::to_string(counts.failed) + " failed\n");
    return counts.failed == 0 ? ExitStatus::done : ExitStatus::ioFailed;
}

} // namespace

void addRules(CLI::App &app, ExitStatus &status) {
    CLI::App *command =
        app.add_subcommand("rules", "Try lists of find-and-replace rules on their samples");
    command->footer("A list is a text: a title, rules, and samples of what each rule does, on or\n"
                    "off, by itself. See nerlo-rules(5).\n"
                    "\n"
                    "Example:\n"
                    "  nerlo rules test dates.nerlo-rules");
    command->require_subcommand(1);
    CLI::App *testCommand = command->add_subcommand(
        "test", "Run the rules on their samples; ends with 1 if one does not hold");
    const auto files = std::make_shared<std::vector<std::string>>();
    addFiles(*testCommand, *files);
    testCommand->callback([files, &status] {
        status = testRules(files->empty() ? std::vector<std::string>{"-"} : *files);
    });
}

} // namespace nerlo::cli
