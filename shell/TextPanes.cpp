#include "shell/TextPanes.h"

#include "shell/Controls.h"
#include "shell/Strings.h"

#include <QScrollBar>
#include <QStyle>
#include <QTextBlock>

namespace nerlo::shell {

namespace {

using Selections = QList<QTextEdit::ExtraSelection>;

void select(QPlainTextEdit &pane, const std::vector<TextSpan> &spans, const QTextCharFormat &format,
            Selections &selections) {
    for (const TextSpan &span : spans) {
        QTextEdit::ExtraSelection selection{QTextCursor(pane.document()), format};
        selection.cursor.setPosition(static_cast<int>(span.start));
        selection.cursor.setPosition(static_cast<int>(span.start + span.length),
                                     QTextCursor::KeepAnchor);
        selections.push_back(selection);
    }
}

} // namespace

void setUpTextPane(QPlainTextEdit &pane, const char *name, const char *titleKey,
                   const char *tipKey) {
    describe(pane, name, titleKey, tipKey);
    pane.setTabChangesFocus(true);
    // Lines are wrapped; only the sign of a break may stand a little beyond the edge.
    pane.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QTextOption option = pane.document()->defaultTextOption();
    option.setAlignment(QStyle::visualAlignment(pane.layoutDirection(), Qt::AlignLeft));
    option.setFlags(option.flags() | QTextOption::ShowTabsAndSpaces |
                    QTextOption::ShowLineAndParagraphSeparators);
    pane.document()->setDefaultTextOption(option);
    pane.setMinimumHeight(90);
}

QPlainTextEdit *makeShownPane(const char *name, const char *titleKey, const char *tipKey) {
    auto *pane = new QPlainTextEdit;
    setUpTextPane(*pane, name, titleKey, tipKey);
    pane->setReadOnly(true);
    pane->setUndoRedoEnabled(false);
    pane->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return pane;
}

QString textOf(const QPlainTextEdit &pane) {
    return pane.document()
        ->toRawText()
        .replace(QChar(QChar::ParagraphSeparator), '\n')
        .replace(QChar(QChar::LineSeparator), '\n');
}

void setShownText(QPlainTextEdit &pane, const QString &text) {
    if (textOf(pane) != text) {
        const int top = pane.verticalScrollBar()->value();
        pane.setPlainText(text);
        pane.verticalScrollBar()->setValue(top);
    }
}

void markChanges(QPlainTextEdit &pane, TextSide side, const ShownText &shown) {
    const QPalette palette = pane.palette();
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    QTextCharFormat changed;
    changed.setBackground(side == TextSide::before
                              ? (dark ? QColor(0x6b, 0x2b, 0x2b) : QColor(0xff, 0xd7, 0xd5))
                              : (dark ? QColor(0x1f, 0x55, 0x2c) : QColor(0xc8, 0xf0, 0xce)));
    // Not by colour alone; and a line through a dot or a mark would hide it.
    changed.setFontUnderline(true);
    QTextCharFormat leftOut;
    QColor dim = palette.color(QPalette::Text);
    dim.setAlphaF(0.6F);
    leftOut.setForeground(dim);
    leftOut.setBackground(palette.color(QPalette::AlternateBase));

    Selections selections;
    select(pane, shown.marked, changed, selections);
    select(pane, shown.leftOut, leftOut, selections);
    pane.setExtraSelections(selections);
}

LeftOutWords leftOutWords() {
    return {localized("sLeftOutLines"), localized("sLeftOutCharacters"),
            localized("sLeftOutChanges"), QLocale()};
}

} // namespace nerlo::shell
