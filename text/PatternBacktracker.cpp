#include "text/PatternBacktracker.h"

#include <unicode/utf16.h>

#include <utility>

namespace nerlo::text {

namespace {

using Op = PatternInstruction::Op;

constexpr std::size_t mostChoices = std::size_t{1} << 20;

std::uint64_t stepsAllowed(std::size_t units) {
    return 50'000'000 + std::uint64_t{units} * 128;
}

} // namespace

PatternBacktracker::PatternBacktracker(PatternReader &reader, std::size_t groups)
    : reader_(reader)
    , groups_(groups + 1) {}

Range PatternBacktracker::group(std::size_t number) const {
    const Group &group = groups_[number];
    return group.end == none ? Range{} : Range{group.begin, group.end};
}

Found PatternBacktracker::find(std::size_t from, std::size_t until, Range &match) {
    while (reader_.toNextBegin(from, until)) {
        const Found found = matchAt(from, match);
        if (found != Found::No) {
            return found;
        }
        if (from == reader_.text().size()) {
            break;
        }
        from += reader_.nextAt(from).width;
    }
    return Found::No;
}

Found PatternBacktracker::matchAt(std::size_t at, Range &match) {
    const std::uint64_t allowed = stepsAllowed(reader_.text().size());
    match.begin = at;
    groups_.assign(groups_.size(), {});
    choices_.clear();
    std::uint32_t instruction = reader_.program().start;
    while (reader_.program().code[instruction].op != Op::Match) {
        if (++steps_ > allowed || choices_.size() > mostChoices) {
            return Found::GivenUp;
        }
        if (!step(instruction, at) && !pop(instruction, at)) {
            return Found::No;
        }
    }
    match.end = at;
    return Found::Yes;
}

void PatternBacktracker::push(Choice::Kind kind, std::uint32_t number, std::size_t at,
                              std::size_t least) {
    choices_.push_back({kind, number, at, least, {}});
}

// A greedy loop round a single set.
bool PatternBacktracker::isRun(std::uint32_t fork) const {
    const auto &code = reader_.program().code;
    const PatternInstruction &body = code[code[fork].next];
    return body.op == Op::Set && body.next == fork;
}

// False where this way leads no further.
bool PatternBacktracker::step(std::uint32_t &instruction, std::size_t &at) {
    const PatternInstruction &code = reader_.program().code[instruction];
    const std::uint32_t here = std::exchange(instruction, code.next);
    switch (code.op) {
    case Op::Set:
        return takeSet(code.number, at);
    case Op::Fork: {
        if (!isRun(here)) {
            push(Choice::Kind::Place, code.other, at);
            return true;
        }
        const std::size_t least = at;
        while (takeSet(reader_.program().code[code.next].number, at)) {
        }
        steps_ += (at - least) / 8;
        push(Choice::Kind::Places, code.other, at, least);
        return false; // the first of these
    }
    case Op::Assert:
        return PatternReader::holds(code.assertion, reader_.contextAt(at),
                                    reader_.columns()[reader_.nextAt(at).column]);
    case Op::Save: {
        Group &group = groups_[code.number / 2];
        choices_.push_back({Choice::Kind::Group, code.number / 2, 0, 0, group});
        if (code.number % 2 == 0) {
            group.opened = at;
        } else {
            group.begin = group.opened;
            group.end = at;
        }
        return true;
    }
    case Op::Again:
        return takeAgain(code.number, at);
    case Op::Match:
        break;
    }
    return true;
}

bool PatternBacktracker::pop(std::uint32_t &instruction, std::size_t &at) {
    while (!choices_.empty()) {
        Choice &choice = choices_.back();
        if (choice.kind == Choice::Kind::Group) {
            groups_[choice.number] = choice.group;
            choices_.pop_back();
            continue;
        }
        instruction = choice.number;
        at = choice.at;
        if (choice.kind == Choice::Kind::Place || at == choice.least) {
            choices_.pop_back();
            return true;
        }
        while (at > choice.least && !mayGoOn(instruction, at)) {
            at = before(at);
            ++steps_;
        }
        choice.at = at > choice.least ? before(at) : at;
        if (at == choice.least) {
            choices_.pop_back();
        }
        return true;
    }
    return false;
}

std::size_t PatternBacktracker::before(std::size_t at) const {
    const std::u16string_view text = reader_.text();
    --at;
    return at > 0 && U16_IS_TRAIL(text[at]) && U16_IS_LEAD(text[at - 1]) ? at - 1 : at;
}

// False only if the instruction, or what follows it at once, needs another character.
bool PatternBacktracker::mayGoOn(std::uint32_t instruction, std::size_t at) const {
    const auto &code = reader_.program().code;
    while (code[instruction].op == Op::Save) {
        instruction = code[instruction].next;
    }
    return code[instruction].op != Op::Set || takeSet(code[instruction].number, at);
}

bool PatternBacktracker::takeSet(std::size_t set, std::size_t &at) const {
    if (at == reader_.text().size()) {
        return false;
    }
    const std::uint8_t plain = reader_.columnOfUnit()[reader_.text()[at]];
    const PatternReader::Next next =
        plain == reader_.pair() ? reader_.nextAt(at) : PatternReader::Next{plain, 1};
    const bool takes = reader_.isIn(set, next.column);
    at += takes ? next.width : 0;
    return takes;
}

bool PatternBacktracker::takeAgain(std::size_t number, std::size_t &at) const {
    const Group &group = groups_[number];
    if (group.end == none) {
        return false;
    }
    const std::u16string_view text = reader_.text();
    const std::u16string_view what = text.substr(group.begin, group.end - group.begin);
    if (!text.substr(at).starts_with(what)) {
        return false;
    }
    at += what.size();
    return what.empty() || at == text.size() || !U16_IS_LEAD(what.back()) ||
           !U16_IS_TRAIL(text[at]);
}

} // namespace nerlo::text
