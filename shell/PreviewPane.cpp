#include "shell/PreviewPane.h"

#include "shell/Controls.h"
#include "shell/Program.h"
#include "shell/StepNames.h"
#include "shell/Strings.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <chrono>
#include <exception>
#include <functional>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

// Keystrokes that follow each other closely make one clean.
constexpr auto settlesAfter = 120ms;
constexpr int fewestRows = 3; // of the steps
constexpr int textStretch = 3;
constexpr int stepsStretch = 2; // below the texts

// A long text would take seconds to be laid out, and never gets that far.
class TypedText final : public QPlainTextEdit {
  public:
    std::function<void(const QString &text)> tooLong;

  protected:
    void insertFromMimeData(const QMimeData *source) override {
        const QString text = source->text();
        if (static_cast<std::size_t>(document()->characterCount() + text.size()) <= shownWhole) {
            QPlainTextEdit::insertFromMimeData(source);
            return;
        }
        const QTextCursor cursor = textCursor();
        QString all = textOf(*this);
        all.replace(cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart(), text);
        tooLong(all);
    }
};

void setNames(QTreeWidgetItem &row, const QString &name, std::size_t changes) {
    const QString number = QLocale().toString(static_cast<qulonglong>(changes));
    const QString spoken = filled(localized("sPreviewStep"), {name, number});
    row.setText(0, name);
    row.setText(1, number);
    row.setTextAlignment(1, Qt::AlignTrailing | Qt::AlignVCenter);
    row.setData(0, Qt::AccessibleTextRole, spoken);
    row.setToolTip(0, Qt::convertFromPlainText(spoken)); // the name may not have room
}

} // namespace

PreviewPane::PreviewPane(Program &program)
    : program_(program)
    , mainQueue_(program.parts().mainQueue)
    , halves_(new QBoxLayout(QBoxLayout::TopToBottom))
    , typed_(new TypedText)
    , before_(makeShownPane("previewShownBefore", "sPreviewBefore", "sPreviewShownBeforeTip"))
    , befores_(new QStackedWidget)
    , after_(makeShownPane("previewAfter", "sPreviewAfter", "sPreviewAfterTip"))
    , note_(new QLabel)
    , take_(new QPushButton(localized("sPreviewTake")))
    , clear_(new QPushButton(localized("sPreviewClear")))
    , apply_(new QPushButton(localized("sPreviewApply")))
    , steps_(new QTreeWidget) {
    describeParts();
    arrange();
    typed_->setPlainText(localized("sPreviewSample"));
    fillSteps({});
    connectParts();
}

PreviewPane::~PreviewPane() {
    stop_.request_stop();
    mainQueue_.cancel(pending_);
}

void PreviewPane::describeParts() {
    setObjectName("preview");
    setAccessibleName(localized("sPreview"));
    setAccessibleDescription(localized("sPreviewTip"));
    setUpTextPane(*typed_, "previewBefore", "sPreviewBefore", "sPreviewBeforeTip");
    typed_->setPlaceholderText(localized("sPreviewPlaceholder"));
    note_->setObjectName("previewNote");
    note_->setTextFormat(Qt::PlainText);
    note_->setWordWrap(true);
    note_->hide();
    describe(*take_, "previewTake", "sPreviewTake", "sPreviewTakeTip");
    describe(*clear_, "previewClear", "sPreviewClear", "sPreviewClearTip");
    clear_->hide();
    describe(*apply_, "previewApply", "sPreviewApply", "sPreviewApplyTip");
    describe(*steps_, "previewSteps", "sPreviewSteps", "sPreviewStepsTip");
}

