// The workshop table and the reports of the calculation dialog, on a small order worked by hand.
//
// "Skříně 'U Jelena'", Lamino dub 400 Kč/m2, VAT 19 %, no discounts:
//   Čelo, 2 ks: dvířka 500 x 250 (four different bands), area 0.125 -> 0.13 m2, 52.00;
//               lišta 2000 x 30, both X sides on ABS dub 2, 0.06 m2, 24.00;
//               bands of one piece: X1 ABS dub 2 0.5 m 5.00, X2 abs dub 2 5.00, Y1 ABS černá
//               (overhang 1) 0.252 m 1.26, Y2 ABS šedá 0.25 m 2.00, lišta 2 x 2.0 m 40.00;
//               one piece 129.26, two 258.52.
//   Chodba, 1 ks: police 30 x 30 x 3 -> 0.00 m2 costs nothing, its Y1 band 3 x 0.03 m 0.90;
//               bok 700 x 300 x 5, 0.21 m2, 420.00, both X sides on ABS šedá 1: 10 x 0.7 m at
//               7.00 = 49.00; úchytka 2 x 45 = 90.00; one piece 559.90.
//   Base 818.42, with VAT 973.9198 -> 973.92, tax 155.50.
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "VzorkyObrazku.h"
#include "core/Database.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "costing/Kalkulace.h"
#include "costing/KalkulaceSestavVypis.h"
#include "costing/SoupisProDilnuVypis.h"
#include "costing/Rezani.h"
#include "costing/Vypisy.h"
#include "exchange/ZakazkaJson.h"

#include <QFile>

namespace {

const QString Jelen = QStringLiteral("Skříně 'U Jelena'");

} // namespace

class VypisyTest : public NastavenyDomov {
protected:
    void SetUp() override
    {
        NastavenyDomov::SetUp();
        ZakazkaJson::nacti(uloziste().dataS(), obsahSouboru(QStringLiteral(TRUHLAR_TESTDATA "/jelen.json")));
        uloziste().ObnovPracovniDatabazi();
    }
    void TearDown() override
    {
        uloziste().zavriDataK();
        DomovTest::TearDown();
    }
    Database& k() { return uloziste().dataK(); }

    // DataK is remade from the data at every report, as the window does
    VysledekVypisu vypis(DruhVypisu druh, Dokument& d, const QStringList& nazvy = {},
                         const std::vector<Rezani::Format>& rezani = {})
    {
        uloziste().ObnovPracovniDatabazi();
        return SestavVypis(druh, d, k(), uloziste().cenik(), Jelen, nazvy, nazvy, rezani);
    }

    void schema(int ide)
    {
        Recordset r(uloziste().cenik(), QStringLiteral("Schemata"), Recordset::Rozsah::Prvni);
        r.addNew();
        r.set(QStringLiteral("IDE"), ide);
        r.set(QStringLiteral("OBR"), vzorek("png", {60, 40}, Qt::gray));
        r.update();
    }
};

TEST_F(VypisyTest, SoupisProDilnuBarvyHranAKusy)
{
    Kalkulace::NaplnSoupisProDilnu(k(), Jelen);
    Recordset dvirka(k(), QStringLiteral("SELECT * FROM SoupisProDilnu WHERE Oznaceni = 'dvířka (500 mm x 250 mm)' ORDER BY cislo"));
    ASSERT_EQ(dvirka.recordCount(), 5); // the board and one row per band
    EXPECT_EQ(dvirka.cislo(QStringLiteral("BarvaVNPHX1")), 255);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("BarvaVNPHX2")), 65280);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("BarvaVNPHY2")), 8421504);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("mnozstvi")), 2); // 2 assemblies x 1
    EXPECT_EQ(dvirka.text(QStringLiteral("Material")), QStringLiteral("Lamino dub (2800 mm x 2070 mm)"));
    EXPECT_EQ(dvirka.text(QStringLiteral("jednotka")), QStringLiteral("ks"));
    dvirka.moveLast();
    EXPECT_EQ(dvirka.cislo(QStringLiteral("cislo")), 3);
    EXPECT_EQ(dvirka.cislo(QStringLiteral("mnozstvi")), 2); // two bands on the Y pair: pieces on each
    // one band on both X sides of the strip: one row, pieces doubled, its colour for the swatch
    Recordset lista(k(), QStringLiteral("SELECT * FROM SoupisProDilnu WHERE cislo = 2 and Oznaceni = 'lišta (2000 mm x 30 mm)'"));
    ASSERT_EQ(lista.recordCount(), 1);
    EXPECT_EQ(lista.cislo(QStringLiteral("mnozstvi")), 4);
    EXPECT_EQ(lista.cislo(QStringLiteral("delka")), 2);
    EXPECT_EQ(lista.cislo(QStringLiteral("BarvaHranyVNP")), 255);
    // only the chosen assembly
    Kalkulace::NaplnSoupisProDilnu(k(), Jelen, {QStringLiteral("Chodba")});
    EXPECT_EQ(Recordset(k(), QStringLiteral("SoupisProDilnu")).recordCount(), 5); // police, bok, úchytka, 2 bands
    EXPECT_TRUE(Recordset(k(), QStringLiteral("SELECT * FROM SoupisProDilnu WHERE Sestava = 'Čelo'")).eof());
}

