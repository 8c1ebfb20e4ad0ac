#include "orders/Kopirovani.h"

#include "core/Database.h"
#include "core/KontrolaTextu.h"
#include "core/Error.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "orders/RadkyZakazky.h"

#include <QHash>
#include <functional>

namespace Kopirovani {
namespace {

const char* const PoleZakazky[] = {"Zakazka",  "Poznamka", "datum",    "Sestava",  "pocetelementuVsestave",
                                   "popis",    "schema",   "IDFormat", "Oznaceni", "cas",
                                   "x",        "y",        "OV",       "Pocet",    "Cena",
                                   "jednotka", "IDHX1",    "IDHX2",    "IDHY1",    "IDHY2"};
const char* const PoleMaterialu[] = {"ID", "Zakazka", "Material",   "RozmerX",  "RozmerY",
                                     "OV", "pouziti", "CenaBezDPH", "BarvaVNP", "PresahHrany"};

// Adds a copy of each row of zdroj to its table, the fields listed, then zmena on top.
template <size_t N>
void kopiruj(Database& db, const QString& tabulka, Recordset& zdroj, const char* const (&pole)[N],
             const std::function<void(Recordset&, const Recordset&)>& zmena)
{
    Recordset cil(db, tabulka, Recordset::Rozsah::Prvni);
    for (; !zdroj.eof(); zdroj.moveNext()) {
        cil.addNew();
        for (const char* p : pole)
            cil.set(QLatin1String(p), zdroj.value(QLatin1String(p)));
        zmena(cil, zdroj);
        cil.update();
    }
}

[[noreturn]] void odmitni(const QString& zprava) { throw Error(Chyba::NeplatnyVstup, zprava); }

void kontrolaZakazky(Database& db, const QString& zakazka, const QString& novy)
{
    if (!RadkyZakazky::existuje(db, zakazka))
        odmitni(QStringLiteral("Zakázka „%1“ neexistuje.").arg(zakazka));
    if (novy.size() > MaxNazevZakazky)
        odmitni(QStringLiteral("nazev zakázky smí obsahovat maximálně 50-sát znaků! "));
    if (RadkyZakazky::existuje(db, novy))
        odmitni(QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"));
}

void kontrolaSestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& novy)
{
    if (sestava.isEmpty() || !RadkyZakazky::existujeSestava(db, zakazka, sestava))
        odmitni(QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, zakazka));
    if (novy.size() > MaxNazevSestavy)
        odmitni(QStringLiteral("Název sestavy smí obsahovat maximálně 7 znaků! "));
    if (RadkyZakazky::existujeSestava(db, zakazka, novy))
        odmitni(QStringLiteral("Sestava pod tímhle názvem již v  zakázce existuje, zadejte jiný název !!!"));
}

// Asks until kopie() takes the name or the answer is empty; shows each refusal.
QString zeptejSe(Prompt& prompt, const QString& otazka, const std::function<void(const QString&)>& kopie)
{
    for (;;) {
        const QString novy = prompt.vstup(otazka, QStringLiteral("Uložit jako..."), QString());
        if (novy.isEmpty())
            return QString();
        try {
            kopie(novy);
            return novy;
        } catch (const Error& e) {
            if (e.cislo() != Chyba::NeplatnyVstup)
                throw;
            const bool dlouhy = e.text().contains(QStringLiteral("maximálně"));
            prompt.zprava(e.text(), dlouhy ? QStringLiteral("Příliš dlouhý nazev") : QString(), Prompt::Ikona::Kriticka);
        }
    }
}

} // namespace

