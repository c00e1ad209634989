#include "shell/TextWindow.h"

#include "shell/ScreenRoom.h"
#include "shell/Strings.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextOption>
#include <QVBoxLayout>
#include <utility>

namespace nerlo::shell {

TextWindow::TextWindow(const QString &name, const QString &title, const QString &text,
                       std::function<void()> showTips) {
    setObjectName(name);
    setWindowTitle(title);
    auto *shown = new QTextBrowser;
    shown->setObjectName(name + "Text");
    shown->setAccessibleName(title);
    shown->setOpenExternalLinks(true);
    // Also paragraphs that begin with a command or a key go the way of the language.
    QTextOption option = shown->document()->defaultTextOption();
    option.setTextDirection(layoutDirection());
    shown->document()->setDefaultTextOption(option);
    shown->document()->setDocumentMargin(10);
    shown->document()->setIndentWidth(20);
    shown->setMarkdown(text);
    auto *tips = new QPushButton(localized("sWhatsNewTips"));
    tips->setObjectName(name + "Tips");
    tips->setAutoDefault(false);
    auto *close = new QPushButton(localized("sClose"));
    close->setObjectName(name + "Close");
    close->setDefault(true);
    connect(tips, &QPushButton::clicked, this, [show = std::move(showTips)] { show(); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(shown);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(tips);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
    resize(QSize(640, 540).boundedTo(screenRoom(*this)));
}

} // namespace nerlo::shell
