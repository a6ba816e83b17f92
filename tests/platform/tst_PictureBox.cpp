#include "platform/PictureBox.h"
#include "support/Testbank.h"

#include <QMouseEvent>
#include <QRegularExpression>

#include <vector>

using namespace Qt::StringLiterals;

static constexpr QRgb Wit = qRgb(255, 255, 255);
static constexpr QRgb Zwart = qRgb(0, 0, 0);
static constexpr QRgb Rood = qRgb(255, 0, 0);
static constexpr QRgb Blauw = qRgb(0, 0, 255);

/// A white box of so many pixels, whose coordinates are pixels.
class PixelBox : public PictureBox
{
public:
    explicit PixelBox(int breedte = 100, int hoogte = 60) : PictureBox(nullptr)
    {
        SetScaleMode(ScaleModes::Pixels);
        Maat(breedte, hoogte);
        Cls();
    }
    void Maat(int breedte, int hoogte) { SetSize(breedte * 15, hoogte * 15); }
    QRect Inkt() const { return InktVlak(Image(), rect()); }
    int Aantal(QRgb kleur) const
    {
        int aantal = 0;
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                aantal += GetPixel(x, y) == kleur;
        return aantal;
    }
};

/// A picture without white or black of which no two pixels are alike.
static QImage Bont(int breedte, int hoogte)
{
    QImage beeld(breedte, hoogte, QImage::Format_RGB32);
    for (int y = 0; y < hoogte; ++y)
        for (int x = 0; x < breedte; ++x)
            beeld.setPixel(x, y, qRgb(10 + x, 100 + y, 50));
    return beeld;
}

