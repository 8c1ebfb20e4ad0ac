// Renders the workbench's windows, filled with the demo shop, to PNG files (offscreen), so that
// anyone can look at them without a display: truhlar-screenshots OUTDIR.
#include "core/Aplikace.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "ui/FrmBorovak.h"
#include "ui/FrmNovy.h"
#include "ui/QtPrompt.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>

namespace {

void uloz(QWidget* w, const QString& slozka, const QString& nazev)
{
    w->show();
    QApplication::processEvents();
    w->grab().save(QDir(slozka).filePath(nazev + QStringLiteral(".png")));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("truhlar"));
    const QString vystup = app.arguments().value(1, QStringLiteral("screenshots"));
    QDir().mkpath(vystup);
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath(QStringLiteral("config"))));
    Aplikace::nastavDomov(dir.filePath(QStringLiteral("home")));
    Nastaveni::ZapisVychoziNastaveni(1000, 1000, 16500, 10500);
    Uloziste u(true);
    QFile demo(QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"));
    demo.open(QIODevice::ReadOnly);
    ZakazkaJson::nacti(u.dataS(), demo.readAll());

    QtPrompt prompt;
    FrmBorovak okno(u, prompt);
    okno.resize(1100, 700);
    uloz(&okno, vystup, QStringLiteral("frmBorovak"));
    auto* strom = okno.findChild<QTreeWidget*>(QStringLiteral("tvzakazky"));
    strom->expandAll();
    auto* zakazka = strom->topLevelItem(0);
    strom->setCurrentItem(zakazka);
    emit strom->itemClicked(zakazka, 0);
    uloz(&okno, vystup, QStringLiteral("frmBorovak-zakazka"));
    strom->setCurrentItem(zakazka->child(0));
    emit strom->itemClicked(zakazka->child(0), 0);
    uloz(&okno, vystup, QStringLiteral("frmBorovak-sestava"));

    FrmNovy volba(&okno);
    QTimer::singleShot(0, &volba, [&] {
        uloz(&volba, vystup, QStringLiteral("frmNovy-fraVolbaNP"));
        volba.reject();
    });
    FrmNovy::VolbaNP v;
    volba.zvolNP({{5000001, QStringLiteral("DTD bílá 18 ( 2800 x 2070 )")}}, {12}, v);

    FrmNovy prubeh(&okno);
    prubeh.optimalizuj(ZpusobNP::Kombinovane, [&] {
        prubeh.zobraz();
        prubeh.hodnota(40);
        prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. 1 deska č. 7"));
        uloz(&prubeh, vystup, QStringLiteral("frmNovy-fraOptimalizace"));
    });
    return 0;
}
