// The plan start compares the four ways before the joiner chooses: the three quick ones and
// "úsporně" fill their rows, and "úsporně" chosen there ends in its own plan in the viewer.
#include "OknoTest.h"
#include "ui/FrmNP.h"
#include "ui/FrmNovy.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>

TEST_F(OknoTest, PlanSeCtyrmiZpusobyVedleSebe)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("CasUsporne"), QStringLiteral("0.1"));
    emit strom->itemClicked(strom->topLevelItem(0), 0);
    QStringList radky;
    QString titulek;
    QTimer ruka;
    QObject::connect(&ruka, &QTimer::timeout, [&] {
        if (auto* d = qobject_cast<FrmNovy*>(QApplication::activeModalWidget())) {
            auto* ok = d->findChild<QPushButton*>(QStringLiteral("cmdOKNP"));
            auto* tabulka = d->findChild<QTableWidget*>(QStringLiteral("tblSrovnani"));
            if (!ok || !ok->isVisible() || !radky.isEmpty() || tabulka->item(3, 0)->text().startsWith(QStringLiteral("počítá")))
                return;
            for (int r = 0; r < 4; ++r)
                radky << tabulka->verticalHeaderItem(r)->text() + QLatin1Char(' ') + tabulka->item(r, 0)->text();
            d->findChild<QComboBox*>(QStringLiteral("cmbZpusobRezani"))->setCurrentIndex(3);
            ok->click();
        } else if (auto* np = qobject_cast<FrmNP*>(QApplication::activeModalWidget())) {
            titulek = np->windowTitle();
            np->close();
        }
    });
    ruka.start(5);
    okno->prikaz(QStringLiteral("NP"));
    EXPECT_EQ(radky, QStringList({"kombinovaně 2", "podélné řezy 2", "příčné řezy 2", "úsporně 2"}));
    EXPECT_EQ(titulek, QStringLiteral("Nářezový plán - úsporně"));
    EXPECT_FALSE(uloziste().maDataK());
}
