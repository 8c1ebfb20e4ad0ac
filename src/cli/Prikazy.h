#pragma once
// The commands of truhlar-cli; each takes the words after its name and returns the exit code.
#include <QStringList>

int prikazInit(const QStringList& argumenty);
int prikazOrderLoad(const QStringList& argumenty);
int prikazOrderDump(const QStringList& argumenty);
int prikazOrderList(const QStringList& argumenty);
int prikazOrderCopy(const QStringList& argumenty);
int prikazAssemblyCopy(const QStringList& argumenty);
int prikazSettings(const QStringList& argumenty);
int prikazOffcutsLoad(const QStringList& argumenty);
int prikazOffcutsList(const QStringList& argumenty);
int prikazPlan(const QStringList& argumenty);
int prikazBackup(const QStringList& argumenty);
int prikazRestore(const QStringList& argumenty);
int prikazPricelistBackup(const QStringList& argumenty);
int prikazPricelistRestore(const QStringList& argumenty);
int prikazCheck(const QStringList& argumenty);
int prikazImport(const QStringList& argumenty);
int prikazCalc(const QStringList& argumenty);
int prikazCalcSestavy(const QStringList& argumenty);
int prikazPurchase(const QStringList& argumenty);
int prikazQuote(const QStringList& argumenty);
int prikazWorkshop(const QStringList& argumenty);
int prikazTotals(const QStringList& argumenty);
int prikazOptions(const QStringList& argumenty);
int prikazLanguageCheck(const QStringList& argumenty);
int prikazPricelistLoad(const QStringList& argumenty);
int prikazPricelistDump(const QStringList& argumenty);
int prikazPricelistPdf(const QStringList& argumenty);
int prikazPictureAdd(const QStringList& argumenty);
int prikazPictureGet(const QStringList& argumenty);
int prikazPictureList(const QStringList& argumenty);
int prikazPictureDelete(const QStringList& argumenty);
int prikazPictureRender(const QStringList& argumenty);
int prikazAccessoryAdd(const QStringList& argumenty);
int prikazAccessoryDelete(const QStringList& argumenty);
