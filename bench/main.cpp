// make bench: the plan run of every order in ../shared/bench/*.json and of generated orders of
// 50, 200 and 500 boards, in each mode, in a throw-away application folder. Prints per order and
// mode: boards, sheets, seconds; before them the backup, restore and import figures. Arguments
// narrow the run: a mode (podelne, pricne, kombinovane), order names, or jenzaloha. First of all,
// in a store of its own, the costing reports as PDF and the status bar's prices (vypisy, or
// jenvypisy for nothing else).
#include "core/Aplikace.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "costing/Kalkulace.h"
#include "costing/Vypisy.h"
#include "printing/Vykresleni.h"
#include "exchange/Import.h"
#include "exchange/Zaloha.h"
#include "exchange/ZakazkaJson.h"
#include "optimiser/PlanRun.h"
#include "Plany.h"

#include <QGuiApplication>
#include <QDir>
#include <QBuffer>
#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "printing/Obrazky.h"
#include "printing/Vykresleni.h"
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cmath>
#include <cstdio>

namespace {

// One line of figures; padded by characters, not bytes, so that Czech captions line up.
void vypis(const QString& popis, const QString& hodnota, const QString& dodatek = {})
{
    std::fputs((popis.leftJustified(40) + QLatin1Char(' ') + hodnota.rightJustified(10) + dodatek + QLatin1Char('\n')).toUtf8().constData(),
               stdout);
    std::fflush(stdout);
}

void radek(const char* popis, double sekund, const QString& dodatek = {})
{
    vypis(QString::fromUtf8(popis), QString::number(sekund, 'f', 3), dodatek);
}

void nadpis(const char* popis, const char* sloupec)
{
    vypis(QString::fromUtf8(popis), QString::fromUtf8(sloupec));
}

class BezOtazek : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ano; }
    QString vstup(const QString&, const QString&, const QString& v) override { return v; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
};

// A kitchen-like order: a few dozen sizes from carcass widths, repeated; for the costing spread
// over assemblies of 1 to 3 pieces, with a band on the first X side and an accessory each.
QByteArray vygeneruj(int desek, int sestav = 1)
{
    QRandomGenerator nahoda{quint32(desek)};
    QJsonArray desky;
    for (int i = 0; i < desek; ++i) {
        const int x = 200 + 50 * int(nahoda.bounded(30));
        const int y = 100 + 20 * int(nahoda.bounded(30));
        desky.append(QJsonObject{{"oznaceni", QStringLiteral("deska %1").arg(i + 1)}, {"x", x}, {"y", y},
                                 {"pocet", 1}, {"format", 5000001}, {"ov", false},
                                 {"hrany", QJsonArray{sestav > 1 ? 5000101 : 0, 0, 0, 0}}});
    }
    QJsonArray sestavy;
    const int naSestavu = (desek + sestav - 1) / sestav;
    for (int s = 0; s < sestav; ++s)
        sestavy.append(QJsonObject{{"nazev", QStringLiteral("S%1").arg(s + 1)}, {"popis", ""}, {"pocet", 1 + s % 3}, {"schema", 0},
                                   {"desky", QJsonArray::fromVariantList(desky.toVariantList().mid(s * naSestavu, naSestavu))},
                                   {"prislusenstvi", sestav > 1 ? QJsonArray{QJsonObject{{"oznaceni", "pant"}, {"mnozstvi", 4},
                                                                                        {"jednotka", "ks"}, {"cena", 25}}}
                                                                : QJsonArray{}}});
    const QJsonObject zakazka{
        {"zakazka", QString::fromLatin1(sestav > 1 ? "kalk%1" : "gen%1").arg(desek)},
        {"poznamka", ""},
        {"formaty", QJsonArray{QJsonObject{{"id", 5000001}, {"material", "DTD 18"}, {"x", 2800}, {"y", 2070},
                                           {"ov", false}, {"cena", 350}}}},
        {"hrany", sestav > 1 ? QJsonArray{QJsonObject{{"id", 5000101}, {"material", "ABS 2"}, {"cena", 12.5}, {"presah", 2}}}
                             : QJsonArray{}},
        {"sestavy", sestavy}};
    return QJsonDocument(zakazka).toJson();
}

double sekundy(const std::function<void()>& f)
{
    QElapsedTimer cas;
    cas.start();
    f();
    return cas.nsecsElapsed() / 1e9;
}

