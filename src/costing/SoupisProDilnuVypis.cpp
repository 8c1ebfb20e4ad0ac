#include "costing/SoupisProDilnuVypis.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Recordset.h"
#include "core/Zaokrouhleni.h"
#include "costing/PruchodZakazky.h"
#include "printing/Operace.h"

namespace {

double mm(double v) { return Dokument::mm(v); }

constexpr double NahradniBox = 700;

// Three ticks, 150 twips apart round the side's middle, 100, 150 and 200 twips long inward.
void znackyHrany(Dokument& d, const QRectF& r, int strana, const QColor& barva)
{
    d.pero = Pero{barva, 15, true};
    const bool vodorovna = strana < 2;
    const QPointF stred = strana == 0   ? QPointF(r.center().x(), r.bottom())
                          : strana == 1 ? QPointF(r.center().x(), r.top())
                          : strana == 2 ? QPointF(r.left(), r.center().y())
                                        : QPointF(r.right(), r.center().y());
    const double dovnitr = strana == 0 || strana == 3 ? -1 : 1;
    const double delky[3] = {100, 150, 200};
    for (int i = 0; i < 3; ++i) {
        const double posun = (i - 1) * 150;
        const double delka = std::min(delky[i], (vodorovna ? r.height() : r.width()) / 2);
        if (vodorovna)
            d.DrawLine(stred.x() + posun, stred.y(), stred.x() + posun, stred.y() + dovnitr * delka);
        else
            d.DrawLine(stred.x(), stred.y() + posun, stred.x() + dovnitr * delka, stred.y() + posun);
    }
    d.pero = Pero{};
}

} // namespace

QRectF KresliDeskuDilna(Dokument& d, const QRectF& mistnost, double x, double y,
                        const std::array<std::optional<QColor>, 4>& hrany)
{
    d.pismo.velikost = 7;
    d.pismo.tucne = false;
    const QString sx = Jednotky::ZMilimetru(x), sy = Jednotky::ZMilimetru(y);
    // the sizes stand outside the rectangle: x under it, y at its right
    const double popisek = d.TextHeight(sx), vpravo = d.TextWidth(sy) + 60;
    const double sirka = mistnost.width() - vpravo, vyska = mistnost.height() - popisek - 20;
    double w = NahradniBox, h = NahradniBox;
    if (x > 0 && y > 0 && sirka > 0 && vyska > 0) {
        const double meritko = x / y >= sirka / vyska ? Zaokrouhli(sirka / x, 4) : Zaokrouhli(vyska / y, 4);
        w = x * meritko;
        h = y * meritko;
    }
    // the y size stands beside the rectangle, so a side only needs the height of its text
    if (!(w > d.TextWidth(sx) && h > d.TextHeight(sy)))
        w = h = std::min(NahradniBox, vyska);
    const QRectF r(mistnost.left() + (mistnost.width() - w - vpravo) / 2, mistnost.top(), w, h);
    d.pero = Pero{Qt::black, 1, true};
    d.stetec = Stetec{Qt::white, true};
    d.DrawRectangle(r.left(), r.top(), r.right(), r.bottom());
    for (int i = 0; i < 4; ++i)
        if (hrany[i])
            znackyHrany(d, r, i, *hrany[i]);
    d.TextBox(sx, QRectF(r.center().x() - d.TextWidth(sx) / 2 - 10, r.bottom() + 10, d.TextWidth(sx) + 20, popisek + 20),
              Qt::AlignHCenter | Qt::AlignTop);
    d.TextBox(sy, QRectF(r.right() + 40, r.center().y() - popisek / 2 - 10, d.TextWidth(sy) + 20, popisek + 20),
              Qt::AlignLeft | Qt::AlignTop);
    d.stetec = Stetec{};
    return r;
}

