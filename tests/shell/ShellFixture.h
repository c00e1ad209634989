// The parts of the desktop program on memory backends.
#pragma once

#include "engine/nrChangePasterboard.h"
#include "platform/memory/MemoryActiveApplication.h"
#include "platform/memory/MemoryMainQueue.h"
#include "platform/memory/MemoryPasteboard.h"
#include "platform/memory/MemorySettingsStore.h"
#include "platform/memory/MemoryWorkerQueue.h"
#include "settings/nrPreferences.h"
#include "shell/nrPasteboardWatcher.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace nerlo::shell {

class ShellFixture : public testing::Test {
  protected:
    // A clipboard that announces its changes, or one that has to be polled.
    explicit ShellFixture(bool notifies = true)
        : pasteboard(queue, notifies) {}

    test::TemporaryFolder folder;
    platform::MemorySettingsStore store;
    platform::MemoryMainQueue queue;
    platform::MemoryWorkerQueue worker;
    platform::MemoryPasteboard pasteboard;
    platform::MemoryActiveApplication activeApplication;
    engine::nrChangePasterboard engine{pasteboard, queue, worker, "en_US"};
    nrPasteboardWatcher watcher{pasteboard, queue, activeApplication, engine};
    settings::nrPreferences preferences{
        store,
        queue,
        {folder / "defaults.plist", folder / "Data/profiles.nrp", folder / "Data/profilesFR.nrp"}};
};

} // namespace nerlo::shell
