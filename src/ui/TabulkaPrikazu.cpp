#include "ui/TabulkaPrikazu.h"

void TabulkaPrikazu::pridej(const QStringList& nazvy, Akce akce)
{
    for (const QString& n : nazvy)
        m_akce.insert(n, akce);
}

bool TabulkaPrikazu::spust(const QString& nazev) const
{
    const auto it = m_akce.constFind(nazev);
    if (it == m_akce.constEnd())
        return false;
    (*it)();
    return true;
}
