// Sentences and words by a locale's rules.
//
// Texts are UTF-16; `locale` is an ICU locale id. The functions may run on any thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace nerlo::text {

// Calls `visit` with every sentence in order; together they are the whole text.
void forEachSentence(std::u16string_view text, const std::string &locale,
                     const std::function<void(std::u16string_view)> &visit);

// Word segments that hold letters, numbers, kana or ideographs.
std::uint64_t countWordSegments(std::u16string_view text, const std::string &locale);

} // namespace nerlo::text
