#include "support/PixelBox.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

static constexpr QRgb Wit = qRgb(255, 255, 255);
static constexpr QRgb Zwart = qRgb(0, 0, 0);
static constexpr QRgb Rood = qRgb(255, 0, 0);
static constexpr QRgb Blauw = qRgb(0, 0, 255);

/// Lines, boxes and pictures on a surface.
class tst_CanvasDrawing : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    // --- lines and boxes ---

    void aLineDrawsBothItsEndPixels_data()
    {
        QTest::addColumn<QPoint>("van");
        QTest::addColumn<QPoint>("tot");
        const auto rij = [](const char *naam, QPoint van, QPoint tot) {
            Geval(naam, van, tot);
            Geval(QByteArray(naam) + ", back", tot, van);
        };
        rij("horizontal", QPoint(5, 7), QPoint(40, 7));
        rij("vertical", QPoint(5, 7), QPoint(5, 50));
        rij("diagonal", QPoint(5, 7), QPoint(35, 37));
        rij("diagonal up", QPoint(5, 37), QPoint(35, 7));
        rij("flat", QPoint(5, 7), QPoint(60, 20));
        rij("flat up", QPoint(5, 20), QPoint(60, 7));
        rij("steep", QPoint(5, 7), QPoint(20, 55));
        rij("steep up", QPoint(5, 55), QPoint(20, 7));
        rij("one step", QPoint(5, 7), QPoint(6, 8));
        rij("nearly flat", QPoint(0, 30), QPoint(99, 31));
        rij("corner to corner", QPoint(0, 0), QPoint(99, 59));
        rij("one pixel", QPoint(5, 7), QPoint(5, 7));
    }
    void aLineDrawsBothItsEndPixels()
    {
        QFETCH(QPoint, van);
        QFETCH(QPoint, tot);
        PixelBox box;
        box.Line(van.x(), van.y(), tot.x(), tot.y(), Rood);
        QCOMPARE(box.GetPixel(van.x(), van.y()), Rood);
        QCOMPARE(box.GetPixel(tot.x(), tot.y()), Rood);
        const QPoint verschil = tot - van;
        const QPoint hoek(std::min(van.x(), tot.x()), std::min(van.y(), tot.y()));
        QCOMPARE(box.Inkt(), QRect(hoek, QSize(std::abs(verschil.x()) + 1, std::abs(verschil.y()) + 1)));
        const int stappen = std::max(std::abs(verschil.x()), std::abs(verschil.y())) + 1;
        QCOMPARE(box.Aantal(Rood), stappen);
        QCOMPARE(box.Aantal(Wit), 100 * 60 - stappen);
    }

    void aBoxIsItsOutline()
    {
        PixelBox box;
        box.Box(10, 20, 30, 40, Blauw);
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 100; ++x) {
                const bool rand = QRect(10, 20, 21, 21).contains(x, y) && !QRect(11, 21, 19, 19).contains(x, y);
                QCOMPARE(box.GetPixel(x, y), rand ? Blauw : Wit);
            }
    }

    void aFullBoxHasBothItsCornerPixels()
    {
        PixelBox box;
        box.BoxFull(10, 20, 30, 40, Blauw);
        for (int y = 0; y < 60; ++y)
            for (int x = 0; x < 100; ++x)
                QCOMPARE(box.GetPixel(x, y), QRect(10, 20, 21, 21).contains(x, y) ? Blauw : Wit);
        box.BoxFull(50, 5, 50, 5, Rood);
        QCOMPARE(box.Aantal(Rood), 1);
        QCOMPARE(box.GetPixel(50, 5), Rood);
    }

    void cornersMayComeInAnyOrder_data()
    {
        QTest::addColumn<int>("x1");
        QTest::addColumn<int>("y1");
        QTest::addColumn<int>("x2");
        QTest::addColumn<int>("y2");
        Geval("right to left", 30, 20, 10, 40);
        Geval("bottom to top", 10, 40, 30, 20);
        Geval("both", 30, 40, 10, 20);
    }
    void cornersMayComeInAnyOrder()
    {
        QFETCH(int, x1);
        QFETCH(int, y1);
        QFETCH(int, x2);
        QFETCH(int, y2);
        PixelBox vol, omgekeerdVol, rand, omgekeerdRand;
        vol.BoxFull(10, 20, 30, 40, Blauw);
        omgekeerdVol.BoxFull(x1, y1, x2, y2, Blauw);
        QCOMPARE(omgekeerdVol.Image(), vol.Image());
        rand.Box(10, 20, 30, 40, Blauw);
        omgekeerdRand.Box(x1, y1, x2, y2, Blauw);
        QCOMPARE(omgekeerdRand.Image(), rand.Image());
        QCOMPARE(vol.Inkt(), rand.Inkt());
    }

    void whatFallsOutsideIsLeftOut()
    {
        constexpr double Ver = 1e6;
        const QImage beeld = [] {
            QImage vol(10, 10, QImage::Format_RGB32);
            vol.fill(Zwart);
            return vol;
        }();
        for (const ScaleModes mode : {ScaleModes::Pixels, ScaleModes::Twips}) {
            PixelBox box;
            box.SetScaleMode(mode);
            box.Line(-Ver, -5 * 15, Ver, -5 * 15, Zwart);
            box.Line(-5 * 15, -Ver, -5 * 15, Ver, Zwart);
            box.Line(-Ver, 0, 0, -Ver, Zwart);
            box.Line(Ver, 2000, 2000, Ver, Zwart);
            box.Box(-Ver, -Ver, Ver, Ver, Zwart);
            box.BoxFull(-Ver, -Ver, -1 * 15, Ver, Zwart);
            box.BoxFull(Ver, Ver, 2 * Ver, 2 * Ver, Zwart);
            for (const double x : {-Ver, 0.0, Ver})
                for (const double y : {-Ver, Ver}) {
                    box.PaintPicture(beeld, QRectF(x, y, 10, 10), QRectF(0, 0, 150, 150));
                    box.PaintPicture(beeld, QRectF(y, x, 10, 10), QRectF(0, 0, 150, 150), PlakWijze::En);
                }
            QCOMPARE(box.Inkt(), QRect());
            box.BoxFull(-Ver, Ver, Ver, -Ver, Rood);
            QCOMPARE(box.Aantal(Rood), 100 * 60);
        }
    }

    void aLineThatCrossesTheBoxIsDrawnWhereItCrosses()
    {
        PixelBox box;
        box.Line(-1e6, 10, 1e6, 10, Rood);
        QCOMPARE(box.Inkt(), QRect(0, 10, 100, 1));
        box.Cls();
        box.Line(10, -1e6, 10, 30, Rood);
        QCOMPARE(box.Inkt(), QRect(10, 0, 1, 31));
        box.Cls();
        box.Line(-1000, -1000, 1000, 1000, Rood);
        for (int i = 0; i < 60; ++i)
            QCOMPARE(box.GetPixel(i, i), Rood);
        QCOMPARE(box.Aantal(Rood), 60);
        box.Cls();
        box.Line(-1e6, -1e6, 1e6, 1e6, Rood);
        QVERIFY(std::abs(box.Aantal(Rood) - 60) <= 1);
        box.Cls();
        box.Box(-10, -10, 20, 20, Rood);
        QCOMPARE(box.Inkt(), QRect(0, 0, 21, 21));
        QCOMPARE(box.Aantal(Rood), 41);
    }

    void twipsGoToTheNearestPixel_data()
    {
        QTest::addColumn<double>("twips");
        QTest::addColumn<int>("pixel");
        const auto rij = [](double twips, int pixel) { Geval(QByteArray::number(twips), twips, pixel); };
        rij(0, 0);
        rij(7, 0);
        rij(7.49, 0);
        rij(7.5, 1);
        rij(8, 1);
        rij(15, 1);
        rij(22, 1);
        rij(23, 2);
        rij(-7, 0);
        rij(450, 30);
    }
    void twipsGoToTheNearestPixel()
    {
        QFETCH(double, twips);
        QFETCH(int, pixel);
        const QRect plek(pixel, pixel, 1, 1);
        PictureBox box(nullptr);
        box.SetSize(1500, 1500);
        const auto inkt = [&] {
            const QRect vlak = InktVlak(box.Image(), box.rect());
            box.Cls();
            return vlak;
        };
        box.BoxFull(twips, twips, twips, twips, Rood);
        QCOMPARE(inkt(), plek);
        box.Line(twips, twips, twips, twips, Rood);
        QCOMPARE(inkt(), plek);
        QImage punt(1, 1, QImage::Format_RGB32);
        punt.fill(Rood);
        box.PaintPicture(punt, QRectF(twips, twips, 15, 15), QRectF(0, 0, 15, 15));
        QCOMPARE(inkt(), plek);
        box.PaintPicture(punt, QRectF(0, 0, std::abs(twips) + 15, 15), QRectF(0, 0, 15, 15)); // as wide as that
        QCOMPARE(inkt(), QRect(0, 0, std::abs(pixel) + 1, 1));
        box.Line(twips, twips, 60 * 15, 40 * 15, Rood);
        QCOMPARE(inkt(), QRect(QPoint(std::min(pixel, 60), std::min(pixel, 40)), QPoint(60, 40)));
    }

    void theScaleModeSetsTheUnits()
    {
        PixelBox box;
        QCOMPARE(PictureBox(nullptr).ScaleMode(), ScaleModes::Twips);
        QVERIFY(box.ScaleMode() != ScaleModes::Twips); // it is in pixels
        box.BoxFull(30, 30, 30, 30, Rood);
        QCOMPARE(box.Inkt(), QRect(30, 30, 1, 1));
        box.Cls();
        box.SetScaleMode(ScaleModes::Twips);
        QCOMPARE(box.ScaleMode(), ScaleModes::Twips);
        box.BoxFull(30, 30, 30, 30, Rood);
        QCOMPARE(box.Inkt(), QRect(2, 2, 1, 1));
    }

    // --- pictures ---

    void aPictureIsPaintedAtItsPlace()
    {
        PixelBox box;
        box.PaintPicture(Bont(20, 10), QRectF(30, 40, 20, 10), QRectF(0, 0, 20 * 15, 10 * 15));
        QCOMPARE(box.Inkt(), QRect(30, 40, 20, 10));
        QCOMPARE(box.Image().copy(30, 40, 20, 10), Bont(20, 10));
    }

    void aPartOfAPictureIsPainted()
    {
        PixelBox box;
        box.PaintPicture(Bont(20, 10), QRectF(30, 40, 6, 3), QRectF(5 * 15, 2 * 15, 6 * 15, 3 * 15));
        QCOMPARE(box.Inkt(), QRect(30, 40, 6, 3));
        QCOMPARE(box.Image().copy(30, 40, 6, 3), Bont(20, 10).copy(5, 2, 6, 3));
    }

    void andIsBitwise()
    {
        PixelBox box;
        QImage bron(3, 1, QImage::Format_RGB32);
        bron.setPixel(0, 0, qRgb(0x96, 0x5A, 0xF0));
        bron.setPixel(1, 0, Wit);
        bron.setPixel(2, 0, Zwart);
        box.BoxFull(0, 0, 2, 0, qRgb(0xE5, 0x3C, 0x0F));
        box.PaintPicture(bron, QRectF(0, 0, 3, 1), QRectF(0, 0, 3 * 15, 15), PlakWijze::En);
        QCOMPARE(box.GetPixel(0, 0), qRgb(0x84, 0x18, 0x00));
        QCOMPARE(box.GetPixel(1, 0), qRgb(0xE5, 0x3C, 0x0F));
        QCOMPARE(box.GetPixel(2, 0), Zwart);
        QCOMPARE(box.Inkt(), QRect(0, 0, 3, 1));
    }

    void aPictureIsClippedAtTheEdges_data()
    {
        QTest::addColumn<QPoint>("plaats");
        Geval("left", QPoint(-5, 20));
        Geval("top", QPoint(20, -4));
        Geval("right", QPoint(93, 20));
        Geval("bottom", QPoint(20, 55));
        Geval("top left", QPoint(-19, -9));
        Geval("bottom right", QPoint(99, 59));
        Geval("just outside left", QPoint(-20, 20));
        Geval("just outside bottom", QPoint(20, 60));
    }
    void aPictureIsClippedAtTheEdges()
    {
        QFETCH(QPoint, plaats);
        for (const PlakWijze wijze : {PlakWijze::Kopie, PlakWijze::En}) {
            PixelBox box;
            box.PaintPicture(Bont(20, 10), QRectF(plaats.x(), plaats.y(), 20, 10), QRectF(0, 0, 20 * 15, 10 * 15),
                             wijze);
            const QRect zichtbaar = QRect(plaats, QSize(20, 10)) & box.rect();
            QCOMPARE(box.Inkt(), zichtbaar.isEmpty() ? QRect() : zichtbaar);
            if (!zichtbaar.isEmpty())
                QCOMPARE(box.Image().copy(zichtbaar), Bont(20, 10).copy(zichtbaar.translated(-plaats)));
        }
    }

    void aPartBeyondThePictureIsLeftOut_data()
    {
        QTest::addColumn<QRect>("deel");
        Geval("past right and bottom", QRect(15, 5, 20, 20));
        Geval("past left and top", QRect(-5, -3, 20, 10));
        Geval("all round", QRect(-5, -5, 40, 40));
        Geval("beside it", QRect(20, 0, 10, 10));
        Geval("far away", QRect(60000, 60000, 10, 10));
        Geval("nothing", QRect(5, 5, 0, 0));
    }
    void aPartBeyondThePictureIsLeftOut()
    {
        QFETCH(QRect, deel);
        PixelBox box;
        box.PaintPicture(Bont(20, 10), QRectF(10, 10, deel.width(), deel.height()),
                         QRectF(deel.x() * 15, deel.y() * 15, deel.width() * 15, deel.height() * 15));
        const QRect bron = deel & QRect(0, 0, 20, 10);
        const QRect doel = bron.translated(QPoint(10, 10) - deel.topLeft());
        QCOMPARE(box.Inkt(), bron.isEmpty() ? QRect() : doel);
        if (!bron.isEmpty())
            QCOMPARE(box.Image().copy(doel), Bont(20, 10).copy(bron));
    }

    void aPictureOfAnotherFormatIsPaintedToo()
    {
        QImage grijs(4, 4, QImage::Format_Grayscale8);
        grijs.fill(100);
        PixelBox box;
        box.PaintPicture(grijs, QRectF(1, 1, 4, 4), QRectF(0, 0, 60, 60));
        QCOMPARE(box.Inkt(), QRect(1, 1, 4, 4));
        QCOMPARE(box.Aantal(qRgb(100, 100, 100)), 16);
        box.PaintPicture(QImage(), QRectF(0, 0, 4, 4), QRectF(0, 0, 60, 60));
        QCOMPARE(box.Inkt(), QRect(1, 1, 4, 4));
    }

    void aBoxCanBePaintedOnItself()
    {
        PixelBox box;
        box.PaintPicture(Bont(20, 10), QRectF(0, 0, 20, 10), QRectF(0, 0, 300, 150));
        box.PaintPicture(box.Image(), QRectF(5, 3, 20, 10), QRectF(0, 0, 300, 150));
        QCOMPARE(box.Image().copy(5, 3, 20, 10), Bont(20, 10));
        QCOMPARE(box.GetPixel(0, 0), Bont(1, 1).pixel(0, 0));
    }
};

RASTER_TEST(tst_CanvasDrawing)
#include "tst_CanvasDrawing.moc"