void PreviewPane::arrange() {
    setUpPairs(*steps_);
    steps_->setMinimumHeight(fewestRows * (fontMetrics().height() + 6));
    befores_->addWidget(typed_);
    befores_->addWidget(before_);

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addLayout(halves_, 1);
    all->addWidget(note_);
    const auto addPart = [this](const char *key, QWidget *part, QWidget *buddy, int stretch) {
        auto *box = new QVBoxLayout;
        auto *title = new QLabel(localized(key));
        title->setBuddy(buddy);
        box->addWidget(title);
        box->addWidget(part, 1);
        halves_->addLayout(box, stretch);
        return box;
    };
    auto *before = addPart("sPreviewBefore", befores_, typed_, textStretch);
    before->addWidget(clear_);
    before->addWidget(take_);
    auto *after = addPart("sPreviewAfter", after_, after_, textStretch);
    after->addWidget(apply_);
    addPart("sPreviewSteps", steps_, steps_, stepsStretch);
}

void PreviewPane::connectParts() {
    for (QPlainTextEdit *pane : {typed_, before_, after_}) {
        pane->viewport()->installEventFilter(this);
    }
    steps_->installEventFilter(this);
    steps_->viewport()->installEventFilter(this);
    connect(steps_, &QTreeWidget::itemClicked, this, [this] {
        if (chosenAtPress_) {
            showAllSteps();
        }
    });
    static_cast<TypedText *>(typed_)->tooLong = [this](const QString &text) {
        setBefore(text.toStdU16String());
    };
    connect(typed_, &QPlainTextEdit::textChanged, this, [this] {
        ++edits_;
        if (static_cast<std::size_t>(typed_->document()->characterCount()) > shownWhole + 1) {
            setBefore(textOf(*typed_).toStdU16String());
        }
        schedule();
    });
    connect(take_, &QPushButton::clicked, this, &PreviewPane::takeFromClipboard);
    connect(clear_, &QPushButton::clicked, this, &PreviewPane::beginAnew);
    connect(apply_, &QPushButton::clicked, this, [this] { program_.clean(); });
    connect(steps_, &QTreeWidget::currentItemChanged, this, [this] {
        showTexts();
        showFirstChange();
    });
}

void PreviewPane::takeFromClipboard() {
    program_.engine().readClipboardText(alive_.guard([this](std::optional<std::u16string> text) {
        nothingThere_ = !text;
        if (text) {
            setBefore(std::move(*text));
        }
        tell();
    }));
}

void PreviewPane::beginAnew() {
    setBefore({});
    typed_->setFocus();
}

void PreviewPane::setOptions(storage::PropertyDictionary options) {
    if (options == options_) {
        return;
    }
    options_ = std::move(options);
    schedule();
}

void PreviewPane::setBefore(std::u16string text) {
    ++edits_;
    if (text.size() > shownWhole) {
        long_ = std::make_shared<const std::u16string>(std::move(text));
        all_ = {};
        typed_->clear();
    } else {
        long_ = nullptr;
        typed_->setPlainText(QString::fromStdU16String(text));
    }
    clear_->setVisible(long_ != nullptr);
    made_ = {};
    fillSteps({});
    tell();
    schedule();
}

void PreviewPane::setSideBySide(bool sideBySide) {
    halves_->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    halves_->setStretch(2, sideBySide ? textStretch : stepsStretch);
    layout()->invalidate(); // it is asked for its size at once
}

QString PreviewPane::after() const {
    return textOf(*after_);
}

QString PreviewPane::reasonsAt(int place) const {
    return titlesOf(stepsAt(TextSide::after, place));
}

std::vector<StepId> PreviewPane::stepsAt(TextSide side, int place) const {
    const auto at = static_cast<std::size_t>(std::max(place, 0));
    const ShownText &text = side == TextSide::before ? shown().before : shown().after;
    if (const PreviewStep *step = chosenStep()) {
        const bool marked = std::ranges::any_of(text.marked, [&](const TextSpan &span) {
            return span.start <= at && at < span.start + span.length;
        });
        return marked ? std::vector{step->id} : std::vector<StepId>();
    }
    const std::size_t unit = text.placeOf(at);
    std::vector<StepId> found;
    for (const PreviewReason &reason : made_.reasons) {
        const text::Range &range = side == TextSide::before ? reason.source : reason.result;
        if (range.begin <= unit && unit < range.end) {
            found.push_back(reason.id);
        }
    }
    return found;
}

