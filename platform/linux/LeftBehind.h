// A process that is left behind when this one ends.
#pragma once

#include <vector>

namespace nerlo::platform {

// Forks. The new process has the calling thread alone, and of what was open only the file
// descriptors `kept`; here these lead nowhere from now on, so that what is at their other ends
// cannot be told anything by both. It belongs to no terminal, signals to end end it, and whatever
// memory is free goes back to the system. What it may call is what needs no other thread and no
// lock that another one may hold, and it ends by _exit().
//
// True in the new process; false here, also if the system grants none.
bool leaveBehind(const std::vector<int> &kept);

} // namespace nerlo::platform
