#include "settings/RuleList.h"

#include "engine/FindReplace.h"
#include "settings/FindReplaceList.h"
#include "text/Characters.h"
#include "text/Utf.h"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace nerlo::settings {

namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;
using View = std::u16string_view;

constexpr View head = u"nerlo-rules";
constexpr View version = u"1";
constexpr View byteOrderMark = u"\uFEFF";

// A letter behind a backslash, and what it stands for.
constexpr std::pair<char16_t, char16_t> escapes[] = {
    {u'n', u'\n'}, {u'r', u'\r'}, {u't', u'\t'}, {u'"', u'"'}, {u'\\', u'\\'}};

// The value without its quotes; nothing when they are not closed or something in them is unknown.
class QuotedValue {
  public:
    explicit QuotedValue(View value)
        : rest_(value.substr(1)) {}

    std::optional<std::u16string> text() {
        std::u16string result;
        while (!rest_.empty() && rest_.front() != u'"') {
            if (rest_.front() != u'\\') {
                result += rest_.front();
                rest_.remove_prefix(1);
            } else if (!addEscaped(result)) {
                return std::nullopt;
            }
        }
        return rest_ == u"\"" ? std::optional(std::move(result)) : std::nullopt;
    }

  private:
    bool addEscaped(std::u16string &result) {
        rest_.remove_prefix(1);
        if (rest_.starts_with(u"u{")) {
            return addCode(result);
        }
        const auto escape = std::ranges::find_if(
            escapes, [&](const auto &one) { return !rest_.empty() && one.first == rest_.front(); });
        if (escape == std::end(escapes)) {
            return false;
        }
        result += escape->second;
        rest_.remove_prefix(1);
        return true;
    }

    bool addCode(std::u16string &result) {
        const std::size_t end = rest_.find(u'}');
        const View digits = rest_.substr(2, end - std::min<std::size_t>(end, 2));
        if (end == View::npos || digits.empty() || digits.size() > 6) {
            return false;
        }
        char32_t code = 0;
        for (const char16_t digit : digits) {
            const std::size_t value = View(u"0123456789ABCDEF").find(digit);
            if (value == View::npos) {
                return false;
            }
            code = code * 16 + static_cast<char32_t>(value);
        }
        if (code > 0x10FFFF) {
            return false;
        }
        if (code > 0xFFFF) {
            result += static_cast<char16_t>(0xD7C0 + (code >> 10));
            code = 0xDC00 + (code & 0x3FF);
        }
        result += static_cast<char16_t>(code);
        rest_.remove_prefix(end + 1);
        return true;
    }

    View rest_;
};

// Reads line by line; `error()` says what is wrong with the line read last.
class ListReader {
  public:
    // False when the line is wrong.
    bool read(View line) {
        if (line.empty() || line.starts_with(u'#')) {
            return true;
        }
        const std::size_t space = line.find(u' ');
        word_ = line.substr(0, space);
        if (!readValue(space == View::npos ? View() : line.substr(space + 1))) {
            return fail("the quotes are not closed, or \\ stands before something else than n, r, "
                        "t, \", \\ or u{HEX}");
        }
        if (!begun_) {
            return readHead();
        }
        if (word_ == u"title") {
            list_.title = value_;
            return list_.rules.empty() || fail("the title stands before the rules");
        }
        return word_ == u"rule" ? beginRule() : readOfRule();
    }

    bool finish() { return (begun_ || fail("no \"nerlo-rules 1\" at the beginning")) && endRule(); }

    const std::string &error() const { return error_; }
    RuleList take() { return std::move(list_); }

  private:
    bool fail(std::string error) {
        error_ = std::move(error);
        return false;
    }

    bool readValue(View value) {
        if (!value.starts_with(u'"')) {
            value_ = value;
            return true;
        }
        auto text = QuotedValue(value).text();
        value_ = text ? std::move(*text) : std::u16string();
        return text.has_value();
    }

    bool readHead() {
        begun_ = true;
        return word_ != head       ? fail("no \"nerlo-rules 1\" at the beginning")
               : value_ == version ? true
                                   : fail("only version 1 of these lists is known");
    }

    bool beginRule() {
        if (!endRule()) {
            return false;
        }
        if (!value_.empty() && value_ != u"on" && value_ != u"off") {
            return fail("a rule is on or off");
        }
        list_.rules.push_back({.on = value_ != u"off", .find = {}, .replace = {}, .samples = {}});
        hasFind_ = false;
        return true;
    }

