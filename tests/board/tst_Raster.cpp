#include "board/Raster.h"
#include "support/Verwacht.h"

using namespace Qt::StringLiterals;

static const QRgb Wit = qRgb(255, 255, 255);
static const QRgb Zwart = qRgb(0, 0, 0);

/// A ruler with so many texts, each a step further on than the one before.
static QImage Liniaal(int breedte, int hoogte, QPoint plaats, QPoint stap, const QStringList &teksten)
{
    QFont font(u"Liberation Sans"_s);
    font.setPixelSize(13);
    font.setBold(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
    QImage beeld = Doek(breedte, hoogte, qRgb(230, 230, 190));
    QPainter painter(&beeld);
    painter.setFont(font);
    plaats.ry() += qRound(QFontMetricsF(font).ascent());
    for (const QString &tekst : teksten) {
        painter.drawText(plaats, tekst);
        plaats += stap;
    }
    return beeld;
}

static QImage Rijnummers(int hoogte)
{
    const QStringList nummers = u"01 02 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 18 19 20 21 22"_s.split(u' ');
    return Liniaal(30, hoogte * 30 + 14, QPoint(6, 14), QPoint(0, 30), nummers.first(hoogte));
}

static QImage Kolomletters(int breedte)
{
    const QStringList letters = u"A B C D E F G H I J K L M N O P Q R S T U V W X Y Z [ \\ ]"_s.split(u' ');
    return Liniaal(breedte * 30 + 14, 20, QPoint(17, 2), QPoint(30, 0), letters.first(breedte));
}

class tst_Raster : public QObject
{
    Q_OBJECT
private slots:
    void theWholeBoard_data()
    {
        QTest::addColumn<quint8>("soort");
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        Geval("largest", Zweeds, 16, 19);
        Geval("smallest", Zweeds, 9, 9);
        Geval("wide", Woordzoeker, 16, 9);
        Geval("high", Kruiswoord, 9, 19);
        Geval("in between", Zweeds, 12, 14);
        Geval("Sudoku", Sudoku, 9, 9);
        Geval("Sudoku of another size, of a file", Sudoku, 12, 14);
        Geval("Sudoku that is wider than high", Sudoku, 14, 12);
        Geval("Filippine", Filippine, 16, 19);
    }
    void theWholeBoard()
    {
        QFETCH(quint8, soort);
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        const bool isSudoku = soort == Sudoku;
        Testbank bank;
        MainForm main; // nothing has been drawn on it yet
        const QImage tegel = main.PicVak->Image();
        PuzzelType = soort;
        for (const bool vuil : {false, true}) { // the second time over what was drawn meanwhile
            if (vuil) {
                main.Pic->BoxFull(0, 0, 1e5, 1e5, Zwart);
                main.PicGroot->BoxFull(0, 0, 1e6, 1e6, Zwart);
            }
            TekenBord(breedte, hoogte);
            QCOMPARE(main.Pic->Image(), Raster(breedte, hoogte, isSudoku ? Banden : QList<int>()));
            QCOMPARE(main.PicGroot->Image(), Tegels(tegel, breedte, hoogte, isSudoku ? BandenGroot : QList<int>()));
            QCOMPARE(main.PicR->Image(), Rijnummers(hoogte));
            QCOMPARE(main.PicO->Image(), Kolomletters(breedte));
        }
        QCOMPARE(main.Label1->geometry(), QRect(12, 52, breedte * 30 + 14, hoogte * 30 + 14));
        QCOMPARE(main.Frame8->geometry(), QRect(12, 6, breedte * 30 + 14, 36));
        QCOMPARE(main.Pic->pos(), QPoint(18, 58));
        QCOMPARE(main.PicR->pos(), QPoint(breedte * 30 + 14 + 13, 52));
        QCOMPARE(main.PicO->pos(), QPoint(12, hoogte * 30 + 14 + 53));
    }

    void everyBoardIsCounted()
    {
        Bord bord;
        const int eerst = BordNummer();
        TekenBord(16, 19); // as large as the one before
        QCOMPARE(BordNummer(), eerst + 1);
    }

    void theTileIsWhiteInAThinFrame()
    {
        Bord bord;
        const QImage tegel = bord.Venster.PicVak->Image();
        QCOMPARE(tegel.size(), QSize(123, 123));
        for (int y = 0; y < 123; ++y)
            for (int x = 0; x < 123; ++x)
                QCOMPARE(tegel.pixel(x, y) == Wit, QRect(3, 3, 117, 117).contains(x, y));
    }

    void theHiddenPartOfTheBoardIsWipedToo()
    {
        Bord bord;
        bord.Venster.Pic->BoxFull(0, 0, 7215, 8565, Zwart);
        bord.Venster.PicGroot->BoxFull(0, 0, 28845, 34245, Zwart);
        bord.Begin(Zweeds, 9, 9);
        bord.Begin(Zweeds, 16, 19);
        QCOMPARE(bord.Pic(), Raster(16, 19));
        QCOMPARE(bord.Groot(), Tegels(bord.Venster.PicVak->Image(), 16, 19));
    }

    void theRulersKeepWhatALargerBoardLeft()
    {
        Bord bord;
        bord.Begin(Zweeds, 9, 9);
        QCOMPARE(bord.Venster.PicR->Image(), Rijnummers(9));
        QCOMPARE(bord.Venster.PicO->Image(), Kolomletters(9));
        bord.Venster.PicR->SetSize(450, 8760); // shown again as they were, though only nine were drawn anew
        bord.Venster.PicO->SetSize(7410, 300);
        QCOMPARE(bord.Venster.PicR->Image(), Rijnummers(19));
        QCOMPARE(bord.Venster.PicO->Image(), Kolomletters(16));
    }

    void theRulersAreDrawnOverWhatStandsOnThem()
    {
        Bord bord;
        bord.Venster.PicR->SetPixel(29, 200, Zwart);
        bord.Venster.PicO->SetPixel(3, 19, Zwart);
        bord.Begin(Zweeds, 16, 19);
        QImage rijen = Rijnummers(19), kolommen = Kolomletters(16);
        rijen.setPixel(29, 200, Zwart);
        kolommen.setPixel(3, 19, Zwart);
        QCOMPARE(bord.Venster.PicR->Image(), rijen);
        QCOMPARE(bord.Venster.PicO->Image(), kolommen);
    }

    void impossibleSizesChangeNothing_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        QTest::addColumn<int>("fout");
        Geval("negative", -1, 9, int(Fout::OngeldigeWaarde));
        Geval("negative height", 9, -1, int(Fout::OngeldigeWaarde));
        Geval("hundred thousand", 100000, 100000, int(Fout::GeheugenVol));
        Geval("hundred", 100, 100, int(Fout::GeheugenVol));
        Geval("wide without a height", 150000, 0, int(Fout::GeheugenVol));
        Geval("high without a width", 0, 150000, int(Fout::GeheugenVol));
        Geval("largest number", 2147483647, 2147483647, int(Fout::GeheugenVol));
    }
    void impossibleSizesChangeNothing()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        QFETCH(int, fout);
        Bord bord;
        bord.Venster.Pic->BoxFull(15, 15, 400, 400, Zwart);
        const Stand ervoor = bord.Nu();
        const int nummer = BordNummer();
        QCOMPARE(FoutVan([&] { ControleerBord(breedte, hoogte); }), fout);
        QCOMPARE(FoutVan([&] { TekenRaster(breedte, hoogte); }), fout);
        QCOMPARE(FoutVan([&] { TekenGroot(breedte, hoogte); }), fout);
        QCOMPARE(FoutVan([&] { TekenBord(breedte, hoogte); }), fout);
        QCOMPARE(bord.Veranderd(ervoor), QString());
        QCOMPARE(BordNummer(), nummer); // what works on the one that is there goes on
    }

    // Each of the four pictures can be the one that is too large: here its hidden part leaves no room to grow.
    void everyPictureIsLookedAtBeforehand_data()
    {
        QTest::addColumn<QString>("naam");
        for (const char *naam : {"Pic", "PicGroot", "PicR", "PicO"})
            Geval(naam, naam);
    }
    void everyPictureIsLookedAtBeforehand()
    {
        QFETCH(QString, naam);
        Bord bord;
        QCOMPARE(FoutVan([] { ControleerBord(17, 20); }), 0);
        auto *box = Vind<PictureBox>(bord.Venster, naam);
        const QSize maat = box->size();
        constexpr int Most = 1 << 26; // pixels
        if (naam == "PicR"_L1)
            box->resize(Most / maat.height(), maat.height()); // it grows downward only
        else
            box->resize(maat.width(), Most / maat.width());
        box->SetPixel(0, 0, Zwart);
        box->resize(maat);
        QCOMPARE(FoutVan([] { ControleerBord(16, 19); }), 0);
        QCOMPARE(FoutVan([] { ControleerBord(17, 20); }), int(Fout::GeheugenVol));
    }

    void zeroAndForeignSizesAreTakenAsTheyStand_data()
    {
        QTest::addColumn<int>("breedte");
        QTest::addColumn<int>("hoogte");
        Geval("nothing", 0, 0);
        Geval("no height", 12, 0);
        Geval("no width", 0, 12);
        Geval("one cell", 1, 1);
        Geval("wide", 29, 3);
        Geval("high", 3, 22);
    }
    void zeroAndForeignSizesAreTakenAsTheyStand()
    {
        QFETCH(int, breedte);
        QFETCH(int, hoogte);
        Bord bord;
        bord.Venster.PicGroot->BoxFull(0, 0, 1e6, 1e6, Zwart);
        const Stand ervoor = bord.Nu();
        bord.Begin(Zweeds, breedte, hoogte);
        QCOMPARE(bord.VeranderdBuitenPuzzel(ervoor), QString()); // no other control moves
        QCOMPARE(bord.Pic(), Raster(breedte, hoogte));
        QCOMPARE(bord.Groot(), Tegels(bord.Venster.PicVak->Image(), breedte, hoogte));
        QCOMPARE(bord.Venster.Label1->size(), QSize(breedte * 30 + 14, hoogte * 30 + 14));
        QCOMPARE(bord.Venster.Frame8->geometry(), QRect(12, 6, breedte * 30 + 14, 36));
        QCOMPARE(bord.Venster.PicR->geometry(), QRect(breedte * 30 + 14 + 13, 52, 30, hoogte * 30 + 14));
        QCOMPARE(bord.Venster.PicO->geometry(), QRect(12, hoogte * 30 + 14 + 53, breedte * 30 + 14, 20));
        if (hoogte > 0 && breedte > 0) { // else there stands the beginning of what was drawn before
            QCOMPARE(bord.Venster.PicR->Image(), Rijnummers(hoogte));
            QCOMPARE(bord.Venster.PicO->Image(), Kolomletters(breedte));
        }
    }
};

RASTER_TEST(tst_Raster)
#include "tst_Raster.moc"
