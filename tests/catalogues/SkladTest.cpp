// The offcut store: entry checks, the merge question, edits and deletion, the printed list.
#include "catalogues/Sklad.h"
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Nastaveni.h"
#include "printing/Dokument.h"

class SkladTest : public NastavenyDomov {
protected:
    Database& db() { return uloziste().dataS(); }
    std::vector<Sklad::Odrezek> vse() { return Sklad::nacti(db(), {}, QStringLiteral("material")); }
    SkriptovanyPrompt prompt;
};

TEST_F(SkladTest, NazevANeplatneUdajeNicNeulozi)
{
    const QString sto(100, QLatin1Char('d'));
    EXPECT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {sto, 500, 300, 1}));
    EXPECT_FALSE(Sklad::UlozitNovyOdrezek(db(), prompt, {sto + QLatin1Char('d'), 500, 300, 1}));
    EXPECT_EQ(prompt.titulky.last(), QStringLiteral("Příliš dlouhý nazev"));
    EXPECT_FALSE(Sklad::UlozitNovyOdrezek(db(), prompt, {QStringLiteral("DTD"), 0, 300, 1}));
    EXPECT_FALSE(Sklad::UlozitNovyOdrezek(db(), prompt, {QStringLiteral("DTD"), 500, 300, 0}));
    EXPECT_FALSE(Sklad::UlozitNovyOdrezek(db(), prompt, {QStringLiteral("  "), 500, 300, 1}));
    EXPECT_EQ(vse().size(), 1u);
}

// The same material and size (to a tenth of a millimetre, and an apostrophe in the name):
// the question; No leaves the store, Yes adds the pieces.
TEST_F(SkladTest, StejnaVelikostSeSlucujeNaOtazku)
{
    const QString nazev = QStringLiteral("DTD 'ořech'");
    ASSERT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {nazev, 500.5, 300, 2}));
    prompt.odpovez(Prompt::Odpoved::Ne);
    EXPECT_FALSE(Sklad::UlozitNovyOdrezek(db(), prompt, {nazev, 500.5, 300, 3}));
    EXPECT_TRUE(prompt.zpravy.last().startsWith(QStringLiteral("Ve skladu již tato deska existuje a to v počtu:  2 ks\n")));
    EXPECT_EQ(vse().at(0).pocet, 2);
    prompt.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {nazev, 500.5, 300, 3}));
    ASSERT_EQ(vse().size(), 1u);
    EXPECT_EQ(vse().at(0).pocet, 5);
}

// An edit to a free size rewrites the row; to a stored size it asks, and on Yes the pieces
// join that row and the old one goes; deletion takes the whole row.
TEST_F(SkladTest, UpravaASmazani)
{
    ASSERT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {QStringLiteral("DTD"), 500, 300, 2}));
    ASSERT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {QStringLiteral("DTD"), 800, 400, 1}));
    EXPECT_TRUE(
        Sklad::UlozitUpravuOdrezku(db(), prompt, {QStringLiteral("DTD"), 500, 300, 2}, {QStringLiteral("DTD"), 600, 300, 4}));
    auto v = Sklad::nacti(db(), {}, QStringLiteral("x"));
    ASSERT_EQ(v.size(), 2u);
    EXPECT_EQ(v[0].x, 600);
    EXPECT_EQ(v[0].pocet, 4);
    prompt.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(Sklad::UlozitUpravuOdrezku(db(), prompt, v[0], {QStringLiteral("DTD"), 800, 400, 4}));
    v = vse();
    ASSERT_EQ(v.size(), 1u);
    EXPECT_EQ(v[0].pocet, 5);
    Sklad::SmazatOdrezek(db(), v[0]);
    EXPECT_TRUE(vse().empty());
}

TEST_F(SkladTest, VypisSkladuJednohoMaterialu)
{
    for (auto [m, x] : {std::pair{"DTD", 900.0}, {"DTD", 300.0}, {"MDF", 500.0}})
        ASSERT_TRUE(Sklad::UlozitNovyOdrezek(db(), prompt, {QString::fromLatin1(m), x, 200, 1}));
    Dokument d;
    Sklad::VypisSkladu(d, db(), QStringLiteral("DTD"));
    const QStringList t = texty<OpTextBox, OpText>(d, 1);
    EXPECT_TRUE(t.contains(QStringLiteral("VÝPIS ZE SKLADU ODŘEZKŮ")));
    EXPECT_TRUE(t.contains(QStringLiteral("Strana  1 / 1")));
    EXPECT_FALSE(t.contains(QStringLiteral("MDF")));
    EXPECT_LT(t.indexOf(QStringLiteral("300 mm x 200 mm")), t.indexOf(QStringLiteral("900 mm x 200 mm")));
}

// The plan's write-back in tenths of a millimetre: a piece in joins its size (case-blind name),
// a piece out counts down and takes the row with its last piece; a size not stored is left be.
TEST_F(SkladTest, KusyPlanuVDesetinach)
{
    const QString nazev = QStringLiteral("DTD 'bílá'");
    Sklad::pridejKus(db(), nazev, 3333, 1200.5);
    Sklad::pridejKus(db(), QStringLiteral("dtd 'BÍLÁ'"), 3333, 1200.5);
    ASSERT_EQ(vse().size(), 1u);
    EXPECT_EQ(vse()[0].pocet, 2);
    EXPECT_DOUBLE_EQ(vse()[0].x, 333.3);
    Sklad::odeberKus(db(), nazev, 3333, 1200);
    EXPECT_EQ(vse()[0].pocet, 2);
    Sklad::odeberKus(db(), nazev, 3333, 1200.5);
    EXPECT_EQ(vse()[0].pocet, 1);
    Sklad::odeberKus(db(), nazev, 3333, 1200.5);
    EXPECT_TRUE(vse().empty());
}
