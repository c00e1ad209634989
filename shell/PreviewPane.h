// A text before and after the options, with what was changed marked.
//
// The cleaning runs on a worker thread, one at a time; the clipboard is only touched when a button
// asks for it. Main thread only.
#pragma once

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

  protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

  private:
    struct Result {
        QString before;
        QString after;
        TextDifferences differences;
    };

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
    platform::Alive alive_;
};

} // namespace nerlo::shell
