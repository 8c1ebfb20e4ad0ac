#pragma once
// Runs truhlar-cli as a user would, in a folder and settings of the test's own; the test's own
// process shares those settings (bezRezani writes them between two runs).
#include "DomovTest.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

struct Vysledek {
    int kod;
    QString out, err;
};

class SpusteniCli : public ::testing::Test {
protected:
    SpusteniCli() { qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.filePath(QStringLiteral("config")))); }
    // Starts the command over koren/home and koren/config (the test's folder when empty), without
    // waiting: for the tests that kill it or run several at once. Under obal, that program runs
    // it, given the command line after its own arguments.
    void startuj(QProcess& p, const QStringList& argumenty, const QProcessEnvironment& navic = {}, QString koren = {},
                 const QStringList& obal = {})
    {
        if (koren.isEmpty())
            koren = m_dir.path();
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("XDG_CONFIG_HOME"), koren + QStringLiteral("/config"));
        env.insert(navic);
        p.setProcessEnvironment(env);
        const QStringList prikaz = obal + QStringList{QStringLiteral(TRUHLAR_CLI), QStringLiteral("--home"),
                                                      koren + QStringLiteral("/home")} + argumenty;
        p.start(prikaz.first(), prikaz.mid(1));
    }
    Vysledek spust(const QStringList& argumenty, const QProcessEnvironment& navic = {}, const QStringList& obal = {})
    {
        QProcess p;
        startuj(p, argumenty, navic, {}, obal);
        EXPECT_TRUE(p.waitForFinished(60000));
        return {p.exitCode(), QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
    }
    // What a command that must succeed prints as JSON.
    QJsonDocument json(const QStringList& argumenty)
    {
        const Vysledek v = spust(argumenty);
        EXPECT_EQ(v.kod, 0) << argumenty.join(QLatin1Char(' ')).toStdString() << ": " << v.err.toStdString();
        return QJsonDocument::fromJson(v.out.toUtf8());
    }
    // A new application folder holding the demo kitchen.
    void zalozDemo()
    {
        ASSERT_EQ(spust({"init"}).kod, 0);
        ASSERT_EQ(spust({"order-load", demo()}).kod, 0);
    }
    // The plan of the demo kitchen's board format in the given way.
    static QStringList plan(const char* rezim)
    {
        return {"plan", "Kuchyně Novák", "--format", "5000001", "--mode", QLatin1String(rezim)};
    }
    QString domov() const { return m_dir.filePath(QStringLiteral("home")); }
    QString demo() const { return QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"); }
    // A file of the test's own with the given bytes.
    QString soubor(const QString& nazev, const QByteArray& obsah)
    {
        const QString cesta = m_dir.filePath(nazev);
        zapisSoubor(cesta, obsah);
        return cesta;
    }

    QTemporaryDir m_dir;
};

inline bool mamePdfText()
{
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

// A PDF's text as pdftotext reads it: in its layout, or without blanks, as pdftotext closes up
// letter-spaced words.
inline QString pdfText(const QString& pdf, bool rozvrzeni = false)
{
    QProcess p;
    p.start(QStringLiteral("pdftotext"), rozvrzeni ? QStringList{QStringLiteral("-layout"), pdf, QStringLiteral("-")}
                                                   : QStringList{pdf, QStringLiteral("-")});
    p.waitForFinished();
    const QString t = QString::fromUtf8(p.readAllStandardOutput());
    return rozvrzeni ? t : QString(t).remove(QLatin1Char(' '));
}
