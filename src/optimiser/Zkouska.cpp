#include "optimiser/Zkouska.h"

#include "core/Database.h"
#include "optimiser/Dotazy.h"

namespace {

QString pricne(int smer, bool otoceno)
{
    return (smer == 0) != otoceno ? QStringLiteral("y") : QStringLiteral("x");
}

} // namespace

Zkouska::Zkouska(PlanRun& run) : r(run), s(run.m_s) {}

std::optional<Recordset> Zkouska::prvni(const QString& sql)
{
    Recordset rs(*r.m_dataK, sql, Recordset::Rozsah::Prvni);
    if (rs.eof())
        return std::nullopt;
    return rs;
}

void Zkouska::ZkusebniUsazeni(int smer)
{
    s.PosledniX = s.PosledniY = 0;
    PripravKZ();
    pruchod(smer);
}

void Zkouska::ZkusebniUsazeniKomb()
{
    // One set-up; the column pass starts where the row pass left PosledniX and PosledniY.
    s.PosledniX = s.PosledniY = 0;
    PripravKZ();
    pruchod(0);
    if (!r.m_prerusit)
        pruchod(1);
}

// The copy of the unplaced boards (only the boards of one row of the order when the plan
// variant slider names one, and only for the first round of a run), with every score cleared.
// Written as set statements: the same rows, in the same order, as the walk of the old program.
void Zkouska::PripravKZ()
{
    Database& db = *r.m_dataK;
    const QString kde = r.m_volbaNP
                            ? QStringLiteral("WHERE ID = 0 AND CDesky = %1").arg(qint16(r.m_volbaNPDeska + 1))
                            : QStringLiteral("WHERE ID = 0");
    db.executeSqlite(QStringLiteral("UPDATE SoupisDesek SET PlochaKZ = 0, PlochaKZSLOUPEC = 0, SumaKZ = 0, "
                                    "SumaKZSloupec = 0, PlochaKZBOV = 0, PlochaKZBOVSLOUPEC = 0, SumaKZBOV = 0, "
                                    "SumaKZBOVSloupec = 0, PVT = 0, PD = 0 ") + kde);
    db.execute(QStringLiteral("DELETE * FROM SoupisDesekKZ"));
    db.executeSqlite(QStringLiteral("INSERT INTO SoupisDesekKZ (x, y, OV, OTOC, XD, YD) "
                                    "SELECT x, y, OV, OTOC, XD, YD FROM SoupisDesek ") + kde +
                     QStringLiteral(" ORDER BY rowid"));
    db.execute(QStringLiteral("DELETE * FROM SoupisZbytkuKZ"));
    r.m_volbaNP = false;
}

void Zkouska::pruchod(int smer)
{
    Recordset desky(*r.m_dataK, QString::fromUtf8(Dotazy::DeskyKZ[smer]));
    for (; !desky.eof(); desky.moveNext()) {
        if (r.vydej())
            return;
        const double x = desky.cislo(QStringLiteral("x"));
        const double y = desky.cislo(QStringLiteral("y"));
        if (x == s.PosledniX && y == s.PosledniY)
            continue; // the same size as the one just tried
        zkus(smer, desky, false);
        if (!desky.ano(QStringLiteral("OV")))
            zkus(smer, desky, true);
    }
}

