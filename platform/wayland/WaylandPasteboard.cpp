#include "platform/wayland/WaylandPasteboard.h"

#include "platform/Alive.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/WaylandSelection.h"

#include <algorithm>
#include <atomic>
#include <utility>

#include <unistd.h>

namespace nerlo::platform {

namespace {

using wayland::Clock;
using wayland::EventLoop;
using wayland::WaylandSelection;

// A clipboard manager gets this long after a write to ask for what was written.
constexpr std::chrono::milliseconds managerLimit{500};

class WaylandPasteboard final : public Pasteboard {
  public:
    WaylandPasteboard(MainQueue &mainQueue, IoThread &io, std::unique_ptr<EventLoop> loop)
        : mainQueue_(mainQueue)
        , io_(io)
        , loop_(std::move(loop))
        , peer_(std::make_unique<WaylandSelection>(*loop_,
                                                   [this](ChangeCount count) { report(count); })) {}

    ~WaylandPasteboard() override {
        const auto now = Clock::now();
        const auto managerAsks = lastWrite_ ? *lastWrite_ + managerLimit : now;
        // Who has not taken it all by then takes the rest from whom we leave behind.
        loop_->stop(managerAsks, staysBehind_ ? managerAsks : now + pasteboardHandOverLimit);
        if (staysBehind_) {
            io_.run([this] { goOnBehind(); });
        }
        peer_.reset();
    }

    // Why not, or nothing.
    std::string start() {
        std::string declined = peer_->prepare();
        if (!declined.empty()) {
            return declined;
        }
        changeCount_ = peer_->changeCount();
        description_ = std::string("Wayland, ") + peer_->protocol();
        loop_->start({.lost = [this] { peer_->lost(); },
                      .restored = [this] { return peer_->prepare().empty(); },
                      .gone = alive_.guardOn(mainQueue_, [this] {
                          if (const auto lost = lost_) {
                              lost();
                          }
                      })});
        return {};
    }

    ChangeCount changeCount() const override { return changeCount_; }
    bool notifiesChanges() const override { return true; }
    void setChangeHandler(std::function<void()> changed) override { changed_ = std::move(changed); }
    void setLostHandler(std::function<void()> lost) override { lost_ = std::move(lost); }

    void readFormats(FormatsHandler handler) override {
        loop_->post(
            [this, answer = alive_.guardOn(mainQueue_, [this, handler = std::move(handler)](
                                                           const PasteboardFormats &formats) {
                raise(formats.changeCount);
                handler(formats);
            })] { peer_->readFormats(answer); });
    }

    void read(ChangeCount of, PasteboardRequest request, ReadHandler handler) override {
        loop_->post([this, of, request = std::move(request),
                     answer = alive_.guardOn(mainQueue_, std::move(handler))]() mutable {
            peer_->read(of, std::move(request), answer);
        });
    }

    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override {
        lastWrite_ = Clock::now();
        auto answer = alive_.guardOn(
            mainQueue_, [this, handler = std::move(handler)](const PasteboardWrite &result) {
                // Not before: a look at the count in between must not take our own write for
                // another program's copy.
                raise(result.changeCount);
                const auto tell = alive_.guard([this] { tellChanged(); });
                handler(result); // may end this
                tell();
            });
        loop_->post(
            [this, content = std::move(content), onlyOver, answer = std::move(answer)]() mutable {
                peer_->write(std::move(content), onlyOver, std::move(answer));
            });
    }

    std::string description() const override { return description_; }
    std::vector<std::string> limitations() const override { return {}; }
    void stayBehind() override { staysBehind_ = true; }

  private:
    // On the I/O thread.
    void goOnBehind() {
        const auto end = [] { _exit(0); };
        if (peer_->owns() && loop_->goOnBehind({.lost = end, .restored = {}, .gone = {}})) {
            peer_->onlyServe([this, end] { loop_->endWithTransfers(end); });
        }
    }

    void raise(ChangeCount count) {
        ChangeCount known = changeCount_;
        while (known < count && !changeCount_.compare_exchange_weak(known, count)) {
        }
    }

    void tellChanged() const {
        // A copy: the handler may replace itself.
        if (const auto changed = changed_) {
            changed();
        }
    }

    // On the I/O thread.
    void report(ChangeCount count) {
        raise(count);
        if (!changeReported_.exchange(true)) {
            reportChange_();
        }
    }

    MainQueue &mainQueue_;
    IoThread &io_;
    bool staysBehind_ = false;
    std::atomic<ChangeCount> changeCount_{0};
    std::atomic<bool> changeReported_ = false; // a task that reports a change is on its way
    std::function<void()> changed_;            // main thread, as is lost_
    std::function<void()> lost_;
    Alive alive_;
    const std::function<void()> reportChange_ = alive_.guardOn(mainQueue_, [this] {
        changeReported_ = false;
        tellChanged();
    });
    std::string description_;
    std::optional<Clock::time_point> lastWrite_;
    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<WaylandSelection> peer_;
};

} // namespace

Created<Pasteboard> createWaylandPasteboard(MainQueue &mainQueue, IoThread &io,
                                            const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    auto loop = EventLoop::connect(io, name);
    if (!loop) {
        return {nullptr, "there is no Wayland compositor"};
    }
    auto pasteboard = std::make_unique<WaylandPasteboard>(mainQueue, io, std::move(loop));
    if (std::string declined = pasteboard->start(); !declined.empty()) {
        return {nullptr, std::move(declined)};
    }
    return {std::move(pasteboard), {}};
}

} // namespace nerlo::platform
