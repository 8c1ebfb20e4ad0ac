#pragma once
// The real placement of one sheet: NPRady (rows), NPSloupce (columns) and NPKomb (each strip
// decided between row and column), as one routine with a direction. Direction 0 is a row: the
// strip runs along the sheet's X and its boards step down in Y; direction 1 is its mirror
// across the diagonal. The remnant writers (UlozZT, SmazZT, UlozZR, UlozKZ, ZmenZRnaKZ) serve
// both directions, and the combined mode calls them as it calls the pure ones.
#include "plansql/PlanRun.h"

#include <optional>

namespace PlanSql {

class Umisteni {
public:
    explicit Umisteni(PlanRun& run);

    // Fills the current rectangle and everything that hangs from it (recursive).
    void NP(ZpusobNP zpusob);

private:
    // The locals of one call of the placement routine.
    struct Volani {
        ZpusobNP zpusob;
        bool RadaKomb = false; // combined mode: the open strip is a row (empty means column)
        double HodnotaRovne = 0;
        double HodnotaOtoc = 0;
        int RadaRozpracovana = 0;
        int smer() const;
    };
    enum class Druh { Presne, Napric, Podel, Schod };

    std::optional<Recordset> prvni(const QString& sql);
    void poloz(Volani& v, Druh druh, int smer, Recordset& rs, bool otoceno);
    bool otevri(Volani& v, int smer, std::optional<Recordset>& kand, std::optional<Recordset>& otoc);
    bool rozhodniKomb(Volani& v, std::optional<Recordset>& kand, std::optional<Recordset>& otoc);
    void konecRady(Volani& v);

    void UlozZT();
    void SmazZT();
    void UlozZR(int smer);
    void UlozKZ();
    void ZmenZRnaKZ();
    void zapisKZ(Recordset& rs, const std::optional<Recordset>& posledniKZ);
    void nactiObdelnik(Recordset& rs); // the current rectangle from a remnant, marked taken
    void DalsiZbytekRady(ZpusobNP zpusob);
    void DalsiRada(ZpusobNP zpusob);
    void DalsiZbytekRadyKomb();
    bool sloucitKoncoveZbytky();

    PlanRun& r;
    PlanRun::Stav& s;
};

} // namespace PlanSql
