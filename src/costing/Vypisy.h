#pragma once
// The five reports of the calculation dialog by one name: each fills its working table for the
// chosen assemblies and lays itself out; the caller shows, prints or saves the document.
#include "costing/KalkulaceSestavVypis.h"
#include "costing/Rezani.h"

#include <optional>

enum class DruhVypisu { Zakazka, Sestavy, Nakup, Nabidka, Dilna, DilnaSeSchematy };

struct VysledekVypisu {
    QString titulek;                    // of the preview window and the PDF
    QStringList tabulky;                // the working tables the report read
    std::optional<Vypis::Dan> dan;      // none for the workshop list
    std::vector<CenaSestavy> sestavy;   // the assembly calculation and the quotation
    std::vector<PolozkaNakupu> nakup;   // the purchase list
};

// nazvy: the chosen assemblies (empty: all); texty: their list entries for the page heads.
// Throws Error 5 naming board and assembly when a board's format row is gone.
// rezani: the cutting's rows of the calculations (Rezani::zakazky), made before dataK.
VysledekVypisu SestavVypis(DruhVypisu druh, Dokument& d, Database& dataK, Database& cenik, const QString& zakazka,
                           const QStringList& nazvy, const QStringList& texty, const std::vector<Rezani::Format>& rezani = {});
