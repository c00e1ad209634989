#include "shortcuts/UserDefaultsHotKeys.h"
#include "tests/fakes/MemoryHotKeys.h"
#include "tests/fakes/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <optional>

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

    test::MemoryHotKeys service;
    test::MemorySettingsStore store;
    std::optional<GlobalHotKeys> registry{service};
    GlobalHotKeys &hotKeys = *registry;
    std::optional<UserDefaultsHotKeys> settings{std::in_place, store, hotKeys};
    UserDefaultsHotKeys &bound = *settings;
    int runs = 0;
    int others = 0;
};

TEST_F(HotKeys, ACombinationIsRegisteredOnceUnderANewId) {
    service.refusesHandler = true;
    EXPECT_FALSE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, {}).token);
    service.refusesHandler = false;
    const auto token = hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, count(runs)).token;
    // The handler of a hot key may end it.
    std::optional<GlobalHotKeys::Token> second;
    second = hotKeys
                 .addGlobalHotkeyMonitorWithShortcut(superC,
                                                     [&, text = std::string(100, 'x')] {
                                                         hotKeys.removeGlobalHotkeyMonitor(second);
                                                         others += static_cast<int>(text.size());
                                                     })
                 .token;
    ASSERT_EQ(service.requests.size(), 2u);
    for (std::uint32_t n = 0; n < 2; ++n) {
        EXPECT_EQ(service.requests[n].id, (platform::HotKeyId{0x4d415353, n + 1}));
    }
    service.deliver({0x12345678, 1}); // another program's
    service.press(v, 0x1000);
    service.press(c, 0x1000);
    service.deliver({0x4d415353, 2}); // too late
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(others, 100);
    EXPECT_EQ(service.removals, 0);
    hotKeys.removeGlobalHotkeyMonitor(token);
    EXPECT_EQ(service.removals, 1);
    EXPECT_TRUE(hotKeys.addGlobalHotkeyMonitorWithShortcut(superV, {}).token);
    // The codes of the first would be taken for the A key's, of the second for the V key's.
    for (const std::uint64_t key : {nrShortcut::absentKey, (std::uint64_t{1} << 32) + v}) {
        EXPECT_FALSE(hotKeys.addGlobalHotkeyMonitorWithShortcut({key, controlModifier}, {}).token);
    }
    int told = 0;
    const auto observation = bound.observeStatus([&] { ++told; });
    settings.reset();
    service.answer(service.registered.begin()->first, {HotKeyState::refused, "no"});
    EXPECT_EQ(told, 0);
    registry.reset();
    EXPECT_FALSE(service.hasHandlers());
    EXPECT_TRUE(service.registered.empty());
}

TEST_F(HotKeys, FollowTheStoredShortcut) {
    bound.setGlobalShortcut(superV, "sSort");
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs), "Sort");
    EXPECT_EQ(bound.registeredUserDefaultsHotKeys().at("sSort")->observableKeyPath, "values.sSort");
    const struct {
        storage::PropertyValue stored;
        HotKeyState state;
    } rows[] = {{nrShortcut(v, 0).data(), HotKeyState::refused},
                {storage::PropertyData(7), HotKeyState::none},
                {u"⌃V", HotKeyState::none},
                {nrShortcut(v, optionModifier | shiftModifier).data(), HotKeyState::refused},
                {superC.data(), HotKeyState::active}};
    for (const auto &row : rows) {
        store.set("sSort", row.stored);
        EXPECT_EQ(bound.status("sSort").state, row.state);
        EXPECT_EQ(service.registered.empty(), row.state != HotKeyState::active);
    }
    bound.unregisterGlobalShortcutWithUserDefaultsKey("sSort");
    bound.setGlobalShortcut(superV, "sSort");
    EXPECT_TRUE(service.registered.empty());
}

TEST_F(HotKeys, WhatIsRefusedIsTriedAgain) {
    int told = 0;
    auto observation = bound.observeStatus([&] { ++told; });
    bound.setGlobalShortcut(superV, "sStatistics");
    bound.setGlobalShortcut(superV, "sSort");
    bound.registerGlobalShortcutWithUserDefaultsKey("sStatistics", count(others));
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(runs));
    service.press(v, 0x1000);
    EXPECT_EQ(others, 1); // the first wins
    EXPECT_EQ(bound.status("sSort").text, "another shortcut of this program has the same keys");
    // The other gives its keys back, but not to us.
    service.takenByOthers = {{v, 0x1000}};
    bound.setGlobalShortcut(superC, "sStatistics");
    EXPECT_EQ(bound.status("sSort").text, "another program uses it");
    service.takenByOthers.clear();
    bound.keyboardLayoutChanged();
    EXPECT_EQ(bound.status("sSort"), (platform::HotKeyStatus{HotKeyState::active, {}}));
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 1);
    // Registering a key again replaces its handler.
    bound.registerGlobalShortcutWithUserDefaultsKey("sSort", count(others));
    service.press(v, 0x1000);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(others, 2);

    const auto handle = service.registered.rbegin()->first;
    told = 0;
    service.answer(handle, {HotKeyState::refused, "the user declined"});
    EXPECT_EQ(told, 1);
    EXPECT_EQ(bound.status("sSort").text, "the user declined");
    observation.reset();
    service.answer(handle, {HotKeyState::active, "Super+V"});
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace nerlo::shortcuts
