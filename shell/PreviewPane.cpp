#include "shell/PreviewPane.h"

#include "engine/CleaningOptions.h"
#include "settings/LinkRulesFile.h"
#include "shell/Controls.h"
#include "shell/Program.h"
#include "shell/Strings.h"
#include "shell/TextPanes.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

// Keystrokes that follow each other closely make one clean.
constexpr auto settlesAfter = 120ms;
// UTF-16 code units. A longer text would make the window slow, and nobody reads it here.
constexpr qsizetype longest = 50'000;

} // namespace

PreviewPane::PreviewPane(Program &program)
    : program_(program)
    , mainQueue_(program.parts().mainQueue)
    , halves_(new QBoxLayout(QBoxLayout::TopToBottom, this))
    , before_(makeTextPane("previewBefore", "sPreviewBefore", "sPreviewBeforeTip"))
    , after_(makeTextPane("previewAfter", "sPreviewAfter", "sPreviewAfterTip"))
    , note_(new QLabel)
    , take_(new QPushButton(localized("sPreviewTake")))
    , apply_(new QPushButton(localized("sPreviewApply"))) {
    setObjectName("preview");
    setAccessibleName(localized("sPreview"));
    setAccessibleDescription(localized("sPreviewTip"));
    before_->setPlaceholderText(localized("sPreviewPlaceholder"));
    before_->setPlainText(localized("sPreviewSample"));
    after_->setReadOnly(true);
    // Also without a mouse, to be read and copied.
    after_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    note_->setObjectName("previewNote");
    note_->setWordWrap(true);
    note_->hide();
    describe(*take_, "previewTake", "sPreviewTake", "sPreviewTakeTip");
    describe(*apply_, "previewApply", "sPreviewApply", "sPreviewApplyTip");

    halves_->setContentsMargins(0, 0, 0, 0);
    const auto addHalf = [this](const char *key, QWidget *text) {
        auto *half = new QVBoxLayout;
        auto *title = new QLabel(localized(key));
        title->setBuddy(text);
        half->addWidget(title);
        half->addWidget(text, 1);
        halves_->addLayout(half, 1);
        return half;
    };
    addHalf("sPreviewBefore", before_)->addWidget(take_);
    auto *after = addHalf("sPreviewAfter", after_);
    after->addWidget(note_);
    after->addWidget(apply_);

    before_->viewport()->installEventFilter(this);
    after_->viewport()->installEventFilter(this);

    connect(before_, &QPlainTextEdit::textChanged, this, &PreviewPane::schedule);
    connect(take_, &QPushButton::clicked, this, [this] {
        program_.engine().readClipboardText(
            alive_.guard([this](const std::optional<std::u16string> &text) {
                if (text) {
                    setBefore(QString::fromStdU16String(text->substr(0, longest + 1)));
                } else {
                    note_->setText(localized("sPreviewNothing"));
                    note_->show();
                }
            }));
    });
    connect(apply_, &QPushButton::clicked, this, [this] { program_.clean(); });
}

PreviewPane::~PreviewPane() {
    mainQueue_.cancel(pending_);
}

void PreviewPane::setOptions(storage::PropertyDictionary options) {
    if (options == options_) {
        return;
    }
    options_ = std::move(options);
    schedule();
}

void PreviewPane::setBefore(const QString &text) {
    before_->setPlainText(text);
}

