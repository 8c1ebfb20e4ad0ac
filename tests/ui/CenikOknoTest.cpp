// The price list's windows as a joiner uses them: a new item refused and corrected without
// losing what was typed, its pictures chosen in the library under the marks "N" and "D"; and
// the choosing keys handing an item to the format, edge and accessory frames of an order.
#include "Kroky.h"
#include "OknoTest.h"
#include "SkriptovanyPrompt.h"
#include "VzorkyObrazku.h"
#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "exchange/Zaloha.h"
#include "ui/CiselnePole.h"
#include "ui/FrmCenik.h"
#include "ui/FrmNovy.h"
#include "ui/FrmObr.h"
#include "ui/FrmPolozka.h"

#include <QFile>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>

namespace {

QString text(QWidget* okno, const char* pole)
{
    return okno->findChild<QLineEdit*>(QLatin1String(pole))->text();
}

// The number a frame's number field holds, whatever form it shows.
double hodnota(QWidget* okno, const char* pole)
{
    return okno->findChild<CiselnePole*>(QLatin1String(pole))->hodnota();
}

void napis(QWidget* okno, const char* pole, const QString& t)
{
    okno->findChild<QLineEdit*>(QLatin1String(pole))->setText(t);
}

// The step in the picture library opened from the item form: notes the mark the form left
// for it ("N" or "D") and chooses the record at `zaznam` (0 the first).
Kroky::Krok vyberVKnihovne(QString& znacka, int zaznam)
{
    return vOkne<FrmObr>([&znacka, zaznam](FrmObr* o) {
        znacka = o->parentWidget()->findChild<QGroupBox*>(QStringLiteral("fraNCenik"))->property("Tag").toString();
        o->findChild<QScrollBar*>(QStringLiteral("HScroll1"))->setValue(zaznam);
        o->findChild<QPushButton*>(QStringLiteral("cmdV"))->click();
    });
}

const QString Dub = QStringLiteral("DTD dub 'Rustikál' 18");
const QString Hrana = QStringLiteral("ABS bílá 2 mm");
const QString Cep = QStringLiteral("Čep 8 x 35");

class CenikOkno : public OknoTest {
protected:
    void SetUp() override
    {
        OknoTest::SetUp();
        Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("DPH"), QStringLiteral("21"));
        SkriptovanyPrompt tichy;
        for (const char* nazev : {"dub.png", "buk.png"})
            ide << Knihovna::pridej(uloziste().cenik(), tichy, Knihovna::Druh::Obrazky, QLatin1String(nazev), vzorek("png", {40, 30}, Qt::darkYellow));
        ASSERT_EQ(Cenik::nahraj(uloziste().cenik(), tichy,
                                {{Dub, QStringLiteral("101"), QStringLiteral("412.50"), QStringLiteral("m2"), QStringLiteral("PM"), ide[0], 0},
                                 {Hrana, QStringLiteral("201"), QStringLiteral("14.90"), QStringLiteral("bm"), QStringLiteral("H"), 0, 0},
                                 {Cep, QStringLiteral("301"), QStringLiteral("0.60"), QStringLiteral("ks"), QStringLiteral("P"), 0, 0}}),
                  -1);
    }

    QList<int> ide; // the two pictures
};

} // namespace

