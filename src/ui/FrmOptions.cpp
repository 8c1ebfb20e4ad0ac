#include "ui/FrmOptions.h"

#include "core/BarvaVB.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "planoutput/ExportCNC.h"
#include "planoutput/NahledStitku.h"
#include "printing/Vykresleni.h"
#include "ui/CiselnePole.h"
#include "ui/FrmVSP.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const char* const KliceBarev[] = {"BarvaDesky", "BarvaOdrezku", "BarvaOdpadu"};
const char* const PopiskyBarev[] = {"Deska", "Odřezek", "Odpad"};
const char* const OtazkyPisma[] = {"Změnit písmo popisu desky?", "Změnit písmo popisu odřezku?"};
const int VolbyTabuli[] = {1, 2, 4};
constexpr int ZoomNahledu = 30; // per cent of the A4 page at 96 dpi

QString nastaveni(const char* klic)
{
    return Nastaveni::GetSetting(QStringLiteral("Setting"), QLatin1String(klic));
}

} // namespace

FrmOptions::FrmOptions(Prompt& prompt, std::function<void()> obnov, QWidget* rodic)
    : QDialog(rodic), m_prompt(prompt), m_obnov(std::move(obnov))
{
    setObjectName(QStringLiteral("frmOptions"));
    setWindowTitle(QStringLiteral("Možnosti"));
    m_tab = new QTabWidget;
    m_tab->setObjectName(QStringLiteral("tabNastaveni"));
    m_tab->addTab(strankaRezani(), QStringLiteral("Řezání a kreslení"));
    m_tab->addTab(strankaStitku(), QStringLiteral("Štítky"));
    m_tab->addTab(strankaOdrezku(), QStringLiteral("Odřezky"));
    m_tab->addTab(strankaCen(), QStringLiteral("Ceny"));
    m_tab->addTab(strankaCNC(), QStringLiteral("CNC"));
    const char* nazvyStranek[] = {"C1Elastic3", "C1Elastic4", "C1Elastic2", "C1Elastic1", "C1Elastic5"};
    for (int i = 0; i < m_tab->count(); ++i)
        m_tab->widget(i)->setObjectName(QLatin1String(nazvyStranek[i]));

    m_cmdPouzit = new QPushButton(QStringLiteral("Použít"));
    m_cmdPouzit->setObjectName(QStringLiteral("cmdPouzit"));
    connect(m_cmdPouzit, &QPushButton::clicked, this, &FrmOptions::Pouzit);
    auto* storno = new QPushButton(QStringLiteral("Zpět"));
    storno->setObjectName(QStringLiteral("cmdStorno"));
    connect(storno, &QPushButton::clicked, this, &QDialog::reject);
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addStretch();
    tlacitka->addWidget(m_cmdPouzit);
    tlacitka->addWidget(storno);
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_tab);
    l->addLayout(tlacitka);
    nacti();
}

QWidget* FrmOptions::vytvorPole(const char* klic)
{
    const Moznosti::Pole& p = *Moznosti::najdi(QLatin1String(klic));
    QWidget* w = nullptr;
    switch (p.druh) {
    case Moznosti::Druh::Delka: {
        auto* c = new CiselnePole(CiselnePole::Druh::Delka, 0);
        c->nulaJeHodnota(true);
        w = c;
        break;
    }
    case Moznosti::Druh::Cislo: w = new CiselnePole(CiselnePole::Druh::Desetinne, 2); break;
    case Moznosti::Druh::Cele: w = new CiselnePole(CiselnePole::Druh::Cele, p.po >= 100 ? 3 : 2); break;
    case Moznosti::Druh::Zaskrtnuti: w = new QCheckBox(QString::fromUtf8(p.popisek)); break;
    case Moznosti::Druh::Text: {
        auto* c = new QComboBox;
        c->setEditable(true);
        c->addItems(Moznosti::polozkyMen());
        w = c;
        break;
    }
    default: {
        auto* c = new QComboBox;
        c->addItems(Moznosti::polozkyJednotek());
        w = c;
    }
    }
    w->setObjectName(QLatin1String(p.ovladac));
    if (auto* e = qobject_cast<QLineEdit*>(w)) {
        e->setMaximumWidth(110);
        const bool stitek = p.krok == 6;
        connect(e, &QLineEdit::textEdited, this, [this, stitek] { zmena(stitek); });
    } else if (auto* c = qobject_cast<QCheckBox*>(w)) {
        connect(c, &QCheckBox::toggled, this, [this] { zmena(false); });
    } else if (auto* c = qobject_cast<QComboBox*>(w)) {
        connect(c, &QComboBox::currentTextChanged, this, [this] { zmena(false); });
    }
    m_pole.insert(QLatin1String(klic), w);
    return w;
}

