#include "ui/FrmBorovak.h"

#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "core/ZpravaChyby.h"
#include "costing/Kalkulace.h"
#include "costing/Vypisy.h"
#include "orders/Kopirovani.h"
#include "exchange/Zaloha.h"
#include "optimiser/PlanRun.h"
#include "orders/Strom.h"
#include "ui/FrmNP.h"
#include "ui/FrmVSP.h"
#include "ui/FrmNovy.h"
#include "ui/FrmOptions.h"
#include "ui/FrmSklad.h"
#include "ui/Ikony.h"
#include "ui/Nabidka.h"
#include "ui/QtPrompt.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Commands whose routines are in place; every other entry stands disabled until its own arrives.
const QStringList hotove = {
    QStringLiteral("NP"), QStringLiteral("Vz"), QStringLiteral("OD"), QStringLiteral("Konec"),
    QStringLiteral("NapovedaObsah"), QStringLiteral("OProgramu"), QStringLiteral("NZakazka"),
    QStringLiteral("UpraveniZakazky"), QStringLiteral("SmazaniZakazky"), QStringLiteral("NSestava"),
    QStringLiteral("USestava"), QStringLiteral("SmazaniSestavy"), QStringLiteral("NF"), QStringLiteral("UF"),
    QStringLiteral("SF"), QStringLiteral("NH"), QStringLiteral("UH"), QStringLiteral("SH"), QStringLiteral("NovyPloM"),
    QStringLiteral("UpraveniPM"), QStringLiteral("SmazaniPM"), QStringLiteral("cmdNovyFormat"),
    QStringLiteral("cmdUpravitFormat"), QStringLiteral("cmdSmazatFormat"), QStringLiteral("cmdNovaHrana"),
    QStringLiteral("cmdUpravitHrana"), QStringLiteral("cmdSmazatHrana"), QStringLiteral("cmdNovyPM"),
    QStringLiteral("cmdUpravitPM"), QStringLiteral("cmdSmazatPM"), QStringLiteral("cmdImport"),
    QStringLiteral("RychlaKalkulace"), QStringLiteral("KS"), QStringLiteral("NM"), QStringLiteral("CN"),
    QStringLiteral("SMZ"), QStringLiteral("SMDS"), QStringLiteral("Sklad"), QStringLiteral("SO"),
    QStringLiteral("UlozeniJakoZ"), QStringLiteral("UlozeniSestavyJako"), QStringLiteral("Moznosti"),
    QStringLiteral("cestina"), QStringLiteral("Anglictina"),
    QStringLiteral("NoveP"),
    QStringLiteral("UpraveniP"), QStringLiteral("SmazaniP"), QStringLiteral("cmdNovePrislusenstvi"),
    QStringLiteral("cmdUpravitPrislusenstvi"), QStringLiteral("cmdSmazatPrislusenstvi"), QStringLiteral("CTM"),
    QStringLiteral("DSS"), QStringLiteral("DOC")};

// The costing reports by the command that opens them.
const QHash<QString, DruhVypisu> vypisy = {
    {QStringLiteral("RychlaKalkulace"), DruhVypisu::Zakazka}, {QStringLiteral("KS"), DruhVypisu::Sestavy},
    {QStringLiteral("NM"), DruhVypisu::Nakup},                {QStringLiteral("CN"), DruhVypisu::Nabidka},
    {QStringLiteral("SMZ"), DruhVypisu::Dilna},               {QStringLiteral("SMDS"), DruhVypisu::DilnaSeSchematy}};

constexpr int TwipuNaPixel = 15; // the old window positions were kept in screen twips

QString sqlZakazky(const QString& zakazka)
{
    return QStringLiteral("SELECT * FROM Zakazky  WHERE Zakazka = '") + Dotaz::text(zakazka) + QStringLiteral("'");
}

} // namespace

