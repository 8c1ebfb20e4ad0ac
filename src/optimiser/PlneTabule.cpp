#include "optimiser/PlneTabule.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>
#include <numeric>

namespace Usporne {

namespace {

// A stack that covers less of its place than this is not worth an item of the knapsack: it
// would only ever be taken to fill a gap the other tries fill as well.
constexpr double PlnostStohu = 0.85;
// Grid points along a sheet's side the knapsacks may take (a millimetre on a 10 m sheet).
constexpr long NejvicBodu = 10000;
// Sizes the knapsacks take at most: the table of choices grows with the sizes times the points.
constexpr size_t NejvicVelikosti = 300;
// Points of a knapsack's table to a step of the search's count: a point is a load, an add and a compare.
constexpr long KrokuNaBod = 4;

struct Predmet {
    long w = 0;       // grid points taken along the knapsack
    double hodnota = 0;
    int kusu = 0;     // copies at most
};

// How many copies of each item fill a knapsack of C grid points to the most worth: copies split
// in powers of two, so that each part is one yes-or-no choice of the classic table.
std::vector<int> batoh(const std::vector<Predmet>& predmety, long C, std::int64_t& prace)
{
    struct Dil {
        int predmet, nasobek;
        long w;
        double hodnota;
    };
    std::vector<Dil> dily;
    for (int i = 0; i < int(predmety.size()); ++i)
        for (int m = 1, zbyva = predmety[i].kusu; zbyva > 0; m *= 2) {
            const int n = std::min(m, zbyva);
            if (n * predmety[i].w <= C)
                dily.push_back({i, n, n * predmety[i].w, n * predmety[i].hodnota});
            zbyva -= n;
        }
    // single precision: half the memory to sweep, and worths of a sheet's boards need no more
    std::vector<float> nejvic(C + 1, 0);
    std::vector<std::uint8_t> vzato(dily.size() * (C + 1), 0);
    for (size_t j = 0; j < dily.size(); ++j) {
        const Dil& d = dily[j];
        std::uint8_t* v = &vzato[j * (C + 1)];
        float* n = nejvic.data();
        const float* bez = n - d.w;
        const float hodnota = float(d.hodnota);
        // downwards: each point reads a lower one, not yet written in this pass
        for (long x = C; x >= d.w; --x) {
            const float s = bez[x] + hodnota;
            const bool lepsi = s > n[x] * (1 + 1e-6f);
            v[x] = lepsi;
            n[x] = lepsi ? s : n[x];
        }
        prace += C / KrokuNaBod;
    }
    std::vector<int> kusu(predmety.size(), 0);
    long x = C;
    for (size_t j = dily.size(); j-- > 0;)
        if (vzato[j * (C + 1) + x]) {
            kusu[dily[j].predmet] += dily[j].nasobek;
            x -= dily[j].w;
        }
    return kusu;
}

// k copies of a size one over another, topped by one narrower piece when one goes.
struct StohKusu {
    int t, o, k;
    int horniT = -1, horniO = 0;
    long w;
    double hodnota;
};

struct PasKusu {
    std::vector<StohKusu> stohy;
    double hodnota = 0;
    std::map<int, int> potreba; // boards of each type the strip takes
};

class Plnic {
public:
    Plnic(const PlneTabuleZadani& z, long g, std::int64_t& prace) : m_z(z), m_g(g), m_prace(prace) {}

    // One sheet filled in direction smer, pocet lowered by its boards.
    Vyplneni list(int smer, std::vector<int>& pocet);

private:
    const PlneTabuleZadani& m_z;
    long m_g;
    std::int64_t& m_prace;
    std::map<long, PasKusu> m_pasy[2]; // the best strip of each height, while its boards last

    const Typ& typ(int t) const { return (*m_z.typy)[t]; }
    long body(double d) const { return long(std::ceil(d / double(m_g) - 1e-9)); }
    long delka(int t, int o, int smer) const { return body(lw(typ(t), o, smer)); }
    long vyska(int t, int o, int smer) const { return body(lh(typ(t), o, smer)); }
    long delkaListu(int smer) const { return long((smer == 0 ? m_z.W : m_z.H) / double(m_g) + 1e-9); }
    long vyskaListu(int smer) const { return long((smer == 0 ? m_z.H : m_z.W) / double(m_g) + 1e-9); }