namespace {

struct Sloupce {
    Tabulka tabulka;
    int material;      // the column of Material
    int prislusenstvi; // columns an accessory's Material spans
};

Sloupce sloupce(bool seSchematy)
{
    const Qt::Alignment l = Vypis::zarovnani(6), s = Vypis::zarovnani(8);
    if (seSchematy)
        return {{{mm(5), mm(77), mm(45), mm(10), mm(7), mm(15)}, {l, l, l, s, s, s}}, 1, 5};
    return {{{mm(82), mm(45), mm(10), mm(7), mm(15)}, {l, l, s, s, s}}, 0, 4};
}

std::array<std::optional<QColor>, 4> barvyHran(const Recordset& r)
{
    std::array<std::optional<QColor>, 4> h;
    const char* pole[4] = {"IDHX1", "IDHX2", "IDHY1", "IDHY2"};
    for (int i = 0; i < 4; ++i)
        if (r.cislo(QLatin1String(pole[i])) != 0)
            h[i] = Barva::zVB(qint64(r.cislo(QStringLiteral("BarvaVNPH") + QLatin1String(pole[i] + 3))));
    return h;
}

void radek(Dokument& d, const Sloupce& s, const Recordset& r, bool seSchematy)
{
    d.pismo.velikost = 8;
    d.pismo.tucne = false;
    const QString mnozstvi =
        Vypis::castka(r.cislo(QStringLiteral("mnozstvi")), 0) + QLatin1Char(' ') + r.text(QStringLiteral("jednotka"));
    const QString material = r.text(QStringLiteral("Material")), oznaceni = r.text(QStringLiteral("Oznaceni"));
    RadekTabulky t;
    t.vyska = mm(5);
    if (seSchematy)
        t.bunky << QString();
    if (r.cislo(QStringLiteral("delka")) > 0) {
        t.bunky << material << oznaceni << Vypis::castka(r.cislo(QStringLiteral("delka")), 3) + QStringLiteral(" m") << mnozstvi;
        t.rozpeti = std::vector<int>(t.bunky.size(), 1);
        t.rozpeti[t.bunky.size() - 2] = 2;
        if (seSchematy && r.cislo(QStringLiteral("BarvaHranyVNP")) != 0)
            t.pozadiBunek = {Barva::zVB(qint64(r.cislo(QStringLiteral("BarvaHranyVNP"))))};
        d.AddRow(s.tabulka, t);
        return;
    }
    if (oznaceni.isEmpty()) {
        t.bunky = QStringList{material, mnozstvi};
        t.rozpeti = {s.prislusenstvi, 1};
        d.AddRow(s.tabulka, t);
        return;
    }
    const QString znacka = r.cislo(QStringLiteral("OV")) == -1 ? QStringLiteral("x") : QStringLiteral("-");
    if (!seSchematy) {
        t.vyska += 80;
        t.bunky << material << oznaceni << QString() << znacka << mnozstvi;
        d.AddRow(s.tabulka, t);
        return;
    }
    // the name on top of the room of columns 3 and 4, the drawing under it
    t.vyska = mm(20);
    t.bunky << material << QString() << znacka << mnozstvi;
    t.rozpeti = {1, 1, 2, 1, 1};
    d.AddRow(s.tabulka, t);
    const double vlevo = d.MarginLeft + s.tabulka.sirky[0] + s.tabulka.sirky[1];
    const QRectF mistnost(vlevo, d.CurrentY - t.vyska, s.tabulka.sirky[2] + s.tabulka.sirky[3], t.vyska);
    const QString jmeno = oznaceni.left(oznaceni.indexOf(QStringLiteral(" (")));
    const double radekJmena = d.TextHeight(jmeno) + 20;
    d.TextBox(jmeno, QRectF(vlevo + 40, mistnost.top(), mistnost.width() - 80, radekJmena), Qt::AlignLeft | Qt::AlignTop);
    KresliDeskuDilna(d, mistnost.adjusted(100, radekJmena, -100, -10), r.cislo(QStringLiteral("RozmerX")),
                     r.cislo(QStringLiteral("RozmerY")), barvyHran(r));
}

} // namespace

void SoupisProDilnuVypis(Dokument& d, Database& k, Database& cenik, const QString& zakazka, bool seSchematy)
{
    Vypis::zacni(d);
    d.CurrentY = mm(55);
    const Sloupce s = sloupce(seSchematy);
    QString poznamka;
    PruchodZakazky::kazdaSkupina(
        Recordset(k, QStringLiteral("SELECT * FROM SoupisProDilnu  order by Sestava")), QStringLiteral("Sestava"),
        [&](const Recordset& a, int poradi) {
            if (poradi == 0)
                poznamka = a.text(QStringLiteral("Poznamka"));
            const QString sestava = a.text(QStringLiteral("Sestava"));
            Vypis::pasSestavy(d, sestava, a.cislo(QStringLiteral("pocetsestav")), a.text(QStringLiteral("popis")));
            for (Recordset r(k, QStringLiteral("SELECT * FROM SoupisProDilnu WHERE Sestava = ? order by cislo"), {sestava});
                 !r.eof(); r.moveNext())
                radek(d, s, r, seSchematy);
            Vypis::schema(
                d, cenik,
                k.hodnota(QStringLiteral("SELECT max(schema) FROM SoupisProDilnu WHERE Sestava = ?"), {sestava}).toDouble());
            Vypis::zlomStranyPodPrahem(d);
            d.CurrentY += 200;
        });
    d.EndDoc();
    Vypis::prekryv(d, QStringLiteral("SOUPIS MATERIÁLU PRO DÍLNU"), zakazka, {},
                   poznamka.isNull() ? QStringLiteral("") : poznamka);
}
