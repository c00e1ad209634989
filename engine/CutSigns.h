// Whether a screen cut the lines of a text inside of words, by the lines alone.
//
// Texts are UTF-16, widths count units. For one thread at a time.
#pragma once

#include "engine/Structure.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace nerlo::engine {

// Of lines that were broken between words, few fill the whole width, and most others come close to
// it. Of those that a screen cut, most fill it, with a letter at the end and another below.
class CutSigns {
  public:
    explicit CutSigns(std::u16string_view text)
        : text_(text) {}

    // Takes the lines of the text in their order.
    void add(const StructuredLine &line);

    // Once all are known.
    bool areCut() const;

  private:
    static constexpr std::size_t widest = 400;
    static constexpr std::size_t enough = 1 << 12; // rows that tell what a long text is, too

    struct Row {
        std::size_t width = 0; // 0: the line below does not go on with it
        bool endsInLetter = false;
    };
    Row rowOf(const StructuredLine &line) const;

    const std::u16string_view text_;
    Row above_;
    std::size_t taken_ = 0;                          // rows that are counted
    std::array<std::uint32_t, widest + 1> rows_{};   // that go on below, by width
    std::array<std::uint32_t, widest + 1> joints_{}; // those with letters on both sides
};

} // namespace nerlo::engine
