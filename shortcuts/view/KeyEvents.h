// The toolkit's key events as those of shortcuts.
#pragma once

#include "shortcuts/nrShortcut.h"

class QKeyEvent;

namespace nerlo::platform {
class KeyboardLayout;
}

namespace nerlo::shortcuts {

// A key outside the table of virtual keys gets a code that no key has.
KeyEvent keyEventOf(const QKeyEvent &event, const platform::KeyboardLayout &layout);
bool isModifierKey(std::uint64_t virtualKey);

} // namespace nerlo::shortcuts
