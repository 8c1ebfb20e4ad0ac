#include "ui/OvladacKatalogu.h"

#include "catalogues/Knihovna.h"
#include "core/Uloziste.h"
#include "ui/FrmCenik.h"
#include "ui/FrmObr.h"
#include "ui/FrmSklad.h"
#include "ui/TabulkaPrikazu.h"

OvladacKatalogu::OvladacKatalogu(Uloziste& uloziste, Prompt& prompt, QWidget* okno, std::function<void()> poKnihovne)
    : m_uloziste(uloziste), m_prompt(prompt), m_okno(okno), m_poKnihovne(std::move(poKnihovne))
{
}

void OvladacKatalogu::pridejPrikazy(TabulkaPrikazu& tabulka)
{
    tabulka.pridej({QStringLiteral("CTM")}, [this] {
        FrmCenik cenik(m_uloziste, m_prompt, m_okno);
        cenik.exec();
    });
    for (const auto druh : {Knihovna::Druh::Schemata, Knihovna::Druh::Obrazky})
        tabulka.pridej({druh == Knihovna::Druh::Schemata ? QStringLiteral("DSS") : QStringLiteral("DOC")}, [this, druh] {
            FrmObr okno(m_uloziste.cenik(), m_prompt, druh, 0, false, m_okno);
            okno.exec();
            m_poKnihovne();
        });
    tabulka.pridej({QStringLiteral("Sklad"), QStringLiteral("SO")}, [this] {
        FrmSklad sklad(m_uloziste.dataS(), m_prompt, m_okno);
        sklad.exec();
    });
}
