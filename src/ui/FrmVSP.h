#pragma once
// frmVSP: the one preview window of every report and of the labels. A report fills
// dokument(), gives the title, and shows the window modally.
#include "ui/OknoDokumentu.h"

class FrmVSP : public OknoDokumentu {
    Q_OBJECT
public:
    FrmVSP(Prompt& prompt, QWidget* rodic);
    void UlozitVypisPDF();
};
