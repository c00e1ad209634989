#include "shell/TextPanes.h"

#include "shell/Controls.h"

#include <QStyle>
#include <QTextBlock>

namespace nerlo::shell {

namespace {

void markSpans(QPlainTextEdit &pane, const std::vector<TextSpan> &spans, const QColor &colour) {
    QList<QTextEdit::ExtraSelection> selections;
    for (const TextSpan &span : spans) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(pane.document());
        selection.cursor.setPosition(static_cast<int>(span.start));
        selection.cursor.setPosition(static_cast<int>(span.start + span.length),
                                     QTextCursor::KeepAnchor);
        selection.format.setBackground(colour);
        // Not by colour alone; and a line through a dot or a mark would hide it.
        selection.format.setFontUnderline(true);
        selections.push_back(selection);
    }
    pane.setExtraSelections(selections);
}

} // namespace

QPlainTextEdit *makeTextPane(const char *name, const char *titleKey, const char *tipKey) {
    auto *pane = new QPlainTextEdit;
    describe(*pane, name, titleKey, tipKey);
    pane->setTabChangesFocus(true);
    QTextOption option = pane->document()->defaultTextOption();
    option.setAlignment(QStyle::visualAlignment(pane->layoutDirection(), Qt::AlignLeft));
    option.setFlags(option.flags() | QTextOption::ShowTabsAndSpaces |
                    QTextOption::ShowLineAndParagraphSeparators);
    pane->document()->setDefaultTextOption(option);
    pane->setMinimumHeight(90);
    return pane;
}

QString asShown(QString text) {
    return text.replace("\r\n", "\n")
        .replace('\r', '\n')
        .replace(QChar(QChar::ParagraphSeparator), '\n');
}

QString textOf(const QPlainTextEdit &pane) {
    return pane.document()
        ->toRawText()
        .replace(QChar(QChar::ParagraphSeparator), '\n')
        .replace(QChar(QChar::LineSeparator), '\n');
}

void markDifferences(QPlainTextEdit &before, const std::vector<TextSpan> &removed,
                     QPlainTextEdit &after, const std::vector<TextSpan> &added) {
    const bool dark = before.palette().color(QPalette::Base).lightness() < 128;
    markSpans(before, removed, dark ? QColor(0x6b, 0x2b, 0x2b) : QColor(0xff, 0xd7, 0xd5));
    markSpans(after, added, dark ? QColor(0x1f, 0x55, 0x2c) : QColor(0xc8, 0xf0, 0xce));
}

} // namespace nerlo::shell
