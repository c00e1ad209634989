// The Wayland clipboard against a compositor, owners and receivers that do what real ones should
// not.
#include "platform/wayland/WaylandPasteboard.h"

#include "platform/linux/Transfer.h"
#include "platform/wayland/DataControl.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/platform/PasteboardUser.h"
#include "tests/platform/wayland/FakeCompositor.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <mutex>
#include <optional>
#include <random>
#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;
using test::content;
using test::FakeCompositor;
using test::Strings;
using wayland::dataControls;

// Made before the clipboard under test and destroyed after it.
struct Around {
    test::MemoryMainQueue queue;
    IoThread io;
    FakeCompositor compositor;
};

struct Desktop : Around, test::PasteboardUser {
    explicit Desktop(const wl_interface *manager = dataControls[0].manager, int seats = 1)
        : Around{{}, {}, FakeCompositor(manager, seats)}
        , PasteboardUser{Around::queue, {}} {
        auto created = createWaylandPasteboard(queue, io, compositor.display());
        pasteboard = std::move(created.backend);
        declined = created.declined;
    }
    void startRead(const Strings &formats) {
        startedRead.reset();
        pasteboard->read(pasteboard->changeCount(), {formats, 1 << 20, {}, 1 << 20},
                         [&](PasteboardRead got) { startedRead = std::move(got); });
    }

    using Around::io;
    using Around::queue;
    std::string declined;
    std::optional<PasteboardRead> startedRead;
};

TEST(WaylandPasteboard, CountsReadsAndWritesUnderBothNamesOfTheProtocol) {
    for (const auto &protocol : dataControls) {
        SCOPED_TRACE(protocol.name);
        Desktop desktop(protocol.manager);
        ASSERT_TRUE(desktop.pasteboard) << desktop.declined;
        EXPECT_EQ(desktop.pasteboard->description(), std::string("Wayland, ") + protocol.name);
        EXPECT_EQ(desktop.compositor.version(), 1) << "later ones wake it for all marked text";
        int changes = 0;
        desktop.pasteboard->setChangeHandler([&] { ++changes; });
        desktop.queue.runPosted();
        changes = 0;
        const auto start = desktop.pasteboard->changeCount();
        desktop.compositor.copyText("one");
        ASSERT_TRUE(desktop.untilCount(start + 1));
        ASSERT_TRUE(desktop.until([&] { return changes == 1; }));
        EXPECT_EQ(desktop.formats().formats, Strings{"text/plain;charset=utf-8"});
        EXPECT_EQ(desktop.text(), "one");

        const auto written = desktop.write(content({"text/plain", "text/html"}, "two"), start + 1);
        EXPECT_EQ(written.status, PasteboardStatus::done);
        EXPECT_EQ(written.changeCount, start + 2);
        EXPECT_EQ(desktop.pasteboard->changeCount(), start + 2);
        EXPECT_EQ(desktop.compositor.programFormats(), (Strings{"text/plain", "text/html"}));
        EXPECT_EQ(desktop.compositor.paste("text/html"), "two");
        EXPECT_EQ(desktop.text("text/plain"), "two") << "our own content, through the compositor";

        EXPECT_EQ(desktop.write({}).changeCount, start + 3);
        EXPECT_EQ(desktop.formats().formats, Strings());
        desktop.compositor.copyText("three");
        desktop.compositor.empty();
        ASSERT_TRUE(desktop.untilCount(start + 5));
        EXPECT_EQ(desktop.pasteboard->changeCount(), desktop.formats().changeCount);
    }
}

TEST(WaylandPasteboard, WhatStandsThereBeforeItIsNotAChange) {
    FakeCompositor compositor(dataControls[1].manager);
    compositor.copyText("old");
    test::MemoryMainQueue queue;
    IoThread io;
    const auto pasteboard = createWaylandPasteboard(queue, io, compositor.display()).backend;
    const auto start = pasteboard->changeCount();
    std::optional<PasteboardFormats> formats;
    pasteboard->readFormats([&](PasteboardFormats got) { formats = std::move(got); });
    ASSERT_TRUE(test::until(queue, [&] { return formats.has_value(); }));
    EXPECT_EQ(formats->formats.size(), 1u);
    EXPECT_EQ(pasteboard->changeCount(), start);
}

