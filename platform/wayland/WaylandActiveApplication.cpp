#include "platform/wayland/WaylandActiveApplication.h"

#include "platform/Alive.h"
#include "platform/Pasteboard.h"
#include "platform/SpreadsheetLinks.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Toplevels.h"

#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

using wayland::Clock;
using wayland::EventLoop;
using wayland::Toplevels;

// A connection of its own, which lives only while somebody listens: every change of a window's
// title comes over it and would wake an idle program.
class Tracking {
  public:
    // Null, and why in `declined`, without a compositor that can do it.
    static std::unique_ptr<Tracking> begin(IoThread &io, const std::string &display,
                                           std::string &declined) {
        auto loop = EventLoop::connect(io, display);
        if (!loop) {
            declined = "there is no Wayland compositor";
            return nullptr;
        }
        std::unique_ptr<Tracking> tracking(new Tracking(std::move(loop)));
        if (!tracking->loop_->roundTrip(pasteboardStallLimit)) {
            declined = "the Wayland compositor does not answer";
            return nullptr;
        }
        if (!tracking->toplevels_->available()) {
            declined = "the Wayland compositor has no foreign-toplevel management";
            return nullptr;
        }
        // Brings in the windows that are there already.
        tracking->loop_->roundTrip(pasteboardStallLimit);
        return tracking;
    }

    ~Tracking() {
        loop_->stop(Clock::now(), Clock::now());
        toplevels_.reset();
    }

    // `activated` runs on the I/O thread.
    void report(Toplevels::Activated activated) {
        toplevels_->report(std::move(activated));
        loop_->start({});
    }

  private:
    explicit Tracking(std::unique_ptr<EventLoop> loop)
        : loop_(std::move(loop))
        , toplevels_(std::make_unique<Toplevels>(loop_->display())) {}

    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<Toplevels> toplevels_;
};

class WaylandActiveApplication final : public ActiveApplication {
  public:
    WaylandActiveApplication(MainQueue &mainQueue, IoThread &io, std::string display)
        : mainQueue_(mainQueue)
        , io_(io)
        , display_(std::move(display)) {}

    void setActivatedHandler(Handler activated) override {
        tracking_.reset();
        alive_ = {};
        if (!activated) {
            return;
        }
        std::string declined;
        tracking_ = Tracking::begin(io_, display_, declined);
        if (!tracking_) {
            return;
        }
        tracking_->report(
            [tell = alive_.guardOn(mainQueue_, std::move(activated))](const std::string &appId) {
                const std::string_view spreadsheet = spreadsheetOfWindow(appId);
                tell(spreadsheet.empty() ? appId : std::string(spreadsheet));
            });
    }

    std::string description() const override { return "Wayland, foreign-toplevel management"; }

  private:
    MainQueue &mainQueue_;
    IoThread &io_;
    std::string display_;
    Alive alive_; // of one handler after the other
    std::unique_ptr<Tracking> tracking_;
};

} // namespace

Created<ActiveApplication> createWaylandActiveApplication(MainQueue &mainQueue, IoThread &io,
                                                          const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    std::string declined;
    if (!Tracking::begin(io, name, declined)) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<WaylandActiveApplication>(mainQueue, io, name), {}};
}

} // namespace nerlo::platform
