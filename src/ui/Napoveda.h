#pragma once
// The manual: HTML pages built into the program (share/napoveda), one per chapter, shown in the
// help window. F1 (or the Help key) in any window opens that window's own page; the help menu
// and the toolbar key open the contents.
#include <QString>
#include <utility>
#include <vector>

class FrmNapoveda;
class QObject;
class QWidget;

namespace Napoveda {

inline const QString Obsah = QStringLiteral("index.html"); // the first page: the contents

QString slozka(); // the manual's folder as a URL ("qrc:/napoveda")

// The windows and frmNovy's frames that have a page of their own, by object name (UTF-8).
const std::vector<std::pair<const char*, const char*>>& strankyOken();

// The page of a window (a frame of frmNovy by the frame it shows): "plan.html",
// "zakazka.html#import"; the contents for a window the manual has no page for.
QString stranka(const QWidget* okno);

// Shows stranka in the help window of okno's window (made when there is none; it closes with
// that window). The window returned is owned by okno's window.
FrmNapoveda* otevri(QWidget* okno, const QString& stranka);

// From now on until vlastnik ends, F1 or the Help key anywhere in the application opens the
// page of the window that has the keyboard.
void zapniKlavesu(QObject* vlastnik);

} // namespace Napoveda
