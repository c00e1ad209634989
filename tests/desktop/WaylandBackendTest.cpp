// The Wayland backends in a real compositor, with real programs that copy and paste.
#include "clipboard/PasteboardFormats.h"
#include "platform/wayland/WaylandActiveApplication.h"
#include "platform/wayland/WaylandPasteboard.h"
#include "tests/Process.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/platform/PasteboardUser.h"

#include <filesystem>
#include <optional>
#include <utility>

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

using test::outputOf;
using test::Process;

const std::string ownerProgram =
    std::filesystem::read_symlink("/proc/self/exe").parent_path() / "wayland-owner";

// The end of the pipe looks like the end of the text; that the content went with its owner may show
// only a moment later, but no write in its place gets through.
TEST(WaylandBackend, AnOwnerThatDiesInTheMiddleTakesItsContentAlong) {
    test::MemoryMainQueue queue;
    IoThread io;
    const test::PasteboardUser clipboard{queue, createWaylandPasteboard(queue, io).backend};
    ASSERT_TRUE(clipboard.pasteboard);
    const auto start = clipboard.pasteboard->changeCount();
    Process owner({ownerProgram, "--die-after", "70000", "text/plain;charset=utf-8=*1000000"});
    ASSERT_TRUE(owner.waitForLine("owned"));
    ASSERT_TRUE(clipboard.untilCount(start + 1));
    EXPECT_LE(clipboard.text().size(), 70'000u);
    ASSERT_TRUE(clipboard.untilCount(start + 2));
    EXPECT_EQ(clipboard.write(clipboard::plainTextContent("half, but cleaned"), start + 1).status,
              PasteboardStatus::changed);
}

// A manager takes a copy of each content as soon as it comes, which may be after the program's end.
TEST(WaylandBackend, AManagerHasTheTextWhenTheProgramEndsRightAfterItsWrite) {
    test::MemoryMainQueue queue;
    IoThread io;
    test::PasteboardUser clipboard{queue, createWaylandPasteboard(queue, io).backend};
    ASSERT_TRUE(clipboard.pasteboard);
    const test::TemporaryFolder folder;
    const std::string kept = folder / "kept";
    const Process manager({"wl-paste", "--watch", "sh", "-c", "cat >$0.new; mv $0.new $0", kept});
    clipboard.write(clipboard::plainTextContent("before"));
    ASSERT_TRUE(test::until([&] { return test::bytesOf(kept) == "before"; }));
    const std::string written(3'000'000, 'w');
    clipboard.write(clipboard::plainTextContent(written));
    clipboard.pasteboard.reset();
    EXPECT_TRUE(test::until([&] { return test::bytesOf(kept) == written; }));
}

TEST(WaylandApplications, NamesTheOneThatComesToTheFront) {
    test::MemoryMainQueue queue;
    IoThread io;
    const auto created = createWaylandActiveApplication(queue, io);
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
