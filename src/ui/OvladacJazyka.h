#pragma once
// The main window in another language ("Jazyk": cestina, Anglictina): each line of the language
// file onto its caption, found by object name; a missing or damaged file is refused with a
// message and every caption and check mark stays.
#include "core/Jazyk.h"

#include <QString>

class Prompt;
class QAction;
class QWidget;
class TabulkaPrikazu;

class OvladacJazyka {
public:
    OvladacJazyka(QWidget& okno, Prompt& prompt);
    void pridejPrikazy(TabulkaPrikazu& tabulka);

    void zvolJazyk(bool anglicky);
    // The captions of the checked language file; false (a message shown) when it is refused.
    bool NactiJazyk();
    void nastavPopisek(const Jazyk::Cil& cil, const QString& text);
    QString popisek(const Jazyk::Cil& cil) const;

private:
    QAction* akce(const QString& nazev) const;

    QWidget& m_okno;
    Prompt& m_prompt;
};
