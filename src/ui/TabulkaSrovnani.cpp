#include "ui/TabulkaSrovnani.h"

#include "core/Error.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QLocale>
#include <QTimer>

namespace {

// Rows in the order of cmbZpusobRezani.
constexpr ZpusobNP Zpusoby[] = {ZpusobNP::Kombinovane, ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy, ZpusobNP::Usporne};

} // namespace

TabulkaSrovnani::TabulkaSrovnani(QWidget* rodic) : QTableWidget(4, 4, rodic)
{
    setObjectName(QStringLiteral("tblSrovnani"));
    setHorizontalHeaderLabels({QStringLiteral("Tabulí"), QStringLiteral("Využití"), QStringLiteral("Řezů"),
                               QStringLiteral("Největší zbytek [mm]")});
    setVerticalHeaderLabels({QStringLiteral("kombinovaně"), QStringLiteral("podélné řezy"), QStringLiteral("příčné řezy"),
                             QStringLiteral("úsporně")});
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setFocusPolicy(Qt::NoFocus);
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFixedHeight(horizontalHeader()->sizeHint().height() + 4 * verticalHeader()->defaultSectionSize() + 4);
}

void TabulkaSrovnani::spocitej(double idFormatu)
{
    m_idFormatu = idFormatu;
    ++m_zadani;
    m_zastavit = false;
    for (int r = 0; r < rowCount(); ++r)
        for (int c = 0; c < columnCount(); ++c)
            setItem(r, c, new QTableWidgetItem(c == 0 && m_vypocet ? QStringLiteral("počítá se…") : QString()));
    if (!m_vypocet)
        return;
    QTimer::singleShot(0, this, [this] {
        if (!m_bezi)
            beh();
    });
}

void TabulkaSrovnani::zastav()
{
    m_zastavit = true;
}

void TabulkaSrovnani::beh()
{
    m_bezi = true;
    for (int zadani = -1; zadani != m_zadani && !m_zastavit;) {
        zadani = m_zadani;
        for (m_radek = 0; m_radek < 4 && zadani == m_zadani && !m_zastavit; ++m_radek) {
            std::optional<SrovnaniNP> s;
            try {
                s = m_vypocet(m_idFormatu, Zpusoby[m_radek], *this);
            } catch (const Error&) {
                // the run itself, if chosen, says what is wrong with the store
            }
            if (zadani == m_zadani)
                radek(m_radek, s);
        }
    }
    m_bezi = false;
}

void TabulkaSrovnani::radek(int r, const std::optional<SrovnaniNP>& s)
{
    const QLocale cz(QLocale::Czech);
    const QStringList texty =
        s ? QStringList{QString::number(s->tabuli), cz.toString(s->vyuziti, 'f', 1) + QStringLiteral(" %"),
                        QString::number(s->rezu),
                        s->zbytekX > 0 ? QString::number(s->zbytekX) + QStringLiteral(" x ") + QString::number(s->zbytekY)
                                       : QStringLiteral("žádný")}
          : QStringList{QStringLiteral("—"), QString(), QString(), QString()};
    for (int c = 0; c < 4; ++c) {
        auto* polozka = new QTableWidgetItem(texty[c]);
        polozka->setTextAlignment(Qt::AlignCenter);
        setItem(r, c, polozka);
    }
}

// "Úsporně... nejméně tabulí zatím: N": the best count so far stands in the row meanwhile.
void TabulkaSrovnani::popisek(const QString& text)
{
    const qsizetype dvojtecka = text.lastIndexOf(QLatin1String("zatím: "));
    if (m_radek == 3 && dvojtecka >= 0)
        setItem(3, 0, new QTableWidgetItem(QStringLiteral("počítá se… ") + text.mid(dvojtecka + 7)));
}

bool TabulkaSrovnani::prerusit()
{
    const int zadani = m_zadani;
    QCoreApplication::processEvents();
    return m_zastavit || zadani != m_zadani || !isVisible();
}
