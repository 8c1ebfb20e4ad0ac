// Copies of orders and assemblies: names, limits and refusals, every field kept, materials
// brought along on a drop, a clash of material IDs between orders.
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Database.h"
#include "core/Error.h"
#include "core/Recordset.h"
#include "exchange/ZakazkaJson.h"
#include "orders/Kopirovani.h"

namespace {

int radku(Database& db, const QString& sql) { return Recordset(db, sql).recordCount(); }

} // namespace

class KopirovaniTest : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        ZakazkaJson::nacti(db(), demoJson());
        // an order of its own whose format has the demo's format ID for another material
        ZakazkaJson::nacti(db(), R"({"zakazka": "Chata 'Na Výsluní'", "formaty": [{"id": 5000001, "material": "MDF",
            "x": 1000, "y": 600}], "sestavy": [{"nazev": "S", "desky": [{"oznaceni": "celá", "x": 1000, "y": 600,
            "pocet": 1, "format": 5000001}]}]})");
    }
    Database& db() { return uloziste().dataS(); }
    SkriptovanyPrompt prompt;
};

TEST_F(KopirovaniTest, ZakazkaPodNovymNazvem)
{
    const QString zdroj = QStringLiteral("Kuchyně Novák");
    EXPECT_THROW(Kopirovani::kopirujZakazku(db(), zdroj, QStringLiteral("CHATA 'NA VÝSLUNÍ'")), Error); // any letter case
    EXPECT_THROW(Kopirovani::kopirujZakazku(db(), zdroj, QString(51, QLatin1Char('k'))), Error);
    EXPECT_THROW(Kopirovani::kopirujZakazku(db(), QStringLiteral("Není"), QStringLiteral("Nová")), Error);
    const QString padesat = QString(49, QLatin1Char('k')) + QStringLiteral("č"); // 50 characters, more bytes
    Kopirovani::kopirujZakazku(db(), zdroj, padesat);
    const QString v = QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = '%1'");
    EXPECT_EQ(radku(db(), v.arg(padesat)), radku(db(), v.arg(zdroj)));
    EXPECT_EQ(radku(db(), QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = '%1'").arg(padesat)), 3);
    // every field but the name and datum: the same cas and references
    const Recordset a(db(), v.arg(zdroj) + QStringLiteral(" ORDER BY cas"));
    const Recordset b(db(), v.arg(padesat) + QStringLiteral(" ORDER BY cas"));
    EXPECT_EQ(a.cislo(QStringLiteral("cas")), b.cislo(QStringLiteral("cas")));
    EXPECT_EQ(a.cislo(QStringLiteral("IDFormat")), b.cislo(QStringLiteral("IDFormat")));
    EXPECT_GT(b.cislo(QStringLiteral("datum")), a.cislo(QStringLiteral("datum")) - 1); // now, by the test clock
}

// The window asks again after each refusal, with the old messages and titles, and an empty
// answer ends it.
TEST_F(KopirovaniTest, OknoSePtaZnovu)
{
    prompt.odpovez(QString(8, QLatin1Char('s')));
    prompt.odpovez(QStringLiteral("Horní60"));
    prompt.odpovez(QStringLiteral("Horní61"));
    EXPECT_EQ(Kopirovani::UlozitSestavuJako(db(), prompt, QStringLiteral("Kuchyně Novák"), QStringLiteral("Dřez80")),
              QStringLiteral("Horní61"));
    EXPECT_EQ(prompt.zpravy, QStringList({QStringLiteral("Zadejte název sestavy "),
                                          QStringLiteral("Název sestavy smí obsahovat maximálně 7 znaků! "),
                                          QStringLiteral("Zadejte název sestavy "),
                                          QStringLiteral("Sestava pod tímhle názvem již v  zakázce existuje, zadejte jiný název !!!"),
                                          QStringLiteral("Zadejte název sestavy ")}));
    EXPECT_EQ(prompt.titulky.at(1), QStringLiteral("Příliš dlouhý nazev"));
    prompt.odpovez(QString());
    EXPECT_TRUE(Kopirovani::UlozitZakazkuJako(db(), prompt, QStringLiteral("Kuchyně Novák")).isNull());
}

// Dropped twice: "Dřez80", "Dřez80_"; the target's header row goes; the demo's format, whose
// ID the target uses for MDF, arrives under a stamp of its own, once, and the copies point to it.
TEST_F(KopirovaniTest, SestavaDoJineZakazky)
{
    {
        Recordset hlava(db(), QStringLiteral("Zakazky"), Recordset::Rozsah::Prvni); // an order as it is made: its header row
        hlava.addNew();
        hlava.set(QStringLiteral("Zakazka"), QStringLiteral("Prázdná"));
        hlava.set(QStringLiteral("Sestava"), QString());
        hlava.update();
    }
    const QString zdroj = QStringLiteral("Kuchyně Novák"), chata = QStringLiteral("Chata 'Na Výsluní'");
    EXPECT_EQ(Kopirovani::KopirovaniSestavy(db(), zdroj, QStringLiteral("Dřez80"), chata), QStringLiteral("Dřez80"));
    EXPECT_EQ(Kopirovani::KopirovaniSestavy(db(), zdroj, QStringLiteral("Dřez80"), chata), QStringLiteral("Dřez80_"));
    EXPECT_EQ(Kopirovani::KopirovaniSestavy(db(), zdroj, QStringLiteral("Dřez80"), chata), QStringLiteral("Dřez80__"));
    const QString m = QStringLiteral("SELECT * FROM ZakazkyMaterialy WHERE Zakazka = 'Chata ''Na Výsluní''' and ");
    EXPECT_EQ(radku(db(), m + QStringLiteral("Material = 'MDF' and ID = 5000001")), 1);
    const Recordset dtd(db(), m + QStringLiteral("Material = 'DTD bílá 18'"));
    ASSERT_EQ(dtd.recordCount(), 1);
    EXPECT_NE(dtd.cislo(QStringLiteral("ID")), 5000001);
    EXPECT_EQ(radku(db(), m + QStringLiteral("pouziti = 'hrana'")), 2); // the bands, used or not
    for (Recordset r(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'Chata ''Na Výsluní''' and Sestava = 'Dřez80_'"));
         !r.eof(); r.moveNext())
        if (r.cislo(QStringLiteral("IDFormat")) > 1) {
            EXPECT_EQ(r.cislo(QStringLiteral("IDFormat")), dtd.cislo(QStringLiteral("ID")));
        }

    ASSERT_EQ(radku(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'Prázdná' and Sestava = ''")), 1);
    EXPECT_EQ(Kopirovani::KopirovaniSestavy(db(), zdroj, QStringLiteral("Sokl"), QStringLiteral("Prázdná")), QStringLiteral("Sokl"));
    EXPECT_EQ(radku(db(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = 'Prázdná' and Sestava = ''")), 0);
    EXPECT_THROW(Kopirovani::KopirovaniSestavy(db(), zdroj, QStringLiteral("Není"), chata), Error);
}
