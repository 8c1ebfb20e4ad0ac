#include "exchange/Import.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/KontrolaTextu.h"
#include "core/Prompt.h"
#include "core/Razitko.h"
#include "core/Recordset.h"
#include "core/Soubory.h"
#include "core/Transakce.h"
#include "core/Val.h"
#include "orders/Materialy.h"
#include "orders/NoveRadky.h"
#include "orders/RadkyZakazky.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QStringDecoder>
#include <cmath>
#include <variant>

namespace Import {
namespace {

constexpr double MaxHodnota = 100000;

struct Radek {
    int cislo; // line of the text, from 1
    QString nazev;
    double x, y;
    double pocet;
    QString hrany[4]; // the band materials' names, empty for none
};

// A number as typed: a decimal comma or point.
std::optional<double> cislo(const QString& pole)
{
    QString t = pole;
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double d = t.toDouble(&ok);
    if (!ok || !std::isfinite(d))
        return std::nullopt;
    return d;
}

// A name as a header may write it: case and accents aside.
QString bezDiakritiky(const QString& t)
{
    QString v;
    for (const QChar c : t.trimmed().toLower().normalized(QString::NormalizationForm_D))
        if (c.category() != QChar::Mark_NonSpacing)
            v += c;
    return v;
}

// The fields of a line of a spreadsheet's list: cut at the separator (";" and tab, or ","),
// a field in double quotes may hold it, and "" stands for a quote.
QStringList poleCsv(const QString& linka, QChar oddelovac)
{
    QStringList pole{QString()};
    bool vUvozovkach = false;
    for (qsizetype i = 0; i < linka.size(); ++i) {
        const QChar c = linka[i];
        if (c == QLatin1Char('"') && vUvozovkach && i + 1 < linka.size() && linka[i + 1] == QLatin1Char('"')) {
            pole.last() += c;
            ++i;
        } else if (c == QLatin1Char('"')) {
            vUvozovkach = !vUvozovkach;
        } else if (!vUvozovkach && (c == oddelovac || (oddelovac == QLatin1Char(';') && c == QLatin1Char('\t')))) {
            pole << QString();
        } else {
            pole.last() += c;
        }
    }
    return pole;
}

} // namespace

std::optional<Hlavicka> hlavicka(const QString& prvniRadek)
{
    const QChar oddelovac = prvniRadek.contains(QLatin1Char(';')) || prvniRadek.contains(QLatin1Char('\t'))
                                ? QLatin1Char(';')
                                : QLatin1Char(',');
    Hlavicka h;
    h.oddelovac = oddelovac;
    const QStringList pole = poleCsv(prvniRadek, oddelovac);
    for (int i = 0; i < pole.size(); ++i) {
        const QString n = bezDiakritiky(pole[i]);
        int* sloupec = n == QLatin1String("nazev") || n == QLatin1String("oznaceni") ? &h.nazev
                       : n == QLatin1String("delka")                                 ? &h.x
                       : n == QLatin1String("sirka")                                 ? &h.y
                       : n == QLatin1String("pocet")                                 ? &h.pocet
                                                                                     : nullptr;
        for (int j = 0; j < 4; ++j)
            if (n == bezDiakritiky(QString::fromUtf8(SloupceHran[j])))
                sloupec = &h.hrany[j];
        if (sloupec && *sloupec < 0)
            *sloupec = i;
    }
    if (h.x < 0 || h.y < 0)
        return std::nullopt;
    return h;
}

namespace {

// The eight fields of a line in the old order (name, length, width, count, bands), from a list
// with a header by its columns, else as they stand; nullopt when a line has more than eight.
std::optional<QStringList> osmPoli(const QString& linka, const std::optional<Hlavicka>& h)
{
    static const QRegularExpression oddelovac(QStringLiteral("[\t;]"));
    QStringList pole;
    if (h) {
        const QStringList vse = poleCsv(linka, h->oddelovac);
        for (int i : {h->nazev, h->x, h->y, h->pocet, h->hrany[0], h->hrany[1], h->hrany[2], h->hrany[3]})
            pole << (i >= 0 ? vse.value(i) : QString());
        if (h->pocet < 0)
            pole[3] = QStringLiteral("1");
    } else {
        pole = linka.split(oddelovac);
    }
    for (QString& p : pole)
        p = p.trimmed();
    while (pole.size() > 8 && pole.last().isEmpty())
        pole.removeLast();
    if (pole.size() > 8)
        return std::nullopt;
    while (pole.size() < 8)
        pole << QString();
    return pole;
}

// One line of the list: its board, its refusal, or nothing for a blank line. A band is given
// by its thickness ("hrana 2"); under a header also by its material's name.
std::variant<std::monostate, Radek, Odmitnuti> rozeberRadek(const QString& linka, int n, const std::optional<Hlavicka>& h)
{
    if (linka.trimmed().isEmpty() || (h && n == h->radek))
        return std::monostate();
    const Odmitnuti chyba{QStringLiteral("Chyba při převodu řádku č. %1").arg(n), n};
    const std::optional<QStringList> pole = osmPoli(linka, h);
    if (!pole)
        return chyba;
    Radek r{n, pole->at(0), 0, 0, 0, {}};
    if (const QString spatny = KontrolaTextu::chyba(r.nazev, QStringLiteral("Název desky")); !spatny.isEmpty())
        return Odmitnuti{chyba.zprava + QStringLiteral(": ") + spatny, n};
    // sizes in the user's unit, to millimetres
    const auto x = cislo(pole->at(1)), y = cislo(pole->at(2)), pocet = cislo(pole->at(3));
    if (!x || !y || !pocet)
        return chyba;
    r.x = Jednotky::NaMilimetry(Dotaz::cislo(*x));
    r.y = Jednotky::NaMilimetry(Dotaz::cislo(*y));
    r.pocet = *pocet;
    if (r.x <= 0 || r.y <= 0 || r.x > MaxHodnota || r.y > MaxHodnota || r.pocet <= 0 || r.pocet > MaxHodnota ||
        r.pocet != std::trunc(r.pocet))
        return chyba;
    for (int i = 0; i < 4; ++i) {
        const QString& t = pole->at(4 + i);
        if (t.isEmpty())
            continue;
        const auto tloustka = cislo(t);
        if (!tloustka && h) {
            if (const QString spatny = KontrolaTextu::chyba(t, QStringLiteral("Hrana")); !spatny.isEmpty())
                return Odmitnuti{chyba.zprava + QStringLiteral(": ") + spatny, n};
            r.hrany[i] = t;
        } else if (!tloustka || *tloustka < 0 || *tloustka > MaxHodnota) {
            return chyba;
        } else if (*tloustka > 0) {
            r.hrany[i] = QStringLiteral("hrana ") + t;
        }
    }
    return r;
}

// The lines of the text one at a time (CR LF, LF or CR), with their numbers from 1, so a list
// of any length is never held twice.
template <class Funkce>
void radky(const QString& text, Funkce&& f)
{
    int n = 1;
    for (qsizetype zacatek = 0; zacatek <= text.size(); ++n) {
        qsizetype konec = zacatek;
        while (konec < text.size() && text[konec] != QLatin1Char('\n') && text[konec] != QLatin1Char('\r'))
            ++konec;
        if (!f(text.mid(zacatek, konec - zacatek), n, zacatek))
            return;
        if (konec + 1 < text.size() && text[konec] == QLatin1Char('\r') && text[konec + 1] == QLatin1Char('\n'))
            ++konec;
        zacatek = konec + 1;
    }
}

class Zapis {
public:
    Zapis(Database& db, const QString& zakazka, const QString& sestava)
        : m_db(db), m_zakazka(zakazka), m_sestava(sestava), m_desky(db, zakazka, sestava)
    {
    }

