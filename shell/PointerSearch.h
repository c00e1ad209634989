// Finds out where the pointer is, on desktops too that tell no window of the toolkit.
//
// Main thread only.
#pragma once

#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "platform/PointerPlace.h"
#include "platform/PopupLayer.h"

#include <QPoint>
#include <functional>
#include <memory>
#include <optional>

namespace nerlo::shell {

class PointerSearch {
  public:
    // Of `layer` and `place`, what is not null is asked, the layer first, else the toolkit. All
    // must outlive this.
    PointerSearch(platform::PopupLayer *layer, platform::PointerPlace *place,
                  platform::MainQueue &mainQueue)
        : layer_(layer)
        , place_(place)
        , mainQueue_(mainQueue) {}

    // `found` runs once, perhaps inside this call, and not after stop() or another start(). The
    // point is in the toolkit's coordinates; where the toolkit does not know it, a point under a
    // panel is moved beside the panel, which would cover what is put there. What was needed for the
    // search stays until stop(): the compositor looks anew for who gets the keyboard when a surface
    // goes.
    void start(std::function<void(QPoint)> found);
    void stop();

  private:
    bool searchInLayer();
    void tell(std::optional<QPoint> at);

    platform::PopupLayer *layer_;
    platform::PointerPlace *place_;
    platform::MainQueue &mainQueue_;
    std::function<void(QPoint)> found_;
    std::unique_ptr<platform::ShownPopup> search_;
    platform::Alive alive_;
};

} // namespace nerlo::shell