TEST_F(CenikOkno, NovaPolozkaOdmitnutaOpravenaASObrazkemZKnihovny)
{
    const QString nazev = QStringLiteral("Dub 'Rustikál' masiv");
    FrmCenik cenik(uloziste().cenik(), prompt, okno.get());
    QString znacka, nazevPoOdmitnuti, sDph;
    bool nahled = false;
    Kroky k({vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 napis(d, "txtNazev", nazev);
                 napis(d, "txtKod", QStringLiteral("12"));
                 napis(d, "txtCena", QStringLiteral("10000,01")); // a cent over the limit
                 sDph = d->findChild<QLabel*>(QStringLiteral("lblCenaDPH"))->text();
                 klikni(d, "cmdUlozit");
             }),
             vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 nazevPoOdmitnuti = text(d, "txtNazev");
                 napis(d, "txtCena", QStringLiteral("10000"));
                 klikni(d, "cmdObr1");
             }),
             vyberVKnihovne(znacka, 1),
             vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 nahled = !d->findChild<QLabel*>(QStringLiteral("lblO1"))->pixmap().isNull();
                 klikni(d, "cmdUlozit");
             })});
    cenik.prikaz(QStringLiteral("NPoložka"));

    EXPECT_TRUE(k.hotovo());
    EXPECT_EQ(sDph, QStringLiteral("12100.01")); // live, before any save
    EXPECT_EQ(k.zpravy, QStringList{QStringLiteral("Do pole CENA zadejte číselnou nenulovou hodnotu v intervalu do 10 000")});
    EXPECT_EQ(nazevPoOdmitnuti, nazev);
    EXPECT_EQ(znacka, QStringLiteral("N"));
    EXPECT_TRUE(nahled);
    const auto p = Cenik::nacti(uloziste().cenik(), nazev);
    ASSERT_TRUE(p);
    EXPECT_EQ(p->kod, 12);
    EXPECT_DOUBLE_EQ(p->cena, 10000);
    EXPECT_EQ(p->obr1, ide[1]);
    EXPECT_EQ(p->obr2, 0);
    EXPECT_EQ(cenik.findChild<QListWidget*>(QStringLiteral("lstCenik"))->currentItem()->text(), nazev);
}

TEST_F(CenikOkno, UpravaSvehoNazvuDruhyObrazekAOdebraniPrvniho)
{
    FrmCenik cenik(uloziste().cenik(), prompt, okno.get());
    auto* seznam = cenik.findChild<QListWidget*>(QStringLiteral("lstCenik"));
    seznam->setCurrentItem(seznam->findItems(Dub, Qt::MatchExactly).value(0));
    QString znacka, cenaVeFormulari;
    Kroky k({vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 cenaVeFormulari = text(d, "txtCena");
                 napis(d, "txtCena", QStringLiteral("420"));
                 d->findChild<QPushButton*>(QStringLiteral("cmdBezObr1"))->click();
                 klikni(d, "cmdObr2");
             }),
             vyberVKnihovne(znacka, 0),
             vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 klikni(d, "cmdUlozit");
             })});
    cenik.prikaz(QStringLiteral("UPoložky"));

    EXPECT_TRUE(k.hotovo());
    EXPECT_TRUE(k.zpravy.isEmpty()) << k.zpravy.join(QLatin1Char('|')).toStdString(); // its own name is no duplicate
    EXPECT_EQ(cenaVeFormulari, QStringLiteral("412.50"));
    EXPECT_EQ(znacka, QStringLiteral("D"));
    const auto p = Cenik::nacti(uloziste().cenik(), Dub);
    ASSERT_TRUE(p);
    EXPECT_DOUBLE_EQ(p->cena, 420);
    EXPECT_EQ(p->obr1, 0);
    EXPECT_EQ(p->obr2, ide[0]);
    EXPECT_EQ(cenik.findChild<QLabel*>(QStringLiteral("lblCenaDPH"))->text(), QStringLiteral("508.20 Kč/m2"));
    EXPECT_EQ(cenik.findChild<QLabel*>(QStringLiteral("lblObr1"))->text(), QString());
    EXPECT_EQ(cenik.findChild<QLabel*>(QStringLiteral("lblObr2"))->text(), QStringLiteral("dub.png"));
}

