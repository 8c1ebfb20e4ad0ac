#pragma once
// Query texts as the system writes them, and the one translation that carries them to SQLite
// with the old engine's meaning.
#include <QString>
#include <QVariantList>

namespace Dotaz {

// A number spliced into a query: 15 significant digits, as the old platform printed a double.
QString cislo(double hodnota);
// The number that a spliced hodnota stands for in the query: what cislo() prints, read back.
// In-memory selections compare with it, so they decide exactly as the query text would.
double jakoVDotazu(double hodnota);
// Text spliced between single quotes: apostrophes doubled, so "Novák's" stays one literal.
QString text(const QString& hodnota);

enum class Razeni {
    Zadne,       // the query is not a row list of one table (aggregates, joins): left alone
    PoradiRadku  // rows of one table: equal rows come in the order they were added
};

// Rewrites the old engine's dialect: True/False as -1/0 (outside literals), "DELETE * FROM",
// len(), a trailing ";". With Razeni::PoradiRadku the rowid becomes the last sort key, and a
// query without ORDER BY is ordered by rowid.
QString preloz(const QString& jet, Razeni razeni = Razeni::Zadne);

// A translated query with its number literals (outside text literals) taken out as bound
// values: texts that differ only in spliced numbers share one prepared statement.
struct SVazbami {
    QString sql;
    QVariantList hodnoty;
};
SVazbami vazby(const QString& sql);

}