TEST_F(VypisyTest, KalkulaceSestavANabidka)
{
    Dokument d;
    const VysledekVypisu v = vypis(DruhVypisu::Sestavy, d);
    ASSERT_EQ(v.sestavy.size(), 2u);
    EXPECT_EQ(v.sestavy[0].sestava, QStringLiteral("Čelo")); // Č after C in Czech order
    EXPECT_EQ(v.sestavy[1].sestava, QStringLiteral("Chodba")); // ch after h
    EXPECT_DOUBLE_EQ(v.sestavy[0].cena1ks, 129.26);
    EXPECT_DOUBLE_EQ(v.sestavy[0].cena, 258.52);
    EXPECT_DOUBLE_EQ(v.sestavy[1].cena, 559.9);
    EXPECT_EQ(Vypis::castka(v.dan->zaklad), QStringLiteral("818.42"));
    EXPECT_EQ(Vypis::castka(v.dan->celkem), QStringLiteral("973.92"));
    EXPECT_EQ(Vypis::castka(v.dan->dph), QStringLiteral("155.50"));
    const QStringList t = texty<OpTextBox>(d);
    EXPECT_TRUE(t.contains(QStringLiteral("KALKULACE SESTAV")));
    EXPECT_TRUE(t.contains(QStringLiteral("Čelo - 2 ks - čelní panel")));
    EXPECT_TRUE(t.contains(QStringLiteral("cena za 2 ks (bez DPH):")));
    EXPECT_TRUE(t.contains(QStringLiteral("258.52 Kč")));
    EXPECT_TRUE(operace<OpObrazek>(d).empty()); // schema 7 is not in the library

    schema(7);
    Dokument n;
    const VysledekVypisu q = vypis(DruhVypisu::Nabidka, n);
    EXPECT_EQ(operace<OpObrazek>(n).size(), 1u);
    const QStringList tn = texty<OpTextBox>(n);
    EXPECT_TRUE(tn.contains(QStringLiteral("CENOVÁ NABÍDKA")));
    EXPECT_TRUE(tn.contains(QStringLiteral("cena celkem za 2 ks (bez DPH):")));
    EXPECT_TRUE(tn.contains(QStringLiteral("49.12 Kč")));  // 258.52 x 0.19 = 49.1188
    EXPECT_TRUE(tn.contains(QStringLiteral("307.64 Kč"))); // 258.52 x 1.19 = 307.6388
    EXPECT_FALSE(tn.contains(QStringLiteral("Lamino dub (2800 mm x 2070 mm)"))); // no detail rows
    EXPECT_EQ(Vypis::castka(q.dan->celkem), QStringLiteral("973.92"));
}

// The cutting (10 m at the first-run 5 Kč) after the assemblies: in the assembly calculation its
// row and price, added to the base; in the quotation a block like an assembly's, its price, VAT
// and price with VAT, without the row of metres.
TEST_F(VypisyTest, RezaniVKalkulaciSestavANabidce)
{
    const std::vector<Rezani::Format> rezani{{QStringLiteral("Řezání Lamino dub (2800 mm x 2070 mm)"), 10}};
    for (DruhVypisu druh : {DruhVypisu::Sestavy, DruhVypisu::Nabidka}) {
        SCOPED_TRACE(int(druh));
        Dokument d;
        const VysledekVypisu v = vypis(druh, d, {}, rezani);
        EXPECT_EQ(Vypis::castka(v.dan->zaklad), QStringLiteral("868.42")); // 818.42 + 50.00
        const QStringList t = texty<OpTextBox>(d);
        EXPECT_TRUE(t.contains(QStringLiteral("Řezání")));
        EXPECT_TRUE(t.contains(QStringLiteral("cena za řezání (bez DPH):")));
        EXPECT_TRUE(t.contains(QStringLiteral("50.00 Kč")));
        const bool nabidka = druh == DruhVypisu::Nabidka;
        EXPECT_EQ(t.contains(rezani[0].material), !nabidka);
        EXPECT_EQ(t.contains(QStringLiteral("9.50 Kč")), nabidka);
        EXPECT_EQ(t.contains(QStringLiteral("59.50 Kč")), nabidka);
    }
}

