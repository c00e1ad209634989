// Keys and modifiers as the toolkit numbers them.
#pragma once

#include "platform/KeyboardLayout.h"

#include <cstdint>

namespace nerlo::platform {

// The toolkit's key with its modifiers in one number, as QKeySequence takes it. `keyCode` is a
// virtual key code, `modifiers` are the masks of the hot-key service. A key that writes a letter is
// named by the layout, any other by what stands on it. 0 for a key that the toolkit has no number
// for. Main thread.
int qtKeyOf(std::uint64_t keyCode, std::uint32_t modifiers, const KeyboardLayout &layout);

} // namespace nerlo::platform
