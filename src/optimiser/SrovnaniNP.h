#pragma once
// The four ways to cut side by side, for the plan start: one way's plan of one format made and
// summed up in the figures a joiner weighs.
#include "optimiser/PlanRun.h"

#include <optional>

struct SrovnaniNP {
    int tabuli = 0;
    double vyuziti = 0;              // per cent: the placed boards' area over the used sheets'
    int rezu = 0;                    // RezyNaTabuli summed
    double zbytekX = 0, zbytekY = 0; // the largest remnant of at least XZ by YZ, mm; 0 for none
};

// Runs the plan of zpusob without a word to the joiner (DataK is made anew and left holding it).
// Nothing when stopped through prubeh. Throws Error from the store as SpustNP does.
std::optional<SrovnaniNP> srovnejZpusob(Uloziste& u, Prubeh& prubeh, const QString& zakazka, double idFormatu,
                                        ZpusobNP zpusob);
