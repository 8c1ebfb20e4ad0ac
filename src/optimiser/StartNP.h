#pragma once
// What the window and the command line share around the start of a plan run: how many further
// variants the plan start offers for a format, and the messages of a failed remaking of the plan
// database.
#include "core/Error.h"

#include <QString>

class Database;

namespace StartNP {

// The slider of further plan variants runs from 0 to the count of the format's board rows.
int pocetVariant(Database& dataS, const QString& zakazka, double idFormatu);

// The error of a failed run with the message the joiner sees: "Porucha databáze - restartujte
// PC!" for a file fault (75), the store held by another program (3356), else the failure's own
// Czech message (a full disk is no program holding the store).
Error chybaPracovniDatabaze(const Error& e);

} // namespace StartNP
