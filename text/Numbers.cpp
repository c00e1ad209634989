#include "text/Numbers.h"

#include <unicode/unum.h>

#include <algorithm>
#include <array>
#include <memory>

namespace nerlo::text {

std::u16string formatNumber(std::uint64_t number, const std::string &locale) {
    const std::string digits = std::to_string(number);
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UNumberFormat, decltype(&unum_close)> format(
        unum_open(UNUM_DECIMAL, nullptr, 0, locale.c_str(), nullptr, &status), unum_close);
    std::array<char16_t, 128> text{};
    // As decimal digits, because ICU's integers end at 2^63 - 1.
    const std::int32_t size =
        unum_formatDecimal(format.get(), digits.data(), static_cast<std::int32_t>(digits.size()),
                           text.data(), static_cast<std::int32_t>(text.size()), nullptr, &status);
    if (U_FAILURE(status)) {
        return {digits.begin(), digits.end()};
    }
    return {text.data(), static_cast<std::size_t>(size)};
}

} // namespace nerlo::text
