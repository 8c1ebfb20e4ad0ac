#include "DomovTest.h"

#include <QFile>

#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Nastaveni.h"
#include "core/Razitko.h"

#include <QDir>

void DomovTest::SetUp()
{
    ASSERT_TRUE(m_dir.isValid());
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_dir.filePath(QStringLiteral("config"))));
    Aplikace::nastavDomov(domov());
    Razitko::nastavHodiny([] { return QDateTime(QDate(2026, 3, 5), QTime(10, 0)); });
}

void DomovTest::TearDown()
{
    m_uloziste.reset();
    Razitko::nastavHodiny({});
    Aplikace::nastavDomov({});
}

void NastavenyDomov::SetUp()
{
    DomovTest::SetUp();
    Nastaveni::ZapisVychoziNastaveni(0, 0, 1, 1);
}

QString DomovTest::domov() const
{
    return m_dir.filePath(QStringLiteral("home"));
}

Uloziste& DomovTest::uloziste()
{
    if (!m_uloziste)
        m_uloziste = std::make_unique<Uloziste>(true);
    return *m_uloziste;
}

Error chybaZ(const std::function<void()>& f)
{
    try {
        f();
    } catch (const Error& e) {
        return e;
    }
    return Error(0, QString());
}

int cisloChyby(const std::function<void()>& f)
{
    return chybaZ(f).cislo();
}

QByteArray obsahSouboru(const QString& cesta)
{
    QFile f(cesta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void zapisSoubor(const QString& cesta, const QByteArray& obsah)
{
    QFile f(cesta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate)) << cesta.toStdString();
    f.write(obsah);
}

QString textChyby(const std::function<void()>& f)
{
    const Error e = chybaZ(f);
    if (e.cislo()) {
        EXPECT_EQ(e.cislo(), Chyba::NeplatnyVstup) << e.text().toStdString();
    }
    return e.text();
}

QByteArray demoJson()
{
    QFile f(QStringLiteral(TRUHLAR_SHARE "/demo/kuchyne.json"));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    return f.readAll();
}

void bezRezani()
{
    Nastaveni::SaveSetting(QStringLiteral("Setting2"), QStringLiteral("ZCR"), QStringLiteral("0"));
}
