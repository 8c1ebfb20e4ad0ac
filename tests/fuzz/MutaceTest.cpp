// The fuzz targets as a seeded mutation test: every regression input, every seed, then
// mutations of them from a fixed seed, so a failure repeats. TRUHLAR_FUZZ_KOLA sets how many
// mutations per target (a few hundred in CI; make fuzz runs many more, or libFuzzer).
#include "CileFuzz.h"

#include <QDir>
#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace {

// Pieces that broke readers before: escapes of NUL and of half a character, huge and odd
// numbers, quotes, separators, line ends.
const QByteArray Kousky[] = {"\\u0000", "\\ud800", "\x01", "\xff\xfe", "9e999", "-1", "0", "1e-320", "\"", "{", "[",
                             "]", "}", ",", ";", "\t", "\r", "\n", "=", "#", "'", "NaN", "null", "true"};

QByteArray zmen(QByteArray v, const QList<QByteArray>& semena, QRandomGenerator& g)
{
    const int kroku = 1 + int(g.bounded(4));
    for (int k = 0; k < kroku; ++k) {
        const qsizetype kde = v.isEmpty() ? 0 : qsizetype(g.bounded(quint32(v.size())));
        switch (g.bounded(6)) {
        case 0:
            if (!v.isEmpty())
                v[kde] = char(g.bounded(256));
            break;
        case 1:
            v.insert(kde, char(g.bounded(256)));
            break;
        case 2:
            v.remove(kde, qsizetype(g.bounded(quint32(std::min<qsizetype>(v.size() - kde, 64) + 1))));
            break;
        case 3:
            v.insert(kde, v.mid(kde, qsizetype(g.bounded(64u))));
            break;
        case 4:
            v.insert(kde, Kousky[g.bounded(quint32(std::size(Kousky)))]);
            break;
        default: {
            const QByteArray& jine = semena[qsizetype(g.bounded(quint32(semena.size())))];
            v = v.left(kde) + jine.mid(qsizetype(g.bounded(quint32(jine.size() + 1))));
        }
        }
    }
    return v;
}

QList<QByteArray> regrese(const char* cil)
{
    QList<QByteArray> v;
    const QDir slozka(QStringLiteral(TRUHLAR_FUZZ_REGRESE "/") + QLatin1String(cil));
    for (const QString& s : slozka.entryList(QDir::Files)) {
        QFile f(slozka.filePath(s));
        if (f.open(QIODevice::ReadOnly))
            v << f.readAll();
    }
    return v;
}

class Mutace : public ::testing::TestWithParam<CileFuzz::Cil> {};

} // namespace

TEST_P(Mutace, ZadnyVstupNepadaANicNezmeniKdyzJeOdmitnut)
{
    const CileFuzz::Cil& cil = GetParam();
    const QList<QByteArray> semena = cil.semena();
    for (const QByteArray& v : regrese(cil.nazev) + semena)
        EXPECT_NO_THROW(cil.spust(v)) << v.left(200).toStdString();
    const int kol = qEnvironmentVariableIsSet("TRUHLAR_FUZZ_KOLA") ? qEnvironmentVariableIntValue("TRUHLAR_FUZZ_KOLA") : 300;
    QRandomGenerator g(0x7275686c);
    for (int i = 0; i < kol; ++i) {
        const QByteArray v = zmen(semena[qsizetype(g.bounded(quint32(semena.size())))], semena, g);
        try {
            cil.spust(v);
        } catch (const std::exception& e) {
            ADD_FAILURE() << cil.nazev << " round " << i << ": " << e.what() << "\ninput (hex): " << v.toHex().toStdString();
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Cile, Mutace, ::testing::ValuesIn(CileFuzz::vsechny()),
                         [](const auto& info) {
                             QByteArray n(info.param.nazev);
                             return n.replace('-', '_').toStdString();
                         });