QWidget* FrmOptions::poleSPopiskem(const QString& popisek, const char* klic)
{
    auto* w = new QWidget;
    auto* l = new QHBoxLayout(w);
    l->setContentsMargins(0, 0, 0, 0);
    l->addWidget(new QLabel(popisek));
    l->addWidget(vytvorPole(klic));
    l->addStretch();
    return w;
}

QWidget* FrmOptions::strankaRezani()
{
    auto* vt = new QGroupBox(QStringLiteral("Vykreslení nářezového plánu"));
    vt->setObjectName(QStringLiteral("optVT"));
    auto* vtl = new QVBoxLayout(vt);
    for (int i = 0; i < 3; ++i) {
        auto* r = new QRadioButton(QStringLiteral("%1 tabule na A4").arg(VolbyTabuli[i]));
        r->setObjectName(QStringLiteral("optVT(%1)").arg(i));
        r->setProperty("hodnota", VolbyTabuli[i]);
        connect(r, &QRadioButton::toggled, this, [this] { zmena(false); });
        vtl->addWidget(r);
    }
    m_pole.insert(QStringLiteral("VykresleniTabule"), vt);

    auto* rozmery = new QFormLayout;
    rozmery->addRow(QStringLiteral("Rozměry ve tvaru:"), vytvorPole("Jednotky"));
    rozmery->addRow(QStringLiteral("Šířka řezu"), vytvorPole("Srez"));
    rozmery->addRow(QStringLiteral("Sámování [mm] "), vytvorPole("Samovani"));
    rozmery->addRow(vytvorPole("ZarovnaniFormatu"));
    rozmery->addRow(vytvorPole("ZobrazeniHran"));

    auto* barvy = new QGroupBox(QStringLiteral("Barvy v nářezovém plánu"));
    auto* bl = new QGridLayout(barvy);
    for (int i = 0; i < 3; ++i) {
        m_pct[i] = new QLabel;
        m_pct[i]->setObjectName(QStringLiteral("pct(%1)").arg(i));
        m_pct[i]->setFixedSize(48, 24);
        m_pct[i]->setFrameShape(QFrame::Box);
        auto* zmen = new QToolButton;
        zmen->setText(QString::fromUtf8(PopiskyBarev[i]) + QStringLiteral("…"));
        zmen->setToolButtonStyle(Qt::ToolButtonTextOnly);
        connect(zmen, &QToolButton::clicked, this, [this, i] { zmenBarvu(i); });
        bl->addWidget(m_pct[i], 0, i, Qt::AlignHCenter);
        bl->addWidget(zmen, 1, i, Qt::AlignHCenter);
    }
    auto* pisma = new QGroupBox(QStringLiteral("Písmo popisu"));
    auto* pl = new QVBoxLayout(pisma);
    for (int i = 0; i < 2; ++i) {
        m_lblRozmer[i] = new QLabel(QString::fromUtf8(OtazkyPisma[i]));
        m_lblRozmer[i]->setObjectName(QStringLiteral("lblRozmer(%1)").arg(i));
        m_lblRozmer[i]->setMinimumHeight(36);
        auto* zmen = new QPushButton(QStringLiteral("Změnit…"));
        connect(zmen, &QPushButton::clicked, this, [this, i] { zmenPismo(i); });
        auto* radek = new QHBoxLayout;
        radek->addWidget(m_lblRozmer[i], 1);
        radek->addWidget(zmen);
        pl->addLayout(radek);
    }

    auto* stranka = new QWidget;
    auto* g = new QGridLayout(stranka);
    g->addWidget(vt, 0, 0);
    g->addLayout(rozmery, 0, 1);
    g->addWidget(barvy, 1, 0, 1, 2);
    g->addWidget(pisma, 2, 0, 1, 2);
    g->setRowStretch(3, 1);
    return stranka;
}

