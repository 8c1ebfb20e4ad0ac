#pragma once
// What the report preview (frmVSP) and the plan viewer (frmNP) share: the document shown a page
// at a time at a zoom, the page box "n / m", the page and zoom keys of the toolbar with their
// enabling, and the keys of the window (Escape closes; Page Up and the right arrow go forward,
// Page Down and the left arrow back, each only while its button is enabled).
#include "printing/Dokument.h"

#include <QDialog>

class Prompt;
class QAction;
class QLabel;
class QLineEdit;
class QScrollArea;
class QToolBar;

class OknoDokumentu : public QDialog {
    Q_OBJECT
public:
    static constexpr int ZoomMin = 25, ZoomMax = 400, ZoomKrok = 25;

    OknoDokumentu(Prompt& prompt, QWidget* rodic);

    Dokument& dokument() { return m_dokument; }
    // Shows the document from its first page; call after filling it.
    void obnov();

    int PreviewPage() const { return m_strana; }
    int Zoom() const { return m_zoom; }
    void nastavStranu(int strana);
    void nastavZoom(int zoom);
    QString textStrany() const; // what the page box shows
    QAction* akce(const QString& klic) const; // a toolbar key by its name

protected:
    QToolBar* nastroje() const { return m_nastroje; }
    QAction* pridejAkci(const QString& klic, const QString& popis, const QIcon& ikona);
    void pridejStrankovani(); // MINUS, PLUS, ZoomPlus, ZoomMinus and the page box
    void tiskni();
    void keyPressEvent(QKeyEvent* e) override;

    Prompt& m_prompt;

private:
    void prekresli();

    Dokument m_dokument;
    int m_strana = 1;
    int m_zoom = 100;
    QToolBar* m_nastroje;
    QScrollArea* m_plocha;
    QLabel* m_obraz;
    QLineEdit* m_Text1 = nullptr;
};
