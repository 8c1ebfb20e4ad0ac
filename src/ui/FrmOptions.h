#pragma once
// frmOptions: the one place where the settings are edited, on the five pages of tabNastaveni
// (cutting and drawing, labels with their preview, offcuts, prices, CNC). Fields are checked
// and stored by "Použít" through Moznosti; colours and fonts are stored as soon as they are
// chosen. "Zpět", Esc and the close box drop what was typed and not applied.
#include "core/Moznosti.h"
#include "printing/Dokument.h"

#include <QDialog>
#include <QMap>
#include <functional>

class Prompt;
class QLabel;
class QPushButton;
class QTabWidget;
class QToolButton;

class FrmOptions : public QDialog {
    Q_OBJECT
public:
    // obnov: the main window's two refreshes, run after every "Použít".
    FrmOptions(Prompt& prompt, std::function<void()> obnov, QWidget* rodic);

    void nacti();                 // every key into its control, the preview drawn anew
    bool Pouzit();                // cmdPouzit; false when a field was refused
    void zmenBarvu(int i);        // pct(i): BarvaDesky, BarvaOdrezku, BarvaOdpadu
    void zmenPismo(int i);        // lblRozmer(i): boards, offcuts
    void zvetsiNahled();          // the preview in its own window

    QWidget* pole(const QString& klic) const { return m_pole.value(klic); }
    const Dokument& nahled() const { return m_nahled; }
    QTabWidget* stranky() const { return m_tab; }

private:
    QWidget* strankaRezani();
    QWidget* strankaStitku();
    QWidget* strankaOdrezku();
    QWidget* strankaCen();
    QWidget* strankaCNC();
    QWidget* vytvorPole(const char* klic);
    QWidget* poleSPopiskem(const QString& popisek, const char* klic);
    Moznosti::Hodnoty hodnoty() const;
    void zmena(bool stitek);
    void prekresliNahled();
    void obnovVzorky();

    Prompt& m_prompt;
    std::function<void()> m_obnov;
    QTabWidget* m_tab;
    QPushButton* m_cmdPouzit;
    QMap<QString, QWidget*> m_pole;
    QLabel* m_pct[3];
    QLabel* m_lblRozmer[2];
    QToolButton* m_VSPrinter1; // the preview; a click shows it large
    Dokument m_nahled;
    bool m_nacitani = false;
};
