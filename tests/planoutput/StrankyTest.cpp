// Plan pages and labels of the demo kitchen (40 boards on 2 sheets of 2800 x 2070 mm), and
// the saving of a document as PDF when the disk or the folder says no.
#include "CteniDokumentu.h"
#include "DomovTest.h"
#include "PoruchaSouboru.h"
#include "SkriptovanyPrompt.h"
#include "VzorkyObrazku.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Recordset.h"
#include "core/Uloziste.h"
#include "exchange/ZakazkaJson.h"
#include "optimiser/PlanRun.h"
#include "planoutput/ExportCNC.h"
#include "planoutput/Stitky.h"
#include "planoutput/StrankyNP.h"
#include "printing/UlozeniPdf.h"
#include "printing/Vykresleni.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>
#include <unistd.h>

namespace {

class Stranky : public DomovTest {
protected:
    void SetUp() override
    {
        DomovTest::SetUp();
        Nastaveni::ZapisVychoziNastaveni(0, 0, 800, 600);
        ZakazkaJson::nacti(uloziste().dataS(), demoJson());
    }
    PlanNaStrankach spust(ZpusobNP zpusob = ZpusobNP::Kombinovane)
    {
        TichyPrubeh prubeh;
        PlanRun run(uloziste(), prompt, prubeh);
        EXPECT_TRUE(run.SpustNP(QStringLiteral("Kuchyně Novák"), 5000001, zpusob));
        return PlanNaStrankach::z(run);
    }
    QStringList nazvyUsazenych()
    {
        QStringList n;
        Recordset rs(uloziste().dataK(), QStringLiteral("SELECT * FROM SoupisDesek WHERE ID = True"));
        for (; !rs.eof(); rs.moveNext())
            n << rs.text(QStringLiteral("Oznaceni")) + QStringLiteral(" (") + rs.text(QStringLiteral("Sestava")) +
                     QLatin1Char(')');
        return n;
    }
    SkriptovanyPrompt prompt;
};

TEST_F(Stranky, JednaDveCtyriTabuleNaStranu)
{
    const PlanNaStrankach plan = spust();
    Dokument d;
    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 1));
    ASSERT_EQ(d.PageCount(), 2);
    EXPECT_TRUE(d.naSirku);
    const QStringList prvni = texty<OpText>(d, 1);
    for (const char* popisek : {"Vzor tabule:", "Tabule:", "Rozměr tabule:", "Využití tabule [%]:", "Šířka řezu:", "Počet řezů:",
                                "Zakázka:", "Materiál:"})
        EXPECT_TRUE(prvni.contains(QString::fromUtf8(popisek))) << popisek;
    EXPECT_TRUE(prvni.contains(QStringLiteral("1/2")));
    EXPECT_TRUE(texty<OpText>(d, 2).contains(QStringLiteral("2/2")));
    EXPECT_TRUE(prvni.contains(QStringLiteral("Kuchyně Novák")));
    EXPECT_TRUE(prvni.contains(QStringLiteral("2800 mm x 2070 mm")));
    EXPECT_TRUE(prvni.contains(QString::number(plan.rezy.at(1)))); // cuts of the first sheet
    // Every placed board is named on some page.
    const QStringList vse = texty<OpText>(d, 1) + texty<OpText>(d, 2);
    for (const QString& n : nazvyUsazenych())
        EXPECT_TRUE(std::any_of(vse.begin(), vse.end(), [&](const QString& t) { return t.contains(n); })) << n.toStdString();

    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 2));
    EXPECT_EQ(d.PageCount(), 1);
    EXPECT_FALSE(d.naSirku);
    EXPECT_TRUE(texty<OpText>(d, 1).contains(QStringLiteral("2/2")));
    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 4));
    EXPECT_EQ(d.PageCount(), 1);
    EXPECT_FALSE(StrankyNP(d, uloziste(), plan, 3)); // no such layout: an empty viewer
}

