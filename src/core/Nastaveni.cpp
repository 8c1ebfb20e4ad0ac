#include "core/Nastaveni.h"

#include "core/Val.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

#ifndef TRUHLAR_VERZE
#define TRUHLAR_VERZE "1.0.0"
#endif

namespace Nastaveni {
namespace {

struct Vychozi {
    const char* sekce;
    const char* klic;
    const char* hodnota;
};

// The first-run values, section by section.
const Vychozi vychozi[] = {
    {"Setting", "Jednotky", "0"},
    {"Setting", "BarvaDesky", "&H00FFFFFF&"},
    {"Setting", "BarvaOdrezku", "&H00C0C0C0&"},
    {"Setting", "BarvaOdpadu", "&H00E0E0E0&"},
    {"Setting", "PismoDesky", "Arial"},
    {"Setting", "BarvaPismaDesky", "&H00FF0000&"},
    {"Setting", "TucnePismoDesky", "False"},
    {"Setting", "KurzivaDesky", "False"},
    {"Setting", "PodtrzeniPismaDesky", "False"},
    {"Setting", "PreskrtnutniPismaDesky", "False"},
    {"Setting", "VelikostFontuPismaDesky", "14"},
    {"Setting", "PismoOdrezku", "Arial"},
    {"Setting", "BarvaPismaOdrezku", "&H00000000&"},
    {"Setting", "TucnePismoOdrezku", "False"},
    {"Setting", "KurzivaOdrezku", "False"},
    {"Setting", "PodtrzeniPismaOdrezku", "False"},
    {"Setting", "PreskrtnutniPismaOdrezku", "False"},
    {"Setting", "VelikostFontuPismaOdrezku", "10"},
    {"Setting", "SlevaPM", "0"},
    {"Setting", "SlevaHrana", "0"},
    {"Setting", "PresahPris", "0"},
    {"Setting", "DelkaStitku", "70"},
    {"Setting", "SirkaStitku", "36"},
    {"Setting", "OkrajZleva", "0"},
    {"Setting", "OkrajShora", "5"},
    {"Setting", "MezeraXMeziStitky", "0"},
    {"Setting", "MezeraYMeziStitky", "0"},
    {"Setting", "PocetSloupcuStitku", "3"},
    {"Setting", "DelkaStitkuTisk", "55"},
    {"Setting", "SirkaStitkuTisk", "22"},
    {"Setting", "OkrajZlevaTisk", "13"},
    {"Setting", "OkrajShoraTisk", "13"},
    {"Setting", "MezeraXMeziStitkyTisk", "10"},
    {"Setting", "MezeraYMeziStitkyTisk", "13"},
    {"Setting", "PocetSloupcuStitkuTisk", "3"},
    {"Setting", "PocetRadkuStitkuTisk", "8"},
    {"Setting", "OkrajStrankyShora", "12"},
    {"Setting", "OkrajStrankyZdola", "15"},
    {"Setting", "OkrajStrankyZleva", "10"},
    {"Setting", "OkrajStrankyZprava", "10"},
    {"Setting2", "VykresleniTabule", "1"},
    {"Setting2", "ZCR", "1"},
    {"Setting2", "CRez", "5"},
    {"Setting2", "Srez", "4"},
    {"Setting2", "Samovani", "0"},
    {"Setting2", "ZarovnaniFormatu", "1"},
    {"Setting2", "ZobrazeniHran", "1"},
    {"Setting2", "POdrezky", "0"},
    {"Setting2", "XZ", "100"},
    {"Setting2", "YZ", "100"},
    {"Setting2", "DPH", "19"},
    {"Setting2", "Mena", "Kč"},
    {"Setting2", "Vyber", "VSE"},
    {"Setting2", "Razeni", "nazev"},
    {"Setting2", "RaditDleRozmeru", "1"},
    {"Setting2", "ZPZ", "1"},
    {"Setting2", "OV", "X"},
    {"Setting2", "OVZada", "-"},
};

QSettings otevri()
{
    return QSettings(soubor(), QSettings::IniFormat);
}

} // namespace

QString soubor()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation))
        .filePath(QStringLiteral("truhlar.ini"));
}

QString GetSetting(const QString& sekce, const QString& klic, const QString& vychozi)
{
    return otevri().value(sekce + QLatin1Char('/') + klic, vychozi).toString();
}

void SaveSetting(const QString& sekce, const QString& klic, const QString& hodnota)
{
    SaveSettings({{sekce, klic, hodnota}});
}

void SaveSettings(const QList<Hodnota>& hodnoty)
{
    QSettings s = otevri();
    for (const Hodnota& h : hodnoty)
        s.setValue(h.sekce + QLatin1Char('/') + h.klic, h.hodnota);
    s.sync();
}

double cislo(const QString& sekce, const QString& klic)
{
    return Val(GetSetting(sekce, klic));
}

QString verze()
{
    return QStringLiteral(TRUHLAR_VERZE);
}

bool jeZmenaVerze()
{
    return GetSetting(QStringLiteral("Setting"), QStringLiteral("Verze")) != verze();
}

void ZapisVychoziNastaveni(int left, int top, int width, int height)
{
    QSettings s = otevri();
    s.setValue(QStringLiteral("Setting/Verze"), verze());
    for (const Vychozi& v : vychozi)
        s.setValue(QLatin1String(v.sekce) + QLatin1Char('/') + QLatin1String(v.klic),
                   QString::fromUtf8(v.hodnota));
    s.setValue(QStringLiteral("Settings/MainLeft"), QString::number(left));
    s.setValue(QStringLiteral("Settings/MainTop"), QString::number(top));
    s.setValue(QStringLiteral("Settings/MainWidth"), QString::number(width));
    s.setValue(QStringLiteral("Settings/MainHeight"), QString::number(height));
    s.sync();
}

}
