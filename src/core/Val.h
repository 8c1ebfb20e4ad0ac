#pragma once
// The old platform's Val: the number at the start of a text ("12,5" gives 12, "" gives 0),
// with "." as the decimal point whatever the locale. Stored settings are read through it.
#include <QString>

double Val(const QString& text);

// The old platform's Round: to the given places, an exact half to the even neighbour.
double Round(double hodnota, int mist = 0);
