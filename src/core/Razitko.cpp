#include "core/Razitko.h"

#include <cmath>

namespace Razitko {
namespace {
std::function<QDateTime()> g_hodiny;

const QDateTime& pocatek()
{
    static const QDateTime p(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    return p;
}
}

void nastavHodiny(std::function<QDateTime()> hodiny)
{
    g_hodiny = std::move(hodiny);
}

QDateTime ted()
{
    return g_hodiny ? g_hodiny() : QDateTime::currentDateTime();
}

double den(const QDateTime& cas)
{
    // Counted on the local wall clock, as the old platform's Now was.
    const QDateTime mistni(cas.date(), cas.time(), Qt::UTC);
    return double(pocatek().msecsTo(mistni)) / 86400000.0;
}

double sekundy(const QDateTime& cas)
{
    return std::round(den(cas) * 86400.0);
}

double volne(const std::function<bool(double)>& obsazeno)
{
    double s = sekundy(ted());
    while (obsazeno(s))
        s += 1;
    return s;
}

}
