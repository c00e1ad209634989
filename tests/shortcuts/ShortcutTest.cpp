#include "shortcuts/nrShortcut.h"

#include "platform/SystemHotKeys.h"
#include "platform/VirtualKeys.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "shortcuts/ShortcutTexts.h"
#include "storage/PropertyList.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

namespace nerlo::shortcuts {
namespace {

using platform::XkbKeyboardLayout;
using storage::PropertyArray;
using storage::PropertyData;
using storage::PropertyDictionary;
using storage::PropertyUid;

XkbKeyboardLayout layoutOf(const char *name) {
    return XkbKeyboardLayout(platform::xkb::Keymap::fromNames(name));
}

PropertyData bytesOf(const std::string &text) {
    PropertyData data;
    for (const char c : text) {
        data.push_back(static_cast<std::byte>(c));
    }
    return data;
}

TEST(Shortcut, KeepsOnlyTheFourModifiers) {
    constexpr std::uint64_t capsLock = 0x10000;
    constexpr std::uint64_t functionKey = 0x800000;
    nrShortcut shortcut(9, controlModifier | capsLock | functionKey | 0x8);
    EXPECT_EQ(shortcut.modifierFlags(), controlModifier);
    shortcut.setModifierFlags(~std::uint64_t{0});
    EXPECT_EQ(shortcut.modifierFlags(), allModifiers);
    EXPECT_EQ(nrShortcut::shortcutWithEvent({0x10009, shiftModifier | capsLock}),
              nrShortcut(9, shiftModifier));
}

TEST(Shortcut, ArchiveGoesRoundForEveryKeyAndModifierSet) {
    std::vector<std::uint64_t> keys{nrShortcut::absentKey, 0xffff};
    for (std::uint64_t key = 0; key < 256; ++key) {
        keys.push_back(key);
    }
    for (const auto key : keys) {
        for (std::uint64_t set = 0; set < 16; ++set) {
            const nrShortcut shortcut(key, set * shiftModifier);
            EXPECT_EQ(nrShortcut::shortcutWithData(shortcut.data()), shortcut) << key << ' ' << set;
        }
    }
    // All that a reader elsewhere may look at.
    const auto data = nrShortcut(nrShortcut::absentKey, controlModifier).data();
    const auto archive =
        storage::parsePropertyList({reinterpret_cast<const char *>(data.data()), data.size()});
    EXPECT_EQ(
        archive.value,
        storage::PropertyValue(PropertyDictionary{
            {"$version", 100000},
            {"$archiver", u"NSKeyedArchiver"},
            {"$top", PropertyDictionary{{"root", PropertyUid{1}}}},
            {"$objects",
             PropertyArray{
                 u"$null",
                 PropertyDictionary{
                     {"$class", PropertyUid{2}}, {"KeyCode", -1}, {"ModifierFlags", 0x40000}},
                 PropertyDictionary{{"$classname", u"nrShortcut"},
                                    {"$classes", PropertyArray{u"nrShortcut", u"NSObject"}}}}}}));
    EXPECT_EQ(nrShortcut::initWithCoder({{"KeyCode", -7}, {"ModifierFlags", 0}})->keyCode(),
              nrShortcut::absentKey);
}

TEST(Shortcut, ReadsOtherWritersArchivesAndNoBadOnes) {
    const PropertyData good = nrShortcut(9, controlModifier).data();
    EXPECT_FALSE(nrShortcut::shortcutWithData({}));
    for (std::size_t size = 0; size < good.size(); ++size) {
        EXPECT_FALSE(nrShortcut::shortcutWithData(std::span(good).first(size))) << size;
    }
    const PropertyDictionary ours{{"$classname", u"nrShortcut"}};
    const PropertyDictionary fields{
        {"$class", PropertyUid{2}}, {"KeyCode", 9}, {"ModifierFlags", 0}};
    const auto archive = [](PropertyDictionary object, PropertyDictionary type, PropertyUid root,
                            const char16_t *archiver = u"NSKeyedArchiver") {
        return bytesOf(storage::writeBinary(PropertyDictionary{
            {"$archiver", archiver},
            {"$top", PropertyDictionary{{"root", root}}},
            {"$objects", PropertyArray{u"$null", std::move(object), std::move(type)}}}));
    };
    ASSERT_TRUE(nrShortcut::shortcutWithData(archive(fields, ours, {1})));
    // In XML, the objects in another order, one key more.
    const PropertyDictionary more{
        {"$class", PropertyUid{1}}, {"KeyCode", 9}, {"ModifierFlags", 0x140000}, {"Later", u"?"}};
    const PropertyDictionary elsewhere{{"$archiver", u"NSKeyedArchiver"},
                                       {"$objects", PropertyArray{u"$null", ours, more}},
                                       {"$top", PropertyDictionary{{"root", PropertyUid{2}}}}};
    EXPECT_EQ(nrShortcut::shortcutWithData(bytesOf(storage::writeXml(elsewhere))),
              nrShortcut(9, controlModifier | commandModifier));
    const struct {
        const char *name;
        PropertyData data;
    } rows[] = {
        {"root outside the objects", archive(fields, ours, {3})},
        {"root is no object", archive(fields, ours, {0})},
        {"another class", archive(fields, {{"$classname", u"NSColor"}}, {1})},
        {"no class", archive({{"KeyCode", 9}, {"ModifierFlags", 0}}, ours, {1})},
        {"no key code", archive({{"$class", PropertyUid{2}}, {"ModifierFlags", 0}}, ours, {1})},
        {"key code is text",
         archive({{"$class", PropertyUid{2}}, {"KeyCode", u"9"}, {"ModifierFlags", 0}}, ours, {1})},
        {"another archiver", archive(fields, ours, {1}, u"NSArchiver")},
        {"a list", bytesOf(storage::writeBinary(PropertyArray{1, 2}))},
    };
    for (const auto &row : rows) {
        EXPECT_FALSE(nrShortcut::shortcutWithData(row.data)) << row.name;
    }
}

TEST(Shortcut, TextsFollowTheLayout) {
    const struct {
        const char *layout;
        std::uint64_t key;
        const char16_t *text;
        const char16_t *equivalent;
    } rows[] = {
        {"us", 9, u"V", u"v"},
        {"de", 16, u"Z", u"z"},
        {"ru", 16, u"Н", u"н"},
        {"fr", 12, u"A", u"a"},
        {"de", 24, u"\u00b4", u"\u00b4"}, // dead key
        {"de", 10, u"<", u"<"},
        {"us", 49, u"Space", u" "},
        {"us", 122, u"F1", u"\uf704"},
        {"us", 80, u"F19", u"\uf716"},
        {"us", 90, u"", u""},
        {"us", 700, u"", u""},
        // Not the smaller sharp s, and so without a menu key equivalent.
        {"de", 27, u"SS", u""},
    };
    for (const auto &row : rows) {
        const auto layout = layoutOf(row.layout);
        const ShortcutTexts texts(layout);
        const nrShortcut shortcut(row.key, 0);
        EXPECT_EQ(shortcut.keyCodeString(texts), row.text) << row.layout << ' ' << row.key;
        EXPECT_EQ(shortcut.keyCodeStringForKeyEquivalent(texts), row.equivalent)
            << row.layout << ' ' << row.key;
    }
    // Without a layout, and where a key writes a control character.
    const XkbKeyboardLayout none;
    EXPECT_EQ(nrShortcut(9, controlModifier).description(ShortcutTexts(none)), u"⌃");
    struct Control final : platform::KeyboardLayout {
        std::u16string textOfKey(std::uint64_t) const override { return u"a\u0003"; }
        std::string symbolOfKey(std::uint64_t) const override { return {}; }
        std::optional<std::uint16_t> keyOfSymbol(std::string_view) const override { return {}; }
        void setChangedHandler(std::function<void()>) override {}
        std::string description() const override { return {}; }
    } control;
    EXPECT_EQ(nrShortcut(9, 0).keyCodeString(ShortcutTexts(control)), u"");
}

TEST(Shortcut, NamesItsModifiers) {
    const auto layout = layoutOf("us");
    const ShortcutTexts texts(layout, [](std::u16string_view key) {
        return std::u16string(key == u"Space" ? u"Leertaste" : key);
    });
    EXPECT_EQ(nrShortcut(9, allModifiers).description(texts), u"⌃⌥⇧⌘V");
    EXPECT_EQ(nrShortcut(9, allModifiers).spelledOutName(texts), u"Ctrl+Super+Alt+Shift+V");
    EXPECT_EQ(nrShortcut(9, controlModifier).spelledOutName(texts), u"Super+V");
    EXPECT_EQ(nrShortcut(49, optionModifier).spelledOutName(texts), u"Alt+Leertaste");
    EXPECT_EQ(nrShortcut(117, 0).spelledOutName(texts), u"Delete");
    EXPECT_EQ(nrShortcut(nrShortcut::absentKey, shiftModifier).description(texts), u"⇧");
    EXPECT_EQ(nrShortcut(9, allModifiers).carbonFlags(), 0x1b00u);
    EXPECT_EQ(nrShortcut(nrShortcut::absentKey, shiftModifier).carbonFlags(), 0x200u);
    EXPECT_EQ(nrShortcut(nrShortcut::absentKey, shiftModifier).carbonKeyCode(), 0u);
}

TEST(Shortcut, IsReadFromItsSpelledOutName) {
    const auto de = layoutOf("de");
    const auto ru = layoutOf("ru");
    for (const auto *layout : {&de, &ru}) {
        const ShortcutTexts texts(*layout);
        for (const auto &key : platform::virtualKeys()) {
            const auto name = nrShortcut(key.code, allModifiers).spelledOutName(texts);
            if (!nrShortcut(key.code, 0).keyCodeString(texts).empty()) {
                // Two keys may write the same.
                const auto read = nrShortcut::shortcutWithSpelledOutName(name, texts);
                ASSERT_TRUE(read) << text::utf16ToUtf8(name);
                EXPECT_EQ(read->spelledOutName(texts), name);
            }
        }
    }
    const struct {
        const char16_t *name;
        std::optional<nrShortcut> shortcut;
    } rows[] = {
        {u"super+PAGE up", nrShortcut(116, controlModifier)},
        {u"Ctrl+Z", nrShortcut(16, commandModifier)}, // where the German Z is
        {u"Ctrl++", nrShortcut(30, commandModifier)},
        {u"Alt+Keypad +", nrShortcut(69, optionModifier)},
        {u"Alt+udiaeresis", nrShortcut(33, optionModifier)},
        {u"F5", nrShortcut(96, 0)},
        {u"", std::nullopt},
        {u"+", nrShortcut(30, 0)},
        {u"Super+", std::nullopt},
        {u"Hyper+V", std::nullopt},
        {u"Super+VV", std::nullopt},
        {u"Control + z", nrShortcut(16, commandModifier)},
        {u"<Shift><Super>F5", nrShortcut(96, controlModifier | shiftModifier)},
        {u"Win-F5", nrShortcut(96, controlModifier)},
        {u" strg umschalt z ", nrShortcut(16, commandModifier | shiftModifier)},
        {u"Ctrl+-", nrShortcut(44, commandModifier)},
        {u"<Super>", std::nullopt},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(nrShortcut::shortcutWithSpelledOutName(row.name, ShortcutTexts(de)), row.shortcut)
            << text::utf16ToUtf8(row.name);
    }
    EXPECT_EQ(nrShortcut::shortcutWithSpelledOutName(u"Super+V", ShortcutTexts(ru)),
              nrShortcut(9, controlModifier));
}

TEST(Shortcut, Validity) {
    const struct {
        std::uint64_t key, modifiers;
        bool valid, validWithAnyOption;
    } rows[] = {
        {96, 0, true, true},                              // F5
        {90, shiftModifier, true, true},                  // F20
        {0, 0, false, false},                             // A
        {0, shiftModifier, false, false},                 //
        {9, controlModifier, true, true},                 //
        {9, commandModifier | shiftModifier, true, true}, //
        {0, optionModifier, false, true},                 //
        {0, optionModifier | shiftModifier, false, true}, //
        {49, optionModifier, true, true},                 // Space
        {53, optionModifier | shiftModifier, true, true}, // Escape
        {49, 0, false, false},                            //
    };
    for (const auto &row : rows) {
        const nrShortcut shortcut(row.key, row.modifiers);
        EXPECT_EQ(shortcut.isValid(), row.valid) << row.key << ' ' << row.modifiers;
        nrShortcut::setAllowsAnyHotkeyWithOptionModifier(true);
        EXPECT_EQ(shortcut.isValid(), row.validWithAnyOption) << row.key << ' ' << row.modifiers;
        nrShortcut::setAllowsAnyHotkeyWithOptionModifier(false);
    }
}

TEST(Shortcut, BypassesCloseAndQuitByTheLetterOnTheKey) {
    const auto us = layoutOf("us");
    const auto fr = layoutOf("fr");
    const ShortcutTexts inUs(us);
    EXPECT_TRUE(nrShortcut(13, commandModifier).shouldBypass(inUs));
    EXPECT_TRUE(nrShortcut(12, commandModifier).shouldBypass(inUs));
    EXPECT_FALSE(nrShortcut(13, commandModifier | shiftModifier).shouldBypass(inUs));
    EXPECT_FALSE(nrShortcut(12, controlModifier).shouldBypass(inUs));
    EXPECT_FALSE(nrShortcut(12, commandModifier).shouldBypass(ShortcutTexts(fr)));
    EXPECT_TRUE(nrShortcut(0, commandModifier).shouldBypass(ShortcutTexts(fr)));
}

TEST(Shortcut, IsTakenByTheDesktopAndByMenuItems) {
    const auto layout = layoutOf("us");
    const ShortcutTexts texts(layout);
    struct FixedHotKeys final : platform::SystemHotKeys {
        std::vector<platform::SystemHotKey> symbolicHotKeys() override { return {{9, 0x1000}}; }
    } desktop;
    const std::vector<MenuItem> menu{
        {u"File", {}, 0, {{u"Save \"%@\"", u"s", commandModifier, {}}}},
        {u"Save All", u"S", commandModifier, {}},
        {u"Paste", u"v", controlModifier, {}},
        {u"With Caps Lock", u"x", commandModifier | 0x10000, {}},
        {u"Upper Caps Lock", u"Z", commandModifier | 0x10000, {}},
    };
    const struct {
        std::uint64_t key, modifiers;
        const char *by; // null: free
    } rows[] = {
        {9, controlModifier, "a system-wide keyboard shortcut"}, // before the menu
        {9, controlModifier | shiftModifier, nullptr},
        {1, commandModifier, "the menu item \"Save \"%@\"\"."},
        {1, commandModifier | shiftModifier, "the menu item \"Save All\"."},
        {1, controlModifier, nullptr},
        {7, commandModifier, "the menu item \"With Caps Lock\"."},
        // The mask of an upper-case equivalent is compared whole.
        {6, commandModifier | shiftModifier, nullptr},
        {9, commandModifier, nullptr},
    };
    for (const auto &row : rows) {
        ShortcutError error;
        const nrShortcut shortcut(row.key, row.modifiers);
        EXPECT_EQ(shortcut.isTakenError(&error, texts, desktop, menu), row.by != nullptr);
        EXPECT_EQ(shortcut.isTakenError(nullptr, texts, desktop, menu), row.by != nullptr);
        const std::string told = text::utf16ToUtf8(error.localizedDescription);
        const std::string start = "The key combination \"" +
                                  text::utf16ToUtf8(shortcut.description(texts)) +
                                  "\" can't be used because it's already used by ";
        EXPECT_TRUE(row.by ? told.starts_with(start + row.by) : told.empty()) << told;
    }
}

} // namespace
} // namespace nerlo::shortcuts
