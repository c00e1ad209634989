#include "shortcuts/view/nrShortcutView.h"

#include "platform/SystemHotKeys.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/view/KeyEvents.h"
#include "shortcuts/view/ShortcutAccessible.h"
#include "shortcuts/view/WarningMark.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

#include <QAccessible>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QToolTip>

namespace nerlo::shortcuts {

namespace {

constexpr std::uint64_t deleteKey = 51;
constexpr std::uint64_t forwardDeleteKey = 117;
constexpr std::uint64_t escapeKey = 53;

constexpr int margin = 6;
constexpr qreal radius = 4;

constexpr auto clickToRecord = u"Click to record shortcut";
constexpr auto cannotBeUsed = u"Cannot be used";

// At most one control records.
QPointer<nrShortcutView> recordingView;

// Drawn as a shape, because fonts give these glyphs very different sizes.
void drawGlyph(QPainter &painter, const QRectF &area, const QString &glyph, const QColor &color) {
    QPainterPath shape;
    shape.addText({}, painter.font(), glyph);
    if (shape.isEmpty()) { // a bitmap font has no outlines
        painter.setPen(color);
        painter.drawText(area, Qt::AlignCenter, glyph);
        return;
    }
    const QRectF bounds = shape.boundingRect();
    const qreal scale =
        std::min(area.height() * 0.5 / bounds.height(), area.width() * 0.5 / bounds.width());
    QTransform place;
    place.translate(area.center().x(), area.center().y());
    place.scale(scale, scale);
    place.translate(-bounds.center().x(), -bounds.center().y());
    painter.fillPath(place.map(shape), color);
}

// Drawn, because not every font has the sign.
void drawKeyboard(QPainter &painter, const QRectF &area, const QColor &color) {
    const qreal unit = std::min(area.width(), area.height()) / 24; // of a drawing 22 wide, 14 high
    const auto box = [&](qreal x, qreal y, qreal width, qreal height) {
        const QPointF middle = area.center();
        return QRectF(middle.x() + x * unit, middle.y() + y * unit, width * unit, height * unit);
    };
    painter.setPen(QPen(color, 1.3));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(box(-11, -7, 22, 14), 2.5 * unit, 2.5 * unit);
    for (const qreal x : {-8.0, -3.7, 0.7, 5.0}) {
        painter.fillRect(box(x, -4, 3, 2.6), color);
    }
    painter.fillRect(box(-5, 1.6, 10, 2.6), color);
}

} // namespace

nrShortcutView::nrShortcutView(const ShortcutViewContext &context, QWidget *parent)
    : QWidget(parent)
    , context_(context) {
    installShortcutAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    if (!context_.beep) {
        context_.beep = &QApplication::beep;
    }
    statusObservation_ = context_.hotKeys.observeStatus([this] {
        resetToolTips();
        announce();
    });
    resetToolTips();
}

nrShortcutView::~nrShortcutView() {
    setRecording(false);
    defaultsObserver_.reset();
}

void nrShortcutView::setShortcutValue(const std::optional<nrShortcut> &value) {
    if (value == shortcutValue_) {
        return;
    }
    shortcutValue_ = value;
    resetToolTips();
    if (observer_) {
        observer_();
    }
    if (shortcutValueChange) {
        shortcutValueChange(*this);
    }
    announce();
}

void nrShortcutView::setShortcutValueObserver(std::function<void()> changed) {
    observer_ = std::move(changed);
}

void nrShortcutView::record(const std::optional<nrShortcut> &value) {
    if (context_.asGesture) {
        context_.asGesture([&] { setShortcutValue(value); });
    } else {
        setShortcutValue(value);
    }
}

void nrShortcutView::setAssociatedUserDefaultsKey(const std::string &key) {
    defaultsObserver_.reset();
    if (!key.empty()) {
        defaultsObserver_ =
            std::make_unique<nrShortcutDefaultsObserver>(*this, context_.hotKeys.store(), key);
    }
    announce();
}

std::string nrShortcutView::associatedUserDefaultsKey() const {
    return defaultsObserver_ ? defaultsObserver_->userDefaultsKey() : std::string();
}

void nrShortcutView::setRecording(bool recording) {
    if (recording) {
        if (recordingView && recordingView != this) {
            recordingView->setRecording(false);
        }
        recordingView = this;
        if (!isEnabled()) {
            return;
        }
    }
    if (recording == recording_) {
        return;
    }
    recording_ = recording;
    if (!recording && recordingView == this) {
        recordingView = nullptr;
    }
    shortcutPlaceholder_.clear();
    unusable_ = false;
    resetToolTips();
    activateEventMonitoring(recording);
    activateResignObserver(recording);
    // Suspends our own hot keys, so that a combination that is already one of them reaches the
    // recorder.
    suspension_.reset();
    if (recording) {
        context_.systemHotKeys.refresh();
        suspension_ = std::make_unique<GlobalHotKeys::Suspension>(context_.hotKeys.hotKeys());
    }
    announce();
}

void nrShortcutView::setShortcutPlaceholder(const QString &placeholder) {
    shortcutPlaceholder_ = placeholder;
    update();
}

void nrShortcutView::setAppearance(Appearance appearance) {
    appearance_ = appearance;
    update();
}

void nrShortcutView::setQuietIn(QWidget &row) {
    row_ = &row;
    row.installEventFilter(this); // told of the pointer
    connect(qApp, &QApplication::focusChanged, this, [this] { update(); });
    update();
}

bool nrShortcutView::quiet() const {
    if (!row_ || shortcutValue_ || recording_ || row_->underMouse()) {
        return false;
    }
    const QWidget *focus = QApplication::focusWidget();
    return !focus || !row_->isAncestorOf(focus);
}

QString nrShortcutView::fromTable(std::u16string_view key) const {
    return QString::fromStdU16String(context_.texts.localized(key));
}

QString nrShortcutView::title() const {
    if (!recording_) {
        return shortcutValue_
                   ? QString::fromStdU16String(shortcutValue_->description(context_.texts))
                   : fromTable(clickToRecord);
    }
    if (hinting_) {
        return fromTable(shortcutValue_ ? u"Use old shortcut" : u"Cancel");
    }
    if (unusable_) {
        return fromTable(cannotBeUsed);
    }
    return shortcutPlaceholder_.isEmpty() ? fromTable(u"Type shortcut") : shortcutPlaceholder_;
}

QString nrShortcutView::buttonGlyph() const {
    return recording_       ? QStringLiteral("\u238b")
           : shortcutValue_ ? QStringLiteral("\u232b")
                            : QString();
}

QString nrShortcutView::warning() const {
    const auto status = context_.hotKeys.status(associatedUserDefaultsKey());
    if (!shortcutValue_ || status.state != platform::HotKeyState::refused) {
        return {};
    }
    return status.owner.empty() ? fromTable(QString::fromStdString(status.text).toStdU16String())
                                : spokenValue() + ": " + QString::fromStdString(status.owner);
}

QString nrShortcutView::spokenValue() const {
    return recording_ ? title()
           : shortcutValue_
               ? QString::fromStdU16String(shortcutValue_->spelledOutName(context_.texts))
               : fromTable(u"Not set");
}

int nrShortcutView::buttonWidth() const {
    return height() + 4;
}

QRect nrShortcutView::buttonRect() const {
    if (buttonGlyph().isEmpty()) {
        return {};
    }
    const QRect button(width() - buttonWidth() - 2, 2, buttonWidth(), height() - 4);
    return QStyle::visualRect(layoutDirection(), rect(), button);
}

QRect nrShortcutView::warningRect() const {
    if (recording_ || warning().isEmpty()) {
        return {};
    }
    return QStyle::visualRect(layoutDirection(), rect(), {0, 0, height(), height()});
}

QRect nrShortcutView::shortcutRect() const {
    int left = warningRect().isEmpty() ? 0 : height();
    int right = buttonRect().isEmpty() ? 0 : buttonWidth() + 2;
    return QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(left, 0, -right, 0));
}

