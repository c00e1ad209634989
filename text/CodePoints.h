// Sets of code points, as ranges.
//
// Lone surrogates are code points too, as they are for ICU. Any thread; the sets that are made once
// for all are made on first use.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace nerlo::text {

class CodePoints {
  public:
    struct Span {
        char32_t first;
        char32_t last;
        bool operator==(const Span &) const = default;
    };

    CodePoints() = default;
    CodePoints(char32_t first, char32_t last)
        : spans_{{first, last}} {}

    // What ICU's set pattern stands for. Empty if it does not know a name in it.
    static CodePoints ofPattern(std::u16string_view pattern);
    // What "\w", "\d" and "\s" match.
    static const CodePoints &word();
    static const CodePoints &digit();
    static const CodePoints &space();
    // Combining and format characters, which "\b" looks past.
    static const CodePoints &marks();
    // What ends a line for ".", "^" and "$".
    static const CodePoints &lineEnds();

    void add(char32_t first, char32_t last);
    void add(const CodePoints &other);
    CodePoints complement() const;
    // With all characters that differ from these in case alone.
    CodePoints withOtherCases() const;

    bool operator==(const CodePoints &) const = default;

    // In order; none touches the next.
    const std::vector<Span> &spans() const { return spans_; }
    bool contains(char32_t character) const;
    // 2 stands for more than one.
    std::uint32_t sizeUpToTwo() const;

  private:
    std::vector<Span> spans_;
};

} // namespace nerlo::text
