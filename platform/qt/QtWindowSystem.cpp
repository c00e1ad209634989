#include "platform/qt/QtWindowSystem.h"

#include <QGuiApplication>

namespace nerlo::platform {

// A Wayland compositor places windows where it likes, so they can be neither a menu at the status
// item nor the statistics popup. Windows of an X11 program can be placed.
void chooseQtWindowSystem() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
}

bool qtIsOnX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace nerlo::platform
