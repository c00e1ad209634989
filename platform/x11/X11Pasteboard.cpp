#include "platform/x11/X11Pasteboard.h"

#include "platform/x11/EventThread.h"
#include "platform/x11/X11Selection.h"

#include <atomic>
#include <system_error>
#include <utility>

namespace nerlo::platform {

namespace {

class X11Pasteboard final : public Pasteboard {
  public:
    X11Pasteboard(MainQueue &mainQueue, std::unique_ptr<x11::X11Selection> peer)
        : mainQueue_(mainQueue)
        , peer_(std::move(peer)) {
        peer_->changed = [this] {
            if (observed_ && !announced_.exchange(true)) {
                mainQueue_.post(whileAlive([this] {
                    announced_ = false;
                    // A copy: the handler may replace itself.
                    if (const auto changed = changed_) {
                        changed();
                    }
                }));
            }
        };
        peer_->lost = [this] {
            mainQueue_.post(whileAlive([this] {
                if (lost_) {
                    lost_();
                }
            }));
        };
        thread_ = std::make_unique<x11::EventThread>(*peer_);
    }

    ~X11Pasteboard() override {
        thread_->submit([this] { peer_->handOver(); });
        thread_.reset();
    }

    ChangeCount changeCount() const override { return peer_->changeCount(); }
    bool notifiesChanges() const override { return true; }
    void setChangeHandler(std::function<void()> changed) override {
        changed_ = std::move(changed);
        observed_ = changed_ != nullptr;
    }
    void setLostHandler(std::function<void()> lost) override { lost_ = std::move(lost); }

    void readFormats(FormatsHandler handler) override {
        thread_->submit(
            [this, handler = onMain(std::move(handler))] { peer_->readFormats(handler); });
    }
    void read(ChangeCount of, std::vector<std::string> formats, std::size_t limit,
              ReadHandler handler) override {
        thread_->submit(
            [this, of, formats = std::move(formats), limit, handler = onMain(std::move(handler))] {
                peer_->read(of, formats, limit, handler);
            });
    }
    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override {
        thread_->submit(
            [this, content = std::move(content), onlyOver, handler = onMain(std::move(handler))] {
                peer_->write(content, onlyOver, handler);
            });
    }

    std::string description() const override { return peer_->description(); }
    std::vector<std::string> limitations() const override { return {}; }

  private:
    std::function<void()> whileAlive(std::function<void()> function) {
        return [function = std::move(function), alive = std::weak_ptr<const bool>(alive_)] {
            if (!alive.expired()) {
                function();
            }
        };
    }
    // Carries a result from the peer's thread to the main thread.
    template <class Result>
    std::function<void(Result)> onMain(std::function<void(Result)> handler) {
        return [this, handler = std::move(handler),
                alive = std::weak_ptr<const bool>(alive_)](Result result) {
            mainQueue_.post([handler, alive, result = std::move(result)]() mutable {
                if (!alive.expired()) {
                    handler(std::move(result));
                }
            });
        };
    }

    MainQueue &mainQueue_;
    std::function<void()> changed_; // main thread, as is lost_
    std::function<void()> lost_;
    std::atomic<bool> observed_ = false;
    std::atomic<bool> announced_ = false; // a call of changed_ is under way
    std::shared_ptr<const bool> alive_ = std::make_shared<bool>(true);
    std::unique_ptr<x11::X11Selection> peer_;
    std::unique_ptr<x11::EventThread> thread_;
};

} // namespace

Created<Pasteboard> createX11Pasteboard(MainQueue &mainQueue) {
    Created<Pasteboard> result;
    try {
        if (auto peer = x11::X11Selection::open(result.declined)) {
            result.backend = std::make_unique<X11Pasteboard>(mainQueue, std::move(peer));
        }
    } catch (const std::system_error &error) {
        result.declined = error.what();
    }
    return result;
}

} // namespace nerlo::platform
