// Sentences and words by a locale's rules.
//
// Texts are UTF-16; `locale` is an ICU locale id. The functions may run on any thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace nerlo::text {

// Most texts are segmented by rules of our own, which are many times as fast as ICU's iterators and
// give the same as long as ICU follows the version of Unicode that they were written for. With
// another ICU its iterators are used.
enum class SegmentRules : std::uint8_t { Own, Icu };
SegmentRules trustedRules();

// Calls `visit` with every sentence in order; together they are the whole text.
void forEachSentence(std::u16string_view text, const std::string &locale,
                     const std::function<void(std::u16string_view)> &visit,
                     SegmentRules rules = trustedRules());

// Word segments that hold letters, numbers, kana or ideographs.
std::uint64_t countWordSegments(std::u16string_view text, const std::string &locale,
                                SegmentRules rules = trustedRules());

// Where a text may be cut between two units for its words to be counted in pieces, whatever else it
// holds: `apart` where no word goes on, `sameWord` where one does, which both pieces then count.
enum class WordJoint : std::uint8_t { unknown, apart, sameWord };
WordJoint wordJoint(char16_t before, char16_t after);

} // namespace nerlo::text
