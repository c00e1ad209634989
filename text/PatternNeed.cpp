#include "text/PatternNeed.h"

#include <unicode/utf16.h>

#include <string>
#include <utility>

namespace nerlo::text {

namespace {

using Kind = PatternNode::Kind;

// A literal that is met more often than this saves nothing.
constexpr unsigned mostCommon = 150;

class NeedFinder {
  public:
    explicit NeedFinder(const PatternTree &tree)
        : tree_(tree) {}

    PatternNeed find() {
        read(tree_.root);
        close();
        for (const CodePoints &set : tree_.sets) {
            need_.around.add(set);
        }
        if (tree_.hasFolded) {
            need_.around = CodePoints(0, lastCodePoint);
        }
        return std::move(need_);
    }

  private:
    // Goes on with the run of literal characters, or ends it, with what must match in order.
    void read(const PatternNode &node) {
        switch (node.kind) {
        case Kind::Set:
            readSet(tree_.sets[node.number]);
            break;
        case Kind::Sequence:
        case Kind::Group:
            for (const PatternNode &part : node.parts) {
                read(part);
            }
            break;
        case Kind::Repeat:
            readRepeat(node);
            break;
        case Kind::Choice:
        case Kind::Folded:
        case Kind::Again:
            close();
            break;
        case Kind::Assert:
            break; // takes no character
        }
    }

    void readSet(const CodePoints &points) {
        if (points.sizeUpToTwo() != 1) {
            close();
            return;
        }
        std::int32_t size = 0;
        char16_t units[U16_MAX_LENGTH];
        U16_APPEND_UNSAFE(units, size, points.spans().front().first);
        run_.append(units, static_cast<std::size_t>(size));
    }

    void readRepeat(const PatternNode &node) {
        if (node.least == 0) {
            close();
            return;
        }
        read(node.parts.front()); // the first time round
        if (node.most > 1) {
            close();
        }
    }

    void close() {
        const std::u16string run = std::exchange(run_, {});
        if (run.empty()) {
            return;
        }
        Literal literal = literalOf(run);
        if (literal.places < best_) {
            best_ = literal.places;
            need_.literal = std::move(literal);
        }
    }

    static constexpr char32_t lastCodePoint = 0x10FFFF;

    const PatternTree &tree_;
    PatternNeed need_;
    std::u16string run_;
    unsigned best_ = mostCommon;
};

} // namespace

PatternNeed neededBy(const PatternTree &tree) {
    return NeedFinder(tree).find();
}

} // namespace nerlo::text
