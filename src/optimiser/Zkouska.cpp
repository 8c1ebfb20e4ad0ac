#include "optimiser/Zkouska.h"

#include "core/Dotaz.h"

#include <algorithm>

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
    const qint16 volba = qint16(r.m_volbaNPDeska + 1);
    m_desky.clear();
    m_podleRozmeru.clear();
    m_podleY.clear();
    for (int i : r.m_neusazene) {
        DeskaNP& d = r.m_t.desky[i];
        m_podleRozmeru.emplace(std::pair{d.x, d.y}, i); // the first of each size stays
        m_podleY.emplace(d.y, i);
        if (r.m_volbaNP && d.CDesky != volba)
            continue;
        for (auto& smer : d.Plocha)
            smer[0] = smer[1] = 0;
        for (auto& smer : d.Suma)
            smer[0] = smer[1] = 0;
        d.PVT = d.PD = false;
        m_desky.push_back({d.x, d.y, d.OV});
    }
    m_zbytky.clear();
    m_dotcene.clear();
    m_otocene.clear();
    r.m_volbaNP = false;
    seskup();
}

// The groups of the round: sizes that fit the rectangle one way or the other (<=, as the
// look-ups that could ever take them), each with its copies in the order they were added.
void Zkouska::seskup()
{
    // the larger of the number and its query text: a size the fit test or a look-up could take
    const double Z[2] = {std::max(s.Zbyva[0], Dotaz::jakoVDotazu(s.Zbyva[0])),
                         std::max(s.Zbyva[1], Dotaz::jakoVDotazu(s.Zbyva[1]))};
    m_typy.clear();
    m_mimoObdelnik = 0;
    std::map<std::tuple<double, double, bool>, int> podleDruhu;
    for (int i = 0; i < int(m_desky.size()); ++i) {
        DeskaKZ& d = m_desky[i];
        const bool rovne = d.x <= Z[0] && d.y <= Z[1];
        if (!rovne && !(!d.OV && d.y <= Z[0] && d.x <= Z[1])) {
            ++m_mimoObdelnik;
            continue;
        }
        auto [it, novy] = podleDruhu.try_emplace({d.x, d.y, d.OV}, int(m_typy.size()));
        if (novy)
            m_typy.push_back({d.x, d.y, d.OV, rovne, false, {}});
        d.typ = it->second;
        m_typy[d.typ].clenove.push_back(i);
    }
    for (Typ& t : m_typy)
        t.dvojce = podleDruhu.count({t.x, t.y, !t.OV}) > 0;
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
        const DeskaKZ& d = m_desky[i];
        if (d.x == s.PosledniX && d.y == s.PosledniY)
            continue; // the same size as the one just tried
        zkus(smer, i, false);
        if (!d.OV)
            zkus(smer, i, true);
    }
}

void Zkouska::zkus(int smer, int deska, bool otoceno)
{
    DeskaKZ& d = m_desky[deska];
    const double x = d.x, y = d.y;
    s.PosledniX = otoceno ? y : x;
    s.PosledniY = otoceno ? x : y;
    if (otoceno) { // before the test of fit; only VratKZ takes it back
        d.OTOC = true;
        m_dotcene.push_back(deska);
    }
    if (!(s.PosledniY < s.Zbyva[1] && s.PosledniX < s.Zbyva[0])) {
        if (otoceno && d.typ >= 0 && m_typy[d.typ].rovneVejde)
            m_otocene.push_back(deska);
        return;
    }
    // What tells this trial from another of the same size: the boards left turned that could
    // still lie unturned, and the board itself when a size of the other grain competes.
    std::vector<int> odlisne;
    if (!m_otocene.empty() || m_typy[d.typ].dvojce) {
        odlisne = m_otocene;
        odlisne.push_back(deska);
    }
    const Klic klic{smer, otoceno, s.VZbytkuRadyKZ, d.typ, std::move(odlisne)};
    auto it = m_zkousky.find(klic);
    if (it == m_zkousky.end())
        it = m_zkousky.emplace(klic, proved(smer, deska)).first;
    const Vysledek v = it->second;
    if (r.m_formatOV)
        HodnotTabuli(smer, otoceno, x, y, v);
    HodnotPlochu(smer, otoceno, x, y, v);
    VratKZ();
    s.VZbytkuRadyKZ = v.VZbytkuRadyKZ;
}