void PreviewPane::setSideBySide(bool sideBySide) {
    halves_->setDirection(sideBySide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

QString PreviewPane::after() const {
    return textOf(*after_);
}

QString PreviewPane::reasonsAt(int place) const {
    return told(reasonsAt(&Reason::after, place));
}

std::vector<const PreviewPane::Reason *> PreviewPane::reasonsAt(TextSpan Reason::*where,
                                                                int place) const {
    const auto at = static_cast<std::size_t>(std::max(place, 0));
    std::vector<const Reason *> found;
    for (const Reason &reason : reasons_) {
        const TextSpan &span = reason.*where;
        if (span.length > 0 && span.start <= at && at < span.start + span.length) {
            found.push_back(&reason);
        }
    }
    return found;
}

QString PreviewPane::told(const std::vector<const Reason *> &reasons) const {
    QStringList names;
    for (const Reason *reason : reasons) {
        QString name = localized(reason->hotKey);
        if (reason->rule != 0) {
            name += ": " + QLocale().toString(static_cast<qulonglong>(reason->rule));
        }
        names += name;
    }
    names.removeDuplicates();
    return names.join('\n');
}

bool PreviewPane::eventFilter(QObject *watched, QEvent *event) {
    const bool isAfter = watched == after_->viewport();
    QPlainTextEdit &edit = isAfter ? *after_ : *before_;
    // The character under the pointer, not the gap that is nearest to it.
    const auto reasonsUnder = [&](const QPoint &point) {
        QTextCursor cursor = edit.cursorForPosition(point);
        const bool behind = edit.cursorRect(cursor).left() > point.x();
        return reasonsAt(isAfter ? &Reason::after : &Reason::before,
                         cursor.position() - (behind ? 1 : 0));
    };
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QString names = told(reasonsUnder(help->pos()));
        if (!names.isEmpty()) {
            QToolTip::showText(help->globalPos(), names, &edit);
            return true;
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        const auto reasons = reasonsUnder(mouse->position().toPoint());
        // A selection is made to be copied.
        if (mouse->button() == Qt::LeftButton && !reasons.empty() &&
            !edit.textCursor().hasSelection()) {
            emit optionAsked(reasons.front()->hotKey);
        }
    }
    return QWidget::eventFilter(watched, event);
}

void PreviewPane::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    schedule();
}

void PreviewPane::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        markDifferences();
    }
}

void PreviewPane::schedule() {
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
    QString text = textOf(*before_);
    note_->setText(localized("sPreviewTooLong"));
    note_->setVisible(text.size() > longest);
    text.truncate(longest);
    auto done = alive_.guardOn(mainQueue_, [this](const std::optional<Result> &result) {
        running_ = false;
        if (result) {
            show(*result);
        }
        if (changedMeanwhile_) {
            run();
        }
    });
    program_.parts().workerQueue.post([done = std::move(done), text, profile = options_,
                                       locale = program_.locale()] {
        std::optional<Result> result;
        try {
            engine::CleaningOptions options;
            options.setAllBools(profile);
            options.linkRules =
                settings::readLinkRules(options.udCleanLinksRules.stringValue()).rules;
            const engine::Trace trace =
                engine::tracePipeline(text.toStdU16String(), {options, locale});
            const QString cleaned = asShown(QString::fromStdU16String(trace.text));
            result =
                Result{text, cleaned, differences(text.toStdU16String(), cleaned.toStdU16String()),
                       reasonsOf(trace)};
        } catch (const std::exception &) {
            // Only for want of memory. The preview stays as it was.
        }
        done(std::move(result));
    });
}

std::vector<PreviewPane::Reason> PreviewPane::reasonsOf(const engine::Trace &trace) {
    // The editor shows CR LF as one line break. Where each such pair ends:
    std::vector<std::size_t> pairs;
    for (auto at = trace.text.find(u"\r\n"); at != trace.text.npos;
         at = trace.text.find(u"\r\n", at + 2)) {
        pairs.push_back(at + 1);
    }
    const auto shown = [&](std::size_t place) {
        return place -
               static_cast<std::size_t>(std::ranges::upper_bound(pairs, place - 1) - pairs.begin());
    };
    std::vector<Reason> reasons;
    for (const engine::TraceStep &step : trace.steps) {
        for (const engine::TracedChange &place : step.places) {
            const std::size_t begin = place.result.begin == 0 ? 0 : shown(place.result.begin);
            const std::size_t end = place.result.end == 0 ? 0 : shown(place.result.end);
            reasons.push_back({std::string(step.operation->hotKey),
                               step.rule,
                               {place.source.begin, place.source.end - place.source.begin},
                               {begin, end - begin}});
        }
    }
    return reasons;
}

void PreviewPane::show(const Result &result) {
    if (after() != result.after) {
        after_->setPlainText(result.after);
    }
    marked_ = result.differences.added;
    // The text has changed since: the marks would stand in the wrong places.
    const bool still = textOf(*before_).left(longest) == result.before;
    reasons_ = still ? result.reasons : std::vector<Reason>();
    removed_ = still ? result.differences.removed : std::vector<TextSpan>();
    markDifferences();
}

void PreviewPane::markDifferences() {
    shell::markDifferences(*before_, removed_, *after_, marked_);
}

} // namespace nerlo::shell
