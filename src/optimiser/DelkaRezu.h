#pragma once
// How many metres the saw travels to cut a plan out: on each sheet, the guillotine cuts that
// part its boards from each other and from the waste, each as long as the piece it crosses
// (a strip ripped off the sheet, a board cross-cut off the strip, its waste trimmed off).
// The edge trim of the sheet and the kerf's own gaps are no cuts of their own: an edge within
// the kerf and the trim of the piece's side lies on it. For the costing of cutting.
#include "optimiser/PracovniTabulky.h"

// The cut length of the placed boards of tabulky in metres. srez and samovani: the run's kerf
// and trim in tenths of a millimetre, as the tables hold lengths.
double DelkaRezu(const PracovniTabulky& tabulky, double srez, double samovani);
