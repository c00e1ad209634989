// nerlo batch: one JSON request a line in, one JSON answer a line out.
#include "cli/BatchAnswers.h"
#include "cli/Commands.h"
#include "cli/CommonArguments.h"
#include "cli/Input.h"
#include "cli/OrderedWorkers.h"
#include "cli/Output.h"
#include "cli/Progress.h"

#include <CLI/App.hpp>
#include <CLI/Formatter.hpp>

#include <cstdlib>
#include <functional>
#include <memory>

#include <unistd.h>

namespace nerlo::cli {

namespace {

constexpr std::size_t readAtMost = 64 * 1024;
constexpr std::size_t pieceSize = 8 * 1024;     // of requests for one thread
constexpr std::size_t writeAtLeast = 64 * 1024; // as long as more requests are waiting
constexpr unsigned mostJobs = 256;

struct BatchArguments {
    unsigned jobs = 1;
    OptionArguments options;
    std::string locale;
    std::string file = "-";
};

// Whole lines of an input; the last one may lack its line break.
class LineReader {
  public:
    LineReader(const std::string &file, Progress &progress)
        : name_(nameOf(file))
        , input_(file)
        , progress_(progress) {}

    // Calls `take` for all complete lines at hand, some at a time, and `idle` before it waits for
    // more.
    void run(const std::function<void(std::string_view)> &take, const std::function<void()> &idle) {
        for (;;) {
            const std::size_t kept = buffer_.size();
            buffer_.resize(kept + readAtMost);
            const std::size_t count =
                readSome(input_.descriptor(), buffer_.data() + kept, readAtMost, name_);
            buffer_.resize(kept + count);
            progress_.addRead(count);
            if (count == 0) {
                break;
            }
            handOut(kept, take);
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
    const InputFile input_;
    Progress &progress_;
    std::string buffer_;
};

// Writes answers and remembers which of them tell of an error.
class AnswerWriter {
  public:
    AnswerWriter(const std::string &file, Progress &progress)
        : name_(nameOf(file))
        , progress_(progress) {}

    void add(const Answers &answers) {
        if (answers.failed != 0 && failed_ == 0) {
            firstFailed_ = lines_ + answers.firstFailed;
        }
        failed_ += answers.failed;
        lines_ += answers.count;
        pending_ += answers.lines;
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
        if (failed_ == 0) {
            return ExitStatus::done;
        }
        report(name_ + ": " + std::to_string(failed_) + " of " + std::to_string(lines_) +
               " lines answered with an error, the first is line " + std::to_string(firstFailed_));
        return ExitStatus::ioFailed;
    }

  private:
    const std::string name_;
    Progress &progress_;
    std::string pending_;
    std::size_t lines_ = 0;
    std::size_t failed_ = 0;
    std::size_t firstFailed_ = 0; // counted from 1
};

// Called by a thread whose write has failed. It ends the whole program, because the main thread may
// be waiting for input that never comes.
[[noreturn]] void endNow(ExitStatus status) {
    std::_Exit(static_cast<int>(status));
}

ExitStatus runBatch(const BatchArguments &arguments) {
    engine::CleaningOptions options;
    options.setAllBools(chosenOptions(arguments.options));
    const BatchAnswers answers(std::move(options), arguments.locale);
    Progress progress;
    LineReader reader(arguments.file, progress);
    AnswerWriter writer(arguments.file, progress);
    if (arguments.jobs <= 1) {
        reader.run([&](std::string_view lines) { writer.add(answers.answerAll(lines)); },
                   [&] { writer.flush(); });
        return writer.finish();
    }
    {
        OrderedWorkers workers(
            arguments.jobs, [&](std::string_view lines) { return answers.answerAll(lines); },
            [&](const std::vector<Answers> &ready) {
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
        reader.run([&](std::string_view lines) { workers.push(std::string(lines)); }, [] {});
    }
    return writer.finish();
}

} // namespace

void addBatch(CLI::App &app, ExitStatus &status) {
    CLI::App *command = app.add_subcommand("batch", "Answer requests, one JSON object a line");
    command->footer(
        "Reads one request a line, from the file or standard input, and writes one answer a line,\n"
        "in the same order:\n"
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
        "skipped. The answers do not depend on the number of jobs.\n" +
        std::string(localeHelp) +
        "\n"
        "Example:\n"
        "  printf '{\"text\": \"a  b\"}\\n' | nerlo batch --jobs 2");
    const auto arguments = std::make_shared<BatchArguments>();
    command->add_option("--jobs", arguments->jobs, "Work on so many requests at a time (1)")
        ->check(CLI::Range(1u, mostJobs))
        ->option_text("N");
    addOptions(*command, arguments->options);
    addLocale(*command, arguments->locale);
    command->add_option("file", arguments->file, "The requests; none or \"-\" is standard input")
        ->option_text("FILE");
    command->callback([arguments, &status] { status = runBatch(*arguments); });
}

} // namespace nerlo::cli
