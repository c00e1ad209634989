// Transcoding with vector instructions, where the processor has them.
//
// Written with intrinsics: compilers make nothing of this from plain loops. All loads stay inside
// what is given; stores may go beyond what they tell, by as much as is said.
#pragma once

#include <cstddef>
#include <string_view>

namespace nerlo::text {

// Whether the functions below may be called.
bool hasUtfVectors();

// A number of bytes at the front, that of whole blocks, which are surely well-formed but for the
// last sequence, which may be incomplete. May be less than all that are.
std::size_t checkUtf8Vectors(std::string_view bytes);

// Well-formed UTF-8, all of it, to UTF-16. Returns the number of units; `to` has room for 32 more
// than there are bytes.
std::size_t decodeUtf8Vectors(std::string_view bytes, char16_t *to);

// Encodes from the front up to the first surrogate, or less; `at` and `to` move. Up to 24 bytes
// behind `to` are overwritten, none behind `full`.
void encodeUtf8Vectors(const char16_t *&at, const char16_t *end, char *&to, const char *full);

} // namespace nerlo::text
