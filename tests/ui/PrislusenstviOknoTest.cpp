// An accessory entered from the main window: a price-list item chosen in fraPřís brings its
// price and unit, the save lands in GPR and in the store; a second item of the same name is
// refused and the store keeps one row.
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "catalogues/Cenik.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "exchange/ZakazkaJson.h"
#include "orders/Prislusenstvi.h"
#include "ui/FrmBorovak.h"
#include "ui/FrmNovy.h"
#include "ui/QtPrompt.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>

namespace {

const QString Uchytka = QStringLiteral("Úchytka 'Oblouk' 128");

class PrislusenstviOkno : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        Nastaveni::ZapisVychoziNastaveni(1000, 1000, 13500, 9000);
        ZakazkaJson::nacti(uloziste().dataS(), demoJson());
        SkriptovanyPrompt tichy;
        ASSERT_TRUE(Cenik::UlozitPolozku(uloziste().cenik(), tichy, QString(),
                                         {Uchytka, QStringLiteral("4711"), QStringLiteral("45.5"), QStringLiteral("pár"),
                                          QStringLiteral("P"), 0, 0}));
        okno = std::make_unique<FrmBorovak>(uloziste(), prompt);
        auto* strom = okno->findChild<QTreeWidget*>(QStringLiteral("tvzakazky"));
        emit strom->itemClicked(strom->topLevelItem(0)->child(0), 0); // Dřez80
        gpr = okno->findChild<QTableWidget*>(QStringLiteral("GPR"));
    }
    void TearDown() override
    {
        okno.reset();
        DomovTest::TearDown();
    }

    // Opens fraPřís by the window's key, chooses the price-list item, types the quantity and
    // saves; then closes the frame. Returns the messages shown on the way.
    QStringList zadejZCeniku(const QString& mnozstvi)
    {
        QStringList zpravy;
        bool ulozeno = false;
        QTimer ruka;
        QObject::connect(&ruka, &QTimer::timeout, [&] {
            QWidget* w = QApplication::activeModalWidget();
            if (auto* box = qobject_cast<QMessageBox*>(w)) {
                zpravy << box->text();
                box->accept();
                return;
            }
            auto* d = qobject_cast<FrmNovy*>(w);
            if (!d || !d->findChild<QWidget*>(QStringLiteral("fraPřís")))
                return;
            if (ulozeno) {
                d->findChild<QPushButton*>(QStringLiteral("cmdZavrit"))->click();
                return;
            }
            auto* nazev = d->findChild<QComboBox*>(QStringLiteral("txtNPrislusenstvi"));
            const int i = nazev->findText(Uchytka);
            if (i < 0) { // not offered: close so that the test fails instead of hanging
                zpravy << QStringLiteral("nenabízeno");
                d->reject();
                return;
            }
            nazev->setCurrentIndex(i);
            emit nazev->textActivated(Uchytka); // as a click in the drop-down list
            prevzato = {d->findChild<QLineEdit*>(QStringLiteral("txtCena"))->text(),
                        d->findChild<QComboBox*>(QStringLiteral("txtJednotka"))->currentText(),
                        d->findChild<QLabel*>(QStringLiteral("lblCenaJednotka"))->text()};
            d->findChild<QLineEdit*>(QStringLiteral("txtPocetPrislusenstvi"))->setText(mnozstvi);
            // queued: a refusal's message box must find this hand free to answer it
            QMetaObject::invokeMethod(d->findChild<QPushButton*>(QStringLiteral("cmdUlozitPrislusenstvi")), "click",
                                      Qt::QueuedConnection);
            ulozeno = true;
        });
        ruka.start(5);
        okno->prikaz(QStringLiteral("NoveP"));
        return zpravy;
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

    QtPrompt prompt;
    std::unique_ptr<FrmBorovak> okno;
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

TEST_F(PrislusenstviOkno, NulaKusuNeniUlozena)
{
    const int predtim = gpr->rowCount();
    const QStringList zpravy = zadejZCeniku(QStringLiteral("0"));
    ASSERT_EQ(zpravy.size(), 1);
    EXPECT_EQ(zpravy[0], QStringLiteral("Zadejte množství a cenu číslem."));
    EXPECT_EQ(gpr->rowCount(), predtim);
    EXPECT_TRUE(ulozene().empty());
}
