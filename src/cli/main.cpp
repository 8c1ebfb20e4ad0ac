// truhlar-cli: the workbench's data, plans and lists without windows.
#include "Cli.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    return Cli::spust(app.arguments().mid(1));
}
