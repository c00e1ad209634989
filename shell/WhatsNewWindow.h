// The release notes. Main thread only.
#pragma once

#include <QDialog>
#include <functional>

namespace nerlo::shell {

class WhatsNewWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit WhatsNewWindow(std::function<void()> showTips);
};

} // namespace nerlo::shell
