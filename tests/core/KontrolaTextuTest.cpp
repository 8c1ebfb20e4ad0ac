// What a name may hold: characters beyond the BMP count once, line breaks only where asked.
#include "core/KontrolaTextu.h"

#include <gtest/gtest.h>

TEST(KontrolaTextu, ZnakyADelka)
{
    using namespace KontrolaTextu;
    EXPECT_TRUE(chyba(QStringLiteral("Kuchyně Novák's 😀"), QStringLiteral("Název")).isEmpty());
    EXPECT_FALSE(chyba(QString::fromUtf16(u"\U0001F600").repeated(11), QStringLiteral("N"), 10).isEmpty());
    EXPECT_TRUE(chyba(QString::fromUtf16(u"\U0001F600").repeated(10), QStringLiteral("N"), 10).isEmpty());
    EXPECT_EQ(chyba(QString(QChar(0xDC00)), QStringLiteral("Název")),
              QStringLiteral("Údaj „Název“ obsahuje neplatný znak (poškozený text)."));
    EXPECT_FALSE(chyba(QStringLiteral("a") + QChar(0xD800), QStringLiteral("N")).isEmpty());
    EXPECT_FALSE(chyba(QString(QChar(0xFFFF)), QStringLiteral("N")).isEmpty());
    EXPECT_EQ(chyba(QStringLiteral("a\nb"), QStringLiteral("Název")),
              QStringLiteral("Údaj „Název“ obsahuje nepovolený řídicí znak (kód 10)."));
    EXPECT_TRUE(chyba(QStringLiteral("a\r\nb\tc"), QStringLiteral("Poznámka"), Nejvys, Radky::Ano).isEmpty());
    EXPECT_FALSE(chyba(QStringLiteral("a") + QChar(0) + QStringLiteral("b"), QStringLiteral("N"), Nejvys, Radky::Ano).isEmpty());
    EXPECT_FALSE(chyba(QString(QChar(0x85)), QStringLiteral("N")).isEmpty()); // C1 control
    EXPECT_TRUE(chyba(QString(255, QLatin1Char('x')), QStringLiteral("N")).isEmpty());
    EXPECT_EQ(chyba(QString(256, QLatin1Char('x')), QStringLiteral("Název")),
              QStringLiteral("Údaj „Název“ smí obsahovat nejvýše 255 znaků."));
}
