#include "ui/FrmNapoveda.h"

#include "ui/Napoveda.h"

#include <QTextBrowser>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

FrmNapoveda::FrmNapoveda(QWidget* rodic) : QWidget(rodic, Qt::Window), m_prohlizec(new QTextBrowser(this))
{
    setObjectName(QStringLiteral("frmNapoveda"));
    setWindowTitle(QStringLiteral("Nápověda"));
    m_prohlizec->setObjectName(QStringLiteral("txtNapoveda"));
    m_prohlizec->setOpenExternalLinks(true);
    auto* nastroje = new QToolBar(this);
    nastroje->addAction(QStringLiteral("Obsah"), this, [this] { zobraz(Napoveda::Obsah); });
    QAction* zpet = nastroje->addAction(QStringLiteral("Zpět"), m_prohlizec, &QTextBrowser::backward);
    QAction* vpred = nastroje->addAction(QStringLiteral("Vpřed"), m_prohlizec, &QTextBrowser::forward);
    zpet->setEnabled(false);
    vpred->setEnabled(false);
    connect(m_prohlizec, &QTextBrowser::backwardAvailable, zpet, &QAction::setEnabled);
    connect(m_prohlizec, &QTextBrowser::forwardAvailable, vpred, &QAction::setEnabled);
    connect(m_prohlizec, &QTextBrowser::sourceChanged, this,
            [this] { setWindowTitle(QStringLiteral("Nápověda – ") + m_prohlizec->documentTitle()); });
    auto* svisle = new QVBoxLayout(this);
    svisle->setContentsMargins(0, 0, 0, 0);
    svisle->setSpacing(0);
    svisle->addWidget(nastroje);
    svisle->addWidget(m_prohlizec);
    resize(860, 700);
}

void FrmNapoveda::zobraz(const QString& stranka)
{
    m_prohlizec->setSource(QUrl(Napoveda::slozka() + QLatin1Char('/') + stranka));
}

QString FrmNapoveda::stranka() const
{
    const QUrl url = m_prohlizec->source();
    const QString soubor = url.path().section(QLatin1Char('/'), -1);
    return url.hasFragment() ? soubor + QLatin1Char('#') + url.fragment() : soubor;
}
