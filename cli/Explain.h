// What each step of a clean did, for people. UTF-8.
#pragma once

#include "engine/Trace.h"

#include <string>
#include <string_view>

namespace nerlo::cli {

// A table, a line for each step, which ends with a line break. `source` is the text that was
// traced.
std::string explainTable(std::u16string_view source, const engine::Trace &trace);

} // namespace nerlo::cli
