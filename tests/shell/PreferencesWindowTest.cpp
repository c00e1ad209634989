#include "shell/PreferencesWindow.h"

#include "engine/Operations.h"
#include "platform/qt/QtKeys.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "settings/SettingsKeys.h"
#include "shell/Alerts.h"
#include "shell/Doctor.h"
#include "shell/FindReplaceTable.h"
#include "shell/Mnemonics.h"
#include "shell/ProfilesPage.h"
#include "shell/RuleModel.h"
#include "shell/StatusMenu.h"
#include "shell/Strings.h"
#include "shell/TipsWindow.h"
#include "tests/shell/ProgramFixture.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QCompleter>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenuBar>
#include <QMimeData>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <set>

namespace nerlo::shell {
namespace {

using namespace std::chrono_literals;

class Preferences : public ProgramFixture {
  protected:
    std::unique_ptr<PreferencesWindow> window;

    void SetUp() override { open(); }
    // A cell that is being edited ends that while the window goes.
    void TearDown() override {
        setAlertAnswers({});
        preferences.hooks() = {};
        window.reset();
    }

    void open() {
        window = std::make_unique<PreferencesWindow>(program);
        auto &hooks = preferences.hooks();
        hooks.profilesChanged = [this] { window->profilesChanged(); };
        hooks.controlsLoaded = [this] { window->controlsLoaded(); };
        hooks.edited = [this] { window->edited(); };
        hooks.updateUI = [this](settings::RulesUpdate update) { window->updateUI(update); };
        hooks.historyChanged = [this] { window->historyChanged(); };
        window->show();
    }
    template <class Widget>
    Widget &control(const char *name) {
        auto *widget = window->findChild<Widget *>(name);
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    std::int64_t stored(const char *key) {
        const auto *value = preferences.profileSelected().find(key);
        return value ? value->integerValue() : 0;
    }
    void showPage(int page) { control<QListWidget>("pageList").setCurrentRow(page); }
    // Runs the preview to its end.
    QString previewed(const QString &text) {
        window->preview().setBefore(text.toStdU16String());
        queue.advance(1s);
        worker.runAll();
        queue.runPosted();
        return window->preview().after();
    }
};

TEST_F(Preferences, WhatDependsOnABoxIsDimmed) {
    const auto enabled = [&](const char *name) { return control<QWidget>(name).isEnabled(); };
    EXPECT_FALSE(enabled("udSortSeparator"));
    control<QCheckBox>("udSort").click();
    EXPECT_TRUE(enabled("udSortSeparator"));
    EXPECT_FALSE(enabled("udSortCustomSeparator"));
    control<QComboBox>("udSortSeparator").setCurrentIndex(8);
    EXPECT_TRUE(enabled("udSortCustomSeparator"));

    // The fields beside the list of returns: none, one, two.
    auto &returns = control<QComboBox>("udChangeReturnsOption");
    ASSERT_EQ(returns.count(), 10);
    auto &second = control<QLineEdit>("udChangeReturnsCustom2");
    EXPECT_FALSE(enabled("udChangeReturnsCustom1"));
    returns.setCurrentIndex(6);
    EXPECT_TRUE(enabled("udChangeReturnsCustom1"));
    EXPECT_TRUE(second.isHidden());
    returns.setCurrentIndex(9);
    EXPECT_EQ(control<QLineEdit>("udChangeReturnsCustom1").placeholderText(), "[img]");
    EXPECT_EQ(second.placeholderText(), "[/img]");
    EXPECT_FALSE(second.isHidden());

    EXPECT_TRUE(enabled("udStatisticsValue"));
    control<QCheckBox>("udStatisticsDelaySwitcher").click();
    EXPECT_FALSE(enabled("udStatisticsValue"));
}

TEST_F(Preferences, ProfilesAreAddedSwitchedAndRemoved) {
    auto &popup = control<QComboBox>("profilesPopupButton");
    int beginning = 0;
    const auto add = [&](const char *name) {
        setAlertAnswers({{}, [&](const NameQuestion &question) {
                             EXPECT_EQ(question.beginnings.size(), 9);
                             return ChosenName{name, beginning};
                         }});
        control<QPushButton>("addProfile").click();
    };
    add("Mail & more");
    ASSERT_EQ(popup.count(), 2);
    EXPECT_EQ(popup.currentText(), "Mail & more");
    EXPECT_FALSE(control<QCheckBox>("udRemoveBullets").isChecked());
    preferences.profilesSelect(0);
    EXPECT_EQ(popup.currentIndex(), 0);
    EXPECT_TRUE(control<QCheckBox>("udRemoveBullets").isChecked());
    preferences.profilesSelect(1);
    control<QPushButton>("removeProfile").click();
    const auto original = preferences.profileSelected();
    for (beginning = 1; beginning <= 2; ++beginning) {
        add("another");
        EXPECT_EQ(popup.currentText(), "another");
        EXPECT_EQ(stored("udRemoveBullets"), beginning == 1) << "a copy, or a ready one";
        EXPECT_EQ(stored("udProtectStructure"), beginning == 2);
        preferences.profilesSelect(0);
        EXPECT_EQ(preferences.profileSelected(), original);
    }
}

TEST_F(Preferences, TheListOfProfilesIsEditedByKeysButtonsAndFiles) {
    control<QPushButton>("manageProfiles").click();
    auto &list = control<QListWidget>("profilesList");
    ASSERT_TRUE(list.isVisible());
    const auto names = [&] {
        QStringList shown;
        for (int row = 0; row < list.count(); ++row) {
            shown << list.item(row)->text() + (row == list.currentRow() ? "*" : "");
        }
        EXPECT_EQ(list.currentRow(), preferences.selectedItem());
        EXPECT_EQ(list.currentRow(), control<QComboBox>("profilesPopupButton").currentIndex());
        return shown.join(' ').toStdString();
    };
    const auto type = [&](const char *name) {
        const auto editors = list.viewport()->findChildren<QLineEdit *>();
        ASSERT_FALSE(editors.isEmpty());
        QLineEdit *editor = editors.last();
        editor->selectAll();
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, name);
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents(); // the editor ends
        QCoreApplication::processEvents(); // and the name is taken
    };
    control<QPushButton>("duplicateProfile").click();
    EXPECT_EQ(names(), "default default 2*");
    type("");
    EXPECT_EQ(names(), "default default 2*") << "an empty name is none";
    QTest::keyClick(&list, Qt::Key_F2);
    type("work");
    EXPECT_EQ(names(), "default work*");
    QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&list, Qt::Key_Up, Qt::AltModifier); // at the top already
    EXPECT_EQ(names(), "work* default");
    emit static_cast<RowList &>(list).dropped(0, 2);
    EXPECT_EQ(names(), "default work*");
    control<QPushButton>("duplicateProfile").click();
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(names(), "default work* work 2");

    // Another process takes a row away while a name is typed: the name is of no other row.
    QTest::keyClick(&list, Qt::Key_F2);
    preferences.savePending();
    settings::ProfilesFile other(folder / "Data/profiles.nrp");
    auto items = other.load();
    items.erase(items.begin() + 1);
    EXPECT_EQ(other.save(items), "");
    preferences.profilesFileChanged();
    QCoreApplication::processEvents();
    EXPECT_EQ(names(), "default work 2*");

