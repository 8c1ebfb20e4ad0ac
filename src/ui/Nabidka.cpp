#include "ui/Nabidka.h"

namespace Nabidka {

const std::vector<Polozka>& menu()
{
    static const std::vector<Polozka> m = {
        {"Zakazky", "&Zakázky",
         {{"Zakazka", "&Zakázka",
           {{"NZakazka", "&Nová zakázka"}, {"UpraveniZakazky", "U&pravení zakázky"},
            {"UlozeniJakoZ", "Uložit j&ako..."}, {"SmazaniZakazky", "&Smazání zakázky"}}},
          {"Sestava", "&Sestava",
           {{"NSestava", "&Nová sestava"}, {"USestava", "&Upravení sestavy"},
            {"UlozeniSestavyJako", "Uložit j&ako..."}, {"SmazaniSestavy", "&Smazání sestavy"}}},
          {"Format", "&Formát", {{"NF", "Nový formát"}, {"UF", "Upravení formátu"}, {"SF", "Smazání formátu"}}},
          {"Hrana", "&Hrana", {{"NH", "Nová hrana"}, {"UH", "Upravení hrany"}, {"SH", "Smazání hrany"}}},
          {"PlMaterial", "Pl&ošný materiál",
           {{"NovyPloM", "&Nový PM"}, {"UpraveniPM", "&Upravení PM"}, {"SmazaniPM", "&Smazání PM"}}},
          {"Prislusenstvi", "Přísluše&nství",
           {{"NoveP", "&Nové příslušenství"}, {"UpraveniP", "&Upravení příslušenství"},
            {"SmazaniP", "&Smazání příslušenství"}}},
          {"Moznosti", "&Možnosti..."},
          {"Konec", "&Konec"}}},
        {"Doplnky", "&Doplňky",
         {{"SO", "&Sklad odřezků"}, {"CTM", "&Ceník borováckých materiálů"}, {"DSS", "Databáze schemat sestav"},
          {"DOC", "Databáze obrázků pro ceník"}}},
        {"Data", "&Data", {{"Vz", "Vytvoření &zálohy"}, {"OD", "&Vložení zálohovaných dat"}}},
        {"Vypisy", "&Výpisy",
         {{"NP", "&Nářezový plán"}, {"SMZ", "Soupis materiálu pro dílnu"},
          {"SMDS", "Soupis materiálu pro dílnu se schematy"}, {"RychlaKalkulace", "&Kalkulace"},
          {"KS", "Kalkulace sestav"}, {"NM", "Nákup materiálu"}, {"CN", "Cenová nabídka"}}},
        {"JazykNastaveni", "&Jazyk", {{"cestina", "Č&eština"}, {"Anglictina", "&Angličtina"}}},
        {"Napoveda", "&O programu", {{"NapovedaObsah", "&Nápověda"}, {"OProgramu", "&O programu..."}}},
    };
    return m;
}

const std::vector<Tlacitko>& nastroje()
{
    static const std::vector<Tlacitko> t = {
        {"NZ", "Nová zakázka", "NZakazka"},
        {"OZ", "Odstranění zakázky", "SmazaniZakazky"},
        {"NPZ", "Nová sestava", "NSestava"},
        {"UPZ", "Upravení sestavy", "USestava"},
        {"OPZ", "Odstranění sestavy", "SmazaniSestavy"},
        {"NPM", "Nový plošný materiál", "NovyPloM"},
        {"UPM", "Upravení plošného materiálu", "UpraveniPM"},
        {"OPM", "Odstranění plošného materiálu", "SmazaniPM"},
        {"NPR", "Nové příslušenství", "NoveP"},
        {"UPR", "Upravení příslušenství", "UpraveniP"},
        {"OPR", "Odstranění příslušenství", "SmazaniP"},
        {"CTM", "Ceník materiálů", "CTM"},
        {"NP", "Nářezový plán", "NP"},
        {"Moznosti", "Možnosti programu", "Moznosti"},
        {"ZD", "Vytvoření zálohy dat", "Vz"},
        {"ODZ", "Vložení zálohovaných dat", "OD"},
        {"Sklad", "Sklad odřezků", "SO"},
        {"Napoveda", "Nápověda", "NapovedaObsah"},
    };
    return t;
}

}
