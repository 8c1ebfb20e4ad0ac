#include "planoutput/KresleniNP.h"

#include "core/Jednotky.h"
#include "core/Moznosti.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "orders/RadkyZakazky.h"

#include <cmath>

namespace {

QString nastaveni(const char* klic) { return Nastaveni::GetSetting(QStringLiteral("Setting"), QLatin1String(klic)); }

StylNP styl(Moznosti::Popis popis, const char* vypln)
{
    const VolbaPisma v = Moznosti::pismo(popis);
    StylNP s;
    s.pismo.nazev = v.nazev;
    s.pismo.tucne = v.tucne;
    s.pismo.kurziva = v.kurziva;
    s.pismo.podtrzene = v.podtrzene;
    s.pismo.preskrtnute = v.preskrtnute;
    s.pismo.velikost = v.velikost;
    s.barvaPisma = Barva::zVB(v.barva);
    s.vypln = Barva::zTextu(nastaveni(vypln), Qt::white);
    return s;
}

// The rectangle of a drawn thing on the page, in twips.
struct Obdelnik {
    double L, T, R, B, W, H;
};

Obdelnik naStrance(double X, double Y, double OkrajX, double OkrajY, double SirkaX, double SirkaY, double M)
{
    return {OkrajX + std::floor(M * X),
            OkrajY + std::floor(M * Y),
            OkrajX + std::floor(M * (X + SirkaX)),
            OkrajY + std::floor(M * (Y + SirkaY)),
            std::nearbyint(M * SirkaX),
            std::nearbyint(M * SirkaY)};
}

// A length of the plan (tenths of a millimetre) in the user's unit.
QString vJednotce(double desetiny) { return Jednotky::ZMilimetru(desetiny / 10); }

// The texts of one fit. The name n stands in the middle; a and b are measured for the two
// sizes, aText and bText written at the top and the left edge; l is the long text of form 5.
struct Texty {
    QString n, l, a, b, aText, bText;
    QString zkracene;      // the long text when the name has to go at size 5
    bool nahoru = false;   // the name is written upward
    bool zastupny = false; // n only keeps room and is never written (remnants)
    int uhelMereni = 0;
};

// Writes t at the centre of the free rectangle, upward or across.
void doStredu(Dokument& d, const QString& t, double L, double T, double W, double H, bool nahoru)
{
    const double tw = d.TextWidth(t), th = d.TextHeight(t);
    d.TextAngle = nahoru ? 900 : 0;
    d.CurrentX = L + W / 2 - (nahoru ? th : tw) / 2;
    d.CurrentY = T + H / 2 + (nahoru ? tw / 2 : -th / 2);
    d.Text(t);
}

// Fits the texts into the rectangle; the font size starts at the style's and goes down to 5.
int vepis(Dokument& d, const Obdelnik& r, Texty t, double velikost)
{
    const double W = r.W, H = r.H;
    bool zkraceno = false;
    for (;;) {
        d.pismo.velikost = velikost;
        d.TextAngle = t.uhelMereni;
        auto tw = [&](const QString& s) { return s.isEmpty() ? 0.0 : d.TextWidth(s); };
        auto th = [&](const QString& s) { return s.isEmpty() ? 0.0 : d.TextHeight(s); };
        const double aw = tw(t.a), ah = th(t.a), bw = tw(t.b), bh = th(t.b);
        // Extents of a text down the page and across it, as the name is written.
        auto svisle = [&](const QString& s) { return t.nahoru ? tw(s) : th(s); };
        auto vodorovne = [&](const QString& s) { return t.nahoru ? th(s) : tw(s); };
        static const int k[4][2] = {{2, 2}, {1, 2}, {2, 1}, {1, 1}};
        // The sizes must also fit along the edges they stand on, or they would run out of
        // the rectangle into its neighbours.
        const bool velikostiSeVejdou = W >= aw && H >= bw;
        int forma = 0;
        for (int f = 0; f < 4 && !forma && velikostiSeVejdou; ++f)
            if (H >= svisle(t.n) + k[f][0] * ah && W >= vodorovne(t.n) + k[f][1] * bh)
                forma = f + 1;
        if (!forma) {
            // The long text goes the way the name would; a remnant's, measured upward, may lie
            // across when only that way fits.
            const bool nahoru = t.nahoru || t.uhelMereni == 900;
            const bool vejdeNahoru = H >= tw(t.l) && W >= th(t.l);
            const bool vejdeNapric = H >= th(t.l) && W >= tw(t.l);
            if (nahoru ? vejdeNahoru || (t.zastupny && vejdeNapric) : vejdeNapric) {
                doStredu(d, t.l, r.L, r.T, W, H, nahoru && vejdeNahoru);
                return 5;
            }
        }
        if (forma) {
            const double posunY = (forma == 2 || forma == 4) ? ah : 0;
            const double posunX = (forma == 3 || forma == 4) ? bh : 0;
            if (!t.zastupny && !t.n.isEmpty())
                doStredu(d, t.n, r.L + posunX, r.T + posunY, W - posunX, H - posunY, t.nahoru);
            d.TextAngle = 0;
            d.CurrentX = r.L + W / 2 - aw / 2;
            d.CurrentY = r.T;
            d.Text(t.aText);
            d.TextAngle = 900;
            d.CurrentX = r.L;
            d.CurrentY = r.T + H / 2 + bw / 2;
            d.Text(t.bText);
            return forma;
        }
        if (velikost > 5) {
            velikost -= 1;
            continue;
        }
        const double jmeno = t.zastupny ? th(t.n) : tw(t.n);
        if (zkraceno || !(jmeno > (t.nahoru ? bw : aw)))
            return 0;
        zkraceno = true;
        t.n.clear();
        t.l = t.zkracene;
    }
}

// The rectangle in the style's colours, and the band marks 20 twips inside its sides.
void ramec(Dokument& d, const Obdelnik& r, const StylNP& s, const QString& Popis, const HranyDesky& hrany)
{
    d.pismo = s.pismo;
    d.pero.barva = s.barvaPisma;
    d.TextColor = s.barvaPisma;
    d.DrawRectangle(r.L, r.T, r.R, r.B);
    if (!Popis.startsWith(QLatin1Char('1')))
        return;
    d.pero.sirka = 30;
    const double p = d.pero.sirka;
    const bool otoceno = Popis.mid(1, 1) == QLatin1String("1");
    enum Strana { Dole, Nahore, Vlevo, Vpravo };
    // IDHX1, IDHX2, IDHY1, IDHY2: unturned and turned
    static const Strana strany[4][2] = {{Dole, Vpravo}, {Nahore, Vlevo}, {Vlevo, Dole}, {Vpravo, Nahore}};
    for (int i = 0; i < 4; ++i) {
        if (!hrany[i])
            continue;
        d.pero.barva = *hrany[i];
        switch (strany[i][otoceno]) {
        case Dole: d.DrawLine(r.L + p / 2, r.B - 20, r.L + p / 2 + r.W - p, r.B - 20); break;
        case Nahore: d.DrawLine(r.L + p / 2, r.T + 20, r.L + p / 2 + r.W - p, r.T + 20); break;
        case Vlevo: d.DrawLine(r.L + 20, r.T + p / 2, r.L + 20, r.T + p / 2 + r.H - p); break;
        case Vpravo: d.DrawLine(r.R - 20, r.T + p / 2, r.R - 20, r.T + p / 2 + r.H - p); break;
        }
    }
    d.pero.sirka = 1;
}

Texty textyDesky(double SirkaX, double SirkaY, const QString& Oznaceni, const QString& Sestava)
{
    Texty t;
    t.n = Oznaceni + QStringLiteral(" (") + Sestava + QLatin1Char(')');
    t.zkracene = vJednotce(SirkaY) + QStringLiteral(" x ") + vJednotce(SirkaX) + QLatin1Char(' ');
    t.l = t.zkracene + t.n;
    // The sizes are measured as they are written, with their unit, so that none overruns the
    // board (the bare numbers would leave the unit standing outside).
    t.a = t.aText = vJednotce(SirkaX);
    t.b = t.bText = vJednotce(SirkaY);
    t.nahoru = SirkaX < SirkaY;
    return t;
}

} // namespace

