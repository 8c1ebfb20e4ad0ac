// The main window: its menus and keys, the command states that follow the selection, and a
// plan run started from the window.
#include "Kroky.h"
#include "OknoTest.h"
#include "SkriptovanyPrompt.h"
#include "ui/FrmNP.h"
#include "ui/FrmVSP.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTest>

namespace {

class Okno : public OknoTest {
protected:
    // Starts a plan from the window, answering as a user would: Pokračuj in the plan start once
    // predPokracovanim agrees, then Storno in the progress frame if asked, OK under any message.
    // Returns the messages.
    QStringList spustPlan(bool storno, std::function<bool(FrmNovy*)> predPokracovanim = {})
    {
        QTimer ruka;
        QStringList zpravy;
        QObject::connect(&ruka, &QTimer::timeout, [&] {
            if (auto* d = qobject_cast<FrmNovy*>(QApplication::activeModalWidget())) {
                auto* ok = d->findChild<QPushButton*>(QStringLiteral("cmdOKNP"));
                auto* zastav = d->findChild<QPushButton*>(QStringLiteral("cmdStornoNP"));
                if (ok && ok->isVisible()) {
                    if (!predPokracovanim || predPokracovanim(d))
                        ok->click();
                }
                else if (storno && zastav && zastav->isVisible())
                    zastav->click();
            } else if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                zpravy << box->text();
                box->accept();
            } else if (auto* np = qobject_cast<FrmNP*>(QApplication::activeModalWidget())) {
                prohlizec = {np->windowTitle(), np->textStrany(), np->akce(QStringLiteral("MINUS"))->isEnabled(),
                             np->akce(QStringLiteral("PLUS"))->isEnabled(), np->akce(QStringLiteral("Sklad"))->isEnabled()};
                QTest::keyClick(np, Qt::Key_Right);
                prohlizec << np->textStrany();
                QTest::keyClick(np, Qt::Key_Escape);
            }
        });
        ruka.start(1);
        okno->prikaz(QStringLiteral("NP"));
        return zpravy;
    }

    QVariantList prohlizec; // what the plan viewer showed: title, page box, back, forward, store
};

} // namespace

