// An accessory entered from the main window: a price-list item chosen in fraPřís brings its
// price and unit, the save lands in GPR and in the store; a second item of the same name is
// refused and the store keeps one row.
#include "Kroky.h"
#include "OknoTest.h"
#include "SkriptovanyPrompt.h"
#include "catalogues/Cenik.h"
#include "orders/Prislusenstvi.h"
#include "ui/FrmNovy.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

namespace {

const QString Uchytka = QStringLiteral("Úchytka 'Oblouk' 128");

class PrislusenstviOkno : public OknoTest {
protected:
    void SetUp() override
    {
        OknoTest::SetUp();
        SkriptovanyPrompt tichy;
        ASSERT_TRUE(Cenik::UlozitPolozku(uloziste().cenik(), tichy, QString(),
                                         {Uchytka, QStringLiteral("4711"), QStringLiteral("45.5"), QStringLiteral("pár"),
                                          QStringLiteral("P"), 0, 0}));
        klik(strom->topLevelItem(0)->child(0)); // Dřez80
        gpr = okno->findChild<QTableWidget*>(QStringLiteral("GPR"));
    }

    // Opens fraPřís by the window's key, chooses the price-list item, types the quantity and
    // saves; then closes the frame. Returns the messages shown on the way.
    QStringList zadejZCeniku(const QString& mnozstvi)
    {
        QStringList nenabizeno;
        Kroky k({vRamci("fraPřís", [&](FrmNovy* d) {
                     auto* nazev = d->findChild<QComboBox*>(QStringLiteral("txtNPrislusenstvi"));
                     const int i = nazev->findText(Uchytka);
                     if (i < 0) { // not offered: close so that the test fails instead of hanging
                         nenabizeno << QStringLiteral("nenabízeno");
                         d->reject();
                         return;
                     }
                     nazev->setCurrentIndex(i);
                     emit nazev->textActivated(Uchytka); // as a click in the drop-down list
                     prevzato = {d->findChild<QLineEdit*>(QStringLiteral("txtCena"))->text(),
                                 d->findChild<QComboBox*>(QStringLiteral("txtJednotka"))->currentText(),
                                 d->findChild<QLabel*>(QStringLiteral("lblCenaJednotka"))->text()};
                     d->findChild<QLineEdit*>(QStringLiteral("txtPocetPrislusenstvi"))->setText(mnozstvi);
                     klikni(d, "cmdUlozitPrislusenstvi");
                 }),
                 vRamci("fraPřís", [](FrmNovy* d) { d->findChild<QPushButton*>(QStringLiteral("cmdZavrit"))->click(); })});
        okno->prikaz(QStringLiteral("NoveP"));
        return nenabizeno + k.zpravy;
    }

    // The stored accessory rows of that name in the assembly.
    std::vector<Prislusenstvi::Polozka> ulozene()
    {
        std::vector<Prislusenstvi::Polozka> v;
        for (const auto& p : Prislusenstvi::NaplnitGridPR(uloziste().dataS(), QStringLiteral("Kuchyně Novák"), QStringLiteral("Dřez80")))
            if (p.oznaceni == Uchytka)
                v.push_back(p);
        return v;
    }

    QTableWidget* gpr = nullptr;
    QStringList prevzato; // price, unit and price label after the choice
};

} // namespace

TEST_F(PrislusenstviOkno, PolozkaZCenikuPrevezmeCenuAJednotkuAUlozi)
{
    ASSERT_TRUE(okno->akce(QStringLiteral("NoveP"))->isEnabled());
    const int predtim = gpr->rowCount();
    const QStringList zpravy = zadejZCeniku(QStringLiteral("2,125"));
    EXPECT_TRUE(zpravy.isEmpty()) << zpravy.join(QLatin1Char('|')).toStdString();
    ASSERT_EQ(prevzato.size(), 3);
    EXPECT_EQ(prevzato[1], QStringLiteral("pár"));
    EXPECT_EQ(prevzato[2], QStringLiteral("Kč/pár"));
    EXPECT_DOUBLE_EQ(prevzato[0].replace(QLatin1Char(','), QLatin1Char('.')).toDouble(), 45.5);

    // one more row in the grid, with the quantity and price as the cells show them
    ASSERT_EQ(gpr->rowCount(), predtim + 1);
    const auto nalezene = gpr->findItems(Uchytka, Qt::MatchExactly);
    ASSERT_EQ(nalezene.size(), 1);
    const int r = nalezene.first()->row();
    EXPECT_EQ(gpr->item(r, 1)->text().replace(QLatin1Char(','), QLatin1Char('.')), QStringLiteral("2.125 pár"));
    EXPECT_EQ(gpr->item(r, 2)->text().replace(QLatin1Char(','), QLatin1Char('.')), QStringLiteral("45.50 Kč/pár"));
    EXPECT_TRUE(okno->akce(QStringLiteral("UpraveniP"))->isEnabled());

    const auto radky = ulozene();
    ASSERT_EQ(radky.size(), 1u);
    EXPECT_DOUBLE_EQ(radky[0].pocet, 2.125);
    EXPECT_DOUBLE_EQ(radky[0].cena, 45.5);
    EXPECT_EQ(radky[0].jednotka, QStringLiteral("pár"));
}

TEST_F(PrislusenstviOkno, DruhaStejnaPolozkaJeOdmitnutaAUlozisteZustane)
{
    ASSERT_TRUE(zadejZCeniku(QStringLiteral("4")).isEmpty());
    const int radkuGridu = gpr->rowCount();
    const QStringList zpravy = zadejZCeniku(QStringLiteral("1"));
    ASSERT_EQ(zpravy.size(), 1);
    EXPECT_EQ(zpravy[0], QStringLiteral("Příslušenství v sestavě již pod tímto názvem existuje, zadejte jiný název !!!"));
    EXPECT_EQ(gpr->rowCount(), radkuGridu);
    const auto radky = ulozene();
    ASSERT_EQ(radky.size(), 1u);
    EXPECT_DOUBLE_EQ(radky[0].pocet, 4);
}
