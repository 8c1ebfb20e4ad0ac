#include "plansql/Zkouska.h"

#include "core/Database.h"
#include "core/Dotaz.h"

#include <algorithm>
#include <cmath>

namespace PlanSql {

// The queries the look-ups stand for, row form (the column form exchanges x and y, ZbyvaXKZ
// and ZbyvaYKZ, XDP and YDP):
//   candidates  SELECT * FROM SoupisDesekKZ WHERE ID = False order by y DESC, x DESC
//   steps 1-6   ... WHERE ID = False  and OTOC = False and y = {ZbyvaYKZ} and x = {ZbyvaXKZ}
//               ORDER BY y DESC, x DESC;  (turned: y = {ZbyvaXKZ} and x = {ZbyvaYKZ} and
//               OV = False ORDER BY x DESC, y DESC; then "<" in one place of each pair)
//   stair       ... y < {ZbyvaYKZ} and x < {ZbyvaXKZ} ... and its turned form
//   strips      SELECT * FROM SoupisZbytkuKZ WHERE Oznaceni = 'ZŘ' and  Rada = {CisloRady}
//               order by Cislo desc  (KZ alike; waiting ones with ID = false)
//   scores      ... Oznaceni= 'KZ' And XZP > 0 And YZP > 0; ... WHERE  XZP > 0 And YZP > 0;
//               SELECT * FROM SoupisDesek WHERE ID = false and x = {x} and y= {y}
//   closing     ... Oznaceni= 'ZT'; SoupisDesekKZ ... X <= {XZP} and Y <= {YZP}, and turned
//               OV = False and Y <= {XZP} and X <= {YZP}; SoupisDesekKZ WHERE ID =false
// Where the column mirror is not exact the result is the same (step 5 sorts by "y DESC" alone
// with x fixed; the remnants are emptied in one statement), except the turned closing test,
// whose real board is "y = {y} and y= {x}": see skutecna().

namespace {

// A number as a query text carries it: 15 significant digits.
double t15(double v)
{
    if (v == std::trunc(v) && std::abs(v) < 1e15)
        return v;
    return Dotaz::cislo(v).toDouble();
}

} // namespace

Zkouska::Zkouska(PlanRun& run) : r(run), s(run.m_s) {}

void Zkouska::ZkusebniUsazeni(int smer)
{
    s.PosledniX = s.PosledniY = 0;
    PripravKZ();
    pruchod(smer);
}

void Zkouska::ZkusebniUsazeniKomb()
{
    // One set-up; the column pass starts where the row pass left PosledniX and PosledniY.
    s.PosledniX = s.PosledniY = 0;
    PripravKZ();
    pruchod(0);
    if (!r.m_prerusit)
        pruchod(1);
}

// The copy of the unplaced boards (only the boards of one row of the order when the plan
// variant slider names one, and only for the first round of a run), with every score cleared.
void Zkouska::PripravKZ()
{
    Database& db = *r.m_dataK;
    const QString kde = r.m_volbaNP
                            ? QStringLiteral("WHERE ID = 0 AND CDesky = %1").arg(qint16(r.m_volbaNPDeska + 1))
                            : QStringLiteral("WHERE ID = 0");
    db.executeSqlite(QStringLiteral("UPDATE SoupisDesek SET PlochaKZ = 0, PlochaKZSLOUPEC = 0, SumaKZ = 0, "
                                    "SumaKZSloupec = 0, PlochaKZBOV = 0, PlochaKZBOVSLOUPEC = 0, SumaKZBOV = 0, "
                                    "SumaKZBOVSloupec = 0, PVT = 0, PD = 0 ") + kde);
    m_desky.clear();
    const auto kopie = db.prikaz(QStringLiteral("SELECT x, y, OV, OTOC, XD, YD FROM SoupisDesek ") + kde +
                                 QStringLiteral(" ORDER BY rowid"));
    while (kopie->krok())
        m_desky.push_back({kopie->sloupec(0).toDouble(), kopie->sloupec(1).toDouble(), kopie->sloupec(2).toDouble() != 0,
                           kopie->sloupec(3).toDouble() != 0, false, kopie->sloupec(4).toDouble(),
                           kopie->sloupec(5).toDouble()});
    kopie->reset();

    m_skutecne.clear();
    m_podleRozmeru.clear();
    m_podleY.clear();
    const auto vse = db.prikaz(QStringLiteral("SELECT rowid, x, y, PVT FROM SoupisDesek WHERE ID = 0 ORDER BY rowid"));
    while (vse->krok()) {
        const Skutecna d{vse->sloupec(0).toLongLong(), vse->sloupec(1).toDouble(), vse->sloupec(2).toDouble(),
                         vse->sloupec(3).toDouble() != 0};
        m_skutecne.push_back(d);
    }
    vse->reset();
    m_podleRozmeru.clear();
    for (int i = int(m_skutecne.size()) - 1; i >= 0; --i) { // from the last, so the first wins
        m_podleRozmeru.insert({m_skutecne[i].x, m_skutecne[i].y}, i);
        m_podleY.insert(m_skutecne[i].y, i);
    }
    m_zbytky.clear();
    r.m_volbaNP = false;
}

void Zkouska::pruchod(int smer)
{
    // "SELECT * FROM SoupisDesekKZ WHERE ID = False order by y DESC, x DESC" (columns: x, y)
    std::vector<int> poradi;
    for (int i = 0; i < int(m_desky.size()); ++i)
        if (!m_desky[i].ID)
            poradi.push_back(i);
    std::stable_sort(poradi.begin(), poradi.end(), [&](int a, int b) {
        const DeskaKZ &p = m_desky[a], &q = m_desky[b];
        const double p1 = smer == 0 ? p.y : p.x, q1 = smer == 0 ? q.y : q.x;
        const double p2 = smer == 0 ? p.x : p.y, q2 = smer == 0 ? q.x : q.y;
        return p1 != q1 ? p1 > q1 : p2 > q2;
    });
    for (int i : poradi) {
        if (r.vydej())
            return;
        DeskaKZ& d = m_desky[i];
        if (d.x == s.PosledniX && d.y == s.PosledniY)
            continue; // the same size as the one just tried
        zkus(smer, d, false);
        if (!d.OV)
            zkus(smer, d, true);
    }
}

void Zkouska::zkus(int smer, DeskaKZ& deska, bool otoceno)
{
    const int a = smer, b = 1 - smer;
    const double k = s.SrezNP;
    const double x = deska.x, y = deska.y;
    s.PoradiDeskyKZ = s.PoradiDesky;
    for (int i : {0, 1}) {
        s.PoziceKZ[i] = s.Pozice[i];
        s.ZbyvaKZ[i] = s.Zbyva[i];
        s.RozmeryKZ[i].assign(1001, 0);
    }
    s.PosledniX = otoceno ? y : x;
    s.PosledniY = otoceno ? x : y;
    if (otoceno)
        deska.OTOC = true; // before the test of fit; only VratKZ takes it back
    if (!(s.PosledniY < s.ZbyvaKZ[1] && s.PosledniX < s.ZbyvaKZ[0]))
        return;
    oznacKZ(deska, false);
    s.RozmeryKZ[0][s.PoradiDeskyKZ] = s.PosledniX;
    s.RozmeryKZ[1][s.PoradiDeskyKZ] = s.PosledniY;
    const double R[2] = {s.PosledniX, s.PosledniY};
    s.ZbytekKZ[a] = s.ZbyvaKZ[a];
    s.ZbytekKZ[b] = s.ZbyvaKZ[b] - R[b] - k;
    s.ZbytekPoziceKZ[a] = s.PoziceKZ[a];
    s.ZbytekPoziceKZ[b] = s.PoziceKZ[b] + R[b] + k;
    UlozZTKZ();
    s.PoziceKZ[a] += R[a] + k;
    s.ZbyvaKZ[a] -= R[a] + k;
    s.ZbyvaKZ[b] = R[b];
    s.RadaRozpracovanaKZ = 1;
    ++s.PoradiDeskyKZ;
    UsazeniKZ(smer);
    if (r.m_formatOV)
        HodnotTabuli(smer, otoceno, x, y);
    HodnotPlochu(smer, otoceno, x, y);
    VratKZ();
}

void Zkouska::oznacKZ(DeskaKZ& d, bool otoceno)
{
    const int n = s.PoradiDeskyKZ;
    for (auto& v : s.RozmeryKZ)
        if (int(v.size()) <= n)
            v.resize(n + 1, 0);
    s.RozmeryKZ[0][n] = otoceno ? d.y : d.x;
    s.RozmeryKZ[1][n] = otoceno ? d.x : d.y;
    d.ID = true;
    d.XD = s.PoziceKZ[0];
    d.YD = s.PoziceKZ[1];
    if (otoceno)
        d.OTOC = true;
}

// The look-ups of UsazeniKZ. For a board as it would lie (E its extents along the sheet's
// axes, Z the current rectangle's), the first that pasuje() accepts, ordered by the extent across
// the strip, then along it, descending: "ORDER BY y DESC, x DESC" in a row, "ORDER BY x DESC,
// y DESC" in a column, and their turned forms. Unturned look-ups pass over a board left turned
// by a trial that did not fit ("OTOC = False"), turned ones over grain boards.
template <typename Pasuje>
int Zkouska::najdi(int smer, bool otoceno, Pasuje pasuje) const
{
    const int a = smer, b = 1 - smer;
    const double Z[2] = {t15(s.ZbyvaKZ[0]), t15(s.ZbyvaKZ[1])};
    int nejlepsi = -1;
    double nb = 0, na = 0;
    for (int i = 0; i < int(m_desky.size()); ++i) {
        const DeskaKZ& d = m_desky[i];
        if (d.ID || (otoceno ? d.OV : d.OTOC))
            continue;
        const double E[2] = {otoceno ? d.y : d.x, otoceno ? d.x : d.y};
        if (pasuje(E[a], E[b], Z[a], Z[b]) && (nejlepsi < 0 || E[b] > nb || (E[b] == nb && E[a] > na))) {
            nejlepsi = i;
            nb = E[b];
            na = E[a];
        }
    }
    return nejlepsi;
}

// Steps 1 to 6: krok 0/1 exact, 2/3 spanning the rest along the strip, 4/5 its height; odd turned.
int Zkouska::najdiDesku(int smer, int krok) const
{
    return najdi(smer, krok % 2 == 1, [krok](double ea, double eb, double za, double zb) {
        switch (krok / 2) {
        case 0: return eb == zb && ea == za;
        case 1: return eb < zb && ea == za;
        default: return eb == zb && ea < za;
        }
    });
}

// Step 7: the next stair, smaller both ways.
int Zkouska::najdiSchod(int smer, bool otoceno) const
{
    return najdi(smer, otoceno, [](double ea, double eb, double za, double zb) { return eb < zb && ea < za; });
}

// "... WHERE [ID = false and] Oznaceni = '…' and Rada = {CisloRady} order by Cislo desc"
int Zkouska::najdiZbytek(Druh druh, bool jenCekajici) const
{
    int nejlepsi = -1;
    for (int i = 0; i < int(m_zbytky.size()); ++i) {
        const ZbytekKZ& z = m_zbytky[i];
        if (z.Oznaceni == druh && z.Rada == s.CisloRady && !(jenCekajici && z.ID) &&
            (nejlepsi < 0 || z.cislo > m_zbytky[nejlepsi].cislo))
            nejlepsi = i;
    }
    return nejlepsi;
}

void Zkouska::UsazeniKZ(int smer)
{
    const int a = smer, b = 1 - smer;
    const double k = s.SrezNP;
    for (;;) {
        bool polozeno = false;
        for (int krok = 0; krok < 6 && !polozeno; ++krok) {
            const int i = najdiDesku(smer, krok);
            if (i < 0)
                continue;
            oznacKZ(m_desky[i], krok % 2 == 1);
            const int n = s.PoradiDeskyKZ;
            const double R[2] = {s.RozmeryKZ[0][n], s.RozmeryKZ[1][n]};
            if (krok < 2)
                return; // exact: waiting strips stay unworked
            const int osa = krok < 4 ? b : a; // across the strip, or along it
            s.ZbyvaKZ[osa] -= R[osa] + k;
            s.PoziceKZ[osa] += R[osa] + k;
            if (osa == a)
                s.RadaRozpracovanaKZ = 1;
            ++s.PoradiDeskyKZ;
            polozeno = true;
        }
        if (polozeno)
            continue;

        const int kand = najdiSchod(smer, false), otoc = najdiSchod(smer, true);
        auto pricne = [&](int i, bool otoceno) {
            return i < 0 ? 0.0 : (otoceno ? (smer == 0 ? m_desky[i].x : m_desky[i].y)
                                          : (smer == 0 ? m_desky[i].y : m_desky[i].x));
        };
        const double rovne = pricne(kand, false), otocene = pricne(otoc, true);
        if (rovne == 0 && otocene == 0) { // the row end; the trial goes no further
            if (s.RadaRozpracovanaKZ != 1 || s.VZbytkuRadyKZ)
                ZmenZRKZ();
            else
                NovyKZ();
            DalsiZbytekKZ(smer);
            s.RadaRozpracovanaKZ = 0;
            return;
        }
        const bool otoceno = !(rovne >= otocene);
        oznacKZ(m_desky[otoceno ? otoc : kand], otoceno);
        const int n = s.PoradiDeskyKZ;
        const double R[2] = {s.RozmeryKZ[0][n], s.RozmeryKZ[1][n]};
        s.ZbytekKZ[a] = s.ZbyvaKZ[a];
        s.ZbytekKZ[b] = s.ZbyvaKZ[b] - R[b] - k;
        s.ZbytekPoziceKZ[a] = s.PoziceKZ[a];
        s.ZbytekPoziceKZ[b] = s.PoziceKZ[b] + R[b] + k;
        UlozZRKZ(smer);
        s.PoziceKZ[a] += R[a] + k;
        s.ZbyvaKZ[a] -= R[a] + k;
        s.ZbyvaKZ[b] = R[b];
        s.RadaRozpracovanaKZ = 1;
        ++s.PoradiDeskyKZ;
    }
}

void Zkouska::UlozZTKZ()
{
    ZbytekKZ z{Druh::ZT};
    z.XZP = s.ZbytekKZ[0];
    z.YZP = s.ZbytekKZ[1];
    z.XDP = s.ZbytekPoziceKZ[0];
    z.YDP = s.ZbytekPoziceKZ[1];
    m_zbytky.push_back(z);
}

void Zkouska::UlozZRKZ(int smer)
{
    s.VZbytkuRadyKZ = false;
    const int posledni = najdiZbytek(Druh::ZR, false);
    auto zapis = [&](ZbytekKZ& z) {
        z.XZP = s.ZbytekKZ[0];
        z.YZP = s.ZbytekKZ[1];
        z.XDP = s.ZbytekPoziceKZ[0];
        z.YDP = s.ZbytekPoziceKZ[1];
    };
    if (posledni >= 0) {
        ZbytekKZ& p = m_zbytky[posledni];
        if ((smer == 0 ? p.XDP : p.YDP) == s.ZbytekPoziceKZ[smer]) {
            zapis(p);
            p.ID = false;
            return;
        }
    }
    ZbytekKZ z{Druh::ZR};
    z.Rada = s.CisloRady;
    z.cislo = posledni >= 0 ? m_zbytky[posledni].cislo + 1 : 1;
    if (posledni >= 0) // only the further strips of a row carry their sheet
        z.CT = s.CisloTabule;
    zapis(z);
    m_zbytky.push_back(z);
}

void Zkouska::zapisKZ(ZbytekKZ& z)
{
    const int posledni = najdiZbytek(Druh::KZ, false);
    z.cislo = posledni >= 0 ? m_zbytky[posledni].cislo + 1 : 1;
    z.Oznaceni = Druh::KZ;
    z.Rada = s.CisloRady;
    z.XZP = s.ZbyvaKZ[0];
    z.YZP = s.ZbyvaKZ[1];
    z.XDP = s.PoziceKZ[0];
    z.YDP = s.PoziceKZ[1];
    z.ID = true;
}

void Zkouska::NovyKZ()
{
    ZbytekKZ z{Druh::KZ};
    zapisKZ(z);
    m_zbytky.push_back(z);
}

void Zkouska::ZmenZRKZ()
{
    const int i = najdiZbytek(Druh::ZR, false);
    if (i < 0)
        return;
    zapisKZ(m_zbytky[i]);
    s.VZbytkuRadyKZ = false;
}

void Zkouska::DalsiZbytekKZ(int smer)
{
    const int i = najdiZbytek(Druh::ZR, true);
    if (i < 0)
        return;
    ZbytekKZ& z = m_zbytky[i];
    s.PoziceKZ[0] = z.XDP;
    s.PoziceKZ[1] = z.YDP;
    s.ZbyvaKZ[0] = z.XZP;
    s.ZbyvaKZ[1] = z.YZP;
    z.ID = true;
    s.VZbytkuRadyKZ = true;
    UsazeniKZ(smer);
}

// The real board that takes a trial's scores: the first unplaced one of the size, as
// "SELECT * FROM SoupisDesek WHERE ID = false and x = {x} and y= {y}" finds it. The column
// trial's turned table test asks "y = {y} and y= {x}": only a square size finds a board, and
// then the first of that y.
int Zkouska::skutecna(int smer, bool otoceno, double x, double y, bool proTabuli) const
{
    const double px = t15(x), py = t15(y);
    if (proTabuli && smer == 1 && otoceno)
        return px == py ? m_podleY.value(py, -1) : -1;
    return m_podleRozmeru.value({px, py}, -1);
}

void Zkouska::zapisSkore(int i, const QString& sql, const QVariantList& hodnoty)
{
    r.m_dataK->executeSqlite(sql, QVariantList(hodnoty) << m_skutecne[i].rowid);
}

void Zkouska::HodnotPlochu(int smer, bool otoceno, double x, double y)
{
    double koncove = 0, vsechny = 0;
    for (const ZbytekKZ& z : m_zbytky)
        if (z.XZP > 0 && z.YZP > 0) {
            vsechny += z.XZP * z.YZP;
            if (z.Oznaceni == Druh::KZ)
                koncove += z.XZP * z.YZP;
        }
    const int i = skutecna(smer, otoceno, x, y, false);
    if (i < 0)
        return;
    static const char* const sql[2][2] = {
        {"UPDATE SoupisDesek SET PlochaKZ = ?, SumaKZ = ? WHERE rowid = ?",
         "UPDATE SoupisDesek SET PlochaKZBOV = ?, SumaKZBOV = ? WHERE rowid = ?"},
        {"UPDATE SoupisDesek SET PlochaKZSLOUPEC = ?, SumaKZSloupec = ? WHERE rowid = ?",
         "UPDATE SoupisDesek SET PlochaKZBOVSLOUPEC = ?, SumaKZBOVSloupec = ? WHERE rowid = ?"}};
    // divided by the opening board's extent across the strip it opens
    const double vyska = (smer == 0) != otoceno ? y : x;
    zapisSkore(i, QString::fromLatin1(sql[smer][otoceno]), {koncove / vyska, vsechny});
}

void Zkouska::HodnotTabuli(int smer, bool otoceno, double x, double y)
{
    const auto zt = std::find_if(m_zbytky.begin(), m_zbytky.end(), [](const ZbytekKZ& z) { return z.Oznaceni == Druh::ZT; });
    if (zt == m_zbytky.end())
        return;
    const double XZP = t15(zt->XZP), YZP = t15(zt->YZP);
    bool vejde = false, vejdeOtoc = false, zbyva = false;
    for (const DeskaKZ& d : m_desky) {
        if (d.ID)
            continue;
        zbyva = true;
        vejde = vejde || (d.x <= XZP && d.y <= YZP);
        vejdeOtoc = vejdeOtoc || (!d.OV && d.y <= XZP && d.x <= YZP);
    }
    const int i = skutecna(smer, otoceno, x, y, true);
    if (i < 0)
        return;
    if (!vejde && !vejdeOtoc) {
        if (!otoceno) {
            zapisSkore(i, QStringLiteral("UPDATE SoupisDesek SET PVT = -1 WHERE rowid = ?"), {});
            m_skutecne[i].PVT = true;
        } else if (!m_skutecne[i].PVT) {
            // a size that closes the sheet only when turned loses its unturned area score
            zapisSkore(i, smer == 0 ? QStringLiteral("UPDATE SoupisDesek SET PlochaKZ = 0, PVT = -1 WHERE rowid = ?")
                                    : QStringLiteral("UPDATE SoupisDesek SET PlochaKZSLOUPEC = 0, PVT = -1 WHERE rowid = ?"),
                       {});
            m_skutecne[i].PVT = true;
        }
    }
    if (!zbyva)
        zapisSkore(i, QStringLiteral("UPDATE SoupisDesek SET PD = -1 WHERE rowid = ?"), {});
}

// Empties the trial's remnants and takes every copied board back to its start.
void Zkouska::VratKZ()
{
    m_zbytky.clear();
    for (DeskaKZ& d : m_desky) {
        d.ID = false;
        d.OTOC = false;
        d.XD = d.YD = 0;
    }
}

} // namespace PlanSql
