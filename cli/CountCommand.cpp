// nerlo count: characters, spaces, words and paragraphs.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "engine/Statistics.h"
#include "settings/JsonText.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <array>
#include <cstdio>
#include <memory>

namespace nerlo::cli {

namespace {

using engine::TextStatistics;

struct CountArguments {
    std::string locale;
    bool json = false;
    std::vector<std::string> files;
};

struct Column {
    const char *name;
    std::uint64_t TextStatistics::*count;
};

constexpr std::array<Column, 4> columns{{
    {"characters", &TextStatistics::characters},
    {"spaces", &TextStatistics::spaces},
    {"words", &TextStatistics::words},
    {"paragraphs", &TextStatistics::paragraphs},
}};

constexpr int columnWidth = 12;

std::string cell(const std::string &content) {
    std::string text(columnWidth > content.size() ? columnWidth - content.size() : 1, ' ');
    return text + content;
}

std::string header() {
    std::string line;
    for (const Column &column : columns) {
        line += cell(column.name);
    }
    return line + "\n";
}

std::string row(const TextStatistics &counts, const std::string &file) {
    std::string line;
    for (const Column &column : columns) {
        line += cell(std::to_string(counts.*column.count));
    }
    return line + (file.empty() ? "" : "  " + withoutControls(file)) + "\n";
}

// `file` is empty for standard input that was not asked for by "-".
std::string jsonLine(const TextStatistics &counts, const std::string &file) {
    return "{" + (file.empty() ? "" : "\"file\":" + settings::jsonOfName(file) + ",") +
           settings::jsonMembers(counts) + "}\n";
}

TextStatistics countFile(const std::string &file, const std::string &locale, Progress &progress) {
    TextReader reader(file, progress);
    engine::StreamCounter counter(locale);
    std::u16string piece;
    for (bool more = true; more;) {
        more = reader.readBlock(piece);
        counter.feed(piece);
    }
    progress.addDone(reader.bytes());
    return counter.counts();
}

ExitStatus runCount(const CountArguments &arguments) {
    const bool named = !arguments.files.empty();
    const std::vector<std::string> files = named ? arguments.files : std::vector<std::string>{"-"};
    ExitStatus status = ExitStatus::done;
    std::string output = arguments.json ? "" : header();
    TextStatistics total;
    Progress progress;
    for (const std::string &file : files) {
        try {
            const TextStatistics counts = countFile(file, arguments.locale, progress);
            const std::string shown = named ? file : "";
            output += arguments.json ? jsonLine(counts, shown) : row(counts, shown);
            total += counts;
        } catch (const Failure &failure) {
            progress.stop();
            report(failure.what());
            status = failure.status;
        }
    }
    progress.stop();
    if (files.size() > 1 && !arguments.json) {
        output += row(total, "total");
    }
    if (status == ExitStatus::done || files.size() > 1) {
        writeOutput(output);
    }
    return status;
}

} // namespace

void addCount(CLI::App &app, ExitStatus &status) {
    CLI::App *command =
        app.add_subcommand("count", "Count characters, spaces, words and paragraphs");
    command->footer("Characters are UTF-16 code units, so an emoji counts two; spaces include the\n"
                    "no-break space; words follow the locale's rules; every line is a paragraph.\n"
                    "A file that cannot be read is named, and the others are counted.\n" +
                    std::string(localeHelp) +
                    "\n"
                    "Examples:\n"
                    "  nerlo count letter.txt notes.txt\n"
                    "  nerlo clean letter.txt | nerlo count --json");
    const auto arguments = std::make_shared<CountArguments>();
    command->add_flag("--json", arguments->json, "Write one JSON object a line");
    addLocale(*command, arguments->locale);
    addFiles(*command, arguments->files);
    command->callback([arguments, &status] { status = runCount(*arguments); });
}

} // namespace nerlo::cli
