#pragma once
// The catalogues of the main window: the price list ("CTM"), the schema and picture libraries
// ("DSS", "DOC") and the offcut store ("Sklad", "SO"), each in its own window.
#include <functional>

class Prompt;
class QWidget;
class TabulkaPrikazu;
class Uloziste;

class OvladacKatalogu {
public:
    // poKnihovne runs after a library window closes: the assembly's schema may be gone.
    OvladacKatalogu(Uloziste& uloziste, Prompt& prompt, QWidget* okno, std::function<void()> poKnihovne);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

private:
    Uloziste& m_uloziste;
    Prompt& m_prompt;
    QWidget* m_okno;
    std::function<void()> m_poKnihovne;
};
