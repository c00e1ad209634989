// What happens to the memory of a process that holds other people's texts.
#pragma once

namespace nerlo::platform {

// Memory of large texts goes back to the system as soon as it is freed, instead of being kept for
// the next one. To be called before other threads start.
void giveBackLargeMemory();

// Keeps what the process has in memory out of core dumps, also of those that a debugger makes by
// the same rules. The process stays readable to the portal of the desktop, which a process that
// "cannot be dumped" is not. Programs that are started from this one inherit it. False when the
// system does not take it.
bool keepOutOfCoreDumps();

} // namespace nerlo::platform
