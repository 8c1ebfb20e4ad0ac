// Accessories: header take-over and give-back, both duplicate refusals, an edit keeping its
// stamp, three decimals through the grid's text, the number checks.
#include "orders/Prislusenstvi.h"
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Razitko.h"
#include "core/Recordset.h"

namespace {

class PrislusenstviTest : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        db().execute(QStringLiteral("INSERT INTO Zakazky (Zakazka, Sestava, Oznaceni, popis, pocetelementuVsestave, schema, cas) "
                                    "VALUES ('Z', 'Skříň', '', 'dub', 2, 7, 1)"));
    }
    Database& db() { return uloziste().dataS(); }
    bool uloz(const QString& nazev, const QString& pocet, const QString& cena, bool uprava = false)
    {
        return Prislusenstvi::UlozitPrislusenstvi(db(), prompt, uprava, QStringLiteral("Z"), QStringLiteral("Skříň"),
                                                  {nazev, pocet, QStringLiteral("ks"), cena});
    }
    std::vector<Prislusenstvi::Polozka> grid()
    {
        return Prislusenstvi::NaplnitGridPR(db(), QStringLiteral("Z"), QStringLiteral("Skříň"));
    }
    int radku() { return db().hodnota(QStringLiteral("SELECT count(*) FROM Zakazky")).toInt(); }
    SkriptovanyPrompt prompt;
};

} // namespace

