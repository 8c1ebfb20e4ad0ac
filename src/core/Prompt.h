#pragma once
// Every message, question and chooser that logic needs, asked through this interface: the
// workbench answers with Qt dialogs, the command line and tests with scripted answers.
// A cancelled chooser throws Error 32755, as the old common dialog did.
#include <QString>

// A font as the font chooser gives it and the settings keep it.
struct VolbaPisma {
    QString nazev = QStringLiteral("Arial");
    int velikost = 10;
    bool tucne = false, kurziva = false, podtrzene = false, preskrtnute = false;
    quint32 barva = 0; // 0x00BBGGRR
};

class Prompt {
public:
    enum class Ikona { Zadna, Informace, Otaznik, Vykricnik, Kriticka };
    // AnoNeVychoziNe: Yes and No with No as the default, for a question whose safe answer is No.
    enum class Tlacitka { Ok, AnoNe, AnoNeStorno, OkStorno, AnoNeVychoziNe };
    enum class Odpoved { Ok, Ano, Ne, Storno };

    virtual ~Prompt() = default;

    virtual Odpoved zprava(const QString& text, const QString& titulek, Ikona ikona,
                           Tlacitka tlacitka = Tlacitka::Ok) = 0;
    // The text typed, or a null QString when cancelled.
    virtual QString vstup(const QString& text, const QString& titulek, const QString& vychozi) = 0;
    // A file to open or save: filtr in Qt's form ("Popis (*.x)"). Throws Error 32755 on cancel.
    virtual QString soubor(bool ulozit, const QString& titulek, const QString& slozka,
                           const QString& navrh, const QString& filtr) = 0;
    // The colour and font choosers. Throw Error 32755 on cancel; a prompt that cannot show
    // them (the command line) always cancels.
    virtual quint32 barva(quint32 bgr, const QString& titulek);
    virtual VolbaPisma pismo(const VolbaPisma& puvodni, const QString& titulek);
};

// Long work reports here and asks whether to stop; no widgets involved.
class Prubeh {
public:
    virtual ~Prubeh() = default;
    virtual void popisek(const QString& text) = 0;  // the progress label
    virtual void hodnota(double hodnota) = 0;       // the bar, 0 .. maximum()
    virtual double maximum() const { return 100; }
    virtual void zobraz() {}                        // make the bar visible
    // Gives the event loop a turn; the answer is whether the user asked to stop.
    virtual bool prerusit() = 0;
};

// A Prubeh that reports nothing and never stops.
class TichyPrubeh : public Prubeh {
public:
    void popisek(const QString&) override {}
    void hodnota(double) override {}
    bool prerusit() override { return false; }
};
