#include "shell/ChooserItems.h"

#include "engine/Operations.h"
#include "settings/ReadyProfiles.h"
#include "settings/nrPreferences.h"
#include "shell/PreferencesLayout.h"
#include "shell/Strings.h"

#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace nerlo::shell {

namespace {

using Options = std::shared_ptr<const engine::CleaningOptions>;

// The operation that applies a list of rules.
constexpr std::string_view rulesHotKey = "sFindReplaceBool";

std::int32_t rulesOperation() {
    return std::ranges::find(engine::operations(), rulesHotKey, &engine::Operation::hotKey)->index;
}

Options optionsOf(const settings::ProfileRecord &record) {
    auto options = std::make_shared<engine::CleaningOptions>();
    options->setAllBools(record);
    return options;
}

void addProfiles(std::vector<ChooserItem> &items, const settings::nrPreferences &preferences) {
    const QString kind = localized("sChooserProfile");
    const auto &profiles = preferences.profilesItems();
    for (std::size_t place = 0; place < profiles.size(); ++place) {
        const auto record = preferences.profileAt(static_cast<int>(place));
        items.push_back({QString::fromStdU16String(settings::profileNameOf(profiles[place].record)),
                         kind,
                         {},
                         {optionsOf(record), {}, {}}});
    }
    const auto selected = static_cast<std::size_t>(preferences.selectedItem());
    if (selected < items.size()) { // what is most likely wanted comes first
        std::rotate(items.begin(), items.begin() + preferences.selectedItem(),
                    items.begin() + preferences.selectedItem() + 1);
    }
    for (const auto &ready : settings::readyProfiles()) {
        const QString title = localized(ready.titleKey);
        items.push_back({title,
                         localized("sChooserReady"),
                         QString::fromUtf8(ready.id.data(), qsizetype(ready.id.size())),
                         {optionsOf(readyRecord(ready, title.toStdU16String())), {}, {}}});
    }
}

void addRules(std::vector<ChooserItem> &items, const settings::nrPreferences &preferences) {
    const auto add = [&](const QString &title, const char *key, const auto &rules, bool shared) {
        const settings::ProfileRecord record{
            {"sFindReplaceBool", 1}, {"sOnlyOneProfile", shared ? 1 : 0}, {key, rules}};
        items.push_back(
            {title, localized("sChooserRules"), {}, {optionsOf(record), rulesOperation(), {}}});
    };
    if (const auto shared = preferences.sharedRules(); !shared.empty()) {
        add(localized("sChooserSharedRules"), "sFindAndReplaceItems", shared, true);
    }
    constexpr auto ownKey = "sFindAndReplaceItemsProfile";
    for (std::size_t place = 0; place < preferences.profilesItems().size(); ++place) {
        const auto record = preferences.profileAt(static_cast<int>(place));
        const auto *own = record.find(ownKey);
        const auto *rules = own ? own->as<storage::PropertyArray>() : nullptr;
        if (rules && !rules->empty()) {
            add(filled(localized("sChooserRulesOf"),
                       {QString::fromStdU16String(settings::profileNameOf(record))}),
                ownKey, *rules, false);
        }
    }
}

void addOperations(std::vector<ChooserItem> &items, const settings::nrPreferences &preferences) {
    const auto options = optionsOf(preferences.profileSelected());
    for (auto &item : operationItems()) {
        if (item.choice.operation != engine::statisticsOperation) { // it has no result
            item.choice.options = options;
            items.push_back(std::move(item));
        }
    }
}

// 0 for the best; -1 for none.
int rank(const ChooserItem &item, const QString &text, const QStringList &words) {
    const QString title = item.title.toCaseFolded();
    const QString all = title + ' ' + item.keywords.toCaseFolded();
    if (!std::ranges::all_of(words, [&](const QString &word) { return all.contains(word); })) {
        return -1;
    }
    if (title.startsWith(text)) {
        return 0;
    }
    static const QRegularExpression between("[^\\w]+",
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QStringList beginnings = all.split(between);
    const auto begins = [&](const QString &word) {
        return std::ranges::any_of(beginnings,
                                   [&](const QString &other) { return other.startsWith(word); });
    };
    return std::ranges::all_of(words, begins) ? 1 : 2;
}

} // namespace

std::vector<ChooserItem> operationItems() {
    std::vector<ChooserItem> items;
    for (const auto &operation : engine::operations()) {
        items.push_back({localized(commandText(operation.hotKey)),
                         localized("sChooserOperation"),
                         QString::fromUtf8(operation.name.data(), qsizetype(operation.name.size())),
                         {nullptr, operation.index, {}}});
    }
    return items;
}

std::vector<ChooserItem> chooserItems(const settings::nrPreferences &preferences) {
    std::vector<ChooserItem> items;
    addProfiles(items, preferences);
    addRules(items, preferences);
    addOperations(items, preferences);
    return items;
}

std::vector<std::size_t> placesOf(const std::vector<ChooserItem> &items, const QString &text) {
    const QString wanted = text.toCaseFolded().simplified();
    const QStringList words = wanted.split(' ', Qt::SkipEmptyParts);
    std::vector<std::pair<int, std::size_t>> ranked;
    for (std::size_t place = 0; place < items.size(); ++place) {
        const int rankOfItem = rank(items[place], wanted, words);
        if (rankOfItem >= 0) {
            ranked.emplace_back(rankOfItem, place);
        }
    }
    std::ranges::sort(ranked);
    std::vector<std::size_t> places;
    std::ranges::transform(ranked, std::back_inserter(places),
                           &std::pair<int, std::size_t>::second);
    return places;
}

} // namespace nerlo::shell
