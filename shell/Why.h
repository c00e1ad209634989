// What `nerlo-pro --why` tells: which row of the table decided on the last copy. English, UTF-8,
// for people; nothing of the copied text.
#pragma once

#include "clipboard/CopyTable.h"

#include <string>

namespace nerlo::shell {

// `selected` is the name of the profile that cleans where no row fits.
std::string whyText(const clipboard::DecidedCopy &decided, const std::string &selected);

} // namespace nerlo::shell
