// The price list: the checks in their order and bounds, the Czech order, the search, an edit
// keeping its own name, VAT rounding, the printed list; the picture and schema libraries.
#include "catalogues/Cenik.h"
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "VzorkyObrazku.h"
#include "catalogues/Knihovna.h"
#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "printing/Dokument.h"

namespace {

class CenikTest : public NastavenyDomov {
protected:
    Database& db() { return uloziste().cenik(); }
    bool uloz(const QString& nazev, const QString& kod, const QString& cena, const QString& skupina = QStringLiteral("P"),
              const QString& stary = {})
    {
        return Cenik::UlozitPolozku(db(), prompt, stary, {nazev, kod, cena, QStringLiteral("ks"), skupina});
    }
    QStringList nazvy(const QString& razeni = QStringLiteral("nazev"), const QString& vyber = QStringLiteral("VSE"))
    {
        return Cenik::NaplnitSeznamCeniku(db(), vyber, razeni);
    }
    SkriptovanyPrompt prompt;
};

} // namespace

TEST_F(CenikTest, KontrolyVeSvemPoradiAMezich)
{
    EXPECT_TRUE(uloz(QStringLiteral("a"), QStringLiteral("100000"), QStringLiteral("10000")));
    EXPECT_TRUE(uloz(QStringLiteral("b"), QStringLiteral("2"), QStringLiteral("0,5")));
    const QString kod = QStringLiteral("Do pole Kod zadejte číselnou nenulovou hodnotu v intervalu do 100 000");
    const QString cena = QStringLiteral("Do pole CENA zadejte číselnou nenulovou hodnotu v intervalu do 10 000");
    const struct {
        QString nazev, kod, cena, zprava;
    } spatne[] = {
        {QString(101, QLatin1Char('x')), QStringLiteral("x"), QStringLiteral("x"),
         QStringLiteral("nazev nového materiálu smí obsahovat maximálně 100 znaků!!!")},
        {QStringLiteral("c"), QStringLiteral("100001"), QStringLiteral("x"), kod},
        {QStringLiteral("c"), QStringLiteral("0"), QStringLiteral("1"), kod},
        {QStringLiteral("c"), QStringLiteral("-3"), QStringLiteral("1"), kod},
        {QStringLiteral("c"), QStringLiteral("2.5"), QStringLiteral("1"), kod},
        {QStringLiteral("c"), QStringLiteral("pět"), QStringLiteral("1"), kod},
        {QStringLiteral("c"), QStringLiteral("3"), QStringLiteral("10000.01"), cena},
        {QStringLiteral("c"), QStringLiteral("3"), QStringLiteral("0"), cena},
        {QStringLiteral("c"), QStringLiteral("3"), QStringLiteral("-1"), cena},
        {QStringLiteral("c"), QStringLiteral("3"), QStringLiteral(""), cena},
        {QStringLiteral("A"), QStringLiteral("2"), QStringLiteral("1"),
         QStringLiteral("Položka pod tímhle názvem již existuje, zadejte jiný nazev !!!")},
        {QStringLiteral("c"), QStringLiteral("2"), QStringLiteral("1"),
         QStringLiteral("Položka pod tímhle kódem již existuje, zadejte jiný Kod !!!")},
    };
    for (const auto& s : spatne) {
        EXPECT_FALSE(uloz(s.nazev, s.kod, s.cena)) << s.kod.toStdString();
        EXPECT_EQ(prompt.zpravy.last(), s.zprava) << s.kod.toStdString();
    }
    EXPECT_EQ(nazvy(), QStringList({"a", "b"}));
    const auto a = Cenik::nacti(db(), QStringLiteral("A"));
    ASSERT_TRUE(a);
    EXPECT_EQ(a->kod, 100000);
    EXPECT_EQ(a->cena, 10000);
}

