#pragma once
// A fixture for plan runs: an order written straight into DataS, the settings a case needs,
// a run, and the working tables it leaves.
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "optimiser/PlanRun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <ostream>

struct DeskaTest {
    QString oznaceni;
    double x, y;
    int pocet = 1;
    bool ov = false;
    QString sestava = QStringLiteral("S1");
    int kusuSestavy = 1;
};

// Row i of a working table in the output of PlanTest::spust; the named fields of a row, to
// compare in one go.
inline QJsonObject radek(const QJsonObject& plan, const char* tabulka, int i)
{
    return plan.value(QLatin1String(tabulka)).toArray().at(i).toObject();
}
inline QJsonObject pole(const QJsonObject& radek, const QStringList& klice)
{
    QJsonObject v;
    for (const QString& k : klice)
        v.insert(k, radek.value(k));
    return v;
}

// A failed comparison of rows shows them as JSON.
inline void PrintTo(const QJsonObject& o, std::ostream* os)
{
    *os << QJsonDocument(o).toJson(QJsonDocument::Compact).toStdString();
}

class PlanTest : public DomovTest {
protected:
    void SetUp() override;

    // The order "Z" with one format (ID 5000001) of the given size in mm, and its boards.
    void zakazka(double x, double y, bool ov, const std::vector<DeskaTest>& desky,
                 const QString& nazev = QStringLiteral("Z"));
    void nastav(const char* klic, const char* hodnota); // a key of Setting2
    void odrezek(double x, double y, int pocet, const QString& material = QStringLiteral("DTD")); // into the store
    QJsonObject spust(ZpusobNP zpusob, int volba = 0, const QString& nazev = QStringLiteral("Z"));

    SkriptovanyPrompt prompt;
};
