#include "shell/ShortcutPage.h"

#include "shell/Controls.h"
#include "shell/Strings.h"
#include "shortcuts/view/WarningMark.h"

#include <QApplication>
#include <QGridLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QVBoxLayout>
#include <algorithm>

namespace nerlo::shell {

namespace {

QLabel *makeHeading(const QString &page) {
    auto *heading = new QLabel(page);
    QFont font = heading->font();
    font.setBold(true);
    heading->setFont(font);
    heading->setContentsMargins(0, 10, 0, 0);
    return heading;
}

} // namespace

ShortcutPage::ShortcutPage(ShortcutList &list, const RecorderMaker &makeRecorder)
    : list_(list)
    , makeRecorder_(makeRecorder)
    , resetAll_(new QPushButton(localized("sShortcutsReset")))
    , layout_(new QVBoxLayout) {
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    layout->setSpacing(2);
    describe(*resetAll_, "resetShortcuts", "sShortcutsReset", "sShortcutsResetTip");
    layout->addWidget(resetAll_, 0, Qt::AlignTrailing);
    connect(resetAll_, &QPushButton::clicked, this, [this] {
        list_.resetAll();
        emit resetDone();
    });
    layout_->setSpacing(2);
    layout->addLayout(layout_);
    layout->addStretch();
    addRows(list.commands());
    makeStop(rows_.front().recorder);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *now) {
        if (std::ranges::find(rows_, now, &Row::recorder) != rows_.end()) {
            makeStop(now);
        }
    });
}

void ShortcutPage::addRows(std::span<const ListedCommand> commands) {
    QLabel *heading = nullptr;
    for (const ListedCommand &command : commands) {
        if (!heading || heading->text() != command.page) {
            heading = makeHeading(command.page);
            layout_->addWidget(heading);
        }
        addRow(command, heading);
        layout_->addWidget(rows_.back().widget);
    }
}

void ShortcutPage::addRow(const ListedCommand &command, QLabel *heading) {
    auto *widget = new QWidget;
    auto *grid = new QGridLayout(widget);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(0, 1);
    auto *title = new QLabel(command.title);
    title->setTextFormat(Qt::PlainText);
    if (selectsProfile(command)) { // whatever its name is, the row is no wider than the page
        title->setWordWrap(true);
        auto policy = title->sizePolicy();
        policy.setHorizontalPolicy(QSizePolicy::Ignored);
        title->setSizePolicy(policy);
    }
    setTip(*title, command.tip);
    grid->addWidget(title, 0, 0);
    auto *reset = new QToolButton;
    reset->setAutoRaise(true);
    reset->setIcon(shortcuts::resetIcon());
    describeAs(*reset, "reset." + QString::fromStdString(command.hotKey),
               filled(localized("sShortcutReset"), {command.title}),
               localized("sShortcutResetTip"));
    auto kept = reset->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    reset->setSizePolicy(kept);
    grid->addWidget(reset, 0, 1);
    QWidget *recorder = shell::makeRecorder(makeRecorder_, command.hotKey, command.title, *widget);
    recorder->setObjectName("listed." + QString::fromStdString(command.hotKey));
    grid->addWidget(recorder, 0, 2);
    auto *conflict = makeProblem();
    grid->addWidget(conflict, 1, 0, 1, 3);
    rows_.push_back({command, heading, widget, conflict, reset, recorder});
    show(rows_.back());
    connect(reset, &QToolButton::clicked, this, [this, command, recorder] {
        recorder->setFocus(); // the button goes
        list_.reset(command);
    });
}

void ShortcutPage::update(std::string_view hotKey) {
    const auto row = std::ranges::find_if(
        rows_, [&](const Row &candidate) { return candidate.command.hotKey == hotKey; });
    if (row != rows_.end()) {
        show(*row);
    }
}

void ShortcutPage::show(const Row &row) {
    showProblem(*row.conflict, list_.conflict(row.command.hotKey));
    row.reset->setVisible(!list_.isAsAtFirst(row.command));
    resetAll_->setEnabled(
        std::ranges::any_of(rows_, [](const Row &other) { return !other.reset->isHidden(); }));
}

// Their rows are the last ones.
void ShortcutPage::profilesChanged() {
    const auto isProfile = [](const Row &row) { return selectsProfile(row.command); };
    const auto first = std::ranges::find_if(rows_, isProfile);
    const auto &commands = list_.commands();
    const auto firstCommand = std::ranges::find_if(commands, selectsProfile);
    if (std::ranges::equal(first, rows_.end(), firstCommand, commands.end(), {}, &Row::command)) {
        return;
    }
    if (first != rows_.end()) {
        delete first->heading;
        std::ranges::for_each(first, rows_.end(), [](const Row &row) { delete row.widget; });
        rows_.erase(first, rows_.end());
    }
    addRows({firstCommand, commands.end()});
    makeStop(rows_.front().recorder);
    filter(words_);
}

bool ShortcutPage::filter(const QStringList &words) {
    words_ = words;
    for (const Row &row : rows_) {
        row.heading->hide();
    }
    for (const Row &row : rows_) {
        const bool matches = list_.matches(row.command, words);
        row.widget->setVisible(matches);
        row.heading->setVisible(matches || !row.heading->isHidden());
    }
    const auto shown = shownRows();
    const bool stopIsShown = std::ranges::any_of(
        shown, [](const Row *row) { return row->recorder->focusPolicy() == Qt::StrongFocus; });
    if (!shown.empty() && !stopIsShown) {
        makeStop(shown.front()->recorder);
    }
    return !shown.empty();
}

std::vector<const ShortcutPage::Row *> ShortcutPage::shownRows() const {
    std::vector<const Row *> shown;
    for (const Row &row : rows_) {
        if (!row.widget->isHidden()) {
            shown.push_back(&row);
        }
    }
    return shown;
}

// The only one that the Tab key stops at: nobody wants to go through all rows to get past the list.
void ShortcutPage::makeStop(const QWidget *recorder) {
    for (const Row &row : rows_) {
        const auto policy = row.recorder == recorder ? Qt::StrongFocus : Qt::ClickFocus;
        row.recorder->setFocusPolicy(policy);
        row.reset->setFocusPolicy(policy);
    }
}

void ShortcutPage::keyPressEvent(QKeyEvent *event) {
    const auto shown = shownRows();
    const auto current = std::ranges::find(shown, QApplication::focusWidget(), &Row::recorder);
    if (current == shown.end()) {
        QWidget::keyPressEvent(event);
        return;
    }
    auto next = current;
    switch (event->key()) {
    case Qt::Key_Up:
        next = current == shown.begin() ? current : current - 1;
        break;
    case Qt::Key_Down:
        next = current + 1 == shown.end() ? current : current + 1;
        break;
    case Qt::Key_Home:
        next = shown.begin();
        break;
    case Qt::Key_End:
        next = shown.end() - 1;
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    (*next)->recorder->setFocus(Qt::TabFocusReason);
    for (QWidget *above = parentWidget(); above; above = above->parentWidget()) {
        if (auto *scroll = qobject_cast<QScrollArea *>(above)) {
            scroll->ensureWidgetVisible((*next)->recorder);
        }
    }
}

} // namespace nerlo::shell
