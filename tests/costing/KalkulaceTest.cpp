// Costing: the rounding of the old Format, the discounts, the demo order priced by hand, and the
// cut lengths kept for the price panels.
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "catalogues/Sklad.h"
#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "costing/Kalkulace.h"
#include "costing/KalkulaceZakazkyVypis.h"
#include "costing/Rezani.h"
#include "core/Zaokrouhleni.h"
#include "exchange/ZakazkaJson.h"

#include <QFile>

TEST(Zaokrouhleni, PolovinaOdNulyZPatnactiCifer)
{
    EXPECT_EQ(Zaokrouhli(0.125, 2), 0.13);
    EXPECT_EQ(Zaokrouhli(12.35 * 0.5, 2), 6.18); // prints 6.175
    EXPECT_EQ(Zaokrouhli(-0.125, 2), -0.13);
    EXPECT_EQ(Zaokrouhli(0.0009, 2), 0);
    EXPECT_EQ(Zaokrouhli(0.4032, 2), 0.4);
    EXPECT_EQ(Zaokrouhli(1194.998, 2), 1195);
    EXPECT_EQ(Sleva(QStringLiteral("6.5")), 6);
    EXPECT_EQ(Sleva(QStringLiteral("7.5")), 8);
    EXPECT_EQ(Sleva(QString()), 0);
}

class KalkulaceTest : public NastavenyDomov {
protected:
    void SetUp() override
    {
        NastavenyDomov::SetUp();
        ZakazkaJson::nacti(uloziste().dataS(), demoJson());
    }
};

// Dřez80, one piece: boards 0.40 m2 x 2 + 0.43 + 0.08 x 2 + 0.28 x 2 at 350 = 682.50;
// accessories 100 + 90 + 48 = 238; band 12.50/m with 2 mm overhang: bok 2 x 0.724 (18.10),
// dno 0.768 (9.60), dvířka both X sides 4 x 0.720 (36.00) and both Y sides 4 x 0.400 (20.00);
// 1004.20 without VAT, 1195.00 with 19 %.
TEST_F(KalkulaceTest, CenaKusuSestavyAZakazkySDPH)
{
    const Kalkulace::Ceny c = Kalkulace::ZobrazCeny(uloziste(), QStringLiteral("Kuchyně Novák"), QStringLiteral("Dřez80"));
    EXPECT_EQ(c.sestava, QStringLiteral("1195.00 Kč"));
    EXPECT_FALSE(uloziste().maDataK());
    uloziste().ObnovPracovniDatabazi();
    Database& k = uloziste().dataK();
    Kalkulace::NaplnKalkulaciSestav(k, QStringLiteral("Kuchyně Novák"), {QStringLiteral("Dřez80")});
    Recordset dvirka(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE Oznaceni = 'dvířka (716 mm x 396 mm)' ORDER BY cislo"));
    ASSERT_EQ(dvirka.recordCount(), 3); // the board, its X sides, its Y sides
    dvirka.moveNext();
    EXPECT_EQ(dvirka.cislo(QStringLiteral("mnozstvi")), 4);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("delka")), 0.72);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("Cena")), 36);
    EXPECT_EQ(k.hodnota(QStringLiteral("SELECT sum(Cena) FROM SoupisProKalkulaciCelkem WHERE Sestava = 'Dřez80'")).toDouble(), 1004.2);
    // a discount on sheet material reaches the boards and the X sides of bands only
    Nastaveni::SaveSetting(QStringLiteral("Setting"), QStringLiteral("SlevaPM"), QStringLiteral("10"));
    Kalkulace::NaplnKalkulaciSestav(k, QStringLiteral("Kuchyně Novák"), {QStringLiteral("Dřez80")});
    Recordset bok(k, QStringLiteral("SELECT * FROM SoupisProKalkulaci WHERE Oznaceni = 'bok (720 mm x 560 mm)' ORDER BY cislo"));
    EXPECT_EQ(bok.cislo(QStringLiteral("JC")), 315);
    bok.moveNext();
    EXPECT_EQ(bok.cislo(QStringLiteral("JC")), 11.25);
    uloziste().zavriDataK();
}

