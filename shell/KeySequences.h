// Recorded shortcuts as the toolkit's key sequences, to be shown beside menu items.
#pragma once

#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/nrShortcut.h"

#include <QKeySequence>

namespace nerlo::shell {

// Empty for a key that has no menu key equivalent.
QKeySequence keySequence(const shortcuts::nrShortcut &shortcut,
                         const shortcuts::ShortcutTexts &texts);

} // namespace nerlo::shell
