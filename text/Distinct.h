// Telling equal texts apart from new ones.
#pragma once

#include "text/Items.h"

#include <string>

namespace nerlo::text {

// The first of every item, compared unit by unit, joined again in their order. Linear in the number
// of units also on items chosen to collide: the hash is keyed anew in every process. Any thread.
std::u16string distinct(const Items &items);

} // namespace nerlo::text