    QTest::keyClick(&list, Qt::Key_Up);
    auto &deleted = control<QWidget>("deleted");
    QTest::keyClick(&list, Qt::Key_Delete);
    EXPECT_EQ(names(), "work 2*");
    EXPECT_EQ(deleted.accessibleName(), "Deleted.");
    auto &restore = *control<QPushButton>("restoreProfile").menu();
    emit restore.aboutToShow();
    ASSERT_EQ(restore.actions().size(), 1);
    restore.actions()[0]->trigger();
    EXPECT_EQ(names(), "work 2* default");
    EXPECT_EQ(deleted.accessibleName(), "Added: default");
    control<QPushButton>("undoDeletion").click();
    EXPECT_EQ(names(), "work 2*");
    EXPECT_TRUE(stored("udRemoveBullets"));
    control<QPushButton>("resetProfile").menu()->actions()[3]->trigger();
    EXPECT_FALSE(stored("udRemoveBullets"));
    EXPECT_TRUE(stored("udRemoveReplyQuotes")) << "the ready one for mails";
    EXPECT_EQ(names(), "work 2*");
}

TEST_F(Preferences, FilesOfProfilesAreDroppedAnywhereAndHostileOnesAreNamed) {
    test::putBytes(folder / "hostile\n\xff.plist", std::string(100, '<'));
    const auto drop = [&](QStringList files, QWidget &on) {
        QStringList told;
        setAlertAnswers({[&](const Alert &alert) {
                             told << alert.informative;
                             return 0;
                         },
                         {}});
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &file : files) {
            urls << QUrl::fromLocalFile(QString::fromStdString(folder / "") + file);
        }
        data.setUrls(urls);
        const QPoint at = on.rect().center();
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&on, &enter);
        EXPECT_EQ(enter.isAccepted(), !files.isEmpty());
        QDropEvent dropped(at, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                           Qt::NoModifier);
        QApplication::sendEvent(&on, &dropped);
        QCoreApplication::processEvents();
        return told.join('\n').toStdString();
    };
    auto &page = *window->findChild<ProfilesPage *>();
    page.exportTo(QString::fromStdString(folder / "mine.plist"));
    EXPECT_EQ(drop({"mine.plist", "gone"}, *window), folder / "gone" + ": not there");
    EXPECT_EQ(preferences.profilesItems().size(), 2U);
    EXPECT_EQ(preferences.selectedItem(), 0) << "a file does not change what is cleaned";
    EXPECT_TRUE(preferences.profilesItems()[1].record.find("udRemoveBullets")->boolValue());
    EXPECT_NE(drop({"hostile\n\xff.plist", ""}, *window), "");
    EXPECT_EQ(drop({}, *window), "");
    EXPECT_EQ(preferences.profilesItems().size(), 2U);
    control<QPushButton>("undoDeletion").click();
    EXPECT_EQ(preferences.profilesItems().size(), 1U);
}

TEST_F(Preferences, RowsOfTheTableOfCopiesAreEditedAndStored) {
    showPage(0);
    auto &list = control<QListWidget>("copyTable");
    const auto rules = [&] { return program.copyRules(); };
    const auto row = [&](int place) {
        return list.item(place)->text() + " -> " + list.item(place)->data(Qt::UserRole).toString();
    };
    ASSERT_EQ(list.count(), 3) << "what is offered";
    EXPECT_EQ(store.find(clipboard::copyTableKey), nullptr);
    EXPECT_EQ(row(0), "Text from a terminal -> Terminal");
    list.item(0)->setCheckState(Qt::Checked);
    EXPECT_TRUE(rules()[0].on);
    control<QPushButton>("addCopyRow").click();
    EXPECT_EQ(row(3), "Any copy -> leave alone");
    QTest::keyClicks(&control<QLineEdit>("copyProgram"), "kate ");
    control<QLineEdit>("copyFormat").setText("text/rtf");
    control<QComboBox>("copyLooks").setCurrentText("Code");
    control<QComboBox>("copyProfile").setCurrentText("Mail (ready)");
    EXPECT_EQ(row(3), "Code, Program: kate, Format: text/rtf -> Mail");
    control<QPushButton>("copyRowUp").click();
    ASSERT_EQ(rules().size(), 4u);
    EXPECT_EQ(rules()[2].program, "kate");
    EXPECT_EQ(rules()[2].profile, u"mail");
    EXPECT_EQ(rules()[2].looks, clipboard::Looks::code);
    EXPECT_FALSE(rules()[2].on);
    control<QPushButton>("removeCopyRow").click();
    EXPECT_EQ(rules().size(), 3u);
    control<QPushButton>("undoDeletion").click();
    ASSERT_EQ(rules().size(), 4u);
    EXPECT_EQ(row(2), "Code, Program: kate, Format: text/rtf -> Mail");
    for (int gestures = 0; gestures < 6; ++gestures) {
        preferences.undo(); // moved, profile, looks, format, program as a whole, added
    }
    EXPECT_EQ(rules().size(), 3u);
    EXPECT_TRUE(rules()[0].on);
    preferences.undo();
    EXPECT_EQ(store.find(clipboard::copyTableKey), nullptr) << "what is offered";
    // Another process stores another table.
    store.set(clipboard::copyTableKey, storage::PropertyArray{});
    EXPECT_EQ(list.count(), 0);
    EXPECT_FALSE(control<QLineEdit>("copyProgram").isEnabled());
}

TEST_F(Preferences, TheSearchFindsAnOptionByAnyOfItsWords) {
    const struct {
        const char *text;
        const char *found; // null for nothing
    } rows[] = {
        {"bullets", "udRemoveBullets"},  {"BREAD milk", "udRemoveBullets"},
        {"reverse", "udSort"},           {"seconds close", "udStatistics"},
        {"uppercase", "udChangeCaseTo"}, {"rejoin", "udChangeWrongInsertedReturnsTo"},
        {"xylophone", nullptr},          {"bullets xylophone", nullptr},
    };
    showPage(0);
    for (const auto &row : rows) {
        control<QLineEdit>("search").setText(row.text);
        EXPECT_EQ(control<QLabel>("nothingFound").isHidden(), row.found != nullptr) << row.text;
        if (row.found) {
            EXPECT_TRUE(control<QCheckBox>(row.found).isVisible()) << row.text;
            EXPECT_TRUE(control<QCheckBox>(row.found).parentWidget()->autoFillBackground());
        }
    }
    control<QLineEdit>("search").clear();
    EXPECT_FALSE(control<QCheckBox>("udSort").parentWidget()->autoFillBackground());
    EXPECT_EQ(control<QListWidget>("pageList").currentRow(), 0);
    EXPECT_TRUE(control<QCheckBox>("automatic").isVisible());
}

TEST_F(Preferences, TheTabKeyGoesFromThePagesToTheOptionsToThePreview) {
    showPage(1);
    QStringList stops;
    auto *next = &control<QWidget>("pageList");
    for (; next->objectName() != "previewBefore"; next = next->nextInFocusChain()) {
        ASSERT_NE(next, window.get()) << "the preview comes before the options";
        stops += next->objectName();
    }
    EXPECT_TRUE(stops.contains("udRemoveAllTabs"));
}

