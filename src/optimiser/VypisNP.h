#pragma once
// The working tables that a plan run leaves, as one JSON object: every row of SoupisDesek,
// SoupisTabuli and SoupisZbytku in rowid order with every column under its table name (Yes/No
// as -1/0, NULL as null), the cuts per running sheet number, and whether the run warned.
#include "core/VypisTabulky.h"

#include <QJsonObject>
#include <QString>

class Database;
class PlanRun;

QJsonObject VypisNP(Database& dataK, const PlanRun& run);

// A short Czech summary of a finished plan: sheets, boards placed and left out, and the use of
// each sheet (area of its boards over the sheet's area), one line each.
QString SouhrnNP(Database& dataK, const PlanRun& run);