static void Muis(QWidget &widget, QEvent::Type soort, QPointF plaats, Qt::MouseButton knop = Qt::NoButton)
{
    QMouseEvent event(soort, plaats, plaats, plaats + QPointF(1000, 500), knop, knop, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

class tst_PictureBox : public QObject
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
        box.Line(twips, twips, 60 * 15, 40 * 15, Rood);
        QCOMPARE(inkt(), QRect(QPoint(std::min(pixel, 60), std::min(pixel, 40)), QPoint(60, 40)));
    }

    void theScaleModeSetsTheUnits()
    {
        PixelBox box;
        QCOMPARE(PictureBox(nullptr).ScaleMode(), ScaleModes::Twips);
        box.BoxFull(30, 30, 30, 30, Rood);
        QCOMPARE(box.Inkt(), QRect(30, 30, 1, 1));
        box.Cls();
        box.SetScaleMode(ScaleModes::Twips);
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

    // --- what is kept ---

    void growingShowsWhatWasDrawnBefore()
    {
        PixelBox box(20, 20);
        box.BoxFull(0, 0, 19, 19, Rood);
        box.Maat(40, 30);
        QCOMPARE(box.Image().size(), QSize(40, 30));
        QCOMPARE(box.Inkt(), QRect(0, 0, 20, 20));
        QCOMPARE(box.Aantal(Rood), 400);
        box.BoxFull(39, 29, 39, 29, Blauw);
        QCOMPARE(box.GetPixel(39, 29), Blauw);
        QCOMPARE(box.Aantal(Rood), 400);
    }

    void shrinkingHidesWithoutWiping()
    {
        PixelBox box(40, 30);
        box.PaintPicture(Bont(40, 30), QRectF(0, 0, 40, 30), QRectF(0, 0, 600, 450));
        box.Maat(10, 5);
        QCOMPARE(box.Image(), Bont(40, 30).copy(0, 0, 10, 5));
        box.Maat(40, 5);
        QCOMPARE(box.Image(), Bont(40, 30).copy(0, 0, 40, 5));
        box.Maat(40, 30);
        QCOMPARE(box.Image(), Bont(40, 30));
    }

    void drawingOutsideWhileShrunkIsLost()
    {
        PixelBox box(40, 30);
        box.Maat(10, 10);
        box.BoxFull(0, 0, 39, 29, Rood);
        box.Line(0, 0, 39, 29, Rood);
        box.Line(0, 29, 39, 29, Rood);
        box.Box(5, 5, 39, 29, Rood);
        box.PaintPicture(Bont(40, 30), QRectF(15, 0, 40, 30), QRectF(0, 0, 600, 450));
        box.SetPixel(20, 20, Rood);
        box.CurrentX = 12;
        box.Print(u"Raster"_s);
        box.Maat(40, 30);
        QCOMPARE(box.Inkt(), QRect(0, 0, 10, 10));
        QCOMPARE(box.Aantal(Rood), 100);
    }

    void whatGrowsHasTheBackColor()
    {
        PixelBox box(20, 20);
        box.BackColor = Blauw;
        box.Maat(30, 20);
        QCOMPARE(box.Aantal(Wit), 400);
        QCOMPARE(box.Aantal(Blauw), 200);
        PictureBox nieuw(nullptr);
        nieuw.BackColor = Rood;
        nieuw.SetSize(75, 75);
        QCOMPARE(nieuw.GetPixel(4, 4), Rood);
    }

    void clsWipesTheHiddenPartToo()
    {
        PixelBox box(40, 30);
        box.BoxFull(0, 0, 39, 29, Rood);
        box.Maat(10, 10);
        box.BackColor = Blauw;
        box.Cls();
        QCOMPARE(box.Aantal(Blauw), 100);
        box.Maat(40, 30);
        QCOMPARE(box.Aantal(Blauw), 1200);
    }

    void aPictureWipesWhatWasDrawn()
    {
        PixelBox box(40, 30);
        box.BoxFull(0, 0, 39, 29, Rood);
        box.Maat(10, 10);
        box.SetPicture(Bont(6, 4));
        QCOMPARE(box.size(), QSize(10, 10));
        QCOMPARE(box.Image().copy(0, 0, 6, 4), Bont(6, 4));
        QCOMPARE(box.Inkt(), QRect(0, 0, 6, 4));
        box.Maat(40, 30);
        QCOMPARE(box.Inkt(), QRect(0, 0, 6, 4));
    }

    void noPictureWipesAll()
    {
        PixelBox box(40, 30);
        box.BoxFull(0, 0, 39, 29, Rood);
        box.Maat(10, 10);
        box.SetPicture({});
        QCOMPARE(box.Inkt(), QRect());
        box.Maat(40, 30);
        QCOMPARE(box.Inkt(), QRect());
    }

    void autoSizeTakesThePicturesSize()
    {
        PixelBox box(40, 30);
        box.AutoSize = true;
        box.SetPicture(Bont(50, 20));
        QCOMPARE(box.size(), QSize(50, 20));
        QCOMPARE(box.Image(), Bont(50, 20));
        box.SetPicture({});
        QCOMPARE(box.size(), QSize(50, 20));
        QCOMPARE(box.Inkt(), QRect());
    }

    void theImageIsNotDrawnOnLater()
    {
        PixelBox box(10, 10);
        const QImage voor = box.Image();
        box.BoxFull(0, 0, 3, 3, Rood);
        box.Line(0, 9, 9, 0, Rood);
        box.SetPicture(Bont(5, 5));
        QCOMPARE(InktVlak(voor, voor.rect()), QRect());
        QCOMPARE(box.Inkt(), QRect(0, 0, 5, 5));
    }

    void theWidgetShowsTheImage()
    {
        PixelBox box(30, 20);
        box.PaintPicture(Bont(20, 10), QRectF(5, 5, 20, 10), QRectF(0, 0, 300, 150));
        QCOMPARE(box.grab().toImage().convertToFormat(QImage::Format_RGB32), box.Image());
        box.Maat(10, 8);
        QCOMPARE(box.grab().toImage().convertToFormat(QImage::Format_RGB32), box.Image());
        QVERIFY(!box.Inkt().isEmpty());
    }

    // --- pixels and sizes ---

    void aPixelOutsideHasNoColour()
    {
        PixelBox box(20, 10);
        QCOMPARE(box.GetPixel(19, 9), Wit);
        box.Maat(10, 5);
        for (const QPoint punt : {QPoint(-1, 0), QPoint(0, -1), QPoint(10, 0), QPoint(0, 5), QPoint(15, 7),
                                  QPoint(1000000, 1000000), QPoint(-1000000, 2)})
            QCOMPARE(box.GetPixel(punt.x(), punt.y()), QRgb{0});
    }

    void aPixelCanBeSet()
    {
        PixelBox box;
        box.SetScaleMode(ScaleModes::Twips);
        box.SetPixel(30, 20, Rood);
        QCOMPARE(box.GetPixel(30, 20), Rood);
        QCOMPARE(box.Inkt(), QRect(30, 20, 1, 1));
        box.SetPixel(-1, 0, Rood);
        box.SetPixel(0, 60, Rood);
        box.SetPixel(100, 0, Rood);
        QCOMPARE(box.Aantal(Rood), 1);
    }

    void theSizeIsInTwips()
    {
        PictureBox box(nullptr);
        box.SetSize(1507, 608);
        QCOMPARE(box.size(), QSize(100, 41));
        QCOMPARE(box.Width(), 1500.0);
        QCOMPARE(box.Height(), 615.0);
        box.SetSize(0, 0);
        QCOMPARE(box.size(), QSize(0, 0));
    }

    void anImpossibleSizeChangesNothing_data()
    {
        QTest::addColumn<double>("breedte");
        QTest::addColumn<double>("hoogte");
        QTest::addColumn<int>("fout");
        Geval("negative width", -1.0, 100.0, int{Fout::OngeldigeWaarde});
        Geval("negative height", 100.0, -15.0, int{Fout::OngeldigeWaarde});
        Geval("both", -1e9, -1e9, int{Fout::OngeldigeWaarde});
        Geval("just too large", 8193.0 * 15, 8192.0 * 15, int{Fout::GeheugenVol});
        Geval("huge", 1e9, 1e9, int{Fout::GeheugenVol});
        Geval("beyond all numbers", 1e200, 1e200, int{Fout::GeheugenVol});
    }
    void anImpossibleSizeChangesNothing()
    {
        QFETCH(double, breedte);
        QFETCH(double, hoogte);
        QFETCH(int, fout);
        PixelBox box(20, 10);
        box.BoxFull(2, 2, 4, 4, Rood);
        const QImage voor = box.Image();
        QCOMPARE(FoutVan([&] { box.SetSize(breedte, hoogte); }), fout);
        QCOMPARE(FoutVan([&] { box.ControleerMaat(breedte, hoogte); }), fout);
        QCOMPARE(box.size(), QSize(20, 10));
        QCOMPARE(box.Image(), voor);
    }

    void theLargestPictureFits()
    {
        const PictureBox box(nullptr);
        QCOMPARE(FoutVan([&] { box.ControleerMaat(8192.0 * 15, 8192.0 * 15); }), 0);
        QCOMPARE(FoutVan([&] { box.ControleerMaat(0, 0); }), 0);
    }

    // Growing shows what was there before, so a box holds its largest width and its largest height at once.
    void whatIsHiddenCountsToo()
    {
        PixelBox box(1000, 10);
        box.Maat(10, 10);
        QCOMPARE(FoutVan([&] { box.Maat(10, 67108); }), 0);
        QCOMPARE(FoutVan([&] { box.Maat(10, 67109); }),
                 int{Fout::GeheugenVol}); // a thousand times that is above 256 MiB
        QCOMPARE(box.height(), 67108);
        QCOMPARE(FoutVan([&] { PixelBox(10, 10).Maat(10, 67109); }), 0);
    }

    void paintingMakesNoPicture()
    {
        PictureBox box(nullptr);
        box.BackColor = Blauw;
        box.resize(60000, 60000); // no picture can be as large
        const QImage getoond = [&box] {
            QImage beeld(20, 20, QImage::Format_RGB32);
            box.render(&beeld, QPoint(), QRegion(0, 0, 20, 20));
            return beeld;
        }();
        QCOMPARE(InktVlak(getoond, getoond.rect(), Blauw), QRect());
    }

    void aBoxWithoutASideTakesDrawing_data()
    {
        QTest::addColumn<QSize>("maat");
        Geval("no size", QSize(0, 0));
        Geval("no height", QSize(20, 0));
        Geval("no width", QSize(0, 20));
    }
    void aBoxWithoutASideTakesDrawing()
    {
        QFETCH(QSize, maat);
        PictureBox box(nullptr);
        box.SetSize(maat.width() * 15, maat.height() * 15);
        QCOMPARE(box.size(), maat);
        const int fout = FoutVan([&] {
            box.Cls();
            box.Line(0, 0, 300, 150, Rood);
            box.BoxFull(0, 0, 300, 300, Rood);
            box.Print(u"Raster"_s);
            box.PaintPicture(Bont(5, 5), QRectF(0, 0, 5, 5), QRectF(0, 0, 75, 75), PlakWijze::En);
            box.SetPicture(Bont(5, 5));
            box.SetPixel(0, 0, Rood);
        });
        QCOMPARE(fout, 0);
        QVERIFY(box.Image().isNull());
        QCOMPARE(box.GetPixel(0, 0), QRgb{0});
        box.SetSize(300, 300);
        QCOMPARE(InktVlak(box.Image(), box.rect()), QRect());
    }

    // --- the pointer ---

    void movesAreToldInTwips()
    {
        PixelBox box;
        std::vector<QPointF> gemeld;
        connect(&box, &PictureBox::MouseMove, this, [&](double x, double y) { gemeld.emplace_back(x, y); });
        for (const ScaleModes mode : {ScaleModes::Twips, ScaleModes::Pixels}) {
            box.SetScaleMode(mode);
            gemeld.clear();
            Muis(box, QEvent::MouseMove, QPointF(0, 0));
            Muis(box, QEvent::MouseMove, QPointF(30, 20));
            Muis(box, QEvent::MouseMove, QPointF(99, 59));
            QCOMPARE(gemeld, (std::vector{QPointF(0, 0), QPointF(450, 300), QPointF(1485, 885)}));
        }
    }

    void movesBesideTheBoxAreNotTold()
    {
        PixelBox box;
        int gemeld = 0;
        connect(&box, &PictureBox::MouseMove, this, [&] { ++gemeld; });
        for (const QPointF plaats :
             {QPointF(-1, 20), QPointF(20, -1), QPointF(100, 20), QPointF(20, 60), QPointF(-500, 3000)})
            Muis(box, QEvent::MouseMove, plaats, Qt::LeftButton);
        QCOMPARE(gemeld, 0);
        Muis(box, QEvent::MouseMove, QPointF(20, 20), Qt::LeftButton);
        QCOMPARE(gemeld, 1);
    }

    void aMoveIsToldWithoutAButtonDown()
    {
        QWidget venster;
        venster.resize(200, 100);
        PictureBox box(&venster);
        box.SetSize(1500, 900);
        box.move(20, 10);
        std::vector<QPointF> gemeld;
        connect(&box, &PictureBox::MouseMove, this, [&](double x, double y) { gemeld.emplace_back(x, y); });
        venster.show();
        QVERIFY(QTest::qWaitForWindowExposed(&venster));
        QTest::mouseMove(venster.windowHandle(), QPoint(25, 17));
        QTest::mouseMove(venster.windowHandle(), QPoint(150, 17));
        QCOMPARE(gemeld, (std::vector{QPointF(75, 105)}));
    }

    void aPressIsToldWithItsButton()
    {
        PixelBox box;
        std::vector<std::pair<Qt::MouseButton, QPoint>> gemeld;
        connect(&box, &PictureBox::MouseDown, this,
                [&](Qt::MouseButton knop, QPoint opScherm) { gemeld.emplace_back(knop, opScherm); });
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseButtonRelease, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseButtonPress, QPointF(5, 6), Qt::RightButton);
        QCOMPARE(gemeld.size(), std::size_t{2});
        QCOMPARE(gemeld[0], std::pair(Qt::LeftButton, QPoint(1030, 520)));
        QCOMPARE(gemeld[1], std::pair(Qt::RightButton, QPoint(1005, 506)));
    }

    void theSecondPressOfADoubleClickIsToldToo()
    {
        PixelBox box;
        int gemeld = 0;
        connect(&box, &PictureBox::MouseDown, this, [&] { ++gemeld; });
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseButtonRelease, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseButtonDblClick, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseButtonRelease, QPointF(30, 20), Qt::LeftButton);
        QCOMPARE(gemeld, 2);
    }
};

RASTER_TEST(tst_PictureBox)
#include "tst_PictureBox.moc"
