#pragma once
// The open store of one process: dbDataS and dbCenik from start to end, and dbDataK, the
// throw-away copy of DataS remade before every plan run and costing, private to the process.
// While it is open the process holds a shared lock on Data/.lock, so a restore can tell that
// the store is in use; the one that finds nobody else holding it clears the leftovers of
// processes that ended.
#include "core/Database.h"

#include <memory>

class Uloziste {
public:
    // Opens the application folder's databases (creating the folder on first start when
    // zalozit is set). Throws Error 75 (missing folder), 3078 (not our files), 3356 (a restore
    // holds the store longer than a short wait).
    explicit Uloziste(bool zalozit = true);
    ~Uloziste();
    Uloziste(const Uloziste&) = delete;
    Uloziste& operator=(const Uloziste&) = delete;

    Database& dataS() { return *m_dataS; }
    Database& cenik() { return *m_cenik; }
    // The plan database; throws Error 3078 when it is not open.
    Database& dataK();
    bool maDataK() const { return bool(m_dataK); }

    // Remakes DataK.db as a compacted copy of DataS.db and opens it.
    // Throws Error (75 path or file access, 3356 in use, 3799 disk full, ...).
    void ObnovPracovniDatabazi();
    void zavriDataK();

    // Closes and reopens DataS and Cenik (after a restore replaced the files).
    void zavriData();
    void otevriData();

    // Holds the store alone while it lives (a restore): waits a short while for other processes
    // to close it, then throws Error 3356. The shared hold comes back when it ends.
    class Vyhradne {
    public:
        explicit Vyhradne(Uloziste& u);
        ~Vyhradne();
        Vyhradne(const Vyhradne&) = delete;
        Vyhradne& operator=(const Vyhradne&) = delete;

    private:
        Uloziste& m_u;
    };

private:
    // Takes the lock on Data/.lock (LOCK_SH or LOCK_EX), waiting a short while for another
    // process to let go; false when it did not.
    bool zamkni(int druh);

    std::unique_ptr<Database> m_dataS;
    std::unique_ptr<Database> m_cenik;
    std::unique_ptr<Database> m_dataK;
    int m_zamek = -1;
    bool m_udelalDataK = false; // this object made the process's plan copy and removes it
};
