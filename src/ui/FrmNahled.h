#pragma once
// frmNahled: one picture at its natural size in Picture1 with the scroll bars HScroll1 and
// VScroll1, the zoom UDS (per cent) and the menu key TiskObrazku, which lays the picture out
// in the print document and shows it in frmVSP.
#include <QDialog>
#include <QImage>

class Prompt;
class QLabel;
class QScrollArea;
class QSpinBox;

class FrmNahled : public QDialog {
    Q_OBJECT
public:
    FrmNahled(const QImage& obrazek, const QString& titulek, Prompt& prompt, QWidget* rodic);

    void priblizeni(int procent); // UDS
    void TiskObrazku();

private:
    QImage m_obrazek;
    Prompt& m_prompt;
    QScrollArea* m_Picture1;
    QLabel* m_Image1;
    QSpinBox* m_UDS;
};
