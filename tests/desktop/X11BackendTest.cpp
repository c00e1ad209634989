// The X11 backends against an X server, and two of our own peers against each other.
#include "platform/x11/X11ActiveApplication.h"
#include "platform/x11/X11Pasteboard.h"

#include "clipboard/PasteboardFormats.h"
#include "platform/linux/FolderWatch.h"
#include "platform/x11/Connection.h"
#include "platform/x11/SharedConnection.h"
#include "tests/Process.h"
#include "tests/TemporaryFolder.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/platform/PasteboardUser.h"

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

using test::content;
using test::PasteboardUser;
using test::Strings;

const std::string ownerProgram =
    std::filesystem::read_symlink("/proc/self/exe").parent_path() / "x11-owner";

class X11Backend : public testing::Test {
  protected:
    bool until(const std::function<bool()> &done) { return ours.until(done); }

    test::MemoryMainQueue queue;
    IoThread io;
    PasteboardUser ours{queue, createX11Pasteboard(queue, io).backend};
    PasteboardUser theirs{queue, createX11Pasteboard(queue, io).backend};
};

TEST_F(X11Backend, CountsEachReplacementOnceAndOwnWritesAtOnce) {
    int announced = 0;
    ours.pasteboard->setChangeHandler([&] { ++announced; });
    const auto before = ours.pasteboard->changeCount();
    for (int i = 1; i <= 100; ++i) {
        const auto written = ours.write(clipboard::plainTextContent("a"));
        ASSERT_EQ(written.status, PasteboardStatus::done);
        ASSERT_EQ(written.changeCount, before + i);
        ASSERT_EQ(ours.pasteboard->changeCount(), before + i);
    }
    for (int i = 0; i < 100; ++i) {
        theirs.write(clipboard::plainTextContent("b"));
    }
    EXPECT_EQ(ours.formats().changeCount, before + 200);
    EXPECT_TRUE(until([&] { return announced > 0; }));
    // The owner's end is a change as well, and leaves an empty clipboard.
    theirs.pasteboard.reset();
    EXPECT_TRUE(until([&] { return ours.pasteboard->changeCount() > before + 200; }));
    EXPECT_EQ(ours.formats().formats, Strings());
    EXPECT_EQ(ours.formats().status, PasteboardStatus::done);
}

TEST_F(X11Backend, ANewerCopyAlwaysWins) {
    for (int round = 0; round < 200; ++round) {
        theirs.write(clipboard::plainTextContent("old"));
        const auto old = ours.formats().changeCount;
        const auto newer = std::to_string(round);
        std::optional<PasteboardWrite> mine;
        std::optional<PasteboardWrite> other;
        const auto write_ours = [&] {
            ours.pasteboard->write(clipboard::plainTextContent("stale"), old,
                                   [&](auto result) { mine = result; });
        };
        if (round % 2 == 0) {
            write_ours();
        }
        theirs.pasteboard->write(clipboard::plainTextContent(newer), {},
                                 [&](auto result) { other = result; });
        if (round % 2 == 1) {
            write_ours();
        }
        ASSERT_TRUE(until([&] { return mine && other; }));
        ASSERT_EQ(other->status, PasteboardStatus::done);
        ASSERT_EQ(ours.text("UTF8_STRING"), newer);
        ASSERT_EQ(theirs.text("UTF8_STRING"), newer);
    }
}

TEST_F(X11Backend, CarriesLargeContentWithinTheLimit) {
    std::string large(3'000'000, '\0');
    for (std::size_t i = 0; i < large.size(); ++i) {
        large[i] = static_cast<char>(i * i >> 5);
    }
    ours.write(content({"image/png", "UTF8_STRING"}, large));
    for (auto *reader : {&ours, &theirs}) {
        EXPECT_EQ(reader->formats().formats, Strings({"image/png", "UTF8_STRING"}));
        const auto all = reader->read({"UTF8_STRING", "text/html", "image/png"});
        ASSERT_EQ(all.content.size(), 2u);
        EXPECT_EQ(*all.content[0].bytes, large);
        EXPECT_EQ(*all.content[1].bytes, large);
        const auto one = reader->read({"UTF8_STRING", "image/png"}, large.size() + 1);
        EXPECT_EQ(one.status, PasteboardStatus::done);
        EXPECT_EQ(one.content.size(), 1u);
    }
}

