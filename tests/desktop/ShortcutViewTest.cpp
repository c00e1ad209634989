// The control that records shortcuts, in a window on a real X server; xdotool is the user.
#include "platform/qt/QtMainQueue.h"
#include "platform/x11/SharedConnection.h"
#include "platform/x11/X11HotKeys.h"
#include "platform/x11/X11KeyboardLayout.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/view/nrShortcutView.h"
#include "tests/Process.h"
#include "tests/fakes/MemoryHotKeys.h"
#include "tests/fakes/MemorySettingsStore.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

namespace nerlo::shortcuts {
namespace {

using test::outputOf;
using test::xdotool;

constexpr std::uint64_t v = 9;

struct FixedHotKeys final : platform::SystemHotKeys {
    std::vector<platform::SystemHotKey> symbolicHotKeys() override { return {{118, 0x800}}; }
};

struct Repeats final : QObject {
    bool eventFilter(QObject *, QEvent *event) override {
        count +=
            event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->isAutoRepeat();
        return false;
    }
    int count = 0;
};

class ShortcutView : public testing::Test {
  protected:
    void SetUp() override {
        QApplication::setStyle(QStringLiteral("Fusion"));
        const auto connection = platform::x11::SharedConnection::open(io);
        layout = platform::createX11KeyboardLayout(queue, connection).backend;
        service = platform::createX11HotKeys(queue, connection).backend;
        ASSERT_TRUE(layout && service);
        texts = std::make_unique<ShortcutTexts>(*layout);
        hotKeys = std::make_unique<GlobalHotKeys>(*service);
        bound = std::make_unique<UserDefaultsHotKeys>(store, *hotKeys);
        const ShortcutViewContext context{
            *texts,
            desktop,
            *bound,
            [] {
                return std::vector<MenuItem>{{u"Paste", u"v", commandModifier, {}}};
            },
            [](QWidget *parent, const QString &message, const QString &informative) {
                QMessageBox box(QMessageBox::Critical, {}, message, QMessageBox::Ok, parent);
                box.setInformativeText(informative);
                box.exec();
            },
            [this] { ++beeps; },
            true};
        auto *column = new QVBoxLayout(&window);
        for (const char *key : {"sSort", "sStatistics"}) {
            bound->registerGlobalShortcutWithUserDefaultsKey(
                key, [this, key] { ++runs[key]; }, key);
            auto *view = new nrShortcutView(context, &window);
            view->setAssociatedUserDefaultsKey(key);
            view->setAccessibleName(QString::fromLatin1(key));
            column->addWidget(view);
            views.push_back(view);
        }
        auto *quit = new QAction(&window);
        quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
        QObject::connect(quit, &QAction::triggered, [this] { ++quits; });
        window.addAction(quit);
        window.setWindowTitle(QStringLiteral("Recorders"));
        window.show();
        activate();
    }

    // The window manager drops a request that comes while another window goes.
    void activate() {
        ASSERT_TRUE(test::until([&] {
            window.activateWindow();
            return wait([&] { return window.isActiveWindow(); }, std::chrono::milliseconds(500));
        }));
    }
    bool wait(const std::function<bool()> &done,
              std::chrono::milliseconds limit = std::chrono::seconds(20)) {
        return test::until(
            [&] {
                QApplication::processEvents();
                return done();
            },
            limit);
    }
    static void press(const std::string &keys) { xdotool({"key", keys}); }
    static void point(const nrShortcutView &view, QPoint at) {
        const QPoint global = view.mapToGlobal(at) * view.devicePixelRatio();
        xdotool({"mousemove", std::to_string(global.x()), std::to_string(global.y())});
    }
    static void click(const nrShortcutView &view, QPoint at) {
        point(view, at);
        xdotool({"click", "1"});
    }
    void record(nrShortcutView &view) {
        click(view, view.shortcutRect().center());
        ASSERT_TRUE(wait([&] { return view.recording(); }));
    }
    void record(nrShortcutView &view, const std::string &keys) {
        record(view);
        pressAndEnd(view, keys);
    }
    // These keys end the recording.
    void pressAndEnd(const nrShortcutView &view, const std::string &keys) {
        press(keys);
        ASSERT_TRUE(wait([&] { return !view.recording(); }));
    }
    void leaveWithMouse() { xdotool({"mousemove", "1200", "700"}); }
    std::optional<nrShortcut> stored(const char *key) { return storedShortcut(store, key); }