void Zkouska::zkus(int smer, Recordset& deska, bool otoceno)
{
    const int a = smer, b = 1 - smer;
    const double k = s.SrezNP;
    const double x = deska.cislo(QStringLiteral("x"));
    const double y = deska.cislo(QStringLiteral("y"));
    s.PoradiDeskyKZ = s.PoradiDesky;
    for (int i : {0, 1}) {
        s.PoziceKZ[i] = s.Pozice[i];
        s.ZbyvaKZ[i] = s.Zbyva[i];
        s.RozmeryKZ[i].assign(1001, 0);
    }
    s.PosledniX = otoceno ? y : x;
    s.PosledniY = otoceno ? x : y;
    if (otoceno) { // written before the test of fit; only VratKZ takes it back
        deska.edit();
        deska.set(QStringLiteral("OTOC"), true);
        deska.update();
    }
    if (!(s.PosledniY < s.ZbyvaKZ[1] && s.PosledniX < s.ZbyvaKZ[0]))
        return;
    oznacKZ(deska, false);
    s.RozmeryKZ[0][s.PoradiDeskyKZ] = s.PosledniX;
    s.RozmeryKZ[1][s.PoradiDeskyKZ] = s.PosledniY;
    const double R[2] = {s.PosledniX, s.PosledniY};
    s.ZbytekKZ[a] = s.ZbyvaKZ[a];
    s.ZbytekKZ[b] = s.ZbyvaKZ[b] - R[b] - k;
    s.ZbytekPoziceKZ[a] = s.PoziceKZ[a];
    s.ZbytekPoziceKZ[b] = s.PoziceKZ[b] + R[b] + k;
    UlozZTKZ();
    s.PoziceKZ[a] += R[a] + k;
    s.ZbyvaKZ[a] -= R[a] + k;
    s.ZbyvaKZ[b] = R[b];
    s.RadaRozpracovanaKZ = 1;
    ++s.PoradiDeskyKZ;
    UsazeniKZ(smer);
    if (r.m_formatOV)
        HodnotTabuli(smer, otoceno, x, y);
    HodnotPlochu(smer, otoceno, x, y);
    VratKZ(smer);
}

void Zkouska::oznacKZ(Recordset& rs, bool otoceno)
{
    const int n = s.PoradiDeskyKZ;
    for (auto& v : s.RozmeryKZ)
        if (int(v.size()) <= n)
            v.resize(n + 1, 0);
    const double x = rs.cislo(QStringLiteral("x"));
    const double y = rs.cislo(QStringLiteral("y"));
    s.RozmeryKZ[0][n] = otoceno ? y : x;
    s.RozmeryKZ[1][n] = otoceno ? x : y;
    rs.edit();
    rs.set(QStringLiteral("ID"), true);
    rs.set(QStringLiteral("XD"), s.PoziceKZ[0]);
    rs.set(QStringLiteral("YD"), s.PoziceKZ[1]);
    if (otoceno)
        rs.set(QStringLiteral("OTOC"), true);
    rs.update();
}

void Zkouska::UsazeniKZ(int smer)
{
    const int a = smer, b = 1 - smer;
    const double k = s.SrezNP;
    for (;;) {
        bool polozeno = false;
        for (int krok = 0; krok < 6 && !polozeno; ++krok) {
            auto rs = prvni(r.dosad(Dotazy::KrokyKZ[krok][smer]));
            if (!rs)
                continue;
            oznacKZ(*rs, krok % 2 == 1);
            const int n = s.PoradiDeskyKZ;
            const double R[2] = {s.RozmeryKZ[0][n], s.RozmeryKZ[1][n]};
            if (krok < 2)
                return; // exact: waiting strips stay unworked
            const int osa = krok < 4 ? b : a; // across the strip, or along it
            s.ZbyvaKZ[osa] -= R[osa] + k;
            s.PoziceKZ[osa] += R[osa] + k;
            if (osa == a)
                s.RadaRozpracovanaKZ = 1;
            ++s.PoradiDeskyKZ;
            polozeno = true;
        }
        if (polozeno)
            continue;

        auto kand = prvni(r.dosad(Dotazy::SchodKZ[smer]));
        auto otoc = prvni(r.dosad(Dotazy::SchodOtocKZ[smer]));
        const double rovne = kand ? kand->cislo(pricne(smer, false)) : 0;
        const double otocene = otoc ? otoc->cislo(pricne(smer, true)) : 0;
        if (rovne == 0 && otocene == 0) { // the row end; the trial goes no further
            if (s.RadaRozpracovanaKZ != 1 || s.VZbytkuRadyKZ)
                ZmenZRKZ();
            else
                NovyKZ();
            DalsiZbytekKZ(smer);
            s.RadaRozpracovanaKZ = 0;
            return;
        }
        const bool otoceno = !(rovne >= otocene);
        Recordset& rs = otoceno ? *otoc : *kand;
        oznacKZ(rs, otoceno);
        const int n = s.PoradiDeskyKZ;
        const double R[2] = {s.RozmeryKZ[0][n], s.RozmeryKZ[1][n]};
        s.ZbytekKZ[a] = s.ZbyvaKZ[a];
        s.ZbytekKZ[b] = s.ZbyvaKZ[b] - R[b] - k;
        s.ZbytekPoziceKZ[a] = s.PoziceKZ[a];
        s.ZbytekPoziceKZ[b] = s.PoziceKZ[b] + R[b] + k;
        UlozZRKZ(smer);
        s.PoziceKZ[a] += R[a] + k;
        s.ZbyvaKZ[a] -= R[a] + k;
        s.ZbyvaKZ[b] = R[b];
        s.RadaRozpracovanaKZ = 1;
        ++s.PoradiDeskyKZ;
    }
}

