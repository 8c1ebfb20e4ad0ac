#pragma once
// frmNP: the plan viewer shown at the end of a plan run, over the plan in DataK. Prints,
// saves as PDF, prints labels; the offcut store and the panel saw file come with their own
// work and stand disabled until then. Closing it closes DataK.
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
    void nahled(); // page 1, the whole page in view

private:
    Uloziste& m_uloziste;
    PlanNaStrankach m_plan;
};
