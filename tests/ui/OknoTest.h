#pragma once
// The main window over the demo kitchen, with Qt's own dialogs (tests answer them with timers).
#include "DomovTest.h"
#include "core/Nastaveni.h"
#include "exchange/ZakazkaJson.h"
#include "ui/FrmBorovak.h"
#include "ui/QtPrompt.h"

#include <QAction>
#include <QTreeWidget>
#include <memory>

class OknoTest : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        Nastaveni::ZapisVychoziNastaveni(1000, 1000, 13500, 9000);
        ZakazkaJson::nacti(uloziste().dataS(), demoJson());
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
