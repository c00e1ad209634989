#include "platform/xkb/XkbKeyboardLayout.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "shortcuts/nrShortcutDefaultsObserver.h"
#include "tests/fakes/MemoryHotKeys.h"
#include "tests/fakes/MemorySettingsStore.h"

#include <gtest/gtest.h>

namespace nerlo::shortcuts {
namespace {

using platform::HotKeyState;

constexpr std::uint32_t v = 9;
constexpr std::uint32_t c = 8;
const nrShortcut superV(v, controlModifier);
const nrShortcut superC(c, controlModifier);

class HotKeys : public testing::Test {
  protected:
    HotKeyHandler count(int &counter) {
        return [&counter] { ++counter; };
    }

    platform::XkbKeyboardLayout layout{platform::xkb::Keymap::fromNames("us")};
    ShortcutTexts texts{layout};
    test::MemoryHotKeys service;
    test::MemorySettingsStore store;
    GlobalHotKeys hotKeys{service, texts};
    UserDefaultsHotKeys bound{store, hotKeys};
    int runs = 0;
    int others = 0;
};

TEST_F(HotKeys, ACombinationIsRegisteredOnceUnderANewId) {
    const auto token = hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token;
    EXPECT_EQ(token, u"⌃V");
    EXPECT_FALSE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(others)).token);
    EXPECT_TRUE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superC, count(others)).token);
    hotKeys.removeGlobalHotkeyMonitor(token);
    EXPECT_TRUE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token);

    ASSERT_EQ(service.requests.size(), 3u);
    for (std::uint32_t n = 0; n < 3; ++n) {
        EXPECT_EQ(service.requests[n].id, (platform::HotKeyId{0x4d415353, n + 1}));
    }
    EXPECT_EQ(service.requests[0].keyCode, v);
    EXPECT_EQ(service.requests[0].modifiers, 0x1000u);
    EXPECT_TRUE(service.press(v, 0x1000));
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(others, 0);
}

TEST_F(HotKeys, ForeignAndLateEventsRunNothing) {
    const auto token = hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token;
    hotKeys.addGlobalHotkeyMonitorWithShortcut(superC, count(others));
    service.deliver({0x12345678, 1});
    service.deliver({0x4d415353, 99});
    hotKeys.removeGlobalHotkeyMonitor(token);
    service.deliver({0x4d415353, 1});
    EXPECT_EQ(runs + others, 0);
}

TEST_F(HotKeys, TheEventHandlerIsThereAsLongAsHotKeysAre) {
    service.refusesHandler = true;
    EXPECT_FALSE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, {}).token);
    service.refusesHandler = false;
    const auto first = hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, {}).token;
    const auto second = hotKeys.addGlobalHotkeyMonitorWithShortcut(superC, {}).token;
    EXPECT_TRUE(service.press(v, 0x1000)); // no handler to run, and no crash
    hotKeys.removeGlobalHotkeyMonitor(first);
    hotKeys.removeGlobalHotkeyMonitor(std::nullopt);
    EXPECT_EQ(service.removals, 0);
    hotKeys.removeGlobalHotkeyMonitor(second);
    EXPECT_EQ(service.removals, 1);
    EXPECT_TRUE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token);
    EXPECT_EQ(service.installations, 2);
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 1);
}

TEST_F(HotKeys, WhatTheDesktopRefusesLeavesNothingBehind) {
    service.takenByOthers = {{v, 0x1000}};
    const auto refused = hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs));
    EXPECT_FALSE(refused.token);
    EXPECT_EQ(refused.refusal, "another program uses it");
    service.takenByOthers.clear();
    EXPECT_TRUE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token);
    // Its code would be that of the A key.
    EXPECT_FALSE(hotKeys.addGlobalHotkeyMonitorWithShortcut({nrShortcut::absentKey, 0}, {}).token);
    EXPECT_EQ(service.registered.size(), 1u);
}

TEST_F(HotKeys, AHandlerMayEndItsOwnHotKey) {
    std::optional<GlobalHotKeys::Token> token;
    token = hotKeys
                .addGlobalHotkeyMonitorWithShortcut(superV,
                                                    [&, text = std::string(100, 'x')] {
                                                        hotKeys.removeGlobalHotkeyMonitor(token);
                                                        runs += static_cast<int>(text.size());
                                                    })
                .token;
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 100);
    EXPECT_FALSE(service.press(v, 0x1000));
}

