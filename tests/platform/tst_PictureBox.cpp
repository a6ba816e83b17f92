#include "support/PixelBox.h"

#include <QMouseEvent>
#include <QProcess>
#include <QRegularExpression>

#include <vector>

using namespace Qt::StringLiterals;

static constexpr QRgb Wit = qRgb(255, 255, 255);
static constexpr QRgb Zwart = qRgb(0, 0, 0);
static constexpr QRgb Rood = qRgb(255, 0, 0);
static constexpr QRgb Blauw = qRgb(0, 0, 255);

static void Muis(QWidget &widget, QEvent::Type soort, QPointF plaats, Qt::MouseButton knop = Qt::NoButton)
{
    QMouseEvent event(soort, plaats, plaats, plaats + QPointF(1000, 500), knop, knop, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

/// Counts how often a widget is painted.
class Schilderingen : public QObject
{
public:
    int Aantal = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        Aantal += event->type() == QEvent::Paint;
        return false;
    }
};

class tst_PictureBox : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

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

    void tilesCoverAll_data()
    {
        QTest::addColumn<QSize>("maat");
        QTest::addColumn<int>("stap");
        const auto Geval = [](const char *naam, QSize maat, int stap) { QTest::newRow(naam) << maat << stap; };
        Geval("side by side", {18, 12}, 6);
        Geval("side by side, the last ones cut off", {20, 15}, 6);
        Geval("each over the edge of the one before", {22, 14}, 4);
        Geval("one, over the edges of none", {6, 6}, 4);
        Geval("one, cut off", {3, 2}, 6);
        Geval("one, of which less shows than would lie over another", {2, 1}, 3);
    }
    void tilesCoverAll()
    {
        QFETCH(QSize, maat);
        QFETCH(int, stap);
        QImage verwacht(maat, QImage::Format_RGB32);
        QPainter painter(&verwacht);
        for (int y = 0; y == 0 || y - stap + 6 < maat.height(); y += stap)
            for (int x = 0; x == 0 || x - stap + 6 < maat.width(); x += stap)
                painter.drawImage(x, y, Bont(6, 6));
        painter.end();
        PixelBox box(1, 1);
        for (const QSize eerst : {QSize(1, 1), QSize(40, 1), QSize(40, 30)}) {
            box.Maat(eerst.width(), eerst.height());
            box.BoxFull(0, 0, 99, 99, Rood);
            box.Maat(maat.width(), maat.height());
            box.Betegel(Bont(6, 6), stap);
            QCOMPARE(box.Image(), verwacht);
        }
        box.Maat(maat.width() + 30, maat.height() + 30); // beyond whatever there was
        QCOMPARE(box.Image().copy(QRect({0, 0}, maat)), verwacht);
        QCOMPARE(box.GetPixel(maat.width() + 29, maat.height() + 29), Wit);
    }

    void withoutASideThereAreNoTiles()
    {
        PictureBox box(nullptr);
        box.SetSize(0, 300);
        box.Betegel(Bont(6, 6), 6);
        box.SetSize(300, 300);
        QCOMPARE(InktVlak(box.Image(), box.rect()), QRect());
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

    // It takes the pixels over without copying them: neither is drawn on by what is drawn on the other.
    void withAutoSizeThePictureIsNotCopied()
    {
        PixelBox box;
        box.AutoSize = true;
        QImage beeld = Bont(40, 30);
        const QImage toen = beeld.copy();
        box.SetPicture(beeld);
        QCOMPARE(box.Image().constBits(), std::as_const(beeld).constBits());
        box.SetPixel(3, 4, Rood);
        QCOMPARE(beeld, toen);
        QCOMPARE(box.GetPixel(3, 4), Rood);
        box.SetPicture(beeld);
        beeld.setPixel(5, 6, Rood);
        QCOMPARE(box.Image(), toen);
        box.Maat(60, 50);
        QCOMPARE(box.GetPixel(59, 49), Wit); // nothing is left of an earlier picture
        QCOMPARE(box.GetPixel(39, 29), toen.pixel(39, 29));
        QImage doorschijnend(4, 4, QImage::Format_ARGB32);
        doorschijnend.fill(qRgba(255, 0, 0, 255));
        box.SetPicture(doorschijnend);
        QCOMPARE(box.Image().format(), QImage::Format_RGB32);
        QCOMPARE(box.Aantal(Rood), 16);
    }

    void anotherPictureIsPainted()
    {
        PixelBox box;
        box.AutoSize = true;
        box.SetPicture(Bont(40, 30));
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCoreApplication::processEvents();
        Schilderingen schilderingen;
        box.installEventFilter(&schilderingen);
        QTest::qWait(20);
        QCOMPARE(schilderingen.Aantal, 0);
        box.SetPicture(Bont(40, 30).mirrored());
        QTRY_COMPARE(schilderingen.Aantal, 1);
    }

    // What is told first is what a menu that was open kept to itself, of a pointer that has been there.
    void aPressTellsThePlaceOnceThePointerHasMoved()
    {
        PixelBox box;
        QStringList gemeld;
        connect(&box, &PictureBox::MouseMove, this, [&](double x, double y) { gemeld += u"%1,%2"_s.arg(x).arg(y); });
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseMove, QPointF(300, 20)); // beside it
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        QCOMPARE(gemeld, QStringList());
        Muis(box, QEvent::MouseMove, QPointF(10, 20));
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        QCOMPARE(gemeld, (QStringList{u"150,300"_s, u"450,300"_s}));
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

    void whatIsStretchedIsSmooth()
    {
        QImage strepen(20, 10, QImage::Format_RGB32);
        strepen.fill(Wit);
        for (int x = 0; x < 20; x += 2)
            QPainter(&strepen).fillRect(x, 0, 1, 10, Qt::black);
        PixelBox box(30, 20);
        box.PaintPicture(strepen, QRectF(5, 5, 10, 5), QRectF(0, 0, 300, 150));
        for (int x = 5; x < 15; ++x) { // each of a black pixel and a white one
            const int grijs = qRed(box.GetPixel(x, 7));
            QVERIFY2(grijs > 100 && grijs < 155, qPrintable(QString::number(grijs)));
        }
    }

    void whatIsDrawnIsShownAtOnce()
    {
        PixelBox box(30, 20);
        box.show();
        QVERIFY(QTest::qWaitForWindowExposed(&box));
        QCoreApplication::processEvents();
        Schilderingen schilderingen;
        box.installEventFilter(&schilderingen);
        const std::vector<std::function<void()>> tekeningen{
            [&] { box.SetPixel(3, 4, Rood); }, [&] { box.Cls(); }, [&] { box.Line(0, 0, 20, 10, Blauw); },
            [&] { box.PaintPicture(Bont(20, 10), QRectF(5, 5, 20, 10), QRectF(0, 0, 300, 150)); }};
        for (const auto &teken : tekeningen) {
            schilderingen.Aantal = 0;
            teken();
            QCoreApplication::processEvents();
            QCOMPARE(schilderingen.Aantal, 1);
        }
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

    void anImpossibleSizeIsTold()
    {
        PixelBox box;
        QVERIFY(TekstVanFout([&] { box.SetSize(-1, 15); }).endsWith(u" (een negatieve maat)"_s));
        QVERIFY(TekstVanFout([&] { box.SetSize(1e9, 1e9); }).endsWith(u" (een te grote afbeelding)"_s));
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
        box.resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); // no picture can be as large
        const QImage getoond = [&box] {
            QImage beeld(20, 20, QImage::Format_RGB32);
            box.render(&beeld, QPoint(), QRegion(0, 0, 20, 20));
            return beeld;
        }();
        QCOMPARE(InktVlak(getoond, getoond.rect(), Blauw), QRect());
    }

    void onlyAScaleThatIsNoWholeNumberMakesItSmooth_data()
    {
        QTest::addColumn<QString>("schaal");
        QTest::addColumn<bool>("glad");
        Geval("1", "1", false);
        Geval("1.25", "1.25", true);
        Geval("1.5", "1.5", true);
        Geval("2", "2", false);
    }
    void onlyAScaleThatIsNoWholeNumberMakesItSmooth()
    {
        QFETCH(QString, schaal);
        QFETCH(bool, glad);
        if (!qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) { // a program has one scale: this one is run again
            QProcess zelf;
            QProcessEnvironment omgeving = QProcessEnvironment::systemEnvironment();
            omgeving.insert(u"QT_SCALE_FACTOR"_s, schaal);
            zelf.setProcessEnvironment(omgeving);
            zelf.start(QCoreApplication::applicationFilePath(),
                       {QLatin1String(QTest::currentTestFunction()) + u':' + schaal});
            QVERIFY(zelf.waitForFinished());
            QVERIFY2(zelf.exitStatus() == QProcess::NormalExit && zelf.exitCode() == 0,
                     zelf.readAllStandardOutput().constData());
            return;
        }
        PixelBox box(20, 20);
        box.BoxFull(3, 0, 3, 19, Zwart);
        box.BoxFull(8, 0, 8, 19, Zwart);
        const QImage getoond = Getoond(box);
        QCOMPARE(getoond.width(), qRound(20 * schaal.toDouble()));
        bool heeftTussenkleur = false;
        for (int x = 0; x < getoond.width(); ++x)
            heeftTussenkleur |= getoond.pixel(x, 5) != Zwart && getoond.pixel(x, 5) != Wit;
        QCOMPARE(heeftTussenkleur, glad);
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

    void aDragIsToldBesideTheBoxToo()
    {
        PixelBox box;
        QStringList gemeld;
        connect(&box, &PictureBox::DragStart, this,
                [&](double x, double y) { gemeld += u"begin %1,%2"_s.arg(x).arg(y); });
        connect(&box, &PictureBox::Drag, this, [&](Qt::MouseButtons knoppen, double x, double y) {
            gemeld += u"%1 %2,%3"_s.arg(knoppen.toInt()).arg(x).arg(y);
        });
        Muis(box, QEvent::MouseMove, QPointF(20, 20));
        QCOMPARE(gemeld, QStringList());
        Muis(box, QEvent::MouseButtonPress, QPointF(30, 20), Qt::LeftButton);
        QCOMPARE(gemeld, QStringList{u"begin 450,300"_s}); // a press is no move, though it tells the place
        gemeld.clear();
        Muis(box, QEvent::MouseMove, QPointF(31, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseMove, QPointF(-500, 3000), Qt::RightButton);
        Muis(box, QEvent::MouseButtonRelease, QPointF(31, 20), Qt::LeftButton);
        Muis(box, QEvent::MouseMove, QPointF(32, 20));
        QCOMPARE(gemeld, (QStringList{u"1 465,300"_s, u"2 -7500,45000"_s}));
        Muis(box, QEvent::MouseButtonDblClick, QPointF(5, 6), Qt::LeftButton);
        QCOMPARE(gemeld.last(), u"begin 75,90"_s);
    }
};

RASTER_TEST(tst_PictureBox)
#include "tst_PictureBox.moc"
