// The owner of Zakazky and ZakazkyMaterialy: names are bound, so apostrophes and question marks
// are plain text; and no question or refusal is shown while a transaction holds the store.
#include "orders/RadkyZakazky.h"
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Database.h"
#include "core/Error.h"
#include "orders/Desky.h"
#include "orders/Materialy.h"
#include "orders/NoveRadky.h"
#include "orders/Prislusenstvi.h"
#include "orders/Zakazky.h"

#include <sqlite3.h>

namespace {

// Notes, at every message, whether the data database was outside a transaction.
class HlidanyPrompt : public SkriptovanyPrompt {
public:
    explicit HlidanyPrompt(Database& db) : m_db(db) {}
    Odpoved zprava(const QString& text, const QString& titulek, Ikona ikona, Tlacitka tlacitka) override
    {
        mimoTransakci.push_back(sqlite3_get_autocommit(m_db.handle()) != 0);
        return SkriptovanyPrompt::zprava(text, titulek, ikona, tlacitka);
    }
    std::vector<bool> mimoTransakci;

private:
    Database& m_db;
};

class RadkyZakazkyTest : public DomovTest {
protected:
    Database& db() { return uloziste().dataS(); }
    const QString zakazka = QStringLiteral("O'Brien? ");
    const QString sestava = QStringLiteral("a'?b");
    // the order with a format and an assembly
    double zaloz(Prompt& p)
    {
        EXPECT_TRUE(Zakazky::UlozitNovouZakazku(db(), p, zakazka, QString()));
        Materialy::UlozitNovyFormat(db(), zakazka, {0, QStringLiteral("DTD 'bílá'"), 2800, 2070, false, 350});
        EXPECT_TRUE(Zakazky::UlozitNovouSestavu(db(), p, zakazka, {sestava, QString(), 1, 0}));
        return Materialy::formaty(db(), zakazka).at(0).ID;
    }
};

} // namespace

TEST_F(RadkyZakazkyTest, NazvySeVazouANeslepuji)
{
    SkriptovanyPrompt p;
    const double format = zaloz(p);
    EXPECT_TRUE(RadkyZakazky::existuje(db(), QStringLiteral("o'brien? "))); // blind to case, as the store compares
    EXPECT_FALSE(RadkyZakazky::existuje(db(), QStringLiteral("O'Brien?")));
    EXPECT_TRUE(RadkyZakazky::existujeSestava(db(), zakazka, sestava));
    EXPECT_FALSE(RadkyZakazky::existujeSestava(db(), zakazka, QStringLiteral("a'?")));
    ASSERT_FALSE(
        Desky::UlozitNovyPM(db(), p, zakazka, sestava, {QStringLiteral("bok ' ?"), 720, 560, 2, false, format}).isNull());
    EXPECT_TRUE(RadkyZakazky::polozka(db(), zakazka, sestava, QStringLiteral("BOK ' ?")));
    EXPECT_EQ(RadkyZakazky::deskyFormatu(db(), zakazka, format).recordCount(), 1);
    EXPECT_EQ(RadkyZakazky::deskySestavy(db(), zakazka, QStringLiteral("A'?B"), format, QStringLiteral("Oznaceni")).recordCount(),
              1);
    EXPECT_EQ(RadkyZakazky::deskySestavy(db(), zakazka, sestava, format + 1).recordCount(), 0);
    EXPECT_EQ(RadkyZakazky::radky(db(), zakazka).recordCount(), 1); // the board took over the header row
    EXPECT_EQ(RadkyZakazky::materialPodleNazvu(db(), zakazka, QStringLiteral("dtd 'BÍLÁ'"))->cislo(QStringLiteral("ID")), format);
    EXPECT_FALSE(RadkyZakazky::material(db(), zakazka, format, RadkyZakazky::Pouziti::Hrany));
    EXPECT_TRUE(RadkyZakazky::material(db(), zakazka, format, RadkyZakazky::Pouziti::Formaty));
    EXPECT_EQ(cisloChyby([&] { NoveRadky::DoSestavy(db(), zakazka, QStringLiteral("není")); }), Chyba::NeplatnyVstup);
}

TEST_F(RadkyZakazkyTest, OtazkyAOdmitnutiPredTransakci)
{
    HlidanyPrompt p(db());
    const double format = zaloz(p);
    Materialy::UlozitNovyFormat(db(), zakazka, {0, QStringLiteral("DTD 2"), 2800, 2070, false, 350});
    ASSERT_FALSE(Desky::UlozitNovyPM(db(), p, zakazka, sestava, {QStringLiteral("bok"), 720, 560, 1, false, format}).isNull());
    // a refused board name, a refused accessory name, the twin question of a format
    EXPECT_TRUE(Desky::UlozitNovyPM(db(), p, zakazka, sestava, {QStringLiteral("bok"), 1, 1, 1, false, format}).isNull());
    ASSERT_TRUE(Prislusenstvi::UlozitPrislusenstvi(db(), p, false, zakazka, sestava, {QStringLiteral("pant"), "4", "ks", "25"}));
    EXPECT_FALSE(Prislusenstvi::UlozitPrislusenstvi(db(), p, false, zakazka, sestava, {QStringLiteral("pant"), "1", "ks", "1"}));
    Materialy::Material druhy = Materialy::formaty(db(), zakazka).at(1);
    druhy.nazev = QStringLiteral("DTD 'bílá'");
    p.odpovez(Prompt::Odpoved::Ne);
    EXPECT_EQ(Materialy::UlozitUpravuFormatu(db(), p, zakazka, druhy), Materialy::Uprava::Upraveno);
    ASSERT_EQ(p.mimoTransakci.size(), 3u);
    for (bool mimo : p.mimoTransakci)
        EXPECT_TRUE(mimo);
    EXPECT_EQ(Materialy::formaty(db(), zakazka).at(1).nazev, QStringLiteral("DTD 'bílá'")); // "No": edited, not merged
}
