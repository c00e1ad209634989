// The preferences window: pages of options, a search field, the profiles and a preview.
//
// It shows the state in nrPreferences and reports edits to it. Main thread only.
#pragma once

#include "settings/nrPreferences.h"
#include "shell/OptionRows.h"
#include "shell/PreviewPane.h"
#include "storage/SettingsStore.h"

#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QStackedWidget>
#include <functional>
#include <string_view>
#include <vector>

class QSplitter;

namespace nerlo::shell {

// The check boxes of the first page, which are about the program itself.
struct GeneralState {
    bool automatic = false;
    bool excelException = false;
    bool showInMenuBar = false;
    bool runInTheBackground = false;
    bool launchOnStartup = false;
    bool stayOnTop = false;
};

// What they do; each gets the new state.
struct GeneralActions {
    std::function<void(bool)> automatic;
    std::function<void(bool)> excelException;
    std::function<void(bool)> showInMenuBar;
    std::function<void(bool)> runInTheBackground;
    std::function<void(bool)> launchOnStartup;
    std::function<void(bool)> stayOnTop;
};

class PreferencesWindow final : public QMainWindow {
    Q_OBJECT

  public:
    // Settings of the window itself, in the store.
    static constexpr auto heightKey = "preferencesHeight"; // device-independent pixels
    static constexpr auto pageKey = "preferencesPage";     // counted from 0

    PreferencesWindow(settings::nrPreferences &preferences, storage::SettingsStore &store,
                      const RecorderMaker &makeRecorder, GeneralActions actions,
                      PreviewParts previewParts);
    ~PreferencesWindow() override;

    // Once, when the menu bar is filled: gives each control a letter that no menu has.
    void assignLetters();
    void setGeneralState(const GeneralState &state);
    void setHotKeyProblem(std::string_view hotKey, const QString &problem);
    // A line below the pages; hidden when empty.
    void setNotice(const QString &notice);
    // Called instead of hiding the window when it is closed; returns whether it was done otherwise.
    void setCloseHandler(std::function<bool()> handler) { closeHandler_ = std::move(handler); }

    // For the hooks of nrPreferences.
    void profilesChanged();
    void controlsLoaded();
    void updateUI(int mode);
    void edited();

    // Asks, and adds or removes.
    void addProfile();
    bool confirmRemoval(const std::u16string &name);

    PreviewPane &preview() { return *preview_; }

  protected:
    void closeEvent(QCloseEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    QWidget *makeGeneralPage(const RecorderMaker &makeRecorder);
    QWidget *makeTop();
    void fitPages();
    void placePreview();
    void addPage(const QString &title, QWidget *page);
    void search(const QString &text);
    void remember();

    settings::nrPreferences &preferences_;
    storage::SettingsStore &store_;
    GeneralActions actions_;
    std::function<bool()> closeHandler_;

    QLineEdit *search_ = nullptr;
    QComboBox *profilesPopupButton = nullptr;
    QPushButton *addProfile_ = nullptr;
    QPushButton *removeProfile_ = nullptr;
    QListWidget *pageList_;
    QStackedWidget *pages_;
    QLabel *nothingFound_;
    QLabel *notice_;
    QLabel *generalProblem_ = nullptr;
    PreviewPane *preview_;
    QSplitter *splitter_;
    std::vector<OptionPage *> optionPages_;
    QString generalTexts_; // what a search looks at, in lower case
    int pageBeforeSearch_ = -1;
    int previewBesideFrom_ = 0; // width of the window
    bool loading_ = false;

    QCheckBox *automatic_ = nullptr;
    QCheckBox *excelException_ = nullptr;
    QCheckBox *showInMenuBar_ = nullptr;
    QCheckBox *runInTheBackground_ = nullptr;
    QCheckBox *launchOnStartup_ = nullptr;
    QCheckBox *stayOnTop_ = nullptr;
};

} // namespace nerlo::shell
