#pragma once
// What every command of truhlar-cli shares: the exit codes, the store, the answers to
// questions, and the one place where failures become a Czech message and an exit code.
#include "core/Prompt.h"

#include <QStringList>
#include <QTextStream>
#include <stdexcept>

class Uloziste;

namespace Cli {

enum Kod { Hotovo = 0, Pouziti = 2, Odmitnuto = 3, ChybaUloziste = 4 };

// A command line that cannot be understood: exit 2 with the text and the usage.
class ChybaPouziti : public std::runtime_error {
public:
    explicit ChybaPouziti(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    QString text() const { return m_text; }

private:
    QString m_text;
};

// Messages go to stderr; questions are answered Yes (the command line was the decision).
class CliPrompt : public Prompt {
public:
    Odpoved zprava(const QString& text, const QString& titulek, Ikona ikona, Tlacitka tlacitka) override;
    QString vstup(const QString& text, const QString& titulek, const QString& vychozi) override;
    QString soubor(bool ulozit, const QString& titulek, const QString& slozka, const QString& navrh,
                   const QString& filtr) override;
};

QTextStream& out();
QTextStream& err();
CliPrompt& prompt();
// The application folder's store, opened on first use (never created here: that is init).
Uloziste& uloziste();
QByteArray nactiSoubor(const QString& cesta); // throws Error 75 when it cannot be read, 5 when no regular file

// Takes "--name value" out of the arguments; a null QString when absent.
QString vezmiVolbu(QStringList& argumenty, const QString& nazev);
bool vezmiPrepinac(QStringList& argumenty, const QString& nazev);

// Runs the whole command line and returns the exit code.
int spust(QStringList argumenty);

}
