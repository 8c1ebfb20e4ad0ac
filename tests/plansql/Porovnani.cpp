#include "plansql/Porovnani.h"

#include "core/Database.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "optimiser/VypisNP.h"
#include "plansql/PlanRun.h"

#include <QJsonDocument>
#include <QRandomGenerator>

namespace PlanSql {
namespace {

const QStringList NazvyDesek = {QStringLiteral("Bok"),    QStringLiteral("bok"),          QStringLiteral("Bók"),
                                QStringLiteral("Police"), QStringLiteral("police"),       QStringLiteral("Čelo"),
                                QStringLiteral("čelo"),   QStringLiteral("Dvířka 'A'"),   QStringLiteral("Záda"),
                                QStringLiteral("Chlopeň"), QStringLiteral("hřbet"),       QStringLiteral("Dno")};
const QStringList Sestavy = {QStringLiteral("Skříň"), QStringLiteral("skříň"), QStringLiteral("Skrin's"),
                             QStringLiteral("Šuplík"), QStringLiteral("Chodba")};
const QStringList Materialy = {QStringLiteral("DTD bílá 18"), QStringLiteral("Dub d'Arte"), QStringLiteral("Ořech Černý")};

template <typename T>
const T& jeden(QRandomGenerator& n, const QList<T>& z)
{
    return z[int(n.bounded(quint32(z.size())))];
}

void nastav(const char* klic, const QString& hodnota)
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QLatin1String(klic), hodnota);
}

void pridej(Database& db, const QString& tabulka, const QVariantMap& pole)
{
    Recordset rs(db, tabulka, Recordset::Rozsah::Prvni);
    rs.addNew();
    for (auto it = pole.cbegin(); it != pole.cend(); ++it)
        rs.set(it.key(), it.value());
    rs.update();
}

// A board size: mostly from a few values (ties), now and then a half millimetre, rarely more
// than any sheet.
double rozmer(QRandomGenerator& n)
{
    static const double rozmery[] = {100, 150, 200, 250, 300, 350, 400, 450, 500, 600, 700, 800};
    const quint32 k = n.bounded(100);
    if (k < 3)
        return 3000;
    if (k < 10)
        return 120 + n.bounded(600) + 0.5;
    return rozmery[n.bounded(12)];
}

} // namespace

NahodnyPripad vytvorPripad(Uloziste& u, quint32 seme)
{
    QRandomGenerator n(seme);
    Database& db = u.dataS();
    db.executeSqlite(QStringLiteral("PRAGMA synchronous=OFF")); // a throw-away store: no waiting for the disk
    db.executeSqlite(QStringLiteral("DELETE FROM Zakazky"));
    db.executeSqlite(QStringLiteral("DELETE FROM ZakazkyMaterialy"));
    db.executeSqlite(QStringLiteral("DELETE FROM SkladOdrezku"));

    const QString srez = QStringList{QStringLiteral("0"), QStringLiteral("3.2"), QStringLiteral("4")}[n.bounded(3)];
    const QString zarovnani = QString::number(n.bounded(2));
    const QString samovani = n.bounded(2) ? QStringLiteral("10") : QStringLiteral("0");
    const bool odrezky = n.bounded(3) == 0;
    nastav("Srez", srez);
    nastav("ZarovnaniFormatu", zarovnani);
    nastav("Samovani", samovani);
    nastav("POdrezky", odrezky ? QStringLiteral("1") : QStringLiteral("0"));

    const QString zakazka = QStringLiteral("Zakázka d'Kuchyň %1").arg(seme);
    const QString material = jeden(n, Materialy);
    const double sx = QList<double>{1000, 1200, 2070, 2800}[n.bounded(4)];
    const double sy = QList<double>{700, 800, 1000, 2070}[n.bounded(4)];
    const bool ov = n.bounded(2) == 1;
    pridej(db, QStringLiteral("ZakazkyMaterialy"),
           {{QStringLiteral("ID"), 5000001.0}, {QStringLiteral("Zakazka"), zakazka}, {QStringLiteral("Material"), material},
            {QStringLiteral("pouziti"), QStringLiteral("format")}, {QStringLiteral("RozmerX"), sx},
            {QStringLiteral("RozmerY"), sy}, {QStringLiteral("OV"), ov}});
    if (odrezky)
        for (int i = int(n.bounded(4)); i > 0; --i)
            pridej(db, QStringLiteral("SkladOdrezku"),
                   {{QStringLiteral("Material"), n.bounded(3) == 0 ? material.toLower() : material},
                    {QStringLiteral("x"), double(200 + 50 * n.bounded(16))}, {QStringLiteral("y"), double(150 + 50 * n.bounded(12))},
                    {QStringLiteral("Pocet"), int(n.bounded(3))}});
    const int radku = 3 + int(n.bounded(25));
    const bool stejne = n.bounded(4) == 0; // a run of many boards of one size
    const double x0 = rozmer(n), y0 = rozmer(n);
    for (int i = 0; i < radku; ++i)
        pridej(db, QStringLiteral("Zakazky"),
               {{QStringLiteral("Zakazka"), zakazka}, {QStringLiteral("Sestava"), jeden(n, Sestavy)},
                {QStringLiteral("pocetelementuVsestave"), double(1 + n.bounded(2))},
                {QStringLiteral("Oznaceni"), jeden(n, NazvyDesek)}, {QStringLiteral("IDFormat"), 5000001.0},
                {QStringLiteral("IDHX1"), 0.0}, {QStringLiteral("IDHX2"), 0.0}, {QStringLiteral("IDHY1"), 0.0},
                {QStringLiteral("IDHY2"), 0.0}, {QStringLiteral("cas"), 1000.0 + i},
                {QStringLiteral("x"), stejne && i % 2 ? x0 : rozmer(n)}, {QStringLiteral("y"), stejne && i % 2 ? y0 : rozmer(n)},
                {QStringLiteral("Pocet"), double(1 + n.bounded(3))}, {QStringLiteral("OV"), n.bounded(3) == 0}});

    static const ZpusobNP zpusoby[] = {ZpusobNP::PodelneRezy, ZpusobNP::PricneRezy, ZpusobNP::Kombinovane};
    NahodnyPripad p{zakazka, zpusoby[n.bounded(3)], n.bounded(4) == 0 ? int(n.bounded(3)) : 0, {}};
    p.popis = QStringLiteral("seme %1: režim %2, volba %3, tabule %4 x %5%6, řez %7, zarovnání %8, odřezky %9, desek %10")
                  .arg(seme).arg(int(p.zpusob)).arg(p.volba).arg(sx).arg(sy).arg(ov ? QStringLiteral(" s vzorem") : QString())
                  .arg(srez, zarovnani).arg(odrezky).arg(radku);
    return p;
}

