#include "CileFuzz.h"

#include "core/Aplikace.h"
#include "core/Database.h"
#include "core/Error.h"
#include "core/Jazyk.h"
#include "core/Moznosti.h"
#include "core/Nastaveni.h"
#include "core/Prompt.h"
#include "core/Uloziste.h"
#include "catalogues/Cenik.h"
#include "exchange/Import.h"
#include "exchange/SkladJson.h"
#include "exchange/ZakazkaJson.h"
#include "exchange/Zaloha.h"

#include <QFile>
#include <QTemporaryDir>
#include <memory>
#include <stdexcept>

namespace CileFuzz {
namespace {

const QByteArray Zakazka = R"({"zakazka": "Z", "poznamka": "",
 "formaty": [{"id": 5000001, "material": "DTD bílá 18", "x": 2800, "y": 2070, "ov": false, "cena": 350.0}],
 "hrany": [{"id": 5000101, "material": "ABS bílá 2", "cena": 12.5, "barva": 255, "presah": 2.0}],
 "sestavy": [{"nazev": "S", "popis": "", "pocet": 2, "schema": 0,
              "desky": [{"oznaceni": "bok", "x": 720, "y": 560, "pocet": 2, "format": 5000001, "ov": false,
                         "hrany": [5000101, 0, 0, 0]}],
              "prislusenstvi": [{"oznaceni": "pant", "mnozstvi": 4, "jednotka": "ks", "cena": 25.0}]}]})";

// Questions are answered yes and messages dropped: a fuzz run has nobody to ask.
class TichyPrompt : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka t) override
    {
        return t == Tlacitka::Ok || t == Tlacitka::OkStorno ? Odpoved::Ok : Odpoved::Ano;
    }
    QString vstup(const QString&, const QString&, const QString& vychozi) override { return vychozi; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override
    {
        throw Error(Chyba::Zruseno, QString());
    }
};

// The application folder of the process, with one order "Z" whose assembly "S" takes imports.
Uloziste& uloziste()
{
    static QTemporaryDir slozka;
    static std::unique_ptr<Uloziste> u = [] {
        Aplikace::nastavDomov(slozka.path());
        qputenv("XDG_CONFIG_HOME", QFile::encodeName(slozka.filePath(QStringLiteral("config"))));
        Nastaveni::ZapisVychoziNastaveni(0, 0, 1000, 1000);
        auto v = std::make_unique<Uloziste>(true);
        for (Database* db : {&v->dataS(), &v->cenik()})
            db->executeSqlite(QStringLiteral("PRAGMA synchronous=OFF")); // speed: nothing here is kept
        ZakazkaJson::nacti(v->dataS(), Zakazka);
        return v;
    }();
    return *u;
}

// Rows of every table the inputs write: a refused input must leave them as they were.
QString otisk()
{
    QString s;
    for (const char* t : {"Zakazky", "ZakazkyMaterialy", "SkladOdrezku"})
        s += uloziste().dataS().hodnota(QStringLiteral("SELECT count(*) || ':' || total(rowid) FROM %1").arg(QLatin1String(t))).toString();
    return s + uloziste().cenik().hodnota(QStringLiteral("SELECT count(*) || ':' || total(rowid) FROM Cenik")).toString();
}

// Back to the one order: what an accepted input wrote goes again, so runs stay small.
void vycisti()
{
    Database& d = uloziste().dataS();
    d.executeSqlite(QStringLiteral("DELETE FROM Zakazky WHERE Zakazka <> 'Z' OR (Sestava = 'S' AND Oznaceni NOT IN ('bok', 'pant'))"));
    d.executeSqlite(QStringLiteral("DELETE FROM ZakazkyMaterialy WHERE Zakazka <> 'Z' OR ID NOT IN (5000001, 5000101)"));
    d.executeSqlite(QStringLiteral("DELETE FROM SkladOdrezku"));
    uloziste().cenik().executeSqlite(QStringLiteral("DELETE FROM Cenik"));
}

// Runs a write: a refusal must change nothing.
template <class F>
void zapis(F&& f)
{
    const QString pred = otisk();
    bool prijato = false;
    try {
        prijato = f();
    } catch (const Error& e) {
        if (otisk() != pred)
            throw std::logic_error("refused input changed the store: " + e.text().toStdString());
        return;
    }
    if (!prijato && otisk() != pred)
        throw std::logic_error("refused input changed the store");
    vycisti();
}

QString docasny(const QByteArray& vstup)
{
    const QString cesta = Aplikace::cesta(QStringLiteral("vstup.fuzz"));
    QFile f(cesta);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(vstup) != vstup.size())
        throw std::runtime_error("cannot write the input file");
    return cesta;
}

