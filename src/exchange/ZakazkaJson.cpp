#include "exchange/ZakazkaJson.h"

#include "core/Database.h"
#include "core/Error.h"
#include "core/Kolace.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "exchange/CteniJson.h"
#include "orders/Materialy.h"
#include "orders/NoveRadky.h"
#include "orders/RadkyZakazky.h"
#include "orders/Strom.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <cmath>
#include <map>
#include <set>

namespace ZakazkaJson {
namespace {

constexpr int MaxNazevZakazky = 50;
constexpr int MaxNazevPrislusenstvi = 100;
constexpr double MaxRozmer = 100000;
constexpr double MaxId = 1e15; // spliced with 15 digits, so it must stay exact

[[noreturn]] void odmitni(const QString& text) { CteniJson::odmitni(text); }

struct Material {
    double id;
    QString nazev;
    bool hrana;
    double x = 0, y = 0, cena = 0, presah = 0;
    bool ov = false;
    qint64 barva = 0;
};

using Polozka = NoveRadky::Polozka;

struct Sestava {
    QString nazev, popis;
    double pocet = 1;
    qint64 schema = 0;
    std::vector<Polozka> polozky{};
};

struct Zakazka {
    QString nazev, poznamka;
    std::vector<Material> materialy{};
    std::vector<Sestava> sestavy{};
};

bool stejneJmeno(const QString& a, const QString& b) { return Kolace::porovnej(a, b) == 0; }

std::vector<Material> ctiMaterialy(const CteniJson& z, bool hrany, std::set<double>& idy)
{
    std::vector<Material> vysledek;
    const QJsonArray pole = z.pole(hrany ? "hrany" : "formaty");
    for (int i = 0; i < pole.size(); ++i) {
        const QString kde = QStringLiteral("%1 č. %2").arg(hrany ? QStringLiteral("Hrana") : QStringLiteral("Formát")).arg(i + 1);
        const CteniJson m = hrany ? CteniJson(pole[i], kde, {"id", "material", "cena", "barva", "presah"})
                                  : CteniJson(pole[i], kde, {"id", "material", "x", "y", "ov", "cena"});
        Material mat{m.celeCislo("id", 2, MaxId, false, 0), m.text("material", true), hrany};
        if (mat.id != 0 && !idy.insert(mat.id).second)
            odmitni(QStringLiteral("%1: číslo materiálu %2 je v zakázce dvakrát.").arg(m.kde()).arg(mat.id, 0, 'f', 0));
        mat.cena = m.cislo("cena", 0, 1e9, false);
        if (hrany) {
            mat.barva = qint64(m.celeCislo("barva", 0, 0xFFFFFF, false));
            mat.presah = m.cislo("presah", 0, 1000, false);
        } else {
            mat.x = m.cislo("x", 0.1, MaxRozmer, true);
            mat.y = m.cislo("y", 0.1, MaxRozmer, true);
            mat.ov = m.ano("ov");
        }
        vysledek.push_back(mat);
    }
    return vysledek;
}

bool maMaterial(const std::vector<Material>& materialy, double id, bool hrana)
{
    return std::any_of(materialy.begin(), materialy.end(), [&](const Material& m) { return m.id == id && m.hrana == hrana; });
}

// A board left without a name is named as the board dialog names it: "deska N", the first N
// that no earlier item of the assembly bears.
QString novyNazevDesky(const std::vector<Polozka>& dosud)
{
    for (int n = 1;; ++n) {
        const QString nazev = QStringLiteral("deska %1").arg(n);
        if (std::none_of(dosud.begin(), dosud.end(), [&](const Polozka& p) { return stejneJmeno(p.oznaceni, nazev); }))
            return nazev;
    }
}

Polozka ctiDesku(const CteniJson& d, const std::vector<Material>& materialy, const std::vector<Polozka>& dosud)
{
    Polozka p;
    p.oznaceni = d.text("oznaceni", false);
    if (p.oznaceni.trimmed().isEmpty())
        p.oznaceni = novyNazevDesky(dosud);
    p.x = d.cislo("x", 0.1, MaxRozmer, true);
    p.y = d.cislo("y", 0.1, MaxRozmer, true);
    p.pocet = d.celeCislo("pocet", 1, MaxRozmer, true);
    p.format = d.cislo("format", 2, MaxId, true);
    p.ov = d.ano("ov");
    if (!maMaterial(materialy, p.format, false))
        odmitni(QStringLiteral("%1: formát č. %2 v zakázce není.").arg(d.kde()).arg(p.format, 0, 'f', 0));
    const QJsonArray hrany = d.pole("hrany");
    if (!hrany.isEmpty() && hrany.size() != 4)
        odmitni(QStringLiteral("%1: hrany se zadávají čtyři (X1, X2, Y1, Y2).").arg(d.kde()));
    for (int i = 0; i < hrany.size(); ++i) {
        if (!hrany[i].isDouble())
            odmitni(QStringLiteral("%1: hrana musí být číslo (0 pro žádnou).").arg(d.kde()));
        p.hrany[i] = hrany[i].toDouble();
        if (p.hrany[i] != 0 && !maMaterial(materialy, p.hrany[i], true))
            odmitni(QStringLiteral("%1: hrana č. %2 v zakázce není.").arg(d.kde()).arg(p.hrany[i], 0, 'f', 0));
    }
    return p;
}

// Checked as the accessory frame checks: the name's length, a quantity above 0, a price of 0
// or more, no second item of one name in the assembly.
Polozka ctiPrislusenstvi(const CteniJson& p, const QJsonObject& o, const std::vector<Polozka>& dosud)
{
    Polozka pr;
    pr.oznaceni = p.text("oznaceni", true);
    if (pr.oznaceni.size() > MaxNazevPrislusenstvi)
        odmitni(QStringLiteral("%1: Název nového příslušenstvi smí obsahovat maximálně 100 znaků!!!").arg(p.kde()));
    const QJsonValue mnozstvi = o.value(QStringLiteral("mnozstvi")), cena = o.value(QStringLiteral("cena"));
    if (!mnozstvi.isDouble() || !(mnozstvi.toDouble() > 0) ||
        (!cena.isUndefined() && (!cena.isDouble() || !(cena.toDouble() >= 0))))
        odmitni(QStringLiteral("%1: Zadejte množství a cenu číslem.").arg(p.kde()));
    pr.pocet = p.cislo("mnozstvi", 0, 1e9, true);
    pr.jednotka = p.text("jednotka", false);
    pr.cena = p.cislo("cena", 0, 1e9, false);
    for (const Polozka& d : dosud)
        if (d.oznaceni.compare(pr.oznaceni, Qt::CaseInsensitive) == 0)
            odmitni(
                QStringLiteral("%1: Příslušenství v sestavě již pod tímto názvem existuje, zadejte jiný název !!!").arg(p.kde()));
    return pr;
}

Sestava ctiSestavu(const CteniJson& s, const std::vector<Material>& materialy)
{
    Sestava sestava{s.text("nazev", true), s.text("popis", false, KontrolaTextu::Nejvys, KontrolaTextu::Radky::Ano), s.celeCislo("pocet", 1, MaxRozmer, false, 1),
                    qint64(s.celeCislo("schema", 0, 1e9, false))};
    const QString kde = QStringLiteral("%1 (%2)").arg(s.kde(), sestava.nazev);
    const QJsonArray desky = s.pole("desky");
    for (int j = 0; j < desky.size(); ++j)
        sestava.polozky.push_back(ctiDesku(CteniJson(desky[j], QStringLiteral("%1, deska č. %2").arg(kde).arg(j + 1),
                                                     {"oznaceni", "x", "y", "pocet", "format", "ov", "hrany"}),
                                           materialy, sestava.polozky));
    const QJsonArray prislusenstvi = s.pole("prislusenstvi");
    for (int j = 0; j < prislusenstvi.size(); ++j)
        sestava.polozky.push_back(
            ctiPrislusenstvi(CteniJson(prislusenstvi[j], QStringLiteral("%1, příslušenství č. %2").arg(kde).arg(j + 1),
                                       {"oznaceni", "mnozstvi", "jednotka", "cena"}),
                             prislusenstvi[j].toObject(), sestava.polozky));
    return sestava;
}

Zakazka cti(const QByteArray& json)
{
    const QJsonDocument doc = CteniJson::dokument(json);
    if (!doc.isObject())
        odmitni(QStringLiteral("Soubor musí obsahovat jednu zakázku (objekt JSON)."));
    const CteniJson z(doc.object(), QStringLiteral("Zakázka"), {"zakazka", "poznamka", "formaty", "hrany", "sestavy"});
    Zakazka zakazka{z.text("zakazka", true), z.text("poznamka", false, KontrolaTextu::Nejvys, KontrolaTextu::Radky::Ano)};
    if (zakazka.nazev.size() > MaxNazevZakazky)
        odmitni(QStringLiteral("Název zakázky může mít nejvýše %1 znaků.").arg(MaxNazevZakazky));
    std::set<double> idy;
    zakazka.materialy = ctiMaterialy(z, false, idy);
    for (Material& h : ctiMaterialy(z, true, idy))
        zakazka.materialy.push_back(h);
    const QJsonArray sestavy = z.pole("sestavy");
    for (int i = 0; i < sestavy.size(); ++i) {
        const CteniJson s(sestavy[i], QStringLiteral("Sestava č. %1").arg(i + 1),
                          {"nazev", "popis", "pocet", "schema", "desky", "prislusenstvi"});
        Sestava sestava = ctiSestavu(s, zakazka.materialy);
        for (const Sestava& jina : zakazka.sestavy)
            if (stejneJmeno(jina.nazev, sestava.nazev))
                odmitni(QStringLiteral("Sestava pod tímhle názvem již existuje, zadejte jiný nazev !!! (%1)").arg(sestava.nazev));
        zakazka.sestavy.push_back(std::move(sestava));
    }
    return zakazka;
}

void zapisMaterialy(Database& db, Zakazka& z)
{
    std::set<double> obsazene;
    for (const Material& m : z.materialy)
        obsazene.insert(m.id);
    for (Material& m : z.materialy) {
        if (m.id == 0) {
            m.id = Razitko::volne([&](double s) { return obsazene.count(s) > 0; });
            obsazene.insert(m.id);
        }
        Materialy::pridej(db, z.nazev, {m.id, m.nazev, m.x, m.y, m.ov, m.cena, m.barva, m.presah}, m.hrana);
    }
}

void zapisRadky(Database& db, const Zakazka& z)
{
    NoveRadky::Hlavicka h;
    h.zakazka = z.nazev;
    h.poznamka = z.poznamka;
    h.datum = Razitko::den(Razitko::ted());
    double cas = Razitko::sekundy(Razitko::ted());
    if (z.sestavy.empty())
        NoveRadky::pridejHlavicku(db, h);
    for (const Sestava& s : z.sestavy) {
        h.sestava = s.nazev;
        h.popis = s.popis;
        h.pocet = s.pocet;
        h.schema = s.schema;
        if (s.polozky.empty())
            NoveRadky::pridejHlavicku(db, h);
        for (const Polozka& p : s.polozky)
            NoveRadky::pridejPolozku(db, h, p, cas++);
    }
}

QJsonValue cislo(double d)
{
    if (d == std::trunc(d) && std::abs(d) < 9e15)
        return qint64(d);
    return d;
}

} // namespace

QString nacti(Database& dataS, const QByteArray& json)
{
    Zakazka z = cti(json);
    Transakce t(dataS);
    if (RadkyZakazky::existuje(dataS, z.nazev))
        odmitni(QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"));
    zapisMaterialy(dataS, z);
    zapisRadky(dataS, z);
    t.commit();
    return z.nazev;
}

QJsonObject vypis(Database& dataS, const QString& zakazka)
{
    Recordset radky = RadkyZakazky::radky(dataS, zakazka);
    if (radky.prazdny())
        odmitni(QStringLiteral("Zakázka „%1“ neexistuje.").arg(zakazka));
    QJsonArray formaty, hrany;
    for (Recordset m = RadkyZakazky::materialy(dataS, zakazka); !m.eof(); m.moveNext()) {
        QJsonObject o{{QStringLiteral("id"), cislo(m.cislo(QStringLiteral("ID")))},
                      {QStringLiteral("material"), m.text(QStringLiteral("Material"))},
                      {QStringLiteral("cena"), cislo(m.cislo(QStringLiteral("CenaBezDPH")))}};
        if (m.text(QStringLiteral("pouziti")) == QLatin1String("hrana")) {
            o.insert(QStringLiteral("barva"), cislo(m.cislo(QStringLiteral("BarvaVNP"))));
            o.insert(QStringLiteral("presah"), cislo(m.cislo(QStringLiteral("PresahHrany"))));
            hrany.append(o);
        } else {
            o.insert(QStringLiteral("x"), cislo(m.cislo(QStringLiteral("RozmerX"))));
            o.insert(QStringLiteral("y"), cislo(m.cislo(QStringLiteral("RozmerY"))));
            o.insert(QStringLiteral("ov"), m.ano(QStringLiteral("OV")));
            formaty.append(o);
        }
    }
    // assemblies in the order their rows were written, items by their stamp
    QStringList poradi;
    std::map<QString, QJsonObject> sestavy;
    std::map<QString, std::vector<std::pair<double, QJsonObject>>> desky, prislusenstvi;
    for (; !radky.eof(); radky.moveNext()) {
        const QString nazev = radky.text(QStringLiteral("Sestava"));
        if (nazev.isEmpty())
            continue;
        if (!sestavy.count(nazev)) {
            poradi << nazev;
            sestavy[nazev] = {{QStringLiteral("nazev"), nazev},
                              {QStringLiteral("popis"), radky.text(QStringLiteral("popis"))},
                              {QStringLiteral("pocet"), cislo(radky.cislo(QStringLiteral("pocetelementuVsestave")))},
                              {QStringLiteral("schema"), cislo(radky.cislo(QStringLiteral("schema")))}};
        }
        const QString oznaceni = radky.text(QStringLiteral("Oznaceni"));
        if (oznaceni.isEmpty())
            continue;
        const double cas = radky.cislo(QStringLiteral("cas"));
        if (radky.cislo(QStringLiteral("IDFormat")) > 1) {
            QJsonArray h;
            for (const char* p : {"IDHX1", "IDHX2", "IDHY1", "IDHY2"})
                h.append(cislo(radky.cislo(QLatin1String(p))));
            desky[nazev].push_back({cas, QJsonObject{{QStringLiteral("oznaceni"), oznaceni},
                                                     {QStringLiteral("x"), cislo(radky.cislo(QStringLiteral("x")))},
                                                     {QStringLiteral("y"), cislo(radky.cislo(QStringLiteral("y")))},
                                                     {QStringLiteral("pocet"), cislo(radky.cislo(QStringLiteral("Pocet")))},
                                                     {QStringLiteral("format"), cislo(radky.cislo(QStringLiteral("IDFormat")))},
                                                     {QStringLiteral("ov"), radky.ano(QStringLiteral("OV"))},
                                                     {QStringLiteral("hrany"), h}}});
        } else {
            prislusenstvi[nazev].push_back(
                {cas, QJsonObject{{QStringLiteral("oznaceni"), oznaceni},
                                  {QStringLiteral("mnozstvi"), cislo(radky.cislo(QStringLiteral("Pocet")))},
                                  {QStringLiteral("jednotka"), radky.text(QStringLiteral("jednotka"))},
                                  {QStringLiteral("cena"), cislo(radky.cislo(QStringLiteral("Cena")))}}});
        }
    }
    auto seznamPodleCasu = [](std::vector<std::pair<double, QJsonObject>> v) {
        std::stable_sort(v.begin(), v.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
        QJsonArray a;
        for (const auto& [cas, o] : v)
            a.append(o);
        return a;
    };
    QJsonArray seznamSestav;
    for (const QString& nazev : poradi) {
        QJsonObject s = sestavy[nazev];
        s.insert(QStringLiteral("desky"), seznamPodleCasu(desky[nazev]));
        s.insert(QStringLiteral("prislusenstvi"), seznamPodleCasu(prislusenstvi[nazev]));
        seznamSestav.append(s);
    }
    radky.moveFirst();
    return {{QStringLiteral("zakazka"), radky.text(QStringLiteral("Zakazka"))},
            {QStringLiteral("poznamka"), radky.text(QStringLiteral("Poznamka"))},
            {QStringLiteral("formaty"), formaty},
            {QStringLiteral("hrany"), hrany},
            {QStringLiteral("sestavy"), seznamSestav}};
}

QStringList seznam(Database& dataS)
{
    QStringList zakazky;
    for (const UzelZakazky& z : NaplnitStrom(dataS))
        zakazky << z.nazev;
    return zakazky;
}

} // namespace ZakazkaJson
