#include "core/Aplikace.h"

#include "core/Error.h"
#include "core/Jazyk.h"
#include "core/Schema.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace Aplikace {
namespace {
QString g_domov;

const char* const slozky[] = {"Data", "CNC", "PDF", "Nářezové plány", "Zálohy dat", "Napoveda"};
}

void nastavDomov(const QString& slozka)
{
    g_domov = slozka.isEmpty() ? QString() : QDir(slozka).absolutePath();
}

QString domov()
{
    if (g_domov.isEmpty())
        return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return g_domov;
}

QString cesta(const QString& relativni)
{
    return QDir(domov()).filePath(relativni);
}

QString dataS() { return cesta(QStringLiteral("Data/DataS.db")); }
QString cenik() { return cesta(QStringLiteral("Data/Cenik.db")); }
QString dataK() { return cesta(QStringLiteral("Data/DataK.db")); }
QString zamek() { return cesta(QStringLiteral("Data/.lock")); }

bool existuje()
{
    return QFile::exists(dataS()) && QFile::exists(cenik());
}

void zaloz()
{
    QDir dir(domov());
    for (const char* s : slozky)
        if (!dir.mkpath(QString::fromUtf8(s)))
            throw Error(Chyba::PristupKSouboru,
                        QStringLiteral("Složku %1 nelze vytvořit.").arg(dir.filePath(QString::fromUtf8(s))));
    if (!QFile::exists(dataS()))
        Schema::vytvor(dataS(), Schema::Soubor::Data);
    if (!QFile::exists(cenik()))
        Schema::vytvor(cenik(), Schema::Soubor::Cenik);
    Jazyk::zapisChybejici();
}

void uklid()
{
    QDir data(cesta(QStringLiteral("Data")));
    for (const QString& s : data.entryList({QStringLiteral("*.tmp-*")}, QDir::Files | QDir::Hidden))
        data.remove(s);
    for (const char* pripona : {"", "-journal", "-wal", "-shm"})
        QFile::remove(dataK() + QLatin1String(pripona));
}

}
