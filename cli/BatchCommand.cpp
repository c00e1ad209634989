// nerlo batch: one JSON request a line in, one JSON answer a line out; or records in, and the same
// records with some of their texts cleaned out.
#include "cli/BatchAnswers.h"
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/FieldFilter.h"
#include "cli/OrderedWorkers.h"
#include "cli/Output.h"
#include "cli/Progress.h"
#include "cli/UnpackedInput.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <memory>

namespace nerlo::cli {

namespace {

constexpr std::size_t readAtMost = 64 * 1024;
constexpr std::size_t pieceSize = 32 * 1024;    // of lines for one thread
constexpr std::size_t writeAtLeast = 64 * 1024; // as long as more lines are waiting
constexpr std::size_t longestLine = 256 << 20;  // a few bytes that were packed may become any line
constexpr unsigned mostJobs = 256;

struct BatchArguments {
    unsigned jobs = 1;
    std::vector<std::string> fields; // none: the lines are requests
    std::string operation;           // empty: the full pipeline
    std::string onError;
    std::string counts; // the member for --stats; empty when not given
    OptionArguments options;
    std::string locale;
    std::string file = "-";
};

// Whole lines of an input; the last one may lack its line break.
class LineReader {
  public:
    LineReader(const std::string &file, Progress &progress)
        : name_(nameOf(file))
        , input_(file, progress) {}

    // Calls `take` for all complete lines at hand, some at a time, and `idle` before it waits for
    // more.
    void run(const std::function<void(std::string_view)> &take, const std::function<void()> &idle) {
        for (;;) {
            const std::size_t kept = buffer_.size();
            buffer_.resize(kept + readAtMost);
            const std::size_t count = input_.read(buffer_.data() + kept, readAtMost);
            buffer_.resize(kept + count);
            if (count == 0) {
                break;
            }
            handOut(kept, take);
            if (buffer_.size() > longestLine) {
                throw Failure(ExitStatus::ioFailed, name_ + ": a line is longer than 256 MiB");
            }
            idle();
        }
        if (!buffer_.empty()) {
            take(buffer_);
        }
    }

  private:
    // The bytes before `searched` hold no line break.
    void handOut(std::size_t searched, const std::function<void(std::string_view)> &take) {
        const std::string_view all = buffer_;
        const std::size_t last = all.substr(searched).rfind('\n');
        if (last == std::string_view::npos) {
            return;
        }
        const std::size_t end = searched + last + 1;
        for (std::size_t at = 0; at < end;) {
            const std::size_t next =
                end - at <= pieceSize ? end : all.find('\n', at + pieceSize - 1) + 1;
            take(all.substr(at, next - at));
            at = next;
        }
        buffer_.erase(0, end);
    }

    const std::string name_;
    UnpackedInput input_;
    std::string buffer_;
};

// What becomes of a line that cannot be worked on.
struct BadLines {
    const char *word; // after --on-error; null where lines are requests
    OnError onError;
    const char *fate; // for the message; null when the first one ends all
    ExitStatus status;
};

constexpr BadLines answered{nullptr, {}, "answered with an error", ExitStatus::ioFailed};
constexpr BadLines filtered[] = {
    {"fail", OnError::fail, nullptr, ExitStatus::ioFailed},
    {"pass", OnError::pass, "left as they were", ExitStatus::done},
    {"drop", OnError::drop, "dropped", ExitStatus::done},
};

// Writes answers and remembers which of them tell of an error.
class AnswerWriter {
  public:
    AnswerWriter(const BatchArguments &arguments, const BadLines &badLines, Progress &progress)
        : name_(nameOf(arguments.file))
        , fields_(arguments.fields)
        , badLines_(badLines)
        , progress_(progress)
        , found_(fields_.size()) {}

