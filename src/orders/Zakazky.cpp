#include "orders/Zakazky.h"

#include "core/Database.h"
#include "core/KontrolaTextu.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "orders/NoveRadky.h"
#include "orders/RadkyZakazky.h"

namespace Zakazky {
namespace {

void zapisSestavu(Recordset& rs, const Sestava& s)
{
    rs.set(QStringLiteral("Sestava"), s.nazev);
    rs.set(QStringLiteral("popis"), s.popis);
    rs.set(QStringLiteral("pocetelementuVsestave"), s.pocet);
    rs.set(QStringLiteral("schema"), s.schema);
}

// An assembly's last row made back into the order's header row.
void naHlavickuZakazky(Recordset& rs)
{
    rs.edit();
    rs.set(QStringLiteral("Sestava"), QString());
    rs.set(QStringLiteral("schema"), 0);
    rs.set(QStringLiteral("popis"), QString());
    rs.set(QStringLiteral("pocetelementuVsestave"), 0);
    rs.set(QStringLiteral("Oznaceni"), QString());
    for (const char* pole : {"x", "y", "OV", "Pocet", "Cena"})
        rs.set(QLatin1String(pole), 0);
    rs.update();
}

} // namespace

namespace {

bool platnaZakazka(Prompt& p, const QString& nazev, const QString& poznamka)
{
    return KontrolaTextu::prijmi(p, {{nazev, QStringLiteral("Název zakázky"), KontrolaTextu::NazevZakazky},
                                     {poznamka, QStringLiteral("Poznámka"), KontrolaTextu::Nejvys, KontrolaTextu::Radky::Ano}});
}

bool platnaSestava(Prompt& p, const Sestava& s)
{
    return KontrolaTextu::prijmi(p, {{s.nazev, QStringLiteral("Název sestavy")},
                                     {s.popis, QStringLiteral("Popis"), KontrolaTextu::Nejvys, KontrolaTextu::Radky::Ano}});
}

} // namespace

bool UlozitNovouZakazku(Database& db, Prompt& p, const QString& nazev, const QString& poznamka)
{
    if (!platnaZakazka(p, nazev, poznamka))
        return false;
    if (RadkyZakazky::existuje(db, nazev)) {
        p.zprava(QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"),
                 QStringLiteral("Špatné zadání názvu zakázky"), Prompt::Ikona::Kriticka);
        return false;
    }
    NoveRadky::Hlavicka h;
    h.zakazka = nazev;
    h.poznamka = poznamka;
    h.datum = Razitko::den(Razitko::ted());
    NoveRadky::pridejHlavicku(db, h);
    return true;
}

bool UlozitUpravuZakazky(Database& db, Prompt& p, const QString& stary, const QString& nazev, const QString& poznamka)
{
    if (!platnaZakazka(p, nazev, poznamka))
        return false;
    if (nazev != stary && RadkyZakazky::existuje(db, nazev)) {
        p.zprava(QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"),
                 QStringLiteral("Špatné zadání názvu zakázky"), Prompt::Ikona::Kriticka);
        return false;
    }
    Transakce t(db);
    for (Recordset rs = RadkyZakazky::radky(db, stary); !rs.eof(); rs.moveNext()) {
        rs.edit();
        rs.set(QStringLiteral("Zakazka"), nazev);
        rs.set(QStringLiteral("Poznamka"), poznamka);
        rs.update();
    }
    if (nazev != stary)
        for (Recordset rs = RadkyZakazky::materialy(db, stary); !rs.eof(); rs.moveNext()) {
            rs.edit();
            rs.set(QStringLiteral("Zakazka"), nazev);
            rs.update();
        }
    t.commit();
    return true;
}

bool SmazatZakazku(Database& db, Prompt& p, const QString& nazev)
{
    if (p.zprava(QStringLiteral("Chcete zakázku:  ") + nazev + QStringLiteral("      odstranit ?"),
                 QStringLiteral("Odstranění zakázky"), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(db);
    for (Recordset rs = RadkyZakazky::radky(db, nazev); !rs.eof(); rs.moveNext())
        rs.remove();
    for (Recordset rs = RadkyZakazky::materialy(db, nazev); !rs.eof(); rs.moveNext())
        rs.remove();
    t.commit();
    return true;
}

Sestava nactiSestavu(Database& db, const QString& zakazka, const QString& nazev)
{
    const Recordset rs = RadkyZakazky::radkySestavy(db, zakazka, nazev, QStringLiteral("Zakazka"), Recordset::Rozsah::Prvni);
    if (rs.eof())
        return {nazev, QString(), 1, 0};
    return {nazev, rs.text(QStringLiteral("popis")), rs.cislo(QStringLiteral("pocetelementuVsestave")),
            int(rs.cislo(QStringLiteral("schema")))};
}

bool UlozitNovouSestavu(Database& db, Prompt& p, const QString& zakazka, const Sestava& s)
{
    if (!platnaSestava(p, s))
        return false;
    if (RadkyZakazky::existujeSestava(db, zakazka, s.nazev)) {
        p.zprava(QStringLiteral("Sestava pod tímhle názvem již existuje, zadejte jiný nazev !!!"), QString(),
                 Prompt::Ikona::Kriticka);
        return false;
    }
    Transakce t(db);
    Recordset vse = RadkyZakazky::radky(db, zakazka);
    if (vse.recordCount() == 1 && vse.text(QStringLiteral("Sestava")).isEmpty()) {
        vse.edit(); // the order's header row becomes the first assembly
        zapisSestavu(vse, s);
        vse.update();
    } else {
        Recordset rs(db, QStringLiteral("Zakazky"), Recordset::Rozsah::Prvni);
        rs.addNew();
        for (const char* pole : {"Zakazka", "datum", "Poznamka"})
            rs.set(QLatin1String(pole), vse.eof() ? QVariant() : vse.value(QLatin1String(pole)));
        zapisSestavu(rs, s);
        rs.set(QStringLiteral("Oznaceni"), QString());
        rs.update();
    }
    t.commit();
    return true;
}

bool UlozitUpravuSestavy(Database& db, Prompt& p, const QString& zakazka, const QString& stary, const Sestava& s)
{
    if (!platnaSestava(p, s))
        return false;
    if (s.nazev != stary && RadkyZakazky::existujeSestava(db, zakazka, s.nazev)) {
        p.zprava(QStringLiteral("Sestava pod tímhle názvem již existuje, zadejte jiný nazev !!!"), QString(),
                 Prompt::Ikona::Kriticka);
        return false;
    }
    Transakce t(db);
    for (Recordset rs = RadkyZakazky::radkySestavy(db, zakazka, stary); !rs.eof(); rs.moveNext()) {
        rs.edit();
        zapisSestavu(rs, s);
        rs.update();
    }
    t.commit();
    return true;
}

bool SmazatSestavu(Database& db, Prompt& p, const QString& zakazka, const QString& nazev)
{
    if (p.zprava(QStringLiteral("Chcete smazat sestavu - ") + nazev + QStringLiteral(" - ?"),
                 QStringLiteral("Odstranění sestavy"), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(db);
    const bool jine = !Recordset(db, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and Sestava <> ?"), {zakazka, nazev},
                                 Recordset::Rozsah::Prvni)
                           .eof();
    Recordset rs = RadkyZakazky::radkySestavy(db, zakazka, nazev);
    for (int i = 0; !rs.eof(); rs.moveNext(), ++i) {
        if (!jine && i == rs.recordCount() - 1)
            naHlavickuZakazky(rs); // the last row stays as the order's header
        else
            rs.remove();
    }
    t.commit();
    return true;
}

QString poznamka(Database& db, const QString& zakazka)
{
    const Recordset rs = RadkyZakazky::radky(db, zakazka, {}, Recordset::Rozsah::Prvni);
    return rs.eof() ? QString() : rs.text(QStringLiteral("Poznamka"));
}

} // namespace Zakazky
