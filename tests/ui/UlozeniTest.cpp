// The save dialogs: a file of the store chosen as output is refused there, said, and the
// dialog asks again.
#include "DomovTest.h"
#include "Kroky.h"
#include "core/Aplikace.h"
#include "ui/QtPrompt.h"

#include <QFileDialog>

using Ulozeni = DomovTest;

TEST_F(Ulozeni, SouborDatabazeDialogOdmitneAZeptaSeZnovu)
{
    uloziste();
    const QString venku = domov() + QStringLiteral("/Zálohy dat/z.bvk");
    const auto vyber = [](const QString& soubor) {
        return [soubor](QWidget* w) {
            auto* d = qobject_cast<QFileDialog*>(w);
            if (!d)
                return false;
            d->selectFile(soubor);
            QMetaObject::invokeMethod(d, "accept", Qt::QueuedConnection);
            return true;
        };
    };
    Kroky kroky({vyber(Aplikace::dataS()), vyber(Aplikace::cesta(QStringLiteral("Data/.lock"))), vyber(venku)});
    QtPrompt prompt;
    const QString vybrano = prompt.soubor(true, QStringLiteral("Vytvoření zálohy..."), domov() + QStringLiteral("/Zálohy dat"),
                                          QStringLiteral("BData1_1_2026.bvk"), QStringLiteral("Databáze (*.bvk)"));
    EXPECT_EQ(vybrano, venku);
    ASSERT_EQ(kroky.zpravy.size(), 2);
    EXPECT_TRUE(kroky.zpravy[0].contains(QStringLiteral("patří k databázím programu"))) << kroky.zpravy[0].toStdString();
    EXPECT_TRUE(kroky.hotovo());
}