    std::vector<StohKusu> stohy(long h, int smer, const std::vector<int>& pocet);
    const PasKusu& pas(long h, int smer, const std::vector<int>& pocet);
    Pas poloz(const PasKusu& p, long h, int smer, std::vector<int>& pocet) const;
};

// The stacks a strip of height h may hold, each opened by a size in one orientation.
std::vector<StohKusu> Plnic::stohy(long h, int smer, const std::vector<int>& pocet)
{
    std::vector<StohKusu> vysledek;
    const long W = delkaListu(smer);
    const int typu = int(pocet.size());
    for (int t = 0; t < typu; ++t)
        for (int o = 0; pocet[t] > 0 && o < typ(t).orientaci; ++o) {
            const long w = delka(t, o, smer), v = vyska(t, o, smer);
            if (v > h || w > W)
                continue;
            StohKusu s{t, o, m_z.stohy ? int(std::min<long>(pocet[t], h / v)) : 1, -1, 0, w, 0};
            s.hodnota = s.k * m_z.ceny[t];
            double pokryto = double(s.k * v * w);
            const long zbyva = h - s.k * v;
            for (int u = 0; m_z.stohy && u < typu; ++u)
                for (int p = 0; pocet[u] > (u == t ? s.k : 0) && p < typ(u).orientaci; ++p)
                    if (delka(u, p, smer) <= w && vyska(u, p, smer) <= zbyva &&
                        (s.horniT < 0 || m_z.ceny[u] > m_z.ceny[s.horniT])) {
                        s.horniT = u;
                        s.horniO = p;
                    }
            m_prace += m_z.stohy ? 2 * typu : 1;
            if (s.horniT >= 0) {
                s.hodnota += m_z.ceny[s.horniT];
                pokryto += double(delka(s.horniT, s.horniO, smer) * vyska(s.horniT, s.horniO, smer));
            }
            if (pokryto >= PlnostStohu * double(h * w))
                vysledek.push_back(s);
        }
    return vysledek;
}

// The worthiest strip of height h for the boards left, kept from an earlier sheet while the
// boards it takes are still there: boards only run out, so it stays the worthiest or near it,
// and the knapsack is not run again for every height on every sheet.
const PasKusu& Plnic::pas(long h, int smer, const std::vector<int>& pocet)
{
    auto it = m_pasy[smer].find(h);
    if (it != m_pasy[smer].end() &&
        std::all_of(it->second.potreba.begin(), it->second.potreba.end(), [&](const auto& tp) {
            return tp.second <= pocet[tp.first];
        }))
        return it->second;
    const std::vector<StohKusu> moznosti = stohy(h, smer, pocet);
    std::vector<Predmet> predmety;
    for (const StohKusu& s : moznosti)
        predmety.push_back({s.w, s.hodnota, int(std::min<long>(pocet[s.t] / s.k, delkaListu(smer) / s.w))});
    const std::vector<int> kusu = batoh(predmety, delkaListu(smer), m_prace);
    PasKusu p;
    for (size_t i = 0; i < moznosti.size(); ++i)
        for (int n = 0; n < kusu[i]; ++n) {
            p.stohy.push_back(moznosti[i]);
            p.hodnota += moznosti[i].hodnota;
            p.potreba[moznosti[i].t] += moznosti[i].k;
            if (moznosti[i].horniT >= 0)
                ++p.potreba[moznosti[i].horniT];
        }
    return m_pasy[smer][h] = std::move(p);
}

// The strip laid with the boards there are: a stack short of copies holds fewer.
Pas Plnic::poloz(const PasKusu& p, long h, int smer, std::vector<int>& pocet) const
{
    Pas pas;
    pas.h = double(h * m_g);
    for (const StohKusu& s : p.stohy) {
        Stoh stoh;
        stoh.w = lw(typ(s.t), s.o, smer);
        for (int n = 0; n < s.k && pocet[s.t] > 0; ++n, --pocet[s.t]) {
            stoh.kusy.push_back({s.t, s.o});
            pas.hodnota += m_z.ceny[s.t];
        }
        if (stoh.kusy.empty())
            continue;
        if (s.horniT >= 0 && pocet[s.horniT] > 0) {
            --pocet[s.horniT];
            stoh.kusy.push_back({s.horniT, s.horniO});
            pas.hodnota += m_z.ceny[s.horniT];
        }
        pas.stohy.push_back(std::move(stoh));
    }
    return pas;
}

Vyplneni Plnic::list(int smer, std::vector<int>& pocet)
{
    Vyplneni v;
    v.smer = smer;
    const long H = vyskaListu(smer);
    std::vector<long> vysky;
    for (size_t t = 0; t < pocet.size(); ++t)
        for (int o = 0; pocet[t] > 0 && o < typ(int(t)).orientaci; ++o)
            if (vyska(int(t), o, smer) <= H && delka(int(t), o, smer) <= delkaListu(smer))
                vysky.push_back(vyska(int(t), o, smer));
    std::sort(vysky.begin(), vysky.end(), std::greater<>());
    vysky.erase(std::unique(vysky.begin(), vysky.end()), vysky.end());
    std::vector<Predmet> pasy;
    for (long h : vysky)
        pasy.push_back({h, pas(h, smer, pocet).hodnota, int(H / h)});
    const std::vector<int> kusu = batoh(pasy, H, m_prace);
    long zbyva = H;
    auto polozPas = [&](long h) {
        Pas p = poloz(pas(h, smer, pocet), h, smer, pocet);
        zbyva -= h;
        if (!p.stohy.empty()) {
            v.hodnota += p.hodnota;
            v.pasy.push_back(std::move(p));
        }
    };
    for (size_t i = 0; i < vysky.size(); ++i) // the tallest first, each laid anew from what is left
        for (int n = 0; n < kusu[i]; ++n)
            polozPas(vysky[i]);
    for (;;) { // what the boards running short left free, filled strip by strip
        long nejlepsi = 0;
        double hodnota = 0;
        for (long h : vysky)
            if (h <= zbyva && pas(h, smer, pocet).hodnota > hodnota + 1e-9) {
                hodnota = pas(h, smer, pocet).hodnota;
                nejlepsi = h;
            }
        if (nejlepsi == 0)
            break;
        polozPas(nejlepsi);
    }
    return v;
}

double plocha(const std::vector<Typ>& typy, const std::vector<int>& pocet)
{
    double p = 0;
    for (size_t t = 0; t < typy.size(); ++t)
        p += pocet[t] * typy[t].plocha;
    return p;
}

} // namespace

std::vector<Vyplneni> plneTabule(const PlneTabuleZadani& z, std::vector<int>& pocet, std::int64_t& prace,
                                 std::int64_t limit)
{
    long g = std::lround(z.W);
    g = std::gcd(g, std::lround(z.H));
    for (const Typ& t : *z.typy)
        g = std::gcd(g, std::gcd(std::lround(t.sx[0]), std::lround(t.sy[0])));
    if (g <= 0 || z.W / double(g) > NejvicBodu || z.H / double(g) > NejvicBodu || z.typy->size() > NejvicVelikosti)
        return {};
    Plnic plnic(z, g, prace);
    std::vector<Vyplneni> listy;
    while (plocha(*z.typy, pocet) > z.doZbytku && prace < limit && !(z.zastavit && z.zastavit())) {
        std::vector<int> podel = pocet, napric = pocet;
        Vyplneni a = plnic.list(0, podel), b = plnic.list(1, napric);
        const bool prvni = a.hodnota >= b.hodnota;
        if ((prvni ? a : b).pasy.empty())
            break;
        pocet = prvni ? podel : napric;
        listy.push_back(std::move(prvni ? a : b));
    }
    return listy;
}

}
