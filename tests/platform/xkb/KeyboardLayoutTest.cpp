#include "platform/VirtualKeys.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

namespace nerlo::platform {
namespace {

TEST(VirtualKeys, EveryKeyOnceAndBack) {
    std::set<int> codes;
    std::set<int> evdevs;
    for (const auto &key : virtualKeys()) {
        EXPECT_TRUE(codes.insert(key.code).second) << key.code;
        EXPECT_TRUE(evdevs.insert(key.evdev).second) << key.evdev;
        EXPECT_EQ(virtualKeyOfEvdev(key.evdev), key.code);
        if (const auto x11 = x11KeyOfVirtualKey(key.code)) {
            EXPECT_EQ(virtualKeyOfX11Key(*x11), key.code);
        }
    }
    EXPECT_EQ(virtualKeyOfX11Key(7), std::nullopt);
    EXPECT_EQ(virtualKeyOfX11Key(0xffffffff), std::nullopt);
    EXPECT_EQ(x11KeyOfVirtualKey(63), std::nullopt); // Fn lies outside X11's codes
    EXPECT_EQ(evdevOfVirtualKey(~std::uint64_t{0}), std::nullopt);
}

// The symbols that xkb's own data gives to each place say that the two columns belong together.
TEST(VirtualKeys, AgreeWithTheSymbolsOfXkb) {
    const struct {
        const char *layout;
        const char *keys; // codes and their symbols
    } rows[] = {
        {"us", "0=a 1=s 2=d 3=f 4=h 5=g 6=z 7=x 8=c 9=v 11=b 12=q 13=w 14=e 15=r 16=y 17=t "
               "31=o 32=u 34=i 35=p 37=l 38=j 40=k 45=n 46=m 18=1 19=2 20=3 21=4 22=6 23=5 "
               "25=9 26=7 28=8 29=0 24=equal 27=minus 30=bracketright 33=bracketleft "
               "39=apostrophe 41=semicolon 42=backslash 43=comma 44=slash 47=period 50=grave "
               "49=space 65=KP_Delete 67=KP_Multiply 69=KP_Add 71=Num_Lock 75=KP_Divide "
               "76=KP_Enter 78=KP_Subtract 81=KP_Equal 82=KP_Insert 83=KP_End 84=KP_Down "
               "85=KP_Next 86=KP_Left 87=KP_Begin 88=KP_Right 89=KP_Home 91=KP_Up "
               "92=KP_Prior 122=F1 120=F2 99=F3 118=F4 96=F5 97=F6 98=F7 100=F8 101=F9 "
               "109=F10 103=F11 111=F12 36=Return 48=Tab 51=BackSpace 53=Escape 114=Insert "
               "115=Home 116=Prior 117=Delete 119=End 121=Next 123=Left 124=Right 125=Down "
               "126=Up 110=Menu 72=XF86AudioRaiseVolume 73=XF86AudioLowerVolume "
               "74=XF86AudioMute 54=Control_R 55=Control_L 56=Shift_L 57=Caps_Lock 58=Alt_L "
               "59=Super_L 60=Shift_R 61=Alt_R 62=Super_R"},
        {"jp", "93=backslash 94=backslash 95=KP_Decimal 102=Hangul_Hanja 104=Hangul"},
        {"de", "10=less 50=dead_circumflex 24=dead_acute"},
    };
    for (const auto &row : rows) {
        const XkbKeyboardLayout layout(xkb::Keymap::fromNames(row.layout));
        std::istringstream keys(row.keys);
        for (std::string key; keys >> key;) {
            EXPECT_EQ(layout.symbolOfKey(std::stoull(key)), key.substr(key.find('=') + 1))
                << row.layout << ' ' << key;
        }
    }
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
