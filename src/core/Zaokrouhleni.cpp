#include "core/Zaokrouhleni.h"

#include "core/Val.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

double Zaokrouhli(double hodnota, int mist)
{
    if (hodnota == 0 || !std::isfinite(hodnota))
        return hodnota;
    // the 15 significant digits as an integer N and its exponent: hodnota = N * 10^(e - 14)
    char text[32];
    std::snprintf(text, sizeof text, "%.14e", std::fabs(hodnota));
    const char* e = std::strchr(text, 'e');
    const int exponent = std::atoi(e + 1);
    long long n = 0;
    for (const char* c = text; c < e; ++c)
        if (*c >= '0' && *c <= '9')
            n = n * 10 + (*c - '0');
    const int posun = exponent - 14 + mist; // N * 10^posun is the value in units of 10^-mist
    double jednotek;
    if (posun >= 0) {
        jednotek = double(n) * std::pow(10.0, posun);
    } else if (posun < -18) {
        jednotek = 0;
    } else {
        long long delitel = 1;
        for (int i = 0; i < -posun; ++i)
            delitel *= 10;
        long long q = n / delitel;
        if ((n % delitel) * 2 >= delitel)
            ++q; // an exact half goes away from zero
        jednotek = double(q);
    }
    const double vysledek = jednotek / std::pow(10.0, mist);
    return hodnota < 0 ? -vysledek : vysledek;
}

int Sleva(const QString& text)
{
    return int(std::nearbyint(Val(text)));
}
