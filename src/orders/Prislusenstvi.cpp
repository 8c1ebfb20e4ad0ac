#include "orders/Prislusenstvi.h"

#include "core/Database.h"
#include "core/KontrolaTextu.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/Zaokrouhleni.h"
#include "orders/NoveRadky.h"
#include "orders/RadkyZakazky.h"

#include <cmath>
#include <optional>

namespace Prislusenstvi {
namespace {

using RadkyZakazky::polozka;

std::optional<double> cislo(const QString& text)
{
    bool ok = false;
    const double v = Jednotky::CisloZTextu(text.trimmed()).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    if (!ok || !std::isfinite(v))
        return std::nullopt;
    return v;
}

QString sOddelovacem(double v, int mist)
{
    return QString::number(Zaokrouhli(v, mist), 'f', mist).replace(QLatin1Char('.'), Jednotky::oddelovac());
}

bool odmitni(Prompt& p, const QString& text, Prompt::Ikona ikona = Prompt::Ikona::Vykricnik)
{
    p.zprava(text, QString(), ikona);
    return false;
}

// The checks every save makes before it looks at the store.
std::optional<Polozka> platne(Prompt& p, const Zadani& z)
{
    if (z.oznaceni.size() > MaxNazev) {
        odmitni(p, QStringLiteral("Název nového příslušenstvi smí obsahovat maximálně 100 znaků!!!"), Prompt::Ikona::Kriticka);
        return std::nullopt;
    }
    if (!KontrolaTextu::prijmi(p, {{z.oznaceni, QStringLiteral("Název příslušenství"), KontrolaTextu::NazevMaterialu},
                                   {z.jednotka, QStringLiteral("Jednotka")}}))
        return std::nullopt;
    if (z.oznaceni.trimmed().isEmpty()) {
        odmitni(p, QStringLiteral("Zadejte název příslušenství."));
        return std::nullopt;
    }
    const auto pocet = cislo(z.pocet);
    const auto cena = cislo(z.cena);
    if (!pocet || *pocet <= 0 || !cena || *cena < 0) {
        odmitni(p, QStringLiteral("Zadejte množství a cenu číslem."));
        return std::nullopt;
    }
    return Polozka{z.oznaceni, *pocet, z.jednotka.trimmed(), *cena};
}

void zapis(Recordset& rs, const Polozka& p)
{
    rs.set(QStringLiteral("Oznaceni"), p.oznaceni);
    rs.set(QStringLiteral("Cena"), p.cena);
    rs.set(QStringLiteral("Pocet"), p.pocet);
    rs.set(QStringLiteral("jednotka"), p.jednotka);
    rs.set(QStringLiteral("IDFormat"), 1);
}

void nova(Database& db, const QString& zakazka, const QString& sestava, const Polozka& p)
{
    Recordset rs = NoveRadky::DoSestavy(db, zakazka, sestava).radek();
    zapis(rs, p);
    rs.set(QStringLiteral("cas"), Razitko::sekundy(Razitko::ted()));
    rs.update();
}

void uprava(Database& db, const QString& zakazka, const QString& sestava, const QString& stary, const Polozka& p)
{
    auto rs = polozka(db, zakazka, sestava, stary);
    if (!rs)
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Příslušenství „%1“ v sestavě „%2“ není.").arg(stary, sestava));
    rs->edit();
    zapis(*rs, p); // the stamp stays: the item keeps its place
    rs->update();
}

} // namespace

std::vector<Polozka> NaplnitGridPR(Database& db, const QString& zakazka, const QString& sestava)
{
    std::vector<Polozka> v;
    for (Recordset rs(db, QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = ? and Sestava = ? and IDFormat = 1 ORDER BY cas"),
                      {zakazka, sestava});
         !rs.eof(); rs.moveNext())
        v.push_back({rs.text(QStringLiteral("Oznaceni")), rs.cislo(QStringLiteral("Pocet")), rs.text(QStringLiteral("jednotka")),
                     rs.cislo(QStringLiteral("Cena"))});
    return v;
}

QString textMnozstvi(const Polozka& p) { return sOddelovacem(p.pocet, 3) + QLatin1Char(' ') + p.jednotka; }

QString textCeny(const Polozka& p, const QString& mena)
{
    return sOddelovacem(p.cena, 2) + QLatin1Char(' ') + mena + QLatin1Char('/') + p.jednotka;
}

QString popisekCeny(const QString& jednotka)
{
    for (const char* j : {"ks", "pár", "balení", "m2"})
        if (jednotka == QString::fromUtf8(j))
            return QStringLiteral("Kč/") + jednotka;
    return QStringLiteral("Kč/bm");
}

QStringList jednotky(const QStringList& jednotkyCeniku)
{
    QStringList v = {QStringLiteral("balení"), QStringLiteral("hod."), QStringLiteral("pár(y)")};
    for (const QString& j : jednotkyCeniku)
        if (!j.isEmpty() && !v.contains(j))
            v << j;
    return v;
}

Polozka UpravitPrislusenstvi(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    Polozka p;
    p.oznaceni = oznaceni;
    if (auto rs = polozka(db, zakazka, sestava, oznaceni))
        p = {oznaceni, rs->cislo(QStringLiteral("Pocet")), rs->text(QStringLiteral("jednotka")),
             rs->cislo(QStringLiteral("Cena"))};
    Nastaveni::SaveSetting(QStringLiteral("Editor"), QStringLiteral("Prislusenstvi"), oznaceni);
    Nastaveni::SaveSetting(QStringLiteral("Editor"), QStringLiteral("CenaPrislusenstvi"), QString::number(p.cena, 'g', 15));
    return p;
}

bool UlozitPrislusenstvi(Database& db, Prompt& prompt, bool upravit, const QString& zakazka, const QString& sestava,
                         const Zadani& z)
{
    const auto p = platne(prompt, z);
    if (!p)
        return false;
    const QString stary = upravit ? Nastaveni::GetSetting(QStringLiteral("Editor"), QStringLiteral("Prislusenstvi")) : QString();
    // refusals come before the transaction: no lock is held while a message stands
    if ((!upravit || p->oznaceni != stary) && polozka(db, zakazka, sestava, p->oznaceni))
        return odmitni(prompt,
                       upravit ? QStringLiteral("Příslušenstvi v sestavě již pod tímto názvem existuje, zadejte jiný nazev !!!")
                               : QStringLiteral("Příslušenství v sestavě již pod tímto názvem existuje, zadejte jiný název !!!"));
    Transakce t(db);
    if (upravit)
        uprava(db, zakazka, sestava, stary, *p);
    else
        nova(db, zakazka, sestava, *p);
    t.commit();
    return true;
}

bool SmazatPrislusenstvi(Database& db, Prompt& prompt, const QString& zakazka, const QString& sestava, const QString& oznaceni)
{
    if (prompt.zprava(QStringLiteral("Chcete odstranit toto příslušenství - ") + oznaceni + QStringLiteral(" - ?"),
                      QStringLiteral("Odstranění příslušenství"), Prompt::Ikona::Otaznik,
                      Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(db);
    const int radku = RadkyZakazky::radkySestavy(db, zakazka, sestava).recordCount();
    auto rs = polozka(db, zakazka, sestava, oznaceni);
    if (!rs)
        return false;
    if (radku < 2) {
        rs->edit(); // the row stays as the assembly's header, still an accessory with its unit
        rs->set(QStringLiteral("Deska"), QString());
        rs->set(QStringLiteral("Oznaceni"), QString());
        rs->set(QStringLiteral("Pocet"), 0);
        rs->set(QStringLiteral("Cena"), 0);
        rs->update();
    } else {
        rs->remove();
    }
    t.commit();
    return true;
}

} // namespace Prislusenstvi
