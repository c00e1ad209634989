#include "text/PatternReader.h"

#include "text/PatternLiteral.h"

#include <unicode/utf16.h>

#include <algorithm>
#include <utility>

namespace nerlo::text {

namespace {

using Op = PatternInstruction::Op;

// A scan that often goes a shorter way than this costs more than it saves.
constexpr std::size_t worthJumping = 16;

constexpr UnitSet lineEnds{{u'\n', u'\r'}, {u'\u0085', u'\u0085'}, {u'\u2028', u'\u2029'}};

constexpr char16_t asciiEnd = 0x80;
constexpr unsigned placesOfOthers = 150; // characters outside ASCII, in ten thousand of prose

std::uint32_t neededContext(const PatternProgram &program) {
    const auto asks = [&](Assertion what) { return program.asserts(what); };
    std::uint32_t mask = 0;
    mask |= asks(Assertion::TextStart) ? atTextStart : 0u;
    mask |= asks(Assertion::LineStart) ? atTextStart | behindLineEnd | behindReturn : 0u;
    mask |= asks(Assertion::LineEnd) ? behindReturn : 0u;
    mask |= asks(Assertion::WordEdge) || asks(Assertion::NoWordEdge) ? behindWord : 0u;
    return mask;
}

} // namespace

PatternReader::PatternReader(PatternProgram program, CharacterClasses classes,
                             std::size_t firstOwnSet)
    : program_(std::move(program))
    , classes_(std::move(classes))
    , contextMask_(neededContext(program_)) {
    addColumns(firstOwnSet);
    findBegins();
    findFirstUnits();
}

void PatternReader::addColumns(std::size_t firstOwnSet) {
    for (const CharacterClasses::Sets &sets : classes_.classes()) {
        Column column;
        column.sets = sets;
        column.isLineEnd = sets.test(firstOwnSet);
        column.isLineFeed = sets.test(firstOwnSet + 1);
        column.isReturn = sets.test(firstOwnSet + 2);
        column.isWord = sets.test(firstOwnSet + 3);
        column.isMark = sets.test(firstOwnSet + 4);
        column.isOfMatches = sets.test(firstOwnSet + 5);
        columns_.push_back(column);
    }
    columns_.emplace_back(); // of pairs, which have another one in truth
    endColumn_ = static_cast<std::uint8_t>(columns_.size());
    columns_.emplace_back().endsText = true;
    for (std::size_t at = 0; at < classes_.pair(); ++at) {
        columns_[at].asLastLineEnd = static_cast<std::uint8_t>(at);
        if (columns_[at].isLineEnd) {
            Column last = columns_[at];
            last.isLastLineEnd = true;
            columns_[at].asLastLineEnd = static_cast<std::uint8_t>(columns_.size());
            columns_.push_back(last);
        }
    }
    isIn_.resize(program_.sets.size() * columns_.size());
    for (std::size_t set = 0; set < program_.sets.size(); ++set) {
        for (std::size_t at = 0; at < columns_.size(); ++at) {
            isIn_[set * columns_.size() + at] = columns_[at].sets.test(set) ? 1 : 0;
        }
    }
}

// The column of what ends at `at`, which is not the text's beginning, and where that begins.
PatternReader::Next PatternReader::nextBefore(std::size_t at) const {
    const std::uint8_t column = classes_.ofUnits()[text_[at - 1]];
    if (column != classes_.pair()) {
        return {column, 1};
    }
    const bool isPair = at > 1 && U16_IS_TRAIL(text_[at - 1]) && U16_IS_LEAD(text_[at - 2]);
    return nextAt(at - (isPair ? 2 : 1));
}

std::size_t PatternReader::beginOfStretch(std::size_t at, std::size_t least) const {
    while (at > least) {
        const Next before = nextBefore(at);
        if (!columns_[before.column].isOfMatches) {
            break;
        }
        at -= before.width;
    }
    return at;
}

std::size_t PatternReader::endOfStretch(std::size_t at) const {
    for (Next next = nextAt(at); columns_[next.column].isOfMatches; next = nextAt(at)) {
        at += next.width;
    }
    return at;
}

unsigned PatternReader::begins() const {
    unsigned places = 0;
    for (char16_t unit = 0; unit < asciiEnd; ++unit) {
        places += begins_[classes_.ofUnits()[unit]] != 0 ? commonness(unit) : 0;
    }
    const bool inOthers =
        std::ranges::any_of(classes_.runs(), [&](const CharacterClasses::Run &run) {
            return run.first >= asciiEnd && begins_[run.number] != 0;
        });
    places += inOthers ? placesOfOthers : 0;
    return places;
}

// With no look at what stands around: more may seem to begin a match than do.
void PatternReader::findBegins() {
    begins_.assign(columns_.size(), 0);
    std::vector<std::uint32_t> open{program_.start};
    std::vector<bool> seen(program_.code.size());
    while (!open.empty()) {
        const PatternInstruction &code = program_.code[open.back()];
        const bool isNew = !seen[open.back()];
        seen[open.back()] = true;
        open.pop_back();
        if (!isNew) {
            continue;
        }
        switch (code.op) {
        case Op::Set:
            for (std::size_t at = 0; at < columns_.size(); ++at) {
                begins_[at] = begins_[at] != 0 || columns_[at].sets.test(code.number) ? 1 : 0;
            }
            break;
        case Op::Match:
            mayBeEmpty_ = true;
            break;
        case Op::Fork:
            open.push_back(code.other);
            [[fallthrough]];
        case Op::Assert:
        case Op::Save:
        case Op::Again:
            open.push_back(code.next);
            break;
        }
    }
}

// Whether every way to a character leads by the assertion.
bool PatternReader::beginsAtLineStart() const {
    std::uint32_t at = program_.start;
    while (program_.code[at].op == Op::Save) {
        at = program_.code[at].next;
    }
    return program_.code[at].op == Op::Assert &&
           program_.code[at].assertion == Assertion::LineStart;
}

void PatternReader::findFirstUnits() {
    if (mayBeEmpty_) {
        return;
    }
    onlyAtLineStart_ = beginsAtLineStart();
    UnitSet units;
    const auto &runs = classes_.runs();
    for (std::size_t at = 0; at < runs.size(); ++at) {
        const char32_t end = at + 1 < runs.size() ? runs[at + 1].first : 0x110000;
        if (!begins_[runs[at].number]) {
            continue;
        }
        if (units.isFull()) {
            return;
        }
        if (end > asciiEnd) { // the scan cannot tell all scripts apart
            if (runs[at].first < asciiEnd) {
                units.add(static_cast<char16_t>(runs[at].first), asciiEnd - 1);
            }
            units.add(asciiEnd, u'\uFFFF');
            break;
        }
        units.add(static_cast<char16_t>(runs[at].first), static_cast<char16_t>(end - 1));
    }
    constexpr unsigned mostToScanFor = 2000;
    if (begins() <= mostToScanFor) {
        firstUnits_ = units;
    }
}

void PatternReader::setText(std::u16string_view text) {
    text_ = text;
    shortJumps_ = 0;
    cursor_.reset();
    if (!inParts_ && (onlyAtLineStart_ || firstUnits_)) {
        cursor_.emplace(text_, onlyAtLineStart_ ? lineEnds : *firstUnits_);
    }
    const std::size_t size = text.size();
    const auto isLineEnd = [&](std::size_t at) {
        return CodePoints::lineEnds().contains(text[at]);
    };
    plainEnd_ = size;
    if (size > 1 && text.ends_with(u"\r\n")) {
        plainEnd_ = size - 2;
    } else if (size > 0 && isLineEnd(size - 1)) {
        plainEnd_ = size - 1;
    }
}

PatternReader::Next PatternReader::nextAt(std::size_t at) const {
    if (at == text_.size()) {
        return {endColumn_, 0};
    }
    char32_t character = text_[at];
    std::size_t width = 1;
    std::uint8_t column = classes_.ofUnits()[character];
    if (column == classes_.pair()) {
        if (U16_IS_LEAD(character) && at + 1 < text_.size() && U16_IS_TRAIL(text_[at + 1])) {
            character = static_cast<char32_t>(U16_GET_SUPPLEMENTARY(character, text_[at + 1]));
            width = 2;
        }
        column = classes_.of(character);
    }
    return {at == plainEnd_ ? columns_[column].asLastLineEnd : column, width};
}

std::uint32_t PatternReader::contextAt(std::size_t at) const {
    if (at == 0) {
        return contextMask_ & atTextStart;
    }
    std::uint32_t context = 0;
    if (contextMask_ & (behindLineEnd | behindReturn)) {
        context |= CodePoints::lineEnds().contains(text_[at - 1]) ? behindLineEnd : 0u;
        context |= text_[at - 1] == u'\r' ? behindReturn : 0u;
    }
    while ((contextMask_ & behindWord) && at > 0) {
        const Next before = nextBefore(at);
        const Column &column = columns_[before.column];
        at -= before.width;
        if (!column.isMark) {
            context |= column.isWord ? behindWord : 0u;
            break;
        }
    }
    return context & contextMask_;
}

std::uint32_t PatternReader::contextBehind(std::uint32_t context, const Column &column) const {
    std::uint32_t behind = column.isLineEnd ? behindLineEnd : 0u;
    behind |= column.isReturn ? behindReturn : 0u;
    behind |= column.isMark ? context & behindWord : column.isWord ? behindWord : 0u;
    return behind & contextMask_;
}

bool PatternReader::holds(Assertion assertion, std::uint32_t context, const Column &column) {
    const bool isWithinBreak = column.isLineFeed && (context & behindReturn);
    switch (assertion) {
    case Assertion::TextStart:
        return context & atTextStart;
    case Assertion::LineStart:
        return (context & atTextStart) ||
               ((context & behindLineEnd) && !column.endsText && !isWithinBreak);
    case Assertion::TextEnd:
        return column.endsText || column.isLastLineEnd;
    case Assertion::LineEnd:
        return column.endsText || (column.isLineEnd && !isWithinBreak);
    case Assertion::VeryEnd:
        return column.endsText;
    case Assertion::NoLineFeed:
        return !column.isLineFeed;
    case Assertion::WordEdge:
    case Assertion::NoWordEdge:
        break;
    }
    const bool isEdge = !column.isMark && column.isWord != ((context & behindWord) != 0);
    return isEdge == (assertion == Assertion::WordEdge);
}

// The same for patterns that begin with a line.
bool PatternReader::toNextLine(std::size_t &at, std::size_t until) {
    if (at > 0 && !lineEnds.contains(text_[at - 1])) {
        at = cursor_->nextFrom(at) + 1;
    }
    while (at < text_.size() && at <= until) {
        if (begins_[nextAt(at).column] != 0) {
            return true;
        }
        at = cursor_->nextFrom(at) + 1;
    }
    return false;
}

bool PatternReader::toNextBegin(std::size_t &at, std::size_t until) {
    if (mayBeEmpty_) {
        return at <= until;
    }
    if (cursor_ && onlyAtLineStart_) {
        return toNextLine(at, until);
    }
    if (cursor_) {
        const std::size_t from = std::exchange(at, cursor_->nextFrom(at));
        shortJumps_ += at - from < worthJumping ? 1 : 0;
        if (shortJumps_ > worthJumping + at / worthJumping) {
            cursor_.reset(); // most of this text is what it stops at
        }
    }
    const std::uint8_t *const classOf = classes_.ofUnits();
    for (std::size_t width = 1; at < text_.size() && at <= until; at += width) {
        const std::uint8_t number = classOf[text_[at]];
        const Next next = number == classes_.pair() ? nextAt(at) : Next{number, 1};
        if (begins_[next.column] != 0) {
            return true;
        }
        width = next.width;
    }
    return false;
}

std::unique_ptr<PatternReader> PatternReader::make(const PatternTree &tree,
                                                   const CodePoints &ofMatches) {
    auto program = programOf(tree);
    if (!program) {
        return nullptr;
    }
    const std::size_t firstOwnSet = program->sets.size();
    std::vector<CodePoints> sets = program->sets;
    const bool asksForWords =
        program->asserts(Assertion::WordEdge) || program->asserts(Assertion::NoWordEdge);
    sets.push_back(CodePoints::lineEnds());
    sets.emplace_back(U'\n', U'\n');
    sets.emplace_back(U'\r', U'\r');
    sets.push_back(asksForWords ? CodePoints::word() : CodePoints());
    sets.push_back(asksForWords ? CodePoints::marks() : CodePoints());
    sets.push_back(ofMatches);
    auto classes = CharacterClasses::of(sets);
    if (!classes) {
        return nullptr;
    }
    return std::unique_ptr<PatternReader>(
        new PatternReader(std::move(*program), std::move(*classes), firstOwnSet));
}

} // namespace nerlo::text
