#pragma once
// The workbench's answer to Prompt: Qt's message boxes, input box and file dialogs, with
// Czech buttons. A cancelled file dialog throws Error 32755 as the old common dialog did.
#include "core/Prompt.h"

class QWidget;

class QtPrompt : public Prompt {
public:
    explicit QtPrompt(QWidget* rodic = nullptr) : m_rodic(rodic) {}
    void nastavRodice(QWidget* rodic) { m_rodic = rodic; }

    Odpoved zprava(const QString& text, const QString& titulek, Ikona ikona,
                   Tlacitka tlacitka = Tlacitka::Ok) override;
    QString vstup(const QString& text, const QString& titulek, const QString& vychozi) override;
    QString soubor(bool ulozit, const QString& titulek, const QString& slozka, const QString& navrh,
                   const QString& filtr) override;
    quint32 barva(quint32 bgr, const QString& titulek) override;
    VolbaPisma pismo(const VolbaPisma& puvodni, const QString& titulek) override;

private:
    QWidget* m_rodic;
};