    // The rule that is being read.
    bool endRule() {
        if (!list_.rules.empty() && !hasFind_) {
            return fail("the rule before has no \"find\"");
        }
        return !inSample_ || fail("a \"before\" without \"after\"");
    }

    bool readOfRule() {
        if (list_.rules.empty()) {
            return fail("neither \"title\" nor \"rule\"");
        }
        TravelRule &rule = list_.rules.back();
        if (inSample_ != (word_ == u"after")) {
            return fail(inSample_ ? "a \"before\" without \"after\""
                                  : "an \"after\" without \"before\"");
        }
        if (word_ == u"find") {
            rule.find = value_;
            hasFind_ = true;
        } else if (word_ == u"replace") {
            rule.replace = value_;
        } else if (word_ == u"before") {
            rule.samples.push_back({value_, {}});
            inSample_ = true;
        } else if (word_ == u"after") {
            rule.samples.back().after = value_;
            inSample_ = false;
        } else {
            return fail("unknown word");
        }
        return true;
    }

    RuleList list_;
    std::string error_;
    View word_;
    std::u16string value_;
    bool begun_ = false;
    bool hasFind_ = false;
    bool inSample_ = false;
};

bool isPlain(char32_t character) {
    return character == U' ' || (text::isShown(character) && (character & 0xFFFFF800) != 0xD800);
}

std::string escaped(char32_t character) {
    for (const auto &[letter, unit] : escapes) {
        if (character == unit) {
            return {'\\', static_cast<char>(letter)};
        }
    }
    char code[16];
    std::snprintf(code, sizeof code, "\\u{%X}", static_cast<unsigned>(character));
    return code;
}

// In quotes where something would be lost or not be seen without them.
std::string writtenValue(View value) {
    bool plain =
        value.empty() || (value.front() != u'"' && value.front() != u' ' && value.back() != u' ');
    std::string quoted = "\"";
    for (std::size_t at = 0; at < value.size();) {
        const char32_t character = text::characterAt(value, at);
        const std::size_t size = text::sizeOf(character);
        plain = plain && isPlain(character);
        quoted += isPlain(character) && character != U'"' && character != U'\\'
                      ? text::utf16ToUtf8(value.substr(at, size))
                      : escaped(character);
        at += size;
    }
    return plain ? text::utf16ToUtf8(value) : quoted + '"';
}

void addLine(std::string &text, const char *word, View value) {
    text += word;
    text += (value.empty() ? "" : " ") + writtenValue(value) + "\n";
}

PropertyValue storedRule(const TravelRule &rule) {
    PropertyDictionary stored{
        {"checkbox", rule.on}, {"find", rule.find}, {"replace", rule.replace}};
    if (!rule.samples.empty()) {
        stored.set(FindReplaceList::samplesKey, storedSamples(rule.samples));
    }
    return stored;
}

// Those of the stored rule, and behind them what it lacks of these.
std::vector<RuleSample> joined(const PropertyValue &stored, const std::vector<RuleSample> &more) {
    std::vector<RuleSample> samples = samplesOf(stored);
    for (const RuleSample &sample : more) {
        if (std::ranges::find(samples, sample) == samples.end()) {
            samples.push_back(sample);
        }
    }
    return samples;
}

} // namespace

ParsedRuleList parseRuleList(std::string_view bytes) {
    if (bytes.size() > mostRuleListBytes) {
        return {std::nullopt, "too long for a list of rules"};
    }
    const text::Utf16Result decoded = text::utf8ToUtf16(bytes);
    if (decoded.invalidAt) {
        return {std::nullopt, "invalid UTF-8 at byte " + std::to_string(*decoded.invalidAt)};
    }
    View rest = decoded.text;
    rest.remove_prefix(rest.starts_with(byteOrderMark) ? 1 : 0);
    ListReader reader;
    std::size_t number = 0;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(u'\n'), rest.size());
        View line = rest.substr(0, end);
        line.remove_suffix(line.ends_with(u'\r') ? 1 : 0);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        ++number;
        if (!reader.read(line)) {
            return {std::nullopt, "line " + std::to_string(number) + ": " + reader.error()};
        }
    }
    if (!reader.finish()) {
        return {std::nullopt, "line " + std::to_string(number) + ": " + reader.error()};
    }
    return {reader.take(), {}};
}

