#pragma once
// frmObr and frmSchema, one design: a record at a time of the picture or the schema library,
// fitted (shrunk only, centred) in Image1, HScroll1 stepping through the records, cmdN adding
// a file after a look and a question, Command2 deleting, cmdV choosing, Command1 choosing
// none, cmdS closing without a choice (hidden when opened from the menu), UDS the zoom.
#include "catalogues/Knihovna.h"

#include <QDialog>
#include <vector>

class Database;
class Prompt;
class QLabel;
class QScrollBar;
class QSpinBox;

class FrmObr : public QDialog {
    Q_OBJECT
public:
    // ide: the record to show first (0: the first); zVolby: opened to choose (cmdV, Command1).
    FrmObr(Database& cenik, Prompt& prompt, Knihovna::Druh druh, int ide, bool zVolby, QWidget* rodic);

    // After exec: the IDE chosen (0 for none) or nullopt when closed without a choice.
    std::optional<int> volba() const { return m_volba; }

private:
    void nacti(int ide);
    void ukaz();
    void pridej();
    void smaz();

    Database& m_cenik;
    Prompt& m_prompt;
    Knihovna::Druh m_druh;
    std::vector<Knihovna::Zaznam> m_zaznamy;
    QImage m_obrazek;
    std::optional<int> m_volba;
    QLabel* m_Image1;
    QLabel* m_lblPozice;
    QScrollBar* m_HScroll1;
    QSpinBox* m_UDS;
};
