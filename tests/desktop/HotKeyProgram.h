// The desktop program with its hot keys, for tests in a session: started, told its settings by
// another process, watched.
#pragma once

#include "Process.h"
#include "platform/linux/FileSettingsStore.h"
#include "settings/SettingsPaths.h"
#include "shortcuts/nrShortcut.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
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

    // As any other program would write the settings.
    static void store(const char *key, std::optional<shortcuts::nrShortcut> shortcut) {
        platform::FileSettingsStore store(settings::SettingsPaths::standard().store);
        if (shortcut) {
            store.set(key, shortcut->data());
        } else {
            store.remove(key);
        }
        ASSERT_TRUE(store.synchronize());
    }
    static std::optional<shortcuts::nrShortcut> stored(const char *key) {
        const platform::FileSettingsStore store(settings::SettingsPaths::standard().store);
        const auto *data = store.dataForKey(key);
        return data ? shortcuts::nrShortcut::shortcutWithData(*data) : std::nullopt;
    }

    std::unique_ptr<Process> process_;
};

} // namespace nerlo::test
