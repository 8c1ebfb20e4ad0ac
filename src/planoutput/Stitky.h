#pragma once
// Labels: one per placed board of the plan in DataK, laid out in the grid of the label
// settings (millimetres times 56.685), in the order of the sheets and then down and across
// each sheet, a new page when the grid is full.
#include "printing/Dokument.h"

#include <QString>

class Uloziste;

inline const char* TitulekStitku = "Tisk štítků";

// The grid from the settings, in twips.
struct MrizkaStitku {
    double delka, sirka, zleva, shora, mezeraX, mezeraY;
    int sloupcu, radku;
    static constexpr double TwipuNaMm = 56.685;
    static MrizkaStitku zNastaveni();
};

// Fills dokument with the labels of the plan of zakazka; returns how many were drawn.
int TiskStitku(Dokument& dokument, Uloziste& uloziste, const QString& zakazka);
