// import: a board list from a text file into an assembly.
#include "Cli.h"
#include "Prikazy.h"

#include "core/Error.h"
#include "core/Uloziste.h"
#include "exchange/Import.h"
#include "orders/RadkyZakazky.h"

int prikazImport(const QStringList& vstup)
{
    QStringList argumenty = vstup;
    const QString zakazka = Cli::vezmiVolbu(argumenty, QStringLiteral("--order"));
    const QString sestava = Cli::vezmiVolbu(argumenty, QStringLiteral("--assembly"));
    if (argumenty.size() != 1 || zakazka.isNull() || sestava.isNull())
        throw Cli::ChybaPouziti(QStringLiteral("import SOUBOR --order ZAKÁZKA --assembly SESTAVA"));
    const QString text = Import::nactiSoubor(argumenty[0]);
    Database& db = Cli::uloziste().dataS();
    if (!RadkyZakazky::existujeSestava(db, zakazka, sestava))
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Sestava „%1“ v zakázce „%2“ neexistuje.").arg(sestava, zakazka));
    const Import::Vysledek v = Import::importuj(db, zakazka, sestava, text);
    if (v.odmitnuti)
        throw Error(Chyba::NeplatnyVstup, v.odmitnuti->zprava);
    Cli::out() << QStringLiteral("Importováno desek: %1").arg(v.pridano) << Qt::endl;
    return Cli::Hotovo;
}
