#pragma once
// Saving a finished document as PDF the way the program asks for it: the folder beside the
// data made if missing, the save chooser, the question before overwriting, the message when
// done, and the error table of the caller turned into messages. The file is replaced only when
// the new one is whole, so a failure leaves what stood under that name.
#include "core/Prompt.h"
#include "printing/Dokument.h"

#include <QString>

namespace UlozeniPdf {

struct Zpravy {
    QString slozka;          // inside the application folder: "PDF", "Nářezové plány"
    QString titulek;         // of the chooser
    QString navrh;           // proposed file name
    QString hotovo;          // "Výpis byl uložen do " (the path follows)
    QString jinak;           // the message for an error outside the table
    QString titulekJinak;    // and its title
};

// The messages of report saving (frmVSP) and of plan saving (frmNP).
Zpravy vypis();
Zpravy plan(const QString& navrh);

// Runs the whole save; returns the file written, or an empty string when cancelled, refused or
// failed (the failure has been shown).
QString uloz(const Dokument& dokument, Prompt& prompt, const Zpravy& zpravy);

// The message and title that an error number of a failed save gets; an empty text for the
// silent ones (a cancelled chooser).
std::pair<QString, QString> zpravaChyby(int cislo, const Zpravy& zpravy);

}