    bool existuje(const QString& nazev) const { return RadkyZakazky::polozka(m_db, m_zakazka, m_sestava, nazev).has_value(); }

    // "deska n" for an empty name, "name n" for a taken one: the first free n. Names are only
    // added while importing, so the search for a base goes on from where it last stood.
    QString jedinecny(const QString& nazev)
    {
        if (!nazev.isEmpty() && !existuje(nazev))
            return nazev;
        const QString zaklad = nazev.isEmpty() ? QStringLiteral("deska ") : nazev + QLatin1Char(' ');
        int& n = m_citace[zaklad.toLower()];
        n = std::max(n, 1);
        while (existuje(zaklad + QString::number(n)))
            ++n;
        return zaklad + QString::number(n);
    }

    // The band of that name, made (price 5, a random colour) when the order has none.
    double hrana(const QString& nazev)
    {
        if (const auto it = m_hrany.find(nazev.toLower()); it != m_hrany.end())
            return *it;
        const auto rs = RadkyZakazky::materialPodleNazvu(m_db, m_zakazka, nazev);
        double id = rs ? rs->cislo(QStringLiteral("ID")) : 0;
        if (!rs) {
            id = Razitko::volne([&](double s) { return RadkyZakazky::material(m_db, m_zakazka, s).has_value(); });
            Materialy::Material hrana;
            hrana.ID = id;
            hrana.nazev = nazev;
            hrana.cena = 5.0;
            hrana.barva = qint64(QRandomGenerator::global()->bounded(1500000)) + 1;
            Materialy::pridej(m_db, m_zakazka, hrana, true);
        }
        m_hrany.insert(nazev.toLower(), id);
        return id;
    }