// The purchase list: "ABS dub 2" and "abs dub 2" are one material; 7.000 m of band buys 8 m;
// 1.43 m2 of a 5.796 m2 sheet buys one sheet.
TEST_F(VypisyTest, NakupMaterialu)
{
    Dokument d;
    const VysledekVypisu v = vypis(DruhVypisu::Nakup, d);
    QMap<QString, QString> nakup;
    for (const PolozkaNakupu& p : v.nakup)
        nakup[p.material.toLower()] = p.nakup;
    EXPECT_EQ(nakup.size(), 6); // the sheet, five bands of which two merge, úchytka
    EXPECT_EQ(nakup.value(QStringLiteral("abs šedá 1")), QStringLiteral("8 m"));
    EXPECT_EQ(nakup.value(QStringLiteral("abs dub 2")), QStringLiteral("11 m")); // 1 + 1 + 8 + 0.09
    EXPECT_EQ(nakup.value(QStringLiteral("lamino dub (2800 mm x 2070 mm)")), QStringLiteral("1 tab. "));
    EXPECT_EQ(nakup.value(QStringLiteral("úchytka")), QStringLiteral("2.000 ks"));
    const Recordset dub(k(), QStringLiteral("SELECT * FROM SoupisProKalkulaciCelkem WHERE Material = 'ABS DUB 2'"));
    EXPECT_DOUBLE_EQ(dub.cislo(QStringLiteral("Cena")), 100.9);
    EXPECT_EQ(dub.text(QStringLiteral("popis")), QStringLiteral("Hrana"));
    EXPECT_EQ(Vypis::castka(v.dan->zaklad), QStringLiteral("818.42"));
    const QStringList t = texty<OpTextBox>(d);
    for (const char* hlava : {"NÁKUP MATERIÁLU", "Materiál", "Množství", "Nákup", "JC", "Cena", "Celkem včetně DPH"})
        EXPECT_TRUE(t.contains(QString::fromUtf8(hlava))) << hlava;
}

TEST(NakupMaterialu, CeleMetryATabuleVJednotceUzivatele)
{
    EXPECT_EQ(nakupMaterialu(QStringLiteral("Hrana"), QStringLiteral("ABS"), 7.0, QStringLiteral("m")), QStringLiteral("8 m"));
    EXPECT_EQ(nakupMaterialu(QStringLiteral("Hrana"), QStringLiteral("ABS"), 0.1 * 3 * 10 / 3 * 7 / 1, QStringLiteral("m")),
              QStringLiteral("8 m")); // 7.000000000000001 or 6.9999...: still 7 m and one more
    EXPECT_EQ(nakupMaterialu(QStringLiteral("Prislusenstvi"), QStringLiteral("pant"), 4, QStringLiteral("ks")),
              QStringLiteral("4.000 ks"));
    // the size is the last bracket, whatever the name holds
    EXPECT_EQ(nakupMaterialu(QString(), QStringLiteral("Deska 3 x 2 (lesk) (2800 mm x 2070 mm)"), 5.796, QStringLiteral("m2")),
              QStringLiteral("2 tab. "));
    EXPECT_EQ(nakupMaterialu(QString(), QStringLiteral("bez rozměru"), 3, QStringLiteral("m2")), QString());
}

TEST_F(VypisyTest, PocetTabuliVCentimetrech)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting"), QStringLiteral("Jednotky"), QStringLiteral("1"));
    EXPECT_EQ(nakupMaterialu(QString(), QStringLiteral("Deska (280 cm x 207 cm)"), 6.0, QStringLiteral("m2")), QStringLiteral("2 tab. "));
    Dokument d;
    const VysledekVypisu v = vypis(DruhVypisu::Nakup, d);
    EXPECT_EQ(v.nakup.front().material, QStringLiteral("Lamino dub (280 cm x 207 cm)"));
    EXPECT_EQ(v.nakup.front().nakup, QStringLiteral("1 tab. "));
}

