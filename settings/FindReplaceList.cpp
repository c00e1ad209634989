#include "settings/FindReplaceList.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

FindReplaceList::FindReplaceList(Localize localize)
    : localize_(std::move(localize)) {
    setItems({});
}

bool FindReplaceList::contains(int row) const {
    return row >= 0 && static_cast<std::size_t>(row) < items_.size();
}

void FindReplaceList::setItems(PropertyArray items, std::vector<std::uint64_t> ids) {
    items_ = std::move(items);
    ids_ = std::move(ids);
    ids_.resize(items_.size());
    select(-1);
}

void FindReplaceList::append(std::uint64_t id) {
    ids_.push_back(id);
    items_.emplace_back(PropertyDictionary{
        {"checkbox", true}, {"find", localize_(u"sFindReplaceNewItem")}, {"replace", u""}});
    select(static_cast<int>(items_.size()) - 1);
}

bool FindReplaceList::removeSelected() {
    if (!contains(lastClickedRow_)) {
        field_ = {localize_(u"sFindReplaceDelete"), {}, false};
        return false;
    }
    items_.erase(items_.begin() + lastClickedRow_);
    ids_.erase(ids_.begin() + lastClickedRow_);
    return true;
}

void FindReplaceList::select(int row) {
    if (!contains(row)) {
        lastClickedRow_ = -1;
        field_ = {localize_(u"sFindReplaceSelect"), {}, false};
        return;
    }
    lastClickedRow_ = row;
    field_ = {textOf(items_[static_cast<std::size_t>(row)], "replace"),
              localize_(u"sFindReplacePlaceholderString"), true};
}

void FindReplaceList::setInRule(int row, std::string_view key, PropertyValue value) {
    if (!contains(row)) {
        return;
    }
    PropertyValue &rule = items_[static_cast<std::size_t>(row)];
    if (!rule.as<PropertyDictionary>()) {
        rule = PropertyDictionary();
    }
    rule.as<PropertyDictionary>()->set(key, std::move(value));
}

void FindReplaceList::setFind(std::u16string text) {
    setInRule(lastClickedRow_, "find", std::move(text));
}

void FindReplaceList::setReplacement(std::u16string text) {
    if (contains(lastClickedRow_)) {
        field_.text = text;
    }
    setInRule(lastClickedRow_, "replace", std::move(text));
}

void FindReplaceList::setCheckbox(int row, bool on) {
    setInRule(row, "checkbox", on ? 1 : 0);
}

void FindReplaceList::setSamples(int row, PropertyArray samples) {
    const bool none = samples.empty();
    setInRule(row, samplesKey, std::move(samples));
    if (none && contains(row)) {
        items_[static_cast<std::size_t>(row)].as<PropertyDictionary>()->remove(samplesKey);
    }
}

void FindReplaceList::insert(const PropertyArray &rules, const std::vector<std::uint64_t> &ids) {
    const auto place =
        contains(lastClickedRow_) ? lastClickedRow_ + 1 : static_cast<int>(items_.size());
    items_.insert(items_.begin() + place, rules.begin(), rules.end());
    ids_.insert(ids_.begin() + place, ids.begin(), ids.end());
    select(place);
}

void FindReplaceList::move(const std::vector<int> &rows, int dropRow) {
    std::vector<int> sorted;
    std::ranges::copy_if(rows, std::back_inserter(sorted),
                         [this](int row) { return contains(row); });
    std::ranges::sort(sorted);
    sorted.erase(std::unique(sorted.begin(), sorted.end()), sorted.end());
    if (sorted.empty() || dropRow < 0) {
        return;
    }
    PropertyValue moved = items_[static_cast<std::size_t>(sorted.front())];
    const std::uint64_t id = ids_[static_cast<std::size_t>(sorted.front())];
    for (auto row = sorted.rbegin(); row != sorted.rend(); ++row) {
        items_.erase(items_.begin() + *row);
        ids_.erase(ids_.begin() + *row);
    }
    const int left = static_cast<int>(items_.size());
    const int place = left < dropRow ? dropRow - 1 : dropRow;
    items_.insert(items_.begin() + std::min(place, left), std::move(moved));
    ids_.insert(ids_.begin() + std::min(place, left), id);
    select(-1);
}

bool FindReplaceList::isOn(const PropertyValue &rule) {
    const auto *dictionary = rule.as<PropertyDictionary>();
    const PropertyValue *on = dictionary ? dictionary->find("checkbox") : nullptr;
    return on && on->boolValue();
}

std::u16string FindReplaceList::textOf(const PropertyValue &rule, std::string_view key) {
    const auto *dictionary = rule.as<PropertyDictionary>();
    const PropertyValue *text = dictionary ? dictionary->find(key) : nullptr;
    return text ? text->stringValue() : std::u16string();
}

} // namespace nerlo::settings
