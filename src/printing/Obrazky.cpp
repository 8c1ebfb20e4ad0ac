#include "printing/Obrazky.h"

#include <QBuffer>
#include <QImageReader>

namespace Obrazky {

QImage dekoduj(const QByteArray& data)
{
    if (data.isEmpty() || data.size() > NejvicBajtu)
        return {};
    QImageReader::setAllocationLimit(int(NejvicPixelu * 4 / (1024 * 1024)));
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    const QSize velikost = reader.size();
    if (velikost.isValid() && qint64(velikost.width()) * velikost.height() > NejvicPixelu)
        return {};
    return reader.read();
}

}