FrmBorovak::FrmBorovak(Uloziste& uloziste, Prompt& prompt) : m_uloziste(uloziste), m_prompt(prompt)
{
    setObjectName(QStringLiteral("frmBorovak"));
    setWindowTitle(QStringLiteral("Truhlář V ") + Nastaveni::verze());
    setWindowIcon(Ikony::proKlic("NP"));
    vytvorMenu();
    vytvorNastroje();

    m_tvzakazky = new QTreeWidget;
    m_tvzakazky->setObjectName(QStringLiteral("tvzakazky"));
    m_tvzakazky->setHeaderHidden(true);
    m_tvzakazky->setIconSize(QSize(18, 18));
    connect(m_tvzakazky, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* u) { klikNaUzel(u); });
    m_tvzakazky->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_tvzakazky, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& bod) {
        QTreeWidgetItem* u = m_tvzakazky->itemAt(bod);
        if (!u)
            return;
        klikNaUzel(u);
        const bool sestava = !u->data(0, Qt::UserRole + 1).toString().isEmpty();
        if (auto* m = findChild<QMenu*>(sestava ? QStringLiteral("Sestava") : QStringLiteral("Zakazka")))
            m->exec(m_tvzakazky->viewport()->mapToGlobal(bod));
    });
    m_tvzakazky->setDragEnabled(true);
    m_tvzakazky->setAcceptDrops(true);
    m_tvzakazky->setDragDropMode(QAbstractItemView::DragDrop);
    m_tvzakazky->viewport()->installEventFilter(this);
    auto* napis = new QLabel(QStringLiteral("Zakázka / Sestava"));
    napis->setObjectName(QStringLiteral("lblNapis1"));
    auto* strom = new QWidget;
    auto* stromLayout = new QVBoxLayout(strom);
    stromLayout->setContentsMargins(0, 0, 0, 0);
    stromLayout->addWidget(napis);
    stromLayout->addWidget(m_tvzakazky);
    m_img1 = new QLabel;
    m_img1->setObjectName(QStringLiteral("img1"));
    m_img1->setAlignment(Qt::AlignCenter);
    m_img1->setMinimumHeight(60);
    m_img1->setFrameShape(QFrame::StyledPanel);
    auto* vlevo = new QSplitter(Qt::Vertical);
    vlevo->setObjectName(QStringLiteral("imgsplitter2"));
    vlevo->addWidget(strom);
    vlevo->addWidget(m_img1);
    vlevo->setStretchFactor(0, 3);
    vlevo->setStretchFactor(1, 1);

    m_stZakazky = new QTabWidget;
    m_stZakazky->setObjectName(QStringLiteral("stZakazky"));
    m_stZakazky->addTab(vytvorStranku("fraFormat", QStringLiteral("Formáty:"), m_GridFormaty,
                                      {QStringLiteral("Materiál"), QStringLiteral("Délka"), QStringLiteral("Šířka"),
                                       QStringLiteral("Cena bez DPH"), QStringLiteral("Cena s DPH")},
                                      "fraHrany", QStringLiteral("Hrany:"), m_GridHrany,
                                      {QStringLiteral("Materiál"), QStringLiteral("Cena bez DPH"),
                                       QStringLiteral("Přesah hrany"), QStringLiteral("Barva hrany v NP")},
                                      {QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdUpravitFormat"),
                                       QStringLiteral("cmdSmazatFormat")},
                                      {QStringLiteral("cmdNovaHrana"), QStringLiteral("cmdUpravitHrana"),
                                       QStringLiteral("cmdSmazatHrana")}),
                        QStringLiteral("Zakázka"));
    m_stZakazky->addTab(vytvorStranku("fraPM", QStringLiteral("Plošný materiál:"), m_GPM,
                                      {QStringLiteral("Název pl. materiálu"), QStringLiteral("Délka"),
                                       QStringLiteral("Šířka"), QStringLiteral("Počet"), QStringLiteral("Formát")},
                                      "fraPrislusenstvi", QStringLiteral("Příslušenství:"), m_GPR,
                                      {QStringLiteral("Název příslušenství"), QStringLiteral("Množství"),
                                       QStringLiteral("Cena bez DPH")},
                                      {QStringLiteral("cmdNovyPM"), QStringLiteral("cmdUpravitPM"),
                                       QStringLiteral("cmdSmazatPM"), QStringLiteral("cmdImport")},
                                      {QStringLiteral("cmdNovePrislusenstvi"), QStringLiteral("cmdUpravitPrislusenstvi"),
                                       QStringLiteral("cmdSmazatPrislusenstvi")}),
                        QStringLiteral("Sestava"));

    auto* rozdeleni = new QSplitter(Qt::Horizontal);
    rozdeleni->setObjectName(QStringLiteral("imgSplitter"));
    rozdeleni->addWidget(vlevo);
    rozdeleni->addWidget(m_stZakazky);
    rozdeleni->setStretchFactor(0, 1);
    rozdeleni->setStretchFactor(1, 3);
    setCentralWidget(rozdeleni);

    statusBar()->setObjectName(QStringLiteral("stBorovak"));
    for (int i = 0; i < 3; ++i) {
        m_panel[i] = new QLabel;
        m_panel[i]->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        m_panel[i]->setMinimumWidth(i == 0 ? 260 : 170);
        statusBar()->addWidget(m_panel[i], i == 0 ? 1 : 0);
    }
    for (QLabel* p : m_panel)
        p->installEventFilter(this);
    m_img1->installEventFilter(this);
    m_panel[1]->setToolTip(QStringLiteral("Cena zakázky s DPH"));
    m_panel[2]->setToolTip(QStringLiteral("Cena za 1ks sestavy s DPH"));

    connect(&m_vyber, &Vyber::zmenaZakazky, this, &FrmBorovak::obnovZakazku);
    connect(&m_vyber, &Vyber::zmenaSestavy, this, &FrmBorovak::obnovSestavu);
    pripojKatalog();
    NaplnitStrom();
    obnovGeometrii();
    ZakazEditaciZakazky();
    ZakazEditaciSestavy();
}

