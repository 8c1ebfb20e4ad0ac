// The plan booked against the offcut store, and the panel saw's file of a small plan.
#include "PlanTest.h"

#include "core/Database.h"
#include "core/Recordset.h"
#include "optimiser/OdepisOdrezky.h"
#include "planoutput/ExportCNC.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QTemporaryDir>

namespace {

// "x x y" -> pieces, as the store holds them.
QMap<QString, int> sklad(Database& db)
{
    QMap<QString, int> m;
    for (Recordset r(db, QStringLiteral("SkladOdrezku")); !r.eof(); r.moveNext())
        m[QStringLiteral("%1 x %2").arg(r.cislo(QStringLiteral("x"))).arg(r.cislo(QStringLiteral("y")))] +=
            int(r.cislo(QStringLiteral("Pocet")));
    return m;
}

} // namespace

class SkladACnc : public PlanTest {
protected:
    PlanRun& spustPlan(ZpusobNP zpusob = ZpusobNP::PodelneRezy)
    {
        m_run.emplace(uloziste(), prompt, m_prubeh);
        EXPECT_TRUE(m_run->SpustNP(QStringLiteral("Z"), 5000001, zpusob));
        return *m_run;
    }
    bool odepis() { return OdepisOdrezky(uloziste().dataS(), uloziste().dataK(), prompt, QStringLiteral("Z"), 5000001); }

    TichyPrubeh m_prubeh;
    std::optional<PlanRun> m_run;
};

// Offcuts on: two offcut sheets of 600 x 400 take the two boards of 500 x 300 before any full
// sheet; the write-back takes exactly those two pieces out (2 -> 1 -> gone), leaves the unused
// 250 x 250, and books the remnants: the two sheets leave equal ones, each size one row of 2.
TEST_F(SkladACnc, OdrezkyPouziteOdepsaneAZbytkyPripsane)
{
    nastav("POdrezky", "1");
    nastav("XZ", "50");
    nastav("YZ", "50");
    odrezek(600, 400, 2);
    odrezek(250, 250, 1);
    zakazka(2800, 2070, false, {{"dvířka", 500, 300, 2}});
    spustPlan();
    Recordset tabule(uloziste().dataK(), QStringLiteral("SoupisTabuli"));
    ASSERT_EQ(tabule.recordCount(), 2);
    EXPECT_EQ(tabule.cislo(QStringLiteral("x")), 6000);
    QMap<QString, int> ocekavane{{QStringLiteral("250 x 250"), 1}};
    for (Recordset z(uloziste().dataK(), QStringLiteral("SELECT * FROM SoupisZbytku WHERE XZP >= 500 and YZP >= 500")); !z.eof();
         z.moveNext())
        ocekavane[QStringLiteral("%1 x %2").arg(z.cislo(QStringLiteral("XZP")) / 10).arg(z.cislo(QStringLiteral("YZP")) / 10)] += 1;
    ASSERT_GT(ocekavane.size(), 1);
    for (auto it = ocekavane.begin(); it != ocekavane.end(); ++it)
        if (it.key() != QStringLiteral("250 x 250")) {
            EXPECT_EQ(it.value() % 2, 0) << it.key().toStdString(); // each remnant twice, one per sheet
        }

    prompt.odpovez(Prompt::Odpoved::Ano);
    ASSERT_TRUE(odepis());
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Chcete odepsat použité odřezky ze skladu odřezků a připsat nově vzniklé?"));
    EXPECT_EQ(sklad(uloziste().dataS()), ocekavane);
    EXPECT_TRUE(Recordset(uloziste().dataS(), QStringLiteral("SELECT * FROM SkladOdrezku WHERE x = 600")).eof());
}

