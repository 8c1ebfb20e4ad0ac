// The combined mode's own steps: the decision between a row and a column through Plochy, and
// the merge of stacked end remnants when a row has no waiting strip left.
#include "plansql/Umisteni.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "optimiser/Dotazy.h"
#include "plansql/Zkouska.h"

#include <set>

namespace PlanSql {

namespace {

struct Kandidat {
    const char* dotaz;
    const char* plocha;  // the score's name, also the column its value is read from
    const char* rozmer;  // the field that gives the extent
    bool otoceny;        // the extent goes to YPSILON2, and the board comes turned
    bool rada;
};

// In this order into Plochy. The third and fourth test the column areas as bare truth values,
// and the fourth sorts by the row score: kept as they stand.
const Kandidat kandidati[] = {
    {"SELECT * FROM SoupisDesek WHERE ID = False  and (PlochaKZ <> 0 or SumaKZ <> 0)  ORDER by PlochaKZ, y DESC, x DESC",
     "PlochaKZ", "y", false, true},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and (PlochaKZBOV <> 0 or SumaKZBOV <> 0) ORDER by PlochaKZBOV, x DESC, y DESC",
     "PlochaKZBOV", "x", true, true},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and (PlochaKZSloupec or sumaKZSloupec <> 0) ORDER by PlochaKZSLOUPEC, x DESC, y DESC",
     "PlochaKZSLOUPEC", "x", false, false},
    {"SELECT * FROM SoupisDesek WHERE ID = False  and OV = False and (PlochaKZBOVSloupec or sumaKZBOVSloupec <> 0) ORDER by PlochaKZBOV, y DESC, x DESC",
     "PlochaKZBOVSLOUPEC", "y", true, false},
};

const char* const KZZakladna =
    "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and CT = {CisloTabule} and Rada = {CisloRady} Order by XDP desc";
const char* const KZNad =
    "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and XDP <= {XDP} and YDP = {YDP} and CT = {CisloTabule} and Rada = {CisloRady} Order by XDP desc";
const char* const KZNejvetsi =
    "SELECT * FROM SoupisZbytku WHERE ID = true and Oznaceni = 'KZ' and CT = {CisloTabule} and Rada = {CisloRady} and plocha <> 0  Order by plocha desc";
const char* const DeskaDoBloku =
    "SELECT * FROM SoupisDesek WHERE ID = False  and OTOC = False and y <= {celkemY} and x <= {XZP} ORDER BY y DESC, x DESC;";

} // namespace

bool Umisteni::rozhodniKomb(Volani& v, std::optional<Recordset>& kand, std::optional<Recordset>& otoc)
{
    Zkouska(r).ZkusebniUsazeniKomb();
    if (r.m_prerusit)
        return false;
    Database& db = *r.m_dataK;
    for (Recordset plochy(db, QStringLiteral("SELECT * FROM Plochy ")); !plochy.eof(); plochy.moveNext())
        plochy.remove();
    for (const Kandidat& k : kandidati) {
        auto rs = prvni(QString::fromUtf8(k.dotaz));
        if (!rs)
            continue;
        Recordset plochy(db, QStringLiteral("Plochy"), Recordset::Rozsah::Prvni);
        plochy.addNew();
        plochy.set(QStringLiteral("plocha"), QString::fromLatin1(k.plocha));
        plochy.set(QStringLiteral("hodnota"), rs->cislo(QLatin1String(k.plocha)));
        plochy.set(k.otoceny ? QStringLiteral("YPSILON2") : QStringLiteral("YPSILON1"), rs->cislo(QLatin1String(k.rozmer)));
        plochy.set(QStringLiteral("Rada"), k.rada);
        plochy.update();
    }
    auto vitez = prvni(QStringLiteral("SELECT * FROM Plochy  ORDER by Hodnota"));
    if (!vitez)
        return false; // no KZ row, no look at the remnants
    v.RadaKomb = vitez->ano(QStringLiteral("Rada"));
    v.HodnotaRovne = vitez->cislo(QStringLiteral("YPSILON1"));
    v.HodnotaOtoc = vitez->cislo(QStringLiteral("YPSILON2"));
    const QString nazev = vitez->text(QStringLiteral("plocha"));
    for (const Kandidat& k : kandidati)
        if (nazev == QLatin1String(k.plocha))
            (k.otoceny ? otoc : kand) = prvni(QString::fromUtf8(k.dotaz));
    return true;
}

