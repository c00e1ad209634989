// What the texts of shortcuts are made with.
#pragma once

#include "platform/KeyboardLayout.h"

#include <functional>
#include <string>
#include <string_view>

namespace nerlo::shortcuts {

// Looks up a text of the string table "Shortcut"; the key is the English text.
using Localize = std::function<std::u16string(std::u16string_view key)>;

// How a shortcut is written: "⌃V", or with the names that stand on this desktop's keys, "Super+V".
enum class Spelling { glyphs, names };

class ShortcutTexts {
  public:
    // `layout` must outlive this. Without `localize` every text is English.
    explicit ShortcutTexts(const platform::KeyboardLayout &layout, Localize localize = {},
                           Spelling spelling = Spelling::glyphs);

    const platform::KeyboardLayout &layout() const { return layout_; }
    Spelling spelling() const { return spelling_; }
    std::u16string localized(std::u16string_view key) const;
    // The localized text with its placeholders "%@" replaced one by one; what `values` hold is not
    // looked at again.
    std::u16string formatted(std::u16string_view key,
                             std::initializer_list<std::u16string_view> values) const;

  private:
    const platform::KeyboardLayout &layout_;
    Localize localize_;
    Spelling spelling_;
};

} // namespace nerlo::shortcuts
