// Plans of seeded random orders (the cases of Porovnani.h, seeds apart from the comparison's)
// against dumps that the engine on SQL wrote into vzory/nahodne/: the in-memory engine is held
// to them without the slow oracle. The dumps are compact JSON packed by qCompress (zlib with a
// length in front), 250 of them in well under a megabyte. TRUHLAR_NOVE_VZORY=1 rewrites them
// from the oracle.
#include "PlanTest.h"

#include "core/Uloziste.h"
#include "optimiser/VypisNP.h"
#include "plansql/PlanRun.h"
#include "plansql/Porovnani.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace {

constexpr quint32 PrvniSeme = 100001;
constexpr int Vzoru = 250;

QJsonObject planOraklem(Uloziste& u, SkriptovanyPrompt& prompt, const PlanSql::NahodnyPripad& p)
{
    TichyPrubeh prubeh;
    PlanSql::PlanRun run(u, prompt, prubeh);
    if (!run.SpustNP(p.zakazka, 5000001, p.zpusob, p.volba))
        return {};
    QJsonObject rezy;
    for (const auto& [tabule, pocet] : run.RezyNaTabuli())
        rezy.insert(QString::number(tabule), pocet);
    QJsonObject plan{{QStringLiteral("RezyNaTabuli"), rezy}, {QStringLiteral("warning"), run.varovani()}};
    for (const char* t : {"SoupisDesek", "SoupisTabuli", "SoupisZbytku"})
        plan.insert(QLatin1String(t), VypisTabulky(u.dataK(), QLatin1String(t)));
    return plan;
}

} // namespace

TEST_F(PlanTest, NahodneZakazkyDajiPlanyZeVzoru)
{
    const QDir slozka(QStringLiteral(TRUHLAR_VZORY "/nahodne"));
    const bool nove = qEnvironmentVariableIsSet("TRUHLAR_NOVE_VZORY");
    if (nove)
        QDir().mkpath(slozka.path());
    int rozdilnych = 0;
    for (quint32 seme = PrvniSeme; seme < PrvniSeme + Vzoru && rozdilnych < 5; ++seme) {
        const PlanSql::NahodnyPripad p = PlanSql::vytvorPripad(uloziste(), seme);
        QFile f(slozka.filePath(QStringLiteral("%1.json.z").arg(seme)));
        if (nove) {
            ASSERT_TRUE(f.open(QIODevice::WriteOnly));
            f.write(qCompress(QJsonDocument(planOraklem(uloziste(), prompt, p)).toJson(QJsonDocument::Compact), 9));
            continue;
        }
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << f.fileName().toStdString();
        TichyPrubeh prubeh;
        PlanRun run(uloziste(), prompt, prubeh);
        const QJsonObject plan = run.SpustNP(p.zakazka, 5000001, p.zpusob, p.volba) ? VypisNP(uloziste().dataK(), run) : QJsonObject{};
        if (QJsonDocument::fromJson(qUncompress(f.readAll())).object() != plan) {
            ++rozdilnych;
            ADD_FAILURE() << p.popis.toStdString();
        }
    }
}