TEST(WaylandPasteboard, AnOwnWriteDoesNotShowInTheCountBeforeItsHandlerHasRun) {
    Desktop desktop;
    const auto start = desktop.pasteboard->changeCount();
    ChangeCount inHandler = 0;
    desktop.pasteboard->write(content({"text/plain"}, "own"), {},
                              [&](PasteboardWrite result) { inHandler = result.changeCount; });
    ASSERT_TRUE(test::until([&] { return !desktop.compositor.programFormats().empty(); }));
    // The compositor has the write, but its handler has not run yet; until then the count must not
    // change, or it would look like another program's copy.
    EXPECT_EQ(desktop.compositor.paste("text/plain"), "own");
    EXPECT_EQ(desktop.pasteboard->changeCount(), start);
    ASSERT_TRUE(desktop.until([&] { return inHandler != 0; }));
    EXPECT_EQ(inHandler, start + 1);
    EXPECT_EQ(desktop.pasteboard->changeCount(), start + 1);
}

TEST(WaylandPasteboard, WritesThatMeetAnotherProgramsCopy) {
    Desktop desktop;
    const auto start = desktop.pasteboard->changeCount();
    desktop.compositor.copyText("newer");
    EXPECT_EQ(desktop.write(content({"text/plain"}, "late"), start).status,
              PasteboardStatus::changed);
    EXPECT_EQ(desktop.compositor.programFormats(), Strings()) << "the newer copy is kept";

    desktop.compositor.overtakeNextWrite();
    auto written = desktop.write(content({"text/plain"}, "overtaken"));
    EXPECT_EQ(written.status, PasteboardStatus::done);
    EXPECT_EQ(written.changeCount, start + 2);
    ASSERT_TRUE(desktop.untilCount(start + 3)) << "the copy after it is news";

    desktop.compositor.keepOwnWritesQuiet();
    written = desktop.write(content({"text/plain"}, "quiet"));
    EXPECT_EQ(written.changeCount, start + 4) << "counted even if the compositor keeps it from us";
    EXPECT_EQ(desktop.pasteboard->changeCount(), start + 4);
}

void say(int fd, const std::string &text) {
    [[maybe_unused]] const auto written = write(fd, text.data(), text.size());
}

TEST(WaylandPasteboard, AFormatThatIsLateOrTooLargeCostsOnlyItself) {
    Desktop desktop;
    const auto start = desktop.pasteboard->changeCount();
    std::vector<FileDescriptor> kept;
    const auto hang = [&](const std::string &format, int fd) {
        const bool late = format.starts_with("late");
        say(fd, late ? "half" : format == "large" ? std::string(2000, 'x') : format);
        if (late) {
            kept.emplace_back(fd);
        } else {
            close(fd);
        }
    };
    const Strings others{"late 1", "b", "late 2", "c", "late 3", "d", "large", "e"};
    Strings all{"late", "a"};
    all.insert(all.end(), others.begin(), others.end());
    desktop.compositor.copy(all, hang);
    ASSERT_TRUE(desktop.untilCount(start + 1));
    auto before = std::chrono::steady_clock::now();
    const auto result = desktop.read({{"never offered", "a"}, 10, others, 1000});
    EXPECT_EQ(result.status, PasteboardStatus::done);
    std::string got;
    for (const auto &data : result.content) {
        got += *data.bytes + ' ';
    }
    EXPECT_EQ(got, "a b c d e ");
    EXPECT_LT(std::chrono::steady_clock::now() - before, pasteboardReadLimit / 2);

    // Without the first there is nothing to wait for, and the next copy does not wait either.
    EXPECT_EQ(desktop.read({{"late", "a"}, 10, others, 1000}).status, PasteboardStatus::timedOut);
    desktop.startRead({"late"});
    desktop.compositor.copyText("next");
    ASSERT_TRUE(desktop.until([&] { return desktop.startedRead.has_value(); }));
    EXPECT_EQ(desktop.startedRead->status, PasteboardStatus::changed);
    EXPECT_EQ(desktop.text(), "next");
}