TEST_F(Okno, NabidkaAStromPoSpusteni)
{
    // the menus' captions are the language file's, compared line by line with the language tests
    EXPECT_EQ(okno->windowTitle(), QStringLiteral("Truhlář V ") + Nastaveni::verze());
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

TEST_F(Okno, PlanSpustenyZOknaKonciVProhlizeci)
{
    klik(strom->topLevelItem(0));
    const QStringList zpravy = spustPlan(false);
    EXPECT_TRUE(zpravy.isEmpty()) << zpravy.join(QLatin1Char('|')).toStdString();
    ASSERT_EQ(prohlizec.size(), 6);
    EXPECT_EQ(prohlizec[0].toString(), QStringLiteral("Nářezový plán - kombinovaně"));
    EXPECT_EQ(prohlizec[1].toString(), QStringLiteral("1 / 2"));
    EXPECT_FALSE(prohlizec[2].toBool()); // no page before the first
    EXPECT_TRUE(prohlizec[3].toBool());
    EXPECT_TRUE(prohlizec[4].toBool()); // the plan can be booked against the offcut store
    EXPECT_EQ(prohlizec[5].toString(), QStringLiteral("2 / 2")); // the right arrow went forward
    EXPECT_FALSE(uloziste().maDataK()); // closing the viewer closed the plan database
}

// A whole order entered by hand: new order, its format (the dialog opens by itself), a new
// assembly and its first board, each through its frame's fields and save button.
TEST_F(Okno, ZakazkaZadanaRucneOdZakazkyPoDesku)
{
    auto vypln = [](QWidget* d, const char* nazev, const QString& text) {
        if (auto* e = d->findChild<QLineEdit*>(QLatin1String(nazev)))
            e->setText(text);
        else if (auto* c = d->findChild<QComboBox*>(QLatin1String(nazev)))
            c->setCurrentText(text);
    };
    auto stisk = [](QWidget* d, const char* tlacitko) { d->findChild<QPushButton*>(QLatin1String(tlacitko))->click(); };
    {
        Kroky k({vRamci("fraZakázka", [&](FrmNovy* d) {
                     vypln(d, "txtzakazka", QStringLiteral("Skříň 'Dvořák'"));
                     stisk(d, "cmdZakazkaPouzit");
                 }),
                 vRamci("fraMaterial", [&](FrmNovy* d) {
                     vypln(d, "txtFormat", QStringLiteral("DTD dub 18"));
                     vypln(d, "txtFX", QStringLiteral("2800"));
                     vypln(d, "txtFY", QStringLiteral("2070"));
                     vypln(d, "txtFCena", QStringLiteral("420"));
                     stisk(d, "cmdFormatUlozit"); // stays open for the next format
                 }),
                 vRamci("fraMaterial", [](FrmNovy* d) { d->close(); })});
        okno->prikaz(QStringLiteral("NZakazka"));
        ASSERT_TRUE(k.hotovo());
    }
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Skříň 'Dvořák'"));
    {
        Kroky k({vRamci("fraTyp", [&](FrmNovy* d) {
                     vypln(d, "txtNT", QStringLiteral("Skříň12345")); // cut to 7 while typing
                     QTest::keyClicks(d->findChild<QLineEdit*>(QStringLiteral("txtNT")), QStringLiteral("X"));
                     stisk(d, "cmdUlozitP");
                 }),
                 vRamci("fraPlMat", [&](FrmNovy* d) {
                     vypln(d, "txtX", QStringLiteral("720"));
                     vypln(d, "txtY", QStringLiteral("560"));
                     vypln(d, "cmbMaterial", QStringLiteral("DTD dub 18 (2800 mm x 2070 mm)"));
                     stisk(d, "cmdUPM");
                     d->close();
                 })});
        okno->prikaz(QStringLiteral("NSestava"));
        ASSERT_TRUE(k.hotovo());
    }
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Skříň12"));
    auto* gpm = okno->findChild<QTableWidget*>(QStringLiteral("GPM"));
    ASSERT_EQ(gpm->rowCount(), 1);
    EXPECT_EQ(gpm->item(0, 0)->text(), QStringLiteral("deska 1"));
    EXPECT_EQ(gpm->item(0, 4)->text(), QStringLiteral("DTD dub 18 (2800 mm x 2070 mm)"));
    EXPECT_EQ(strom->topLevelItemCount(), 2);
}

// The plan start compares the four ways before the joiner chooses: the three quick ones and
// "úsporně" fill their rows, and "úsporně" chosen there ends in its own plan in the viewer.
TEST_F(Okno, PlanSeCtyrmiZpusobyVedleSebe)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("CasUsporne"), QStringLiteral("0.1"));
    klik(strom->topLevelItem(0));
    QStringList radky;
    spustPlan(false, [&](FrmNovy* d) {
        auto* tabulka = d->findChild<QTableWidget*>(QStringLiteral("tblSrovnani"));
        if (tabulka->item(3, 0)->text().startsWith(QStringLiteral("počítá")))
            return false;
        for (int r = 0; r < 4; ++r)
            radky << tabulka->verticalHeaderItem(r)->text() + QLatin1Char(' ') + tabulka->item(r, 0)->text();
        d->findChild<QComboBox*>(QStringLiteral("cmbZpusobRezani"))->setCurrentIndex(3);
        return true;
    });
    EXPECT_EQ(radky, QStringList({"kombinovaně 2", "podélné řezy 2", "příčné řezy 2", "úsporně 2"}));
    ASSERT_FALSE(prohlizec.isEmpty());
    EXPECT_EQ(prohlizec[0].toString(), QStringLiteral("Nářezový plán - úsporně"));
    EXPECT_FALSE(uloziste().maDataK());
}

// Storno in the progress frame stops the run at its next look at the flag: no plan message.
TEST_F(Okno, StornoZastaviBeh)
{
    klik(strom->topLevelItem(0));
    const QStringList zpravy = spustPlan(true);
    EXPECT_TRUE(zpravy.isEmpty()) << zpravy.join(QLatin1Char('|')).toStdString();
    EXPECT_FALSE(uloziste().maDataK());
}

