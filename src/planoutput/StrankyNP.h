#pragma once
// The plan pages: every sheet of a finished plan run drawn with its block of information, its
// band legend, its boards and its remnants, one, two or four sheets to an A4 page (setting
// VykresleniTabule). One routine in three layouts: they differ only in where each sheet stands.
#include "printing/Dokument.h"

#include <QString>
#include <map>

class Uloziste;
class PlanRun;
enum class ZpusobNP;

// What the pages need of the run that made the plan in DataK.
struct PlanNaStrankach {
    QString zakazka;            // AktualniZakazka
    double idFormatu = 0;       // IDFormatuNP
    ZpusobNP zpusob;
    std::map<int, int> rezy;    // RezyNaTabuli, by the running sheet number CT
    double samovani = 0;        // SamovaniNP
    double srez = 0;            // SrezNP
    static PlanNaStrankach z(const PlanRun& run);
};

// Lays the plan out in dokument in the layout 1, 2 or 4. Returns false, with the document
// empty, when no board lies on a sheet (the caller shows RozmerovaChyba) or the layout is
// none of the three.
bool StrankyNP(Dokument& dokument, Uloziste& uloziste, const PlanNaStrankach& plan, int rozvrzeni);

inline const char* RozmerovaChyba = "Žádná deska se nedá usadit do nářezového plánu";
inline const char* RozmerovaChybaTitulek = "Rozměrová chyba";

// The proposed file name of the plan's PDF: the order's name and the mode ("-kombinovaně").
QString NavrhNazvuNP(const QString& zakazka, ZpusobNP zpusob);
// The caption of the viewer: "Nářezový plán - kombinovaně".
QString TitulekNP(ZpusobNP zpusob);