void Umisteni::DalsiZbytekRadyKomb()
{
    if (auto rs = prvni(r.dosad(Dotazy::ZRCekajici))) {
        nactiObdelnik(*rs);
        s.VZbytkuRady = true;
        NP(ZpusobNP::Kombinovane);
        return;
    }
    if (!prvni(QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = False  and OTOC = False ")))
        return; // no board waits
    if (sloucitKoncoveZbytky())
        DalsiZbytekRadyKomb(); // the merged block now waits as a strip
}

// Stacks of end remnants that stand on one another with exactly one kerf between them become
// one taller strip of the row, when a waiting board fits the largest such block. With kerf 0
// a remnant of height 0 lies on itself: a walk that comes back to a row it has seen ends there
// and the run carries a warning.
bool Umisteni::sloucitKoncoveZbytky()
{
    Database& db = *r.m_dataK;
    const double k = s.SrezNP;
    auto nad = [&](double xdp, double ydp) {
        return prvni(r.dosad(KZNad, {{"XDP", xdp}, {"YDP", ydp}}));
    };
    for (Recordset zaklad(db, r.dosad(KZZakladna)); !zaklad.eof(); zaklad.moveNext()) {
        const double xdp = zaklad.cislo(QStringLiteral("XDP"));
        double sp = zaklad.cislo(QStringLiteral("YDP")), h = zaklad.cislo(QStringLiteral("YZP"));
        double t = h;
        std::set<qint64> videne{zaklad.rowid()};
        while (auto n = nad(xdp, sp + h + k)) {
            if (!videne.insert(n->rowid()).second) {
                r.m_smycka = true;
                break;
            }
            sp = n->cislo(QStringLiteral("YDP"));
            h = n->cislo(QStringLiteral("YZP"));
            t = t + h + k;
            zaklad.edit();
            zaklad.set(QStringLiteral("plocha"), zaklad.cislo(QStringLiteral("XZP")) * t);
            zaklad.set(QStringLiteral("celkemY"), t);
            zaklad.update();
        }
    }
    auto blok = prvni(r.dosad(KZNejvetsi));
    if (!blok)
        return false;
    const double celkemY = blok->cislo(QStringLiteral("celkemY"));
    const double xdp = blok->cislo(QStringLiteral("XDP"));
    if (!prvni(r.dosad(DeskaDoBloku, {{"celkemY", celkemY}, {"XZP", blok->cislo(QStringLiteral("XZP"))}})))
        return false; // plocha and celkemY stay as they are
    double sp = blok->cislo(QStringLiteral("YDP")), h = blok->cislo(QStringLiteral("YZP"));
    double t = h, w = blok->cislo(QStringLiteral("XZP"));
    blok->edit();
    blok->set(QStringLiteral("YZP"), celkemY);
    blok->set(QStringLiteral("ID"), false);
    blok->set(QStringLiteral("Oznaceni"), QStringLiteral("ZŘ"));
    blok->update();
    std::set<qint64> videne{blok->rowid()};
    while (auto n = nad(xdp, sp + h + k)) {
        if (!videne.insert(n->rowid()).second) {
            r.m_smycka = true;
            break;
        }
        const double sirka = n->cislo(QStringLiteral("XZP"));
        sp = n->cislo(QStringLiteral("YDP"));
        h = n->cislo(QStringLiteral("YZP"));
        n->edit();
        n->set(QStringLiteral("YZP"), celkemY - t - k);
        n->set(QStringLiteral("XZP"), sirka - w - k);
        n->update();
        t = t + h + k;
        w = sirka;
    }
    db.executeSqlite(QStringLiteral("UPDATE SoupisZbytku SET plocha = 0, celkemY = 0"));
    ++r.m_slouceni;
    return true;
}

} // namespace PlanSql
