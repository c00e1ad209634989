#include "platform/wayland/WaylandActiveApplication.h"

#include "platform/Alive.h"
#include "platform/Pasteboard.h"
#include "platform/SpreadsheetLinks.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/PlasmaWindows.h"
#include "platform/wayland/Toplevels.h"

#include <array>
#include <memory>
#include <utility>

namespace nerlo::platform {

namespace {

using wayland::Clock;
using wayland::EventLoop;
using wayland::WindowList;

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
        if (!tracking->loop_->roundTrip(pasteboardServerLimit)) {
            declined = "the Wayland compositor does not answer";
            return nullptr;
        }
        tracking->chooseList();
        if (!tracking->windows_) {
            declined = "the Wayland compositor does not tell this program of other windows (KWin "
                       "tells a program that is installed)";
            return nullptr;
        }
        // Brings in the windows that are there already, and what KWin tells of them when asked.
        tracking->loop_->roundTrip(pasteboardServerLimit);
        tracking->loop_->roundTrip(pasteboardServerLimit);
        return tracking;
    }

    ~Tracking() {
        loop_->stop(Clock::now(), Clock::now());
        windows_.reset();
        lists_ = {};
    }

    // `activated` runs on the I/O thread.
    void report(WindowList::Activated activated) {
        windows_->report(std::move(activated));
        loop_->start({});
    }

    const char *protocol() const { return windows_->protocol(); }

  private:
    explicit Tracking(std::unique_ptr<EventLoop> loop)
        : loop_(std::move(loop))
        , lists_{std::make_unique<wayland::Toplevels>(loop_->display()),
                 std::make_unique<wayland::PlasmaWindows>(loop_->display())} {}

    void chooseList() {
        for (auto &list : lists_) {
            if (!windows_ && list->available()) {
                windows_ = std::move(list);
            }
            list.reset();
        }
    }

    std::unique_ptr<EventLoop> loop_;
    std::array<std::unique_ptr<WindowList>, 2> lists_; // until one of them is chosen
    std::unique_ptr<WindowList> windows_;
};

class WaylandActiveApplication final : public ActiveApplication {
  public:
    WaylandActiveApplication(MainQueue &mainQueue, IoThread &io, std::string display,
                             std::string protocol)
        : mainQueue_(mainQueue)
        , io_(io)
        , display_(std::move(display))
        , protocol_(std::move(protocol)) {}

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

    std::string description() const override { return "Wayland, " + protocol_; }

  private:
    MainQueue &mainQueue_;
    IoThread &io_;
    std::string display_;
    std::string protocol_;
    Alive alive_; // of one handler after the other
    std::unique_ptr<Tracking> tracking_;
};

} // namespace

Created<ActiveApplication> createWaylandActiveApplication(MainQueue &mainQueue, IoThread &io,
                                                          const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    std::string declined;
    const auto tracking = Tracking::begin(io, name, declined);
    if (!tracking) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<WaylandActiveApplication>(mainQueue, io, name, tracking->protocol()),
            {}};
}

} // namespace nerlo::platform
