#include "shell/PreviewPane.h"

#include "engine/CleaningOptions.h"
#include "engine/Operations.h"
#include "settings/LinkRulesFile.h"
#include "shell/Controls.h"
#include "shell/Program.h"
#include "shell/Strings.h"
#include "shell/TextPanes.h"

#include <QEvent>
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
            const QString cleaned = asShown(QString::fromStdU16String(
                engine::runPipeline(text.toStdU16String(), {options, locale})));
            result =
                Result{text, cleaned, differences(text.toStdU16String(), cleaned.toStdU16String())};
        } catch (const std::exception &) {
            // Only for want of memory. The preview stays as it was.
        }
        done(std::move(result));
    });
}

void PreviewPane::show(const Result &result) {
    if (after() != result.after) {
        after_->setPlainText(result.after);
    }
    marked_ = result.differences.added;
    // The text has changed since: the marks would stand in the wrong places.
    const bool still = textOf(*before_).left(longest) == result.before;
    removed_ = still ? result.differences.removed : std::vector<TextSpan>();
    markDifferences();
}

void PreviewPane::markDifferences() {
    shell::markDifferences(*before_, removed_, *after_, marked_);
}

} // namespace nerlo::shell
