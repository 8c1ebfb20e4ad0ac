#include "core/CilZapisu.h"

#include "core/Aplikace.h"
#include "core/Error.h"

#include <QDir>
#include <QFileInfo>
#include <sys/stat.h>

namespace CilZapisu {
namespace {

// The real place of a path: links resolved, and for a file not yet there its folder's.
QString skutecna(const QString& cesta)
{
    const QFileInfo f(cesta);
    if (f.exists())
        return f.canonicalFilePath();
    const QString slozka = f.absoluteDir().canonicalPath();
    return slozka.isEmpty() ? f.absoluteFilePath() : QDir(slozka).filePath(f.fileName());
}

// A hard link elsewhere to a file of Data/ writes through to it all the same.
bool stejnyJakoSouborDat(const QString& cesta, const QDir& data)
{
    struct stat cil {};
    if (::stat(QFile::encodeName(cesta).constData(), &cil) != 0 || cil.st_nlink < 2)
        return false;
    for (const QFileInfo& f : data.entryInfoList(QDir::Files | QDir::Hidden | QDir::System)) {
        struct stat s {};
        if (::stat(QFile::encodeName(f.filePath()).constData(), &s) == 0 && s.st_dev == cil.st_dev &&
            s.st_ino == cil.st_ino)
            return true;
    }
    return false;
}

} // namespace

bool jeVDatech(const QString& cil)
{
    const QDir data(Aplikace::cesta(QStringLiteral("Data")));
    const QString koren = data.canonicalPath().isEmpty() ? data.absolutePath() : data.canonicalPath();
    const QString cesta = skutecna(cil);
    return cesta == koren || cesta.startsWith(koren + QLatin1Char('/')) || stejnyJakoSouborDat(cesta, data);
}

QString zprava(const QString& cil)
{
    return QStringLiteral("Soubor %1 patří k databázím programu ve složce Data a nelze ho přepsat.\n"
                          "Zvolte jiné místo.")
        .arg(QDir::toNativeSeparators(cil));
}

void zkontroluj(const QString& cil)
{
    if (jeVDatech(cil))
        throw Error(Chyba::NeplatnyVstup, zprava(cil));
}

}
