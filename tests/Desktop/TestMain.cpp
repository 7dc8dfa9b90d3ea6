#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Windows that no screen shows; a developer may name another platform to watch.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    return RUN_ALL_TESTS();
}