TEST_F(CenikTest, UpravaSmiPonechatSvujNazevAleNeCiziKod)
{
    ASSERT_TRUE(uloz(QStringLiteral("Dub 'Rustikál'"), QStringLiteral("1"), QStringLiteral("100")));
    ASSERT_TRUE(uloz(QStringLiteral("Buk"), QStringLiteral("2"), QStringLiteral("80")));
    EXPECT_TRUE(uloz(QStringLiteral("DUB 'rustikál'"), QStringLiteral("1"), QStringLiteral("120"), QStringLiteral("PM"),
                     QStringLiteral("Dub 'Rustikál'")));
    EXPECT_FALSE(uloz(QStringLiteral("Buk"), QStringLiteral("1"), QStringLiteral("120"), QStringLiteral("PM"),
                      QStringLiteral("DUB 'rustikál'")));
    EXPECT_FALSE(uloz(QStringLiteral("Dub"), QStringLiteral("2"), QStringLiteral("120"), QStringLiteral("PM"),
                      QStringLiteral("DUB 'rustikál'")));
    EXPECT_FALSE(uloz(QStringLiteral("dub 'RUSTIKÁL'"), QStringLiteral("9"), QStringLiteral("1")));
    const auto d = Cenik::nacti(db(), QStringLiteral("dub 'rustikál'"));
    ASSERT_TRUE(d);
    EXPECT_EQ(d->cena, 120);
    EXPECT_EQ(d->skupina, QStringLiteral("PM"));
    EXPECT_EQ(nazvy(), QStringList({"Buk", "DUB 'rustikál'"}));
}

// ch after h, case-blind; equal prices in the order added; a group; a stored sort field that
// is no field falls back to the name, a group outside the four to all.
TEST_F(CenikTest, CeskeRazeniSkupinyANeplatneNastaveni)
{
    ASSERT_TRUE(uloz(QStringLiteral("Čep"), QStringLiteral("5"), QStringLiteral("3"), QStringLiteral("P")));
    ASSERT_TRUE(uloz(QStringLiteral("chrom"), QStringLiteral("4"), QStringLiteral("3"), QStringLiteral("H")));
    ASSERT_TRUE(uloz(QStringLiteral("Hrana"), QStringLiteral("3"), QStringLiteral("1"), QStringLiteral("H")));
    ASSERT_TRUE(uloz(QStringLiteral("cibule"), QStringLiteral("1"), QStringLiteral("3"), QStringLiteral("PM")));
    EXPECT_EQ(nazvy(), QStringList({"cibule", "Čep", "Hrana", "chrom"}));
    EXPECT_EQ(nazvy(QStringLiteral("Kod")), QStringList({"cibule", "Hrana", "chrom", "Čep"}));
    EXPECT_EQ(nazvy(QStringLiteral("Cena")), QStringList({"Hrana", "Čep", "chrom", "cibule"}));
    EXPECT_EQ(nazvy(QStringLiteral("nazev"), QStringLiteral("H")), QStringList({"Hrana", "chrom"}));
    EXPECT_EQ(nazvy(QStringLiteral("nazev; DROP TABLE Cenik")), nazvy());
    EXPECT_EQ(nazvy(QStringLiteral("nazev"), QStringLiteral("X' OR '1'='1")).size(), 4);
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Razeni"), QStringLiteral("obr1"));
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Vyber"), QStringLiteral("Z"));
    EXPECT_EQ(Cenik::ulozeneRazeni(), QStringLiteral("nazev"));
    EXPECT_EQ(Cenik::ulozenyVyber(), QStringLiteral("VSE"));
    EXPECT_EQ(Cenik::hledej(db(), QStringLiteral("C")), QStringList({"chrom", "cibule"}));
    EXPECT_EQ(Cenik::hledej(db(), QStringLiteral("ČE")), QStringList({"Čep"}));
}