class Rules : public Preferences {
  protected:
    void SetUp() override {
        Preferences::SetUp();
        showPage(rulesPage);
        table().setFocus();
        while (rows() > 0) {
            preferences.selectedRow(0);
            preferences.deleteFindReplace();
        }
    }
    static constexpr int rulesPage = 7;
    RuleTable &table() { return control<RuleTable>("findTableView"); }
    QAbstractItemModel &model() { return *table().model(); }
    int rows() { return model().rowCount(); }
    QModelIndex cell(int row, int column) { return model().index(row, column); }
    QString shown(int row, int column) { return cell(row, column).data().toString(); }
    std::u16string stored(int row, const char *key) {
        return settings::FindReplaceList::textOf(
            preferences.findReplaceList().items().at(static_cast<std::size_t>(row)), key);
    }
    // The editor that is open.
    template <class Editor>
    Editor &editor() {
        const auto editors = table().viewport()->findChildren<Editor *>();
        EXPECT_FALSE(editors.isEmpty());
        return *editors.last();
    }
    // Ends what is edited, once the key has been dealt with.
    void press(Qt::Key key, QWidget &in) {
        QTest::keyClick(&in, key);
        QCoreApplication::processEvents();
    }
    QString finds() {
        QString all;
        for (int row = 0; row < rows(); ++row) {
            all += shown(row, RuleModel::find);
        }
        return all;
    }
    void add(const std::vector<settings::TravelRule> &rules) {
        preferences.pasteRules({u"", rules});
    }
    bool told(int row) { return !cell(row, RuleModel::found).data(Qt::DecorationRole).isNull(); }
    QString state() { return control<QLabel>("ruleState").text(); }
};

