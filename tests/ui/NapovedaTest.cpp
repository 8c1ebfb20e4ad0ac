// The manual: F1 in a window opens that window's page, the help menu the contents, and every
// link and picture of the pages leads somewhere. An order file opened by the workbench.
#include "ui/Napoveda.h"
#include "Kroky.h"
#include "OknoTest.h"
#include "exchange/ZakazkaJson.h"
#include "ui/FrmNapoveda.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

namespace {

class NapovedaOkno : public OknoTest {
protected:
    // Opens a modal window by command, presses F1 in it once it stands, and returns the page its
    // help window showed; the window is then closed.
    QString f1VModalnim(const QString& prikaz)
    {
        QString stranka;
        QTimer::singleShot(50, [&] {
            QWidget* modalni = QApplication::activeModalWidget();
            if (!modalni)
                return;
            QTest::keyClick(modalni->focusWidget() ? modalni->focusWidget() : modalni, Qt::Key_F1);
            if (auto* n = modalni->findChild<FrmNapoveda*>())
                stranka = n->stranka();
            modalni->close();
        });
        okno->prikaz(prikaz);
        return stranka;
    }
};

TEST_F(NapovedaOkno, F1VHlavnimOkneOtevrePrvniStranku)
{
    okno->show();
    QTest::keyClick(strom, Qt::Key_F1);
    auto* napoveda = okno->findChild<FrmNapoveda*>();
    ASSERT_NE(napoveda, nullptr);
    EXPECT_EQ(napoveda->stranka(), Napoveda::Obsah);
    EXPECT_TRUE(napoveda->isVisible());
    EXPECT_TRUE(napoveda->prohlizec()->toPlainText().contains(QStringLiteral("Kapitoly")));

    // the menu opens the same window on the contents again
    napoveda->zobraz(QStringLiteral("plan.html"));
    okno->prikaz(QStringLiteral("NapovedaObsah"));
    EXPECT_EQ(okno->findChildren<FrmNapoveda*>().size(), 1);
    EXPECT_EQ(napoveda->stranka(), Napoveda::Obsah);
}

TEST_F(NapovedaOkno, F1VDialoguOtevreJehoStrankuNadDialogem)
{
    okno->show();
    EXPECT_EQ(f1VModalnim(QStringLiteral("NZakazka")), QStringLiteral("zakazka.html"));
    EXPECT_EQ(f1VModalnim(QStringLiteral("Moznosti")), QStringLiteral("moznosti.html"));
    EXPECT_EQ(f1VModalnim(QStringLiteral("SO")), QStringLiteral("sklad.html"));
    klik(strom->topLevelItem(0));
    EXPECT_EQ(f1VModalnim(QStringLiteral("NF")), QStringLiteral("zakazka.html#formaty"));
}

// Whether a link of the manual (from the page odkud) names a page or picture of it, and an
// anchor that stands in that page.
bool vedeKamMa(const QString& odkud, const QString& cil)
{
    const QString soubor = cil.section(QLatin1Char('#'), 0, 0);
    const QString kotva = cil.section(QLatin1Char('#'), 1);
    QFile cilovy(QStringLiteral(":/napoveda/") + (soubor.isEmpty() ? odkud : soubor));
    if (!cilovy.open(QIODevice::ReadOnly))
        return false;
    return kotva.isEmpty() || cilovy.readAll().contains(QStringLiteral("name=\"%1\"").arg(kotva).toUtf8());
}

// Every href and src of every page leads somewhere; every chapter shows at least one picture;
// every window's page stands.
TEST(NapovedaStranky, OdkazyObrazkyAStrankyOkenVedouNaExistujiciSoubory)
{
    const QRegularExpression odkaz(QStringLiteral(R"((href|src)="([^"]+)\")"));
    QStringList stranky;
    for (QDirIterator it(QStringLiteral(":/napoveda"), {QStringLiteral("*.html")}); it.hasNext();)
        stranky << it.next().section(QLatin1Char('/'), -1);
    ASSERT_GE(stranky.size(), 9);
    for (const QString& stranka : stranky) {
        QFile f(QStringLiteral(":/napoveda/") + stranka);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(f.readAll());
        if (stranka != Napoveda::Obsah) {
            EXPECT_TRUE(text.contains(QLatin1String("<img "))) << stranka.toStdString();
        }
        for (auto m = odkaz.globalMatch(text); m.hasNext();) {
            const QString cil = m.next().captured(2);
            EXPECT_TRUE(cil.startsWith(QLatin1String("http")) || vedeKamMa(stranka, cil))
                << stranka.toStdString() << " -> " << cil.toStdString();
        }
    }
    for (const auto& [okno, stranka] : Napoveda::strankyOken())
        EXPECT_TRUE(vedeKamMa(Napoveda::Obsah, QLatin1String(stranka))) << okno << " -> " << stranka;
}

TEST_F(NapovedaOkno, SouborZakazkySeNacteAVybereDruhyJeOdmitnut)
{
    QJsonObject z = QJsonDocument::fromJson(demoJson()).object();
    z[QStringLiteral("zakazka")] = QStringLiteral("Skříň Dvořák");
    const QString soubor = domov() + QStringLiteral("/Skříň Dvořák.zakazka.json");
    zapisSoubor(soubor, QJsonDocument(z).toJson());

    okno->otevriSoubor(soubor);
    EXPECT_EQ(okno->txtzakazka(), QStringLiteral("Skříň Dvořák"));
    const QStringList zakazky = ZakazkaJson::seznam(uloziste().dataS());
    EXPECT_EQ(zakazky.size(), 2);

    Kroky k({});
    okno->otevriSoubor(soubor);
    ASSERT_EQ(k.zpravy.size(), 1);
    EXPECT_TRUE(k.zpravy[0].contains(QStringLiteral("již existuje"))) << k.zpravy[0].toStdString();
    EXPECT_EQ(ZakazkaJson::seznam(uloziste().dataS()), zakazky);
}

} // namespace