void FrmBorovak::vytvorMenu()
{
    std::function<void(QWidget*, const std::vector<Nabidka::Polozka>&)> pridej =
        [&](QWidget* kam, const std::vector<Nabidka::Polozka>& polozky) {
            for (const Nabidka::Polozka& p : polozky) {
                if (!p.polozky.empty()) {
                    auto* m = new QMenu(QString::fromUtf8(p.popisek), kam);
                    m->setObjectName(QLatin1String(p.nazev));
                    m->menuAction()->setObjectName(QLatin1String(p.nazev));
                    kam->addAction(m->menuAction());
                    pridej(m, p.polozky);
                    continue;
                }
                if (QLatin1String(p.nazev) == QLatin1String("Konec") || QLatin1String(p.nazev) == QLatin1String("Moznosti"))
                    if (auto* m = qobject_cast<QMenu*>(kam))
                        m->addSeparator();
                auto* a = new QAction(QString::fromUtf8(p.popisek), this);
                a->setObjectName(QLatin1String(p.nazev));
                a->setEnabled(hotove.contains(a->objectName()));
                if (a->objectName() == QLatin1String("cestina") || a->objectName() == QLatin1String("Anglictina")) {
                    a->setCheckable(true);
                    a->setChecked(a->objectName() == QLatin1String("cestina"));
                }
                connect(a, &QAction::triggered, this, [this, n = a->objectName()] { prikaz(n); });
                kam->addAction(a);
            }
        };
    pridej(menuBar(), Nabidka::menu());
}

void FrmBorovak::vytvorNastroje()
{
    auto* lista = addToolBar(QStringLiteral("Nástroje"));
    lista->setObjectName(QStringLiteral("tbBorovak"));
    lista->setMovable(false);
    lista->setIconSize(QSize(28, 28));
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje()) {
        if (QLatin1String(t.klic) == QLatin1String("CTM") || QLatin1String(t.klic) == QLatin1String("ZD") ||
            QLatin1String(t.klic) == QLatin1String("Napoveda") || QLatin1String(t.klic) == QLatin1String("NPZ") ||
            QLatin1String(t.klic) == QLatin1String("NPM") || QLatin1String(t.klic) == QLatin1String("NPR"))
            lista->addSeparator();
        auto* a = lista->addAction(Ikony::proKlic(t.klic), QString::fromUtf8(t.tip));
        a->setObjectName(QStringLiteral("tb") + QLatin1String(t.klic));
        a->setToolTip(QString::fromUtf8(t.tip));
        a->setProperty("klic", QLatin1String(t.klic));
        a->setEnabled(hotove.contains(QLatin1String(t.prikaz)));
        connect(a, &QAction::triggered, this, [this, n = QString::fromLatin1(t.prikaz)] { prikaz(n); });
    }
}