QString PreviewPane::titlesOf(const std::vector<StepId> &steps) {
    QStringList names;
    for (const StepId &id : steps) {
        names += stepTitle(*id.operation, id.rule);
    }
    names.removeDuplicates();
    return names.join('\n');
}

bool PreviewPane::eventFilter(QObject *watched, QEvent *event) {
    for (QPlainTextEdit *pane : {typed_, before_, after_}) {
        if (watched == pane->viewport() && textEvent(*pane, event)) {
            return true;
        }
    }
    const bool ofSteps = watched == steps_ || watched == steps_->viewport();
    return (ofSteps && stepsEvent(event)) || QWidget::eventFilter(watched, event);
}

bool PreviewPane::textEvent(QPlainTextEdit &pane, QEvent *event) {
    // The character under the pointer, not the gap that is nearest to it.
    const auto stepsUnder = [&](const QPoint &point) {
        QTextCursor cursor = pane.cursorForPosition(point);
        const bool behind = pane.cursorRect(cursor).left() > point.x();
        return stepsAt(&pane == after_ ? TextSide::after : TextSide::before,
                       cursor.position() - (behind ? 1 : 0));
    };
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString names = titlesOf(stepsUnder(help->pos()));
        if (!names.isEmpty()) {
            QToolTip::showText(help->globalPos(), names, &pane);
            return true;
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const auto steps = stepsUnder(mouse->position().toPoint());
        // A selection is made to be copied.
        if (mouse->button() == Qt::LeftButton && !steps.empty() &&
            !pane.textCursor().hasSelection()) {
            emit optionAsked(std::string(steps.front().operation->hotKey));
        }
    }
    return false;
}

bool PreviewPane::stepsEvent(QEvent *event) {
    if (event->type() == QEvent::MouseButtonPress) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const auto *row = steps_->itemAt(mouse->position().toPoint());
        chosenAtPress_ = row && row == steps_->currentItem();
    } else if (event->type() == QEvent::KeyPress && chosenStep()) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter ||
            key == Qt::Key_Escape) {
            showAllSteps();
            return true;
        }
    }
    return false;
}

void PreviewPane::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    schedule();
}

void PreviewPane::hideEvent(QHideEvent *event) {
    QWidget::hideEvent(event);
    stop_.request_stop();
}

void PreviewPane::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        markShown();
    }
}

void PreviewPane::schedule() {
    stop_.request_stop();
    // While the pane is hidden there is nothing to clean for it.
    if (!isVisible()) {
        return;
    }
    mainQueue_.cancel(pending_);
    pending_ = mainQueue_.postAfter(settlesAfter, [this] {
        pending_ = 0;
        run();
    });
}

void PreviewPane::run() {
    if (running_) {
        changedMeanwhile_ = true;
        return;
    }
    running_ = true;
    changedMeanwhile_ = false;
    nothingThere_ = false;
    stop_ = std::stop_source();
    const auto text =
        long_ ? long_ : std::make_shared<const std::u16string>(textOf(*typed_).toStdU16String());
    auto changed = alive_.guardOn(mainQueue_, [this, edit = edits_](ShownChanges changes) {
        changesMade(std::move(changes), edit);
    });
    auto ended = alive_.guardOn(mainQueue_, [this](std::optional<PreviewSteps> made) {
        running_ = false;
        if (made) {
            stepsMade(std::move(*made));
        }
        if (changedMeanwhile_) {
            run();
        }
    });
    auto tried = alive_.guardOn(mainQueue_, [this](const std::vector<settings::RuleTrial> &trials) {
        emit rulesTried(trials);
    });
    program_.parts().workerQueue.post(
        [changed = std::move(changed), tried = std::move(tried), ended = std::move(ended),
         job = PreviewJob{text, options_, program_.locale(), leftOutWords(), stop_.get_token()}] {
            std::optional<PreviewSteps> made;
            try {
                if (auto changes = previewChanges(job)) {
                    changed(std::move(*changes));
                    if (auto trials = previewRules(job)) {
                        tried(std::move(*trials));
                        made = previewSteps(job);
                    }
                }
            } catch (const std::exception &) {
                // Only for want of memory. The preview stays as it was.
            }
            ended(std::move(made));
        });
}

