#include "orders/Materialy.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Jednotky.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"

namespace Materialy {
namespace {

QString z(const QString& t) { return Dotaz::text(t); }

QString dotaz(const QString& zakazka, bool hrany)
{
    return QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
           (hrany ? QStringLiteral("' and Pouziti = 'hrana' ") : QStringLiteral("' and Pouziti <> 'hrana' "));
}

Material cti(const Recordset& rs)
{
    return {rs.cislo(QStringLiteral("ID")),        rs.text(QStringLiteral("Material")),
            rs.cislo(QStringLiteral("RozmerX")),   rs.cislo(QStringLiteral("RozmerY")),
            rs.ano(QStringLiteral("OV")),          rs.cislo(QStringLiteral("CenaBezDPH")),
            qint64(rs.cislo(QStringLiteral("BarvaVNP"))), rs.cislo(QStringLiteral("PresahHrany"))};
}

std::vector<Material> vsechny(Database& db, const QString& zakazka, bool hrany)
{
    std::vector<Material> v;
    for (Recordset rs(db, dotaz(zakazka, hrany)); !rs.eof(); rs.moveNext())
        v.push_back(cti(rs));
    return v;
}

std::optional<Recordset> radek(Database& db, const QString& zakazka, double id)
{
    Recordset rs(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                         QStringLiteral("' and ID = ") + Dotaz::cislo(id),
                 Recordset::Rozsah::Prvni);
    if (rs.eof())
        return std::nullopt;
    return rs;
}

double noveId(Database& db, const QString& zakazka)
{
    return Razitko::volne([&](double id) { return radek(db, zakazka, id).has_value(); });
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

bool pouzit(Database& db, const QString& zakazka, double id)
{
    return !Recordset(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) +
                              QStringLiteral("'  and IDFormat = ") + Dotaz::cislo(id),
                      Recordset::Rozsah::Prvni)
                .prazdny();
}

bool smazat(Database& db, Prompt& p, const QString& zakazka, const Material& m, bool hrana)
{
    if (p.zprava(hrana ? QStringLiteral("Chcete odstranit tuto hranu - ") + m.nazev + QStringLiteral(" - ?")
                       : QStringLiteral("Chcete odstranit formát - ") + m.nazev + QStringLiteral(" - ?"),
                 hrana ? QStringLiteral("Odstranění hrany") : QStringLiteral("Odstranění formátu"),
                 Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    // a band's ID never stands in IDFormat: a band in use is deleted all the same
    if (pouzit(db, zakazka, m.ID)) {
        p.zprava(hrana ? QStringLiteral("Hrana je použita v sestavách a proto ji není možné smazat !!!")
                       : QStringLiteral("Formát je použit v sestavách a proto ho není možné smazat !!!"),
                 QString(), Prompt::Ikona::Vykricnik);
        return false;
    }
    if (auto rs = radek(db, zakazka, m.ID))
        rs->remove();
    return true;
}

} // namespace

std::vector<Material> formaty(Database& db, const QString& zakazka) { return vsechny(db, zakazka, false); }
std::vector<Material> hrany(Database& db, const QString& zakazka) { return vsechny(db, zakazka, true); }

QString textFormatu(const Material& m)
{
    return m.nazev + QStringLiteral(" (") + Jednotky::ZMilimetru(m.x) + QStringLiteral(" x ") +
           Jednotky::ZMilimetru(m.y) + QLatin1Char(')');
}

QString textHrany(const Material& m)
{
    return m.nazev + QStringLiteral(" ( ") + Jednotky::cislo(m.cena) + QStringLiteral(" - ") +
           Jednotky::cislo(m.presah) + QStringLiteral(" ) ");
}

double idPodleTextu(Database& db, const QString& zakazka, const QString& text, bool hrana)
{
    for (const Material& m : vsechny(db, zakazka, hrana))
        if ((hrana ? textHrany(m) : textFormatu(m)) == text)
            return m.ID;
    return 0;
}

bool UlozitNovyFormat(Database& db, const QString& zakazka, const Material& m)
{
    if (m.x == 0 || m.y == 0 || m.nazev.isEmpty() || m.cena == 0)
        return false;
    Recordset rs(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy "), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("ID"), noveId(db, zakazka));
    rs.set(QStringLiteral("Zakazka"), zakazka);
    rs.set(QStringLiteral("pouziti"), QStringLiteral("format"));
    zapisFormat(rs, m);
    rs.update();
    return true;
}

Uprava UlozitUpravuFormatu(Database& db, Prompt& p, const QString& zakazka, const Material& m)
{
    if (m.x == 0 || m.y == 0 || m.nazev.isEmpty() || m.cena == 0)
        return Uprava::Odmitnuto;
    Transakce t(db);
    auto rs = radek(db, zakazka, m.ID);
    if (!rs)
        return Uprava::Odmitnuto;
    rs->edit();
    zapisFormat(*rs, m);
    rs->update();
    const Recordset dvojce(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                                   QStringLiteral("' and Material = '") + z(m.nazev) + QStringLiteral("' and RozmerX = ") +
                                   Dotaz::cislo(m.x) + QStringLiteral(" and RozmerY = ") + Dotaz::cislo(m.y) +
                                   QStringLiteral(" and  CenaBezDPH*10 = ") + Dotaz::cislo(m.cena * 10) +
                                   QStringLiteral(" and OV = ") + (m.ov ? QStringLiteral("True") : QStringLiteral("False")) +
                                   QStringLiteral(" and ID <> ") + Dotaz::cislo(m.ID),
                           Recordset::Rozsah::Prvni);
    Uprava vysledek = Uprava::Upraveno;
    if (!dvojce.eof() &&
        p.zprava(QStringLiteral("V zakázce již máte formát se stejnými parametry, chcete je sloučit?"),
                 QStringLiteral("Upozornění"), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) == Prompt::Odpoved::Ano) {
        const double dvojceId = dvojce.cislo(QStringLiteral("ID"));
        rs->remove();
        for (Recordset desky(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) +
                                     QStringLiteral("' and IDFormat = ") + Dotaz::cislo(m.ID));
             !desky.eof(); desky.moveNext()) {
            desky.edit();
            desky.set(QStringLiteral("IDFormat"), dvojceId);
            desky.update();
        }
        vysledek = Uprava::Slouceno;
    }
    t.commit();
    return vysledek;
}

bool SmazatFormat(Database& db, Prompt& p, const QString& zakazka, const Material& m)
{
    return smazat(db, p, zakazka, m, false);
}

bool UlozitNovouHranu(Database& db, const QString& zakazka, const Material& m)
{
    if (m.nazev.isEmpty() || m.cena == 0)
        return false;
    Recordset rs(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy "), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("ID"), noveId(db, zakazka));
    rs.set(QStringLiteral("Zakazka"), zakazka);
    rs.set(QStringLiteral("pouziti"), QStringLiteral("hrana"));
    zapisHranu(rs, m);
    rs.update();
    return true;
}

bool UlozitUpravuHrany(Database& db, const QString& zakazka, const Material& m)
{
    if (m.nazev.isEmpty() || m.cena == 0)
        return false;
    auto rs = radek(db, zakazka, m.ID);
    if (!rs)
        return false;
    rs->edit();
    zapisHranu(*rs, m);
    rs->update();
    return true;
}

bool SmazatHranu(Database& db, Prompt& p, const QString& zakazka, const Material& m)
{
    return smazat(db, p, zakazka, m, true);
}

}
