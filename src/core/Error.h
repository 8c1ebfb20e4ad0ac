#pragma once
// The store's one exception type. It carries the error numbers of the old platform, so the
// handlers that turn failures into messages keep their tables of numbers.
#include <QString>
#include <stdexcept>

namespace Chyba {
constexpr int NeplatnyVstup = 5;        // input refused by a rule of ours (a Czech message)
constexpr int PristupKSouboru = 75;     // path or file access
constexpr int JenProCteni = 3051;       // the file or its folder is read-only
constexpr int ChybaDotazu = 3075;       // a query the store cannot run
constexpr int TabulkaChybi = 3078;      // missing table, or a file that is not our database
constexpr int ZaznamSmazan = 3167;      // the current row was deleted
constexpr int DatabazePouzivana = 3356; // the store is held by another process
constexpr int DiskPlny = 3799;          // disk full
constexpr int Zruseno = 32755;          // a dialog was cancelled

// The number for a failed file operation with the given errno: 3799 disk full, 3051
// read-only or not permitted, 3356 held by another process, 75 any other.
int cisloProErrno(int chyba);
} // namespace Chyba

class Error : public std::runtime_error {
public:
    Error(int cislo, const QString& text);
    // A failure of the store or of the system: text is the Czech message (ZpravaChyby), the
    // podrobnosti what SQLite or the system said, for --verbose and never for the user's eyes.
    Error(int cislo, const QString& text, const QString& podrobnosti);
    int cislo() const noexcept { return m_cislo; }
    QString text() const { return m_text; }
    QString podrobnosti() const { return m_podrobnosti; }

private:
    int m_cislo;
    QString m_text;
    QString m_podrobnosti;
};
