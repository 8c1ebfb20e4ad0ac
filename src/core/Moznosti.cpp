#include "core/Moznosti.h"

#include "core/BarvaVB.h"
#include "core/Error.h"
#include "core/Jednotky.h"
#include "core/Nastaveni.h"
#include "core/Val.h"

#include <cmath>

namespace Moznosti {
namespace {

constexpr double A4Sirka = 210, A4Vyska = 297; // millimetres
constexpr bool K = true;                        // the lower bound is refused

// Save order: discounts, plan layout, switches and currency, offcut and saw lengths, numbers
// as typed, labels, and the unit last of all. Choosers store their keys at once (step 0).
const std::vector<Pole> tabulka = {
    {"SlevaPM", "Setting", "txtSleva(0)", Druh::Cele, 0, 100, false, "plošný mat. [%]", 1},
    {"SlevaHrana", "Setting", "txtSleva(1)", Druh::Cele, 0, 100, false, "hrany [%]", 1},
    {"SlevaPris", "Setting", "txtSleva(2)", Druh::Cele, 0, 100, false, "příslušenství [%]", 1},
    {"VykresleniTabule", "Setting2", "optVT", Druh::Volba, 1, 4, false, "Vykreslení tabulí", 2},
    {"ZCR", "Setting2", "chZCR", Druh::Zaskrtnuti, 0, 1, false, "započítat cenu řezání", 3},
    {"POdrezky", "Setting2", "chOdrezky", Druh::Zaskrtnuti, 0, 1, false, "Využívat odřezky ze skladu", 3},
    {"Mena", "Setting2", "cmbMena", Druh::Text, 1, 10, false, "Měna", 3},
    {"ZobrazeniHran", "Setting2", "chZHran", Druh::Zaskrtnuti, 0, 1, false, "Zobrazovat hrany", 3},
    {"ZarovnaniFormatu", "Setting2", "chZF", Druh::Zaskrtnuti, 0, 1, false, "Zarovnávat formáty", 3},
    {"XZ", "Setting2", "XZ", Druh::Delka, 0, 10000, false, "Délka odřezku", 4},
    {"YZ", "Setting2", "YZ", Druh::Delka, 0, 10000, false, "Šířka odřezku", 4},
    {"Srez", "Setting2", "Srez", Druh::Delka, 0, 20, false, "Šířka řezu", 4},
    {"Samovani", "Setting2", "Samovani", Druh::Cislo, 0, 100, false, "Sámování [mm]", 5},
    {"CRez", "Setting2", "txtCR", Druh::Cislo, 0, 10000, false, "Cena řezu", 5},
    {"DPH", "Setting2", "txtDPH", Druh::Cele, 0, 100, false, "DPH [%]", 5},
    {"DelkaStitku", "Setting", "txtS(0)", Druh::Delka, 0, A4Sirka, K, "Délka štítku (papír)", 6},
    {"SirkaStitku", "Setting", "txtS(1)", Druh::Delka, 0, A4Vyska, K, "Šířka štítku (papír)", 6},
    {"OkrajZleva", "Setting", "txtS(2)", Druh::Delka, 0, 100, false, "Okraj zleva (papír)", 6},
    {"OkrajShora", "Setting", "txtS(3)", Druh::Delka, 0, 100, false, "Okraj shora (papír)", 6},
    {"MezeraXMeziStitky", "Setting", "txtS(4)", Druh::Delka, 0, 100, false, "Mezera X (papír)", 6},
    {"MezeraYMeziStitky", "Setting", "txtS(5)", Druh::Delka, 0, 100, false, "Mezera Y (papír)", 6},
    {"PocetSloupcuStitku", "Setting", "txtPS(0)", Druh::Cele, 1, 99, false, "Počet sloupců (papír)", 6},
    {"DelkaStitkuTisk", "Setting", "txtS(7)", Druh::Delka, 0, A4Sirka, K, "Délka štítku (tisk)", 6},
    {"SirkaStitkuTisk", "Setting", "txtS(8)", Druh::Delka, 0, A4Vyska, K, "Šířka štítku (tisk)", 6},
    {"OkrajZlevaTisk", "Setting", "txtS(9)", Druh::Delka, 0, 100, false, "Okraj zleva (tisk)", 6},
    {"OkrajShoraTisk", "Setting", "txtS(10)", Druh::Delka, 0, 100, false, "Okraj shora (tisk)", 6},
    {"MezeraXMeziStitkyTisk", "Setting", "txtS(11)", Druh::Delka, 0, 100, false, "Mezera X (tisk)", 6},
    {"MezeraYMeziStitkyTisk", "Setting", "txtS(12)", Druh::Delka, 0, 100, false, "Mezera Y (tisk)", 6},
    {"PocetSloupcuStitkuTisk", "Setting", "txtPS(1)", Druh::Cele, 1, 99, false, "Počet sloupců (tisk)", 6},
    {"PocetRadkuStitkuTisk", "Setting", "txtPS(2)", Druh::Cele, 1, 99, false, "Počet řádků (tisk)", 6},
    {"OkrajStrankyShora", "Setting", "txtS(13)", Druh::Delka, 0, 100, false, "Okraj tiskárny shora", 6},
    {"OkrajStrankyZdola", "Setting", "txtS(14)", Druh::Delka, 0, 100, false, "Okraj tiskárny zdola", 6},
    {"OkrajStrankyZleva", "Setting", "txtS(15)", Druh::Delka, 0, 100, false, "Okraj tiskárny zleva", 6},
    {"OkrajStrankyZprava", "Setting", "txtS(16)", Druh::Delka, 0, 100, false, "Okraj tiskárny zprava", 6},
    {"Jednotky", "Setting", "cmbRozmery", Druh::Volba, 0, 4, false, "Rozměry ve tvaru", 7},
    {"BarvaDesky", "Setting", "pct(0)", Druh::Barva, 0, 0, false, "Barva desky", 0},
    {"BarvaOdrezku", "Setting", "pct(1)", Druh::Barva, 0, 0, false, "Barva odřezku", 0},
    {"BarvaOdpadu", "Setting", "pct(2)", Druh::Barva, 0, 0, false, "Barva odpadu", 0},
    {"PismoDesky", "Setting", "lblRozmer(0)", Druh::Text, 1, 100, false, "Písmo desky", 0},
    {"VelikostFontuPismaDesky", "Setting", "lblRozmer(0)", Druh::Cele, 1, 200, false, "Velikost písma desky", 0},
    {"BarvaPismaDesky", "Setting", "lblRozmer(0)", Druh::Barva, 0, 0, false, "Barva písma desky", 0},
    {"TucnePismoDesky", "Setting", "lblRozmer(0)", Druh::Logicke, 0, 1, false, "Tučné písmo desky", 0},
    {"KurzivaDesky", "Setting", "lblRozmer(0)", Druh::Logicke, 0, 1, false, "Kurzíva desky", 0},
    {"PodtrzeniPismaDesky", "Setting", "lblRozmer(0)", Druh::Logicke, 0, 1, false, "Podtržení písma desky", 0},
    {"PreskrtnutniPismaDesky", "Setting", "lblRozmer(0)", Druh::Logicke, 0, 1, false, "Přeškrtnutí písma desky", 0},
    {"PismoOdrezku", "Setting", "lblRozmer(1)", Druh::Text, 1, 100, false, "Písmo odřezku", 0},
    {"VelikostFontuPismaOdrezku", "Setting", "lblRozmer(1)", Druh::Cele, 1, 200, false, "Velikost písma odřezku", 0},
    {"BarvaPismaOdrezku", "Setting", "lblRozmer(1)", Druh::Barva, 0, 0, false, "Barva písma odřezku", 0},
    {"TucnePismoOdrezku", "Setting", "lblRozmer(1)", Druh::Logicke, 0, 1, false, "Tučné písmo odřezku", 0},
    {"KurzivaOdrezku", "Setting", "lblRozmer(1)", Druh::Logicke, 0, 1, false, "Kurzíva odřezku", 0},
    {"PodtrzeniPismaOdrezku", "Setting", "lblRozmer(1)", Druh::Logicke, 0, 1, false, "Podtržení písma odřezku", 0},
    {"PreskrtnutniPismaOdrezku", "Setting", "lblRozmer(1)", Druh::Logicke, 0, 1, false, "Přeškrtnutí písma odřezku", 0},
};

QString ulozeno(const Pole& p)
{
    return Nastaveni::GetSetting(QLatin1String(p.sekce), QLatin1String(p.klic));
}

// A typed number: the text up to a blank, "," or "." as the point; nothing else may follow.
std::optional<double> cisloZTextu(const QString& text)
{
    QString t = Jednotky::CisloZTextu(text.trimmed());
    t.replace(Jednotky::oddelovac(), QLatin1Char('.')).replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double v = t.toDouble(&ok);
    if (!ok || !std::isfinite(v))
        return std::nullopt;
    return v;
}

// A bound as the user reads it: lengths in the current unit.
QString mez(const Pole& p, double mm)
{
    return Jednotky::cislo(p.druh == Druh::Delka ? Jednotky::ZMilimetruCislo(mm) : mm);
}

QString zpravaRozsahu(const Pole& p)
{
    const QString od = p.kladne ? Jednotky::cislo(std::pow(10.0, -Jednotky::PocetDesetinnych())) : mez(p, p.od);
    return QStringLiteral("Zadejte v poli „%1“ číslo od %2 do %3!").arg(QString::fromUtf8(p.popisek), od, mez(p, p.po));
}

std::optional<int> jednotkaZTextu(const QString& text)
{
    const qsizetype i = polozkyJednotek().indexOf(text.trimmed());
    if (i >= 0)
        return int(i);
    bool ok = false;
    const int j = text.trimmed().toInt(&ok);
    return ok && j >= 0 && j <= 4 ? std::optional<int>(j) : std::nullopt;
}

std::optional<bool> logickeZTextu(const QString& text)
{
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || t == QLatin1String("1") || t == QLatin1String("-1"))
        return true;
    if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 || t == QLatin1String("0"))
        return false;
    return std::nullopt;
}

