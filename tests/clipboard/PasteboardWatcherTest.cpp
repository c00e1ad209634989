// The automatic mode on a clock moved by hand.
#include "tests/clipboard/ClipboardFixture.h"

namespace nerlo::clipboard {
namespace {

using namespace std::chrono_literals;

// Each test runs on both kinds of clipboards.
class PasteboardWatcherTest : public test::ClipboardFixture,
                              public testing::WithParamInterface<bool> {
  protected:
    PasteboardWatcherTest()
        : ClipboardFixture(GetParam()) {}

    void advance(platform::MainQueue::Clock::duration duration) { queue.advance(duration); }
    // How many cleans have begun. None of them ends before `finish`.
    std::size_t cleans() const { return worker.size(); }
    void finish() {
        worker.runAll();
        queue.runPosted();
    }
    void copyLink(const char *format) {
        const auto bytes = std::make_shared<const std::string>("cells");
        pasteboard.copy({{"UTF8_STRING", {}, bytes}, {format, {}, bytes}});
    }
};

INSTANTIATE_TEST_SUITE_P(Clipboards, PasteboardWatcherTest, testing::Bool(),
                         [](const auto &tested) { return tested.param ? "Notifies" : "Polled"; });

TEST_P(PasteboardWatcherTest, TicksFirstAfterTwoSecondsThenEveryHalf) {
    watcher.start();
    pasteboard.copyText("early");
    advance(1999ms);
    EXPECT_EQ(cleans(), 0u);
    advance(1ms);
    EXPECT_EQ(cleans(), 1u);
    pasteboard.copyText("just after a tick");
    advance(499ms);
    EXPECT_EQ(cleans(), 1u);
    advance(1ms);
    EXPECT_EQ(cleans(), 2u);
    // Off the grid, the tick still is on it.
    advance(10s + 123ms);
    pasteboard.copyText("after a long rest");
    advance(376ms);
    EXPECT_EQ(cleans(), 2u);
    advance(1ms);
    EXPECT_EQ(cleans(), 3u);
}

TEST_P(PasteboardWatcherTest, AnIdleClipboardThatNotifiesIsNotLookedAt) {
    watcher.start();
    advance(1min);
    EXPECT_EQ(queue.delayedCount(), GetParam() ? 0u : 1u);
    pasteboard.copyText("a");
    queue.runPosted();
    EXPECT_EQ(queue.delayedCount(), 1u);
    advance(500ms);
    finish();
    advance(1min);
    EXPECT_EQ(queue.delayedCount(), GetParam() ? 0u : 1u);
    watcher.stop();
    EXPECT_EQ(queue.delayedCount(), 0u);
}

TEST_P(PasteboardWatcherTest, CleansEachNewContentOnce) {
    watcher.start();
    advance(5s);
    EXPECT_EQ(cleans(), 0u) << "what stood there before the watcher was made";
    for (const auto *text : {"1", "2", "3", "4", "5"}) {
        pasteboard.copyText(text);
    }
    advance(500ms);
    EXPECT_EQ(cleans(), 1u);
    advance(5s);
    EXPECT_EQ(cleans(), 1u) << "while the clean runs";
    finish();
    EXPECT_EQ(pasteboard.bytes("text/plain"), "5");
    advance(5s);
    EXPECT_EQ(cleans(), 0u) << "our own write";
    pasteboard.copyText("5");
    advance(500ms);
    EXPECT_EQ(cleans(), 1u) << "the same text again is a new copy";
}

TEST_P(PasteboardWatcherTest, ACopyDuringACleanIsCleanedInItsTurn) {
    watcher.start();
    advance(2s);
    pasteboard.copyText("first");
    advance(500ms);
    pasteboard.copyText("second");
    finish();
    EXPECT_EQ(pasteboard.bytes("text/plain"), "second");
    advance(500ms);
    EXPECT_EQ(cleans(), 1u);
    // A copy right behind our write is not taken for it.
    finish();
    pasteboard.copyText("third");
    finish();
    advance(500ms);
    EXPECT_EQ(cleans(), 1u);
}

TEST_P(PasteboardWatcherTest, AManualCleanIsNotFollowedByAnAutomaticOne) {
    for (const bool running : {false, true}) {
        SCOPED_TRACE(running);
        pasteboard.copyText("a");
        engine.changePasteboardWithKeys(1);
        queue.runPosted();
        finish();
        if (!running) {
            watcher.start();
        }
        advance(5s);
        EXPECT_EQ(cleans(), 0u);
    }
}

TEST_P(PasteboardWatcherTest, CleansAtOnceWhereChangesAreAnnounced) {
    watcher.setAtOnce(true);
    pasteboard.copyText("before the start");
    queue.runPosted();
    EXPECT_EQ(cleans(), 0u);
    watcher.start();
    for (const auto *text : {"1 ", "2 "}) {
        pasteboard.copy({{"UTF8_STRING", {}, std::make_shared<const std::string>(text)},
                         {"text/html", {}, std::make_shared<const std::string>(text)}});
        queue.runPosted();
        EXPECT_EQ(cleans(), GetParam() ? 1u : 0u);
        finish();
        advance(2s);
        finish();
        EXPECT_EQ(pasteboard.bytes("text/html"), "") << "it has been cleaned";
        EXPECT_EQ(pasteboard.bytes("TEXT"), text);
        advance(10s);
        EXPECT_EQ(cleans(), 0u) << "our own write is no copy";
    }
}

TEST_P(PasteboardWatcherTest, StopsAndStartsAfresh) {
    watcher.stop();
    watcher.start();
    advance(10s);
    pasteboard.copyText("a");
    queue.runPosted();
    watcher.stop();
    EXPECT_FALSE(watcher.running());
    advance(10s);
    EXPECT_EQ(cleans(), 0u);
    watcher.start();
    watcher.start();
    advance(1999ms);
    EXPECT_EQ(cleans(), 0u);
    advance(1ms);
    EXPECT_EQ(cleans(), 1u);
}

TEST_P(PasteboardWatcherTest, WhatIsPutBackWhenItsProgramHasGoneIsNoNewCopy) {
    watcher.start();
    advance(2s);
    pasteboard.copyText("stays its program's");
    advance(500ms);
    finish();
    copyLink(putBackFormat);
    advance(500ms);
    EXPECT_EQ(cleans(), 0u) << "the copy was dealt with";
    copyLink("text/html");
    advance(500ms);
    finish();
    EXPECT_EQ(pasteboard.bytes("text/html"), "") << "now it is ours";
    copyLink(putBackFormat);
    advance(500ms);
    EXPECT_EQ(cleans(), 1u) << "a copy that was never seen";
}

TEST_P(PasteboardWatcherTest, SparesLinkedCellsOnlyWhereTheExceptionHolds) {
    const auto calcLink = R"(application/x-openoffice-link;windows_formatname="Link")";
    const auto calcCells = R"(application/x-openoffice-sylk;windows_formatname="Sylk")";
    const struct {
        const char *name;
        bool exception;
        std::vector<std::string> activated;
        const char *format;
        std::size_t cleans;
    } rows[] = {
        {"off", false, {"com.microsoft.Excel"}, "Link", 1},
        {"Excel was in front already", true, {}, "Link", 1},
        {"Excel", true, {"com.microsoft.Excel"}, "Link", 0},
        {"in other letter case", true, {"COM.MICROSOFT.EXCEL"}, "Link", 0},
        {"the type itself", true, {"com.microsoft.excel"}, "com.microsoft.Link", 0},
        {"Excel without a link", true, {"com.microsoft.Excel"}, "text/html", 1},
        {"Calc", true, {"org.libreoffice.Calc"}, calcLink, 0},
        {"Calc's link in Excel", true, {"com.microsoft.Excel"}, calcLink, 1},
        {"another program", true, {"com.microsoft.Excel", "xterm"}, "Link", 1},
        {"a program without a name", true, {"com.microsoft.Excel", ""}, "Link", 1},
        {"cells, where no program is told", true, {}, calcCells, 0},
        {"and the exception is off", false, {}, calcCells, 1},
    };
    watcher.start();
    advance(2s);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        watcher.toggleEngine(row.exception);
        for (const auto &identifier : row.activated) {
            activeApplication.activate(identifier);
        }
        copyLink(row.format);
        advance(10s);
        EXPECT_EQ(cleans(), row.cleans);
        finish();
        if (row.cleans == 0) {
            EXPECT_EQ(pasteboard.bytes(row.format), "cells");
            // Accepted as handled: switching the exception off does not bring it back.
            watcher.toggleEngine(false);
            advance(10s);
            EXPECT_EQ(cleans(), 0u);
        }
        watcher.toggleEngine(false);
    }
}

TEST_P(PasteboardWatcherTest, SwitchingTheExceptionOnSubscribesAndAcceptsWhatIsThere) {
    watcher.start();
    advance(2s);
    pasteboard.copyText("a");
    watcher.toggleEngine(true);
    advance(1s);
    EXPECT_EQ(cleans(), 0u);
    watcher.toggleEngine(true);
    EXPECT_EQ(activeApplication.subscriptions, 2);
    activeApplication.activate("xterm");
    watcher.toggleEngine(true);
    EXPECT_EQ(activeApplication.subscriptions, 2);
}

TEST_P(PasteboardWatcherTest, RemembersWhichProgramWasInFrontAtTheCopy) {
    int told = 0;
    watcher.setProgramHandler([&] { ++told; });
    watcher.followPrograms();
    watcher.start();
    activeApplication.activate("xterm");
    EXPECT_EQ(watcher.lastProgram(), "");
    advance(2s);
    pasteboard.copyText("a ");
    queue.runPosted();
    if (!GetParam()) {
        advance(500ms); // nothing tells of the copy before the tick
    }
    activeApplication.activate("mousepad");
    advance(500ms);
    finish();
    EXPECT_EQ(watcher.lastProgram(), "xterm");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(engine.decided().copy.program, "xterm");
    engine.changePasteboard();
    queue.runPosted();
    finish();
    EXPECT_EQ(engine.decided().copy.program, "xterm") << "our own text came from there";
    watcher.toggleEngine(true);
    watcher.toggleEngine(false);
    activeApplication.activate("foot");
    pasteboard.copyText("b");
    advance(500ms);
    EXPECT_EQ(watcher.lastProgram(), "foot") << "also after the exception";
}

TEST_P(PasteboardWatcherTest, AHungSpreadsheetDelaysNothingElse) {
    watcher.start();
    advance(2s);
    watcher.toggleEngine(true);
    activeApplication.activate("com.microsoft.Excel");
    pasteboard.copyText("hangs", {.delay = 1h});
    advance(1s);
    pasteboard.copyText("a");
    advance(10s);
    EXPECT_EQ(cleans(), 1u);
}

TEST(PasteboardWatcher, TellsTheSystemsGeneration) {
    const std::pair<double, int> rows[] = {{1038.36, 106}, {1039, 107}, {1138.9, 107}, {1139, 108},
                                           {1187.99, 108}, {1188, 109}, {2000, 109}};
    for (const auto &[version, generation] : rows) {
        EXPECT_EQ(nrPasteboardWatcher::checkVersion(version), generation) << version;
    }
}

} // namespace
} // namespace nerlo::clipboard
