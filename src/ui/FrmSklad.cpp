#include "ui/FrmSklad.h"

#include "catalogues/Sklad.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "ui/FrmNovy.h"
#include "ui/FrmVSP.h"
#include "ui/Ikony.h"

#include <QAction>
#include <QCheckBox>
#include <QHeaderView>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
const char* const Razeni[] = {"material", "x", "y", "Pocet"};
}

FrmSklad::FrmSklad(Database& dataS, Prompt& prompt, QWidget* rodic) : QDialog(rodic), m_dataS(dataS), m_prompt(prompt)
{
    setObjectName(QStringLiteral("frmSklad"));
    setWindowTitle(QStringLiteral("Sklad odřezků"));
    m_nastroje = new QToolBar;
    const QColor seda(0x55, 0x57, 0x53);
    const std::pair<const char*, const char*> klice[] = {{"PO", "Nový odřezek"},
                                                         {"UO", "Upravit odřezek"},
                                                         {"SO", "Smazat odřezek"},
                                                         {"TiskMS", "Tisk výpisu skladu"},
                                                         {"Konec", "Zavřít"}};
    const char* znacky[] = {"+", "✎", "✕", "Tisk", "⏏"};
    for (int i = 0; i < 5; ++i) {
        QAction* a = m_nastroje->addAction(Ikony::znacka(QString::fromUtf8(znacky[i]), seda), QString::fromUtf8(klice[i].second));
        a->setObjectName(QLatin1String(klice[i].first));
        connect(a, &QAction::triggered, this, [this, k = QLatin1String(klice[i].first)] { prikaz(k); });
    }
    m_grid = new QTableWidget(0, 4);
    m_grid->setObjectName(QStringLiteral("GSklad"));
    m_grid->setHorizontalHeaderLabels(
        {QStringLiteral("Materiál"), QStringLiteral("Délka"), QStringLiteral("Šířka"), QStringLiteral("Počet")});
    m_grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_grid->setSelectionMode(QAbstractItemView::SingleSelection);
    m_grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_grid->verticalHeader()->hide();
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int s) {
        m_razeni = QLatin1String(Razeni[s]);
        NaplnitGrid();
    });
    connect(m_grid, &QTableWidget::cellDoubleClicked, this, [this] { prikaz(QStringLiteral("UO")); });
    m_chF = new QCheckBox(QStringLiteral("Jen materiál vybraného řádku"));
    m_chF->setObjectName(QStringLiteral("chF"));
    connect(m_chF, &QCheckBox::toggled, this, [this](bool zapnuto) {
        m_filtr = zapnuto ? materialRadku() : QString();
        NaplnitGrid();
    });
    auto* l = new QVBoxLayout(this);
    l->addWidget(m_nastroje);
    l->addWidget(m_chF);
    l->addWidget(m_grid, 1);
    resize(620, 460);
    NaplnitGrid();
}

QAction* FrmSklad::akce(const QString& klic) const { return m_nastroje->findChild<QAction*>(klic); }

QString FrmSklad::materialRadku() const
{
    const int r = m_grid->currentRow();
    return r < 0 ? QString() : m_grid->item(r, 0)->text();
}

void FrmSklad::NaplnitGrid()
{
    const std::vector<Sklad::Odrezek> radky = Sklad::nacti(m_dataS, m_filtr, m_razeni);
    m_grid->setRowCount(int(radky.size()));
    for (int i = 0; i < int(radky.size()); ++i) {
        const Sklad::Odrezek& o = radky[size_t(i)];
        const QString bunky[] = {o.material, Jednotky::ZMilimetru(o.x), Jednotky::ZMilimetru(o.y), QString::number(o.pocet)};
        for (int c = 0; c < 4; ++c) {
            auto* it = new QTableWidgetItem(bunky[c]);
            it->setData(Qt::UserRole, c == 1 ? o.x : c == 2 ? o.y : QVariant());
            if (c > 0)
                it->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_grid->setItem(i, c, it);
        }
    }
    if (!radky.empty() && m_grid->currentRow() < 0)
        m_grid->setCurrentCell(0, 0);
    const bool vybrano = !radky.empty();
    akce(QStringLiteral("UO"))->setEnabled(vybrano);
    akce(QStringLiteral("SO"))->setEnabled(vybrano);
}

void FrmSklad::prikaz(const QString& klic)
{
    try {
        const int r = m_grid->currentRow();
        Sklad::Odrezek vybrany;
        if (r >= 0)
            vybrany = {m_grid->item(r, 0)->text(), m_grid->item(r, 1)->data(Qt::UserRole).toDouble(),
                       m_grid->item(r, 2)->data(Qt::UserRole).toDouble(), m_grid->item(r, 3)->text().toInt()};
        if (klic == QLatin1String("PO")) {
            FrmNovy d(this);
            d.odrezek(FrmNovy::Stav::NovyOdrezek, {}, [&](const Sklad::Odrezek& o) {
                const bool ok = Sklad::UlozitNovyOdrezek(m_dataS, m_prompt, o);
                NaplnitGrid();
                return ok ? FrmNovy::PoUlozeni::Dalsi : FrmNovy::PoUlozeni::Odmitnuto;
            });
        } else if (klic == QLatin1String("UO") && r >= 0) {
            // the values before the edit, as the store's row is found by them
            for (const auto& [k, v] : {std::pair{"Material", vybrany.material},
                                       {"x", Dotaz::cislo(vybrany.x)},
                                       {"y", Dotaz::cislo(vybrany.y)},
                                       {"Pocet", QString::number(vybrany.pocet)}})
                Nastaveni::SaveSetting(QStringLiteral("Sklad"), QLatin1String(k), v);
            FrmNovy d(this);
            d.odrezek(FrmNovy::Stav::UpraveniOdrezku, vybrany, [&](const Sklad::Odrezek& o) {
                auto stare = [](const char* k) { return Nastaveni::GetSetting(QStringLiteral("Sklad"), QLatin1String(k)); };
                const Sklad::Odrezek stary{stare("Material"), stare("x").toDouble(), stare("y").toDouble(),
                                           stare("Pocet").toInt()};
                const bool ok = Sklad::UlozitUpravuOdrezku(m_dataS, m_prompt, stary, o);
                NaplnitGrid();
                return ok ? FrmNovy::PoUlozeni::Zavrit : FrmNovy::PoUlozeni::Odmitnuto;
            });
        } else if (klic == QLatin1String("SO") && r >= 0) {
            Sklad::SmazatOdrezek(m_dataS, vybrany);
            NaplnitGrid();
        } else if (klic == QLatin1String("TiskMS")) {
            FrmVSP vsp(m_prompt, this);
            vsp.setWindowTitle(QString::fromUtf8(Sklad::TitulekVypisu));
            Sklad::VypisSkladu(vsp.dokument(), m_dataS, m_filtr);
            vsp.obnov();
            vsp.exec();
        } else if (klic == QLatin1String("Konec")) {
            accept();
        }
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QStringLiteral("Chyba"), Prompt::Ikona::Kriticka);
    }
}