QString porovnej(Uloziste& u, const NahodnyPripad& p)
{
    TichyPrubeh prubeh;
    class Ticho : public Prompt {
    public:
        Odpoved zprava(const QString&, const QString&, Ikona, Tlacitka) override { return Odpoved::Ano; }
        QString vstup(const QString&, const QString&, const QString& v) override { return v; }
        QString soubor(bool, const QString&, const QString&, const QString&, const QString&) override { return {}; }
    } prompt;
    auto tabulky = [&] {
        QJsonObject t;
        for (const char* nazev : {"SoupisDesek", "SoupisTabuli", "SoupisZbytku"})
            t.insert(QLatin1String(nazev), VypisTabulky(u.dataK(), QLatin1String(nazev)));
        return t;
    };
    auto rezy = [](const std::map<int, int>& m) {
        QStringList r;
        for (const auto& [t, pocet] : m)
            r << QStringLiteral("%1:%2").arg(t).arg(pocet);
        return r.join(QLatin1Char(' '));
    };

    PlanSql::PlanRun stary(u, prompt, prubeh);
    const bool hotovoStary = stary.SpustNP(p.zakazka, 5000001, p.zpusob, p.volba);
    const QJsonObject vzor = hotovoStary ? tabulky() : QJsonObject{};
    ::PlanRun novy(u, prompt, prubeh);
    const bool hotovoNovy = novy.SpustNP(p.zakazka, 5000001, p.zpusob, p.volba);
    const QJsonObject plan = hotovoNovy ? tabulky() : QJsonObject{};

    if (hotovoStary != hotovoNovy)
        return QStringLiteral("dokončen %1 / %2").arg(hotovoStary).arg(hotovoNovy);
    for (auto it = vzor.begin(); it != vzor.end(); ++it) {
        const QJsonArray a = it->toArray(), b = plan[it.key()].toArray();
        if (a.size() != b.size())
            return QStringLiteral("%1: %2 řádků, má být %3").arg(it.key()).arg(b.size()).arg(a.size());
        for (int i = 0; i < a.size(); ++i)
            if (a[i] != b[i])
                return QStringLiteral("%1, řádek %2:\n  má být %3\n  je      %4")
                    .arg(it.key())
                    .arg(i + 1)
                    .arg(QString::fromUtf8(QJsonDocument(a[i].toObject()).toJson(QJsonDocument::Compact)),
                         QString::fromUtf8(QJsonDocument(b[i].toObject()).toJson(QJsonDocument::Compact)));
    }
    if (rezy(stary.RezyNaTabuli()) != rezy(novy.RezyNaTabuli()))
        return QStringLiteral("řezy: %1 / %2").arg(rezy(stary.RezyNaTabuli()), rezy(novy.RezyNaTabuli()));
    if (stary.varovani() != novy.varovani() || stary.smycka() != novy.smycka() || stary.slouceni() != novy.slouceni())
        return QStringLiteral("varování %1/%2, smyčka %3/%4, sloučení %5/%6")
            .arg(stary.varovani()).arg(novy.varovani()).arg(stary.smycka()).arg(novy.smycka())
            .arg(stary.slouceni()).arg(novy.slouceni());
    return {};
}

} // namespace PlanSql
