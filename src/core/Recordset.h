#pragma once
// The old engine's dynaset over one table: a snapshot of the rowids that a query (or a bare
// table name) gives when it opens, with the current row read by rowid and written back by
// rowid. Rows added later are not in the snapshot; a row deleted meanwhile reads as 3167.
// Field names are blind to case, as they were. No recordset outlives the call that opened it.
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <vector>

class Database;

class Recordset {
public:
    enum class Rozsah {
        Vse,  // every row of the query
        Prvni // only the first row: for callers that look at no other (cheaper to open)
    };
    // sqlNeboTabulka: "SELECT * FROM T ..." in the old dialect, or a table name.
    // Throws Error 3078 (missing table), 3075 (a query that is not a row list of one table).
    Recordset(Database& db, const QString& sqlNeboTabulka, Rozsah rozsah = Rozsah::Vse);
    // The same with each `?` of sql bound, in order, to hodnoty: a text as it stands (no quoting
    // needed), a number at the 15 digits a spliced one had, a bool as Yes/No.
    Recordset(Database& db, const QString& sql, const QVariantList& hodnoty, Rozsah rozsah = Rozsah::Vse);

    bool eof() const { return m_pozice >= int(m_radky.size()); }
    bool prazdny() const { return m_radky.empty(); }
    int recordCount() const { return int(m_radky.size()); }
    void moveFirst() { presun(0); }
    void moveNext() { presun(m_pozice + 1); }
    void moveLast() { presun(int(m_radky.size()) - 1); }

    // Fields of the current row; throws 3167 past the end or on a deleted row.
    QVariant value(const QString& pole) const;
    double cislo(const QString& pole) const { return value(pole).toDouble(); }
    QString text(const QString& pole) const { return value(pole).toString(); }
    bool ano(const QString& pole) const { return value(pole).toDouble() != 0; }

    void edit();   // start changing the current row
    void addNew(); // start a new row (fields start null)
    void set(const QString& pole, const QVariant& hodnota);
    void update(); // write what edit/addNew began
    void remove(); // delete the current row

    const QString& tabulka() const { return m_tabulka; }
    qint64 rowid() const { return m_radky.at(m_pozice); } // the current row's identity

private:
    QString sqlRowid(const QString& sqlNeboTabulka, Rozsah rozsah); // sets m_tabulka
    void nactiRowid(const QString& sql, const QVariantList& hodnoty);
    void presun(int pozice);
    int index(const QString& pole) const;
    void nacti() const;

    Database* m_db;
    QString m_tabulka;
    std::vector<qint64> m_radky;
    int m_pozice = 0;
    enum class Zapis { Nic, Uprava, Novy } m_zapis = Zapis::Nic;
    QMap<int, QVariant> m_zmeny;
    mutable std::vector<QVariant> m_hodnoty;
    mutable bool m_nacteno = false;
    std::vector<bool> m_smazane;
};
