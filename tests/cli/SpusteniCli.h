#pragma once
// Runs truhlar-cli as a user would, in a folder and settings of the test's own; the test's own
// process shares those settings (bezRezani writes them between two runs).
#include "DomovTest.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

struct Vysledek {
    int kod;
    QString out, err;
};

class SpusteniCli : public ::testing::Test {
protected:
    SpusteniCli() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.filePath(QStringLiteral("config")))); }
    Vysledek spust(QStringList argumenty, const QProcessEnvironment& navic = {})
    {
        QProcess p;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), m_dir.filePath(QStringLiteral("config")));
        env.insert(navic);
        p.setProcessEnvironment(env);
        p.start(QStringLiteral(TRUHLAR_CLI), QStringList{QStringLiteral("--home"), domov()} + argumenty);
        EXPECT_TRUE(p.waitForFinished(60000));
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
    }
    QString domov() const { return m_dir.filePath(QStringLiteral("home")); }
    QString demo() const { return QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"); }
    // A file of the test's own with the given bytes.
    QString soubor(const QString& nazev, const QByteArray& obsah)
    {
        const QString cesta = m_dir.filePath(nazev);
        QFile f(cesta);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(obsah);
        return cesta;
    }

    QTemporaryDir m_dir;
};
