// The main window in English and back, a language file gone, and the copies a user makes from
// the window: Save as with a taken name answered first, an assembly dropped on another order.
#include "OknoTest.h"
#include "core/Jazyk.h"
#include "core/Nastaveni.h"
#include "exchange/ZakazkaJson.h"
#include "orders/Kopirovani.h"
#include "ui/FrmBorovak.h"
#include "ui/QtPrompt.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <deque>

namespace {

// Answers the window's modal dialogs in turn: a text for an input box, a button's caption for
// a message box (whose text is kept).
class Ruka {
public:
    explicit Ruka(std::deque<QString> odpovedi) : m_odpovedi(std::move(odpovedi))
    {
        QObject::connect(&m_casovac, &QTimer::timeout, [this] { odpovez(); });
        m_casovac.start(5);
    }
    QStringList zpravy;
    bool hotovo() const { return m_odpovedi.empty(); }

private:
    void odpovez()
    {
        QWidget* w = QApplication::activeModalWidget();
        if (!w)
            return;
        if (m_odpovedi.empty()) { // an unexpected question fails the test instead of hanging it
            if (auto* b = qobject_cast<QMessageBox*>(w))
                zpravy << b->text();
            if (auto* d = qobject_cast<QDialog*>(w))
                d->reject();
            return;
        }
        if (auto* d = qobject_cast<QInputDialog*>(w)) {
            d->setTextValue(m_odpovedi.front());
            m_odpovedi.pop_front();
            d->accept();
        } else if (auto* b = qobject_cast<QMessageBox*>(w)) {
            zpravy << b->text();
            for (QAbstractButton* t : b->buttons())
                if (t->text() == m_odpovedi.front()) {
                    m_odpovedi.pop_front();
                    t->click();
                    return;
                }
        }
    }
    std::deque<QString> m_odpovedi;
    QTimer m_casovac;
};

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
    Ruka ruka({QStringLiteral("OK")});
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
    Ruka ruka({QStringLiteral("horní60"), QStringLiteral("OK"), QStringLiteral("Dřez'N")});
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
        Ruka ruka({QStringLiteral("&Ne")});
        pretahni(zdroj->child(0), zakazka(QStringLiteral("Chata")));
        EXPECT_EQ(ruka.zpravy, QStringList{QStringLiteral("Chcete zkopírovat sestavu - Dřez80 - do zakázky - Chata - ?")});
    }
    EXPECT_EQ(zakazka(QStringLiteral("Chata"))->childCount(), sestavChaty);
    {
        Ruka ruka({QStringLiteral("&Ano")});
        pretahni(zakazka(QStringLiteral("Kuchyně Novák"))->child(0), zakazka(QStringLiteral("Chata"))->child(1));
        EXPECT_TRUE(ruka.hotovo());
    }
    EXPECT_EQ(zakazka(QStringLiteral("Chata"))->childCount(), sestavChaty + 1);
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Chata"));
    EXPECT_EQ(okno->txtSestava(), QStringLiteral("Dřez80_"));
    // on its own order nothing is asked
    Ruka nic({});
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
    QTimer ruka;
    QString videno;
    QObject::connect(&ruka, &QTimer::timeout, [&] {
        QWidget* d = QApplication::activeModalWidget();
        auto* jmeno = d ? d->findChild<QLineEdit*>(QStringLiteral("txtzakazka")) : nullptr;
        if (!jmeno || !jmeno->isVisible())
            return;
        videno = jmeno->text();
        d->findChild<QLineEdit*>(QStringLiteral("txtPoznamka"))->setText(QStringLiteral("jiná poznámka"));
        d->findChild<QPushButton*>(QStringLiteral("cmdZakazkaPouzit"))->click();
        if (QApplication::activeModalWidget() == d)
            qobject_cast<QDialog*>(d)->reject();
    });
    ruka.start(5);
    okno->prikaz(QStringLiteral("UpraveniZakazky"));
    EXPECT_EQ(videno, dlouhy);
    EXPECT_NE(zakazka(dlouhy), nullptr);
    EXPECT_EQ(okno->txtzakazka(), dlouhy);
}
