// What the rules of a list do to a text and to their samples, before anything is cleaned with them.
//
// Texts are UTF-16. Any thread; how long it takes is bounded for each pattern as it is in a clean.
#pragma once

#include "engine/FindReplace.h"
#include "engine/Operations.h"
#include "settings/RuleList.h"

#include <stop_token>
#include <string>
#include <vector>

namespace nerlo::settings {

struct RuleTrial {
    // Of the rule that was tried: it may have been edited since.
    std::u16string find;
    std::u16string replace;
    // In the text as the steps and the rules before this one leave it.
    engine::RuleFinds finds;
    std::u16string exampleAfter; // what the rule makes of finds.example
    std::vector<SampleResult> samples;
};

// One for each place of the list that the options use, also where the rule, or the whole list, is
// switched off. What is no rule finds nothing. `stop` ends it between two rules.
std::vector<RuleTrial> tryRules(std::u16string text, const engine::CleaningContext &context,
                                const std::stop_token &stop = {});

} // namespace nerlo::settings
