// Renders the workbench's windows, filled with the demo shop, to PNG files (offscreen), so that
// anyone can look at them without a display: truhlar-screenshots OUTDIR.
#include "core/Aplikace.h"
#include "core/Nastaveni.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "ui/CiselnePole.h"
#include "ui/FrmBorovak.h"
#include "ui/FrmImport.h"
#include "ui/FrmNP.h"
#include "ui/FrmNovy.h"
#include "ui/FrmOptions.h"
#include "ui/FrmSklad.h"
#include "catalogues/Sklad.h"
#include "ui/FrmVSP.h"
#include "ui/FrmCenik.h"
#include "ui/FrmNahled.h"
#include "ui/FrmObr.h"
#include "ui/FrmNapoveda.h"
#include "ui/Napoveda.h"
#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "printing/Dokument.h"
#include "printing/Vykresleni.h"
#include "optimiser/PlanRun.h"
#include "planoutput/Stitky.h"
#include "costing/Rezani.h"
#include "costing/Vypisy.h"
#include "core/Database.h"
#include "core/Recordset.h"
#include "ui/QtPrompt.h"
#include "orders/Materialy.h"

#include <QApplication>
#include <QBuffer>
#include <QPainter>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QStringEncoder>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeWidget>

namespace {

void uloz(QWidget* w, const QString& slozka, const QString& nazev)
{
    w->show();
    QApplication::processEvents();
    w->grab().save(QDir(slozka).filePath(nazev + QStringLiteral(".png")));
}

// A front view of a base unit as the library would hold it, under IDE 1, given to the assembly.
void ukazkoveSchema(Uloziste& u, const QString& sestava)
{
    QImage obr(600, 400, QImage::Format_RGB32);
    obr.fill(Qt::white);
    QPainter p(&obr);
    p.setPen(QPen(Qt::black, 3));
    p.drawRect(100, 40, 400, 300);
    p.drawLine(300, 40, 300, 340);
    p.drawRect(110, 330, 380, 30);
    p.setPen(QPen(Qt::darkGray, 2));
    p.drawLine(280, 170, 280, 210);
    p.drawLine(320, 170, 320, 210);
    p.end();
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    obr.save(&b, "PNG");
    Recordset r(u.cenik(), QStringLiteral("Schemata"), Recordset::Rozsah::Prvni);
    r.addNew();
    r.set(QStringLiteral("IDE"), 1);
    r.set(QStringLiteral("nazev"), QStringLiteral("spodní skříňka"));
    r.set(QStringLiteral("OBR"), png);
    r.update();
    u.dataS().execute(QStringLiteral("UPDATE Zakazky SET schema = 1 WHERE Sestava = '") + sestava + QStringLiteral("'"));
}

// The options dialog page by page (dialogs stay Czech), then the main window in English.
void moznostiAJazyk(FrmBorovak& okno, Prompt& prompt, const QString& vystup)
{
    FrmOptions moznosti(prompt, {}, &okno);
    for (int i = 0; i < moznosti.stranky()->count(); ++i) {
        moznosti.stranky()->setCurrentIndex(i);
        uloz(&moznosti, vystup, QStringLiteral("frmOptions-%1").arg(i + 1));
    }
    moznosti.close();
    okno.prikaz(QStringLiteral("Anglictina"));
    uloz(&okno, vystup, QStringLiteral("frmBorovak-english"));
    okno.prikaz(QStringLiteral("cestina"));
}

// A wood sample as a price-list item's picture.
QByteArray vzorekDreva()
{
    QImage obr(480, 320, QImage::Format_RGB32);
    obr.fill(QColor(196, 150, 96));
    QPainter p(&obr);
    p.setPen(QPen(QColor(140, 95, 50), 3));
    for (int y = 10; y < 320; y += 22)
        p.drawLine(0, y, 480, y + 12 * ((y / 22) % 3 - 1));
    p.end();
    QByteArray jpg;
    QBuffer b(&jpg);
    b.open(QIODevice::WriteOnly);
    obr.save(&b, "JPG");
    return jpg;
}

// Grabs whichever modal window stands next, after the step pred where one is given, then closes
// it.
void zachytModalni(const QString& slozka, const QString& nazev, const std::function<void(QDialog*)>& pred = {})
{
    QTimer::singleShot(100, [=] {
        if (auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            if (pred)
                pred(d);
            uloz(d, slozka, nazev);
            d->reject();
        }
    });
}

// A few price-list items, one with a picture (its IDE returned), for the windows and the entry
// frames' drop-downs.
int naplnCenik(Uloziste& u, Prompt& prompt)
{
    const int ide = Knihovna::pridej(u.cenik(), prompt, Knihovna::Druh::Obrazky, QStringLiteral("dub rustikál.jpg"), vzorekDreva());
    const std::vector<Cenik::Zadani> polozky = {
        {QStringLiteral("DTD dub 'Rustikál' 18"), QStringLiteral("101"), QStringLiteral("412.50"), QStringLiteral("m2"), QStringLiteral("PM"), ide, 0},
        {QStringLiteral("DTD bílá 18"), QStringLiteral("102"), QStringLiteral("298"), QStringLiteral("m2"), QStringLiteral("PM"), 0, 0},
        {QStringLiteral("ABS bílá 2 mm"), QStringLiteral("201"), QStringLiteral("14.90"), QStringLiteral("bm"), QStringLiteral("H"), 0, 0},
        {QStringLiteral("Čep 8 x 35"), QStringLiteral("301"), QStringLiteral("0.60"), QStringLiteral("ks"), QStringLiteral("P"), 0, 0},
        {QStringLiteral("Úchytka oblouk 128"), QStringLiteral("302"), QStringLiteral("45.50"), QStringLiteral("pár"), QStringLiteral("P"), 0, 0}};
    Cenik::nahraj(u.cenik(), prompt, polozky);
    return ide;
}

// Each message box as it stands, numbered after prefix, answered with its default button.
class Zpravy {
public:
    Zpravy(const QString& vystup, const QString& predpona)
    {
        QObject::connect(&m_casovac, &QTimer::timeout, [=, this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            uloz(box, vystup, predpona + QString::number(++m_n));
            if (box->defaultButton())
                box->defaultButton()->click();
            else
                box->close();
        });
        m_casovac.start(50);
    }

private:
    QTimer m_casovac;
    int m_n = 0;
};

// The plan viewer over the demo's combined plan, drawn and handed to krok; DataK closed after.
void prehlizec(Uloziste& u, Prompt& prompt, QWidget* rodic, const std::function<void(FrmNP&)>& krok)
{
    TichyPrubeh tichy;
    PlanRun run(u, prompt, tichy);
    run.SpustNP(QStringLiteral("Kuchyně Novák"), 5000001, ZpusobNP::Kombinovane);
    {
        FrmNP np(u, prompt, PlanNaStrankach::z(run), rodic);
        np.resize(1200, 900);
        np.vykresli();
        krok(np);
    }
    u.zavriDataK();
}

// The viewer's "Sklad" pressed twice: the booking, then the question before booking again.
void zapisDoSkladu(Uloziste& u, Prompt& prompt, FrmBorovak& okno, const QString& vystup)
{
    prehlizec(u, prompt, &okno, [&](FrmNP& np) {
        Zpravy zpravy(vystup, QStringLiteral("frmNP-sklad-"));
        for (int i = 0; i < 2; ++i)
            np.findChild<QAction*>(QStringLiteral("Sklad"))->trigger();
    });
}

// The price list from the menu (with its backup keys) and as a field's chooser, with a picture,
// its item form, the libraries, the preview, the accessory frame and the main window with the
// assembly's schema.
void cenik(Uloziste& u, Prompt& prompt, FrmBorovak& okno, const QString& vystup, int ide)
{
    {
        FrmCenik c(u, prompt, &okno);
        c.resize(900, 560);
        uloz(&c, vystup, QStringLiteral("frmCenik"));
    }
    {
        Dokument d; // the printed list as a page; the script turns every PDF here into PNG
        Cenik::TiskCeniku(d, u.cenik(), Cenik::ulozenyVyber(), Cenik::ulozeneRazeni());
        Vykresleni::pdf(d, vystup + QStringLiteral("/TiskCeniku.pdf"), QString::fromUtf8(Cenik::TitulekVypisu));
    }
    {
        FrmCenik c(u.cenik(), prompt, &okno, QStringLiteral("EP"));
        c.resize(900, 560);
        auto* seznam = c.findChild<QListWidget*>(QStringLiteral("lstCenik"));
        seznam->setCurrentItem(seznam->findItems(QStringLiteral("DTD dub 'Rustikál' 18"), Qt::MatchExactly).value(0));
        uloz(&c, vystup, QStringLiteral("frmCenik-volba"));
        zachytModalni(vystup, QStringLiteral("frmPolozka"));
        c.prikaz(QStringLiteral("UPoložky"));
        FrmNahled n(Knihovna::obrazek(u.cenik(), Knihovna::Druh::Obrazky, ide), QStringLiteral("DTD dub 'Rustikál' 18"), prompt, &c);
        uloz(&n, vystup, QStringLiteral("frmNahled"));
    }
    for (auto druh : {Knihovna::Druh::Obrazky, Knihovna::Druh::Schemata}) {
        FrmObr o(u.cenik(), prompt, druh, 0, true, &okno);
        o.resize(640, 520);
        uloz(&o, vystup, druh == Knihovna::Druh::Obrazky ? QStringLiteral("frmObr") : QStringLiteral("frmSchema"));
    }
    auto* strom = okno.findChild<QTreeWidget*>(QStringLiteral("tvzakazky"));
    strom->setCurrentItem(strom->topLevelItem(0)->child(0));
    emit strom->itemClicked(strom->topLevelItem(0)->child(0), 0);
    zachytModalni(vystup, QStringLiteral("frmNovy-fraPris"));
    okno.prikaz(QStringLiteral("NoveP"));
    zachytModalni(vystup, QStringLiteral("frmNovy-fraPris-cenik"), [](QDialog* d) { // named from the drop-down
        auto* nazev = d->findChild<QComboBox*>(QStringLiteral("txtNPrislusenstvi"));
        nazev->setCurrentText(QStringLiteral("Úchytka oblouk 128"));
        emit nazev->textActivated(nazev->currentText());
        auto* pocet = d->findChild<CiselnePole*>(QStringLiteral("txtPocetPrislusenstvi"));
        pocet->nastavCislo(QStringLiteral("2"));
    });
    okno.prikaz(QStringLiteral("NoveP"));
    zachytModalni(vystup, QStringLiteral("frmNovy-fraTyp-schema"));
    okno.prikaz(QStringLiteral("USestava"));
    okno.resize(1100, 700);
    emit strom->itemClicked(strom->topLevelItem(0), 0); // the schema was set behind the window's back:
    emit strom->itemClicked(strom->topLevelItem(0)->child(0), 0); // select the assembly anew
    uloz(&okno, vystup, QStringLiteral("frmBorovak-schema"));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("truhlar"));
    QApplication::setApplicationDisplayName(QStringLiteral("Truhlář")); // the title of the messages, as in the workbench
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
    const int ide = naplnCenik(u, prompt);
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
    moznostiAJazyk(okno, prompt, vystup);
    for (const char* stranka : {"index", "zakazka", "plan", "kalkulace"}) { // the manual in its window
        FrmNapoveda* napoveda = Napoveda::otevri(&okno, QLatin1String(stranka) + QStringLiteral(".html"));
        uloz(napoveda, vystup, QStringLiteral("frmNapoveda-") + QLatin1String(stranka));
        napoveda->close();
    }

