#pragma once
// A write of more than one row as one unit: begun here, rolled back by the destructor unless
// commit() ran, so a failure in the middle leaves the store as it was.
class Database;

class Transakce {
public:
    explicit Transakce(Database& db); // throws Error (3356 when the store is held)
    ~Transakce();
    Transakce(const Transakce&) = delete;
    Transakce& operator=(const Transakce&) = delete;
    void commit(); // throws Error (3799 disk full, 3051 read-only, ...)

private:
    Database& m_db;
    bool m_hotovo = false;
};
