#include "costing/Kalkulace.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/Uloziste.h"
#include "core/Zaokrouhleni.h"
#include "costing/PruchodZakazky.h"

#include <QLocale>

namespace Kalkulace {
namespace {

struct Slevy {
    int pm = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaPM")));
    int hrana = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaHrana")));
    int pris = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaPris")));
};

// One costing pass: celkem covers the whole order (quantities times the assembly count),
// otherwise one piece of each assembly.
// The cutting's rows, after everything else.
void pridejRezani(Recordset& out, const std::vector<Rezani::Format>& rezani, bool celkem)
{
    const double jc = Zaokrouhli(Rezani::cenaZaMetr(), 2);
    for (const Rezani::Format& f : rezani) {
        out.addNew();
        out.set(QStringLiteral("ID"), true);
        out.set(QStringLiteral("cislo"), CisloRezani);
        out.set(QStringLiteral("Sestava"), QStringLiteral(""));
        if (!celkem)
            out.set(QStringLiteral("pocetsestav"), 1);
        out.set(QStringLiteral("Material"), f.material);
        out.set(QStringLiteral("Oznaceni"), QString());
        out.set(QStringLiteral("mnozstvi"), f.metru);
        out.set(QStringLiteral("plocha"), 0.0);
        out.set(QStringLiteral("JC"), jc);
        out.set(QStringLiteral("Cena"), Zaokrouhli(f.metru * jc, 2));
        out.set(QStringLiteral("jednotka"), QStringLiteral("m"));
        out.update();
    }
}

void napln(Database& db, const QString& zakazka, const Vyber& vyber, bool celkem, const std::vector<Rezani::Format>& rezani)
{
    const Slevy s;
    db.execute(QStringLiteral("DELETE * FROM SoupisProKalkulaci"));
    Recordset out(db, QStringLiteral("SoupisProKalkulaci"), Recordset::Rozsah::Prvni);
    auto zacniRadek = [&](const Recordset& p, const QString& sestava, int cislo) {
        out.addNew();
        out.set(QStringLiteral("ID"), true);
        out.set(QStringLiteral("cislo"), cislo);
        out.set(QStringLiteral("Sestava"), sestava);
        if (celkem)
            return; // the whole order's rows carry no description, drawing or count
        for (const char* pole : {"popis", "schema"})
            out.set(QLatin1String(pole), p.value(QLatin1String(pole)));
        out.set(QStringLiteral("pocetsestav"), p.value(QStringLiteral("pocetelementuVsestave")));
    };
    auto kusu = [&](const Recordset& p) {
        return celkem ? p.cislo(QStringLiteral("pocetelementuVsestave")) * p.cislo(QStringLiteral("Pocet"))
                      : p.cislo(QStringLiteral("Pocet"));
    };
    PruchodZakazky::radky(
        db, zakazka, vyber, celkem ? QStringLiteral("Sestava") : QStringLiteral("Sestava, IDFormat desc, cas"),
        [&](const Recordset& p, const QString& sestava) {
            const QString oznaceni = p.text(QStringLiteral("Oznaceni"));
            zacniRadek(p, sestava, 1);
            const double mnozstvi = Zaokrouhli(kusu(p), 3);
            out.set(QStringLiteral("mnozstvi"), mnozstvi);
            if (p.cislo(QStringLiteral("IDFormat")) > 1) {
                const Recordset f = PruchodZakazky::format(db, zakazka, p, sestava);
                const double x = p.cislo(QStringLiteral("x")), y = p.cislo(QStringLiteral("y"));
                const double plocha = Zaokrouhli(x * y / 1000000, 2);
                const double jc = Zaokrouhli(f.cislo(QStringLiteral("CenaBezDPH")) * (1 - s.pm / 100.0), 2);
                out.set(QStringLiteral("Material"),
                        celkem ? f.text(QStringLiteral("Material")) + QStringLiteral(" (") +
                                     Dotaz::cislo(f.cislo(QStringLiteral("RozmerX"))) + QStringLiteral("mm x ") +
                                     Dotaz::cislo(f.cislo(QStringLiteral("RozmerY"))) + QStringLiteral("mm)")
                               : Jednotky::RozmerDesky(f.text(QStringLiteral("Material")), f.cislo(QStringLiteral("RozmerX")),
                                                       f.cislo(QStringLiteral("RozmerY"))));
                out.set(QStringLiteral("Oznaceni"), Jednotky::RozmerDesky(oznaceni, x, y));
                out.set(QStringLiteral("plocha"), plocha);
                out.set(QStringLiteral("JC"), jc);
                if (celkem) {
                    const double plochacelkem = Zaokrouhli(plocha * mnozstvi, 2);
                    out.set(QStringLiteral("plochacelkem"), plochacelkem);
                    out.set(QStringLiteral("Cena"), Zaokrouhli(plochacelkem * jc, 2));
                } else {
                    out.set(QStringLiteral("Cena"), Zaokrouhli(plocha * mnozstvi * jc, 2));
                }
                out.set(QStringLiteral("jednotka"), f.text(QStringLiteral("pouziti")) == QLatin1String("format")
                                                        ? QStringLiteral("m2")
                                                        : QStringLiteral("m"));
            } else {
                const double jc = Zaokrouhli(p.cislo(QStringLiteral("Cena")) * (1 - s.pris / 100.0), 2);
                out.set(QStringLiteral("Material"), oznaceni);
                out.set(QStringLiteral("Oznaceni"), QString());
                out.set(QStringLiteral("plocha"), 0.0);
                out.set(QStringLiteral("JC"), jc);
                out.set(QStringLiteral("Cena"), mnozstvi * jc); // an accessory's line stays unrounded
                out.set(QStringLiteral("jednotka"), p.value(QStringLiteral("jednotka")));
            }
            out.update();
        });
    // bands: X sides with the sheet material's discount, Y sides with the band's
    PruchodZakazky::hrany(
        db, zakazka, vyber,
        [&](const Recordset& h, const Recordset& b, const QString& sestava, PruchodZakazky::StranaHrany strana) {
            const double kusy = kusu(b) * (strana.obe ? 2 : 1);
            const double delka =
                Zaokrouhli((b.cislo(QLatin1String(strana.rozmer())) + 2 * h.cislo(QStringLiteral("PresahHrany"))) / 1000, 3);
            const double jc =
                Zaokrouhli(h.cislo(QStringLiteral("CenaBezDPH")) * (1 - (strana.cislo == 2 ? s.pm : s.hrana) / 100.0), 2);
            zacniRadek(b, sestava, strana.cislo);
            out.set(QStringLiteral("Material"), h.text(QStringLiteral("Material")));
            out.set(QStringLiteral("Oznaceni"),
                    Jednotky::RozmerDesky(b.text(QStringLiteral("Oznaceni")), b.cislo(QStringLiteral("x")),
                                          b.cislo(QStringLiteral("y"))));
            out.set(QStringLiteral("mnozstvi"), kusy);
            out.set(QStringLiteral("delka"), delka);
            out.set(QStringLiteral("JC"), jc);
            if (celkem) {
                const double delkacelkem = Zaokrouhli(delka * kusy, 3);
                out.set(QStringLiteral("delkacelkem"), delkacelkem);
                out.set(QStringLiteral("Cena"), Zaokrouhli(delkacelkem * jc, 2));
            } else {
                out.set(QStringLiteral("Cena"), Zaokrouhli(kusy * delka * jc, 2));
            }
            out.set(QStringLiteral("jednotka"), QStringLiteral("m"));
            out.update();
        });
    pridejRezani(out, rezani, celkem);
}

// A row's quantity in the unit of its price: area, length or pieces.
double mnozstviVJednotce(const Recordset& g)
{
    const double plocha = g.cislo(QStringLiteral("plocha")), delka = g.cislo(QStringLiteral("delka"));
    return g.cislo(QStringLiteral("mnozstvi")) * (plocha != 0 ? plocha : delka != 0 ? delka : 1);
}

// The group's price and quantity, per piece or times each row's assembly count; leaves the
// group on its last row, whose fields the total row takes.
std::pair<double, double> soucet(Recordset& g, bool kratPocet)
{
    double cena = 0, mnozstvi = 0;
    for (; !g.eof(); g.moveNext()) {
        const double pocet = kratPocet ? g.cislo(QStringLiteral("pocetsestav")) : 1;
        cena += g.cislo(QStringLiteral("Cena")) * pocet;
        mnozstvi += pocet * mnozstviVJednotce(g);
    }
    g.moveLast();
    return {cena, mnozstvi};
}

// Each distinct Material of the rows of SoupisProKalkulaci that meet podminka (with its bound
// hodnoty; empty: all rows), case-blind as the store groups, with the group's rows.
void kazdyMaterial(Database& db, const QString& podminka, const QVariantList& hodnoty,
                   const std::function<void(const QString& material, Recordset& skupina)>& naMaterial)
{
    const QString kde = podminka.isEmpty() ? QString() : podminka + QStringLiteral(" and ");
    const QString vse = podminka.isEmpty()
                            ? QStringLiteral("SELECT * FROM SoupisProKalkulaci ORDER BY Material")
                            : QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE ") + podminka + QStringLiteral(" ORDER BY Material");
    PruchodZakazky::kazdaSkupina(Recordset(db, vse, hodnoty), QStringLiteral("Material"), [&](const Recordset& m, int) {
        const QString material = m.text(QStringLiteral("Material"));
        Recordset g(db,
                    QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE ") + kde + QStringLiteral("Material = ? ORDER BY Material"),
                    hodnoty + QVariantList{material});
        naMaterial(material, g);
    });
}

} // namespace

void NaplnKalkulaciZakazky(Database& dataK, const QString& zakazka, const Vyber& sestavy,
                           const std::vector<Rezani::Format>& rezani)
{
    Transakce t(dataK);
    napln(dataK, zakazka, sestavy, true, rezani);
    t.commit();
}

void NaplnKalkulaciSestav(Database& dataK, const QString& zakazka, const Vyber& sestavy,
                          const std::vector<Rezani::Format>& rezani)
{
    Transakce t(dataK);
    dataK.execute(QStringLiteral("DELETE * FROM SoupisProKalkulaciCelkem"));
    napln(dataK, zakazka, sestavy, false, rezani);
    // totals per assembly and material
    Recordset celkem(dataK, QStringLiteral("SoupisProKalkulaciCelkem"), Recordset::Rozsah::Prvni);
    const auto pridejCelkem = [&](const QString& material, Recordset& g) {
        const auto [cena, mnozstvi] = soucet(g, false);
        celkem.addNew();
        celkem.set(QStringLiteral("Material"), material);
        for (const char* pole : {"Sestava", "schema", "pocetsestav", "popis", "JC", "jednotka", "cislo"})
            celkem.set(QLatin1String(pole), g.value(QLatin1String(pole)));
        celkem.set(QStringLiteral("mnozstvi"), mnozstvi);
        celkem.set(QStringLiteral("Cena"), cena);
        celkem.update();
    };
    const QString bezRezani = QStringLiteral("cislo <> %1").arg(CisloRezani);
    PruchodZakazky::kazdaSkupina(
        Recordset(dataK, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE ") + bezRezani + QStringLiteral(" ORDER BY Sestava")),
        QStringLiteral("Sestava"), [&](const Recordset& a, int) {
            kazdyMaterial(dataK, QStringLiteral("Sestava = ?"), {a.text(QStringLiteral("Sestava"))}, pridejCelkem);
        });
    // the cutting belongs to the order, not to an assembly: its totals stand apart
    kazdyMaterial(dataK, QStringLiteral("cislo = %1").arg(CisloRezani), {}, pridejCelkem);
    t.commit();
}

void NaplnKalkulaciMaterialu(Database& dataK, const QString& zakazka, const Vyber& sestavy,
                             const std::vector<Rezani::Format>& rezani)
{
    Transakce t(dataK);
    dataK.execute(QStringLiteral("DELETE * FROM SoupisProKalkulaciCelkem"));
    napln(dataK, zakazka, sestavy, false, rezani);
    // totals per material over the order: one piece's rows times the assembly count
    Recordset celkem(dataK, QStringLiteral("SoupisProKalkulaciCelkem"), Recordset::Rozsah::Prvni);
    kazdyMaterial(dataK, QString(), {}, [&](const QString& material, Recordset& g) {
        const auto [cena, mnozstvi] = soucet(g, true);
        const bool hrana = g.cislo(QStringLiteral("delka")) != 0;
        const bool jeRezani = g.cislo(QStringLiteral("cislo")) == CisloRezani;
        const bool prislusenstvi = !hrana && !jeRezani && g.cislo(QStringLiteral("plocha")) == 0;
        celkem.addNew();
        celkem.set(QStringLiteral("Material"), material);
        for (const char* pole : {"JC", "jednotka", "cislo"})
            celkem.set(QLatin1String(pole), g.value(QLatin1String(pole)));
        celkem.set(QStringLiteral("mnozstvi"), mnozstvi);
        celkem.set(QStringLiteral("Cena"), cena);
        celkem.set(QStringLiteral("popis"), hrana           ? QStringLiteral("Hrana")
                                            : jeRezani      ? QStringLiteral("Rezani")
                                            : prislusenstvi ? QStringLiteral("Prislusenstvi")
                                                            : QString());
        celkem.update();
    });
    t.commit();
}

double sDPH(double zaklad)
{
    return Zaokrouhli(zaklad * (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH")) / 100 + 1), 2);
}

Ceny ZobrazCeny(Uloziste& u, const QString& zakazka, const QString& sestava, Rezani::Pamet* delkyRezu)
{
    const QString mena = Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena"));
    auto text = [&](const QVariant& soucet) {
        return (soucet.isNull() ? QString()
                                : QString::number(sDPH(Zaokrouhli(soucet.toDouble(), 2)), 'f', 2)
                                      .replace(QLatin1Char('.'), Jednotky::oddelovac())) +
               QLatin1Char(' ') + mena;
    };
    Ceny c;
    const std::vector<Rezani::Format> rezani = Rezani::zakazky(u, zakazka, {}, delkyRezu);
    u.ObnovPracovniDatabazi();
    try {
        Database& k = u.dataK();
        NaplnKalkulaciZakazky(k, zakazka, {}, rezani);
        c.zakazka = text(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaci  ")));
        if (!sestava.isEmpty()) {
            NaplnKalkulaciSestav(k, zakazka);
            c.sestava =
                text(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaciCelkem WHERE Sestava = ?"), {sestava}));
        }
    } catch (...) {
        u.zavriDataK();
        throw;
    }
    u.zavriDataK();
    return c;
}

QStringList bezCeny(Database& dataK)
{
    QStringList materialy;
    for (Recordset r(dataK, QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE JC = 0 order by material")); !r.eof();
         r.moveNext())
        if (!materialy.contains(r.text(QStringLiteral("Material"))))
            materialy << r.text(QStringLiteral("Material"));
    return materialy;
}

int radkuDilny(Database& dataK) { return dataK.hodnota(QStringLiteral("SELECT count(*) FROM SoupisProDilnu")).toInt(); }

} // namespace Kalkulace