TEST(WaylandPasteboard, FormatListsOutOfAllProportion) {
    Desktop desktop;
    const auto start = desktop.pasteboard->changeCount();
    Strings formats{"text/plain", "text/plain", std::string(4000, 'n'),
                    std::string(pasteboardFormatNameLimit, 'y')};
    for (int i = 0; i < 2'000; ++i) {
        formats.push_back("x/" + std::to_string(i));
    }
    desktop.compositor.copy(formats, [](const std::string &, int fd) { close(fd); });
    ASSERT_TRUE(desktop.untilCount(start + 1));
    EXPECT_FALSE(desktop.formats().complete);
    const auto known = desktop.formats().formats;
    ASSERT_EQ(known.size(), pasteboardFormatLimit);
    EXPECT_EQ(known[1], formats[3]);
    EXPECT_EQ(known[2], "x/0");

    // In the other direction: we are asked to offer names that no compositor takes.
    EXPECT_EQ(desktop
                  .write(content({"a", "", std::string(1 << 20, 'n'), std::string("b\0c", 3), "d"},
                                 "out"))
                  .status,
              PasteboardStatus::done);
    EXPECT_EQ(desktop.compositor.programFormats(), (Strings{"a", "d"}));
}

TEST(WaylandPasteboard, ReceiversThatDoNotReadHoldUpNothing) {
    Desktop desktop;
    const std::string large(10 << 20, 'l');
    ASSERT_EQ(desktop.write(content({"text/plain"}, large)).status, PasteboardStatus::done);
    std::vector<Pipe> stuck;
    for (int i = 0; i < 200; ++i) {
        stuck.push_back(makePipe());
        desktop.compositor.requestFrom("text/plain", stuck.back().writer.get());
        // The receiver may change the flags of the file description that we write to, and makes it
        // blocking.
        fcntl(stuck.back().writer.get(), F_SETFL, 0);
    }
    const FileDescriptor folder(open("/", O_RDONLY | O_CLOEXEC));
    desktop.compositor.requestFrom("text/plain", folder.get());
    Pipe gone = makePipe();
    gone.reader = {};
    desktop.compositor.requestFrom("text/plain", gone.writer.get());
    EXPECT_EQ(desktop.compositor.paste("never offered"), "");
    EXPECT_EQ(desktop.compositor.paste("text/plain"), large);
    // When the program is cut off, the receiver can still read what was in the pipe.
    std::string rest;
    char buffer[4096];
    stuck.front().writer = {};
    fcntl(stuck.front().reader.get(), F_SETFL, 0);
    for (ssize_t count = 1; count > 0;) {
        count = read(stuck.front().reader.get(), buffer, sizeof buffer);
        rest.append(buffer, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
    EXPECT_LT(rest.size(), large.size());
}

TEST(WaylandPasteboard, SeatsThatComeLateAndGo) {
    Desktop desktop(dataControls[0].manager, 0);
    ASSERT_TRUE(desktop.pasteboard) << desktop.declined;
    const auto start = desktop.pasteboard->changeCount();
    EXPECT_EQ(desktop.formats().formats, Strings());
    EXPECT_EQ(desktop.write(content({"text/plain"}, "x")).status, PasteboardStatus::unavailable);
    desktop.compositor.copyText("one");
    desktop.compositor.addSeat();
    ASSERT_TRUE(desktop.untilCount(start + 1));
    EXPECT_EQ(desktop.text(), "one");
    EXPECT_EQ(desktop.write(content({"text/plain"}, "x")).status, PasteboardStatus::done);
    desktop.compositor.removeSeat();
    ASSERT_TRUE(desktop.untilCount(start + 3)) << "the content went with its seat";
    EXPECT_EQ(desktop.formats().formats, Strings());
    desktop.compositor.addSeat();
    ASSERT_TRUE(desktop.until([&] { return desktop.pasteboard->changeCount() != start + 3; }));
    desktop.compositor.copyText("two");
    ASSERT_TRUE(desktop.until([&] { return desktop.text() == "two"; }));
    desktop.compositor.finishDevice();
    ASSERT_TRUE(desktop.until([&] { return desktop.formats().formats.empty(); }));
    EXPECT_EQ(desktop.write(content({"text/plain"}, "x")).status, PasteboardStatus::unavailable);
}

// A compositor disconnects a client that does not read its messages fast enough.
TEST(WaylandPasteboard, ComesBackAfterItWasThrownOut) {
    Desktop desktop;
    bool lost = false;
    desktop.pasteboard->setLostHandler([&] { lost = true; });
    for (const std::string text : {"one", "two"}) {
        const auto count = desktop.pasteboard->changeCount();
        desktop.startRead({"text/plain"});
        desktop.compositor.throwOut();
        desktop.compositor.copyText(text);
        ASSERT_TRUE(desktop.until([&] { return desktop.pasteboard->changeCount() > count; }));
        EXPECT_EQ(desktop.text(), text);
        EXPECT_EQ(desktop.write(content({"text/plain"}, "own")).status, PasteboardStatus::done);
        EXPECT_EQ(desktop.compositor.paste("text/plain"), "own");
    }
    EXPECT_FALSE(lost);
}

// Random events in random order: each handler runs once, and the next copy gets through.
TEST(WaylandPasteboard, AnyOrderOfEvents) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        Desktop desktop(dataControls[seed % 2].manager);
        int begun = 0;
        int ended = 0;
        std::mutex mutex;
        std::vector<FileDescriptor> kept; // of owners and receivers that hang
        const auto hang = [&](const std::string &, int fd) {
            const std::lock_guard lock(mutex);
            kept.emplace_back(fd);
        };
        const auto own = content({"text/plain", "text/html"}, std::string(200'000, 'o'));
        using Action = std::function<void()>;
        const Action actions[] = {
            [&] { desktop.compositor.copyText("copy"); },
            [&] {
                desktop.compositor.copy({"text/plain", "text/html"}, hang);
            },
            [&] { desktop.compositor.empty(); },
            [&] { desktop.compositor.overtakeNextWrite(); },
            [&] { desktop.pasteboard->write(own, {}, [&](PasteboardWrite) { ++ended; }); },
            [&] {
                desktop.pasteboard->write(own, desktop.pasteboard->changeCount(),
                                          [&](PasteboardWrite) { ++ended; });
            },
            [&] { desktop.pasteboard->write({}, {}, [&](PasteboardWrite) { ++ended; }); },
            [&] {
                desktop.pasteboard->read(
                    desktop.pasteboard->changeCount(),
                    {{"text/plain;charset=utf-8"}, 300'000, {"text/plain", "text/html"}, 300'000},
                    [&](const PasteboardRead &) { ++ended; });
            },
            [&] { desktop.pasteboard->readFormats([&](const PasteboardFormats &) { ++ended; }); },
            [&] {
                auto pipe = makePipe();
                desktop.compositor.requestFrom("text/plain", pipe.writer.get());
                hang({}, pipe.reader.release());
            },
            [&] {
                const std::lock_guard lock(mutex);
                kept.clear();
            },
            [&] { desktop.queue.runPosted(); },
            [&] { desktop.compositor.addSeat(); },
            [&] { desktop.compositor.removeSeat(); },
            [&] { desktop.compositor.finishDevice(); },
            [&] { desktop.compositor.throwOut(); },
        };
        // The last three end everything else, so they are rare.
        std::discrete_distribution<std::size_t> pick(
            {20, 20, 10, 5, 20, 20, 5, 40, 20, 20, 10, 40, 4, 2, 1, 1});
        for (int step = 0; step < 600; ++step) {
            const auto action = pick(random);
            begun += action >= 4 && action <= 8 ? 1 : 0;
            actions[action]();
        }
        ASSERT_TRUE(desktop.until([&] { return ended == begun; })) << ended << " of " << begun;
        for (int i = 0; i < 600; ++i) {
            desktop.compositor.removeSeat();
        }
        desktop.compositor.addSeat();
        ASSERT_TRUE(desktop.until([&] {
            desktop.compositor.copyText("last");
            return desktop.text() == "last";
        }));
        EXPECT_EQ(ended, begun);
    }
}

TEST(WaylandPasteboard, TheCompositorDiesInTheMiddleOfEverything) {
    Desktop desktop;
    int lost = 0;
    desktop.pasteboard->setLostHandler([&] { ++lost; });
    const auto start = desktop.pasteboard->changeCount();
    std::vector<FileDescriptor> kept;
    desktop.compositor.copy({"text/plain"},
                            [&](const std::string &, int fd) { kept.emplace_back(fd); });
    ASSERT_TRUE(desktop.untilCount(start + 1));
    desktop.startRead({"text/plain"});
    std::optional<PasteboardWrite> written;
    desktop.compositor.die();
    desktop.pasteboard->write(content({"text/plain"}, "x"), {},
                              [&](PasteboardWrite result) { written = result; });
    ASSERT_TRUE(desktop.until([&] { return desktop.startedRead && written && lost == 1; }));
    EXPECT_EQ(desktop.startedRead->status, PasteboardStatus::unavailable);
    EXPECT_EQ(written->status, PasteboardStatus::unavailable);
    EXPECT_EQ(desktop.formats().status, PasteboardStatus::unavailable);
    EXPECT_EQ(desktop.read({"text/plain"}).status, PasteboardStatus::unavailable);
    EXPECT_EQ(desktop.write(content({"text/plain"}, "x")).status, PasteboardStatus::unavailable);
    EXPECT_EQ(lost, 1);
    const auto worked = std::clock(); // processor time of all threads
    std::this_thread::sleep_for(500ms);
    EXPECT_LT(std::clock() - worked, CLOCKS_PER_SEC / 4) << "it spins";
}

TEST(WaylandPasteboard, ACompositorThatStopsAnsweringIsWaitedForOnlySoLong) {
    Desktop desktop;
    desktop.compositor.freeze();
    EXPECT_EQ(desktop.write(content({"text/plain"}, "x")).status, PasteboardStatus::timedOut);
    test::MemoryMainQueue queue;
    IoThread io;
    const auto second = createWaylandPasteboard(queue, io, desktop.compositor.display());
    EXPECT_FALSE(second.backend);
    EXPECT_EQ(second.declined, "the Wayland compositor does not answer");
}

TEST(WaylandPasteboard, DeclinesWhereThereIsNothingToTalkTo) {
    EXPECT_EQ(Desktop(nullptr).declined, "the Wayland compositor has no data-control protocol");
    test::MemoryMainQueue queue;
    IoThread io;
    EXPECT_EQ(createWaylandPasteboard(queue, io, "/nonexistent/socket").declined,
              "there is no Wayland compositor");
}

TEST(WaylandPasteboard, HandlersEndWithIt) {
    Desktop desktop;
    bool ran = false;
    desktop.pasteboard->readFormats([&](const PasteboardFormats &) { ran = true; });
    desktop.pasteboard->write(content({"text/plain"}, "x"), {},
                              [&](PasteboardWrite) { ran = true; });
    desktop.pasteboard.reset();
    desktop.queue.runPosted();
    EXPECT_FALSE(ran);
}

// An owner that sends a little now and then is ended by the time limit of the whole transfer.
TEST(WaylandTransfer, EndsAtItsLimits) {
    auto pipe = makePipe();
    std::optional<IncomingTransfer::Outcome> outcome;
    const auto end = std::chrono::steady_clock::now() + 1h;
    IncomingTransfer transfer(
        std::move(pipe.reader), {std::make_shared<std::size_t>(10), 1min, end},
        [&](IncomingTransfer::Outcome got, const std::string &) { outcome = got; });
    EXPECT_LT(transfer.deadline(), end);
    say(pipe.writer.get(), "0123456789");
    EXPECT_TRUE(transfer.advance());
    say(pipe.writer.get(), "x");
    EXPECT_FALSE(transfer.advance());
    EXPECT_EQ(outcome, IncomingTransfer::Outcome::tooLarge);

    pipe = makePipe();
    const auto now = std::chrono::steady_clock::now();
    IncomingTransfer trickle(std::move(pipe.reader),
                             {std::make_shared<std::size_t>(10), 1min, now + 1s}, {});
    say(pipe.writer.get(), "0");
    EXPECT_TRUE(trickle.advance());
    EXPECT_EQ(trickle.deadline(), now + 1s);
}

} // namespace
} // namespace nerlo::platform
