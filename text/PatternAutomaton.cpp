#include "text/PatternAutomaton.h"

#include <algorithm>
#include <utility>

namespace nerlo::text {

namespace {

using Op = PatternInstruction::Op;

// A state of a search that may begin anywhere, not only where it began.
constexpr std::uint32_t anywhere = contextKinds;

// Where a state goes is the place of the next state's row in the table, with these flags.
constexpr std::uint32_t special = 1u << 31; // does not just go on
constexpr std::uint32_t matched = 1u << 30; // a match ends before the character
constexpr std::uint32_t initial = 1u << 29; // nothing of a match yet
constexpr std::uint32_t placeMask = initial - 1;
constexpr std::uint32_t unknown = special | initial | placeMask;
constexpr std::uint32_t dead = 0; // the first state

constexpr std::size_t maxTable = std::size_t{1} << 20;
constexpr std::uint64_t workForEntry = 64;

// A text that needs a new entry of the table more often than this is better left to ICU.
constexpr std::uint64_t entriesAtOnce = 20'000;
constexpr std::uint64_t unitsForEntry = 8;

std::uint64_t workAllowed(std::size_t units) {
    return 50'000'000 + std::uint64_t{units} * 128;
}

constexpr std::size_t none = std::u16string_view::npos;

} // namespace

PatternAutomaton::PatternAutomaton(PatternReader &reader)
    : reader_(reader)
    , seen_(reader.program().code.size())
    , taken_(reader.program().code.size()) {}

// What was learnt from another text is forgotten: it must not decide what this one costs.
void PatternAutomaton::start() {
    table_.assign(reader_.columns().size(), special | dead);
    keys_.assign(1, {});
    states_.clear();
    starts_.fill(0);
    isFull_ = false;
    entries_ = units_ = 0;
}

// Adds to `key` where the ways from an instruction lead to with the column's character, in order;
// true when they come to the end of the pattern before it, which makes those behind it vain.
bool PatternAutomaton::follow(std::uint32_t from, std::uint32_t context,
                              const PatternReader::Column &column, std::u32string &key) {
    stack_.assign(1, from);
    while (!stack_.empty()) {
        const std::uint32_t at = stack_.back();
        stack_.pop_back();
        if (std::exchange(seen_[at], turn_) == turn_) {
            continue;
        }
        const PatternInstruction &code = reader_.program().code[at];
        switch (code.op) {
        case Op::Set:
            if (column.sets.test(code.number) && std::exchange(taken_[code.next], turn_) != turn_) {
                key += code.next;
            }
            break;
        case Op::Fork:
            stack_.push_back(code.other);
            stack_.push_back(code.next);
            break;
        case Op::Assert:
            if (PatternReader::holds(code.assertion, context, column)) {
                stack_.push_back(code.next);
            }
            break;
        case Op::Save:
        case Op::Again:
            stack_.push_back(code.next);
            break;
        case Op::Match:
            return true;
        }
    }
    return false;
}

std::uint32_t PatternAutomaton::stateFor(std::u32string key) {
    const auto [place, isNew] = states_.try_emplace(key, static_cast<std::uint32_t>(table_.size()));
    if (isNew) {
        isFull_ = isFull_ || table_.size() > maxTable;
        table_.resize(table_.size() + reader_.columns().size(), unknown);
        keys_.push_back(std::move(key));
    }
    return place->second;
}

std::uint32_t PatternAutomaton::startState(std::size_t at, std::uint32_t mode) {
    const std::uint32_t kind = mode | reader_.contextAt(at);
    if (starts_[kind] == 0) {
        starts_[kind] =
            stateFor({static_cast<char32_t>(kind), static_cast<char32_t>(reader_.program().start)});
    }
    return starts_[kind];
}

std::uint32_t PatternAutomaton::entry(std::uint32_t state, std::uint8_t column) {
    const std::uint32_t known = table_[state + column];
    return known == unknown ? makeEntry(state, column) : known;
}

std::uint32_t PatternAutomaton::makeEntry(std::uint32_t state, std::uint8_t number) {
    const std::u32string from = keys_[state / reader_.columns().size()];
    const std::uint32_t context = from.front() & ~anywhere;
    const bool isAnywhere = from.front() & anywhere;
    const PatternReader::Column &column = reader_.columns()[number];
    std::u32string key(1, reader_.contextBehind(context, column) | (from.front() & anywhere));
    std::uint32_t flags = 0;
    ++turn_;
    for (std::size_t at = 1; at < from.size() && flags == 0; ++at) {
        flags = follow(from[at], context, column, key) ? matched : 0;
    }
    ++entries_;
    if (isAnywhere) {
        const bool isInitial = key.size() == 1;
        if (taken_[reader_.program().start] != turn_) {
            key += reader_.program().start;
        }
        std::sort(key.begin() + 1, key.end());
        flags |= flags != 0 ? special : isInitial ? special | initial : 0;
    }
    const bool isDead = key.size() == 1;
    const std::uint32_t to = isDead ? special | dead : stateFor(std::move(key));
    return table_[state + number] = to | flags;
}

bool PatternAutomaton::isSpent() const {
    return isFull_ || units_ + workForEntry * entries_ > workAllowed(reader_.text().size()) ||
           entries_ > entriesAtOnce + units_ / unitsForEntry;
}

Found PatternAutomaton::matchAt(std::size_t at, Range &match) {
    const std::size_t begin = at;
    std::size_t counted = at;
    const std::u16string_view text = reader_.text();
    const std::size_t plainEnd = reader_.plainEnd();
    const std::uint8_t *const classOf = reader_.columnOfUnit();
    std::uint32_t state = startState(at, 0);
    std::size_t end = none;
    for (;;) {
        for (std::uint32_t to = 0; at < plainEnd; ++at) {
            to = table_[state + classOf[text[at]]];
            if (to & special) {
                break;
            }
            end = to & matched ? at : end;
            state = to & placeMask;
        }
        const PatternReader::Next next = reader_.nextAt(at);
        const std::uint32_t to = entry(state, next.column);
        end = to & matched ? at : end;
        units_ += at - counted + 1;
        counted = at;
        if (isSpent()) {
            return Found::GivenUp;
        }
        if (to & special || next.width == 0) {
            break;
        }
        state = to & placeMask;
        at += next.width;
    }
    match = {begin, end};
    return end == none ? Found::No : Found::Yes;
}

// Whether there is a match that begins at or after `from`; if so, none begins before `floor`.
Found PatternAutomaton::anyBegins(std::size_t from, std::size_t until, std::size_t &floor) {
    const std::u16string_view text = reader_.text();
    const std::size_t plainEnd = reader_.plainEnd();
    const std::uint8_t *const classOf = reader_.columnOfUnit();
    std::size_t at = floor = from;
    std::size_t counted = from;
    std::uint32_t state = startState(at, anywhere);
    for (;;) {
        for (std::uint32_t to = 0; at < plainEnd; ++at) {
            to = table_[state + classOf[text[at]]];
            if (to & special) {
                break;
            }
            state = to;
        }
        const PatternReader::Next next = reader_.nextAt(at);
        const std::uint32_t to = entry(state, next.column);
        units_ += at - counted + 1;
        counted = at;
        if (isSpent()) {
            return Found::GivenUp;
        }
        if (to & matched) {
            return Found::Yes;
        }
        if (next.width == 0 || at >= until) {
            return Found::No;
        }
        state = to & placeMask;
        at += next.width;
        if (to & initial) {
            floor = at;
            if (!reader_.toNextBegin(at, until)) {
                return Found::No;
            }
            if (at != floor) {
                counted = floor = at;
                state = startState(at, anywhere);
            }
        }
    }
}

Found PatternAutomaton::find(std::size_t from, std::size_t until, Range &match) {
    if (!reader_.toNextBegin(from, until)) {
        return Found::No;
    }
    // Where matches follow each other closely, the first place is often right.
    Found found = matchAt(from, match);
    if (found != Found::No || from == reader_.text().size()) {
        return found;
    }
    std::size_t floor = 0;
    found = anyBegins(from + reader_.nextAt(from).width, until, floor);
    if (found != Found::Yes) {
        return found;
    }
    for (; reader_.toNextBegin(floor, until); floor += reader_.nextAt(floor).width) {
        found = matchAt(floor, match);
        if (found != Found::No) {
            return found;
        }
        if (floor == reader_.text().size()) {
            break;
        }
    }
    return Found::GivenUp;
}

} // namespace nerlo::text
