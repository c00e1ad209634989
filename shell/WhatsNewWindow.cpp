#include "shell/WhatsNewWindow.h"

#include "shell/ScreenRoom.h"
#include "shell/Strings.h"

#include <QFile>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>
#include <utility>

namespace nerlo::shell {

WhatsNewWindow::WhatsNewWindow(std::function<void()> showTips) {
    setObjectName("whatsNewWindow");
    setWindowTitle(localized("sWhatsNewWindow"));
    auto *notes = new QTextBrowser;
    notes->setObjectName("releaseNotes");
    notes->setAccessibleName(windowTitle());
    notes->setOpenExternalLinks(true);
    // The notes are English in every language.
    notes->setLayoutDirection(Qt::LeftToRight);
    QFile file(":/CHANGELOG.md");
    if (file.open(QIODevice::ReadOnly)) {
        notes->setMarkdown(QString::fromUtf8(file.readAll()));
    }
    auto *tips = new QPushButton(localized("sWhatsNewTips"));
    tips->setObjectName("whatsNewTips");
    tips->setAutoDefault(false);
    auto *close = new QPushButton(localized("sClose"));
    close->setObjectName("whatsNewClose");
    close->setDefault(true);
    connect(tips, &QPushButton::clicked, this, [show = std::move(showTips)] { show(); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(notes);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(tips);
    buttons->addStretch();
    buttons->addWidget(close);
    layout->addLayout(buttons);
    resize(QSize(620, 480).boundedTo(screenRoom(*this)));
}

} // namespace nerlo::shell
