#include "shell/PreviewSteps.h"

#include "engine/CleaningOptions.h"
#include "engine/Trace.h"
#include "settings/LinkRulesFile.h"

namespace nerlo::shell {

namespace {

engine::CleaningOptions optionsOf(const PreviewJob &job) {
    engine::CleaningOptions options;
    options.setAllBools(job.profile);
    options.linkRules = settings::readLinkRules(options.udCleanLinksRules.stringValue()).rules;
    return options;
}

// Every ">" goes with the marks of replies, also those of tags. Where structure is protected, only
// those at the beginnings of lines go.
bool eatsTags(const engine::ShownStep &shown, const engine::CleaningContext &context) {
    if (shown.step.operation->index != engine::replyMarksOperation ||
        !context.options.udRemoveHTMLTags || context.options.udProtectStructure) {
        return false;
    }
    const auto *tags = engine::findOperation(engine::tagsOperation);
    return tags->run(std::u16string(shown.before), context) != shown.before;
}

} // namespace

std::optional<ShownChanges> previewChanges(const PreviewJob &job) {
    const engine::CleaningOptions options = optionsOf(job);
    const std::u16string cleaned =
        engine::runPipeline(*job.text, {.options = options, .locale = job.locale});
    if (job.stop.stop_requested()) {
        return std::nullopt;
    }
    const std::size_t listed = job.text->size() <= shownWhole ? SIZE_MAX : mostShownChanges;
    return shownChanges(*job.text, cleaned, text::differenceOf(*job.text, cleaned, listed),
                        job.words);
}

std::optional<std::vector<settings::RuleTrial>> previewRules(const PreviewJob &job) {
    const engine::CleaningOptions options = optionsOf(job);
    auto trials =
        settings::tryRules(*job.text, {.options = options, .locale = job.locale}, job.stop);
    return job.stop.stop_requested() ? std::nullopt : std::optional(std::move(trials));
}

std::optional<PreviewSteps> previewSteps(const PreviewJob &job) {
    PreviewSteps result;
    const engine::CleaningOptions options = optionsOf(job);
    const engine::CleaningContext context{.options = options, .locale = job.locale};
    const auto watch = [&](const engine::ShownStep &shown) {
        result.steps.push_back(
            {{shown.step.operation, shown.step.rule},
             shownChanges(shown.before, shown.after, shown.difference, job.words)});
        result.marksAteTags = result.marksAteTags || eatsTags(shown, context);
    };
    const engine::Trace trace =
        engine::tracePipeline(*job.text, context, mostShownChanges,
                              {.characterClasses = false, .stop = job.stop, .watch = watch});
    if (job.stop.stop_requested()) {
        return std::nullopt;
    }
    for (const engine::TraceStep &step : trace.steps) {
        for (const engine::TracedChange &place : step.places) {
            result.reasons.push_back({{step.operation, step.rule}, place.source, place.result});
        }
    }
    return result;
}

} // namespace nerlo::shell
