#pragma once
// The fuzz targets: one per input format the program reads from users. Each takes any bytes;
// a refusal (the store's Error) is fine, anything else (a crash, another exception, a refused
// input that changed the store) is a finding. The store is a private application folder in
// the system's temporary folder, opened once per process.
#include <QByteArray>
#include <QList>
#include <vector>

namespace CileFuzz {

struct Cil {
    const char* nazev;                       // also the folder of its regression inputs
    void (*spust)(const QByteArray& vstup);  // throws only on a finding
    QList<QByteArray> (*semena)();           // well-formed inputs to mutate from
};

const std::vector<Cil>& vsechny();
const Cil* najdi(const QByteArray& nazev);

}
