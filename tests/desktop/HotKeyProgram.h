// The desktop program with its hot keys, for tests in a session: started, told its shortcuts by its
// own command line in another process, watched.
#pragma once

#include "Process.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace nerlo::test {

class HotKeyProgram : public testing::Test {
  protected:
    static std::string program() {
        return std::filesystem::read_symlink("/proc/self/exe").parent_path() /
               "../../shell/nerlo-pro";
    }

    void start() {
        process_ = std::make_unique<Process>(Arguments{"sh", "-c", "exec \"$0\" 2>&1", program()});
    }
    std::string output() const { return process_->output(); }
    bool says(const std::string &line) {
        return until([&] { return output().find(line) != std::string::npos; });
    }
    // What became of a shortcut, once the program runs: "clean=Super+V: works".
    static bool finds(const std::string &finding) {
        return until([&] {
            const auto report = outputOf({program(), "--doctor"}).value_or("");
            return report.find("\n  " + finding + "\n") != std::string::npos;
        });
    }

    // "remove-all-spaces=Super+R"
    static void store(const std::string &shortcut) {
        ASSERT_TRUE(outputOf({program(), "--shortcut", shortcut})) << shortcut;
    }

    std::unique_ptr<Process> process_;
};

} // namespace nerlo::test