QWidget* FrmOptions::strankaStitku()
{
    static const char* const radky[][3] = {
        {"Délka štítku", "DelkaStitku", "DelkaStitkuTisk"},
        {"Šířka štítku", "SirkaStitku", "SirkaStitkuTisk"},
        {"Okraj zleva", "OkrajZleva", "OkrajZlevaTisk"},
        {"Okraj shora", "OkrajShora", "OkrajShoraTisk"},
        {"Mezera X", "MezeraXMeziStitky", "MezeraXMeziStitkyTisk"},
        {"Mezera Y", "MezeraYMeziStitky", "MezeraYMeziStitkyTisk"},
        {"Počet sloupců", "PocetSloupcuStitku", "PocetSloupcuStitkuTisk"},
        {"Počet řádků", nullptr, "PocetRadkuStitkuTisk"},
    };
    auto* mrizka = new QGroupBox(QStringLiteral("Štítky"));
    auto* g = new QGridLayout(mrizka);
    g->addWidget(new QLabel(QStringLiteral("papír")), 0, 1);
    g->addWidget(new QLabel(QStringLiteral("tisk")), 0, 2);
    for (int r = 0; r < 8; ++r) {
        g->addWidget(new QLabel(QString::fromUtf8(radky[r][0])), r + 1, 0);
        for (int s = 1; s < 3; ++s)
            if (radky[r][s])
                g->addWidget(vytvorPole(radky[r][s]), r + 1, s);
    }
    auto* okraje = new QGroupBox(QStringLiteral("Okraje tiskárny:"));
    auto* o = new QFormLayout(okraje);
    o->addRow(QStringLiteral("Shora"), vytvorPole("OkrajStrankyShora"));
    o->addRow(QStringLiteral("Zdola"), vytvorPole("OkrajStrankyZdola"));
    o->addRow(QStringLiteral("Zleva"), vytvorPole("OkrajStrankyZleva"));
    o->addRow(QStringLiteral("Zprava"), vytvorPole("OkrajStrankyZprava"));

    m_VSPrinter1 = new QToolButton;
    m_VSPrinter1->setObjectName(QStringLiteral("VSPrinter1"));
    m_VSPrinter1->setToolTip(QStringLiteral("kliknutím zvětšíte náhled"));
    m_VSPrinter1->setAutoRaise(true);
    connect(m_VSPrinter1, &QToolButton::clicked, this, &FrmOptions::zvetsiNahled);
    auto* vlevo = new QVBoxLayout;
    vlevo->addWidget(mrizka);
    vlevo->addWidget(okraje);
    vlevo->addStretch();
    auto* stranka = new QWidget;
    auto* l = new QHBoxLayout(stranka);
    l->addLayout(vlevo);
    l->addWidget(m_VSPrinter1, 0, Qt::AlignTop);
    return stranka;
}

QWidget* FrmOptions::strankaOdrezku()
{
    auto* rozmery = new QGroupBox(QStringLiteral("Minimální rozměry odřezku "));
    auto* f = new QFormLayout(rozmery);
    f->addRow(QStringLiteral("Délka ="), vytvorPole("XZ"));
    f->addRow(QStringLiteral("Šířka = "), vytvorPole("YZ"));
    auto* stranka = new QWidget;
    auto* l = new QVBoxLayout(stranka);
    l->addWidget(vytvorPole("POdrezky"));
    l->addWidget(rozmery);
    l->addStretch();
    return stranka;
}

