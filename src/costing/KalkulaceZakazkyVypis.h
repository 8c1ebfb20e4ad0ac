#pragma once
// The report "Kalkulace zakázky": boards per material, edge bands per material, accessories
// and the tax summary of the order, from SoupisProKalkulaci as NaplnKalkulaciZakazky left it
// in DataK. A section without rows prints nothing, not even its band.
#include "costing/Vypis.h"

inline const char* TitulekKalkulaceZakazky = "Kalkulace zakázky";

Vypis::Dan KalkulaceZakazkyVypis(Dokument& d, Database& dataK, const QString& zakazka, const QStringList& sestavy);
