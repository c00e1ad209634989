#include "platform/x11/X11Pasteboard.h"

#include "platform/Alive.h"
#include "platform/x11/EventPump.h"
#include "platform/x11/X11Selection.h"

#include <atomic>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace nerlo::platform {

namespace {

class X11Pasteboard final : public Pasteboard {
  public:
    X11Pasteboard(MainQueue &mainQueue, IoThread &io, std::unique_ptr<x11::X11Selection> peer)
        : mainQueue_(mainQueue)
        , io_(io)
        , peer_(std::move(peer)) {
        peer_->changed = [this] {
            if (observed_ && !announced_.exchange(true)) {
                tellChanged_();
            }
        };
        peer_->lost = alive_.guardOn(mainQueue_, [this] {
            if (const auto lost = lost_) {
                lost();
            }
        });
        pump_ = std::make_unique<x11::EventPump>(io, *peer_);
    }

    ~X11Pasteboard() override {
        bool onlyHere = false;
        pump_->submit([&] { onlyHere = peer_->handOver(); });
        pump_.reset();
        if (staysBehind_ && onlyHere) {
            io_.run([this] { goOnBehind(); });
        }
    }

    ChangeCount changeCount() const override { return peer_->changeCount(); }
    bool notifiesChanges() const override { return true; }
    void setChangeHandler(std::function<void()> changed) override {
        changed_ = std::move(changed);
        observed_ = changed_ != nullptr;
    }
    void setLostHandler(std::function<void()> lost) override { lost_ = std::move(lost); }

    void readFormats(FormatsHandler handler) override {
        pump_->submit([this, handler = alive_.guardOn(mainQueue_, std::move(handler))] {
            peer_->readFormats(handler);
        });
    }
    void read(ChangeCount of, PasteboardRequest request, ReadHandler handler) override {
        pump_->submit([this, of, request = std::move(request),
                       handler = alive_.guardOn(mainQueue_, std::move(handler))] {
            peer_->read(of, request, handler);
        });
    }
    void write(PasteboardContent content, std::optional<ChangeCount> onlyOver,
               WriteHandler handler) override {
        pump_->submit([this, content = std::move(content), onlyOver,
                       handler = alive_.guardOn(mainQueue_, std::move(handler))] {
            peer_->write(content, onlyOver, handler);
        });
    }

    std::string description() const override { return peer_->description(); }
    std::vector<std::string> limitations() const override { return {}; }
    void stayBehind() override { staysBehind_ = true; }

  private:
    // On the I/O thread.
    void goOnBehind() {
        if (io_.goOnBehind({peer_->fileDescriptor()})) {
            peer_->onlyServe([] { _exit(0); });
            pump_ = std::make_unique<x11::EventPump>(io_, *peer_);
        }
    }

    MainQueue &mainQueue_;
    IoThread &io_;
    bool staysBehind_ = false;
    std::function<void()> changed_; // main thread, as is lost_
    std::function<void()> lost_;
    std::atomic<bool> observed_ = false;
    std::atomic<bool> announced_ = false; // a call of changed_ is under way
    Alive alive_;
    const std::function<void()> tellChanged_ = alive_.guardOn(mainQueue_, [this] {
        announced_ = false;
        // A copy: the handler may replace itself.
        if (const auto changed = changed_) {
            changed();
        }
    });
    std::unique_ptr<x11::X11Selection> peer_;
    std::unique_ptr<x11::EventPump> pump_;
};

} // namespace

Created<Pasteboard> createX11Pasteboard(MainQueue &mainQueue, IoThread &io) {
    Created<Pasteboard> result;
    try {
        if (auto peer = x11::X11Selection::open(result.declined)) {
            result.backend = std::make_unique<X11Pasteboard>(mainQueue, io, std::move(peer));
        }
    } catch (const std::system_error &error) {
        result.declined = error.what();
    }
    return result;
}

} // namespace nerlo::platform
