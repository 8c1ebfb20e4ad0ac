// Each writing command killed at each of its disk syncs in turn: the store afterwards holds
// either everything the command meant to write or nothing of it.
#include "SpusteniCli.h"

#include "core/Database.h"
#include "core/Prikaz.h"

#include <QDirIterator>
#include <set>

namespace {

class ZabitiPriSyncu : public SpusteniCli {
protected:
    // The folder every attempt starts from: two orders, offcuts, a price list, and backups that
    // differ from what is stored.
    void SetUp() override
    {
        zalozDemo();
        ASSERT_EQ(spust({"backup", zaloha()}).kod, 0);
        ASSERT_EQ(spust({"pricelist-backup", m_dir.filePath(QStringLiteral("c.cen"))}).kod, 0);
        ASSERT_EQ(spust({"pricelist-load", soubor(QStringLiteral("c.json"),
            R"([{"kod": 8, "nazev": "Pant", "cena": 25, "jednotka": "ks", "skupina": "P"},
                {"kod": 9, "nazev": "Úchytka", "cena": 40, "jednotka": "ks", "skupina": "P"}])")}).kod, 0);
        ASSERT_EQ(spust({"offcuts-load", soubor(QStringLiteral("o.json"),
            R"([{"material": "DTD bílá 18", "x": 1000, "y": 800, "pocet": 2},
                {"material": "DTD bílá 18", "x": 700, "y": 600, "pocet": 1}])")}).kod, 0);
        ASSERT_EQ(spust({"settings", "set", "Setting2", "POdrezky", "1"}).kod, 0);
        soubor(QStringLiteral("seznam.txt"), "police;562;300;2\r\nčelo;596;716;1\r\ndno;500;400;3\r\n");
        soubor(QStringLiteral("druha.json"),
               R"({"zakazka": "Druhá", "formaty": [{"id": 7000007, "material": "MDF", "x": 2000, "y": 1000}],
                   "sestavy": [{"nazev": "A", "desky": [{"oznaceni": "d", "x": 500, "y": 300, "pocet": 2, "format": 7000007}]},
                               {"nazev": "B", "desky": [{"oznaceni": "e", "x": 400, "y": 300, "pocet": 1, "format": 7000007}]}]})");
    }

    QString zaloha() const { return m_dir.filePath(QStringLiteral("z.bvk")); }
    QString pokus() const { return m_dir.filePath(QStringLiteral("pokus")); }

    // The test's folder as it stands after SetUp, copied fresh for one attempt.
    void obnovPokus()
    {
        QDir(pokus()).removeRecursively();
        for (const QString& slozka : {QStringLiteral("home"), QStringLiteral("config")}) {
            const QDir zdroj(m_dir.filePath(slozka));
            QDirIterator it(zdroj.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString cil = pokus() + QLatin1Char('/') + slozka + QLatin1Char('/') + zdroj.relativeFilePath(it.next());
                QDir().mkpath(QFileInfo(cil).path());
                ASSERT_TRUE(QFile::copy(it.filePath(), cil));
            }
        }
    }

    // Runs the command on the attempt's folder, killed at sync n (0: never); true when it was.
    bool spustSZabitim(const QStringList& argumenty, int n)
    {
        QProcessEnvironment env;
        env.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(ZABITI_PRI_SYNCU));
        env.insert(QStringLiteral("TRUHLAR_ZABIJ_PRI_SYNCU"), QString::number(n));
        QProcess p;
        startuj(p, argumenty, env, pokus());
        EXPECT_TRUE(p.waitForFinished(60000));
        if (p.exitStatus() == QProcess::CrashExit)
            return true;
        EXPECT_EQ(p.exitCode(), 0) << argumenty.join(' ').toStdString() << " " << p.readAllStandardError().toStdString();
        return false;
    }

    // Every row of every table of ours and the settings file, as text.
    QString stav()
    {
        QString s;
        for (const QString& db : {QStringLiteral("DataS.db"), QStringLiteral("Cenik.db")}) {
            Database d(pokus() + QStringLiteral("/home/Data/") + db);
            Prikaz tabulky(d.handle(), QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name"));
            while (tabulky.krok()) {
                Prikaz radky(d.handle(), QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid").arg(tabulky.sloupec(0).toString()));
                s += tabulky.sloupec(0).toString() + QLatin1Char('\n');
                while (radky.krok())
                    for (int i = 0; i < radky.pocetSloupcu(); ++i)
                        s += radky.sloupec(i).toString() + QLatin1Char(i + 1 < radky.pocetSloupcu() ? '|' : '\n');
            }
        }
        // the settings file itself; a writer's temporary file beside it is not the settings
        QDirIterator it(pokus() + QStringLiteral("/config"), {QStringLiteral("*.ini")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile f(it.next());
            f.open(QIODevice::ReadOnly);
            s += QString::fromUtf8(f.readAll());
        }
        return s;
    }
};

} // namespace

TEST_F(ZabitiPriSyncu, KazdyZapisujiciPrikazVseNeboNic)
{
    const QList<QStringList> prikazy = {
        {"order-load", m_dir.filePath(QStringLiteral("druha.json"))},
        {"import", m_dir.filePath(QStringLiteral("seznam.txt")), "--order", "Kuchyně Novák", "--assembly", "Sokl"},
        {"offcuts-load", m_dir.filePath(QStringLiteral("o.json"))},
        {"order-copy", "Kuchyně Novák", "Kopie"},
        {"assembly-copy", "Kuchyně Novák", "Dřez80", "Kuchyně Novák", "Dřez81"},
        plan("kombinovane") << "--write-back",
        {"restore", zaloha()},
        {"pricelist-restore", m_dir.filePath(QStringLiteral("c.cen"))},
        {"options", "apply", "Srez=3", "XZ=150", "DPH=15"},
    };
    for (const QStringList& prikaz : prikazy) {
        obnovPokus();
        const QString pred = stav();
        std::set<QString> poZabiti;
        QString po;
        for (int n = 1; po.isNull(); ++n) {
            ASSERT_LT(n, 200) << prikaz.join(' ').toStdString();
            obnovPokus();
            const bool zabit = spustSZabitim(prikaz, n);
            if (!zabit)
                po = stav();
            else
                poZabiti.insert(stav());
        }
        EXPECT_NE(po, pred) << prikaz.join(' ').toStdString();
        for (const QString& s : poZabiti)
            EXPECT_TRUE(s == pred || s == po) << prikaz.join(' ').toStdString();
    }
}
