#pragma once
// The reports of one piece of each assembly, from SoupisProKalkulaciCelkem: "Kalkulace sestav"
// (materials and prices per assembly, the running base of rounded assembly prices) and
// "Cenová nabídka" (only the drawing and the price with VAT per assembly), filled by
// NaplnKalkulaciSestav; and "Nákup materiálu" (what to buy: whole metres of band, whole
// sheets), filled by NaplnKalkulaciMaterialu.
#include "costing/Vypis.h"

#include <vector>

inline const char* TitulekKalkulaceSestav = "Kalkulace sestav";
inline const char* TitulekCenoveNabidky = "Cenová nabídka";
inline const char* TitulekNakupu = "Nákup materiálu";

// The figures of one assembly as the report printed them.
struct CenaSestavy {
    QString sestava;
    double pocet = 0;
    double cena1ks = 0, cena = 0;   // one piece and the assembly count, without VAT
    double dph = 0, celkem = 0;     // the quotation's tax and total of the assembly
};

struct VysledekSestav {
    Vypis::Dan dan;
    std::vector<CenaSestavy> sestavy;
};

enum class DruhSestav { Kalkulace, Nabidka };
VysledekSestav KalkulaceSestavVypis(Dokument& d, Database& dataK, Database& cenik, const QString& zakazka,
                                    const QStringList& sestavy, DruhSestav druh);

struct PolozkaNakupu {
    QString material, nakup;
};
struct VysledekNakupu {
    Vypis::Dan dan;
    std::vector<PolozkaNakupu> nakup;
};
VysledekNakupu NakupVypis(Dokument& d, Database& dataK, const QString& zakazka, const QStringList& sestavy);

// The "Nákup" cell of a total row: band in whole metres (always one more), accessories as
// they are, sheet material in whole sheets of the size written in its name (always one more).
QString nakupMaterialu(const QString& popis, const QString& material, double mnozstvi, const QString& jednotka);
