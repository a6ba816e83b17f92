#pragma once

#include "editors/TekstForm.h"
#include "support/Bord.h"

#include <QFontMetricsF>
#include <QPainter>

/// A picture as it has to be, which a test draws by itself. In pixels; what falls outside is lost.
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

/// All that an editor may change.
inline Stand EditorStand(const Bord &bord)
{
    Stand stand = bord.Nu();
    stand["LaatsteOplossing"] = LaatsteOplossing;
    return stand;
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
/// seconds, and nothing has been said or done yet.
inline void Klik(
    const Bord &bord, ImageButton &knop, const std::function<void()> &kijk = [] {})
{
    const Stand ervoor = EditorStand(bord);
    const QPoint plaats = knop.pos();
    KijkKlok klok([&] {
        QCOMPARE(knop.pos(), plaats + QPoint(2, 2));
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        kijk();
    });
    knop.click();
    QCOMPARE(klok.Wachttijden, QList<double>{0.2});
    QCOMPARE(knop.pos(), plaats);
}
