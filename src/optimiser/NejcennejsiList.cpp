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

// Stacks first (for each width a stack may have, the worth of every height), then strips (for
// each height a strip may have, the best stacks side by side), then the sheet (strips one over
// another); each an unbounded knapsack, so a choice is remembered per length to read it back.
double NejcennejsiList::jednimSmerem(const Smer& s, const std::vector<double>& ceny, std::vector<int>& pocty,
                                     std::int64_t& prace) const
{
    pocty.assign(size_t(m_typu), 0);
    std::vector<Kus> kusy;
    for (const Kus& k : s.kusy)
        if (ceny[size_t(k.typ)] > 0 && k.w <= s.W && k.h <= s.H)
            kusy.push_back(k);
    if (kusy.empty())
        return 0;
    std::vector<long> w0, h0;
    for (const Kus& k : kusy) {
        w0.push_back(k.w);
        h0.push_back(k.h);
    }
    const std::vector<long> sirky = ruzne(w0), vysky = ruzne(h0);
    const size_t m = sirky.size(), H = size_t(s.H), W = size_t(s.W);

    // stoh[k][h]: pieces no wider than sirky[k] one over another, at most h high
    std::vector<std::vector<double>> stoh(m, std::vector<double>(H + 1, 0));
    std::vector<std::vector<int>> volbaStohu(m, std::vector<int>(H + 1, Zadny));
    std::vector<int> nejlepsi(vysky.size(), Zadny); // of each height, the worthiest piece narrow enough
    for (size_t k = 0; k < m; ++k) {
        for (size_t i = 0; i < kusy.size(); ++i) {
            if (kusy[i].w != sirky[k])
                continue;
            const size_t j = size_t(std::lower_bound(vysky.begin(), vysky.end(), kusy[i].h) - vysky.begin());
            if (nejlepsi[j] == Zadny || ceny[size_t(kusy[size_t(nejlepsi[j])].typ)] < ceny[size_t(kusy[i].typ)])
                nejlepsi[j] = int(i);
        }
        struct Moznost {
            size_t h;
            double cena;
            int kus;
        };
        std::vector<Moznost> moznosti; // by height, lowest first
        for (size_t j = 0; j < vysky.size(); ++j)
            if (nejlepsi[j] != Zadny)
                moznosti.push_back({size_t(vysky[j]), ceny[size_t(kusy[size_t(nejlepsi[j])].typ)], nejlepsi[j]});
        for (size_t h = 1; h <= H; ++h) {
            stoh[k][h] = stoh[k][h - 1];
            volbaStohu[k][h] = JakoNizsi;
            for (const Moznost& mo : moznosti) {
                if (mo.h > h)
                    break;
                const double v = stoh[k][h - mo.h] + mo.cena;
                if (v > stoh[k][h] + 1e-12) {
                    stoh[k][h] = v;
                    volbaStohu[k][h] = mo.kus;
                }
            }
        }
        prace += std::int64_t(H) * std::int64_t(moznosti.size()) / Krok;
    }

    // pas[r]: the best strip of height vyskyPasu[r], and the widths of its stacks
    const std::vector<long> vyskyPasu = rastr(vysky, s.H);
    std::vector<double> pas(vyskyPasu.size(), 0);
    std::vector<std::vector<int>> stohyPasu(vyskyPasu.size());
    std::vector<double> g(W + 1);
    std::vector<int> volba(W + 1);
    for (size_t r = 0; r < vyskyPasu.size(); ++r) {
        const size_t h = size_t(vyskyPasu[r]);
        // a stack wider than another and worth no more is never needed
        std::vector<size_t> stohy;
        for (size_t k = 0; k < m; ++k)
            if (stoh[k][h] > (stohy.empty() ? 0 : stoh[stohy.back()][h]) + 1e-12)
                stohy.push_back(k);
        g[0] = 0;
        for (size_t w = 1; w <= W; ++w) {
            g[w] = g[w - 1];
            volba[w] = JakoNizsi;
            for (size_t k : stohy) {
                if (size_t(sirky[k]) > w)
                    break;
                const double v = g[w - size_t(sirky[k])] + stoh[k][h];
                if (v > g[w] + 1e-12) {
                    g[w] = v;
                    volba[w] = int(k);
                }
            }
        }
        prace += std::int64_t(W) * std::int64_t(stohy.size()) / Krok;
        pas[r] = g[W];
        for (size_t w = W; w > 0;) {
            if (volba[w] == JakoNizsi) {
                --w;
                continue;
            }
            stohyPasu[r].push_back(volba[w]);
            w -= size_t(sirky[size_t(volba[w])]);
        }
    }

    std::vector<double> f(H + 1, 0);
    std::vector<int> volbaPasu(H + 1, JakoNizsi);
    for (size_t h = 1; h <= H; ++h) {
        f[h] = f[h - 1];
        for (size_t r = 0; r < vyskyPasu.size() && size_t(vyskyPasu[r]) <= h; ++r) {
            const double v = f[h - size_t(vyskyPasu[r])] + pas[r];
            if (v > f[h] + 1e-12) {
                f[h] = v;
                volbaPasu[h] = int(r);
            }
        }
    }
    prace += std::int64_t(H) * std::int64_t(vyskyPasu.size()) / Krok;

    for (size_t h = H; h > 0;) {
        if (volbaPasu[h] == JakoNizsi) {
            --h;
            continue;
        }
        const size_t r = size_t(volbaPasu[h]);
        for (int k : stohyPasu[r])
            for (size_t v = size_t(vyskyPasu[r]); v > 0;) {
                const int c = volbaStohu[size_t(k)][v];
                if (c == Zadny)
                    break;
                if (c == JakoNizsi) {
                    --v;
                    continue;
                }
                ++pocty[size_t(kusy[size_t(c)].typ)];
                v -= size_t(kusy[size_t(c)].h);
            }
        h -= size_t(vyskyPasu[r]);
    }
    return f[H];
}

}
