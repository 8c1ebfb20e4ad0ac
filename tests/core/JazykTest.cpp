// The language files: the built-in pair, what a damaged file is, and that every menu keeps its
// accelerators unique in English as in Czech.
#include "core/Jazyk.h"
#include "DomovTest.h"
#include "PoruchaSouboru.h"
#include "core/Aplikace.h"
#include "core/Error.h"

#include <QFile>
#include <QSet>

namespace {

QStringList vestavene(Jazyk::Soubor s) { return QString::fromUtf8(Jazyk::vestaveny(s)).split(QLatin1Char('\n')); }

class Jazyk_ : public DomovTest {
protected:
    QString zapis(const QByteArray& obsah)
    {
        const QString cesta = QDir(domov()).filePath(QStringLiteral("zkouska.txt"));
        QDir().mkpath(domov());
        zapisSoubor(cesta, obsah);
        return cesta;
    }
    int chyba(const QByteArray& obsah)
    {
        return cisloChyby([&] { Jazyk::nacti(zapis(obsah)); });
    }
};

QChar akcelerator(const QString& popisek)
{
    const qsizetype i = popisek.indexOf(QLatin1Char('&'));
    return i >= 0 && i + 1 < popisek.size() ? popisek.at(i + 1).toLower() : QChar();
}

} // namespace

TEST_F(Jazyk_, TabulkaRadkuPokryvaKazdyRadekJednou)
{
    const auto& cile = Jazyk::cile();
    ASSERT_EQ(int(cile.size()), Jazyk::PocetRadku);
    QSet<QString> videne;
    for (int i = 0; i < Jazyk::PocetRadku; ++i) {
        EXPECT_EQ(cile[i].radek, i + 1);
        EXPECT_FALSE(videne.contains(cile[i].popis())) << cile[i].popis().toStdString();
        videne.insert(cile[i].popis());
    }
    EXPECT_EQ(cile[52].popis(), QStringLiteral("tbNZ (tip)"));
    EXPECT_EQ(cile[105].popis(), QStringLiteral("fraPrislusenstvi"));
}

TEST_F(Jazyk_, ZalozeniZapiseSouboryAUpravenyNeprepise)
{
    Aplikace::zaloz();
    for (auto s : {Jazyk::Soubor::Cestina, Jazyk::Soubor::Anglictina})
        EXPECT_EQ(Jazyk::nacti(Jazyk::cesta(s)).size(), Jazyk::PocetRadku);
    QFile f(Jazyk::cesta(Jazyk::Soubor::Anglictina));
    ASSERT_TRUE(f.open(QIODevice::Append));
    f.write("navíc\n"); // a line past 109 is ignored
    f.close();
    const QByteArray upraveny = obsahSouboru(f.fileName());
    Aplikace::zaloz();
    EXPECT_EQ(obsahSouboru(f.fileName()), upraveny);
    EXPECT_EQ(Jazyk::nacti(Jazyk::cesta(Jazyk::Soubor::Anglictina)).last(), QStringLiteral("Delete"));

    // a missing file that cannot be written stays missing, the edited one untouched
    const QString cestina = Jazyk::cesta(Jazyk::Soubor::Cestina);
    ASSERT_TRUE(QFile::remove(cestina));
    ocekavejPoruchySouboru(cestina, [] { Jazyk::zapisChybejici(); });
    EXPECT_EQ(Jazyk::nacti(Jazyk::cesta(Jazyk::Soubor::Anglictina)).last(), QStringLiteral("Delete"));
}

TEST_F(Jazyk_, PoskozenyAChybejiciSoubor)
{
    const QByteArray dobry = Jazyk::vestaveny(Jazyk::Soubor::Anglictina);
    EXPECT_EQ(chyba(dobry), 0);
    QByteArray crlf = dobry;
    EXPECT_EQ(chyba(crlf.replace("\n", "\r\n")), 0);
    EXPECT_EQ(Jazyk::nacti(zapis(crlf)).first(), QStringLiteral("&Order"));
    EXPECT_EQ(chyba(dobry.left(dobry.lastIndexOf("Edit"))), Chyba::NeplatnyVstup); // 108 lines
    QByteArray latin = dobry;
    EXPECT_EQ(chyba(latin.replace("Order", "Objedn\xe1vka")), Chyba::NeplatnyVstup);
    QStringList radky = vestavene(Jazyk::Soubor::Anglictina);
    radky[11] = QStringLiteral("  ");
    EXPECT_EQ(chyba(radky.join(QLatin1Char('\n')).toUtf8()), Chyba::NeplatnyVstup);
    radky = vestavene(Jazyk::Soubor::Anglictina);
    radky[Jazyk::NezobrazenyRadek - 1].clear();
    EXPECT_EQ(chyba(radky.join(QLatin1Char('\n')).toUtf8()), 0);
    EXPECT_EQ(chybaZ([&] { Jazyk::nacti(QDir(domov()).filePath(QStringLiteral("neni.txt"))); }).text(),
              QStringLiteral("Soubor jazykové verze neexistuje!!!"));
}

TEST_F(Jazyk_, AkceleratoryJsouJedinecneVKazdemMenu)
{
    // the lines of each menu, the menu bar first
    const std::vector<std::vector<int>> menu = {{34, 29, 35, 38, 46, 49},
                                                {1, 6, 11, 15, 19, 23, 27, 28},
                                                {2, 3, 4, 5},
                                                {7, 8, 9, 10},
                                                {12, 13, 14},
                                                {16, 17, 18},
                                                {20, 21, 22},
                                                {24, 25, 26},
                                                {30, 31, 32, 33},
                                                {36, 37},
                                                {39, 40, 41, 42, 43, 44, 45},
                                                {47, 48},
                                                {50, 51}};
    const QStringList cz = vestavene(Jazyk::Soubor::Cestina), en = vestavene(Jazyk::Soubor::Anglictina);
    for (const auto& radky : menu) {
        QSet<QChar> pouzite;
        for (int r : radky) {
            const QChar a = akcelerator(en[r - 1]);
            EXPECT_EQ(a.isNull(), akcelerator(cz[r - 1]).isNull()) << "řádek " << r;
            if (a.isNull())
                continue;
            EXPECT_FALSE(pouzite.contains(a)) << "řádek " << r << ": " << en[r - 1].toStdString();
            pouzite.insert(a);
        }
    }
}
