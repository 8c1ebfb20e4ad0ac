// truhlar-cli: the workbench's data, plans and lists without windows.
#include "Cli.h"

#include <QGuiApplication>

namespace {

QtMessageHandler g_predchozi = nullptr;

// The platform's notes about a missing runtime folder mean nothing to a command without windows.
void zpravy(QtMsgType typ, const QMessageLogContext& kontext, const QString& text)
{
    if (!text.startsWith(QLatin1String("QStandardPaths:")))
        g_predchozi(typ, kontext, text);
}

} // namespace

int main(int argc, char** argv)
{
    // Pages are measured and painted with the fonts of the system, never shown: no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    g_predchozi = qInstallMessageHandler(zpravy);
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    return Cli::spust(app.arguments().mid(1));
}
