#include "platform/PictureBox.h"
#include "platform/Shapes.h"
#include "support/Testbank.h"

#include <QPainter>

using namespace Qt::StringLiterals;

/// A white box of 100 by 60 pixels with a mark on it.
template <class Teken> struct MetTeken
{
    QWidget Venster;
    PictureBox Box{&Venster};
    Teken Mark{&Box};

    MetTeken()
    {
        Venster.resize(100, 60);
        Box.SetSize(1500, 900);
        Box.Cls();
    }
};

/// Scales of a screen, in the column "ratio".
static void Schalen()
{
    QTest::addColumn<double>("ratio");
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0})
        Geval(QByteArray::number(ratio), ratio);
}

/// What a screen of that scale shows of a box.
static QImage OpSchaal(PictureBox &box, double ratio)
{
    QImage beeld((QSizeF(box.size()) * ratio).toSize(), QImage::Format_RGB32);
    beeld.setDevicePixelRatio(ratio);
    box.render(&beeld);
    return beeld;
}

/// Counts how often a widget is painted.
class Schilder : public QObject
{
public:
    explicit Schilder(QWidget &widget) { widget.installEventFilter(this); }
    int Keren = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        Keren += event->type() == QEvent::Paint;
        return false;
    }
};

class tst_Shapes : public QObject
{
    Q_OBJECT
private slots:
    void aLineIsDrawnFromPointToPoint_data()
    {
        QTest::addColumn<QPoint>("van"); // twips
        QTest::addColumn<QPoint>("tot");
        QTest::addColumn<int>("dikte");
        QTest::addColumn<QRect>("vlak"); // pixels
        Geval("to the right", QPoint(150, 300), QPoint(900, 300), 2, QRect(9, 19, 52, 2));
        Geval("to the left", QPoint(900, 300), QPoint(150, 300), 2, QRect(9, 19, 52, 2));
        Geval("down", QPoint(150, 300), QPoint(150, 750), 2, QRect(9, 19, 2, 32));
        Geval("up", QPoint(150, 750), QPoint(150, 300), 2, QRect(9, 19, 2, 32));
        Geval("a dot", QPoint(150, 300), QPoint(150, 300), 2, QRect(9, 19, 2, 2));
        Geval("thin", QPoint(150, 300), QPoint(900, 300), 1, QRect(10, 20, 51, 1));
        Geval("thick", QPoint(150, 300), QPoint(900, 300), 4, QRect(8, 18, 54, 4));
        Geval("nearest pixel", QPoint(142, 308), QPoint(893, 308), 1, QRect(9, 21, 52, 1));
    }
    void aLineIsDrawnFromPointToPoint()
    {
        QFETCH(QPoint, van);
        QFETCH(QPoint, tot);
        QFETCH(int, dikte);
        QFETCH(QRect, vlak);
        MetTeken<LineMark> blad;
        blad.Mark.BorderColor = Qt::red;
        blad.Mark.BorderWidth = dikte;
        blad.Mark.X1 = van.x();
        blad.Mark.Y1 = van.y();
        blad.Mark.X2 = tot.x();
        blad.Mark.Y2 = tot.y();
        blad.Mark.Toon();
        QImage verwacht = blad.Box.Image();
        QPainter(&verwacht).fillRect(vlak, Qt::red);
        QCOMPARE(Getoond(blad.Box), verwacht);
        QCOMPARE(InktVlak(blad.Box.Image(), blad.Box.rect()), QRect()); // it isn't drawn into the box
    }