QWidget* FrmOptions::strankaCen()
{
    auto* ceny = new QFormLayout;
    ceny->addRow(QStringLiteral("Měna:"), vytvorPole("Mena"));
    ceny->addRow(QStringLiteral("DPH [%]:"), vytvorPole("DPH"));
    auto* cenaRezu = new QHBoxLayout; // priced by the metre of cut: said beside the field
    cenaRezu->addWidget(vytvorPole("CRez"));
    cenaRezu->addWidget(new QLabel(QStringLiteral("za 1 m řezu")), 1);
    ceny->addRow(QStringLiteral("Cena řezu:"), cenaRezu);
    ceny->addRow(vytvorPole("ZCR"));
    auto* slevy = new QGroupBox(QStringLiteral("Slevy"));
    auto* s = new QFormLayout(slevy);
    s->addRow(QStringLiteral("plošný mat. [%]:"), vytvorPole("SlevaPM"));
    s->addRow(QStringLiteral("hrany [%]:"), vytvorPole("SlevaHrana"));
    s->addRow(QStringLiteral("příslušenství [%]:"), vytvorPole("SlevaPris"));
    auto* stranka = new QWidget;
    auto* l = new QVBoxLayout(stranka);
    l->addLayout(ceny);
    l->addWidget(slevy);
    l->addStretch();
    return stranka;
}

QWidget* FrmOptions::strankaCNC()
{
    auto* stranka = new QWidget;
    auto* l = new QVBoxLayout(stranka);
    l->addWidget(new QLabel(QStringLiteral("Pevné hodnoty materiálu v souboru .VPF pro pilu:")));
    auto* f = new QFormLayout;
    for (const QString& radek : ExportCNC::konstantyMaterialu()) {
        auto* hodnota = new QLineEdit(radek.section(QLatin1Char('='), 1));
        hodnota->setReadOnly(true);
        hodnota->setMaximumWidth(110);
        f->addRow(radek.section(QLatin1Char('='), 0, 0), hodnota);
    }
    l->addLayout(f);
    l->addStretch();
    return stranka;
}

void FrmOptions::nacti()
{
    m_nacitani = true;
    const Moznosti::Hodnoty h = Moznosti::nacti();
    for (auto it = m_pole.begin(); it != m_pole.end(); ++it) {
        const QString t = h.value(it.key());
        const Moznosti::Pole* p = Moznosti::najdi(it.key());
        if (auto* e = qobject_cast<QLineEdit*>(*it))
            e->setText(p->druh == Moznosti::Druh::Delka ? t + Jednotky::pripona() : t);
        else if (auto* c = qobject_cast<QCheckBox*>(*it))
            c->setChecked(t == QLatin1String("1"));
        else if (auto* c = qobject_cast<QComboBox*>(*it))
            p->druh == Moznosti::Druh::Volba ? c->setCurrentIndex(t.toInt()) : c->setCurrentText(t);
        else
            for (QRadioButton* r : (*it)->findChildren<QRadioButton*>())
                r->setChecked(r->property("hodnota").toString() == t);
    }
    obnovVzorky();
    prekresliNahled();
    m_cmdPouzit->setEnabled(false);
    m_nacitani = false;
}

Moznosti::Hodnoty FrmOptions::hodnoty() const
{
    Moznosti::Hodnoty h;
    for (auto it = m_pole.begin(); it != m_pole.end(); ++it) {
        QString t;
        if (auto* e = qobject_cast<QLineEdit*>(*it))
            t = e->text();
        else if (auto* c = qobject_cast<QCheckBox*>(*it))
            t = c->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
        else if (auto* c = qobject_cast<QComboBox*>(*it))
            t = it.key() == QLatin1String("Jednotky") ? QString::number(c->currentIndex()) : c->currentText();
        else
            for (QRadioButton* r : (*it)->findChildren<QRadioButton*>())
                if (r->isChecked())
                    t = r->property("hodnota").toString();
        h.insert(it.key(), t);
    }
    return h;
}

