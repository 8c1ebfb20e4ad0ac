#include "core/Aplikace.h"

#include "core/Error.h"
#include "core/Jazyk.h"
#include "core/Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <cerrno>
#include <unistd.h>

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

QString sdilenaData()
{
    const QDir sdilena(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/truhlar"));
    return sdilena.exists(QStringLiteral("czech.txt")) ? sdilena.canonicalPath() : QString();
}

QString dataS() { return cesta(QStringLiteral("Data/DataS.db")); }
QString cenik() { return cesta(QStringLiteral("Data/Cenik.db")); }
QString dataK()
{
    const QString nazev = QStringLiteral("DataK-%1.db").arg(znackaProcesu());
    return jenProCteni() ? QDir::temp().filePath(QStringLiteral("truhlar-") + nazev) : cesta(QStringLiteral("Data/") + nazev);
}

bool jenProCteni()
{
    return ::access(QFile::encodeName(cesta(QStringLiteral("Data"))).constData(), W_OK) != 0 && errno != ENOENT;
}
QString zamek() { return cesta(QStringLiteral("Data/.lock")); }

QString znackaProcesu()
{
    static const QString znacka = QStringLiteral("p%1-%2").arg(QCoreApplication::applicationPid())
                                      .arg(QRandomGenerator::system()->bounded(0x10000), 4, 16, QLatin1Char('0'));
    return znacka;
}

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
    const QStringList zbytky = {QStringLiteral("*.tmp-*"), QStringLiteral("DataK.db*"), QStringLiteral("DataK-*.db*")};
    for (const QString& s : data.entryList(zbytky, QDir::Files | QDir::Hidden))
        data.remove(s);
}

}