StylNP StylNP::desky() { return styl(Moznosti::Popis::Deska, "BarvaDesky"); }

StylNP StylNP::odrezku() { return styl(Moznosti::Popis::Odrezek, "BarvaOdrezku"); }

BarvyHran::BarvyHran(Database& dataS, const QString& zakazka)
{
    for (Recordset rs = RadkyZakazky::materialy(dataS, zakazka, RadkyZakazky::Pouziti::Hrany); !rs.eof(); rs.moveNext())
        if (!m_barvy.contains(qint64(rs.cislo(QStringLiteral("ID")))))
            m_barvy.insert(qint64(rs.cislo(QStringLiteral("ID"))), Barva::zVB(qint64(rs.cislo(QStringLiteral("BarvaVNP")))));
}

HranyDesky BarvyHran::desky(const double id[4]) const
{
    HranyDesky h;
    for (int i = 0; i < 4; ++i)
        if (id[i] != 0 && m_barvy.contains(qint64(id[i])))
            h[i] = m_barvy.value(qint64(id[i]));
    return h;
}

QString PopisNP(const QString& popis, bool zobrazeniHran, bool otoceno)
{
    return popis + (zobrazeniHran ? QLatin1Char('1') : QLatin1Char('0')) + (otoceno ? QLatin1Char('1') : QLatin1Char('0'));
}

