// Whatever the mode, kerf, trim and grain: every placed board lies inside its sheet, no two
// boards on a sheet overlap (with the kerf between them), a grain board is never turned, and
// every board that fits a sheet is placed. Checked on seeded random orders with many ties.
#include "PlanTest.h"

#include <QRandomGenerator>

namespace {

struct Pripad {
    ZpusobNP zpusob;
    const char* srez;
    bool vzor;
};

struct Obdelnik {
    double x0, y0, x1, y1;
};

} // namespace

class PlatnostPlanu : public PlanTest, public ::testing::WithParamInterface<Pripad> {};

INSTANTIATE_TEST_SUITE_P(
    Rezimy, PlatnostPlanu,
    ::testing::Values(Pripad{ZpusobNP::PodelneRezy, "4", false}, Pripad{ZpusobNP::PodelneRezy, "0", true},
                      Pripad{ZpusobNP::PricneRezy, "4", true}, Pripad{ZpusobNP::PricneRezy, "0", false},
                      Pripad{ZpusobNP::Kombinovane, "4", false}, Pripad{ZpusobNP::Kombinovane, "0", true},
                      Pripad{ZpusobNP::Kombinovane, "0", false}),
    [](const auto& info) { return "p" + std::to_string(info.index); });

TEST_P(PlatnostPlanu, DeskyLeziVTabuliANeprekryvajiSe)
{
    const Pripad p = GetParam();
    nastav("Srez", p.srez);
    const double srez = QString::fromLatin1(p.srez).toDouble() * 10;
    for (quint32 seme = 1; seme <= 3; ++seme) {
        QRandomGenerator nahoda(seme * 7919 + quint32(p.zpusob));
        std::vector<DeskaTest> desky;
        const double rozmery[] = {100, 150, 200, 300, 400, 450, 600};
        for (int i = 0; i < 14; ++i)
            desky.push_back({QStringLiteral("d%1").arg(i), rozmery[nahoda.bounded(7)], rozmery[nahoda.bounded(7)],
                             1 + int(nahoda.bounded(3)), p.vzor && nahoda.bounded(2) == 1});
        const QString nazev = QStringLiteral("Z%1").arg(seme);
        zakazka(1000, 700, p.vzor, desky, nazev);
        const QJsonObject plan = spust(p.zpusob, 0, nazev);

        std::map<int, std::vector<Obdelnik>> naTabuli;
        for (const QJsonValue& v : plan["SoupisDesek"].toArray()) {
            const QJsonObject d = v.toObject();
            ASSERT_EQ(d["ID"].toInt(), -1) << "deska " << d["Oznaceni"].toString().toStdString() << " zůstala";
            const bool otoc = d["OTOC"].toInt() != 0;
            EXPECT_FALSE(otoc && d["OV"].toInt() != 0);
            const double w = otoc ? d["y"].toDouble() : d["x"].toDouble();
            const double h = otoc ? d["x"].toDouble() : d["y"].toDouble();
            const Obdelnik o{d["XD"].toDouble(), d["YD"].toDouble(), d["XD"].toDouble() + w, d["YD"].toDouble() + h};
            EXPECT_GE(o.x0, srez);
            EXPECT_GE(o.y0, srez);
            EXPECT_LE(o.x1, 10000);
            EXPECT_LE(o.y1, 7000);
            for (const Obdelnik& jiny : naTabuli[d["tabule"].toInt()])
                EXPECT_TRUE(o.x1 + srez <= jiny.x0 || jiny.x1 + srez <= o.x0 || o.y1 + srez <= jiny.y0 ||
                            jiny.y1 + srez <= o.y0)
                    << "překryv na tabuli " << d["tabule"].toInt();
            naTabuli[d["tabule"].toInt()].push_back(o);
        }
        EXPECT_EQ(int(naTabuli.size()), plan["SoupisTabuli"].toArray().size());
    }
}
