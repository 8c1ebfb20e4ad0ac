#pragma once
#include <QString>
// The platform's Format(v, "0.00"): the value's 15-digit text rounded half away from zero
// (0.125 gives 0.13; 12.35 * 0.5, which prints 6.175, gives 6.18). The rounded value goes on.
double Zaokrouhli(double hodnota, int mist);
// A discount setting: through Val, then to a whole number with halves to even (6.5 gives 6).
int Sleva(const QString& text);
