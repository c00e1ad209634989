// What the steps of a clean are called. Main thread only.
#pragma once

#include "engine/Operations.h"

#include <QString>
#include <cstddef>

namespace nerlo::shell {

// The title that the step's option has, with the number of a rule in the list, from 1; 0 for none.
QString stepTitle(const engine::Operation &operation, std::size_t rule);

// A word or two, which several operations may share: "Spaces".
QString shortStepName(const engine::Operation &operation);

} // namespace nerlo::shell
