// truhlar-cli under faults a careless choice, a full disk or a second process brings: files of
// the store named as output, outputs on a disk that fills up, several commands on one
// application folder at once.
#include "SpusteniCli.h"
#include "VzorkyObrazku.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <memory>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class Odolnost : public SpusteniCli {
protected:
    void SetUp() override { zalozDemo(); }
    QString data(const QString& nazev) const { return domov() + QStringLiteral("/Data/") + nazev; }
};

} // namespace

TEST_F(Odolnost, VystupDoSlozkyDatJeOdmitnutADataZustanou)
{
    const QString zakazky = spust({"order-list"}).out;
    const QString cenik = spust({"pricelist-dump"}).out;
    ASSERT_TRUE(QFile::link(data(QStringLiteral("DataS.db")), m_dir.filePath(QStringLiteral("odkaz.bvk"))));
    ASSERT_EQ(::link(QFile::encodeName(data(QStringLiteral("Cenik.db"))).constData(),
                     QFile::encodeName(m_dir.filePath(QStringLiteral("tvrdy.cen"))).constData()), 0);
    const QList<QStringList> prikazy = {
        {"pricelist-backup", data(QStringLiteral("DataS.db"))},
        {"backup", data(QStringLiteral("Cenik.db"))},
        {"backup", data(QStringLiteral("DataS.db-journal"))},
        {"backup", data(QStringLiteral(".lock"))},
        {"backup", data(QStringLiteral("nova.bvk"))},
        {"backup", domov() + QStringLiteral("/Data/../Data/DataS.db")},
        {"pricelist-backup", m_dir.filePath(QStringLiteral("odkaz.bvk"))},
        {"backup", m_dir.filePath(QStringLiteral("tvrdy.cen"))},
        plan("kombinovane") << "--pdf" << data(QStringLiteral("DataS.db")),
        plan("kombinovane") << "--vpf" << data(QStringLiteral("Cenik.db")),
        plan("kombinovane") << "--labels-pdf" << data(QStringLiteral("DataS.db")),
        {"calc", "Kuchyně Novák", "--pdf", data(QStringLiteral("DataS.db"))},
        {"pricelist-pdf", data(QStringLiteral("Cenik.db"))},
    };
    for (const QStringList& p : prikazy) {
        const Vysledek v = spust(p);
        EXPECT_EQ(v.kod, 3) << p.join(' ').toStdString() << v.err.toStdString();
        EXPECT_TRUE(v.err.contains(QStringLiteral("patří k databázím programu"))) << v.err.toStdString();
    }
    EXPECT_FALSE(QFile::exists(data(QStringLiteral("nova.bvk"))));
    EXPECT_EQ(spust({"order-list"}).out, zakazky);
    EXPECT_EQ(spust({"pricelist-dump"}).out, cenik);
    EXPECT_EQ(spust({"check"}).kod, 0);
    // beside the store, a backup still goes where it is asked
    EXPECT_EQ(spust({"backup", domov() + QStringLiteral("/Zálohy dat/a.bvk")}).kod, 0);
}

