#include "orders/Kopirovani.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/KontrolaTextu.h"
#include "core/Error.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Transakce.h"

#include <QHash>
#include <functional>

namespace Kopirovani {
namespace {

const char* const PoleZakazky[] = {"Zakazka", "Poznamka", "datum", "Sestava", "pocetelementuVsestave", "popis", "schema",
                                   "IDFormat", "Oznaceni", "cas", "x", "y", "OV", "Pocet", "Cena", "jednotka",
                                   "IDHX1", "IDHX2", "IDHY1", "IDHY2"};
const char* const PoleMaterialu[] = {"ID", "Zakazka", "Material", "RozmerX", "RozmerY", "OV", "pouziti",
                                     "CenaBezDPH", "BarvaVNP", "PresahHrany"};

QString z(const QString& t) { return Dotaz::text(t); }

QString sZakazkou(const QString& zakazka)
{
    return QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + z(zakazka) + QStringLiteral("'");
}

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
    if (Recordset(db, sZakazkou(zakazka), Recordset::Rozsah::Prvni).eof())
        odmitni(QStringLiteral("Zakázka „%1“ neexistuje.").arg(zakazka));
    if (novy.size() > MaxNazevZakazky)
        odmitni(QStringLiteral("nazev zakázky smí obsahovat maximálně 50-sát znaků! "));
    if (!Recordset(db, sZakazkou(novy) + QStringLiteral(" ORDER BY Zakazka"), Recordset::Rozsah::Prvni).eof())
        odmitni(QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"));
}

void kontrolaSestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& novy)
{
    const QString v = sZakazkou(zakazka) + QStringLiteral(" and Sestava = '");
    if (sestava.isEmpty() || Recordset(db, v + z(sestava) + QStringLiteral("' "), Recordset::Rozsah::Prvni).eof())
        odmitni(QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, zakazka));
    if (novy.size() > MaxNazevSestavy)
        odmitni(QStringLiteral("Název sestavy smí obsahovat maximálně 7 znaků! "));
    if (!Recordset(db, v + z(novy) + QStringLiteral("' "), Recordset::Rozsah::Prvni).eof())
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
    Recordset radky(db, sZakazkou(zakazka) + QStringLiteral(" ORDER BY Zakazka"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky, [&](Recordset& c, const Recordset&) {
        c.set(QStringLiteral("Zakazka"), novy);
        c.set(QStringLiteral("datum"), datum);
    });
    Recordset materialy(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                                QStringLiteral("' ORDER BY Zakazka"));
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
    Recordset radky(db, sZakazkou(zakazka) + QStringLiteral(" and Sestava = '") + z(sestava) + QStringLiteral("' ORDER BY Sestava"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky,
            [&](Recordset& c, const Recordset&) { c.set(QStringLiteral("Sestava"), novy); });
    t.commit();
}

QString KopirovaniSestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& cil)
{
    const Recordset cilova(db, sZakazkou(cil), Recordset::Rozsah::Prvni);
    if (cilova.eof())
        odmitni(QStringLiteral("Zakázka „%1“ neexistuje.").arg(cil));
    if (sestava.isEmpty() ||
        Recordset(db, sZakazkou(zakazka) + QStringLiteral(" and Sestava = '") + z(sestava) + QStringLiteral("' "),
                  Recordset::Rozsah::Prvni)
            .eof())
        odmitni(QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, zakazka));
    Transakce t(db);
    QString nazev = sestava;
    while (!Recordset(db, sZakazkou(cil) + QStringLiteral(" and Sestava = '") + z(nazev) + QStringLiteral("' "),
                      Recordset::Rozsah::Prvni)
                .eof())
        nazev += QLatin1Char('_');
    // the materials first: an ID the target uses for another material gets a stamp of its own
    QHash<qint64, double> noveId;
    for (Recordset m(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                             QStringLiteral("' ORDER BY Zakazka"));
         !m.eof(); m.moveNext()) {
        const double id = m.cislo(QStringLiteral("ID"));
        const QString material = m.text(QStringLiteral("Material"));
        const QString vCili = QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(cil) + QStringLiteral("' and ");
        const Recordset stejne(db, vCili + QStringLiteral("ID = ") + Dotaz::cislo(id), Recordset::Rozsah::Prvni);
        if (!stejne.eof() && stejne.text(QStringLiteral("Material")) == material)
            continue;
        double idVCili = id;
        if (!stejne.eof()) {
            const Recordset podleJmena(db, vCili + QStringLiteral("Material = '") + z(material) + QStringLiteral("' and pouziti = '") +
                                               z(m.text(QStringLiteral("pouziti"))) + QStringLiteral("'"),
                                       Recordset::Rozsah::Prvni);
            if (!podleJmena.eof()) {
                noveId.insert(qint64(id), podleJmena.cislo(QStringLiteral("ID")));
                continue;
            }
            idVCili = Razitko::volne([&](double kandidat) {
                return !Recordset(db, vCili + QStringLiteral("ID = ") + Dotaz::cislo(kandidat), Recordset::Rozsah::Prvni).eof();
            });
            noveId.insert(qint64(id), idVCili);
        }
        Recordset jeden(db, QStringLiteral("SELECT * FROM ZakazkyMaterialy  WHERE Zakazka = '") + z(zakazka) +
                                QStringLiteral("' and ID = ") + Dotaz::cislo(id));
        kopiruj(db, QStringLiteral("ZakazkyMaterialy"), jeden, PoleMaterialu, [&](Recordset& c, const Recordset&) {
            c.set(QStringLiteral("Zakazka"), cil);
            c.set(QStringLiteral("ID"), idVCili);
        });
    }
    auto preved = [&](const QVariant& v) {
        return noveId.contains(qint64(v.toDouble())) ? QVariant(noveId.value(qint64(v.toDouble()))) : v;
    };
    const QVariant poznamka = cilova.value(QStringLiteral("Poznamka")), datum = cilova.value(QStringLiteral("datum"));
    Recordset radky(db, sZakazkou(zakazka) + QStringLiteral(" and Sestava = '") + z(sestava) + QStringLiteral("' ORDER BY Sestava"));
    kopiruj(db, QStringLiteral("Zakazky"), radky, PoleZakazky, [&](Recordset& c, const Recordset& r) {
        c.set(QStringLiteral("Zakazka"), cil);
        c.set(QStringLiteral("Sestava"), nazev);
        c.set(QStringLiteral("Poznamka"), poznamka);
        c.set(QStringLiteral("datum"), datum);
        for (const char* p : {"IDFormat", "IDHX1", "IDHX2", "IDHY1", "IDHY2"})
            c.set(QLatin1String(p), preved(r.value(QLatin1String(p))));
    });
    // a target that held only its header row: the copy takes its place
    for (Recordset h(db, sZakazkou(cil) + QStringLiteral(" and Sestava = ''")); !h.eof(); h.moveNext())
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

}