// Only KZ and ZT remnants larger than XZ by YZ (strictly) are drawn; ZŘ never.
TEST_F(Stranky, OdrezkyJenVetsiNezMez)
{
    const PlanNaStrankach plan = spust(ZpusobNP::PodelneRezy);
    Database& k = uloziste().dataK();
    const auto pocet = [&](const QString& mez) {
        return k.hodnota(QStringLiteral("SELECT count(*) FROM SoupisZbytku WHERE CT = 1 and Oznaceni <> 'ZŘ' and ") + mez)
            .toInt();
    };
    const int velkych = pocet(QStringLiteral("XZP > 1000 and YZP > 1000"));
    const int desek = k.hodnota(QStringLiteral("SELECT count(*) FROM SoupisDesek WHERE ID = True and tabule = 1")).toInt();
    Dokument d;
    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 1));
    const int zaklad = int(operace<OpObdelnik>(d, 1).size()) - desek - velkych;
    // Raise the limits to exactly one remnant's size: that remnant is no longer drawn.
    Recordset r(k, QStringLiteral("SELECT * FROM SoupisZbytku WHERE CT = 1 and Oznaceni <> 'ZŘ' and XZP > 1000 and YZP > 1000"));
    ASSERT_FALSE(r.eof());
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("XZ"),
                           QString::number(r.cislo(QStringLiteral("XZP")) / 10));
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("YZ"),
                           QString::number(r.cislo(QStringLiteral("YZP")) / 10));
    const int uzMene = pocet(QStringLiteral("XZP > ") + QString::number(r.cislo(QStringLiteral("XZP"))) +
                             QStringLiteral(" and YZP > ") + QString::number(r.cislo(QStringLiteral("YZP"))));
    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 1));
    EXPECT_EQ(int(operace<OpObdelnik>(d, 1).size()), zaklad + desek + uzMene);
    EXPECT_LT(uzMene, velkych);
}

// A long narrow sheet, far from A4, with tiny boards and a very long name: everything stays on
// the page, and the material's sample from the price list stands in the block.
TEST_F(Stranky, DlouhaTabuleDrobneDeskyDlouheJmeno)
{
    const QByteArray json = R"({"zakazka": "Lišty", "formaty": [{"id": 7, "material": "Spárovka buk 5000", "x": 5000,
        "y": 300, "cena": 90}], "sestavy": [{"nazev": "Obklad", "desky": [
        {"oznaceni": "lišta s velmi dlouhým pojmenováním, které se nikam nevejde", "x": 4800, "y": 40, "pocet": 3, "format": 7},
        {"oznaceni": "klínek", "x": 12, "y": 9, "pocet": 20, "format": 7}]}]})";
    ZakazkaJson::nacti(uloziste().dataS(), json);
    uloziste().cenik().executeSqlite(QStringLiteral("INSERT INTO Obrazky (IDE, nazev, OBR) VALUES (3, 'buk', ?)"),
                                     {vzorek("png", {40, 20}, Qt::darkYellow)});
    uloziste().cenik().executeSqlite(
        QStringLiteral("INSERT INTO Cenik (kod, nazev, Cena, skupina, obr1) VALUES (1, 'Spárovka buk 5000', 90, 'PM', 3)"));

    TichyPrubeh prubeh;
    PlanRun run(uloziste(), prompt, prubeh);
    ASSERT_TRUE(run.SpustNP(QStringLiteral("Lišty"), 7, ZpusobNP::PodelneRezy));
    Dokument d;
    ASSERT_TRUE(StrankyNP(d, uloziste(), PlanNaStrankach::z(run), 1));
    const QRectF strana(0, 0, d.PageWidth(), d.PageHeight());
    for (const OpText& t : operace<OpText>(d))
        EXPECT_TRUE(strana.contains(ramecTextu(d, t))) << t.text.toStdString();
    for (const OpObdelnik& o : operace<OpObdelnik>(d))
        EXPECT_TRUE(strana.contains(o.ramec));
    EXPECT_FALSE(operace<OpObrazek>(d).empty());
}

TEST_F(Stranky, BezUsazeneDeskyRozmerovaChyba)
{
    const PlanNaStrankach plan = spust();
    uloziste().dataK().execute(QStringLiteral("UPDATE SoupisDesek SET ID = False, tabule = 0"));
    Dokument d;
    EXPECT_FALSE(StrankyNP(d, uloziste(), plan, 1));
}