// Backup and restore of 1,000 orders of 50 boards; import of 10,000 lines, distinct names and
// all named "Bok" (each taking the next free number).
void zalohaAImport(Uloziste& u)
{
    const QByteArray vzor = vygeneruj(50);
    for (int i = 0; i < 1000; ++i) {
        QByteArray json = vzor;
        ZakazkaJson::nacti(u.dataS(), json.replace("\"gen50\"", QStringLiteral("\"zakázka %1\"").arg(i).toUtf8()));
    }
    const QString soubor = Aplikace::cesta(QStringLiteral("Zálohy dat/bench.bvk"));
    BezOtazek ano;
    nadpis("záloha a obnova (1000 zakázek po 50 deskách)", "sekund");
    radek("záloha", sekundy([&] { Zaloha::zalohuj(u, Schema::Soubor::Data, soubor); }));
    radek("obnova", sekundy([&] { Zaloha::obnov(u, Schema::Soubor::Data, soubor, ano); }));
    for (bool stejne : {false, true}) {
        QString text;
        for (int i = 0; i < 10000; ++i)
            text += (stejne ? QStringLiteral("Bok") : QStringLiteral("deska %1").arg(i)) + QStringLiteral(";720;560;1;2;0;0;0\n");
        const QString sestava = stejne ? QStringLiteral("Boky") : QStringLiteral("Desky");
        ZakazkaJson::nacti(u.dataS(), QStringLiteral(R"({"zakazka": "import %1", "formaty": [{"material": "DTD", "x": 2800,
                                       "y": 2070}], "sestavy": [{"nazev": "%1"}]})").arg(sestava).toUtf8());
        radek(stejne ? "import 10 000 řádků \"Bok\"" : "import 10 000 řádků, různé názvy",
                    sekundy([&] { Import::importuj(u.dataS(), QStringLiteral("import ") + sestava, sestava, text); }));
    }
    std::fflush(stdout);
}

// The price list: 10 000 items filled in each order, searched key by key, printed to PDF; a
// 20 MB JPEG stored, read back, fitted and whole; stepping through 200 pictures.
void cenik(Uloziste& u, const QString& pdf)
{
    BezOtazek ano;
    std::vector<Cenik::Zadani> polozky;
    for (int i = 1; i <= 10000; ++i)
        polozky.push_back({QStringLiteral("Materiál č. %1 dub").arg(i * 7919 % 10007), QString::number(i),
                           QString::number(1 + i % 997), QStringLiteral("ks"), QStringLiteral("P")});
    radek("ceník: 10 000 položek uloženo", sekundy([&] { Cenik::nahraj(u.cenik(), ano, polozky); }));
    for (const char* r : {"nazev", "Kod", "Cena", "Jednotka"})
        radek((QStringLiteral("ceník: naplnění podle ") + QLatin1String(r)).toUtf8().constData(),
                    sekundy([&] { Cenik::NaplnitSeznamCeniku(u.cenik(), QStringLiteral("VSE"), QLatin1String(r)); }));
    const QString hledat = QStringLiteral("č. 12 dub");
    double nejdele = 0;
    for (int i = 1; i <= hledat.size(); ++i)
        nejdele = std::max(nejdele, sekundy([&] { Cenik::hledej(u.cenik(), hledat.left(i)); }));
    radek("ceník: nejdelší úhoz hledání", nejdele);
    radek("ceník: tisk do PDF", sekundy([&] {
                    Dokument d;
                    Cenik::TiskCeniku(d, u.cenik(), QStringLiteral("VSE"), QStringLiteral("nazev"));
                    Vykresleni::pdf(d, pdf);
                }));
    QImage velky(7000, 5000, QImage::Format_RGB32);
    for (int y = 0; y < velky.height(); ++y)
        for (int x = 0; x < velky.width(); ++x)
            velky.setPixel(x, y, qRgb((x * 31 + y) & 255, (y * 17 ^ x) & 255, (x * y) & 255));
    QByteArray jpg;
    QBuffer b(&jpg);
    b.open(QIODevice::WriteOnly);
    velky.save(&b, "JPG", 100);
    int ide = 0;
    radek("obrázek: uložení JPEG", sekundy([&] {
              ide = Knihovna::pridej(u.cenik(), ano, Knihovna::Druh::Obrazky, QStringLiteral("velky.jpg"), jpg);
          }), QStringLiteral(" (%1 MB)").arg(jpg.size() / 1048576.0, 0, 'f', 1));
    QImage cely;
    radek("obrázek: načtení a dekódování celého",
                sekundy([&] { cely = Knihovna::obrazek(u.cenik(), Knihovna::Druh::Obrazky, ide); }));
    radek("obrázek: načtení a vepsání do 640x480", sekundy([&] {
                    Obrazky::vepsany(Knihovna::obrazek(u.cenik(), Knihovna::Druh::Obrazky, ide), {640, 480});
                }));
    const QByteArray maly = [] {
        QImage m(800, 600, QImage::Format_RGB32);
        m.fill(Qt::darkYellow);
        QByteArray v;
        QBuffer mb(&v);
        mb.open(QIODevice::WriteOnly);
        m.save(&mb, "JPG");
        return v;
    }();
    for (int i = 0; i < 199; ++i)
        Knihovna::pridej(u.cenik(), ano, Knihovna::Druh::Obrazky, QStringLiteral("m%1.jpg").arg(i), maly);
    radek("obrázky: krokování 200 záznamů", sekundy([&] {
                    for (const Knihovna::Zaznam& z : Knihovna::seznam(u.cenik(), Knihovna::Druh::Obrazky))
                        Obrazky::vepsany(Knihovna::obrazek(u.cenik(), Knihovna::Druh::Obrazky, z.ide), {640, 480});
                }));
    std::fflush(stdout);
}