QSize nrShortcutView::sizeHint() const {
    const int line = fontMetrics().height() + 2 * margin;
    // The first state has no button.
    int widest = fontMetrics().horizontalAdvance(fromTable(clickToRecord));
    for (const auto *text : {u"Type shortcut", u"Use old shortcut", u"Cancel", cannotBeUsed}) {
        widest = std::max(widest, fontMetrics().horizontalAdvance(fromTable(text)) + line + 6);
    }
    return {widest + 4 * margin, line};
}

void nrShortcutView::announce() {
    // The value is part of the accessible name, because changes of accessible values are announced
    // for numbers only.
    QAccessibleEvent name(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&name);
    update();
}

void nrShortcutView::resetToolTips() {
    shortcutToolTip_ = fromTable(clickToRecord);
    buttonToolTip_ = recording_ ? QString() : fromTable(u"Delete shortcut");
    if (shortcutValue_ && !recording_) {
        shortcutToolTip_ = spokenValue() + QLatin1Char('\n') + shortcutToolTip_;
    }
}

void nrShortcutView::setHinting(bool hinting) {
    if (hinting != hinting_) {
        hinting_ = hinting;
        update();
    }
}

bool nrShortcutView::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        QString text = shortcutToolTip_;
        if (warningRect().contains(help->pos())) {
            text = warning();
        } else if (buttonRect().contains(help->pos())) {
            text = buttonToolTip_;
        } else if (!recording_ && shortcutValue_) {
            const auto status = context_.hotKeys.status(associatedUserDefaultsKey());
            if (status.state == platform::HotKeyState::active && !status.text.empty()) {
                // The desktop has given the command keys of its own choice.
                text.prepend(QString::fromStdString(status.text) + QLatin1Char('\n'));
            } else if (!warning().isEmpty()) {
                text.prepend(warning() + QLatin1Char('\n'));
            }
        }
        QToolTip::showText(help->globalPos(), text.toHtmlEscaped().replace('\n', "<br>"), this);
        return true;
    }
    return QWidget::event(event);
}