TEST_F(Stranky, StitkyPoStrankach)
{
    spust();
    Dokument d;
    EXPECT_EQ(TiskStitku(d, uloziste(), QStringLiteral("Kuchyně Novák")), 40);
    ASSERT_EQ(d.PageCount(), 2); // 3 across, 8 down: board 25 starts page 2
    const auto prvniObdelnik = [&](int strana) {
        for (const Operace& op : d.strana(strana).operace)
            if (const auto* o = std::get_if<OpObdelnik>(&op))
                return o->ramec;
        return QRectF();
    };
    const MrizkaStitku m = MrizkaStitku::zNastaveni();
    EXPECT_DOUBLE_EQ(m.delka, 55 * 56.685);
    EXPECT_EQ(prvniObdelnik(2).topLeft(), QPointF(m.zleva, m.shora));
    EXPECT_EQ(prvniObdelnik(1).topLeft(), QPointF(m.zleva, m.shora));

    Nastaveni::SaveSetting(QStringLiteral("Setting"), QStringLiteral("PocetRadkuStitkuTisk"), QStringLiteral("2"));
    EXPECT_EQ(TiskStitku(d, uloziste(), QStringLiteral("Kuchyně Novák")), 40);
    EXPECT_EQ(d.PageCount(), 7); // 6 to a page
}

TEST_F(Stranky, VpfPriPoruseDiskuZustaneStary)
{
    const PlanNaStrankach plan = spust();
    const QString cesta = QDir(domov()).filePath(QStringLiteral("OUT00000.VPF"));
    ASSERT_TRUE(ExportCNC::zapis(uloziste().dataS(), uloziste().dataK(), plan, cesta));
    ocekavejPoruchySouboru(cesta, [&] { ExportCNC::zapis(uloziste().dataS(), uloziste().dataK(), plan, cesta); });
}

TEST_F(Stranky, PdfCeleNeboNic)
{
    const PlanNaStrankach plan = spust();
    Dokument d;
    ASSERT_TRUE(StrankyNP(d, uloziste(), plan, 1));
    const QString cesta = QDir(domov()).filePath(QStringLiteral("plán.pdf"));
    Vykresleni::pdf(d, cesta);
    const QByteArray puvodni = obsahSouboru(cesta);
    EXPECT_TRUE(puvodni.startsWith("%PDF"));

    // A failing disk: the old file stays, no temporary file is left.
    ocekavejPoruchySouboru(cesta, [&] { Vykresleni::pdf(d, cesta); });
    EXPECT_EQ(obsahSouboru(cesta), puvodni);

    // Saving from the viewer: the proposed name, the question, the messages of the table.
    prompt.odpovez(cesta);
    prompt.odpovez(Prompt::Odpoved::Ne);
    EXPECT_TRUE(UlozeniPdf::uloz(d, prompt, UlozeniPdf::plan(NavrhNazvuNP(plan.zakazka, plan.zpusob))).isEmpty());
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Soubor pod tímto názvem již existuje, chcete ho přepsat ?"));
    EXPECT_EQ(NavrhNazvuNP(plan.zakazka, plan.zpusob), QStringLiteral("Kuchyně Novák-kombinovaně.pdf"));

    const QString zamcena = QDir(domov()).filePath(QStringLiteral("zamčeno"));
    QDir().mkpath(zamcena);
    QFile::setPermissions(zamcena, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    if (::geteuid() != 0) { // root writes anywhere
        prompt.odpovez(zamcena + QStringLiteral("/plán"));
        EXPECT_TRUE(UlozeniPdf::uloz(d, prompt, UlozeniPdf::vypis()).isEmpty());
        EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Disk je chráněn proti zápisu!!!"));
        EXPECT_FALSE(QFile::exists(zamcena + QStringLiteral("/plán.pdf")));
    }
    QFile::setPermissions(zamcena, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

    prompt.odpovez(QDir(domov()).filePath(QStringLiteral("výpis")));
    const QString ulozeno = UlozeniPdf::uloz(d, prompt, UlozeniPdf::vypis());
    EXPECT_TRUE(ulozeno.endsWith(QStringLiteral("výpis.pdf")));
    EXPECT_EQ(prompt.zpravy.last(), QStringLiteral("Výpis byl uložen do ") + ulozeno);
    EXPECT_EQ(prompt.titulky.last(), QStringLiteral("Uloženo.."));
    EXPECT_TRUE(QDir(domov()).exists(QStringLiteral("PDF")));
}

} // namespace
