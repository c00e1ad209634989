// The desktop program on fakes, in a home of its own.
#pragma once

#include "platform/xkb/XkbKeyboardLayout.h"
#include "shell/Program.h"
#include "tests/TemporaryFolder.h"
#include "tests/fakes/MemoryActiveApplication.h"
#include "tests/fakes/MemoryHotKeys.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemoryPasteboard.h"
#include "tests/fakes/MemoryWorkerQueue.h"

#include <gtest/gtest.h>

#include <memory>

namespace nerlo::shell {

class ProgramFixture : public testing::Test {
  protected:
    struct NoSystemHotKeys final : platform::SystemHotKeys {
        std::vector<platform::SystemHotKey> symbolicHotKeys() override { return {}; }
    };
    struct NoLoginItem final : platform::LoginItem {
        std::string setEnabled(bool) override { return {}; }
        bool enabled() const override { return false; }
    };

    // Where it has what to clean.
    Desktop makeDesktop() {
        return {
            std::make_unique<platform::Backends>(queue),
            {std::make_unique<test::MemoryPasteboard>(queue), {}},
            {std::make_unique<test::MemoryActiveApplication>(), {}},
            {std::make_unique<platform::XkbKeyboardLayout>(platform::xkb::Keymap::fromNames("us")),
             {}},
            {std::make_unique<test::MemoryHotKeys>(), {}},
            {},
            {},
            std::make_unique<NoSystemHotKeys>(),
            std::make_unique<NoLoginItem>()};
    }
    void finishWork() {
        queue.runPosted();
        worker.runAll();
        queue.runPosted();
    }

    test::TemporaryFolder folder;
    test::MemoryMainQueue queue;
    test::MemoryWorkerQueue worker;
    Desktop desktop = makeDesktop();
    test::MemoryPasteboard &pasteboard =
        static_cast<test::MemoryPasteboard &>(*desktop.clipboard.backend);
    Program program{{queue,
                     worker,
                     desktop,
                     {folder / "defaults.plist", folder / "Data/profiles.nrp",
                      folder / "Data/profilesFR.nrp", folder / "Data/removedProfiles.nrp"},
                     {}}};
    settings::nrPreferences &preferences = program.preferences();
    storage::SettingsStore &store = program.store();
};

} // namespace nerlo::shell
