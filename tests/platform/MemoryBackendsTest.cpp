// The memory backends stand in for a desktop in other tests, so what those rely on is shown here.
#include "platform/PasteboardFormats.h"
#include "platform/memory/MemoryMainQueue.h"
#include "platform/memory/MemoryPasteboard.h"

#include <gtest/gtest.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;

TEST(MemoryMainQueue, RunsTasksInTheOrderOfTheirTimes) {
    MemoryMainQueue queue;
    std::string order;
    const auto add = [&](char c) { return [&order, c] { order += c; }; };
    queue.postAfter(2s, add('d'));
    queue.postAfter(1s, add('b'));
    queue.postAfter(1s, [&] {
        order += 'c';
        queue.post(add('p'));
        queue.postAfter(500ms, add('x'));
    });
    const auto cancelled = queue.postAfter(1s, add('!'));
    queue.post(add('a'));
    queue.cancel(cancelled);
    queue.cancel(0);
    queue.advance(999ms);
    EXPECT_EQ(order, "a");
    queue.advance(1ms);
    EXPECT_EQ(order, "abcp");
    queue.advance(1h);
    EXPECT_EQ(order, "abcpxd");
    EXPECT_EQ(queue.delayedCount(), 0u);
}

class MemoryPasteboardTest : public testing::Test {
  protected:
    PasteboardStatus read(std::vector<std::string> formats, std::size_t limit = 100) {
        const auto of = pasteboard.changeCount();
        return read(of, std::move(formats), limit);
    }
    PasteboardStatus read(ChangeCount of, std::vector<std::string> formats,
                          std::size_t limit = 100) {
        auto status = PasteboardStatus::unavailable;
        pasteboard.read(of, std::move(formats), limit, [&](PasteboardRead result) {
            status = result.status;
            got = std::move(result.content);
        });
        queue.advance(pasteboardReadLimit);
        return status;
    }

    MemoryMainQueue queue;
    MemoryPasteboard pasteboard{queue};
    PasteboardContent got;
};

TEST_F(MemoryPasteboardTest, ReadsOnlyTheContentThatWasMeant) {
    pasteboard.copyText("old");
    const auto old = pasteboard.changeCount();
    pasteboard.copyText("new");
    EXPECT_EQ(read(old, {"text/plain"}), PasteboardStatus::changed);
    EXPECT_TRUE(got.empty());
    EXPECT_EQ(read({"image/png", "text/plain"}), PasteboardStatus::done);
    ASSERT_EQ(got.size(), 1u);
    EXPECT_EQ(*got[0].bytes, "new");
    EXPECT_EQ(read({"text/plain"}, 2), PasteboardStatus::done);
    EXPECT_TRUE(got.empty()) << "above the limit";
}

TEST_F(MemoryPasteboardTest, GivesUpBadOwners) {
    pasteboard.copyText("late", {.delay = 1s});
    EXPECT_EQ(read({"text/plain"}), PasteboardStatus::done);
    EXPECT_EQ(got.size(), 1u);
    pasteboard.copyText("hangs", {.delay = 1h});
    EXPECT_EQ(read({"text/plain"}), PasteboardStatus::timedOut);
    pasteboard.copyText("lies", {.deliversNothing = true});
    EXPECT_EQ(read({"text/plain"}), PasteboardStatus::done);
    EXPECT_TRUE(got.empty());
    pasteboard.copyText("dies", {.gone = true});
    EXPECT_EQ(read({"text/plain"}), PasteboardStatus::unavailable);
}

TEST_F(MemoryPasteboardTest, WritesOverWhatWasMeantAndNothingElse) {
    pasteboard.copyText("old");
    const auto old = pasteboard.changeCount();
    std::vector<PasteboardWrite> writes;
    const auto keep = [&](PasteboardWrite result) { writes.push_back(result); };
    pasteboard.write(plainTextContent("ours"), old, keep);
    pasteboard.write(plainTextContent("stale"), old, keep);
    queue.runPosted();
    ASSERT_EQ(writes.size(), 2u);
    EXPECT_EQ(writes[0].changeCount, pasteboard.changeCount());
    EXPECT_EQ(writes[1].status, PasteboardStatus::changed);
    EXPECT_EQ(pasteboard.bytes("text/plain"), "ours");
}

} // namespace
} // namespace nerlo::platform
