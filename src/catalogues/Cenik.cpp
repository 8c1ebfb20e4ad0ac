#include "catalogues/Cenik.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/KontrolaTextu.h"
#include "core/Nastaveni.h"
#include "core/Prikaz.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "core/Zaokrouhleni.h"
#include "printing/Dokument.h"

#include <QDate>
#include <cmath>

namespace Cenik {
namespace {

const QStringList razeni_ = {QStringLiteral("nazev"), QStringLiteral("Kod"), QStringLiteral("Cena"), QStringLiteral("Jednotka")};
const QStringList vybery_ = {QStringLiteral("PM"), QStringLiteral("H"), QStringLiteral("P"), QStringLiteral("VSE")};

Recordset podleNazvu(Database& db, const QString& nazev, Recordset::Rozsah rozsah = Recordset::Rozsah::Vse)
{
    return Recordset(db, QStringLiteral("SELECT * FROM Cenik WHERE nazev = ?"), {nazev}, rozsah);
}

Polozka cti(const Recordset& r)
{
    return {qint64(r.cislo(QStringLiteral("kod"))), r.text(QStringLiteral("nazev")),   r.cislo(QStringLiteral("Cena")),
            r.text(QStringLiteral("jednotka")),     r.text(QStringLiteral("skupina")), int(r.cislo(QStringLiteral("obr1"))),
            int(r.cislo(QStringLiteral("obr2")))};
}

// A number as typed, with a point or a comma; nullopt for anything else.
std::optional<double> cislo(const QString& text)
{
    bool ok = false;
    const double v = QString(text.trimmed()).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
    if (!ok || !std::isfinite(v))
        return std::nullopt;
    return v;
}

bool chyba(Prompt& p, const char* text, const char* titulek)
{
    p.zprava(QString::fromUtf8(text), QString::fromUtf8(titulek), Prompt::Ikona::Kriticka);
    return false;
}

// The row of another item (than the one by staryNazev) among the rows found.
bool jinde(Recordset&& r, const std::optional<qint64>& vlastni)
{
    for (; !r.eof(); r.moveNext())
        if (!vlastni || r.rowid() != *vlastni)
            return true;
    return false;
}

bool platne(Database& db, Prompt& p, const Zadani& z, const std::optional<qint64>& vlastni, Polozka& vysledek)
{
    if (z.nazev.size() > MaxNazev)
        return chyba(p, "nazev nového materiálu smí obsahovat maximálně 100 znaků!!!", "Příliš dlouhý nazev");
    if (!KontrolaTextu::prijmi(p, {{z.nazev, QStringLiteral("Název"), KontrolaTextu::NazevMaterialu},
                                   {z.jednotka, QStringLiteral("Jednotka")}}))
        return false;
    if (z.nazev.trimmed().isEmpty())
        return chyba(p, "Zadejte název položky.", "Chyba zadání");
    const auto kod = cislo(z.kod);
    if (!kod || *kod <= 0 || *kod > MaxKod || *kod != std::floor(*kod))
        return chyba(p, "Do pole Kod zadejte číselnou nenulovou hodnotu v intervalu do 100 000", "Chyba zadání");
    const auto cena = cislo(z.cena);
    if (!cena || *cena <= 0 || *cena > MaxCena)
        return chyba(p, "Do pole CENA zadejte číselnou nenulovou hodnotu v intervalu do 10 000", "Chyba zadání");
    if (jinde(podleNazvu(db, z.nazev), vlastni))
        return chyba(p, "Položka pod tímhle názvem již existuje, zadejte jiný nazev !!!", "Špatné zadání názvu položky");
    if (jinde(Recordset(db, QStringLiteral("SELECT * FROM Cenik WHERE kod = ?"), {*kod}), vlastni))
        return chyba(p, "Položka pod tímhle kódem již existuje, zadejte jiný Kod !!!", "Špatné zadání kódu");
    if (!QStringList({"PM", "H", "P"}).contains(z.skupina))
        return chyba(p, "Zařazení položky je PM, H nebo P.", "Chyba zadání");
    vysledek = {qint64(*kod), z.nazev, *cena, z.jednotka, z.skupina, z.obr1, z.obr2};
    return true;
}

void zapis(Recordset& r, const Polozka& p)
{
    r.set(QStringLiteral("nazev"), p.nazev);
    r.set(QStringLiteral("kod"), p.kod);
    r.set(QStringLiteral("Cena"), p.cena);
    r.set(QStringLiteral("obr1"), p.obr1);
    r.set(QStringLiteral("obr2"), p.obr2);
    r.set(QStringLiteral("jednotka"), p.jednotka);
    r.set(QStringLiteral("skupina"), p.skupina);
    r.update();
}

bool uloz(Database& db, Prompt& prompt, const QString& staryNazev, const Zadani& z)
{
    std::optional<Recordset> stary;
    if (!staryNazev.isNull()) {
        stary.emplace(podleNazvu(db, staryNazev, Recordset::Rozsah::Prvni));
        if (stary->eof())
            stary.reset(); // gone meanwhile: stored as a new item
    }
    Polozka p;
    if (!platne(db, prompt, z, stary ? std::optional<qint64>(stary->rowid()) : std::nullopt, p))
        return false;
    if (stary) {
        stary->edit();
        zapis(*stary, p);
    } else {
        Recordset r(db, QStringLiteral("Cenik"), Recordset::Rozsah::Prvni);
        r.addNew();
        zapis(r, p);
    }
    return true;
}

QString sqlSeznamu(const QString& vyber, const QString& razeni)
{
    const QString v = Vyber(vyber);
    return v == QLatin1String("VSE")
               ? QStringLiteral("SELECT * FROM Cenik  Order by ") + Razeni(razeni)
               : QStringLiteral("SELECT * FROM Cenik WHERE Skupina = '") + v + QStringLiteral("' Order by ") + Razeni(razeni);
}

// The whole list in one statement: a fill of ten thousand items must not read row by row.
template <typename F>
void projdi(Database& db, const QString& jet, F&& radek)
{
    const auto prikaz = db.prikaz(Dotaz::preloz(jet, Dotaz::Razeni::PoradiRadku));
    const int kod = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("kod"));
    const int nazev = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("nazev"));
    const int cena = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("Cena"));
    const int jednotka = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("jednotka"));
    const int skupina = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("skupina"));
    const int obr1 = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("obr1"));
    const int obr2 = db.indexSloupce(QStringLiteral("Cenik"), QStringLiteral("obr2"));
    while (prikaz->krok())
        radek(Polozka{prikaz->sloupec(kod).toLongLong(), prikaz->sloupec(nazev).toString(), prikaz->sloupec(cena).toDouble(),
                      prikaz->sloupec(jednotka).toString(), prikaz->sloupec(skupina).toString(), prikaz->sloupec(obr1).toInt(),
                      prikaz->sloupec(obr2).toInt()});
    prikaz->reset();
}