    platform::QtMainQueue queue;
    platform::IoThread io;
    test::MemorySettingsStore store;
    FixedHotKeys desktop;
    std::unique_ptr<platform::KeyboardLayout> layout;
    std::unique_ptr<platform::HotKeyService> service;
    std::unique_ptr<ShortcutTexts> texts;
    std::unique_ptr<GlobalHotKeys> hotKeys;
    std::unique_ptr<UserDefaultsHotKeys> bound;
    QWidget window;
    std::vector<nrShortcutView *> views;
    std::map<std::string, int> runs;
    int beeps = 0;
    int quits = 0;
};

TEST_F(ShortcutView, RecordsReplacesAndDeletes) {
    auto &view = *views[0];
    EXPECT_EQ(view.title(), "Click to record shortcut");
    EXPECT_EQ(view.buttonGlyph(), "");
    record(view);
    leaveWithMouse();
    EXPECT_EQ(view.title(), "Type shortcut");
    pressAndEnd(view, "super+v");
    EXPECT_EQ(view.title(), "⌃V");
    EXPECT_EQ(view.spokenValue(), "Super+V");
    EXPECT_EQ(stored("sSort"), nrShortcut(v, controlModifier));
    // It works at once.
    ASSERT_TRUE(wait([&] {
        press("super+v");
        return runs["sSort"] > 0;
    }));

    // Its own combination reaches the control while that records.
    record(view);
    const int before = runs["sSort"];
    pressAndEnd(view, "super+v");
    EXPECT_EQ(runs["sSort"], before);

    record(view, "ctrl+shift+F5");
    EXPECT_EQ(view.title(), "⇧⌘F5");

    for (const auto *key : {"BackSpace", "Delete"}) {
        bound->setGlobalShortcut(nrShortcut(v, controlModifier), "sSort");
        record(view, key);
        EXPECT_EQ(view.shortcutValue(), std::nullopt);
        EXPECT_EQ(store.find("sSort"), nullptr);
    }

    bound->setGlobalShortcut(nrShortcut(v, controlModifier), "sSort");
    EXPECT_EQ(view.title(), "⌃V");
    click(view, view.buttonRect().center());
    ASSERT_TRUE(wait([&] { return !view.shortcutValue(); }));
    EXPECT_EQ(store.find("sSort"), nullptr);
    bound->setGlobalShortcut(nrShortcut(v, controlModifier), "sSort");
    store.set("sSort", storage::PropertyData(3)); // no shortcut, but not the control's to remove
    EXPECT_NE(store.find("sSort"), nullptr);
}

TEST_F(ShortcutView, LeavesTheOldValueOnEscapeAndCancel) {
    auto &view = *views[0];
    bound->setGlobalShortcut(nrShortcut(v, controlModifier), "sSort");
    record(view, "Escape");
    EXPECT_EQ(view.title(), "⌃V");
    record(view);
    click(view, {view.buttonRect().left() - 30, view.height() / 2}); // does nothing
    point(view, view.buttonRect().center());
    ASSERT_TRUE(wait([&] { return view.hinting(); }));
    EXPECT_TRUE(view.recording());
    EXPECT_EQ(view.title(), "Use old shortcut");
    EXPECT_EQ(view.buttonGlyph(), "\u238b");
    xdotool({"click", "1"});
    ASSERT_TRUE(wait([&] { return !view.recording(); }));
    EXPECT_EQ(stored("sSort"), nrShortcut(v, controlModifier));
}

TEST_F(ShortcutView, ShowsHeldModifiersAndBeepsAtWhatIsNoShortcut) {
    auto &view = *views[0];
    record(view);
    leaveWithMouse();
    Repeats repeats;
    QCoreApplication::instance()->installEventFilter(&repeats);
    xdotool({"keydown", "shift"});
    ASSERT_TRUE(wait([&] { return view.title() == "⇧"; }));
    ASSERT_TRUE(outputOf({"xset", "r", "rate", "10", "100"}));
    xdotool({"keydown", "a"});
    ASSERT_TRUE(wait([&] { return repeats.count > 3; }));
    xdotool({"keyup", "a", "keyup", "shift"});
    EXPECT_EQ(beeps, 1); // however long it is held
    EXPECT_EQ(view.title(), "Cannot be used");
    press("Caps_Lock");
    xdotool({"keydown", "super"});
    ASSERT_TRUE(wait([&] { return view.title() == "⌃"; }));
    press("Print"); // no key of a shortcut
    ASSERT_TRUE(wait([&] { return view.title() == "Cannot be used"; }));
    xdotool({"keyup", "super"});
    EXPECT_EQ(beeps, 1);
    EXPECT_TRUE(view.recording());
    EXPECT_EQ(view.shortcutValue(), std::nullopt);
}

TEST_F(ShortcutView, RefusesWhatIsTaken) {
    auto &view = *views[0];
    bound->setGlobalShortcut(nrShortcut(v, controlModifier), "sSort");
    bound->setGlobalShortcut(nrShortcut(8, controlModifier), "sStatistics");
    const struct {
        const char *keys;
        const char *named;
        const char *taker;
    } rows[] = {{"ctrl+v", "The key combination \"⌘V\" can't be used", "menu item \"Paste\""},
                {"alt+F4", "The key combination \"⌥F4\" can't be used", "system-wide"},
                {"super+c", "The key combination \"⌃C\" can't be used", "\"sStatistics\""}};
    for (const auto &row : rows) {
        activate();
        if (!view.recording()) {
            record(view);
        }
        QString message;
        QString informative;
        QTimer poll;
        // The alert runs a loop of its own.
        QObject::connect(&poll, &QTimer::timeout, [&] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                message = box->text();
                informative = box->informativeText();
                poll.stop();
                box->accept();
            }
        });
        poll.start(10);
        press(row.keys);
        ASSERT_TRUE(wait([&] { return !message.isEmpty(); }));
        EXPECT_TRUE(message.startsWith(row.named) && message.contains(row.taker));
        EXPECT_EQ(informative.toStdString(), std::string(row.named) + "!");
        EXPECT_TRUE(view.recording());
    }
    activate();
    pressAndEnd(view, "Escape");
    EXPECT_EQ(stored("sSort"), nrShortcut(v, controlModifier));
}

