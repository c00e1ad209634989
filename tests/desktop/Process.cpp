#include "tests/desktop/Process.h"

#include "tests/TemporaryFolder.h"

#include <cstdlib>
#include <filesystem>

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ;

namespace nerlo::test {

namespace {

std::string sessionFile() {
    static int number = 0;
    return std::string(std::getenv("NERLO_SESSION_DIR")) + "/" + std::to_string(getpid()) + "." +
           std::to_string(number++);
}

} // namespace

Process::Process(const Arguments &command, std::string_view input)
    : outputPath_(sessionFile()) {
    const std::string inputPath = sessionFile();
    putBytes(inputPath, std::string(input));
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, 0, inputPath.c_str(), O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, outputPath_.c_str(), O_WRONLY | O_CREAT, 0600);
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
    std::filesystem::remove(inputPath);
}

Process::~Process() {
    if (!status_) {
        signal(SIGKILL);
        wait();
    }
    std::filesystem::remove(outputPath_);
}

std::string Process::output() const {
    return bytesOf(outputPath_);
}

bool Process::waitForLine(std::string_view line) {
    const std::string whole = std::string(line) + "\n";
    const auto printed = [&] {
        const std::string text = output();
        return text.starts_with(whole) || text.find("\n" + whole) != std::string::npos;
    };
    until([&] { return printed() || wait(std::chrono::milliseconds(0)); });
    return printed();
}

std::optional<int> Process::wait(std::chrono::milliseconds limit) {
    until(
        [this] {
            int status = 0;
            if (!status_ && waitpid(pid_, &status, WNOHANG) == pid_) {
                status_ = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
            }
            return status_.has_value();
        },
        limit);
    return status_;
}

void Process::signal(int number) const {
    if (!status_) {
        kill(pid_, number);
    }
}

std::optional<std::string> outputOf(const Arguments &command, std::string_view input) {
    Process process(command, input);
    return process.wait() == 0 ? std::optional(process.output()) : std::nullopt;
}

} // namespace nerlo::test
