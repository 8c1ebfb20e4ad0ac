#pragma once
// The application folder (what the old program called its own folder): Data/, CNC/, PDF/,
// "Nářezové plány/", "Zálohy dat/", the language files. By default the per-user data location,
// or the folder given by --home.
#include <QString>

namespace Aplikace {

// Sets the folder for this process (empty: the per-user default). Call before anything else.
void nastavDomov(const QString& slozka);
QString domov();
QString cesta(const QString& relativni); // a path inside the application folder
// The shared data of an installed program, <prefix>/share/truhlar beside its <prefix>/bin: the
// language files, the demo order and the manual that a new application folder starts from.
// Empty for a program run from its build folder, which has its own copies built in.
QString sdilenaData();

QString dataS();   // Data/DataS.db
QString cenik();   // Data/Cenik.db
// Data/DataK-<znackaProcesu>.db: each process plans in its own copy (in the system's temporary
// folder when Data/ is read-only)
QString dataK();
QString zamek();   // Data/.lock
// What names this process's own files in Data/ ("p<pid>-<random>"), so that another process
// on the same folder never takes, changes or removes them.
QString znackaProcesu();

bool existuje();   // the folder holds Data/DataS.db and Data/Cenik.db
bool jenProCteni(); // Data/ cannot be written (a write-protected disk or folder)
// Creates the folder, its subfolders, the empty databases and the language files where they
// are missing; never touches a database or a language file that exists. Throws Error (75, 3051, 3799).
void zaloz();
// Removes the temporary files and plan databases in Data/ left by processes that ended (with
// their journal files). Call only while holding the store alone: then every such file is a
// leftover. Nothing else is touched.
void uklid();

}