// The import from the assembly page: a refused line keeps the window open with the caret on it;
// a good list fills the grid, and its boards are priced in both panels at once.
TEST_F(Okno, ImportZeStrankySestavyAChybnyRadek)
{
    klik(strom->topLevelItem(0));
    klik(strom->topLevelItem(0)->child(3)); // Zásuv50
    auto* panel2 = okno->findChild<QLabel*>(QStringLiteral("panel2"));
    auto* panel3 = okno->findChild<QLabel*>(QStringLiteral("panel3"));
    const QString zakazka = panel2->text(), sestava = panel3->text();
    ASSERT_TRUE(okno->findChild<QPushButton*>(QStringLiteral("cmdImport"))->isEnabled());
    int radekKurzoru = -1;
    Kroky k({[](QWidget* d) {
                 if (d->objectName() != QLatin1String("frmImport"))
                     return false;
                 d->findChild<QPlainTextEdit*>(QStringLiteral("Text1"))->setPlainText(QStringLiteral("a;100;100;1\nb;0;100;1\n"));
                 klikni(d, "cmdImportovat"); // the refusal's message must not run inside this step
                 return true;
             },
             [&](QWidget* d) {
                 if (d->objectName() != QLatin1String("frmImport") || k.zpravy.isEmpty())
                     return false;
                 auto* text = d->findChild<QPlainTextEdit*>(QStringLiteral("Text1"));
                 radekKurzoru = text->textCursor().blockNumber();
                 text->setPlainText(QStringLiteral("a;100;100;1\nb;200;100;1\n"));
                 d->findChild<QPushButton*>(QStringLiteral("cmdImportovat"))->click();
                 return true;
             }});
    okno->prikaz(QStringLiteral("cmdImport"));
    EXPECT_TRUE(k.hotovo());
    EXPECT_EQ(k.zpravy.size(), 1);
    EXPECT_EQ(radekKurzoru, 1);
    EXPECT_EQ(okno->findChild<QTableWidget*>(QStringLiteral("GPM"))->rowCount(), 7);
    EXPECT_NE(panel2->text(), zakazka);
    EXPECT_NE(panel3->text(), sestava);
}

// After a restore the tree is refilled and nothing is selected; the dialogs are answered by
// the scripted prompt.
TEST_F(DomovTest, PoObnoveNeniNicVybrano)
{
    Nastaveni::ZapisVychoziNastaveni(1000, 1000, 13500, 9000);
    ZakazkaJson::nacti(uloziste().dataS(), demoJson());
    SkriptovanyPrompt prompt;
    FrmBorovak okno(uloziste(), prompt);
    const QString zaloha = domov() + QStringLiteral("/z.bvk");
    prompt.odpovez(zaloha);
    okno.prikaz(QStringLiteral("Vz"));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Zálohování bylo úspěšně dokončeno"));
    auto* strom = okno.findChild<QTreeWidget*>(QStringLiteral("tvzakazky"));
    emit strom->itemClicked(strom->topLevelItem(0)->child(0), 0);
    ASSERT_EQ(okno.txtSestava(), QStringLiteral("Dřez80"));
    prompt.odpovez(zaloha);
    prompt.odpovez(Prompt::Odpoved::Ano);
    okno.prikaz(QStringLiteral("OD"));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Obnova zálohy byla úspěšně dokončena"));
    EXPECT_EQ(okno.txtzakazka(), QString());
    EXPECT_EQ(okno.txtSestava(), QString());
    EXPECT_FALSE(okno.akce(QStringLiteral("NP"))->isEnabled());
    EXPECT_EQ(strom->topLevelItemCount(), 1);
}