    void aSlopingLineIsSmooth_data()
    {
        QTest::addColumn<QPoint>("tot"); // pixels
        Geval("lower right", QPoint(70, 40));
        Geval("upper left", QPoint(5, 5));
        Geval("nearly flat", QPoint(80, 21));
        Geval("nearly upright", QPoint(41, 55));
    }
    void aSlopingLineIsSmooth()
    {
        QFETCH(QPoint, tot);
        MetTeken<LineMark> blad;
        blad.Mark.BorderColor = Qt::red;
        blad.Mark.BorderWidth = 2;
        blad.Mark.X1 = 40 * 15;
        blad.Mark.Y1 = 20 * 15;
        blad.Mark.X2 = tot.x() * 15;
        blad.Mark.Y2 = tot.y() * 15;
        blad.Mark.Toon();
        QImage verwacht = blad.Box.Image();
        QPainter painter(&verwacht);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(Qt::red, 2, Qt::SolidLine, Qt::SquareCap));
        painter.drawLine(QPoint(40, 20), tot);
        QCOMPARE(Getoond(blad.Box), verwacht);
    }

    void aStraightLineIsWholeAtAnyScale_data() { Schalen(); }
    void aStraightLineIsWholeAtAnyScale()
    {
        QFETCH(double, ratio);
        MetTeken<LineMark> blad;
        blad.Mark.BorderColor = Qt::red;
        blad.Mark.BorderWidth = 2;
        const auto past = [ratio](int pixels, int lengte) { return std::abs(pixels - lengte * ratio) < 1; };
        for (const int plaats : {10, 11, 12, 13}) // where it falls between two pixels, too
            for (const QPoint stap : {QPoint(0, 0), QPoint(30, 0), QPoint(0, 30)}) {
                blad.Mark.X1 = blad.Mark.Y1 = plaats * 15;
                blad.Mark.X2 = (plaats + stap.x()) * 15;
                blad.Mark.Y2 = (plaats + stap.y()) * 15;
                blad.Mark.Toon();
                const QImage beeld = OpSchaal(blad.Box, ratio);
                const QRect vlak = InktVlak(beeld, beeld.rect());
                QVERIFY2(past(vlak.width(), stap.x() + 2), qPrintable(QString::number(vlak.width())));
                QVERIFY2(past(vlak.height(), stap.y() + 2), qPrintable(QString::number(vlak.height())));
            }
    }

    void aNewLineIsThinAndBlack()
    {
        MetTeken<LineMark> blad;
        QVERIFY(blad.Mark.isHidden());
        QCOMPARE((QList{blad.Mark.X1, blad.Mark.Y1, blad.Mark.X2, blad.Mark.Y2}), (QList<double>{0, 0, 0, 0}));
        blad.Mark.Toon();
        QImage verwacht = blad.Box.Image();
        verwacht.setPixel(0, 0, qRgb(0, 0, 0));
        QCOMPARE(Getoond(blad.Box), verwacht);
    }

    void theLineCoversItsBoxAsItIsNow()
    {
        MetTeken<LineMark> blad;
        blad.Mark.Toon();
        QCOMPARE(blad.Mark.geometry(), QRect(0, 0, 100, 60));
        blad.Box.SetSize(750, 300);
        blad.Mark.Toon();
        QCOMPARE(blad.Mark.geometry(), QRect(0, 0, 50, 20));
    }

    void anOutlineIsDrawnInside_data()
    {
        QTest::addColumn<int>("dikte");
        Geval("thin", 1);
        Geval("two pixels", 2);
        Geval("thick", 5);
    }
    void anOutlineIsDrawnInside()
    {
        QFETCH(int, dikte);
        MetTeken<RectMark> blad;
        QVERIFY(blad.Mark.isHidden());
        blad.Mark.BorderColor = Qt::red;
        blad.Mark.BorderWidth = dikte;
        blad.Mark.Toon(150, 307, 450, 300); // to the nearest pixel
        const QRect buiten(10, 20, 30, 20);
        QCOMPARE(blad.Mark.geometry(), buiten);
        QImage verwacht = blad.Box.Image();
        QPainter painter(&verwacht);
        painter.fillRect(buiten, Qt::red);
        painter.fillRect(buiten.adjusted(dikte, dikte, -dikte, -dikte), Qt::white);
        QCOMPARE(Getoond(blad.Box), verwacht);
    }

    void anOutlineIsWholeAtAnyScale_data() { Schalen(); }
    void anOutlineIsWholeAtAnyScale()
    {
        QFETCH(double, ratio);
        MetTeken<RectMark> blad;
        blad.Mark.BorderColor = Qt::red;
        blad.Mark.BorderWidth = 2;
        for (const int plaats : {15, 30, 45, 60}) { // where it falls between two pixels, too
            blad.Mark.Toon(plaats, plaats, 450, 450);
            const QImage beeld = OpSchaal(blad.Box, ratio);
            const QRect vlak = InktVlak(beeld, beeld.rect());
            for (int y = vlak.top(); y <= vlak.bottom(); ++y)
                for (int x = vlak.left(); x <= vlak.right(); ++x) {
                    const int diepte = std::min({x - vlak.left(), vlak.right() - x, y - vlak.top(), vlak.bottom() - y});
                    if (diepte < std::floor(2 * ratio))
                        QCOMPARE(beeld.pixelColor(x, y), QColor(Qt::red));
                    else if (diepte >= std::ceil(2 * ratio))
                        QCOMPARE(beeld.pixelColor(x, y), QColor(Qt::white));
                }
        }
    }

    void aNewOutlineIsThinAndBlack()
    {
        const MetTeken<RectMark> blad;
        QCOMPARE(blad.Mark.BorderColor, QColor(Qt::black));
        QCOMPARE(blad.Mark.BorderWidth, 1);
    }

    void whatIsShownLastLiesOnTop()
    {
        MetTeken<RectMark> blad;
        LineMark lijn(&blad.Box);
        lijn.BorderColor = Qt::blue;
        lijn.X2 = 1500;
        blad.Mark.BorderColor = Qt::red;
        const auto hoek = [&] { return Getoond(blad.Box).pixelColor(0, 0); };
        blad.Mark.Toon(0, 0, 150, 150);
        lijn.Toon();
        QCOMPARE(hoek(), QColor(Qt::blue));
        blad.Mark.Toon(0, 0, 150, 150);
        QCOMPARE(hoek(), QColor(Qt::red));
        lijn.Toon();
        QCOMPARE(hoek(), QColor(Qt::blue));
    }

    void showingAgainPaintsAgain()
    {
        MetTeken<LineMark> blad;
        RectMark kader(&blad.Box);
        blad.Venster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&blad.Venster));
        const auto nogEens = [](QWidget &mark, const auto &toon) {
            toon();
            QTest::qWait(50); // until that has been painted
            const Schilder schilder(mark);
            toon(); // at the same place, on top already: it may have other points or another colour
            return QTest::qWaitFor([&] { return schilder.Keren > 0; });
        };
        QVERIFY(nogEens(blad.Mark, [&] { blad.Mark.Toon(); }));
        QVERIFY(nogEens(kader, [&] { kader.Toon(0, 0, 150, 150); }));
    }

    void thePointerGoesThrough()
    {
        MetTeken<LineMark> blad;
        RectMark kader(&blad.Box);
        QStringList gemeld;
        connect(&blad.Box, &PictureBox::MouseDown, this, [&] { gemeld += u"druk"_s; });
        connect(&blad.Box, &PictureBox::MouseMove, this,
                [&](double x, double y) { gemeld += u"%1 %2"_s.arg(x).arg(y); });
        blad.Venster.show();
        blad.Mark.Toon();
        kader.Toon(0, 0, 750, 750);
        QVERIFY(QTest::qWaitForWindowExposed(&blad.Venster));
        for (const QPoint plaats : {QPoint(10, 10), QPoint(80, 10)}) { // over both marks, and over the line alone
            gemeld.clear();
            QTest::mouseMove(blad.Venster.windowHandle(), plaats);
            QTest::mousePress(blad.Venster.windowHandle(), Qt::LeftButton, {}, plaats);
            QTest::mouseRelease(blad.Venster.windowHandle(), Qt::LeftButton, {}, plaats);
            const QString hier = u"%1 150"_s.arg(plaats.x() * 15);
            QCOMPARE(gemeld, (QStringList{hier, hier, u"druk"_s}));
        }
    }
};

RASTER_TEST(tst_Shapes)
#include "tst_Shapes.moc"