// The trial itself: the candidate opens the row, the rest of the row and its strips follow.
Zkouska::Vysledek Zkouska::proved(int smer, int deska)
{
    const int a = smer, b = 1 - smer;
    const double k = s.SrezNP;
    for (int i : {0, 1}) {
        s.PoziceKZ[i] = s.Pozice[i];
        s.ZbyvaKZ[i] = s.Zbyva[i];
    }
    oznacKZ(deska, false);
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
    UsazeniKZ(smer); // the candidate lies as PosledniX, PosledniY; a turned one's OTOC was set before the test of fit
    return vysledek();
}

void Zkouska::oznacKZ(int deska, bool otoceno)
{
    DeskaKZ& d = m_desky[deska];
    d.ID = true;
    if (otoceno)
        d.OTOC = true;
    m_dotcene.push_back(deska);
    if (d.typ < 0)
        return;
    Typ& t = m_typy[d.typ];
    ++t.pouzito;
    while (t.zacatek < int(t.clenove.size()) && m_desky[t.clenove[t.zacatek]].ID)
        ++t.zacatek;
}

// The eight look-ups of UsazeniKZ at once (nothing changes between them): [0..5] steps 1 to 6
// (0/1 exact, 2/3 spanning the rest along the strip, 4/5 its height; odd turned), [6] and [7]
// the stair unturned and turned. For a board as it would lie (E its extents along the sheet's
// axes, Z the current rectangle's), ordered by the extent across the strip, then along it,
// descending, then the order of adding. Unturned look-ups pass over a board left turned by a
// trial that did not fit ("OTOC = False"), turned ones over grain boards.
std::array<int, 8> Zkouska::najdi(int smer) const
{
    const int a = smer, b = 1 - smer;
    const double Z[2] = {Dotaz::jakoVDotazu(s.ZbyvaKZ[0]), Dotaz::jakoVDotazu(s.ZbyvaKZ[1])};
    std::array<int, 8> nalez;
    nalez.fill(-1);
    double nb[8], na[8];
    auto zvaz = [&](int q, int i, double eb, double ea) {
        if (nalez[q] < 0 || eb > nb[q] || (eb == nb[q] && (ea > na[q] || (ea == na[q] && i < nalez[q])))) {
            nalez[q] = i;
            nb[q] = eb;
            na[q] = ea;
        }
    };
    for (const Typ& t : m_typy) {
        if (t.pouzito == int(t.clenove.size()))
            continue;
        const int volna = t.clenove[t.zacatek];
        int rovna = -1; // the first free one not left turned
        for (int j = t.zacatek; j < int(t.clenove.size()) && rovna < 0; ++j)
            if (!m_desky[t.clenove[j]].ID && !m_desky[t.clenove[j]].OTOC)
                rovna = t.clenove[j];
        for (bool otoceno : {false, true}) {
            const int i = otoceno ? volna : rovna;
            if (i < 0 || (otoceno && t.OV))
                continue;
            const double E[2] = {otoceno ? t.y : t.x, otoceno ? t.x : t.y};
            const int o = otoceno;
            if (E[b] == Z[b] && E[a] == Z[a]) zvaz(0 + o, i, E[b], E[a]);
            if (E[b] < Z[b] && E[a] == Z[a]) zvaz(2 + o, i, E[b], E[a]);
            if (E[b] == Z[b] && E[a] < Z[a]) zvaz(4 + o, i, E[b], E[a]);
            if (E[b] < Z[b] && E[a] < Z[a]) zvaz(6 + o, i, E[b], E[a]);
        }
    }
    return nalez;
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
        const std::array<int, 8> nalez = najdi(smer);
        const auto krok = std::find_if(nalez.begin(), nalez.begin() + 6, [](int i) { return i >= 0; });
        if (krok != nalez.begin() + 6) {
            const int q = int(krok - nalez.begin());
            const bool otoceno = q % 2 == 1;
            oznacKZ(*krok, otoceno);
            const DeskaKZ& d = m_desky[*krok];
            const double R[2] = {otoceno ? d.y : d.x, otoceno ? d.x : d.y};
            if (q < 2)
                return; // exact: waiting strips stay unworked
            const int osa = q < 4 ? b : a; // across the strip, or along it
            s.ZbyvaKZ[osa] -= R[osa] + k;
            s.PoziceKZ[osa] += R[osa] + k;
            if (osa == a)
                s.RadaRozpracovanaKZ = 1;
            continue;
        }

        const int kand = nalez[6], otoc = nalez[7];
        auto pricne = [&](int i, bool otoceno) {
            return i < 0 ? 0.0 : ((smer == 0) != otoceno ? m_desky[i].y : m_desky[i].x);
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
        const int i = otoceno ? otoc : kand;
        oznacKZ(i, otoceno);
        const double R[2] = {otoceno ? m_desky[i].y : m_desky[i].x, otoceno ? m_desky[i].x : m_desky[i].y};
        s.ZbytekKZ[a] = s.ZbyvaKZ[a];
        s.ZbytekKZ[b] = s.ZbyvaKZ[b] - R[b] - k;
        s.ZbytekPoziceKZ[a] = s.PoziceKZ[a];
        s.ZbytekPoziceKZ[b] = s.PoziceKZ[b] + R[b] + k;
        UlozZRKZ(smer);
        s.PoziceKZ[a] += R[a] + k;
        s.ZbyvaKZ[a] -= R[a] + k;
        s.ZbyvaKZ[b] = R[b];
        s.RadaRozpracovanaKZ = 1;
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

// What the finished trial leaves: the areas of its remnants, whether a free copy fits its ZT
// either way round, whether any copy is left.
Zkouska::Vysledek Zkouska::vysledek() const
{
    Vysledek v;
    for (const ZbytekKZ& z : m_zbytky)
        if (z.XZP > 0 && z.YZP > 0) {
            v.vsechny += z.XZP * z.YZP;
            if (z.Oznaceni == Druh::KZ)
                v.koncove += z.XZP * z.YZP;
        }
    const auto zt = std::find_if(m_zbytky.begin(), m_zbytky.end(), [](const ZbytekKZ& z) { return z.Oznaceni == Druh::ZT; });
    v.maZT = zt != m_zbytky.end();
    v.zbyva = m_mimoObdelnik > 0;
    const double XZP = v.maZT ? Dotaz::jakoVDotazu(zt->XZP) : 0, YZP = v.maZT ? Dotaz::jakoVDotazu(zt->YZP) : 0;
    for (const Typ& t : m_typy) {
        if (t.pouzito == int(t.clenove.size()))
            continue;
        v.zbyva = true;
        v.vejde = v.vejde || (t.x <= XZP && t.y <= YZP);
        v.vejdeOtoc = v.vejdeOtoc || (!t.OV && t.y <= XZP && t.x <= YZP);
    }
    v.VZbytkuRadyKZ = s.VZbytkuRadyKZ;
    return v;
}

// The real board that takes a trial's scores: the first unplaced one of the size, as
// "SELECT * FROM SoupisDesek WHERE ID = false and x = {x} and y= {y}" finds it. The column
// trial's turned table test asks "y = {y} and y= {x}": only a square size finds a board, and
// then the first of that y.
int Zkouska::skutecna(int smer, bool otoceno, double x, double y, bool proTabuli) const
{
    const double px = Dotaz::jakoVDotazu(x), py = Dotaz::jakoVDotazu(y);
    if (proTabuli && smer == 1 && otoceno) {
        const auto it = m_podleY.find(py);
        return px == py && it != m_podleY.end() ? it->second : -1;
    }
    const auto it = m_podleRozmeru.find({px, py});
    return it == m_podleRozmeru.end() ? -1 : it->second;
}

void Zkouska::HodnotPlochu(int smer, bool otoceno, double x, double y, const Vysledek& v)
{
    const int i = skutecna(smer, otoceno, x, y, false);
    if (i < 0)
        return;
    // divided by the opening board's extent across the strip it opens
    const double vyska = (smer == 0) != otoceno ? y : x;
    DeskaNP& d = r.m_t.desky[i];
    d.Plocha[smer][otoceno] = v.koncove / vyska;
    d.Suma[smer][otoceno] = v.vsechny;
}

void Zkouska::HodnotTabuli(int smer, bool otoceno, double x, double y, const Vysledek& v)
{
    if (!v.maZT)
        return;
    const int i = skutecna(smer, otoceno, x, y, true);
    if (i < 0)
        return;
    DeskaNP& d = r.m_t.desky[i];
    if (!v.vejde && !v.vejdeOtoc) {
        if (!otoceno) {
            d.PVT = true;
        } else if (!d.PVT) {
            d.Plocha[smer][0] = 0; // a size that closes the sheet only when turned loses its unturned area score
            d.PVT = true;
        }
    }
    if (!v.zbyva)
        d.PD = true;
}

// Empties the trial's remnants and takes every copied board back to its start.
void Zkouska::VratKZ()
{
    m_zbytky.clear();
    for (int i : m_dotcene) {
        DeskaKZ& d = m_desky[i];
        d.ID = d.OTOC = false;
        if (d.typ >= 0) {
            m_typy[d.typ].zacatek = 0;
            m_typy[d.typ].pouzito = 0;
        }
    }
    m_dotcene.clear();
    m_otocene.clear();
}
