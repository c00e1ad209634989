// What each step of a clean did, for people and for programs. UTF-8.
#pragma once

#include "engine/Trace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::cli {

// Places that programs are told of each step.
inline constexpr std::size_t explainedPlaces = 100;

// A table, a line for each step, which ends with a line break. `source` is the text that was
// traced.
std::string explainTable(std::u16string_view source, const engine::Trace &trace);
// A JSON array, an object for each step, in one line without a line break.
std::string explainJson(std::u16string_view source, const engine::Trace &trace);

} // namespace nerlo::cli