QString pravda(bool b)
{
    return b ? QStringLiteral("True") : QStringLiteral("False");
}

// The text to store for a field, or nullopt with the refusal's text in zprava.
std::optional<QString> hodnotaKUlozeni(const Pole& p, const QString& text, QString& zprava)
{
    const QString popisek = QString::fromUtf8(p.popisek);
    switch (p.druh) {
    case Druh::Delka:
    case Druh::Cislo:
    case Druh::Cele: {
        const std::optional<double> v = cisloZTextu(text);
        const double hodnota = v && p.druh == Druh::Delka ? Jednotky::NaMilimetry(text) : v.value_or(0);
        const bool vRozsahu = v && hodnota >= p.od - 1e-9 && hodnota <= p.po + 1e-9 && !(p.kladne && hodnota <= 0) &&
                              (p.druh != Druh::Cele || hodnota == std::floor(hodnota));
        if (!vRozsahu) {
            zprava = zpravaRozsahu(p);
            return std::nullopt;
        }
        if (p.druh == Druh::Delka)
            return QString::number(hodnota, 'g', 15);
        QString t = Jednotky::CisloZTextu(text.trimmed());
        return t.replace(Jednotky::oddelovac(), QLatin1Char('.')).replace(QLatin1Char(','), QLatin1Char('.'));
    }
    case Druh::Zaskrtnuti:
        if (text.trimmed() == QLatin1String("1") || text.trimmed() == QLatin1String("0"))
            return text.trimmed();
        zprava = QStringLiteral("Zadejte v poli „%1“ 1 nebo 0!").arg(popisek);
        return std::nullopt;
    case Druh::Volba:
        if (QLatin1String(p.klic) == QLatin1String("Jednotky")) {
            if (const auto j = jednotkaZTextu(text))
                return QString::number(*j);
            zprava = QStringLiteral("Zadejte v poli „%1“ číslo od 0 do 4!").arg(popisek);
        } else {
            if (const QString t = text.trimmed(); t == QLatin1String("1") || t == QLatin1String("2") || t == QLatin1String("4"))
                return t;
            zprava = QStringLiteral("Zadejte v poli „%1“ 1, 2 nebo 4!").arg(popisek);
        }
        return std::nullopt;
    case Druh::Text:
        if (const QString t = text.trimmed(); !t.isEmpty() && t.size() <= p.po)
            return t;
        zprava = QStringLiteral("Vyplňte pole „%1“ (nejvýše %2 znaků)!").arg(popisek).arg(int(p.po));
        return std::nullopt;
    case Druh::Logicke:
        if (const auto b = logickeZTextu(text))
            return pravda(*b);
        zprava = QStringLiteral("Zadejte v poli „%1“ True nebo False!").arg(popisek);
        return std::nullopt;
    case Druh::Barva:
        if (const auto bgr = text.trimmed().startsWith(QLatin1Char('#')) ? BarvaVB::zHtml(text) : BarvaVB::zTextu(text))
            return BarvaVB::text(*bgr);
        zprava = QStringLiteral("Zadejte v poli „%1“ barvu ve tvaru #RRGGBB!").arg(popisek);
        return std::nullopt;
    }
    return std::nullopt;
}

