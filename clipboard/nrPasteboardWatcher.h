// The automatic mode: while it runs, each new content that another program puts on the clipboard is
// passed once to the engine.
//
// The change count is looked at in ticks on the main queue, the first 2.0 seconds after the start
// and one every 0.5 seconds after that. Where the clipboard announces its changes, only those ticks
// are scheduled in which something can have changed: an idle desktop is not woken. There a copy may
// also be cleaned at once, without waiting for a tick.
//
// All functions are called on the main thread.
#pragma once

#include "clipboard/nrChangePasterboard.h"
#include "platform/ActiveApplication.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace nerlo::clipboard {

class nrPasteboardWatcher final : public ClipboardListener {
  public:
    // What is on the clipboard now is never cleaned automatically. The engine is told to report its
    // writes here.
    nrPasteboardWatcher(platform::Pasteboard &pasteboard, platform::MainQueue &mainQueue,
                        platform::ActiveApplication &activeApplication,
                        nrChangePasterboard &engine);
    ~nrPasteboardWatcher() override;
    nrPasteboardWatcher(const nrPasteboardWatcher &) = delete;
    nrPasteboardWatcher &operator=(const nrPasteboardWatcher &) = delete;

    // The watcher that was last made and still lives; there must be one.
    static nrPasteboardWatcher &sharedInstance();

    // The generation of the operating system, 106 to 109, by its toolkit's version number. Newer
    // systems than the last in the table are 109.
    static std::int64_t checkVersion(double toolkitVersion);

    // Starting again starts the grid of ticks again.
    void start();
    // Nothing happens if it does not run. A read under way still ends.
    void stop();
    bool running() const { return started_.has_value(); }
    // Whether copies are cleaned at once; off at first.
    void setAtOnce(bool on) { atOnce_ = on; }

    // One tick.
    void update();

    // Takes the content with this count for handled, and nothing newer.
    void addOneCount(platform::ChangeCount written) override;
    void clipboardChanged() override;
    // Ours comes from where the content that we made it of came from.
    std::string copiedFrom(platform::ChangeCount count) override;
    // Takes what is on the clipboard now for handled.
    void addOneCount();

    // From now on, also without the exception, remembers which program is in front at each copy.
    void followPrograms();
    // The one of the last copy; empty where it is not known.
    const std::string &lastProgram() const { return copied_.program; }
    // Runs when that may have changed.
    void setProgramHandler(std::function<void()> changed) { programChanged_ = std::move(changed); }

    // Switches the exception: copies of a spreadsheet that carry its link data are left alone.
    void toggleEngine(bool on);
    void startEngine();
    void stopEngine();
    void appActivated(std::string identifier);

  private:
    void scheduleNextTick();
    void subscribe();
    // Remembers where the content of this count came from, if it is new.
    void noteProgram(platform::ChangeCount count);

    platform::Pasteboard &pasteboard_;
    platform::MainQueue &mainQueue_;
    platform::ActiveApplication &activeApplication_;
    nrChangePasterboard &engine_;

    platform::ChangeCount changeCount_; // last accepted as handled
    std::optional<platform::MainQueue::Clock::time_point> started_;
    platform::MainQueue::TaskId timer_ = 0; // 0: no tick is scheduled
    bool atOnce_ = false;
    std::optional<std::string> currentAppBundle_; // since the exception was switched on
    bool disableAppsState_ = false;

    struct Copied {
        platform::ChangeCount count;
        std::string program;
    };
    bool followsPrograms_ = false;
    std::string program_; // in front; empty where it is not known
    Copied copied_;       // the last copy
    std::function<void()> programChanged_;
};

} // namespace nerlo::clipboard