void Zkouska::UlozZTKZ()
{
    Recordset rs(*r.m_dataK, QStringLiteral("SELECT * FROM SoupisZbytkuKZ "), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("Oznaceni"), QStringLiteral("ZT"));
    rs.set(QStringLiteral("XZP"), s.ZbytekKZ[0]);
    rs.set(QStringLiteral("YZP"), s.ZbytekKZ[1]);
    rs.set(QStringLiteral("XDP"), s.ZbytekPoziceKZ[0]);
    rs.set(QStringLiteral("YDP"), s.ZbytekPoziceKZ[1]);
    rs.update();
}

void Zkouska::UlozZRKZ(int smer)
{
    s.VZbytkuRadyKZ = false;
    auto posledni = prvni(r.dosad(Dotazy::ZRKZ));
    const QString hrana = smer == 0 ? QStringLiteral("XDP") : QStringLiteral("YDP");
    auto zapis = [&](Recordset& rs) {
        rs.set(QStringLiteral("XZP"), s.ZbytekKZ[0]);
        rs.set(QStringLiteral("YZP"), s.ZbytekKZ[1]);
        rs.set(QStringLiteral("XDP"), s.ZbytekPoziceKZ[0]);
        rs.set(QStringLiteral("YDP"), s.ZbytekPoziceKZ[1]);
    };
    if (posledni && posledni->cislo(hrana) == s.ZbytekPoziceKZ[smer]) {
        posledni->edit();
        zapis(*posledni);
        posledni->set(QStringLiteral("ID"), false);
        posledni->update();
        return;
    }
    Recordset rs(*r.m_dataK, QStringLiteral("SoupisZbytkuKZ"), Recordset::Rozsah::Prvni);
    rs.addNew();
    rs.set(QStringLiteral("Oznaceni"), QStringLiteral("ZŘ"));
    rs.set(QStringLiteral("Rada"), s.CisloRady);
    rs.set(QStringLiteral("cislo"), posledni ? posledni->cislo(QStringLiteral("cislo")) + 1 : 1);
    if (posledni) // only the further strips of a row carry their sheet
        rs.set(QStringLiteral("CT"), s.CisloTabule);
    zapis(rs);
    rs.update();
}

void Zkouska::zapisKZ(Recordset& rs)
{
    const auto posledni = prvni(r.dosad(Dotazy::KZKZ));
    rs.set(QStringLiteral("Oznaceni"), QStringLiteral("KZ"));
    rs.set(QStringLiteral("Rada"), s.CisloRady);
    rs.set(QStringLiteral("cislo"), posledni ? posledni->cislo(QStringLiteral("cislo")) + 1 : 1);
    rs.set(QStringLiteral("XZP"), s.ZbyvaKZ[0]);
    rs.set(QStringLiteral("YZP"), s.ZbyvaKZ[1]);
    rs.set(QStringLiteral("XDP"), s.PoziceKZ[0]);
    rs.set(QStringLiteral("YDP"), s.PoziceKZ[1]);
    rs.set(QStringLiteral("ID"), true);
}

void Zkouska::NovyKZ()
{
    Recordset rs(*r.m_dataK, QStringLiteral("SoupisZbytkuKZ"), Recordset::Rozsah::Prvni);
    rs.addNew();
    zapisKZ(rs);
    rs.update();
}

void Zkouska::ZmenZRKZ()
{
    auto zr = prvni(r.dosad(Dotazy::ZRKZ));
    if (!zr)
        return;
    zr->edit();
    zapisKZ(*zr);
    zr->update();
    s.VZbytkuRadyKZ = false;
}

