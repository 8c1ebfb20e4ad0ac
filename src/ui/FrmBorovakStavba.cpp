// The widgets of the main window: the tree with the schema picture below it, the two pages of
// grids with their buttons, the status bar, the menu bar and the toolbar (both from Nabidka).
#include "ui/FrmBorovak.h"

#include "ui/Ikony.h"
#include "ui/Nabidka.h"

#include <QAction>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>
#include <QVBoxLayout>

QWidget* FrmBorovak::vytvorStrom()
{
    m_prvky.tvzakazky = new QTreeWidget;
    m_prvky.tvzakazky->setObjectName(QStringLiteral("tvzakazky"));
    m_prvky.tvzakazky->setHeaderHidden(true);
    m_prvky.tvzakazky->setIconSize(QSize(18, 18));
    m_prvky.tvzakazky->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_prvky.tvzakazky, &QTreeWidget::customContextMenuRequested, this, [this](const QPoint& bod) {
        QTreeWidgetItem* u = m_prvky.tvzakazky->itemAt(bod);
        if (!u)
            return;
        m_zakazky->klikNaUzel(u);
        const bool sestava = !u->data(0, Qt::UserRole + 1).toString().isEmpty();
        if (auto* m = findChild<QMenu*>(sestava ? QStringLiteral("Sestava") : QStringLiteral("Zakazka")))
            m->exec(m_prvky.tvzakazky->viewport()->mapToGlobal(bod));
    });
    m_prvky.tvzakazky->setDragEnabled(true);
    m_prvky.tvzakazky->setAcceptDrops(true);
    m_prvky.tvzakazky->setDragDropMode(QAbstractItemView::DragDrop);
    auto* napis = new QLabel(QStringLiteral("Zakázka / Sestava"));
    napis->setObjectName(QStringLiteral("lblNapis1"));
    auto* strom = new QWidget;
    auto* stromLayout = new QVBoxLayout(strom);
    stromLayout->setContentsMargins(0, 0, 0, 0);
    stromLayout->addWidget(napis);
    stromLayout->addWidget(m_prvky.tvzakazky);
    m_prvky.img1 = new QLabel;
    m_prvky.img1->setObjectName(QStringLiteral("img1"));
    m_prvky.img1->setAlignment(Qt::AlignCenter);
    m_prvky.img1->setMinimumHeight(60);
    m_prvky.img1->setFrameShape(QFrame::StyledPanel);
    auto* vlevo = new QSplitter(Qt::Vertical);
    vlevo->setObjectName(QStringLiteral("imgsplitter2"));
    vlevo->addWidget(strom);
    vlevo->addWidget(m_prvky.img1);
    vlevo->setStretchFactor(0, 3);
    vlevo->setStretchFactor(1, 1);
    return vlevo;
}

QWidget* FrmBorovak::vytvorZalozky()
{
    m_prvky.stZakazky = new QTabWidget;
    m_prvky.stZakazky->setObjectName(QStringLiteral("stZakazky"));
    m_prvky.stZakazky->addTab(
        vytvorStranku("fraFormat", QStringLiteral("Formáty:"), m_prvky.GridFormaty,
                      {QStringLiteral("Materiál"), QStringLiteral("Délka"), QStringLiteral("Šířka"),
                       QStringLiteral("Cena bez DPH"), QStringLiteral("Cena s DPH")},
                      "fraHrany", QStringLiteral("Hrany:"), m_prvky.GridHrany,
                      {QStringLiteral("Materiál"), QStringLiteral("Cena bez DPH"), QStringLiteral("Přesah hrany"),
                       QStringLiteral("Barva hrany v NP")},
                      {QStringLiteral("cmdNovyFormat"), QStringLiteral("cmdUpravitFormat"), QStringLiteral("cmdSmazatFormat")},
                      {QStringLiteral("cmdNovaHrana"), QStringLiteral("cmdUpravitHrana"), QStringLiteral("cmdSmazatHrana")}),
        QStringLiteral("Zakázka"));
    m_prvky.stZakazky->addTab(
        vytvorStranku("fraPM", QStringLiteral("Plošný materiál:"), m_prvky.GPM,
                      {QStringLiteral("Název pl. materiálu"), QStringLiteral("Délka"), QStringLiteral("Šířka"),
                       QStringLiteral("Počet"), QStringLiteral("Formát")},
                      "fraPrislusenstvi", QStringLiteral("Příslušenství:"), m_prvky.GPR,
                      {QStringLiteral("Název příslušenství"), QStringLiteral("Množství"), QStringLiteral("Cena bez DPH")},
                      {QStringLiteral("cmdNovyPM"), QStringLiteral("cmdUpravitPM"), QStringLiteral("cmdSmazatPM"),
                       QStringLiteral("cmdImport")},
                      {QStringLiteral("cmdNovePrislusenstvi"), QStringLiteral("cmdUpravitPrislusenstvi"),
                       QStringLiteral("cmdSmazatPrislusenstvi")}),
        QStringLiteral("Sestava"));
    return m_prvky.stZakazky;
}

