#include "platform/xkb/XkbKeyboardLayout.h"

#include <utility>

namespace nerlo::platform {

XkbKeyboardLayout::XkbKeyboardLayout(std::shared_ptr<const xkb::Keymap> keymap, std::uint32_t group)
    : keymap_(std::move(keymap))
    , group_(group) {}

std::u16string XkbKeyboardLayout::textOfKey(std::uint64_t virtualKey) const {
    return keymap_ ? keymap_->textOfKey(virtualKey, group_) : std::u16string();
}

std::string XkbKeyboardLayout::symbolOfKey(std::uint64_t virtualKey) const {
    return keymap_ ? keymap_->symbolOfKey(virtualKey, group_) : std::string();
}

std::optional<std::uint16_t> XkbKeyboardLayout::keyOfSymbol(std::string_view name) const {
    if (keymap_) {
        if (const auto key = keymap_->keyOfSymbol(name, group_)) {
            return key;
        }
    }
    if (!us_) {
        us_ = xkb::Keymap::fromNames("us");
    }
    return us_ ? us_->keyOfSymbol(name, 0) : std::nullopt;
}

void XkbKeyboardLayout::setChangedHandler(std::function<void()> changed) {
    changed_ = std::move(changed);
}

void XkbKeyboardLayout::replace(std::shared_ptr<const xkb::Keymap> keymap, std::uint32_t group) {
    keymap_ = std::move(keymap);
    group_ = group;
    if (changed_) {
        changed_();
    }
}

} // namespace nerlo::platform