void zakazkaJson(const QByteArray& v)
{
    zapis([&] { ZakazkaJson::nacti(uloziste().dataS(), v); return true; });
}

void importSeznamu(const QByteArray& v)
{
    zapis([&] {
        return !Import::importuj(uloziste().dataS(), QStringLiteral("Z"), QStringLiteral("S"), Import::dekoduj(v)).odmitnuti;
    });
}

void odrezkyJson(const QByteArray& v)
{
    zapis([&] { SkladJson::nacti(uloziste().dataS(), v); return true; });
}

// Price list items as the load reads them: one a line, fields by ";".
void cenik(const QByteArray& v)
{
    std::vector<Cenik::Zadani> polozky;
    for (const QByteArray& radek : v.split('\n')) {
        const QStringList p = QString::fromUtf8(radek).split(QLatin1Char(';'));
        polozky.push_back({p.value(0), p.value(1), p.value(2), p.value(3), p.value(4)});
    }
    TichyPrompt prompt;
    zapis([&] { return Cenik::nahraj(uloziste().cenik(), prompt, polozky) < 0; });
}

// The options as "options apply" takes them: KEY=VALUE, one a line; checked, never stored.
void moznosti(const QByteArray& v)
{
    uloziste();
    Moznosti::Hodnoty h;
    for (const QByteArray& radek : v.split('\n')) {
        const QString r = QString::fromUtf8(radek);
        h.insert(r.section(QLatin1Char('='), 0, 0), r.section(QLatin1Char('='), 1));
    }
    (void)Moznosti::over(h);
}

void jazyk(const QByteArray& v)
{
    uloziste();
    try {
        Jazyk::nacti(docasny(v));
    } catch (const Error&) {
    }
}

void zaloha(const QByteArray& v)
{
    uloziste();
    const QString soubor = docasny(v);
    for (auto druh : {Schema::Soubor::Data, Schema::Soubor::Cenik}) {
        try {
            Zaloha::zkontroluj(soubor, druh);
        } catch (const Error&) {
        }
    }
}

QList<QByteArray> semenaZakazky() { return {Zakazka, R"({"zakazka": "A", "sestavy": [{"nazev": "B"}]})"}; }
QList<QByteArray> semenaImportu()
{
    return {"Bok;720;560;2;2;2;0;0\nPolička\t562,5\t300\t1\t\t\t\t\n\xC8" "elo;596;716;1;2;2;2;2\r\n", "a;1;1;1"};
}
QList<QByteArray> semenaOdrezku()
{
    return {R"([{"material": "DTD bílá 18", "x": 1000, "y": 800, "pocet": 2}, {"material": "MDF", "x": 5.5, "y": 3, "pocet": 1}])"};
}
QList<QByteArray> semenaCeniku() { return {"Pant;8;25;ks;P\nDTD bílá 18;9;350;m2;PM\nABS;10;12,5;bm;H"}; }
QList<QByteArray> semenaMoznosti() { return {"Srez=3\nXZ=150\nDPH=21\nBarvaDesky=#FF0000\nJednotky=1"}; }
QList<QByteArray> semenaJazyka()
{
    return {Jazyk::vestaveny(Jazyk::Soubor::Cestina), Jazyk::vestaveny(Jazyk::Soubor::Anglictina)};
}
QList<QByteArray> semenaZalohy()
{
    Uloziste& u = uloziste(); // first: it sets the application folder
    QList<QByteArray> s;
    for (auto druh : {Schema::Soubor::Data, Schema::Soubor::Cenik}) {
        const QString cil = Aplikace::cesta(QStringLiteral("semeno.zaloha"));
        QFile::remove(cil);
        Zaloha::zalohuj(u, druh, cil);
        QFile f(cil);
        f.open(QIODevice::ReadOnly);
        s << f.readAll();
    }
    return s;
}

} // namespace

const std::vector<Cil>& vsechny()
{
    static const std::vector<Cil> c = {
        {"zakazka-json", zakazkaJson, semenaZakazky}, {"import", importSeznamu, semenaImportu},
        {"odrezky-json", odrezkyJson, semenaOdrezku}, {"cenik", cenik, semenaCeniku},
        {"moznosti", moznosti, semenaMoznosti},       {"jazyk", jazyk, semenaJazyka},
        {"zaloha", zaloha, semenaZalohy},
    };
    return c;
}

const Cil* najdi(const QByteArray& nazev)
{
    for (const Cil& c : vsechny())
        if (nazev == c.nazev)
            return &c;
    return nullptr;
}

}
