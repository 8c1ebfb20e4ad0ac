// Orders, assemblies, formats, bands and boards: the header-row rules, the refusals with their
// messages, the twin merge, and that a refusal writes nothing.
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "orders/Desky.h"
#include "orders/Materialy.h"
#include "orders/Strom.h"
#include "orders/Zakazky.h"
#include "orders/Vyber.h"
#include "core/Jednotky.h"

namespace {
int radku(Database& db, const QString& kde = QString())
{
    return db.hodnota(QStringLiteral("SELECT count(*) FROM Zakazky ") + kde).toInt();
}
}

class Objednavky : public DomovTest {
protected:
    Database& db() { return uloziste().dataS(); }
    SkriptovanyPrompt p;
};

TEST_F(Objednavky, HlavickoveRadkyZakazkyASestavy)
{
    ASSERT_TRUE(Zakazky::UlozitNovouZakazku(db(), p, QStringLiteral("Novák's"), QStringLiteral("kuchyň")));
    EXPECT_EQ(radku(db()), 1);
    EXPECT_FALSE(Zakazky::UlozitNovouZakazku(db(), p, QStringLiteral("NOVÁK'S"), QString()));
    EXPECT_EQ(p.zpravy.last(), QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!"));
    // the first assembly takes over the header row, the second adds one
    ASSERT_TRUE(Zakazky::UlozitNovouSestavu(db(), p, QStringLiteral("Novák's"), {QStringLiteral("S1"), QString(), 2, 0}));
    EXPECT_EQ(radku(db()), 1);
    ASSERT_TRUE(Zakazky::UlozitNovouSestavu(db(), p, QStringLiteral("Novák's"), {QStringLiteral("S2"), QString(), 1, 0}));
    EXPECT_EQ(radku(db()), 2);
    EXPECT_FALSE(Zakazky::UlozitNovouSestavu(db(), p, QStringLiteral("Novák's"), {QStringLiteral("s1"), QString(), 1, 0}));
    const auto strom = NaplnitStrom(db());
    ASSERT_EQ(strom.size(), 1u);
    EXPECT_EQ(strom[0].sestavy[0].text(), QStringLiteral("S1 ( 2 ks )"));
    // deleting the only assembly left leaves the order with its header row
    p.odpovez(Prompt::Odpoved::Ano);
    p.odpovez(Prompt::Odpoved::Ano);
    ASSERT_TRUE(Zakazky::SmazatSestavu(db(), p, QStringLiteral("Novák's"), QStringLiteral("S1")));
    ASSERT_TRUE(Zakazky::SmazatSestavu(db(), p, QStringLiteral("Novák's"), QStringLiteral("S2")));
    EXPECT_EQ(radku(db()), 1);
    EXPECT_TRUE(NaplnitStrom(db())[0].sestavy.empty());
}

TEST_F(Objednavky, DeskyPojmenovaniPrevzetiHlavickyAVraceni)
{
    Zakazky::UlozitNovouZakazku(db(), p, QStringLiteral("Z"), QString());
    Materialy::UlozitNovyFormat(db(), QStringLiteral("Z"), {0, QStringLiteral("DTD"), 2800, 2070, false, 350});
    const double f = Materialy::formaty(db(), QStringLiteral("Z"))[0].ID;
    Zakazky::UlozitNovouSestavu(db(), p, QStringLiteral("Z"), {QStringLiteral("S"), QStringLiteral("popis"), 3, 0});
    Desky::Deska d{QString(), 720, 560, 2, false, f};
    EXPECT_EQ(Desky::UlozitNovyPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), d), QStringLiteral("deska 1"));
    EXPECT_EQ(radku(db()), 1); // took over the header row
    EXPECT_EQ(Desky::UlozitNovyPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), d), QStringLiteral("deska 2"));
    d.oznaceni = QStringLiteral("DESKA 1");
    EXPECT_TRUE(Desky::UlozitNovyPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), d).isNull());
    EXPECT_EQ(p.zpravy.last(), QStringLiteral("Název desky již v sestavě existuje"));
    const auto grid = Desky::NaplnitGridPM(db(), QStringLiteral("Z"), QStringLiteral("S"));
    ASSERT_EQ(grid.size(), 2u);
    EXPECT_EQ(grid[0].format, QStringLiteral("DTD (2800 mm x 2070 mm)"));
    p.odpovez(Prompt::Odpoved::Ano);
    p.odpovez(Prompt::Odpoved::Ano);
    Desky::SmazatPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("deska 1"));
    Desky::SmazatPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("deska 2"));
    Recordset h(db(), QStringLiteral("Zakazky"));
    ASSERT_EQ(h.recordCount(), 1);
    EXPECT_EQ(h.text(QStringLiteral("Oznaceni")), QString());
    EXPECT_EQ(h.cislo(QStringLiteral("pocetelementuVsestave")), 3);
    EXPECT_EQ(h.text(QStringLiteral("popis")), QStringLiteral("popis"));
}

