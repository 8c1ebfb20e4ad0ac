// The entry frames' ways into the price list (frmCenik with the caller's key) and the schema
// library (frmSchema).
#include "ui/FrmNovy.h"

#include "catalogues/Cenik.h"
#include "catalogues/Knihovna.h"
#include "printing/Obrazky.h"
#include "ui/FrmCenik.h"
#include "ui/FrmObr.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

FrmNovy::FrmNovy(QWidget* rodic, Database& cenik, Prompt& prompt) : FrmNovy(rodic)
{
    m_cenik = &cenik;
    m_prompt = &prompt;
}

QStringList FrmNovy::nazvyCeniku(const QString& vyber) const
{
    return m_cenik ? Cenik::NaplnitSeznamCeniku(*m_cenik, vyber, Cenik::ulozeneRazeni()) : QStringList();
}

QPushButton* FrmNovy::tlacitkoCeniku(const QString& klic,
                                     const std::function<void(const QString&, double, const QString&)>& prevezmi)
{
    auto* b = new QPushButton(QStringLiteral("Z ceníku..."));
    b->setObjectName(QStringLiteral("cmd") + klic);
    if (!m_cenik)
        b->hide();
    connect(b, &QPushButton::clicked, this, [this, klic, prevezmi] {
        FrmCenik cenik(*m_cenik, *m_prompt, this, klic);
        if (cenik.exec() != QDialog::Accepted)
            return;
        if (const auto p = Cenik::nacti(*m_cenik, cenik.vybrano()))
            prevezmi(p->nazev, p->cena, p->jednotka);
    });
    return b;
}

void FrmNovy::prevezmiZCeniku(QComboBox* nazev,
                              const std::function<void(const QString&, double, const QString&)>& prevezmi)
{
    connect(nazev, &QComboBox::textActivated, this, [this, prevezmi](const QString& t) {
        if (const auto p = m_cenik ? Cenik::nacti(*m_cenik, t) : std::nullopt)
            prevezmi(p->nazev, p->cena, p->jednotka);
    });
}

void FrmNovy::ukazSchema(int ide, QLabel* imgSchema) const
{
    const QImage obr = m_cenik && ide ? Knihovna::obrazek(*m_cenik, Knihovna::Druh::Schemata, ide) : QImage();
    if (obr.isNull())
        imgSchema->clear();
    else
        imgSchema->setPixmap(QPixmap::fromImage(Obrazky::vepsany(obr, imgSchema->size())));
}

QPushButton* FrmNovy::tlacitkoSchematu(QLabel* lblSchema, QLabel* imgSchema)
{
    auto* b = new QPushButton(QStringLiteral("Schéma..."));
    b->setObjectName(QStringLiteral("cmdSchema"));
    if (!m_cenik)
        b->hide();
    connect(b, &QPushButton::clicked, this, [this, lblSchema, imgSchema] {
        FrmObr okno(*m_cenik, *m_prompt, Knihovna::Druh::Schemata, lblSchema->text().toInt(), true, this);
        if (okno.exec() != QDialog::Accepted || !okno.volba())
            return;
        lblSchema->setText(*okno.volba() ? QString::number(*okno.volba()) : QString());
        ukazSchema(*okno.volba(), imgSchema);
    });
    ukazSchema(lblSchema->text().toInt(), imgSchema);
    return b;
}