void kopirujZakazku(Database& db, const QString& zakazka, const QString& novy)
{
    if (novy.isEmpty())
        odmitni(QStringLiteral("Zadejte název zakázky."));
    KontrolaTextu::zkontroluj(novy, QStringLiteral("Název zakázky"), KontrolaTextu::NazevZakazky);
    kontrolaZakazky(db, zakazka, novy);
    Transakce t(db);
    const double datum = Razitko::den(Razitko::ted());
    Recordset radky = RadkyZakazky::radky(db, zakazka, QStringLiteral("Zakazka"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky, [&](Recordset& c, const Recordset&) {
        c.set(QStringLiteral("Zakazka"), novy);
        c.set(QStringLiteral("datum"), datum);
    });
    Recordset materialy = RadkyZakazky::materialy(db, zakazka);
    kopiruj(db, QStringLiteral("ZakazkyMaterialy"), materialy, PoleMaterialu,
            [&](Recordset& c, const Recordset&) { c.set(QStringLiteral("Zakazka"), novy); });
    t.commit();
}

void kopirujSestavu(Database& db, const QString& zakazka, const QString& sestava, const QString& novy)
{
    if (novy.isEmpty())
        odmitni(QStringLiteral("Zadejte název sestavy."));
    KontrolaTextu::zkontroluj(novy, QStringLiteral("Název sestavy"));
    kontrolaSestavy(db, zakazka, sestava, novy);
    Transakce t(db);
    Recordset radky = RadkyZakazky::radkySestavy(db, zakazka, sestava, QStringLiteral("Sestava"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky,
            [&](Recordset& c, const Recordset&) { c.set(QStringLiteral("Sestava"), novy); });
    t.commit();
}

QString KopirovaniSestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& cil)
{
    const Recordset cilova = RadkyZakazky::radky(db, cil, {}, Recordset::Rozsah::Prvni);
    if (cilova.eof())
        odmitni(QStringLiteral("Zakázka „%1“ neexistuje.").arg(cil));
    if (sestava.isEmpty() || !RadkyZakazky::existujeSestava(db, zakazka, sestava))
        odmitni(QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, zakazka));
    Transakce t(db);
    QString nazev = sestava;
    while (RadkyZakazky::existujeSestava(db, cil, nazev))
        nazev += QLatin1Char('_');
    // the materials first: an ID the target uses for another material gets a stamp of its own
    QHash<qint64, double> noveId;
    for (Recordset m = RadkyZakazky::materialy(db, zakazka); !m.eof(); m.moveNext()) {
        const double id = m.cislo(QStringLiteral("ID"));
        const QString material = m.text(QStringLiteral("Material"));
        const auto stejne = RadkyZakazky::material(db, cil, id);
        if (stejne && stejne->text(QStringLiteral("Material")) == material)
            continue;
        double idVCili = id;
        if (stejne) {
            const Recordset podleJmena(
                db, QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = ? and Material = ? and pouziti = ?"),
                {cil, material, m.text(QStringLiteral("pouziti"))}, Recordset::Rozsah::Prvni);
            if (!podleJmena.eof()) {
                noveId.insert(qint64(id), podleJmena.cislo(QStringLiteral("ID")));
                continue;
            }
            idVCili = Razitko::volne([&](double kandidat) { return RadkyZakazky::material(db, cil, kandidat).has_value(); });
            noveId.insert(qint64(id), idVCili);
        }
        Recordset jeden = *RadkyZakazky::material(db, zakazka, id);
        kopiruj(db, QStringLiteral("ZakazkyMaterialy"), jeden, PoleMaterialu, [&](Recordset& c, const Recordset&) {
            c.set(QStringLiteral("Zakazka"), cil);
            c.set(QStringLiteral("ID"), idVCili);
        });
    }
    auto preved = [&](const QVariant& v) {
        return noveId.contains(qint64(v.toDouble())) ? QVariant(noveId.value(qint64(v.toDouble()))) : v;
    };
    const QVariant poznamka = cilova.value(QStringLiteral("Poznamka")), datum = cilova.value(QStringLiteral("datum"));
    Recordset radky = RadkyZakazky::radkySestavy(db, zakazka, sestava, QStringLiteral("Sestava"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky, [&](Recordset& c, const Recordset& r) {
        c.set(QStringLiteral("Zakazka"), cil);
        c.set(QStringLiteral("Sestava"), nazev);
        c.set(QStringLiteral("Poznamka"), poznamka);
        c.set(QStringLiteral("datum"), datum);
        for (const char* p : {"IDFormat", "IDHX1", "IDHX2", "IDHY1", "IDHY2"})
            c.set(QLatin1String(p), preved(r.value(QLatin1String(p))));
    });
    // a target that held only its header row: the copy takes its place
    for (Recordset h = RadkyZakazky::radkySestavy(db, cil, QString()); !h.eof(); h.moveNext())
        h.remove();
    t.commit();
    return nazev;
}

QString UlozitZakazkuJako(Database& db, Prompt& prompt, const QString& zakazka)
{
    return zeptejSe(prompt, QStringLiteral("Zadejte název zakázky "), [&](const QString& n) { kopirujZakazku(db, zakazka, n); });
}

QString UlozitSestavuJako(Database& db, Prompt& prompt, const QString& zakazka, const QString& sestava)
{
    return zeptejSe(prompt, QStringLiteral("Zadejte název sestavy "),
                    [&](const QString& n) { kopirujSestavu(db, zakazka, sestava, n); });
}

} // namespace Kopirovani
