#include "optimiser/Dukaz.h"

#include <algorithm>
#include <bit>
#include <numeric>
#include <unordered_map>
#include <unordered_set>

namespace Usporne {

namespace {

using Mnozina = std::uint64_t; // board i is in when bit i is set

// A look-up of a sheet's boards, answered before or not, costs about as much as this many of the
// search's inner steps, in which the budget is counted.
constexpr int KrokHledani = 4;

class Dukaz {
public:
    Dukaz(const std::vector<Velikost>& desky, long W, long H, std::int64_t& prace, std::int64_t limit)
        : m_W(W), m_H(H), m_prace(prace), m_limit(limit)
    {
        for (size_t t = 0; t < desky.size(); ++t)
            for (int i = 0; i < desky[t].pocet; ++i)
                m_desky.push_back({int(t), desky[t].x * desky[t].y});
        // the largest first, copies of one size side by side
        std::stable_sort(m_desky.begin(), m_desky.end(), [](const Deska& a, const Deska& b) {
            return a.plocha != b.plocha ? a.plocha > b.plocha : a.typ < b.typ;
        });
        m_velikosti = desky;
    }

    bool jeDeskam() const { return m_desky.size() <= size_t(NejvicDesekDukazu); }

    // true: the boards do not go on `tabuli` sheets; false: they may, or the work ran out
    bool nelze(int tabuli)
    {
        const Mnozina vse = m_desky.size() == 64 ? ~Mnozina(0) : (Mnozina(1) << m_desky.size()) - 1;
        m_neslo.assign(size_t(tabuli) + 1, {});
        return !jde(vse, tabuli, plocha(vse)) && !dost();
    }

private:
    struct Deska {
        int typ;
        long plocha;
    };
    std::vector<Deska> m_desky;
    std::vector<Velikost> m_velikosti;
    long m_W, m_H;
    std::int64_t& m_prace;
    std::int64_t m_limit;
    std::unordered_map<Mnozina, bool> m_vejde;
    std::vector<std::unordered_set<Mnozina>> m_neslo; // [sheets left]: boards that did not go

    bool dost() const { return m_prace >= m_limit; }
    static bool je(Mnozina m, size_t i) { return (m >> i) & 1; }

    long plocha(Mnozina m) const
    {
        long p = 0;
        for (size_t i = 0; i < m_desky.size(); ++i)
            if (je(m, i))
                p += m_desky[i].plocha;
        return p;
    }

    bool vejde(Mnozina m)
    {
        m_prace += KrokHledani;
        if (auto it = m_vejde.find(m); it != m_vejde.end())
            return it->second;
        std::vector<Velikost> kusy; // copies of one size lie side by side in m_desky
        int posledni = -1;
        for (Mnozina zbyva = m; zbyva; zbyva &= zbyva - 1) {
            const int typ = m_desky[size_t(std::countr_zero(zbyva))].typ;
            if (typ == posledni)
                ++kusy.back().pocet;
            else
                kusy.push_back({m_velikosti[size_t(typ)].x, m_velikosti[size_t(typ)].y, m_velikosti[size_t(typ)].otocit, 1});
            posledni = typ;
        }
        return m_vejde[m] = vejdeSe(kusy, m_W, m_H, m_prace);
    }

    // Sheets holding `list` and whatever of `zbyva` (boards from `od` on) still fits beside;
    // those to which nothing more fits and that hold at least `nejmene` are kept.
    void listy(Mnozina zbyva, Mnozina list, long p, size_t od, long nejmene, std::vector<std::pair<long, Mnozina>>& ven)
    {
        for (size_t j = od; j < m_desky.size() && !dost(); ++j) {
            // of copies of one size, the first left is taken first: the others give the same sheets
            if (!je(zbyva, j) || (j > 0 && m_desky[j - 1].typ == m_desky[j].typ && je(zbyva, j - 1)))
                continue;
            const Mnozina s = list | (Mnozina(1) << j);
            if (p + m_desky[j].plocha <= m_W * m_H && vejde(s))
                listy(zbyva & ~(Mnozina(1) << j), s, p + m_desky[j].plocha, j + 1, nejmene, ven);
        }
        if (p < nejmene)
            return;
        for (size_t j = 0; j < m_desky.size(); ++j)
            if (je(zbyva, j) && p + m_desky[j].plocha <= m_W * m_H && vejde(list | (Mnozina(1) << j)))
                return;
        ven.push_back({p, list});
    }

    bool jde(Mnozina zbyva, int tabuli, long p)
    {
        if (zbyva == 0)
            return true;
        if (tabuli == 0 || p > tabuli * m_W * m_H || m_neslo[size_t(tabuli)].count(zbyva) || dost())
            return false;
        const size_t prvni = size_t(std::countr_zero(zbyva));
        const Mnozina bezPrvni = zbyva & ~(Mnozina(1) << prvni);
        std::vector<std::pair<long, Mnozina>> moznosti;
        listy(bezPrvni, Mnozina(1) << prvni, m_desky[prvni].plocha, prvni + 1, p - (tabuli - 1) * m_W * m_H, moznosti);
        std::sort(moznosti.begin(), moznosti.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
        for (const auto& [plochaListu, list] : moznosti)
            if (jde(zbyva & ~list, tabuli - 1, p - plochaListu))
                return true;
        m_neslo[size_t(tabuli)].insert(zbyva);
        return false;
    }
};

}

bool nelzeNa(const std::vector<Velikost>& desky, long W, long H, int tabuli, std::int64_t& prace, std::int64_t limit)
{
    Dukaz d(desky, W, H, prace, limit);
    return d.jeDeskam() && d.nelze(tabuli);
}

}
