// The settings store: first-run values, what a version change overwrites, Val.
#include "DomovTest.h"
#include "core/Nastaveni.h"
#include "core/Val.h"

using namespace Nastaveni;

class Nastaveni_ : public DomovTest {};

TEST_F(Nastaveni_, PrvniSpusteniZapiseVychoziHodnotyIJejichZvlastnosti)
{
    EXPECT_TRUE(jeZmenaVerze());
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QString());
    ZapisVychoziNastaveni(10, 20, 800, 600);
    EXPECT_FALSE(jeZmenaVerze());
    EXPECT_EQ(GetSetting("Setting", "Verze"), verze());
    EXPECT_EQ(GetSetting("Setting2", "Mena"), QStringLiteral("Kč"));
    EXPECT_EQ(GetSetting("Setting", "BarvaPismaDesky"), QStringLiteral("&H00FF0000&"));
    EXPECT_EQ(GetSetting("Setting", "OkrajStrankyZdola"), QStringLiteral("15"));
    EXPECT_EQ(GetSetting("Setting", "PresahPris"), QStringLiteral("0"));
    EXPECT_EQ(GetSetting("Setting", "SlevaPris"), QString()); // absent until options are saved
    EXPECT_EQ(cislo("Setting", "SlevaPris"), 0);
    EXPECT_EQ(GetSetting("Settings", "MainWidth"), QStringLiteral("800"));
    EXPECT_EQ(GetSetting("Settings", "Neni", "6500"), QStringLiteral("6500"));
}

TEST_F(Nastaveni_, ZmenaVerzePrepiseCoUzivatelNastavil)
{
    ZapisVychoziNastaveni(0, 0, 1, 1);
    SaveSetting("Setting2", "Srez", "3.5");
    SaveSetting("Setting2", "DPH", "21");
    SaveSetting("Setting", "Verze", "0.9.0");
    EXPECT_EQ(cislo("Setting2", "Srez"), 3.5);
    ASSERT_TRUE(jeZmenaVerze());
    ZapisVychoziNastaveni(0, 0, 1, 1);
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QStringLiteral("4"));
    EXPECT_EQ(GetSetting("Setting2", "DPH"), QStringLiteral("19"));
}

TEST(Val, CteCisloNaZacatkuSTeckou)
{
    EXPECT_EQ(Val(""), 0);
    EXPECT_EQ(Val(" 12.5abc"), 12.5);
    EXPECT_EQ(Val("12,5"), 12);
    EXPECT_EQ(Val("-4"), -4);
    EXPECT_EQ(Val("&H00FF0000&"), 16711680);
    EXPECT_EQ(Val("x1"), 0);
}
