#include "text/StreamedRule.h"

#include <algorithm>

namespace nerlo::text {

StreamedRule StreamedRule::literal(std::u16string_view find, std::u16string_view replacement) {
    StreamedRule rule;
    rule.find_ = find;
    rule.replacement_ = replacement;
    rule.common_ = static_cast<std::size_t>(
        std::ranges::mismatch(rule.find_, rule.replacement_).in1 - rule.find_.begin());
    rule.shorter_.assign(find.size() + 1, 0);
    for (std::size_t at = 1, length = 0; at < find.size(); ++at) {
        while (length > 0 && find[length] != find[at]) {
            length = rule.shorter_[length];
        }
        length += find[length] == find[at] ? 1 : 0;
        rule.shorter_[at + 1] = length;
    }
    return rule;
}

StreamedRule StreamedRule::run(const UnitSet &units, std::u16string_view replacement) {
    StreamedRule rule;
    rule.isRun_ = true;
    rule.units_ = units;
    rule.replacement_ = replacement;
    return rule;
}

void StreamedRule::feed(std::u16string_view text, std::u16string &to) {
    if (!isRun_) {
        for (const char16_t unit : text) {
            step(unit, to);
        }
        return;
    }
    for (const char16_t unit : text) {
        const bool belongs = units_.contains(unit);
        if (!belongs) {
            to.push_back(unit);
        } else if (!inRun_) {
            to.append(replacement_);
        }
        inRun_ = belongs;
    }
}

void StreamedRule::step(char16_t unit, std::u16string &to) {
    if (find_.empty()) {
        to.push_back(unit);
        return;
    }
    while (matched_ > 0 && find_[matched_] != unit) {
        fallBack(to);
    }
    if (find_[matched_] != unit) {
        to.push_back(unit);
        return;
    }
    if (++matched_ == find_.size()) {
        to.append(replacement_, told_);
        matched_ = told_ = 0;
        return;
    }
    const std::size_t sure = std::min(matched_, common_);
    if (sure > told_) {
        to.append(find_, told_, sure - told_);
        told_ = sure;
    }
}

// What was matched is not what the rule finds, but its end may be the beginning of that.
void StreamedRule::fallBack(std::u16string &to) {
    const std::size_t passed = matched_ - shorter_[matched_];
    if (told_ < passed) {
        to.append(find_, told_, passed - told_);
    }
    told_ -= std::min(told_, passed);
    matched_ -= passed;
}

void StreamedRule::finish(std::u16string &to) {
    to.append(find_, told_, matched_ - told_);
    matched_ = told_ = 0;
    inRun_ = false;
}

bool StreamedRule::looksAt(char16_t unit) const {
    return isRun_ ? units_.contains(unit) : find_.find(unit) != std::u16string::npos;
}

bool StreamedRule::joins(char16_t before, char16_t after) const {
    const char16_t both[] = {before, after};
    return isRun_ ? units_.contains(before) && units_.contains(after)
                  : find_.find(std::u16string_view(both, 2)) != std::u16string::npos;
}

} // namespace nerlo::text
