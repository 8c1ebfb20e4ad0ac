// truhlar-cli as a user runs it: exit codes, Czech messages, and nothing written on refusal.
#include "SpusteniCli.h"
#include "core/Database.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>
#include <cmath>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

using CliTest = SpusteniCli;

} // namespace

// The folder as init leaves it; the tables and their columns are checked where the store makes them.
TEST_F(CliTest, InitZalozeDatabazeSeVsemiTabulkami)
{
    EXPECT_EQ(spust({"init"}).kod, 0);
    for (const char* soubor : {"/Data/DataS.db", "/Data/Cenik.db", "/Zálohy dat"})
        EXPECT_TRUE(QFile::exists(domov() + QString::fromUtf8(soubor))) << soubor;
    EXPECT_EQ(spust({"check"}).kod, 0);
}

TEST_F(CliTest, ZakazkaTamAZpetAPlanVeVsechRezimech)
{
    zalozDemo();
    EXPECT_EQ(json({"order-dump", "Kuchyně Novák"}), QJsonDocument::fromJson(demoJson()));
    EXPECT_EQ(spust({"order-list"}).out, QStringLiteral("Kuchyně Novák\n"));
    for (const char* rezim : {"podelne", "pricne", "kombinovane"}) {
        const QJsonObject o = json(plan(rezim) << "--dump").object();
        EXPECT_EQ(o["SoupisDesek"].toArray().size(), 40);
        EXPECT_FALSE(o["warning"].toBool());
        EXPECT_FALSE(o["RezyNaTabuli"].toObject().isEmpty());
    }
    const Vysledek souhrn = spust(plan("podelne"));
    EXPECT_TRUE(souhrn.out.startsWith(QStringLiteral("Tabulí: ")));
    EXPECT_TRUE(souhrn.out.contains(QStringLiteral("usazeno desek: 40, neusazeno: 0")));
}

TEST_F(CliTest, SpatnyVstupDaCeskouZpravuAKod)
{
    const Vysledek nesmysl = spust({"nesmysl"});
    EXPECT_EQ(nesmysl.kod, 2);
    EXPECT_TRUE(nesmysl.err.startsWith(QStringLiteral("Neznámý příkaz: nesmysl\nPoužití: truhlar-cli [--home SLOŽKA]")));
    EXPECT_EQ(spust({"order-dump"}).kod, 2);
    const Vysledek bezSlozky = spust({"order-list"});
    EXPECT_EQ(bezSlozky.kod, 4);
    EXPECT_TRUE(bezSlozky.err.contains(QStringLiteral("neobsahuje databáze")));
    zalozDemo();
    const Vysledek podruhe = spust({"order-load", demo()});
    EXPECT_EQ(podruhe.kod, 3);
    EXPECT_EQ(podruhe.err, QStringLiteral("Zakazka pod tímhle názvem již existuje, zadejte jiný nazev !!!\n"));
    EXPECT_EQ(spust({"plan", "Neni", "--format", "5000001", "--mode", "podelne"}).kod, 3);
    const Vysledek format = spust({"plan", "Kuchyně Novák", "--format", "5000101", "--mode", "podelne"});
    EXPECT_EQ(format.kod, 3);
    EXPECT_TRUE(format.err.contains(QStringLiteral("V zakázce není co nařezat!!!!!")));
    EXPECT_EQ(spust(plan("diagonalne")).kod, 2);
    EXPECT_EQ(spust({"order-load", domov() + QStringLiteral("/neni.json")}).kod, 4);
    EXPECT_EQ(spust({"order-list"}).out, QStringLiteral("Kuchyně Novák\n"));
}

