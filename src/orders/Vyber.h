#pragma once
// The current selection of the workbench, what the old main window kept in its two hidden text
// boxes txtzakazka and txtSestava: writing one that changes fires its signal, and the window
// refreshes from the signals alone, in the same order of events (order first, then assembly).
#include <QObject>
#include <QString>

class Vyber : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const QString& txtzakazka() const { return m_zakazka; }
    const QString& txtSestava() const { return m_sestava; }
    void setTxtzakazka(const QString& zakazka);
    void setTxtSestava(const QString& sestava);
    // Both again, firing both signals even when the texts stand as they were (after a save that
    // changed the tree).
    void obnov(const QString& zakazka, const QString& sestava);

signals:
    void zmenaZakazky(const QString& zakazka);
    void zmenaSestavy(const QString& sestava);

private:
    QString m_zakazka, m_sestava;
};
