// What a clean does to a text, as the preview shows it. Any thread; only memory may be wanting
// (std::bad_alloc).
#pragma once

#include "engine/Operations.h"
#include "settings/RuleTrials.h"
#include "shell/ShownChanges.h"
#include "storage/PropertyValue.h"

#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace nerlo::shell {

struct PreviewJob {
    std::shared_ptr<const std::u16string> text;
    storage::PropertyDictionary profile;
    std::string locale;
    LeftOutWords words;
    std::stop_token stop; // ends it early, with nothing
};

struct StepId {
    const engine::Operation *operation = nullptr;
    std::size_t rule = 0; // in the list of rules, from 1; 0 for another step
    bool operator==(const StepId &) const = default;
};

// A step that changed something.
struct PreviewStep {
    StepId id;
    ShownChanges shown;
};

// A place that a step changed, in the text and in the clean one.
struct PreviewReason {
    StepId id;
    text::Range source;
    text::Range result;
};

struct PreviewSteps {
    std::vector<PreviewStep> steps; // in the order in which they ran
    std::vector<PreviewReason> reasons;
    bool marksAteTags = false; // of replies: the tags were none any more when their turn came
};

// Soon,
std::optional<ShownChanges> previewChanges(const PreviewJob &job);
// in twice that time,
std::optional<std::vector<settings::RuleTrial>> previewRules(const PreviewJob &job);
// and in some ten times that time.
std::optional<PreviewSteps> previewSteps(const PreviewJob &job);

} // namespace nerlo::shell
