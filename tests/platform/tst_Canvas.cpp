#include "platform/Canvas.h"
#include "platform/PictureBox.h"
#include "support/Testbank.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QRegularExpression>

#include <cmath>

using namespace Qt::StringLiterals;

static constexpr QRgb Wit = qRgb(255, 255, 255);
static constexpr QRgb Rood = qRgb(255, 0, 0);

/// A white surface of 400 x 200 pixels.
class Doek : public PictureBox
{
public:
    explicit Doek(ScaleModes mode = ScaleModes::Twips) : PictureBox(nullptr)
    {
        SetScaleMode(mode);
        SetSize(6000, 3000);
        Cls();
    }
    QRect Inkt() const { return InktVlak(Image(), rect()); }
};

/// Two by two pixels of four colours.
static QImage Vierkleur()
{
    QImage beeld(2, 2, QImage::Format_RGB32);
    beeld.setPixel(0, 0, qRgb(0x96, 0x0F, 0xFF));
    beeld.setPixel(1, 0, Rood);
    beeld.setPixel(0, 1, Wit);
    beeld.setPixel(1, 1, qRgb(0, 0, 0));
    return beeld;
}

class tst_Canvas : public QObject
{
    Q_OBJECT
private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void theFontIsTheOneMeant_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("familie");
        Geval("Arial", u"Arial"_s, u"Liberation Sans"_s);
        Geval("Arial Narrow", u"Arial Narrow"_s, u"Liberation Sans Narrow"_s);
        Geval("Courier New", u"Courier New"_s, u"Liberation Mono"_s);
        Geval("Fixedsys", u"Fixedsys"_s, u"Liberation Mono"_s);
        Geval("its own name", u"Liberation Mono"_s, u"Liberation Mono"_s);
    }
    void theFontIsTheOneMeant()
    {
        QFETCH(QString, naam);
        for (const double punten : {8.25, 12.0, 48.0})
            for (const bool vet : {false, true}) {
                const QFontInfo font(Lettertype(naam, punten, vet));
                QTEST(font.family(), "familie");
                QCOMPARE(font.bold(), vet);
                QVERIFY(!font.italic());
                const QFont gevraagd = Lettertype(naam, punten, vet);
                QCOMPARE(gevraagd.hintingPreference(), QFont::PreferNoHinting);
                QCOMPARE(int(gevraagd.styleStrategy()), QFont::PreferAntialias | QFont::NoSubpixelAntialias);
            }
    }

    void aSizeInPointsIsRoundedToPixels_data()
    {
        QTest::addColumn<double>("punten");
        QTest::addColumn<int>("pixels");
        const auto rij = [](double punten, int pixels) { Geval(QByteArray::number(punten), punten, pixels); };
        rij(8.25, 11);
        rij(9.75, 13);
        rij(12, 16);
        rij(13, 17);
        rij(14, 19);
        rij(48, 64);
        rij(0.1, 1);
        rij(0, 1);
    }
    void aSizeInPointsIsRoundedToPixels()
    {
        QFETCH(double, punten);
        QTEST(Lettertype(u"Arial"_s, punten, false).pixelSize(), "pixels");
        QTEST(QFontInfo(Lettertype(u"Arial"_s, punten, true)).pixelSize(), "pixels");
    }

    void aNewCanvasWritesSmallBlackArial()
    {
        const Doek doek;
        QCOMPARE(doek.FontName, u"Arial"_s);
        QCOMPARE(doek.FontSize, 8.25);
        QVERIFY(!doek.FontBold);
        QCOMPARE(doek.ForeColor, qRgb(0, 0, 0));
        QCOMPARE(doek.CurrentX, 0.0);
        QCOMPARE(doek.CurrentY, 0.0);
    }

    void theInkStaysInsideItsCell_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<double>("punten");
        QTest::addColumn<bool>("vet");
        for (const char *naam : {"Arial", "Arial Narrow", "Courier New"})
            for (const double punten : {8.25, 12.0, 13.0, 36.0})
                for (const bool vet : {false, true})
                    Geval(naam + (' ' + QByteArray::number(punten)) + (vet ? " bold" : ""), naam, punten, vet);
    }
    void theInkStaysInsideItsCell()
    {
        QFETCH(QString, naam);
        QFETCH(double, punten);
        QFETCH(bool, vet);
        for (const QString &tekst : {u"Hg"_s, u"\u00CBjW"_s, u"i"_s}) {
            Doek doek;
            doek.FontName = naam;
            doek.FontSize = punten;
            doek.FontBold = vet;
            const QRectF cel(100, 60, doek.TextWidth(tekst) / 15, doek.TextHeight(tekst) / 15);
            doek.PrintOp(1500, 900, tekst);
            const QRect inkt = doek.Inkt();
            QVERIFY(QRectF(inkt).intersects(cel));
            QVERIFY2(cel.adjusted(-1, -1, 1, 1).contains(QRectF(inkt)), qPrintable(tekst));
            // The cell is not wider or higher than the letters ask for.
            QVERIFY(inkt.height() * 2 > cel.height());
            QVERIFY(inkt.width() * 4 > cel.width());
        }
    }

    void theCellIsThatOfTheFont()
    {
        Doek doek;
        doek.FontSize = 12;
        doek.FontBold = true;
        const QFontMetricsF maten(Lettertype(u"Arial"_s, 12, true));
        QCOMPARE(doek.TextWidth(u"Raster"_s), maten.horizontalAdvance(u"Raster"_s) * 15);
        QCOMPARE(doek.TextWidth(QString()), 0.0);
        QCOMPARE(doek.TextHeight(u"Raster"_s), std::round(maten.ascent() + maten.descent()) * 15);
        QCOMPARE(doek.TextHeight(QString()), doek.TextHeight(u"Raster"_s));
        QCOMPARE(doek.TextHeight(u"Raster\natelier"_s), 2 * doek.TextHeight(u"Raster"_s));
        QVERIFY(doek.TextHeight(QString()) >= 16 * 15);
        QVERIFY(doek.TextHeight(QString()) <= 20 * 15);
    }

    void anotherFontCountsAtOnce()
    {
        const QString tekst = u"Raster"_s;
        Doek doek;
        const auto breedte = [&](const QString &naam, double punten, bool vet) {
            doek.FontName = naam;
            doek.FontSize = punten;
            doek.FontBold = vet;
            return doek.TextWidth(tekst) / 15;
        };
        const auto gemeten = [&](const QString &naam, double punten, bool vet) {
            return QFontMetricsF(Lettertype(naam, punten, vet)).horizontalAdvance(tekst);
        };
        const QString arial = u"Arial"_s, smal = u"Arial Narrow"_s;
        QCOMPARE(breedte(arial, 12, false), gemeten(arial, 12, false));
        QCOMPARE(breedte(arial, 24, false), gemeten(arial, 24, false));
        QCOMPARE(breedte(arial, 24, true), gemeten(arial, 24, true));
        QCOMPARE(breedte(smal, 24, true), gemeten(smal, 24, true));
        QVERIFY(gemeten(smal, 24, true) < gemeten(arial, 24, true));
        QVERIFY(gemeten(arial, 24, true) > gemeten(arial, 24, false));
    }

    void theCellIsInTheUnitsOfTheSurface()
    {
        const QString tekst = u"Raster"_s;
        Doek twips, pixels(ScaleModes::Pixels);
        QCOMPARE(pixels.TextWidth(tekst) * 15, twips.TextWidth(tekst));
        QCOMPARE(pixels.TextHeight(tekst) * 15, twips.TextHeight(tekst));
        twips.PrintOp(750, 300, tekst);
        pixels.PrintOp(50, 20, tekst);
        QVERIFY(HeeftInkt(pixels.Image(), pixels.rect()));
        QCOMPARE(pixels.Image(), twips.Image());
    }

    void textHasTheForeColor()
    {
        Doek doek;
        doek.FontSize = 48;
        doek.ForeColor = Rood;
        doek.Print(u"I"_s);
        bool vol = false;
        const QImage beeld = doek.Image();
        for (int y = 0; y < beeld.height(); ++y)
            for (int x = 0; x < beeld.width(); ++x) {
                QCOMPARE(qRed(beeld.pixel(x, y)), 255);
                vol = vol || beeld.pixel(x, y) == Rood;
            }
        QVERIFY(vol);
    }

    void textIsSmoothedInGrey()
    {
        Doek doek;
        doek.FontSize = 24;
        doek.Print(u"Sudoku WOZ"_s);
        bool grijs = false;
        const QImage beeld = doek.Image();
        for (int y = 0; y < beeld.height(); ++y)
            for (int x = 0; x < beeld.width(); ++x) {
                const QRgb pixel = beeld.pixel(x, y);
                QCOMPARE(qGreen(pixel), qRed(pixel));
                QCOMPARE(qBlue(pixel), qRed(pixel));
                grijs = grijs || (qRed(pixel) > 64 && qRed(pixel) < 192);
            }
        QVERIFY(grijs);
    }

    void aLargeLetterStandsOnAWholePixel()
    {
        const QFont font = Lettertype(u"Arial"_s, 60, false);
        const double hoogte = QFontMetricsF(font).ascent();
        QVERIFY(hoogte != std::round(hoogte));
        Doek doek;
        doek.FontSize = 60;
        doek.PrintOp(1500, 300, u"H"_s);
        QImage hoort(doek.Image().size(), QImage::Format_RGB32);
        hoort.fill(Wit);
        QPainter painter(&hoort);
        painter.setFont(font);
        painter.drawText(QPointF(100, 20 + std::round(hoogte)), u"H"_s);
        QCOMPARE(doek.Image(), hoort);
    }

    void printingGoesToTheNextLine()
    {
        Doek doek;
        doek.CurrentX = 1500;
        doek.CurrentY = 300;
        const double regel = doek.TextHeight(u"a"_s);
        doek.Print(u"a"_s);
        QCOMPARE(doek.CurrentX, 0.0);
        QCOMPARE(doek.CurrentY, 300 + regel);
        doek.CurrentX = 1500;
        doek.Print(QString());
        QCOMPARE(doek.CurrentX, 0.0);
        QCOMPARE(doek.CurrentY, 300 + 2 * regel);
        doek.Print(12);
        QCOMPARE(doek.CurrentY, 300 + 3 * regel);
    }

    void linesBelowEachOtherDoNotTouch()
    {
        Doek doek;
        const int hoog = static_cast<int>(doek.TextHeight(u"H"_s) / 15);
        doek.Print(u"H"_s);
        const QRect eerste = doek.Inkt();
        doek.Print(u"H"_s);
        QCOMPARE(doek.Inkt(), eerste.united(eerste.translated(0, hoog)));
        QVERIFY(!HeeftInkt(doek.Image(), QRect(0, eerste.bottom() + 1, 400, hoog - eerste.height())));
    }

    void aNumberLeavesRoomForItsSign()
    {
        Doek getal, tekst, metBlanco;
        for (Doek *doek : {&getal, &tekst, &metBlanco})
            doek->FontSize = 24;
        getal.Print(5);
        tekst.Print(u"5"_s);
        metBlanco.Print(u" 5"_s);
        QCOMPARE(getal.Image(), metBlanco.Image());
        const double verschil = getal.Inkt().left() - tekst.Inkt().left();
        QVERIFY(std::abs(verschil - getal.TextWidth(u" "_s) / 15) <= 1);
        QVERIFY(verschil >= 5);
    }

    void aNegativeNumberHasItsSign()
    {
        Doek getal, tekst;
        getal.Print(-12);
        tekst.Print(u"-12"_s);
        QVERIFY(HeeftInkt(tekst.Image(), tekst.rect()));
        QCOMPARE(getal.Image(), tekst.Image());
    }

    void textOutsideTheSurfaceIsLeftOut()
    {
        Doek doek;
        for (const double x : {-1e6, 1e6})
            for (const double y : {-1e6, 0.0, 1e6})
                doek.PrintOp(x, y, u"Raster"_s);
        QCOMPARE(doek.Inkt(), QRect());
        doek.PrintOp(-30, -30, u"W"_s);
        QVERIFY(!doek.Inkt().isEmpty());
    }

    void aPictureIsCopied()
    {
        for (const ScaleModes mode : {ScaleModes::Twips, ScaleModes::Pixels}) {
            Doek doek(mode);
            const double eenheid = mode == ScaleModes::Twips ? 15 : 1;
            doek.PaintPicture(Vierkleur(), QRectF(10 * eenheid, 20 * eenheid, 2 * eenheid, 2 * eenheid),
                              QRectF(0, 0, 30, 30));
            QCOMPARE(doek.Image().copy(10, 20, 2, 2), Vierkleur());
            QCOMPARE(doek.Inkt(), QRect(10, 20, 2, 2));
        }
    }

    void aPartOfAnotherSizeIsStretched()
    {
        QImage bron(20, 20, QImage::Format_RGB32);
        bron.fill(qRgb(0, 0, 0));
        for (int y = 0; y < 10; ++y)
            for (int x = 0; x < 10; ++x)
                bron.setPixel(x, y, Rood);
        Doek doek;
        doek.PaintPicture(bron, QRectF(150, 300, 600, 900), QRectF(0, 0, 150, 150)); // the red quarter of it
        QCOMPARE(doek.Inkt(), QRect(10, 20, 40, 60));
        QCOMPARE(doek.GetPixel(10, 20), Rood);
        QCOMPARE(doek.GetPixel(49, 79), Rood);

        doek.Cls();
        doek.PaintPicture(bron, QRectF(0, 0, 600, 150), QRectF(0, 0, 300, 300)); // wider and lower: each side by itself
        QCOMPARE(doek.Inkt(), QRect(0, 0, 40, 10));
        QCOMPARE(doek.GetPixel(5, 2), Rood);
        QCOMPARE(doek.GetPixel(35, 2), qRgb(0, 0, 0));
        QCOMPARE(doek.GetPixel(5, 8), qRgb(0, 0, 0));

        doek.PaintPicture(bron, QRectF(-300, -300, 900, 900), QRectF(0, 0, 300, 300), PlakWijze::En);
        QCOMPARE(doek.Inkt(), QRect(0, 0, 40, 40)); // what falls outside is left out
    }

    void printingAtAPlaceIsPrintingThere()
    {
        Doek gezet, op;
        gezet.CurrentX = 300;
        gezet.CurrentY = 450;
        gezet.Print(u"Raster"_s);
        op.PrintOp(300, 450, u"Raster"_s);
        QCOMPARE(op.Image(), gezet.Image());
        QCOMPARE(op.CurrentX, gezet.CurrentX);
        QCOMPARE(op.CurrentY, gezet.CurrentY);

        gezet.CurrentX = 300;
        gezet.CurrentY = 900;
        gezet.Print(42);
        op.PrintOp(300, 900, 42);
        QCOMPARE(op.Image(), gezet.Image());
    }

    void aPartOfTheLetterThatIsLeftOutStays()
    {
        Doek doek;
        doek.ZetLetter({.Naam = u"Arial Narrow"_s, .Punten = 20, .Vet = true, .Kleur = Rood});
        const auto is = [&doek](const QString &naam, double punten, bool vet, QRgb kleur) {
            return doek.FontName == naam && doek.FontSize == punten && doek.FontBold == vet && doek.ForeColor == kleur;
        };
        QVERIFY(is(u"Arial Narrow"_s, 20, true, Rood));
        doek.ZetLetter({});
        QVERIFY(is(u"Arial Narrow"_s, 20, true, Rood));
        doek.ZetLetter({.Naam = u"Arial"_s});
        QVERIFY(is(u"Arial"_s, 20, true, Rood));
        doek.ZetLetter({.Punten = 6});
        QVERIFY(is(u"Arial"_s, 6, true, Rood));
        doek.ZetLetter({.Vet = false});
        QVERIFY(is(u"Arial"_s, 6, false, Rood));
        doek.ZetLetter({.Kleur = Wit});
        QVERIFY(is(u"Arial"_s, 6, false, Wit));
    }

    void unitsOfOnesOwn()
    {
        Doek doek; // 400 by 200 pixels
        doek.Scale(0, 0, 20, 5);
        QCOMPARE(doek.ScaleMode(), ScaleModes::User);
        doek.BoxFull(1, 1, 2, 2, Rood); // 20 pixels to the unit across, 40 down
        QCOMPARE(doek.Inkt(), QRect(20, 40, 21, 41));
        doek.Cls();
        doek.Line(0.5, 2, 0.5, 3, Rood);
        QCOMPARE(doek.Inkt(), QRect(10, 80, 1, 41));
        doek.Cls();
        doek.Scale(-10, 100, 10, 200); // the top left need not be 0, 0
        doek.Line(-10, 100, 0, 100, Rood);
        QCOMPARE(doek.Inkt(), QRect(0, 0, 201, 1));
        doek.Cls();
        doek.PaintPicture(Vierkleur(), QRectF(0, 150, 0.1, 1), QRectF(0, 0, 30, 30));
        QCOMPARE(doek.Image().copy(200, 100, 2, 2), Vierkleur());
        doek.Cls();
        doek.SetScaleMode(ScaleModes::Twips);
        doek.BoxFull(150, 150, 150, 150, Rood);
        QCOMPARE(doek.Inkt(), QRect(10, 10, 1, 1));
    }

    void unitsOfOnesOwnMeasureText()
    {
        Doek pixels(ScaleModes::Pixels), eigen;
        eigen.Scale(0, 0, 40, 50); // 10 pixels to the unit across, 4 down
        QCOMPARE(eigen.TextWidth(u"Raster"_s) * 10, pixels.TextWidth(u"Raster"_s));
        QCOMPARE(eigen.TextHeight(u"Raster"_s) * 4, pixels.TextHeight(u"Raster"_s));
        pixels.PrintOp(100, 40, u"Raster"_s);
        eigen.PrintOp(10, 10, u"Raster"_s);
        QCOMPARE(eigen.Image(), pixels.Image());
        QCOMPARE(eigen.CurrentY * 4, pixels.CurrentY);
    }

    void aScaleWithoutAnAreaIsRefused()
    {
        Doek doek;
        QCOMPARE(FoutVan([&] { doek.Scale(1, 0, 1, 10); }), int{Fout::OngeldigeWaarde});
        QVERIFY(TekstVanFout([&] { doek.Scale(1, 0, 1, 10); }).endsWith(u" (een schaal zonder oppervlak)"_s));
        QCOMPARE(FoutVan([&] { doek.Scale(0, 3, 10, 3); }), int{Fout::OngeldigeWaarde});
        QCOMPARE(doek.ScaleMode(), ScaleModes::Twips);
        doek.SetSize(0, 300);
        QCOMPARE(FoutVan([&] { doek.Scale(0, 0, 10, 10); }), int{Fout::OngeldigeWaarde});
    }
};

RASTER_TEST(tst_Canvas)
#include "tst_Canvas.moc"
