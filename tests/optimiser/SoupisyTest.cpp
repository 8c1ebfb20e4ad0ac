// The sheet and board lists of a run, the renumbering, and what the run refuses.
#include "PlanTest.h"

#include "core/Recordset.h"

class Soupisy : public PlanTest {};

TEST_F(Soupisy, KopieDeskyNesouStejneCDeskyAFormatBezVzoruRusiOV)
{
    zakazka(2800, 2070, false, {{"bok", 720, 560, 3, true, "S1", 2}, {"dno", 500, 400, 1, true, "S1", 1}});
    const QJsonObject plan = spust(ZpusobNP::PodelneRezy);
    const QJsonArray desky = plan["SoupisDesek"].toArray();
    ASSERT_EQ(desky.size(), 7);
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(pole(desky[i].toObject(), {"CDesky", "OV", "x"}), (QJsonObject{{"CDesky", 1}, {"OV", 0}, {"x", 7200}})) << i;
    EXPECT_EQ(desky[6].toObject()["CDesky"].toInt(), 2);
}

TEST_F(Soupisy, OdrezkyPrvniOdNejmensihoYAPreskoceneZmiziVPrecislovani)
{
    nastav("POdrezky", "1");
    for (auto [x, y, pocet] : {std::tuple{500.0, 300.0, 1}, {400.0, 300.0, 1}, {900.0, 900.0, 0}})
        odrezek(x, y, pocet, QStringLiteral("dtd")); // matched blind to case
    zakazka(2800, 2070, false, {{"velka", 1000, 800}});
    TichyPrubeh prubeh;
    PlanRun run(uloziste(), prompt, prubeh);
    ASSERT_TRUE(run.SpustNP(QStringLiteral("Z"), 5000001, ZpusobNP::PodelneRezy));
    // the board fits neither offcut: both are passed over, the full sheet (CT 3) is the first
    Recordset tabule(uloziste().dataK(), QStringLiteral("SoupisTabuli"));
    ASSERT_EQ(tabule.recordCount(), 1);
    EXPECT_EQ(tabule.cislo(QStringLiteral("CT")), 3);
    EXPECT_EQ(tabule.cislo(QStringLiteral("NCT")), 1);
    Recordset deska(uloziste().dataK(), QStringLiteral("SoupisDesek"));
    EXPECT_EQ(deska.cislo(QStringLiteral("tabule")), 1);
}

TEST_F(Soupisy, PoradiOdrezkuVSoupisuTabuli)
{
    nastav("POdrezky", "1");
    odrezek(500, 300, 1);
    odrezek(400, 300, 1);
    zakazka(2800, 2070, false, {{"a", 350, 250}, {"b", 450, 250}});
    const QJsonObject plan = spust(ZpusobNP::PodelneRezy);
    // 400 x 300 is CT 1 and takes a; 500 x 300 is CT 2 and takes b
    EXPECT_EQ(radek(plan, "SoupisTabuli", 0)["x"].toDouble(), 4000);
    EXPECT_EQ(radek(plan, "SoupisTabuli", 1)["x"].toDouble(), 5000);
    EXPECT_EQ(plan["SoupisTabuli"].toArray().size(), 2);
}

TEST_F(Soupisy, FormatBezDeskyNemaCoNarezatAApostrofVJmenuProjde)
{
    const QString jmeno = QStringLiteral("Novák's kuchyň");
    zakazka(2800, 2070, false, {{"bok", 720, 560}}, jmeno);
    EXPECT_EQ(PlanRun::formatySDeskami(uloziste().dataS(), jmeno).size(), 1u);
    EXPECT_EQ(PlanRun::formatySDeskami(uloziste().dataS(), jmeno)[0].text, QStringLiteral("DTD ( 2800 x 2070 )"));
    const QJsonObject plan = spust(ZpusobNP::PodelneRezy, 0, jmeno);
    EXPECT_EQ(radek(plan, "SoupisDesek", 0)["ID"].toInt(), -1);

    TichyPrubeh prubeh;
    PlanRun run(uloziste(), prompt, prubeh);
    EXPECT_FALSE(run.SpustNP(QStringLiteral("jiná"), 5000001, ZpusobNP::PodelneRezy));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("V zakázce není co nařezat!!!!!"));
}

namespace {
class StopPoTabulkach : public Prubeh {
public:
    int volani = 0;
    void popisek(const QString&) override {}
    void hodnota(double) override {}
    bool prerusit() override { return ++volani >= 1; }
};
}

TEST_F(Soupisy, StornoBehemSoupisuTabuliZastaviPredSoupisemDesek)
{
    zakazka(2800, 2070, false, {{"bok", 720, 560}});
    StopPoTabulkach prubeh;
    PlanRun run(uloziste(), prompt, prubeh);
    EXPECT_FALSE(run.SpustNP(QStringLiteral("Z"), 5000001, ZpusobNP::PodelneRezy));
    EXPECT_TRUE(run.preruseno());
    EXPECT_TRUE(run.tabulky().desky.empty());
    EXPECT_EQ(run.tabulky().tabule.size(), 1000u);
    EXPECT_FALSE(uloziste().maDataK()); // a stopped run writes no plan
}

namespace {
// Records the bar; asks to stop once the run has placed a given number of boards.
class ZaznamPrubehu : public Prubeh {
public:
    std::vector<double> hodnoty;
    size_t stopPo = 0;
    void popisek(const QString&) override {}
    void hodnota(double h) override { hodnoty.push_back(h); }
    bool prerusit() override { return stopPo && hodnoty.size() > stopPo; }
};
}

TEST_F(Soupisy, PrubehRosteSKazdouDeskouAStornoNechaUsazeneJakJsou)
{
    std::vector<DeskaTest> desky;
    for (int i = 0; i < 60; ++i)
        desky.push_back({QStringLiteral("d%1").arg(i), 200.0 + 10 * (i % 13), 150.0 + 20 * (i % 7), 2});
    zakazka(2800, 2070, false, desky);
    {
        ZaznamPrubehu prubeh;
        PlanRun run(uloziste(), prompt, prubeh);
        ASSERT_TRUE(run.SpustNP(QStringLiteral("Z"), 5000001, ZpusobNP::Kombinovane));
        ASSERT_EQ(prubeh.hodnoty.size(), 121u); // the start and a step per board, not 100/(n+2)
        EXPECT_TRUE(std::is_sorted(prubeh.hodnoty.begin(), prubeh.hodnoty.end()));
        EXPECT_DOUBLE_EQ(prubeh.hodnoty.back(), 100);
    }
    ZaznamPrubehu prubeh;
    prubeh.stopPo = 30;
    PlanRun run(uloziste(), prompt, prubeh);
    EXPECT_FALSE(run.SpustNP(QStringLiteral("Z"), 5000001, ZpusobNP::Kombinovane));
    EXPECT_TRUE(run.preruseno());
    const auto usazeno = std::count_if(run.tabulky().desky.begin(), run.tabulky().desky.end(), [](const DeskaNP& d) { return d.ID; });
    EXPECT_GE(usazeno, 30);
    EXPECT_LT(usazeno, 120);
}