// A picture the form had chosen, deleted in the library before the form is saved, is not
// saved back: the next picture added takes its IDE and must not appear in the item.
TEST_F(CenikOkno, ObrazekSmazanyZFormulareSeDoPolozkyNeulozi)
{
    FrmCenik cenik(uloziste().cenik(), prompt, okno.get());
    auto* seznam = cenik.findChild<QListWidget*>(QStringLiteral("lstCenik"));
    seznam->setCurrentItem(seznam->findItems(Dub, Qt::MatchExactly).value(0));
    QString znacka, popisek;
    Kroky k({vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 klikni(d, "cmdObr1");
             }),
             vyberVKnihovne(znacka, 1), // buk.png, the highest IDE
             vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 klikni(d, "cmdObr2");
             }),
             vOkne<FrmObr>([&](FrmObr* o) {
                 o->findChild<QScrollBar*>(QStringLiteral("HScroll1"))->setValue(1);
                 klikni(o, "Command2");
             }),
             [&](QWidget* w) {
                 auto* o = qobject_cast<FrmObr*>(w);
                 if (!o || Knihovna::existuje(uloziste().cenik(), Knihovna::Druh::Obrazky, ide[1]))
                     return false;
                 o->findChild<QPushButton*>(QStringLiteral("cmdS"))->click();
                 return true;
             },
             vOkne<FrmPolozka>([&](FrmPolozka* d) {
                 popisek = d->findChild<QLabel*>(QStringLiteral("lblO1"))->text();
                 klikni(d, "cmdUlozit");
             })});
    cenik.prikaz(QStringLiteral("UPoložky"));

    EXPECT_TRUE(k.hotovo());
    EXPECT_EQ(k.zpravy, QStringList{QStringLiteral("Chcete opravdu obrázek smazat z databáze? ")});
    EXPECT_EQ(popisek, QStringLiteral("bez obrázku"));
    SkriptovanyPrompt tichy;
    EXPECT_EQ(Knihovna::pridej(uloziste().cenik(), tichy, Knihovna::Druh::Obrazky, QStringLiteral("novy.png"), vzorek("png")), ide[1]);
    EXPECT_EQ(Cenik::nacti(uloziste().cenik(), Dub)->obr1, 0);
}

// Each entry frame's "Z ceníku..." opens the price list with its own key and VM on, the others
// off; the key hands the chosen item's name and price to the frame's fields.
TEST_F(CenikOkno, KlavesyVolbyPredajiPolozkuPolimZaznamu)
{
    struct Pripad {
        const char* prikaz;
        bool sestava; // the command needs an assembly selected, not only the order
        const char* tlacitko;
        const char* klic; // the key pressed in the price list
        QString polozka;
        const char* poleNazvu;
        const char* poleCeny;
    };
    const Pripad pripady[] = {{"NF", false, "cmdVF", "VF", Dub, "txtFormat", "txtFCena"},
                              {"NH", false, "cmdVH", "VM", Hrana, "cmbHrana", "txtCenaHrany"},
                              {"NoveP", true, "cmdEP", "EP", Cep, "txtNPrislusenstvi", "txtCena"}};
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(p.prikaz);
        klik(p.sestava ? strom->topLevelItem(0)->child(0) : strom->topLevelItem(0));
        QStringList zapnute;
        QString nazev;
        double cena = 0;
        Kroky k({[&](QWidget* w) {
                     auto* d = qobject_cast<FrmNovy*>(w);
                     if (!d || !d->findChild<QPushButton*>(QLatin1String(p.tlacitko)))
                         return false;
                     klikni(d, p.tlacitko);
                     return true;
                 },
                 vOkne<FrmCenik>([&](FrmCenik* c) {
                     for (const char* klic : {"VM", "VF", "VH", "EP"})
                         if (c->findChild<QAction*>(QLatin1String(klic))->isEnabled())
                             zapnute << QLatin1String(klic);
                     Cenik::VyberRazeniCeniku(QStringLiteral("VSE"), QStringLiteral("nazev"));
                     c->NaplnCenik();
                     auto* seznam = c->findChild<QListWidget*>(QStringLiteral("lstCenik"));
                     seznam->setCurrentItem(seznam->findItems(p.polozka, Qt::MatchExactly).value(0));
                     c->findChild<QAction*>(QLatin1String(p.klic))->trigger();
                 }),
                 vOkne<FrmNovy>([&](FrmNovy* d) {
                     nazev = d->findChild<QComboBox*>(QLatin1String(p.poleNazvu))->currentText();
                     cena = hodnota(d, p.poleCeny);
                     d->reject();
                 })});
        okno->prikaz(QLatin1String(p.prikaz));
        EXPECT_TRUE(k.hotovo());
        EXPECT_TRUE(k.zpravy.isEmpty()) << k.zpravy.join(QLatin1Char('|')).toStdString();
        const QString vlastni = QString::fromLatin1(p.tlacitko).mid(3);
        EXPECT_EQ(zapnute, vlastni == QLatin1String("VM") ? QStringList{vlastni} : QStringList({QStringLiteral("VM"), vlastni}));
        EXPECT_EQ(nazev, p.polozka);
        EXPECT_DOUBLE_EQ(cena, Cenik::nacti(uloziste().cenik(), p.polozka)->cena);
    }
}