struct KlicePisma {
    const char *nazev, *velikost, *barva, *tucne, *kurziva, *podtrzeni, *preskrtnuti;
};

KlicePisma klice(Popis popis)
{
    if (popis == Popis::Deska)
        return {"PismoDesky", "VelikostFontuPismaDesky", "BarvaPismaDesky", "TucnePismoDesky", "KurzivaDesky",
                "PodtrzeniPismaDesky", "PreskrtnutniPismaDesky"};
    return {"PismoOdrezku", "VelikostFontuPismaOdrezku", "BarvaPismaOdrezku", "TucnePismoOdrezku", "KurzivaOdrezku",
            "PodtrzeniPismaOdrezku", "PreskrtnutniPismaOdrezku"};
}

QString nastaveni(const char* klic)
{
    return Nastaveni::GetSetting(QStringLiteral("Setting"), QLatin1String(klic));
}

} // namespace

VolbaPisma pismo(Popis popis)
{
    const KlicePisma k = klice(popis);
    VolbaPisma v;
    if (!nastaveni(k.nazev).isEmpty())
        v.nazev = nastaveni(k.nazev);
    if (const int velikost = int(Val(nastaveni(k.velikost))); velikost > 0)
        v.velikost = velikost;
    v.barva = BarvaVB::zTextu(nastaveni(k.barva)).value_or(0);
    v.tucne = logickeZTextu(nastaveni(k.tucne)).value_or(false);
    v.kurziva = logickeZTextu(nastaveni(k.kurziva)).value_or(false);
    v.podtrzene = logickeZTextu(nastaveni(k.podtrzeni)).value_or(false);
    v.preskrtnute = logickeZTextu(nastaveni(k.preskrtnuti)).value_or(false);
    return v;
}