    // the entry frames, each grabbed as soon as it stands and closed again
    // (pred: what the joiner does in it first)
    auto ramec = [&](const QString& nazev, const std::function<void(FrmNovy&)>& otevri,
                     const std::function<void(FrmNovy&)>& pred = {}) {
        FrmNovy d(&okno, u.cenik(), prompt);
        QTimer::singleShot(50, &d, [&] {
            if (pred)
                pred(d);
            uloz(&d, vystup, nazev);
            d.reject();
        });
        otevri(d);
    };
    using Po = FrmNovy::PoUlozeni;
    ramec(QStringLiteral("frmNovy-fraZakazka"), [](FrmNovy& d) {
        d.zakazka(FrmNovy::Stav::NovaZakazka, QStringLiteral("Kuchyně Novák"), QStringLiteral("linka 2,4 m"),
                  [](const QString&, const QString&) { return Po::Zavrit; });
    });
    ramec(QStringLiteral("frmNovy-fraTyp"), [](FrmNovy& d) {
        d.sestava(FrmNovy::Stav::NovaSestava, {QStringLiteral("Dřez80"), QStringLiteral("Spodní skříňka"), 1, 0},
                  [](const Zakazky::Sestava&) { return Po::Zavrit; });
    });
    ramec(QStringLiteral("frmNovy-fraMaterial"), [](FrmNovy& d) {
        d.material(FrmNovy::Stav::UpraveniFormatu, {1, QStringLiteral("DTD bílá 18"), 2800, 2070, true, 350},
                   [](const Materialy::Material&) { return Po::Zavrit; });
    });
    ramec(QStringLiteral("frmNovy-fraHrana"), [](FrmNovy& d) {
        d.material(FrmNovy::Stav::UpraveniHrany, {1, QStringLiteral("ABS bílá 2"), 0, 0, false, 12.5, 255, 2},
                   [](const Materialy::Material&) { return Po::Zavrit; });
    });
    // a format and a band named from the drop-down: the price list's price comes with the name
    const auto zSeznamu = [](const char* pole, const char* polozka) {
        return [=](FrmNovy& d) {
            auto* nazev = d.findChild<QComboBox*>(QLatin1String(pole));
            nazev->setCurrentText(QString::fromUtf8(polozka));
            emit nazev->textActivated(nazev->currentText());
        };
    };
    ramec(
        QStringLiteral("frmNovy-fraMaterial-cenik"),
        [](FrmNovy& d) { d.material(FrmNovy::Stav::NovyFormat, {}, [](const Materialy::Material&) { return Po::Zavrit; }); },
        zSeznamu("txtFormat", "DTD dub 'Rustikál' 18"));
    ramec(
        QStringLiteral("frmNovy-fraHrana-cenik"),
        [](FrmNovy& d) { d.material(FrmNovy::Stav::NovaHrana, {}, [](const Materialy::Material&) { return Po::Zavrit; }); },
        zSeznamu("cmbHrana", "ABS bílá 2 mm"));
    ramec(QStringLiteral("frmNovy-fraPlMat"), [&](FrmNovy& d) {
        const auto hrany = Materialy::hrany(u.dataS(), QStringLiteral("Kuchyně Novák"));
        FrmNovy::TextyDesky t{Materialy::textFormatu(Materialy::formaty(u.dataS(), QStringLiteral("Kuchyně Novák"))[0])};
        t.hrany[0] = t.hrany[1] = Materialy::textHrany(hrany[0]);
        t.hrany[2] = Materialy::textHrany(hrany[1]);
        QStringList ht;
        for (const auto& h : hrany)
            ht << Materialy::textHrany(h);
        d.deska(FrmNovy::Stav::UpraveniPM, {t.format}, ht, hrany, {QStringLiteral("dvířka"), 716, 396, 2, false}, t,
                [](const Desky::Deska&, const FrmNovy::TextyDesky&) { return Po::Zavrit; });
    });

