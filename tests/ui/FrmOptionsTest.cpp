// The options dialog as a user drives it: typing and "Použít", a refused field, "Zpět", the
// colour chosen at once, the preview following the label fields.
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "SkriptovanyPrompt.h"
#include "core/Nastaveni.h"
#include "planoutput/NahledStitku.h"
#include "ui/FrmOptions.h"

#include <QComboBox>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

using Nastaveni::GetSetting;

namespace {

class Moznosti : public NastavenyDomov {
protected:
    void SetUp() override
    {
        NastavenyDomov::SetUp();
        QLocale::setDefault(QLocale(QLocale::Czech, QLocale::Czechia));
        okno = std::make_unique<FrmOptions>(prompt, [this] { ++obnoveni; }, nullptr);
        pouzit = okno->findChild<QPushButton*>(QStringLiteral("cmdPouzit"));
    }
    void TearDown() override
    {
        okno.reset();
        QLocale::setDefault(QLocale::c());
        DomovTest::TearDown();
    }
    QLineEdit* pole(const char* klic) { return qobject_cast<QLineEdit*>(okno->pole(QLatin1String(klic))); }
    void napis(const char* klic, const QString& text)
    {
        QLineEdit* e = pole(klic);
        e->clear();
        QTest::keyClicks(e, text);
    }
    int zelenych()
    {
        int n = 0;
        for (const OpObdelnik& o : operace<OpObdelnik>(okno->nahled(), 1))
            n += o.stetec.barva == NahledStitku::barvaPapiru();
        return n;
    }

    SkriptovanyPrompt prompt;
    std::unique_ptr<FrmOptions> okno;
    QPushButton* pouzit = nullptr;
    int obnoveni = 0;
};

} // namespace

TEST_F(Moznosti, PouzitUloziVPoradiAOknoZustane)
{
    EXPECT_EQ(okno->stranky()->count(), 5);
    EXPECT_FALSE(pouzit->isEnabled());
    EXPECT_EQ(pole("Srez")->text(), QStringLiteral("4 mm"));
    napis("Srez", QStringLiteral("3"));
    EXPECT_TRUE(pouzit->isEnabled());
    qobject_cast<QComboBox*>(okno->pole(QStringLiteral("Jednotky")))->setCurrentIndex(1);
    pouzit->click();
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QStringLiteral("3"));
    EXPECT_EQ(GetSetting("Setting", "Jednotky"), QStringLiteral("1"));
    EXPECT_EQ(pole("Srez")->text(), QStringLiteral("0,3 cm"));
    EXPECT_EQ(pole("OkrajZleva")->text(), QStringLiteral("0 cm")); // a zero margin is a value
    EXPECT_FALSE(pouzit->isEnabled());
    EXPECT_EQ(obnoveni, 1);
    EXPECT_TRUE(prompt.zpravy.isEmpty());
}

TEST_F(Moznosti, OdmitnutePoleNezapiseNicADostaneFokus)
{
    okno->show();
    QApplication::setActiveWindow(okno.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(okno.get()));
    napis("Srez", QStringLiteral("3"));
    napis("DPH", QStringLiteral("150"));
    EXPECT_FALSE(okno->Pouzit());
    EXPECT_EQ(prompt.zpravy, QStringList{QStringLiteral("Zadejte v poli „DPH [%]“ číslo od 0 do 100!")});
    EXPECT_EQ(prompt.titulky, QStringList{QStringLiteral("Špatné zadání")});
    EXPECT_EQ(okno->stranky()->currentIndex(), 3);
    EXPECT_EQ(QApplication::focusWidget(), pole("DPH"));
    EXPECT_EQ(GetSetting("Setting2", "Srez"), QStringLiteral("4"));
    EXPECT_EQ(GetSetting("Setting2", "DPH"), QStringLiteral("19"));
    EXPECT_EQ(obnoveni, 0);
}

TEST_F(Moznosti, ZpetZahodiPoleAleBarvaZustava)
{
    prompt.odpovezBarvou(0x0000ff);
    okno->zmenBarvu(0);
    napis("CRez", QStringLiteral("8"));
    okno->findChild<QPushButton*>(QStringLiteral("cmdStorno"))->click();
    EXPECT_EQ(okno->result(), QDialog::Rejected);
    EXPECT_EQ(GetSetting("Setting", "BarvaDesky"), QStringLiteral("&H000000FF&"));
    EXPECT_EQ(GetSetting("Setting2", "CRez"), QStringLiteral("5"));
    okno->zmenBarvu(1); // the chooser cancelled: nothing changes
    EXPECT_EQ(GetSetting("Setting", "BarvaOdrezku"), QStringLiteral("&H00C0C0C0&"));
}

TEST_F(Moznosti, NahledSledujePoleStitku)
{
    EXPECT_EQ(zelenych(), 24);
    napis("OkrajShora", QStringLiteral("10"));
    EXPECT_EQ(zelenych(), 21);
    EXPECT_EQ(GetSetting("Setting", "OkrajShora"), QStringLiteral("5")); // not stored until Použít
}