bool FrmOptions::Pouzit()
{
    const Moznosti::Hodnoty h = hodnoty();
    if (const auto o = Moznosti::over(h)) {
        m_prompt.zprava(o->zprava, Moznosti::TitulekOdmitnuti, Prompt::Ikona::Vykricnik);
        QWidget* w = m_pole.value(o->klic);
        for (QWidget* s = w; s; s = s->parentWidget())
            if (int i = m_tab->indexOf(s); i >= 0)
                m_tab->setCurrentIndex(i);
        w->setFocus();
        if (auto* e = qobject_cast<QLineEdit*>(w))
            e->selectAll();
        return false;
    }
    Moznosti::uloz(h); // checked above: it stores
    if (m_obnov)
        m_obnov();
    m_cmdPouzit->setEnabled(false);
    nacti();
    return true;
}

void FrmOptions::zmena(bool stitek)
{
    if (m_nacitani)
        return;
    m_cmdPouzit->setEnabled(true);
    if (stitek)
        prekresliNahled();
}

void FrmOptions::zmenBarvu(int i)
{
    const quint32 puvodni = BarvaVB::zTextu(nastaveni(KliceBarev[i])).value_or(0xffffff);
    try {
        const quint32 b = m_prompt.barva(puvodni, QStringLiteral("Barva – ") + QString::fromUtf8(PopiskyBarev[i]));
        Nastaveni::SaveSetting(QStringLiteral("Setting"), QLatin1String(KliceBarev[i]), BarvaVB::text(b));
    } catch (const Error& e) {
        if (e.cislo() != Chyba::Zruseno)
            throw;
    }
    obnovVzorky();
}

void FrmOptions::zmenPismo(int i)
{
    const auto popis = i == 0 ? Moznosti::Popis::Deska : Moznosti::Popis::Odrezek;
    try {
        Moznosti::ulozPismo(popis, m_prompt.pismo(Moznosti::pismo(popis), QString::fromUtf8(OtazkyPisma[i])));
    } catch (const Error& e) {
        if (e.cislo() != Chyba::Zruseno)
            throw;
    }
    obnovVzorky();
}

void FrmOptions::obnovVzorky()
{
    for (int i = 0; i < 3; ++i)
        m_pct[i]->setStyleSheet(QStringLiteral("background-color: %1;")
                                    .arg(BarvaVB::html(BarvaVB::zTextu(nastaveni(KliceBarev[i])).value_or(0))));
    for (int i = 0; i < 2; ++i) {
        const VolbaPisma v = Moznosti::pismo(i == 0 ? Moznosti::Popis::Deska : Moznosti::Popis::Odrezek);
        QFont f(v.nazev);
        f.setPointSize(qBound(8, v.velikost, 16)); // the sample keeps the page readable
        f.setBold(v.tucne);
        f.setItalic(v.kurziva);
        f.setUnderline(v.podtrzene);
        f.setStrikeOut(v.preskrtnute);
        m_lblRozmer[i]->setFont(f);
        m_lblRozmer[i]->setStyleSheet(QStringLiteral("color: %1;").arg(BarvaVB::html(v.barva)));
        m_lblRozmer[i]->setToolTip(QStringLiteral("%1, %2 b.").arg(v.nazev).arg(v.velikost));
    }
}

void FrmOptions::prekresliNahled()
{
    m_nahled = NahledStitku::vykresli(NahledStitku::zHodnot(hodnoty()));
    const QPixmap obraz = QPixmap::fromImage(Vykresleni::obraz(m_nahled, 1, ZoomNahledu));
    m_VSPrinter1->setIcon(QIcon(obraz));
    m_VSPrinter1->setIconSize(obraz.size());
}

void FrmOptions::zvetsiNahled()
{
    FrmVSP okno(m_prompt, this);
    okno.setWindowTitle(QStringLiteral("Náhled štítků"));
    okno.dokument() = m_nahled;
    okno.obnov();
    okno.exec();
}