// Editing and deleting through the window: three boards (one with a blank name), a board, the
// format and the assembly edited, then a board, the assembly and the order deleted, with the
// command states after each selection.
TEST_F(Okno, UpravyASmazaniZOkna)
{
    QTreeWidgetItem* zakazka = strom->topLevelItem(0);
    klik(zakazka);
    klik(zakazka->child(2)); // Sokl: two boards
    auto* gpm = okno->findChild<QTableWidget*>(QStringLiteral("GPM"));
    ASSERT_EQ(gpm->rowCount(), 2);
    auto pole = [](FrmNovy* d, const char* n) { return d->findChild<QLineEdit*>(QLatin1String(n)); };
    // Runs the window's command with one step on its entry dialog, each question answered Ano.
    auto prikaz = [&](const char* nazev, std::deque<Kroky::Krok> kroky) {
        Kroky k(std::move(kroky));
        okno->prikaz(QLatin1String(nazev));
        EXPECT_TRUE(k.hotovo()) << nazev;
    };
    // three new boards in one series, the second with a blank name
    auto novaDeska = [&](const QString& jmeno, int y, bool posledni) {
        return vOkne<FrmNovy>([=](FrmNovy* d) {
            d->findChild<QComboBox*>(QStringLiteral("txtPM"))->setCurrentText(jmeno);
            pole(d, "txtX")->setText(QStringLiteral("400"));
            pole(d, "txtY")->setText(QString::number(y));
            d->findChild<QComboBox*>(QStringLiteral("cmbMaterial"))->setCurrentIndex(1);
            klikni(d, "cmdUPM");
            if (posledni)
                QMetaObject::invokeMethod(d, "close", Qt::QueuedConnection);
        });
    };
    prikaz("NovyPloM", {novaDeska(QStringLiteral("lišta"), 100, false), novaDeska(QString(), 101, false),
                        novaDeska(QStringLiteral("čelo"), 102, true)});
    ASSERT_EQ(gpm->rowCount(), 5);
    QStringList nazvy;
    for (int r = 0; r < gpm->rowCount(); ++r)
        nazvy << gpm->item(r, 0)->text();
    EXPECT_TRUE(nazvy.contains(QStringLiteral("deska 1"))) << nazvy.join(QLatin1Char(',')).toStdString();
    // edit the current (last) board's length
    gpm->setCurrentCell(gpm->rowCount() - 1, 0);
    prikaz("UpraveniPM", {vOkne<FrmNovy>([&](FrmNovy* d) {
               pole(d, "txtX")->setText(QStringLiteral("444"));
               klikni(d, "cmdUPM");
           })});
    EXPECT_EQ(gpm->item(gpm->rowCount() - 1, 1)->text(), QStringLiteral("444 mm"));
    // delete it (the question answered Yes)
    prikaz("SmazaniPM", {});
    EXPECT_EQ(gpm->rowCount(), 4);
    // edit the format's price, then the assembly's name
    klik(zakazka);
    EXPECT_FALSE(okno->akce(QStringLiteral("PlMaterial"))->isEnabled());
    okno->findChild<QTableWidget*>(QStringLiteral("GridFormaty"))->setCurrentCell(0, 0);
    prikaz("UF", {vOkne<FrmNovy>([&](FrmNovy* d) {
               pole(d, "txtFCena")->setText(QStringLiteral("399"));
               klikni(d, "cmdFormatUlozit");
           })});
    EXPECT_EQ(okno->findChild<QTableWidget*>(QStringLiteral("GridFormaty"))->item(0, 3)->text(), QStringLiteral("399.00 Kč/m2"));
    klik(strom->topLevelItem(0)->child(2));
    prikaz("USestava", {vOkne<FrmNovy>([&](FrmNovy* d) {
               pole(d, "txtNT")->setText(QStringLiteral("Sokly"));
               klikni(d, "cmdUlozitP");
           })});
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Sokly"));
    EXPECT_TRUE(okno->akce(QStringLiteral("PlMaterial"))->isEnabled());
    // delete the assembly, then the order
    prikaz("SmazaniSestavy", {});
    EXPECT_EQ(strom->topLevelItem(0)->childCount(), 3);
    EXPECT_EQ(okno->txtSestava(), QString());
    prikaz("SmazaniZakazky", {});
    EXPECT_EQ(strom->topLevelItemCount(), 0);
    EXPECT_EQ(okno->txtzakazka(), QString());
    EXPECT_FALSE(okno->akce(QStringLiteral("NP"))->isEnabled());
    EXPECT_TRUE(okno->akce(QStringLiteral("tbNZ"))->isEnabled());
}

// Výpisy / Kalkulace: the assemblies in fraKalkulace, all chosen; then the order's calculation
// in the report preview, two pages, Page Up forward.
TEST_F(Okno, KalkulaceZakazkyVNahledu)
{
    klik(strom->topLevelItem(0));
    ASSERT_TRUE(zapnuto("RychlaKalkulace"));
    QStringList videno;
    Kroky k({vOkne<FrmNovy>([&](FrmNovy* dialog) {
                 videno << QString::number(dialog->findChild<QListWidget*>(QStringLiteral("lstSestava"))->selectedItems().size());
                 dialog->findChild<QPushButton*>(QStringLiteral("cmdKalkulace"))->click();
             }),
             vOkne<FrmVSP>([&](FrmVSP* vsp) {
                 videno << vsp->windowTitle() << vsp->textStrany();
                 QTest::keyClick(vsp, Qt::Key_PageUp);
                 videno << vsp->textStrany() << QString::number(vsp->akce(QStringLiteral("PLUS"))->isEnabled());
                 vsp->akce(QStringLiteral("ZoomPlus"))->trigger();
                 videno << QString::number(vsp->Zoom());
                 QTest::keyClick(vsp, Qt::Key_Escape);
             })});
    okno->prikaz(QStringLiteral("RychlaKalkulace"));
    EXPECT_EQ(videno, QStringList({"4", "Kalkulace zakázky", "1 / 2", "2 / 2", "0", "125"}));
    EXPECT_FALSE(uloziste().maDataK());
}

