// Test entry: an application object (offscreen), the name under which settings and data live.
#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
