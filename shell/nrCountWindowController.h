// The statistics popup: four counts in a small dark window that does not take the focus.
//
// Main thread only.
#pragma once

#include "clipboard/nrChangePasterboard.h"
#include "platform/MainQueue.h"
#include "platform/PointerPlace.h"
#include "platform/PopupLayer.h"
#include "shell/PointerSearch.h"
#include "shell/PopupPlacement.h"
#include "storage/SettingsStore.h"

#include <QLabel>
#include <QWidget>
#include <memory>
#include <string>

namespace nerlo::shell {

// The background: a rounded rectangle, black at 75 % opacity.
class nrRoundedView final : public QWidget {
  public:
    using QWidget::QWidget;
    // The shape that a window of this size has.
    static QPainterPath shape(QSize size);

  protected:
    void paintEvent(QPaintEvent *event) override;
};

// The borderless window: its placement, level and end.
class nrTransparentWindow final : public QWidget {
    Q_OBJECT

  public:
    nrTransparentWindow(const storage::SettingsStore &def, platform::MainQueue &mainQueue,
                        platform::PopupLayer *layer, platform::PointerPlace *pointer);
    ~nrTransparentWindow() override;

    // Puts the window, in its present size, where the settings say; `pointer` is in the toolkit's
    // coordinates.
    void windowPosition(QPoint pointer);
    // In seconds.
    std::int64_t delayForCountWindow() const;
    // Shows it, and schedules its end if the settings say so.
    void open();
    // Nothing happens if it is closed.
    void closeCountWindow();

    bool isOpen() const { return open_; }

  protected:
    void mousePressEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

  private:
    std::unique_ptr<platform::ShownPopup> showInLayer();
    platform::PopupPicture picture(int scale);

    const storage::SettingsStore &def;
    platform::MainQueue &mainQueue_;
    platform::PopupLayer *layer_;
    std::unique_ptr<platform::ShownPopup> shown_;
    PointerSearch pointer_; // for the window itself
    platform::MainQueue::TaskId close_ = 0;
    bool open_ = false;
};

class nrCountWindowController final : public clipboard::CountWindow {
  public:
    // With a layer, the popup is shown there, and the window itself stays hidden. All must outlive
    // this.
    nrCountWindowController(const storage::SettingsStore &settings, platform::MainQueue &mainQueue,
                            platform::PopupLayer *layer = nullptr,
                            platform::PointerPlace *pointer = nullptr);
    ~nrCountWindowController() override;

    // The texts are shown as they are.
    void countToTextFields(std::u16string characters, std::u16string spaces, std::u16string words,
                           std::u16string paragraphs) override;
    void tellProfile(std::u16string name) override;
    // The three kinds of steps that changed most.
    void tellSteps(const std::vector<clipboard::ChangedStep> &steps) override;
    void tellReport(const engine::CleaningReport &report) override;
    void showWindow() override;

    nrTransparentWindow &window() { return *window_; }

  private:
    void localizations();

    std::unique_ptr<nrTransparentWindow> window_;
    QLabel *charsTextField;
    QLabel *spacesTextField;
    QLabel *wordsTextField;
    QLabel *paragraphsTextField;
    QLabel *countCharsTextField;
    QLabel *countSpacesTextField;
    QLabel *countWordsTextField;
    QLabel *countParagraphsTextField;
    QLabel *cleanedAs_;
    QLabel *changedMost_;
    QLabel *leftOut_;
};

} // namespace nerlo::shell