TEST_F(CliTest, DrzeneUlozisteACiziSouborVratiKod4)
{
    spust({"init"});
    const int fd = ::open(QFile::encodeName(domov() + QStringLiteral("/Data/.lock")).constData(), O_RDWR | O_CREAT, 0644);
    ASSERT_EQ(::flock(fd, LOCK_EX | LOCK_NB), 0);
    const Vysledek drzeno = spust({"order-list"});
    EXPECT_EQ(drzeno.kod, 4);
    EXPECT_TRUE(drzeno.err.contains(QStringLiteral("používána jiným programem")));
    ::close(fd);
    zapisSoubor(domov() + QStringLiteral("/Data/DataS.db"), QByteArray(4096, 'x'));
    EXPECT_EQ(spust({"order-list"}).kod, 4);
}

// A restore or a backup killed (SIGKILL) at growing delays: the data are the old or the new,
// the backup file is whole, and the next start clears what the killed one left.
TEST_F(CliTest, ZabitaObnovaAZalohaNechajiStaraNeboNovaData)
{
    zalozDemo();
    const QString zaloha = domov() + QStringLiteral("/zaloha 'ž'.bvk");
    ASSERT_EQ(spust({"backup", zaloha}).kod, 0);
    const QString druha = soubor(QStringLiteral("druha.json"), demoJson().replace("Kuchyně Novák", "Druhá"));
    spust({"order-load", druha});
    const QString stara = QStringLiteral("Kuchyně Novák\nDruhá\n"), nova = QStringLiteral("Kuchyně Novák\n");
    for (const char* prikaz : {"restore", "backup"})
        for (int us = 0; us < 60000; us = us * 3 / 2 + 500) {
            QProcess p;
            startuj(p, {QLatin1String(prikaz), zaloha});
            ASSERT_TRUE(p.waitForStarted());
            QThread::usleep(us);
            ::kill(p.processId(), SIGKILL);
            p.waitForFinished();
            const Vysledek seznam = spust({"order-list"});
            ASSERT_EQ(seznam.kod, 0) << us << " " << seznam.err.toStdString();
            ASSERT_TRUE(seznam.out == stara || seznam.out == nova) << us << " " << seznam.out.toStdString();
            EXPECT_EQ(spust({"check", zaloha}).kod, 0) << us;
            if (seznam.out == nova) {
                ASSERT_EQ(spust({"order-load", druha}).kod, 0);
            }
        }
    for (const QString& s : QDir(domov() + QStringLiteral("/Data")).entryList(QDir::Files))
        EXPECT_FALSE(s.contains(QStringLiteral(".tmp-"))) << s.toStdString();
}

TEST_F(CliTest, ZalohaZmenaObnovaAImportZWindows1250)
{
    zalozDemo();
    const QString zaloha = domov() + QStringLiteral("/b.bvk");
    ASSERT_EQ(spust({"backup", zaloha}).kod, 0);
    const QString pred = spust({"order-dump", "Kuchyně Novák"}).out;
    const QStringList kombinovane = plan("kombinovane") << "--dump";
    const QString planPred = spust(kombinovane).out;
    // Windows-1250: "Žlutá police", "Čelo"
    const QString seznam = soubor(QStringLiteral("seznam.txt"),
                                  QByteArray("\x8E" "lut\xE1 police;562;300;2;2;0;0;0\r\n\xC8" "elo;596;716;1\r\n"));
    const Vysledek import = spust({"import", seznam, "--order", "Kuchyně Novák", "--assembly", "Sokl"});
    ASSERT_EQ(import.kod, 0) << import.err.toStdString();
    EXPECT_TRUE(spust({"order-dump", "Kuchyně Novák"}).out.contains(QStringLiteral("Žlutá police")));
    EXPECT_EQ(spust({"import", seznam, "--order", "Kuchyně Novák", "--assembly", "Neni"}).kod, 3);
    EXPECT_EQ(spust({"restore", zaloha}).kod, 0);
    EXPECT_EQ(spust({"order-dump", "Kuchyně Novák"}).out, pred);
    EXPECT_EQ(spust(kombinovane).out, planPred);
    EXPECT_EQ(spust({"restore", demo()}).kod, 3);
    EXPECT_EQ(spust({"check", demo()}).kod, 3);
    EXPECT_EQ(spust({"order-dump", "Kuchyně Novák"}).out, pred);
}

