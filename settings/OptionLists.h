// The option lists that the preferences' combo boxes offer; what is stored is an item's index.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::settings {

// Gives the text for a key in the user's language; the key itself, which is English, where there is
// none.
using Localize = std::function<std::u16string(std::u16string_view key)>;

inline constexpr std::array popupPositions = {
    std::u16string_view(u"Bottom left"), std::u16string_view(u"Bottom right"),
    std::u16string_view(u"Top left"),    std::u16string_view(u"Top right"),
    std::u16string_view(u"Center"),      std::u16string_view(u"Cursor position"),
};
inline constexpr std::size_t popupPositionCount = popupPositions.size();

struct OptionList {
    std::string_view key; // of the setting
    std::vector<std::u16string> items;
};

// One list for each setting of the kind Index, in the order of the profile. Without `localize`, the
// English texts.
std::vector<OptionList> optionLists(const Localize &localize = {});

// The returns list's items that show custom fields: one field, and a field on each side.
inline constexpr std::int64_t returnsWithCustomText = 6;
inline constexpr std::int64_t returnsWithTags = 9;
// The separator lists' last item.
inline constexpr std::int64_t sortCustomSeparatorPosition = 8;

} // namespace nerlo::settings
