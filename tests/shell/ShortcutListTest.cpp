#include "shell/ShortcutList.h"

#include "shell/PreferencesWindow.h"
#include "tests/shell/ProgramFixture.h"

#include <QListWidget>
#include <QTest>
#include <algorithm>

namespace nerlo::shell {
namespace {

using platform::HotKeyState;
using shortcuts::nrShortcut;

const nrShortcut superV(9, shortcuts::controlModifier);
const nrShortcut superW(13, shortcuts::controlModifier);
const nrShortcut ctrlF5(96, shortcuts::commandModifier);

class Shortcuts : public ProgramFixture {
  protected:
    struct Overview final : platform::SystemHotKeys {
        std::vector<platform::SystemHotKey> symbolicHotKeys() override {
            return {{13, platform::hotKeyControl, "KWin, Overview"}, {96, platform::hotKeyCommand}};
        }
    };
    test::MemoryHotKeys &service = static_cast<test::MemoryHotKeys &>(*desktop.hotKeys.backend);
    ShortcutList &list = program.windows().shortcutList();

    void SetUp() override {
        desktop.systemHotKeys = std::make_unique<Overview>();
        service.takenByOthers = {{13, platform::hotKeyControl}, {96, platform::hotKeyCommand}};
        program.start();
    }
    const ListedCommand &command(const std::string &key) {
        return *std::ranges::find(list.commands(), key, &ListedCommand::hotKey);
    }
    void record(const char *key, const std::optional<nrShortcut> &shortcut) {
        preferences.changeShortcuts([&] { program.hotKeys().setGlobalShortcut(shortcut, key); });
    }
    std::string keys(const char *key) { return list.keys(command(key)).toStdString(); }
};

TEST_F(Shortcuts, NameWhoHasTheKeys) {
    EXPECT_EQ(list.conflict("sSort"), "") << "nothing is stored";
    EXPECT_EQ(list.conflict("sClearFormatingFromClipboard"), "") << "it works";
    const struct {
        nrShortcut shortcut;
        QString conflict;
    } rows[] = {
        {superV, "Super+V: " + command("sClearFormatingFromClipboard").title},
        {superW, "Super+W: KWin, Overview"},
        {ctrlF5, "Ctrl+F5: another program uses it"},
    };
    for (const auto &row : rows) {
        record("sSort", row.shortcut);
        EXPECT_EQ(list.conflict("sSort"), row.conflict);
    }
    record("sSort", superV);
    EXPECT_EQ(list.conflict("sClearFormatingFromClipboard").toStdString(), "Super+V: Sort lines");
    // A desktop that refuses later may say for whom.
    record("sSort", nrShortcut(1, shortcuts::controlModifier));
    service.answer(service.registered.rbegin()->first,
                   {HotKeyState::refused, "taken by Klipper, Menu", "Klipper, Menu"});
    EXPECT_EQ(list.conflict("sSort").toStdString(), "Super+S: Klipper, Menu");
    EXPECT_TRUE(list.matches(command("sSort"), {"klipper", "lines"}));
    EXPECT_FALSE(list.matches(command("sStatistics"), {"klipper"}));
}

TEST_F(Shortcuts, AreResetAndTakenBackAsGestures) {
    preferences.profilesAddingCloseWindow(u"another");
    record("sSort", superW);
    record("sClearFormatingFromClipboard", std::nullopt);
    record("sStatistics", ctrlF5);
    EXPECT_FALSE(list.isAsAtFirst(command("sSort")));
    list.reset(command("sStatistics"));
    EXPECT_TRUE(list.isAsAtFirst(command("sStatistics")));
    list.resetAll();
    EXPECT_EQ(keys("sSort") + keys("sClearFormatingFromClipboard"), "Super+V");
    preferences.profilesSelect(0);
    preferences.undo();
    EXPECT_EQ(keys("sSort") + keys("sClearFormatingFromClipboard"), "Super+W");
    EXPECT_EQ(preferences.selectedItem(), 0) << "that has nothing to do with it";
    preferences.undo();
    EXPECT_EQ(keys("sStatistics"), "Ctrl+F5");
    // What another process has stored since stays.
    program.hotKeys().setGlobalShortcut(superV, "sStatistics");
    preferences.redo();
    preferences.redo();
    EXPECT_EQ(keys("sSort") + keys("sStatistics"), "Super+V");
    preferences.undo();
    EXPECT_EQ(keys("sSort") + keys("sStatistics"), "Super+WSuper+V");
}

TEST_F(Shortcuts, StandInOneListThatIsSearchedAndWalkedByKeys) {
    PreferencesWindow window(program);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto &pages = *window.findChild<QListWidget *>("pageList");
    pages.setCurrentRow(pages.count() - 1);
    const auto recorder = [&](const char *key) {
        return window.findChild<QWidget *>("listed." + QString(key));
    };
    record("sSort", superW);
    window.findChild<QLineEdit *>("search")->setText("super+");
    EXPECT_TRUE(recorder("sClearFormatingFromClipboard")->isVisible());
    EXPECT_FALSE(recorder("sChooseForClipboard")->isVisible());
    recorder("sClearFormatingFromClipboard")->setFocus();
    QTest::keyClick(recorder("sClearFormatingFromClipboard"), Qt::Key_Down);
    EXPECT_TRUE(recorder("sSort")->hasFocus());
    EXPECT_EQ(recorder("sSort")->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(recorder("sClearFormatingFromClipboard")->focusPolicy(), Qt::ClickFocus);
    window.findChild<QAbstractButton *>("reset.sSort")->click();
    EXPECT_EQ(keys("sSort"), "");
    // Profiles are commands too, and come and go.
    preferences.profilesAddingCloseWindow(u"Mail");
    window.profilesChanged();
    record("selectProfile:Mail", superW);
    window.findChild<QLineEdit *>("search")->setText("mail super+w");
    EXPECT_TRUE(recorder("selectProfile:Mail")->isVisible());
    window.findChild<QAbstractButton *>("reset.selectProfile:Mail")->click();
    preferences.profilesRename(preferences.profilesItems()[1].id, u"Post");
    window.profilesChanged();
    EXPECT_FALSE(recorder("selectProfile:Mail"));
    EXPECT_EQ(recorder("selectProfile:Post")->focusPolicy(), Qt::ClickFocus);
    EXPECT_FALSE(window.findChild<QAbstractButton *>("resetShortcuts")->isEnabled())
        << "nothing is left to reset";
}

} // namespace
} // namespace nerlo::shell
