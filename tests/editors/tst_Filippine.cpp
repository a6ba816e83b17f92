#include "editors/EditorStand.h"
#include "editors/Filippine.h"

#include <QGuiApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);

/// A picture with every red component, beside greens and blues of all sorts.
static QImage AlleRoden(QSize maat)
{
    QImage beeld(maat, QImage::Format_RGB32);
    for (int y = 0; y < maat.height(); ++y)
        for (int x = 0; x < maat.width(); ++x)
            beeld.setPixel(x, y, qRgb((x * 7 + y * 3) % 256, (x * 5 + y) % 256, (y * 11) % 256));
    return beeld;
}

/// The picture without its pixels of red 150, as far as column `tot`.
static QImage ZonderRaster(QImage beeld, int tot)
{
    for (int y = 0; y < beeld.height(); ++y)
        for (int x = 0; x <= std::min(tot, beeld.width() - 1); ++x)
            if (qRed(beeld.pixel(x, y)) == 150)
                beeld.setPixel(x, y, Wit);
    return beeld;
}

/// A board of answer cells, search cells, number cells and empty ones, with letters in them, of any size.
static QImage VolBord(const Bord &bord, int kolommen, int rijen)
{
    QImage begin(kolommen * 30 + 1, rijen * 30 + 1, QImage::Format_RGB32);
    begin.fill(Wit);
    Verwacht beeld(begin);
    for (int kolom = 0; kolom < kolommen; ++kolom)
        for (int rij = 0; rij < rijen; ++rij) {
            const QPoint hoek(kolom * 30, rij * 30);
            switch ((kolom + 2 * rij) % 4) {
            case 0:
                beeld.Plak(bord.Venster.Vak1->Image(), hoek);
                break;
            case 1:
                beeld.Plak(bord.Venster.Vak2->Image(), hoek);
                break;
            case 2:
                beeld.Vul(QRect(hoek + QPoint(2, 2), QSize(27, 27)), qRgb(0, 0, 0));
                break;
            }
            beeld.Druk(QChar(u'A' + (kolom + rij) % 26), hoek + QPoint(10, 7), Lettertype(u"Arial"_s, 12, true),
                       qRgb(80, 80, 80));
        }
    return beeld.Beeld;
}

/// The board of VolBord with its answer cells and search cells empty, in so many columns and rows.
static QImage Leeg(const Bord &bord, const QImage &vol, int kolommen, int rijen)
{
    Verwacht beeld(vol);
    for (int kolom = 0; kolom < kolommen; ++kolom)
        for (int rij = 0; rij < rijen; ++rij)
            if ((kolom + 2 * rij) % 4 < 2)
                beeld.Plak(((kolom + 2 * rij) % 4 == 0 ? bord.Venster.Vak1 : bord.Venster.Vak2)->Image(),
                           QPoint(kolom * 30, rij * 30));
    return beeld.Beeld;
}

static void ZetBeeld(PictureBox &box, const QImage &beeld)
{
    box.resize(beeld.size());
    box.SetPicture(beeld);
}

/// Keeps what a picture box shows each time it is painted.
class Kijker : public QObject
{
public:
    explicit Kijker(PictureBox &box) : box_(box) { box.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && (Getoond.isEmpty() || Getoond.last() != box_.Image()))
            Getoond += box_.Image().copy();
        return false;
    }
    QList<QImage> Getoond;

private:
    PictureBox &box_;
};

