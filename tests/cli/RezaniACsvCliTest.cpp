// The command line's costing of the cutting (setting ZCR) and the cut list of a plan as CSV,
// imported back into an assembly.
#include "SpusteniCli.h"

#include <algorithm>

namespace {

const QString Kuchyne = QStringLiteral("Kuchyně Novák");

class RezaniACsvCli : public SpusteniCli {
protected:
    void SetUp() override { zalozDemo(); }
    // The rows of a costing table that price the cutting.
    static QJsonArray rezani(const QJsonObject& o, const char* tabulka)
    {
        QJsonArray v;
        for (const QJsonValue& r : o[QLatin1String(tabulka)].toArray())
            if (r[QStringLiteral("cislo")].toInt() == 4)
                v << r;
        return v;
    }
    static double zaklad(const QJsonObject& o)
    {
        return o[QStringLiteral("souhrn")][QStringLiteral("zaklad")].toString().split(QLatin1Char(' ')).first().replace(
            QLatin1Char(','), QLatin1Char('.')).toDouble();
    }
};

// The order's boards as (length, width, bands by name) once per piece cut, sorted.
QStringList kusy(const QJsonObject& zakazka, bool kratPocet)
{
    QMap<double, QString> hrany;
    for (const QJsonValue& h : zakazka[QStringLiteral("hrany")].toArray())
        hrany.insert(h[QStringLiteral("id")].toDouble(), h[QStringLiteral("material")].toString());
    QStringList v;
    for (const QJsonValue& s : zakazka[QStringLiteral("sestavy")].toArray())
        for (const QJsonValue& d : s[QStringLiteral("desky")].toArray()) {
            QStringList k{QString::number(d[QStringLiteral("x")].toDouble()), QString::number(d[QStringLiteral("y")].toDouble())};
            for (const QJsonValue& h : d[QStringLiteral("hrany")].toArray())
                k << hrany.value(h.toDouble());
            const int n = kratPocet ? int(d[QStringLiteral("pocet")].toDouble() * s[QStringLiteral("pocet")].toDouble()) : 1;
            for (int i = 0; i < n; ++i)
                v << k.join(QLatin1Char('|'));
        }
    std::sort(v.begin(), v.end());
    return v;
}

} // namespace

// The first-run settings price the cutting: a row per format in the calculation, the quotation
// and the purchase list, its metres times "Cena řezu"; switched off, the rows go and each base
// falls by just that row.
TEST_F(RezaniACsvCli, CenaRezaniVKalkulaciNabidceANakupu)
{
    ASSERT_EQ(spust({"settings", "set", "Setting2", "CRez", "8"}).kod, 0);
    const QString prikazy[] = {QStringLiteral("calc"), QStringLiteral("quote"), QStringLiteral("purchase")};
    std::map<QString, double> cenaRezani, sRezanim;
    for (const QString& p : prikazy) {
        SCOPED_TRACE(p.toStdString());
        const QJsonObject o = json({p, Kuchyne, "--json"}).object();
        const QJsonArray r = rezani(o, "SoupisProKalkulaci");
        ASSERT_EQ(r.size(), 1); // one format
        const double metru = r[0][QStringLiteral("mnozstvi")].toDouble();
        EXPECT_GT(metru, 10);
        EXPECT_LT(metru, 100);
        EXPECT_EQ(r[0][QStringLiteral("JC")].toDouble(), 8);
        EXPECT_NEAR(r[0][QStringLiteral("Cena")].toDouble(), metru * 8, 0.005);
        cenaRezani[p] = r[0][QStringLiteral("Cena")].toDouble();
        sRezanim[p] = zaklad(o);
        if (p == QLatin1String("purchase")) {
            EXPECT_TRUE(o[QStringLiteral("nakup")].toArray().last()[QStringLiteral("nakup")].toString().endsWith(QStringLiteral(" m")));
        }
    }
    // a calculation of some assemblies only leaves the order's cutting out
    const QJsonObject jedna = json({"calc", Kuchyne, "--sestava", "Dřez80", "--json"}).object();
    EXPECT_TRUE(rezani(jedna, "SoupisProKalkulaci").isEmpty());

    ASSERT_EQ(spust({"settings", "set", "Setting2", "ZCR", "0"}).kod, 0);
    for (const QString& p : prikazy) {
        SCOPED_TRACE(p.toStdString());
        const QJsonObject o = json({p, Kuchyne, "--json"}).object();
        EXPECT_TRUE(rezani(o, "SoupisProKalkulaci").isEmpty());
        EXPECT_NEAR(sRezanim[p] - zaklad(o), cenaRezani[p], 0.015);
    }
}

TEST_F(RezaniACsvCli, SeznamDilcuPlanuSeNaimportujeZpet)
{
    const QString csv = m_dir.filePath(QStringLiteral("dilce.csv"));
    const Vysledek v = spust(plan("kombinovane") << "--csv" << csv);
    ASSERT_EQ(v.kod, 0) << v.err.toStdString();
    const QByteArray dilce = obsahSouboru(csv);
    EXPECT_TRUE(dilce.startsWith("\xEF\xBB\xBFTabule;N\xC3\xA1zev;Sestava;D\xC3\xA9lka;")); // UTF-8 with its BOM
    EXPECT_TRUE(dilce.contains("\r\n"));

    // an order of the same materials with an empty assembly takes the list back
    const QJsonObject demo = json({"order-dump", Kuchyne}).object();
    QJsonObject kopie = demo;
    kopie[QStringLiteral("zakazka")] = QStringLiteral("Kopie");
    kopie[QStringLiteral("sestavy")] = QJsonArray{QJsonObject{{QStringLiteral("nazev"), QStringLiteral("Vse")}}};
    ASSERT_EQ(spust({"order-load", soubor(QStringLiteral("kopie.json"), QJsonDocument(kopie).toJson())}).kod, 0);
    const Vysledek import = spust({"import", csv, "--order", "Kopie", "--assembly", "Vse"});
    ASSERT_EQ(import.kod, 0) << import.err.toStdString();
    const QJsonObject zpet = json({"order-dump", "Kopie"}).object();
    EXPECT_EQ(kusy(zpet, false), kusy(demo, true));
    EXPECT_EQ(zpet[QStringLiteral("hrany")].toArray().size(), demo[QStringLiteral("hrany")].toArray().size()); // no band made anew
}
