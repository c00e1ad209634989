#include "text/PatternProgram.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace nerlo::text {

namespace {

using Kind = PatternNode::Kind;
using Op = PatternInstruction::Op;

constexpr std::size_t maxInstructions = 3000;
constexpr std::size_t unitCount = 0x10000;

// A character whose folding is longer than itself.
struct LongFolding {
    char32_t character;
    std::u32string folded;
};

const std::vector<LongFolding> &longFoldings() {
    static const std::vector<LongFolding> foldings = [] {
        std::vector<LongFolding> found;
        const CodePoints changed = CodePoints::ofPattern(u"[:Changes_When_Casefolded:]");
        for (const CodePoints::Span &span : changed.spans()) {
            for (char32_t character = span.first; character <= span.last; ++character) {
                std::u32string folded = foldedCase({&character, 1});
                if (folded.size() > 1) {
                    found.push_back({character, std::move(folded)});
                }
            }
        }
        return found;
    }();
    return foldings;
}

CodePoints withFolding(char32_t folded) {
    CodePoints same;
    const CodePoints all = CodePoints(folded, folded).withOtherCases();
    for (const CodePoints::Span &span : all.spans()) {
        for (char32_t character = span.first; character <= span.last; ++character) {
            if (foldedCase({&character, 1}) == std::u32string_view(&folded, 1)) {
                same.add(character, character);
            }
        }
    }
    return same;
}

// Each part is written after what follows it, whose place it needs.
class Writer {
  public:
    explicit Writer(const PatternTree &tree) { program_.sets = tree.sets; }

    std::optional<PatternProgram> write(const PatternNode &root) {
        const std::uint32_t match = add({});
        program_.start = write(root, match);
        const bool isLarge =
            program_.code.size() >= maxInstructions || program_.sets.size() >= maxOwnSets;
        return isLarge ? std::nullopt : std::optional(std::move(program_));
    }

  private:
    static constexpr std::size_t maxOwnSets = CharacterClasses::maxSets - 6;

    std::uint32_t add(PatternInstruction instruction) {
        program_.code.push_back(instruction);
        return static_cast<std::uint32_t>(program_.code.size() - 1);
    }

    std::uint32_t addNumbered(Op op, std::size_t number, std::uint32_t next) {
        PatternInstruction instruction;
        instruction.op = op;
        instruction.number = static_cast<std::uint32_t>(number);
        instruction.next = next;
        return add(instruction);
    }

    std::uint32_t addFork(std::uint32_t next, std::uint32_t other) {
        PatternInstruction fork;
        fork.op = Op::Fork;
        fork.next = next;
        fork.other = other;
        return add(fork);
    }

    std::uint32_t write(const PatternNode &node, std::uint32_t next) {
        if (program_.code.size() >= maxInstructions) {
            return next;
        }
        switch (node.kind) {
        case Kind::Set:
            return addNumbered(Op::Set, node.number, next);
        case Kind::Folded:
            return writeFolded(node.folded, next);
        case Kind::Sequence:
            return writeSequence(node, next);
        case Kind::Choice:
            return writeChoice(node, next);
        case Kind::Repeat:
            return writeRepeat(node, next);
        case Kind::Group: {
            const std::uint32_t end = addNumbered(Op::Save, 2 * node.number + 1, next);
            return addNumbered(Op::Save, 2 * node.number, writeSequence(node, end));
        }
        case Kind::Again:
            return addNumbered(Op::Again, node.number, next);
        case Kind::Assert:
            break;
        }
        PatternInstruction check;
        check.op = Op::Assert;
        check.assertion = node.assertion;
        check.next = next;
        return add(check);
    }

    std::uint32_t writeSequence(const PatternNode &node, std::uint32_t next) {
        for (auto part = node.parts.rbegin(); part != node.parts.rend(); ++part) {
            next = write(*part, next);
        }
        return next;
    }

    std::uint32_t writeChoice(const PatternNode &node, std::uint32_t next) {
        std::uint32_t begin = write(node.parts.back(), next);
        for (auto part = node.parts.rbegin() + 1; part != node.parts.rend(); ++part) {
            begin = addFork(write(*part, next), begin);
        }
        return begin;
    }

