// What `nerlo check` finds: the changes that a clean would make, and the forms in which they are
// told. Output is UTF-8.
#pragma once

#include "settings/TraceJson.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::cli {

struct Finding {
    settings::TextPosition begin; // in the text as it is
    settings::TextPosition end;
    const engine::TraceStep *step;
    const engine::TracedChange *change;
};

// By place, at the same place by step. The trace is of `source`, complete, and outlives the
// findings; `ending` is put behind its text. What one step changes and a later one changes back is
// not found, so that there is a finding exactly where text and ending differ from the source.
std::vector<Finding> findingsOf(std::u16string_view source, const engine::Trace &trace,
                                std::u16string_view ending);

struct FindingFormat {
    std::string_view name;
    std::string (*head)();
    // `path` as it was given, of any bytes.
    std::string (*one)(const std::string &path, const Finding &finding);
    std::string_view between; // two findings
    std::string_view tail;
};
std::span<const FindingFormat> findingFormats();

} // namespace nerlo::cli