    // the import, empty and with a list the old system wrote (Windows-1250)
    {
        FrmImport prazdny(u.dataS(), prompt, QStringLiteral("Kuchyně Novák"), QStringLiteral("Sokl"), &okno);
        uloz(&prazdny, vystup, QStringLiteral("frmImport"));
        const QString soubor = dir.filePath(QStringLiteral("seznam.txt"));
        QFile f(soubor);
        f.open(QIODevice::WriteOnly);
        f.write(QStringEncoder("windows-1250")(QStringLiteral(
            "Bok levý;720;560;2;2;2;0;0\r\nBok pravý;720;560;2;2;2;0;0\r\nPolička;562,5;300;3;0,5;0;0;0\r\n"
            "Čelo zásuvky;496;176;4;2;2;2;2\r\nZáda\t700\t600\t1\r\n")));
        f.close();
        FrmImport plny(u.dataS(), prompt, QStringLiteral("Kuchyně Novák"), QStringLiteral("Sokl"), &okno);
        plny.otevriSoubor(soubor);
        uloz(&plny, vystup, QStringLiteral("frmImport-windows1250"));
    }
    // the restore's question, as the window asks it
    QTimer::singleShot(50, &okno, [&] {
        if (QWidget* otazka = QApplication::activeModalWidget()) {
            uloz(otazka, vystup, QStringLiteral("otazka-obnova"));
            otazka->close();
        }
    });
    prompt.zprava(QStringLiteral("Opravdu chcete nynější data nahradit za BData5_3_2026.bvk ?"), QStringLiteral("Upozornění"),
                  Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe);