class tst_Filippine : public QObject
{
    Q_OBJECT
private slots:
    void theRasterOfABoardBecomesWhite()
    {
        Bord bord;
        bord.Begin(Filippine, 16, 19);
        bord.InBewerking();
        bord.Venster.PicGroot->BoxFull(0, 0, 900, 900, qRgb(150, 150, 150));
        const Stand ervoor = EditorStand(bord);
        VerwijderRaster(*bord.Venster.Pic);
        QVERIFY(!HeeftInkt(bord.Pic(), bord.Pic().rect()));
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"Pic"_s); // no more than that
        PuzzelGewijzigd = false;
        const Stand wit = EditorStand(bord);
        VerwijderRaster(*bord.Venster.Pic);
        QCOMPARE(Verschil(wit, EditorStand(bord)), QString());
    }

    void aRedOf150AloneDecides()
    {
        Bord bord;
        bord.Begin(Filippine, 9, 9);
        const QImage bont = AlleRoden({600, 700}); // it goes over all of the picture, whatever the size of the board
        PictureBox doel(&bord.Venster);
        ZetBeeld(doel, bont);
        const Stand ervoor = EditorStand(bord);
        VerwijderRaster(doel);
        QCOMPARE(Verschil(doel.Image(), ZonderRaster(bont, 599)), QString());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), QString()); // the board itself is another picture
    }

    void theRasterGoesFromLeftToRightUnderAnHourglass()
    {
        Bord bord;
        PictureBox &doel = *bord.Venster.Pic;
        const QImage bont = AlleRoden({40, 25});
        ZetBeeld(doel, bont);
        int keren = 0;
        QTimer kijk; // it is let through after every column
        connect(&kijk, &QTimer::timeout, this, [&] {
            QCOMPARE(Verschil(doel.Image(), ZonderRaster(bont, keren)), QString());
            QVERIFY(Zandloper());
            ++keren;
        });
        kijk.start(0);
        VerwijderRaster(doel);
        QVERIFY(keren >= 40);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void eachColumnIsShownBeforeTheNextOne()
    {
        Bord bord;
        bord.Venster.show();
        PictureBox &doel = *bord.Venster.Pic;
        QImage lijnen(40, 25, QImage::Format_RGB32);
        lijnen.fill(Wit);
        for (int kolom = 0; kolom < 40; ++kolom)
            lijnen.setPixel(kolom, kolom % 25, qRgb(150, 150, 150));
        ZetBeeld(doel, lijnen);
        QCoreApplication::processEvents();
        Kijker kijker(doel);
        VerwijderRaster(doel);
        QList<QImage> verwacht;
        for (int kolom = 0; kolom < 40; ++kolom)
            verwacht += ZonderRaster(lijnen, kolom);
        QVERIFY(kijker.Getoond == verwacht);
    }

    void answerCellsLoseTheirLetters()
    {
        Bord bord;
        bord.Begin(Filippine, 16, 19);
        bord.InBewerking();
        const QImage vol = VolBord(bord, 16, 19);
        bord.Venster.Pic->SetPicture(vol);
        const Stand ervoor = EditorStand(bord);
        VerwijderLetters(*bord.Venster.Pic);
        QCOMPARE(Verschil(bord.Pic(), Leeg(bord, vol, 16, 19)), QString());
        QCOMPARE(Verschil(ervoor, EditorStand(bord)), u"Pic"_s);
        PuzzelGewijzigd = false;
        const Stand leeg = EditorStand(bord);
        VerwijderLetters(*bord.Venster.Pic);
        QCOMPARE(Verschil(leeg, EditorStand(bord)), QString());
    }

    void onlyTheRedOfOnePixelDecides_data()
    {
        QTest::addColumn<QPoint>("plaats"); // of the one pixel that is coloured, in the cell
        QTest::addColumn<QRgb>("kleur");
        QTest::addColumn<int>("vak"); // that is painted, 0: none
        Geval("240", QPoint(5, 5), qRgb(240, 1, 254), 1);
        Geval("174", QPoint(5, 5), qRgb(174, 240, 240), 2);
        for (const int rood : {0, 150, 173, 175, 239, 241, 255})
            Geval(QByteArray::number(rood), QPoint(5, 5), qRgb(rood, 240, 174), 0);
        for (const QPoint ernaast : {QPoint(4, 5), QPoint(6, 5), QPoint(5, 4), QPoint(5, 6)}) {
            const QByteArray waar = QByteArray::number(ernaast.x()) + ',' + QByteArray::number(ernaast.y());
            Geval("240 at " + waar, ernaast, qRgb(240, 240, 220), 0);
            Geval("174 at " + waar, ernaast, qRgb(174, 214, 160), 0);
        }
    }
    void onlyTheRedOfOnePixelDecides()
    {
        QFETCH(QPoint, plaats);
        QFETCH(QRgb, kleur);
        QFETCH(int, vak);
        Bord bord;
        for (const QPoint cel : {QPoint(0, 0), QPoint(7, 4), QPoint(15, 18)}) {
            bord.Begin(Filippine, 16, 19);
            bord.Venster.Pic->SetPixel(cel.x() * 30 + plaats.x(), cel.y() * 30 + plaats.y(), kleur);
            Verwacht verwacht(bord.Pic());
            if (vak > 0)
                verwacht.Plak((vak == 1 ? bord.Venster.Vak1 : bord.Venster.Vak2)->Image(), cel * 30);
            VerwijderLetters(*bord.Venster.Pic);
            QCOMPARE(Verschil(bord.Pic(), verwacht.Beeld), QString());
        }
    }

    void itIsAlways16By19Cells_data()
    {
        QTest::addColumn<int>("kolommen");
        QTest::addColumn<int>("rijen");
        Geval("a smaller board", 9, 9);
        Geval("a larger picture", 18, 21);
    }
    void itIsAlways16By19Cells()
    {
        QFETCH(int, kolommen);
        QFETCH(int, rijen);
        Bord bord;
        BoardWidth = BoardHeight = 9; // whatever the size of the board
        PictureBox doel(&bord.Venster);
        const QImage vol = VolBord(bord, kolommen, rijen);
        ZetBeeld(doel, vol);
        VerwijderLetters(doel);
        QCOMPARE(Verschil(doel.Image(), Leeg(bord, vol, std::min(kolommen, 16), std::min(rijen, 19))), QString());
        QVERIFY(qAbs(bord.Bank.TestKlok.Gewacht() - 16 * 0.2) < 1e-6);
    }

    void theLettersGoColumnByColumnUnderAnHourglass()
    {
        Bord bord;
        const QImage vol = VolBord(bord, 16, 19);
        bord.Venster.Pic->SetPicture(vol);
        int kolom = 0;
        KijkKlok klok([&] {
            QCOMPARE(Verschil(bord.Pic(), Leeg(bord, vol, ++kolom, 19)), QString());
            QVERIFY(Zandloper());
        });
        VerwijderLetters(*bord.Venster.Pic);
        QCOMPARE(klok.Wachttijden, QList<double>(16, 0.2));
        QCOMPARE(klok.Welke, QList<QEventLoop::ProcessEventsFlags>(16, QEventLoop::AllEvents));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void bothEndWhenAnotherBoardAppears()
    {
        Bord bord;
        for (const auto verwijder : {VerwijderRaster, VerwijderLetters}) {
            bord.Venster.Pic->SetPicture(VolBord(bord, 16, 19));
            QImage ander;
            QTimer::singleShot(0, &bord.Venster, [&] {
                bord.Begin(Filippine, 16, 19);
                bord.Venster.Pic->SetPicture(VolBord(bord, 16, 19));
                ander = bord.Pic();
            });
            verwijder(*bord.Venster.Pic);
            QVERIFY(bord.Pic() == ander);
            QVERIFY(!QGuiApplication::overrideCursor());
        }
    }
};

RASTER_TEST(tst_Filippine)
#include "tst_Filippine.moc"