void nrShortcutView::activateEventMonitoring(bool active) {
    if (active == monitoring_) {
        return;
    }
    monitoring_ = active;
    if (active) {
        QCoreApplication::instance()->installEventFilter(this);
        // Only in the active window: another would not be told when it has to release the keyboard.
        if (context_.grabsKeyboard && window()->isActiveWindow()) {
            grabKeyboard();
        }
        return;
    }
    if (auto *application = QCoreApplication::instance()) {
        application->removeEventFilter(this);
    }
    if (QWidget::keyboardGrabber() == this) {
        releaseKeyboard();
    }
}

void nrShortcutView::activateResignObserver(bool active) {
    if (observedWindow_) {
        observedWindow_->removeEventFilter(this);
        observedWindow_ = nullptr;
    }
    if (active) {
        observedWindow_ = window();
        observedWindow_->installEventFilter(this);
    }
}

bool nrShortcutView::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
        if (watched == row_) {
            update();
        }
        return false;
    case QEvent::WindowDeactivate:
        if (watched == observedWindow_) {
            setRecording(false);
        }
        return false;
    case QEvent::ShortcutOverride:
        if (monitoring_) {
            // Accepted here, so that the window's own shortcuts do not get the key; keys that the
            // recorder lets through are not accepted.
            const auto key = keyEventOf(static_cast<QKeyEvent &>(*event), context_.texts.layout());
            if (nrShortcut::shortcutWithEvent(key).shouldBypass(context_.texts)) {
                setRecording(false);
                return false;
            }
            event->accept();
            return true;
        }
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (monitoring_) {
            const auto &keyEvent = static_cast<QKeyEvent &>(*event);
            const auto key = keyEventOf(keyEvent, context_.texts.layout());
            const bool pressed = event->type() == QEvent::KeyPress;
            if (isRepeat(keyEvent) || (!pressed && !isModifierKey(key.keyCode))) {
                return true;
            }
            if (pressed) {
                setUnusable(false);
            }
            return monitor(key);
        }
        return false;
    default:
        return false;
    }
}

// A busy machine's toolkit does not recognise every repetition: X11 tells it as a release and a
// press of the same time, which may arrive one by one.
bool nrShortcutView::isRepeat(const QKeyEvent &event) {
    const Release now{event.nativeScanCode(), event.timestamp()};
    if (event.type() == QEvent::KeyRelease) {
        released_ = now;
    }
    return event.isAutoRepeat() ||
           (event.type() == QEvent::KeyPress && now.time != 0 && now == released_);
}

bool nrShortcutView::monitor(const KeyEvent &event) {
    const nrShortcut shortcut = nrShortcut::shortcutWithEvent(event);
    if (shortcut.keyCode() == deleteKey || shortcut.keyCode() == forwardDeleteKey) {
        record(std::nullopt);
        setRecording(false);
        return true;
    }
    if (shortcut.keyCode() == escapeKey) {
        setRecording(false);
        return true;
    }
    if (shortcut.shouldBypass(context_.texts)) {
        setRecording(false);
        return false;
    }
    if (shortcut.keyCodeString(context_.texts).empty()) {
        setShortcutPlaceholder(QString::fromStdU16String(shortcut.modifiersText(context_.texts)));
        if (!isModifierKey(event.keyCode)) {
            setUnusable(true);
        }
        return true;
    }
    if (!shortcut.isValid()) {
        context_.beep();
        setUnusable(true);
        return true;
    }
    ShortcutError error;
    if (shortcut.isTakenError(&error, context_.texts, context_.systemHotKeys,
                              takenKeys(shortcut))) {
        refuseTaken(shortcut, error);
        return true;
    }
    record(shortcut);
    setRecording(false);
    return true;
}

void nrShortcutView::setUnusable(bool unusable) {
    if (unusable != unusable_) {
        unusable_ = unusable;
        announce();
    }
}

// The main menu, and the command of ours that has the shortcut already.
std::vector<MenuItem> nrShortcutView::takenKeys(const nrShortcut &shortcut) const {
    auto taken = context_.mainMenu ? context_.mainMenu() : std::vector<MenuItem>();
    if (const auto *other = context_.hotKeys.otherWith(shortcut, associatedUserDefaultsKey())) {
        taken.push_back({text::utf8ToUtf16(other->title).text,
                         shortcut.keyCodeStringForKeyEquivalent(context_.texts),
                         shortcut.modifierFlags(),
                         {}});
    }
    return taken;
}

