#include "catalogues/Sklad.h"

#include "core/Database.h"
#include "core/Jednotky.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/VypisTabulky.h"
#include "printing/Dokument.h"

namespace Sklad {
namespace {

// The row of the material and size (tenths of a millimetre), compared in tenths as the plan's sizes are.
Recordset vDesetinach(Database& db, const QString& material, double xDesetiny, double yDesetiny)
{
    return Recordset(db, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = ? and x*10 = ? and y*10 = ?"),
                     {material, xDesetiny, yDesetiny}, Recordset::Rozsah::Prvni);
}

Recordset stejny(Database& db, const Odrezek& o) { return vDesetinach(db, o.material, o.x * 10, o.y * 10); }

bool platny(Prompt& prompt, const Odrezek& o)
{
    if (o.material.size() > MaxNazev) {
        prompt.zprava(QStringLiteral("Název materiálu odřezku smí obsahovat maximálně sto znaků! "),
                      QStringLiteral("Příliš dlouhý nazev"), Prompt::Ikona::Kriticka);
        return false;
    }
    if (o.material.trimmed().isEmpty() || !(o.x > 0) || !(o.y > 0) || o.pocet < 1) {
        prompt.zprava(QStringLiteral("Vyplňte název materiálu, oba rozměry a počet kusů větší než nula!"), QString(),
                      Prompt::Ikona::Kriticka);
        return false;
    }
    return true;
}

// The merge question for a size already stored; Yes adds the pieces to that row.
bool pripocti(Prompt& prompt, Recordset& r, int pocet)
{
    const int stary = int(r.cislo(QStringLiteral("Pocet")));
    if (prompt.zprava(QStringLiteral("Ve skladu již tato deska existuje a to v počtu:  ") + QString::number(stary) +
                          QStringLiteral(" ks\nChcete počet nových připočíst ke starým  ???"),
                      QStringLiteral("Existence odřezku"), Prompt::Ikona::Otaznik,
                      Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    r.edit();
    r.set(QStringLiteral("Pocet"), stary + pocet);
    r.update();
    return true;
}

void zapis(Recordset& r, const Odrezek& o)
{
    r.set(QStringLiteral("Material"), o.material);
    r.set(QStringLiteral("x"), o.x);
    r.set(QStringLiteral("y"), o.y);
    r.set(QStringLiteral("Pocet"), o.pocet);
    r.update();
}

} // namespace

std::vector<Odrezek> nacti(Database& db, const QString& material, const QString& razeni)
{
    const QString kde = material.isEmpty() ? QString() : QStringLiteral(" WHERE Material = ?");
    const QVariantList hodnoty = material.isEmpty() ? QVariantList() : QVariantList{material};
    std::vector<Odrezek> v;
    for (Recordset r(db, QStringLiteral("SELECT * FROM SkladOdrezku") + kde + QStringLiteral(" ORDER BY ") + razeni, hodnoty);
         !r.eof(); r.moveNext())
        v.push_back({r.text(QStringLiteral("Material")), r.cislo(QStringLiteral("x")), r.cislo(QStringLiteral("y")),
                     int(r.cislo(QStringLiteral("Pocet")))});
    return v;
}

bool UlozitNovyOdrezek(Database& db, Prompt& prompt, const Odrezek& o)
{
    if (!platny(prompt, o))
        return false;
    Recordset r = stejny(db, o);
    if (!r.eof())
        return pripocti(prompt, r, o.pocet);
    r.addNew();
    zapis(r, o);
    return true;
}

void pridej(Database& db, const std::vector<Odrezek>& odrezky)
{
    Transakce t(db);
    Recordset r(db, QStringLiteral("SkladOdrezku"), Recordset::Rozsah::Prvni);
    for (const Odrezek& o : odrezky) {
        r.addNew();
        zapis(r, o);
    }
    t.commit();
}

bool UlozitUpravuOdrezku(Database& db, Prompt& prompt, const Odrezek& stary, const Odrezek& novy)
{
    if (!platny(prompt, novy))
        return false;
    Recordset puvodni = stejny(db, stary);
    const bool jinaVelikost = novy.material != stary.material || novy.x != stary.x || novy.y != stary.y;
    if (jinaVelikost) {
        Recordset cil = stejny(db, novy);
        if (!cil.eof()) {
            if (!pripocti(prompt, cil, novy.pocet))
                return false;
            if (!puvodni.eof())
                puvodni.remove(); // its pieces now stand in the other row
            return true;
        }
    }
    if (puvodni.eof())
        puvodni.addNew();
    else
        puvodni.edit();
    zapis(puvodni, novy);
    return true;
}

void odeberKus(Database& db, const QString& material, double xDesetiny, double yDesetiny)
{
    Recordset r = vDesetinach(db, material, xDesetiny, yDesetiny);
    if (r.eof())
        return;
    if (r.cislo(QStringLiteral("Pocet")) <= 1) {
        r.remove();
        return;
    }
    r.edit();
    r.set(QStringLiteral("Pocet"), r.cislo(QStringLiteral("Pocet")) - 1);
    r.update();
}

void pridejKus(Database& db, const QString& material, double xDesetiny, double yDesetiny)
{
    Recordset r = vDesetinach(db, material, xDesetiny, yDesetiny);
    if (r.eof()) {
        r.addNew();
        zapis(r, {material, xDesetiny / 10, yDesetiny / 10, 1});
        return;
    }
    r.edit();
    r.set(QStringLiteral("Pocet"), r.cislo(QStringLiteral("Pocet")) + 1);
    r.update();
}

QJsonArray VypisJson(Database& dataS) { return VypisTabulky(dataS, QStringLiteral("SkladOdrezku")); }

void SmazatOdrezek(Database& db, const Odrezek& o)
{
    Recordset r(db, QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = ? and X*10 = ? and Y*10 = ? and Pocet = ?"),
                {o.material, o.x * 10, o.y * 10, o.pocet});
    for (; !r.eof(); r.moveNext())
        r.remove();
}

void VypisSkladu(Dokument& d, Database& db, const QString& material)
{
    d.naSirku = false;
    d.MarginLeft = d.MarginRight = Dokument::mm(15);
    d.MarginTop = Dokument::mm(20);
    d.MarginBottom = Dokument::mm(20);
    d.pismo = Pismo{};
    d.StartDoc();
    d.pismo.velikost = 14;
    d.pismo.tucne = true;
    d.Paragraph(QStringLiteral("VÝPIS ZE SKLADU ODŘEZKŮ"));
    d.CurrentY += 300;
    const Tabulka t{{Dokument::mm(110), Dokument::mm(50), Dokument::mm(20)}, {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}};
    RadekTabulky hlava;
    hlava.bunky = QStringList{QStringLiteral("Materiál odřezku"), QStringLiteral("Rozměry"), QStringLiteral("Počet")};
    hlava.vyska = Dokument::mm(7);
    hlava.pozadi = QColor(0xe8, 0xe8, 0xe8);
    d.pismo.velikost = 10;
    d.AddRow(t, hlava);
    d.pismo.tucne = false;
    const QString sql = material.isEmpty() ? QStringLiteral("SELECT * FROM SkladOdrezku ORDER BY Material")
                                           : QStringLiteral("SELECT * FROM SkladOdrezku WHERE Material = ? ORDER BY x,y");
    for (Recordset r(db, sql, material.isEmpty() ? QVariantList() : QVariantList{material}); !r.eof(); r.moveNext()) {
        if (d.presahne(Dokument::mm(6))) {
            d.NewPage();
            d.pismo.tucne = true;
            d.AddRow(t, hlava);
            d.pismo.tucne = false;
        }
        RadekTabulky radek;
        radek.bunky = QStringList{r.text(QStringLiteral("Material")),
                                  Jednotky::ZMilimetru(r.cislo(QStringLiteral("x"))) + QStringLiteral(" x ") +
                                      Jednotky::ZMilimetru(r.cislo(QStringLiteral("y"))),
                                  Jednotky::cislo(r.cislo(QStringLiteral("Pocet")))};
        radek.vyska = Dokument::mm(6);
        d.AddRow(t, radek);
    }
    d.EndDoc();
    for (int p = 1; p <= d.PageCount(); ++p) {
        d.StartOverlay(p);
        d.pismo = Pismo{};
        d.pismo.velikost = 8;
        d.pismo.kurziva = true;
        const QString strana = QStringLiteral("Strana  %1 / %2").arg(p).arg(d.PageCount());
        d.TextBox(strana, QRectF(0, d.PageHeight() - d.MarginBottom + 200, d.PageWidth(), d.TextHeight(strana) + 20),
                  Qt::AlignHCenter);
        d.EndOverlay();
    }
}

} // namespace Sklad
