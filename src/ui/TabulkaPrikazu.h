#pragma once
// The main window's one command table: every menu entry, grid button and toolbar key by name,
// and the routine it runs. A command not in the table is not in place yet: its entry stands
// disabled. The controllers of each area (records, catalogues, data, plans and reports) add
// their commands; the window only looks them up.
#include <QHash>
#include <QStringList>
#include <functional>

class TabulkaPrikazu {
public:
    using Akce = std::function<void()>;

    // Each of the names (a menu entry and the grid button that does the same) runs akce.
    void pridej(const QStringList& nazvy, Akce akce);
    bool obsahuje(const QString& nazev) const { return m_akce.contains(nazev); }
    // Runs the command; false when there is none of that name.
    bool spust(const QString& nazev) const;

private:
    QHash<QString, Akce> m_akce;
};
