#pragma once
// What the tree of orders and assemblies shows (NaplnitStrom): the orders by the date they
// were made, each with its assemblies in name order and their piece counts.
#include <QString>
#include <vector>

class Database;

struct UzelSestavy {
    QString nazev;
    double pocet; // pocetelementuVsestave
    QString text() const; // "name ( n ks )"
};

struct UzelZakazky {
    QString nazev;
    std::vector<UzelSestavy> sestavy;
};

std::vector<UzelZakazky> NaplnitStrom(Database& dataS);
