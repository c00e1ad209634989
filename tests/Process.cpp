#include "tests/Process.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace nerlo::test {

Process::Process(const Arguments &command, std::string_view input) {
    putBytes(folder_ / "in", std::string(input));
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, (folder_ / "in").c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, (folder_ / "out").c_str(), O_WRONLY | O_CREAT,
                                     0600);
    std::vector<char *> arguments;
    for (const auto &argument : command) {
        arguments.push_back(const_cast<char *>(argument.c_str()));
    }
    arguments.push_back(nullptr);
    const int failed =
        posix_spawnp(&pid_, arguments[0], &files, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&files);
    if (failed) {
        pid_ = -1;
        status_ = 127;
        ADD_FAILURE() << "cannot start " << command[0];
    }
}

Process::~Process() {
    if (!status_) {
        kill(pid_, SIGKILL);
        wait();
    }
}

std::string Process::output() const {
    return bytesOf(folder_ / "out");
}

std::optional<int> Process::wait(std::chrono::milliseconds limit) {
    until(
        [this] {
            int status = 0;
            rusage usage{};
            if (!status_ && wait4(pid_, &status, WNOHANG, &usage) == pid_) {
                peakKilobytes_ = usage.ru_maxrss;
                status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
            }
            return status_.has_value();
        },
        limit);
    return status_;
}

void xdotool(const Arguments &arguments) {
    Arguments command{"xdotool"};
    command.insert(command.end(), arguments.begin(), arguments.end());
    EXPECT_TRUE(outputOf(command)) << arguments.front();
}

std::optional<std::string> outputOf(const Arguments &command, std::string_view input) {
    Process process(command, input);
    return process.wait() == 0 ? std::optional(process.output()) : std::nullopt;
}

} // namespace nerlo::test
