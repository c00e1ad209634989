#include "platform/qt/QtWindowSystem.h"

#include <QGuiApplication>

namespace nerlo::platform {

// Windows that a Wayland compositor places where it likes can be neither a menu at the status item
// nor the statistics popup; those of an X11 program can.
void chooseQtWindowSystem() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY")) {
        qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    }
}

bool qtIsOnX11() {
    return QGuiApplication::platformName() == QLatin1String("xcb");
}

} // namespace nerlo::platform
