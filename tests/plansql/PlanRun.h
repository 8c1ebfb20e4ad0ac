#pragma once
// The plan engine as it was before its decisions moved into memory: every decision one query
// over the plan database, in the query texts' own words. Kept only as the oracle that the
// in-memory engine is compared with, plan by plan; nothing of the program links it.
//
// One plan run: the boards of one order that are cut from one format, laid out on sheets in one
// of three modes. Holds every value that the run shares between its routines (the old program
// kept them process-wide), works on the plan database DataK through the store, and reports
// progress and asks "stop?" through Prubeh. What a finished run leaves in DataK: SoupisTabuli
// with the used sheets numbered by NCT, SoupisDesek with the placed boards, SoupisZbytku.
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "optimiser/PlanRun.h" // ZpusobNP

#include <QString>
#include <initializer_list>
#include <map>
#include <optional>
#include <vector>

namespace PlanSql {

class PlanRun {
public:
    PlanRun(Uloziste& uloziste, Prompt& prompt, Prubeh& prubeh);
    ~PlanRun();

    // The run itself (SpustNP without its windows): remakes DataK, fills the sheet and board
    // lists, lays out by the mode, renumbers the sheets. Returns false when stopped. Shows
    // "V zakázce není co nařezat!!!!!" and returns false when the format has no boards.
    // Throws Error from the store (75, 3356, 3799 when DataK cannot be made).
    bool SpustNP(const QString& zakazka, double idFormatu, ZpusobNP zpusob, int volba = 0);

    // After a run.
    const std::map<int, int>& RezyNaTabuli() const { return m_rezy; }
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
    void PrecislujTabule();
    bool vydej();              // a turn for the event loop; true when the run is to stop
    void oznacDesku(Recordset& rs, bool otoceno); // marks a placed board and its sheet
    // The query with each `{name}` replaced by the value given in dalsi, or by the state's value
    // of that name (ZbyvaX, ZbyvaY, ZbyvaXKZ, ZbyvaYKZ, CisloTabule, CisloRady).
    QString dosad(const char* text, std::initializer_list<std::pair<const char*, double>> dalsi = {}) const;

    Uloziste& m_uloziste;
    Prompt& m_prompt;
    Prubeh& m_prubeh;
    Database* m_dataK = nullptr;

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
    double m_krokPrubehu = 0;
    double m_hodnotaPrubehu = 0;

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
        std::vector<double> Rozmery[2];
        // the trial's counterparts
        double ZbyvaKZ[2] = {0, 0};
        double PoziceKZ[2] = {0, 0};
        double ZbytekKZ[2] = {0, 0};
        double ZbytekPoziceKZ[2] = {0, 0};
        int PoradiDeskyKZ = 0;
        int RadaRozpracovanaKZ = 0;
        bool VZbytkuRadyKZ = false;
        double PosledniX = 0, PosledniY = 0;
        std::vector<double> RozmeryKZ[2];
    };

private:
    Stav m_s;
    std::map<int, int> m_rezy;
    std::optional<Recordset> m_rsTabule;
};

} // namespace PlanSql
