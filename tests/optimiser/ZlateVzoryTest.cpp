// Plans of seeded random orders (sizes with many ties, grain or none, kerf 0 and 4, trim on and
// off, offcuts, a plan variant) against the dumps kept in cases/: any change in a query's
// order, a tie-break, a numbering or a field written shows here. TRUHLAR_NOVE_VZORY=1 rewrites
// the dumps (only after checking the change by hand).
#include "PlanTest.h"

#include "core/Recordset.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QRandomGenerator>

namespace {

struct Vzor {
    ZpusobNP zpusob;
    const char* srez;
    const char* zarovnani;
    bool vzor;
    bool odrezky;
    int volba;
};

std::string jmeno(const Vzor& v, size_t i)
{
    static const char* rezimy[] = {"podelne", "pricne", "kombinovane"};
    return std::string(rezimy[int(v.zpusob)]) + "_srez" + v.srez + "_zar" + v.zarovnani + (v.vzor ? "_vzor" : "") +
           (v.odrezky ? "_odrezky" : "") + (v.volba ? "_volba" : "") + "_" + std::to_string(i);
}

std::vector<Vzor> vzory()
{
    std::vector<Vzor> v;
    for (ZpusobNP z : {ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy, ZpusobNP::Kombinovane}) {
        v.push_back({z, "4", "1", false, false, 0});
        v.push_back({z, "0", "0", false, false, 0});
        v.push_back({z, "4", "0", true, false, 0});
        v.push_back({z, "0", "1", true, true, 0});
        v.push_back({z, "4", "1", true, false, 2});
    }
    return v;
}

} // namespace

class ZlateVzory : public PlanTest, public ::testing::WithParamInterface<Vzor> {};

INSTANTIATE_TEST_SUITE_P(Nahodne, ZlateVzory, ::testing::ValuesIn(vzory()),
                         [](const auto& info) { return jmeno(info.param, info.index); });

TEST_P(ZlateVzory, PlanSeShodujeSeVzorem)
{
    const Vzor v = GetParam();
    nastav("Srez", v.srez);
    nastav("ZarovnaniFormatu", v.zarovnani);
    QRandomGenerator nahoda(quint32(qHash(QString::fromStdString(jmeno(v, 0)), 0)));
    if (v.odrezky) {
        nastav("POdrezky", "1");
        odrezek(600, 400, 2);
        odrezek(500, 700, 1);
    }
    const double rozmery[] = {150, 200, 250, 300, 400, 450, 500, 700};
    std::vector<DeskaTest> desky;
    for (int i = 0; i < 12; ++i)
        desky.push_back({QStringLiteral("d%1").arg(i, 2, 10, QLatin1Char('0')), rozmery[nahoda.bounded(8)],
                         rozmery[nahoda.bounded(8)], 1 + int(nahoda.bounded(3)), v.vzor && nahoda.bounded(3) == 0,
                         QStringLiteral("S%1").arg(nahoda.bounded(2)), 1 + int(nahoda.bounded(2))});
    zakazka(1200, 800, v.vzor, desky);
    const QByteArray plan = QJsonDocument(spust(v.zpusob, v.volba)).toJson(QJsonDocument::Compact);

    const QString soubor = QStringLiteral(TRUHLAR_VZORY "/%1.json").arg(QString::fromStdString(jmeno(v, 0)));
    if (qEnvironmentVariableIsSet("TRUHLAR_NOVE_VZORY")) {
        QDir().mkpath(QStringLiteral(TRUHLAR_VZORY));
        QFile f(soubor);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(plan);
        return;
    }
    QFile f(soubor);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << soubor.toStdString();
    EXPECT_EQ(QJsonDocument::fromJson(f.readAll()).object(), QJsonDocument::fromJson(plan).object());
}
