#include "shell/PopupPlacement.h"

#include <algorithm>

namespace nerlo::shell {

namespace {

ScreenPoint atPointer(const MainScreen &screen, double width, double height, ScreenPoint pointer) {
    const ScreenRect &frame = screen.frame;
    const double top = frame.y + frame.height - screen.barThickness;
    double y = pointer.y - height; // hangs below the pointer
    if (y + height > top) {
        y = top - height;
    }
    return {std::min(std::max(pointer.x, frame.x), frame.x + frame.width - width),
            std::max(frame.y, y)};
}

} // namespace

ScreenPoint popupOrigin(std::int64_t position, const MainScreen &screen, double width,
                        double height, ScreenPoint pointer) {
    const ScreenRect &visible = screen.visible;
    const double left = visible.x;
    const double right = visible.x + visible.width - width;
    const double bottom = visible.y;
    const double top = visible.y + visible.height - height;
    switch (position) {
    case 1:
        return {right, bottom};
    case 2:
        return {left, top};
    case 3:
        return {right, top};
    case 4: {
        // A little above the centre, where people expect a message.
        const double sum = visible.x + visible.width;
        return {((sum == 0 ? visible.x : sum) - width) * 0.5,
                (visible.y + visible.height + height) * 0.5};
    }
    case atPointerPosition:
        return atPointer(screen, width, height, pointer);
    default:
        return {left, bottom};
    }
}

} // namespace nerlo::shell
