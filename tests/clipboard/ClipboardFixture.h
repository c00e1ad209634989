// The clipboard's job on fakes.
#pragma once

#include "clipboard/nrChangePasterboard.h"
#include "clipboard/nrPasteboardWatcher.h"
#include "tests/fakes/MemoryActiveApplication.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemoryPasteboard.h"
#include "tests/fakes/MemoryWorkerQueue.h"

#include <gtest/gtest.h>

namespace nerlo::test {

class ClipboardFixture : public testing::Test {
  protected:
    // A clipboard that announces its changes, or one that has to be polled.
    explicit ClipboardFixture(bool notifies = true)
        : pasteboard(queue, notifies) {}

    MemoryMainQueue queue;
    MemoryWorkerQueue worker;
    MemoryPasteboard pasteboard;
    MemoryActiveApplication activeApplication;
    clipboard::nrChangePasterboard engine{pasteboard, queue, worker, "en_US"};
    clipboard::nrPasteboardWatcher watcher{pasteboard, queue, activeApplication, engine};
};

} // namespace nerlo::test
