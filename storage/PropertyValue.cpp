#include "storage/PropertyValue.h"

#include "storage/Overloaded.h"
#include "text/Ascii.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace nerlo::storage {

namespace {

bool isSpace(char16_t unit) {
    return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}

std::u16string_view withoutLeadingSpace(std::u16string_view text) {
    while (!text.empty() && isSpace(text.front())) {
        text.remove_prefix(1);
    }
    return text;
}

bool boolOfText(std::u16string_view text) {
    text = withoutLeadingSpace(text);
    return !text.empty() &&
           std::u16string_view(u"YyTt123456789").find(text.front()) != std::u16string_view::npos;
}

std::int64_t integerOfText(std::u16string_view text) {
    constexpr auto highest = std::numeric_limits<std::int64_t>::max();
    constexpr auto lowest = std::numeric_limits<std::int64_t>::min();
    text = withoutLeadingSpace(text);
    const bool negative = !text.empty() && text.front() == u'-';
    if (!text.empty() && (text.front() == u'-' || text.front() == u'+')) {
        text.remove_prefix(1);
    }
    std::int64_t value = 0; // negative: the lowest number has no positive counterpart
    for (const char16_t unit : text) {
        if (!text::isAsciiDigit(unit)) {
            break;
        }
        const std::int64_t digit = unit - u'0';
        if (value < (lowest + digit) / 10) {
            return negative ? lowest : highest;
        }
        value = value * 10 - digit;
    }
    if (negative) {
        return value;
    }
    return value == lowest ? highest : -value;
}

std::u16string ascii(const std::string &text) {
    return {text.begin(), text.end()};
}

} // namespace

PropertyDictionary::PropertyDictionary(
    std::initializer_list<std::pair<std::string, PropertyValue>> entries)
    : entries_(entries) {}

PropertyDictionary::PropertyDictionary(Entries entries) {
    std::unordered_map<std::string, std::size_t> places;
    entries_.reserve(entries.size());
    for (auto &[key, value] : entries) {
        const auto [place, isNew] = places.try_emplace(key, entries_.size());
        if (isNew) {
            entries_.emplace_back(std::move(key), std::move(value));
        } else {
            entries_[place->second].second = std::move(value);
        }
    }
}

const PropertyValue *PropertyDictionary::find(std::string_view key) const {
    const auto found = std::ranges::find(
        entries_, key, [](const auto &entry) { return std::string_view(entry.first); });
    return found == entries_.end() ? nullptr : &found->second;
}

void PropertyDictionary::set(std::string_view key, PropertyValue value) {
    for (auto &entry : entries_) {
        if (entry.first == key) {
            entry.second = std::move(value);
            return;
        }
    }
    entries_.emplace_back(key, std::move(value));
}

bool PropertyDictionary::remove(std::string_view key) {
    return std::erase_if(entries_, [key](const auto &entry) { return entry.first == key; }) > 0;
}

bool PropertyDictionary::operator==(const PropertyDictionary &other) const {
    return entries_ == other.entries_;
}

bool PropertyValue::boolValue() const {
    return std::visit(Overloaded{[](bool value) { return value; },
                                 [](std::int64_t value) { return value != 0; },
                                 [](std::uint64_t value) { return value != 0; },
                                 [](double value) { return value != 0; },
                                 [](const std::u16string &text) { return boolOfText(text); },
                                 [](const auto &) { return false; }},
                      value_);
}

std::int64_t PropertyValue::integerValue() const {
    return std::visit(
        Overloaded{[](bool value) -> std::int64_t { return value ? 1 : 0; },
                   [](std::int64_t value) { return value; },
                   [](std::uint64_t) { return std::numeric_limits<std::int64_t>::max(); },
                   [](double value) -> std::int64_t {
                       if (std::isnan(value)) {
                           return 0;
                       }
                       if (value >= 0x1p63) {
                           return std::numeric_limits<std::int64_t>::max();
                       }
                       if (value < -0x1p63) {
                           return std::numeric_limits<std::int64_t>::min();
                       }
                       return static_cast<std::int64_t>(value);
                   },
                   [](const std::u16string &text) { return integerOfText(text); },
                   [](const auto &) { return std::int64_t{0}; }},
        value_);
}

std::u16string PropertyValue::stringValue() const {
    return std::visit(Overloaded{[](bool value) { return std::u16string(value ? u"1" : u"0"); },
                                 [](std::int64_t value) { return ascii(std::to_string(value)); },
                                 [](std::uint64_t value) { return ascii(std::to_string(value)); },
                                 [](double value) { return ascii(std::to_string(value)); },
                                 [](const std::u16string &text) { return text; },
                                 [](const auto &) { return std::u16string(); }},
                      value_);
}

} // namespace nerlo::storage
