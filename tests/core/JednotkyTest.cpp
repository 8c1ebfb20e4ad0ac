// Units: conversion both ways in each unit, the inch round trip, price texts, the key filters.
#include "DomovTest.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"

using namespace Jednotky;

class JednotkyTest : public NastavenyDomov {
protected:
    void jednotka(int j) { Nastaveni::SaveSetting("Setting", "Jednotky", QString::number(j)); }
};

TEST_F(JednotkyTest, PrevodyAPalceSBankovnimZaokrouhlenim)
{
    EXPECT_EQ(ZMilimetru(1200), QStringLiteral("1200 mm"));
    EXPECT_EQ(RozmerSJednotkou(QString()), QString());
    EXPECT_EQ(RozmerSJednotkou(QStringLiteral("0")), QString());
    jednotka(1);
    EXPECT_EQ(NaMilimetry(QStringLiteral("12.5 cm")), 125);
    EXPECT_EQ(ZMilimetru(125), QString(QStringLiteral("12")) + oddelovac() + QStringLiteral("5 cm"));
    jednotka(4);
    EXPECT_EQ(NaMilimetry(QStringLiteral("1")), 25.4);
    EXPECT_EQ(ZMilimetru(25.4), QStringLiteral("1 \""));
    EXPECT_EQ(NaMilimetry(QStringLiteral("0.333")), 8.5);
    EXPECT_EQ(ZMilimetruCislo(8.5), 0.335);
    EXPECT_EQ(JednotkaPocet(QStringLiteral("3")), QStringLiteral("3 pcs"));
    EXPECT_EQ(CenaZaPlochu(QStringLiteral("350")), QStringLiteral("350.00 Kč/ft2"));
    jednotka(7); // outside the table: millimetres
    EXPECT_EQ(pripona(), QStringLiteral(" mm"));
    EXPECT_EQ(CenaZaPlochu(QStringLiteral("0")), QString());
    EXPECT_EQ(CenaZaPlochuSDPH(QStringLiteral("100")), QStringLiteral("119.00 Kč/m2"));
}

TEST_F(JednotkyTest, FiltrKlaves)
{
    const QChar s = oddelovac();
    EXPECT_EQ(FiltrCisla(QStringLiteral("0"), 1, 0, QLatin1Char('0'), 1), QChar()); // no "00"
    EXPECT_EQ(FiltrCisla(QString(), 0, 0, s, 1), QChar());                           // no leading separator
    EXPECT_EQ(FiltrCisla(QStringLiteral("12"), 2, 0, s, 1), s);
    EXPECT_EQ(FiltrCisla(QString(QStringLiteral("12")) + s + QLatin1Char('5'), 4, 0, QLatin1Char('1'), 1), QChar());
    EXPECT_EQ(FiltrCisla(QStringLiteral("12"), 0, 2, QLatin1Char('7'), 1), QLatin1Char('7')); // selection replaced
    EXPECT_EQ(FiltrCisla(QStringLiteral("12"), 2, 0, QLatin1Char('a'), 1), QChar());
    EXPECT_EQ(FiltrCisla(QStringLiteral("12"), 2, 0, QLatin1Char('\b'), 1), QLatin1Char('\b'));
    EXPECT_EQ(FiltrCelehoCisla(QStringLiteral("19"), 2, 0, QLatin1Char('5'), 2), QChar());
    EXPECT_EQ(FiltrCelehoCisla(QStringLiteral("1"), 1, 0, QLatin1Char('5'), 2), QLatin1Char('5'));
}
