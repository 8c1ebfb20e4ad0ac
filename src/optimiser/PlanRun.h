#pragma once
// One plan run: the boards of one order that are cut from one format, laid out on sheets in one
// of four modes. Holds every value that the run shares between its routines (the old program
// kept them process-wide) and the working tables of the run, in memory: every decision is taken
// there, in exactly the order its query text defines (Dotazy.h). The finished tables go to the
// plan database DataK once, at the end: SoupisTabuli with the used sheets numbered by NCT,
// SoupisDesek with the placed boards, SoupisZbytku. Progress and "stop?" go through Prubeh.
#include "core/Prompt.h"
#include "optimiser/PracovniTabulky.h"

#include <QElapsedTimer>
#include <QString>
#include <map>
#include <optional>
#include <vector>

class Uloziste;
class Database;

// Usporne, "úsporně": the fewest sheets, searched within a time budget (UsporneNP.cpp).
enum class ZpusobNP { PodelneRezy, PricneRezy, Kombinovane, Usporne };

// A format of the order that has boards, as the plan start offers it.
struct FormatNP {
    double ID;
    QString text; // Material + " ( " + RozmerX + " x " + RozmerY + " )"
};

class PlanRun {
public:
    PlanRun(Uloziste& uloziste, Prompt& prompt, Prubeh& prubeh);
    ~PlanRun();

    // The formats of an order that have at least one board, in the order of the store; reads
    // DataS. Empty when there is nothing to cut.
    static std::vector<FormatNP> formatySDeskami(Database& dataS, const QString& zakazka);

    // The run itself (SpustNP without its windows): reads the order, fills the sheet and board
    // lists, lays out by the mode, renumbers the sheets and writes the working tables to DataK.
    // Returns false when stopped (DataK then keeps what it held). Shows "V zakázce není co
    // nařezat!!!!!" and returns false when the format has no boards.
    // Throws Error from the store (75, 3356, 3799 when DataK cannot be made or written).
    bool SpustNP(const QString& zakazka, double idFormatu, ZpusobNP zpusob, int volba = 0);

    // A run whose plan is only read from tabulky(): the working tables are not written to DataK.
    void bezZapisu() { m_zapsat = false; }

    // The search budget of "úsporně" in seconds, over the setting CasUsporne (the command line's --cas).
    void casUsporne(double sekund) { m_casUsporne = sekund; }
    double sekundHledani() const { return m_sekundHledani; } // of the last "úsporně" search itself
    int mezHledani() const { return m_mezHledani; } // the sheets it showed no plan can do with less

    // After a run.
    const PracovniTabulky& tabulky() const { return m_t; }
    const std::map<int, int>& RezyNaTabuli() const { return m_t.RezyNaTabuli; }
    bool varovani() const { return m_varovani || m_smycka; } // sheets ran out, or a walk was cut
    bool smycka() const { return m_smycka; } // a stack walk of end remnants met itself (kerf 0)
    int slouceni() const { return m_slouceni; } // stacks of end remnants merged into a strip
    bool preruseno() const { return m_prerusit; }
    const QString& AktualniZakazka() const { return m_zakazka; }
    double IDFormatuNP() const { return m_idFormatu; }
    ZpusobNP zpusob() const { return m_zpusob; }
    double SamovaniNP() const { return m_s.SamovaniNP; } // the trim, tenths of a millimetre
    double SrezNP() const { return m_s.SrezNP; }         // the kerf, tenths of a millimetre

private:
    friend class Umisteni;
    friend class Zkouska;

    void SoupisTabuliNP();
    void SoupisDesekNP();
    void ridic();              // the driver of the mode: one placement per sheet
    bool usporne();            // the rest of a run of "úsporně": a stop keeps the best plan found
    void PrecislujTabule();
    void zapisTabulky();       // the finished tables into a fresh DataK, unless bezZapisu()
    void varujNeusazene();     // the warning of boards left out, said once
    // A turn for the event loop; true when the run is to stop. Inside the trial's loops the turn
    // comes at most every few milliseconds (hned false), at the steps of the run always.
    bool vydej(bool hned = false);
    void oznacDesku(int deska, bool otoceno); // marks a placed board and its sheet
    void krokPrubehu();

    Uloziste& m_uloziste;
    Prompt& m_prompt;
    Prubeh& m_prubeh;

    QString m_zakazka;
    double m_idFormatu = 0;
    ZpusobNP m_zpusob = ZpusobNP::PodelneRezy;
    bool m_volbaNP = false;
    int m_volbaNPDeska = 0;
    bool m_formatOV = false;
    bool m_prerusit = false;
    bool m_varovani = false;
    bool m_smycka = false;
    int m_slouceni = 0;
    QElapsedTimer m_odVydeje;
    bool m_zapsat = true;
    std::optional<double> m_casUsporne;
    double m_sekundHledani = 0;
    int m_mezHledani = 0;

public:
    // The working values of the placement and of the trial, shared by their routines. Axis 0
    // is the sheet's X, axis 1 its Y; the column routines are the row routines with the axes
    // exchanged.
    struct Stav {
        double SrezNP = 0, SamovaniNP = 0;
        double TabuleX = 0, TabuleY = 0;
        double Zbyva[2] = {0, 0};
        double Pozice[2] = {0, 0};
        double Zbytek[2] = {0, 0};
        double ZbytekPozice[2] = {0, 0};
        int CisloTabule = 0, CisloRady = 0, PoradiDesky = 0;
        bool NovaRada = false, VZbytkuRady = false;
        double Rozmery[2] = {0, 0}; // extents of the board placed last
        // the trial's counterparts
        double ZbyvaKZ[2] = {0, 0};
        double PoziceKZ[2] = {0, 0};
        double ZbytekKZ[2] = {0, 0};
        double ZbytekPoziceKZ[2] = {0, 0};
        int RadaRozpracovanaKZ = 0;
        bool VZbytkuRadyKZ = false;
        double PosledniX = 0, PosledniY = 0;
    };

private:
    Stav m_s;
    PracovniTabulky m_t;
    std::vector<int> m_neusazene;  // unplaced rows of SoupisDesek, in rowid order
    int m_tabule = -1;             // the row of SoupisTabuli being filled
    int m_zbytkyTabule = 0;        // the first row of SoupisZbytku the current sheet wrote
    int m_usazeno = 0;
};
