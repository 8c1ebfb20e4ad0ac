#include "orders/Vyber.h"

void Vyber::setTxtzakazka(const QString& zakazka)
{
    if (m_zakazka == zakazka)
        return;
    m_zakazka = zakazka;
    emit zmenaZakazky(m_zakazka);
}

void Vyber::setTxtSestava(const QString& sestava)
{
    if (m_sestava == sestava)
        return;
    m_sestava = sestava;
    emit zmenaSestavy(m_sestava);
}

void Vyber::obnov(const QString& zakazka, const QString& sestava)
{
    m_zakazka = zakazka;
    emit zmenaZakazky(m_zakazka);
    m_sestava = sestava;
    emit zmenaSestavy(m_sestava);
}
