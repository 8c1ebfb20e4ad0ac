#include "core/Jazyk.h"

#include "core/Aplikace.h"
#include "core/Soubory.h"
#include "core/Error.h"
#include "core/Soubory.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

namespace Jazyk {
namespace {

using D = Druh;

std::vector<Cil> sestav()
{
    std::vector<Cil> c;
    auto pridej = [&c](Druh druh, const char* nazev, int index = 0) { c.push_back({int(c.size()) + 1, druh, nazev, index}); };
    for (const char* n : {"Zakazka",
                          "NZakazka",
                          "UpraveniZakazky",
                          "UlozeniJakoZ",
                          "SmazaniZakazky",
                          "Sestava",
                          "NSestava",
                          "USestava",
                          "UlozeniSestavyJako",
                          "SmazaniSestavy",
                          "Format",
                          "NF",
                          "UF",
                          "SF",
                          "Hrana",
                          "NH",
                          "UH",
                          "SH",
                          "PlMaterial",
                          "NovyPloM",
                          "UpraveniPM",
                          "SmazaniPM",
                          "Prislusenstvi",
                          "NoveP",
                          "UpraveniP",
                          "SmazaniP",
                          "Moznosti",
                          "Konec",
                          "Doplnky",
                          "SO",
                          "CTM",
                          "DSS",
                          "DOC",
                          "Zakazky",
                          "Data",
                          "Vz",
                          "OD",
                          "Vypisy",
                          "NP",
                          "SMZ",
                          "SMDS",
                          "RychlaKalkulace",
                          "KS",
                          "NM",
                          "CN",
                          "JazykNastaveni",
                          "cestina",
                          "Anglictina",
                          "Napoveda",
                          "NapovedaObsah",
                          "OProgramu"})
        pridej(D::Popisek, n);
    pridej(D::Tip, "tbNapoveda");
    for (const char* n : {"tbNZ", "tbOZ", "tbNPZ", "tbUPZ", "tbOPZ", "tbNPM", "tbUPM", "tbOPM", "tbNPR", "tbUPR", "tbOPR",
                          "tbCTM", "tbNP", "tbMoznosti", "tbZD", "tbODZ", "tbSklad"})
        pridej(D::Tip, n);
    pridej(D::Popisek, "lblNapis1");
    pridej(D::Tip, "panel2");
    pridej(D::Tip, "panel3");
    pridej(D::Zalozka, "stZakazky", 0);
    pridej(D::Zalozka, "stZakazky", 1);
    pridej(D::Popisek, "fraPM");
    auto sloupce = [&](const char* grid, int pocet) {
        for (int i = 0; i < pocet; ++i)
            pridej(D::Sloupec, grid, i);
    };
    auto tlacitka = [&](std::initializer_list<const char*> nazvy) {
        for (const char* n : nazvy)
            pridej(D::Popisek, n);
    };
    sloupce("GridFormaty", 5);
    tlacitka({"cmdNovyFormat", "cmdUpravitFormat", "cmdSmazatFormat"});
    sloupce("GridHrany", 4);
    pridej(D::Nic, "GridHrany", 4);
    tlacitka({"cmdNovaHrana", "cmdUpravitHrana", "cmdSmazatHrana", "fraFormat", "fraHrany"});
    sloupce("GPM", 5);
    tlacitka({"cmdNovyPM", "cmdUpravitPM", "cmdSmazatPM", "cmdImport"});
    sloupce("GPR", 3);
    tlacitka({"fraPrislusenstvi", "cmdNovePrislusenstvi", "cmdUpravitPrislusenstvi", "cmdSmazatPrislusenstvi"});
    return c;
}

[[noreturn]] void poskozeny() { throw Error(Chyba::NeplatnyVstup, QStringLiteral("Soubor jazykové verze je poškozený!!!")); }

} // namespace

QString Cil::popis() const
{
    const QString n = QLatin1String(nazev);
    switch (druh) {
    case Druh::Popisek: return n;
    case Druh::Tip: return n + QStringLiteral(" (tip)");
    case Druh::Zalozka:
    case Druh::Sloupec: return n + QStringLiteral("[%1]").arg(index);
    case Druh::Nic: return n + QStringLiteral("[%1] (nezobrazuje se)").arg(index);
    }
    return n;
}

const std::vector<Cil>& cile()
{
    static const std::vector<Cil> c = sestav();
    return c;
}

QString nazevSouboru(Soubor s) { return s == Soubor::Cestina ? QStringLiteral("czech.txt") : QStringLiteral("english.txt"); }

QString cesta(Soubor s) { return Aplikace::cesta(nazevSouboru(s)); }

QByteArray vestaveny(Soubor s)
{
    QFile f(QStringLiteral(":/jazyky/") + nazevSouboru(s));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QStringList nacti(const QString& cesta)
{
    QFile f(cesta);
    if (!f.exists())
        throw Error(Chyba::PristupKSouboru, QStringLiteral("Soubor jazykové verze neexistuje!!!"));
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(Soubory::nacti(cesta));
    if (utf8.hasError())
        poskozeny();
    QStringList radky = text.split(QLatin1Char('\n'));
    for (QString& r : radky)
        if (r.endsWith(QLatin1Char('\r')))
            r.chop(1);
    if (!radky.isEmpty() && radky.first().startsWith(QChar(0xfeff)))
        radky.first().remove(0, 1);
    if (radky.size() < PocetRadku)
        poskozeny();
    radky = radky.mid(0, PocetRadku);
    for (int i = 0; i < PocetRadku; ++i)
        if (i + 1 != NezobrazenyRadek && radky[i].trimmed().isEmpty())
            poskozeny();
    return radky;
}

void zapisChybejici()
{
    for (Soubor s : {Soubor::Cestina, Soubor::Anglictina}) {
        if (QFile::exists(cesta(s)))
            continue;
        const QString sdilena = QDir(Aplikace::sdilenaData()).filePath(nazevSouboru(s));
        const bool nainstalovany = !Aplikace::sdilenaData().isEmpty() && QFile::exists(sdilena);
        Soubory::zapis(cesta(s), nainstalovany ? Soubory::nacti(sdilena) : vestaveny(s));
    }
}

} // namespace Jazyk
