// One xkb keymap, read only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct xkb_keymap;

namespace nerlo::platform::xkb {

class Keymap {
  public:
    // From rule names ("us", "de"); null when the system's keyboard data has no such layout.
    static std::shared_ptr<const Keymap> fromNames(const std::string &layout,
                                                   const std::string &variant = {});
    // From a keymap as text, as compositors send it; null when it does not compile.
    static std::shared_ptr<const Keymap> fromText(std::string_view text);
    // Takes over the reference; null for null.
    static std::shared_ptr<const Keymap> adopt(xkb_keymap *keymap);

    ~Keymap();
    Keymap(const Keymap &) = delete;
    Keymap &operator=(const Keymap &) = delete;

    // The functions of the interface in platform/KeyboardLayout.h, for one group of the keymap. Any
    // thread. A group that the keymap does not have counts as the first.
    std::u16string textOfKey(std::uint64_t virtualKey, std::uint32_t group) const;
    std::string symbolOfKey(std::uint64_t virtualKey, std::uint32_t group) const;
    std::optional<std::uint16_t> keyOfSymbol(std::string_view name, std::uint32_t group) const;

    // As fromText() takes it.
    std::string asText() const;

  private:
    explicit Keymap(xkb_keymap *keymap)
        : keymap_(keymap) {}

    // The one keysym at this level, or 0.
    std::uint32_t symbol(std::uint64_t virtualKey, std::uint32_t group,
                         std::uint32_t level = 0) const;

    xkb_keymap *keymap_;
};

} // namespace nerlo::platform::xkb
