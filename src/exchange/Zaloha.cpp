#include "exchange/Zaloha.h"

#include "core/Aplikace.h"
#include "core/CilZapisu.h"
#include "core/Database.h"
#include "core/Error.h"
#include "core/Prikaz.h"
#include "core/Prompt.h"
#include "core/Soubory.h"
#include "core/Uloziste.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Zaloha {
namespace {

const QString Pouzivana = QStringLiteral("Databáze programu je používána jiným programem!");

[[noreturn]] void neplatny(Schema::Soubor druh, const QString& proc)
{
    throw Error(Chyba::TabulkaChybi, (druh == Schema::Soubor::Data
                                          ? QStringLiteral(" Vybraný soubor neobsahuje platná data ")
                                          : QStringLiteral(" Vybraný soubor neobsahuje platná data pro tento program")) +
                                         QStringLiteral("\n(") + proc + QLatin1Char(')'));
}

Database& databaze(Uloziste& u, Schema::Soubor druh)
{
    return druh == Schema::Soubor::Data ? u.dataS() : u.cenik();
}

QString zivy(Schema::Soubor druh)
{
    return druh == Schema::Soubor::Data ? Aplikace::dataS() : Aplikace::cenik();
}

QString bezpecnostniKopie(Schema::Soubor druh)
{
    return Aplikace::cesta(druh == Schema::Soubor::Data ? QStringLiteral("Data/DataZ.db")
                                                        : QStringLiteral("Data/CenikZ.db"));
}

// A compacted copy of a live database into cil, through a checked temporary file.
void zkopirujDatabazi(Database& db, Schema::Soubor druh, const QString& cil)
{
    const QString docasny = Soubory::docasny(cil, QStringLiteral("zaloha"));
    try {
        db.vacuumInto(docasny);
        Soubory::synchronizuj(docasny);
        zkontroluj(docasny, druh);
        Soubory::prejmenuj(docasny, cil);
    } catch (...) {
        Soubory::odstran(docasny);
        throw;
    }
}

// Puts the live file in place again from the safety copy and opens the store; the last resort.
void vratBezpecnostniKopii(Uloziste& u, Schema::Soubor druh)
{
    try {
        const QString docasny = Soubory::docasny(zivy(druh), QStringLiteral("vraceni"));
        Soubory::kopiruj(bezpecnostniKopie(druh), docasny);
        Soubory::prejmenuj(docasny, zivy(druh));
        u.otevriData();
    } catch (const Error&) {
        throw Error(Chyba::PristupKSouboru, QStringLiteral("Porucha databáze - restartujte PC!"));
    }
}

} // namespace

void zkontroluj(const QString& soubor, Schema::Soubor druh)
{
    try {
        Database db(soubor, Database::Rezim::JenCteni);
        const QStringList tabulky = Schema::tabulky(druh);
        for (const QString& t : tabulky)
            if (db.indexSloupce(t, Schema::sloupce(t).first()) < 0 || db.sloupce(t) != Schema::sloupce(t))
                neplatny(druh, QStringLiteral("tabulka %1 neodpovídá").arg(t));
        Prikaz objekty(db.handle(), QStringLiteral("SELECT type, name FROM sqlite_master"));
        while (objekty.krok()) {
            const QString nazev = objekty.sloupec(1).toString();
            if (!tabulky.contains(nazev) && !Schema::indexy(druh).contains(nazev))
                neplatny(druh, QStringLiteral("cizí objekt %1").arg(nazev));
        }
        Prikaz integrita(db.handle(), QStringLiteral("PRAGMA integrity_check"));
        if (!integrita.krok() || integrita.sloupec(0).toString() != QLatin1String("ok"))
            neplatny(druh, QStringLiteral("soubor je poškozen"));
    } catch (const Error& e) {
        if (e.cislo() == Chyba::TabulkaChybi || e.cislo() == Chyba::ChybaDotazu)
            neplatny(druh, e.text().trimmed());
        throw;
    }
}

QString pripona(Schema::Soubor druh)
{
    return druh == Schema::Soubor::Data ? QStringLiteral(".bvk") : QStringLiteral(".cen");
}

QString navrh(Schema::Soubor druh, const QDate& den)
{
    return (druh == Schema::Soubor::Data ? QStringLiteral("BData") : QStringLiteral("Cenik")) +
           QStringLiteral("%1_%2_%3").arg(den.day()).arg(den.month()).arg(den.year()) + pripona(druh);
}

QString filtr(Schema::Soubor druh)
{
    return QStringLiteral("Databáze programu Truhlář (*") + pripona(druh) + QLatin1Char(')');
}

QString slozka()
{
    return Aplikace::cesta(QStringLiteral("Zálohy dat"));
}