int KresliDesku(Dokument& d, double X, double Y, double OkrajX, double OkrajY, double SirkaX, double SirkaY, double Meritko,
                const QString& Oznaceni, const QString& Popis, const QString& Sestava, const HranyDesky& hrany, double SamovaniNP,
                const StylNP& styl)
{
    const Obdelnik r = naStrance(X + SamovaniNP, Y + SamovaniNP, OkrajX, OkrajY, SirkaX, SirkaY, Meritko);
    d.pero = Pero{styl.barvaPisma, 1, true};
    d.stetec = Stetec{styl.vypln, false};
    ramec(d, r, styl, Popis, hrany);
    return vepis(d, r, textyDesky(SirkaX, SirkaY, Oznaceni, Sestava), styl.pismo.velikost);
}

int KresliOdrezek(Dokument& d, double X, double Y, double OkrajX, double OkrajY, double SirkaX, double SirkaY, double Meritko,
                  const QString& /*Oznaceni*/, double SamovaniNP, const StylNP& styl)
{
    const Obdelnik r = naStrance(X + SamovaniNP, Y + SamovaniNP, OkrajX, OkrajY, SirkaX, SirkaY, Meritko);
    d.pero = Pero{styl.barvaPisma, 1, true};
    d.stetec = Stetec{styl.vypln, false};
    ramec(d, r, styl, QString(), {});
    Texty t;
    t.n = QStringLiteral("ZZZ");
    t.zastupny = true;
    t.uhelMereni = 900;
    t.a = t.aText = vJednotce(SirkaX);
    t.b = t.bText = vJednotce(SirkaY);
    t.l = t.zkracene = vJednotce(SirkaY) + QStringLiteral(" x ") + vJednotce(SirkaX);
    return vepis(d, r, t, styl.pismo.velikost);
}

int KresliStitek(Dokument& d, double delka, double sirka, double X, double Y, double SirkaX, double SirkaY, double /*Meritko*/,
                 const QString& Oznaceni, const QString& Popis, const QString& Sestava, bool OV, const HranyDesky& hrany,
                 const StylNP& styl)
{
    const Obdelnik r{X, Y, X + delka, Y + sirka, delka, sirka};
    d.pero = Pero{styl.barvaPisma, 1, true};
    d.stetec = Stetec{styl.vypln, true}; // the label stock stays white
    if (OV) {
        d.pero.barva = Qt::black;
        const double stred = r.L + r.W / 2;
        for (int nad : {100, 200, 300})
            d.DrawLine(stred - 200, r.B - nad, stred + 400, r.B - nad);
        d.pero.barva = styl.barvaPisma;
    }
    ramec(d, r, styl, Popis, hrany);
    // A label does not show the board to scale: its name runs along the label, not the board.
    Texty t = textyDesky(SirkaX, SirkaY, Oznaceni, Sestava);
    t.nahoru = delka < sirka;
    return vepis(d, r, t, styl.pismo.velikost);
}
