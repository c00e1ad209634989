#include "cli/ChangedLines.h"

#include "cli/Failure.h"
#include "cli/Input.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace nerlo::cli {

namespace {

struct Ended {
    int status = 0; // 128 and more when a signal ended it
    std::string output;
};

// Without a shell: each argument reaches git as it is. Its messages go to standard error.
Ended runGit(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"git", "--literal-pathspecs"});
    std::vector<char *> pointers;
    for (std::string &argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        throw Failure(ExitStatus::ioFailed, systemMessage("git", errno));
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    pid_t child = -1;
    const int error = posix_spawnp(&child, "git", &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    Ended ended;
    char block[16 * 1024];
    while (error == 0) {
        const ssize_t count = ::read(ends[0], block, sizeof block);
        if (count > 0) {
            ended.output.append(block, static_cast<std::size_t>(count));
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    close(ends[0]);
    if (error != 0) {
        throw Failure(ExitStatus::unusableArguments, systemMessage("git", error));
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    ended.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return ended;
}

// "@@ -1,2 +3,4 @@ ..." says that lines 3 to 6 are new; the number behind the comma may be missing
// and is then 1. Nothing where lines were only taken away.
std::optional<std::pair<std::size_t, std::size_t>> newLinesOf(std::string_view header) {
    const std::size_t plus = header.find(" +");
    if (plus == header.npos) {
        return std::nullopt;
    }
    const char *const end = header.data() + header.size();
    std::size_t first = 0;
    std::size_t count = 1;
    const auto [behind, error] = std::from_chars(header.data() + plus + 2, end, first);
    if (error != std::errc()) {
        return std::nullopt;
    }
    if (behind != end && *behind == ',') {
        std::from_chars(behind + 1, end, count);
    }
    return count == 0 ? std::nullopt : std::optional(std::pair(first, first + count - 1));
}

[[noreturn]] void refuseFile(const std::string &file) {
    throw Failure(ExitStatus::ioFailed, file + ": git cannot tell which lines were changed");
}

} // namespace

ChangedLines::ChangedLines(const std::string &ref) {
    const Ended ended =
        runGit({"rev-parse", "--verify", "--quiet", "--end-of-options", ref + "^{commit}"});
    commit_ = ended.output.substr(0, ended.output.find('\n'));
    if (ended.status != 0 || commit_.empty()) {
        throw Failure(ExitStatus::unusableArguments,
                      "git knows no commit \"" + ref + "\" in this folder");
    }
}

void ChangedLines::read(const std::string &file) {
    // Whatever the user's settings and the repository's attributes say. The file's name is quoted
    // by git if it has line breaks, and a line of its text begins with "+" or "-": only the head of
    // a hunk begins with "@@".
    const Ended diff = runGit({"-c", "core.quotePath=true", "diff", "--unified=0",
                               "--inter-hunk-context=0", "--no-color", "--no-ext-diff",
                               "--no-textconv", "--no-renames", "--text", commit_, "--", file});
    if (diff.status != 0) {
        refuseFile(file);
    }
    ranges_.clear();
    for (std::string_view rest = diff.output; !rest.empty();) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        if (rest.starts_with("@@ ")) {
            if (const auto lines = newLinesOf(rest.substr(0, end))) {
                ranges_.push_back(*lines);
            }
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (diff.output.empty()) {
        const Ended known = runGit({"ls-files", "-z", "--", file});
        if (known.status != 0) {
            refuseFile(file);
        }
        if (known.output.empty()) {
            ranges_ = {{1, SIZE_MAX}};
        }
    }
}

bool ChangedLines::hold(std::size_t first, std::size_t last) const {
    const auto range =
        std::ranges::partition_point(ranges_, [&](const auto &one) { return one.second < first; });
    return range != ranges_.end() && range->first <= last;
}

} // namespace nerlo::cli