// A click on the assembly's price panel: the assembly calculation of the one assembly left
// chosen; with nothing chosen the report cannot be asked for.
TEST_F(Okno, PanelCenySestavyOtviraKalkulaciSestav)
{
    klik(strom->topLevelItem(0)->child(0));
    QStringList videno;
    Kroky k({vOkne<FrmNovy>([&](FrmNovy* dialog) {
                 auto* seznam = dialog->findChild<QListWidget*>(QStringLiteral("lstSestava"));
                 auto* spustit = dialog->findChild<QPushButton*>(QStringLiteral("cmdKalkulace"));
                 seznam->clearSelection();
                 videno << QString::number(spustit->isEnabled());
                 seznam->item(1)->setSelected(true);
                 videno << QString::number(spustit->isEnabled()) << dialog->windowTitle();
                 spustit->click();
             }),
             vOkne<FrmVSP>([&](FrmVSP* vsp) {
                 videno << vsp->windowTitle();
                 for (const Operace& op : vsp->dokument().strana(1).operace)
                     if (const auto* t = std::get_if<OpTextBox>(&op); t && t->text.contains(QStringLiteral(" ks - ")))
                         videno << t->text.section(QLatin1Char(' '), 0, 0);
                 QTest::keyClick(vsp, Qt::Key_Escape);
             })});
    QTest::mouseClick(okno->findChild<QLabel*>(QStringLiteral("panel3")), Qt::LeftButton);
    EXPECT_EQ(videno, QStringList({"0", "1", "Kalkulace sestav", "Kalkulace sestav", "Horní60"}));
}

// The price panels follow the selection and every edit: the demo order 5062.31 Kč with VAT
// (the cutting off), one Dřez80 1195.00 Kč; a deleted board takes its price out of both at once.
TEST_F(Okno, PanelyCenPoVyberuAUprave)
{
    bezRezani();
    auto* panel2 = okno->findChild<QLabel*>(QStringLiteral("panel2"));
    auto* panel3 = okno->findChild<QLabel*>(QStringLiteral("panel3"));
    klik(strom->topLevelItem(0));
    EXPECT_EQ(panel2->text(), QStringLiteral("5062.31 Kč"));
    EXPECT_EQ(panel2->toolTip(), QStringLiteral("Cena zakázky s DPH"));
    klik(strom->topLevelItem(0)->child(0));
    EXPECT_EQ(panel3->text(), QStringLiteral("1195.00 Kč"));
    EXPECT_EQ(panel3->toolTip(), QStringLiteral("Cena za 1ks sestavy s DPH"));
    auto* gpm = okno->findChild<QTableWidget*>(QStringLiteral("GPM"));
    ASSERT_GT(gpm->rowCount(), 0);
    gpm->setCurrentCell(0, 0);
    Kroky ano({});
    okno->prikaz(QStringLiteral("SmazaniPM"));
    EXPECT_NE(panel2->text(), QStringLiteral("5062.31 Kč"));
    EXPECT_NE(panel3->text(), QStringLiteral("1195.00 Kč"));
    EXPECT_TRUE(panel3->text().endsWith(QStringLiteral(" Kč")));
}

// Objednávka / Uložit jako: the new name typed in the input box; the copy is selected in the tree.
TEST_F(Okno, ZakazkaUlozenaJako)
{
    klik(strom->topLevelItem(0));
    ASSERT_TRUE(zapnuto("UlozeniJakoZ"));
    Kroky k({odpovez(QStringLiteral("Kuchyně kopie"))});
    okno->prikaz(QStringLiteral("UlozeniJakoZ"));
    EXPECT_EQ(strom->topLevelItemCount(), 2);
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Kuchyně kopie"));
    EXPECT_EQ(strom->currentItem()->text(0), QStringLiteral("Kuchyně kopie"));
    EXPECT_EQ(strom->currentItem()->childCount(), 4);
}