// The whole demo order: one band per material although its boards come from four assemblies,
// the accessories, the tax summary by subtraction (4254.04 x 1.19 = 5062.3076 -> 5062.31; tax
// 808.27), and on every page the title and "Strana  p / n".
TEST_F(KalkulaceTest, VypisKalkulaceZakazky)
{
    uloziste().ObnovPracovniDatabazi();
    Database& k = uloziste().dataK();
    Kalkulace::NaplnKalkulaciZakazky(k, QStringLiteral("Kuchyně Novák"));
    Dokument d;
    const Vypis::Dan dan = KalkulaceZakazkyVypis(d, k, QStringLiteral("Kuchyně Novák"), {QStringLiteral("Dřez80 ( 1 ks )")});
    EXPECT_EQ(Vypis::castka(dan.celkem), QStringLiteral("5062.31"));
    EXPECT_EQ(Vypis::castka(dan.dph), QStringLiteral("808.27"));
    const QStringList t = texty<OpTextBox>(d);
    EXPECT_EQ(t.count(QStringLiteral("DTD bílá 18 (2800mm x 2070mm)")), 1);
    EXPECT_EQ(t.count(QStringLiteral("ABS bílá 2")), 1);
    EXPECT_EQ(t.count(QStringLiteral("Příslušenství:")), 1);
    EXPECT_TRUE(t.contains(QStringLiteral("Celkem včetně DPH")));
    EXPECT_TRUE(t.contains(QStringLiteral("5062.31 Kč")));
    EXPECT_TRUE(t.contains(QStringLiteral("DPH ( 19% )")));
    ASSERT_EQ(d.PageCount(), 2);
    for (int p = 1; p <= 2; ++p) {
        EXPECT_TRUE(texty<OpTextBox>(d, p).contains(QStringLiteral("K A L K U L A C E")));
        EXPECT_TRUE(texty<OpTextBox>(d, p).contains(QStringLiteral("Strana  %1 / 2").arg(p)));
        EXPECT_TRUE(texty<OpTextBox>(d, p).contains(QStringLiteral("Dřez80 ( 1 ks )")));
    }
    // A band's count prints as it stands, a board's as a whole number.
    EXPECT_TRUE(t.contains(QStringLiteral("2 ks")));
    uloziste().zavriDataK();
}

namespace {

// The demo kitchen's metres of cut (one format), measured now or taken from pamet.
double metru(Uloziste& u, Rezani::Pamet* pamet)
{
    const auto v = Rezani::zakazky(u, QStringLiteral("Kuchyně Novák"), {}, pamet);
    EXPECT_EQ(v.size(), 1u);
    return v.empty() ? 0 : v[0].metru;
}

} // namespace

// The first-run settings price the cutting. A kept length stands until the order's lengths are
// dropped; a change of the trim or of the offcuts a plan takes measures again by itself.
TEST_F(KalkulaceTest, DelkaRezuPlatiDokudSeZakazkaANastaveniNezmeni)
{
    Rezani::Pamet pamet;
    const double puvodne = metru(uloziste(), &pamet);
    EXPECT_GT(puvodne, 0);
    // behind the cache's back, as another window or the command line would
    uloziste().dataS().executeSqlite(QStringLiteral("UPDATE Zakazky SET Pocet = 4 WHERE Oznaceni = 'sokl'"));
    const double nove = metru(uloziste(), nullptr);
    ASSERT_NE(nove, puvodne);
    EXPECT_EQ(metru(uloziste(), &pamet), puvodne);
    pamet.zahod(QStringLiteral("KUCHYNĚ NOVÁK")); // order names compare case-blind
    EXPECT_EQ(metru(uloziste(), &pamet), nove);

    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Samovani"), QStringLiteral("10"));
    const double seSamovanim = metru(uloziste(), nullptr);
    ASSERT_NE(seSamovanim, nove); // a narrower sheet, another plan
    EXPECT_EQ(metru(uloziste(), &pamet), seSamovanim);
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("POdrezky"), QStringLiteral("1"));
    EXPECT_EQ(metru(uloziste(), &pamet), seSamovanim); // no offcuts stored: the same plan
    Sklad::pridej(uloziste().dataS(), {{QStringLiteral("DTD bílá 18"), 1300, 800, 1}});
    EXPECT_EQ(metru(uloziste(), &pamet), metru(uloziste(), nullptr));
    EXPECT_NE(metru(uloziste(), &pamet), seSamovanim);
}
