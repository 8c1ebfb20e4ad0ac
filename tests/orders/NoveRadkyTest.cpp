// New rows of Zakazky by the header-row rules: the first item takes over the empty assembly's
// row, every further one repeats the header fields; a header row only for what has nothing.
#include "orders/NoveRadky.h"

#include "DomovTest.h"
#include "core/Database.h"
#include "orders/RadkyZakazky.h"

namespace {

NoveRadky::Polozka deska(const char* oznaceni)
{
    NoveRadky::Polozka p;
    p.oznaceni = QString::fromUtf8(oznaceni);
    p.format = 5000001;
    p.x = 720;
    p.y = 560;
    p.pocet = 2;
    p.ov = true;
    p.hrany[1] = 5000101;
    return p;
}

} // namespace

class NoveRadkyTest : public DomovTest {
protected:
    Database& db() { return uloziste().dataS(); }
    NoveRadky::Hlavicka hlavicka(const QString& sestava = QString())
    {
        NoveRadky::Hlavicka h;
        h.zakazka = QStringLiteral("Z'1");
        h.poznamka = QStringLiteral("pozn");
        h.datum = 46000;
        h.sestava = sestava;
        h.popis = QStringLiteral("skříň");
        h.pocet = 3;
        h.schema = 7;
        return h;
    }
};

TEST_F(NoveRadkyTest, PrvniPolozkaPrevezmeHlavickuDalsiOpiseJejiPole)
{
    NoveRadky::pridejHlavicku(db(), hlavicka(QStringLiteral("A")));
    NoveRadky::DoSestavy sestava(db(), QStringLiteral("Z'1"), QStringLiteral("A"));
    sestava.pridej(deska("bok"), 10);
    NoveRadky::Polozka pant;
    pant.oznaceni = QStringLiteral("pant");
    pant.pocet = 4;
    pant.cena = 25;
    pant.jednotka = QStringLiteral("ks");
    sestava.pridej(pant, 11);

    Recordset r = RadkyZakazky::radkySestavy(db(), QStringLiteral("Z'1"), QStringLiteral("A"));
    ASSERT_EQ(r.recordCount(), 2); // no header row is left beside the items
    EXPECT_EQ(r.text(QStringLiteral("Oznaceni")), QStringLiteral("bok"));
    EXPECT_EQ(r.cislo(QStringLiteral("IDHX2")), 5000101);
    EXPECT_TRUE(r.ano(QStringLiteral("OV")));
    r.moveNext();
    EXPECT_EQ(r.text(QStringLiteral("Oznaceni")), QStringLiteral("pant"));
    EXPECT_EQ(r.cislo(QStringLiteral("IDFormat")), 1);
    EXPECT_EQ(r.text(QStringLiteral("jednotka")), QStringLiteral("ks"));
    EXPECT_EQ(r.cislo(QStringLiteral("cas")), 11);
    for (const char* pole : {"Poznamka", "popis", "pocetelementuVsestave", "schema", "datum"})
        EXPECT_EQ(r.text(QLatin1String(pole)), RadkyZakazky::radky(db(), QStringLiteral("Z'1")).text(QLatin1String(pole)))
            << pole;

    // a later list goes on after the items, its first item in a row of its own
    NoveRadky::DoSestavy(db(), QStringLiteral("Z'1"), QStringLiteral("A")).pridej(deska("dno"), 12);
    EXPECT_EQ(RadkyZakazky::radkySestavy(db(), QStringLiteral("Z'1"), QStringLiteral("A")).recordCount(), 3);
    EXPECT_EQ(cisloChyby([&] { NoveRadky::DoSestavy(db(), QStringLiteral("Z'1"), QStringLiteral("B")); }), 5);
}

TEST_F(NoveRadkyTest, HlavickaZakazkyNemaPoleSestavy)
{
    NoveRadky::pridejHlavicku(db(), hlavicka());
    const Recordset r = RadkyZakazky::radky(db(), QStringLiteral("Z'1"));
    ASSERT_EQ(r.recordCount(), 1);
    EXPECT_EQ(r.text(QStringLiteral("Sestava")), QString());
    EXPECT_EQ(r.text(QStringLiteral("Oznaceni")), QString());
    EXPECT_TRUE(r.value(QStringLiteral("popis")).isNull());
    EXPECT_EQ(r.text(QStringLiteral("Poznamka")), QStringLiteral("pozn"));
    NoveRadky::pridejPolozku(db(), hlavicka(QStringLiteral("A")), deska("bok"), 5);
    EXPECT_EQ(RadkyZakazky::radkySestavy(db(), QStringLiteral("Z'1"), QStringLiteral("A")).cislo(QStringLiteral("schema")), 7);
}
