#pragma once
// The main window's menu bar and toolbar as data: every entry with its name (the object name
// that command states and tests find it by) and its Czech caption with accelerator, and every
// toolbar key with its tool tip and the menu entry it stands for.
#include <vector>

namespace Nabidka {

struct Polozka {
    const char* nazev;   // object name, e.g. "NZakazka"
    const char* popisek; // caption, e.g. "&Nová zakázka"
    std::vector<Polozka> polozky = {}; // a submenu when not empty
};

struct Tlacitko {
    const char* klic;    // toolbar key, e.g. "NZ"
    const char* tip;     // tool tip
    const char* prikaz;  // the menu entry it runs
};

const std::vector<Polozka>& menu();
const std::vector<Tlacitko>& nastroje();

}
