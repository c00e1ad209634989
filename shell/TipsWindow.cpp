#include "shell/TipsWindow.h"

#include "shell/Controls.h"
#include "shell/Mnemonics.h"
#include "shell/ScreenRoom.h"
#include "shell/Strings.h"

#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <string>
#include <utility>

namespace nerlo::shell {

namespace {

constexpr int tips = 6;
constexpr QSize pictureSize{480, 270};
constexpr int dotSize = 9;
constexpr int dotDistance = 18;

QString textOf(int page, const char *part) {
    return localized("sTip" + std::to_string(page + 1) + part);
}

} // namespace

PageDots::PageDots(int count)
    : count_(count) {}

void PageDots::setCurrent(int page) {
    current_ = page;
    update();
}

QSize PageDots::sizeHint() const {
    return {count_ * dotDistance, dotDistance};
}

void PageDots::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int page = 0; page < count_; ++page) {
        const int place = isRightToLeft() ? count_ - 1 - page : page;
        QRectF dot(0, 0, dotSize, dotSize);
        dot.moveCenter(QPointF((place + 0.5) * width() / count_, height() / 2.0));
        // Of the text's colour, to be seen on light and dark alike.
        QColor other = palette().color(QPalette::WindowText);
        other.setAlphaF(0.3F);
        painter.setPen(Qt::NoPen);
        painter.setBrush(page == current_ ? palette().color(QPalette::Highlight) : other);
        painter.drawEllipse(dot);
    }
}

void PageDots::mousePressEvent(QMouseEvent *event) {
    const int place = std::clamp(
        static_cast<int>(event->position().x()) * count_ / std::max(1, width()), 0, count_ - 1);
    emit clicked(isRightToLeft() ? count_ - 1 - place : place);
}

TipsWindow::TipsWindow(bool atEachStart, std::function<void(bool)> closed)
    : closed_(std::move(closed))
    , picture_(new QLabel)
    , title_(new QLabel)
    , text_(new QLabel)
    , notice_(new QLabel)
    , question_(makeQuestion())
    , dots_(new PageDots(tips))
    , previous_(new QPushButton(localized("sTipsPrevious")))
    , next_(new QPushButton)
    , atEachStart_(new QCheckBox(localized("sTipsAtStart"))) {
    setObjectName("tipsWindow");
    setWindowTitle(localized(Table::menu, "Tips"));
    atEachStart_->setChecked(atEachStart);
    describeParts();
    layOut();
    connectButtons();
    showPage();
}

void TipsWindow::describeParts() {
    picture_->setFixedSize(pictureSize);
    picture_->setAlignment(Qt::AlignCenter);
    QFont font = title_->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.4);
    title_->setFont(font);
    title_->setObjectName("tipTitle");
    title_->setAlignment(Qt::AlignCenter);
    title_->setWordWrap(true);
    text_->setObjectName("tipText");
    text_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    text_->setWordWrap(true);
    previous_->setObjectName("tipsPrevious");
    next_->setObjectName("tipsNext");
    dots_->setObjectName("tipsDots");
    dots_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    notice_->setObjectName("tipNotice");
    notice_->setAlignment(Qt::AlignCenter);
    notice_->setWordWrap(true);
    notice_->setFixedWidth(pictureSize.width());
    notice_->hide();
    atEachStart_->setObjectName("tipsAtStart");
    atEachStart_->setAccessibleName(atEachStart_->text());
    setTip(*atEachStart_, localized("sTipsAtStartTip"));
    std::set<QChar> used;
    const auto texts = withMnemonics({previous_->text(), atEachStart_->text()}, used);
    previous_->setText(texts[0]);
    atEachStart_->setText(texts[1]);
    next_->setDefault(true);
}

void TipsWindow::layOut() {
    // As much room as the longest tip needs, so that nothing moves when the page is turned.
    int textHeight = 0;
    text_->setFixedWidth(pictureSize.width());
    for (int page = 0; page < tips; ++page) {
        text_->setText(textOf(page, "Text"));
        textHeight = std::max(textHeight, text_->heightForWidth(pictureSize.width()));
    }
    text_->setMinimumHeight(textHeight);

    auto *layout = new QVBoxLayout(this);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setSpacing(12);
    layout->addWidget(picture_, 0, Qt::AlignHCenter);
    layout->addWidget(title_);
    layout->addWidget(text_);
    layout->addWidget(notice_, 0, Qt::AlignHCenter);
    layout->addWidget(question_);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(previous_);
    buttons->addStretch();
    buttons->addWidget(dots_);
    buttons->addStretch();
    buttons->addWidget(next_);
    layout->addLayout(buttons);
    layout->addWidget(atEachStart_);
    // On a small screen the picture gives way.
    const int missing = std::max(0, sizeHint().height() - screenRoom(*this).height());
    picture_->setFixedHeight(std::max(pictureSize.height() / 3, pictureSize.height() - missing));
}

