// What the main window does after an edit, as a joiner meets it: the price panels follow an
// edited format and a deleted band, the number fields of the entry frames take only numbers
// and show them in their form on leaving, a deleted order gives the selection to its
// neighbour, and a plan's offcuts are booked into the store once unless asked again.
#include "Kroky.h"
#include "OknoTest.h"
#include "SkriptovanyPrompt.h"
#include "catalogues/Sklad.h"
#include "core/Jednotky.h"
#include "costing/Kalkulace.h"
#include "optimiser/PlanRun.h"
#include "orders/Zakazky.h"
#include "ui/FrmNP.h"
#include "ui/FrmNovy.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QTest>

namespace {

const QString Kuchyne = QStringLiteral("Kuchyně Novák");

// The frame's number field after the keys were typed into it and the focus left it; the text
// while it was being typed comes in napsano.
QString napisAOdejdi(QWidget* d, const char* pole, const QString& klavesy, QString* napsano = nullptr)
{
    auto* e = d->findChild<QLineEdit*>(QLatin1String(pole));
    QFocusEvent dovnitr(QEvent::FocusIn), ven(QEvent::FocusOut);
    QApplication::sendEvent(e, &dovnitr);
    e->clear();
    QTest::keyClicks(e, klavesy);
    if (napsano)
        *napsano = e->text();
    QApplication::sendEvent(e, &ven);
    return e->text();
}

using ZaznamyOkno = OknoTest;

} // namespace

TEST_F(ZaznamyOkno, PanelyCenPoUpraveFormatuASmazaniHrany)
{
    auto* panel2 = okno->findChild<QLabel*>(QStringLiteral("panel2"));
    klik(strom->topLevelItem(0));
    const QString puvodne = panel2->text();
    okno->findChild<QTableWidget*>(QStringLiteral("GridFormaty"))->setCurrentCell(0, 0);
    {
        Kroky upravit({vRamci("fraMaterial", [](FrmNovy* d) {
            d->findChild<QLineEdit*>(QStringLiteral("txtFCena"))->setText(QStringLiteral("700"));
            klikni(d, "cmdFormatUlozit");
        })});
        okno->prikaz(QStringLiteral("UF"));
        EXPECT_TRUE(upravit.hotovo());
    }
    const QString poUprave = panel2->text();
    EXPECT_NE(poUprave, puvodne);
    // the band the boards use goes (the question answered Ano): their band lengths cost nothing now
    okno->findChild<QTableWidget*>(QStringLiteral("GridHrany"))->setCurrentCell(0, 0);
    Kroky smazat({});
    okno->prikaz(QStringLiteral("SH"));
    EXPECT_EQ(smazat.zpravy.size(), 1);
    EXPECT_NE(panel2->text(), poUprave);
}

// With the cutting priced (the first-run settings), the order's panel keeps its cut lengths while
// the joiner moves around the tree, and an edited board drops them: the panel is what a fresh
// costing gives, cutting included, before and after.
TEST_F(ZaznamyOkno, PanelZakazkySRezanimPoUpraveDesky)
{
    auto* panel2 = okno->findChild<QLabel*>(QStringLiteral("panel2"));
    auto cerstva = [&] { return Kalkulace::ZobrazCeny(uloziste(), Kuchyne, QString()).zakazka; };
    QTreeWidgetItem* sokl = strom->topLevelItem(0)->child(2);
    ASSERT_EQ(sokl->data(0, Qt::UserRole + 1).toString(), QStringLiteral("Sokl")); // the tree sorts by name
    klik(strom->topLevelItem(0));
    const QString puvodne = panel2->text();
    EXPECT_EQ(puvodne, cerstva());
    klik(sokl);
    EXPECT_EQ(panel2->text(), puvodne);
    const double metru = Rezani::zakazky(uloziste(), Kuchyne)[0].metru;

    okno->findChild<QTableWidget*>(QStringLiteral("GPM"))->setCurrentCell(0, 0); // sokl, 2 pieces
    Kroky upravit({vRamci("fraPlMat", [](FrmNovy* d) {
        d->findChild<QLineEdit*>(QStringLiteral("txtPocetMaterial"))->setText(QStringLiteral("4"));
        klikni(d, "cmdUPM");
    })});
    okno->prikaz(QStringLiteral("UpraveniPM"));
    ASSERT_TRUE(upravit.hotovo());
    ASSERT_NE(Rezani::zakazky(uloziste(), Kuchyne)[0].metru, metru); // the plan cuts more
    EXPECT_NE(panel2->text(), puvodne);
    EXPECT_EQ(panel2->text(), cerstva());
    klik(strom->topLevelItem(0));
    EXPECT_EQ(panel2->text(), cerstva());
}

