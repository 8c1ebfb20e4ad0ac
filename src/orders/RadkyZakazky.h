#pragma once
// The owner of Zakazky and ZakazkyMaterialy: every other library reads an order's rows through
// these calls, never through its own query text (and adds them through NoveRadky.h). Names and numbers are bound, not spliced, so
// any name works. The recordsets follow the store's rules (snapshot of rowids, insertion order
// for ties) and work on any copy of the data (DataS, the plan and costing copy DataK).
#include "core/Recordset.h"

#include <QString>
#include <optional>

class Database;

namespace RadkyZakazky {

using Rozsah = Recordset::Rozsah;

// --- Zakazky: orders, assemblies, boards, accessories ---

bool existuje(Database& db, const QString& zakazka);
bool existujeSestava(Database& db, const QString& zakazka, const QString& sestava);
// Every row of the order; razeni is the field list after ORDER BY ("Sestava"), none: insertion.
Recordset radky(Database& db, const QString& zakazka, const QString& razeni = {}, Rozsah rozsah = Rozsah::Vse);
// Every row of one assembly, in the order of razeni.
Recordset radkySestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& razeni = {},
                       Rozsah rozsah = Rozsah::Vse);
// The rows of an assembly with a stamp (cas > 0): its boards and accessories, and a header that
// kept its stamp after its last item went.
Recordset polozkySestavy(Database& db, const QString& zakazka, const QString& sestava, const QString& razeni);
// The first row of the assembly named oznaceni, if there is one.
std::optional<Recordset> polozka(Database& db, const QString& zakazka, const QString& sestava, const QString& oznaceni);
// The boards of the order cut from the format idFormatu.
Recordset deskyFormatu(Database& db, const QString& zakazka, double idFormatu, const QString& razeni = {});
// The boards of one assembly cut from the format idFormatu.
Recordset deskySestavy(Database& db, const QString& zakazka, const QString& sestava, double idFormatu,
                       const QString& razeni = {});
// The rows of the order (of one assembly when sestava is not null) with the band idHrany on a
// side, by assembly.
Recordset deskySHranou(Database& db, const QString& zakazka, double idHrany, const QString& sestava = QString());

// --- ZakazkyMaterialy: the order's formats and edge bands ---

enum class Pouziti { Vse, Formaty, Hrany };
Recordset materialy(Database& db, const QString& zakazka, Pouziti pouziti = Pouziti::Vse);
// The order's format or band with that ID, if there is one.
std::optional<Recordset> material(Database& db, const QString& zakazka, double id, Pouziti pouziti = Pouziti::Vse);
// The first of the order's formats or bands of that name (blind to case), if there is one.
std::optional<Recordset> materialPodleNazvu(Database& db, const QString& zakazka, const QString& nazev,
                                            Pouziti pouziti = Pouziti::Vse);

} // namespace RadkyZakazky
