// calc and totals: the order's calculation as a tax summary, its tables as JSON, its report
// as PDF; and the two prices of the main window's status bar.
#include "Cli.h"
#include "Prikazy.h"

#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "costing/Kalkulace.h"
#include "costing/KalkulaceZakazkyVypis.h"
#include "optimiser/VypisNP.h"
#include "orders/Strom.h"
#include "printing/Vykresleni.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

// The assemblies chosen by --sestava (all without it), as the calculation dialog lists them:
// "name ( n ks )". Refuses an unknown order or assembly.
struct Vyber {
    QString zakazka;
    QStringList nazvy, texty;
};

Vyber vyber(QStringList& argumenty)
{
    QStringList chtene;
    for (QString s; !(s = Cli::vezmiVolbu(argumenty, QStringLiteral("--sestava"))).isNull();)
        chtene << s;
    if (argumenty.size() != 1)
        throw Cli::ChybaPouziti(QStringLiteral("Chybí název zakázky."));
    Vyber v{argumenty[0], {}, {}};
    const auto z = UzelZakazkyPodleNazvu(Cli::uloziste().dataS(), v.zakazka);
    if (!z)
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Zakázka „%1“ neexistuje.").arg(v.zakazka));
    for (const QString& s : chtene)
        if (std::none_of(z->sestavy.begin(), z->sestavy.end(), [&](const UzelSestavy& u) { return u.nazev == s; }))
            throw Error(Chyba::NeplatnyVstup, QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(s, v.zakazka));
    for (const UzelSestavy& s : z->sestavy)
        if (chtene.isEmpty() || chtene.contains(s.nazev)) {
            v.nazvy << s.nazev;
            v.texty << s.text();
        }
    return v;
}

// Materials priced at 0 cost nothing; say which, so that a missing price is noticed.
void varujBezCeny(Database& k)
{
    QStringList videne;
    for (Recordset r(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci  WHERE JC = 0 order by material")); !r.eof(); r.moveNext()) {
        const QString m = r.text(QStringLiteral("Material"));
        if (!videne.contains(m)) {
            videne << m;
            Cli::err() << QStringLiteral("Upozornění: materiál „%1“ nemá cenu, počítá se za 0.").arg(m) << Qt::endl;
        }
    }
}

} // namespace

int prikazCalc(const QStringList& vstup)
{
    QStringList argumenty = vstup;
    const bool json = Cli::vezmiPrepinac(argumenty, QStringLiteral("--json"));
    const QString pdf = Cli::vezmiVolbu(argumenty, QStringLiteral("--pdf"));
    const Vyber v = vyber(argumenty);
    Uloziste& u = Cli::uloziste();
    u.ObnovPracovniDatabazi();
    Database& k = u.dataK();
    Kalkulace::NaplnKalkulaciZakazky(k, v.zakazka, v.nazvy);
    varujBezCeny(k);
    Dokument d;
    const Vypis::Dan dan = KalkulaceZakazkyVypis(d, k, v.zakazka, v.texty);
    if (!pdf.isNull())
        Vykresleni::pdf(d, pdf, QString::fromUtf8(TitulekKalkulaceZakazky));
    const QString m = QLatin1Char(' ') + Vypis::mena();
    if (json) {
        const QJsonObject souhrn{{QStringLiteral("zaklad"), Vypis::castka(dan.zaklad) + m},
                                 {QStringLiteral("dph"), Vypis::castka(dan.dph) + m},
                                 {QStringLiteral("celkem"), Vypis::castka(dan.celkem) + m}};
        const QJsonObject o{{QStringLiteral("SoupisProKalkulaci"), VypisTabulky(k, QStringLiteral("SoupisProKalkulaci"))},
                            {QStringLiteral("souhrn"), souhrn}};
        Cli::out() << QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)) << '\n';
    } else {
        Cli::out() << QStringLiteral("Základ daně: ") << Vypis::castka(dan.zaklad) << m << '\n'
                   << QStringLiteral("DPH ( ") << Vypis::procentoDPH() << QStringLiteral("% ): ") << Vypis::castka(dan.dph) << m << '\n'
                   << QStringLiteral("Celkem včetně DPH: ") << Vypis::castka(dan.celkem) << m << '\n';
    }
    u.zavriDataK();
    return Cli::Hotovo;
}

int prikazTotals(const QStringList& vstup)
{
    QStringList argumenty = vstup;
    const QString sestava = Cli::vezmiVolbu(argumenty, QStringLiteral("--sestava"));
    const Vyber v = vyber(argumenty);
    if (!sestava.isNull() && !v.nazvy.contains(sestava))
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, v.zakazka));
    const Kalkulace::Ceny c = Kalkulace::ZobrazCeny(Cli::uloziste(), v.zakazka, sestava);
    Cli::out() << c.zakazka << '\n' << c.sestava << '\n';
    return Cli::Hotovo;
}
