#include "orders/NoveRadky.h"

#include "core/Error.h"
#include "orders/RadkyZakazky.h"

namespace NoveRadky {
namespace {

const char* const PoleHlavicky[] = {"Zakazka", "Sestava", "pocetelementuVsestave", "popis", "schema", "Poznamka", "datum"};

Recordset novyRadek(Database& db)
{
    Recordset rs(db, QStringLiteral("Zakazky"), Recordset::Rozsah::Prvni);
    rs.addNew();
    return rs;
}

void zapisHlavicku(Recordset& rs, const Hlavicka& h)
{
    rs.set(QStringLiteral("Zakazka"), h.zakazka);
    rs.set(QStringLiteral("Poznamka"), h.poznamka);
    rs.set(QStringLiteral("datum"), h.datum);
    rs.set(QStringLiteral("Sestava"), h.sestava);
    rs.set(QStringLiteral("Oznaceni"), QString());
    if (h.sestava.isNull())
        return;
    rs.set(QStringLiteral("popis"), h.popis);
    rs.set(QStringLiteral("pocetelementuVsestave"), h.pocet);
    rs.set(QStringLiteral("schema"), h.schema);
}

void zapisPolozku(Recordset& rs, const Polozka& p, double cas)
{
    rs.set(QStringLiteral("Oznaceni"), p.oznaceni);
    rs.set(QStringLiteral("IDFormat"), p.format);
    rs.set(QStringLiteral("cas"), cas);
    rs.set(QStringLiteral("Pocet"), p.pocet);
    if (p.format > 1) {
        static const char* const hrany[] = {"IDHX1", "IDHX2", "IDHY1", "IDHY2"};
        for (int i = 0; i < 4; ++i)
            rs.set(QLatin1String(hrany[i]), p.hrany[i]);
        rs.set(QStringLiteral("x"), p.x);
        rs.set(QStringLiteral("y"), p.y);
        rs.set(QStringLiteral("OV"), p.ov);
    } else {
        rs.set(QStringLiteral("Cena"), p.cena);
        rs.set(QStringLiteral("jednotka"), p.jednotka);
    }
}

} // namespace

void pridejHlavicku(Database& db, const Hlavicka& h)
{
    Recordset rs = novyRadek(db);
    zapisHlavicku(rs, h);
    rs.update();
}

void pridejPolozku(Database& db, const Hlavicka& h, const Polozka& p, double cas)
{
    Recordset rs = novyRadek(db);
    zapisHlavicku(rs, h);
    zapisPolozku(rs, p, cas);
    rs.update();
}

DoSestavy::DoSestavy(Database& db, const QString& zakazka, const QString& sestava) : m_db(db)
{
    Recordset vse = RadkyZakazky::radkySestavy(db, zakazka, sestava, QStringLiteral("Sestava"));
    if (vse.prazdny())
        throw Error(Chyba::NeplatnyVstup, QStringLiteral("Sestava „%1“ v zakázce „%2“ není.").arg(sestava, zakazka));
    vse.moveLast();
    for (const char* pole : PoleHlavicky)
        m_hlavicka << vse.value(QLatin1String(pole));
    if (vse.recordCount() < 2 && vse.text(QStringLiteral("Oznaceni")).isEmpty())
        m_prazdna.emplace(std::move(vse)); // standing on the header row
}

Recordset DoSestavy::radek()
{
    if (m_prazdna) {
        Recordset rs = std::move(*m_prazdna);
        m_prazdna.reset();
        rs.edit();
        return rs;
    }
    Recordset rs = novyRadek(m_db);
    for (int i = 0; i < m_hlavicka.size(); ++i)
        rs.set(QLatin1String(PoleHlavicky[i]), m_hlavicka[i]);
    return rs;
}

void DoSestavy::pridej(const Polozka& p, double cas)
{
    Recordset rs = radek();
    zapisPolozku(rs, p, cas);
    rs.update();
}

} // namespace NoveRadky
