#include "optimiser/NejcennejsiList.h"

#include <algorithm>
#include <numeric>

namespace Usporne {

namespace {

constexpr int Zadny = -1, JakoNizsi = -2;
// The steps of these loops (an addition and a comparison) are about a fifth of the search's,
// in which the budget is counted.
constexpr std::int64_t Krok = 5;

std::vector<long> ruzne(std::vector<long> v)
{
    std::sort(v.begin(), v.end());
    v.erase(std::unique(v.begin(), v.end()), v.end());
    return v;
}

// Lengths one can stack pieces to: sums of their heights up to H. A strip or a stack never
// needs to be higher than the pieces it holds, so only these heights are tried.
std::vector<long> rastr(const std::vector<long>& vysky, long H)
{
    std::vector<char> lze(size_t(H) + 1, 0);
    lze[0] = 1;
    for (long h = 0; h <= H; ++h)
        if (lze[size_t(h)])
            for (long v : vysky)
                if (h + v <= H)
                    lze[size_t(h + v)] = 1;
    std::vector<long> r;
    for (long h = 1; h <= H; ++h)
        if (lze[size_t(h)])
            r.push_back(h);
    return r;
}

} // namespace

NejcennejsiList::NejcennejsiList(const std::vector<Velikost>& kusy, long W, long H) : m_typu(int(kusy.size()))
{
    // lengths in the greatest unit all sizes are made of: the sheet rounds down to it exactly
    long g = 0;
    for (const Velikost& k : kusy)
        g = std::gcd(g, std::gcd(k.x, k.y));
    g = std::max(g, 1L);
    m_smery[0].W = W / g;
    m_smery[0].H = H / g;
    m_smery[1].W = H / g;
    m_smery[1].H = W / g;
    for (int t = 0; t < m_typu; ++t) {
        const long x = kusy[size_t(t)].x / g, y = kusy[size_t(t)].y / g;
        m_smery[0].kusy.push_back({t, x, y});
        m_smery[1].kusy.push_back({t, y, x});
        if (kusy[size_t(t)].otocit && x != y) {
            m_smery[0].kusy.push_back({t, y, x});
            m_smery[1].kusy.push_back({t, x, y});
        }
    }
}

std::int64_t NejcennejsiList::odhad() const
{
    std::int64_t n = 0;
    for (const Smer& s : m_smery) {
        const std::int64_t p = std::int64_t(s.kusy.size());
        n += s.H * (p * p + s.W * p / 8 + s.H) / Krok; // stacks, strips of every height (few stacks each), the sheet
    }
    return n;
}

double NejcennejsiList::nejvic(const std::vector<double>& ceny, std::vector<int>& pocty, std::int64_t& prace) const
{
    std::vector<int> druhy;
    const double a = jednimSmerem(m_smery[0], ceny, pocty, prace);
    const double b = jednimSmerem(m_smery[1], ceny, druhy, prace);
    if (b > a) {
        pocty = std::move(druhy);
        return b;
    }
    return a;
}

namespace {

using Kus = NejcennejsiList::Kus;

// For each width a stack may have (the pieces' widths), the worth of pieces no wider stacked one
// over another up to each height, and the piece last put on, to read a stack back.
struct Stohy {
    std::vector<long> sirky;
    std::vector<std::vector<double>> hodnota;
    std::vector<std::vector<int>> volba;
};

Stohy stohy(const std::vector<Kus>& kusy, const std::vector<double>& ceny, const std::vector<long>& vysky, size_t H,
            std::int64_t& prace)
{
    Stohy st;
    std::vector<long> sirky;
    for (const Kus& k : kusy)
        sirky.push_back(k.w);
    st.sirky = ruzne(sirky);
    std::vector<int> nejlepsi(vysky.size(), Zadny); // of each height, the worthiest piece narrow enough
    for (long sirka : st.sirky) {
        for (size_t i = 0; i < kusy.size(); ++i) {
            if (kusy[i].w != sirka)
                continue;
            const size_t j = size_t(std::lower_bound(vysky.begin(), vysky.end(), kusy[i].h) - vysky.begin());
            if (nejlepsi[j] == Zadny || ceny[size_t(kusy[size_t(nejlepsi[j])].typ)] < ceny[size_t(kusy[i].typ)])
                nejlepsi[j] = int(i);
        }
        std::vector<std::pair<size_t, int>> moznosti; // height, piece; lowest first
        for (size_t j = 0; j < vysky.size(); ++j)
            if (nejlepsi[j] != Zadny)
                moznosti.push_back({size_t(vysky[j]), nejlepsi[j]});
        std::vector<double> f(H + 1, 0);
        std::vector<int> volba(H + 1, Zadny);
        for (size_t h = 1; h <= H; ++h) {
            f[h] = f[h - 1];
            volba[h] = JakoNizsi;
            for (const auto& [v, kus] : moznosti) {
                if (v > h)
                    break;
                const double c = f[h - v] + ceny[size_t(kusy[size_t(kus)].typ)];
                if (c > f[h] + 1e-12) {
                    f[h] = c;
                    volba[h] = kus;
                }
            }
        }
        prace += std::int64_t(H) * std::int64_t(moznosti.size()) / Krok;
        st.hodnota.push_back(std::move(f));
        st.volba.push_back(std::move(volba));
    }
    return st;
}

// For each height a strip may have, the best stacks side by side along W: the strip's worth and
// its stacks (indices into Stohy::sirky).
struct Pasy {
    std::vector<long> vysky;
    std::vector<double> hodnota;
    std::vector<std::vector<int>> stohy;
};

Pasy pasy(const Stohy& st, const std::vector<long>& vyskyKusu, size_t W, long H, std::int64_t& prace)
{
    Pasy p;
    p.vysky = rastr(vyskyKusu, H);
    std::vector<double> g(W + 1);
    std::vector<int> volba(W + 1);
    for (long vyska : p.vysky) {
        const size_t h = size_t(vyska);
        // a stack wider than another and worth no more is never needed
        std::vector<size_t> uzitecne;
        for (size_t k = 0; k < st.sirky.size(); ++k)
            if (st.hodnota[k][h] > (uzitecne.empty() ? 0 : st.hodnota[uzitecne.back()][h]) + 1e-12)
                uzitecne.push_back(k);
        g[0] = 0;
        for (size_t w = 1; w <= W; ++w) {
            g[w] = g[w - 1];
            volba[w] = JakoNizsi;
            for (size_t k : uzitecne) {
                if (size_t(st.sirky[k]) > w)
                    break;
                const double v = g[w - size_t(st.sirky[k])] + st.hodnota[k][h];
                if (v > g[w] + 1e-12) {
                    g[w] = v;
                    volba[w] = int(k);
                }
            }
        }
        prace += std::int64_t(W) * std::int64_t(uzitecne.size()) / Krok;
        p.hodnota.push_back(g[W]);
        p.stohy.emplace_back();
        for (size_t w = W; w > 0;) {
            if (volba[w] == JakoNizsi) {
                --w;
                continue;
            }
            p.stohy.back().push_back(volba[w]);
            w -= size_t(st.sirky[size_t(volba[w])]);
        }
    }
    return p;
}

} // namespace

// Stacks, then strips of stacks, then the sheet of strips one over another; each an unbounded
// knapsack, so a choice is remembered per length to read the sheet back.
double NejcennejsiList::jednimSmerem(const Smer& s, const std::vector<double>& ceny, std::vector<int>& pocty,
                                     std::int64_t& prace) const
{
    pocty.assign(size_t(m_typu), 0);
    std::vector<Kus> kusy;
    std::vector<long> vysky;
    for (const Kus& k : s.kusy)
        if (ceny[size_t(k.typ)] > 0 && k.w <= s.W && k.h <= s.H) {
            kusy.push_back(k);
            vysky.push_back(k.h);
        }
    if (kusy.empty())
        return 0;
    vysky = ruzne(vysky);
    const size_t H = size_t(s.H);
    const Stohy st = stohy(kusy, ceny, vysky, H, prace);
    const Pasy p = pasy(st, vysky, size_t(s.W), s.H, prace);

    std::vector<double> f(H + 1, 0);
    std::vector<int> volba(H + 1, JakoNizsi);
    for (size_t h = 1; h <= H; ++h) {
        f[h] = f[h - 1];
        for (size_t r = 0; r < p.vysky.size() && size_t(p.vysky[r]) <= h; ++r) {
            const double v = f[h - size_t(p.vysky[r])] + p.hodnota[r];
            if (v > f[h] + 1e-12) {
                f[h] = v;
                volba[h] = int(r);
            }
        }
    }
    prace += std::int64_t(H) * std::int64_t(p.vysky.size()) / Krok;

    for (size_t h = H; h > 0;) {
        if (volba[h] == JakoNizsi) {
            --h;
            continue;
        }
        const size_t r = size_t(volba[h]);
        for (int k : p.stohy[r])
            for (size_t v = size_t(p.vysky[r]); v > 0;) {
                const int c = st.volba[size_t(k)][v];
                if (c == Zadny)
                    break;
                if (c == JakoNizsi) {
                    --v;
                    continue;
                }
                ++pocty[size_t(kusy[size_t(c)].typ)];
                v -= size_t(kusy[size_t(c)].h);
            }
        h -= size_t(p.vysky[r]);
    }
    return f[H];
}

}