// A name chosen from the drop-down of the format and edge frames brings its price from the
// price list, as "Z ceníku..." does, shown as a price left by the joiner is; a name typed by
// hand brings nothing.
TEST_F(CenikOkno, VolbaZeSeznamuPrinasiCenu)
{
    klik(strom->topLevelItem(0));
    for (auto [prikaz, nazev, cena, polozka, tvar] :
         {std::tuple{"NF", "txtFormat", "txtFCena", Dub, "412.50 Kč/m2"},
          std::tuple{"NH", "cmbHrana", "txtCenaHrany", Hrana, "14.90 Kč/m"}}) {
        SCOPED_TRACE(prikaz);
        QString vybrana, napsana;
        double cenaVybrane = 0;
        Kroky k({vOkne<FrmNovy>([&](FrmNovy* d) {
            auto* seznam = d->findChild<QComboBox*>(QLatin1String(nazev));
            seznam->setCurrentText(QStringLiteral("vlastní název"));
            emit seznam->textActivated(seznam->currentText()); // Enter on a typed name
            napsana = text(d, cena);
            seznam->setCurrentIndex(seznam->findText(polozka));
            emit seznam->textActivated(polozka); // as a click in the drop-down list
            vybrana = text(d, cena);
            cenaVybrane = hodnota(d, cena);
            d->reject();
        })});
        okno->prikaz(QLatin1String(prikaz));
        EXPECT_TRUE(k.hotovo());
        EXPECT_EQ(napsana, QString());
        EXPECT_EQ(vybrana, QString::fromUtf8(tvar));
        EXPECT_DOUBLE_EQ(cenaVybrane, Cenik::nacti(uloziste().cenik(), polozka)->cena);
    }
}

// "Záloha ceníku" and "Obnova ceníku" from the window: the backup under its proposed name, the
// restore with its question and safety copy, the list read again from the restored file; a data
// backup offered to it is refused and nothing changes.
TEST_F(CenikOkno, ZalohaAObnovaCenikuZOkna)
{
    SkriptovanyPrompt skript;
    FrmCenik cenik(uloziste(), skript, okno.get());
    auto* seznam = cenik.findChild<QListWidget*>(QStringLiteral("lstCenik"));
    Cenik::VyberRazeniCeniku(QStringLiteral("VSE"), QStringLiteral("nazev"));
    cenik.NaplnCenik();
    const int polozek = seznam->count();
    const QString zaloha = domov() + QStringLiteral("/cenik.cen");
    skript.odpovez(zaloha);
    cenik.prikaz(QStringLiteral("ZD"));
    ASSERT_TRUE(QFile::exists(zaloha));
    EXPECT_EQ(skript.titulky.last(), QStringLiteral("Uloženo.."));

    uloziste().cenik().executeSqlite(QStringLiteral("DELETE FROM Cenik WHERE nazev = ?"), {Cep});
    cenik.NaplnCenik();
    ASSERT_EQ(seznam->count(), polozek - 1);

    // a data backup is not a price list: refused, nothing replaced
    const QString data = domov() + QStringLiteral("/data.bvk");
    Zaloha::zalohuj(uloziste(), Schema::Soubor::Data, data);
    skript.odpovez(data);
    cenik.prikaz(QStringLiteral("OZ"));
    EXPECT_EQ(skript.zpravy.last(), QStringLiteral(" Vybraný soubor neobsahuje platná data pro tento program"));
    EXPECT_EQ(seznam->count(), polozek - 1);

    skript.odpovez(zaloha);
    skript.odpovez(Prompt::Odpoved::Ano);
    cenik.prikaz(QStringLiteral("OZ"));
    EXPECT_EQ(skript.zpravy.last(), QStringLiteral("Obnova zálohy byla úspěšně dokončena"));
    EXPECT_EQ(seznam->count(), polozek);
    EXPECT_TRUE(Cenik::nacti(uloziste().cenik(), Cep)); // the store reopened on the restored file
    EXPECT_TRUE(QFile::exists(domov() + QStringLiteral("/Data/CenikZ.db")));
}
