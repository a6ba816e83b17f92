#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "generators/SudokuMod.h"
#include "generators/SudokuSpel.h"
#include "platform/Toeval.h"
#include "support/Verwacht.h"

#include <QSet>

#include <numeric>

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255), Tint = qRgb(235, 235, 205);
static const QRgb Groen = qRgb(0, 150, 0), Rood = qRgb(150, 0, 0), Grijs = qRgb(80, 80, 80);

static int Juist(int cel)
{
    return SudokuOplossing[static_cast<size_t>(cel)];
}

static QFont Cijferletter()
{
    return Lettertype(u"Arial"_s, 12, true);
}

/// Where a cell begins, in pixels.
static QPoint Hoek(int cel, int maat)
{
    return QPoint(cel % 9, cel / 9) * maat;
}

/// What the solution makes of a picture.
static QImage MetOplossing(const QImage &begin)
{
    Verwacht beeld(begin);
    for (int cel = 0; cel < 81; ++cel) {
        const QPoint hoek = Hoek(cel, 120) + QPoint(10, 10);
        beeld.Vul(QRect(hoek, QSize(103, 103)), Wit);
        beeld.Druk(u' ' + QString::number(Juist(cel)), hoek + QPoint(22, 12), Lettertype(u"Arial Narrow"_s, 48, true),
                   Grijs);
    }
    return beeld.Beeld;
}

/// The solution as the large board has to show it.
static QImage OplossingBeeld(const QImage &tegel)
{
    return MetOplossing(Tegels(tegel, 9, 9, BandenGroot));
}

/// The numbers of the cells that are tinted.
static QList<int> Gegeven(const QImage &pic)
{
    QList<int> cellen;
    for (int cel = 0; cel < 81; ++cel)
        if (pic.pixel(Hoek(cel, 30) + QPoint(3, 3)) == Tint)
            cellen += cel;
    return cellen;
}

/// A puzzle with these cells given, as the visible board has to show it.
static QImage PuzzelBeeld(const QList<int> &gegeven)
{
    Verwacht beeld(Raster(9, 9, Banden));
    for (const int cel : gegeven) {
        const QPoint hoek = Hoek(cel, 30);
        beeld.Vul(QRect(hoek + QPoint(3, 3), QSize(25, 25)), Tint);
        beeld.Druk(u' ' + QString::number(Juist(cel)), hoek + QPoint(7, 7), Cijferletter(), qRgb(30, 30, 30));
    }
    return beeld.Beeld;
}

/// The same picture with what was chosen in a cell; 0 or more is printed.
static QImage MetKeuze(const QImage &pic, int cel, int cijfer, QRgb kleur)
{
    Verwacht beeld(pic);
    beeld.Vul(QRect(Hoek(cel, 30) + QPoint(4, 4), QSize(24, 24)), Wit);
    if (cijfer >= 0)
        beeld.Druk(u' ' + QString::number(cijfer), Hoek(cel, 30) + QPoint(7, 7), Cijferletter(), kleur);
    return beeld.Beeld;
}

/// The main window with an empty Sudoku.
struct Spel : Bord
{
    Spel()
    {
        SudokuOplossing = {};
        Begin(Sudoku, 9, 9);
        Venster.ToonSoort();
        Venster.ToonPuzzel(u"Raster Atelier"_s);
    }
    void Schud(int niveau)
    {
        Venster.Option[niveau]->click();
        StartKnop_Click();
    }
    /// Clicks a cell and closes the pop-up; with an index its item is chosen.
    void Kies(int cel, int index = 0)
    {
        Klik(Qt::LeftButton, cel % 9, cel / 9);
        Venster.SudokuMenu->close();
        if (index > 0)
            SuMe_Click(index);
    }
};

class tst_SudokuSpel : public QObject
{
    Q_OBJECT
private slots:
    void theSolutionOnTheLargeBoard()
    {
        Spel spel;
        MaakSudoku();
        spel.Venster.PicGroot->FontBold = false;
        const Stand ervoor = spel.Nu();
        TekenOplossing();
        QCOMPARE(Verschil(spel.Groot(), OplossingBeeld(spel.Venster.PicVak->Image())), QString());
        QCOMPARE(Lettersoort(*spel.Venster.PicGroot), u"Arial Narrow 48 1 ff505050"_s);
        QCOMPARE(spel.Veranderd(ervoor), u"PicGroot"_s);
        spel.Venster.PicGroot->BoxFull(0, 0, 1e5, 1e5, Tint); // each digit wipes the inside of its cell
        TekenOplossing();
        QCOMPARE(Verschil(spel.Groot(), MetOplossing(Doek(1083, 1083, Tint))), QString());
    }

