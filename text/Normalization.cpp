#include "text/Normalization.h"

#include <unicode/unorm2.h>
#include <unicode/utf16.h>

#include <cstdint>
#include <string_view>

namespace nerlo::text {

namespace {

using View = std::u16string_view;

// The end of the letter with its marks that begins at `at`.
std::size_t endOfLetter(const UNormalizer2 *composing, View text, std::size_t at) {
    U16_FWD_1(text.data(), at, text.size());
    while (at < text.size()) {
        UChar32 character = 0;
        U16_GET(text.data(), 0, at, text.size(), character);
        if (unorm2_hasBoundaryBefore(composing, character)) {
            break;
        }
        U16_FWD_1(text.data(), at, text.size());
    }
    return at;
}

std::u16string composedLetter(const UNormalizer2 *composing, View letter) {
    std::u16string result(letter.size() * 3, u'\0'); // no character becomes more than three units
    UErrorCode error = U_ZERO_ERROR;
    const int32_t size =
        unorm2_normalize(composing, letter.data(), static_cast<int32_t>(letter.size()),
                         result.data(), static_cast<int32_t>(result.size()), &error);
    if (U_FAILURE(error)) {
        return std::u16string(letter);
    }
    result.resize(static_cast<std::size_t>(size));
    return result;
}

// How many units of the text are composed already, up to a place between letters. ICU counts in 32
// bits, so that a long text is looked at in parts.
std::size_t composedUnits(const UNormalizer2 *composing, View text) {
    constexpr std::size_t most = std::size_t{1} << 20;
    const View part = text.substr(0, most);
    UErrorCode error = U_ZERO_ERROR;
    const int32_t found =
        unorm2_spanQuickCheckYes(composing, part.data(), static_cast<int32_t>(part.size()), &error);
    auto size = static_cast<std::size_t>(U_FAILURE(error) ? 0 : found);
    while (size > 0 && size < text.size()) {
        UChar32 character = 0;
        U16_GET(text.data(), 0, size, text.size(), character);
        if (unorm2_hasBoundaryBefore(composing, character)) {
            break;
        }
        U16_BACK_1(text.data(), 0, size);
    }
    return size;
}

} // namespace

std::u16string composed(std::u16string text, std::size_t &count) {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *const composing = unorm2_getNFCInstance(&error);
    if (U_FAILURE(error)) {
        return text;
    }
    const View view = text;
    std::u16string result;
    std::size_t done = 0;
    for (std::size_t at = 0; at < view.size();) {
        at += composedUnits(composing, view.substr(at));
        if (at == view.size()) {
            break;
        }
        const std::size_t end = endOfLetter(composing, view, at);
        const View letter = view.substr(at, end - at);
        if (letter.size() <= mostMarks) {
            const std::u16string whole = composedLetter(composing, letter);
            if (whole != letter) {
                result.append(view, done, at - done).append(whole);
                done = end;
                ++count;
            }
        }
        at = end;
    }
    if (done == 0) {
        return text;
    }
    return result.append(view, done);
}

} // namespace nerlo::text
