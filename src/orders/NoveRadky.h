#pragma once
// New rows of Zakazky, with the header-row rules: an order's header row lives only while the
// order has no assembly, an assembly's only while it has no item, and every row repeats its
// order's and its assembly's header fields. The owner of those rules for every library that
// adds rows (the entry dialog's saves, the order JSON, the board import); values are bound.
// Store failures come as Error.
#include "core/Recordset.h"

#include <QString>
#include <QVariant>
#include <optional>

class Database;

namespace NoveRadky {

// The header fields a row repeats: the order's, and its assembly's (sestava null in the header
// row of an order without assemblies).
struct Hlavicka {
    QString zakazka, poznamka;
    double datum = 0;
    QString sestava, popis;
    double pocet = 1;
    qint64 schema = 0;
};

// A board (format above 1: the ID of its format) or an accessory (format 1).
struct Polozka {
    QString oznaceni;
    double format = 1;
    double x = 0, y = 0, pocet = 0, cena = 0;
    bool ov = false;
    double hrany[4] = {0, 0, 0, 0}; // IDHX1, IDHX2, IDHY1, IDHY2 of a board
    QString jednotka;               // of an accessory
};

// The header row of an order without assemblies, or of an assembly without items.
void pridejHlavicku(Database& db, const Hlavicka& h);
// An item of an assembly that is being written whole: its own row with the header fields h.
void pridejPolozku(Database& db, const Hlavicka& h, const Polozka& p, double cas);

// Items added to an assembly that is stored already, one after another: the first takes over
// the assembly's header row while the assembly is empty, every further one is a new row with
// the assembly's header fields. The assembly is read once, so a long list stays linear.
class DoSestavy {
public:
    // Throws Error 5 when the assembly is not there.
    DoSestavy(Database& db, const QString& zakazka, const QString& sestava);
    void pridej(const Polozka& p, double cas);
    // The row of the next item, ready for set() and update().
    Recordset radek();

private:
    Database& m_db;
    QVariantList m_hlavicka;            // the header fields as the assembly's row holds them
    std::optional<Recordset> m_prazdna; // the assembly's header row while no item has taken it
};

} // namespace NoveRadky
