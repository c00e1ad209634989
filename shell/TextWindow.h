// A text to read: the help, what's new. Main thread only.
#pragma once

#include <QDialog>
#include <functional>

namespace nerlo::shell {

class TextWindow final : public QDialog {
    Q_OBJECT

  public:
    // `name` is that of the object, for its parts with their own behind it; `text` is Markdown.
    TextWindow(const QString &name, const QString &title, const QString &text,
               std::function<void()> showTips);
};

} // namespace nerlo::shell