// The plan as PDF in every mode and layout: one page per sheet (or two and four to a page),
// the block of information and every placed board's name as the PDF's text reads; labels 24
// to a page. A folder that does not exist gets a Czech message, exit 4 and no file.
TEST_F(CliTest, PlanAStitkyJakoPdf)
{
    if (!mamePdfText())
        GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
    zalozDemo();
    const QString pdf = m_dir.filePath(QStringLiteral("plán.pdf"));
    const QString stitky = m_dir.filePath(QStringLiteral("štítky.pdf"));
    for (const char* rezim : {"kombinovane", "podelne", "pricne"}) {
        const QJsonObject o = json(plan(rezim) << "--pdf" << pdf << "--labels-pdf" << stitky << "--dump").object();
        const QString t = pdfText(pdf, true);
        EXPECT_EQ(t.count(QLatin1Char('\f')), o[QStringLiteral("SoupisTabuli")].toArray().size()) << rezim;
        for (const char* popisek : {"Tabule:", "Rozměr tabule:", "Využití tabule [%]:", "Šířka řezu:", "Počet řezů:",
                                    "Zakázka:", "Materiál:", "Kuchyně Novák"})
            EXPECT_TRUE(t.contains(QString::fromUtf8(popisek))) << popisek;
        int usazeno = 0;
        for (const QJsonValue& d : o[QStringLiteral("SoupisDesek")].toArray()) {
            if (d[QStringLiteral("ID")].toInt() == 0)
                continue;
            ++usazeno;
            EXPECT_TRUE(t.contains(d[QStringLiteral("Oznaceni")].toString())) << rezim;
        }
        EXPECT_EQ(usazeno, 40);
        EXPECT_EQ(pdfText(stitky, true).count(QLatin1Char('\f')), 2); // 40 labels, 24 to a page
    }
    for (const char* naStranu : {"2", "4"}) {
        ASSERT_EQ(spust({"settings", "set", "Setting2", "VykresleniTabule", naStranu}).kod, 0);
        ASSERT_EQ(spust(plan("kombinovane") << "--pdf" << pdf).kod, 0);
        EXPECT_EQ(pdfText(pdf, true).count(QLatin1Char('\f')), 1) << naStranu;
    }
    const Vysledek chyba = spust(plan("kombinovane") << "--pdf" << m_dir.filePath(QStringLiteral("není/plán.pdf")));
    EXPECT_EQ(chyba.kod, 4);
    EXPECT_FALSE(chyba.err.isEmpty());
    EXPECT_FALSE(QFile::exists(m_dir.filePath(QStringLiteral("není/plán.pdf"))));
}

