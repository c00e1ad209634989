#include "shortcuts/ShortcutTexts.h"

#include <utility>

namespace nerlo::shortcuts {

ShortcutTexts::ShortcutTexts(const platform::KeyboardLayout &layout, Localize localize,
                             Spelling spelling)
    : layout_(layout)
    , localize_(std::move(localize))
    , spelling_(spelling) {}

std::u16string ShortcutTexts::localized(std::u16string_view key) const {
    return localize_ ? localize_(key) : std::u16string(key);
}

std::u16string ShortcutTexts::formatted(std::u16string_view key,
                                        std::initializer_list<std::u16string_view> values) const {
    constexpr std::u16string_view placeholder = u"%@";
    std::u16string text = localized(key);
    std::size_t at = 0;
    for (const auto value : values) {
        at = text.find(placeholder, at);
        if (at == std::u16string::npos) {
            break;
        }
        text.replace(at, placeholder.size(), value);
        at += value.size();
    }
    return text;
}

} // namespace nerlo::shortcuts
