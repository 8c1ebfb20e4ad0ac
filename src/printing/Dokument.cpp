#include "printing/Dokument.h"

#include "core/BarvaVB.h"

#include <QFontMetricsF>
#include <numeric>

QFont Pismo::font() const
{
    QFont f(nazev);
    f.setPixelSize(qMax(1, qRound(velikost * 20)));
    f.setBold(tucne);
    f.setItalic(kurziva);
    f.setUnderline(podtrzene);
    f.setStrikeOut(preskrtnute);
    // Metrics must scale with the size alone, as on the old control's page.
    f.setHintingPreference(QFont::PreferNoHinting);
    return f;
}

namespace Barva {

QColor zVB(qint64 bgr)
{
    return QColor(int(bgr & 0xff), int((bgr >> 8) & 0xff), int((bgr >> 16) & 0xff));
}

QColor zTextu(const QString& text, const QColor& jinak)
{
    const std::optional<quint32> bgr = BarvaVB::zTextu(text);
    return bgr ? zVB(*bgr) : jinak;
}

qint64 doVB(const QColor& barva)
{
    return qint64(barva.red()) | qint64(barva.green()) << 8 | qint64(barva.blue()) << 16;
}

}

void Dokument::StartDoc()
{
    m_strany.assign(1, Strana{});
    m_aktualni = 0;
    m_prekryv = -1;
    CurrentX = MarginLeft;
    CurrentY = MarginTop;
}

void Dokument::NewPage()
{
    m_strany.emplace_back();
    m_aktualni = int(m_strany.size()) - 1;
    CurrentX = MarginLeft;
    CurrentY = MarginTop;
}

void Dokument::EndDoc()
{
    m_prekryv = -1;
}

void Dokument::StartOverlay(int cislo)
{
    if (cislo >= 1 && cislo <= PageCount())
        m_prekryv = cislo - 1;
}

void Dokument::EndOverlay()
{
    m_prekryv = -1;
}

Strana& Dokument::cil()
{
    if (m_strany.empty())
        StartDoc();
    return m_strany[m_prekryv >= 0 ? m_prekryv : m_aktualni];
}

void Dokument::pridej(Operace op)
{
    cil().operace.push_back(std::move(op));
}

double Dokument::TextWidth(const QString& text) const
{
    QFontMetricsF m(pismo.font());
    double nejsirsi = 0;
    for (const QString& radek : text.split(QLatin1Char('\n')))
        nejsirsi = qMax(nejsirsi, m.horizontalAdvance(radek));
    return nejsirsi;
}

double Dokument::TextHeight(const QString& text) const
{
    return QFontMetricsF(pismo.font()).height() * (text.count(QLatin1Char('\n')) + 1);
}

void Dokument::Text(const QString& text)
{
    pridej(OpText{CurrentX, CurrentY, text, pismo, TextColor, TextAngle});
    if (TextAngle == 0)
        CurrentX += TextWidth(text);
}

void Dokument::Paragraph(const QString& text)
{
    const double vyska = TextHeight(text);
    if (presahne(vyska))
        NewPage();
    CurrentX = MarginLeft;
    pridej(OpText{CurrentX, CurrentY, text, pismo, TextColor, 0});
    CurrentY += vyska;
}

void Dokument::TextBox(const QString& text, const QRectF& ramec, Qt::Alignment zarovnani)
{
    pridej(OpTextBox{ramec, text, pismo, TextColor, zarovnani});
}

void Dokument::DrawRectangle(double left, double top, double right, double bottom)
{
    pridej(OpObdelnik{QRectF(QPointF(left, top), QPointF(right, bottom)).normalized(), pero, stetec});
}

void Dokument::DrawLine(double x1, double y1, double x2, double y2)
{
    pridej(OpCara{x1, y1, x2, y2, pero});
}

void Dokument::DrawPicture(const QImage& obrazek, double left, double top, double sirka, double vyska)
{
    if (!obrazek.isNull())
        pridej(OpObrazek{QRectF(left, top, sirka, vyska), obrazek});
}

bool Dokument::presahne(double vyska) const
{
    return CurrentY + vyska > PageHeight() - MarginBottom && CurrentY > MarginTop;
}

void Dokument::AddRow(const Tabulka& tabulka, const RadekTabulky& radek)
{
    const double vyska = radek.vyska > 0 ? radek.vyska : TextHeight(QStringLiteral("Test")) * 1.3;
    if (presahne(vyska))
        NewPage();
    const int sloupcu = int(tabulka.sirky.size());
    double x = MarginLeft;
    if (tabulka.vpravo)
        x = PageWidth() - MarginRight - std::accumulate(tabulka.sirky.begin(), tabulka.sirky.end(), 0.0);
    for (int i = 0, bunka = 0; i < sloupcu; ++bunka) {
        const int rozpeti = bunka < int(radek.rozpeti.size()) ? qMax(1, radek.rozpeti[bunka]) : 1;
        double sirka = 0;
        for (int k = i; k < qMin(sloupcu, i + rozpeti); ++k)
            sirka += tabulka.sirky[k];
        const QRectF ramec(x, CurrentY, sirka, vyska);
        QColor pozadi = bunka < int(radek.pozadiBunek.size()) && radek.pozadiBunek[bunka].isValid()
                            ? radek.pozadiBunek[bunka]
                            : radek.pozadi;
        if (pozadi.isValid() || tabulka.mrizka)
            pridej(OpObdelnik{ramec, Pero{Qt::black, 1, tabulka.mrizka}, Stetec{pozadi, !pozadi.isValid()}});
        const QString text = bunka < radek.bunky.size() ? radek.bunky[bunka] : QString();
        if (!text.isEmpty()) {
            const Qt::Alignment z = i < int(tabulka.zarovnani.size()) ? tabulka.zarovnani[i] : Qt::AlignLeft;
            pridej(OpTextBox{ramec.adjusted(40, 0, -40, 0), text, pismo, TextColor, z | Qt::AlignVCenter});
        }
        x += sirka;
        i += rozpeti;
    }
    CurrentX = MarginLeft;
    CurrentY += vyska;
}
