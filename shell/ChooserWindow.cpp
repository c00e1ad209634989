#include "shell/ChooserWindow.h"

#include "engine/Operations.h"
#include "shell/Controls.h"
#include "shell/Program.h"
#include "shell/Strings.h"
#include "shell/TextPanes.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <exception>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

constexpr QSize usualSize{600, 480};
constexpr int rowSpacing = 8;
constexpr int placeRole = Qt::UserRole; // of the item
// UTF-16 code units; of a longer text the beginning is shown.
constexpr std::size_t longest = 50'000;
// Keystrokes that follow each other closely make one preview.
constexpr auto settlesAfter = 30ms;
// Whoever has called the window may still hold the keys of its shortcut, and with them the
// keyboard.
constexpr auto grabAgainAfter = 15ms;
constexpr auto grabWithin = 3s;
constexpr auto activeWithin = 40ms;

// A dialog by its flags would belong to the program's other windows, and KWin would give one of
// them the focus afterwards.
constexpr Qt::WindowFlags common = Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint;

Qt::WindowFlags flagsFor(bool grabs) {
    return grabs ? common | Qt::BypassWindowManagerHint : common;
}

void becomeActive(QWidget &window) {
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED // for those who mean activateWindow()
        QApplication::setActiveWindow(&window);
    QT_WARNING_POP
}

QColor dimmed(const QPalette &palette) {
    QColor colour = palette.color(QPalette::Active, QPalette::WindowText);
    colour.setAlphaF(0.6F);
    return colour;
}

bool isListKey(int key) {
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

} // namespace

ChooserWindow::ChooserWindow(Program &program)
    : QWidget(nullptr, flagsFor(program.parts().desktop.backends->grabGetsAllKeys()))
    , program_(program)
    , mainQueue_(program.parts().mainQueue)
    , grabs_(program.parts().desktop.backends->grabGetsAllKeys())
    , items_(chooserItems(program.preferences()))
    , search_(new QLineEdit)
    , list_(new QTreeWidget)
    , before_(makeShownPane("chooserBefore", "sPreviewBefore", "sChooserBeforeTip"))
    , after_(makeShownPane("chooserAfter", "sPreviewAfter", "sChooserAfterTip"))
    , note_(new QLabel)
    , pointerSearch_(program.parts().desktop.popupLayer.backend.get(),
                     program.parts().desktop.pointerPlace.backend.get(), mainQueue_) {
    setObjectName("chooser");
    setWindowTitle(localized("sChooseForClipboard"));
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_X11NetWmWindowTypeDialog, !grabs_); // so that no window manager tiles it
    arrange();
    connect(search_, &QLineEdit::textChanged, this, &ChooserWindow::fill);
    connect(list_, &QTreeWidget::currentItemChanged, this, &ChooserWindow::schedulePreview);
    connect(list_, &QTreeWidget::itemDoubleClicked, this, [this] { choose(false); });
    fill({});
}

ChooserWindow::~ChooserWindow() {
    mainQueue_.cancel(pending_);
    mainQueue_.cancel(retry_);
}

void ChooserWindow::arrange() {
    describe(*search_, "chooserSearch", "sChooserSearch", "sChooserSearchTip");
    search_->setPlaceholderText(localized("sChooserSearch"));
    search_->installEventFilter(this);
    describe(*list_, "chooserList", "sChooserList", "sChooserListTip");
    setUpPairs(*list_);
    note_->setObjectName("chooserNote");
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(search_);
    layout->addWidget(list_, 3);
    auto *halves = new QHBoxLayout;
    const auto addHalf = [&](const char *key, QWidget *pane) {
        auto *half = new QVBoxLayout;
        auto *title = new QLabel(localized(key));
        title->setBuddy(pane);
        half->addWidget(title);
        half->addWidget(pane, 1);
        halves->addLayout(half, 1);
    };
    addHalf("sPreviewBefore", before_);
    addHalf("sPreviewAfter", after_);
    layout->addLayout(halves, 2);
    layout->addWidget(note_);
    const bool pastes = program_.parts().desktop.paster.backend != nullptr;
    auto *keys = new QLabel(localized(pastes ? "sChooserKeysPaste" : "sChooserKeys"));
    keys->setObjectName("chooserKeys");
    keys->setWordWrap(true);
    layout->addWidget(keys);
    note_->hide();
}

