// nerlo check: what a clean would change, without changing it.
#include "cli/ChangedLines.h"
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Findings.h"
#include "cli/Input.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/Rewriting.h"
#include "text/UnitScan.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <utility>

namespace nerlo::cli {

namespace {

constexpr const char *optionsName = "nerlo.plist";

struct CheckArguments {
    OptionArguments options;
    std::string locale;
    std::string format = "text";
    std::string diffFrom; // empty when not given
    bool fix = false;
    std::vector<std::string> files;
};

// The file of options that stands beside a file or in a folder above it, up to the top of its
// repository; empty where there is none. `folder` is absolute.
std::string optionsAbove(std::filesystem::path folder) {
    for (;; folder = folder.parent_path()) {
        std::error_code ignored;
        if (std::filesystem::is_regular_file(folder / optionsName, ignored)) {
            return (folder / optionsName).string();
        }
        if (std::filesystem::exists(folder / ".git", ignored) || folder == folder.parent_path()) {
            return {};
        }
    }
}

// The options for each file. Each source of options is read once.
class OptionsByFile {
  public:
    explicit OptionsByFile(const OptionArguments &arguments)
        : arguments_(arguments) {}

    const engine::CleaningOptions &of(const std::string &file) {
        return read(isChosen() || file == "-" ? "" : nearest(file));
    }

  private:
    bool isChosen() const { return !arguments_.file.empty() || !arguments_.profile.empty(); }

    const std::string &nearest(const std::string &file) {
        std::error_code ignored;
        const auto folder =
            std::filesystem::absolute(file, ignored).lexically_normal().parent_path();
        const auto [known, isNew] = nearest_.try_emplace(folder.string());
        if (isNew) {
            known->second = optionsAbove(folder);
        }
        return known->second;
    }

    const engine::CleaningOptions &read(const std::string &optionsFile) {
        const auto [known, isNew] = options_.try_emplace(optionsFile);
        if (isNew) {
            OptionArguments arguments = arguments_;
            if (!optionsFile.empty()) {
                arguments.file = optionsFile;
            }
            known->second = cleaningOptions(arguments, nullptr);
        }
        return known->second;
    }

    const OptionArguments &arguments_;
    std::map<std::string, std::string> nearest_; // by folder
    std::map<std::string, engine::CleaningOptions> options_;
};

const FindingFormat &formatOf(const std::string &name) {
    const auto formats = findingFormats();
    const auto format = std::ranges::find(formats, name, &FindingFormat::name);
    if (format == formats.end()) {
        throw Failure(ExitStatus::unusableArguments,
                      "unknown format \"" + name + "\": it is text, json, sarif or github");
    }
    return *format;
}

class Check {
  public:
    explicit Check(const CheckArguments &arguments)
        : arguments_(arguments)
        , format_(formatOf(arguments.format))
        , options_(arguments_.options) {
        if (!arguments.diffFrom.empty()) {
            changed_.emplace(arguments.diffFrom);
        }
    }

    ExitStatus run(const std::vector<std::string> &files) {
        writeOutput(format_.head());
        for (const std::string &file : files) {
            try {
                checkFile(file);
            } catch (const Failure &failure) {
                // The other files are checked all the same, so that every bad one is named.
                progress_.stop();
                report(failure.what());
                status_ = failure.status;
            }
        }
        progress_.stop();
        writeOutput(format_.tail);
        return status_ == ExitStatus::done && found_ ? ExitStatus::ioFailed : status_;
    }

  private:
    void checkFile(const std::string &file) {
        TextReader reader(file, progress_);
        const std::u16string source = reader.readAll();
        engine::CleaningReport patterns;
        const engine::CleaningContext context{
            .options = options_.of(file), .locale = arguments_.locale, .report = &patterns};
        const auto checkPatterns = [&] {
            if (!patterns.empty()) {
                throw Failure(ExitStatus::ioFailed, nameOf(file) + ": " + messageOf(patterns));
            }
        };
        // A clean writes a text from standard input as it is; a file keeps its last line break.
        const auto endingOf = [&](const std::u16string &clean) {
            const std::string kept = file == "-" ? "" : endingFor(clean, reader);
            return std::u16string(kept.begin(), kept.end());
        };
        // A plain clean is faster than a trace, and most files are clean; but where one is not, the
        // next will not be either, and then it would be in vain.
        if (!expectsChanges_ || context.options.udProtectStructure) {
            const std::u16string clean = engine::runPipeline(source, context);
            checkPatterns();
            if (text::sameUnits(source, clean + endingOf(clean))) {
                progress_.addDone(reader.bytes());
                return;
            }
        }
        const engine::Trace trace = engine::tracePipeline(source, context, SIZE_MAX);
        checkPatterns();
        const std::u16string ending = endingOf(trace.text);
        const std::vector<Finding> findings = findingsOf(source, trace, ending);
        progress_.addDone(reader.bytes());
        expectsChanges_ = !findings.empty();
        if (findings.empty()) {
            return;
        }
        tell(file, findings);
        if (arguments_.fix) {
            rewrite(file, reader, trace.text);
        }
    }

