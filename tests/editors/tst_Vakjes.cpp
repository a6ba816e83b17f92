#include "editors/VakForm.h"
#include "platform/Plaatjes.h"
#include "support/Bord.h"

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb VakKleur = qRgb(229, 248, 194);

/// The picture at a quarter of its size, the mean of every 4 by 4 pixels. What is left over at the right and below is
/// not looked at.
static QImage Kwart(const QImage &beeld)
{
    QImage klein(beeld.width() / 4, beeld.height() / 4, QImage::Format_RGB32);
    for (int y = 0; y < klein.height(); ++y)
        for (int x = 0; x < klein.width(); ++x) {
            int rood = 0, groen = 0, blauw = 0;
            for (int i = 0; i < 16; ++i) {
                const QRgb p = beeld.pixel(4 * x + i % 4, 4 * y + i / 4);
                rood += qRed(p);
                groen += qGreen(p);
                blauw += qBlue(p);
            }
            klein.setPixel(x, y, qRgb((rood + 8) / 16, (groen + 8) / 16, (blauw + 8) / 16));
        }
    return klein;
}

/// How far two pixels are apart, as the largest difference of a component.
static int Verschil(QRgb a, QRgb b)
{
    return std::max({qAbs(qRed(a) - qRed(b)), qAbs(qGreen(a) - qGreen(b)), qAbs(qBlue(a) - qBlue(b))});
}

static void Wis(PictureBox &pic)
{
    pic.BoxFull(0, 0, pic.Width(), pic.Height(), Wit);
}

/// The tiles of the visible board, beside what the same kinds look like on the large board.
class tst_Vakjes : public QObject
{
    Q_OBJECT
private slots:
    void theStripHasEightTilesOfItsSize() { QCOMPARE(Plaatjes::Beeld(u"vakjes"_s).size(), QSize(8 * 43, 43)); }

    void aTileIsAQuarterOfTheLargeBoard_data()
    {
        QTest::addColumn<int>("soort");
        for (int soort = 1; soort <= 8; ++soort)
            Geval(QByteArray::number(soort), soort);
    }
    void aTileIsAQuarterOfTheLargeBoard()
    {
        constexpr int Speling = 4; // of 255: both drawings are smoothed, the large one twice
        QFETCH(int, soort);
        Bord bord;
        bord.Begin(Zweeds, 5, 6);
        PictureBox &groot = *bord.Venster.PicGroot;
        Wis(*bord.Venster.Pic); // without grid and frames nothing but the tile is left
        Wis(groot);
        bord.Wijs(2, 3);
        VakForm form;
        form.HScroll1->setValue(soort);
        form.Text1->SetText(u"tekst"_s); // on the large board alone
        form.OkKnop_Click();

        // Each board has its own colour for the cell, and only the large one shows the text and the divider.
        groot.BoxFull(2 * VakMaatGroot, 3 * VakMaatGroot, 3 * VakMaatGroot + 30, 4 * VakMaatGroot + 30, Wit);
        QImage verwacht = Kwart(bord.Groot());
        QCOMPARE(verwacht.size(), QSize(5 * 30, 6 * 30));
        for (int y = 90; y < 120; ++y)
            for (int x = 60; x < 90; ++x)
                verwacht.setPixel(x, y, VakKleur);

        const QImage pic = bord.Pic();
        int grootste = 0;
        QPoint waar;
        for (int y = 0; y < verwacht.height(); ++y)
            for (int x = 0; x < verwacht.width(); ++x) {
                const int verschil = Verschil(pic.pixel(x, y), verwacht.pixel(x, y));
                if (verschil > grootste)
                    waar = {x, y};
                grootste = std::max(grootste, verschil);
            }
        QVERIFY2(grootste <= Speling,
                 qPrintable(u"%1 at %2, %3 of the tile"_s.arg(grootste).arg(waar.x() - 60).arg(waar.y() - 90)));
    }
};

RASTER_TEST(tst_Vakjes)
#include "tst_Vakjes.moc"