// The strip of 2000 x 30 mm in its 20 mm row is too thin for its sizes: the 700-twip box with
// the real sizes stands in; the door is drawn at scale.
TEST_F(VypisyTest, SoupisProDilnuSeSchematy)
{
    Dokument d;
    vypis(DruhVypisu::DilnaSeSchematy, d);
    int boxu = 0;
    for (const OpObdelnik& o : operace<OpObdelnik>(d))
        boxu += qFuzzyCompare(o.ramec.width(), 700) && qFuzzyCompare(o.ramec.height(), 700);
    EXPECT_EQ(boxu, 1);
    const QStringList t = texty<OpTextBox>(d);
    for (const char* text : {"SOUPIS MATERIÁLU PRO DÍLNU", "Poznámka:", "chodba a předsíň", "2000 mm", "30 mm", "dvířka",
                             "Čelo - 2 ks - čelní panel", "x", "-", "úchytka", "2 ks", "0.252 m"})
        EXPECT_TRUE(t.contains(QString::fromUtf8(text))) << text;
    EXPECT_FALSE(t.contains(QStringLiteral("Sestavy:")));
    // band ticks in each band's colour on the door: red, green, black, grey
    QSet<QRgb> barvy;
    for (const OpCara& c : operace<OpCara>(d))
        barvy.insert(c.pero.barva.rgb());
    EXPECT_TRUE(barvy.contains(QColor(Qt::red).rgb()));
    EXPECT_TRUE(barvy.contains(QColor(0, 255, 0).rgb()));
    EXPECT_TRUE(barvy.contains(QColor(128, 128, 128).rgb()));

    Dokument bez;
    vypis(DruhVypisu::Dilna, bez);
    EXPECT_TRUE(texty<OpTextBox>(bez).contains(QStringLiteral("dvířka (500 mm x 250 mm)")));
    for (const OpObdelnik& o : operace<OpObdelnik>(bez))
        EXPECT_FALSE(qFuzzyCompare(o.ramec.width(), 700));
}

// A band that would open in the last 2500 twips of a page opens the next page instead.
TEST(PasSestavy, NaKonciStranyJdeNaDalsi)
{
    for (auto [zbyva, stran] : {std::pair{2000, 2}, {3000, 1}}) {
        Dokument d;
        Vypis::zacni(d);
        d.CurrentY = d.PageHeight() - d.MarginBottom - zbyva;
        Vypis::pasSestavy(d, QStringLiteral("Skříň"), 1, QStringLiteral("x"));
        ASSERT_EQ(d.PageCount(), stran) << zbyva;
        EXPECT_TRUE(texty<OpTextBox>(d, stran).contains(QStringLiteral("Skříň - 1 ks - x"))) << zbyva;
    }
}

// An order whose only assembly is empty: every report prints its head and the tax summary at
// 0.00, no band and no section.
TEST_F(VypisyTest, PrazdnaZakazkaVeVsechVypisech)
{
    ZakazkaJson::nacti(uloziste().dataS(), R"({"zakazka": "Prázdná 'ta'", "sestavy": [{"nazev": "nic"}]})");
    uloziste().ObnovPracovniDatabazi();
    for (DruhVypisu druh : {DruhVypisu::Zakazka, DruhVypisu::Sestavy, DruhVypisu::Nakup, DruhVypisu::Nabidka, DruhVypisu::Dilna,
                            DruhVypisu::DilnaSeSchematy}) {
        SCOPED_TRACE(int(druh));
        Dokument d;
        const VysledekVypisu v = SestavVypis(druh, d, k(), uloziste().cenik(), QStringLiteral("Prázdná 'ta'"), {}, {});
        EXPECT_EQ(d.PageCount(), 1);
        const QStringList t = texty<OpTextBox>(d);
        if (v.dan) {
            EXPECT_EQ(v.dan->celkem, 0);
            EXPECT_TRUE(t.contains(QStringLiteral("0.00 Kč")));
        }
        if (druh == DruhVypisu::Zakazka) { // base, tax and total; no accessory block
            EXPECT_EQ(t.count(QStringLiteral("0.00 Kč")), 3);
            EXPECT_FALSE(t.contains(QStringLiteral("Příslušenství:")));
        }
        EXPECT_FALSE(t.join(QLatin1Char('|')).contains(QStringLiteral(" ks - ")));
    }
}

// A board whose format row is gone: a message naming board and assembly, whichever report.
TEST_F(VypisyTest, DeskaBezFormatu)
{
    uloziste().dataS().execute(QStringLiteral("DELETE * FROM ZakazkyMaterialy WHERE ID = 6000001"));
    for (DruhVypisu druh : {DruhVypisu::Zakazka, DruhVypisu::Nakup, DruhVypisu::Dilna}) {
        Dokument d;
        const QString zprava = chybaZ([&] { vypis(druh, d); }).text();
        EXPECT_TRUE(zprava.contains(QStringLiteral("dvířka")) && zprava.contains(QStringLiteral("Čelo"))) << zprava.toStdString();
    }
}
