#include "cli/LinkRules.h"

#include "cli/Failure.h"
#include "settings/LinkRulesFile.h"

#include <utility>

namespace nerlo::cli {

bool lacksLinkRules(const engine::CleaningOptions &options, const engine::Operation *operation) {
    const bool cleansLinks =
        operation ? operation->index == engine::cleanLinksOperation : options.udCleanLinks;
    return cleansLinks && !options.linkRules && !options.udCleanLinksRules.stringValue().empty();
}

void addLinkRules(engine::CleaningOptions &options) {
    auto [rules, error] = settings::readLinkRules(options.udCleanLinksRules.stringValue());
    if (!error.empty()) {
        throw Failure(ExitStatus::ioFailed, error);
    }
    options.linkRules = std::move(rules);
}

} // namespace nerlo::cli