    void theShuffle_data()
    {
        QTest::addColumn<int>("niveau");
        QTest::addColumn<int>("grens");
        Geval("easy", 0, 8);
        Geval("normal", 1, 6);
        Geval("hard", 2, 4);
    }
    void theShuffle()
    {
        QFETCH(int, niveau);
        QFETCH(int, grens);
        Spel spel;
        // What the series gives: first the solution, then a number from 1 to 10 for each cell.
        Toeval::Zaad(11);
        MaakSudoku();
        const auto oplossing = SudokuOplossing;
        QList<int> gegeven;
        for (int cel = 0; cel < 81; ++cel)
            if (int(float(Toeval::Rnd()) * 10 + 1) < grens)
                gegeven += cel;

        spel.InBewerking();
        spel.Kies(40);
        spel.Venster.Pic->FontBold = false;
        spel.Venster.Option[niveau]->click();
        const Stand ervoor = spel.Nu();
        Toeval::Zaad(11);
        StartKnop_Click();
        QVERIFY(SudokuOplossing == oplossing);
        QCOMPARE(Gegeven(spel.Pic()), gegeven);
        QCOMPARE(Verschil(spel.Pic(), PuzzelBeeld(gegeven)), QString());
        QCOMPARE(Verschil(spel.Groot(), OplossingBeeld(spel.Venster.PicVak->Image())), QString());
        QCOMPARE(Lettersoort(*spel.Venster.Pic), u"Arial 12 1 ff1e1e1e"_s);
        QCOMPARE(spel.Veranderd(ervoor), u"Pic PicGroot"_s); // neither PuzzelGewijzigd nor a mark on the board
        QCOMPARE(spel.Bank.TestKlok.Gewacht(), 0.2);
        QVERIFY(spel.Bank.Script.Gezien.isEmpty());
    }

    void theShuffleLeavesTheFonts()
    {
        Spel spel;
        for (PictureBox *box : {spel.Venster.Pic, spel.Venster.PicGroot})
            box->ZetLetter({.Naam = u"Courier New"_s, .Vet = false});
        spel.Schud(1);
        QCOMPARE(Lettersoort(*spel.Venster.Pic), u"Courier New 12 1 ff1e1e1e"_s);
        QCOMPARE(Lettersoort(*spel.Venster.PicGroot), u"Courier New 48 1 ff505050"_s);
    }

    void thePressComesFirst()
    {
        Spel spel;
        spel.Venster.bij(spel.Venster.StartKnop, &ImageButton::clicked, [] { StartKnop_Click(); });
        const Stand ervoor = spel.Nu();
        KlikMetDruk(*spel.Venster.StartKnop, [&] {
            QCOMPARE(spel.Veranderd(ervoor), u"StartKnop"_s);
            QCOMPARE(Juist(0), 0);
            spel.Venster.Option[0]->click(); // the level is that of the moment behind it
            Toeval::Zaad(5);
        });
        const QList<int> gegeven = Gegeven(spel.Pic());
        Toeval::Zaad(5);
        StartKnop_Click();
        QCOMPARE(Gegeven(spel.Pic()), gegeven);
    }

    // Each cell is given by chance, seven, five or three times of ten: of 16200 cells the share lies within 0.02 of
    // that, more than five times its standard deviation, and that of each place within 0.2, more than five times its
    // own too.
    void theSharesOfGivenCells_data()
    {
        QTest::addColumn<int>("niveau");
        QTest::addColumn<double>("kans");
        Geval("easy", 0, 0.7);
        Geval("normal", 1, 0.5);
        Geval("hard", 2, 0.3);
    }
    void theSharesOfGivenCells()
    {
        constexpr int Keren = 200;
        QFETCH(int, niveau);
        QFETCH(double, kans);
        Spel spel;
        QList<int> perCel(81);
        QSet<qsizetype> aantallen;
        for (int keer = 0; keer < Keren; ++keer) {
            spel.Schud(niveau);
            const QList<int> gegeven = Gegeven(spel.Pic());
            aantallen += gegeven.size();
            for (const int cel : gegeven)
                ++perCel[cel];
        }
        const double alle = std::accumulate(perCel.begin(), perCel.end(), 0.0);
        QVERIFY2(qAbs(alle / (81.0 * Keren) - kans) < 0.02, qPrintable(QString::number(alle)));
        for (const int aantal : perCel)
            QVERIFY2(qAbs(double(aantal) / Keren - kans) < 0.2, qPrintable(QString::number(aantal)));
        QVERIFY(aantallen.size() > 5); // the number of them differs from puzzle to puzzle
    }