// calc against a computation of its own from the rows it prints: the base is the sum of Cena,
// the total the base with VAT rounded first, the tax the rest; totals agrees with it; the PDF
// reads back its title, headings and totals; an unknown assembly is refused with exit 3.
TEST_F(CliTest, KalkulaceASouctyPanelu)
{
    zalozDemo();
    const QString pdf = m_dir.filePath(QStringLiteral("kalkulace.pdf"));
    const QJsonObject o = json({"calc", "Kuchyně Novák", "--json", "--pdf", pdf}).object();
    double zaklad = 0;
    for (const QJsonValue r : o[QStringLiteral("SoupisProKalkulaci")].toArray())
        zaklad += r[QStringLiteral("Cena")].toDouble();
    const double celkem = std::round(zaklad * 1.19 * 100) / 100;
    const QJsonObject s = o[QStringLiteral("souhrn")].toObject();
    EXPECT_EQ(s[QStringLiteral("zaklad")].toString(), QString::number(zaklad, 'f', 2) + QStringLiteral(" Kč"));
    EXPECT_EQ(s[QStringLiteral("celkem")].toString(), QString::number(celkem, 'f', 2) + QStringLiteral(" Kč"));
    EXPECT_EQ(s[QStringLiteral("dph")].toString(), QString::number(celkem - zaklad, 'f', 2) + QStringLiteral(" Kč"));
    EXPECT_EQ(spust({"totals", "Kuchyně Novák"}).out.section(QLatin1Char('\n'), 0, 0), s[QStringLiteral("celkem")].toString());
    EXPECT_EQ(spust({"totals", "Kuchyně Novák", "--sestava", "Dřez80"}).out.section(QLatin1Char('\n'), 1, 1),
              QStringLiteral("1195.00 Kč"));
    if (mamePdfText()) {
        const QString t = pdfText(pdf);
        for (QString hledat : {QStringLiteral("K A L K U L A C E"), QStringLiteral("Základ daně"),
                                      QStringLiteral("Celkem včetně DPH"), QStringLiteral("Příslušenství:"),
                                      s[QStringLiteral("celkem")].toString(), QStringLiteral("Strana  1 / 2")})
            EXPECT_TRUE(t.contains(hledat.remove(QLatin1Char(' ')))) << hledat.toStdString();
    }
    const Vysledek jenDrez = spust({"calc", "Kuchyně Novák", "--sestava", "Dřez80"});
    EXPECT_EQ(jenDrez.out.section(QLatin1Char('\n'), 2, 2), QStringLiteral("Celkem včetně DPH: 1195.00 Kč"));
    EXPECT_EQ(spust({"calc", "Kuchyně Novák", "--sestava", "Není"}).kod, 3);
    EXPECT_EQ(spust({"calc", "Není"}).kod, 3);
    EXPECT_EQ(spust({"totals", "Kuchyně Novák", "--sestava", "Není"}).kod, 3);
}

namespace {

// The platform's rounding written again for the check: the value's 15-digit text, then half
// away from zero.
double zaokrouhli(double v, int mist)
{
    const double m = std::pow(10.0, mist);
    return std::round(QString::number(v * m, 'g', 15).toDouble()) / m;
}

} // namespace

