#pragma once

#include "support/Bord.h"

#include <QFontMetricsF>
#include <QPainter>

// Pictures as they have to be, which a test draws by the toolkit itself, in pixels; and how a button is pressed.

inline QImage Doek(int breedte, int hoogte, QRgb kleur)
{
    QImage beeld(breedte, hoogte, QImage::Format_RGB32);
    beeld.fill(kleur);
    return beeld;
}

/// What the visible board should be when it is empty. @param banden where those of a Sudoku begin
inline QImage Raster(int breedte, int hoogte, const QList<int> &banden = {})
{
    QImage beeld = Doek(breedte * 30 + 1, hoogte * 30 + 1, qRgb(255, 255, 255));
    QPainter painter(&beeld);
    for (int x = 0; x <= breedte; ++x)
        painter.fillRect(x * 30, 0, 1, beeld.height(), QColor(150, 150, 150));
    for (int y = 0; y <= hoogte; ++y)
        painter.fillRect(0, y * 30, beeld.width(), 1, QColor(150, 150, 150));
    for (const int band : banden) {
        painter.fillRect(band, 0, 3, beeld.height(), QColor(150, 150, 150));
        painter.fillRect(0, band, beeld.width(), 3, QColor(150, 150, 150));
    }
    return beeld;
}

/// The same of the large board.
inline QImage Tegels(const QImage &tegel, int breedte, int hoogte, const QList<int> &banden = {})
{
    QImage beeld = Doek(breedte * 120 + 3, hoogte * 120 + 3, qRgb(255, 255, 255));
    QPainter painter(&beeld);
    for (int x = 0; x < breedte; ++x)
        for (int y = 0; y < hoogte; ++y)
            painter.drawImage(x * 120, y * 120, tegel);
    for (const int band : banden) {
        painter.fillRect(band, 0, 10, beeld.height(), Qt::black);
        painter.fillRect(0, band, beeld.width(), 10, Qt::black);
    }
    return beeld;
}

/// Where the bands of a Sudoku begin on both.
inline const QList<int> Banden{89, 179}, BandenGroot{357, 717};

/// A picture that is drawn on. What falls outside is lost.
class Verwacht
{
public:
    explicit Verwacht(const QImage &begin) : Beeld(begin) {}

    void Vul(QRect vlak, QRgb kleur) { QPainter(&Beeld).fillRect(vlak, QColor(kleur)); }
    void Plak(const QImage &deel, QPoint plaats) { QPainter(&Beeld).drawImage(plaats, deel); }
    /// Bitwise AND with what is there.
    void En(const QImage &deel, QPoint plaats)
    {
        for (int y = 0; y < deel.height(); ++y)
            for (int x = 0; x < deel.width(); ++x)
                if (const QPoint doel = plaats + QPoint(x, y); Beeld.rect().contains(doel))
                    Beeld.setPixel(doel, Beeld.pixel(doel) & deel.pixel(x, y));
    }
    /// Prints with the top left of the text cell at this place.
    void Druk(const QString &tekst, QPoint plaats, const QFont &font, QRgb kleur)
    {
        QPainter painter(&Beeld);
        painter.setFont(font);
        painter.setPen(QColor(kleur));
        painter.drawText(plaats + QPoint(0, qRound(QFontMetricsF(font).ascent())), tekst);
    }

    QImage Beeld;
};

/// Where two pictures differ, as a message; empty when they are the same.
inline QString Verschil(const QImage &is, const QImage &hoort)
{
    if (is.size() != hoort.size())
        return QStringLiteral("%1 by %2 pixels").arg(is.width()).arg(is.height());
    if (is == hoort)
        return {};
    QRect waar;
    for (int y = 0; y < is.height(); ++y)
        for (int x = 0; x < is.width(); ++x)
            if (is.pixel(x, y) != hoort.pixel(x, y))
                waar |= QRect(x, y, 1, 1);
    return QStringLiteral("x %1 to %2, y %3 to %4")
        .arg(waar.left())
        .arg(waar.right())
        .arg(waar.top())
        .arg(waar.bottom());
}

/// A clock that looks each time something waits on it. It is in use as long as it lives.
class KijkKlok : public DirecteKlok
{
public:
    explicit KijkKlok(std::function<void()> kijk) : kijk_(std::move(kijk)), vorige_(Huidig()) { Gebruik(this); }
    ~KijkKlok() override { Gebruik(&vorige_); }
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        Wachttijden += seconden;
        Welke += welke;
        kijk_();
        DirecteKlok::Slaap(seconden, welke);
    }

    QList<double> Wachttijden;
    QList<QEventLoop::ProcessEventsFlags> Welke;

private:
    std::function<void()> kijk_;
    Klok &vorige_;
};

/// Clicks a button. Its press effect comes before all else: the button lies 30 twips lower and to the right for 0.2
/// seconds, and then it is looked what has happened.
inline void KlikMetDruk(ImageButton &knop, const std::function<void()> &kijk)
{
    const QPoint plaats = knop.pos();
    KijkKlok klok([&] {
        QCOMPARE(knop.pos(), plaats + QPoint(2, 2));
        kijk();
    });
    knop.click();
    QCOMPARE(klok.Wachttijden, QList<double>{0.2});
    QCOMPARE(knop.pos(), plaats);
}