TEST_F(ZaznamyOkno, CiselnaPoleFiltrujiAUkazujiTvar)
{
    const QString o = Jednotky::oddelovac();
    klik(strom->topLevelItem(0));
    QString cenaFormatu, napsanaCena;
    {
        Kroky format({vRamci("fraMaterial", [&](FrmNovy* d) {
            cenaFormatu = napisAOdejdi(d, "txtFCena", QStringLiteral("4x1a2") + o + QStringLiteral("5"), &napsanaCena);
            d->reject();
        })});
        okno->prikaz(QStringLiteral("NF"));
    }
    EXPECT_EQ(napsanaCena, QStringLiteral("412") + o + QStringLiteral("5"));
    EXPECT_EQ(cenaFormatu, QStringLiteral("412.50 Kč/m2"));

    klik(strom->topLevelItem(0)->child(0));
    QString mnozstvi, napsaneMnozstvi, cena;
    Kroky prislusenstvi({vRamci("fraPřís", [&](FrmNovy* d) {
        mnozstvi = napisAOdejdi(d, "txtPocetPrislusenstvi", QStringLiteral("2a") + o + QStringLiteral("5x"), &napsaneMnozstvi);
        cena = napisAOdejdi(d, "txtCena", QStringLiteral("-12") + o + QStringLiteral("505"));
        d->reject();
    })});
    okno->prikaz(QStringLiteral("NoveP"));
    EXPECT_EQ(napsaneMnozstvi, QStringLiteral("2") + o + QStringLiteral("5"));
    EXPECT_EQ(mnozstvi, QStringLiteral("2") + o + QStringLiteral("500"));
    EXPECT_EQ(cena, QStringLiteral("12") + o + QStringLiteral("50")); // no sign, two decimals at most
}

TEST_F(ZaznamyOkno, SmazanaZakazkaPredaVyberSousedovi)
{
    SkriptovanyPrompt tichy;
    for (const char* nazev : {"Skříň Dvořák", "Postel Malá"})
        ASSERT_TRUE(Zakazky::UlozitNovouZakazku(uloziste().dataS(), tichy, QString::fromUtf8(nazev), QString()));
    okno->NaplnitStrom();
    ASSERT_EQ(strom->topLevelItemCount(), 3);
    const QString treti = strom->topLevelItem(2)->text(0);
    klik(strom->topLevelItem(1));
    Kroky ano({});
    okno->prikaz(QStringLiteral("SmazaniZakazky"));
    EXPECT_EQ(ano.zpravy.size(), 1);
    EXPECT_EQ(okno->txtzakazka(), treti);
    // the last order gives it to the one before it
    klik(strom->topLevelItem(1));
    okno->prikaz(QStringLiteral("SmazaniZakazky"));
    EXPECT_EQ(okno->txtzakazka(), Kuchyne);
}

// "Sklad" pressed twice on one plan: the second press asks, and its default (No) books nothing.
TEST_F(ZaznamyOkno, DruhyZapisOdrezkuSePta)
{
    SkriptovanyPrompt tichy;
    TichyPrubeh prubeh;
    PlanRun run(uloziste(), tichy, prubeh);
    ASSERT_TRUE(run.SpustNP(Kuchyne, 5000001, ZpusobNP::Kombinovane));
    FrmNP np(uloziste(), prompt, PlanNaStrankach::z(run), okno.get());
    auto kusu = [&] {
        int n = 0;
        for (const Sklad::Odrezek& o : Sklad::nacti(uloziste().dataS(), QString(), QStringLiteral("Material")))
            n += int(o.pocet);
        return n;
    };
    {
        Kroky poprve({});
        np.OdepisOdrezky();
    }
    const int poPrvnim = kusu();
    EXPECT_GT(poPrvnim, 0);
    Kroky podruhe({});
    np.OdepisOdrezky();
    EXPECT_EQ(podruhe.zpravy, QStringList{QStringLiteral("Odřezky tohoto plánu už jsou ve skladu. Zapsat je znovu?")});
    EXPECT_EQ(kusu(), poPrvnim);
}
