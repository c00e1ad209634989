#include "platform/wayland/WaylandPasteboard.h"

#include "platform/wayland/EventLoop.h"
#include "platform/wayland/WaylandSelection.h"

#include <algorithm>
#include <atomic>
#include <utility>

namespace nerlo::platform {

namespace {

using wayland::Clock;
using wayland::EventLoop;
using wayland::WaylandSelection;

// A clipboard manager gets this long after a write to ask for what was written.
constexpr std::chrono::milliseconds managerLimit{500};

// What the tasks on the main queue need; they hold it weakly, so that it ends with the pasteboard.
struct MainSide {
    std::atomic<ChangeCount> changeCount;
    std::atomic<bool> changeReported{false}; // a task that reports a change is on its way
    std::function<void()> changed;
    std::function<void()> lost;

    void raise(ChangeCount count) {
        ChangeCount known = changeCount;
        while (known < count && !changeCount.compare_exchange_weak(known, count)) {
        }
    }
};

class WaylandPasteboard final : public Pasteboard {
  public:
    WaylandPasteboard(MainQueue &mainQueue, std::unique_ptr<EventLoop> loop)
        : mainQueue_(mainQueue)
        , loop_(std::move(loop))
        , peer_(std::make_unique<WaylandSelection>(*loop_,
                                                   [this](ChangeCount count) { report(count); })) {}

    ~WaylandPasteboard() override {
        const auto now = Clock::now();
        loop_->stop(lastWrite_ ? *lastWrite_ + managerLimit : now, now + pasteboardHandOverLimit);
        peer_.reset();
    }

    // Why not, or nothing.
    std::string start() {
        std::string declined = peer_->prepare();
        if (!declined.empty()) {
            return declined;
        }
        main_->changeCount = peer_->changeCount();
        description_ = std::string("Wayland, ") + peer_->protocol();
        loop_->start({.lost = [this] { peer_->lost(); },
                      .restored = [this] { return peer_->prepare().empty(); },
                      .gone =
                          [this] {
                              onMain([](MainSide &main) {
                                  if (const auto lost = main.lost) {
                                      lost();
                                  }
                              });
                          }});
        return {};
    }

    ChangeCount changeCount() const override { return main_->changeCount; }
    bool notifiesChanges() const override { return true; }
    void setChangeHandler(std::function<void()> changed) override {
        main_->changed = std::move(changed);
    }
    void setLostHandler(std::function<void()> lost) override { main_->lost = std::move(lost); }

    void readFormats(FormatsHandler handler) override {
        loop_->post([this, handler = std::move(handler)]() mutable {
            peer_->readFormats([this, handler = std::move(handler)](PasteboardFormats formats) {
                onMain([handler, formats = std::move(formats)](MainSide &main) {
                    main.raise(formats.changeCount);
                    handler(formats);
                });
            });
        });
    }

    void read(ChangeCount of, std::vector<std::string> formats, std::size_t limit,
              ReadHandler handler) override {
        loop_->post([this, of, formats = std::move(formats), limit,
                     handler = std::move(handler)]() mutable {
            peer_->read(of, std::move(formats), limit,
                        [this, handler = std::move(handler)](PasteboardRead result) {
                            onMain([handler, result = std::move(result)](MainSide &) mutable {
                                handler(std::move(result));
                            });
                        });
        });
    }

    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override {
        lastWrite_ = Clock::now();
        loop_->post(
            [this, content = std::move(content), onlyOver, handler = std::move(handler)]() mutable {
                peer_->write(std::move(content), onlyOver,
                             [this, handler = std::move(handler)](PasteboardWrite result) {
                                 onMain([handler, result](MainSide &main) {
                                     // Not before: a look at the count in between must not take our
                                     // own write for another program's copy.
                                     main.raise(result.changeCount);
                                     handler(result);
                                     runChanged(main);
                                 });
                             });
            });
    }

    std::string description() const override { return description_; }
    std::vector<std::string> limitations() const override {
        return {"Text outlives the program only where a clipboard manager runs."};
    }

  private:
    template <class Task>
    void onMain(Task task) {
        mainQueue_.post([weak = std::weak_ptr<MainSide>(main_), task = std::move(task)]() mutable {
            if (const auto main = weak.lock()) {
                task(*main);
            }
        });
    }

    static void runChanged(MainSide &main) {
        // A copy: the handler may replace itself.
        if (const auto changed = main.changed) {
            changed();
        }
    }

    // On the loop's thread.
    void report(ChangeCount count) {
        main_->raise(count);
        if (!main_->changeReported.exchange(true)) {
            onMain([](MainSide &main) {
                main.changeReported = false;
                runChanged(main);
            });
        }
    }

    MainQueue &mainQueue_;
    std::shared_ptr<MainSide> main_ = std::make_shared<MainSide>();
    std::string description_;
    std::optional<Clock::time_point> lastWrite_;
    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<WaylandSelection> peer_;
};

} // namespace

Created<Pasteboard> createWaylandPasteboard(MainQueue &mainQueue, const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    auto loop = EventLoop::connect(name);
    if (!loop) {
        return {nullptr, "there is no Wayland compositor"};
    }
    auto pasteboard = std::make_unique<WaylandPasteboard>(mainQueue, std::move(loop));
    if (std::string declined = pasteboard->start(); !declined.empty()) {
        return {nullptr, std::move(declined)};
    }
    return {std::move(pasteboard), {}};
}

} // namespace nerlo::platform