TEST_F(Objednavky, SlouceniDvojcetFormatuAFormatVPouzitiNejdeSmazat)
{
    Zakazky::UlozitNovouZakazku(db(), p, QStringLiteral("Z"), QString());
    Materialy::UlozitNovyFormat(db(), QStringLiteral("Z"), {0, QStringLiteral("DTD"), 2800, 2070, false, 350});
    Razitko::nastavHodiny([] { return QDateTime(QDate(2026, 3, 5), QTime(10, 0, 5)); });
    Materialy::UlozitNovyFormat(db(), QStringLiteral("Z"), {0, QStringLiteral("DTD 2"), 2800, 2070, false, 350});
    auto f = Materialy::formaty(db(), QStringLiteral("Z"));
    ASSERT_EQ(f.size(), 2u);
    Zakazky::UlozitNovouSestavu(db(), p, QStringLiteral("Z"), {QStringLiteral("S"), QString(), 1, 0});
    Desky::UlozitNovyPM(db(), p, QStringLiteral("Z"), QStringLiteral("S"), {QStringLiteral("bok"), 720, 560, 1, false, f[1].ID});
    // the edited second format becomes the twin of the first: merged, its boards follow
    Materialy::Material m = f[1];
    m.nazev = QStringLiteral("DTD");
    p.odpovez(Prompt::Odpoved::Ano);
    EXPECT_EQ(Materialy::UlozitUpravuFormatu(db(), p, QStringLiteral("Z"), m), Materialy::Uprava::Slouceno);
    EXPECT_EQ(Materialy::formaty(db(), QStringLiteral("Z")).size(), 1u);
    EXPECT_EQ(Desky::nacti(db(), QStringLiteral("Z"), QStringLiteral("S"), QStringLiteral("bok")).idFormat, f[0].ID);
    p.odpovez(Prompt::Odpoved::Ano);
    EXPECT_FALSE(Materialy::SmazatFormat(db(), p, QStringLiteral("Z"), f[0]));
    EXPECT_EQ(p.zpravy.last(), QStringLiteral("Formát je použit v sestavách a proto ho není možné smazat !!!"));
    EXPECT_EQ(Materialy::idPodleTextu(db(), QStringLiteral("Z"), QStringLiteral("DTD (2800 mm x 2070 mm)"), false), f[0].ID);
}

TEST_F(Objednavky, PrejmenovaniZakazkyPresuneMaterialyASmazaniVseOdstrani)
{
    Zakazky::UlozitNovouZakazku(db(), p, QStringLiteral("A"), QStringLiteral("pozn"));
    Materialy::UlozitNovyFormat(db(), QStringLiteral("A"), {0, QStringLiteral("DTD"), 2800, 2070, false, 350});
    Materialy::UlozitNovouHranu(db(), QStringLiteral("A"), {0, QStringLiteral("ABS"), 0, 0, false, 12.5, 255, 2});
    ASSERT_TRUE(Zakazky::UlozitUpravuZakazky(db(), p, QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("nová")));
    EXPECT_EQ(Materialy::formaty(db(), QStringLiteral("B")).size(), 1u);
    EXPECT_EQ(Materialy::hrany(db(), QStringLiteral("B")).size(), 1u);
    EXPECT_EQ(Zakazky::poznamka(db(), QStringLiteral("B")), QStringLiteral("nová"));
    EXPECT_EQ(Materialy::textHrany(Materialy::hrany(db(), QStringLiteral("B"))[0]),
              QStringLiteral("ABS ( 12") + Jednotky::oddelovac() + QStringLiteral("5 - 2 ) "));
    p.odpovez(Prompt::Odpoved::Ne);
    EXPECT_FALSE(Zakazky::SmazatZakazku(db(), p, QStringLiteral("B")));
    p.odpovez(Prompt::Odpoved::Ano);
    ASSERT_TRUE(Zakazky::SmazatZakazku(db(), p, QStringLiteral("B")));
    EXPECT_EQ(radku(db()), 0);
    EXPECT_EQ(db().hodnota(QStringLiteral("SELECT count(*) FROM ZakazkyMaterialy")).toInt(), 0);
}