QString dvaMista(double v) { return QString::number(Zaokrouhli(v, 2), 'f', 2); }

} // namespace

QString Razeni(const QString& razeni)
{
    for (const QString& r : razeni_)
        if (r.compare(razeni, Qt::CaseInsensitive) == 0)
            return r;
    return razeni_.first();
}

QString Vyber(const QString& vyber) { return vybery_.contains(vyber) ? vyber : QStringLiteral("VSE"); }

QString ulozeneRazeni() { return Razeni(Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Razeni"))); }

QString ulozenyVyber() { return Vyber(Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Vyber"))); }

void VyberRazeniCeniku(const QString& vyber, const QString& razeni)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Vyber"), Vyber(vyber));
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Razeni"), Razeni(razeni));
}

std::vector<Polozka> NaplnCenik(Database& db, const QString& vyber, const QString& razeni)
{
    std::vector<Polozka> v;
    projdi(db, sqlSeznamu(vyber, razeni), [&](Polozka&& p) { v.push_back(std::move(p)); });
    return v;
}

QStringList NaplnitSeznamCeniku(Database& db, const QString& vyber, const QString& razeni)
{
    QStringList nazvy;
    projdi(db, sqlSeznamu(vyber, razeni), [&](Polozka&& p) { nazvy << p.nazev; });
    return nazvy;
}

QStringList hledej(Database& db, const QString& text)
{
    const QString hledany = text.toLower();
    QStringList nazvy;
    projdi(db, QStringLiteral("SELECT * FROM Cenik  "), [&](Polozka&& p) {
        if (p.nazev.toLower().contains(hledany))
            nazvy << p.nazev;
    });
    return nazvy;
}

std::optional<Polozka> nacti(Database& db, const QString& nazev)
{
    const Recordset r = podleNazvu(db, nazev, Recordset::Rozsah::Prvni);
    if (r.eof())
        return std::nullopt;
    return cti(r);
}

double cenaSDPH(double cena, double dph) { return Zaokrouhli(Zaokrouhli(cena, 2) * (dph / 100 + 1), 2); }

QString textCeny(double cena, const QString& mena, const QString& jednotka)
{
    return dvaMista(cena) + QLatin1Char(' ') + mena + QLatin1Char('/') + jednotka;
}

bool UlozitPolozku(Database& db, Prompt& prompt, const QString& staryNazev, const Zadani& z)
{
    return uloz(db, prompt, staryNazev, z);
}

int nahraj(Database& db, Prompt& prompt, const std::vector<Zadani>& polozky)
{
    Transakce t(db);
    for (size_t i = 0; i < polozky.size(); ++i)
        if (!uloz(db, prompt, QString(), polozky[i]))
            return int(i); // the transaction rolls the earlier ones back
    t.commit();
    return -1;
}

bool SmazatPolozku(Database& db, Prompt& prompt, const QString& nazev)
{
    if (prompt.zprava(QStringLiteral("Chcete odstranit položku: - ") + nazev + QStringLiteral(" - ?"),
                      QStringLiteral("Odstranění položky"), Prompt::Ikona::Otaznik,
                      Prompt::Tlacitka::AnoNe) != Prompt::Odpoved::Ano)
        return false;
    Transakce t(db);
    for (Recordset r = podleNazvu(db, nazev); !r.eof(); r.moveNext())
        r.remove();
    t.commit();
    return true;
}

void TiskCeniku(Dokument& d, Database& db, const QString& vyber, const QString& razeni)
{
    const double dph = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("DPH"));
    d.naSirku = false;
    d.MarginLeft = d.MarginRight = Dokument::mm(10);
    d.MarginTop = d.MarginBottom = Dokument::mm(20);
    d.pismo = Pismo{};
    d.StartDoc();
    d.pismo.velikost = 14;
    d.pismo.tucne = true;
    d.Paragraph(QStringLiteral("V Ý P I S   Z   C E N Í K U"));
    d.Paragraph(QString());
    d.Paragraph(QString());
    d.pismo = Pismo{};
    d.pismo.nazev = Nastaveni::GetSetting(QStringLiteral("Setting"), QStringLiteral("PismoDesky"), QStringLiteral("Arial"));
    const Tabulka t{{800, 5500, 900, 900, 700, 1000},
                    {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight, Qt::AlignRight, Qt::AlignHCenter, Qt::AlignHCenter}};
    const double vyska = 1.3 * d.TextHeight(QStringLiteral("Test"));
    RadekTabulky hlava;
    hlava.bunky = QStringList{QStringLiteral("Kód"),   QStringLiteral("Materiál"), QStringLiteral("bez DPH"),
                              QStringLiteral("s DPH"), QStringLiteral("Jedn."),    QStringLiteral("Zařazení")};
    hlava.vyska = vyska;
    hlava.pozadi = QColor(255, 255, 0); // the old control's 65535
    d.AddRow(t, hlava);
    projdi(db, sqlSeznamu(vyber, razeni), [&](Polozka&& p) {
        if (d.presahne(vyska)) {
            d.NewPage();
            d.AddRow(t, hlava);
        }
        RadekTabulky r;
        r.bunky = QStringList{QString::number(p.kod),          p.nazev,    dvaMista(p.cena),
                              dvaMista(cenaSDPH(p.cena, dph)), p.jednotka, p.skupina};
        r.vyska = vyska;
        d.AddRow(t, r);
    });
    d.EndDoc();
    const QString paticka = QStringLiteral("Výpis z ceníku borováckých materiálů") + QStringLiteral(" - ") +
                            QDate::currentDate().toString(QStringLiteral("d.M.yyyy"));
    for (int s = 1; s <= d.PageCount(); ++s) {
        d.StartOverlay(s);
        d.pismo = Pismo{};
        d.pismo.velikost = 8;
        d.pismo.kurziva = true;
        const QString strana = QStringLiteral("Strana  %1 / %2").arg(s).arg(d.PageCount());
        const double y = d.PageHeight() - d.MarginBottom + 200;
        d.TextBox(strana, QRectF(d.MarginLeft, y, d.PageWidth() - d.MarginLeft - d.MarginRight, d.TextHeight(strana) + 20),
                  Qt::AlignRight);
        d.TextBox(paticka, QRectF(d.MarginLeft, y, d.PageWidth() - d.MarginLeft - d.MarginRight, d.TextHeight(paticka) + 20),
                  Qt::AlignLeft);
        d.EndOverlay();
    }
}

} // namespace Cenik