    std::uint32_t writeRepeat(const PatternNode &node, std::uint32_t next) {
        const PatternNode &part = node.parts.front();
        const auto fork = [&](std::uint32_t again, std::uint32_t out) {
            return node.greedy ? addFork(again, out) : addFork(out, again);
        };
        std::uint32_t begin = next;
        std::uint32_t copies = node.least;
        if (node.most == PatternNode::unlimited) {
            const std::uint32_t loop = addFork(0, 0);
            const std::uint32_t body = write(part, loop);
            PatternInstruction &made = program_.code[loop];
            made.next = node.greedy ? body : next;
            made.other = node.greedy ? next : body;
            begin = copies > 0 ? body : loop;
            copies -= copies > 0 ? 1 : 0;
        } else {
            for (std::uint32_t count = node.least; count < node.most; ++count) {
                begin = fork(write(part, begin), next);
            }
        }
        for (; copies > 0; --copies) {
            begin = write(part, begin);
        }
        return begin;
    }

    std::uint32_t writeFolded(const std::u32string &folded, std::uint32_t next) {
        std::vector<std::uint32_t> from(folded.size() + 1, next);
        for (std::size_t at = folded.size(); at-- > 0;) {
            from[at] = writeSet(withFolding(folded[at]), from[at + 1]);
            for (const LongFolding &one : longFoldings()) {
                if (folded.compare(at, one.folded.size(), one.folded) == 0) {
                    const std::uint32_t single =
                        writeSet({one.character, one.character}, from[at + one.folded.size()]);
                    from[at] = addFork(from[at], single);
                }
            }
        }
        return from.front();
    }

    std::uint32_t writeSet(CodePoints points, std::uint32_t next) {
        program_.sets.push_back(std::move(points));
        return addNumbered(Op::Set, program_.sets.size() - 1, next);
    }

    PatternProgram program_;
};

} // namespace

bool PatternProgram::asserts(Assertion what) const {
    return std::ranges::any_of(code, [what](const PatternInstruction &instruction) {
        return instruction.op == Op::Assert && instruction.assertion == what;
    });
}

std::optional<PatternProgram> programOf(const PatternTree &tree) {
    return Writer(tree).write(tree.root);
}

std::optional<CharacterClasses> CharacterClasses::of(const std::vector<CodePoints> &sets) {
    struct Edge { // where a set begins or ends
        char32_t at;
        std::size_t set;
    };
    std::vector<Edge> edges;
    for (std::size_t set = 0; set < sets.size(); ++set) {
        for (const CodePoints::Span &span : sets[set].spans()) {
            edges.push_back({span.first, set});
            edges.push_back({span.last + 1, set});
        }
    }
    std::ranges::sort(edges, {}, &Edge::at);

    CharacterClasses made;
    made.ofUnits_.resize(unitCount);
    std::unordered_map<Sets, std::uint8_t> known;
    Sets sets_;
    char32_t begin = 0;
    const auto close = [&](char32_t end) {
        const auto [place, isNew] =
            known.try_emplace(sets_, static_cast<std::uint8_t>(made.classes_.size()));
        if (isNew) {
            made.classes_.push_back(sets_);
        }
        made.runs_.push_back({begin, place->second});
        std::fill(made.ofUnits_.begin() +
                      static_cast<std::ptrdiff_t>(std::min<std::size_t>(begin, unitCount)),
                  made.ofUnits_.begin() +
                      static_cast<std::ptrdiff_t>(std::min<std::size_t>(end, unitCount)),
                  place->second);
        begin = end;
    };
    for (const Edge &edge : edges) {
        if (edge.at > begin) {
            close(edge.at);
        }
        if (made.classes_.size() > maxClasses) {
            return std::nullopt;
        }
        sets_.flip(edge.set);
    }
    if (begin <= 0x10FFFF) {
        close(0x110000);
    }
    std::fill(made.ofUnits_.begin() + 0xD800, made.ofUnits_.begin() + 0xE000, made.pair());
    return made;
}

std::uint8_t CharacterClasses::of(char32_t character) const {
    return std::prev(std::ranges::upper_bound(runs_, character, {}, &Run::first))->number;
}

} // namespace nerlo::text
