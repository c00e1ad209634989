// A clipboard without a desktop. Other programs are played by `copy`, `empty` and `owner`; answers
// come through the main queue, on its clock.
#pragma once

#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/PasteboardReading.h"

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::test {

// How the owner of the content behaves. An own write brings an obedient owner back.
struct MemoryOwner {
    // Before each answer; above the stall limit: given up.
    platform::MainQueue::Clock::duration delay{};
    std::vector<std::string> silent{}; // formats that it is asked for and never answers
};

class MemoryPasteboard final : public platform::Pasteboard {
  public:
    explicit MemoryPasteboard(platform::MainQueue &mainQueue, bool notifies = true)
        : mainQueue_(mainQueue)
        , notifies_(notifies) {}

    // Another program's copy, with the owner's behaviour.
    void copy(platform::PasteboardContent content, const MemoryOwner &owner = {});
    void copyText(std::string utf8, const MemoryOwner &owner = {});
    // The content goes, by its owner's end or by hand.
    void empty();

    const platform::PasteboardContent &content() const { return content_; }
    // The bytes offered under `format`; empty if it is not offered.
    std::string bytes(std::string_view format) const;
    std::vector<std::string> formatNames() const;

    // One line for each call in order: "formats", "read text/plain,STRING" (what the owner was
    // asked for), "write text/plain,STRING", and "written" or "refused" once a write has been
    // decided.
    std::vector<std::string> log;

    platform::ChangeCount changeCount() const override { return changeCount_; }
    bool notifiesChanges() const override { return notifies_; }
    void setChangeHandler(std::function<void()> changed) override { changed_ = std::move(changed); }
    void setLostHandler(std::function<void()>) override {}
    void readFormats(FormatsHandler handler) override;
    void read(platform::ChangeCount of, platform::PasteboardRequest request,
              ReadHandler handler) override;
    void write(platform::PasteboardContent content, std::optional<platform::ChangeCount> onlyOver,
               WriteHandler handler) override;
    std::string description() const override { return "in memory"; }
    std::vector<std::string> limitations() const override { return {}; }

  private:
    void replace(platform::PasteboardContent content, const MemoryOwner &owner);
    // False while the owner is silent about a format.
    bool deliver(platform::PasteboardReading &reading);
    // Runs `answer` when the owner answers or is given up; it gets the status so far.
    void ask(std::function<void(platform::PasteboardStatus)> answer);

    platform::MainQueue &mainQueue_;
    bool notifies_;
    platform::PasteboardContent content_;
    MemoryOwner owner_;
    platform::ChangeCount changeCount_ = 1;
    std::function<void()> changed_;
    // Answers that are under way when the pasteboard goes are dropped.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace nerlo::test