TEST_F(Rules, AreAddedEditedMovedAndDeletedByKeyboard) {
    for (const char *find : {"a", "b", "c"}) {
        control<QPushButton>("addRule").click();
        editor<QLineEdit>().selectAll();
        QTest::keyClicks(&editor<QLineEdit>(), find);
        press(Qt::Key_Return, editor<QLineEdit>());
    }
    table().setCurrentIndex(cell(2, RuleModel::replace));
    QTest::keyClicks(&table(), "n");
    QTest::keyClicks(&editor<QLineEdit>(), "ew");
    EXPECT_EQ(stored(2, "replace"), u"new");
    press(Qt::Key_Return, editor<QLineEdit>());
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(finds(), "acb");
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(&table(), Qt::Key_Up, Qt::AltModifier); // at the top already
    EXPECT_EQ(finds(), "cab");
    QTest::keyClick(&table(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(finds(), "acb");
    EXPECT_EQ(stored(1, "replace"), u"new");
    // What is typed into a row counts at once, and Escape takes it back.
    table().edit(cell(2, RuleModel::find));
    QTest::keyClick(&editor<QLineEdit>(), Qt::Key_Home);
    QTest::keyClicks(&editor<QLineEdit>(), "xy");
    EXPECT_EQ(stored(2, "find"), u"xyb");
    press(Qt::Key_Escape, editor<QLineEdit>());
    EXPECT_EQ(stored(2, "find"), u"b");
    table().setCurrentIndex(cell(0, RuleModel::on));
    QTest::keyClick(&table(), Qt::Key_Space);
    EXPECT_FALSE(settings::FindReplaceList::isOn(preferences.findReplaceList().items()[0]));
    emit table().dropped(0, 3);
    EXPECT_EQ(finds(), "cba");
    // The new order is saved without any other edit.
    queue.advance(1s);
    EXPECT_NE(preferences.profileSelected().find("sFindAndReplaceItemsProfile"), nullptr);
    table().setCurrentIndex(cell(1, RuleModel::find));
    QTest::keyClick(&table(), Qt::Key_Delete);
    EXPECT_EQ(finds(), "ca");
    // What was deleted is offered back, as long as nothing else is done.
    auto &deleted = control<QWidget>("deleted");
    EXPECT_TRUE(deleted.isVisible());
    control<QPushButton>("undoDeletion").click();
    EXPECT_FALSE(deleted.isVisible());
    EXPECT_EQ(finds(), "cba");
    const auto spoken = [&](int column) {
        return cell(0, column).data(Qt::AccessibleTextRole).toString();
    };
    EXPECT_TRUE(spoken(RuleModel::on).endsWith(": c")); // which rule
    EXPECT_NE(spoken(RuleModel::replace), "");
    // The next one is selected, down to the last.
    for (int left = rows(); left > 0; --left) {
        EXPECT_EQ(rows(), left);
        QTest::keyClick(&table(), Qt::Key_Delete);
    }
    EXPECT_EQ(rows(), 0);
}

TEST_F(Rules, KindsStandForTheTokensOfTheStoredText) {
    add({{true, u"a", u"{search}, ", {}}, {true, u"(b)", u"x{delete}", {}}});
    EXPECT_EQ(shown(0, RuleModel::kind), localized("sRuleKindKeep"));
    EXPECT_EQ(shown(0, RuleModel::replace), ", ");
    EXPECT_EQ(shown(1, RuleModel::kind), localized("sRuleKindText"));
    EXPECT_EQ(shown(1, RuleModel::replace), "x{delete}");
    table().edit(cell(1, RuleModel::kind));
    QTest::keyClick(&editor<QComboBox>(), Qt::Key_Down);
    EXPECT_EQ(stored(1, "replace"), u"{delete}x{delete}");
    press(Qt::Key_Escape, editor<QComboBox>());
    EXPECT_EQ(stored(1, "replace"), u"x{delete}");
    // A token that is typed becomes the kind.
    table().edit(cell(1, RuleModel::replace));
    editor<QLineEdit>().selectAll();
    QTest::keyClicks(&editor<QLineEdit>(), "{delete}");
    EXPECT_EQ(shown(1, RuleModel::kind), localized("sRuleKindReplace"));
    EXPECT_EQ(editor<QLineEdit>().text(), "");
    press(Qt::Key_Return, editor<QLineEdit>());
    // The groups of the pattern are offered.
    table().edit(cell(1, RuleModel::replace));
    QTest::keyClicks(&editor<QLineEdit>(), "<$");
    QCompleter &groups = *editor<QLineEdit>().findChild<QCompleter *>();
    EXPECT_EQ(groups.completionCount(), 2);
    QTest::keyClick(groups.popup(), Qt::Key_Down);
    QTest::keyClick(groups.popup(), Qt::Key_Return);
    EXPECT_EQ(stored(1, "replace"), u"{delete}<$1");
}

TEST_F(Rules, SayWhatIsWrongWithThem) {
    add({{true, u"x", u"", {}}, {true, u"ab(c", u"y", {}}});
    EXPECT_FALSE(told(1));
    preferences.selectedRow(1);
    model().setData(cell(1, RuleModel::kind), int(engine::RuleKind::replaceMatches));
    EXPECT_TRUE(told(1));
    table().setCurrentIndex(cell(1, RuleModel::find));
    EXPECT_EQ(state(), filled(localized("sRulePatternAt"), {"4"}));
    model().setData(cell(1, RuleModel::find), "c");
    EXPECT_FALSE(told(1));
    // So does a rule that the last clean left out, until it is changed.
    window->setReport({{2, engine::PatternFailure::Why::GivenUp, {}}});
    EXPECT_TRUE(told(1));
    EXPECT_FALSE(told(0));
    EXPECT_EQ(state(), localized("sRuleLeftOut"));
    model().setData(cell(1, RuleModel::find), "cc");
    EXPECT_FALSE(told(1));
    window->setReport({});
    // What the preview finds is told beside each rule.
    previewed("x cc x");
    EXPECT_EQ(shown(0, RuleModel::found), "2");
    EXPECT_EQ(shown(1, RuleModel::found), "1");
    EXPECT_EQ(state(), filled(localized("sRuleFinds"), {"1"}));
    model().setData(cell(1, RuleModel::find), "z");
    EXPECT_EQ(shown(1, RuleModel::found), "") << "it is no longer what was tried";
    previewed("x cc x");
    EXPECT_EQ(state(), localized("sRuleFindsNothing"));
}

TEST_F(Rules, KeepSamplesThatAreTriedAtEachEdit) {
    add({{true, u"(\\d+) EUR", u"{delete}$1 €", {}}});
    previewed(u"5 EUR\n7 EUR"_qs);
    auto &samples = control<QTableWidget>("ruleSamples");
    control<QPushButton>("addSample").click(); // from the preview
    ASSERT_EQ(samples.rowCount(), 2);
    EXPECT_EQ(samples.item(0, 1)->text(), u"5 €"_qs);
    EXPECT_EQ(settings::samplesOf(preferences.findReplaceList().items()[0]),
              (std::vector<settings::RuleSample>{{u"5 EUR", u"5 €"}}));
    samples.item(1, 0)->setText("x");
    samples.item(1, 1)->setText("y");
    ASSERT_EQ(samples.rowCount(), 3) << "one more to be filled in";
    const auto broken = [&](int row) { return samples.item(row, 0)->background() != QBrush(); };
    previewed("5 EUR");
    EXPECT_FALSE(broken(0));
    EXPECT_TRUE(broken(1));
    EXPECT_TRUE(told(0));
    EXPECT_EQ(state(), filled(localized("sRuleSampleBroken"), {"2", isolated("x")}));
    samples.setCurrentCell(1, 0);
    QTest::keyClick(&samples, Qt::Key_Delete);
    model().setData(cell(0, RuleModel::replace), "$1 euro");
    previewed("5 EUR");
    EXPECT_TRUE(broken(0));
    preferences.undo();
    previewed("5 EUR");
    EXPECT_FALSE(told(0));
    EXPECT_EQ(samples.rowCount(), 2);
}

TEST_F(Rules, TravelByFileAndByClipboard) {
    add({{true, u"a", u"1", {{u"a", u"1"}}}, {true, u"b", u"2", {}}});
    table().setCurrentIndex(cell(0, RuleModel::find));
    table().copy();
    finishWork();
    EXPECT_TRUE(QString::fromStdString(pasteboard.bytes("text/plain")).startsWith("nerlo-rules 1"));
    table().setCurrentIndex(cell(1, RuleModel::find));
    table().paste();
    finishWork();
    EXPECT_EQ(finds(), "aba");
    EXPECT_EQ(settings::samplesOf(preferences.findReplaceList().items()[2]).size(), 1U);
    pasteboard.copyText("no rules");
    table().paste();
    finishWork();
    EXPECT_EQ(state(), localized("sRulePasteNothing"));
    EXPECT_EQ(rows(), 3);

    // A list that comes along is shown before it is taken.
    QAction *starter =
        window->findChild<QMenu *>("ruleListsMenu")->findChild<QAction *>("starterList");
    for (const bool wanted : {false, true}) {
        QTimer::singleShot(0, window.get(), [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->findChild<QTableWidget *>("importPlan")->item(0, 0)->text(),
                      localized("sRuleAdded"));
            wanted ? dialog->accept() : dialog->reject();
        });
        starter->trigger();
        EXPECT_EQ(rows() > 3, wanted);
    }
    preferences.undo();
    EXPECT_EQ(finds(), "aba");
}

TEST_F(Rules, TheMenuUndoesWhereTheKeyboardIs) {
    StatusMenu menu(program);
    menu.fillMenuBar(*window->menuBar());
    const auto edit = window->menuBar()->actions()[2]->menu()->actions();
    QAction &undo = *edit[0];
    QAction &redo = *edit[1];
    QApplication::setActiveWindow(window.get());
    add({{true, u"a", u"", {}}});
    table().setFocus();
    undo.trigger();
    EXPECT_EQ(rows(), 0);
    redo.trigger();
    EXPECT_EQ(rows(), 1);
    // A field takes back what was typed into it, and then what was done elsewhere.
    auto &search = control<QLineEdit>("search");
    search.setFocus();
    QTest::keyClicks(&search, "list");
    undo.trigger();
    EXPECT_EQ(search.text(), "");
    EXPECT_EQ(rows(), 1);
    undo.trigger();
    EXPECT_EQ(rows(), 0);
}

TEST_F(Preferences, APatternThatIsNoneIsToldWhereItIsTyped) {
    auto &field = control<QLineEdit>("udInsertYourPatternTextField");
    const QString description = field.accessibleDescription();
    field.setText("[0-9");
    EXPECT_TRUE(field.accessibleDescription().endsWith('\n' + description));
    EXPECT_TRUE(field.actions().front()->isVisible());
    field.setText("[0-9]");
    EXPECT_EQ(field.accessibleDescription(), description);
    EXPECT_FALSE(field.actions().front()->isVisible());
    window->setReport({engine::PatternFailure{}}); // of the pattern of one's own
    EXPECT_TRUE(field.actions().front()->isVisible());
    window->setReport({});
    EXPECT_FALSE(field.actions().front()->isVisible());
}

TEST_F(Preferences, ThePreviewFollowsTheOptionsAndLeavesTheClipboardAlone) {
    EXPECT_EQ(previewed(u"a\u00a0b  c"_qs), u"a\u00a0b c"_qs);
    control<QCheckBox>("udAddSuffix").click();
    control<QLineEdit>("udSuffixTextField").setFocus();
    QTest::keyClicks(&control<QLineEdit>("udSuffixTextField"), "!");
    EXPECT_EQ(previewed("x"), "x!");
    EXPECT_EQ(window->preview().marked(), (std::vector<TextSpan>{{1, 1}}));

    // A mark tells which step made it, and a click on it leads to its option.
    EXPECT_EQ(window->preview().reasonsAt(1), localized("sAddSuffix"));
    EXPECT_EQ(window->preview().reasonsAt(0), "");
    auto &after = control<QPlainTextEdit>("previewAfter");
    QTextCursor place(after.document());
    place.setPosition(1);
    const QPoint mark = after.cursorRect(place).center() + QPoint(2, 0);
    showPage(0);
    EXPECT_FALSE(control<QCheckBox>("udAddSuffix").isVisible());
    QTest::mouseClick(after.viewport(), Qt::LeftButton, Qt::NoModifier, mark);
    EXPECT_TRUE(control<QCheckBox>("udAddSuffix").isVisible());
    EXPECT_EQ(pasteboard.log, std::vector<std::string>{});
    pasteboard.copyText("from  there");
    control<QPushButton>("previewTake").click();
    finishWork();
    EXPECT_EQ(control<QPlainTextEdit>("previewBefore").toPlainText(), "from  there");
    control<QPushButton>("previewApply").click();
    finishWork();
    EXPECT_EQ(pasteboard.bytes("UTF8_STRING"), "from there!");
    // As an accessibility tool sets it.
    control<QLineEdit>("udSuffixTextField").setText("?");
    EXPECT_EQ(previewed("x"), "x?");
}

TEST_F(Preferences, AStepOfThePreviewIsShownAlone) {
    auto &steps = control<QTreeWidget>("previewSteps");
    auto &typed = control<QPlainTextEdit>("previewBefore");
    auto &shown = control<QPlainTextEdit>("previewShownBefore");
    const auto rows = [&] {
        QStringList all;
        for (int row = 0; row < steps.topLevelItemCount(); ++row) {
            all += steps.topLevelItem(row)->text(0) + " " + steps.topLevelItem(row)->text(1);
        }
        return all;
    };
    const auto choose = [&](int row) { steps.setCurrentItem(steps.topLevelItem(row)); };
    EXPECT_EQ(previewed(" \u2022 a  b  c"), "a b c");
    EXPECT_EQ(rows(), QStringList({"All steps 3", "Trim both ends of the text 1",
                                   "Remove bullets 1", "Multiple spaces to one space 2"}));
    choose(3);
    EXPECT_EQ(shown.toPlainText(), "a  b  c");
    EXPECT_FALSE(typed.isVisible());
    EXPECT_EQ(window->preview().after(), "a b c");
    EXPECT_EQ(window->preview().marked().size(), 0u);
    choose(2);
    EXPECT_EQ(window->preview().after(), "a  b  c");
    const auto click = [&](int row) {
        QTest::mouseClick(steps.viewport(), Qt::LeftButton, {},
                          steps.visualItemRect(steps.topLevelItem(row)).center());
    };
    click(3);
    EXPECT_EQ(window->preview().after(), "a b c");
    // It stays chosen as long as it changes something.
    control<QCheckBox>("udRemoveBullets").click();
    control<QCheckBox>("udAddSuffix").click();
    control<QLineEdit>("udSuffixTextField").setText("  !");
    queue.advance(1s);
    finishWork();
    EXPECT_EQ(window->preview().after(), u"\u2022 a b c"_qs);
    EXPECT_EQ(rows().size(), 4);
    EXPECT_EQ(steps.currentItem()->text(0), "Multiple spaces to one space");
    click(2);
    EXPECT_EQ(steps.currentItem()->text(0), "All steps") << "chosen again";
    EXPECT_TRUE(typed.isVisible());
    EXPECT_EQ(window->preview().after(), u"\u2022 a b c  !"_qs);
    choose(3);
    EXPECT_EQ(window->preview().reasonsAt(7), "Add a suffix");
    QTest::keyClick(&steps, Qt::Key_Escape);
    EXPECT_EQ(steps.currentItem()->text(0), "All steps");

    // What takes the tags before their turn comes is told.
    const auto &note = control<QLabel>("previewNote");
    control<QCheckBox>("udRemoveHTMLTags").click();
    previewed("a > b");
    EXPECT_TRUE(note.isHidden());
    previewed("<b>a</b>");
    EXPECT_TRUE(note.text().startsWith(u"“Remove reply marks” took"_qs))
        << note.text().toStdString();
    control<QCheckBox>("udRemoveReplyQuotes").click();
    EXPECT_EQ(previewed("<b>a</b>"), "a  !");
    EXPECT_TRUE(note.isHidden());
}

TEST_F(Preferences, OfALongTextTheChangedPartsAreShown) {
    auto &typed = control<QPlainTextEdit>("previewBefore");
    auto &shown = control<QPlainTextEdit>("previewShownBefore");
    auto &clear = control<QPushButton>("previewClear");
    std::string text;
    for (int line = 0; line < 10'000; ++line) {
        text += line == 4'500 ? "one  gap.\n" : "none.\n";
    }
    pasteboard.copyText(text);
    control<QPushButton>("previewTake").click();
    finishWork();
    queue.advance(1s);
    // Newer input ends what it finds under way, and only the last is shown.
    control<QCheckBox>("udAddPrefix").click();
    control<QLineEdit>("udPrefixTextField").setText("late ");
    queue.advance(1s);
    EXPECT_EQ(worker.size(), 1u);
    worker.runAll();
    queue.runPosted();
    EXPECT_EQ(worker.size(), 1u);
    EXPECT_EQ(window->preview().after(), "") << "the first was ended before it began";
    finishWork();
    EXPECT_FALSE(typed.isVisible());
    EXPECT_TRUE(shown.toPlainText().contains("\none  gap.\n")) << shown.toPlainText().size();
    EXPECT_TRUE(window->preview().after().startsWith("late none."));
    EXPECT_TRUE(window->preview().after().contains(u"\n⋯ lines without changes: 4,497\n"_qs));
    EXPECT_LT(window->preview().after().size(), 200);
    clear.click();
    EXPECT_TRUE(typed.isVisible());
    EXPECT_FALSE(clear.isVisible());
    // Pasting does not lay it out either.
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    typed.setPlainText("ab");
    typed.moveCursor(QTextCursor::End);
    typed.paste();
    EXPECT_FALSE(typed.isVisible());
    queue.advance(1s);
    finishWork();
    EXPECT_TRUE(window->preview().after().startsWith("late abnone."));
}

TEST_F(Preferences, ANarrowWindowHasThePreviewBelowTheOptions) {
    const QWidget &options = control<QStackedWidget>("pages");
    const QWidget &preview = window->preview();
    const auto place = [&](const QWidget &widget) {
        return QRect(widget.mapTo(window.get(), QPoint()), widget.size());
    };
    for (const int width : {1080, 800, 1080}) {
        window->resize(width, 600);
        QCoreApplication::processEvents();
        EXPECT_EQ(window->width(), width);
        EXPECT_FALSE(place(options).intersects(place(preview)));
        EXPECT_EQ(place(preview).top() > place(options).bottom(), width == 800);
        EXPECT_TRUE(window->rect().contains(place(preview)));
        EXPECT_GT(options.height(), 250);
    }
}

TEST_F(Preferences, HeightAndPageAreRemembered) {
    window->resize(window->width(), 577);
    showPage(4);
    window->close();
    open();
    EXPECT_EQ(window->height(), 577);
    EXPECT_EQ(control<QListWidget>("pageList").currentRow(), 4);
    store.set(PreferencesWindow::heightKey, 5000); // of a screen that is gone
    open();
    EXPECT_LE(window->height(), window->screen()->availableSize().height());
    store.set(PreferencesWindow::heightKey, -5);
    store.set(PreferencesWindow::pageKey, 99);
    open();
    EXPECT_GT(window->height(), 300);
    EXPECT_EQ(control<QListWidget>("pageList").currentRow(), 0);
}

// Each object of the accessibility tree that a person can act on has a name, fields one of their
// own, and no description has markup.
void expectNames(QAccessibleInterface *object, std::multiset<QString> &fields, int &checked) {
    ASSERT_NE(object, nullptr);
    const auto state = object->state();
    const auto role = object->role();
    const bool control = role == QAccessible::CheckBox || role == QAccessible::ComboBox ||
                         role == QAccessible::Button || role == QAccessible::EditableText ||
                         role == QAccessible::SpinBox || role == QAccessible::List;
    // The parts of a compound control belong to its name.
    const auto *parent = object->parent();
    const bool part = parent && (parent->role() == QAccessible::ComboBox ||
                                 parent->role() == QAccessible::SpinBox ||
                                 parent->role() == QAccessible::EditableText);
    if (control && !part && !state.invisible) {
        ++checked;
        const QString name = object->text(QAccessible::Name);
        if (role == QAccessible::EditableText) {
            fields.insert(name);
            EXPECT_EQ(fields.count(name), 1u) << name.toStdString();
        }
        EXPECT_FALSE(object->text(QAccessible::Description).contains("</p>")) << name.toStdString();
        EXPECT_FALSE(name.isEmpty())
            << (object->object() ? object->object()->objectName().toStdString() : "?");
    }
    for (int i = 0; i < object->childCount(); ++i) {
        expectNames(object->child(i), fields, checked);
    }
}

TEST_F(Preferences, EveryControlHasANameAToolTipAndNoTwoALetter) {
    StatusMenu menu(program);
    menu.fillMenuBar(*window->menuBar());
    window->assignLetters();
    for (int page = 0; page < control<QListWidget>("pageList").count(); ++page) {
        showPage(page);
        int checked = 0;
        std::multiset<QString> fields;
        expectNames(QAccessible::queryAccessibleInterface(window.get()), fields, checked);
        EXPECT_GT(checked, 10);
        std::set<QChar> letters;
        for (const QAction *action : window->menuBar()->actions()) {
            letters.insert(action->text()[action->text().indexOf('&') + 1].toLower());
        }
        for (auto *widget : window->findChildren<QWidget *>()) {
            const auto *button = qobject_cast<QAbstractButton *>(widget);
            if (!button || !button->isVisible() || button->text().isEmpty()) {
                continue;
            }
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->text().toStdString();
            const auto at = button->text().indexOf('&');
            EXPECT_TRUE(at < 0 || letters.insert(button->text()[at + 1].toLower()).second)
                << button->text().toStdString();
        }
    }
}

TEST(Strings, EveryOptionAndOperationHasItsTexts) {
    const auto expectText = [](const std::string &key) {
        EXPECT_NE(localized(key).toStdString(), key);
    };
    for (const PreferencesPage &page : preferencesPages()) {
        expectText(page.title);
        for (const OptionRow &row : page.rows) {
            expectText(titleKey(row));
            expectText(tooltipKey(row.key));
            for (const std::string &key : row.dependents) {
                expectText(labelKey(key));
                expectText(tooltipKey(key));
            }
        }
    }
    for (const engine::Operation &operation : engine::operations()) {
        expectText(commandText(operation.hotKey));
    }
    EXPECT_EQ(filled("%@ is %@", {"%@", "b"}), "%@ is b");
}

TEST(Mnemonics, LettersAreSharedOut) {
    std::set<QChar> used{'s'};
    // The first gives its letter to the third, which has no other.
    EXPECT_EQ(withMnemonics({"Sort lines", "Lines", "LL", "R&D", "行", "…", "S"}, used),
              QStringList({"S&ort lines", "L&ines", "&LL", "&R&&D", "行 (&A)", "… (&B)", "S"}));
    // A line under a joined letter would break the word.
    EXPECT_EQ(withMnemonics({"إزالة", "حالة"}, used), QStringList({"&إزالة", "حالة (&C)"}));
}

const LeftOutWords words{"%@ lines", "%@ characters", "%@ changes", QLocale("en_US")};

// What is shown, with "[" and "]" around what is marked and "{" and "}" around what was left out.
QString drawn(const ShownText &shown) {
    QString text = shown.text;
    std::map<std::size_t, QString> marks;
    const auto mark = [&](const std::vector<TextSpan> &spans, const char *begin, const char *end) {
        for (const TextSpan &span : spans) {
            marks[span.start] += begin;
            marks[span.start + span.length].prepend(end);
        }
    };
    mark(shown.marked, "[", "]");
    mark(shown.leftOut, "{", "}");
    for (auto at = marks.rbegin(); at != marks.rend(); ++at) {
        text.insert(static_cast<qsizetype>(at->first), at->second);
    }
    return text;
}

// Each unit that is shown stands there.
void expectPlaces(const ShownText &shown, std::u16string_view text) {
    for (std::size_t at = 0; at < static_cast<std::size_t>(shown.text.size()); ++at) {
        const QChar unit = shown.text[static_cast<qsizetype>(at)];
        const bool inText = std::ranges::none_of(shown.leftOut, [&](const TextSpan &span) {
            return span.start <= at && at < span.start + span.length;
        });
        const std::size_t place = shown.placeOf(at);
        ASSERT_EQ(place != ShownText::nowhere, inText) << at;
        if (inText) {
            ASSERT_LT(place, text.size());
            ASSERT_EQ(text[place] == u'\r' ? QChar(u'\n') : QChar(text[place]), unit) << at;
        }
    }
}

TEST(ShownChanges, AreAllOfAShortTextAndTheChangedPartsOfALongOne) {
    const std::u16string lines = u"b\r\n"_qs.repeated(30'000).toStdU16String();
    const std::u16string line = u"\U0001f600"_qs.repeated(60'000).toStdU16String();
    const struct {
        const char *shows;
        std::u16string before, after;
        QString shownBefore, shownAfter;
    } rows[] = {
        {"nothing", u"", u"", "", ""},
        {"all of it", u"a  b\r\nc\r", u"a b\nc", "a [ ]b\nc[\n]", "a b\nc"},
        {"parts", lines + u"x\r\n" + lines + u"y", lines + u"z\r\n" + lines + u"w",
         "{29,999 lines\n}b\n[x]\nb\n{29,998 lines\n}b\n[y]",
         "{29,999 lines\n}b\n[z]\nb\n{29,998 lines\n}b\n[w]"},
        {"a long change", u"", line, "",
         "[" + u"\U0001f600"_qs.repeated(1000) + "]{116,000 characters}[" +
             u"\U0001f600"_qs.repeated(1000) + "]"},
        {"inside a line", line + u"x", line,
         "{119,600 characters}" + u"\U0001f600"_qs.repeated(200) + "[x]",
         "{119,600 characters}" + u"\U0001f600"_qs.repeated(200)},
    };
    for (const auto &row : rows) {
        const ShownChanges shown = shownChanges(
            row.before, row.after, text::differenceOf(row.before, row.after, 100), words);
        EXPECT_EQ(drawn(shown.before), row.shownBefore) << row.shows;
        EXPECT_EQ(drawn(shown.after), row.shownAfter) << row.shows;
        expectPlaces(shown.before, row.before);
        expectPlaces(shown.after, row.after);
    }
    // Neither the size nor the number of changes makes it longer.
    const std::u16string spaces = u"a  "_qs.repeated(100'000).toStdU16String();
    const std::u16string fewer = u"a "_qs.repeated(100'000).toStdU16String();
    const text::Difference difference = text::differenceOf(spaces, fewer, 100'000);
    const ShownChanges shown = shownChanges(spaces, fewer, difference, words);
    EXPECT_LT(shown.before.text.size(), 11'000);
    EXPECT_EQ(shown.changes, difference.count);
    EXPECT_TRUE(shown.after.text.endsWith(" changes\n"));
    expectPlaces(shown.before, spaces);
    EXPECT_TRUE(shownChanges(lines, lines, {}, words).after.text.startsWith("b\nb\nb\n"));
}

using Menu = ProgramFixture;

QMenu *submenuOf(StatusMenu &menu, const char *name) {
    const auto actions = menu.menu().actions();
    const auto found = std::ranges::find_if(actions, [&](const QAction *action) {
        return action->menu() && action->menu()->objectName() == name;
    });
    return found == actions.end() ? nullptr : (*found)->menu();
}

TEST_F(Menu, ItemsProfilesAndKeys) {
    StatusMenu menu(program);
    menu.setProfiles({"A", "A", "R&D", "a_b & c & d"}, 1);
    auto *profiles = submenuOf(menu, "profilesMenu");
    ASSERT_TRUE(profiles);
    ASSERT_EQ(profiles->actions().size(), 4);
    EXPECT_TRUE(profiles->actions()[1]->isChecked());
    EXPECT_EQ(profiles->actions()[2]->text(), "R&&D");
    EXPECT_EQ(profiles->actions()[3]->text(), "a_b && c && d");
    menu.setShownOverBus(true);
    EXPECT_EQ(profiles->actions()[2]->text(), "R&&D");
    EXPECT_EQ(profiles->actions()[3]->text(), "a__b && c & d");
    auto *operations = submenuOf(menu, "operationsMenu");
    EXPECT_EQ(operations->findChildren<QAction *>(QRegularExpression("^operation")).size(),
              static_cast<qsizetype>(engine::operations().size()));
    const auto result = [&](QAction &action) {
        pasteboard.copyText("b  b\na");
        action.trigger();
        finishWork();
        return pasteboard.bytes("UTF8_STRING");
    };
    auto &sort = *operations->findChild<QAction *>("operation23");
    EXPECT_EQ(sort.text(), "Sort lines");
    EXPECT_EQ(operations->findChild<QAction *>("operation25")->text(), "Count the clipboard");
    EXPECT_EQ(result(sort), "a\nb  b");
    auto &clean = *menu.findChild<QAction *>("clean");
    EXPECT_EQ(result(clean), "b b a");
    const auto &restore = *menu.findChild<QAction *>("restore");
    menu.setRestorable(QString("R&D"));
    EXPECT_EQ(restore.text(), "Restore “R&&D”");
    menu.setRestorable({});
    EXPECT_FALSE(restore.isEnabled());
    menu.setCleanShortcut(QKeySequence("Meta+V"));
    EXPECT_EQ(clean.shortcut(), QKeySequence("Meta+V"));
    const auto items = menu.mainMenu();
    EXPECT_EQ(items[1].keyEquivalent, u"q");
    EXPECT_EQ(items[1].modifierMask, 0x100000u);
}

TEST_F(Menu, AProfileHasAShortcutThatFollowsItsName) {
    program.start();
    preferences.profilesImport(
        {{{"profileName", u"Mail\t&\n1"}}, {{"profileName", u"Mail\t&\n1"}}});
    const shortcuts::nrShortcut shortcut(46, shortcuts::controlModifier); // M
    program.hotKeys().setGlobalShortcut(shortcut, settings::profileHotKey(u"Mail\t&\n1"));
    const auto shown = [&] {
        QString texts;
        for (const QAction *action :
             submenuOf(program.windows().menu(), "profilesMenu")->actions()) {
            texts += action->text() + (action->isChecked() ? "*" : "") +
                     action->shortcut().toString() + ' ';
        }
        return texts.toStdString();
    };
    const auto press = [&] {
        auto &keys = static_cast<test::MemoryHotKeys &>(*desktop.hotKeys.backend);
        const bool taken = keys.press(46, shortcut.carbonFlags());
        queue.runPosted();
        return taken;
    };
    EXPECT_EQ(shown(), "default* Mail && 1Meta+M Mail && 1 ");
    EXPECT_TRUE(press());
    EXPECT_EQ(shown(), "default Mail && 1*Meta+M Mail && 1 ");
    const auto mail = preferences.profilesItems()[1].id;
    preferences.profilesRename(mail, u"A");
    EXPECT_EQ(shown(), "default A* Mail && 1Meta+M ") << "another one has the name";
    preferences.profilesRename(preferences.profilesItems()[2].id, u"B");
    EXPECT_EQ(shown(), "default A* BMeta+M ");
    EXPECT_TRUE(press());
    EXPECT_EQ(shown(), "default A B*Meta+M ");
    preferences.undo();
    EXPECT_EQ(shown(), "default A* Mail && 1Meta+M ");
    preferences.redo();
    EXPECT_EQ(shown(), "default A* BMeta+M ");
    EXPECT_TRUE(press());
    preferences.profilesRemove();
    EXPECT_FALSE(press());
    preferences.undo();
    preferences.profilesSwitch(0);
    EXPECT_TRUE(press());
    EXPECT_EQ(program.profileName(), "B");
    EXPECT_NE(program.doctor(true).find("profile:B=Super+M: works"), std::string::npos);
}

TEST_F(Menu, ProblemsAndGapsAreToldByFile) {
    program.start();
    program.showPreferences();
    queue.advance(5s); // what is to be saved is
    test::putBytes(folder / "Data/profiles.nrp", "<");
    preferences.profilesFileChanged();
    program.windows().setProblem(ShellWindows::Problem::settings, "/a: full");
    program.windows().menu().findChild<QAction *>("help")->trigger();
    const auto shows = [](const char *name, const std::string &text) {
        const auto widgets = QApplication::allWidgets();
        return std::ranges::any_of(widgets, [&](const QWidget *widget) {
            const auto shown =
                widget->property("text").toString() + widget->property("plainText").toString();
            return widget->objectName() == name && widget->isVisible() &&
                   shown.contains(QString::fromStdString(text));
        });
    };
    EXPECT_TRUE(
        shows("notice", "“" + (folder / "Data/profiles.nrp") + "” cannot be read. What it"));
    EXPECT_TRUE(shows("notice", "The settings are not saved:\n/a: full\n"));
    EXPECT_TRUE(shows("helpText", "choose “Clear formating from clipboard” in"));

    desktop.activeApplication.lacks = "not told";
    test::putBytes(folder / "file", "");
    const settings::SettingsPaths paths{
        folder / "file/defaults.plist", folder / "new/new/profiles.nrp", {}, {}};
    const auto report = QString::fromStdString(doctorReport(desktop, paths, false, {}));
    for (const std::string &gap :
         {std::string("not told"), std::string("the running program cannot be told anything"),
          folder / "file: Not a directory"}) {
        EXPECT_TRUE(report.contains("\n  but: " + QString::fromStdString(gap) + "\n")) << gap;
    }
    EXPECT_TRUE(report.contains("\n  " + QString::fromStdString(folder / "new/new") + "\n"));
    EXPECT_TRUE(report.contains("\nGaps: " + QString::number(report.count("\n  but: ")) + ", "))
        << report.toStdString();
}

TEST_F(Menu, TheProgramOfTheLastCopyIsLeftAloneAndTheRowsAreSaid) {
    auto *never = program.windows().menu().findChild<QAction *>("never");
    program.start();
    auto &active = static_cast<test::MemoryActiveApplication &>(*desktop.activeApplication.backend);
    EXPECT_FALSE(never->isEnabled());
    active.activate("R&D");
    program.setAutomatic(AutomaticMode::on);
    const auto copy = [&](const char *text) {
        pasteboard.copyText(text);
        queue.advance(3s);
        finishWork();
        return pasteboard.bytes("UTF8_STRING");
    };
    EXPECT_EQ(program.why(), "Last copy: no copy has been looked at yet\n");
    EXPECT_EQ(copy("a  b"), "a b");
    EXPECT_EQ(never->text(), "Never in “R&&D”");
    EXPECT_FALSE(never->isChecked());
    EXPECT_TRUE(program.why().starts_with(
        "Last copy: cleaned with the profile \"default\": no row of the table fits\n"));
    never->trigger();
    EXPECT_TRUE(never->isChecked());
    EXPECT_EQ(copy("c  d"), "c  d");
    EXPECT_TRUE(program.why().starts_with(
        "Last copy: left alone: row 1 of the table fits (program R&D)\n"));
    EXPECT_EQ(program.why().find("c  d"), std::string::npos);
    never->trigger();
    EXPECT_EQ(copy("c  d"), "c d");
    auto rules = program.copyRules();
    ASSERT_EQ(rules.size(), 3u) << "those that are offered have stayed";
    rules[0].on = true;
    program.setCopyRules(rules);
    EXPECT_EQ(copy("$ make  it\n"), "$ make  it\n");
    EXPECT_TRUE(program.why().starts_with("Last copy: cleaned with the profile \"Terminal\": row 1 "
                                          "of the table fits (looks like text from a terminal)\n"))
        << program.why();
}

TEST(StatusMenu, ShowsAShortcutAsTheToolkitNamesIt) {
    const platform::XkbKeyboardLayout german(platform::xkb::Keymap::fromNames("de"));
    const auto shown = [&](std::uint64_t key, std::uint64_t modifiers) {
        const shortcuts::nrShortcut shortcut(key, modifiers);
        return QKeySequence(platform::qtKeyOf(key, shortcut.carbonFlags(), german))
            .toString(QKeySequence::PortableText);
    };
    EXPECT_EQ(shown(9, shortcuts::controlModifier), "Meta+V");
    EXPECT_EQ(shown(9, shortcuts::allModifiers), "Meta+Ctrl+Alt+Shift+V");
    const QString keys =
        "6=Y 33=\u00dc 27=\u00df 122=F1 80=F19 49=Space 36=Return 48=Tab 51=Backspace 53=Esc "
        "71=NumLock 76=Num+Enter 78=Num+- 84=Num+2 65=Num+. 114=Ins 115=Home 116=PgUp 117=Del "
        "119=End 121=PgDown 123=Left "
        "124=Right 125=Down 126=Up";
    for (const QString &key : keys.split(' ')) {
        EXPECT_EQ(shown(key.section('=', 0, 0).toULongLong(), shortcuts::commandModifier),
                  "Ctrl+" + key.section('=', 1))
            << key.toStdString();
    }
    for (const std::uint64_t none : {std::uint64_t{90}, std::uint64_t{56}, // F20, a modifier
                                     shortcuts::nrShortcut::absentKey}) {
        EXPECT_EQ(shown(none, shortcuts::commandModifier), "");
    }
}

TEST_F(Menu, QuitsWithAWindowThatWouldStayInTheTaskbar) {
    program.delegate().setShowInMenuBar(false);
    program.showPreferences();
    EXPECT_TRUE(program.windows().closingMinimizes());
    constexpr int inVain = 2;
    QTimer::singleShot(10s, [] { QCoreApplication::exit(inVain); });
    QTimer::singleShot(0, [this] {
        program.quit();
        queue.runPosted();
    });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_GT(store.integerForKey(PreferencesWindow::heightKey), 0);
}

TEST(Tips, PagesTurnAndEnd) {
    std::optional<bool> atEachStart;
    TipsWindow tips(true, [&](bool on) { atEachStart = on; });
    tips.show();
    auto &next = *tips.findChild<QPushButton *>("tipsNext");
    auto &title = *tips.findChild<QLabel *>("tipTitle");
    std::set<QString> titles;
    for (int page = 0; page < TipsWindow::count(); ++page) {
        EXPECT_EQ(tips.page(), page);
        titles.insert(title.text());
        next.click();
    }
    EXPECT_EQ(titles.size(), static_cast<std::size_t>(TipsWindow::count()));
    EXPECT_FALSE(tips.isVisible());
    EXPECT_EQ(atEachStart, true);
    tips.setPage(0);
    tips.show();
    QTest::keyClick(&next, Qt::Key_Right); // which has the focus at first
    EXPECT_EQ(tips.page(), 1);
    QTest::keyClick(&tips, Qt::Key_Left);
    QTest::keyClick(&tips, Qt::Key_Left);
    EXPECT_EQ(tips.page(), 0);
}

using FirstStart = ProgramFixture;

TEST_F(FirstStart, TheFirstTipAsksForTheRulesAndAllAreChosen) {
    const auto first = preferences.profileSelected();
    TipsWindow tips(true, nullptr);
    tips.show();
    auto &gentle = *tips.findChild<QRadioButton *>("firstRulesGentle");
    auto &all = *tips.findChild<QRadioButton *>("firstRulesAll");
    EXPECT_FALSE(gentle.isVisible()) << "only a first start asks";
    tips.askForRules([&](bool chosen) { program.chooseFirstRules(chosen); });
    EXPECT_TRUE(gentle.isVisible());
    EXPECT_TRUE(all.isChecked());
    EXPECT_EQ(preferences.profileSelected(), first);
    gentle.click();
    EXPECT_EQ(preferences.profileName(), u"Gentle");
    EXPECT_EQ(preferences.state("udProtectStructure"), storage::PropertyValue(1));
    all.click();
    for (const auto &[key, value] : first) {
        EXPECT_EQ(*preferences.profileSelected().find(key), value) << key;
    }
    gentle.click();
    EXPECT_EQ(preferences.profilesItems().size(), 2u) << "it is added once";
    const auto &notice = *tips.findChild<QLabel *>("tipNotice");
    EXPECT_FALSE(notice.isVisible());
    tips.setNotice("the keys are taken");
    EXPECT_TRUE(notice.isVisible());
    tips.setPage(1);
    EXPECT_FALSE(gentle.isVisible() || notice.isVisible());
}

TEST(Strings, DecideTheDirectionOfTheLayout) {
    installTranslations(*QCoreApplication::instance(), QLocale("ar_EG"));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
    installTranslations(*QCoreApplication::instance(),
                        QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

} // namespace
} // namespace nerlo::shell
