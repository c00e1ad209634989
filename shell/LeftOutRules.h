// What a person is told of the patterns that a clean left out because they take too much work.
#pragma once

#include "engine/CleaningReport.h"

#include <QString>
#include <vector>

namespace nerlo::shell {

// The numbers of such rules, from 1, and PatternFailure::ownPattern for the pattern of one's own.
// A pattern that does not compile is not among them: its row says so all the time.
std::vector<std::size_t> leftOutRules(const engine::CleaningReport &report);

// One sentence that names them; empty where there are none.
QString leftOutText(const engine::CleaningReport &report);

} // namespace nerlo::shell
