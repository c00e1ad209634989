// The keyboard layout as an xkb keymap. The backends derive from it and replace the keymap as the
// desktop changes it. As it stands, with a keymap from the system's keyboard data, it serves tests
// and programs without a desktop.
#pragma once

#include "platform/KeyboardLayout.h"
#include "platform/xkb/Keymap.h"

#include <memory>

namespace nerlo::platform {

class XkbKeyboardLayout : public KeyboardLayout {
  public:
    // A null keymap gives no key a text.
    explicit XkbKeyboardLayout(std::shared_ptr<const xkb::Keymap> keymap = nullptr,
                               std::uint32_t group = 0);

    std::u16string textOfKey(std::uint64_t virtualKey) const override;
    std::string symbolOfKey(std::uint64_t virtualKey) const override;
    std::optional<std::uint16_t> keyOfSymbol(std::string_view name) const override;
    void setChangedHandler(std::function<void()> changed) override;
    std::string description() const override { return "a fixed keyboard layout"; }

    // Takes another keymap or group and tells the handler. Main thread.
    void replace(std::shared_ptr<const xkb::Keymap> keymap, std::uint32_t group);

  protected:
    const std::shared_ptr<const xkb::Keymap> &keymap() const { return keymap_; }

  private:
    std::shared_ptr<const xkb::Keymap> keymap_;
    std::uint32_t group_;
    mutable std::shared_ptr<const xkb::Keymap> us_; // made when it is first needed
    std::function<void()> changed_;
};

} // namespace nerlo::platform
