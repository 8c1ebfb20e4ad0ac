// fraKalkulace: which assemblies of the order a costing report covers.
#include "ui/FrmNovy.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

std::optional<QList<int>> FrmNovy::kalkulace(const QString& vypis, const QStringList& sestavy)
{
    m_stav = Stav::Kalkulace;
    auto* ramec = new QWidget;
    ramec->setObjectName(QStringLiteral("fraKalkulace"));
    auto* seznam = new QListWidget;
    seznam->setObjectName(QStringLiteral("lstSestava"));
    seznam->setSelectionMode(QAbstractItemView::MultiSelection);
    seznam->addItems(sestavy);
    seznam->selectAll();
    seznam->setMinimumSize(340, 200);
    auto* spustit = new QPushButton(QStringLiteral("Zobrazit"));
    spustit->setObjectName(QStringLiteral("cmdKalkulace"));
    spustit->setToolTip(vypis + QStringLiteral(" vybraných sestav"));
    spustit->setDefault(true);
    auto* zpet = new QPushButton(QStringLiteral("Zpět"));
    zpet->setObjectName(QStringLiteral("cmdStornoKalkulace"));
    auto* vse = new QPushButton(QStringLiteral("Vybrat vše"));
    vse->setObjectName(QStringLiteral("cmdVybratVse"));
    auto stav = [=] { spustit->setEnabled(!seznam->selectedItems().isEmpty()); };
    connect(seznam, &QListWidget::itemSelectionChanged, this, stav);
    connect(vse, &QPushButton::clicked, seznam, &QListWidget::selectAll);
    connect(spustit, &QPushButton::clicked, this, &QDialog::accept);
    connect(zpet, &QPushButton::clicked, this, &QDialog::reject);
    stav();
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(vse);
    tlacitka->addStretch();
    tlacitka->addWidget(spustit);
    tlacitka->addWidget(zpet);
    auto* svisle = new QVBoxLayout(ramec);
    svisle->addWidget(new QLabel(QStringLiteral("Sestavy zakázky (vybrané jdou do výpisu):")));
    svisle->addWidget(seznam, 1);
    svisle->addLayout(tlacitka);
    m_ramce->addWidget(ramec);
    ukaz(ramec, vypis, 20);
    const bool ok = exec() == QDialog::Accepted;
    std::optional<QList<int>> vybrane;
    if (ok) {
        vybrane.emplace();
        for (int i = 0; i < seznam->count(); ++i)
            if (seznam->item(i)->isSelected())
                vybrane->append(i);
    }
    ramec->deleteLater();
    return vybrane;
}
