#include "printing/Obrazky.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>
#include <cstdlib>
#include <cstring>

extern "C" {
#include <libwmf/api.h>
#include <libwmf/gd.h>
}

namespace Obrazky {
namespace {

constexpr quint32 KlicWmf = 0x9AC6CDD7; // the placeable metafile's key
constexpr int WmfDpi = 96;

bool zacina(const QByteArray& data, const char* znaky, int delka)
{
    return data.size() >= delka && std::memcmp(data.constData(), znaky, size_t(delka)) == 0;
}

// The metafile's own header (after the placeable one): type 1 or 2, nine words long.
bool hlavickaWmf(const QByteArray& data, qsizetype od)
{
    if (data.size() < od + 18)
        return false;
    const auto* p = reinterpret_cast<const uchar*>(data.constData() + od);
    const quint16 typ = qFromLittleEndian<quint16>(p);
    return (typ == 1 || typ == 2) && qFromLittleEndian<quint16>(p + 2) == 9;
}

// libwmf's player over the bytes, scanned; released with the object.
class PrehravacWmf {
public:
    explicit PrehravacWmf(const QByteArray& data) : m_data(data)
    {
        wmfAPI_Options volby{};
        volby.function = wmf_gd_function;
        const unsigned long priznaky = WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
        if (wmf_api_create(&m_api, priznaky, &volby) != wmf_E_None) {
            m_api = nullptr;
            return;
        }
        m_ok = wmf_mem_open(m_api, reinterpret_cast<unsigned char*>(m_data.data()), long(m_data.size())) == wmf_E_None &&
               wmf_scan(m_api, 0, &m_ramec) == wmf_E_None &&
               wmf_display_size(m_api, &m_sirka, &m_vyska, WmfDpi, WmfDpi) == wmf_E_None && m_sirka > 0 && m_vyska > 0;
        if (m_ok)
            ramecZHlavicky();
    }
    ~PrehravacWmf()
    {
        if (m_api)
            wmf_api_destroy(m_api);
    }
    PrehravacWmf(const PrehravacWmf&) = delete;
    PrehravacWmf& operator=(const PrehravacWmf&) = delete;

    QSize rozmer() const { return m_ok ? QSize(int(m_sirka), int(m_vyska)) : QSize(); }

    QImage vykresli()
    {
        if (!m_ok)
            return {};
        wmf_gd_t* gd = WMF_GD_GetData(m_api);
        gd->type = wmf_gd_image;
        gd->bbox = m_ramec;
        gd->width = m_sirka;
        gd->height = m_vyska;
        if (wmf_play(m_api, 0, &m_ramec) != wmf_E_None || !gd->gd_image)
            return {};
        const int* body = wmf_gd_image_pixels(gd->gd_image);
        if (!body)
            return {};
        QImage obr(int(m_sirka), int(m_vyska), QImage::Format_ARGB32);
        for (int y = 0; y < obr.height(); ++y) {
            auto* radek = reinterpret_cast<QRgb*>(obr.scanLine(y));
            for (int x = 0; x < obr.width(); ++x) {
                // a true-colour gd pixel: 7 bits of transparency above 0xRRGGBB
                const quint32 p = quint32(body[qsizetype(y) * obr.width() + x]);
                const int pruhlednost = int((p >> 24) & 0x7f);
                const int alfa = pruhlednost >= 127 ? 0 : 255 - pruhlednost * 2;
                radek[x] = (quint32(alfa) << 24) | (p & 0xffffff);
            }
        }
        return obr;
    }

private:
    // The scan gives the box of what is drawn; a placeable file names its whole frame (in
    // points, as the device counts), which is what the picture is.
    void ramecZHlavicky()
    {
        if (qFromLittleEndian<quint32>(m_data.constData()) != KlicWmf)
            return;
        const auto* p = reinterpret_cast<const uchar*>(m_data.constData());
        const double palec = qFromLittleEndian<quint16>(p + 14);
        if (palec <= 0)
            return;
        const double k = 72.0 / palec;
        m_ramec.TL.x = float(qFromLittleEndian<qint16>(p + 6) * k);
        m_ramec.TL.y = float(qFromLittleEndian<qint16>(p + 8) * k);
        m_ramec.BR.x = float(qFromLittleEndian<qint16>(p + 10) * k);
        m_ramec.BR.y = float(qFromLittleEndian<qint16>(p + 12) * k);
    }