// Every file the command line writes whole, on a disk that fills up at the file's sync: exit 4
// with the Czech message, and neither the file nor a temporary one beside it.
TEST_F(Odolnost, VystupyNaPlnemDiskuNezanechajiNic)
{
    ASSERT_EQ(spust({"picture-add", soubor(QStringLiteral("o.png"), vzorek("png"))}).kod, 0);
    const QString plny = m_dir.filePath(QStringLiteral("plny"));
    ASSERT_TRUE(QDir().mkpath(plny));
    QProcessEnvironment env;
    env.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(ZABITI_PRI_SYNCU));
    env.insert(QStringLiteral("TRUHLAR_PLNY_DISK"), plny);
    const QList<QStringList> prikazy = {
        plan("kombinovane") << "--pdf" << plny + QStringLiteral("/plan.pdf"),
        plan("kombinovane") << "--labels-pdf" << plny + QStringLiteral("/stitky.pdf"),
        plan("kombinovane") << "--vpf" << plny + QStringLiteral("/OUT00000.VPF"),
        {"calc", "Kuchyně Novák", "--pdf", plny + QStringLiteral("/kalkulace.pdf")},
        {"pricelist-pdf", plny + QStringLiteral("/cenik.pdf")},
        {"picture-get", "1", plny + QStringLiteral("/o.png")},
        {"picture-render", "1", plny + QStringLiteral("/male.png")},
    };
    for (const QStringList& p : prikazy) {
        const Vysledek v = spust(p, env);
        EXPECT_EQ(v.kod, 4) << p.join(' ').toStdString() << v.err.toStdString();
        EXPECT_TRUE(v.err.contains(QStringLiteral("Na disku není dostatek místa!!!"))) << v.err.toStdString();
    }
    EXPECT_EQ(QDir(plny).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    EXPECT_EQ(spust({"check"}).kod, 0);
}

TEST_F(Odolnost, DvaPlanyAObnovaNaraz)
{
    ASSERT_EQ(spust({"order-load", soubor(QStringLiteral("druha.json"),
        R"({"zakazka": "Druhá", "formaty": [{"id": 5000001, "material": "MDF", "x": 2000, "y": 1000}],
            "sestavy": [{"nazev": "A", "desky": [{"oznaceni": "d", "x": 500, "y": 300, "pocet": 7, "format": 5000001}]}]})")}).kod, 0);
    const QString zaloha = m_dir.filePath(QStringLiteral("z.bvk"));
    ASSERT_EQ(spust({"backup", zaloha}).kod, 0);
    const QList<QStringList> prikazy = {
        plan("kombinovane") << "--dump",
        {"plan", "Druhá", "--format", "5000001", "--mode", "podelne", "--dump"},
        {"restore", zaloha},
    };
    // alone, each plan gives its one answer
    QStringList samotne;
    for (int i = 0; i < 2; ++i) {
        const Vysledek v = spust(prikazy[i]);
        ASSERT_EQ(v.kod, 0) << v.err.toStdString();
        samotne << v.out;
    }
    ASSERT_NE(samotne[0], samotne[1]);

    int hotovo = 0;
    for (int kolo = 0; kolo < 4; ++kolo) {
        std::vector<std::unique_ptr<QProcess>> procesy;
        for (const QStringList& p : prikazy)
            startuj(*procesy.emplace_back(std::make_unique<QProcess>()), p);
        for (size_t i = 0; i < procesy.size(); ++i) {
            QProcess& p = *procesy[i];
            ASSERT_TRUE(p.waitForFinished(60000));
            const QString err = QString::fromUtf8(p.readAllStandardError());
            if (p.exitCode() == 0) {
                ++hotovo;
                if (i < 2) {
                    EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()), samotne[int(i)]) << kolo; // its own order only
                }
                continue;
            }
            // busy beyond a short wait: said in the program's words, and nothing else
            EXPECT_EQ(p.exitCode(), 4) << kolo << err.toStdString();
            EXPECT_TRUE(err.contains(QStringLiteral("používána jiným programem"))) << err.toStdString();
            EXPECT_FALSE(err.contains(QStringLiteral("Porucha"))) << err.toStdString();
        }
    }
    EXPECT_GT(hotovo, 0);
    EXPECT_EQ(spust({"order-list"}).out, QStringLiteral("Kuchyně Novák\nDruhá\n"));
    EXPECT_EQ(spust({"check"}).kod, 0);
    // all have ended: the next start leaves no private file of theirs in Data/
    spust({"order-list"});
    for (const QString& s : QDir(domov() + QStringLiteral("/Data")).entryList(QDir::Files | QDir::Hidden))
        EXPECT_TRUE(s == QLatin1String(".lock") || s.endsWith(QLatin1String(".db"))) << s.toStdString();
    for (const QString& s : QDir(domov() + QStringLiteral("/Data")).entryList({QStringLiteral("DataK*")}, QDir::Files))
        ADD_FAILURE() << s.toStdString();
}