// One thread serves them all: an owner that hangs, and a program that asks for our text faster than
// it can be sent, cost nobody else his time.
TEST_F(X11Backend, APeerThatHangsOrFloodsHoldsUpNothingElse) {
    const test::TemporaryFolder folder;
    FolderWatch watch(io, queue);
    int written = 0;
    ASSERT_TRUE(watch.add(folder.path(), [&] { ++written; }));
    const auto seesTheNextFile = [&] {
        const int before = written;
        test::putBytes(folder / std::to_string(before), "x");
        return until([&] { return written > before; });
    };
    {
        const auto before = ours.pasteboard->changeCount();
        const test::Process owner({ownerProgram, "--hang", "UTF8_STRING=text"});
        ASSERT_TRUE(until([&] { return ours.pasteboard->changeCount() != before; }));
        const auto count = ours.pasteboard->changeCount();
        std::optional<PasteboardRead> result;
        const auto start = std::chrono::steady_clock::now();
        ours.pasteboard->read(count, {{"UTF8_STRING"}, 1000, {}, 1000},
                              [&](auto got) { result = std::move(got); });
        EXPECT_TRUE(seesTheNextFile());
        EXPECT_FALSE(result);
        ASSERT_TRUE(until([&] { return result.has_value(); }));
        EXPECT_EQ(result->status, PasteboardStatus::timedOut);
        const auto took = std::chrono::steady_clock::now() - start;
        EXPECT_GE(took, pasteboardStallLimit);
        EXPECT_LT(took, pasteboardReadLimit);
    }
    ours.write(content({"UTF8_STRING"}, std::string(200'000, 'x')));
    std::atomic<bool> flooding = true;
    std::thread flood([&] {
        const auto connection = x11::Connection::open();
        const auto window = connection->makeWindow(0);
        while (flooding) {
            for (int i = 0; i < 100; ++i) {
                xcb_convert_selection(connection->get(), window, connection->atom("CLIPBOARD"),
                                      connection->atom("UTF8_STRING"), connection->atom("TO"),
                                      XCB_CURRENT_TIME);
            }
            xcb_flush(connection->get());
            while (x11::Event(xcb_poll_for_event(connection->get()))) {
            }
        }
    });
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(seesTheNextFile());
    }
    flooding = false;
    flood.join();
}

TEST_F(X11Backend, KeepsTheTypeThatAnOwnerDelivers) {
    theirs.write({{"TEXT", "UTF8_STRING", std::make_shared<const std::string>("x")}});
    const auto got = ours.read({"TEXT"});
    ASSERT_EQ(got.content.size(), 1u);
    EXPECT_EQ(got.content[0].type, "UTF8_STRING");
}

TEST_F(X11Backend, TellsWhenTheDisplayIsGone) {
    bool lost = false;
    ours.pasteboard->setLostHandler([&] { lost = true; });
    ours.write(clipboard::plainTextContent("a"));
    const auto connection = x11::Connection::open();
    auto *xcb = connection->get();
    const x11::Reply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        xcb, xcb_get_selection_owner(xcb, connection->atom("CLIPBOARD")), nullptr));
    ASSERT_TRUE(owner);
    xcb_kill_client(xcb, owner->owner);
    xcb_flush(xcb);
    EXPECT_TRUE(until([&] { return lost; }));
    EXPECT_EQ(ours.formats().status, PasteboardStatus::unavailable);
    EXPECT_EQ(ours.write(clipboard::plainTextContent("a")).status, PasteboardStatus::unavailable);
}

// A window of a program with this instance and class.
xcb_window_t mapWindow(x11::Connection &connection, const std::string &names) {
    auto *xcb = connection.get();
    const auto window = xcb_generate_id(xcb);
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, window, connection.screen().root, 0, 0, 100, 100,
                      0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(names.size()), names.data());
    xcb_map_window(xcb, window);
    xcb_flush(xcb);
    return window;
}

TEST_F(X11Backend, NamesTheApplicationThatComesToTheFront) {
    using namespace std::string_literals;
    const auto application =
        createX11ActiveApplication(queue, x11::SharedConnection::open(io)).backend;
    const auto connection = x11::Connection::open();
    Strings activated;
    application->setActivatedHandler([&](const std::string &name) { activated.push_back(name); });
    const auto seen = [&](const std::string &name) {
        return until([&] { return !activated.empty() && activated.back() == name; });
    };
    mapWindow(*connection, "excel.exe\0Wine\0"s);
    EXPECT_TRUE(seen("com.microsoft.Excel"));
    mapWindow(*connection, "libreoffice\0libreoffice-calc\0"s);
    EXPECT_TRUE(seen("org.libreoffice.Calc"));
    mapWindow(*connection, "editor\0Editor\0"s);
    EXPECT_TRUE(seen("Editor"));
    const auto nameless = mapWindow(*connection, "no zero at the end");
    EXPECT_TRUE(seen(""));
    application->setActivatedHandler(nullptr);
    activated.clear();
    xcb_destroy_window(connection->get(), nameless);
    xcb_flush(connection->get());
    EXPECT_EQ(ours.formats().status, PasteboardStatus::done); // the server has done so by now
    queue.runPosted();
    EXPECT_TRUE(activated.empty());
}

} // namespace
} // namespace nerlo::platform