    void theDrawsAreTakenInSinglePrecision()
    {
        Spel spel;
        spel.Venster.Option[0]->click();
        Toeval::Zaad(113'826);
        StartKnop_Click();
        QVERIFY(!Gegeven(spel.Pic()).contains(16));
        Toeval::Zaad(113'826);
        MaakSudoku();
        for (int cel = 0; cel < 16; ++cel)
            Toeval::Rnd();
        const double trekking = Toeval::Rnd();
        QCOMPARE(int(trekking * 10 + 1), 7); // so little below 8 that single precision gives 8
        QCOMPARE(trekking, 11'744'051 / 16'777'216.0);
    }

    void aSecondShuffleWipesTheFirst()
    {
        Spel spel;
        spel.Schud(0);
        const auto eerste = SudokuOplossing;
        for (int cel = 0; cel < 81; ++cel)
            spel.Kies(cel, cel % 9 + 1);
        spel.Schud(2);
        QVERIFY(SudokuOplossing != eerste);
        QCOMPARE(Verschil(spel.Pic(), PuzzelBeeld(Gegeven(spel.Pic()))), QString());
        QCOMPARE(Verschil(spel.Groot(), OplossingBeeld(spel.Venster.PicVak->Image())), QString());
    }

    void digits()
    {
        Spel spel;
        spel.Schud(1);
        spel.InBewerking();
        for (const int cel : {0, 8, 40, 72, 80, 13, 60}) {
            for (int cijfer = 1; cijfer <= 9; ++cijfer) {
                const QImage pic = spel.Pic();
                spel.Kies(cel);
                const Stand ervoor = spel.Nu();
                QVERIFY(!spel.Venster.Shape1->isHidden());
                SuMe_Click(cijfer);
                const QRgb kleur = cijfer == Juist(cel) ? Groen : Rood;
                QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, cel, cijfer, kleur)), QString());
                QCOMPARE(spel.Venster.Pic->ForeColor, kleur);
                QCOMPARE(Verschil(spel.Groot(), OplossingBeeld(spel.Venster.PicVak->Image())), QString());
                QVERIFY(spel.Venster.Shape1->isHidden());
                const QString veranderd = spel.Veranderd(ervoor); // of PicGroot its letter, the first time
                QVERIFY2(veranderd == "Pic PicGroot Shape1"_L1 || veranderd == "Pic Shape1"_L1, qPrintable(veranderd));
                SuMe_Click(cijfer); // once more gives the same
                QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, cel, cijfer, kleur)), QString());
            }
        }
        QCOMPARE(Lettersoort(*spel.Venster.PicGroot), u"Arial Narrow 48 1 ff000000"_s);
    }

    void theHint()
    {
        Spel spel;
        spel.Schud(1);
        for (int cel = 0; cel < 81; ++cel) {
            const QImage pic = spel.Pic();
            spel.Kies(cel, 11);
            QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, cel, Juist(cel), Groen)), QString());
            QCOMPARE(Lettersoort(*spel.Venster.Pic), u"Arial 12 1 ff009600"_s);
            QCOMPARE(Lettersoort(*spel.Venster.PicGroot), u"Arial Narrow 48 1 ff000000"_s);
            QVERIFY(spel.Venster.Shape1->isHidden());
        }
    }

    void onlyTheSizeAndTheColourOfTheLettersAreSet()
    {
        Spel spel;
        spel.Schud(1);
        for (PictureBox *box : {spel.Venster.Pic, spel.Venster.PicGroot})
            box->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7, .Vet = false, .Kleur = qRgb(1, 2, 3)});
        spel.Kies(3, 10);
        QCOMPARE(Lettersoort(*spel.Venster.Pic), u"Courier New 12 0 ff1e1e1e"_s);
        QCOMPARE(Lettersoort(*spel.Venster.PicGroot), u"Courier New 48 0 ff000000"_s);
    }

    void beforeTheFirstShuffle()
    {
        Spel spel;
        QImage pic = Raster(9, 9, Banden);
        QCOMPARE(spel.Pic(), pic);
        for (int cijfer = 1; cijfer <= 9; ++cijfer) {
            spel.Kies(cijfer, cijfer);
            pic = MetKeuze(pic, cijfer, cijfer, Rood);
        }
        spel.Kies(50, 11);
        QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, 50, 0, Groen)), QString());
    }

    void aGivenCellIsNotProtected()
    {
        Spel spel;
        spel.Schud(0);
        const QList<int> gegeven = Gegeven(spel.Pic());
        QVERIFY(gegeven.size() > 2);
        const int cel = gegeven[1];
        const QImage pic = spel.Pic();
        spel.Kies(cel, Juist(cel) % 9 + 1);
        QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, cel, Juist(cel) % 9 + 1, Rood)), QString());
        // What the white box leaves of the tint: a line of a pixel at the top and at the left.
        QCOMPARE(InktVlak(spel.Pic(), QRect(Hoek(cel, 30) + QPoint(3, 3), QSize(25, 25)), Tint).topLeft(),
                 Hoek(cel, 30) + QPoint(4, 4));
    }

    void theSeparatorOnlyClears()
    {
        Spel spel;
        spel.Schud(0);
        const int cel = Gegeven(spel.Pic()).first();
        const QImage pic = spel.Pic();
        spel.Kies(cel, 10);
        QCOMPARE(Verschil(spel.Pic(), MetKeuze(pic, cel, -1, Wit)), QString());
        QVERIFY(spel.Venster.Shape1->isHidden());
    }

    void withoutAChoiceTheFrameStays()
    {
        Spel spel;
        spel.Schud(1);
        const QImage pic = spel.Pic();
        spel.Kies(21);
        QVERIFY(!spel.Venster.Shape1->isHidden());
        QCOMPARE(spel.Venster.Shape1->pos(), Hoek(21, 30) + QPoint(1, 1));
        QCOMPARE(spel.Pic(), pic);
    }

    void thePuzzleNeverCountsAsChanged()
    {
        for (const bool gewijzigd : {false, true}) {
            Spel spel;
            PuzzelGewijzigd = gewijzigd;
            spel.Schud(1);
            spel.Kies(3, 4);
            spel.Kies(5, 11);
            QCOMPARE(PuzzelGewijzigd, gewijzigd);
        }
    }

    void anOpenedSudokuKeepsTheSolutionOfThisRun()
    {
        Spel spel;
        spel.Schud(1);
        PuzzelNaam = u"Cijfers"_s;
        SaveForm bewaar;
        bewaar.Text1->setText(PuzzelNaam);
        bewaar.SaveKnop_Click();
        const QImage bewaard = spel.Pic();
        const auto eerste = SudokuOplossing;
        spel.Schud(1);
        const auto tweede = SudokuOplossing;
        QVERIFY(eerste != tweede);
        const auto open = [] {
            OpenFile venster;
            venster.List1->SetListIndex(0);
            venster.OkKnop_Click();
        };
        open();
        QCOMPARE(spel.Pic(), bewaard);
        QVERIFY(SudokuOplossing == tweede);
        const int cel = int(std::mismatch(eerste.begin(), eerste.end(), tweede.begin()).first - eerste.begin());
        spel.Kies(cel, eerste[static_cast<size_t>(cel)]); // right in the puzzle that is shown
        const QImage fout = spel.Pic();
        QCOMPARE(Verschil(fout, MetKeuze(bewaard, cel, eerste[static_cast<size_t>(cel)], Rood)), QString());

        SudokuOplossing = {}; // as a run begins
        open();
        QVERIFY(SudokuOplossing == (std::array<qint32, 81>{}));
        spel.Kies(cel, 11);
        QCOMPARE(Verschil(spel.Pic(), MetKeuze(bewaard, cel, 0, Groen)), QString());
    }

    void aCellThatTheSolutionDoesNotHave()
    {
        Spel spel;
        spel.Schud(1);
        spel.Begin(Sudoku, 16, 19); // as a damaged file may tell
        spel.Wijs(0, 5);            // cell 81
        SuMe_Click(11);
        QCOMPARE(Verschil(spel.Pic(),
                          [] {
                              Verwacht beeld(Raster(16, 19, Banden));
                              beeld.Vul(QRect(4, 154, 24, 24), Wit);
                              beeld.Druk(u' ' + QString::number(Juist(80)), QPoint(7, 157), Cijferletter(), Groen);
                              return beeld.Beeld;
                          }()),
                 QString());
        spel.Wijs(1, 5);
        const Stand ervoor = spel.Nu();
        for (const int index : {1, 9, 11})
            QCOMPARE(FoutVan([&] { SuMe_Click(index); }), int(Fout::IndexBuitenBereik));
        CurCell = 0;
        QCOMPARE(FoutVan([&] { SuMe_Click(1); }), int(Fout::IndexBuitenBereik));
        CurCell = 82;
        QCOMPARE(spel.Veranderd(ervoor), QString());
        spel.Schud(1); // 81 cells in the corner
        QCOMPARE(Verschil(spel.Pic().copy(0, 0, 271, 271), PuzzelBeeld(Gegeven(spel.Pic()))), QString());
        QVERIFY(spel.Pic().copy(271, 0, 210, 571) == Raster(16, 19, Banden).copy(271, 0, 210, 571));
        QCOMPARE(Verschil(spel.Groot().copy(0, 0, 1083, 1083), OplossingBeeld(spel.Venster.PicVak->Image())),
                 QString());
    }
};

RASTER_TEST(tst_SudokuSpel)
#include "tst_SudokuSpel.moc"
