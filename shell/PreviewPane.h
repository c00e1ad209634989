// A text before and after the options, with what was changed marked.
//
// The cleaning runs on a worker thread, one at a time; the clipboard is only touched when a button
// asks for it. Main thread only.
#pragma once

#include "engine/Trace.h"
#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "shell/TextDiff.h"
#include "storage/PropertyValue.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <memory>
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
    void setBefore(const QString &text);
    // The two texts, instead of one above the other.
    void setSideBySide(bool sideBySide);
    QString after() const;
    // Places in after() that are marked.
    const std::vector<TextSpan> &marked() const { return marked_; }
    // What the steps are called that changed something at this place of after(), one a line.
    QString reasonsAt(int place) const;

  signals:
    // A changed place was clicked: the option of this operation is wanted, told by the key of its
    // shortcut.
    void optionAsked(const std::string &hotKey);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    // A place that a step changed.
    struct Reason {
        std::string hotKey;
        std::size_t rule; // in the list of rules, from 1; 0 for another step
        TextSpan before;
        TextSpan after;
    };
    struct Result {
        QString before;
        QString after;
        TextDifferences differences;
        std::vector<Reason> reasons;
    };

    static std::vector<Reason> reasonsOf(const engine::Trace &trace);
    // Those at a place of one of the two texts.
    std::vector<const Reason *> reasonsAt(TextSpan Reason::*where, int place) const;
    QString told(const std::vector<const Reason *> &reasons) const;

    void schedule();
    void run();
    void show(const Result &result);
    void markDifferences();

    Program &program_;
    platform::MainQueue &mainQueue_;
    storage::PropertyDictionary options_;
    QBoxLayout *halves_;
    QPlainTextEdit *before_;
    QPlainTextEdit *after_;
    QLabel *note_;
    QPushButton *take_;
    QPushButton *apply_;
    platform::MainQueue::TaskId pending_ = 0;
    bool running_ = false;
    bool changedMeanwhile_ = false;
    std::vector<TextSpan> removed_;
    std::vector<TextSpan> marked_;
    std::vector<Reason> reasons_;
    platform::Alive alive_;
};

} // namespace nerlo::shell