TEST_F(ShortcutView, LetsQuitThrough) {
    record(*views[0]);
    press("ctrl+q");
    ASSERT_TRUE(wait([&] { return quits == 1; }));
    EXPECT_FALSE(views[0]->recording());
}

TEST_F(ShortcutView, OnlyOneRecordsAndOnlyInTheWindowInFront) {
    record(*views[0]);
    record(*views[1]);
    EXPECT_FALSE(views[0]->recording());
    QLineEdit other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(wait([&] { return other.isActiveWindow(); }));
    EXPECT_TRUE(wait([&] { return !views[1]->recording(); }));
    activate();
    record(*views[1]);
    views[1]->setEnabled(false);
    EXPECT_FALSE(views[1]->recording());
    views[1]->setRecording(true);
    EXPECT_FALSE(views[1]->recording());
}

TEST_F(ShortcutView, TakesTheKeyboardAndGivesItBack) {
    const auto other =
        platform::createX11HotKeys(queue, platform::x11::SharedConnection::open(io)).backend;
    int theirs = 0;
    other->installHandler([&](platform::HotKeyId) { ++theirs; });
    const auto taken = other->registerHotKey({v, platform::hotKeyControl, {1, 1}, {}, {}});
    ASSERT_NE(taken.handle, 0u);
    auto &view = *views[0];
    record(view, "super+v"); // though the other program has it
    EXPECT_EQ(theirs, 0);
    ASSERT_TRUE(wait([&] { return !view.warning().isEmpty(); }));
    EXPECT_EQ(view.warning(), "another program has taken this key combination");
    EXPECT_FALSE(view.warningRect().isEmpty());
    leaveWithMouse();
    press("super+v");
    ASSERT_TRUE(wait([&] { return theirs == 1; }));
    record(view);
    const test::Process terminal({"xev", "-name", "Other"});
    xdotool({"search", "--sync", "--onlyvisible", "--name", "Other", "windowactivate", "--sync"});
    ASSERT_TRUE(wait([&] { return !view.recording(); }));
    ASSERT_TRUE(wait([&] {
        press("super+v");
        return theirs > 1;
    }));

    other->unregisterHotKey(taken.handle);
    EXPECT_TRUE(wait([&] {
        bound->retryRefused();
        return view.warning().isEmpty();
    }));
    press("super+v");
    EXPECT_TRUE(wait([&] { return runs["sSort"] == 1; }));
}

