#include "settings/RuleTrials.h"

#include "engine/StructureGuard.h"
#include "settings/FindReplaceList.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

namespace {

std::u16string textForRules(std::u16string text, const engine::CleaningContext &context) {
    engine::CleaningOptions options = context.options;
    options.udFindReplaceBool = true;
    auto steps = engine::operationsSwitchedOn(options);
    const engine::Operation *rules = engine::findOperation(engine::findReplaceOperation);
    steps.erase(std::ranges::find(steps, rules), steps.end());
    const engine::CleaningContext before{options, context.locale, context.actualVersion, nullptr};
    return options.udProtectStructure
               ? engine::runGuarded(std::move(text), steps, before, engine::cachedPiece)
               : engine::runSteps(std::move(text), steps, before, engine::cachedPiece);
}

RuleTrial tryRule(const TravelRule &rule, std::u16string_view text) {
    const engine::NumberedRule numbered{engine::PatternFailure::ownPattern, rule.find,
                                        rule.replace};
    RuleTrial trial{rule.find, rule.replace, engine::findsOf(text, numbered), {}, {}};
    if (!trial.finds.example.empty()) {
        trial.exampleAfter = engine::applyRule(trial.finds.example, numbered);
    }
    for (const RuleSample &sample : rule.samples) {
        trial.samples.push_back(trySample(rule, sample));
    }
    return trial;
}

} // namespace

std::vector<RuleTrial> tryRules(std::u16string text, const engine::CleaningContext &context,
                                const std::stop_token &stop) {
    std::vector<RuleTrial> trials;
    const storage::PropertyArray *list = engine::activeList(context.options);
    if (!list || list->empty()) {
        return trials;
    }
    text = textForRules(std::move(text), context);
    for (const storage::PropertyValue &stored : *list) {
        if (stop.stop_requested()) {
            return trials;
        }
        const auto rules = travelRules({stored}).rules;
        if (rules.empty()) {
            trials.emplace_back();
            continue;
        }
        const TravelRule &rule = rules.front();
        trials.push_back(tryRule(rule, text));
        if (rule.on) {
            text = engine::applyRule(std::move(text), {trials.size(), rule.find, rule.replace});
        }
    }
    return trials;
}

} // namespace nerlo::settings
