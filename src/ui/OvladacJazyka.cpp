#include "ui/OvladacJazyka.h"

#include "core/Error.h"
#include "core/Prompt.h"
#include "ui/TabulkaPrikazu.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QTabWidget>
#include <QTableWidget>

OvladacJazyka::OvladacJazyka(QWidget& okno, Prompt& prompt) : m_okno(okno), m_prompt(prompt) {}

void OvladacJazyka::pridejPrikazy(TabulkaPrikazu& tabulka)
{
    tabulka.pridej({QStringLiteral("cestina")}, [this] { zvolJazyk(false); });
    tabulka.pridej({QStringLiteral("Anglictina")}, [this] { zvolJazyk(true); });
}

QAction* OvladacJazyka::akce(const QString& nazev) const { return m_okno.findChild<QAction*>(nazev); }

void OvladacJazyka::zvolJazyk(bool anglicky)
{
    QAction* cestina = akce(QStringLiteral("cestina"));
    QAction* anglictina = akce(QStringLiteral("Anglictina"));
    const bool bylaAnglictina = anglictina->isChecked();
    cestina->setChecked(!anglicky);
    anglictina->setChecked(anglicky);
    if (!NactiJazyk()) { // the check mark goes back to the language still shown
        cestina->setChecked(!bylaAnglictina);
        anglictina->setChecked(bylaAnglictina);
    }
}

bool OvladacJazyka::NactiJazyk()
{
    const auto soubor = akce(QStringLiteral("Anglictina"))->isChecked() ? Jazyk::Soubor::Anglictina : Jazyk::Soubor::Cestina;
    QStringList radky;
    try {
        radky = Jazyk::nacti(Jazyk::cesta(soubor));
    } catch (const Error& e) {
        m_prompt.zprava(e.text(), QString(), Prompt::Ikona::Kriticka);
        return false;
    }
    for (const Jazyk::Cil& c : Jazyk::cile())
        if (!radky[c.radek - 1].trimmed().isEmpty())
            nastavPopisek(c, radky[c.radek - 1]);
    return true;
}

void OvladacJazyka::nastavPopisek(const Jazyk::Cil& c, const QString& text)
{
    const QString nazev = QLatin1String(c.nazev);
    switch (c.druh) {
    case Jazyk::Druh::Popisek:
        if (QAction* a = m_okno.findChild<QAction*>(nazev))
            a->setText(text);
        else if (auto* b = m_okno.findChild<QAbstractButton*>(nazev))
            b->setText(text);
        else if (auto* g = m_okno.findChild<QGroupBox*>(nazev))
            g->setTitle(text);
        else if (auto* l = m_okno.findChild<QLabel*>(nazev))
            l->setText(text);
        break;
    case Jazyk::Druh::Tip:
        if (QAction* a = m_okno.findChild<QAction*>(nazev)) {
            a->setText(text);
            a->setToolTip(text);
        } else if (auto* w = m_okno.findChild<QWidget*>(nazev))
            w->setToolTip(text);
        break;
    case Jazyk::Druh::Zalozka:
        if (auto* t = m_okno.findChild<QTabWidget*>(nazev))
            t->setTabText(c.index, text);
        break;
    case Jazyk::Druh::Sloupec:
        if (auto* g = m_okno.findChild<QTableWidget*>(nazev))
            if (QTableWidgetItem* h = g->horizontalHeaderItem(c.index))
                h->setText(text);
        break;
    case Jazyk::Druh::Nic: break;
    }
}

QString OvladacJazyka::popisek(const Jazyk::Cil& c) const
{
    const QString nazev = QLatin1String(c.nazev);
    switch (c.druh) {
    case Jazyk::Druh::Popisek:
        if (QAction* a = m_okno.findChild<QAction*>(nazev))
            return a->text();
        if (auto* b = m_okno.findChild<QAbstractButton*>(nazev))
            return b->text();
        if (auto* g = m_okno.findChild<QGroupBox*>(nazev))
            return g->title();
        if (auto* l = m_okno.findChild<QLabel*>(nazev))
            return l->text();
        break;
    case Jazyk::Druh::Tip:
        if (QAction* a = m_okno.findChild<QAction*>(nazev))
            return a->toolTip();
        if (auto* w = m_okno.findChild<QWidget*>(nazev))
            return w->toolTip();
        break;
    case Jazyk::Druh::Zalozka:
        if (auto* t = m_okno.findChild<QTabWidget*>(nazev))
            return t->tabText(c.index);
        break;
    case Jazyk::Druh::Sloupec:
        if (auto* g = m_okno.findChild<QTableWidget*>(nazev))
            if (QTableWidgetItem* h = g->horizontalHeaderItem(c.index))
                return h->text();
        break;
    case Jazyk::Druh::Nic: break;
    }
    return QString();
}
