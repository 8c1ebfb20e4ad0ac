#pragma once
// The plans and reports of the main window: the plan start ("NP": the format and mode chosen in
// frmNovy, the run inside its progress frame, the plan viewer) and the costing reports of
// "Výpisy" (the assemblies chosen in fraKalkulace, then the report preview).
#include <QString>
#include <functional>

enum class DruhVypisu;
class Prompt;
class QWidget;
class TabulkaPrikazu;
class Uloziste;
class Vyber;

class OvladacVypisu {
public:
    // popisek gives a command's caption as the menu shows it (the report's title).
    OvladacVypisu(Uloziste& uloziste, Prompt& prompt, const Vyber& vyber, QWidget* okno,
                  std::function<QString(const QString&)> popisek);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

    void ZahajNP();
    void Vypis(DruhVypisu druh, const QString& nazev);

private:
    Uloziste& m_uloziste;
    Prompt& m_prompt;
    const Vyber& m_vyber;
    QWidget* m_okno;
    std::function<QString(const QString&)> m_popisek;
};
