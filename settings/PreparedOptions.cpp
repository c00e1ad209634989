#include "settings/PreparedOptions.h"

#include "settings/LinkRulesFile.h"

#include <utility>

namespace nerlo::settings {

namespace {

void checkPatterns(const engine::CleaningOptions &options, const engine::Operation *operation) {
    // An empty text has every pattern compiled.
    engine::CleaningReport report;
    const engine::CleaningContext context{.options = options, .locale = "", .report = &report};
    if (operation) {
        operation->run({}, context);
    } else {
        engine::runPipeline({}, context);
    }
    if (!report.empty()) {
        throw OptionsError(messageOf(report));
    }
}

} // namespace

engine::CleaningOptions preparedOptions(const storage::PropertyDictionary &profile,
                                        const engine::Operation *operation) {
    engine::CleaningOptions options;
    options.setAllBools(profile);
    checkPatterns(options, operation);
    if (lacksLinkRules(options, operation)) {
        addLinkRules(options);
    }
    return options;
}

bool lacksLinkRules(const engine::CleaningOptions &options, const engine::Operation *operation) {
    const bool cleansLinks =
        operation ? operation->index == engine::cleanLinksOperation : options.udCleanLinks;
    return cleansLinks && !options.linkRules && !options.udCleanLinksRules.stringValue().empty();
}

void addLinkRules(engine::CleaningOptions &options) {
    auto [rules, error] = readLinkRules(options.udCleanLinksRules.stringValue());
    if (!error.empty()) {
        throw OptionsError(error, OptionsError::Kind::unreadable);
    }
    options.linkRules = std::move(rules);
}

} // namespace nerlo::settings