// calc --pdf and workshop --schemata --pdf on orders of 50, 200 and 500 boards in ten
// assemblies; the status bar's prices of one order in a store of 200 orders.
void vypisy(const QString& domov)
{
    Aplikace::nastavDomov(domov);
    Uloziste u(true);
    nadpis("výpisy (PDF, vyplnění tabulek včetně)", "sekund");
    for (int desek : {50, 200, 500}) {
        const QString z = ZakazkaJson::nacti(u.dataS(), vygeneruj(desek, 10));
        for (const auto& [druh, nazev] : {std::pair{DruhVypisu::Zakazka, "calc"}, std::pair{DruhVypisu::DilnaSeSchematy, "workshop"}}) {
            const double t = sekundy([&] {
                u.ObnovPracovniDatabazi();
                Dokument d;
                SestavVypis(druh, d, u.dataK(), u.cenik(), z, {}, {});
                Vykresleni::pdf(d, QDir(domov).filePath(QStringLiteral("vypis.pdf")), QStringLiteral("bench"));
                u.zavriDataK();
            });
            radek(qPrintable(QStringLiteral("%1 --pdf, %2 desek").arg(QLatin1String(nazev)).arg(desek)), t);
        }
    }
    const QByteArray vzor = vygeneruj(50, 10);
    for (int i = 0; i < 200; ++i) {
        QByteArray json = vzor;
        ZakazkaJson::nacti(u.dataS(), json.replace("\"kalk50\"", QStringLiteral("\"zakázka %1\"").arg(i).toUtf8()));
    }
    radek("totals, 200 zakázek po 50 deskách", sekundy([&] {
                    Kalkulace::ZobrazCeny(u, QStringLiteral("zakázka 100"), QStringLiteral("S3"));
                }));
    std::fflush(stdout);
}

