#include "optimiser/PresnyList.h"

#include <algorithm>
#include <array>
#include <unordered_map>

namespace Usporne {

namespace {

constexpr long Nelze = 1L << 40;
// Boards of more combinations than this are not told apart: "maybe" is the safe answer for a
// proof that no fewer sheets will do.
constexpr int NejvicStavu = 1 << 12;
// A step here (a look-up, a part of a collection) costs about as much as sixteen of the search's
// inner steps, in which its budget is counted.
constexpr int Krok = 16;

// Sub-collections of the boards (how many copies of each size) as numbers in a mixed radix, so
// that copies of one size are never told apart. Strips run along the sheet's X here: the caller
// turns the whole sheet for the other way.
class Rozklad {
public:
    Rozklad(const std::vector<Velikost>& kusy, long W, long H, std::int64_t& prace)
        : m_kusy(kusy), m_W(W), m_H(H), m_prace(prace)
    {
        m_rad.push_back(1);
        for (const Velikost& k : kusy)
            m_rad.push_back(m_rad.back() * (k.pocet + 1));
        for (const Velikost& k : kusy)
            for (long w : {k.x, k.otocit ? k.y : k.x})
                if (w <= W)
                    m_sirky.push_back(w);
        std::sort(m_sirky.begin(), m_sirky.end());
        m_sirky.erase(std::unique(m_sirky.begin(), m_sirky.end()), m_sirky.end());
        vysky();
    }

    // The least height of strips the whole collection needs.
    long vyska()
    {
        const int vse = m_rad.back() - 1;
        std::vector<long> f(vse + 1, Nelze);
        f[0] = 0;
        for (int m = 1; m <= vse; ++m)
            casti(m, [&](int v) {
                if (f[m - v] < Nelze)
                    f[m] = std::min(f[m], pas(v, m_W) + f[m - v]);
            });
        return f[vse];
    }

private:
    const std::vector<Velikost>& m_kusy;
    long m_W, m_H;
    std::int64_t& m_prace;
    std::vector<int> m_rad;
    std::vector<long> m_sirky;
    std::vector<long> m_stoh; // [collection * widths + width]: height of it as one stack
    std::unordered_map<std::int64_t, long> m_pasy;

    int kolik(int s, size_t t) const { return s / m_rad[t] % (m_kusy[t].pocet + 1); }

    void vysky()
    {
        const size_t n = m_sirky.size();
        m_stoh.assign(size_t(m_rad.back()) * n, 0);
        for (size_t k = 0; k < n; ++k)
            for (int s = 1; s < m_rad.back(); ++s) {
                long h = 0;
                for (size_t t = 0; t < m_kusy.size() && h < Nelze; ++t)
                    if (const int c = kolik(s, t)) {
                        const Velikost& v = m_kusy[t];
                        long nejnizsi = Nelze;
                        if (v.x <= m_sirky[k])
                            nejnizsi = v.y;
                        if (v.otocit && v.y <= m_sirky[k])
                            nejnizsi = std::min(nejnizsi, v.x);
                        h = nejnizsi < Nelze ? h + c * nejnizsi : Nelze;
                    }
                m_stoh[size_t(s) * n + k] = h > m_H ? Nelze : h;
                m_prace += Krok;
            }
    }

    // Every part v of collection m that holds a copy of m's first size: each way of cutting m in
    // two is met once.
    template <typename F>
    void casti(int m, F&& f)
    {
        const size_t T = m_kusy.size(); // at most twelve: NejvicStavu
        std::array<int, 12> max{}, c{};
        size_t prvni = T;
        for (size_t t = 0; t < T; ++t) {
            max[t] = kolik(m, t);
            if (max[t] && prvni == T)
                prvni = t;
        }
        c[prvni] = 1;
        for (;;) {
            int v = 0;
            for (size_t t = 0; t < T; ++t)
                v += c[t] * m_rad[t];
            m_prace += Krok;
            f(v);
            size_t t = 0;
            for (; t < T; ++t) {
                if (c[t] < max[t]) {
                    ++c[t];
                    break;
                }
                c[t] = t == prvni ? 1 : 0;
            }
            if (t == T)
                return;
        }
    }

    // The least height of a strip holding collection u in the width left.
    long pas(int u, long zbyva)
    {
        if (u == 0)
            return 0;
        const std::int64_t klic = std::int64_t(u) * (m_W + 1) + zbyva;
        if (auto it = m_pasy.find(klic); it != m_pasy.end())
            return it->second;
        long nejlepsi = Nelze;
        const size_t n = m_sirky.size();
        casti(u, [&](int v) {
            long predchozi = -1;
            for (size_t k = 0; k < n && m_sirky[k] <= zbyva; ++k) {
                const long h = m_stoh[size_t(v) * n + k];
                if (h == predchozi) // a wider stack of the same height only takes room
                    continue;
                predchozi = h;
                if (h >= nejlepsi)
                    continue;
                const long zbytek = pas(u - v, zbyva - m_sirky[k]);
                nejlepsi = std::min(nejlepsi, std::max(h, zbytek));
            }
        });
        m_pasy.emplace(klic, nejlepsi);
        return nejlepsi;
    }
};

}

bool vejdeSe(const std::vector<Velikost>& kusy, long W, long H, std::int64_t& prace)
{
    long stavu = 1;
    long plocha = 0;
    for (const Velikost& k : kusy) {
        stavu *= k.pocet + 1;
        plocha += k.x * k.y * k.pocet;
        if (stavu > NejvicStavu)
            return true;
    }
    if (plocha > W * H)
        return false;
    if (Rozklad(kusy, W, H, prace).vyska() <= H)
        return true;
    // on a square sheet with every board free to turn, the other way is the same question
    if (W == H && std::all_of(kusy.begin(), kusy.end(), [](const Velikost& k) { return k.otocit; }))
        return false;
    std::vector<Velikost> otocene = kusy;
    for (Velikost& k : otocene)
        std::swap(k.x, k.y);
    return Rozklad(otocene, H, W, prace).vyska() <= W;
}

}
