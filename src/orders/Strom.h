#pragma once
// What the tree of orders and assemblies shows (NaplnitStrom): the orders by the date they
// were made, each with its assemblies in name order and their piece counts.
#include <QString>
#include <optional>
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
// One order of the tree with its assemblies; empty when there is no such order.
std::optional<UzelZakazky> UzelZakazkyPodleNazvu(Database& dataS, const QString& zakazka);