// The four ways side by side on every order of ../shared/bench, as a shop would cut them: kerf 0
// for the gcut orders, 4 mm for the others. Per order: the sheets of each way, the area bound
// (boards with the kerf over the usable sheet with the kerf), the seconds of "úsporně" in all
// and of its search alone (without the three described runs it starts from). "důkaz": the sheets
// the search itself showed no plan can do with less (the area, the relaxation over sheet patterns,
// or for a few boards every way tried).
void ctyriZpusoby(Uloziste& u, const std::vector<QString>& zakazky)
{
    vypis(QStringLiteral("zakázka    kombin. podél. příčně úsporně mez důkaz").leftJustified(46), QStringLiteral("sekund"),
          QStringLiteral("  (z toho hledání)"));
    BezOtazek prompt;
    TichyPrubeh prubeh;
    const QString srez = Nastaveni::GetSetting(QStringLiteral("Setting2"), QStringLiteral("Srez"));
    for (const QString& z : zakazky) {
        Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Srez"),
                               z.startsWith(QLatin1String("gcut")) ? QStringLiteral("0") : QStringLiteral("4"));
        QString radek = z.leftJustified(10);
        double usporne = 0, hledani = 0;
        int dukaz = 0;
        for (ZpusobNP zpusob : {ZpusobNP::Kombinovane, ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy, ZpusobNP::Usporne}) {
            PlanRun run(u, prompt, prubeh);
            usporne = sekundy([&] { run.SpustNP(z, 5000001, zpusob); });
            hledani = run.sekundHledani();
            dukaz = run.mezHledani();
            radek += QString::number(Recordset(u.dataK(), QStringLiteral("SoupisTabuli")).recordCount()).rightJustified(7);
        }
        const double k = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("Srez")) * 10;
        const double okraj = Nastaveni::cislo(QStringLiteral("Setting2"), QStringLiteral("ZarovnaniFormatu")) == 1 ? k : 0;
        const double desky = u.dataK().hodnota(QStringLiteral("SELECT sum((x + %1) * (y + %1)) FROM SoupisDesek").arg(k)).toDouble();
        const double tabule = u.dataK()
                                  .hodnota(QStringLiteral("SELECT max((x - %1 + %2) * (y - %1 + %2)) FROM SoupisTabuli").arg(okraj).arg(k))
                                  .toDouble();
        radek += QString::number(int(std::ceil(desky / tabule - 1e-9))).rightJustified(5);
        radek += QString::number(dukaz).rightJustified(6);
        vypis(radek.leftJustified(46), QString::number(usporne, 'f', 2), QStringLiteral("  (%1)").arg(hledani, 0, 'f', 2));
    }
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("Srez"), srez);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath(QStringLiteral("config"))));
    Nastaveni::ZapisVychoziNastaveni(0, 0, 100, 100);
    QStringList vyber = app.arguments().mid(1);
    const bool jenVypisy = vyber.contains(QStringLiteral("jenvypisy"));
    if (vyber.removeAll(QStringLiteral("vypisy")) || vyber.removeAll(QStringLiteral("jenvypisy")) || vyber.isEmpty())
        vypisy(dir.filePath(QStringLiteral("vypisy")));
    if (jenVypisy)
        return 0;
    Aplikace::nastavDomov(dir.filePath(QStringLiteral("home")));
    Uloziste u(true);
    if (vyber.removeAll(QStringLiteral("cenik")) || vyber.removeAll(QStringLiteral("jencenik")) || vyber.isEmpty()) {
        cenik(u, dir.filePath(QStringLiteral("cenik.pdf")));
        if (app.arguments().contains(QStringLiteral("jencenik")))
            return 0;
    }

    const std::pair<const char*, ZpusobNP> rezimy[] = {
        {"podelne", ZpusobNP::PodelneRezy}, {"pricne", ZpusobNP::PricneRezy}, {"kombinovane", ZpusobNP::Kombinovane}};
    std::vector<std::pair<const char*, ZpusobNP>> zvolene;
    for (const auto& r : rezimy)
        if (vyber.removeAll(QLatin1String(r.first)))
            zvolene.push_back(r);
    if (zvolene.empty())
        zvolene.assign(std::begin(rezimy), std::end(rezimy));

    std::vector<QString> zakazky;
    const QDir bench(QStringLiteral(TRUHLAR_BENCH_DIR));
    for (const QString& f : bench.entryList({QStringLiteral("*.json")}, QDir::Files, QDir::Name)) {
        QFile soubor(bench.filePath(f));
        soubor.open(QIODevice::ReadOnly);
        zakazky.push_back(ZakazkaJson::nacti(u.dataS(), soubor.readAll()));
    }
    for (int desek : {50, 200, 500})
        zakazky.push_back(ZakazkaJson::nacti(u.dataS(), vygeneruj(desek)));

    if (vyber.removeAll(QStringLiteral("zaloha")) || vyber.removeAll(QStringLiteral("jenzaloha")) || vyber.isEmpty())
        zalohaAImport(u);
    if (app.arguments().contains(QStringLiteral("jenzaloha")))
        return 0;
    if (vyber.removeAll(QStringLiteral("usporne")) || vyber.removeAll(QStringLiteral("jenusporne")) || vyber.isEmpty()) {
        std::vector<QString> zBench(zakazky.begin(), zakazky.end() - 3); // without the generated ones
        std::erase_if(zBench, [&](const QString& z) { return !vyber.isEmpty() && !vyber.contains(z); });
        ctyriZpusoby(u, zBench);
        if (app.arguments().contains(QStringLiteral("jenusporne")))
            return 0;
    }

    const bool sStarym = !vyber.removeAll(QStringLiteral("nove"));
    if (vyber.removeAll(QStringLiteral("shoda"))) {
        shodaBench(dir.filePath(QStringLiteral("shoda")), 3000);
        return 0;
    }
    std::vector<RezimBench> rezimyBench;
    for (const auto& [nazev, zpusob] : zvolene)
        rezimyBench.push_back({nazev, zpusob});
    planyBench(u, zakazky, rezimyBench, vyber, sStarym);
    if (vyber.isEmpty() || vyber.contains(QStringLiteral("mix2000")))
        stornoBench(u, QStringLiteral("mix2000"));
    maleZakazkyBench(dir.filePath(QStringLiteral("male")));
    return 0;
}