TEST_F(PrislusenstviTest, PrvniPrevezmeHlavickuPosledniJiVrati)
{
    ASSERT_TRUE(uloz(QStringLiteral("pant 'Blum'"), QStringLiteral("4"), QStringLiteral("25,5")));
    EXPECT_EQ(radku(), 1);
    Razitko::nastavHodiny([] { return QDateTime(QDate(2026, 3, 5), QTime(10, 5)); });
    ASSERT_TRUE(uloz(QStringLiteral("šroub"), QStringLiteral("2.125"), QStringLiteral("0")));
    EXPECT_EQ(radku(), 2);
    const Recordset druhy(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Oznaceni = 'šroub'"));
    EXPECT_EQ(druhy.text(QStringLiteral("popis")), QStringLiteral("dub"));
    EXPECT_EQ(druhy.cislo(QStringLiteral("schema")), 7);
    EXPECT_EQ(druhy.cislo(QStringLiteral("IDFormat")), 1);
    const auto g = grid();
    ASSERT_EQ(g.size(), 2u);
    EXPECT_EQ(g[0].oznaceni, QStringLiteral("pant 'Blum'"));
    EXPECT_EQ(Prislusenstvi::textMnozstvi(g[1]).remove(QLatin1Char(',')).remove(QLatin1Char('.')), QStringLiteral("2125 ks"));

    prompt.odpovez(Prompt::Odpoved::Ano);
    ASSERT_TRUE(Prislusenstvi::SmazatPrislusenstvi(db(), prompt, QStringLiteral("Z"), QStringLiteral("Skříň"),
                                                   QStringLiteral("pant 'Blum'")));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Chcete odstranit toto příslušenství - pant 'Blum' - ?"));
    prompt.odpovez(Prompt::Odpoved::Ano);
    ASSERT_TRUE(
        Prislusenstvi::SmazatPrislusenstvi(db(), prompt, QStringLiteral("Z"), QStringLiteral("Skříň"), QStringLiteral("šroub")));
    EXPECT_EQ(radku(), 1);
    const Recordset hlavicka(db(), QStringLiteral("Zakazky"));
    EXPECT_EQ(hlavicka.text(QStringLiteral("Oznaceni")), QString());
    EXPECT_EQ(hlavicka.cislo(QStringLiteral("IDFormat")), 1);
    EXPECT_EQ(hlavicka.text(QStringLiteral("jednotka")), QStringLiteral("ks"));
    EXPECT_EQ(hlavicka.cislo(QStringLiteral("Pocet")), 0);
    EXPECT_EQ(grid().size(), 1u); // an empty item until the next one takes it over
    ASSERT_TRUE(uloz(QStringLiteral("madlo"), QStringLiteral("1"), QStringLiteral("90")));
    EXPECT_EQ(radku(), 1);
}

TEST_F(PrislusenstviTest, DuplicityUpravaAChybnaCisla)
{
    ASSERT_TRUE(uloz(QStringLiteral("pant"), QStringLiteral("4"), QStringLiteral("25")));
    Razitko::nastavHodiny([] { return QDateTime(QDate(2026, 3, 5), QTime(11, 0)); });
    ASSERT_TRUE(uloz(QStringLiteral("úchytka"), QStringLiteral("2"), QStringLiteral("40")));
    EXPECT_FALSE(uloz(QStringLiteral("PANT"), QStringLiteral("1"), QStringLiteral("1")));
    EXPECT_EQ(prompt.zpravy.last(),
              QStringLiteral("Příslušenství v sestavě již pod tímto názvem existuje, zadejte jiný název !!!"));
    for (const auto& [pocet, cena] : {std::pair("0", "1"), {"-1", "1"}, {"x", "1"}, {"1", "-0.01"}, {"1", "cena"}, {"1", ""}}) {
        EXPECT_FALSE(uloz(QStringLiteral("nový"), QLatin1String(pocet), QLatin1String(cena)));
        EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Zadejte množství a cenu číslem."));
    }
    EXPECT_FALSE(uloz(QString(101, QLatin1Char('x')), QStringLiteral("1"), QStringLiteral("1")));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Název nového příslušenstvi smí obsahovat maximálně 100 znaků!!!"));

    const auto p =
        Prislusenstvi::UpravitPrislusenstvi(db(), QStringLiteral("Z"), QStringLiteral("Skříň"), QStringLiteral("pant"));
    EXPECT_EQ(p.cena, 25);
    EXPECT_EQ(Nastaveni::GetSetting(QStringLiteral("Editor"), QStringLiteral("Prislusenstvi")), QStringLiteral("pant"));
    EXPECT_EQ(Nastaveni::GetSetting(QStringLiteral("Editor"), QStringLiteral("CenaPrislusenstvi")), QStringLiteral("25"));
    EXPECT_FALSE(uloz(QStringLiteral("Úchytka"), QStringLiteral("1"), QStringLiteral("1"), true));
    EXPECT_EQ(prompt.zpravy.last(),
              QStringLiteral("Příslušenstvi v sestavě již pod tímto názvem existuje, zadejte jiný nazev !!!"));
    ASSERT_TRUE(uloz(QStringLiteral("pant"), QStringLiteral("6"), QStringLiteral("30"), true));
    ASSERT_TRUE(uloz(QStringLiteral("pant tichý"), QStringLiteral("6"), QStringLiteral("30"), true));
    const auto g = grid();
    ASSERT_EQ(g.size(), 2u);
    EXPECT_EQ(g[0].oznaceni, QStringLiteral("pant tichý")); // its stamp kept: still first
    EXPECT_EQ(g[0].pocet, 6);
    EXPECT_EQ(radku(), 2);
}

TEST_F(PrislusenstviTest, PopisekCenyPodleJednotky)
{
    EXPECT_EQ(Prislusenstvi::popisekCeny(QStringLiteral("ks")), QStringLiteral("Kč/ks"));
    EXPECT_EQ(Prislusenstvi::popisekCeny(QStringLiteral("pár")), QStringLiteral("Kč/pár"));
    EXPECT_EQ(Prislusenstvi::popisekCeny(QStringLiteral("balení")), QStringLiteral("Kč/balení"));
    EXPECT_EQ(Prislusenstvi::popisekCeny(QStringLiteral("m2")), QStringLiteral("Kč/m2"));
    EXPECT_EQ(Prislusenstvi::popisekCeny(QStringLiteral("hod.")), QStringLiteral("Kč/bm"));
    EXPECT_EQ(Prislusenstvi::jednotky({"ks", "hod.", ""}), QStringList({"balení", "hod.", "pár(y)", "ks"}));
}
