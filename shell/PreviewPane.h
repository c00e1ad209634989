// A text before and after the options, with what was changed marked, and the steps that did it.
//
// The cleaning runs on a worker thread, one at a time; the clipboard is only touched when a button
// asks for it. A short text can be edited here; of a long one the changed parts are shown. Main
// thread only.
#pragma once

#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "shell/PreviewSteps.h"
#include "shell/TextPanes.h"
#include "storage/PropertyValue.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTreeWidget>
#include <QWidget>
#include <memory>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace nerlo::shell {

class Program;

class PreviewPane final : public QWidget {
    Q_OBJECT

  public:
    // `program` must outlive the pane.
    explicit PreviewPane(Program &program);
    ~PreviewPane() override;

    // The options to try: a profile as it would be saved.
    void setOptions(storage::PropertyDictionary options);
    void setBefore(std::u16string text);
    // The texts and the steps, instead of one above the other.
    void setSideBySide(bool sideBySide);
    QString after() const;
    // Places in after() that are marked.
    const std::vector<TextSpan> &marked() const { return shown().after.marked; }
    // What the steps are called that changed something at this place of after(), one a line.
    QString reasonsAt(int place) const;

  signals:
    // A changed place was clicked: the option of this operation is wanted, told by the key of its
    // shortcut.
    void optionAsked(const std::string &hotKey);
    // What the rules of the options do to the text; see settings/RuleTrials.h.
    void rulesTried(const std::vector<settings::RuleTrial> &trials);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    void describeParts();
    void arrange();
    void connectParts();
    void takeFromClipboard();
    void beginAnew();

    // The steps that changed something at a place of what is shown of one of the two texts.
    std::vector<StepId> stepsAt(TextSide side, int place) const;
    static QString titlesOf(const std::vector<StepId> &steps);
    bool textEvent(QPlainTextEdit &pane, QEvent *event);
    bool stepsEvent(QEvent *event);

    void schedule();
    void run();
    void changesMade(ShownChanges changes, int edit);
    void stepsMade(PreviewSteps made);

    // Null while all steps are shown.
    const PreviewStep *chosenStep() const;
    const ShownChanges &shown() const;
    // Whether the text can be typed into.
    bool isEditing() const { return !long_ && !chosenStep(); }
    void fillSteps(std::optional<StepId> chosen);
    void showAllSteps();
    void showTexts();
    void showFirstChange();
    void markShown();
    void tell();
    void fitNote();

    Program &program_;
    platform::MainQueue &mainQueue_;
    storage::PropertyDictionary options_;
    QBoxLayout *halves_;
    QPlainTextEdit *typed_;
    QPlainTextEdit *before_; // of one step, or of a long text
    QStackedWidget *befores_;
    QPlainTextEdit *after_;
    QLabel *note_;
    QPushButton *take_;
    QPushButton *clear_;
    QPushButton *apply_;
    QTreeWidget *steps_;

    std::shared_ptr<const std::u16string> long_; // a text that is too long to be edited
    bool nothingThere_ = false;                  // on the clipboard
    int edits_ = 0;                              // of the text
    platform::MainQueue::TaskId pending_ = 0;
    bool running_ = false;
    bool changedMeanwhile_ = false;
    std::stop_source stop_;
    ShownChanges all_;
    int shownEdit_ = 0; // the text that `all_` was made of
    PreviewSteps made_;
    bool chosenAtPress_ = false; // the step under the pointer was, when the button went down
    platform::Alive alive_;
};

} // namespace nerlo::shell