TEST_F(HotKeys, FollowTheStoredShortcut) {
    bound.setGlobalShortcut(superV, "sSort");
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs), "Sort");
    EXPECT_EQ(bound.registeredUserDefaultsHotKeys().at("sSort")->observableKeyPath, "values.sSort");
    EXPECT_EQ(service.requests.back().name, "sSort");
    EXPECT_EQ(service.requests.back().title, "Sort");
    EXPECT_TRUE(service.press(v, 0x1000));

    // Written from anywhere.
    store.set("sSort", superC.data());
    EXPECT_FALSE(service.press(v, 0x1000));
    EXPECT_TRUE(service.press(c, 0x1000));
    EXPECT_EQ(runs, 2);

    for (const storage::PropertyValue &bad :
         {storage::PropertyValue(storage::PropertyData(7)), storage::PropertyValue(u"⌃V")}) {
        store.set("sSort", superC.data());
        store.set("sSort", bad);
        EXPECT_TRUE(service.registered.empty());
        EXPECT_EQ(bound.status("sSort").state, HotKeyState::none);
    }
    bound.setGlobalShortcut(superC, "sSort");
    EXPECT_EQ(bound.status("sSort").state, HotKeyState::active);
    bound.setGlobalShortcut(std::nullopt, "sSort");
    EXPECT_EQ(store.find("sSort"), nullptr);
    EXPECT_TRUE(service.registered.empty());

    bound.setGlobalShortcut(superC, "sSort");
    bound.unregisterGlobalShortcutWithUserDefaultsKey("sSort");
    EXPECT_TRUE(service.registered.empty());
    bound.setGlobalShortcut(superV, "sSort");
    EXPECT_TRUE(service.registered.empty());
}

TEST_F(HotKeys, OfTwoKeysWithOneCombinationTheFirstWins) {
    bound.setGlobalShortcut(superV, "sSort");
    bound.setGlobalShortcut(superV, "sStatistics");
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs));
    bound.registerGlobalShortcutWithUserDefaultsKey("sStatistics", count(others));
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(others, 0);
    EXPECT_EQ(bound.status("sStatistics").state, HotKeyState::refused);
    EXPECT_EQ(bound.status("sStatistics").text,
              "another shortcut of this program has the same keys");
    // Registering a key again replaces its handler.
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(others));
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(others, 1);
}

TEST_F(HotKeys, LateAnswersReachTheObserversOfTheStatus) {
    int told = 0;
    auto observation = bound.observeStatus([&] { ++told; });
    bound.setGlobalShortcut(superV, "sSort");
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs));
    EXPECT_EQ(told, 1);
    service.answer(1, {HotKeyState::refused, "the user declined"});
    EXPECT_EQ(told, 2);
    EXPECT_EQ(bound.status("sSort").text, "the user declined");
    observation.reset();
    service.answer(1, {HotKeyState::active, "Super+V"});
    EXPECT_EQ(told, 2);
}

TEST_F(HotKeys, AreOutOfTheWayWhileAnybodyWantsIt) {
    hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs));
    {
        const GlobalHotKeys::Suspension outer(hotKeys);
        { const GlobalHotKeys::Suspension inner(hotKeys); }
        EXPECT_FALSE(service.press(v, 0x1000));
    }
    EXPECT_TRUE(service.press(v, 0x1000));
}

struct Control final : ShortcutControl {
    std::optional<nrShortcut> shortcutValue() const override { return value; }
    void setShortcutValue(const std::optional<nrShortcut> &newValue) override {
        ++sets;
        value = newValue;
        if (observer) {
            observer();
        }
    }
    void setShortcutValueObserver(std::function<void()> changed) override {
        observer = std::move(changed);
    }

    std::optional<nrShortcut> value;
    std::function<void()> observer;
    int sets = 0;
};

TEST_F(HotKeys, AControlAndItsKeyFollowEachOtherWithoutEcho) {
    Control control;
    control.value = superC;
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs));
    bound.setGlobalShortcut(superV, "sSort");
    {
        const nrShortcutDefaultsObserver observer(control, store, "sSort");
        EXPECT_EQ(control.value, superV);

        int storeChanges = 0;
        const auto watching = store.observeAll([&] { ++storeChanges; });
        control.sets = 0;
        control.setShortcutValue(superC);
        EXPECT_EQ(control.sets, 1); // no echo from the store
        EXPECT_EQ(storedShortcut(store, "sSort"), superC);
        EXPECT_TRUE(service.press(c, 0x1000));

        bound.setGlobalShortcut(superV, "sSort");
        EXPECT_EQ(control.value, superV);
        EXPECT_EQ(storeChanges, 2);

        control.setShortcutValue(std::nullopt);
        EXPECT_EQ(store.find("sSort"), nullptr);
        EXPECT_TRUE(service.registered.empty());

        store.set("sSort", storage::PropertyData(3)); // no archive
        EXPECT_EQ(control.value, std::nullopt);
        EXPECT_NE(store.find("sSort"), nullptr);
    }
    EXPECT_EQ(control.value, superC);
    EXPECT_EQ(control.observer, nullptr);
}

} // namespace
} // namespace nerlo::shortcuts
