#pragma once
// The most one sheet cut in three stages can be worth when every board of a size is worth a
// given value and a sheet may hold any number of copies: strips across the sheet (either way),
// stacks side by side in a strip, pieces one over another in a stack, each trimmed to its width.
// Exact, by dynamic programming over the sheet's lengths; what the relaxation over sheet
// patterns asks of a sheet.
#include "optimiser/PresnyList.h"

#include <cstdint>
#include <vector>

namespace Usporne {

class NejcennejsiList {
public:
    // Sizes with the kerf and a W x H sheet (usable size with the kerf), in tenths.
    NejcennejsiList(const std::vector<Velikost>& kusy, long W, long H);

    // The greatest worth of one sheet, and how many boards of each size make it.
    double nejvic(const std::vector<double>& ceny, std::vector<int>& pocty, std::int64_t& prace) const;
    // About the steps nejvic takes: a caller short of budget does not start one.
    std::int64_t odhad() const;

    struct Kus {
        int typ;
        long w, h; // along the strips and across them, in the sizes' common unit
    };

private:
    struct Smer {
        std::vector<Kus> kusy;
        long W, H;
    };
    double jednimSmerem(const Smer& s, const std::vector<double>& ceny, std::vector<int>& pocty,
                        std::int64_t& prace) const;

    int m_typu;
    Smer m_smery[2]; // strips along the sheet's X, and along its Y
};

}