// Offcuts off: the other question; No writes nothing; Yes books remnants but takes nothing
// out, not even a piece of the full sheet's size; a remnant of 300 x 100 with XZ 100 and
// YZ 200 is not kept although it would reach them turned.
TEST_F(SkladACnc, BezOdrezkuJenPripis)
{
    odrezek(1000, 500, 1);
    zakazka(1000, 500, false, {{"a", 700, 500}});
    spustPlan();
    const QMap<QString, int> pred = sklad(uloziste().dataS());
    prompt.odpovez(Prompt::Odpoved::Ne);
    EXPECT_FALSE(odepis());
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Chcete připsat nově vzniklé odřezky do skladu odřezků?"));
    EXPECT_EQ(sklad(uloziste().dataS()), pred);
    nastav("XZ", "100");
    nastav("YZ", "200");
    prompt.odpovez(Prompt::Odpoved::Ano);
    EXPECT_TRUE(odepis());
    const QMap<QString, int> po = sklad(uloziste().dataS());
    EXPECT_EQ(po.value(QStringLiteral("1000 x 500")), 1);
    for (auto it = po.begin(); it != po.end(); ++it)
        EXPECT_FALSE(it.key().endsWith(QStringLiteral(" x 100"))) << it.key().toStdString();
}

// The .VPF of a small plan, line for line against tests/optimiser/vzory/maly.vpf, worked out
// from the export's rules over the plan's working tables (see the comments there).
TEST_F(SkladACnc, VpfMalehoPlanu)
{
    QLocale::setDefault(QLocale(QLocale::Czech, QLocale::CzechRepublic));
    zakazka(1000, 600, false, {{"bok", 400, 300, 2, false, QStringLiteral("Skříň")}, {"police", 300, 200, 1, false, QStringLiteral("Skříň")}});
    PlanRun& run = spustPlan(ZpusobNP::PodelneRezy);
    QTemporaryDir dir;
    const QString soubor = dir.filePath(QStringLiteral("OUT00000.VPF"));
    ASSERT_TRUE(ExportCNC::zapis(uloziste().dataS(), uloziste().dataK(), PlanNaStrankach::z(run), soubor));
    const QByteArray obsah = obsahSouboru(soubor);
    EXPECT_TRUE(obsah.contains("Sk\xf8\xed\xf2")); // "Skříň" in Windows-1250
    const QStringList radky = QString::fromLatin1(obsah).split(QStringLiteral("\r\n"));
    QStringList ocekavane;
    for (const QByteArray& r : obsahSouboru(QStringLiteral(TRUHLAR_VZORY "/maly.vpf")).split('\n'))
        if (!r.startsWith('#'))
            ocekavane << QString::fromLatin1(r);
    EXPECT_EQ(radky.join(QLatin1Char('\n')).toStdString(), ocekavane.join(QLatin1Char('\n')).toStdString());
    QLocale::setDefault(QLocale::system());
}

// A plan without a remnant above XZ by YZ makes no file; a sheet without numbered remnants
// writes "RestCount=0".
TEST_F(SkladACnc, VpfBezZbytkuNeniABezZbytkuNaTabuli)
{
    zakazka(1000, 600, false, {{"plna", 1000, 600}});
    PlanRun& run = spustPlan();
    QTemporaryDir dir;
    EXPECT_FALSE(ExportCNC::zapis(uloziste().dataS(), uloziste().dataK(), PlanNaStrankach::z(run), dir.filePath(QStringLiteral("a.VPF"))));
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("a.VPF"))));

    zakazka(1000, 600, false, {{"velka", 990, 590}, {"mala", 400, 200}}, QStringLiteral("Y"));
    PlanRun dva(uloziste(), prompt, m_prubeh);
    ASSERT_TRUE(dva.SpustNP(QStringLiteral("Y"), 5000001, ZpusobNP::PodelneRezy));
    const QString text = ExportCNC::text(uloziste().dataS(), uloziste().dataK(), PlanNaStrankach::z(dva));
    ASSERT_FALSE(text.isEmpty());
    const QString prvni = text.section(QStringLiteral("[SHEET1]"), 1).section(QStringLiteral("[SHEET2]"), 0, 0);
    EXPECT_TRUE(prvni.contains(QStringLiteral("\r\nRestCount=0\r\n"))) << prvni.toStdString();
    EXPECT_FALSE(prvni.contains(QStringLiteral("Rest1=")));
}