void ChooserWindow::open() {
    open_ = true;
    if (const auto &paster = program_.parts().desktop.paster.backend) {
        paster->remember();
    }
    program_.engine().readClipboardText(
        alive_.guard([this](std::optional<std::u16string> text) { setText(std::move(text)); }));
    pointerSearch_.start([this](QPoint pointer) {
        if (open_) {
            showAt(pointer);
        }
    });
}

void ChooserWindow::showAt(QPoint pointer) {
    const QScreen *screen = QGuiApplication::screenAt(pointer);
    if (!screen) {
        screen = QGuiApplication::primaryScreen();
    }
    const QRect room = screen ? screen->availableGeometry() : QRect(QPoint(), usualSize);
    resize(usualSize.boundedTo(room.size()));
    const auto kept = [](int at, int first, int size, int all) {
        return std::clamp(at, first, std::max(first, first + all - size));
    };
    move(kept(pointer.x(), room.x(), width(), room.width()),
         kept(pointer.y(), room.y(), height(), room.height()));
    search_->setFocus();
    show();
    raise();
    patience_ = mainQueue_.now() + grabWithin;
    takeKeyboard();
}

void ChooserWindow::takeKeyboard() {
    retry_ = 0;
    if (grabs_ && windowHandle()->setKeyboardGrabEnabled(true)) {
        windowHandle()->setMouseGrabEnabled(true); // a press anywhere else closes it
        stayActive();
    } else if (grabs_ && mainQueue_.now() < patience_) {
        retry_ = mainQueue_.postAfter(grabAgainAfter, [this] { takeKeyboard(); });
    } else {
        activateWindow();
    }
}

// Keys come by the grab. Under a compositor the toolkit is not told so, or hears of the X server's
// own focus, which does not count there.
void ChooserWindow::stayActive() {
    retry_ = mainQueue_.postAfter(activeWithin, [this] {
        retry_ = 0;
        if (!isActiveWindow()) {
            becomeActive(*this);
        }
    });
}

void ChooserWindow::fill(const QString &wanted) {
    const QSignalBlocker blocker(list_);
    list_->clear();
    const QColor dim = dimmed(palette());
    const QSize rowSize(0, fontMetrics().height() + rowSpacing);
    for (const std::size_t place : placesOf(items_, wanted)) {
        auto *row = new QTreeWidgetItem(list_, {items_[place].title, items_[place].kind});
        row->setData(0, placeRole, qulonglong(place));
        row->setSizeHint(0, rowSize);
        row->setForeground(1, dim);
        row->setTextAlignment(1, Qt::AlignTrailing | Qt::AlignVCenter);
    }
    list_->setCurrentItem(list_->topLevelItem(0));
    schedulePreview();
}

void ChooserWindow::setText(std::optional<std::u16string> text) {
    text_ = std::move(text);
    if (!text_) {
        note_->setText(localized("sPreviewNothing"));
    } else if (text_->size() > longest) {
        note_->setText(localized("sPreviewTooLong"));
    }
    note_->setVisible(!note_->text().isEmpty());
    schedulePreview();
}

std::optional<std::size_t> ChooserWindow::currentItem() const {
    const auto *row = list_->currentItem();
    return row ? std::optional(std::size_t{row->data(0, placeRole).toULongLong()}) : std::nullopt;
}

void ChooserWindow::schedulePreview() {
    const auto *row = list_->currentItem();
    // What a screen reader says of the list while the focus is in the field.
    search_->setAccessibleDescription(row ? row->text(0) + ", " + row->text(1) : QString());
    mainQueue_.cancel(pending_);
    pending_ = mainQueue_.postAfter(settlesAfter, [this] {
        pending_ = 0;
        runPreview();
    });
}

