// A small window at the pointer in which one chooses, by typing, what is done to the text on the
// clipboard, and sees it before it is done.
//
// It takes the keyboard for as long as it is shown and gives it back. Main thread only.
#pragma once

#include "platform/Alive.h"
#include "platform/MainQueue.h"
#include "shell/ChooserItems.h"
#include "shell/PointerSearch.h"
#include "shell/ShownChanges.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QWidget>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace nerlo::shell {

class Program;

class ChooserWindow final : public QWidget {
    Q_OBJECT

  public:
    // `program` must outlive it.
    explicit ChooserWindow(Program &program);
    ~ChooserWindow() override;

    // Shows it as soon as the place is known.
    void open();
    bool isOpen() const { return open_; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    // A text before and after, for the item that is current.
    struct Preview {
        std::size_t item = 0;
        ShownChanges shown;
        decltype(clipboard::nrChangePasterboard::Choice::known) whole; // null if it was cut
    };

    void arrange();
    void showAt(QPoint pointer);
    void takeKeyboard();
    void stayActive();
    void fill(const QString &wanted);
    void setText(std::optional<std::u16string> text);
    std::optional<std::size_t> currentItem() const;
    void schedulePreview();
    void runPreview();
    void showPreview(Preview preview);
    void mark();
    void choose(bool paste);

    Program &program_;
    platform::MainQueue &mainQueue_;
    const bool grabs_; // the keyboard; else the window is one like others
    std::vector<ChooserItem> items_;
    QLineEdit *search_;
    QTreeWidget *list_;
    QPlainTextEdit *before_;
    QPlainTextEdit *after_;
    QLabel *note_;
    PointerSearch pointerSearch_;
    std::optional<std::u16string> text_; // of the clipboard
    Preview preview_;
    bool previewRuns_ = false;
    platform::MainQueue::TaskId pending_ = 0;
    platform::MainQueue::TaskId retry_ = 0;
    platform::MainQueue::Clock::time_point patience_;
    bool open_ = false;
    bool wasActive_ = false;
    bool shiftHeld_ = false;
    bool pastesOnRelease_ = false;
    platform::Alive alive_;
};

} // namespace nerlo::shell