    QByteArray m_data; // libwmf reads the bytes in place while it lives
    wmfAPI* m_api = nullptr;
    wmfD_Rect m_ramec{};
    unsigned int m_sirka = 0, m_vyska = 0;
    bool m_ok = false;
};

void povolVelkeObrazky()
{
    // Qt stops near 32 Mpx by default; 100 Mpx of 4 bytes each must pass
    const int megabajtu = int(NejvicPixelu * 4 / (1024 * 1024)) + 1;
    if (QImageReader::allocationLimit() < megabajtu)
        QImageReader::setAllocationLimit(megabajtu);
}

// A cut file that the decoders would still show in part: a JPEG whose last scan has no end
// marker behind it (an EXIF thumbnail's own end comes before), a PNG without its IEND.
bool useknuty(const QByteArray& data, Format f)
{
    if (f == Format::Jpeg)
        return data.lastIndexOf(QByteArrayView("\xFF\xD9", 2)) < data.lastIndexOf(QByteArrayView("\xFF\xDA", 2));
    if (f == Format::Png)
        return !data.contains("IEND");
    return false;
}

bool prilisVelky(const QSize& s)
{
    return qint64(s.width()) * s.height() > NejvicPixelu;
}

} // namespace

Format format(const QByteArray& data)
{
    if (zacina(data, "\xFF\xD8\xFF", 3))
        return Format::Jpeg;
    if (zacina(data, "\x89PNG\r\n\x1a\n", 8))
        return Format::Png;
    if (zacina(data, "BM", 2) && data.size() >= 26)
        return Format::Bmp;
    if (zacina(data, "GIF87a", 6) || zacina(data, "GIF89a", 6))
        return Format::Gif;
    if (data.size() >= 22 && qFromLittleEndian<quint32>(data.constData()) == KlicWmf && hlavickaWmf(data, 22))
        return Format::Wmf;
    if (hlavickaWmf(data, 0) && qFromLittleEndian<quint16>(data.constData() + 4) == 0x0300)
        return Format::Wmf;
    return Format::Zadny;
}

QString nazevFormatu(Format f)
{
    static const char* const nazvy[] = {"", "jpeg", "png", "bmp", "gif", "wmf"};
    return QLatin1String(nazvy[int(f)]);
}

QSize rozmer(const QByteArray& data)
{
    const Format f = format(data);
    if (f == Format::Zadny)
        return {};
    if (f == Format::Wmf)
        return PrehravacWmf(data).rozmer();
    // the fixed headers are read here: Qt's readers turn down a size they would not allocate
    const auto* p = reinterpret_cast<const uchar*>(data.constData());
    if (f == Format::Png && data.size() >= 24)
        return QSize(qFromBigEndian<qint32>(p + 16), qFromBigEndian<qint32>(p + 20));
    if (f == Format::Bmp)
        return QSize(qFromLittleEndian<qint32>(p + 18), std::abs(qFromLittleEndian<qint32>(p + 22)));
    if (f == Format::Gif && data.size() >= 10)
        return QSize(qFromLittleEndian<quint16>(p + 6), qFromLittleEndian<quint16>(p + 8));
    povolVelkeObrazky();
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, nazevFormatu(f).toLatin1());
    return reader.size();
}

QImage dekoduj(const QByteArray& data)
{
    if (data.isEmpty() || data.size() > NejvicBajtu)
        return {};
    const Format f = format(data);
    if (f == Format::Zadny)
        return {};
    if (f == Format::Wmf) {
        PrehravacWmf wmf(data);
        return prilisVelky(wmf.rozmer()) ? QImage() : wmf.vykresli();
    }
    povolVelkeObrazky();
    QBuffer buffer;
    buffer.setData(data);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer, nazevFormatu(f).toLatin1());
    reader.setAutoTransform(true);
    const QSize velikost = rozmer(data);
    if (!velikost.isValid() || prilisVelky(velikost))
        return {};
    return reader.read();
}

QString proc(const QByteArray& data, const QString& nazev)
{
    const QString prilis = QStringLiteral("Soubor „%1“ je příliš velký (nejvýše 50 MB a 100 Mpx).").arg(nazev);
    if (data.size() > NejvicBajtu)
        return prilis;
    const QString neni = QStringLiteral("Soubor „%1“ není obrázek JPG, PNG, BMP, GIF ani WMF, nebo je poškozený.").arg(nazev);
    if (format(data) == Format::Zadny || useknuty(data, format(data)))
        return neni;
    const QSize s = rozmer(data);
    if (!s.isValid())
        return neni;
    if (prilisVelky(s))
        return prilis;
    if (dekoduj(data).isNull())
        return neni;
    return QString();
}

QImage vepsany(const QImage& obrazek, const QSize& ramec)
{
    if (obrazek.isNull() || ramec.isEmpty())
        return obrazek;
    if (obrazek.width() <= ramec.width() && obrazek.height() <= ramec.height())
        return obrazek;
    return obrazek.scaled(ramec, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

}