void ChooserWindow::runPreview() {
    const auto item = currentItem();
    if (previewRuns_ || !text_ || !item) {
        if (!item) {
            after_->clear();
        }
        return; // the end of the one that runs comes here again
    }
    previewRuns_ = true;
    auto done = alive_.guardOn(mainQueue_, [this, item](std::optional<Preview> preview) {
        previewRuns_ = false;
        if (preview) {
            showPreview(std::move(*preview));
        }
        if (currentItem() != item) {
            runPreview();
        }
    });
    program_.parts().workerQueue.post([done = std::move(done), item = *item,
                                       choice = items_[*item].choice, locale = program_.locale(),
                                       text = text_->substr(0, longest),
                                       whole = text_->size() <= longest, words = leftOutWords()] {
        try {
            engine::CleaningReport report;
            const engine::CleaningContext context{
                .options = *choice.options, .locale = locale, .report = &report};
            std::u16string cleaned = choice.operation
                                         ? engine::runOperation(*choice.operation, text, context)
                                         : engine::runPipeline(text, context);
            Preview preview{
                item,
                shownChanges(text, cleaned, text::differenceOf(text, cleaned, SIZE_MAX), words),
                nullptr};
            if (whole && report.empty()) {
                preview.whole = std::make_shared<const std::pair<std::u16string, std::u16string>>(
                    text, std::move(cleaned));
            }
            done(std::optional(std::move(preview)));
        } catch (const std::exception &) {
            done(std::optional<Preview>()); // out of memory, in practice
        }
    });
}

void ChooserWindow::showPreview(Preview preview) {
    preview_ = std::move(preview);
    before_->setPlainText(preview_.shown.before.text);
    after_->setPlainText(preview_.shown.after.text);
    mark();
}

void ChooserWindow::mark() {
    markChanges(*before_, TextSide::before, preview_.shown.before);
    markChanges(*after_, TextSide::after, preview_.shown.after);
}

void ChooserWindow::choose(bool paste) {
    const auto item = currentItem();
    if (!item || !text_) {
        QApplication::beep();
        return;
    }
    auto choice = items_[*item].choice;
    if (preview_.item == *item) {
        choice.known = preview_.whole;
    }
    close();
    program_.engine().changePasteboard(std::move(choice), alive_.guard([this, paste](bool done) {
        const auto &paster = program_.parts().desktop.paster.backend;
        if (done && paste && paster) {
            paster->paste([](bool) {}); // else the text is on the clipboard all the same
        }
    }));
}

bool ChooserWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == search_ && event->type() == QEvent::KeyPress &&
        isListKey(static_cast<QKeyEvent *>(event)->key())) {
        QApplication::sendEvent(list_, event);
        return true;
    }
    if (watched == search_ && event->type() == QEvent::KeyRelease) {
        keyReleaseEvent(static_cast<QKeyEvent *>(event)); // the field keeps these for itself
    }
    return QWidget::eventFilter(watched, event);
}

void ChooserWindow::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pastesOnRelease_ = shiftHeld_;
        if (!pastesOnRelease_) {
            choose(event->modifiers() & Qt::ShiftModifier);
        }
        break;
    case Qt::Key_Shift:
        shiftHeld_ = true;
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

// A key that is still held would make other keys of those for pasting, and some desktops tell only
// the window in front that it is released.
void ChooserWindow::keyReleaseEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Shift) {
        shiftHeld_ = false;
        if (std::exchange(pastesOnRelease_, false)) {
            choose(true);
        }
    }
    QWidget::keyReleaseEvent(event);
}

void ChooserWindow::mousePressEvent(QMouseEvent *event) {
    if (!rect().contains(event->position().toPoint())) {
        close();
    }
}

void ChooserWindow::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        const bool lost = std::exchange(wasActive_, isActiveWindow()) && !isActiveWindow();
        if (open_ && lost && grabs_) {
            stayActive();
        } else if (open_ && lost) {
            close();
        }
    } else if (event->type() == QEvent::PaletteChange) {
        mark();
    }
}

void ChooserWindow::closeEvent(QCloseEvent *event) {
    open_ = false;
    pointerSearch_.stop();
    mainQueue_.cancel(std::exchange(retry_, 0));
    if (grabs_ && windowHandle()) {
        windowHandle()->setMouseGrabEnabled(false);
        windowHandle()->setKeyboardGrabEnabled(false);
    }
    QWidget::closeEvent(event);
}

void ChooserWindow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace nerlo::shell
