// A replacement in a text that comes in pieces, whatever they are, in memory that does not grow.
#pragma once

#include "text/UnitScan.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::text {

// One rule for one text. UTF-16; one thread at a time.
class StreamedRule {
  public:
    // As replaceAll() and replaceRuns() of text/Replace.h do it.
    static StreamedRule literal(std::u16string_view find, std::u16string_view replacement);
    static StreamedRule run(const UnitSet &units, std::u16string_view replacement);

    // Appends to `to` all of the result that cannot be changed by what may follow. It may end
    // between two surrogates.
    void feed(std::u16string_view text, std::u16string &to);
    // Appends the rest. The next feed() begins another text.
    void finish(std::u16string &to);

    // Whether the rule finds, or its run holds, this unit.
    bool looksAt(char16_t unit) const;
    // Whether something that the rule finds may hold these two units one behind the other.
    bool joins(char16_t before, char16_t after) const;

  private:
    void step(char16_t unit, std::u16string &to);
    void fallBack(std::u16string &to);

    bool isRun_ = false;
    UnitSet units_;
    std::u16string find_;
    std::u16string replacement_;
    std::size_t common_ = 0; // units with which both begin
    // For each number of units matched: how many of the last of them are a beginning, too.
    std::vector<std::size_t> shorter_;

    bool inRun_ = false;
    std::size_t matched_ = 0; // units of find_ that the text ends with
    std::size_t told_ = 0;    // of these, what was appended already: it stays in any case
};

} // namespace nerlo::text
