#include "optimiser/Paprsek.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <unordered_set>

namespace Usporne {

namespace {

constexpr double Eps = 1e-6;

enum Druh : std::int8_t { NaStoh, NovyStoh, NovyPas, NovaTabule };

// A board laid, and the front of the plan after it: the last strip starts at y0 and is hs high;
// its last stack starts at x0, is ws wide and filled to v. Lengths in the frame of smer.
struct Krok {
    int typ = -1;
    std::int8_t o = 0, druh = NovaTabule, smer = 0;
    int tabule = -1, listu = 0, plnych = 0, kusu = 0;
    double y0 = 0, hs = 0, x0 = 0, ws = 0, v = 0;
    double zavreno = 0; // the area of the sheets left behind
    double plocha = 0;  // the area of the boards laid
    std::uint64_t deskyKlic = 0;

    double odpad(double W) const { return zavreno + y0 * W + x0 * hs + ws * v - plocha; }
};

// What the plan keeps of a board laid once the beam has moved on: enough to lay it again.
struct Stopa {
    int rodic, typ, tabule;
    std::int8_t o, druh, smer;
};

struct Kandidat {
    double voditko;
    int uzel;
    Krok krok;
    std::uint64_t klic;
};

std::uint64_t michej(std::uint64_t x)
{
    x += 0x9E3779B97F4A7C15ull;
    x = (x ^ (x >> 30)) * 0xBF58476D1CE4E5B9ull;
    x = (x ^ (x >> 27)) * 0x94D049BB133111EBull;
    return x ^ (x >> 31);
}

class Paprsek {
public:
    Paprsek(const PaprsekZadani& z, std::int64_t& prace) : m_z(z), m_typy(*z.typy), m_prace(prace)
    {
        for (size_t t = 0; t < m_typy.size(); ++t) {
            m_zobrist.push_back(michej(t + 1));
            m_plochaVsech += m_z.pocet[t] * m_typy[t].sx[0] * m_typy[t].sy[0];
            m_desek += m_z.pocet[t];
        }
    }

    std::optional<std::vector<ListPaprsku>> hledej();

private:
    const PaprsekZadani& m_z;
    const std::vector<Typ>& m_typy;
    std::int64_t& m_prace;
    std::vector<std::uint64_t> m_zobrist;
    double m_plochaVsech = 0;
    int m_desek = 0;

    std::vector<std::vector<Stopa>> m_stopy; // per board laid, per node of the beam

