// The preferences window: pages of options, a search field, the profiles and a preview.
//
// It shows the state in nrPreferences and reports edits to it. Main thread only.
#pragma once

#include "platform/Alive.h"
#include "settings/nrPreferences.h"
#include "shell/OptionRows.h"
#include "shell/PreviewPane.h"
#include "storage/SettingsStore.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPointer>
#include <QPushButton>
#include <QStackedWidget>
#include <functional>
#include <map>
#include <string_view>
#include <vector>

class QSplitter;

namespace nerlo::shell {

class CopyTableView;
class FindReplaceTable;
class ProfilesPage;
class Program;
class ShortcutPage;

class PreferencesWindow final : public QMainWindow {
    Q_OBJECT

  public:
    // Settings of the window itself, in the store.
    static constexpr auto heightKey = "preferencesHeight"; // device-independent pixels
    static constexpr auto pageKey = "preferencesPage";     // counted from 0

    // Whether a page has something with all the words (in lower case); it may hide the rest.
    using Filter = std::function<bool(const QStringList &words)>;

    // `program` must outlive the window.
    explicit PreferencesWindow(Program &program);
    ~PreferencesWindow() override;

    // Once, when the menu bar is filled: gives each control a letter that no menu has.
    void assignLetters();
    // The check boxes of the first page, which are about the program itself.
    void updateGeneral();
    void setHotKeyProblem(std::string_view hotKey, const QString &problem);
    // A line below the pages; hidden when empty.
    void setNotice(const QString &notice);
    // Marks what the last clean left out.
    void setReport(const engine::CleaningReport &report);

    // For the hooks of nrPreferences.
    void profilesChanged();
    void controlsLoaded();
    void updateUI(settings::RulesUpdate update);
    void edited();

    void historyChanged();

    PreviewPane &preview() { return *preview_; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    QWidget *makeGeneralPage(const RecorderMaker &makeRecorder);
    QWidget *makeTop();
    void describeParts();
    void layOut();
    void makePages();
    void followRules(FindReplaceTable &rules);
    QWidget *makeDeletedBar();
    void tellDone(const QString &what);
    void connectKeys();
    void openAsRemembered(); // with the height and the page that were left
    void fitPages();
    void placePreview();
    void addPage(const QString &title, QWidget *page, Filter filter);
    void showPage(const QWidget &page);
    void search(const QString &text);
    bool searchKey(int key); // whether it is done with
    void enterPage();
    void showOption(std::string_view hotKey);
    void remember();

    Program &program_;
    settings::nrPreferences &preferences_;
    storage::SettingsStore &store_;

    QLineEdit *search_ = nullptr;
    QComboBox *profilesPopupButton_ = nullptr;
    QListWidget *pageList_;
    QStackedWidget *pages_;
    QLabel *nothingFound_;
    QLabel *notice_;
    QWidget *deleted_ = nullptr; // a line that offers to take back what was done last
    QLabel *whatWasDone_ = nullptr;
    QPointer<QWidget> beforeDone_;                         // had the keyboard
    std::map<std::string_view, QLabel *> commandProblems_; // by hot key
    PreviewPane *preview_;
    ProfilesPage *profilesPage_;
    QSplitter *splitter_;
    std::vector<OptionPage *> optionPages_;
    std::vector<Filter> filters_; // of the pages
    QString generalTexts_;        // what a search looks at
    ShortcutPage *shortcutPage_ = nullptr;
    int pageBeforeSearch_ = -1;
    int previewBesideFrom_ = 0; // width of the window
    bool loading_ = false;
    platform::Alive alive_;

    CopyTableView *copyTable_ = nullptr;
    std::vector<QCheckBox *> general_; // one for each of generalBoxes
};

} // namespace nerlo::shell