void ulozPismo(Popis popis, const VolbaPisma& v)
{
    const KlicePisma k = klice(popis);
    auto uloz = [](const char* klic, const QString& hodnota) {
        Nastaveni::SaveSetting(QStringLiteral("Setting"), QLatin1String(klic), hodnota);
    };
    uloz(k.nazev, v.nazev);
    uloz(k.velikost, QString::number(v.velikost));
    uloz(k.barva, BarvaVB::text(v.barva));
    uloz(k.tucne, pravda(v.tucne));
    uloz(k.kurziva, pravda(v.kurziva));
    uloz(k.podtrzeni, pravda(v.podtrzene));
    uloz(k.preskrtnuti, pravda(v.preskrtnute));
}

const std::vector<Pole>& pole() { return tabulka; }

const Pole* najdi(const QString& klic)
{
    for (const Pole& p : tabulka)
        if (QLatin1String(p.klic) == klic)
            return &p;
    return nullptr;
}

QStringList polozkyJednotek()
{
    return {QStringLiteral("1000 mm"), QStringLiteral("100 cm"), QStringLiteral("10 dm"), QStringLiteral("1 m"),
            QStringLiteral("\"")};
}

QStringList polozkyMen()
{
    return {QStringLiteral("Kč"), QStringLiteral("EUR"), QStringLiteral("€"), QStringLiteral("USD"), QStringLiteral("$")};
}

