#pragma once
// frmImport: a board list read from a text file (or typed) into the current assembly. The text
// box Text1 may be edited before the import; a refused line keeps the window open with the
// caret on it.
#include <QDialog>

class Database;
class Prompt;
class QPlainTextEdit;

class FrmImport : public QDialog {
    Q_OBJECT
public:
    FrmImport(Database& db, Prompt& prompt, const QString& zakazka, const QString& sestava, QWidget* rodic = nullptr);
    int pridano() const { return m_pridano; }
    void otevriSoubor(const QString& soubor); // reads a file into Text1 (decoded)
    bool importuj();                           // true when imported and closed

private:
    Database& m_db;
    Prompt& m_prompt;
    QString m_zakazka, m_sestava;
    QPlainTextEdit* m_text1;
    int m_pridano = 0;
};
