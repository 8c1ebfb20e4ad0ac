#pragma once
// The rows of one assembly in Zakazky, as boards and accessories look them up by name.
#include "core/Recordset.h"

#include <QString>
#include <optional>

namespace RadkySestavy {

// "SELECT * FROM Zakazky WHERE Zakazka = '…' and Sestava = '…'", names spliced safely.
QString dotaz(const QString& zakazka, const QString& sestava);
// The first row of the assembly named oznaceni, if there is one.
std::optional<Recordset> podleNazvu(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni);

}
