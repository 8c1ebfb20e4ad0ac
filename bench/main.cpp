// make bench: the plan run of every order in ../shared/bench/*.json and of generated orders of
// 50, 200 and 500 boards, in each mode, in a throw-away application folder. Prints per order and
// mode: boards, sheets, seconds. Arguments narrow the run: a mode (podelne, pricne, kombinovane)
// and/or order names.
#include "core/Aplikace.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "optimiser/PlanRun.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <cstdio>

namespace {

class BezOtazek : public Prompt {
public:
    Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ano; }
    QString vstup(const QString&, const QString&, const QString& v) override { return v; }
    QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
};

// A kitchen-like order: a few dozen sizes from carcass widths, repeated.
QByteArray vygeneruj(int desek)
{
    QRandomGenerator nahoda{quint32(desek)};
    QJsonArray desky;
    for (int i = 0; i < desek; ++i) {
        const int x = 200 + 50 * int(nahoda.bounded(30));
        const int y = 100 + 20 * int(nahoda.bounded(30));
        desky.append(QJsonObject{{"oznaceni", QStringLiteral("deska %1").arg(i + 1)}, {"x", x}, {"y", y},
                                 {"pocet", 1}, {"format", 5000001}, {"ov", false}, {"hrany", QJsonArray{0, 0, 0, 0}}});
    }
    const QJsonObject zakazka{
        {"zakazka", QStringLiteral("gen%1").arg(desek)},
        {"poznamka", ""},
        {"formaty", QJsonArray{QJsonObject{{"id", 5000001}, {"material", "DTD 18"}, {"x", 2800}, {"y", 2070},
                                           {"ov", false}, {"cena", 350}}}},
        {"hrany", QJsonArray{}},
        {"sestavy", QJsonArray{QJsonObject{{"nazev", "S1"}, {"popis", ""}, {"pocet", 1}, {"schema", 0}, {"desky", desky}}}}};
    return QJsonDocument(zakazka).toJson();
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("truhlar"));
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(dir.filePath(QStringLiteral("config"))));
    Aplikace::nastavDomov(dir.filePath(QStringLiteral("home")));
    Nastaveni::ZapisVychoziNastaveni(0, 0, 100, 100);
    Uloziste u(true);

    QStringList vyber = app.arguments().mid(1);
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

    std::printf("%-10s %-12s %7s %7s %10s\n", "zakázka", "režim", "desek", "tabulí", "sekund");
    BezOtazek prompt;
    TichyPrubeh prubeh;
    for (const QString& z : zakazky) {
        if (!vyber.isEmpty() && !vyber.contains(z))
            continue;
        for (const auto& [nazev, zpusob] : zvolene) {
            PlanRun run(u, prompt, prubeh);
            QElapsedTimer cas;
            cas.start();
            run.SpustNP(z, 5000001, zpusob);
            const double sekund = cas.nsecsElapsed() / 1e9;
            const int desek = Recordset(u.dataK(), QStringLiteral("SoupisDesek")).recordCount();
            const int tabuli = Recordset(u.dataK(), QStringLiteral("SoupisTabuli")).recordCount();
            std::printf("%-10s %-12s %7d %7d %10.3f\n", qPrintable(z), nazev, desek, tabuli, sekund);
            std::fflush(stdout);
        }
    }
    return 0;
}
