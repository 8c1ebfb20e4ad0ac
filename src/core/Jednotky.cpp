#include "core/Jednotky.h"

#include "core/Nastaveni.h"
#include "core/Val.h"

#include <QLocale>
#include <cmath>

namespace Jednotky {
namespace {

struct Jednotka {
    const char* pripona;
    double mm;
    int desetinnych;
    const char* plocha;
    const char* pocet;
};

const Jednotka tabulka[] = {
    {" mm", 1, 1, "m2", " ks"}, {" cm", 10, 2, "m2", " ks"}, {" dm", 100, 3, "m2", " ks"},
    {" m", 1000, 4, "m2", " ks"}, {" \"", 25.4, 3, "ft2", " pcs"},
};

const Jednotka& aktualni()
{
    return tabulka[jednotka()];
}

QString cena(const QString& text, double krat, const QString& slovo)
{
    QString t = CisloZTextu(text.trimmed()); // prices carry no unit factor
    t.replace(oddelovac(), QLatin1Char('.')).replace(QLatin1Char(','), QLatin1Char('.'));
    const double hodnota = Val(t);
    if (hodnota == 0)
        return QString();
    return QString::number(hodnota * krat, 'f', 2) + QLatin1Char(' ') +
           Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Mena")) + QLatin1Char('/') + slovo;
}

} // namespace

int jednotka()
{
    const int j = int(Nastaveni::cislo(QStringLiteral("Setting"), QStringLiteral("Jednotky")));
    return j >= 0 && j <= 4 ? j : 0;
}

QString pripona() { return QString::fromUtf8(aktualni().pripona); }
int PocetDesetinnych() { return aktualni().desetinnych; }

QChar oddelovac()
{
    return QLocale().decimalPoint().at(0); // the system's, unless the program set another
}

QString JednotkaPocet(const QString& pocet)
{
    return pocet + QString::fromLatin1(aktualni().pocet);
}

QString CisloZTextu(const QString& text)
{
    const qsizetype mezera = text.indexOf(QLatin1Char(' '));
    return mezera < 0 ? text : text.left(mezera);
}

double NaMilimetry(const QString& text)
{
    QString t = CisloZTextu(text.trimmed());
    t.replace(oddelovac(), QLatin1Char('.'));
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    const double v = Val(t) * aktualni().mm;
    return jednotka() == 4 ? Round(v, 1) : v;
}

double ZMilimetruCislo(double mm)
{
    const double v = mm / aktualni().mm;
    return jednotka() == 4 ? Round(v, 3) : v;
}

QString cislo(double hodnota)
{
    QString t = QString::number(hodnota, 'g', 15);
    return t.replace(QLatin1Char('.'), oddelovac());
}

QString ZMilimetru(double mm)
{
    return cislo(ZMilimetruCislo(mm)) + pripona();
}

QString RozmerSJednotkou(const QString& text)
{
    const QString t = CisloZTextu(text.trimmed());
    if (t.isEmpty() || NaMilimetry(t) == 0)
        return QString();
    return t + pripona();
}

QString RozmerDesky(const QString& nazev, double x, double y)
{
    return nazev + QStringLiteral(" (") + ZMilimetru(x) + QStringLiteral(" x ") + ZMilimetru(y) + QLatin1Char(')');
}

QString CenaZaPlochu(const QString& c)
{
    return cena(c, 1, QString::fromLatin1(aktualni().plocha));
}

QString CenaZaPlochuSDPH(const QString& c)
{
    return cena(c, 1 + Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH")) / 100,
                QString::fromLatin1(aktualni().plocha));
}

QString CenaZaMetr(const QString& c)
{
    return cena(c, 1, jednotka() == 4 ? QStringLiteral("ft") : QStringLiteral("m"));
}

QChar FiltrCisla(const QString& vstup, int, int selLength, QChar klavesa, int desetinnych)
{
    if (klavesa == QLatin1Char('\b'))
        return klavesa;
    const QString text = selLength == vstup.size() ? QString() : vstup;
    const QChar sep = oddelovac();
    if (klavesa == sep)
        return text.contains(sep) || desetinnych == 0 || text.isEmpty() ? QChar() : klavesa;
    if (text == QLatin1String("0"))
        return QChar(); // no leading zero
    if (!klavesa.isDigit() || klavesa.unicode() > '9')
        return QChar();
    const qsizetype i = text.indexOf(sep);
    if (i >= 0 && text.size() - i - 1 >= desetinnych)
        return QChar();
    return klavesa;
}

QChar FiltrCelehoCisla(const QString& vstup, int, int selLength, QChar klavesa, int cislic)
{
    if (klavesa == QLatin1Char('\b'))
        return klavesa;
    const QString text = selLength == vstup.size() ? QString() : vstup;
    if (text.size() == cislic)
        return QChar();
    if (klavesa.unicode() < '0' || klavesa.unicode() > '9')
        return QChar();
    return klavesa;
}

}
