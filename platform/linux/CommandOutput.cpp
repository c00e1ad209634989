#include "platform/linux/CommandOutput.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

using Clock = std::chrono::steady_clock;

pid_t start(const std::vector<std::string> &command, int output) {
    std::vector<char *> arguments;
    for (const auto &argument : command) {
        arguments.push_back(const_cast<char *>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    if (posix_spawn_file_actions_init(&actions) != 0) {
        return -1;
    }
    posix_spawnattr_t attributes;
    if (posix_spawnattr_init(&attributes) != 0) {
        posix_spawn_file_actions_destroy(&actions);
        return -1;
    }
    // Signals are blocked in the thread that this runs on, which is no business of the command's.
    sigset_t none;
    sigemptyset(&none);
    pid_t pid = -1;
    const bool started =
        posix_spawnattr_setsigmask(&attributes, &none) == 0 &&
        posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK) == 0 &&
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0) == 0 &&
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO) == 0 &&
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0) == 0 &&
        posix_spawnp(&pid, arguments[0], &actions, &attributes, arguments.data(), environ) == 0;
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&actions);
    return started ? pid : -1;
}

// False when a limit was reached.
bool readAll(int from, Clock::time_point end, std::size_t limit, std::string &text) {
    std::array<char, 16384> piece{};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        pollfd waiting{from, POLLIN, 0};
        const int ready = left <= 0 ? 0 : poll(&waiting, 1, static_cast<int>(left));
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (ready <= 0) {
            return false;
        }
        const ssize_t got = read(from, piece.data(), piece.size());
        if (got == 0) {
            return true;
        }
        if (got < 0 || text.size() + static_cast<std::size_t>(got) > limit) {
            return false;
        }
        text.append(piece.data(), static_cast<std::size_t>(got));
    }
}

} // namespace

std::string outputOfCommand(const std::vector<std::string> &command, CommandLimits limits) {
    std::array<int, 2> pipe{};
    if (command.empty() || pipe2(pipe.data(), O_CLOEXEC) != 0) {
        return {};
    }
    const pid_t pid = start(command, pipe[1]);
    close(pipe[1]);
    std::string text;
    bool whole = pid > 0 && readAll(pipe[0], Clock::now() + limits.time, limits.bytes, text);
    close(pipe[0]);
    if (pid > 0) {
        // A command that has closed its output is about to exit; any other has used up its time.
        if (!whole) {
            kill(pid, SIGKILL);
        }
        int status = 0;
        while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
        }
        whole = whole && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    return whole ? text : std::string();
}

} // namespace nerlo::platform