    double W(const Krok& k) const { return k.smer == 0 ? m_z.tabule[k.tabule].x : m_z.tabule[k.tabule].y; }
    double H(const Krok& k) const { return k.smer == 0 ? m_z.tabule[k.tabule].y : m_z.tabule[k.tabule].x; }
    bool naTabuli(const Krok& z, int t, int o, Druh druh, Krok& k) const;
    int dalsiTabule(int od, int t) const;
    void pridej(std::vector<Kandidat>& kandidati, int uzel, const Krok& k) const;
    void deti(const Krok& z, int i, const int* zbyva, std::vector<Kandidat>& kandidati) const;
    std::vector<ListPaprsku> plan(int konec) const;
};

// The board of type t turned o laid on the sheet of z in the way druh, if it goes there.
bool Paprsek::naTabuli(const Krok& z, int t, int o, Druh druh, Krok& k) const
{
    const double w = lw(m_typy[t], o, z.smer), h = lh(m_typy[t], o, z.smer);
    const double Wt = W(z), Ht = H(z);
    k = z;
    k.typ = t;
    k.o = std::int8_t(o);
    k.druh = druh;
    ++k.kusu;
    k.plocha += m_typy[t].sx[0] * m_typy[t].sy[0];
    k.deskyKlic += m_zobrist[t];
    switch (druh) {
    case NaStoh:
        k.ws = std::max(z.ws, w);
        k.v = z.v + h;
        k.hs = std::max(z.hs, k.v);
        break;
    case NovyStoh:
        k.x0 = z.x0 + z.ws;
        k.ws = w;
        k.v = h;
        k.hs = std::max(z.hs, h);
        break;
    default:
        k.y0 = z.y0 + z.hs;
        k.x0 = 0;
        k.ws = w;
        k.v = h;
        k.hs = h;
        break;
    }
    return k.x0 + k.ws <= Wt + Eps && k.y0 + k.hs <= Ht + Eps;
}

// The first sheet after `od` that takes a board of type t at all; -1 when none is left.
int Paprsek::dalsiTabule(int od, int t) const
{
    for (int i = od + 1; i < int(m_z.tabule.size()); ++i) {
        const Plocha& p = m_z.tabule[i];
        for (int o = 0; o < m_typy[t].orientaci; ++o)
            if (m_typy[t].sx[o] <= p.x + Eps && m_typy[t].sy[o] <= p.y + Eps)
                return i;
    }
    return -1;
}

void Paprsek::pridej(std::vector<Kandidat>& kandidati, int uzel, const Krok& k) const
{
    const double odpad = k.odpad(W(k));
    if (m_z.nejvicPlnych >= 0 && k.plnych > m_z.nejvicPlnych)
        return;
    if (m_z.nejvic > 0) {
        const Plocha& p = m_z.tabule[k.tabule];
        if (k.listu > m_z.nejvic || (m_z.stejneTabule && m_plochaVsech + odpad > m_z.nejvic * p.x * p.y + Eps))
            return;
    }
    double g = odpad / std::max(k.plocha, 1.0);
    if (m_z.voditko == 1) // boards larger than the average laid early weigh for their plan
        g *= (m_plochaVsech / m_desek) / (k.plocha / k.kusu);
    std::uint64_t klic = k.deskyKlic;
    for (double d : {k.y0, k.hs, k.x0, k.ws, k.v, double(k.tabule), double(k.smer)})
        klic = michej(klic ^ std::uint64_t(std::llround(d * 8)));
    kandidati.push_back({g, uzel, k, klic});
}

// The children of node i of the layer: every board still to lay, each way it goes on the sheet;
// the next sheet only when nothing more goes on this one.
void Paprsek::deti(const Krok& z, int i, const int* zbyva, std::vector<Kandidat>& kandidati) const
{
    const size_t T = m_typy.size();
    bool vejde = false;
    Krok k;
    if (z.tabule >= 0)
        for (size_t t = 0; t < T; ++t)
            for (int o = 0; zbyva[t] && o < m_typy[t].orientaci; ++o)
                for (Druh druh : {NaStoh, NovyStoh, NovyPas})
                    if ((druh != NaStoh || m_z.stohy) && naTabuli(z, int(t), o, druh, k)) {
                        vejde = true;
                        pridej(kandidati, i, k);
                    }
    if (vejde)
        return;
    for (size_t t = 0; t < T; ++t) {
        const int tab = zbyva[t] ? dalsiTabule(z.tabule, int(t)) : -1;
        if (tab < 0)
            continue;
        const Plocha& p = m_z.tabule[tab];
        for (int smer : {0, 1}) {
            if (smer == 1 && std::abs(p.x - p.y) < Eps && m_typy[t].orientaci == 2)
                continue; // a square sheet turned is the same sheet
            Krok n = z;
            n.tabule = tab;
            n.smer = std::int8_t(smer);
            n.listu = z.listu + 1;
            n.plnych = z.plnych + !p.odrezek;
            n.zavreno = z.tabule < 0 ? 0 : z.zavreno + W(z) * H(z);
            n.y0 = n.hs = n.x0 = n.ws = n.v = 0;
            for (int o = 0; o < m_typy[t].orientaci; ++o)
                if (naTabuli(n, int(t), o, NovaTabule, k))
                    pridej(kandidati, i, k);
        }
    }
}

std::optional<std::vector<ListPaprsku>> Paprsek::hledej()
{
    const size_t T = m_typy.size();
    std::vector<Krok> vrstva(1);
    std::vector<int> pocty = m_z.pocet; // the boards still to lay, per node of the layer
    std::vector<Kandidat> kandidati;
    std::int64_t zeptano = m_prace;
    for (int hloubka = 0; hloubka < m_desek; ++hloubka) {
        if (m_z.zastavit && m_prace - zeptano > 1'000'000) {
            zeptano = m_prace;
            if (m_z.zastavit())
                return std::nullopt;
        }
        kandidati.clear();
        for (int i = 0; i < int(vrstva.size()); ++i)
            deti(vrstva[i], i, &pocty[i * T], kandidati);
        m_prace += 60 * std::int64_t(kandidati.size()) + std::int64_t(vrstva.size() * T);
        if (kandidati.empty())
            return std::nullopt;
        const size_t bereme = std::min(kandidati.size(), size_t(4) * size_t(m_z.sirka));
        std::partial_sort(kandidati.begin(), kandidati.begin() + bereme, kandidati.end(),
                          [](const Kandidat& a, const Kandidat& b) {
                              return a.voditko != b.voditko ? a.voditko < b.voditko : a.klic < b.klic;
                          });
        std::vector<Krok> dalsi;
        std::vector<int> dalsiPocty;
        std::vector<Stopa> stopy;
        std::unordered_set<std::uint64_t> videne;
        for (size_t j = 0; j < bereme && int(dalsi.size()) < m_z.sirka; ++j) {
            const Kandidat& c = kandidati[j];
            if (!videne.insert(c.klic).second)
                continue; // the same boards laid to the same front: one of them is enough
            dalsi.push_back(c.krok);
            stopy.push_back({c.uzel, c.krok.typ, c.krok.tabule, c.krok.o, c.krok.druh, c.krok.smer});
            dalsiPocty.insert(dalsiPocty.end(), pocty.begin() + c.uzel * T, pocty.begin() + (c.uzel + 1) * T);
            --dalsiPocty[dalsiPocty.size() - T + c.krok.typ];
        }
        m_prace += 200 * std::int64_t(dalsi.size());
        vrstva = std::move(dalsi);
        pocty = std::move(dalsiPocty);
        m_stopy.push_back(std::move(stopy));
    }
    int nej = 0;
    for (int i = 1; i < int(vrstva.size()); ++i) {
        const Krok &a = vrstva[i], &b = vrstva[nej];
        if (std::tie(a.plnych, a.listu) != std::tie(b.plnych, b.listu)
                ? std::tie(a.plnych, a.listu) < std::tie(b.plnych, b.listu)
                : a.odpad(W(a)) < b.odpad(W(b)) - Eps)
            nej = i;
    }
    return plan(nej);
}

// The sheets of the plan ending in the last layer's node `konec`, laid again from its first board.
std::vector<ListPaprsku> Paprsek::plan(int konec) const
{
    std::vector<const Stopa*> kroky;
    for (int vrstva = int(m_stopy.size()) - 1, i = konec; vrstva >= 0; --vrstva) {
        kroky.push_back(&m_stopy[vrstva][i]);
        i = m_stopy[vrstva][i].rodic;
    }
    std::reverse(kroky.begin(), kroky.end());
    std::vector<ListPaprsku> listy;
    for (const Stopa* k : kroky) {
        if (k->druh == NovaTabule)
            listy.push_back({k->tabule, Vyplneni{k->smer, {}, 0}});
        Vyplneni& v = listy.back().vyplneni;
        if (k->druh >= NovyPas)
            v.pasy.push_back({});
        Pas& pas = v.pasy.back();
        if (k->druh >= NovyStoh)
            pas.stohy.push_back({});
        Stoh& stoh = pas.stohy.back();
        stoh.kusy.push_back({k->typ, k->o});
        stoh.w = std::max(stoh.w, lw(m_typy[k->typ], k->o, v.smer));
        double vyska = 0;
        for (const auto& [t, o] : stoh.kusy)
            vyska += lh(m_typy[t], o, v.smer);
        pas.h = std::max(pas.h, vyska);
    }
    return listy;
}

} // namespace

std::optional<std::vector<ListPaprsku>> paprsek(const PaprsekZadani& zadani, std::int64_t& prace)
{
    return Paprsek(zadani, prace).hledej();
}

}