void Zkouska::DalsiZbytekKZ(int smer)
{
    auto rs = prvni(r.dosad(Dotazy::ZRKZCekajici));
    if (!rs)
        return;
    s.PoziceKZ[0] = rs->cislo(QStringLiteral("XDP"));
    s.PoziceKZ[1] = rs->cislo(QStringLiteral("YDP"));
    s.ZbyvaKZ[0] = rs->cislo(QStringLiteral("XZP"));
    s.ZbyvaKZ[1] = rs->cislo(QStringLiteral("YZP"));
    rs->edit();
    rs->set(QStringLiteral("ID"), true);
    rs->update();
    s.VZbytkuRadyKZ = true;
    UsazeniKZ(smer);
}

void Zkouska::HodnotPlochu(int smer, bool otoceno, double x, double y)
{
    auto soucet = [&](const char* dotaz) {
        double suma = 0;
        for (Recordset rs(*r.m_dataK, QString::fromUtf8(dotaz)); !rs.eof(); rs.moveNext())
            suma += rs.cislo(QStringLiteral("XZP")) * rs.cislo(QStringLiteral("YZP"));
        return suma;
    };
    const double koncove = soucet(Dotazy::PlochaKZ[smer]);
    const double vsechny = soucet(Dotazy::SumaKZ[smer]);
    auto deska = prvni(r.dosad(Dotazy::SkutecnaDeska[smer][otoceno], {{"x", x}, {"y", y}}));
    if (!deska)
        return;
    static const QString plocha[2][2] = {{QStringLiteral("PlochaKZ"), QStringLiteral("PlochaKZBOV")},
                                         {QStringLiteral("PlochaKZSLOUPEC"), QStringLiteral("PlochaKZBOVSLOUPEC")}};
    static const QString suma[2][2] = {{QStringLiteral("SumaKZ"), QStringLiteral("SumaKZBOV")},
                                       {QStringLiteral("SumaKZSloupec"), QStringLiteral("SumaKZBOVSloupec")}};
    // divided by the opening board's extent across the strip it opens
    const double vyska = (smer == 0) != otoceno ? y : x;
    deska->edit();
    deska->set(plocha[smer][otoceno], koncove / vyska);
    deska->set(suma[smer][otoceno], vsechny);
    deska->update();
}

void Zkouska::HodnotTabuli(int smer, bool otoceno, double x, double y)
{
    auto zt = prvni(QString::fromUtf8(Dotazy::TabuleZT[smer][otoceno]));
    if (!zt)
        return;
    const std::initializer_list<std::pair<const char*, double>> mez = {
        {"XZP", zt->cislo(QStringLiteral("XZP"))}, {"YZP", zt->cislo(QStringLiteral("YZP"))}};
    const bool vejde = prvni(r.dosad(Dotazy::TabuleVejde[smer][otoceno], mez)).has_value();
    const bool vejdeOtoc = prvni(r.dosad(Dotazy::TabuleVejdeOtoc[smer][otoceno], mez)).has_value();
    auto deska = prvni(r.dosad(Dotazy::TabuleDeska[smer][otoceno], {{"x", x}, {"y", y}}));
    if (!vejde && !vejdeOtoc && deska) {
        if (!otoceno) {
            deska->edit();
            deska->set(QStringLiteral("PVT"), true);
            deska->update();
        } else if (!deska->ano(QStringLiteral("PVT"))) {
            // a size that closes the sheet only when turned loses its unturned area score
            deska->edit();
            deska->set(smer == 0 ? QStringLiteral("PlochaKZ") : QStringLiteral("PlochaKZSLOUPEC"), 0.0);
            deska->set(QStringLiteral("PVT"), true);
            deska->update();
        }
    }
    if (deska && !prvni(QString::fromUtf8(Dotazy::ZbyvajiKZ))) {
        deska->edit();
        deska->set(QStringLiteral("PD"), true);
        deska->update();
    }
}

// Empties the trial's remnants and takes every copied board back to its start. The walk of
// the old program over SoupisDesekKZ is one statement here: the same rows get the same values.
void Zkouska::VratKZ(int smer)
{
    Database& db = *r.m_dataK;
    if (smer == 0) {
        for (Recordset rs(db, QStringLiteral("SELECT * FROM SoupisZbytkuKZ ")); !rs.eof(); rs.moveNext())
            rs.remove();
    } else {
        db.execute(QStringLiteral("DELETE * FROM SoupisZbytkuKZ"));
    }
    db.executeSqlite(QStringLiteral("UPDATE SoupisDesekKZ SET ID = 0, OTOC = 0, XD = 0, YD = 0"));
}
