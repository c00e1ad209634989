// A small picture above the windows of all programs, for window systems that let no program place a
// window of its own but have something else for it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::platform {

struct PopupPicture {
    int width = 0; // in pixels, a multiple of the scale
    int height = 0;
    int scale = 1;
    std::vector<std::uint32_t> pixels; // 0xAARRGGBB, premultiplied; rows from the top
};

// From the top left of a screen, in its device-independent pixels.
struct PopupPoint {
    int x = 0;
    int y = 0;
};

struct PopupScreen {
    int width = 0;
    int height = 0;
    // What panels leave free.
    PopupPoint free;
    int freeWidth = 0;
    int freeHeight = 0;
    // Where its own top left corner is among all screens.
    PopupPoint origin{};
};

struct Popup {
    using Place =
        std::function<PopupPoint(const PopupScreen &screen, std::optional<PopupPoint> pointer)>;

    int width = 0; // in device-independent pixels
    int height = 0;
    // Whether to find out where the pointer is, and take the screen that it is on; else it is the
    // one that the window system prefers.
    bool atPointer = false;
    // The top left corner, from what was found out. Any thread; touches nothing that changes.
    Place place;
    // Main thread; called again when the popup comes to stand on a screen of another scale.
    std::function<PopupPicture(int scale)> draw;
    // Main thread; the popup is gone: somebody clicked on it, or the window system took it away.
    std::function<void()> closed;
};

// Stands for a popup that is shown; it goes with this.
class ShownPopup {
  public:
    virtual ~ShownPopup() = default;
};

// Main thread only.
class PopupLayer {
  public:
    virtual ~PopupLayer() = default;
    // Never takes the focus. Null when it cannot be shown. Nothing of `popup` is called inside
    // this.
    virtual std::unique_ptr<ShownPopup> show(Popup popup) = 0;
    // One line for the user's eyes, in English.
    virtual std::string description() const = 0;
};

} // namespace nerlo::platform
