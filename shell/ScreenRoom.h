// How large a window may be: what lies outside the screen could not be reached.
#pragma once

#include <QScreen>
#include <QWidget>

namespace nerlo::shell {

// On the window's screen, less the frame.
inline QSize screenRoom(const QWidget &window) {
    return window.screen()->availableSize() - QSize(8, 40);
}

} // namespace nerlo::shell
