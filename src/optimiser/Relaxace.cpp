#include "optimiser/Relaxace.h"

#include <cmath>
#include <utility>

namespace Usporne {

namespace {
constexpr double Eps = 1e-9;
constexpr int PrepocetPo = 50; // pivots after which the inverse is built anew against drift
} // namespace

Relaxace::Relaxace(std::vector<double> pocty, const std::vector<int>& naJednom)
    : m_n(int(pocty.size())), m_d(std::move(pocty))
{
    for (int i = 0; i < m_n; ++i) {
        std::vector<int> vzor(size_t(m_n), 0);
        vzor[size_t(i)] = naJednom[size_t(i)];
        m_vzory.push_back(vzor);
        m_baze.push_back(i);
    }
    prepocti();
}

void Relaxace::pridej(const std::vector<int>& vzor)
{
    m_vzory.push_back(vzor);
}

std::vector<double> Relaxace::sloupec(int j) const
{
    std::vector<double> a(size_t(m_n), 0);
    if (j < int(m_vzory.size())) {
        for (int i = 0; i < m_n; ++i)
            a[size_t(i)] = m_vzory[size_t(j)][size_t(i)];
    } else {
        a[size_t(j - int(m_vzory.size()))] = -1;
    }
    return a;
}

std::vector<double> Relaxace::duals() const
{
    std::vector<double> y(size_t(m_n), 0);
    for (int r = 0; r < m_n; ++r)
        if (m_baze[size_t(r)] < int(m_vzory.size())) // a pattern costs one sheet, a surplus nothing
            for (int i = 0; i < m_n; ++i)
                y[size_t(i)] += m_inv[size_t(r)][size_t(i)];
    return y;
}

std::vector<double> Relaxace::ceny() const
{
    std::vector<double> y = duals();
    for (double& v : y)
        v = std::max(v, 0.0);
    return y;
}

double Relaxace::tabuli() const
{
    double s = 0;
    for (int r = 0; r < m_n; ++r)
        if (m_baze[size_t(r)] < int(m_vzory.size()))
            s += m_x[size_t(r)];
    return s;
}

// Gauss-Jordan on the basis columns, then the basic values from the copies wanted.
void Relaxace::prepocti()
{
    const size_t n = size_t(m_n);
    std::vector<std::vector<double>> a(n, std::vector<double>(2 * n, 0));
    for (size_t r = 0; r < n; ++r) {
        const std::vector<double> s = sloupec(m_baze[r]);
        for (size_t i = 0; i < n; ++i)
            a[i][r] = s[i];
        a[r][n + r] = 1;
    }
    for (size_t c = 0; c < n; ++c) {
        size_t p = c;
        for (size_t i = c + 1; i < n; ++i)
            if (std::abs(a[i][c]) > std::abs(a[p][c]))
                p = i;
        std::swap(a[c], a[p]);
        const double d = a[c][c];
        if (std::abs(d) < 1e-12)
            continue; // cannot happen for a basis the pivots kept regular
        for (double& v : a[c])
            v /= d;
        for (size_t i = 0; i < n; ++i)
            if (i != c && a[i][c] != 0) {
                const double f = a[i][c];
                for (size_t k = 0; k < 2 * n; ++k)
                    a[i][k] -= f * a[c][k];
            }
    }
    m_inv.assign(n, std::vector<double>(n));
    for (size_t r = 0; r < n; ++r)
        for (size_t i = 0; i < n; ++i)
            m_inv[r][i] = a[r][n + i];
    m_x.assign(n, 0);
    for (size_t r = 0; r < n; ++r)
        for (size_t i = 0; i < n; ++i)
            m_x[r] += m_inv[r][i] * m_d[i];
    m_odPrepoctu = 0;
}

void Relaxace::pivot(int j, const std::vector<double>& u, int r)
{
    const size_t n = size_t(m_n), rr = size_t(r);
    const double ur = u[rr];
    const double t = m_x[rr] / ur;
    for (size_t i = 0; i < n; ++i)
        m_inv[rr][i] /= ur;
    for (size_t k = 0; k < n; ++k) {
        if (k == rr || u[k] == 0)
            continue;
        m_x[k] -= u[k] * t;
        for (size_t i = 0; i < n; ++i)
            m_inv[k][i] -= u[k] * m_inv[rr][i];
    }
    m_x[rr] = t;
    m_baze[rr] = j;
    if (++m_odPrepoctu >= PrepocetPo)
        prepocti();
}

// Dantzig's rule while the sheets go down, Bland's (the first column that improves, the first row
// of a tie) once they stall, so the simplex cannot cycle on the many ties of such relaxations.
bool Relaxace::res(std::int64_t& prace)
{
    const size_t n = size_t(m_n);
    int stoji = 0;
    for (int krok = 0; krok < 100 * (m_n + int(m_vzory.size())); ++krok) {
        const std::vector<double> y = duals();
        const int sloupcu = int(m_vzory.size()) + m_n;
        int vstup = -1;
        double nejmene = -Eps;
        for (int j = 0; j < sloupcu; ++j) {
            double d = 0;
            if (j < int(m_vzory.size())) {
                d = 1;
                for (size_t i = 0; i < n; ++i)
                    d -= y[i] * m_vzory[size_t(j)][i];
            } else {
                d = y[size_t(j) - m_vzory.size()];
            }
            if (d < nejmene) {
                vstup = j;
                nejmene = d;
                if (stoji > m_n)
                    break;
            }
        }
        prace += std::int64_t(sloupcu) * m_n + std::int64_t(n * n);
        if (vstup < 0)
            return true;
        const std::vector<double> a = sloupec(vstup);
        std::vector<double> u(n, 0);
        for (size_t r = 0; r < n; ++r)
            for (size_t i = 0; i < n; ++i)
                u[r] += m_inv[r][i] * a[i];
        int radek = -1;
        double pomer = 0;
        for (size_t r = 0; r < n; ++r)
            if (u[r] > Eps && (radek < 0 || m_x[r] / u[r] < pomer - Eps)) {
                radek = int(r);
                pomer = m_x[r] / u[r];
            }
        if (radek < 0)
            return false; // unbounded: the sheets cannot go below nought, so drift
        stoji = pomer < Eps ? stoji + 1 : 0;
        pivot(vstup, u, radek);
    }
    return false;
}

}
