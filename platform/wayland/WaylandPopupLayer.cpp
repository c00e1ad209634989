#include "platform/wayland/WaylandPopupLayer.h"

#include "platform/Alive.h"
#include "platform/Pasteboard.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/LayerPopup.h"

#include <chrono>
#include <utility>

namespace nerlo::platform {

namespace {

using namespace std::chrono_literals;
using wayland::Clock;
using wayland::EventLoop;
using wayland::LayerPopup;

// A popup that comes later than this comes too late to be looked for.
constexpr auto pointerWithin = 200ms;

// A connection that lives only while the popup is shown: nothing of it can wake an idle program, or
// be left over when a compositor misbehaves.
class WaylandShownPopup final : public ShownPopup {
  public:
    WaylandShownPopup(MainQueue &mainQueue, std::unique_ptr<EventLoop> loop, Popup popup)
        : mainQueue_(mainQueue)
        , popup_(std::move(popup))
        , loop_(std::move(loop))
        , surface_(std::make_unique<LayerPopup>(*loop_, popup_, hooks())) {
        loop_->start({[this] { surface_->close(); }, {}, {}});
        loop_->post([this] { surface_->open(); });
        pointerUnknown_ = mainQueue_.postAfter(pointerWithin, [this] {
            pointerUnknown_ = 0;
            loop_->post([this] { surface_->pointerUnknown(); });
        });
    }
    ~WaylandShownPopup() override {
        mainQueue_.cancel(pointerUnknown_);
        loop_->stop(Clock::now(), Clock::now());
        surface_.reset();
    }

  private:
    LayerPopup::Hooks hooks() {
        return {alive_.guardOn(mainQueue_,
                               [this](int scale) {
                                   loop_->post([this, picture = popup_.draw(scale)] {
                                       surface_->setPicture(picture);
                                   });
                               }),
                // A copy: it ends this.
                alive_.guardOn(mainQueue_, [closed = popup_.closed] { closed(); })};
    }

    MainQueue &mainQueue_;
    const Popup popup_;
    Alive alive_;
    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<LayerPopup> surface_;
    MainQueue::TaskId pointerUnknown_ = 0;
};

class WaylandPopupLayer final : public PopupLayer {
  public:
    WaylandPopupLayer(MainQueue &mainQueue, IoThread &io, std::string display)
        : mainQueue_(mainQueue)
        , io_(io)
        , display_(std::move(display)) {}

    std::unique_ptr<ShownPopup> show(Popup popup) override {
        auto loop = EventLoop::connect(io_, display_);
        return loop ? std::make_unique<WaylandShownPopup>(mainQueue_, std::move(loop),
                                                          std::move(popup))
                    : nullptr;
    }
    std::string description() const override { return "Wayland, layer shell"; }

  private:
    MainQueue &mainQueue_;
    IoThread &io_;
    const std::string display_;
};

} // namespace

Created<PopupLayer> createWaylandPopupLayer(MainQueue &mainQueue, IoThread &io,
                                            const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    const auto loop = EventLoop::connect(io, name);
    if (!loop) {
        return {nullptr, "there is no Wayland compositor"};
    }
    const Popup none;
    const LayerPopup surface(*loop, none, {});
    if (!loop->roundTrip(pasteboardServerLimit)) {
        return {nullptr, "the Wayland compositor does not answer"};
    }
    if (!surface.available()) {
        return {nullptr, "the Wayland compositor has no layer shell"};
    }
    return {std::make_unique<WaylandPopupLayer>(mainQueue, io, name), {}};
}

} // namespace nerlo::platform
