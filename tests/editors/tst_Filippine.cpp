#include "editors/Filippine.h"
#include "support/Bord.h"

#include <QGuiApplication>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);

class tst_Filippine : public QObject
{
    Q_OBJECT

    static void Plak(Bord &bord, const PictureBox &vak, int kolom, int rij)
    {
        bord.Venster.Pic->PaintPicture(vak.Image(), QRectF(kolom * 450, rij * 450, 465, 465), QRectF(0, 0, 465, 465));
        bord.Venster.Pic->FontSize = 12;
        bord.Venster.Pic->CurrentX = kolom * 450 + 150;
        bord.Venster.Pic->CurrentY = rij * 450 + 105;
        bord.Venster.Pic->Print(u"A"_s);
    }

private slots:
    void theRasterBecomesWhite()
    {
        Bord bord;
        bord.Begin(Filippine, 16, 19);
        bord.Venster.Pic->SetPixel(100, 100, qRgb(150, 3, 200)); // whatever it belongs to; green and blue don't matter
        bord.Venster.Pic->SetPixel(101, 100, qRgb(151, 150, 150));
        const QImage groot = bord.Groot();
        VerwijderRaster(*bord.Venster.Pic);
        QCOMPARE(InktVlak(bord.Pic(), bord.Pic().rect()), QRect(101, 100, 1, 1));
        QVERIFY(bord.Groot() == groot);
        VerwijderRaster(*bord.Venster.Pic);
        QCOMPARE(InktVlak(bord.Pic(), bord.Pic().rect()), QRect(101, 100, 1, 1));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void answerCellsLoseTheirLetters()
    {
        Bord bord;
        bord.Begin(Filippine, 16, 19);
        Plak(bord, *bord.Venster.Vak1, 3, 4);
        Plak(bord, *bord.Venster.Vak2, 15, 18);
        bord.Venster.Pic->BoxFull(5 * 450 + 30, 4 * 450 + 30, 5 * 450 + 420, 4 * 450 + 420,
                                  qRgb(0, 0, 0)); // a number cell
        const QImage ervoor = bord.Pic();
        VerwijderLetters(*bord.Venster.Pic);
        const QImage erna = bord.Pic();
        QVERIFY(erna.copy(QRect(90, 120, 31, 31)) == bord.Venster.Vak1->Image());
        QVERIFY(erna.copy(QRect(450, 540, 31, 31)) == bord.Venster.Vak2->Image());
        QVERIFY(erna.copy(Binnen(5, 4)) == ervoor.copy(Binnen(5, 4)));
        QCOMPARE(erna.pixel(7 * 30 + 15, 15), Wit);
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 16 * 0.2) < 1e-6);
        VerwijderLetters(*bord.Venster.Pic);
        QVERIFY(bord.Pic() == erna);
        QVERIFY(!QGuiApplication::overrideCursor());
        QVERIFY(!PuzzelGewijzigd);
    }

    void aSmallerBoardIsNoDifference()
    {
        Bord bord;
        bord.Begin(Filippine, 9, 9);
        Plak(bord, *bord.Venster.Vak1, 8, 8);
        VerwijderLetters(*bord.Venster.Pic);
        QVERIFY(bord.Pic().copy(Binnen(8, 8)) == bord.Venster.Vak1->Image().copy(1, 1, 29, 29));
    }
};

RASTER_TEST(tst_Filippine)
#include "tst_Filippine.moc"
