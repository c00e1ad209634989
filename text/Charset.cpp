#include "text/Charset.h"

#include <unicode/ucnv.h>

#include <cstdint>
#include <limits>
#include <memory>

namespace nerlo::text {

namespace {

struct Close {
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, Close>;

// Null if there is none of this name.
Converter open(const std::string &charset) {
    // After a comma ICU takes options; an empty name stands for the process's own encoding.
    if (charset.empty() || charset.find(',') != std::string::npos) {
        return nullptr;
    }
    UErrorCode error = U_ZERO_ERROR;
    Converter converter(ucnv_open(charset.c_str(), &error));
    if (U_FAILURE(error)) {
        return nullptr;
    }
    ucnv_setToUCallBack(converter.get(), UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr,
                        &error);
    return U_SUCCESS(error) ? std::move(converter) : nullptr;
}

} // namespace

bool isCharset(const std::string &name) {
    return open(name) != nullptr;
}

std::optional<std::u16string> decode(std::string_view bytes, const std::string &charset) {
    const auto converter = open(charset);
    if (!converter || bytes.size() > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    // Hardly any encoding has more units than bytes; ICU says how many it would take.
    std::u16string text(bytes.size(), u'\0');
    for (;;) {
        UErrorCode error = U_ZERO_ERROR;
        const auto length =
            ucnv_toUChars(converter.get(), text.data(), static_cast<std::int32_t>(text.size()),
                          bytes.data(), static_cast<std::int32_t>(bytes.size()), &error);
        if (error != U_BUFFER_OVERFLOW_ERROR) {
            text.resize(U_SUCCESS(error) ? static_cast<std::size_t>(length) : 0);
            return U_SUCCESS(error) ? std::optional(std::move(text)) : std::nullopt;
        }
        text.resize(static_cast<std::size_t>(length));
    }
}

} // namespace nerlo::text
