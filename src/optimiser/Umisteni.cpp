#include "optimiser/Umisteni.h"

#include "core/Dotaz.h"
#include "optimiser/Dotazy.h"
#include "optimiser/Zkouska.h"

namespace {

// The board's extent across the strip (what a stair keeps as the strip's ceiling): unturned in
// a row its y, turned its x; in a column the other way round.
double pricne(const DeskaNP& d, int smer, bool otoceno)
{
    return (smer == 0) != otoceno ? d.y : d.x;
}

} // namespace

int Umisteni::Volani::smer() const
{
    switch (zpusob) {
    case ZpusobNP::PodelneRezy:
        return 0;
    case ZpusobNP::PricneRezy:
        return 1;
    default:
        return RadaKomb ? 0 : 1;
    }
}

Umisteni::Umisteni(PlanRun& run) : r(run), s(run.m_s), desky(run.m_t.desky), zbytky(run.m_t.zbytky) {}

// Steps 1 to 6 of NPRady / NPSloupce: krok 0/1 exact, 2/3 spanning the rest across the strip,
// 4/5 spanning its height; odd steps turned. For a board as it would lie (E its extents along
// the sheet's axes) the queries read, with a along the strip and b across it:
// E[b] = Z[b] and E[a] = Z[a]; E[b] < Z[b] and E[a] = Z[a]; E[b] = Z[b] and E[a] < Z[a];
// ordered by E[b] DESC, E[a] DESC; the turned ones only on boards with OV = False.
int Umisteni::najdiDesku(int smer, int krok) const
{
    const bool otoceno = krok % 2 == 1;
    const int a = smer, b = 1 - smer;
    const double Z[2] = {Dotaz::jakoVDotazu(s.Zbyva[0]), Dotaz::jakoVDotazu(s.Zbyva[1])};
    auto E = [otoceno](const DeskaNP& d, int osa) { return (osa == 0) != otoceno ? d.x : d.y; };
    return prvni(
        [&](const DeskaNP& d) {
            if (otoceno && d.OV)
                return false;
            switch (krok / 2) {
            case 0: return E(d, b) == Z[b] && E(d, a) == Z[a];
            case 1: return E(d, b) < Z[b] && E(d, a) == Z[a];
            default: return E(d, b) == Z[b] && E(d, a) < Z[a];
            }
        },
        [&](const DeskaNP& p, const DeskaNP& q) { return E(p, b) != E(q, b) ? E(p, b) > E(q, b) : E(p, a) > E(q, a); });
}

// The next stair: smaller both ways, ordered as the steps above.
int Umisteni::najdiSchod(int smer, bool otoceno) const
{
    const int a = smer, b = 1 - smer;
    const double Z[2] = {Dotaz::jakoVDotazu(s.Zbyva[0]), Dotaz::jakoVDotazu(s.Zbyva[1])};
    auto E = [otoceno](const DeskaNP& d, int osa) { return (osa == 0) != otoceno ? d.x : d.y; };
    return prvni([&](const DeskaNP& d) { return !(otoceno && d.OV) && E(d, b) < Z[b] && E(d, a) < Z[a]; },
                 [&](const DeskaNP& p, const DeskaNP& q) { return E(p, b) != E(q, b) ? E(p, b) > E(q, b) : E(p, a) > E(q, a); });
}

