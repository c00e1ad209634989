#include "platform/xkb/Keymap.h"

#include "platform/VirtualKeys.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

namespace nerlo::platform::xkb {

namespace {

struct DeadKey {
    xkb_keysym_t symbol;
    char16_t accent;
};

// The accent on its own that a dead key shows. Source: the names of the keysyms and the spacing
// forms of the combining characters in the Unicode Character Database.
constexpr std::array deadKeys{
    DeadKey{XKB_KEY_dead_grave, u'`'},          DeadKey{XKB_KEY_dead_acute, u'\u00b4'},
    DeadKey{XKB_KEY_dead_circumflex, u'^'},     DeadKey{XKB_KEY_dead_tilde, u'~'},
    DeadKey{XKB_KEY_dead_macron, u'\u00af'},    DeadKey{XKB_KEY_dead_breve, u'\u02d8'},
    DeadKey{XKB_KEY_dead_abovedot, u'\u02d9'},  DeadKey{XKB_KEY_dead_diaeresis, u'\u00a8'},
    DeadKey{XKB_KEY_dead_abovering, u'\u02da'}, DeadKey{XKB_KEY_dead_doubleacute, u'\u02dd'},
    DeadKey{XKB_KEY_dead_caron, u'\u02c7'},     DeadKey{XKB_KEY_dead_cedilla, u'\u00b8'},
    DeadKey{XKB_KEY_dead_ogonek, u'\u02db'},    DeadKey{XKB_KEY_dead_iota, u'\u037a'},
    DeadKey{XKB_KEY_dead_stroke, u'/'},         DeadKey{XKB_KEY_dead_currency, u'\u00a4'},
    DeadKey{XKB_KEY_dead_greek, u'\u00b5'},
};

struct ContextUnref {
    void operator()(xkb_context *context) const { xkb_context_unref(context); }
};

// One for each keymap: contexts are not synchronised, and keymaps come from several threads.
std::unique_ptr<xkb_context, ContextUnref> makeContext() {
    std::unique_ptr<xkb_context, ContextUnref> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
    if (context) {
        // libxkbcommon must not write to standard error: a keymap that does not compile is reported
        // by a null result.
        xkb_context_set_log_fn(context.get(),
                               [](xkb_context *, xkb_log_level, const char *, va_list) {});
    }
    return context;
}

} // namespace

std::shared_ptr<const Keymap> Keymap::fromNames(const std::string &layout,
                                                const std::string &variant) {
    const auto context = makeContext();
    if (!context) {
        return nullptr;
    }
    const xkb_rule_names names{"evdev", "pc105", layout.c_str(), variant.c_str(), ""};
    return adopt(xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
}

std::shared_ptr<const Keymap> Keymap::fromText(std::string_view text) {
    const auto context = makeContext();
    if (!context || text.empty()) {
        return nullptr;
    }
    return adopt(xkb_keymap_new_from_buffer(context.get(), text.data(), text.size(),
                                            XKB_KEYMAP_FORMAT_TEXT_V1,
                                            XKB_KEYMAP_COMPILE_NO_FLAGS));
}

std::shared_ptr<const Keymap> Keymap::adopt(xkb_keymap *keymap) {
    return keymap ? std::shared_ptr<const Keymap>(new Keymap(keymap)) : nullptr;
}

Keymap::~Keymap() {
    xkb_keymap_unref(keymap_);
}

std::string Keymap::asText() const {
    const std::unique_ptr<char, decltype(&std::free)> text(
        xkb_keymap_get_as_string(keymap_, XKB_KEYMAP_FORMAT_TEXT_V1), &std::free);
    return text ? text.get() : std::string();
}

std::uint32_t Keymap::symbol(std::uint64_t virtualKey, std::uint32_t group,
                             std::uint32_t level) const {
    const auto evdev = evdevOfVirtualKey(virtualKey);
    if (!evdev) {
        return XKB_KEY_NoSymbol;
    }
    const xkb_keycode_t key = *evdev + 8u;
    const auto groups = xkb_keymap_num_layouts_for_key(keymap_, key);
    if (groups == 0) {
        return XKB_KEY_NoSymbol;
    }
    const xkb_keysym_t *symbols = nullptr;
    const int count =
        xkb_keymap_key_get_syms_by_level(keymap_, key, group < groups ? group : 0, level, &symbols);
    return count == 1 ? symbols[0] : xkb_keysym_t{XKB_KEY_NoSymbol};
}

std::u16string Keymap::textOfKey(std::uint64_t virtualKey, std::uint32_t group) const {
    const auto found = symbol(virtualKey, group);
    const auto *dead = std::ranges::find(deadKeys, found, &DeadKey::symbol);
    const char32_t character = dead != deadKeys.end() ? dead->accent : xkb_keysym_to_utf32(found);
    if (character == 0 || character > 0x10ffff) {
        return {};
    }
    if (character < 0x10000) {
        return {static_cast<char16_t>(character)};
    }
    return {static_cast<char16_t>(0xd7c0 + (character >> 10)),
            static_cast<char16_t>(0xdc00 | (character & 0x3ff))};
}

std::string Keymap::symbolOfKey(std::uint64_t virtualKey, std::uint32_t group) const {
    const auto found = symbol(virtualKey, group);
    std::array<char, 64> name{};
    if (found == XKB_KEY_NoSymbol || xkb_keysym_get_name(found, name.data(), name.size()) < 0) {
        return {};
    }
    return name.data();
}

std::optional<std::uint16_t> Keymap::keyOfSymbol(std::string_view name, std::uint32_t group) const {
    auto wanted = xkb_keysym_from_name(std::string(name).c_str(), XKB_KEYSYM_CASE_INSENSITIVE);
    if (wanted == XKB_KEY_NoSymbol) {
        return std::nullopt;
    }
    wanted = xkb_keysym_to_lower(wanted);
    // The digits of the keypad lie above its arrows.
    const std::uint32_t levels = wanted >= XKB_KEY_KP_0 && wanted <= XKB_KEY_KP_9 ? 2 : 1;
    for (const auto &key : virtualKeys()) {
        for (std::uint32_t level = 0; level < levels; ++level) {
            if (xkb_keysym_to_lower(symbol(key.code, group, level)) == wanted) {
                return key.code;
            }
        }
    }
    return std::nullopt;
}

} // namespace nerlo::platform::xkb
