#include "shell/LeftOutRules.h"

#include "shell/Strings.h"

#include <QStringList>

namespace nerlo::shell {

std::vector<std::size_t> leftOutRules(const engine::CleaningReport &report) {
    std::vector<std::size_t> rules;
    for (const engine::PatternFailure &failure : report) {
        if (failure.why == engine::PatternFailure::Why::GivenUp) {
            rules.push_back(failure.rule);
        }
    }
    return rules;
}

QString leftOutText(const engine::CleaningReport &report) {
    QStringList names;
    for (const std::size_t rule : leftOutRules(report)) {
        names << (rule == engine::PatternFailure::ownPattern ? localized("sInsertYourPattern")
                                                             : QString::number(rule));
    }
    return names.isEmpty() ? QString() : filled(localized("sRulesLeftOut"), {names.join(", ")});
}

} // namespace nerlo::shell