void zalohuj(Uloziste& u, Schema::Soubor druh, const QString& cil)
{
    CilZapisu::zkontroluj(cil);
    if (druh == Schema::Soubor::Data && QFile::exists(Aplikace::cesta(QStringLiteral("Data/DataZ1.db"))))
        Soubory::odstran(Aplikace::cesta(QStringLiteral("Data/DataZ1.db")));
    zkopirujDatabazi(databaze(u, druh), druh, QFileInfo(cil).absoluteFilePath());
}

bool obnov(Uloziste& u, Schema::Soubor druh, const QString& zdroj, Prompt& prompt)
{
    const QString kopie = Soubory::docasny(zivy(druh), QStringLiteral("obnova"));
    try {
        Soubory::kopiruj(zdroj, kopie);
        zkontroluj(kopie, druh);
        if (prompt.zprava(QStringLiteral("Opravdu chcete nynější data nahradit za ") + QFileInfo(zdroj).fileName() +
                              QStringLiteral(" ?"),
                          QStringLiteral("Upozornění"), Prompt::Ikona::Otaznik,
                          Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano) {
            Soubory::odstran(kopie);
            return false;
        }
        Uloziste::Vyhradne sam(u);
        // Another program's write transaction must end before the file is replaced, or its
        // commit would go into the replaced file: SQLite's own lock, held until the swap.
        Database zamek(zivy(druh));
        zamek.executeSqlite(QStringLiteral("BEGIN IMMEDIATE"));
        zkopirujDatabazi(databaze(u, druh), druh, bezpecnostniKopie(druh));
        u.zavriData();
        try {
            Soubory::prejmenuj(kopie, zivy(druh));
        } catch (const Error&) {
            const bool vymeneno = !QFile::exists(kopie); // renamed; only the folder's sync failed
            u.otevriData();
            if (!vymeneno)
                throw; // the live file is as it was
            prompt.zprava(QStringLiteral("Obnova zálohy byla dokončena, ale disk nepotvrdil uložení změn.\n"
                                         "Zkontrolujte disk a vytvořte novou zálohu."),
                          QStringLiteral("Obnoveno..."), Prompt::Ikona::Vykricnik);
            return true;
        }
        try {
            u.otevriData();
        } catch (const Error&) {
            vratBezpecnostniKopii(u, druh);
            throw Error(Chyba::TabulkaChybi, QStringLiteral(" Vybraný soubor neobsahuje platná data "));
        }
    } catch (...) {
        Soubory::odstran(kopie);
        throw;
    }
    prompt.zprava(QStringLiteral("Obnova zálohy byla úspěšně dokončena"), QStringLiteral("Obnoveno..."),
                  Prompt::Ikona::Informace);
    return true;
}

Zprava zpravaZalohy(const Error& e)
{
    switch (e.cislo()) {
    case Chyba::Zruseno:
        return {};
    case Chyba::NeplatnyVstup:
        return {e.text(), QStringLiteral("Chyba zápisu")};
    case Chyba::DiskPlny:
        return {QStringLiteral("Na disku není dostatek místa!!!"), QStringLiteral("Chyba zápisu")};
    case Chyba::JenProCteni: // the store's own folder write-protected, or the disk of the backup
        return {e.text().startsWith(QStringLiteral("Složka s daty")) ? e.text() : QStringLiteral("Disk je chráněn proti zápisu!!!"),
                QStringLiteral("Chyba zápisu")};
    case Chyba::DatabazePouzivana:
        return {Pouzivana + QStringLiteral("\rUkončete toto používání!!!"), QStringLiteral("Chyba při zápisu")};
    default:
        return {QStringLiteral("Nebylo možné data zálohovat! Ukončete užívání programu a zkuste to znovu."),
                QStringLiteral("Chyba při zápisu")};
    }
}

Zprava zpravaObnovy(const Error& e, Schema::Soubor druh)
{
    switch (e.cislo()) {
    case Chyba::Zruseno:
        return {};
    case Chyba::NeplatnyVstup:
        return {e.text(), QStringLiteral("Chybný soubor")};
    case Chyba::TabulkaChybi:
        return {druh == Schema::Soubor::Data ? QStringLiteral(" Vybraný soubor neobsahuje platná data ")
                                             : QStringLiteral(" Vybraný soubor neobsahuje platná data pro tento program"),
                QStringLiteral("Chybný soubor")};
    case Chyba::DatabazePouzivana:
        return {Pouzivana + QStringLiteral("\rAž ukončíte toto používání budete moci data obnovit !!!"),
                QStringLiteral("Chyba při zápisu")};
    case Chyba::PristupKSouboru:
        if (e.text() == QStringLiteral("Porucha databáze - restartujte PC!"))
            return {e.text(), QStringLiteral("Chyba při zápisu"), true};
        break;
    case Chyba::DiskPlny:
    case Chyba::JenProCteni:
        return zpravaZalohy(e);
    }
    return {QStringLiteral("Obnova zálohy se nezdařila, data zůstala beze změny."), QStringLiteral("Chyba při zápisu")};
}

}
