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
    QString hrany[4];
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

// One line of the list: its board, its refusal, or nothing for a blank line.
std::variant<std::monostate, Radek, Odmitnuti> rozeberRadek(const QString& linka, int n)
{
    if (linka.trimmed().isEmpty())
        return std::monostate();
    static const QRegularExpression oddelovac(QStringLiteral("[\t;]"));
    const Odmitnuti chyba{QStringLiteral("Chyba při převodu řádku č. %1").arg(n), n};
    QStringList pole = linka.split(oddelovac);
    for (QString& p : pole)
        p = p.trimmed();
    while (pole.size() > 8 && pole.last().isEmpty())
        pole.removeLast();
    if (pole.size() > 8)
        return chyba;
    while (pole.size() < 8)
        pole << QString();
    Radek r{n, pole[0], 0, 0, 0, {pole[4], pole[5], pole[6], pole[7]}};
    if (const QString spatny = KontrolaTextu::chyba(r.nazev, QStringLiteral("Název desky")); !spatny.isEmpty())
        return Odmitnuti{chyba.zprava + QStringLiteral(": ") + spatny, n};
    // sizes in the user's unit, to millimetres
    const auto x = cislo(pole[1]), y = cislo(pole[2]), pocet = cislo(pole[3]);
    if (!x || !y || !pocet)
        return chyba;
    r.x = Jednotky::NaMilimetry(Dotaz::cislo(*x));
    r.y = Jednotky::NaMilimetry(Dotaz::cislo(*y));
    r.pocet = *pocet;
    if (r.x <= 0 || r.y <= 0 || r.x > MaxHodnota || r.y > MaxHodnota || r.pocet <= 0 || r.pocet > MaxHodnota ||
        r.pocet != std::trunc(r.pocet))
        return chyba;
    for (const QString& h : r.hrany) {
        if (h.isEmpty())
            continue;
        const auto tloustka = cislo(h);
        if (!tloustka || *tloustka < 0 || *tloustka > MaxHodnota)
            return chyba;
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

    double hrana(const QString& tloustka)
    {
        const QString nazev = QStringLiteral("hrana ") + tloustka;
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
    Vysledek v;
    int prvni = 0;
    radky(text, [&](const QString& linka, int n, qsizetype) {
        auto r = rozeberRadek(linka, n);
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
        const auto r = rozeberRadek(linka, n);
        const Radek* radek = std::get_if<Radek>(&r);
        if (!radek)
            return true;
        double hrany[4] = {0, 0, 0, 0};
        for (int i = 0; i < 4; ++i)
            if (!radek->hrany[i].isEmpty() && *cislo(radek->hrany[i]) > 0)
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
