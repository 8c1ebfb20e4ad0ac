#pragma once
// frmNP: the plan viewer shown at the end of a plan run, over the plan in DataK. Prints,
// saves as PDF, prints labels, books the plan against the offcut store (Sklad), writes the
// panel saw's file (CNC) and the cut list for a spreadsheet (CSV). Closing it closes DataK.
#include "planoutput/StrankyNP.h"
#include "ui/OknoDokumentu.h"

class Uloziste;

class FrmNP : public OknoDokumentu {
    Q_OBJECT
public:
    FrmNP(Uloziste& uloziste, Prompt& prompt, const PlanNaStrankach& plan, QWidget* rodic);
    ~FrmNP() override;

    // Lays the plan out in the layout of VykresleniTabule; false for "Rozměrová chyba".
    bool vykresli();
    void UlozNP();
    void TiskStitku();
    void OdepisOdrezky();
    void ExportCNC();
    void SeznamDilcu();
    void nahled(); // page 1, the whole page in view

private:
    Uloziste& m_uloziste;
    PlanNaStrankach m_plan;
};
