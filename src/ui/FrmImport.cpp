#include "ui/FrmImport.h"

#include "core/Aplikace.h"
#include "core/Error.h"
#include "core/Prompt.h"
#include "exchange/Import.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QCoreApplication>
#include <QPushButton>
#include <QTextBlock>
#include <QVBoxLayout>

FrmImport::FrmImport(Database& db, Prompt& prompt, const QString& zakazka, const QString& sestava, QWidget* rodic)
    : QDialog(rodic), m_db(db), m_prompt(prompt), m_zakazka(zakazka), m_sestava(sestava)
{
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(QStringLiteral("Import desek do sestavy"));
    auto* popis = new QLabel(QStringLiteral("Zakázka: <b>%1</b>, sestava: <b>%2</b><br>"
                                            "Sloupce (oddělené tabulátorem nebo středníkem): název; délka; šířka; "
                                            "počet; hrana X1; hrana X2; hrana Y1; hrana Y2")
                                 .arg(zakazka.toHtmlEscaped(), sestava.toHtmlEscaped()));
    popis->setWordWrap(true);
    m_text1 = new QPlainTextEdit;
    m_text1->setObjectName(QStringLiteral("Text1"));
    m_text1->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text1->setMinimumSize(560, 300);
    auto* otevrit = new QPushButton(QStringLiteral("Otevřít soubor..."));
    otevrit->setObjectName(QStringLiteral("cmdOtevrit"));
    auto* import = new QPushButton(QStringLiteral("Importovat"));
    import->setObjectName(QStringLiteral("cmdImportovat"));
    auto* zavrit = new QPushButton(QStringLiteral("Zavřít"));
    zavrit->setObjectName(QStringLiteral("cmdZavrit"));
    auto* tlacitka = new QHBoxLayout;
    tlacitka->addWidget(otevrit);
    tlacitka->addStretch();
    tlacitka->addWidget(import);
    tlacitka->addWidget(zavrit);
    auto* l = new QVBoxLayout(this);
    l->addWidget(popis);
    l->addWidget(m_text1);
    l->addLayout(tlacitka);
    connect(zavrit, &QPushButton::clicked, this, &QDialog::reject);
    connect(import, &QPushButton::clicked, this, &FrmImport::importuj);
    connect(otevrit, &QPushButton::clicked, this, [this] {
        try {
            otevriSoubor(m_prompt.soubor(false, QStringLiteral("Otevření souboru pro import..."), Aplikace::domov(), QString(),
                                         QStringLiteral("Textové dokumenty (*.txt);;Všechny soubory (*)")));
        } catch (const Error& e) {
            if (e.cislo() != Chyba::Zruseno)
                m_prompt.zprava(e.text(), QStringLiteral("Import"), Prompt::Ikona::Kriticka);
        }
    });
}

void FrmImport::otevriSoubor(const QString& soubor) { m_text1->setPlainText(Import::nactiSoubor(soubor)); }

namespace {

// A long list shows how far the import got, and Storno stops it with nothing written.
class PrubehImportu : public Prubeh {
public:
    explicit PrubehImportu(QWidget* rodic)
        : m_okno(QStringLiteral("Import desek..."), QStringLiteral("Storno"), 0, 100, rodic)
    {
        m_okno.setWindowModality(Qt::WindowModal);
        m_okno.setMinimumDuration(500);
        m_okno.setAutoReset(false);
    }
    void popisek(const QString& text) override { m_okno.setLabelText(text); }
    void hodnota(double hodnota) override { m_okno.setValue(int(hodnota)); }
    bool prerusit() override
    {
        QCoreApplication::processEvents();
        return m_okno.wasCanceled();
    }

private:
    QProgressDialog m_okno;
};

} // namespace

bool FrmImport::importuj()
{
    try {
        PrubehImportu prubeh(this);
        const Import::Vysledek v = Import::importuj(m_db, m_zakazka, m_sestava, m_text1->toPlainText(), &prubeh);
        if (v.odmitnuti) {
            m_prompt.zprava(v.odmitnuti->zprava, QStringLiteral("Import"), Prompt::Ikona::Kriticka);
            const QTextBlock radek = m_text1->document()->findBlockByNumber(std::max(v.odmitnuti->radek - 1, 0));
            QTextCursor kurzor(radek);
            m_text1->setTextCursor(kurzor);
            m_text1->setFocus();
            return false;
        }
        m_pridano = v.pridano;
    } catch (const Error& e) {
        m_prompt.zprava(QStringLiteral("Chyba při převodu"), QStringLiteral("Import"), Prompt::Ikona::Kriticka);
        return false;
    }
    accept();
    return true;
}
