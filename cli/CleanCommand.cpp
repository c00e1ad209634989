// nerlo clean: files or standard input in, clean text out.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Explain.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Rewriting.h"
#include "engine/Operations.h"
#include "settings/JsonText.h"
#include "settings/TraceJson.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <cstdio>
#include <memory>
#include <utility>

namespace nerlo::cli {

namespace {

struct CleanArguments {
    std::string operation; // empty: the full pipeline
    OptionArguments options;
    std::string locale;
    bool inPlace = false;
    std::string explain; // "table" or "json"; empty when not given
    std::vector<std::string> files;
};

constexpr const char *asTable = "table";
constexpr const char *asJson = "json";

void checkExplain(const CleanArguments &arguments) {
    if (!arguments.explain.empty() && arguments.explain != asTable && arguments.explain != asJson) {
        throw Failure(ExitStatus::unusableArguments,
                      "--explain=" + arguments.explain + ": it is table or json");
    }
}

void checkInPlace(const CleanArguments &arguments) {
    if (!arguments.inPlace) {
        return;
    }
    if (arguments.files.empty()) {
        throw Failure(ExitStatus::unusableArguments, "--in-place needs a file");
    }
    for (const std::string &file : arguments.files) {
        if (file == "-") {
            throw Failure(ExitStatus::unusableArguments,
                          "--in-place cannot rewrite standard input");
        }
    }
}

// Reads, cleans and encodes while a block is in the cache, and keeps the result: nothing may be
// written before the last byte is known to be good.
std::string cleanPieces(TextReader &reader, const engine::Operation &operation,
                        const engine::CleaningContext &context) {
    std::string clean;
    reserve(clean, reader.sizeHint());
    reader.readPieces(engine::lastCut, [&](std::u16string &piece) {
        piece = operation.run(std::move(piece), context);
        text::appendUtf8(clean, piece);
    });
    return clean;
}

// Nothing of this is text that was not asked for: the changes are what --explain is there to show.
void explain(const std::string &file, std::u16string_view source, const engine::Trace &trace,
             bool json) {
    std::string told;
    if (json) {
        told = "{\"file\":" + settings::jsonOfName(file) +
               ",\"steps\":" + settings::explainJson(source, trace) + "}\n";
    } else {
        told = withoutControls(nameOf(file)) + ":\n" + explainTable(source, trace);
    }
    // If this fails there is nowhere to report it.
    std::fwrite(told.data(), 1, told.size(), stderr);
}

CleanText cleanAndExplain(const std::string &file, TextReader &reader,
                          const engine::Operation *operation, engine::CleaningContext context,
                          bool json) {
    engine::CleaningReport report;
    context.report = &report;
    const std::u16string source = reader.readAll();
    constexpr std::size_t places = settings::explainedPlaces;
    engine::Trace trace = operation ? engine::traceOperation(*operation, source, context, places)
                                    : engine::tracePipeline(source, context, places);
    if (!report.empty()) {
        throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + messageOf(report));
    }
    explain(file, source, trace, json);
    return std::move(trace.text);
}

// `name` is what messages call the text.
CleanText cleanText(const std::string &name, TextReader &reader, const engine::Operation *operation,
                    engine::CleaningContext context) {
    if (operation && !context.options.udProtectStructure && operation->inPieces &&
        operation->inPieces(context.options)) {
        return cleanPieces(reader, *operation, context);
    }
    engine::CleaningReport report;
    context.report = &report;
    std::u16string text = reader.readAll();
    text = operation ? engine::runOperation(operation->index, std::move(text), context)
                     : engine::runPipeline(std::move(text), context);
    if (!report.empty()) {
        throw Failure(ExitStatus::ioFailed, name + ": " + messageOf(report));
    }
    return text;
}

ExitStatus runClean(const CleanArguments &arguments) {
    checkExplain(arguments);
    checkInPlace(arguments);
    const engine::Operation *operation = operationOf(arguments.operation);
    const engine::CleaningOptions options = cleaningOptions(arguments.options, operation);
    const engine::CleaningContext context{options, arguments.locale};

    const std::vector<std::string> files =
        arguments.files.empty() ? std::vector<std::string>{"-"} : arguments.files;
    ExitStatus status = ExitStatus::done;
    std::vector<CleanText> cleaned; // for standard output, written only if all inputs are good
    Progress progress;
    for (const std::string &file : files) {
        try {
            TextReader reader(file, progress);
            CleanText text = arguments.explain.empty()
                                 ? cleanText(nameOf(file), reader, operation, context)
                                 : cleanAndExplain(file, reader, operation, context,
                                                   arguments.explain == asJson);
            progress.addDone(reader.bytes());
            if (arguments.inPlace) {
                rewrite(file, reader, std::move(text));
            } else {
                cleaned.push_back(std::move(text));
            }
        } catch (const Failure &failure) {
            // The other files are tried all the same, so that every bad one is named.
            progress.stop();
            report(failure.what());
            status = failure.status;
        }
    }
    progress.stop();
    if (status == ExitStatus::done) {
        writeOutput(cleaned);
    }
    return status;
}

} // namespace

void addClean(CLI::App &app, ExitStatus &status) {
    CLI::App *command = app.add_subcommand("clean", "Clean texts with the options that are on");
    command->footer(
        "Reads the files, or standard input, as UTF-8 and writes the cleaned text to standard\n"
        "output, with no line break added. Several files are cleaned each on its own and written\n"
        "one after another, with a line break between them where one lacks it. Unless every\n"
        "input could be read and every rule be applied, nothing is written. A file that is\n"
        "rewritten keeps a line break at its end and a byte order mark.\n"
        "\n"
        "--options takes a property list, XML or binary; a key that it lacks is off, 0 or empty.\n"
        "Without it, the profile holds that --profile names or that is selected in the desktop\n"
        "program, and the first-start values where there are no profiles. --set changes single\n"
        "keys; a list of rules is written as a JSON array. `nerlo keys` lists the keys,\n"
        "`nerlo profiles` the profiles and `nerlo operations` the operations.\n" +
        std::string(localeHelp) +
        "\n"
        "Examples:\n"
        "  nerlo clean letter.txt > clean.txt\n"
        "  xclip -o -sel c | nerlo clean | xclip -sel c\n"
        "  nerlo clean --operation change-case --set udChangeCaseOption=3 --in-place *.txt\n"
        "  nerlo clean --explain letter.txt > clean.txt 2> steps.txt\n"
        "\n"
        "Exit status: 0 done; 1 an input or output failed, with a message that names it, and for\n"
        "invalid UTF-8 the offset of the first bad byte, counted from 0, or a rule of yours was\n"
        "given up on a text; 2 unusable arguments, or a pattern with an error in it.");
    const auto arguments = std::make_shared<CleanArguments>();
    command
        ->add_option("--operation", arguments->operation,
                     "Run only this operation, whether or not it is on")
        ->type_name("INDEX|NAME");
    addOptions(*command, arguments->options);
    addLocale(*command, arguments->locale);
    command->add_flag("-i,--in-place", arguments->inPlace,
                      "Rewrite each file that changes; one that fails stays as it was");
    command->add_flag("--explain{table}", arguments->explain,
                      "Tell on standard error what each step changed, as a table or =json");
    addFiles(*command, arguments->files);
    command->callback([arguments, &status] { status = runClean(*arguments); });
}

} // namespace nerlo::cli