// A generated order of three assemblies (1, 2 and 3 pieces) and 60 boards, each with one band
// on its first X side: calc-sestavy, quote and purchase (the cutting off) against figures
// computed here from the order itself, workshop by its row count; each PDF reads back its title and headings.
TEST_F(CliTest, VypisySestavNakupuADilnyProtiVlastnimuVypoctu)
{
    ASSERT_EQ(spust({"init"}).kod, 0);
    bezRezani();
    QJsonArray sestavy;
    double zakladSestav = 0, plochaDesek = 0, metruHrany = 0;
    int deskyCelkem = 0;
    for (int s = 1; s <= 3; ++s) {
        QJsonArray desky;
        double kus = 0;
        for (int i = 0; i < 20; ++i) {
            const int x = 100 + (i * 37 + s * 11) % 900, y = 50 + (i * 53 + s * 7) % 500, pocet = 1 + i % 3;
            desky.append(QJsonObject{{"oznaceni", QStringLiteral("díl %1").arg(i)}, {"x", x}, {"y", y}, {"pocet", pocet},
                                     {"format", 7000001}, {"ov", false}, {"hrany", QJsonArray{7000101, 0, 0, 0}}});
            const double plocha = zaokrouhli(x * double(y) / 1000000, 2);
            kus += zaokrouhli(plocha * pocet * 312.5, 2) + zaokrouhli(pocet * zaokrouhli(x / 1000.0, 3) * 9.9, 2);
            plochaDesek += s * pocet * plocha;
            metruHrany += s * pocet * zaokrouhli(x / 1000.0, 3);
            ++deskyCelkem;
        }
        zakladSestav += zaokrouhli(zaokrouhli(kus, 2) * s, 2);
        sestavy.append(QJsonObject{{"nazev", QStringLiteral("S%1").arg(s)}, {"pocet", s}, {"desky", desky}});
    }
    const QJsonObject zakazka{
        {"zakazka", "Generovaná"},
        {"formaty", QJsonArray{QJsonObject{{"id", 7000001}, {"material", "MDF 19"}, {"x", 2800}, {"y", 2070}, {"cena", 312.5}}}},
        {"hrany", QJsonArray{QJsonObject{{"id", 7000101}, {"material", "ABS 1"}, {"cena", 9.9}, {"barva", 0}, {"presah", 0}}}},
        {"sestavy", sestavy}};
    ASSERT_EQ(spust({"order-load", soubor(QStringLiteral("generovana.json"), QJsonDocument(zakazka).toJson())}).kod, 0);
    const QString castka = QString::number(zakladSestav, 'f', 2) + QStringLiteral(" Kč");
    const QString celkem = QString::number(zaokrouhli(zakladSestav * 1.19, 2), 'f', 2) + QStringLiteral(" Kč");

    for (const char* prikaz : {"calc-sestavy", "quote", "purchase"}) {
        const QJsonObject o = json({prikaz, "Generovaná", "--json"}).object();
        EXPECT_EQ(o[QStringLiteral("souhrn")][QStringLiteral("zaklad")].toString(), castka) << prikaz;
        EXPECT_EQ(o[QStringLiteral("souhrn")][QStringLiteral("celkem")].toString(), celkem) << prikaz;
        if (QLatin1String(prikaz) == QLatin1String("purchase")) {
            const QJsonArray n = o[QStringLiteral("nakup")].toArray();
            ASSERT_EQ(n.size(), 2);
            EXPECT_EQ(n[0][QStringLiteral("nakup")].toString(),
                      QString::number(std::floor(plochaDesek / (2.8 * 2.07)) + 1) + QStringLiteral(" tab. "));
            EXPECT_EQ(n[1][QStringLiteral("nakup")].toString(), QString::number(std::floor(metruHrany) + 1) + QStringLiteral(" m"));
        } else {
            const QJsonArray s = o[QStringLiteral("sestavy")].toArray();
            ASSERT_EQ(s.size(), 3);
            EXPECT_EQ(s[2][QStringLiteral("pocetsestav")].toDouble(), 3);
            EXPECT_EQ(s[2].toObject().contains(QStringLiteral("dph")), QLatin1String(prikaz) == QLatin1String("quote"));
        }
    }
    EXPECT_EQ(json({"workshop", "Generovaná", "--json", "--sestava", "S2"})[QStringLiteral("SoupisProDilnu")].toArray().size(), 40);

    if (!mamePdfText())
        return;
    const QList<std::pair<const char*, QStringList>> pdf = {
        {"calc-sestavy", {"KALKULACE SESTAV", "cena za 1 ks sestavy (bez DPH):", "Celkem včetně DPH", celkem}},
        {"quote", {"CENOVÁ NABÍDKA", "celkem s DPH:", "Základ daně", celkem}},
        {"purchase", {"NÁKUP MATERIÁLU", "Materiál", "Množství", "Nákup", "tab.", celkem}},
        {"workshop", {"SOUPIS MATERIÁLU PRO DÍLNU", "Poznámka:", "S3 - 3 ks", "ABS 1"}}};
    for (const auto& [prikaz, texty] : pdf) {
        const QString cil = m_dir.filePath(QLatin1String(prikaz) + QStringLiteral(".pdf"));
        QStringList argumenty{QLatin1String(prikaz), QStringLiteral("Generovaná"), QStringLiteral("--pdf"), cil};
        if (QLatin1String(prikaz) == QLatin1String("workshop"))
            argumenty << QStringLiteral("--schemata");
        ASSERT_EQ(spust(argumenty).kod, 0) << prikaz;
        const QString t = pdfText(cil);
        for (QString hledat : texty)
            EXPECT_TRUE(t.contains(hledat.remove(QLatin1Char(' ')))) << prikaz << " " << hledat.toStdString();
    }
    // a PDF that cannot be written: exit 4, nothing left under the name
    const QString spatne = m_dir.filePath(QStringLiteral("neni/slozka/nabidka.pdf"));
    EXPECT_EQ(spust({"quote", "Generovaná", "--pdf", spatne}).kod, 4);
    EXPECT_FALSE(QFile::exists(spatne));
}