Hodnoty nacti()
{
    Hodnoty h;
    for (const Pole& p : tabulka) {
        const QString s = ulozeno(p);
        QString t;
        switch (p.druh) {
        case Druh::Delka: t = Jednotky::cislo(Jednotky::ZMilimetruCislo(Val(s))); break;
        case Druh::Cislo:
        case Druh::Cele: t = Jednotky::cislo(Val(s)); break;
        case Druh::Zaskrtnuti: t = Val(s) != 0 ? QStringLiteral("1") : QStringLiteral("0"); break;
        case Druh::Volba: t = QString::number(int(Val(s))); break;
        case Druh::Text: t = s; break;
        case Druh::Logicke: t = pravda(logickeZTextu(s).value_or(false)); break;
        case Druh::Barva: t = BarvaVB::html(BarvaVB::zTextu(s).value_or(0)); break;
        }
        h.insert(QLatin1String(p.klic), t);
    }
    return h;
}

Hodnoty zobraz()
{
    Hodnoty h = nacti();
    for (const Pole& p : tabulka)
        if (p.druh == Druh::Delka)
            h[QLatin1String(p.klic)] += Jednotky::pripona();
    h[QStringLiteral("Jednotky")] = polozkyJednotek().value(Jednotky::jednotka());
    return h;
}

namespace {

using Zapis = std::vector<std::pair<const Pole*, QString>>;

// Every given text converted for storing, in save order, or the first refusal. Conversions read
// the unit, so all of them happen before anything is written.
std::optional<Odmitnuti> preved(const Hodnoty& hodnoty, Zapis& zapis)
{
    for (auto it = hodnoty.begin(); it != hodnoty.end(); ++it)
        if (!najdi(it.key()))
            return Odmitnuti{it.key(), QStringLiteral("Nastavení „%1“ neexistuje.").arg(it.key())};
    for (const Pole& p : tabulka) {
        const auto it = hodnoty.find(QLatin1String(p.klic));
        if (it == hodnoty.end())
            continue;
        QString zprava;
        const std::optional<QString> text = hodnotaKUlozeni(p, *it, zprava);
        if (!text)
            return Odmitnuti{it.key(), zprava};
        zapis.emplace_back(&p, *text);
    }
    return std::nullopt;
}

} // namespace

std::optional<Odmitnuti> over(const Hodnoty& hodnoty)
{
    Zapis zapis;
    return preved(hodnoty, zapis);
}

void uloz(const Hodnoty& hodnoty)
{
    Zapis zapis;
    if (const auto o = preved(hodnoty, zapis))
        throw Error(Chyba::NeplatnyVstup, o->zprava);
    QList<Nastaveni::Hodnota> hodnotyKZapisu;
    for (const auto& [p, text] : zapis)
        hodnotyKZapisu.append({QLatin1String(p->sekce), QLatin1String(p->klic), text});
    Nastaveni::SaveSettings(hodnotyKZapisu); // one write: a stop half way leaves no mix

}

}
