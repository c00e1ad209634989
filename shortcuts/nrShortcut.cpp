#include "shortcuts/nrShortcut.h"

#include "platform/SystemHotKeys.h"
#include "platform/VirtualKeys.h"
#include "shortcuts/ShortcutTexts.h"
#include "storage/PropertyList.h"
#include "text/CaseMapping.h"
#include "text/Characters.h"
#include "text/Utf.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <utility>

namespace nerlo::shortcuts {

namespace {

using storage::PropertyArray;
using storage::PropertyData;
using storage::PropertyDictionary;
using storage::PropertyUid;
using storage::PropertyValue;

std::atomic<bool> anyWithOption = false;

constexpr std::uint64_t spaceKey = 49;
constexpr std::uint64_t escapeKey = 53;

// F20 has neither a text nor a character of its own.
constexpr int shownFunctionKeys = 19;
constexpr char16_t firstFunctionKeyCharacter = 0xf704;

struct Modifier {
    std::uint64_t flag;
    std::uint32_t carbon;
    char16_t glyph;
    std::u16string_view name;
};

// In the order of the glyphs.
constexpr std::array modifiers{
    Modifier{controlModifier, platform::hotKeyControl, u'\u2303', u"Super"},
    Modifier{optionModifier, platform::hotKeyOption, u'\u2325', u"Alt"},
    Modifier{shiftModifier, platform::hotKeyShift, u'\u21e7', u"Shift"},
    Modifier{commandModifier, platform::hotKeyCommand, u'\u2318', u"Ctrl"},
};
// Ctrl and Super come first in a spelled-out name.
constexpr std::array spelledOutOrder{&modifiers[3], &modifiers[0], &modifiers[1], &modifiers[2]};

// How people and other programs call them, in lower case: GTK, KDE, other systems, and the words on
// German, French and Spanish keyboards.
struct ModifierName {
    std::u16string_view name;
    std::uint64_t flag;
};
constexpr std::array otherModifierNames{
    ModifierName{u"control", commandModifier}, ModifierName{u"ctl", commandModifier},
    ModifierName{u"primary", commandModifier}, ModifierName{u"strg", commandModifier},
    ModifierName{u"meta", controlModifier},    ModifierName{u"win", controlModifier},
    ModifierName{u"windows", controlModifier}, ModifierName{u"logo", controlModifier},
    ModifierName{u"mod4", controlModifier},    ModifierName{u"option", optionModifier},
    ModifierName{u"mod1", optionModifier},     ModifierName{u"umschalt", shiftModifier},
    ModifierName{u"maj", shiftModifier},       ModifierName{u"mayús", shiftModifier},
    ModifierName{u"mayus", shiftModifier},
};

std::u16string lower(std::u16string_view text) {
    return text::toLowercase(std::u16string(text), {});
}

std::u16string_view withoutBlanks(std::u16string_view text) {
    const auto begin = std::min(text.find_first_not_of(u' '), text.size());
    return text.substr(begin, text.find_last_not_of(u' ') + 1 - begin);
}

std::u16string spelledOutModifiers(std::uint64_t flags, const ShortcutTexts &texts) {
    std::u16string names;
    for (const auto *modifier : spelledOutOrder) {
        if ((flags & modifier->flag) != 0) {
            names += texts.localized(modifier->name);
            names += u'+';
        }
    }
    return names;
}

// 0 for none.
std::uint64_t modifierNamed(const std::u16string &name, const ShortcutTexts &texts) {
    for (const Modifier &modifier : modifiers) {
        if (name == lower(texts.localized(modifier.name)) || name == lower(modifier.name)) {
            return modifier.flag;
        }
    }
    const auto *other = std::ranges::find(otherModifierNames, name, &ModifierName::name);
    return other == otherModifierNames.end() ? 0 : other->flag;
}

// Takes a modifier and what stands between it and the rest off the front: "<Super>", "Ctrl + ",
// "Win-". Nothing where the rest is a key by itself, which may be "+" or "Keypad +".
std::optional<std::uint64_t> takeModifier(std::u16string_view &name, const ShortcutTexts &texts) {
    const std::size_t begin = name.starts_with(u'<') ? 1 : 0;
    const std::size_t end = name.find_first_of(begin == 1 ? u">" : u"+- ", begin);
    if (end == std::u16string_view::npos) {
        return std::nullopt;
    }
    const auto flag = modifierNamed(lower(withoutBlanks(name.substr(begin, end - begin))), texts);
    if (flag == 0) {
        return std::nullopt;
    }
    name = withoutBlanks(name.substr(end));
    if (!name.empty() &&
        std::u16string_view(u"+->").find(name.front()) != std::u16string_view::npos) {
        name = withoutBlanks(name.substr(1));
    }
    return flag;
}

constexpr std::u16string_view takenByDesktop =
    u"The key combination \"%@\" can't be used because it's already used by a system-wide keyboard "
    u"shortcut. If you really want to use this key combination, most shortcuts can be changed in "
    u"the Keyboard panel in System Preferences.";
constexpr std::u16string_view takenByMenuItem =
    u"The key combination \"%@\" can't be used because it's already used by the menu item \"%@\".";

// 1 for F1 to 20 for F20, else 0.
int functionKey(std::uint64_t keyCode) {
    const auto *key = platform::findVirtualKey(keyCode);
    return key ? key->functionKey : 0;
}

std::u16string textByLayout(std::uint64_t keyCode, const platform::KeyboardLayout &layout) {
    std::u16string text = layout.textOfKey(keyCode);
    for (std::size_t at = 0; at < text.size();) {
        const char32_t character = text::characterAt(text, at);
        if (!text::isShown(character)) {
            return {};
        }
        at += text::sizeOf(character);
    }
    return text::toUppercase(std::move(text), {});
}

void fill(ShortcutError *error, std::u16string message) {
    if (error) {
        *error = {"NSCocoaErrorDomain", 0, std::move(message), {}};
    }
}

constexpr std::u16string_view className = u"nrShortcut";

bool isText(const PropertyValue *value, std::u16string_view text) {
    const auto *string = value ? value->as<std::u16string>() : nullptr;
    return string && *string == text;
}

// The object that a reference in `value` leads to, or null.
const PropertyValue *follow(const PropertyArray &objects, const PropertyValue *value) {
    const auto *uid = value ? value->as<PropertyUid>() : nullptr;
    return uid && uid->index < objects.size() ? &objects.at(uid->index) : nullptr;
}

bool isOurClass(const PropertyValue *value) {
    const auto *dictionary = value ? value->as<PropertyDictionary>() : nullptr;
    return dictionary && isText(dictionary->find("$classname"), className);
}

std::optional<std::int64_t> integer(const PropertyValue *value) {
    if (const auto *number = value ? value->as<std::int64_t>() : nullptr) {
        return *number;
    }
    return std::nullopt;
}

} // namespace

std::optional<nrShortcut> nrShortcut::shortcutWithData(std::span<const std::byte> data) {
    if (data.empty()) {
        return std::nullopt;
    }
    const auto parsed =
        storage::parsePropertyList({reinterpret_cast<const char *>(data.data()), data.size()});
    const auto *archive = parsed.value ? parsed.value->as<PropertyDictionary>() : nullptr;
    if (!archive || !isText(archive->find("$archiver"), u"NSKeyedArchiver")) {
        return std::nullopt;
    }
    const auto *top = archive->find("$top");
    const auto *entries = top ? top->as<PropertyDictionary>() : nullptr;
    const auto *list = archive->find("$objects");
    const auto *objects = list ? list->as<PropertyArray>() : nullptr;
    if (!entries || !objects) {
        return std::nullopt;
    }
    const auto *root = follow(*objects, entries->find("root"));
    const auto *fields = root ? root->as<PropertyDictionary>() : nullptr;
    if (!fields || !isOurClass(follow(*objects, fields->find("$class")))) {
        return std::nullopt;
    }
    return initWithCoder(*fields);
}

PropertyData nrShortcut::data() const {
    PropertyDictionary object{{"$class", PropertyUid{2}}};
    for (const auto &[key, value] : encodeWithCoder()) {
        object.set(key, value);
    }
    const PropertyDictionary classEntry{
        {"$classname", className},
        {"$classes", PropertyArray{className, u"NSObject"}},
    };
    const std::string bytes = storage::writeBinary(PropertyDictionary{
        {"$version", 100000},
        {"$archiver", u"NSKeyedArchiver"},
        {"$top", PropertyDictionary{{"root", PropertyUid{1}}}},
        {"$objects", PropertyArray{u"$null", std::move(object), classEntry}},
    });
    PropertyData data(bytes.size());
    std::memcpy(data.data(), bytes.data(), bytes.size());
    return data;
}

PropertyDictionary nrShortcut::encodeWithCoder() const {
    return {
        {"KeyCode", keyCode_ == absentKey ? std::int64_t{-1} : static_cast<std::int64_t>(keyCode_)},
        {"ModifierFlags", static_cast<std::int64_t>(modifierFlags_)},
    };
}

std::optional<nrShortcut> nrShortcut::initWithCoder(const PropertyDictionary &fields) {
    const auto keyCode = integer(fields.find("KeyCode"));
    const auto flags = integer(fields.find("ModifierFlags"));
    if (!keyCode || !flags) {
        return std::nullopt;
    }
    return nrShortcut(*keyCode < 0 ? absentKey : static_cast<std::uint64_t>(*keyCode),
                      static_cast<std::uint64_t>(*flags));
}

std::u16string nrShortcut::keyCodeString(const ShortcutTexts &texts) const {
    if (keyCode_ == absentKey) {
        return {};
    }
    const auto *key = platform::findVirtualKey(keyCode_);
    if (key && !key->text.empty()) {
        return texts.localized(key->text); // "Space" alone is a word
    }
    if (key && key->functionKey != 0) {
        return {}; // F20
    }
    return textByLayout(keyCode_, texts.layout());
}

std::u16string nrShortcut::modifierFlagsString() const {
    std::u16string glyphs;
    for (const auto &modifier : modifiers) {
        if ((modifierFlags_ & modifier.flag) != 0) {
            glyphs += modifier.glyph;
        }
    }
    return glyphs;
}

std::u16string nrShortcut::modifiersText(const ShortcutTexts &texts) const {
    return texts.spelling() == Spelling::names ? spelledOutModifiers(modifierFlags_, texts)
                                               : modifierFlagsString();
}

std::u16string nrShortcut::description(const ShortcutTexts &texts) const {
    return texts.spelling() == Spelling::names ? spelledOutName(texts)
                                               : modifierFlagsString() + keyCodeString(texts);
}

std::u16string nrShortcut::spelledOutName(const ShortcutTexts &texts) const {
    const std::u16string name = spelledOutModifiers(modifierFlags_, texts);
    const auto *key = platform::findVirtualKey(keyCode_);
    return name + (key && !key->name.empty() ? texts.localized(key->name) : keyCodeString(texts));
}

std::optional<nrShortcut> nrShortcut::shortcutWithSpelledOutName(std::u16string_view name,
                                                                 const ShortcutTexts &texts) {
    std::uint64_t flags = 0;
    name = withoutBlanks(name);
    while (const auto modifier = takeModifier(name, texts)) {
        flags |= *modifier;
    }
    if (name.empty()) {
        return std::nullopt;
    }
    for (const auto &key : platform::virtualKeys()) {
        if (lower(nrShortcut(key.code, 0).spelledOutName(texts)) == lower(name)) {
            return nrShortcut(key.code, flags);
        }
    }
    const auto key = texts.layout().keyOfSymbol(text::utf16ToUtf8(name));
    return key ? std::optional(nrShortcut(*key, flags)) : std::nullopt;
}

std::u16string nrShortcut::keyCodeStringForKeyEquivalent(const ShortcutTexts &texts) const {
    std::u16string text = keyCodeString(texts);
    if (text.size() < 2) {
        return text::toLowercase(std::move(text), {});
    }
    if (keyCode_ == spaceKey) {
        return u" ";
    }
    const int number = functionKey(keyCode_);
    if (number != 0 && number <= shownFunctionKeys) {
        return {static_cast<char16_t>(firstFunctionKeyCharacter + number - 1)};
    }
    return {};
}

std::uint32_t nrShortcut::carbonKeyCode() const {
    return keyCode_ == absentKey ? 0 : static_cast<std::uint32_t>(keyCode_);
}

std::uint32_t nrShortcut::carbonFlags() const {
    std::uint32_t flags = 0;
    for (const auto &modifier : modifiers) {
        if ((modifierFlags_ & modifier.flag) != 0) {
            flags |= modifier.carbon;
        }
    }
    return flags;
}

bool nrShortcut::isValid() const {
    if (functionKey(keyCode_) != 0) {
        return true;
    }
    if ((modifierFlags_ & (controlModifier | commandModifier)) != 0) {
        return true;
    }
    if ((modifierFlags_ & optionModifier) == 0) {
        return false;
    }
    return keyCode_ == spaceKey || keyCode_ == escapeKey || allowsAnyHotkeyWithOptionModifier();
}

bool nrShortcut::shouldBypass(const ShortcutTexts &texts) const {
    if (modifierFlags_ != commandModifier) {
        return false;
    }
    const std::u16string text = keyCodeString(texts);
    return text == u"W" || text == u"Q";
}

std::optional<platform::SystemHotKey>
nrShortcut::takenBySystem(platform::SystemHotKeys &hotKeys) const {
    for (auto &taken : hotKeys.symbolicHotKeys()) {
        if (taken.code == keyCode_ && taken.modifiers == carbonFlags()) {
            return std::move(taken);
        }
    }
    return std::nullopt;
}

bool nrShortcut::isTakenError(ShortcutError *error, const ShortcutTexts &texts,
                              platform::SystemHotKeys &systemHotKeys,
                              std::span<const MenuItem> mainMenu) const {
    if (const auto taken = takenBySystem(systemHotKeys)) {
        fill(error, texts.formatted(takenByDesktop, {description(texts)}));
        if (error) {
            error->owner = taken->owner;
        }
        return true;
    }
    return isKeyEquivalent(keyCodeStringForKeyEquivalent(texts), modifierFlags_, mainMenu, error,
                           texts);
}

bool nrShortcut::isKeyEquivalent(std::u16string_view keyEquivalent, std::uint64_t flags,
                                 std::span<const MenuItem> menu, ShortcutError *error,
                                 const ShortcutTexts &texts) const {
    for (const auto &item : menu) {
        if (!item.submenu.empty() &&
            isKeyEquivalent(keyEquivalent, flags, item.submenu, error, texts)) {
            return true;
        }
        if (text::toLowercase(item.keyEquivalent, {}) != keyEquivalent) {
            continue;
        }
        // An upper-case letter brings Shift with it, and then the mask counts as it stands.
        const bool hit = item.keyEquivalent == keyEquivalent
                             ? (item.modifierMask & allModifiers) == flags
                             : (item.modifierMask | shiftModifier) == flags;
        if (hit) {
            fill(error, texts.formatted(takenByMenuItem, {description(texts), item.title}));
            return true;
        }
    }
    return false;
}

void nrShortcut::setAllowsAnyHotkeyWithOptionModifier(bool allows) {
    anyWithOption = allows;
}

bool nrShortcut::allowsAnyHotkeyWithOptionModifier() {
    return anyWithOption;
}

} // namespace nerlo::shortcuts