TEST_F(CenikTest, CenaSDphSeZaokrouhlujeDvakrat)
{
    EXPECT_DOUBLE_EQ(Cenik::cenaSDPH(10.005, 21), 12.11); // 10.01 * 1.21 = 12.1121
    EXPECT_DOUBLE_EQ(Cenik::cenaSDPH(0.125, 20), 0.16);   // 0.13 * 1.2 = 0.156
    EXPECT_DOUBLE_EQ(Cenik::cenaSDPH(100, 19), 119);
    EXPECT_EQ(Cenik::textCeny(2.5, QStringLiteral("Kč"), QStringLiteral("ks")), QStringLiteral("2.50 Kč/ks"));
}

TEST_F(CenikTest, HromadneNahraniVseNeboNic)
{
    ASSERT_TRUE(uloz(QStringLiteral("Buk"), QStringLiteral("2"), QStringLiteral("80")));
    std::vector<Cenik::Zadani> davka = {
        {QStringLiteral("Jasan"), QStringLiteral("3"), QStringLiteral("5"), QStringLiteral("ks"), QStringLiteral("P")},
        {QStringLiteral("buk"), QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("ks"), QStringLiteral("P")}};
    EXPECT_EQ(Cenik::nahraj(db(), prompt, davka), 1);
    EXPECT_EQ(nazvy(), QStringList({"Buk"}));
    davka[1].nazev = QStringLiteral("Olše");
    EXPECT_EQ(Cenik::nahraj(db(), prompt, davka), -1);
    EXPECT_EQ(nazvy(), QStringList({"Buk", "Jasan", "Olše"}));
    prompt.odpovez(Prompt::Odpoved::Ne);
    EXPECT_FALSE(Cenik::SmazatPolozku(db(), prompt, QStringLiteral("Jasan")));
    prompt.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(Cenik::SmazatPolozku(db(), prompt, QStringLiteral("jasan")));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Chcete odstranit položku: - jasan - ?"));
    EXPECT_EQ(nazvy(), QStringList({"Buk", "Olše"}));
}

// Enough items for three pages: the header on each page on the yellow band, a row per item with
// both prices, the footer with "Strana  p / 3" on every page.
TEST_F(CenikTest, TiskCenikuRadekNaPolozkuAPatickaNaKazdeStrane)
{
    std::vector<Cenik::Zadani> davka;
    for (int i = 1; i <= 110; ++i)
        davka.push_back({QStringLiteral("Položka %1").arg(i, 3, 10, QLatin1Char('0')), QString::number(i), QStringLiteral("10"),
                         QStringLiteral("ks"), QStringLiteral("P")});
    davka[0].nazev = QStringLiteral("Dub 'Rustikál'");
    ASSERT_EQ(Cenik::nahraj(db(), prompt, davka), -1);
    Dokument d;
    Cenik::TiskCeniku(d, db(), QStringLiteral("VSE"), QStringLiteral("Kod"));
    ASSERT_EQ(d.PageCount(), 3);
    int radku = 0, hlavicek = 0, zlutych = 0;
    QStringList prvni;
    for (int s = 1; s <= 3; ++s) {
        const QStringList t = texty<OpTextBox>(d, s);
        for (const OpObdelnik& o : operace<OpObdelnik>(d, s))
            zlutych += !o.stetec.pruhledny && o.stetec.barva == QColor(255, 255, 0);
        hlavicek += int(t.count(QStringLiteral("Kód")));
        for (const QString& r : t)
            radku += r.startsWith(QStringLiteral("Položka ")) || r == QStringLiteral("Dub 'Rustikál'");
        if (s == 1)
            prvni = t.mid(t.indexOf(QStringLiteral("Dub 'Rustikál'")) - 1, 6);
        EXPECT_TRUE(t.contains(QStringLiteral("Strana  %1 / 3").arg(s))) << s;
        EXPECT_TRUE(t.join(QLatin1Char('|')).contains(QStringLiteral("Výpis z ceníku borováckých materiálů - "))) << s;
    }
    EXPECT_EQ(texty<OpText>(d, 1).value(0), QStringLiteral("V Ý P I S   Z   C E N Í K U"));
    EXPECT_EQ(radku, 110);
    EXPECT_EQ(hlavicek, 3);
    EXPECT_EQ(zlutych, 3 * 6);
    EXPECT_EQ(prvni, QStringList({"1", "Dub 'Rustikál'", "10.00", "11.90", "ks", "P"}));
}

