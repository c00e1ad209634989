#include "platform/VirtualKeys.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "text/Utf.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>

#include <xkbcommon/xkbcommon.h>

namespace nerlo::platform {
namespace {

TEST(VirtualKeys, CodesBeyondTheKeyboardAreNone) {
    EXPECT_EQ(virtualKeyOfX11Key(7), std::nullopt);
    EXPECT_EQ(virtualKeyOfX11Key(0xffffffff), std::nullopt);
    EXPECT_EQ(x11KeyOfVirtualKey(63), std::nullopt); // Fn lies outside X11's codes
    EXPECT_EQ(evdevOfVirtualKey(~std::uint64_t{0}), std::nullopt);
}

// xkb's own names of the places on the keyboard say that the columns belong together.
TEST(VirtualKeys, AgreeWithTheNamesOfXkb) {
    const std::unique_ptr<xkb_context, void (*)(xkb_context *)> context(
        xkb_context_new(XKB_CONTEXT_NO_FLAGS), xkb_context_unref);
    const xkb_rule_names names{"evdev", "pc105", "us", "", ""};
    const std::unique_ptr<xkb_keymap, void (*)(xkb_keymap *)> keymap(
        xkb_keymap_new_from_names(context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS),
        xkb_keymap_unref);
    ASSERT_TRUE(keymap);
    // Place, code, text, name; a text that says it all is the end.
    std::istringstream rows(
        "AC01:0 AC02:1 AC03:2 AC04:3 AC06:4 AC05:5 AB01:6 AB02:7 AB03:8 AB04:9 LSGT:10 AB05:11 "
        "AD01:12 AD02:13 AD03:14 AD04:15 AD06:16 AD05:17 AE01:18 AE02:19 AE03:20 AE04:21 AE06:22 "
        "AE05:23 AE12:24 AE09:25 AE07:26 AE11:27 AE08:28 AE10:29 AD12:30 AD09:31 AD07:32 AD11:33 "
        "AD08:34 AD10:35 AC09:37 AC07:38 AC11:39 AC08:40 AC10:41 BKSL:42 AB08:43 AB10:44 AB06:45 "
        "AB07:46 AB09:47 TLDE:50 RCTL:54 LCTL:55 LFSH:56 CAPS:57 LALT:58 LWIN:59 RTSH:60 RALT:61 "
        "RWIN:62 VOL+:72 VOL-:73 MUTE:74 AE13:93 AB11:94 KPPT:95 HJCV:102 HNGL:104 COMP:110 "
        "SPCE:49:Space RTRN:36:↩:Return TAB:48:⇥:Tab BKSP:51:⌫:Backspace ESC:53:⎋:Escape "
        "KPDL:65:.:Keypad_. KPMU:67:*:Keypad_* KPAD:69:+:Keypad_+ NMLK:71:⌧:Num_Lock "
        "KPDV:75:/:Keypad_/ KPEN:76:⌅:Keypad_Enter KPSU:78:–:Keypad_- KPEQ:81:=:Keypad_= "
        "KP0:82:0:Keypad_0 KP1:83:1:Keypad_1 KP2:84:2:Keypad_2 KP3:85:3:Keypad_3 "
        "KP4:86:4:Keypad_4 KP5:87:5:Keypad_5 KP6:88:6:Keypad_6 KP7:89:7:Keypad_7 "
        "KP8:91:8:Keypad_8 KP9:92:9:Keypad_9 INS:114:?:Insert HOME:115:↖:Home PGUP:116:⇞:Page_Up "
        "DELE:117:⌦:Delete END:119:↘:End PGDN:121:⇟:Page_Down LEFT:123:←:Left RGHT:124:→:Right "
        "DOWN:125:↓:Down UP:126:↑:Up FK01:122:F1 FK02:120:F2 FK03:99:F3 FK04:118:F4 FK05:96:F5 "
        "FK06:97:F6 FK07:98:F7 FK08:100:F8 FK09:101:F9 FK10:109:F10 FK11:103:F11 FK12:111:F12 "
        "FK13:105:F13 FK14:107:F14 FK15:113:F15 FK16:106:F16 FK17:64:F17 FK18:79:F18 FK19:80:F19 "
        "FK20:90");
    std::size_t count = 0;
    for (std::string row; rows >> row; ++count) {
        const std::string place = row.substr(0, row.find(':'));
        const auto x11 = xkb_keymap_key_by_name(keymap.get(), place.c_str());
        const auto code = virtualKeyOfX11Key(x11).value_or(999);
        EXPECT_EQ(x11KeyOfVirtualKey(code), x11);
        const auto *key = findVirtualKey(code);
        ASSERT_TRUE(key) << place;
        std::string found = place + ":" + std::to_string(key->code);
        for (const auto text : {key->text, key->name}) {
            found += text.empty() ? "" : ":" + text::utf16ToUtf8(text);
        }
        std::ranges::replace(found, ' ', '_');
        EXPECT_EQ(found, row);
        EXPECT_EQ(key->functionKey, place.starts_with("FK") ? std::stoi(place.substr(2)) : 0);
    }
    EXPECT_EQ(count + 1, virtualKeys().size()); // xkb has no Fn
}

TEST(KeyboardLayout, FollowsItsKeymap) {
    XkbKeyboardLayout layout(xkb::Keymap::fromNames("us,ru"));
    int changes = 0;
    layout.setChangedHandler([&] { ++changes; });
    EXPECT_EQ(layout.textOfKey(16), u"y");
    layout.replace(xkb::Keymap::fromNames("us,ru"), 1);
    EXPECT_EQ(layout.textOfKey(16), u"н");
    EXPECT_EQ(layout.symbolOfKey(16), "Cyrillic_en");
    // Latin names are still found, by the us layout.
    EXPECT_EQ(layout.keyOfSymbol("V"), 9);
    EXPECT_EQ(layout.keyOfSymbol("Cyrillic_em"), 9);
    layout.replace(nullptr, 0);
    EXPECT_EQ(layout.textOfKey(16), u"");
    EXPECT_EQ(changes, 2);

    const XkbKeyboardLayout german(xkb::Keymap::fromNames("de"));
    EXPECT_EQ(german.keyOfSymbol("z"), 16);
    EXPECT_EQ(german.keyOfSymbol("KP_9"), 92);
    EXPECT_EQ(german.keyOfSymbol("KP_Prior"), 92);
    EXPECT_EQ(german.keyOfSymbol("exclam"), std::nullopt); // with Shift alone
    EXPECT_EQ(german.keyOfSymbol("no such key"), std::nullopt);
    EXPECT_EQ(german.keyOfSymbol(""), std::nullopt);
}

TEST(KeyboardLayout, BadKeymapsAreNone) {
    EXPECT_EQ(xkb::Keymap::fromNames("no-such-layout"), nullptr);
    for (const char *text : {"", "xkb_keymap {", "\x01\x02", "xkb_keymap { xkb_symbols { }; };"}) {
        EXPECT_EQ(xkb::Keymap::fromText(text), nullptr) << text;
    }
}

} // namespace
} // namespace nerlo::platform
