// A text before and after the options, with what was changed marked.
//
// The cleaning runs on a worker thread, one at a time; the clipboard is only touched when a button
// asks for it. Main thread only.
#pragma once

#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "platform/WorkerQueue.h"
#include "shell/TextDiff.h"
#include "storage/PropertyValue.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace nerlo::shell {

struct PreviewParts {
    platform::MainQueue &mainQueue;
    platform::WorkerQueue &workerQueue;
    std::string locale; // an ICU locale id
    // Reads the clipboard's text and hands it on, on the main thread; nothing where there is none.
    std::function<void(std::function<void(std::optional<std::u16string>)>)> readClipboard;
    std::function<void()> cleanClipboard;
};

class PreviewPane final : public QWidget {
    Q_OBJECT

  public:
    explicit PreviewPane(PreviewParts parts);
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

    PreviewParts parts_;
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