    // the plan start with the four ways compared, grabbed once "úsporně" has filled its row
    FrmNovy volba(&okno);
    QTimer hotovo;
    QObject::connect(&hotovo, &QTimer::timeout, &volba, [&] {
        const auto* srovnani = volba.findChild<QTableWidget*>(QStringLiteral("tblSrovnani"));
        if (srovnani->item(3, 0)->text().startsWith(QStringLiteral("počítá")))
            return;
        hotovo.stop();
        uloz(&volba, vystup, QStringLiteral("frmNovy-fraVolbaNP"));
        volba.reject();
    });
    hotovo.start(100);
    FrmNovy::VolbaNP v;
    volba.zvolNP({{5000001, QStringLiteral("DTD bílá 18 ( 2800 x 2070 )")}}, {12}, v,
                 [&](double idFormatu, ZpusobNP zpusob, Prubeh& p) {
                     return srovnejZpusob(u, p, QStringLiteral("Kuchyně Novák"), idFormatu, zpusob);
                 });

    FrmNovy prubeh(&okno);
    prubeh.optimalizuj(ZpusobNP::Kombinovane, [&] {
        prubeh.zobraz();
        prubeh.hodnota(40);
        prubeh.popisek(QStringLiteral("Optimalizuji... - tabule č. 1 deska č. 7"));
        uloz(&prubeh, vystup, QStringLiteral("frmNovy-fraOptimalizace"));
    });

