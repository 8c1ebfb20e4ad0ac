#pragma once
// One prepared SQLite statement, owned: bind by position, step, read columns as QVariant.
// A bool binds as the old engine's Yes/No (-1/0); a QByteArray as a blob.
#include <QVariant>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

class Prikaz {
public:
    // Throws Error (3075 for a bad text, 3078 for a missing table).
    Prikaz(sqlite3* db, const QString& sql, bool trvaly = false);
    Prikaz(Prikaz&&) noexcept = default;
    Prikaz& operator=(Prikaz&&) noexcept = default;

    void navaz(int pozice, const QVariant& hodnota); // positions from 1
    bool krok();                                     // true while a row stands
    void reset();                                    // also clears the bindings
    int pocetSloupcu() const;
    QVariant sloupec(int i) const;                   // columns from 0
    QString nazevSloupce(int i) const;
    const QString& text() const { return m_sql; }

private:
    struct Uvolni {
        void operator()(sqlite3_stmt* s) const noexcept;
    };
    sqlite3* m_db;
    std::unique_ptr<sqlite3_stmt, Uvolni> m_stmt;
    QString m_sql;
};
