// Where the pointer is, on desktops that tell the toolkit only while it is over certain windows.
#pragma once

#include "platform/PopupLayer.h"

#include <functional>
#include <optional>

namespace nerlo::platform {

// Main thread only.
class PointerPlace {
  public:
    // In the toolkit's coordinates, from the top left of all screens; nothing: it is not known.
    using Found = std::function<void(std::optional<PopupPoint>)>;

    virtual ~PointerPlace() = default;
    // `found` runs once, soon, perhaps inside this call, and not after the end of this object.
    virtual void find(Found found) = 0;
    // Whether the desktop tells it at present.
    virtual bool isKnown() const = 0;
};

} // namespace nerlo::platform
