#include "costing/Kalkulace.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/Uloziste.h"
#include "costing/Zaokrouhleni.h"

#include <QLocale>

namespace Kalkulace {
namespace {

QString z(const QString& t) { return Dotaz::text(t); }

struct Slevy {
    int pm = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaPM")));
    int hrana = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaHrana")));
    int pris = Sleva(Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("SlevaPris")));
};

bool vybrana(const Vyber& v, const QString& sestava)
{
    return v.isEmpty() || std::any_of(v.begin(), v.end(), [&](const QString& s) { return s.compare(sestava, Qt::CaseInsensitive) == 0; });
}

QString rozmery(double x, double y)
{
    return QStringLiteral(" (") + Jednotky::ZMilimetru(x) + QStringLiteral(" x ") + Jednotky::ZMilimetru(y) + QLatin1Char(')');
}

// One costing pass: celkem covers the whole order (quantities times the assembly count),
// otherwise one piece of each assembly.
void napln(Database& db, const QString& zakazka, const Vyber& vyber, bool celkem)
{
    const Slevy s;
    db.execute(QStringLiteral("DELETE * FROM SoupisProKalkulaci"));
    Recordset out(db, QStringLiteral("SoupisProKalkulaci"), Recordset::Rozsah::Prvni);
    QString posledni;
    for (Recordset r(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) +
                             QStringLiteral("' ORDER BY Sestava"));
         !r.eof(); r.moveNext()) {
        const QString sestava = r.text(QStringLiteral("Sestava"));
        if (sestava == posledni)
            continue;
        posledni = sestava;
        if (!vybrana(vyber, sestava))
            continue;
        for (Recordset p(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) +
                                 QStringLiteral("' and Sestava = '") + z(sestava) +
                                 (celkem ? QStringLiteral("' and cas > 0  ORDER BY Sestava")
                                         : QStringLiteral("' and cas > 0  ORDER BY Sestava, IDFormat desc, cas")));
             !p.eof(); p.moveNext()) {
            const QString oznaceni = p.text(QStringLiteral("Oznaceni"));
            if (oznaceni.isEmpty())
                continue; // a header row that kept its stamp is not priced
            const double kusu = celkem ? p.cislo(QStringLiteral("pocetelementuVsestave")) * p.cislo(QStringLiteral("Pocet"))
                                       : p.cislo(QStringLiteral("Pocet"));
            out.addNew();
            out.set(QStringLiteral("ID"), true);
            out.set(QStringLiteral("cislo"), 1);
            out.set(QStringLiteral("Sestava"), sestava);
            if (!celkem) {
                out.set(QStringLiteral("popis"), p.value(QStringLiteral("popis")));
                out.set(QStringLiteral("pocetsestav"), p.value(QStringLiteral("pocetelementuVsestave")));
                out.set(QStringLiteral("schema"), p.value(QStringLiteral("schema")));
            }
            const double mnozstvi = Zaokrouhli(kusu, 3);
            out.set(QStringLiteral("mnozstvi"), mnozstvi);
            const double idFormat = p.cislo(QStringLiteral("IDFormat"));
            if (idFormat > 1) {
                const Recordset f(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE ID = ") + Dotaz::cislo(idFormat) +
                                          QStringLiteral(" and Zakazka = '") + z(zakazka) + QStringLiteral("' "),
                                  Recordset::Rozsah::Prvni);
                if (f.eof())
                    throw Error(Chyba::NeplatnyVstup, QStringLiteral("Deska „%1“ v sestavě „%2“ nemá formát: doplňte ho.")
                                                          .arg(oznaceni, sestava));
                const double x = p.cislo(QStringLiteral("x")), y = p.cislo(QStringLiteral("y"));
                const double plocha = Zaokrouhli(x * y / 1000000, 2);
                const double jc = Zaokrouhli(f.cislo(QStringLiteral("CenaBezDPH")) * (1 - s.pm / 100.0), 2);
                out.set(QStringLiteral("Material"),
                        celkem ? f.text(QStringLiteral("Material")) + QStringLiteral(" (") +
                                     Dotaz::cislo(f.cislo(QStringLiteral("RozmerX"))) + QStringLiteral("mm x ") +
                                     Dotaz::cislo(f.cislo(QStringLiteral("RozmerY"))) + QStringLiteral("mm)")
                               : f.text(QStringLiteral("Material")) +
                                     rozmery(f.cislo(QStringLiteral("RozmerX")), f.cislo(QStringLiteral("RozmerY"))));
                out.set(QStringLiteral("Oznaceni"), oznaceni + rozmery(x, y));
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
                                                        ? QStringLiteral("m2") : QStringLiteral("m"));
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
        }
    }
    // bands: X sides with the sheet material's discount, Y sides with the band's
    for (Recordset h(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                             QStringLiteral("' and Pouziti = 'hrana'  "));
         !h.eof(); h.moveNext()) {
        const QString id = Dotaz::cislo(h.cislo(QStringLiteral("ID")));
        const QString pouziti = QStringLiteral(" and (IDHX1 = %1 or IDHX2 = %1 or IDHY1 = %1 or IDHY2 = %1 )").arg(id);
        QString predchozi;
        for (Recordset r(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) + QStringLiteral("'") +
                                 pouziti + QStringLiteral(" ORDER BY Sestava"));
             !r.eof(); r.moveNext()) {
            const QString sestava = r.text(QStringLiteral("Sestava"));
            if (sestava == predchozi)
                continue;
            predchozi = sestava;
            if (!vybrana(vyber, sestava))
                continue;
            for (Recordset b(db, QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) +
                                     QStringLiteral("' and  Sestava = '") + z(sestava) + QStringLiteral("'") + pouziti +
                                     QStringLiteral(" ORDER BY Sestava"));
                 !b.eof(); b.moveNext()) {
                const double kusu = celkem ? b.cislo(QStringLiteral("pocetelementuVsestave")) * b.cislo(QStringLiteral("Pocet"))
                                           : b.cislo(QStringLiteral("Pocet"));
                for (int strana = 0; strana < 2; ++strana) {
                    const char* a = strana == 0 ? "IDHX1" : "IDHY1";
                    const char* c = strana == 0 ? "IDHX2" : "IDHY2";
                    const int naStrane = (Dotaz::cislo(b.cislo(QLatin1String(a))) == id) +
                                         (Dotaz::cislo(b.cislo(QLatin1String(c))) == id);
                    if (!naStrane)
                        continue;
                    const double kusy = kusu * (naStrane == 2 ? 2 : 1);
                    const double delka = Zaokrouhli((b.cislo(strana == 0 ? QStringLiteral("x") : QStringLiteral("y")) +
                                                     2 * h.cislo(QStringLiteral("PresahHrany"))) / 1000, 3);
                    const double jc = Zaokrouhli(h.cislo(QStringLiteral("CenaBezDPH")) *
                                                     (1 - (strana == 0 ? s.pm : s.hrana) / 100.0), 2);
                    out.addNew();
                    out.set(QStringLiteral("ID"), true);
                    out.set(QStringLiteral("cislo"), strana == 0 ? 2 : 3);
                    out.set(QStringLiteral("Material"), h.text(QStringLiteral("Material")));
                    out.set(QStringLiteral("Sestava"), sestava);
                    out.set(QStringLiteral("Oznaceni"), b.text(QStringLiteral("Oznaceni")) +
                                                            rozmery(b.cislo(QStringLiteral("x")), b.cislo(QStringLiteral("y"))));
                    if (!celkem) {
                        out.set(QStringLiteral("popis"), b.value(QStringLiteral("popis")));
                        out.set(QStringLiteral("pocetsestav"), b.value(QStringLiteral("pocetelementuVsestave")));
                        out.set(QStringLiteral("schema"), b.value(QStringLiteral("schema")));
                    }
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
                }
            }
        }
    }
}

} // namespace

