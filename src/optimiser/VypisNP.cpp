#include "optimiser/VypisNP.h"

#include "core/Database.h"
#include "optimiser/PlanRun.h"

#include <QJsonArray>
#include <QLocale>
#include <QTextStream>
#include <cmath>

QJsonObject VypisNP(Database& dataK, const PlanRun& run)
{
    QJsonObject rezy;
    for (const auto& [tabule, pocet] : run.RezyNaTabuli())
        rezy.insert(QString::number(tabule), pocet);
    return {{QStringLiteral("SoupisDesek"), VypisTabulky(dataK, QStringLiteral("SoupisDesek"))},
            {QStringLiteral("SoupisTabuli"), VypisTabulky(dataK, QStringLiteral("SoupisTabuli"))},
            {QStringLiteral("SoupisZbytku"), VypisTabulky(dataK, QStringLiteral("SoupisZbytku"))},
            {QStringLiteral("RezyNaTabuli"), rezy},
            {QStringLiteral("warning"), run.varovani()}};
}

// Cuts are counted by the running sheet number, which is the sheet's CT.
static int rezy(const PlanRun& run, int ct)
{
    const auto it = run.RezyNaTabuli().find(ct);
    return it == run.RezyNaTabuli().end() ? 0 : it->second;
}

QString SouhrnNP(Database& dataK, const PlanRun& run)
{
    const int umisteno = dataK.hodnota(QStringLiteral("SELECT count(*) FROM SoupisDesek WHERE ID = True")).toInt();
    const int zbylo = dataK.hodnota(QStringLiteral("SELECT count(*) FROM SoupisDesek WHERE ID = False")).toInt();
    QString text;
    QTextStream out(&text);
    const auto tabule = dataK.prikaz(QStringLiteral(
        "SELECT NCT, Material, x, y, (SELECT sum(d.x * d.y) FROM SoupisDesek d "
        "WHERE d.ID <> 0 AND d.tabule = t.NCT), CT FROM SoupisTabuli t ORDER BY NCT"));
    int pocet = 0;
    QStringList radky;
    while (tabule->krok()) {
        ++pocet;
        const double plocha = tabule->sloupec(2).toDouble() * tabule->sloupec(3).toDouble();
        const double vyuziti = plocha > 0 ? 100.0 * tabule->sloupec(4).toDouble() / plocha : 0;
        radky << QStringLiteral("  tabule č. %1: %2 (%3 x %4 mm), využití %5 %, řezů %6")
                     .arg(tabule->sloupec(0).toInt())
                     .arg(tabule->sloupec(1).toString())
                     .arg(tabule->sloupec(2).toDouble() / 10)
                     .arg(tabule->sloupec(3).toDouble() / 10)
                     .arg(QLocale(QLocale::Czech).toString(vyuziti, 'f', 1))
                     .arg(rezy(run, tabule->sloupec(5).toInt()));
    }
    tabule->reset();
    out << QStringLiteral("Tabulí: %1, usazeno desek: %2, neusazeno: %3\n").arg(pocet).arg(umisteno).arg(zbylo);
    for (const QString& r : radky)
        out << r << '\n';
    out.flush();
    return text;
}
