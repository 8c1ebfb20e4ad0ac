#include "catalogues/Knihovna.h"

#include "core/Database.h"
#include "core/Prompt.h"
#include "core/Recordset.h"
#include "core/Transakce.h"
#include "printing/Obrazky.h"

namespace Knihovna {

QString tabulka(Druh druh) { return druh == Druh::Obrazky ? QStringLiteral("Obrazky") : QStringLiteral("Schemata"); }

std::vector<Zaznam> seznam(Database& db, Druh druh)
{
    std::vector<Zaznam> v;
    const auto p = db.prikaz(QStringLiteral("SELECT IDE, nazev FROM %1 ORDER BY rowid").arg(tabulka(druh)));
    while (p->krok())
        v.push_back({p->sloupec(0).toInt(), p->sloupec(1).toString()});
    p->reset();
    return v;
}

std::optional<QByteArray> data(Database& db, Druh druh, int ide)
{
    const Recordset r(db, QStringLiteral("SELECT * FROM %1 WHERE IDE = ?").arg(tabulka(druh)), {ide}, Recordset::Rozsah::Prvni);
    if (r.eof())
        return std::nullopt;
    return r.value(QStringLiteral("OBR")).toByteArray();
}

bool existuje(Database& db, Druh druh, int ide)
{
    return db.hodnota(QStringLiteral("SELECT IDE FROM %1 WHERE IDE = ?").arg(tabulka(druh)), {ide}).isValid();
}

QString nazev(Database& db, Druh druh, int ide)
{
    return db.hodnota(QStringLiteral("SELECT nazev FROM %1 WHERE IDE = ?").arg(tabulka(druh)), {ide}).toString();
}

QImage obrazek(Database& db, Druh druh, int ide)
{
    const auto bajty = data(db, druh, ide);
    return bajty ? Obrazky::dekoduj(*bajty) : QImage();
}

int pridej(Database& db, Prompt& prompt, Druh druh, const QString& nazev, const QByteArray& bajty)
{
    const QString proc = Obrazky::proc(bajty, nazev);
    if (!proc.isEmpty()) {
        prompt.zprava(proc, QStringLiteral("Uložení nového obrázku"), Prompt::Ikona::Kriticka);
        return 0;
    }
    Transakce t(db);
    const QVariant nejvyssi = db.hodnota(QStringLiteral("SELECT max(IDE ) FROM ") + tabulka(druh));
    const int ide = nejvyssi.isNull() ? 1 : nejvyssi.toInt() + 1;
    // the bytes are bound: a picture never passes through the query's text
    db.executeSqlite(QStringLiteral("INSERT INTO %1 (IDE, nazev, OBR) VALUES (?, ?, ?)").arg(tabulka(druh)), {ide, nazev, bajty});
    t.commit();
    return ide;
}

bool smaz(Database& db, Druh druh, int ide)
{
    Transakce t(db);
    Recordset r(db, QStringLiteral("SELECT * FROM %1 WHERE IDE = ?").arg(tabulka(druh)), {ide});
    const bool byl = !r.eof();
    for (; !r.eof(); r.moveNext())
        r.remove();
    if (druh == Druh::Obrazky)
        for (const char* pole : {"obr1", "obr2"})
            for (Recordset c(db, QStringLiteral("SELECT * FROM Cenik WHERE %1 = ?").arg(QLatin1String(pole)), {ide}); !c.eof();
                 c.moveNext()) {
                c.edit();
                c.set(QLatin1String(pole), 0);
                c.update();
            }
    t.commit();
    return byl;
}

} // namespace Knihovna
