#include "plansql/Umisteni.h"

#include "core/Database.h"
#include "optimiser/Dotazy.h"
#include "plansql/Zkouska.h"

namespace PlanSql {

namespace {

// The board's extent across the strip (what a stair keeps as the strip's ceiling), by the
// field that holds it: unturned in a row its y, turned its x; in a column the other way round.
QString pricne(int smer, bool otoceno)
{
    return (smer == 0) != otoceno ? QStringLiteral("y") : QStringLiteral("x");
}

// The area score of the opening in a direction, unturned and turned.
QString plocha(int smer, bool otoceno)
{
    static const QString nazvy[2][2] = {{QStringLiteral("PlochaKZ"), QStringLiteral("PlochaKZBOV")},
                                        {QStringLiteral("PlochaKZSLOUPEC"), QStringLiteral("PlochaKZBOVSLOUPEC")}};
    return nazvy[smer][otoceno];
}

} // namespace

int Umisteni::Volani::smer() const
{
    switch (zpusob) {
    case ZpusobNP::PodelneRezy:
        return 0;
    case ZpusobNP::PricneRezy:
        return 1;
    default:
        return RadaKomb ? 0 : 1;
    }
}

Umisteni::Umisteni(PlanRun& run) : r(run), s(run.m_s) {}

std::optional<Recordset> Umisteni::prvni(const QString& sql)
{
    Recordset rs(*r.m_dataK, sql, Recordset::Rozsah::Prvni);
    if (rs.eof())
        return std::nullopt;
    return rs;
}

void Umisteni::NP(ZpusobNP zpusob)
{
    Volani v{zpusob};
    for (;;) {
        const int smer = v.smer();
        bool polozeno = false;
        for (int krok = 0; krok < 6 && !polozeno; ++krok) {
            auto rs = prvni(r.dosad(Dotazy::Kroky[krok][smer]));
            if (!rs)
                continue;
            const Druh druh = krok < 2 ? Druh::Presne : krok < 4 ? Druh::Napric : Druh::Podel;
            poloz(v, druh, smer, *rs, krok % 2 == 1);
            if (druh == Druh::Presne) {
                if (v.RadaRozpracovana != 1)
                    return; // the rest of the row is not looked at by this call
                s.Zbyva[0] = s.Zbyva[1] = 0;
            }
            polozeno = true;
        }
        if (polozeno)
            continue;

        std::optional<Recordset> kand, otoc;
        if (s.PoradiDesky == 1 || s.NovaRada) {
            const bool dal = zpusob == ZpusobNP::Kombinovane ? rozhodniKomb(v, kand, otoc)
                                                             : otevri(v, smer, kand, otoc);
            if (!dal)
                return;
        } else {
            kand = prvni(r.dosad(Dotazy::Schod[smer]));
            otoc = prvni(r.dosad(Dotazy::SchodOtoc[smer]));
            v.HodnotaRovne = kand ? kand->cislo(pricne(smer, false)) : 0;
            v.HodnotaOtoc = otoc ? otoc->cislo(pricne(smer, true)) : 0;
        }
        if (v.HodnotaRovne == 0 && v.HodnotaOtoc == 0) {
            konecRady(v);
            return;
        }
        const bool otoceno = v.HodnotaRovne < v.HodnotaOtoc;
        auto& rs = otoceno ? otoc : kand;
        if (!rs)
            return;
        poloz(v, Druh::Schod, v.smer(), *rs, otoceno);
    }
}

// The opening of a row (column) in the pure modes: a trial round, then the candidates of case
// a, b or c. Returns false when the call is to end at once (stopped, or case c without one).
bool Umisteni::otevri(Volani& v, int smer, std::optional<Recordset>& kand, std::optional<Recordset>& otoc)
{
    Zkouska(r).ZkusebniUsazeni(smer);
    if (r.m_prerusit)
        return false;
    const int pripad = prvni(QString::fromUtf8(Dotazy::PripadA[smer])) ? 0
                       : prvni(QString::fromUtf8(Dotazy::PripadB[smer])) ? 1
                                                                         : 2;
    kand = prvni(QString::fromUtf8(Dotazy::Kandidat[pripad][smer]));
    otoc = prvni(QString::fromUtf8(Dotazy::KandidatOtoc[pripad][smer]));
    if (kand && otoc) {
        if (kand->cislo(plocha(smer, false)) <= otoc->cislo(plocha(smer, true)))
            v.HodnotaRovne = kand->cislo(pricne(smer, false));
        else
            v.HodnotaOtoc = otoc->cislo(pricne(smer, true));
    } else if (kand) {
        v.HodnotaRovne = kand->cislo(pricne(smer, false));
    } else if (otoc) {
        v.HodnotaOtoc = otoc->cislo(pricne(smer, true));
    } else if (pripad == 2) {
        return false; // no KZ row, no look at the remnants
    } else {
        v.HodnotaRovne = v.HodnotaOtoc = 0; // cases a and b go on to the row end
    }
    return true;
}

void Umisteni::poloz(Volani& v, Druh druh, int smer, Recordset& rs, bool otoceno)
{
    const int a = smer, b = 1 - smer; // along the strip, across it
    const bool prvniVRade = s.PoradiDesky == 1 || s.NovaRada;
    r.oznacDesku(rs, otoceno);
    const int n = s.PoradiDesky;
    const double R[2] = {s.Rozmery[0][n], s.Rozmery[1][n]};
    const double k = s.SrezNP;
    if (druh != Druh::Presne)
        r.m_rezy[s.CisloTabule] += (druh != Druh::Schod && prvniVRade) ? 2 : 1;

    switch (druh) {
    case Druh::Presne: // PoradiDesky stays where it is
        // a row's first board that fills the rectangle fills the sheet's remainder: the remainder
        // must not wait on to be laid again (with the kerf 0 this happens on ordinary orders)
        if (prvniVRade)
            SmazZT();
        return;
    case Druh::Napric: // the board spans the rest across: the space beyond it stays open
        s.Zbyva[b] -= R[b] + k;
        s.Pozice[b] += R[b] + k;
        for (int i : {0, 1}) {
            s.Zbytek[i] = s.Zbyva[i];
            s.ZbytekPozice[i] = s.Pozice[i];
        }
        if (prvniVRade) { // a strip of one board is complete; the next opens a new one
            UlozZT();
            ++s.CisloRady;
            s.NovaRada = true;
        }
        break;
    case Druh::Podel: // the board spans the strip's height: the strip goes on beside it
        s.Zbyva[a] -= R[a] + k;
        s.Pozice[a] += R[a] + k;
        if (prvniVRade)
            SmazZT();
        v.RadaRozpracovana = 1;
        break;
    case Druh::Schod: // smaller both ways: the space beyond it to the strip's end waits
        s.Zbytek[a] = s.Zbyva[a];
        s.Zbytek[b] = s.Zbyva[b] - R[b] - k;
        s.ZbytekPozice[a] = s.Pozice[a];
        s.ZbytekPozice[b] = s.Pozice[b] + R[b] + k;
        if (prvniVRade)
            UlozZT();
        else
            UlozZR(smer);
        s.Pozice[a] += R[a] + k;
        s.Zbyva[a] -= R[a] + k;
        s.Zbyva[b] = R[b];
        v.RadaRozpracovana = 1;
        break;
    }
    ++s.PoradiDesky;
}

void Umisteni::konecRady(Volani& v)
{
    if (!s.VZbytkuRady && v.RadaRozpracovana == 1)
        UlozKZ();
    else
        ZmenZRnaKZ();
    if (v.zpusob == ZpusobNP::Kombinovane)
        DalsiZbytekRadyKomb();
    else
        DalsiZbytekRady(v.zpusob);
    DalsiRada(v.zpusob);
    v.RadaRozpracovana = 0;
}

void Umisteni::UlozZT()
{
    auto zapis = [&](Recordset& rs) {
        rs.set(QStringLiteral("CT"), s.CisloTabule);
        rs.set(QStringLiteral("XZP"), s.Zbytek[0]);
        rs.set(QStringLiteral("YZP"), s.Zbytek[1]);
        rs.set(QStringLiteral("XDP"), s.ZbytekPozice[0]);
        rs.set(QStringLiteral("YDP"), s.ZbytekPozice[1]);
    };
    if (s.PoradiDesky == 1) {
        Recordset rs(*r.m_dataK, QStringLiteral("SELECT * FROM SoupisZbytku "), Recordset::Rozsah::Prvni);
        rs.addNew();
        rs.set(QStringLiteral("Oznaceni"), QStringLiteral("ZT"));
        zapis(rs);
        rs.update();
    } else if (s.NovaRada) {
        if (auto rs = prvni(r.dosad(Dotazy::ZT))) {
            rs->edit();
            zapis(*rs);
            rs->set(QStringLiteral("ID"), false);
            rs->update();
        }
        s.NovaRada = false;
    }
}

void Umisteni::SmazZT()
{
    if (auto rs = prvni(r.dosad(Dotazy::ZT)))
        rs->remove();
    s.NovaRada = false;
}

void Umisteni::UlozZR(int smer)
{
    s.VZbytkuRady = false;
    auto posledni = prvni(r.dosad(Dotazy::ZR));
    const QString hrana = smer == 0 ? QStringLiteral("XDP") : QStringLiteral("YDP");
    auto zapis = [&](Recordset& rs) {
        rs.set(QStringLiteral("XZP"), s.Zbytek[0]);
        rs.set(QStringLiteral("YZP"), s.Zbytek[1]);
        rs.set(QStringLiteral("XDP"), s.ZbytekPozice[0]);
        rs.set(QStringLiteral("YDP"), s.ZbytekPozice[1]);
    };
    if (posledni && posledni->cislo(hrana) == s.ZbytekPozice[smer]) {
        // the strip being filled now, cut from its own start: what is left waits again
        posledni->edit();
        zapis(*posledni);
        posledni->set(QStringLiteral("ID"), false);
        posledni->update();
        return;
    }
    Recordset rs(*r.m_dataK, QStringLiteral("SoupisZbytku"), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("Oznaceni"), QStringLiteral("ZŘ"));
    rs.set(QStringLiteral("Rada"), s.CisloRady);
    rs.set(QStringLiteral("cislo"), posledni ? posledni->cislo(QStringLiteral("cislo")) + 1 : 1);
    rs.set(QStringLiteral("CT"), s.CisloTabule);
    zapis(rs);
    rs.update();
}

void Umisteni::zapisKZ(Recordset& rs, const std::optional<Recordset>& posledniKZ)
{
    rs.set(QStringLiteral("Oznaceni"), QStringLiteral("KZ"));
    rs.set(QStringLiteral("Rada"), s.CisloRady);
    rs.set(QStringLiteral("cislo"), posledniKZ ? posledniKZ->cislo(QStringLiteral("cislo")) + 1 : 1);
    rs.set(QStringLiteral("CT"), s.CisloTabule);
    rs.set(QStringLiteral("XZP"), s.Zbyva[0]);
    rs.set(QStringLiteral("YZP"), s.Zbyva[1]);
    rs.set(QStringLiteral("XDP"), s.Pozice[0]);
    rs.set(QStringLiteral("YDP"), s.Pozice[1]);
    rs.set(QStringLiteral("ID"), true);
}

void Umisteni::UlozKZ()
{
    const auto posledni = prvni(r.dosad(Dotazy::KZ));
    Recordset rs(*r.m_dataK, QStringLiteral("SoupisZbytku"), Recordset::Rozsah::Prvni);
    rs.addNew();
    zapisKZ(rs, posledni);
    rs.update();
}

void Umisteni::ZmenZRnaKZ()
{
    const auto posledniKZ = prvni(r.dosad(Dotazy::KZ));
    auto zr = prvni(r.dosad(Dotazy::ZR));
    if (!zr)
        return; // not even a KZ row for the rectangle
    zr->edit();
    zapisKZ(*zr, posledniKZ);
    zr->update();
    s.VZbytkuRady = false;
}

void Umisteni::nactiObdelnik(Recordset& rs)
{
    s.Pozice[0] = rs.cislo(QStringLiteral("XDP"));
    s.Pozice[1] = rs.cislo(QStringLiteral("YDP"));
    s.Zbyva[0] = rs.cislo(QStringLiteral("XZP"));
    s.Zbyva[1] = rs.cislo(QStringLiteral("YZP"));
    rs.edit();
    rs.set(QStringLiteral("ID"), true);
    rs.update();
}

void Umisteni::DalsiZbytekRady(ZpusobNP zpusob)
{
    auto rs = prvni(r.dosad(Dotazy::ZRCekajici));
    if (!rs)
        return;
    nactiObdelnik(*rs);
    s.VZbytkuRady = true;
    NP(zpusob);
}

void Umisteni::DalsiRada(ZpusobNP zpusob)
{
    if (r.m_prerusit)
        return;
    auto rs = prvni(r.dosad(Dotazy::ZTCekajici));
    if (!rs)
        return;
    nactiObdelnik(*rs);
    ++s.CisloRady;
    s.NovaRada = true;
    NP(zpusob);
}

} // namespace PlanSql
