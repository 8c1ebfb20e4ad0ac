#pragma once
// The backups of the main window and of the price list: DataS.db from the main window ("Vz",
// "OD"), Cenik.db from frmCenik ("ZD", "OZ"), both with the file dialogs, the question before a
// file is replaced and the messages of their error tables. The checks, the safety copy and the
// reopening of the store are the exchange library's, shared with the command line.
#include "core/Schema.h"

#include <functional>

class Prompt;
class TabulkaPrikazu;
class Uloziste;

class OvladacDat {
public:
    // poObnove runs after a good restore, with the kind restored: the main window refills its
    // tree, the price list its list.
    OvladacDat(Uloziste& uloziste, Prompt& prompt, std::function<void(Schema::Soubor)> poObnove);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

    void ZalohaDat() { zaloha(Schema::Soubor::Data); }
    void ObnovaDat() { obnova(Schema::Soubor::Data); }
    void ZalohaCeniku() { zaloha(Schema::Soubor::Cenik); }
    void ObnovaCeniku() { obnova(Schema::Soubor::Cenik); }

private:
    void zaloha(Schema::Soubor druh);
    void obnova(Schema::Soubor druh);

    Uloziste& m_uloziste;
    Prompt& m_prompt;
    std::function<void(Schema::Soubor)> m_poObnove;
};