void Umisteni::NP(ZpusobNP zpusob)
{
    Volani v{zpusob};
    for (;;) {
        const int smer = v.smer();
        bool polozeno = false;
        for (int krok = 0; krok < 6 && !polozeno; ++krok) {
            const int i = najdiDesku(smer, krok);
            if (i < 0)
                continue;
            const Druh druh = krok < 2 ? Druh::Presne : krok < 4 ? Druh::Napric : Druh::Podel;
            poloz(v, druh, smer, i, krok % 2 == 1);
            if (druh == Druh::Presne) {
                if (v.RadaRozpracovana != 1)
                    return; // the rest of the row is not looked at by this call
                s.Zbyva[0] = s.Zbyva[1] = 0;
            }
            polozeno = true;
        }
        if (polozeno)
            continue;

        int kand = -1, otoc = -1;
        if (s.PoradiDesky == 1 || s.NovaRada) {
            const bool dal = zpusob == ZpusobNP::Kombinovane ? rozhodniKomb(v, kand, otoc) : otevri(v, smer, kand, otoc);
            if (!dal)
                return;
        } else {
            kand = najdiSchod(smer, false);
            otoc = najdiSchod(smer, true);
            v.HodnotaRovne = kand >= 0 ? pricne(desky[kand], smer, false) : 0;
            v.HodnotaOtoc = otoc >= 0 ? pricne(desky[otoc], smer, true) : 0;
        }
        if (v.HodnotaRovne == 0 && v.HodnotaOtoc == 0) {
            konecRady(v);
            return;
        }
        const bool otoceno = v.HodnotaRovne < v.HodnotaOtoc;
        const int deska = otoceno ? otoc : kand;
        if (deska < 0)
            return;
        poloz(v, Druh::Schod, v.smer(), deska, otoceno);
    }
}

// The opening of a row (column) in the pure modes: a trial round, then the candidates of case
// a, b or c (Dotazy::PripadA, PripadB, Kandidat, KandidatOtoc). Returns false when the call is
// to end at once (stopped, or case c without one).
bool Umisteni::otevri(Volani& v, int smer, int& kand, int& otoc)
{
    Zkouska(r).ZkusebniUsazeni(smer);
    if (r.m_prerusit)
        return false;
    auto plocha = [smer](const DeskaNP& d, bool o) { return d.Plocha[smer][o]; };
    auto suma = [smer](const DeskaNP& d, bool o) { return d.Suma[smer][o]; };
    // Rows ask the cases only for the areas, columns also for the sums.
    auto skore = [&](const DeskaNP& d) {
        return plocha(d, false) != 0 || plocha(d, true) != 0 || (smer == 1 && (suma(d, false) != 0 || suma(d, true) != 0));
    };
    const int pripad = existuje([&](const DeskaNP& d) { return d.PVT && d.PD && skore(d); }) ? 0
                       : existuje([&](const DeskaNP& d) { return d.PVT && skore(d); })      ? 1
                                                                                            : 2;
    for (bool o : {false, true}) {
        auto podleSumy = [&](const DeskaNP& p, const DeskaNP& q) { return suma(p, o) < suma(q, o); };
        // c: ORDER by the area, then across the strip's axes as the mode sorts: rows y, x; columns x, y
        auto podlePlochy = [&](const DeskaNP& p, const DeskaNP& q) {
            if (plocha(p, o) != plocha(q, o))
                return plocha(p, o) < plocha(q, o);
            const double p1 = smer == 0 ? p.y : p.x, q1 = smer == 0 ? q.y : q.x;
            const double p2 = smer == 0 ? p.x : p.y, q2 = smer == 0 ? q.x : q.y;
            return p1 != q1 ? p1 > q1 : p2 > q2;
        };
        int& i = o ? otoc : kand;
        switch (pripad) {
        case 0: i = prvni([&](const DeskaNP& d) { return d.PVT && !(o && d.OV) && suma(d, o) != 0; }, podleSumy); break;
        case 1: i = prvni([&](const DeskaNP& d) { return !(o && d.OV) && suma(d, o) != 0; }, podleSumy); break;
        default: i = prvni([&](const DeskaNP& d) { return !(o && d.OV) && (plocha(d, o) != 0 || suma(d, o) != 0); }, podlePlochy);
        }
    }
    if (kand >= 0 && otoc >= 0) {
        if (plocha(desky[kand], false) <= plocha(desky[otoc], true))
            v.HodnotaRovne = pricne(desky[kand], smer, false);
        else
            v.HodnotaOtoc = pricne(desky[otoc], smer, true);
    } else if (kand >= 0) {
        v.HodnotaRovne = pricne(desky[kand], smer, false);
    } else if (otoc >= 0) {
        v.HodnotaOtoc = pricne(desky[otoc], smer, true);
    } else if (pripad == 2) {
        return false; // no KZ row, no look at the remnants
    } else {
        v.HodnotaRovne = v.HodnotaOtoc = 0; // cases a and b go on to the row end
    }
    return true;
}