    // Throws Failure if that ends all.
    void add(const Answers &answers) {
        if (answers.failed != 0 && failed_ == 0) {
            firstFailed_ = "line " + std::to_string(lines_ + answers.firstFailed);
            if (badLines_.word) { // else the answer says it
                firstFailed_ += ": " + answers.firstError;
            }
        }
        failed_ += answers.failed;
        lines_ += answers.count;
        for (std::size_t field = 0; field < answers.found.size(); ++field) {
            found_[field] = found_[field] || answers.found[field];
        }
        pending_ += answers.lines;
        if (failed_ != 0 && !badLines_.fate) {
            flush();
            throw Failure(badLines_.status, name_ + ": " + firstFailed_);
        }
        if (pending_.size() >= writeAtLeast) {
            flush();
        }
    }
    void flush() {
        writeOutput(pending_);
        progress_.addDone(pending_.size());
        pending_.clear();
    }
    ExitStatus finish() {
        flush();
        progress_.stop();
        for (std::size_t field = 0; field < found_.size() && failed_ < lines_; ++field) {
            if (!found_[field]) {
                report("warning: " + name_ + ": no record has the field \"" + fields_[field] +
                       "\"");
            }
        }
        if (failed_ == 0) {
            return ExitStatus::done;
        }
        report(name_ + ": " + std::to_string(failed_) + " of " + std::to_string(lines_) +
               " lines " + badLines_.fate + ", the first is " + firstFailed_);
        return badLines_.status;
    }

