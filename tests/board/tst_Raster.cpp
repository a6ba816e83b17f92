#include "board/Raster.h"
#include "support/Bord.h"

using namespace Qt::StringLiterals;

static const QRgb Lijn = qRgb(150, 150, 150);
static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Zwart = qRgb(0, 0, 0);

class tst_Raster : public QObject
{
    Q_OBJECT

    /// Whether every pixel of a rectangle has this colour.
    static bool IsVlak(const QImage &beeld, QRect vlak, QRgb kleur)
    {
        return beeld.rect().contains(vlak) && !HeeftInkt(beeld, vlak, kleur);
    }

private slots:
    void sizesOfTheBoards_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        QTest::newRow("largest") << 16 << 19;
        QTest::newRow("smallest") << 9 << 9;
        QTest::newRow("wide") << 16 << 9;
    }
    void sizesOfTheBoards()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        Bord bord;
        bord.Begin(Zweeds, breedte, hoogte);
        QCOMPARE(bord.Pic().size(), QSize(breedte * 30 + 1, hoogte * 30 + 1));
        QCOMPARE(bord.Groot().size(), QSize(breedte * 120 + 3, hoogte * 120 + 3));
        QCOMPARE(bord.Venster.Label1->size(), QSize(breedte * 30 + 14, hoogte * 30 + 14));
        QCOMPARE(bord.Venster.Frame8->width(), breedte * 30 + 14);
        QCOMPARE(bord.Venster.PicR->x(), breedte * 30 + 14 + 13);
        QCOMPARE(bord.Venster.PicR->height(), hoogte * 30 + 14);
        QCOMPARE(bord.Venster.PicO->y(), hoogte * 30 + 14 + 53);
        QCOMPARE(bord.Venster.PicO->width(), breedte * 30 + 14);
    }

    void gridLinesLieOnMultiplesOfACell()
    {
        Bord bord;
        const QImage pic = bord.Pic();
        for (int y = 0; y < pic.height(); ++y)
            for (int x = 0; x < pic.width(); ++x)
                if (pic.pixel(x, y) != (x % 30 == 0 || y % 30 == 0 ? Lijn : Wit))
                    QFAIL(qPrintable(u"pixel %1, %2"_s.arg(x).arg(y)));
    }

    void aSudokuHasBandsRoundItsBoxes()
    {
        Bord bord;
        bord.Begin(Sudoku, 9, 9);
        const QImage pic = bord.Pic();
        for (const int band : {89, 179}) {
            QVERIFY(IsVlak(pic, QRect(band, 0, 3, 271), Lijn));
            QVERIFY(IsVlak(pic, QRect(0, band, 271, 3), Lijn));
            QCOMPARE(pic.pixel(band - 1, 15), Wit);
            QCOMPARE(pic.pixel(band + 3, 15), Wit);
            QCOMPARE(pic.pixel(15, band - 1), Wit);
            QCOMPARE(pic.pixel(15, band + 3), Wit);
        }
        const QImage groot = bord.Groot();
        for (const int band : {357, 717}) {
            QVERIFY(IsVlak(groot, QRect(band, 0, 10, 1083), Zwart));
            QVERIFY(IsVlak(groot, QRect(0, band, 1083, 10), Zwart));
            QCOMPARE(groot.pixel(band - 1, 60), Wit);
            QCOMPARE(groot.pixel(band + 10, 60), Wit);
        }
    }

    void otherKindsHaveNoBands()
    {
        Bord bord;
        bord.Begin(Kruiswoord, 9, 9);
        QCOMPARE(bord.Pic().pixel(89, 15), Wit);
        QCOMPARE(bord.Groot().pixel(357, 60), Wit);
    }

    void theLargeBoardIsTiledWithOverlappingFrames()
    {
        Bord bord;
        const QImage tegel = bord.Venster.PicVak->Image();
        QCOMPARE(tegel.size(), QSize(123, 123));
        const QImage groot = bord.Groot();
        for (const QPoint cel : {QPoint(0, 0), QPoint(7, 9), QPoint(15, 18)})
            QVERIFY(groot.copy(QRect(cel * 120, tegel.size())) == tegel);
        QVERIFY(IsVlak(groot, BinnenGroot(3, 3), Wit));
        QVERIFY(groot.pixel(2, 60) != Wit);
    }

    void drawingAgainWipesBothBoards()
    {
        Bord bord;
        bord.Venster.Pic->BoxFull(0, 0, 7215, 8565, Zwart);
        bord.Venster.PicGroot->BoxFull(0, 0, 28845, 34245, Zwart);
        bord.Begin(Zweeds, 9, 9);
        bord.Begin(Zweeds, 16, 19);
        QVERIFY(IsVlak(bord.Pic(), Binnen(15, 18), Wit));
        QVERIFY(IsVlak(bord.Groot(), BinnenGroot(15, 18), Wit));
    }

    void nineByNineHasNineLettersAndNineNumbers()
    {
        Bord bord;
        const QRgb achter = qRgb(230, 230, 190);
        bord.Begin(Zweeds, 9, 9);
        const QImage rijen = bord.Venster.PicR->Image(), kolommen = bord.Venster.PicO->Image();
        int nummers = 0, letters = 0;
        for (int i = 0; i < 19; ++i) {
            nummers += HeeftInkt(rijen, QRect(0, 14 + i * 30, 30, 16), achter);
            letters += HeeftInkt(kolommen, QRect(13 + i * 30, 0, 20, 20), achter);
        }
        QCOMPARE(nummers, 9);
        QCOMPARE(letters, 9);
    }

    void theRulersShowLettersAndTwoDigits()
    {
        Bord bord;
        const QRgb achter = qRgb(230, 230, 190);
        const auto letter = [&](const QString &tekst, int x, int y, QSize maat) {
            QImage beeld = Gedrukt(maat, tekst, x, y, u"Arial"_s, 9.75, true, Zwart);
            return InktVlak(beeld, beeld.rect());
        };
        const QImage rijen = bord.Venster.PicR->Image(), kolommen = bord.Venster.PicO->Image();
        QCOMPARE(InktVlak(rijen, QRect(0, 10, 30, 24), achter), letter(u"01"_s, 6, 14, {30, 40}));
        QCOMPARE(InktVlak(kolommen, QRect(10, 0, 24, 20), achter), letter(u"A"_s, 17, 2, {40, 20}));
        QCOMPARE(InktVlak(kolommen, QRect(460, 0, 24, 20), achter).left(),
                 letter(u"P"_s, 17 + 450, 2, {500, 20}).left());
    }

    void theRulersKeepWhatALargerBoardLeft()
    {
        Bord bord;
        const QImage ervoor = bord.Venster.PicR->Image();
        bord.Begin(Zweeds, 9, 9);
        QCOMPARE(bord.Venster.PicR->Image().height(), 9 * 30 + 14);
        bord.Venster.PicR->SetSize(450, 8760); // shown again as it was, though only nine numbers were drawn anew
        const QRect onder(0, 10 * 30, 30, 9 * 30);
        QVERIFY(bord.Venster.PicR->Image().copy(onder) == ervoor.copy(onder));
    }

    void drawingTheRulersAgainDoesNotThickenThem()
    {
        Bord bord;
        const QImage rijen = bord.Venster.PicR->Image(), kolommen = bord.Venster.PicO->Image();
        bord.Begin(Zweeds, 16, 19);
        QVERIFY(bord.Venster.PicR->Image() == rijen);
        QVERIFY(bord.Venster.PicO->Image() == kolommen);
    }

    void impossibleSizesChangeNothing_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        QTest::addColumn<int>("fout");
        QTest::newRow("negative") << -1 << 9 << int(Fout::OngeldigeWaarde);
        QTest::newRow("negative height") << 9 << -1 << int(Fout::OngeldigeWaarde);
        QTest::newRow("hundred thousand") << 100000 << 100000 << int(Fout::GeheugenVol);
        QTest::newRow("hundred") << 100 << 100 << int(Fout::GeheugenVol);
        QTest::newRow("wide without a height") << 150000 << 0 << int(Fout::GeheugenVol);
        QTest::newRow("high without a width") << 0 << 150000 << int(Fout::GeheugenVol);
        QTest::newRow("largest number") << 2147483647 << 2147483647 << int(Fout::GeheugenVol);
    }
    void impossibleSizesChangeNothing()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        QFETCH(int, fout);
        Bord bord;
        bord.Venster.Pic->BoxFull(15, 15, 400, 400, Zwart);
        const QImage pic = bord.Pic(), groot = bord.Groot();
        QCOMPARE(FoutVan([&] { TekenRaster(breedte, hoogte); }), fout);
        QCOMPARE(FoutVan([&] { TekenGroot(breedte, hoogte); }), fout);
        QVERIFY(bord.Pic() == pic);
        QVERIFY(bord.Groot() == groot);
    }

    void zeroAndForeignSizesAreTakenAsTheyStand()
    {
        Bord bord;
        bord.Begin(Zweeds, 0, 0);
        QCOMPARE(bord.Pic().size(), QSize(1, 1));
        QVERIFY(IsVlak(bord.Groot(), QRect(0, 0, 3, 3), Wit));
        bord.Begin(Zweeds, 40, 3);
        QCOMPARE(bord.Pic().size(), QSize(40 * 30 + 1, 3 * 30 + 1));
    }
};

RASTER_TEST(tst_Raster)
#include "tst_Raster.moc"