void PreviewPane::changesMade(ShownChanges changes, int edit) {
    all_ = std::move(changes);
    shownEdit_ = edit;
    made_.reasons.clear(); // they are places in other texts
    setNames(*steps_->topLevelItem(0), localized("sPreviewAllSteps"), all_.changes);
    if (long_ && made_.steps.empty() && steps_->topLevelItemCount() == 1 && all_.changes > 0) {
        // They take a while.
        (new QTreeWidgetItem(steps_, {QString(u'…')}))->setFlags(Qt::NoItemFlags);
    }
    if (!chosenStep()) {
        showTexts();
    }
}

void PreviewPane::stepsMade(PreviewSteps made) {
    const auto chosen = chosenStep() ? std::optional(chosenStep()->id) : std::nullopt;
    made_ = std::move(made);
    fillSteps(chosen);
    tell();
}

const PreviewStep *PreviewPane::chosenStep() const {
    const int row = steps_->indexOfTopLevelItem(steps_->currentItem());
    const auto step = static_cast<std::size_t>(row - 1);
    return row > 0 && step < made_.steps.size() ? &made_.steps[step] : nullptr;
}

const ShownChanges &PreviewPane::shown() const {
    const PreviewStep *step = chosenStep();
    return step ? step->shown : all_;
}

void PreviewPane::fillSteps(std::optional<StepId> chosen) {
    {
        const QSignalBlocker blocker(steps_);
        steps_->clear();
        auto *row = new QTreeWidgetItem(steps_);
        setNames(*row, localized("sPreviewAllSteps"), all_.changes);
        steps_->setCurrentItem(row);
        for (const PreviewStep &step : made_.steps) {
            row = new QTreeWidgetItem(steps_);
            setNames(*row, stepTitle(*step.id.operation, step.id.rule), step.shown.changes);
            if (step.id == chosen) {
                steps_->setCurrentItem(row);
            }
        }
    }
    showTexts();
}

void PreviewPane::showAllSteps() {
    steps_->setCurrentItem(steps_->topLevelItem(0));
}

void PreviewPane::showTexts() {
    const ShownChanges &now = shown();
    if (!isEditing()) {
        setShownText(*before_, now.before.text);
    }
    befores_->setCurrentWidget(isEditing() ? typed_ : before_);
    setShownText(*after_, now.after.text);
    markShown();
}

void PreviewPane::showFirstChange() {
    if (!chosenStep()) {
        return;
    }
    const auto showFirst = [](QPlainTextEdit &pane, const ShownText &text) {
        if (!text.marked.empty()) {
            QTextCursor cursor = pane.textCursor();
            cursor.setPosition(static_cast<int>(text.marked.front().start));
            pane.setTextCursor(cursor);
            pane.ensureCursorVisible();
        }
    };
    showFirst(*before_, shown().before);
    showFirst(*after_, shown().after);
}

void PreviewPane::markShown() {
    markChanges(*after_, TextSide::after, shown().after);
    if (isEditing()) {
        const bool same = edits_ == shownEdit_ && all_.before.leftOut.empty();
        markChanges(*typed_, TextSide::before, same ? all_.before : ShownText());
    } else {
        markChanges(*before_, TextSide::before, shown().before);
    }
}

// What the texts do not say themselves.
void PreviewPane::tell() {
    QStringList notes;
    if (nothingThere_) {
        notes += localized("sPreviewNothing");
    }
    if (long_) {
        notes += localized("sPreviewLong");
    }
    if (made_.marksAteTags) {
        notes += filled(localized("sPreviewMarksAteTags"),
                        {localized("sRemoveReplyQuotes"), localized("sRemoveHTMLTags")});
    }
    note_->setText(notes.join('\n'));
    note_->setVisible(!notes.isEmpty());
    fitNote();
}

// A splitter does not ask how high a text of this width is.
void PreviewPane::fitNote() {
    note_->setMinimumHeight(std::max(0, note_->heightForWidth(width())));
}

void PreviewPane::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    fitNote();
}

} // namespace nerlo::shell
