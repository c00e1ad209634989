// Text fields and the keys for undo and redo: who of a field and its window takes them. Main thread
// only.
#pragma once

class QWidget;

namespace nerlo::shell {

// Whether the widget, which may be null, is a text field in which something can be taken back
// (`undo`) or done again.
bool fieldCan(bool undo, const QWidget *field);
// Whether it is a text field at all: such keep Ctrl+Z for themselves.
bool isTextField(const QWidget *widget);

} // namespace nerlo::shell
