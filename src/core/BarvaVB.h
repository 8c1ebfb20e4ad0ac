#pragma once
// Colours as the settings and tables keep them: the old platform's number 0x00BBGGRR, written
// "&H00BBGGRR&" (blue first), and the "#RRGGBB" that people type on the command line.
#include <QString>
#include <optional>

namespace BarvaVB {

QString text(quint32 bgr);                            // "&H000000FF&" for red
std::optional<quint32> zTextu(const QString& text);   // "&H…&" or a plain number
QString html(quint32 bgr);                            // "#FF0000" for red
std::optional<quint32> zHtml(const QString& text);    // "#RRGGBB" only

}