TEST_F(Odolnost, ObnovaJenZObycejnehoSouboruAPoCizimZapisu)
{
    const QString zaloha = m_dir.filePath(QStringLiteral("z.bvk"));
    ASSERT_EQ(spust({"backup", zaloha}).kod, 0);
    const QString fifo = m_dir.filePath(QStringLiteral("roura.bvk"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QString nuly = m_dir.filePath(QStringLiteral("nuly.bvk"));
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), nuly));
    for (const QString& s : {fifo, nuly, m_dir.path()}) {
        for (const char* prikaz : {"restore", "pricelist-restore", "order-load", "import"}) {
            QStringList a = {prikaz, s};
            if (a[0] == QLatin1String("import"))
                a << "--order" << "Kuchyně Novák" << "--assembly" << "Sokl";
            const Vysledek v = spust(a);
            EXPECT_EQ(v.kod, 3) << prikaz << " " << s.toStdString() << v.err.toStdString();
            EXPECT_TRUE(v.err.contains(QStringLiteral("není obyčejný soubor"))) << v.err.toStdString();
        }
    }

    // another program in the middle of a write: the restore waits, then refuses, and that
    // program's commit stays in the data
    sqlite3* cizi = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(data(QStringLiteral("DataS.db"))).constData(), &cizi), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(cizi, "BEGIN IMMEDIATE; UPDATE Zakazky SET Poznamka = 'cizí zápis'", nullptr, nullptr, nullptr),
              SQLITE_OK);
    const Vysledek v = spust({"--verbose", "restore", zaloha});
    EXPECT_EQ(v.kod, 4) << v.err.toStdString();
    EXPECT_TRUE(v.err.contains(QStringLiteral("používána jiným programem!\nAž ukončíte"))) << v.err.toStdString();
    EXPECT_TRUE(v.err.contains(QStringLiteral("BEGIN IMMEDIATE: database is locked"))) << v.err.toStdString(); // --verbose
    ASSERT_EQ(sqlite3_exec(cizi, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(cizi);
    EXPECT_TRUE(spust({"order-dump", "Kuchyně Novák"}).out.contains(QStringLiteral("cizí zápis")));
}

TEST_F(Odolnost, NazvySRidicimiZnakyNeboPrilisDlouheNevstoupi)
{
    const QString pred = spust({"order-list"}).out;
    const QByteArray dlouhy(300, 'a');
    const QList<QByteArray> zakazky = {
        R"({"zakazka": "Nul\u0000ka", "sestavy": []})",
        R"({"zakazka": "Půl\ud800znaku", "sestavy": []})",
        R"({"zakazka": "Z", "sestavy": [{"nazev": "S", "desky": [{"oznaceni": "bok\u001b", "x": 1, "y": 1, "format": 5}]}],
            "formaty": [{"id": 5, "material": "M", "x": 100, "y": 100}]})",
        R"({"zakazka": "Z", "formaty": [{"id": 5, "material": ")" + dlouhy + R"(", "x": 100, "y": 100}]})",
    };
    const char* pole[] = {"zakazka", "zakazka", "oznaceni", "material"};
    for (int i = 0; i < zakazky.size(); ++i) {
        const Vysledek v = spust({"order-load", soubor(QStringLiteral("z%1.json").arg(i), zakazky[i])});
        EXPECT_EQ(v.kod, 3) << i << v.err.toStdString();
        EXPECT_TRUE(v.err.contains(QStringLiteral("„%1“").arg(QLatin1String(pole[i])))) << v.err.toStdString();
    }
    EXPECT_EQ(spust({"order-list"}).out, pred);
    // a note may run over lines; a name of 255 characters is still a name
    EXPECT_EQ(spust({"order-load", soubor(QStringLiteral("ok.json"), R"({"zakazka": "Řádky", "poznamka": "a\r\nb\tc",
        "formaty": [{"id": 5, "material": ")" + QByteArray(255, 'm') + R"(", "x": 100, "y": 100}]})")}).kod, 0);

    const QString dump = spust({"order-dump", "Kuchyně Novák"}).out;
    const Vysledek import = spust({"import", soubor(QStringLiteral("s.txt"), QByteArray("police;562;300;2\r\nbok\x01;10;10;1\r\n")),
                                   "--order", "Kuchyně Novák", "--assembly", "Sokl"});
    EXPECT_EQ(import.kod, 3);
    EXPECT_TRUE(import.err.contains(QStringLiteral("Název desky"))) << import.err.toStdString();
    EXPECT_EQ(spust({"order-dump", "Kuchyně Novák"}).out, dump);
    EXPECT_EQ(spust({"order-copy", "Kuchyně Novák", QString(51, QLatin1Char('k'))}).kod, 3);
}

TEST_F(Odolnost, SlozkaJenProCteniSeCteAZapisOdmitne)
{
    // the application folder mounted read-only, in a mount namespace of the command's own
    const auto jenProCteni = [&](const QStringList& argumenty) {
        return spust(argumenty, {}, {"unshare", "-m", "sh", "-c",
                                     R"(mount --bind "$0" "$0" && mount -o remount,bind,ro "$0" "$0" && exec "$@")", domov()});
    };
    if (jenProCteni({"order-list"}).err.contains(QStringLiteral("mount")))
        GTEST_SKIP() << "no mount namespace here";
    const QStringList kombinovane = plan("kombinovane") << "--dump";
    const QString planVPoradku = spust(kombinovane).out;
    ::unlink(QFile::encodeName(data(QStringLiteral(".lock"))).constData()); // as a folder copied to a CD would be

    EXPECT_EQ(jenProCteni({"order-list"}).out, QStringLiteral("Kuchyně Novák\n"));
    EXPECT_EQ(jenProCteni({"order-dump", "Kuchyně Novák"}).out, spust({"order-dump", "Kuchyně Novák"}).out);
    EXPECT_EQ(jenProCteni({"check"}).kod, 0);
    const Vysledek v = jenProCteni(kombinovane);
    EXPECT_EQ(v.kod, 0) << v.err.toStdString();
    EXPECT_EQ(v.out, planVPoradku);
    EXPECT_EQ(jenProCteni({"calc", "Kuchyně Novák", "--json"}).kod, 0);
    EXPECT_EQ(jenProCteni({"backup", m_dir.filePath(QStringLiteral("venku.bvk"))}).kod, 0);
    EXPECT_EQ(spust({"check", m_dir.filePath(QStringLiteral("venku.bvk"))}).kod, 0);

    for (const QStringList& zapis : {QStringList{"order-load", soubor(QStringLiteral("n.json"), R"({"zakazka": "Nová"})")},
                                     QStringList{"restore", m_dir.filePath(QStringLiteral("venku.bvk"))}}) {
        const Vysledek z = jenProCteni(zapis);
        EXPECT_EQ(z.kod, 4) << z.err.toStdString();
        EXPECT_TRUE(z.err.contains(QStringLiteral("Složka s daty je jen pro čtení"))) << z.err.toStdString();
    }
}

TEST_F(Odolnost, PolozkaCenikuSRidicimZnakemNevstoupi)
{
    const Vysledek v = spust({"pricelist-load", soubor(QStringLiteral("c.json"),
        R"([{"kod": 8, "nazev": "Pant", "cena": 25, "jednotka": "ks", "skupina": "P"},
            {"kod": 9, "nazev": "Úchyt\u0000ka", "cena": 40, "jednotka": "ks", "skupina": "P"}])")});
    EXPECT_EQ(v.kod, 3) << v.err.toStdString();
    EXPECT_TRUE(v.err.contains(QStringLiteral("„Název“"))) << v.err.toStdString();
    EXPECT_TRUE(json({"pricelist-dump"}).array().isEmpty());
}