void FrmBorovak::vytvorStavovyRadek()
{
    statusBar()->setObjectName(QStringLiteral("stBorovak"));
    for (int i = 0; i < 3; ++i) {
        m_prvky.panel[i] = new QLabel;
        m_prvky.panel[i]->setObjectName(QStringLiteral("panel%1").arg(i + 1));
        m_prvky.panel[i]->setMinimumWidth(i == 0 ? 260 : 170);
        statusBar()->addWidget(m_prvky.panel[i], i == 0 ? 1 : 0);
    }
    for (QLabel* p : m_prvky.panel)
        p->installEventFilter(this);
    m_prvky.img1->installEventFilter(this);
    m_prvky.panel[1]->setToolTip(QStringLiteral("Cena zakázky s DPH"));
    m_prvky.panel[2]->setToolTip(QStringLiteral("Cena za 1ks sestavy s DPH"));
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
                a->setEnabled(m_prikazy.obsahuje(a->objectName()));
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
        a->setEnabled(m_prikazy.obsahuje(QLatin1String(t.prikaz)));
        connect(a, &QAction::triggered, this, [this, n = QString::fromLatin1(t.prikaz)] { prikaz(n); });
    }
}

QWidget* FrmBorovak::vytvorStranku(const char* nazevRamce1, const QString& titulek1, QTableWidget*& grid1,
                                   const QStringList& sloupce1, const char* nazevRamce2, const QString& titulek2,
                                   QTableWidget*& grid2, const QStringList& sloupce2, const QStringList& tlacitka1,
                                   const QStringList& tlacitka2)
{
    static const QHash<QString, QString> popisky = {
        {QStringLiteral("cmdNovyFormat"), QStringLiteral("Nový")},
        {QStringLiteral("cmdUpravitFormat"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatFormat"), QStringLiteral("Smazat")},
        {QStringLiteral("cmdNovaHrana"), QStringLiteral("Nová")},
        {QStringLiteral("cmdUpravitHrana"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatHrana"), QStringLiteral("Smazat")},
        {QStringLiteral("cmdNovyPM"), QStringLiteral("Nový")},
        {QStringLiteral("cmdUpravitPM"), QStringLiteral("Upravit")},
        {QStringLiteral("cmdSmazatPM"), QStringLiteral("Smazat")},
        {QStringLiteral("cmdImport"), QStringLiteral("Import...")},
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
    l->addWidget(
        ramec(nazevRamce1, titulek1, grid1, sloupce1, tlacitka1, zakazka ? QStringLiteral("GridFormaty") : QStringLiteral("GPM")),
        3);
    l->addWidget(
        ramec(nazevRamce2, titulek2, grid2, sloupce2, tlacitka2, zakazka ? QStringLiteral("GridHrany") : QStringLiteral("GPR")),
        2);
    return stranka;
}