    // Each board a row of the assembly, by the orders library's header-row rules.
    void deska(const Radek& r, const QString& nazev, double idFormat, const double hrany[4], double cas)
    {
        NoveRadky::Polozka p;
        p.oznaceni = nazev;
        p.format = idFormat;
        p.x = r.x;
        p.y = r.y;
        p.pocet = r.pocet;
        p.ov = true; // imported boards keep their grain
        std::copy(hrany, hrany + 4, p.hrany);
        m_desky.pridej(p, cas + r.cislo);
    }

private:
    Database& m_db;
    QString m_zakazka, m_sestava;
    QHash<QString, int> m_citace;
    QHash<QString, double> m_hrany;
    NoveRadky::DoSestavy m_desky;
};

} // namespace

namespace {

[[noreturn]] void velky() { throw Error(Chyba::NeplatnyVstup, QStringLiteral("Soubor je větší než 10 MB, nelze ho načíst.")); }

} // namespace

QString nactiSoubor(const QString& cesta)
{
    if (QFileInfo(cesta).size() > MaxVelikost)
        velky();
    return dekoduj(Soubory::nacti(cesta)); // a regular file only: a pipe or a device is refused
}

QString dekoduj(const QByteArray& obsah)
{
    if (obsah.size() > MaxVelikost)
        velky();
    if (obsah.startsWith("\xFF\xFE") || obsah.startsWith("\xFE\xFF")) {
        QStringDecoder d(obsah.startsWith("\xFF\xFE") ? QStringConverter::Utf16LE : QStringConverter::Utf16BE);
        return d(obsah.mid(2));
    }
    if (obsah.contains('\0'))
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Soubor neobsahuje text, nelze ho načíst."));
    if (obsah.startsWith("\xEF\xBB\xBF"))
        return QString::fromUtf8(obsah.mid(3));
    QStringDecoder utf8(QStringConverter::Utf8);
    const QString text = utf8(obsah);
    if (!utf8.hasError())
        return text;
    QStringDecoder cp1250("windows-1250");
    return cp1250(obsah);
}

Vysledek importuj(Database& db, const QString& zakazka, const QString& sestava, const QString& text, Prubeh* prubeh)
{
    const Recordset format = RadkyZakazky::materialy(db, zakazka, RadkyZakazky::Pouziti::Formaty);
    const bool maFormat = !format.eof();
    const double idFormat = maFormat ? format.cislo(QStringLiteral("ID")) : 0;

    // A first pass only reads, so a refused line costs no writes; the second writes each
    // board as its line is read, all in one transaction that a stop or a failure rolls back.
    // Neither keeps more than one line.
    // a spreadsheet's list names its columns in its first line
    std::optional<Hlavicka> h;
    radky(text, [&](const QString& linka, int n, qsizetype) {
        if (linka.trimmed().isEmpty())
            return true;
        h = hlavicka(linka);
        if (h)
            h->radek = n;
        return false;
    });
    Vysledek v;
    int prvni = 0;
    radky(text, [&](const QString& linka, int n, qsizetype) {
        auto r = rozeberRadek(linka, n, h);
        if (auto* o = std::get_if<Odmitnuti>(&r))
            v.odmitnuti = *o;
        else if (std::holds_alternative<Radek>(r))
            prvni = prvni ? prvni : n;
        return !v.odmitnuti;
    });
    if (v.odmitnuti)
        return v;
    if (prvni == 0)
        return {};
    if (!maFormat)
        return {0, Odmitnuti{QStringLiteral("Doplňte materiál formátu!"), prvni}};

    Transakce t(db);
    Zapis zapis(db, zakazka, sestava);
    const double cas = Razitko::sekundy(Razitko::ted());
    if (prubeh)
        prubeh->zobraz();
    radky(text, [&](const QString& linka, int n, qsizetype kde) {
        const auto r = rozeberRadek(linka, n, h);
        const Radek* radek = std::get_if<Radek>(&r);
        if (!radek)
            return true;
        double hrany[4] = {0, 0, 0, 0};
        for (int i = 0; i < 4; ++i)
            if (!radek->hrany[i].isEmpty())
                hrany[i] = zapis.hrana(radek->hrany[i]);
        zapis.deska(*radek, zapis.jedinecny(radek->nazev), idFormat, hrany, cas);
        if (++v.pridano % 500 == 0 && prubeh) {
            prubeh->hodnota(prubeh->maximum() * double(kde) / double(text.size()));
            if (prubeh->prerusit()) {
                v.odmitnuti = Odmitnuti{QStringLiteral("Import byl přerušen, nic nebylo uloženo."), n};
                return false;
            }
        }
        return true;
    });
    if (v.odmitnuti)
        return {0, v.odmitnuti};
    t.commit();
    return v;
}

} // namespace Import