TEST(NahledDesky, UlozeniANahledPodlePoli)
{
    const std::vector<Materialy::Material> pasky = {{7, QStringLiteral("ABS"), 0, 0, false, 5, 0x0000FF, 1}};
    const QString hrany[4] = {QStringLiteral("ABS ( 5 - 1 ) "), QString(), QStringLiteral("jiná"), QString()};
    const Desky::Nahled n = Desky::NahledDesky(QStringLiteral("720 mm"), QStringLiteral("560"), QStringLiteral("1"),
                                               QStringLiteral("DTD (2800 mm x 2070 mm)"), hrany, pasky);
    EXPECT_TRUE(n.ulozit);
    EXPECT_TRUE(n.vykreslit);
    EXPECT_EQ(n.barvy[0], 0x0000FF);
    EXPECT_FALSE(n.barvy[1] || n.barvy[2]);
    EXPECT_FALSE(Desky::NahledDesky(QString(), QStringLiteral("560"), QStringLiteral("1"), QStringLiteral("x"), hrany, pasky).vykreslit);
    EXPECT_FALSE(Desky::NahledDesky(QStringLiteral("1"), QStringLiteral("560"), QStringLiteral("1"), QString(), hrany, pasky).ulozit);
}

TEST(Vyber, ZakazkaPredSestavouAJenPriZmene)
{
    Vyber v;
    QStringList udalosti;
    QObject::connect(&v, &Vyber::zmenaZakazky, [&](const QString& z) { udalosti << QStringLiteral("Z:") + z; });
    QObject::connect(&v, &Vyber::zmenaSestavy, [&](const QString& s) { udalosti << QStringLiteral("S:") + s; });
    v.setTxtzakazka(QStringLiteral("A"));
    v.setTxtzakazka(QStringLiteral("A"));
    v.setTxtSestava(QStringLiteral("S1"));
    v.obnov(QStringLiteral("A"), QStringLiteral("S1"));
    EXPECT_EQ(udalosti, QStringList({"Z:A", "S:S1", "Z:A", "S:S1"}));
}

// Apostrophes in every kind of name, and a band deleted although in use: the board keeps an ID
// that no band has, so its combo shows blank.
TEST_F(Objednavky, ApostrofyVsudeASmazanaHranaVPouziti)
{
    const QString z = QStringLiteral("O'Neill"), s = QStringLiteral("S'1");
    ASSERT_TRUE(Zakazky::UlozitNovouZakazku(db(), p, z, QStringLiteral("it's")));
    ASSERT_TRUE(Materialy::UlozitNovyFormat(db(), z, {0, QStringLiteral("DTD 'bílá'"), 2800, 2070, false, 350}));
    ASSERT_TRUE(Materialy::UlozitNovouHranu(db(), z, {0, QStringLiteral("ABS 'b'"), 0, 0, false, 12.5, 255, 2}));
    ASSERT_TRUE(Zakazky::UlozitNovouSestavu(db(), p, z, {s, QStringLiteral("d'"), 1, 0}));
    const auto f = Materialy::formaty(db(), z)[0];
    const auto h = Materialy::hrany(db(), z)[0];
    Desky::Deska d{QStringLiteral("bok 'L'"), 720, 560, 1, false, f.ID, {h.ID, 0, 0, 0}};
    ASSERT_EQ(Desky::UlozitNovyPM(db(), p, z, s, d), QStringLiteral("bok 'L'"));
    EXPECT_EQ(Materialy::idPodleTextu(db(), z, Materialy::textFormatu(f), false), f.ID);
    EXPECT_EQ(Desky::NaplnitGridPM(db(), z, s)[0].deska.hrany[0], h.ID);
    p.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(Materialy::SmazatHranu(db(), p, z, h)); // allowed although in use
    EXPECT_EQ(p.zpravy.size(), 1);
    EXPECT_EQ(Desky::nacti(db(), z, s, QStringLiteral("bok 'L'")).hrany[0], h.ID);
    EXPECT_TRUE(Materialy::hrany(db(), z).empty()); // so no combo text names it: blank
    ASSERT_TRUE(Zakazky::UlozitUpravuSestavy(db(), p, z, s, {QStringLiteral("T'2"), QString(), 2, 0}));
    EXPECT_EQ(Desky::NaplnitGridPM(db(), z, QStringLiteral("T'2")).size(), 1u);
}