    void tell(const std::string &file, const std::vector<Finding> &findings) {
        if (changed_) {
            changed_->read(file);
        }
        std::string lines;
        for (const Finding &finding : findings) {
            if (!changed_ || changed_->hold(finding.begin.lineByFeeds, finding.end.lineByFeeds)) {
                lines += format_.one(nameOf(file), finding, !found_);
                found_ = true;
            }
        }
        if (!lines.empty()) {
            progress_.stop();
            writeOutput(lines);
        }
    }

    const CheckArguments &arguments_;
    const FindingFormat &format_;
    OptionsByFile options_;
    std::optional<ChangedLines> changed_;
    Progress progress_;
    ExitStatus status_ = ExitStatus::done;
    bool found_ = false;
    bool expectsChanges_ = false; // as the file before had some
};

void refuseStandardInput(const std::vector<std::string> &files, const std::string &option) {
    if (std::ranges::find(files, "-") != files.end()) {
        throw Failure(ExitStatus::unusableArguments, option + " needs files");
    }
}

ExitStatus runCheck(const CheckArguments &arguments) {
    const std::vector<std::string> files =
        arguments.files.empty() ? std::vector<std::string>{"-"} : arguments.files;
    if (arguments.fix) {
        refuseStandardInput(files, "--fix");
    }
    if (!arguments.diffFrom.empty()) {
        refuseStandardInput(files, "--diff-from");
        if (arguments.fix) {
            throw Failure(ExitStatus::unusableArguments,
                          "--fix cleans whole files, so that it does not go with --diff-from");
        }
    }
    return Check(arguments).run(files);
}

} // namespace

void addCheck(CLI::App &app, ExitStatus &status) {
    CLI::App *command = app.add_subcommand("check", "Tell what a clean would change");
    command->footer(
        "Writes a line for each change that `nerlo clean` would make, by place:\n"
        "  PATH:LINE:COLUMN: WHAT (OPERATION)\n"
        "with characters that cannot be seen as U+XXXX. Lines and columns are those of the file\n"
        "as it is, counted from 1; columns count characters. A line break at the end of a file\n"
        "stays, as with `nerlo clean --in-place`.\n"
        "\n"
        "The options come from the file nerlo.plist beside a file or in a folder above it, up to\n"
        "the top of its repository (`nerlo profiles export` writes such a file), else from where\n"
        "`nerlo clean` takes them; --options or --profile decide for all files.\n" +
        std::string(localeHelp) +
        "\n"
        "Examples:\n"
        "  nerlo check notes.txt\n"
        "  nerlo check --format sarif letter.txt > findings.sarif\n"
        "\n"
        "Exit status: 0 nothing would change; 1 something would, or was with --fix, or an input\n"
        "failed, with a message that names it; 2 unusable arguments, or a pattern with an error\n"
        "in it.");
    const auto arguments = std::make_shared<CheckArguments>();
    addOptions(*command, arguments->options);
    addLocale(*command, arguments->locale);
    command
        ->add_option("--format", arguments->format,
                     "How to tell: text, json, sarif (for code scanners) or github (for its "
                     "workflows)")
        ->type_name("FORMAT");
    command
        ->add_option("--diff-from", arguments->diffFrom,
                     "Tell only of lines that were changed since this commit; asks git")
        ->type_name("REF");
    command->add_flag("--fix", arguments->fix, "Also clean the files in place");
    addFiles(*command, arguments->files);
    command->callback([arguments, &status] { status = runCheck(*arguments); });
}

} // namespace nerlo::cli
