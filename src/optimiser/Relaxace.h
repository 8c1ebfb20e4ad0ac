#pragma once
// The linear relaxation of the fewest sheets over sheet patterns: how many times each pattern is
// cut (fractions allowed) so that every size gets its copies, as few sheets as may be. Primal
// simplex with the basis inverse kept whole, for the few sizes of an order that it is meant for;
// patterns come in one by one as the pricing finds them.
#include <cstdint>
#include <vector>

namespace Usporne {

class Relaxace {
public:
    // pocty: copies of each size; the first basis is a pattern of each size alone, so every size
    // must go on a sheet at least once (naJednom[i] >= 1).
    Relaxace(std::vector<double> pocty, const std::vector<int>& naJednom);

    void pridej(const std::vector<int>& vzor);
    // The optimum over the patterns so far; false when it did not settle within its pivots.
    bool res(std::int64_t& prace);
    // The worth of a board of each size at the optimum (never below zero), and the sheets.
    std::vector<double> ceny() const;
    double tabuli() const;

private:
    std::vector<double> sloupec(int j) const; // patterns 0.., then the surplus of each size
    std::vector<double> duals() const;
    void pivot(int j, const std::vector<double>& u, int r);
    void prepocti();

    int m_n;
    std::vector<double> m_d;
    std::vector<std::vector<int>> m_vzory;
    std::vector<int> m_baze;                // the column basic in each row
    std::vector<std::vector<double>> m_inv; // the basis inverse
    std::vector<double> m_x;                // the basic columns' values
    int m_odPrepoctu = 0;
};

}
