#include "tests/cli/RunNerlo.h"

namespace nerlo::test {

Ended NerloRun::toEnd() const {
    const TemporaryFolder folder;
    Arguments command{"env", "LC_ALL=en_US.UTF-8", "HOME=/nonexistent",
                      "XDG_CONFIG_HOME=/nonexistent", "XDG_DATA_HOME=/nonexistent"};
    for (const char *name : {"LANGUAGE", "LC_CTYPE", "LC_MESSAGES", "LC_COLLATE", "LANG"}) {
        command.insert(command.begin() + 1, {"-u", name});
    }
    for (const auto &[name, value] : environment) {
        command.push_back(name + "=" + value);
    }
    command.insert(command.end(),
                   {"sh", "-c", before + "\nexec \"$@\" 2>\"$0\"", folder / "err", NERLO_PROGRAM});
    command.insert(command.end(), arguments.begin(), arguments.end());
    Process process(command, input);
    Ended ended;
    ended.status = process.wait(std::chrono::minutes(10)).value_or(-1);
    ended.out = process.output();
    ended.err = bytesOf(folder / "err");
    ended.peakKilobytes = process.peakKilobytes();
    return ended;
}

} // namespace nerlo::test
