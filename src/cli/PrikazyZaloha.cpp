// backup, restore and check of the data and of the price list.
#include "Cli.h"
#include "Prikazy.h"

#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Razitko.h"
#include "core/Uloziste.h"
#include "exchange/Zaloha.h"

#include <QDir>

namespace {

// A file that is not a valid backup is refused input (exit 3), with the restore's message.
[[noreturn]] void odmitniSoubor(const Error& e, Schema::Soubor druh)
{
    throw Error(Chyba::NeplatnyVstup, Zaloha::zpravaObnovy(e, druh).text.trimmed());
}

int zaloha(const QStringList& argumenty, Schema::Soubor druh)
{
    if (argumenty.size() > 1)
        throw Cli::ChybaPouziti(QStringLiteral("Zadejte nejvýše jeden soubor zálohy."));
    Uloziste& u = Cli::uloziste();
    QDir().mkpath(Zaloha::slozka());
    const QString cil = argumenty.isEmpty()
                            ? QDir(Zaloha::slozka()).filePath(Zaloha::navrh(druh, Razitko::ted().date()))
                            : argumenty[0];
    try {
        Zaloha::zalohuj(u, druh, cil);
    } catch (const Error& e) {
        if (e.cislo() == Chyba::NeplatnyVstup)
            throw;
        throw Error(e.cislo(), Zaloha::zpravaZalohy(e).text, e.podrobnosti());
    }
    Cli::out() << QStringLiteral("Zálohování bylo úspěšně dokončeno: %1").arg(cil) << Qt::endl;
    return Cli::Hotovo;
}

int obnova(const QStringList& argumenty, Schema::Soubor druh)
{
    if (argumenty.size() != 1)
        throw Cli::ChybaPouziti(QStringLiteral("Zadejte soubor zálohy."));
    try {
        Zaloha::obnov(Cli::uloziste(), druh, argumenty[0], Cli::prompt());
    } catch (const Error& e) {
        if (e.cislo() == Chyba::TabulkaChybi || e.cislo() == Chyba::NeplatnyVstup)
            odmitniSoubor(e, druh);
        throw Error(e.cislo(), Zaloha::zpravaObnovy(e, druh).text, e.podrobnosti());
    }
    return Cli::Hotovo;
}

} // namespace

int prikazBackup(const QStringList& a) { return zaloha(a, Schema::Soubor::Data); }
int prikazRestore(const QStringList& a) { return obnova(a, Schema::Soubor::Data); }
int prikazPricelistBackup(const QStringList& a) { return zaloha(a, Schema::Soubor::Cenik); }
int prikazPricelistRestore(const QStringList& a) { return obnova(a, Schema::Soubor::Cenik); }

int prikazCheck(const QStringList& argumenty)
{
    if (argumenty.size() > 1)
        throw Cli::ChybaPouziti(QStringLiteral("check [SOUBOR]"));
    if (argumenty.size() == 1) {
        const Schema::Soubor druh = argumenty[0].endsWith(QLatin1String(".cen"), Qt::CaseInsensitive)
                                        ? Schema::Soubor::Cenik
                                        : Schema::Soubor::Data;
        try {
            Zaloha::zkontroluj(argumenty[0], druh);
        } catch (const Error& e) {
            if (e.cislo() == Chyba::TabulkaChybi)
                odmitniSoubor(e, druh);
            throw;
        }
        Cli::out() << QStringLiteral("Soubor %1 je v pořádku.").arg(argumenty[0]) << Qt::endl;
        return Cli::Hotovo;
    }
    Cli::uloziste(); // the store opens (its marks are checked) before the files are read whole
    for (auto [soubor, druh] : {std::pair{Aplikace::dataS(), Schema::Soubor::Data},
                                std::pair{Aplikace::cenik(), Schema::Soubor::Cenik}}) {
        try {
            Zaloha::zkontroluj(soubor, druh);
        } catch (const Error& e) {
            throw Error(Chyba::TabulkaChybi, QStringLiteral("Databáze %1 je poškozena: %2").arg(soubor, e.text()));
        }
        Cli::out() << QStringLiteral("Databáze %1 je v pořádku.").arg(soubor) << Qt::endl;
    }
    return Cli::Hotovo;
}
