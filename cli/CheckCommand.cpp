// nerlo check: what a clean would change, without changing it.
#include "cli/ChangedLines.h"
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/FileRewriting.h"
#include "cli/Findings.h"
#include "cli/Input.h"
#include "cli/OrderedWorkers.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "text/UnitScan.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <atomic>
#include <exception>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <ranges>
#include <span>
#include <thread>
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

    // Any thread.
    const engine::CleaningOptions &of(const std::string &file) {
        const std::lock_guard lock(mutex_);
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
    std::mutex mutex_;                           // guards what is known
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

using Files = std::span<const std::string>;

// In bytes, of those that have a size.
std::size_t sizeOf(Files files) {
    std::size_t sum = 0;
    for (const std::string &file : files) {
        std::error_code none;
        const std::uintmax_t size = std::filesystem::file_size(file, none);
        sum += none ? 0 : size;
    }
    return sum;
}

// What is to be told about one file.
struct Checked {
    std::string findings;
    std::optional<Failure> failure;
};

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
        const auto threads =
            std::min<std::size_t>(std::thread::hardware_concurrency(), files.size());
        // Signals are held back in one thread alone while a file is replaced.
        if (threads < 2 || arguments_.fix) {
            for (const std::string &file : files) {
                tell(checked(file));
            }
        } else {
            runInThreads(static_cast<unsigned>(threads), files);
        }
        progress_.stop();
        writeOutput(format_.tail);
        return status_ == ExitStatus::done && found_ ? ExitStatus::ioFailed : status_;
    }

  private:
    void runInThreads(unsigned threads, const std::vector<std::string> &files) {
        std::exception_ptr stopped; // by an output that takes no more
        std::atomic<bool> going = true;
        {
            OrderedWorkers<Files, std::vector<Checked>> workers(
                threads,
                [&](const Files &some) {
                    std::vector<Checked> results;
                    for (std::size_t at = 0; at < some.size() && going; ++at) {
                        results.push_back(checked(some[at]));
                    }
                    return results;
                },
                [&](const std::vector<std::vector<Checked>> &ready) {
                    try {
                        for (const Checked &one : std::views::join(ready)) {
                            tell(one);
                        }
                    } catch (...) {
                        stopped = std::current_exception();
                        going = false;
                    }
                });
            const std::size_t few = std::clamp<std::size_t>(files.size() / threads / 16, 1, 16);
            for (Files rest = files; !rest.empty();) {
                const Files some = rest.first(std::min(few, rest.size()));
                workers.push(some, sizeOf(some));
                rest = rest.subspan(some.size());
            }
        }
        if (stopped) {
            std::rethrow_exception(stopped);
        }
    }

    // The other files are checked all the same where one fails, so that every bad one is named.
    Checked checked(const std::string &file) {
        Checked result;
        try {
            check(file, result.findings);
        } catch (const Failure &failure) {
            result.failure = failure;
        }
        return result;
    }

    // Any thread, unless files are cleaned.
    void check(const std::string &file, std::string &told) {
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
        const std::vector<Finding> findings = findingsOf(source, trace, endingOf(trace.text));
        progress_.addDone(reader.bytes());
        expectsChanges_ = !findings.empty();
        if (findings.empty()) {
            return;
        }
        told = wordsOf(file, findings);
        if (arguments_.fix) {
            rewrite(file, reader, trace.text);
        }
    }

    std::string wordsOf(const std::string &file, const std::vector<Finding> &findings) const {
        std::optional<ChangedLines> changed = changed_;
        if (changed) {
            changed->read(file);
        }
        std::string words;
        for (const Finding &finding : findings) {
            if (!changed || changed->hold(finding.begin.lineByFeeds, finding.end.lineByFeeds)) {
                words += words.empty() ? "" : format_.between;
                words += format_.one(nameOf(file), finding);
            }
        }
        return words;
    }

    void tell(const Checked &file) {
        if (file.failure) {
            progress_.stop();
            report(file.failure->what());
            status_ = file.failure->status;
        }
        if (!file.findings.empty()) {
            progress_.stop();
            if (std::exchange(found_, true)) {
                writeOutput(format_.between);
            }
            writeOutput(file.findings);
        }
    }

    const CheckArguments &arguments_;
    const FindingFormat &format_;
    OptionsByFile options_;
    std::optional<ChangedLines> changed_; // of no file yet
    Progress progress_;
    ExitStatus status_ = ExitStatus::done;
    bool found_ = false;
    std::atomic<bool> expectsChanges_ = false; // as the file before had some
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
