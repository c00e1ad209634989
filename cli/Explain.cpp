#include "cli/Explain.h"

#include "cli/ChangeWords.h"
#include "settings/TraceJson.h"

#include <algorithm>
#include <vector>

namespace nerlo::cli {

namespace {

constexpr std::string_view stepHead = "step";
constexpr std::string_view countHead = "changes";

std::string padding(std::size_t size, std::size_t width) {
    return std::string(width - std::min(size, width), ' ');
}

// "3:7  removes U+0020 after "Some", before "prose""; nothing for a step that changed nothing.
std::string firstOf(const engine::TraceStep &step, std::u16string_view source) {
    if (step.places.empty()) {
        return {};
    }
    const engine::TracedChange &first = step.places.front();
    settings::TextPosition position;
    position.moveTo(source, first.source.begin);
    return std::to_string(position.line) + ":" + std::to_string(position.column) + "  " +
           effectOf(first) + surroundingsOf(first.source, source);
}

} // namespace

std::string explainTable(std::u16string_view source, const engine::Trace &trace) {
    std::vector<std::string> names;
    std::size_t width = stepHead.size();
    for (const engine::TraceStep &step : trace.steps) {
        names.push_back(std::to_string(names.size() + 1) + " " + nameOf(step));
        width = std::max(width, names.back().size());
    }
    std::string table = std::string(stepHead) + padding(stepHead.size(), width) + "  " +
                        std::string(countHead) + "  first change\n";
    for (std::size_t at = 0; at < trace.steps.size(); ++at) {
        const std::string count = std::to_string(trace.steps[at].changes);
        const std::string first = firstOf(trace.steps[at], source);
        table += names[at] + padding(names[at].size(), width) + "  " +
                 padding(count.size(), countHead.size()) + count + (first.empty() ? "" : "  ") +
                 first + "\n";
    }
    return table;
}

} // namespace nerlo::cli
