// Window tests need a QApplication (the shared test entry makes only a QGuiApplication).
#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
