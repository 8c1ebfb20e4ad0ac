#include "core/Recordset.h"

#include "core/Database.h"
#include "core/Dotaz.h"
#include "core/Error.h"

#include <QRegularExpression>
#include <algorithm>

namespace {

const QRegularExpression& holaTabulka()
{
    static const QRegularExpression re(QStringLiteral("^\\s*([A-Za-z_][A-Za-z0-9_]*)\\s*$"));
    return re;
}

const QRegularExpression& vyberZTabulky()
{
    static const QRegularExpression re(QStringLiteral("^\\s*SELECT\\s+\\*\\s+FROM\\s+([A-Za-z_][A-Za-z0-9_]*)\\b(.*)$"),
                                       QRegularExpression::CaseInsensitiveOption |
                                           QRegularExpression::DotMatchesEverythingOption);
    return re;
}

} // namespace

Recordset::Recordset(Database& db, const QString& sqlNeboTabulka, Rozsah rozsah) : m_db(&db)
{
    // numbers spliced into the text become bound values, so texts that differ only in them
    // share one prepared statement
    const Dotaz::SVazbami dotaz = Dotaz::vazby(sqlRowid(sqlNeboTabulka, rozsah));
    nactiRowid(dotaz.sql, dotaz.hodnoty);
}

Recordset::Recordset(Database& db, const QString& sql, const QVariantList& hodnoty, Rozsah rozsah) : m_db(&db)
{
    QVariantList vazby;
    for (const QVariant& h : hodnoty) // a number as a spliced one was: 15 significant digits
        vazby << (h.typeId() == QMetaType::Double ? QVariant(Dotaz::cislo(h.toDouble()).toDouble()) : h);
    nactiRowid(sqlRowid(sql, rozsah), vazby);
}

QString Recordset::sqlRowid(const QString& sqlNeboTabulka, Rozsah rozsah)
{
    QString sql;
    if (const auto m = holaTabulka().match(sqlNeboTabulka); m.hasMatch()) {
        m_tabulka = m.captured(1);
        sql = QStringLiteral("SELECT rowid FROM %1 ORDER BY rowid").arg(m_tabulka);
    } else if (const auto v = vyberZTabulky().match(sqlNeboTabulka); v.hasMatch()) {
        m_tabulka = v.captured(1);
        sql = Dotaz::preloz(QStringLiteral("SELECT rowid FROM ") + m_tabulka + v.captured(2), Dotaz::Razeni::PoradiRadku);
    } else {
        throw Error(Chyba::ChybaDotazu, QStringLiteral("Dotaz nečte řádky jedné tabulky: ") + sqlNeboTabulka);
    }
    if (rozsah == Rozsah::Prvni)
        sql += QStringLiteral(" LIMIT 1");
    m_db->sloupce(m_tabulka); // a missing table fails here, as 3078
    return sql;
}

void Recordset::nactiRowid(const QString& sql, const QVariantList& hodnoty)
{
    const auto p = m_db->prikaz(sql);
    for (int i = 0; i < hodnoty.size(); ++i)
        p->navaz(i + 1, hodnoty[i]);
    while (p->krok())
        m_radky.push_back(p->sloupec(0).toLongLong());
    p->reset();
    m_smazane.assign(m_radky.size(), false);
}

void Recordset::presun(int pozice)
{
    m_pozice = std::clamp(pozice, 0, int(m_radky.size()));
    m_nacteno = false;
    m_zapis = Zapis::Nic;
    m_zmeny.clear();
}

int Recordset::index(const QString& pole) const
{
    const int i = m_db->indexSloupce(m_tabulka, pole);
    if (i >= 0)
        return i;
    throw Error(Chyba::ChybaDotazu, QStringLiteral("Pole %1 v tabulce %2 neexistuje.").arg(pole, m_tabulka));
}

void Recordset::nacti() const
{
    if (m_nacteno)
        return;
    if (eof() || m_smazane[m_pozice])
        throw Error(Chyba::ZaznamSmazan, QStringLiteral("Žádný aktuální záznam."));
    const auto p = m_db->prikaz(QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(m_tabulka));
    p->navaz(1, m_radky[m_pozice]);
    if (!p->krok()) {
        p->reset();
        throw Error(Chyba::ZaznamSmazan, QStringLiteral("Záznam byl odstraněn."));
    }
    m_hodnoty.resize(p->pocetSloupcu());
    for (int i = 0; i < p->pocetSloupcu(); ++i)
        m_hodnoty[i] = p->sloupec(i);
    p->reset();
    m_nacteno = true;
}

QVariant Recordset::value(const QString& pole) const
{
    const int i = index(pole);
    if (m_zapis != Zapis::Nic && m_zmeny.contains(i))
        return m_zmeny.value(i);
    if (m_zapis == Zapis::Novy)
        return QVariant();
    nacti();
    return m_hodnoty[i];
}

void Recordset::edit()
{
    nacti();
    m_zapis = Zapis::Uprava;
    m_zmeny.clear();
}

void Recordset::addNew()
{
    m_zapis = Zapis::Novy;
    m_zmeny.clear();
}

void Recordset::set(const QString& pole, const QVariant& hodnota)
{
    if (m_zapis == Zapis::Nic)
        throw Error(Chyba::ChybaDotazu, QStringLiteral("Zápis bez Edit nebo AddNew."));
    m_zmeny[index(pole)] = hodnota;
}

void Recordset::update()
{
    const QStringList& sloupce = m_db->sloupce(m_tabulka);
    QStringList nazvy;
    QVariantList hodnoty;
    for (auto it = m_zmeny.cbegin(); it != m_zmeny.cend(); ++it) {
        nazvy << sloupce[it.key()];
        hodnoty << it.value();
    }
    QString sql;
    if (m_zapis == Zapis::Novy) {
        sql = nazvy.isEmpty() ? QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(m_tabulka)
                              : QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                                    .arg(m_tabulka, nazvy.join(QLatin1Char(',')),
                                         QStringList(nazvy.size(), QStringLiteral("?")).join(QLatin1Char(',')));
    } else if (m_zapis == Zapis::Uprava) {
        if (!nazvy.isEmpty())
            sql = QStringLiteral("UPDATE %1 SET %2 = ? WHERE rowid = ?").arg(m_tabulka, nazvy.join(QStringLiteral(" = ?, ")));
        hodnoty << m_radky[m_pozice];
    } else {
        throw Error(Chyba::ChybaDotazu, QStringLiteral("Update bez Edit nebo AddNew."));
    }
    if (!sql.isEmpty())
        m_db->executeSqlite(sql, hodnoty);
    m_zapis = Zapis::Nic;
    m_zmeny.clear();
    m_nacteno = false;
}

void Recordset::remove()
{
    nacti();
    m_db->executeSqlite(QStringLiteral("DELETE FROM %1 WHERE rowid = ?").arg(m_tabulka), {m_radky[m_pozice]});
    m_smazane[m_pozice] = true;
    m_nacteno = false;
}