TEST_F(ShortcutView, ItsToolTipTellsTheKeysThatTheDesktopChose) {
    test::MemoryHotKeys portal;
    GlobalHotKeys registered(portal);
    UserDefaultsHotKeys keys(store, registered);
    bound->unregisterGlobalShortcutWithUserDefaultsKey("sSort");
    keys.registerGlobalShortcutWithUserDefaultsKey("sSort", {});
    keys.setGlobalShortcut(nrShortcut(16, controlModifier), "sSort");
    layout->setChangedHandler([&] { keys.keyboardLayoutChanged(); });
    nrShortcutView view({*texts, desktop, keys, {}, {}, {}});
    view.setAssociatedUserDefaultsKey("sSort");
    const auto toolTipAt = [&](QPoint at) {
        QHelpEvent help(QEvent::ToolTip, at, view.mapToGlobal(at));
        QApplication::sendEvent(&view, &help);
        return QToolTip::text();
    };
    view.resize(view.sizeHint());
    const QPoint shortcut = view.shortcutRect().center();
    EXPECT_EQ(toolTipAt(shortcut), "Super+Y<br>Click to record shortcut");
    ASSERT_TRUE(outputOf({"setxkbmap", "de"}));
    EXPECT_TRUE(wait([&] { return toolTipAt(shortcut) == "Super+Z<br>Click to record shortcut"; }));
    EXPECT_EQ(view.title(), "⌃Z");
    EXPECT_EQ(toolTipAt(view.buttonRect().center()), "Delete shortcut");
    portal.answer(1, {platform::HotKeyState::active, "Press <Meta>+C"});
    EXPECT_EQ(toolTipAt(shortcut), "Press &lt;Meta&gt;+C<br>Super+Z<br>Click to record shortcut");
    portal.answer(1, {platform::HotKeyState::refused, "it was declined in the desktop's dialog"});
    EXPECT_EQ(toolTipAt(view.warningRect().center()), "it was declined in the desktop's dialog");
    layout->setChangedHandler(nullptr);
}

TEST_F(ShortcutView, WorksByKeyboardAndForScreenReaders) {
    auto &view = *views[0];
    view.setFocus();
    press("space");
    ASSERT_TRUE(wait([&] { return view.recording(); }));
    pressAndEnd(view, "super+c");
    auto *accessible = QAccessible::queryAccessibleInterface(&view);
    ASSERT_TRUE(accessible);
    EXPECT_EQ(accessible->text(QAccessible::Name), "sSort, Super+C");
    EXPECT_EQ(accessible->text(QAccessible::Value), "Super+C");
    auto *actions = accessible->actionInterface();
    ASSERT_TRUE(actions);
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(view.recording());
    EXPECT_EQ(accessible->text(QAccessible::Value), "Type shortcut");
    actions->doAction(QStringLiteral("Delete"));
    EXPECT_FALSE(view.shortcutValue());
    EXPECT_FALSE(view.recording());

    bound->setGlobalShortcut(nrShortcut(8, controlModifier), "sSort");
    press("Delete");
    ASSERT_TRUE(wait([&] { return !view.shortcutValue(); }));
    press("Tab");
    EXPECT_TRUE(wait([&] { return views[1]->hasFocus(); }));
}

} // namespace
} // namespace nerlo::shortcuts

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
