#include "orders/Desky.h"

#include "core/Database.h"
#include "core/KontrolaTextu.h"
#include "core/Jednotky.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "orders/Materialy.h"
#include "orders/NoveRadky.h"
#include "orders/RadkyZakazky.h"

namespace Desky {
namespace {

const char* const hranyPole[] = {"IDHX1", "IDHX2", "IDHY1", "IDHY2"};

using RadkyZakazky::polozka;

Deska cti(const Recordset& rs)
{
    Deska d{rs.text(QStringLiteral("Oznaceni")), rs.cislo(QStringLiteral("x")), rs.cislo(QStringLiteral("y")),
            rs.cislo(QStringLiteral("Pocet")),   rs.ano(QStringLiteral("OV")),  rs.cislo(QStringLiteral("IDFormat"))};
    for (int i = 0; i < 4; ++i)
        d.hrany[i] = rs.cislo(QLatin1String(hranyPole[i]));
    return d;
}

void zapis(Recordset& rs, const Deska& d, const QString& nazev)
{
    rs.set(QStringLiteral("IDFormat"), d.idFormat);
    for (int i = 0; i < 4; ++i)
        rs.set(QLatin1String(hranyPole[i]), d.hrany[i]);
    rs.set(QStringLiteral("Oznaceni"), nazev);
    rs.set(QStringLiteral("x"), d.x);
    rs.set(QStringLiteral("y"), d.y);
    rs.set(QStringLiteral("Pocet"), d.pocet);
    rs.set(QStringLiteral("OV"), d.ov);
}

QString nazevNoveDesky(Database& db, const QString& zakazka, const QString& sestava, const QString& nazev)
{
    if (!nazev.trimmed().isEmpty())
        return nazev;
    for (int n = 1;; ++n) {
        const QString zkouska = QStringLiteral("deska %1").arg(n);
        if (!polozka(db, zakazka, sestava, zkouska))
            return zkouska;
    }
}

bool duplicita(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const QString& nazev)
{
    if (!polozka(db, zakazka, sestava, nazev))
        return false;
    p.zprava(QStringLiteral("Název desky již v sestavě existuje"), QString(), Prompt::Ikona::Kriticka);
    return true;
}

} // namespace

Nahled NahledDesky(const QString& x, const QString& y, const QString& pocet, const QString& format, const QString (&hrany)[4],
                   const std::vector<Materialy::Material>& pasky)
{
    Nahled n;
    n.vykreslit = !x.isEmpty() && !y.isEmpty();
    n.ulozit = n.vykreslit && !pocet.isEmpty() && !format.isEmpty();
    for (int i = 0; i < 4; ++i)
        for (const Materialy::Material& p : pasky)
            if (Materialy::textHrany(p) == hrany[i])
                n.barvy[i] = p.barva;
    return n;
}

std::vector<RadekGridu> NaplnitGridPM(Database& db, const QString& zakazka, const QString& sestava)
{
    std::vector<RadekGridu> radky;
    for (Recordset rs(db, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and Sestava = ? and IDFormat > 1 ORDER BY cas"),
                      {zakazka, sestava});
         !rs.eof(); rs.moveNext()) {
        RadekGridu r{cti(rs), QString()};
        if (const auto f = RadkyZakazky::material(db, zakazka, r.deska.idFormat))
            r.format = Jednotky::RozmerDesky(f->text(QStringLiteral("Material")), f->cislo(QStringLiteral("RozmerX")),
                                             f->cislo(QStringLiteral("RozmerY")));
        radky.push_back(r);
    }
    return radky;
}

Deska nacti(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    auto rs = polozka(db, zakazka, sestava, oznaceni);
    return rs ? cti(*rs) : Deska{};
}

QString UlozitNovyPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const Deska& d)
{
    if (!KontrolaTextu::prijmi(p, {{d.oznaceni, QStringLiteral("Označení desky")}}))
        return QString();
    const QString nazev = nazevNoveDesky(db, zakazka, sestava, d.oznaceni);
    if (duplicita(db, p, zakazka, sestava, nazev))
        return QString(); // refused before the transaction: no lock is held while the message stands
    Transakce t(db);
    Recordset rs = NoveRadky::DoSestavy(db, zakazka, sestava).radek();
    zapis(rs, d, nazev);
    rs.set(QStringLiteral("cas"), Razitko::sekundy(Razitko::ted()));
    rs.update();
    t.commit();
    return nazev;
}

QString UlozitUpravuPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const QString& staryNazev,
                       const Deska& d)
{
    if (!KontrolaTextu::prijmi(p, {{d.oznaceni, QStringLiteral("Označení desky")}}))
        return QString();
    const QString nazev = nazevNoveDesky(db, zakazka, sestava, d.oznaceni);
    if (nazev != staryNazev && duplicita(db, p, zakazka, sestava, nazev))
        return QString();
    Transakce t(db);
    auto rs = polozka(db, zakazka, sestava, staryNazev);
    if (!rs)
        return QString();
    rs->edit();
    zapis(*rs, d, nazev); // the stamp stays: the board keeps its place
    rs->update();
    t.commit();
    return nazev;
}

bool SmazatPM(Database& db, Prompt& p, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    const Deska d = nacti(db, zakazka, sestava, oznaceni);
    if (p.zprava(QStringLiteral("Chcete odstranit tuto desku - ") + oznaceni + QStringLiteral(" (") + Jednotky::ZMilimetru(d.x) +
                     QStringLiteral(" x ") + Jednotky::ZMilimetru(d.y) + QStringLiteral(")") + QStringLiteral(" - ?"),
                 QStringLiteral("Odstranění desky"), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(db);
    Recordset vse = RadkyZakazky::radkySestavy(db, zakazka, sestava);
    auto rs = polozka(db, zakazka, sestava, oznaceni);
    if (rs && vse.recordCount() < 2) {
        rs->edit(); // the row stays as the assembly's header
        rs->set(QStringLiteral("Oznaceni"), QString());
        for (const char* pole : {"x", "y", "OV", "Pocet", "Cena", "IDFormat", "IDHX1", "IDHX2", "IDHY1", "IDHY2"})
            rs->set(QLatin1String(pole), 0);
        rs->update();
    } else if (rs) {
        rs->remove();
    }
    t.commit();
    return true;
}

} // namespace Desky
