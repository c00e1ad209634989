// A text as a pattern's search reads it: in classes of characters, with what stands around a place.
//
// Positions count UTF-16 code units and are never within a pair of surrogates. Belongs to one
// thread at a time.
#pragma once

#include "text/PatternProgram.h"
#include "text/UnitScan.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace nerlo::text {

// What stands before a place in the text, so far as the pattern asks for it.
enum PatternContext : std::uint32_t {
    atTextStart = 1,
    behindLineEnd = 2,
    behindReturn = 4,
    behindWord = 8, // and marks on it
};
inline constexpr std::uint32_t contextKinds = 16;

class PatternReader {
  public:
    // A class of characters, or what else may come next.
    struct Column {
        CharacterClasses::Sets sets;
        bool isWord = false;
        bool isMark = false;
        bool isLineEnd = false;
        bool isLineFeed = false;
        bool isReturn = false;
        bool isOfMatches = false;       // matches consist of such characters
        bool endsText = false;          // no character at all
        bool isLastLineEnd = false;     // "$" is before it
        std::uint8_t asLastLineEnd = 0; // the column that is this one and that
    };
    struct Next {
        std::uint8_t column;
        std::size_t width; // 0 at the end of the text
    };

    // Null for a tree that is too large. Its matches consist of the characters `ofMatches`.
    static std::unique_ptr<PatternReader> make(const PatternTree &tree,
                                               const CodePoints &ofMatches);

    // The text, which must outlive its use.
    void setText(std::u16string_view text);
    std::u16string_view text() const { return text_; }

    const PatternProgram &program() const { return program_; }
    const std::vector<Column> &columns() const { return columns_; }
    // The columns of units before plainEnd(). Surrogates have pair(), which stands for another one.
    const std::uint8_t *columnOfUnit() const { return classes_.ofUnits(); }
    std::uint8_t pair() const { return classes_.pair(); }
    std::size_t plainEnd() const { return plainEnd_; }

    Next nextAt(std::size_t at) const;
    std::uint32_t contextAt(std::size_t at) const;
    std::uint32_t contextBehind(std::uint32_t context, const Column &column) const;
    static bool holds(Assertion assertion, std::uint32_t context, const Column &column);

    bool isIn(std::size_t set, std::uint8_t column) const {
        return isIn_[set * columns_.size() + column] != 0;
    }
    // Moves `at` back to the first place from `least` on with nothing but characters of matches up
    // to it.
    std::size_t beginOfStretch(std::size_t at, std::size_t least) const;
    std::size_t endOfStretch(std::size_t at) const;

    // How many of ten thousand places of ordinary text toNextBegin() stops at.
    unsigned begins() const;

    // Moves `at` to the next place where a match may begin; false if there is none up to `until`,
    // where what is behind `until` may be looked at.
    bool toNextBegin(std::size_t &at, std::size_t until);
    // From now on nothing behind `until` is: for texts searched in many short parts.
    void searchInParts() { inParts_ = true; }

  private:
    PatternReader(PatternProgram program, CharacterClasses classes, std::size_t firstOwnSet);
    Next nextBefore(std::size_t at) const;
    bool toNextLine(std::size_t &at, std::size_t until);
    void addColumns(std::size_t firstOwnSet);
    void findBegins();
    bool beginsAtLineStart() const;
    void findFirstUnits();

    PatternProgram program_;
    CharacterClasses classes_;
    std::vector<Column> columns_;
    std::vector<std::uint8_t> isIn_; // by set and column
    std::uint8_t endColumn_ = 0;
    std::uint32_t contextMask_ = 0;
    std::vector<std::uint8_t> begins_; // by column: a match may begin with it
    bool mayBeEmpty_ = false;
    bool onlyAtLineStart_ = false;
    bool inParts_ = false;
    std::optional<UnitSet> firstUnits_;

    std::u16string_view text_;
    std::size_t plainEnd_ = 0;
    std::optional<UnitCursor> cursor_; // over first units, or over line ends
    std::size_t shortJumps_ = 0;
};

} // namespace nerlo::text
