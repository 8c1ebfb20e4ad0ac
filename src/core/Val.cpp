#include "core/Val.h"

#include <cmath>

#include <QRegularExpression>

double Val(const QString& text)
{
    QString s = text;
    s.remove(QRegularExpression(QStringLiteral("[ \\t\\n\\r]")));
    static const QRegularExpression hex(QStringLiteral("^&[Hh]([0-9A-Fa-f]+)&?"));
    if (const auto m = hex.match(s); m.hasMatch())
        return double(m.captured(1).toLongLong(nullptr, 16));
    static const QRegularExpression cislo(
        QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eEdD][+-]?\\d+)?"));
    const auto m = cislo.match(s);
    if (!m.hasMatch())
        return 0;
    QString t = m.captured(0);
    t.replace(QLatin1Char('d'), QLatin1Char('e')).replace(QLatin1Char('D'), QLatin1Char('e'));
    return t.toDouble();
}

double Round(double hodnota, int mist)
{
    const double k = std::pow(10.0, mist);
    return std::nearbyint(hodnota * k) / k;
}
