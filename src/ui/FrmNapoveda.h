#pragma once
// The help window: the manual's pages (built into the program) in a browser with the keys
// "Obsah", "Zpět" and "Vpřed". One window per window it was asked from (closing hides it for the
// next F1), so that a modal dialog's help is not shut out by the dialog.
#include <QWidget>

class QTextBrowser;

class FrmNapoveda : public QWidget {
    Q_OBJECT
public:
    explicit FrmNapoveda(QWidget* rodic = nullptr);

    // Shows stranka ("plan.html", "zakazka.html#import"), relative to the manual's folder.
    void zobraz(const QString& stranka);
    QString stranka() const; // the page shown, as zobraz takes it
    QTextBrowser* prohlizec() const { return m_prohlizec; }

private:
    QTextBrowser* m_prohlizec;
};
