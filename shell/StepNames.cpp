#include "shell/StepNames.h"

#include "shell/Strings.h"

#include <QLocale>
#include <algorithm>

namespace nerlo::shell {

namespace {

struct ShortName {
    std::string_view operation; // the beginning of its name
    const char *key;
};
// The first that fits counts.
constexpr ShortName shortNames[] = {
    {"collapse-tabs", "sStepTabs"},
    {"remove-tabs", "sStepTabs"},
    {"change-tabs", "sStepTabs"},
    {"collapse-", "sStepSpaces"},
    {"remove-all-spaces", "sStepSpaces"},
    {"remove-space-", "sStepSpaces"},
    {"trim", "sStepSpaces"},
    {"change-returns", "sStepLines"},
    {"join-lines", "sStepLines"},
    {"unwrap-", "sStepLines"},
    {"change-case", "sStepCase"},
    {"change-quotes", "sStepQuotes"},
    {"remove-single-quotes", "sStepQuotes"},
    {"remove-double-quotes", "sStepQuotes"},
    {"remove-reply-marks", "sStepReplyMarks"},
    {"remove-tags", "sStepTags"},
    {"your-pattern", "sStepPattern"},
    {"replace-", "sStepReplacements"},
    {"find-replace-list", "sStepReplacements"},
    {"remove-bullets", "sStepBullets"},
    {"change-ellipsis", "sStepDots"},
    {"sort-lines", "sStepOrder"},
    {"remove-duplicate-lines", "sStepDuplicates"},
    {"remove-hyphens", "sStepHyphens"},
    {"add-", "sStepAdditions"},
    {"repair-encoding", "sStepEncoding"},
    {"clean-characters", "sStepCharacters"},
    {"rejoin-words", "sStepWords"},
    {"clean-links", "sStepLinks"},
};

} // namespace

QString stepTitle(const engine::Operation &operation, std::size_t rule) {
    const QString title = localized(operation.hotKey);
    return rule == 0 ? title : title + ": " + QLocale().toString(static_cast<qulonglong>(rule));
}

QString shortStepName(const engine::Operation &operation) {
    const auto *const row = std::ranges::find_if(shortNames, [&](const ShortName &name) {
        return operation.name.starts_with(name.operation);
    });
    return localized(row == std::end(shortNames) ? operation.hotKey : row->key);
}

} // namespace nerlo::shell
