#pragma once
// Stamps of the system: `ID` of a material and `cas` of a row are whole seconds since
// 1899-12-30 (the old day count times 86400); `datum` is that day count itself.
#include <QDateTime>
#include <functional>

namespace Razitko {

// The clock; tests install a fixed one. An empty function restores the system clock.
void nastavHodiny(std::function<QDateTime()> hodiny);
QDateTime ted();

double sekundy(const QDateTime& cas);  // whole seconds since 1899-12-30, local time
double den(const QDateTime& cas);      // the day count with its fraction
// A stamp for now, raised by 1 until obsazeno() says it is free.
double volne(const std::function<bool(double)>& obsazeno);

}
