// The Wayland backends in a real compositor, with real programs that copy and paste.
#include "platform/memory/MemoryMainQueue.h"
#include "platform/wayland/WaylandActiveApplication.h"
#include "platform/wayland/WaylandPasteboard.h"
#include "tests/desktop/Process.h"
#include "tests/platform/PasteboardUser.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <optional>
#include <thread>
#include <utility>

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;
using test::content;
using test::outputOf;
using test::Process;

const std::string ownerProgram =
    std::filesystem::read_symlink("/proc/self/exe").parent_path() / "wayland-owner";

// A clipboard manager of the simplest kind: it takes a copy of each content as soon as it comes.
class Manager {
  public:
    std::string kept() const {
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

  private:
    const std::string path_ = std::string(std::getenv("NERLO_SESSION_DIR")) + "/kept";
    const Process watch_{{"wl-paste", "--watch", "sh", "-c",
                          "cat >" + path_ + ".new; mv " + path_ + ".new " + path_}};
};

class WaylandBackend : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(clipboard.pasteboard); }

    static void copy(const std::string &text) { ASSERT_TRUE(outputOf({"wl-copy"}, text)); }
    PasteboardWrite write(const std::string &bytes, std::optional<ChangeCount> over = {}) {
        return clipboard.write(content({"text/plain;charset=utf-8", "text/plain"}, bytes), over);
    }

    MemoryMainQueue queue;
    test::PasteboardUser clipboard{queue, createWaylandPasteboard(queue).backend};
};

TEST_F(WaylandBackend, ExchangesTextWithRealProgramsAndCountsExactly) {
    auto count = clipboard.pasteboard->changeCount();
    for (int i = 0; i < 20; ++i) {
        copy("copy " + std::to_string(i));
        ASSERT_TRUE(clipboard.untilCount(++count)) << i;
        ASSERT_EQ(clipboard.text(), "copy " + std::to_string(i));
        const auto written = write("write " + std::to_string(i));
        ASSERT_EQ(written.status, PasteboardStatus::done);
        ASSERT_EQ(written.changeCount, ++count);
        ASSERT_EQ(outputOf({"wl-paste", "-n"}), "write " + std::to_string(i));
    }
    EXPECT_EQ(outputOf({"wl-paste", "-l"}), "text/plain;charset=utf-8\ntext/plain\n");
    outputOf({"wl-copy", "--clear"});
    EXPECT_TRUE(clipboard.untilCount(++count));
    outputOf({"wl-copy", "--primary"}, "the primary selection is not ours");
    copy("last");
    EXPECT_TRUE(clipboard.untilCount(++count));
}

// The end of the pipe looks like the end of the text; that the content went with its owner may show
// only a moment later, but no write in its place gets through.
TEST_F(WaylandBackend, AnOwnerThatDiesInTheMiddleTakesItsContentAlong) {
    const auto start = clipboard.pasteboard->changeCount();
    Process owner({ownerProgram, "--die-after", "70000", "text/plain;charset=utf-8=*1000000"});
    ASSERT_TRUE(owner.waitForLine("owned"));
    ASSERT_TRUE(clipboard.untilCount(start + 1));
    EXPECT_LE(clipboard.text().size(), 70'000u);
    ASSERT_TRUE(clipboard.untilCount(start + 2));
    EXPECT_EQ(write("half, but cleaned", start + 1).status, PasteboardStatus::changed);
}

// The compositor throws clients out that cannot take the list as fast as it comes, this one perhaps
// too.
TEST_F(WaylandBackend, SurvivesAListOfFormatsOutOfAllProportion) {
    for (const char *number : {"1000", "10000", "30000"}) {
        SCOPED_TRACE(number);
        Process owner({ownerProgram, "--more-formats", number, "text/plain", "x"});
        test::until([&] { return !owner.output().empty() || owner.wait(0ms); });
        owner.signal(SIGKILL);
        owner.wait();
        EXPECT_TRUE(test::until([&] { return outputOf({"wl-copy"}, "next").has_value(); }));
        EXPECT_TRUE(clipboard.until([&] { return clipboard.text() == "next"; }));
    }
}

TEST_F(WaylandBackend, AManagerHasTheTextWhenTheProgramEndsRightAfterItsWrite) {
    const Manager manager;
    copy("before");
    ASSERT_TRUE(clipboard.until([&] { return manager.kept() == "before"; }));
    const std::string written(3'000'000, 'w');
    write(written);
    clipboard.pasteboard.reset();
    EXPECT_TRUE(test::until([&] { return manager.kept() == written; }, 5s));
}

TEST_F(WaylandBackend, IsNotWokenWhileTheClipboardRests) {
    const auto start = clipboard.pasteboard->changeCount();
    copy("x");
    ASSERT_TRUE(clipboard.untilCount(start + 1));
    ASSERT_EQ(clipboard.text(), "x");
    // Until the thread rests: the last transfer may just be over.
    long woken = 0;
    test::until([&] { return std::exchange(woken, test::wakeUps("wayland")) == woken; });
    ASSERT_GT(woken, 0) << "the thread is not found";
    std::this_thread::sleep_for(3s); // the length of the measurement
    // Nor by the primary selection, which changes whenever somebody marks text.
    ASSERT_TRUE(outputOf({"wl-copy", "--primary"}, "marked"));
    ASSERT_EQ(outputOf({"wl-paste", "--primary", "-n"}), "marked");
    EXPECT_EQ(test::wakeUps("wayland"), woken);
}

TEST_F(WaylandBackend, SaysWhenTheCompositorIsGone) {
    bool lost = false;
    clipboard.pasteboard->setLostHandler([&] { lost = true; });
    outputOf({"swaymsg", "exit"});
    ASSERT_TRUE(clipboard.until([&] { return lost; }));
    EXPECT_EQ(write("x").status, PasteboardStatus::unavailable);
    EXPECT_EQ(clipboard.read({"text/plain"}).status, PasteboardStatus::unavailable);
    const auto woken = test::wakeUps("wayland");
    std::this_thread::sleep_for(1s);
    EXPECT_LE(test::wakeUps("wayland") - woken, 1) << "it spins";
}

TEST(WaylandApplications, NamesTheOneThatComesToTheFront) {
    MemoryMainQueue queue;
    const auto created = createWaylandActiveApplication(queue);
    ASSERT_TRUE(created.backend) << created.declined;
    std::vector<std::string> seen;
    const auto until = [&](const std::vector<std::string> &expected) {
        return test::until(queue, [&] { return seen == expected; });
    };
    const auto window = [](const std::string &appId) {
        return test::Arguments{"foot", "--app-id=" + appId, "cat"};
    };
    Process first(window("First.Editor"));
    ASSERT_TRUE(test::until([] {
        return outputOf({"swaymsg", "-t", "get_tree"})->find("First.Editor") != std::string::npos;
    }));
    created.backend->setActivatedHandler([&](std::string id) { seen.push_back(std::move(id)); });
    std::optional<Process> second;
    second.emplace(window("EXCEL.EXE"));
    ASSERT_TRUE(until({"com.microsoft.Excel"})) << "and nothing for the one that was in front";
    second.reset();
    ASSERT_TRUE(until({"com.microsoft.Excel", "First.Editor"}));

    created.backend->setActivatedHandler(nullptr);
    second.emplace(window("libreoffice-calc"));
    ASSERT_TRUE(test::until([] {
        return outputOf({"swaymsg", "-t", "get_tree"})->find("libreoffice-calc") !=
               std::string::npos;
    }));
    queue.runPosted();
    EXPECT_EQ(seen.size(), 2u) << "nobody listens";
}

} // namespace
} // namespace nerlo::platform