// Offcuts offered to the plan (POdrezky 1): --write-back takes the used pieces out and books the
// remnants, offcuts-list shows the store; --vpf writes the saw's file in CR LF and replaces an
// existing one; a plan without a usable remnant makes none and says so (exit 3).
TEST_F(CliTest, OdrezkyZapisZpetAVpf)
{
    zalozDemo();
    const Vysledek nacteno = spust({"offcuts-load", soubor(QStringLiteral("odrezky.json"),
        R"([{"material": "DTD bílá 18", "x": 1000, "y": 800, "pocet": 2}, {"material": "Novák's", "x": 300, "y": 200, "pocet": 1}])")});
    ASSERT_EQ(nacteno.kod, 0) << nacteno.err.toStdString();
    EXPECT_EQ(nacteno.out, QStringLiteral("Do skladu přidáno odřezků: 2\n"));
    const Vysledek spatne = spust({"offcuts-load", soubor(QStringLiteral("spatne.json"), R"([{"material": "DTD", "x": 0, "y": 600, "pocet": 1}])")});
    EXPECT_EQ(spatne.kod, 3);
    EXPECT_TRUE(spatne.err.startsWith(QStringLiteral("Odřezek č. 1: údaj „x“")));
    EXPECT_EQ(json({"offcuts-list"}).array().size(), 2);
    ASSERT_EQ(spust({"settings", "set", "Setting2", "POdrezky", "1"}).kod, 0);
    const QString vpf = soubor(QStringLiteral("OUT00000.VPF"), "stary soubor");
    const Vysledek v = spust(plan("kombinovane") << "--vpf" << vpf << "--write-back");
    ASSERT_EQ(v.kod, 0) << v.err.toStdString();
    EXPECT_TRUE(v.err.contains(QStringLiteral("CNC kód byl uložen")));
    const QByteArray vpfObsah = obsahSouboru(vpf);
    EXPECT_TRUE(vpfObsah.startsWith("[COMMON]\r\nOrderNote="));
    EXPECT_TRUE(vpfObsah.contains("\r\n[SHEET1]\r\nSheet=1;10000;8000;1;1;0\r\n")); // an offcut sheet comes first
    const QJsonArray sklad = json({"offcuts-list"}).array();
    ASSERT_FALSE(sklad.isEmpty());
    for (const QJsonValue r : sklad)
        EXPECT_FALSE(r[QStringLiteral("x")].toDouble() == 1000 && r[QStringLiteral("y")].toDouble() == 800); // both pieces used

    // a sheet cut whole leaves no remnant worth keeping: no file, a Czech reason
    ASSERT_EQ(spust({"order-load", soubor(QStringLiteral("plna.json"),
        R"({"zakazka": "Plná", "formaty": [{"id": 7000007, "material": "MDF", "x": 1000, "y": 600}],
            "sestavy": [{"nazev": "S", "desky": [{"oznaceni": "celá", "x": 1000, "y": 600, "pocet": 1, "format": 7000007}]}]})")}).kod, 0);
    const QString zadny = m_dir.filePath(QStringLiteral("zadny.VPF"));
    const Vysledek bez = spust({"plan", "Plná", "--format", "7000007", "--mode", "podelne", "--vpf", zadny});
    EXPECT_EQ(bez.kod, 3);
    EXPECT_TRUE(bez.err.contains(QStringLiteral("nevznikl"))) << bez.err.toStdString();
    EXPECT_FALSE(QFile::exists(zadny));
}

TEST_F(CliTest, MoznostiJakoPouzitAJazykoveSoubory)
{
    ASSERT_EQ(spust({"init"}).kod, 0);
    EXPECT_TRUE(QFile::exists(domov() + QStringLiteral("/czech.txt")));
    EXPECT_TRUE(QFile::exists(domov() + QStringLiteral("/english.txt")));
    EXPECT_TRUE(spust({"options", "show"}).out.contains(QStringLiteral("\"Srez\": \"4 mm\"")));
    EXPECT_EQ(spust({"options", "apply", "Srez=3", "Jednotky=1"}).kod, 0);
    const QString ukazano = spust({"options", "show"}).out;
    EXPECT_TRUE(ukazano.contains(QStringLiteral("\"Srez\": \"0.3 cm\""))) << ukazano.toStdString();
    EXPECT_TRUE(ukazano.contains(QStringLiteral("\"Jednotky\": \"100 cm\"")));
    const Vysledek odmitnuto = spust({"options", "apply", "XZ=5", "DPH=abc"});
    EXPECT_EQ(odmitnuto.kod, 3);
    EXPECT_EQ(odmitnuto.err.trimmed(), QStringLiteral("Zadejte v poli „DPH [%]“ číslo od 0 do 100!"));
    EXPECT_EQ(spust({"settings", "get", "Setting2", "XZ"}).out.trimmed(), QStringLiteral("100"));
    EXPECT_EQ(spust({"options", "apply", "BarvaDesky=#FF0000"}).kod, 0);
    EXPECT_EQ(spust({"settings", "get", "Setting", "BarvaDesky"}).out.trimmed(), QStringLiteral("&H000000FF&"));
    EXPECT_EQ(spust({"options", "apply", "Srez"}).kod, 2);

    const Vysledek anglicky = spust({"language-check", "english"});
    EXPECT_EQ(anglicky.kod, 0);
    const QStringList radky = anglicky.out.trimmed().split(QLatin1Char('\n'));
    ASSERT_EQ(radky.size(), 109);
    EXPECT_EQ(radky.first(), QStringLiteral("1\tZakazka\t&Order"));
    EXPECT_EQ(spust({"language-check", soubor("kratky.txt", "&Zakázka\n")}).kod, 3);
    EXPECT_EQ(spust({"language-check", m_dir.filePath("neni.txt")}).err.trimmed(),
              QStringLiteral("Soubor jazykové verze neexistuje!!!"));
}

// "Úsporně" from the command line: --cas in place of the setting, and the plan's pages, labels,
// saw file and write-back made as for the other ways; a budget that is no number is refused.
TEST_F(CliTest, PlanUsporneSVystupy)
{
    zalozDemo();
    const QString pdf = m_dir.filePath(QStringLiteral("úsporně.pdf"));
    const QString stitky = m_dir.filePath(QStringLiteral("štítky.pdf"));
    const QString vpf = m_dir.filePath(QStringLiteral("OUT00000.VPF"));
    const QJsonObject o = json(plan("usporne") << "--cas" << "0.2" << "--dump" << "--pdf" << pdf << "--labels-pdf" << stitky
                                               << "--vpf" << vpf << "--write-back").object();
    int usazeno = 0;
    for (const QJsonValue& d : o[QStringLiteral("SoupisDesek")].toArray())
        usazeno += d[QStringLiteral("ID")].toInt() != 0;
    EXPECT_EQ(usazeno, 40);
    EXPECT_FALSE(o["warning"].toBool());
    EXPECT_EQ(o["RezyNaTabuli"].toObject().size(), o["SoupisTabuli"].toArray().size());
    for (const QString& soubor : {pdf, stitky, vpf})
        EXPECT_GT(QFileInfo(soubor).size(), 0) << soubor.toStdString();
    EXPECT_FALSE(json({"offcuts-list"}).array().isEmpty()); // its remnants booked
    EXPECT_EQ(spust(plan("usporne") << "--cas" << "dlouho").kod, 2);
    EXPECT_EQ(spust(plan("usporne") << "--cas" << "-1").kod, 3);
}
