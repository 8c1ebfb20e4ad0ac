// The main window in English and back, a language file gone, and the copies a user makes from
// the window: Save as with a taken name answered first, an assembly dropped on another order.
#include "Kroky.h"
#include "OknoTest.h"
#include "core/Jazyk.h"
#include "orders/Kopirovani.h"

#include <QFile>
#include <QLineEdit>
#include <QMenuBar>
#include <QTableWidget>

namespace {

class OknoJazyk : public OknoTest {
protected:
    QStringList popisky()
    {
        QStringList p;
        for (const Jazyk::Cil& c : Jazyk::cile())
            p << okno->popisek(c);
        return p;
    }
    QStringList radky(Jazyk::Soubor s) { return Jazyk::nacti(Jazyk::cesta(s)); }
    bool zaskrtnuto(const char* nazev) { return okno->akce(QLatin1String(nazev))->isChecked(); }
    QTreeWidgetItem* zakazka(const QString& nazev)
    {
        for (int i = 0; i < strom->topLevelItemCount(); ++i)
            if (strom->topLevelItem(i)->text(0) == nazev)
                return strom->topLevelItem(i);
        return nullptr;
    }
    void pretahni(QTreeWidgetItem* sestava, QTreeWidgetItem* cil)
    {
        okno->pretazeni(sestava, cil);
        QApplication::processEvents(); // the tree is refilled after the drop
    }

};

// what the lines say where a line does not reach the window
QStringList bezNeviditelnych(QStringList r)
{
    r[87].clear(); // the hidden column's heading
    return r;
}

} // namespace

TEST_F(OknoJazyk, AnglictinaACestinaVraciVsechnyPopisky)
{
    klik(strom->topLevelItem(0));
    auto* formaty = okno->findChild<QTableWidget*>(QStringLiteral("GridFormaty"));
    const int radkuFormatu = formaty->rowCount();
    const QString bunka = formaty->item(0, 0)->text();
    const QStringList puvodni = popisky();
    EXPECT_EQ(puvodni, bezNeviditelnych(radky(Jazyk::Soubor::Cestina))); // the file is the window's Czech

    okno->prikaz(QStringLiteral("Anglictina"));
    EXPECT_TRUE(zaskrtnuto("Anglictina"));
    EXPECT_FALSE(zaskrtnuto("cestina"));
    EXPECT_EQ(popisky(), bezNeviditelnych(radky(Jazyk::Soubor::Anglictina)));
    EXPECT_EQ(okno->menuBar()->actions().first()->text(), QStringLiteral("&Orders"));
    EXPECT_EQ(formaty->rowCount(), radkuFormatu);
    EXPECT_EQ(formaty->item(0, 0)->text(), bunka);

    okno->prikaz(QStringLiteral("cestina"));
    EXPECT_EQ(popisky(), puvodni);
    EXPECT_TRUE(zaskrtnuto("cestina"));
    EXPECT_EQ(formaty->rowCount(), radkuFormatu);
}

TEST_F(OknoJazyk, ChybejiciSouborNechaPopiskyIZaskrtnuti)
{
    const QStringList puvodni = popisky();
    ASSERT_TRUE(QFile::remove(Jazyk::cesta(Jazyk::Soubor::Anglictina)));
    Kroky ruka({odpovez(QStringLiteral("OK"))});
    okno->prikaz(QStringLiteral("Anglictina"));
    EXPECT_EQ(ruka.zpravy, QStringList{QStringLiteral("Soubor jazykové verze neexistuje!!!")});
    EXPECT_EQ(popisky(), puvodni);
    EXPECT_TRUE(zaskrtnuto("cestina"));
    EXPECT_FALSE(zaskrtnuto("Anglictina"));
}

TEST_F(OknoJazyk, SestavaUlozenaJakoPoObsazenemNazvu)
{
    klik(strom->topLevelItem(0)->child(0));
    ASSERT_EQ(okno->txtSestava(), QStringLiteral("Dřez80"));
    Kroky ruka({odpovez(QStringLiteral("horní60")), odpovez(QStringLiteral("OK")), odpovez(QStringLiteral("Dřez'N"))});
    okno->prikaz(QStringLiteral("UlozeniSestavyJako"));
    EXPECT_TRUE(ruka.hotovo());
    ASSERT_EQ(ruka.zpravy.size(), 1); // the taken name, in another letter case, refused once
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Dřez'N"));
    EXPECT_EQ(strom->topLevelItem(0)->childCount(), 5);
}

TEST_F(OknoJazyk, PretazenaSestavaNejdriveNeAPakAno)
{
    Kopirovani::kopirujZakazku(uloziste().dataS(), QStringLiteral("Kuchyně Novák"), QStringLiteral("Chata"));
    Kopirovani::kopirujZakazku(uloziste().dataS(), QStringLiteral("Kuchyně Novák"), QStringLiteral("Prázdná"));
    okno->NaplnitStrom();
    QTreeWidgetItem* zdroj = zakazka(QStringLiteral("Kuchyně Novák"));
    const int sestavChaty = zakazka(QStringLiteral("Chata"))->childCount();
    {
        Kroky ruka({odpovez(QStringLiteral("&Ne"))});
        pretahni(zdroj->child(0), zakazka(QStringLiteral("Chata")));
        EXPECT_EQ(ruka.zpravy, QStringList{QStringLiteral("Chcete zkopírovat sestavu - Dřez80 - do zakázky - Chata - ?")});
    }
    EXPECT_EQ(zakazka(QStringLiteral("Chata"))->childCount(), sestavChaty);
    {
        Kroky ruka({odpovez(QStringLiteral("&Ano"))});
        pretahni(zakazka(QStringLiteral("Kuchyně Novák"))->child(0), zakazka(QStringLiteral("Chata"))->child(1));
        EXPECT_TRUE(ruka.hotovo());
    }
    EXPECT_EQ(zakazka(QStringLiteral("Chata"))->childCount(), sestavChaty + 1);
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Chata"));
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Dřez80_"));
    // on its own order nothing is asked
    Kroky nic({});
    pretahni(zakazka(QStringLiteral("Chata"))->child(0), zakazka(QStringLiteral("Chata")));
    EXPECT_TRUE(nic.zpravy.isEmpty());
}

TEST_F(OknoJazyk, DlouhyNazevKopieSeUpravouPoznamkyNezkrati)
{
    const QString dlouhy = QStringLiteral("Kuchyně Novák – druhá verze pro chatu 'U lesa'"); // 46 characters
    Kopirovani::kopirujZakazku(uloziste().dataS(), QStringLiteral("Kuchyně Novák"), dlouhy);
    okno->NaplnitStrom();
    klik(zakazka(dlouhy));
    ASSERT_EQ(okno->txtzakazka(), dlouhy);
    QString videno;
    Kroky k({[&](QWidget* d) { // the dialog left open after the save is closed by Kroky
        auto* jmeno = d->findChild<QLineEdit*>(QStringLiteral("txtzakazka"));
        if (!jmeno || !jmeno->isVisible())
            return false;
        videno = jmeno->text();
        d->findChild<QLineEdit*>(QStringLiteral("txtPoznamka"))->setText(QStringLiteral("jiná poznámka"));
        d->findChild<QPushButton*>(QStringLiteral("cmdZakazkaPouzit"))->click();
        return true;
    }});
    okno->prikaz(QStringLiteral("UpraveniZakazky"));
    EXPECT_EQ(videno, dlouhy);
    EXPECT_NE(zakazka(dlouhy), nullptr);
    EXPECT_EQ(okno->txtzakazka(), dlouhy);
}