void NaplnKalkulaciZakazky(Database& dataK, const QString& zakazka, const Vyber& sestavy)
{
    Transakce t(dataK);
    napln(dataK, zakazka, sestavy, true);
    t.commit();
}

void NaplnKalkulaciSestav(Database& dataK, const QString& zakazka, const Vyber& sestavy)
{
    Transakce t(dataK);
    dataK.execute(QStringLiteral("DELETE * FROM SoupisProKalkulaciCelkem"));
    napln(dataK, zakazka, sestavy, false);
    // totals per assembly and material
    Recordset celkem(dataK, QStringLiteral("SoupisProKalkulaciCelkem"), Recordset::Rozsah::Prvni);
    QString sestava;
    for (Recordset a(dataK, QStringLiteral("SELECT * FROM SoupisProKalkulaci  ORDER BY Sestava")); !a.eof(); a.moveNext()) {
        if (a.text(QStringLiteral("Sestava")) == sestava)
            continue;
        sestava = a.text(QStringLiteral("Sestava"));
        QString material;
        for (Recordset m(dataK, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE Sestava = '") + z(sestava) +
                                    QStringLiteral("' ORDER BY Material"));
             !m.eof(); m.moveNext()) {
            if (m.text(QStringLiteral("Material")) == material)
                continue;
            material = m.text(QStringLiteral("Material"));
            double cena = 0, mnozstvi = 0;
            Recordset g(dataK, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE Sestava = '") + z(sestava) +
                                   QStringLiteral("' and Material = '") + z(material) + QStringLiteral("' ORDER BY Material"));
            for (; !g.eof(); g.moveNext()) {
                cena += g.cislo(QStringLiteral("Cena"));
                const double plocha = g.cislo(QStringLiteral("plocha")), delka = g.cislo(QStringLiteral("delka"));
                mnozstvi += g.cislo(QStringLiteral("mnozstvi")) * (plocha != 0 ? plocha : delka != 0 ? delka : 1);
            }
            g.moveLast();
            celkem.addNew();
            celkem.set(QStringLiteral("Material"), material);
            for (const char* pole : {"Sestava", "schema", "pocetsestav", "popis", "JC", "jednotka", "cislo"})
                celkem.set(QLatin1String(pole), g.value(QLatin1String(pole)));
            celkem.set(QStringLiteral("mnozstvi"), mnozstvi);
            celkem.set(QStringLiteral("Cena"), cena);
            celkem.update();
        }
    }
    t.commit();
}

double sDPH(double zaklad)
{
    return Zaokrouhli(zaklad * (Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH")) / 100 + 1), 2);
}

Ceny ZobrazCeny(Uloziste& u, const QString& zakazka, const QString& sestava)
{
    const QString mena = Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena"));
    auto text = [&](const QVariant& soucet) {
        return (soucet.isNull() ? QString() : QString::number(sDPH(Zaokrouhli(soucet.toDouble(), 2)), 'f', 2)
                                                   .replace(QLatin1Char('.'), Jednotky::oddelovac())) +
               QLatin1Char(' ') + mena;
    };
    Ceny c;
    u.ObnovPracovniDatabazi();
    try {
        Database& k = u.dataK();
        NaplnKalkulaciZakazky(k, zakazka);
        c.zakazka = text(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaci  ")));
        if (!sestava.isEmpty()) {
            NaplnKalkulaciSestav(k, zakazka);
            c.sestava = text(k.hodnota(QStringLiteral("SELECT sum(cena) FROM SoupisProKalkulaciCelkem  WHERE Sestava = '") +
                                       z(sestava) + QStringLiteral("'  ")));
        }
    } catch (...) {
        u.zavriDataK();
        throw;
    }
    u.zavriDataK();
    return c;
}

}