  private:
    const std::string name_;
    const std::vector<std::string> &fields_;
    const BadLines &badLines_;
    Progress &progress_;
    std::string pending_;
    std::size_t lines_ = 0;
    std::size_t failed_ = 0;
    std::string firstFailed_; // its number, counted from 1
    std::vector<bool> found_; // for each field
};

// Called by a thread whose write has failed. It ends the whole program, because the main thread may
// be waiting for input that never comes.
[[noreturn]] void endNow(ExitStatus status) {
    std::_Exit(static_cast<int>(status));
}

// From some lines to what becomes of them.
using LineWorkers = OrderedWorkers<std::string, Answers>;
using Work = std::function<Answers(std::string_view lines)>;

ExitStatus run(const BatchArguments &arguments, const BadLines &badLines, const Work &work) {
    Progress progress;
    LineReader reader(arguments.file, progress);
    AnswerWriter writer(arguments, badLines, progress);
    if (arguments.jobs <= 1) {
        reader.run([&](std::string_view lines) { writer.add(work(lines)); },
                   [&] { writer.flush(); });
        return writer.finish();
    }
    {
        LineWorkers workers(arguments.jobs, work, [&](const std::vector<Answers> &ready) {
            try {
                for (const Answers &each : ready) {
                    writer.add(each);
                }
                writer.flush();
            } catch (const ClosedPipe &) {
                endNow(ExitStatus::done);
            } catch (const Failure &failure) {
                report(failure.what());
                endNow(failure.status);
            }
        });
        reader.run([&](std::string_view lines) { workers.push(std::string(lines), lines.size()); },
                   [] {});
    }
    return writer.finish();
}

[[noreturn]] void refuse(const std::string &message) {
    throw Failure(ExitStatus::unusableArguments, message);
}

ExitStatus answerRequests(const BatchArguments &arguments) {
    if (!arguments.operation.empty() || !arguments.onError.empty() || !arguments.counts.empty()) {
        refuse(
            "--operation, --on-error and --stats need --field; a request says for itself what is "
            "to be done");
    }
    engine::CleaningOptions options;
    options.setAllBools(chosenOptions(arguments.options));
    const BatchAnswers answers(std::move(options), arguments.locale);
    return run(arguments, answered, [&](std::string_view lines) { return answers.answer(lines); });
}

const BadLines &badLinesOf(const std::string &word) {
    if (word.empty()) {
        return filtered[0];
    }
    const auto *row = std::ranges::find(filtered, word, &BadLines::word);
    if (row == std::end(filtered)) {
        refuse("--on-error " + word + ": it is fail, pass or drop");
    }
    return *row;
}

ExitStatus filterRecords(const BatchArguments &arguments) {
    const BadLines &badLines = badLinesOf(arguments.onError);
    const engine::Operation *operation = operationOf(arguments.operation);
    const FieldFilter filter({.fields = arguments.fields,
                              .options = cleaningOptions(arguments.options, operation),
                              .operation = operation,
                              .locale = arguments.locale,
                              .onError = badLines.onError,
                              .counts = arguments.counts});
    return run(arguments, badLines, [&](std::string_view lines) { return filter.filter(lines); });
}

ExitStatus runBatch(const BatchArguments &arguments) {
    return arguments.fields.empty() ? answerRequests(arguments) : filterRecords(arguments);
}

} // namespace

void addBatch(CLI::App &app, ExitStatus &status) {
    CLI::App *command = app.add_subcommand("batch", "Clean texts in JSON records, one a line");
    command->footer(
        "With --field, each line is a record, and the texts at that path are cleaned; every other\n"
        "byte comes back as it was:\n"
        "\n"
        "  nerlo batch --field text < data.jsonl > clean.jsonl\n"
        "  nerlo batch --field 'messages[].content' --on-error drop data.jsonl.gz\n"
        "\n"
        "A path is names with dots between; \"[]\" means every item of an array, and a backslash\n"
        "takes the meaning from the character that follows. Where there is nothing, or null, "
        "there\n"
        "is nothing to clean. Options come as for `nerlo clean`. What is not JSON in UTF-8, or "
        "holds\n"
        "something else than a string at such a path, or a text on which a rule of yours is given\n"
        "up, is a bad line: the first one ends the work with status 1 (--on-error fail), or they\n"
        "stay as they are (pass) or are left out (drop), and a message tells how many.\n"
        "\n"
        "Without --field, each line is a request, and gets one answer, in the same order:\n"
        "\n"
        "  {\"id\": 1, \"text\": \"a  b\"}            ->  {\"id\":1,\"text\":\"a b\"}\n"
        "  {\"text\": \"a b\", \"operation\": 25}     ->  {\"id\":null,\"statistics\":{...}}\n"
        "  {\"id\": 2}                            ->  {\"id\":2,\"error\":\"no \\\"text\\\"\"}\n"
        "\n"
        "A request may hold \"id\" (any value, given back as it came), \"text\", \"operation\" "
        "(index\n"
        "or name; the full pipeline when missing), \"options\" (an object of settings keys that\n"
        "stands for a whole profile: a key that is missing is off, 0 or empty; without the "
        "object,\n"
        "--options, --profile and --set say which options hold, as for `nerlo clean`) and\n"
        "\"locale\". Operation 25 answers with the four counts. A line that cannot be answered\n"
        "gets an error, the rest goes on, and the exit status is 1 at the end; a blank line is\n"
        "skipped.\n"
        "\n"
        "Input compressed with gzip or zstd is unpacked; the output is plain. It does not depend "
        "on\n"
        "the number of jobs. A line may have 256 MiB.\n" +
        std::string(localeHelp));
    const auto arguments = std::make_shared<BatchArguments>();
    command->add_option("--jobs", arguments->jobs, "Work on so many blocks of lines at a time (1)")
        ->check(CLI::Range(1u, mostJobs))
        ->option_text("N");
    addTexts(*command, "--field", arguments->fields,
             "Clean this member of each record; may be given several times")
        ->type_name("PATH")
        ->allow_extra_args(false);
    command
        ->add_option("--on-error", arguments->onError, "What a bad line does: fail, pass or drop")
        ->type_name("WHAT");
    command->add_flag("--stats{statistics}", arguments->counts,
                      "Add the four counts of its clean texts to each record, as \"statistics\" or "
                      "=NAME");
    command
        ->add_option("--operation", arguments->operation,
                     "Run only this operation on the fields, whether or not it is on")
        ->type_name("INDEX|NAME");
    addOptions(*command, arguments->options);
    addLocale(*command, arguments->locale);
    command->add_option("file", arguments->file, "The lines; none or \"-\" is standard input")
        ->option_text("FILE");
    command->callback([arguments, &status] { status = runBatch(*arguments); });
}

} // namespace nerlo::cli