void Umisteni::poloz(Volani& v, Druh druh, int smer, int deska, bool otoceno)
{
    const int a = smer, b = 1 - smer; // along the strip, across it
    const bool prvniVRade = s.PoradiDesky == 1 || s.NovaRada;
    r.oznacDesku(deska, otoceno);
    const double R[2] = {s.Rozmery[0], s.Rozmery[1]};
    const double k = s.SrezNP;
    if (druh != Druh::Presne)
        r.m_t.RezyNaTabuli[s.CisloTabule] += (druh != Druh::Schod && prvniVRade) ? 2 : 1;

    switch (druh) {
    case Druh::Presne: // PoradiDesky stays where it is
        // a row's first board that fills the rectangle fills the sheet's remainder: the remainder
        // must not wait on to be laid again (with the kerf 0 this happens on ordinary orders)
        if (prvniVRade)
            SmazZT();
        return;
    case Druh::Napric: // the board spans the rest across: the space beyond it stays open
        s.Zbyva[b] -= R[b] + k;
        s.Pozice[b] += R[b] + k;
        for (int i : {0, 1}) {
            s.Zbytek[i] = s.Zbyva[i];
            s.ZbytekPozice[i] = s.Pozice[i];
        }
        if (prvniVRade) { // a strip of one board is complete; the next opens a new one
            UlozZT();
            ++s.CisloRady;
            s.NovaRada = true;
        }
        break;
    case Druh::Podel: // the board spans the strip's height: the strip goes on beside it
        s.Zbyva[a] -= R[a] + k;
        s.Pozice[a] += R[a] + k;
        if (prvniVRade)
            SmazZT();
        v.RadaRozpracovana = 1;
        break;
    case Druh::Schod: // smaller both ways: the space beyond it to the strip's end waits
        s.Zbytek[a] = s.Zbyva[a];
        s.Zbytek[b] = s.Zbyva[b] - R[b] - k;
        s.ZbytekPozice[a] = s.Pozice[a];
        s.ZbytekPozice[b] = s.Pozice[b] + R[b] + k;
        if (prvniVRade)
            UlozZT();
        else
            UlozZR(smer);
        s.Pozice[a] += R[a] + k;
        s.Zbyva[a] -= R[a] + k;
        s.Zbyva[b] = R[b];
        v.RadaRozpracovana = 1;
        break;
    }
    ++s.PoradiDesky;
}

void Umisteni::konecRady(Volani& v)
{
    if (!s.VZbytkuRady && v.RadaRozpracovana == 1)
        UlozKZ();
    else
        ZmenZRnaKZ();
    if (v.zpusob == ZpusobNP::Kombinovane)
        DalsiZbytekRadyKomb();
    else
        DalsiZbytekRady(v.zpusob);
    DalsiRada(v.zpusob);
    v.RadaRozpracovana = 0;
}

// "SELECT * FROM SoupisZbytku WHERE [ID = false and] CT = {CisloTabule} and Oznaceni = 'ZT'":
// the first such row. Rows of the current sheet all stand from m_zbytkyTabule on.
int Umisteni::zbytekZT(bool jenCekajici) const
{
    for (int i = r.m_zbytkyTabule; i < int(zbytky.size()); ++i) {
        const ZbytekNP& z = zbytky[i];
        if (!z.smazany && z.Oznaceni == DruhZbytku::ZT && z.CT == s.CisloTabule && !(jenCekajici && z.ID))
            return i;
    }
    return -1;
}

// "SELECT * FROM SoupisZbytku WHERE [ID = false and] Oznaceni = '…' and CT = {CisloTabule} and
// Rada = {CisloRady} order by Cislo desc": the newest, the first added among equal numbers.
int Umisteni::nejnovejsi(DruhZbytku druh, bool jenCekajici) const
{
    int nejlepsi = -1;
    for (int i = r.m_zbytkyTabule; i < int(zbytky.size()); ++i) {
        const ZbytekNP& z = zbytky[i];
        if (!z.smazany && z.Oznaceni == druh && z.CT == s.CisloTabule && z.Rada == s.CisloRady &&
            !(jenCekajici && z.ID) && (nejlepsi < 0 || z.cislo > zbytky[nejlepsi].cislo))
            nejlepsi = i;
    }
    return nejlepsi;
}

