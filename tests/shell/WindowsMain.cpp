// Runs the tests of windows, without a display.
#include "shell/Strings.h"

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    nerlo::shell::installTranslations(application, QLocale());
    return RUN_ALL_TESTS();
}
