#pragma once
// The plan runs of make bench: every order in each chosen mode with the in-memory engine and,
// beside it, the engine on SQL (its time, the ratio, and whether the plans are the same); a
// 10-board plan in a fresh store; how fast Storno stops a 2000-board run; the memory of the
// process; and, with "shoda", 3,000 random orders compared between the engines.
#include "optimiser/PlanRun.h"

#include <QStringList>
#include <vector>

class Uloziste;

struct RezimBench {
    const char* nazev;
    ZpusobNP zpusob;
};

// vyber: order names to keep (empty: all); sStarym: run the engine on SQL beside.
void planyBench(Uloziste& u, const std::vector<QString>& zakazky, const std::vector<RezimBench>& rezimy,
                const QStringList& vyber, bool sStarym);
void maleZakazkyBench(const QString& domov);       // 10 boards, all told, in a fresh store
void stornoBench(Uloziste& u, const QString& zakazka); // from the request to the end of the run
void shodaBench(const QString& domov, int pripadu);  // random orders, both engines