void Umisteni::UlozZT()
{
    auto zapis = [&](ZbytekNP& z) {
        z.CT = s.CisloTabule;
        z.XZP = s.Zbytek[0];
        z.YZP = s.Zbytek[1];
        z.XDP = s.ZbytekPozice[0];
        z.YDP = s.ZbytekPozice[1];
    };
    if (s.PoradiDesky == 1) {
        ZbytekNP z;
        z.Oznaceni = DruhZbytku::ZT;
        zapis(z);
        zbytky.push_back(z);
    } else if (s.NovaRada) {
        if (const int i = zbytekZT(false); i >= 0) {
            zapis(zbytky[i]);
            zbytky[i].ID = false;
        }
        s.NovaRada = false;
    }
}

void Umisteni::SmazZT()
{
    if (const int i = zbytekZT(false); i >= 0)
        zbytky[i].smazany = true;
    s.NovaRada = false;
}

void Umisteni::UlozZR(int smer)
{
    s.VZbytkuRady = false;
    const int posledni = nejnovejsi(DruhZbytku::ZR, false);
    auto zapis = [&](ZbytekNP& z) {
        z.XZP = s.Zbytek[0];
        z.YZP = s.Zbytek[1];
        z.XDP = s.ZbytekPozice[0];
        z.YDP = s.ZbytekPozice[1];
    };
    if (posledni >= 0) {
        ZbytekNP& p = zbytky[posledni];
        if ((smer == 0 ? p.XDP : p.YDP) == s.ZbytekPozice[smer]) {
            // the strip being filled now, cut from its own start: what is left waits again
            zapis(p);
            p.ID = false;
            return;
        }
    }
    ZbytekNP z;
    z.Oznaceni = DruhZbytku::ZR;
    z.Rada = s.CisloRady;
    z.cislo = posledni >= 0 ? zbytky[posledni].cislo + 1 : 1;
    z.CT = s.CisloTabule;
    zapis(z);
    zbytky.push_back(z);
}

void Umisteni::zapisKZ(ZbytekNP& z, int posledniKZ)
{
    z.Oznaceni = DruhZbytku::KZ;
    z.Rada = s.CisloRady;
    z.cislo = posledniKZ >= 0 ? zbytky[posledniKZ].cislo + 1 : 1;
    z.CT = s.CisloTabule;
    z.XZP = s.Zbyva[0];
    z.YZP = s.Zbyva[1];
    z.XDP = s.Pozice[0];
    z.YDP = s.Pozice[1];
    z.ID = true;
}

void Umisteni::UlozKZ()
{
    const int posledni = nejnovejsi(DruhZbytku::KZ, false);
    ZbytekNP z;
    zapisKZ(z, posledni);
    zbytky.push_back(z);
}

void Umisteni::ZmenZRnaKZ()
{
    const int posledniKZ = nejnovejsi(DruhZbytku::KZ, false);
    const int zr = nejnovejsi(DruhZbytku::ZR, false);
    if (zr < 0)
        return; // not even a KZ row for the rectangle
    zapisKZ(zbytky[zr], posledniKZ);
    s.VZbytkuRady = false;
}

void Umisteni::nactiObdelnik(int zbytek)
{
    ZbytekNP& z = zbytky[zbytek];
    s.Pozice[0] = z.XDP;
    s.Pozice[1] = z.YDP;
    s.Zbyva[0] = z.XZP;
    s.Zbyva[1] = z.YZP;
    z.ID = true;
}

void Umisteni::DalsiZbytekRady(ZpusobNP zpusob)
{
    const int i = nejnovejsi(DruhZbytku::ZR, true);
    if (i < 0)
        return;
    nactiObdelnik(i);
    s.VZbytkuRady = true;
    NP(zpusob);
}

void Umisteni::DalsiRada(ZpusobNP zpusob)
{
    if (r.m_prerusit)
        return;
    const int i = zbytekZT(true);
    if (i < 0)
        return;
    nactiObdelnik(i);
    ++s.CisloRady;
    s.NovaRada = true;
    NP(zpusob);
}