// Pictures: IDE 1 first, the highest reused after its deletion, bytes kept as they were, refusals
// store nothing; a deleted picture is cleared in both items, a deleted schema stays in orders.
TEST_F(CenikTest, KnihovnaObrazkuAIde)
{
    using Knihovna::Druh;
    const QByteArray png = vzorek("png"), jpg = vzorek("jpg"), bmp = vzorek("bmp"), gif = vzorekGif(), wmf = vzorekWmf();
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("a.png"), png), 1);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("b.jpg"), jpg), 2);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("c.bmp"), bmp), 3);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("d.gif"), gif), 4);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("e.wmf"), wmf), 5);
    int ide = 1;
    for (const QByteArray& b : {png, jpg, bmp, gif, wmf})
        EXPECT_EQ(Knihovna::data(db(), Druh::Obrazky, ide++), b);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("f.ppm"), vzorek("ppm")), 0);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("g.jpg"), jpg.left(jpg.size() / 2)), 0);
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Soubor „g.jpg“ není obrázek JPG, PNG, BMP, GIF ani WMF, nebo je poškozený."));
    EXPECT_EQ(Knihovna::seznam(db(), Druh::Obrazky).size(), 5u);
    EXPECT_TRUE(Knihovna::smaz(db(), Druh::Obrazky, 5));
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("h.png"), png), 5);
    EXPECT_EQ(Knihovna::seznam(db(), Druh::Schemata).size(), 0u);
    EXPECT_EQ(Knihovna::pridej(db(), prompt, Druh::Schemata, QStringLiteral("skrin.png"), png), 1);
}

TEST_F(CenikTest, SmazanyObrazekZmiziZPolozekSchemaZustaneVZakazce)
{
    using Knihovna::Druh;
    ASSERT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("a.png"), vzorek("png")), 1);
    ASSERT_EQ(Knihovna::pridej(db(), prompt, Druh::Obrazky, QStringLiteral("b.png"), vzorek("png")), 2);
    ASSERT_TRUE(Cenik::UlozitPolozku(db(), prompt, {}, {QStringLiteral("Buk"), "1", "5", "ks", "PM", 2, 1}));
    ASSERT_TRUE(Cenik::UlozitPolozku(db(), prompt, {}, {QStringLiteral("Dub"), "2", "5", "ks", "PM", 2, 2}));
    ASSERT_TRUE(Knihovna::smaz(db(), Druh::Obrazky, 2));
    const auto buk = Cenik::nacti(db(), QStringLiteral("Buk"));
    const auto dub = Cenik::nacti(db(), QStringLiteral("Dub"));
    EXPECT_EQ(std::pair(buk->obr1, buk->obr2), std::pair(0, 1));
    EXPECT_EQ(std::pair(dub->obr1, dub->obr2), std::pair(0, 0));

    ASSERT_EQ(Knihovna::pridej(db(), prompt, Druh::Schemata, QStringLiteral("s.png"), vzorek("png")), 1);
    Database& data = uloziste().dataS();
    data.execute(QStringLiteral("INSERT INTO Zakazky (Zakazka, Sestava, Oznaceni, schema) VALUES ('Z', 'S', '', 1)"));
    EXPECT_FALSE(Knihovna::obrazek(db(), Druh::Schemata, 1).isNull());
    ASSERT_TRUE(Knihovna::smaz(db(), Druh::Schemata, 1));
    EXPECT_EQ(data.hodnota(QStringLiteral("SELECT schema FROM Zakazky")).toInt(), 1);
    EXPECT_TRUE(Knihovna::obrazek(db(), Druh::Schemata, 1).isNull()); // the assembly keeps a reference to nothing
    EXPECT_TRUE(Knihovna::obrazek(db(), Druh::Schemata, 0).isNull());
}
