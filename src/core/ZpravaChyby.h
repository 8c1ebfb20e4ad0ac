#pragma once
// The one table from a failure of the store or of a file to the words a joiner reads: full disk,
// read-only disk, a store held by another program, a damaged or foreign database, a missing or
// unreadable file. SQL texts and the system's English stay in Error::podrobnosti().
#include <QString>

class Error;

namespace ZpravaChyby {

// The message for the store's error number; soubor names the file where it is known, chyba
// the errno of a failed file operation (ENOENT: the file is missing).
QString text(int cislo, const QString& soubor = QString(), int chyba = 0);
// The message of a failed remaking of the plan database: the old program's two (75 a damaged
// store, 3356 another program), the failure's own for anything else.
QString pracovniDatabaze(const Error& e);

}
