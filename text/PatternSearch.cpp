#include "text/PatternSearch.h"

#include <utility>

namespace nerlo::text {

PatternSearch::PatternSearch(const PatternTree &tree, PatternNeed need,
                             std::unique_ptr<PatternReader> reader)
    : reader_(std::move(reader))
    , backtracker_(*reader_, tree.groups)
    , need_(std::move(need))
    , hasStretches_(!need_.around.complement().spans().empty()) {
    if (!tree.hasAgain) {
        automaton_.emplace(*reader_);
    }
    if (need_.literal.places >= reader_->begins()) {
        need_.literal = {};
    } else if (!need_.literal.units.empty() && hasStretches_) {
        reader_->searchInParts();
    }
}

std::unique_ptr<PatternSearch> PatternSearch::make(std::u16string_view pattern, bool ignoresCase) {
    const auto tree = parsePattern(pattern, ignoresCase);
    if (!tree) {
        return nullptr;
    }
    PatternNeed need = neededBy(*tree);
    auto reader = PatternReader::make(*tree, need.around);
    return reader ? std::unique_ptr<PatternSearch>(
                        new PatternSearch(*tree, std::move(need), std::move(reader)))
                  : nullptr;
}

void PatternSearch::setText(std::u16string_view text) {
    reader_->setText(text);
    backtracker_.start();
    if (automaton_) {
        automaton_->start();
    }
    literalAt_.reset();
    stretchEnd_ = 0;
}

Found PatternSearch::findUntil(std::size_t from, std::size_t until, Range &match) {
    const Found found =
        automaton_ ? automaton_->find(from, until, match) : backtracker_.find(from, until, match);
    match_ = match;
    return found;
}

// Whether the literal is anywhere from `from` on; then literalAt_ is there.
bool PatternSearch::toLiteral(std::size_t from) {
    const std::u16string_view text = reader_->text();
    if (literalAt_ && *literalAt_ >= from) {
        return *literalAt_ < text.size();
    }
    literalAt_ = findLiteral(text, from, need_.literal);
    return *literalAt_ < text.size();
}

// A match lies within a stretch of the characters that matches consist of, and the literal in it.
Found PatternSearch::find(std::size_t from, Range &match) {
    const std::size_t size = reader_->text().size();
    if (need_.literal.units.empty()) {
        return findUntil(from, size, match);
    }
    while (toLiteral(from)) {
        if (!hasStretches_) {
            return findUntil(from, size, match);
        }
        if (*literalAt_ >= stretchEnd_) {
            stretchEnd_ = reader_->endOfStretch(*literalAt_);
        }
        const std::size_t begin = reader_->beginOfStretch(*literalAt_, from);
        const Found found = findUntil(begin, stretchEnd_, match);
        if (found != Found::No) {
            return found;
        }
        from = stretchEnd_;
    }
    return Found::No;
}

Found PatternSearch::findGroups() {
    if (!automaton_) {
        return Found::Yes;
    }
    Range match;
    return backtracker_.matchAt(match_.begin, match) == Found::Yes ? Found::Yes : Found::GivenUp;
}

} // namespace nerlo::text
