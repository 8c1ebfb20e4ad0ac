// The costing reports (calc, calc-sestavy, purchase, quote, workshop): the tax summary, the
// filled tables as JSON, the report as PDF; and totals, the two prices of the status bar.
#include "Cli.h"
#include "Prikazy.h"

#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Uloziste.h"
#include "core/VypisTabulky.h"
#include "costing/Kalkulace.h"
#include "costing/Vypisy.h"
#include "orders/Strom.h"
#include "printing/Vykresleni.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <optional>

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
    for (const QString& m : Kalkulace::bezCeny(k))
        Cli::err() << QStringLiteral("Upozornění: materiál „%1“ nemá cenu, počítá se za 0.").arg(m) << Qt::endl;
}

QString castka(double v) { return Vypis::castka(v) + QLatin1Char(' ') + Vypis::mena(); }

QJsonObject souhrnJson(const Vypis::Dan& dan)
{
    return {{QStringLiteral("zaklad"), castka(dan.zaklad)},
            {QStringLiteral("dph"), castka(dan.dph)},
            {QStringLiteral("celkem"), castka(dan.celkem)}};
}

QJsonArray sestavyJson(const std::vector<CenaSestavy>& sestavy, bool nabidka)
{
    QJsonArray a;
    for (const CenaSestavy& c : sestavy) {
        QJsonObject o{{QStringLiteral("Sestava"), c.sestava},
                      {QStringLiteral("pocetsestav"), c.pocet},
                      {QStringLiteral("cena1ks"), castka(c.cena1ks)},
                      {QStringLiteral("cena"), castka(c.cena)}};
        if (nabidka) {
            o.insert(QStringLiteral("dph"), castka(c.dph));
            o.insert(QStringLiteral("celkem"), castka(c.celkem));
        }
        a.append(o);
    }
    return a;
}

int spustVypis(const QStringList& vstup, DruhVypisu druh)
{
    QStringList argumenty = vstup;
    const bool json = Cli::vezmiPrepinac(argumenty, QStringLiteral("--json"));
    if (druh == DruhVypisu::Dilna && Cli::vezmiPrepinac(argumenty, QStringLiteral("--schemata")))
        druh = DruhVypisu::DilnaSeSchematy;
    const QString pdf = Cli::vezmiVolbu(argumenty, QStringLiteral("--pdf"));
    const Vyber v = vyber(argumenty);
    Uloziste& u = Cli::uloziste();
    const std::vector<Rezani::Format> rezani = Rezani::zakazky(u, v.zakazka, v.nazvy);
    u.ObnovPracovniDatabazi();
    Database& k = u.dataK();
    Dokument d;
    const VysledekVypisu r = SestavVypis(druh, d, k, u.cenik(), v.zakazka, v.nazvy, v.texty, rezani);
    QJsonObject o;
    if (druh == DruhVypisu::Sestavy || druh == DruhVypisu::Nabidka)
        o.insert(QStringLiteral("sestavy"), sestavyJson(r.sestavy, druh == DruhVypisu::Nabidka));
    if (druh == DruhVypisu::Nakup) {
        QJsonArray a;
        for (const PolozkaNakupu& p : r.nakup)
            a.append(QJsonObject{{QStringLiteral("Material"), p.material}, {QStringLiteral("nakup"), p.nakup}});
        o.insert(QStringLiteral("nakup"), a);
    }
    const std::optional<Vypis::Dan>& dan = r.dan;
    if (dan)
        varujBezCeny(k);
    if (!pdf.isNull())
        Vykresleni::pdf(d, pdf, r.titulek);
    if (json) {
        for (const QString& t : r.tabulky)
            o.insert(t, VypisTabulky(k, t));
        if (dan)
            o.insert(QStringLiteral("souhrn"), souhrnJson(*dan));
        Cli::out() << QString::fromUtf8(QJsonDocument(o).toJson(QJsonDocument::Compact)) << '\n';
    } else if (dan) {
        Cli::out() << QStringLiteral("Základ daně: ") << castka(dan->zaklad) << '\n'
                   << QStringLiteral("DPH ( ") << Jednotky::cislo(Vypis::procentoDPH()) << QStringLiteral("% ): ")
                   << castka(dan->dph) << '\n'
                   << QStringLiteral("Celkem včetně DPH: ") << castka(dan->celkem) << '\n';
    } else {
        Cli::out() << QStringLiteral("Soupis materiálu pro dílnu: %1 řádků").arg(Kalkulace::radkuDilny(k)) << '\n';
    }
    u.zavriDataK();
    return Cli::Hotovo;
}

} // namespace

int prikazCalc(const QStringList& argumenty) { return spustVypis(argumenty, DruhVypisu::Zakazka); }
int prikazCalcSestavy(const QStringList& argumenty) { return spustVypis(argumenty, DruhVypisu::Sestavy); }
int prikazPurchase(const QStringList& argumenty) { return spustVypis(argumenty, DruhVypisu::Nakup); }
int prikazQuote(const QStringList& argumenty) { return spustVypis(argumenty, DruhVypisu::Nabidka); }
int prikazWorkshop(const QStringList& argumenty) { return spustVypis(argumenty, DruhVypisu::Dilna); }

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
