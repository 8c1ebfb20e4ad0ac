#include "core/Dotaz.h"

#include <cmath>

#include <QRegularExpression>

namespace Dotaz {

QString cislo(double hodnota)
{
    if (hodnota == 0)
        return QStringLiteral("0"); // also -0, which "%.15g" would print with its sign
    return QString::asprintf("%.15g", hodnota);
}

double jakoVDotazu(double hodnota)
{
    if (hodnota == std::trunc(hodnota) && std::abs(hodnota) < 1e15)
        return hodnota + 0.0; // whole numbers print exactly (and -0 as 0)
    return cislo(hodnota).toDouble();
}

QString text(const QString& hodnota)
{
    QString s = hodnota;
    return s.replace(QLatin1Char('\''), QLatin1String("''"));
}

// Applies f to each stretch of the text outside single-quoted literals.
template <typename F>
static QString mimoLiteraly(const QString& sql, F f)
{
    QString vysledek;
    QString kus;
    bool vLiteralu = false;
    for (QChar c : sql) {
        if (c == QLatin1Char('\'')) {
            if (!vLiteralu) {
                vysledek += f(kus);
                kus.clear();
            }
            vLiteralu = !vLiteralu;
            vysledek += c;
            continue;
        }
        (vLiteralu ? vysledek : kus) += c;
    }
    return vysledek + f(kus);
}

static QString prelozSlova(QString kus)
{
    static const QRegularExpression pravda(QStringLiteral("\\bTrue\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression nepravda(QStringLiteral("\\bFalse\\b"),
                                             QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression mazani(QStringLiteral("\\bDELETE\\s+\\*\\s+FROM\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression delka(QStringLiteral("\\blen\\s*\\("),
                                          QRegularExpression::CaseInsensitiveOption);
    // the old engine read "28000and" as a number and a keyword; SQLite wants the blank
    static const QRegularExpression cisloASlovo(QStringLiteral("(?<![\\w.])(\\d+(?:\\.\\d+)?)(and|or|order)\\b"),
                                                QRegularExpression::CaseInsensitiveOption);
    kus.replace(cisloASlovo, QStringLiteral("\\1 \\2"));
    kus.replace(pravda, QStringLiteral("-1"));
    kus.replace(nepravda, QStringLiteral("0"));
    kus.replace(mazani, QStringLiteral("DELETE FROM"));
    kus.replace(delka, QStringLiteral("length("));
    return kus;
}

QString preloz(const QString& jet, Razeni razeni)
{
    QString sql = mimoLiteraly(jet, prelozSlova).trimmed();
    while (sql.endsWith(QLatin1Char(';')))
        sql = sql.chopped(1).trimmed();
    if (razeni == Razeni::PoradiRadku) {
        bool maRazeni = false;
        static const QRegularExpression orderBy(QStringLiteral("\\bORDER\\s+BY\\b"),
                                                QRegularExpression::CaseInsensitiveOption);
        mimoLiteraly(sql, [&](const QString& kus) {
            maRazeni = maRazeni || kus.contains(orderBy);
            return kus;
        });
        sql += maRazeni ? QStringLiteral(", rowid") : QStringLiteral(" ORDER BY rowid");
    }
    return sql;
}

SVazbami vazby(const QString& sql)
{
    static const QRegularExpression cislo(
        QStringLiteral("(?<![\\w.])\\d+(\\.\\d+)?([eE][+-]?\\d+)?(?![\\w.])"));
    SVazbami v;
    v.sql = mimoLiteraly(sql, [&](const QString& kus) {
        QString vysledek;
        qsizetype od = 0;
        for (auto it = cislo.globalMatch(kus); it.hasNext();) {
            const auto m = it.next();
            vysledek += QStringView(kus).mid(od, m.capturedStart() - od);
            vysledek += QLatin1Char('?');
            const QString t = m.captured(0);
            if (t.contains(QLatin1Char('.')) || t.contains(QLatin1Char('e')) || t.contains(QLatin1Char('E')))
                v.hodnoty << t.toDouble();
            else
                v.hodnoty << t.toLongLong();
            od = m.capturedEnd();
        }
        vysledek += QStringView(kus).mid(od);
        return vysledek;
    });
    return v;
}

}
