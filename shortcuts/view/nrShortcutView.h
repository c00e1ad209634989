// The control with which the user records, replaces or deletes a global shortcut.
//
// By mouse: a click starts recording, the button at the end deletes the shortcut or, while
// recording, ends that. By keyboard: Space or Return starts, Delete deletes. A key that cannot be
// used is answered with a word in place of the prompt, until the next key. A shortcut that the
// desktop refuses has a warning mark, with the reason in its tooltip.
//
// Main thread only. Texts are those of the string table "Shortcut".
#pragma once

#include "shortcuts/UserDefaultsHotKeys.h"
#include "shortcuts/nrShortcutDefaultsObserver.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include <QPointer>
#include <QString>
#include <QWidget>

namespace nerlo::platform {
class SystemHotKeys;
}

namespace nerlo::shortcuts {

class ShortcutTexts;

// What every control of a window shares; all of it outlives the controls.
struct ShortcutViewContext {
    const ShortcutTexts &texts;
    platform::SystemHotKeys &systemHotKeys;
    UserDefaultsHotKeys &hotKeys;
    MainMenu mainMenu; // may be empty
    // Shows a modal, critical alert.
    std::function<void(QWidget *parent, const QString &message, const QString &informative)> alert;
    std::function<void()> beep; // empty for the desktop's
    // Whether the control takes the whole keyboard while it records, so that combinations of the
    // desktop and of other programs reach it. Only X11 lets a window do so.
    bool grabsKeyboard = false;
    // Runs what the user does to a shortcut, so that it can be taken back; empty: as it is.
    std::function<void(const std::function<void()> &change)> asGesture = {};
};

class nrShortcutView : public QWidget, public ShortcutControl {
    Q_OBJECT

  public:
    enum class Appearance { framed, flat };
    // `row` is an ancestor. As long as there is no shortcut, and neither the pointer nor the
    // keyboard is in the row, the control shows nothing but a small keyboard at its end.
    void setQuietIn(QWidget &row);

    explicit nrShortcutView(const ShortcutViewContext &context, QWidget *parent = nullptr);
    ~nrShortcutView() override;

    std::optional<nrShortcut> shortcutValue() const override { return shortcutValue_; }
    void setShortcutValue(const std::optional<nrShortcut> &value) override;
    void setShortcutValueObserver(std::function<void()> changed) override;
    // The same as a gesture of the user.
    void record(const std::optional<nrShortcut> &value);
    // Run after each change of the value.
    std::function<void(nrShortcutView &)> shortcutValueChange;

    // Binds the control to a settings key; the empty key ends that.
    void setAssociatedUserDefaultsKey(const std::string &key);
    std::string associatedUserDefaultsKey() const;

    bool recording() const { return recording_; }
    void setRecording(bool recording);
    bool hinting() const { return hinting_; }
    const QString &shortcutPlaceholder() const { return shortcutPlaceholder_; }
    void setShortcutPlaceholder(const QString &placeholder);
    Appearance appearance() const { return appearance_; }
    void setAppearance(Appearance appearance);

    // What the control shows, and what its button shows; empty for no button.
    QString title() const;
    QString buttonGlyph() const;
    // Why the desktop does not give us the shortcut; empty when it does.
    QString warning() const;
    // What a screen reader says of the value.
    QString spokenValue() const;

    QRect shortcutRect() const;
    QRect buttonRect() const;
    QRect warningRect() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void activateEventMonitoring(bool active);
    void activateResignObserver(bool active);
    void resetToolTips();
    int buttonWidth() const;
    void setHinting(bool hinting);
    bool quiet() const;
    void announce();
    bool isRepeat(const QKeyEvent &event);
    // A key-down or modifier change while recording; false to let it through.
    bool monitor(const KeyEvent &event);
    void setUnusable(bool unusable);
    std::vector<MenuItem> takenKeys(const nrShortcut &shortcut) const;
    void refuseTaken(const nrShortcut &shortcut, const ShortcutError &error);
    QString fromTable(std::u16string_view key) const;

    ShortcutViewContext context_;
    std::optional<nrShortcut> shortcutValue_;
    std::function<void()> observer_;
    QString shortcutPlaceholder_;
    QString shortcutToolTip_;
    QString buttonToolTip_;
    bool recording_ = false;
    bool hinting_ = false;
    bool monitoring_ = false;
    bool unusable_ = false; // the last key cannot be used
    struct Release {
        quint32 key = 0;  // of the hardware
        quint64 time = 0; // of the display; 0 for none
        bool operator==(const Release &) const = default;
    };
    Release released_; // the last one
    QPointer<QWidget> observedWindow_;
    QPointer<QWidget> row_; // in which it is quiet; null for never
    Appearance appearance_ = Appearance::framed;
    std::unique_ptr<GlobalHotKeys::Suspension> suspension_; // while recording
    UserDefaultsHotKeys::Observation statusObservation_;
    std::unique_ptr<nrShortcutDefaultsObserver> defaultsObserver_;
};

} // namespace nerlo::shortcuts