void TipsWindow::connectButtons() {
    connect(previous_, &QPushButton::clicked, this, [this] { setPage(page_ - 1); });
    connect(next_, &QPushButton::clicked, this, [this] {
        if (page_ + 1 < tips) {
            setPage(page_ + 1);
        } else {
            close();
        }
    });
    connect(dots_, &PageDots::clicked, this, &TipsWindow::setPage);
    // The arrow keys turn the pages; a button that has the focus would move it to the next button.
    for (QWidget *focus : {static_cast<QWidget *>(this), static_cast<QWidget *>(previous_),
                           static_cast<QWidget *>(next_), static_cast<QWidget *>(atEachStart_)}) {
        focus->installEventFilter(this);
    }
}

QWidget *TipsWindow::makeQuestion() {
    auto *question = new QGroupBox(localized("sFirstRules"));
    question->setObjectName("firstRules");
    auto *layout = new QVBoxLayout(question);
    const auto add = [&](const char *name, const char *key) {
        auto *button = new QRadioButton(localized(key));
        button->setObjectName(name);
        button->setAccessibleName(button->text());
        layout->addWidget(button);
        return button;
    };
    allRules_ = add("firstRulesAll", "sFirstRulesAll");
    QRadioButton *gentle = add("firstRulesGentle", "sFirstRulesGentle");
    allRules_->setChecked(true);
    connect(gentle, &QRadioButton::toggled, this, [this](bool on) {
        if (rulesChosen_) {
            rulesChosen_(on);
        }
    });
    question->hide();
    return question;
}

void TipsWindow::askForRules(std::function<void(bool)> chosen) {
    rulesChosen_ = nullptr;
    allRules_->setChecked(true);
    rulesChosen_ = std::move(chosen);
    // Where it asks, the other pages are as high, so that nothing moves when the page is turned.
    QSizePolicy policy = question_->sizePolicy();
    policy.setRetainSizeWhenHidden(static_cast<bool>(rulesChosen_));
    question_->setSizePolicy(policy);
    showPage();
}

void TipsWindow::setNotice(const QString &text) {
    notice_->setText(text);
    QSizePolicy policy = notice_->sizePolicy();
    policy.setRetainSizeWhenHidden(!text.isEmpty());
    notice_->setSizePolicy(policy);
    showPage();
}

int TipsWindow::count() {
    return tips;
}

void TipsWindow::setPage(int page) {
    page_ = std::clamp(page, 0, tips - 1);
    showPage();
}

void TipsWindow::showPage() {
    const QIcon picture(":/tips/tip" + QString::number(page_ + 1) + ".svg");
    picture_->setPixmap(picture.pixmap(picture_->size(), devicePixelRatioF()));
    title_->setText(textOf(page_, "Title"));
    text_->setText(textOf(page_, "Text"));
    picture_->setAccessibleName(title_->text());
    dots_->setCurrent(page_);
    dots_->setAccessibleName(
        localized("sTipsPage").arg(locale().toString(page_ + 1), locale().toString(tips)));
    question_->setVisible(page_ == 0 && rulesChosen_);
    notice_->setVisible(page_ == 0 && !notice_->text().isEmpty());
    previous_->setEnabled(page_ > 0);
    const QString next = localized(page_ + 1 < tips ? "sTipsNext" : "sTipsDone");
    next_->setText(next);
    next_->setAccessibleName(next);
    setAccessibleDescription(title_->text() + ". " + text_->text());
}

bool TipsWindow::eventFilter(QObject *, QEvent *event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int forward = isRightToLeft() ? -1 : 1;
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Right:
        setPage(page_ + forward);
        return true;
    case Qt::Key_Left:
        setPage(page_ - forward);
        return true;
    case Qt::Key_PageDown:
        setPage(page_ + 1);
        return true;
    case Qt::Key_PageUp:
        setPage(page_ - 1);
        return true;
    default:
        return false;
    }
}

void TipsWindow::hideEvent(QHideEvent *event) {
    QDialog::hideEvent(event);
    if (!event->spontaneous() && closed_) {
        closed_(atEachStart_->isChecked());
    }
}

void TipsWindow::changeEvent(QEvent *event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        showPage();
    }
}

} // namespace nerlo::shell
