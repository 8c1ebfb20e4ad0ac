// The options as the dialog and the command line store them: the unit converted last, all or
// nothing, colours and fonts in the settings' own form.
#include "DomovTest.h"
#include "core/BarvaVB.h"
#include "core/Error.h"
#include "core/Moznosti.h"
#include "core/Nastaveni.h"

#include <QLocale>

using Nastaveni::GetSetting;

namespace {

class Moznosti_ : public NastavenyDomov {
protected:
    void SetUp() override
    {
        NastavenyDomov::SetUp();
        QLocale::setDefault(QLocale(QLocale::Czech, QLocale::Czechia));
    }
    void TearDown() override
    {
        QLocale::setDefault(QLocale::c());
        DomovTest::TearDown();
    }
    static QString odmitnuti(const Moznosti::Hodnoty& h) { return textChyby([&] { Moznosti::uloz(h); }); }
};

} // namespace

TEST_F(Moznosti_, JednotkaSeUkladaPosledniTakzeDelkyPrevadiStara)
{
    Moznosti::uloz({{"Srez", "3"}, {"Jednotky", "1"}, {"XZ", "250"}});
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QStringLiteral("3"));
    EXPECT_EQ(GetSetting("Setting2", "XZ"), QStringLiteral("250"));
    EXPECT_EQ(GetSetting("Setting", "Jednotky"), QStringLiteral("1"));
    EXPECT_EQ(Moznosti::nacti().value("Srez"), QStringLiteral("0,3"));
    EXPECT_EQ(Moznosti::zobraz().value("Srez"), QStringLiteral("0,3 cm"));
    EXPECT_EQ(Moznosti::zobraz().value("Jednotky"), QStringLiteral("100 cm"));
    // now in centimetres, with a comma or a point
    Moznosti::uloz({{"Srez", "0,35"}, {"YZ", "12.5"}});
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QStringLiteral("3.5"));
    EXPECT_EQ(GetSetting("Setting2", "YZ"), QStringLiteral("125"));
}

TEST_F(Moznosti_, CislaJakNapsanaDostanouTeckuAPocetZustavaCely)
{
    Moznosti::uloz({{"CRez", "5,50"}, {"Samovani", "2,5"}, {"DPH", "21"}, {"SlevaPris", "7"}});
    EXPECT_EQ(GetSetting("Setting2", "CRez"), QStringLiteral("5.50"));
    EXPECT_EQ(GetSetting("Setting2", "Samovani"), QStringLiteral("2.5"));
    EXPECT_EQ(GetSetting("Setting2", "DPH"), QStringLiteral("21"));
    EXPECT_EQ(GetSetting("Setting", "SlevaPris"), QStringLiteral("7"));
    EXPECT_EQ(Moznosti::nacti().value("CRez"), QStringLiteral("5,5"));
}

TEST_F(Moznosti_, OdmitnutaHodnotaNezapiseNicAniOstatni)
{
    const QString srez = GetSetting("Setting2", "Srez");
    EXPECT_EQ(odmitnuti({{"Srez", "3"}, {"DPH", "150"}}), QStringLiteral("Zadejte v poli „DPH [%]“ číslo od 0 do 100!"));
    EXPECT_EQ(GetSetting("Setting2", "Srez"), srez);
    EXPECT_EQ(odmitnuti({{"Srez", ""}}), QStringLiteral("Zadejte v poli „Šířka řezu“ číslo od 0 do 20!"));
    EXPECT_EQ(odmitnuti({{"Srez", "abc"}}), QStringLiteral("Zadejte v poli „Šířka řezu“ číslo od 0 do 20!"));
    EXPECT_EQ(odmitnuti({{"Srez", "4x"}}), QStringLiteral("Zadejte v poli „Šířka řezu“ číslo od 0 do 20!"));
    EXPECT_EQ(odmitnuti({{"Srez", "-1"}}), QStringLiteral("Zadejte v poli „Šířka řezu“ číslo od 0 do 20!"));
    EXPECT_FALSE(odmitnuti({{"DPH", "12,5"}}).isEmpty()); // a pasted fraction in a whole-number field
    EXPECT_EQ(odmitnuti({{"PocetSloupcuStitku", "0"}}), QStringLiteral("Zadejte v poli „Počet sloupců (papír)“ číslo od 1 do 99!"));
    EXPECT_EQ(odmitnuti({{"DelkaStitku", "0"}}), QStringLiteral("Zadejte v poli „Délka štítku (papír)“ číslo od 0,1 do 210!"));
    EXPECT_FALSE(odmitnuti({{"SirkaStitku", "297,1"}}).isEmpty());
    EXPECT_TRUE(odmitnuti({{"SirkaStitku", "297"}, {"CRez", "10000"}, {"XZ", "10000"}}).isEmpty());
    EXPECT_FALSE(odmitnuti({{"CRez", "10000,01"}}).isEmpty());
    EXPECT_FALSE(odmitnuti({{"VykresleniTabule", "3"}}).isEmpty());
    EXPECT_FALSE(odmitnuti({{"Neznamy", "1"}}).isEmpty());
    // bounds are named in the unit the user types in
    Moznosti::uloz({{"Jednotky", "1"}});
    EXPECT_EQ(odmitnuti({{"XZ", "1000,01"}}), QStringLiteral("Zadejte v poli „Délka odřezku“ číslo od 0 do 1000!"));
}

TEST_F(Moznosti_, BarvyAPismaVPodobeNastaveni)
{
    EXPECT_EQ(BarvaVB::text(0x0000ff), QStringLiteral("&H000000FF&"));
    EXPECT_EQ(BarvaVB::html(0x0000ff), QStringLiteral("#FF0000"));
    EXPECT_EQ(*BarvaVB::zHtml("#FF0000"), 0x0000ffu);
    EXPECT_EQ(*BarvaVB::zTextu("&H00C0C0C0&"), 0xc0c0c0u);
    EXPECT_FALSE(BarvaVB::zHtml("#FF00"));
    Moznosti::uloz({{"BarvaDesky", "#FF0000"}, {"TucnePismoDesky", "true"}});
    EXPECT_EQ(GetSetting("Setting", "BarvaDesky"), QStringLiteral("&H000000FF&"));
    EXPECT_EQ(GetSetting("Setting", "TucnePismoDesky"), QStringLiteral("True"));
    EXPECT_EQ(Moznosti::zobraz().value("BarvaDesky"), QStringLiteral("#FF0000"));
    EXPECT_FALSE(odmitnuti({{"BarvaOdpadu", "červená"}}).isEmpty());

    VolbaPisma p{QStringLiteral("DejaVu Sans"), 12, false, true, true, false, 0x00ff00};
    Moznosti::ulozPismo(Moznosti::Popis::Odrezek, p);
    EXPECT_EQ(GetSetting("Setting", "BarvaPismaOdrezku"), QStringLiteral("&H0000FF00&"));
    EXPECT_EQ(GetSetting("Setting", "KurzivaOdrezku"), QStringLiteral("True"));
    const VolbaPisma zpet = Moznosti::pismo(Moznosti::Popis::Odrezek);
    EXPECT_EQ(zpet.nazev, p.nazev);
    EXPECT_EQ(zpet.velikost, 12);
    EXPECT_TRUE(zpet.kurziva && zpet.podtrzene && !zpet.tucne && !zpet.preskrtnute);
    EXPECT_EQ(Moznosti::pismo(Moznosti::Popis::Deska).velikost, 14); // the board's own keys untouched
}
