// The main window: its menus and keys, the command states that follow the selection, and a
// plan run started from the window.
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Nastaveni.h"
#include "exchange/ZakazkaJson.h"
#include "ui/FrmBorovak.h"
#include "ui/FrmNovy.h"
#include "ui/QtPrompt.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

namespace {

class Okno : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        Nastaveni::ZapisVychoziNastaveni(1000, 1000, 13500, 9000);
        QFile demo(QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"));
        demo.open(QIODevice::ReadOnly);
        ZakazkaJson::nacti(uloziste().dataS(), demo.readAll());
        okno = std::make_unique<FrmBorovak>(uloziste(), prompt);
        strom = okno->findChild<QTreeWidget*>(QStringLiteral("tvzakazky"));
    }
    void TearDown() override
    {
        okno.reset();
        DomovTest::TearDown();
    }
    void klik(QTreeWidgetItem* u) { emit strom->itemClicked(u, 0); }
    bool zapnuto(const char* nazev) { return okno->akce(QLatin1String(nazev))->isEnabled(); }

    QtPrompt prompt;
    std::unique_ptr<FrmBorovak> okno;
    QTreeWidget* strom = nullptr;
};

} // namespace

TEST_F(Okno, NabidkaAStromPoSpusteni)
{
    EXPECT_EQ(okno->windowTitle(), QStringLiteral("Truhlář V ") + Nastaveni::verze());
    QStringList hlavni;
    for (QAction* a : okno->menuBar()->actions())
        hlavni << a->text();
    EXPECT_EQ(hlavni, QStringList({"&Zakázky", "&Doplňky", "&Data", "&Výpisy", "&Jazyk", "&O programu"}));
    EXPECT_EQ(okno->akce(QStringLiteral("UpraveniZakazky"))->text(), QStringLiteral("U&pravení zakázky"));
    EXPECT_EQ(okno->akce(QStringLiteral("tbODZ"))->toolTip(), QStringLiteral("Vložení zálohovaných dat"));
    ASSERT_EQ(strom->topLevelItemCount(), 1);
    EXPECT_EQ(strom->topLevelItem(0)->child(1)->text(0), QStringLiteral("Horní60 ( 2 ks )"));
    // nothing selected: no plan, no backup, but restore
    EXPECT_FALSE(zapnuto("NP"));
    EXPECT_FALSE(zapnuto("Vz"));
    EXPECT_TRUE(zapnuto("OD"));
}

TEST_F(Okno, StavPrikazuSleduVyber)
{
    QTreeWidgetItem* zakazka = strom->topLevelItem(0);
    klik(zakazka);
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Kuchyně Novák"));
    EXPECT_EQ(okno->txtSestava(), QString());
    EXPECT_TRUE(zapnuto("NP"));
    EXPECT_TRUE(zapnuto("tbNP"));
    EXPECT_TRUE(zapnuto("Sestava"));
    EXPECT_FALSE(zapnuto("PlMaterial"));
    klik(zakazka->child(0));
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Dřez80"));
    EXPECT_TRUE(zapnuto("NP"));
    EXPECT_TRUE(zapnuto("PlMaterial"));
    klik(zakazka);
    EXPECT_FALSE(zapnuto("PlMaterial"));
    EXPECT_TRUE(zapnuto("NP"));
}

TEST_F(Okno, PlanSpustenyZOknaDobehneAZpravaRekneKolikTabuli)
{
    klik(strom->topLevelItem(0));
    // answer the dialogs as a user would: Pokračuj in the plan start, then OK under the result
    QTimer stisk;
    QStringList zpravy;
    QObject::connect(&stisk, &QTimer::timeout, [&] {
        if (auto* d = qobject_cast<FrmNovy*>(QApplication::activeModalWidget())) {
            if (auto* ok = d->findChild<QPushButton*>(QStringLiteral("cmdOKNP")); ok && ok->isVisible())
                ok->click();
        } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            zpravy << box->text();
            box->accept();
        }
    });
    stisk.start(20);
    okno->prikaz(QStringLiteral("NP"));
    ASSERT_EQ(zpravy.size(), 1);
    EXPECT_TRUE(zpravy[0].startsWith(QStringLiteral("Nářezový plán je hotov: ")));
    EXPECT_TRUE(zpravy[0].contains(QStringLiteral("usazeno 40 desek")));
    EXPECT_FALSE(uloziste().maDataK());
}