std::string writeRuleList(const RuleList &list) {
    std::string text;
    addLine(text, "nerlo-rules", version);
    addLine(text, "title", list.title);
    for (const TravelRule &rule : list.rules) {
        text += '\n';
        addLine(text, "rule", rule.on ? View() : View(u"off"));
        addLine(text, "find", rule.find);
        addLine(text, "replace", rule.replace);
        for (const RuleSample &sample : rule.samples) {
            addLine(text, "before", sample.before);
            addLine(text, "after", sample.after);
        }
    }
    return text;
}

SampleResult trySample(const TravelRule &rule, const RuleSample &sample) {
    engine::CleaningReport report;
    SampleResult result;
    result.given = engine::applyRule(
        sample.before, {engine::PatternFailure::ownPattern, rule.find, rule.replace}, &report);
    if (!report.empty()) {
        result.failure = report.front();
    }
    result.holds = !result.failure && result.given == sample.after;
    return result;
}

std::vector<RuleSample> samplesOf(const PropertyValue &rule) {
    const auto *record = rule.as<PropertyDictionary>();
    const PropertyValue *stored = record ? record->find(FindReplaceList::samplesKey) : nullptr;
    std::vector<RuleSample> samples;
    if (const auto *array = stored ? stored->as<PropertyArray>() : nullptr) {
        for (const PropertyValue &sample : *array) {
            samples.push_back({FindReplaceList::textOf(sample, "before"),
                               FindReplaceList::textOf(sample, "after")});
        }
    }
    return samples;
}

PropertyArray storedSamples(const std::vector<RuleSample> &samples) {
    PropertyArray stored;
    for (const RuleSample &sample : samples) {
        stored.emplace_back(PropertyDictionary{{"before", sample.before}, {"after", sample.after}});
    }
    return stored;
}

PropertyArray storedRules(const RuleList &list) {
    PropertyArray stored;
    std::ranges::transform(list.rules, std::back_inserter(stored), storedRule);
    return stored;
}

RuleList travelRules(const PropertyArray &stored) {
    RuleList list;
    for (const PropertyValue &rule : stored) {
        if (rule.as<PropertyDictionary>()) {
            list.rules.push_back({FindReplaceList::isOn(rule),
                                  FindReplaceList::textOf(rule, "find"),
                                  FindReplaceList::textOf(rule, "replace"), samplesOf(rule)});
        }
    }
    return list;
}

std::vector<ImportedRule> planImport(const RuleList &list, const PropertyArray &stored) {
    std::vector<bool> taken(stored.size());
    const auto rowOf = [&](const TravelRule &rule, bool same) {
        std::size_t row = 0;
        while (row < stored.size() &&
               (taken[row] || !stored[row].as<PropertyDictionary>() ||
                FindReplaceList::textOf(stored[row], "find") != rule.find ||
                (same && FindReplaceList::textOf(stored[row], "replace") != rule.replace))) {
            ++row;
        }
        return row;
    };
    std::vector<ImportedRule> plan(list.rules.size());
    // Those that are there come first, so that another of the same text to find is not changed into
    // them.
    for (const auto effect : {ImportedRule::Effect::left, ImportedRule::Effect::changed}) {
        for (std::size_t at = 0; at < plan.size(); ++at) {
            if (plan[at].effect != ImportedRule::Effect::added) {
                continue;
            }
            const std::size_t row = rowOf(list.rules[at], effect == ImportedRule::Effect::left);
            if (row < stored.size()) {
                const bool lacksSamples = joined(stored[row], list.rules[at].samples).size() >
                                          samplesOf(stored[row]).size();
                taken[row] = true;
                plan[at] = {lacksSamples ? ImportedRule::Effect::changed : effect, row};
            }
        }
    }
    return plan;
}

PropertyArray imported(const RuleList &list, PropertyArray stored) {
    const std::vector<ImportedRule> plan = planImport(list, stored);
    for (std::size_t at = 0; at < plan.size(); ++at) {
        const TravelRule &rule = list.rules[at];
        if (plan[at].effect == ImportedRule::Effect::added) {
            stored.push_back(storedRule(rule));
        } else if (plan[at].effect == ImportedRule::Effect::changed) {
            auto &record = *stored[plan[at].row].as<PropertyDictionary>();
            record.set("replace", rule.replace);
            if (auto samples = joined(record, rule.samples); !samples.empty()) {
                record.set(FindReplaceList::samplesKey, storedSamples(samples));
            }
        }
    }
    return stored;
}

} // namespace nerlo::settings
