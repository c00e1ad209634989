// Has another program take what is on the clipboard: presses the keys for pasting in its place.
#pragma once

#include <functional>
#include <string>

namespace nerlo::platform {

// Main thread only.
class Paster {
  public:
    virtual ~Paster() = default;
    // Whoever has the keyboard now is the one to paste into. To be called before a window of this
    // program takes the keyboard.
    virtual void remember() = 0;
    // Presses Ctrl+V once the one remembered has the keyboard again and nobody holds a modifier key
    // that would make other keys of them, as far as the desktop tells. `done` runs on the main
    // queue, never inside this call; false: it did not come to that soon, and no key was pressed.
    virtual void paste(std::function<void(bool pasted)> done) = 0;
    // One line for the user's eyes, in English.
    virtual std::string description() const = 0;
    // What it cannot do now and could at another time, in the same words; empty for nothing.
    virtual std::string limitation() const { return {}; }
};

} // namespace nerlo::platform
