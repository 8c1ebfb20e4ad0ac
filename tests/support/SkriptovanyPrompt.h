#pragma once
// A Prompt answered from a script: each question takes the next answer; a question with no
// answer left, or an answer never asked for, fails the test. Messages are kept for assertions.
#include "core/Prompt.h"

#include <QStringList>
#include <QVariant>
#include <deque>

class SkriptovanyPrompt : public Prompt {
public:
    ~SkriptovanyPrompt() override;

    // Answers in the order they will be asked: an Odpoved for zprava(), a QString for vstup()
    // and soubor() (a null QString cancels).
    void odpovez(Odpoved o) { m_odpovedi.push_back(QVariant::fromValue(int(o))); }
    void odpovez(const QString& text) { m_odpovedi.push_back(text); }
    // Choosers take their own queues; an empty queue cancels (Error 32755).
    void odpovezBarvou(quint32 bgr) { m_barvy.push_back(bgr); }
    void odpovezPismem(const VolbaPisma& p) { m_pisma.push_back(p); }

    Odpoved zprava(const QString& text, const QString& titulek, Ikona ikona,
                   Tlacitka tlacitka) override;
    QString vstup(const QString& text, const QString& titulek, const QString& vychozi) override;
    QString soubor(bool ulozit, const QString& titulek, const QString& slozka,
                   const QString& navrh, const QString& filtr) override;
    quint32 barva(quint32 bgr, const QString& titulek) override;
    VolbaPisma pismo(const VolbaPisma& puvodni, const QString& titulek) override;

    QStringList zpravy;   // every text shown, in order
    QStringList titulky;  // their titles

private:
    QVariant dalsi(const QString& otazka);
    std::deque<QVariant> m_odpovedi;
    std::deque<quint32> m_barvy;
    std::deque<VolbaPisma> m_pisma;
};
