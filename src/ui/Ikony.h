#pragma once
// Toolbar icons, drawn rather than shipped: a coloured tile per kind of thing (order, assembly,
// board, accessory, ...) with a sign for the action (+ new, pencil edit, - delete).
#include <QIcon>

namespace Ikony {
QIcon proKlic(const char* klic); // for a toolbar key of Nabidka::nastroje()
QIcon zakazka();                 // tree: an order
QIcon sestava();                 // tree: an assembly
QIcon znacka(const QString& znak, const QColor& barva); // a tile with a sign (viewer keys)
}
