#include "optimiser/MezSloupcu.h"

#include "optimiser/NejcennejsiList.h"
#include "optimiser/Relaxace.h"

#include <algorithm>
#include <cmath>

namespace Usporne {

namespace {

// Copies of a size alone that one sheet holds in a grid: the first patterns of the relaxation.
int vMrizce(const Velikost& k, long W, long H)
{
    long n = (W / k.x) * (H / k.y);
    if (k.otocit)
        n = std::max(n, (W / k.y) * (H / k.x));
    return int(std::min(n, 1L << 20));
}

} // namespace

int mezSloupcu(const std::vector<Velikost>& desky, long W, long H, int cil, std::int64_t& prace, std::int64_t limit,
               const std::vector<std::vector<int>>& vzory)
{
    if (desky.empty() || int(desky.size()) > NejvicVelikostiMeze)
        return 0;
    std::vector<double> pocty;
    std::vector<int> naJednom;
    for (const Velikost& k : desky) {
        pocty.push_back(k.pocet);
        naJednom.push_back(vMrizce(k, W, H));
        if (naJednom.back() < 1)
            return 0; // a board larger than the sheet: no bound of this kind
    }
    const NejcennejsiList list(desky, W, H);
    Relaxace relaxace(pocty, naJednom);
    for (const std::vector<int>& vzor : vzory)
        relaxace.pridej(vzor);
    double mez = 0;
    // (the ceiling forgives the rounding of sums over many sizes, never a whole board)
    auto tabuli = [&] { return int(std::ceil(mez - 1e-6)); };
    while (tabuli() < cil && prace < limit && prace + list.odhad() <= limit) {
        if (!relaxace.res(prace))
            break;
        const std::vector<double> y = relaxace.ceny();
        std::vector<int> vzor;
        const double nejvic = list.nejvic(y, vzor, prace);
        if (nejvic <= 0)
            break;
        double hodnota = 0;
        for (size_t i = 0; i < desky.size(); ++i)
            hodnota += pocty[i] * y[i];
        mez = std::max(mez, hodnota / nejvic);
        if (nejvic <= 1 + 1e-9)
            break; // the relaxation's optimum: no pattern would lower it
        relaxace.pridej(vzor);
    }
    return std::min(tabuli(), cil);
}

}
