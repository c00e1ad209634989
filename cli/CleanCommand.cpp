// nerlo clean: files or standard input in, clean text out.
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Explain.h"
#include "cli/FileRewriting.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "engine/Operations.h"
#include "engine/StreamCleaner.h"
#include "settings/JsonText.h"
#include "settings/TraceJson.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>
#include <utility>

namespace nerlo::cli {

namespace {

struct CleanArguments {
    std::vector<std::string> operations; // none: the full pipeline
    OptionArguments options;
    std::string locale;
    bool inPlace = false;
    std::string explain; // "table" or "json"; empty when not given
    std::vector<std::string> files;
};

constexpr const char *asTable = "table";
constexpr const char *asJson = "json";

using Steps = std::vector<const engine::Operation *>;

Steps operationsOf(const CleanArguments &arguments) {
    Steps operations;
    for (const std::string &nameOrIndex : arguments.operations) {
        operations.push_back(operationOf(nameOrIndex));
    }
    return operations;
}

engine::CleaningOptions optionsFor(const OptionArguments &arguments, const Steps &operations) {
    engine::CleaningOptions options =
        cleaningOptions(arguments, operations.empty() ? nullptr : operations.front());
    for (std::size_t at = 1; at < operations.size(); ++at) {
        const engine::CleaningOptions more = cleaningOptions(arguments, operations[at]);
        options.linkRules = more.linkRules ? more.linkRules : options.linkRules;
    }
    return options;
}

void checkExplain(const CleanArguments &arguments) {
    if (!arguments.explain.empty() && arguments.operations.size() > 1) {
        throw Failure(ExitStatus::unusableArguments, "--explain goes with one --operation");
    }
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

// Feeds all of the input; `take` is given what is sure after each block, and leaves nothing in it.
template <class Take>
void cleanStream(TextReader &reader, const Steps &steps, const engine::CleaningContext &context,
                 std::string &clean, Take take) {
    engine::StreamCleaner cleaner(steps, context);
    std::string_view bytes;
    for (bool more = true; more;) {
        more = reader.readBytes(bytes);
        cleaner.feed(bytes, clean);
        if (!more) {
            cleaner.finish(clean);
        }
        take();
        if (cleaner.invalidAt()) {
            reader.refuse(*cleaner.invalidAt());
        }
    }
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

class Clean {
  public:
    explicit Clean(const CleanArguments &arguments)
        : arguments_(arguments)
        , operations_(operationsOf(arguments))
        , options_(optionsFor(arguments.options, operations_))
        , steps_(operations_.empty() ? engine::operationsSwitchedOn(options_) : operations_)
        , context_{options_, arguments.locale}
        , canStream_(engine::canStream(steps_, options_))
        , files_(arguments.files.empty() ? std::vector<std::string>{"-"} : arguments.files) {}

    ExitStatus run() {
        if (streams()) {
            // A line that is rewritten would stand among the text.
            if (!outputIsFile()) {
                progress_.stop();
            }
            return passAllOn();
        }
        forEachFile(files_, [this](const std::string &file) { cleanOne(file); });
        progress_.stop();
        if (status_ == ExitStatus::done) {
            writeOutput(cleaned_);
        }
        return status_;
    }

  private:
    // A file that grows by what is written would never end.
    bool streams() const {
        return canStream_ && !arguments_.inPlace && arguments_.explain.empty() &&
               std::ranges::none_of(files_, isOutput);
    }

    // The other files are tried all the same, so that every bad one is named.
    template <class Each>
    void forEachFile(const std::vector<std::string> &files, Each each) {
        for (const std::string &file : files) {
            try {
                each(file);
            } catch (const Failure &failure) {
                progress_.stop();
                report(failure.what());
                status_ = failure.status;
            }
        }
    }

    void cleanOne(const std::string &file) {
        TextReader reader(file, progress_);
        CleanText text =
            arguments_.explain.empty() ? cleanText(file, reader) : cleanAndExplain(file, reader);
        progress_.addDone(reader.bytes());
        if (arguments_.inPlace) {
            rewrite(file, reader, std::move(text));
        } else {
            cleaned_.push_back(std::move(text));
        }
    }

    CleanText cleanText(const std::string &file, TextReader &reader) {
        if (canStream_) {
            std::string clean;
            reserve(clean, reader.sizeHint());
            cleanStream(reader, steps_, context_, clean, [] {});
            return clean;
        }
        engine::CleaningReport report;
        engine::CleaningContext context = context_;
        context.report = &report;
        std::u16string text = reader.readAll();
        if (operations_.empty()) {
            text = engine::runPipeline(std::move(text), context);
        }
        for (const engine::Operation *const operation : operations_) {
            text = engine::runOperation(operation->index, std::move(text), context);
        }
        refuse(file, report);
        return text;
    }

    CleanText cleanAndExplain(const std::string &file, TextReader &reader) {
        engine::CleaningReport report;
        engine::CleaningContext context = context_;
        context.report = &report;
        const std::u16string source = reader.readAll();
        constexpr std::size_t places = settings::explainedPlaces;
        engine::Trace trace = operations_.empty() ? engine::tracePipeline(source, context, places)
                                                  : engine::traceOperation(*operations_.front(),
                                                                           source, context, places);
        refuse(file, report);
        explain(file, source, trace, arguments_.explain == asJson);
        return std::move(trace.text);
    }

    static void refuse(const std::string &file, const engine::CleaningReport &report) {
        if (!report.empty()) {
            throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + messageOf(report));
        }
    }

    // What can be read twice is checked before anything is written.
    ExitStatus passAllOn() {
        std::vector<std::string> checked;
        std::ranges::copy_if(files_, std::back_inserter(checked), canBeChecked);
        forEachFile(checked,
                    [this](const std::string &file) { TextReader(file, progress_).check(); });
        if (status_ == ExitStatus::done) {
            StreamedOutput output;
            forEachFile(files_, [&](const std::string &file) { passOn(file, output); });
        }
        progress_.stop();
        return status_;
    }

    void passOn(const std::string &file, StreamedOutput &output) {
        TextReader reader(file, progress_);
        output.nextText();
        std::string clean;
        cleanStream(reader, steps_, context_, clean, [&] {
            output.write(clean);
            clean.clear();
        });
        progress_.addDone(reader.bytes());
    }

    const CleanArguments &arguments_;
    const Steps operations_;
    const engine::CleaningOptions options_;
    const Steps steps_;
    const engine::CleaningContext context_;
    const bool canStream_;
    const std::vector<std::string> files_;
    Progress progress_;
    ExitStatus status_ = ExitStatus::done;
    std::vector<CleanText> cleaned_; // for standard output, written only if all inputs are good
};

ExitStatus runClean(const CleanArguments &arguments) {
    checkExplain(arguments);
    checkInPlace(arguments);
    return Clean(arguments).run();
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
        "If all that is asked for looks no further than a word or a line, a pipe is cleaned as it\n"
        "comes: what is sure is written at once, and an error behind it comes too late for that.\n"
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
        ->add_option("--operation", arguments->operations,
                     "Run only this operation, whether or not it is on; several run in this order")
        ->type_name("INDEX|NAME")
        ->allow_extra_args(false);
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