    // The plan viewer over a combined plan, its whole-page view, and the labels in frmVSP.
    prehlizec(u, prompt, &okno, [&](FrmNP& np) {
        uloz(&np, vystup, QStringLiteral("frmNP"));
        np.nahled();
        uloz(&np, vystup, QStringLiteral("frmNP-nahled"));
        FrmVSP vsp(prompt, &np);
        vsp.setWindowTitle(QString::fromUtf8(TitulekStitku));
        TiskStitku(vsp.dokument(), u, QStringLiteral("Kuchyně Novák"));
        vsp.obnov();
        vsp.resize(1000, 900);
        uloz(&vsp, vystup, QStringLiteral("frmVSP-stitky"));
    });
    // The calculation dialog, and every costing report in frmVSP; the sink unit carries a drawing.
    ukazkoveSchema(u, QStringLiteral("Dřez80"));
    const QStringList sestavy = {QStringLiteral("Dřez80 ( 1 ks )"), QStringLiteral("Horní60 ( 2 ks )"),
                                 QStringLiteral("Sokl ( 1 ks )"), QStringLiteral("Zásuv50 ( 1 ks )")};
    {
        FrmNovy dialog(&okno);
        QTimer::singleShot(0, &dialog, [&] {
            uloz(&dialog, vystup, QStringLiteral("frmNovy-fraKalkulace"));
            dialog.reject();
        });
        dialog.kalkulace(QStringLiteral("Kalkulace sestav"), sestavy);
    }
    const std::pair<DruhVypisu, const char*> vypisy[] = {
        {DruhVypisu::Zakazka, "frmVSP-kalkulace"},   {DruhVypisu::Sestavy, "frmVSP-kalkulace-sestav"},
        {DruhVypisu::Nakup, "frmVSP-nakup"},         {DruhVypisu::Nabidka, "frmVSP-nabidka"},
        {DruhVypisu::Dilna, "frmVSP-dilna"},         {DruhVypisu::DilnaSeSchematy, "frmVSP-dilna-schemata"}};
    const std::vector<Rezani::Format> rezani = Rezani::zakazky(u, QStringLiteral("Kuchyně Novák")); // as the window passes it
    for (const auto& [druh, nazev] : vypisy) {
        FrmVSP vsp(prompt, &okno);
        u.ObnovPracovniDatabazi();
        vsp.setWindowTitle(
            SestavVypis(druh, vsp.dokument(), u.dataK(), u.cenik(), QStringLiteral("Kuchyně Novák"), {}, sestavy, rezani).titulek);
        u.zavriDataK();
        vsp.obnov();
        vsp.resize(1000, 900);
        uloz(&vsp, vystup, QLatin1String(nazev));
    }
    // The offcut store with a few pieces, its entry frame and its printed list.
    for (const Sklad::Odrezek& o : {Sklad::Odrezek{QStringLiteral("DTD bílá 18"), 1200, 640, 2},
                                    Sklad::Odrezek{QStringLiteral("DTD bílá 18"), 800, 350, 1},
                                    Sklad::Odrezek{QStringLiteral("MDF 19"), 2070, 410, 3}})
        Sklad::UlozitNovyOdrezek(u.dataS(), prompt, o);
    {
        FrmSklad sklad(u.dataS(), prompt, &okno);
        uloz(&sklad, vystup, QStringLiteral("frmSklad"));
        FrmNovy dialog(&sklad);
        QTimer::singleShot(0, &dialog, [&] {
            uloz(&dialog, vystup, QStringLiteral("frmNovy-fraNSklad"));
            dialog.reject();
        });
        dialog.odrezek(FrmNovy::Stav::UpraveniOdrezku, {QStringLiteral("DTD bílá 18"), 1200, 640, 2},
                       [](const Sklad::Odrezek&) { return FrmNovy::PoUlozeni::Zavrit; });
        FrmVSP vsp(prompt, &sklad);
        vsp.setWindowTitle(QString::fromUtf8(Sklad::TitulekVypisu));
        Sklad::VypisSkladu(vsp.dokument(), u.dataS(), {});
        vsp.obnov();
        vsp.resize(1000, 900);
        uloz(&vsp, vystup, QStringLiteral("frmVSP-sklad"));
    }
    cenik(u, prompt, okno, vystup, ide);
    zapisDoSkladu(u, prompt, okno, vystup);
    return 0;
}
