#include "core/ZpravaChyby.h"

#include "core/Aplikace.h"
#include "core/Error.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>

namespace ZpravaChyby {

QString text(int cislo, const QString& soubor, int chyba)
{
    const QString s = QDir::toNativeSeparators(soubor);
    switch (cislo) {
    case Chyba::DiskPlny:
        return QStringLiteral("Na disku není dostatek místa!!!");
    case Chyba::JenProCteni:
        if (Aplikace::jenProCteni() && (s.isEmpty() || QFileInfo(soubor).absolutePath() == Aplikace::cesta(QStringLiteral("Data"))))
            return QStringLiteral("Složka s daty je jen pro čtení.");
        return QStringLiteral("Disk je chráněn proti zápisu!!!");
    case Chyba::DatabazePouzivana:
        return QStringLiteral("Databáze programu je používána jiným programem!\rUkončete toto používání!!!");
    case Chyba::TabulkaChybi:
        return s.isEmpty() ? QStringLiteral("Databáze je poškozena nebo nepatří tomuto programu.")
                           : QStringLiteral("Databáze %1 je poškozena nebo nepatří tomuto programu.").arg(s);
    case Chyba::PristupKSouboru:
        if (chyba == ENOENT || chyba == ENOTDIR)
            return QStringLiteral("Soubor %1 nebyl nalezen.").arg(s);
        return s.isEmpty() ? QStringLiteral("Soubor nelze přečíst ani zapsat (chyba disku).")
                           : QStringLiteral("Soubor %1 nelze přečíst ani zapsat (chyba disku).").arg(s);
    default:
        return QStringLiteral("Databáze nemohla požadavek provést.");
    }
}

QString pracovniDatabaze(const Error& e)
{
    switch (e.cislo()) {
    case Chyba::PristupKSouboru:
        return QStringLiteral("Porucha databáze - restartujte PC!");
    case Chyba::DatabazePouzivana:
        return text(e.cislo());
    default:
        return e.text();
    }
}

}
