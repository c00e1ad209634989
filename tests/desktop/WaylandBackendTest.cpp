// The Wayland backends in a real compositor, with windows of real programs.
#include "platform/wayland/WaylandActiveApplication.h"

#include "platform/linux/IoThread.h"
#include "tests/Process.h"
#include "tests/fakes/MemoryMainQueue.h"

#include <optional>
#include <utility>

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

using test::outputOf;
using test::Process;

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
