#include "tests/cli/RunNerlo.h"

#include <array>
#include <cstdlib>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace nerlo::test {

pid_t NerloRun::start(int in, int out, int err) const {
    std::vector<std::string> words{NERLO_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char *> argv;
    for (std::string &word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);

    const pid_t child = fork();
    if (child == 0) {
        dup2(in, STDIN_FILENO);
        dup2(out, STDOUT_FILENO);
        dup2(err, STDERR_FILENO);
        for (const char *name : {"LANGUAGE", "LC_CTYPE", "LC_MESSAGES", "LC_COLLATE", "LANG"}) {
            unsetenv(name);
        }
        setenv("LC_ALL", "en_US.UTF-8", 1);
        for (const char *name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
            setenv(name, "/nonexistent", 1); // no profiles of the machine's user
        }
        for (const auto &[name, value] : environment) {
            setenv(name.c_str(), value.c_str(), 1);
        }
        if (inChild) {
            inChild();
        }
        execv(NERLO_PROGRAM, argv.data());
        _exit(127);
    }
    return child;
}

Ended NerloRun::toEnd() const {
    const TemporaryFolder folder;
    putBytes(folder / "in", input);
    const int in = open((folder / "in").c_str(), O_RDONLY | O_CLOEXEC);
    const int out = open((folder / "out").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const int err = open((folder / "err").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const pid_t child = start(in, out, err);
    for (const int descriptor : {in, out, err}) {
        close(descriptor);
    }
    Ended ended;
    ended.status = waitFor(child, &ended.peakKilobytes);
    ended.out = bytesOf(folder / "out");
    ended.err = bytesOf(folder / "err");
    return ended;
}

pid_t NerloRun::start(int *toChild, int *fromChild) const {
    std::array<int, 2> in{};
    std::array<int, 2> out{};
    EXPECT_EQ(pipe2(in.data(), O_CLOEXEC), 0);
    EXPECT_EQ(pipe2(out.data(), O_CLOEXEC), 0);
    const pid_t child = start(in[0], out[1], STDERR_FILENO);
    close(in[0]);
    close(out[1]);
    *toChild = in[1];
    *fromChild = out[0];
    return child;
}

int waitFor(pid_t child, long *peakKilobytes) {
    int status = 0;
    rusage usage{};
    if (wait4(child, &status, 0, &usage) != child) {
        return -1;
    }
    if (peakKilobytes) {
        *peakKilobytes = usage.ru_maxrss;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

} // namespace nerlo::test
