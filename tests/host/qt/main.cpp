#include <gtest/gtest.h>

#include <QApplication>

/// Runs without a display unless one is asked for: QT_QPA_PLATFORM=xcb.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // The looks of the developer's desktop stay out of the tests.
    QApplication::setDesktopSettingsAware(false);
    QApplication::setStyle("Fusion");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::Canada));
    const QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
