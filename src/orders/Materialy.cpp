#include "orders/Materialy.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "orders/RadkyZakazky.h"

namespace Materialy {
namespace {

Material cti(const Recordset& rs)
{
    return {rs.cislo(QStringLiteral("ID")),
            rs.text(QStringLiteral("Material")),
            rs.cislo(QStringLiteral("RozmerX")),
            rs.cislo(QStringLiteral("RozmerY")),
            rs.ano(QStringLiteral("OV")),
            rs.cislo(QStringLiteral("CenaBezDPH")),
            qint64(rs.cislo(QStringLiteral("BarvaVNP"))),
            rs.cislo(QStringLiteral("PresahHrany"))};
}

std::vector<Material> vsechny(Database& db, const QString& zakazka, bool hrany)
{
    std::vector<Material> v;
    for (Recordset rs =
             RadkyZakazky::materialy(db, zakazka, hrany ? RadkyZakazky::Pouziti::Hrany : RadkyZakazky::Pouziti::Formaty);
         !rs.eof(); rs.moveNext())
        v.push_back(cti(rs));
    return v;
}

double noveId(Database& db, const QString& zakazka)
{
    return Razitko::volne([&](double id) { return RadkyZakazky::material(db, zakazka, id).has_value(); });
}

void zapisFormat(Recordset& rs, const Material& m)
{
    rs.set(QStringLiteral("Material"), m.nazev);
    rs.set(QStringLiteral("RozmerX"), m.x);
    rs.set(QStringLiteral("RozmerY"), m.y);
    rs.set(QStringLiteral("OV"), m.ov);
    rs.set(QStringLiteral("CenaBezDPH"), m.cena);
}

void zapisHranu(Recordset& rs, const Material& m)
{
    rs.set(QStringLiteral("Material"), m.nazev);
    rs.set(QStringLiteral("CenaBezDPH"), m.cena);
    rs.set(QStringLiteral("BarvaVNP"), m.barva);
    rs.set(QStringLiteral("PresahHrany"), m.presah);
}

bool pouzit(Database& db, const QString& zakazka, double id) { return !RadkyZakazky::deskyFormatu(db, zakazka, id).prazdny(); }

bool smazat(Database& db, Prompt& p, const QString& zakazka, const Material& m, bool hrana)
{
    if (p.zprava(hrana ? QStringLiteral("Chcete odstranit tuto hranu - ") + m.nazev + QStringLiteral(" - ?")
                       : QStringLiteral("Chcete odstranit formát - ") + m.nazev + QStringLiteral(" - ?"),
                 hrana ? QStringLiteral("Odstranění hrany") : QStringLiteral("Odstranění formátu"), Prompt::Ikona::Otaznik,
                 Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    // a band's ID never stands in IDFormat: a band in use is deleted all the same
    if (pouzit(db, zakazka, m.ID)) {
        p.zprava(hrana ? QStringLiteral("Hrana je použita v sestavách a proto ji není možné smazat !!!")
                       : QStringLiteral("Formát je použit v sestavách a proto ho není možné smazat !!!"),
                 QString(), Prompt::Ikona::Vykricnik);
        return false;
    }
    if (auto rs = RadkyZakazky::material(db, zakazka, m.ID))
        rs->remove();
    return true;
}

} // namespace

std::vector<Material> formaty(Database& db, const QString& zakazka) { return vsechny(db, zakazka, false); }
std::vector<Material> hrany(Database& db, const QString& zakazka) { return vsechny(db, zakazka, true); }

QString textFormatu(const Material& m)
{
    return m.nazev + QStringLiteral(" (") + Jednotky::ZMilimetru(m.x) + QStringLiteral(" x ") + Jednotky::ZMilimetru(m.y) +
           QLatin1Char(')');
}

QString textHrany(const Material& m)
{
    return m.nazev + QStringLiteral(" ( ") + Jednotky::cislo(m.cena) + QStringLiteral(" - ") + Jednotky::cislo(m.presah) +
           QStringLiteral(" ) ");
}

double idPodleTextu(Database& db, const QString& zakazka, const QString& text, bool hrana)
{
    for (const Material& m : vsechny(db, zakazka, hrana))
        if ((hrana ? textHrany(m) : textFormatu(m)) == text)
            return m.ID;
    return 0;
}

void pridej(Database& db, const QString& zakazka, const Material& m, bool hrana)
{
    Recordset rs(db, QStringLiteral("ZakazkyMaterialy"), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("ID"), m.ID);
    rs.set(QStringLiteral("Zakazka"), zakazka);
    rs.set(QStringLiteral("pouziti"), hrana ? QStringLiteral("hrana") : QStringLiteral("format"));
    if (hrana)
        zapisHranu(rs, m);
    else
        zapisFormat(rs, m);
    rs.update();
}

bool UlozitNovyFormat(Database& db, const QString& zakazka, const Material& m)
{
    if (m.x == 0 || m.y == 0 || m.nazev.isEmpty() || m.cena == 0)
        return false;
    Material novy = m;
    novy.ID = noveId(db, zakazka);
    pridej(db, zakazka, novy, false);
    return true;
}

namespace {

// The ID of another format of the order with the same name, size, price and grain; 0 when none.
double dvojce(Database& db, const QString& zakazka, const Material& m)
{
    const Recordset r(db,
                      QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ? and Material = ? and RozmerX = ? and "
                                     "RozmerY = ? and CenaBezDPH*10 = ? and OV = ? and ID <> ?"),
                      {zakazka, m.nazev, m.x, m.y, m.cena * 10, m.ov, m.ID}, Recordset::Rozsah::Prvni);
    return r.eof() ? 0 : r.cislo(QStringLiteral("ID"));
}

} // namespace

Uprava UlozitUpravuFormatu(Database& db, Prompt& p, const QString& zakazka, const Material& m)
{
    if (m.x == 0 || m.y == 0 || m.nazev.isEmpty() || m.cena == 0 || !RadkyZakazky::material(db, zakazka, m.ID))
        return Uprava::Odmitnuto;
    // the question comes before the transaction: no lock is held while the joiner thinks
    const double dvojceId = dvojce(db, zakazka, m);
    const bool sloucit =
        dvojceId != 0 &&
        p.zprava(QStringLiteral("V zakázce již máte formát se stejnými parametry, chcete je sloučit?"),
                 QStringLiteral("Upozornění"), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) == Prompt::Odpoved::Ano;
    Transakce t(db);
    auto rs = RadkyZakazky::material(db, zakazka, m.ID);
    if (sloucit) {
        rs->remove();
        for (Recordset desky = RadkyZakazky::deskyFormatu(db, zakazka, m.ID); !desky.eof(); desky.moveNext()) {
            desky.edit();
            desky.set(QStringLiteral("IDFormat"), dvojceId);
            desky.update();
        }
    } else {
        rs->edit();
        zapisFormat(*rs, m);
        rs->update();
    }
    t.commit();
    return sloucit ? Uprava::Slouceno : Uprava::Upraveno;
}

bool SmazatFormat(Database& db, Prompt& p, const QString& zakazka, const Material& m) { return smazat(db, p, zakazka, m, false); }

bool UlozitNovouHranu(Database& db, const QString& zakazka, const Material& m)
{
    if (m.nazev.isEmpty() || m.cena == 0)
        return false;
    Material nova = m;
    nova.ID = noveId(db, zakazka);
    pridej(db, zakazka, nova, true);
    return true;
}

bool UlozitUpravuHrany(Database& db, const QString& zakazka, const Material& m)
{
    if (m.nazev.isEmpty() || m.cena == 0)
        return false;
    auto rs = RadkyZakazky::material(db, zakazka, m.ID);
    if (!rs)
        return false;
    rs->edit();
    zapisHranu(*rs, m);
    rs->update();
    return true;
}

bool SmazatHranu(Database& db, Prompt& p, const QString& zakazka, const Material& m) { return smazat(db, p, zakazka, m, true); }

} // namespace Materialy
