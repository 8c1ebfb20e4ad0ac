#pragma once
// The working tables that a plan run leaves, as one JSON object: every row of SoupisDesek,
// SoupisTabuli and SoupisZbytku in rowid order with every column under its table name (Yes/No
// as -1/0, NULL as null), the cuts per running sheet number, and whether the run warned.
#include <QJsonObject>

class Database;
class PlanRun;

QJsonObject VypisNP(Database& dataK, const PlanRun& run);
