#pragma once
// frmSklad: the offcut store in the grid GSklad (sizes in the user's unit, a click on a column
// head sorts by it, chF keeps to the material of the current row), new and edited pieces in
// fraNSklad of frmNovy, deletion of a whole row, the printed list in frmVSP.
#include <QDialog>

class Database;
class Prompt;
class QCheckBox;
class QTableWidget;
class QToolBar;
class QAction;

class FrmSklad : public QDialog {
    Q_OBJECT
public:
    FrmSklad(Database& dataS, Prompt& prompt, QWidget* rodic);

    void NaplnitGrid();
    void prikaz(const QString& klic); // PO, UO, SO, TiskMS, Konec
    QAction* akce(const QString& klic) const;

private:
    QString materialRadku() const;

    Database& m_dataS;
    Prompt& m_prompt;
    QTableWidget* m_grid;
    QCheckBox* m_chF;
    QToolBar* m_nastroje;
    QString m_razeni = QStringLiteral("material");
    QString m_filtr; // the material chF keeps to
};
