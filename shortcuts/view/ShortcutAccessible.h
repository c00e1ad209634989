// What screen readers learn of a shortcut control.
#pragma once

namespace nerlo::shortcuts {

// Makes them known to the toolkit; more than once does no harm.
void installShortcutAccessible();

} // namespace nerlo::shortcuts
