// What each step of a clean did, for programs.
//
// Texts are UTF-16; what is returned is UTF-8. Any thread.
#pragma once

#include "engine/Trace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::settings {

// Places that programs are told of each step.
inline constexpr std::size_t explainedPlaces = 100;

// Lines and columns count from 1. A line ends with CR LF, CR or LF; columns count characters, of
// which a pair of surrogates is one.
struct TextPosition {
    std::size_t offset = 0;
    std::size_t line = 1;
    std::size_t column = 1;
    std::size_t lineByFeeds = 1; // as programs count that know LF alone

    // `text` is the same each time, and `to` never lies before the offset.
    void moveTo(std::u16string_view text, std::size_t to);

  private:
    void passSpecial(std::u16string_view text);
};

// Members of a JSON object, without braces: operation, and rule or characters where there are some.
std::string jsonMembers(const engine::TraceStep &step);
// line, column, endLine, endColumn, removed and added; cut where one of these is not whole.
std::string jsonMembers(const engine::TracedChange &change, const TextPosition &begin,
                        const TextPosition &end);

// A JSON array, an object for each step, in one line without a line break.
std::string explainJson(std::u16string_view source, const engine::Trace &trace);

} // namespace nerlo::settings
