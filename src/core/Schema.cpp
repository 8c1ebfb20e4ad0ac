#include "core/Schema.h"

#include "core/Error.h"
#include "core/Kolace.h"
#include "core/Soubory.h"
#include "core/SqliteChyba.h"
#include "core/ZpravaChyby.h"

#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

namespace Schema {
namespace {

// Column kinds: T text (Czech, case-blind), R double, I whole number, A Yes/No (-1/0),
// B long binary. Working tables give numbers and Yes/No a default of 0, as the old engine did.
struct Tabulka {
    const char* nazev;
    Soubor soubor;
    bool pracovni;
    const char* sloupce; // "name:kind name:kind ..."
};

const Tabulka tabulkyDef[] = {
    {"Zakazky", Soubor::Data, false,
     "Zakazka:T Poznamka:T datum:R Sestava:T popis:T pocetelementuVsestave:R schema:I "
     "Oznaceni:T IDFormat:R IDHX1:R IDHX2:R IDHY1:R IDHY2:R cas:R x:R y:R Pocet:R OV:A "
     "Cena:R jednotka:T Deska:T"},
    {"ZakazkyMaterialy", Soubor::Data, false,
     "ID:R Zakazka:T Material:T pouziti:T RozmerX:R RozmerY:R OV:A CenaBezDPH:R BarvaVNP:I "
     "PresahHrany:R"},
    {"SkladOdrezku", Soubor::Data, false, "Material:T x:R y:R Pocet:I"},
    {"SoupisDesek", Soubor::Data, true,
     "CDesky:I Oznaceni:T Sestava:T x:R y:R OV:A IDHX1:R IDHX2:R IDHY1:R IDHY2:R popis:T ID:A "
     "XD:R YD:R tabule:I OTOC:A PlochaKZ:R SumaKZ:R PlochaKZBOV:R SumaKZBOV:R PlochaKZSLOUPEC:R "
     "SumaKZSloupec:R PlochaKZBOVSLOUPEC:R SumaKZBOVSloupec:R PVT:A PD:A Part:I"},
    {"SoupisTabuli", Soubor::Data, true, "CT:I NCT:I Material:T x:R y:R OTOC:A ID:A PocetRezu:I"},
    {"SoupisZbytku", Soubor::Data, true, "Oznaceni:T CT:I Rada:I cislo:I XZP:R YZP:R XDP:R YDP:R ID:A plocha:R celkemY:R Part:I"},
    {"SoupisDesekKZ", Soubor::Data, true, "x:R y:R OV:A OTOC:A XD:R YD:R ID:A"},
    {"SoupisZbytkuKZ", Soubor::Data, true, "Oznaceni:T Rada:I cislo:I CT:I XZP:R YZP:R XDP:R YDP:R ID:A"},
    {"Plochy", Soubor::Data, true, "plocha:T hodnota:R YPSILON1:R YPSILON2:R Rada:A"},
    {"SoupisProKalkulaci", Soubor::Data, true,
     "ID:A cislo:I Material:T Sestava:T popis:T Oznaceni:T pocetsestav:R schema:I mnozstvi:R "
     "plocha:R plochacelkem:R delka:R delkacelkem:R JC:R Cena:R jednotka:T"},
    {"SoupisProKalkulaciCelkem", Soubor::Data, true,
     "Material:T Sestava:T schema:I pocetsestav:R popis:T mnozstvi:R JC:R Cena:R jednotka:T "
     "cislo:I"},
    {"SoupisProDilnu", Soubor::Data, true,
     "ID:A cislo:I Sestava:T popis:T Poznamka:T schema:I RozmerX:R RozmerY:R IDHX1:R IDHX2:R "
     "IDHY1:R IDHY2:R BarvaVNPHX1:I BarvaVNPHX2:I BarvaVNPHY1:I BarvaVNPHY2:I BarvaHranyVNP:I "
     "Material:T Oznaceni:T OV:A mnozstvi:R pocetsestav:R delka:R jednotka:T"},
    {"Cenik", Soubor::Cenik, false, "kod:I nazev:T Cena:R jednotka:T skupina:T obr1:I obr2:I"},
    {"Obrazky", Soubor::Cenik, false, "IDE:I nazev:T OBR:B"},
    {"Schemata", Soubor::Cenik, false, "IDE:I nazev:T OBR:B"},
};

QString definiceSloupce(const QString& popis, bool pracovni)
{
    const QString nazev = popis.section(QLatin1Char(':'), 0, 0);
    const QChar druh = popis.section(QLatin1Char(':'), 1, 1).at(0);
    switch (druh.toLatin1()) {
    case 'T': return nazev + QStringLiteral(" TEXT COLLATE ") + QLatin1String(Kolace::Nazev);
    case 'R': return nazev + (pracovni ? QStringLiteral(" REAL NOT NULL DEFAULT 0") : QStringLiteral(" REAL"));
    case 'I': return nazev + (pracovni ? QStringLiteral(" INTEGER NOT NULL DEFAULT 0") : QStringLiteral(" INTEGER"));
    case 'A': return nazev + QStringLiteral(" INTEGER NOT NULL DEFAULT 0");
    default: return nazev + QStringLiteral(" BLOB");
    }
}

QString createTable(const Tabulka& t)
{
    QStringList sloupce;
    for (const QString& s : QString::fromLatin1(t.sloupce).split(QLatin1Char(' '), Qt::SkipEmptyParts))
        sloupce << definiceSloupce(s, t.pracovni);
    return QStringLiteral("CREATE TABLE %1 (%2);").arg(QLatin1String(t.nazev), sloupce.join(QStringLiteral(", ")));
}

// Lookups that every edit, every plan step and every price-list check makes; they change no
// result, only its speed.
struct Index {
    Soubor soubor;
    const char* sql;
};
const Index indexy_[] = {
    {Soubor::Data, "CREATE INDEX IF NOT EXISTS ixZakazky ON Zakazky (Zakazka, Sestava, Oznaceni);"},
    {Soubor::Data, "CREATE INDEX IF NOT EXISTS ixZakazkyMaterialy ON ZakazkyMaterialy (Zakazka);"},
    {Soubor::Cenik, "CREATE INDEX IF NOT EXISTS ixCenikNazev ON Cenik (nazev);"},
    {Soubor::Cenik, "CREATE INDEX IF NOT EXISTS ixCenikKod ON Cenik (kod);"},
};

} // namespace

QString vytvorIndexy(Soubor soubor)
{
    QString sql;
    for (const Index& i : indexy_)
        if (i.soubor == soubor)
            sql += QLatin1String(i.sql);
    return sql;
}

QStringList tabulky(Soubor soubor)
{
    QStringList vysledek;
    for (const Tabulka& t : tabulkyDef)
        if (t.soubor == soubor)
            vysledek << QLatin1String(t.nazev);
    return vysledek;
}

QStringList indexy(Soubor soubor)
{
    QStringList nazvy;
    for (const Index& i : indexy_)
        if (i.soubor == soubor)
            nazvy << QString::fromLatin1(i.sql).section(QLatin1Char(' '), 5, 5);
    return nazvy;
}

QStringList sloupce(const QString& tabulka)
{
    for (const Tabulka& t : tabulkyDef)
        if (tabulka.compare(QLatin1String(t.nazev), Qt::CaseInsensitive) == 0) {
            QStringList nazvy;
            for (const QString& s : QString::fromLatin1(t.sloupce).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                nazvy << s.section(QLatin1Char(':'), 0, 0);
            return nazvy;
        }
    return {};
}

void vytvor(const QString& cesta, Soubor soubor)
{
    QString sql = QStringLiteral("PRAGMA application_id = %1; PRAGMA user_version = %2; BEGIN;").arg(ApplicationId).arg(Verze);
    for (const Tabulka& t : tabulkyDef)
        if (t.soubor == soubor)
            sql += createTable(t);
    sql += vytvorIndexy(soubor);
    sql += QStringLiteral("COMMIT;");

    const QString docasny = Soubory::docasny(cesta, QStringLiteral("vytvor"));
    {
        sqlite3* db = nullptr;
        int rc =
            sqlite3_open_v2(QFile::encodeName(docasny).constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        std::unique_ptr<sqlite3, int (*)(sqlite3*)> drzitel(db, sqlite3_close_v2);
        SqliteChyba::zkontroluj(db, rc, cesta);
        Kolace::registruj(db);
        rc = sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, nullptr);
        if (rc != SQLITE_OK) {
            const int sys = sqlite3_system_errno(db);
            drzitel.reset();
            QFile::remove(docasny);
            if (sys)
                throw Error(Chyba::cisloProErrno(sys), ZpravaChyby::text(Chyba::cisloProErrno(sys), cesta, sys),
                            cesta);
            SqliteChyba::vyhod(nullptr, rc, cesta);
        }
    }
    if (!QFile::rename(docasny, cesta)) { // never over an existing file
        QFile::remove(docasny);
        if (QFileInfo(cesta).isFile())
            return; // a second process made it at the same moment
        throw Error(Chyba::PristupKSouboru, QStringLiteral("Soubor %1 nelze zapsat.").arg(cesta));
    }
}

} // namespace Schema