QWidget* FrmBorovak::vytvorStranku(const char* nazevRamce1, const QString& titulek1, QTableWidget*& grid1,
                                   const QStringList& sloupce1, const char* nazevRamce2, const QString& titulek2,
                                   QTableWidget*& grid2, const QStringList& sloupce2, const QStringList& tlacitka1,
                                   const QStringList& tlacitka2)
{
    static const QHash<QString, QString> popisky = {
        {QStringLiteral("cmdNovyFormat"), QStringLiteral("Nový")},     {QStringLiteral("cmdUpravitFormat"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatFormat"), QStringLiteral("Smazat")}, {QStringLiteral("cmdNovaHrana"), QStringLiteral("Nová")},
        {QStringLiteral("cmdUpravitHrana"), QStringLiteral("Upravit")}, {QStringLiteral("cmdSmazatHrana"), QStringLiteral("Smazat")},
        {QStringLiteral("cmdNovyPM"), QStringLiteral("Nový")},         {QStringLiteral("cmdUpravitPM"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatPM"), QStringLiteral("Smazat")},     {QStringLiteral("cmdImport"), QStringLiteral("Import...")},
        {QStringLiteral("cmdNovePrislusenstvi"), QStringLiteral("Nové")},
        {QStringLiteral("cmdUpravitPrislusenstvi"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatPrislusenstvi"), QStringLiteral("Smazat")},
    };
    auto ramec = [&](const char* nazev, const QString& titulek, QTableWidget*& grid, const QStringList& sloupce,
                     const QStringList& tlacitka, const QString& nazevGridu) {
        auto* box = new QGroupBox(titulek);
        box->setObjectName(QLatin1String(nazev));
        grid = new QTableWidget(0, int(sloupce.size()));
        grid->setObjectName(nazevGridu);
        grid->setHorizontalHeaderLabels(sloupce);
        grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
        grid->setSelectionBehavior(QAbstractItemView::SelectRows);
        grid->setSelectionMode(QAbstractItemView::SingleSelection);
        grid->verticalHeader()->setVisible(false);
        grid->horizontalHeader()->setStretchLastSection(true);
        grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
        grid->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(grid, &QTableWidget::customContextMenuRequested, this, [this, grid, nazevGridu](const QPoint& bod) {
            static const QHash<QString, QString> menu = {{QStringLiteral("GridFormaty"), QStringLiteral("Format")},
                                                         {QStringLiteral("GridHrany"), QStringLiteral("Hrana")},
                                                         {QStringLiteral("GPM"), QStringLiteral("PlMaterial")},
                                                         {QStringLiteral("GPR"), QStringLiteral("Prislusenstvi")}};
            if (auto* m = findChild<QMenu*>(menu.value(nazevGridu)))
                m->exec(grid->viewport()->mapToGlobal(bod));
        });
        connect(grid, &QTableWidget::cellDoubleClicked, this, [this, nazevGridu] {
            static const QHash<QString, QString> upravy = {{QStringLiteral("GridFormaty"), QStringLiteral("UF")},
                                                           {QStringLiteral("GridHrany"), QStringLiteral("UH")},
                                                           {QStringLiteral("GPM"), QStringLiteral("UpraveniPM")},
                                                           {QStringLiteral("GPR"), QStringLiteral("UpraveniP")}};
            if (upravy.contains(nazevGridu))
                prikaz(upravy.value(nazevGridu));
        });
        auto* sloupec = new QVBoxLayout;
        for (const QString& t : tlacitka) {
            auto* b = new QPushButton(popisky.value(t));
            b->setObjectName(t);
            b->setEnabled(false);
            connect(b, &QPushButton::clicked, this, [this, t] { prikaz(t); });
            sloupec->addWidget(b);
        }
        sloupec->addStretch();
        auto* l = new QHBoxLayout(box);
        l->addWidget(grid, 1);
        l->addLayout(sloupec);
        return box;
    };
    auto* stranka = new QWidget;
    auto* l = new QVBoxLayout(stranka);
    const bool zakazka = QLatin1String(nazevRamce1) == QLatin1String("fraFormat");
    l->addWidget(ramec(nazevRamce1, titulek1, grid1, sloupce1, tlacitka1,
                       zakazka ? QStringLiteral("GridFormaty") : QStringLiteral("GPM")), 3);
    l->addWidget(ramec(nazevRamce2, titulek2, grid2, sloupce2, tlacitka2,
                       zakazka ? QStringLiteral("GridHrany") : QStringLiteral("GPR")), 2);
    return stranka;
}

QAction* FrmBorovak::akce(const QString& nazev) const
{
    return findChild<QAction*>(nazev);
}

void FrmBorovak::povol(const QStringList& nazvy, bool ano)
{
    for (const QString& n : nazvy) {
        if (auto* a = akce(n))
            a->setEnabled(ano && (hotove.contains(n) || a->menu() || n.startsWith(QLatin1String("tb"))));
        if (auto* b = findChild<QPushButton*>(n))
            b->setEnabled(ano && hotove.contains(n));
    }
    // a toolbar key is on only while the command behind it is in place
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje())
        if (auto* a = akce(QStringLiteral("tb") + QLatin1String(t.klic)); a && !hotove.contains(QLatin1String(t.prikaz)))
            a->setEnabled(false);
}

void FrmBorovak::ZakazEditaciZakazky()
{
    QStringList vse = {QStringLiteral("UpraveniZakazky"), QStringLiteral("UlozeniJakoZ"), QStringLiteral("SmazaniZakazky"),
                       QStringLiteral("Sestava"), QStringLiteral("PlMaterial"), QStringLiteral("Format"), QStringLiteral("Hrana"),
                       QStringLiteral("Vypisy"), QStringLiteral("Prislusenstvi"), QStringLiteral("Vz"), QStringLiteral("NP"),
                       QStringLiteral("NF"), QStringLiteral("NH"), QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdNovaHrana")};
    for (const Nabidka::Tlacitko& t : Nabidka::nastroje())
        if (!QStringList({"NZ", "CTM", "Moznosti", "Sklad"}).contains(QLatin1String(t.klic)))
            vse << QStringLiteral("tb") + QLatin1String(t.klic);
    povol(vse, false);
}

void FrmBorovak::PovolEditaciZakazky()
{
    povol({QStringLiteral("UpraveniZakazky"), QStringLiteral("SmazaniZakazky"), QStringLiteral("UlozeniJakoZ"),
           QStringLiteral("Sestava"), QStringLiteral("Vypisy"), QStringLiteral("Format"), QStringLiteral("Hrana"),
           QStringLiteral("Vz"), QStringLiteral("NP"), QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdNovaHrana"),
           QStringLiteral("NF"), QStringLiteral("NH"), QStringLiteral("tbOZ"), QStringLiteral("tbNPZ"), QStringLiteral("tbNP"),
           QStringLiteral("tbZD")},
          true);
}

void FrmBorovak::ZakazEditaciSestavy()
{
    povol({QStringLiteral("USestava"), QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"),
           QStringLiteral("cmdImport"),
           QStringLiteral("PlMaterial"), QStringLiteral("Prislusenstvi"), QStringLiteral("tbUPZ"), QStringLiteral("tbOPZ"),
           QStringLiteral("tbNPM"), QStringLiteral("tbUPM"), QStringLiteral("tbOPM"), QStringLiteral("tbNPR"),
           QStringLiteral("tbUPR"), QStringLiteral("tbOPR")},
          false);
}

void FrmBorovak::PovolEditaciSestavy()
{
    povol({QStringLiteral("UlozeniJakoZ"), QStringLiteral("SmazaniZakazky"), QStringLiteral("USestava"),
           QStringLiteral("UlozeniSestavyJako"), QStringLiteral("SmazaniSestavy"), QStringLiteral("PlMaterial"),
           QStringLiteral("NovyPloM"), QStringLiteral("Prislusenstvi"), QStringLiteral("NoveP"), QStringLiteral("tbUPZ"),
           QStringLiteral("cmdImport"),
           QStringLiteral("tbOPZ"), QStringLiteral("tbNPM"), QStringLiteral("tbNPR")},
          true);
}

void FrmBorovak::NaplnitStrom()
{
    m_tvzakazky->clear();
    for (const UzelZakazky& z : ::NaplnitStrom(m_uloziste.dataS())) {
        auto* uzel = new QTreeWidgetItem(m_tvzakazky, {z.nazev});
        uzel->setIcon(0, Ikony::zakazka());
        uzel->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a'));
        for (const UzelSestavy& s : z.sestavy) {
            auto* dite = new QTreeWidgetItem(uzel, {s.text()});
            dite->setIcon(0, Ikony::sestava());
            dite->setData(0, Qt::UserRole, z.nazev + QLatin1Char('a') + s.nazev);
            dite->setData(0, Qt::UserRole + 1, s.nazev); // the node's Tag
        }
    }
}

void FrmBorovak::klikNaUzel(QTreeWidgetItem* uzel)
{
    if (!uzel)
        return;
    const QString tag = uzel->data(0, Qt::UserRole + 1).toString();
    if (tag.isEmpty()) {
        m_AktZakazka = uzel->text(0);
        m_AktSestava.clear();
        m_stZakazky->setCurrentIndex(0);
        m_vyber.setTxtzakazka(uzel->text(0));
        m_vyber.setTxtSestava(QString());
    } else {
        m_AktZakazka = uzel->parent()->text(0);
        m_AktSestava = tag;
        m_stZakazky->setCurrentIndex(1);
        m_vyber.setTxtzakazka(m_AktZakazka);
        m_vyber.setTxtSestava(tag);
    }
}

void FrmBorovak::obnovZakazku()
{
    const Recordset rs(m_uloziste.dataS(), sqlZakazky(m_vyber.txtzakazka()), Recordset::Rozsah::Prvni);
    m_panel[0]->setText(rs.eof() ? QString() : rs.text(QStringLiteral("Poznamka")));
    m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
    NaplnitGridFormaty(QStringLiteral("Novy zaznam"));
    NaplnitGridHrany(QStringLiteral("Novy zaznam"));
    if (!m_vyber.txtzakazka().isEmpty())
        PovolEditaciZakazky();
    else
        ZakazEditaciZakazky();
    // when the assembly does not change with the order its handler stays silent, so the
    // prices are renewed here (otherwise they are, once, when the assembly's signal follows)
    if (m_vyber.txtSestava() == m_AktSestava)
        obnovCeny();
}

void FrmBorovak::obnovSestavu()
{
    if (m_AktSestava.isEmpty()) {
        const Recordset rs(m_uloziste.dataS(), sqlZakazky(m_vyber.txtzakazka()), Recordset::Rozsah::Prvni);
        m_panel[0]->setText(rs.eof() ? QString() : rs.text(QStringLiteral("Poznamka")));
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k zakázce"));
        m_panel[2]->clear();
    } else {
        const Recordset rs(m_uloziste.dataS(),
                           sqlZakazky(m_vyber.txtzakazka()) + QStringLiteral(" and Sestava = '") + Dotaz::text(m_vyber.txtSestava()) +
                               QStringLiteral("' ORDER BY Zakazka"),
                           Recordset::Rozsah::Prvni);
        m_panel[0]->setText(rs.eof() ? QString() : rs.text(QStringLiteral("popis")));
        m_panel[0]->setToolTip(QStringLiteral("Poznámka k sestavě"));
    }
    NaplnitGridPM(QStringLiteral("Novy zaznam"));
    NaplnitGridPR(QStringLiteral("Novy zaznam"));
    NactiSchema();
    if (!m_AktSestava.isEmpty())
        PovolEditaciSestavy();
    else
        ZakazEditaciSestavy();
    obnovCeny();
}

void FrmBorovak::obnovCeny()
{
    m_panel[1]->clear();
    m_panel[2]->clear();
    if (m_vyber.txtzakazka().isEmpty())
        return;
    try {
        const Kalkulace::Ceny c = Kalkulace::ZobrazCeny(m_uloziste, m_vyber.txtzakazka(), m_AktSestava);
        m_panel[1]->setText(c.zakazka);
        m_panel[2]->setText(c.sestava);
    } catch (const Error& e) {
        m_panel[1]->setText(QStringLiteral("cena nelze spočítat"));
        m_panel[1]->setToolTip(e.text());
        return;
    }
    m_panel[1]->setToolTip(QStringLiteral("Cena zakázky s DPH"));
}

void FrmBorovak::prikaz(const QString& nazev)
{
    try {
        if (zaznam(nazev) || katalog(nazev))
            return;
        if (nazev == QLatin1String("NP"))
            ZahajNP();
        else if (vypisy.contains(nazev))
            Vypis(vypisy.value(nazev), akce(nazev) ? akce(nazev)->text().remove(QLatin1Char('&')) : nazev);
        else if (nazev == QLatin1String("UlozeniJakoZ")) {
            const QString nova = Kopirovani::UlozitZakazkuJako(m_uloziste.dataS(), m_prompt, m_vyber.txtzakazka());
            if (!nova.isNull())
                vyberUzel(nova, QString());
        } else if (nazev == QLatin1String("UlozeniSestavyJako")) {
            const QString zakazka = m_vyber.txtzakazka();
            const QString nova = Kopirovani::UlozitSestavuJako(m_uloziste.dataS(), m_prompt, zakazka, m_AktSestava);
            if (!nova.isNull())
                vyberUzel(zakazka, nova);
        } else if (nazev == QLatin1String("Sklad") || nazev == QLatin1String("SO")) {
            FrmSklad sklad(m_uloziste.dataS(), m_prompt, this);
            sklad.exec();
        } else if (nazev == QLatin1String("Vz"))
            ZalohaDat();
        else if (nazev == QLatin1String("OD"))
            ObnovaDat();
        else if (nazev == QLatin1String("Konec"))
            close();
        else if (nazev == QLatin1String("Moznosti"))
            otevriMoznosti();
        else if (nazev == QLatin1String("cestina") || nazev == QLatin1String("Anglictina"))
            zvolJazyk(nazev == QLatin1String("Anglictina"));
        else if (nazev == QLatin1String("NapovedaObsah"))
            m_prompt.zprava(QStringLiteral("Na aktualizaci nápovědy se pracuje..."), QString(), Prompt::Ikona::Informace);
        else if (nazev == QLatin1String("OProgramu"))
            m_prompt.zprava(windowTitle() + QStringLiteral("\nPracovní stůl truhlářské dílny: zakázky, nářezové plány, "
                                                           "kalkulace a výpisy."),
                            QStringLiteral("O programu"), Prompt::Ikona::Informace);
    } catch (const Error& e) {
        if (e.cislo() != Chyba::Zruseno)
            m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

void FrmBorovak::otevriMoznosti()
{
    FrmOptions okno(m_prompt, [this] { obnovZakazku(); obnovSestavu(); }, this);
    okno.exec();
}

void FrmBorovak::ZahajNP()
{
    const QString zakazka = m_vyber.txtzakazka();
    const std::vector<FormatNP> formaty = PlanRun::formatySDeskami(m_uloziste.dataS(), zakazka);
    if (formaty.empty()) {
        m_prompt.zprava(QStringLiteral("V zakázce není co nařezat!!!!!"), QString(), Prompt::Ikona::Kriticka);
        return;
    }
    std::vector<int> pocty;
    for (const FormatNP& f : formaty)
        pocty.push_back(Recordset(m_uloziste.dataS(), QStringLiteral("SELECT * FROM Zakazky WHERE Zakazka = '") +
                                                          Dotaz::text(zakazka) + QStringLiteral("' and IDFormat =") +
                                                          Dotaz::cislo(f.ID) + QStringLiteral(" ORDER BY Oznaceni"))
                            .recordCount());
    FrmNovy dialog(this);
    FrmNovy::VolbaNP volba;
    if (!dialog.zvolNP(formaty, pocty, volba))
        return;
    PlanRun run(m_uloziste, m_prompt, dialog);
    bool hotovo = false;
    std::optional<Error> chyba;
    dialog.optimalizuj(volba.zpusob, [&] {
        try {
            hotovo = run.SpustNP(zakazka, volba.IDFormatuNP, volba.zpusob, volba.VolbaNPDeska);
        } catch (const Error& e) {
            chyba = e;
        }
    });
    if (chyba) {
        m_uloziste.zavriDataK();
        m_prompt.zprava(ZpravaChyby::pracovniDatabaze(*chyba), QString(), Prompt::Ikona::Kriticka);
        QApplication::exit(1);
        return;
    }
    if (hotovo) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        FrmNP np(m_uloziste, m_prompt, PlanNaStrankach::z(run), this);
        const bool vykresleno = np.vykresli();
        QApplication::restoreOverrideCursor();
        if (!vykresleno)
            m_prompt.zprava(QString::fromUtf8(RozmerovaChyba), QString::fromUtf8(RozmerovaChybaTitulek),
                            Prompt::Ikona::Kriticka);
        else
            np.exec();
    }
    m_uloziste.zavriDataK();
}

// A costing report of the assemblies chosen in fraKalkulace, in the report preview.
void FrmBorovak::Vypis(DruhVypisu druh, const QString& nazev)
{
    const QString zakazka = m_vyber.txtzakazka();
    if (zakazka.isEmpty())
        return;
    QStringList nazvy, texty;
    if (const auto z = UzelZakazkyPodleNazvu(m_uloziste.dataS(), zakazka))
        for (const UzelSestavy& s : z->sestavy) {
            nazvy << s.nazev;
            texty << s.text();
        }
    FrmNovy dialog(this);
    const std::optional<QList<int>> vybrane = dialog.kalkulace(nazev, texty);
    if (!vybrane)
        return;
    QStringList vNazvy, vTexty;
    for (int i : *vybrane) {
        vNazvy << nazvy.at(i);
        vTexty << texty.at(i);
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    FrmVSP vsp(m_prompt, this);
    try {
        m_uloziste.ObnovPracovniDatabazi();
        vsp.setWindowTitle(SestavVypis(druh, vsp.dokument(), m_uloziste.dataK(), m_uloziste.cenik(), zakazka, vNazvy, vTexty).titulek);
    } catch (...) {
        m_uloziste.zavriDataK();
        QApplication::restoreOverrideCursor();
        throw;
    }
    m_uloziste.zavriDataK();
    vsp.obnov();
    QApplication::restoreOverrideCursor();
    vsp.exec();
}

void FrmBorovak::ZalohaDat()
{
    try {
        QDir().mkpath(Zaloha::slozka());
        const QString soubor = m_prompt.soubor(true, QStringLiteral("Vytvoření zálohy..."), Zaloha::slozka(),
                                               Zaloha::navrh(Schema::Soubor::Data, Razitko::ted().date()),
                                               Zaloha::filtr(Schema::Soubor::Data));
        const QString cil = soubor.endsWith(QLatin1String(".bvk"), Qt::CaseInsensitive) ? soubor : soubor + QStringLiteral(".bvk");
        if (QFile::exists(cil) &&
            m_prompt.zprava(QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"),
                            QStringLiteral("Upozornění !!!"), Prompt::Ikona::Vykricnik,
                            Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
            return;
        Zaloha::zalohuj(m_uloziste, Schema::Soubor::Data, cil);
        m_prompt.zprava(QStringLiteral("Zálohování bylo úspěšně dokončeno"), QStringLiteral("Uloženo.."),
                        Prompt::Ikona::Informace);
    } catch (const Error& e) {
        const Zaloha::Zprava z = Zaloha::zpravaZalohy(e);
        if (!z.text.isEmpty())
            m_prompt.zprava(z.text, z.titulek, Prompt::Ikona::Kriticka);
    }
}

void FrmBorovak::ObnovaDat()
{
    try {
        QDir().mkpath(Zaloha::slozka());
        const QString soubor = m_prompt.soubor(false, QStringLiteral("Vložení zálohovaných dat..."), Zaloha::slozka(),
                                               QString(), Zaloha::filtr(Schema::Soubor::Data));
        if (!Zaloha::obnov(m_uloziste, Schema::Soubor::Data, soubor, m_prompt))
            return;
        NaplnitStrom();
        m_AktZakazka.clear();
        m_AktSestava.clear();
        m_vyber.obnov(QString(), QString()); // nothing selected, every page refreshed
    } catch (const Error& e) {
        const Zaloha::Zprava z = Zaloha::zpravaObnovy(e, Schema::Soubor::Data);
        if (!z.text.isEmpty())
            m_prompt.zprava(z.text, z.titulek, Prompt::Ikona::Kriticka);
        if (z.konec)
            QApplication::exit(1);
    }
}

void FrmBorovak::obnovGeometrii()
{
    auto cti = [](const char* klic, int vychozi) {
        return int(Nastaveni::GetSetting(QStringLiteral("Settings"), QLatin1String(klic), QString::number(vychozi)).toDouble()) /
               TwipuNaPixel;
    };
    QRect r(cti("MainLeft", 1000), cti("MainTop", 1000), cti("MainWidth", 6500), cti("MainHeight", 6500));
    r.setSize(r.size().expandedTo(QSize(900, 600)));
    if (const QScreen* s = QApplication::primaryScreen(); s && !s->availableGeometry().intersects(r))
        r.moveTopLeft(s->availableGeometry().topLeft());
    setGeometry(r);
}

void FrmBorovak::ulozGeometrii()
{
    const QRect r = geometry();
    for (auto [klic, hodnota] : {std::pair{"MainLeft", r.x()}, {"MainTop", r.y()}, {"MainWidth", r.width()},
                                 {"MainHeight", r.height()}})
        Nastaveni::SaveSetting(QStringLiteral("Settings"), QLatin1String(klic), QString::number(hodnota * TwipuNaPixel));
}

bool FrmBorovak::eventFilter(QObject* o, QEvent* e)
{
    // the price panels open their reports: the order's calculation, the assemblies' calculation
    if ((o == m_panel[1] || o == m_panel[2]) && e->type() == QEvent::MouseButtonRelease) {
        const char* klic = o == m_panel[1] ? "RychlaKalkulace" : "KS";
        if (akce(QLatin1String(klic)) && akce(QLatin1String(klic))->isEnabled())
            prikaz(QLatin1String(klic));
        return true;
    }
    if ((o == m_panel[0] || o == m_img1) && e->type() == QEvent::MouseButtonRelease) {
        // the note panel edits the order or the assembly; the schema picture the assembly
        if (!m_AktSestava.isEmpty())
            prikaz(QStringLiteral("USestava"));
        else if (o == m_panel[0] && !m_vyber.txtzakazka().isEmpty())
            prikaz(QStringLiteral("UpraveniZakazky"));
        return true;
    }
    if (o == m_tvzakazky->viewport() && e->type() == QEvent::Drop) {
        auto* drop = static_cast<QDropEvent*>(e);
        drop->ignore();
        pretazeni(m_tvzakazky->currentItem(), m_tvzakazky->itemAt(drop->position().toPoint()));
        return true;
    }
    return QMainWindow::eventFilter(o, e);
}

void FrmBorovak::pretazeni(QTreeWidgetItem* zdroj, QTreeWidgetItem* cil)
{
    if (!cil || !zdroj || zdroj->data(0, Qt::UserRole + 1).toString().isEmpty())
        return;
    QTreeWidgetItem* cilovaZakazka = cil->parent() ? cil->parent() : cil;
    if (cilovaZakazka == zdroj->parent())
        return; // on its own order nothing happens
    // an assembly dropped on another order (or one of its assemblies) is copied there
    const QString sestava = zdroj->data(0, Qt::UserRole + 1).toString();
    const QString cilova = cilovaZakazka->text(0);
    if (m_prompt.zprava(QStringLiteral("Chcete zkopírovat sestavu - ") + sestava + QStringLiteral(" - do zakázky - ") + cilova +
                            QStringLiteral(" - ?"),
                        QString(), Prompt::Ikona::Otaznik, Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return;
    try {
        const QString nova = Kopirovani::KopirovaniSestavy(m_uloziste.dataS(), zdroj->parent()->text(0), sestava, cilova);
        m_vyber.setTxtSestava(QString());
        // the tree is filled again once the drag has ended, not under its feet
        QTimer::singleShot(0, this, [this, cilova, nova] { vyberUzel(cilova, nova); });
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}

void FrmBorovak::closeEvent(QCloseEvent* e)
{
    ulozGeometrii();
    e->accept();
}