void nrShortcutView::refuseTaken(const nrShortcut &shortcut, const ShortcutError &error) {
    activateEventMonitoring(false);
    activateResignObserver(false);
    const QPointer<nrShortcutView> alive(this);
    auto informative = QString::fromStdU16String(context_.texts.formatted(
        u"The key combination \"%@\" can't be used!", {shortcut.description(context_.texts)}));
    if (!error.owner.empty()) {
        informative += '\n' + QString::fromStdU16String(shortcut.description(context_.texts)) +
                       ": " + QString::fromStdString(error.owner);
    }
    context_.alert(window(), QString::fromStdU16String(error.localizedDescription), informative);
    if (!alive || !recording_) {
        return;
    }
    setShortcutPlaceholder({});
    activateEventMonitoring(true);
    activateResignObserver(true);
}

void nrShortcutView::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) {
        setRecording(false);
    }
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::FontChange) {
        resetToolTips();
        updateGeometry();
    }
    update();
    QWidget::changeEvent(event);
}

void nrShortcutView::hideEvent(QHideEvent *event) {
    setRecording(false);
    QWidget::hideEvent(event);
}

// Only while not recording: the monitor comes before.
void nrShortcutView::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        setRecording(true);
        break;
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        record(std::nullopt);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void nrShortcutView::mousePressEvent(QMouseEvent *event) {
    if (!isEnabled() || event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    const bool onButton = buttonRect().contains(event->position().toPoint());
    if (recording_) {
        if (onButton) {
            setRecording(false);
        }
    } else if (onButton) {
        record(std::nullopt);
    } else {
        setRecording(true);
    }
    setHinting(buttonRect().contains(event->position().toPoint()));
}

void nrShortcutView::mouseMoveEvent(QMouseEvent *event) {
    setHinting(isEnabled() && buttonRect().contains(event->position().toPoint()));
}

void nrShortcutView::leaveEvent(QEvent *) {
    setHinting(false);
}

void nrShortcutView::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette &colors = palette();
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    if (quiet()) {
        QColor color = colors.color(group, QPalette::Text);
        color.setAlphaF(0.6f);
        const QRect end(width() - buttonWidth() - 2, 2, buttonWidth(), height() - 4);
        drawKeyboard(painter, QStyle::visualRect(layoutDirection(), rect(), end), color);
        return;
    }
    const bool active = recording_ || hasFocus();
    const QRectF frame = QRectF(rect()).adjusted(1, 1, -1, -1);

    if (appearance_ == Appearance::framed || active) {
        QColor border = colors.color(group, QPalette::Text);
        border.setAlphaF(0.45f);
        painter.setPen(active ? QPen(colors.color(group, QPalette::Highlight), 2)
                              : QPen(border, 1));
        painter.setBrush(colors.color(group, QPalette::Base));
        painter.drawRoundedRect(frame, radius, radius);
    }

    QColor text = colors.color(group, QPalette::Text);
    const bool prompt = !shortcutValue_ || (recording_ && shortcutPlaceholder_.isEmpty());
    if (!isEnabled() && text == colors.color(QPalette::Active, QPalette::Text)) {
        text.setAlphaF(0.45f); // a theme without colors for disabled controls
    } else if (prompt && isEnabled()) {
        text.setAlphaF(0.75f);
    }
    painter.setPen(text);
    const QRect area = shortcutRect().adjusted(margin, 0, -margin, 0);
    // Modifiers stand before the key in every language; only prompts follow the reading direction.
    const bool keys = recording_ ? title() == shortcutPlaceholder_ : shortcutValue_.has_value();
    painter.setLayoutDirection(keys ? Qt::LeftToRight : layoutDirection());
    painter.drawText(area, Qt::AlignCenter,
                     fontMetrics().elidedText(title(), Qt::ElideRight, area.width()));

    if (const QRect button = buttonRect(); !button.isEmpty()) {
        if (hinting_) {
            QColor hover = colors.color(group, QPalette::Text);
            hover.setAlphaF(0.12f);
            painter.setPen(Qt::NoPen);
            painter.setBrush(hover);
            painter.drawRoundedRect(QRectF(button).adjusted(1, 1, -1, -1), radius, radius);
        }
        drawGlyph(painter, button, buttonGlyph(), colors.color(group, QPalette::Text));
    }

    if (const QRect mark = warningRect(); !mark.isEmpty()) {
        drawWarningMark(painter, mark, warningColor(colors));
    }
}

} // namespace nerlo::shortcuts
