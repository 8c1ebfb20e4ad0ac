// The price list, the libraries and the accessories on the command line.
#include "SpusteniCli.h"
#include "VzorkyObrazku.h"

#include <QDir>
#include <QImage>

namespace {

class CenikCliTest : public SpusteniCli {
protected:
    void SetUp() override { ASSERT_EQ(spust({"init"}).kod, 0); }
};

const char* const polozky = R"([
 {"kod": 3, "nazev": "Dub 'Rustikál'", "cena": 1200.5, "jednotka": "m2", "skupina": "PM", "obr1": 0, "obr2": 0},
 {"kod": 1, "nazev": "Čep", "cena": 2.125, "jednotka": "ks", "skupina": "P", "obr1": 0, "obr2": 0},
 {"kod": 2, "nazev": "hrana ABS", "cena": 12, "jednotka": "bm", "skupina": "H", "obr1": 0, "obr2": 0}
])";

} // namespace

TEST_F(CenikCliTest, CenikTamAZpetVsechnoNeboNic)
{
    const Vysledek nahrani = spust({"pricelist-load", soubor(QStringLiteral("c.json"), polozky)});
    ASSERT_EQ(nahrani.kod, 0) << nahrani.err.toStdString();
    const QJsonArray cekano = QJsonDocument::fromJson(polozky).array();
    EXPECT_EQ(json({"pricelist-dump", "--razeni", "Kod"}).array(), QJsonArray({cekano[1], cekano[2], cekano[0]}));
    EXPECT_EQ(json({"pricelist-dump"}).array(), QJsonArray({cekano[1], cekano[0], cekano[2]}));

    const Vysledek dvojnik =
        spust({"pricelist-load", soubor(QStringLiteral("d.json"),
                                        R"([{"kod": 9, "nazev": "Nová", "cena": 1, "jednotka": "ks", "skupina": "P"},
            {"kod": 8, "nazev": "DUB 'rustikál'", "cena": 1, "jednotka": "ks", "skupina": "P"}])")});
    EXPECT_EQ(dvojnik.kod, 3);
    EXPECT_TRUE(dvojnik.err.contains(QStringLiteral("Položka pod tímhle názvem již existuje"))) << dvojnik.err.toStdString();
    EXPECT_EQ(json({"pricelist-dump"}).array().size(), 3);
    const QString pdf = m_dir.filePath(QStringLiteral("cenik.pdf"));
    EXPECT_EQ(spust({"pricelist-pdf", pdf}).kod, 0);
    EXPECT_TRUE(QFile(pdf).size() > 1000);
}

TEST_F(CenikCliTest, ObrazkyBajtZaBajtemPoskozenyNeuloziNic)
{
    const QByteArray jpg = vzorek("jpg", {300, 200});
    const Vysledek pridani = spust({"picture-add", soubor(QStringLiteral("dub.jpg"), jpg)});
    ASSERT_EQ(pridani.kod, 0) << pridani.err.toStdString();
    EXPECT_EQ(pridani.out.trimmed(), QStringLiteral("1"));
    EXPECT_EQ(spust({"picture-add", soubor(QStringLiteral("s.wmf"), vzorekWmf())}).out.trimmed(), QStringLiteral("2"));
    const QString zpet = m_dir.filePath(QStringLiteral("zpet.jpg"));
    ASSERT_EQ(spust({"picture-get", "1", zpet}).kod, 0);
    EXPECT_EQ(obsahSouboru(zpet), jpg);

    const Vysledek poskozeny = spust({"picture-add", soubor(QStringLiteral("zlom.jpg"), jpg.left(jpg.size() / 2))});
    EXPECT_EQ(poskozeny.kod, 3);
    EXPECT_TRUE(
        poskozeny.err.contains(QStringLiteral("Soubor „zlom.jpg“ není obrázek JPG, PNG, BMP, GIF ani WMF, nebo je poškozený.")));
    const QJsonArray seznam = json({"picture-list"}).array();
    ASSERT_EQ(seznam.size(), 2);
    EXPECT_EQ(seznam[0][QStringLiteral("nazev")].toString(), QStringLiteral("dub.jpg"));
    EXPECT_EQ(seznam[0][QStringLiteral("format")].toString(), QStringLiteral("jpeg"));
    EXPECT_EQ(seznam[0][QStringLiteral("bytes")].toInt(), jpg.size());
    EXPECT_EQ(seznam[0][QStringLiteral("width")].toInt(), 300);
    EXPECT_EQ(seznam[1][QStringLiteral("format")].toString(), QStringLiteral("wmf"));

    const QString png = m_dir.filePath(QStringLiteral("male.png"));
    ASSERT_EQ(spust({"picture-render", "1", png, "--fit", "150x150"}).kod, 0);
    EXPECT_EQ(QImage(png).size(), QSize(150, 100));
    // an output the file system refuses: exit 4 with the reason, and no file, whole or half
    const QString nikam = m_dir.filePath(QStringLiteral("není/x.png"));
    for (const QStringList& prikaz : {QStringList{"picture-get", "1", nikam}, QStringList{"picture-render", "1", nikam}}) {
        const Vysledek v = spust(prikaz);
        EXPECT_EQ(v.kod, 4) << prikaz.join(' ').toStdString();
        EXPECT_TRUE(v.err.contains(nikam)) << v.err.toStdString();
    }
    EXPECT_FALSE(QDir(m_dir.filePath(QStringLiteral("není"))).exists());
    EXPECT_EQ(spust({"picture-delete", "2"}).kod, 0);
    EXPECT_EQ(spust({"picture-get", "2", zpet}).kod, 3);
    EXPECT_EQ(spust({"picture-list", "--schema"}).out.trimmed(), QStringLiteral("[\n]"));
}

// Accessories from the price list count in the costing with the accessory discount; a
// quantity of 0 is refused and nothing changes.
TEST_F(CenikCliTest, PrislusenstviZCenikuVKalkulaci)
{
    ASSERT_EQ(spust({"pricelist-load", soubor(QStringLiteral("c.json"), polozky)}).kod, 0);
    ASSERT_EQ(spust({"order-load", soubor(QStringLiteral("z.json"), R"({"zakazka": "Z", "sestavy": [{"nazev": "S", "pocet": 1}]})")}).kod, 0);
    ASSERT_EQ(spust({"settings", "set", "Setting", "SlevaPris", "10"}).kod, 0);
    const Vysledek pridani = spust({"accessory-add", "Z", "S", "Čep", "2.125"});
    ASSERT_EQ(pridani.kod, 0) << pridani.err.toStdString();
    EXPECT_EQ(spust({"accessory-add", "Z", "S", "pant", "0", "--price", "5"}).kod, 3);
    const QJsonArray pr = json({"order-dump", "Z"})[QStringLiteral("sestavy")][0][QStringLiteral("prislusenstvi")].toArray();
    ASSERT_EQ(pr.size(), 1);
    EXPECT_EQ(pr[0][QStringLiteral("mnozstvi")].toDouble(), 2.125);
    EXPECT_EQ(pr[0][QStringLiteral("jednotka")].toString(), QStringLiteral("ks"));
    EXPECT_EQ(pr[0][QStringLiteral("cena")].toDouble(), 2.125);
    const QJsonArray radky = json({"calc", "Z", "--json"})[QStringLiteral("SoupisProKalkulaci")].toArray();
    ASSERT_EQ(radky.size(), 1);
    EXPECT_DOUBLE_EQ(radky[0][QStringLiteral("JC")].toDouble(), 1.91); // 2.125 less 10 %, rounded
    EXPECT_EQ(spust({"accessory-delete", "Z", "S", "Čep"}).kod, 0);
    EXPECT_TRUE(json({"order-dump", "Z"})[QStringLiteral("sestavy")][0][QStringLiteral("prislusenstvi")].toArray().isEmpty());

    const Vysledek nula = spust({"order-load", soubor(QStringLiteral("n.json"),
        R"({"zakazka": "N", "sestavy": [{"nazev": "S", "prislusenstvi": [{"oznaceni": "pant", "mnozstvi": 0, "cena": 1}]}]})")});
    EXPECT_EQ(nula.kod, 3);
    EXPECT_TRUE(nula.err.contains(QStringLiteral("Zadejte množství a cenu číslem.")));
}
