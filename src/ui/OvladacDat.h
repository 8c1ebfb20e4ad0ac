#pragma once
// The data commands of the main window: a backup of DataS.db ("Vz") and its restore ("OD"),
// with the messages of their error tables.
#include <functional>

class Prompt;
class TabulkaPrikazu;
class Uloziste;

class OvladacDat {
public:
    // poObnove runs after a good restore: the window refills its tree, nothing selected.
    OvladacDat(Uloziste& uloziste, Prompt& prompt, std::function<void()> poObnove);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

    void ZalohaDat();
    void ObnovaDat();

private:
    Uloziste& m_uloziste;
    Prompt& m_prompt;
    std::function<void()> m_poObnove;
};
