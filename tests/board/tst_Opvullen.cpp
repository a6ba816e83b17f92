#include "board/Opvullen.h"
#include "platform/Toeval.h"
#include "support/Verwacht.h"

#include <QGuiApplication>
#include <QPainter>
#include <QTimer>

#include <random>

using namespace Qt::StringLiterals;

/// What the fill asked of the random generator and of the clock, in its order.
static QStringList Stappen;
/// The letters that the generator gives, one after the other and round again.
static QString Letters;
static qsizetype Gegeven;

// This program has a random generator of its own, linked in place of the real one.
void Toeval::Randomize()
{
    Stappen += u"Randomize"_s;
}
double Toeval::Rnd()
{
    Stappen += u"Rnd"_s;
    const QChar letter = Letters[Gegeven++ % Letters.size()];
    return (letter.unicode() - u'A' + (Gegeven % 2 == 0 ? 0.001 : 0.999)) /
           26; // from edge to edge of the letter's part
}
void Toeval::Zaad(std::uint32_t) {}
void Toeval::ZonderZaad() {}

/// Notes each wait, and what is seen meanwhile.
class VulKlok : public DirecteKlok
{
public:
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        Stappen += u"%1 s"_s.arg(seconden, 0, 'g', 3);
        Zandloper = Zandloper && ::Zandloper();
        InTwips = InTwips && Main().Pic->ScaleMode() == ScaleModes::Twips;
        Welke = welke;
        DirecteKlok::Slaap(seconden, welke);
    }
    bool Zandloper = true;
    bool InTwips = true; ///< what is painted meanwhile counts on it
    QEventLoop::ProcessEventsFlags Welke;
};

class tst_Opvullen : public QObject
{
    Q_OBJECT

    /// The board with a letter in each cell, column after column, each printed by itself.
    static QImage MetLetters(const QImage &pic, int breedte, int hoogte, const QString &letters,
                             const QString &font = u"Arial"_s)
    {
        QImage beeld = pic;
        QPainter painter(&beeld);
        for (int kolom = 0; kolom < breedte; ++kolom)
            for (int rij = 0; rij < hoogte; ++rij) {
                const QChar letter = letters[(kolom * hoogte + rij) % letters.size()];
                const int x = letter == u'W' ? 8 : letter == u'I' ? 15 : 11;
                const QImage los = Gedrukt({31, 31}, QString(letter), x, 7, font, 12, true, qRgb(80, 80, 80));
                painter.drawImage(kolom * 30 + 1, rij * 30 + 1, los, 1, 1, 29, 29);
            }
        return beeld;
    }

private slots:
    void init()
    {
        Letters = u"QWERTYUIOPASDFGHJKLZXCVBNM"_s;
        Gegeven = 0;
        Stappen.clear();
    }

    void everyEmptyCellGetsALetter_data()
    {
        QTest::addColumn<QSize>("maat");
        QTest::addColumn<QString>("letters");
        Geval("largest", QSize(16, 19), "QWERTYUIOPASDFGHJKLZXCVBNM");
        Geval("smallest", QSize(9, 9), "AZ");
        Geval("of a typed size", QSize(17, 21), "AZ");
        Geval("wide letters", QSize(9, 10), "W");
        Geval("narrow letters", QSize(10, 9), "I");
    }
    void everyEmptyCellGetsALetter()
    {
        QFETCH(QSize, maat);
        QFETCH(QString, letters);
        Letters = letters;
        Bord bord;
        bord.Begin(Woordzoeker, maat.width(), maat.height());
        bord.InBewerking(); // the frame and the line stay
        PuzzelGewijzigd = false;
        VakZwart.fill(true); // which pixels are white isn't asked of it
        const Stand ervoor = bord.Nu();
        const QImage leeg = bord.Pic();
        VulLegeVakjes();
        QCOMPARE(bord.Pic(), MetLetters(leeg, maat.width(), maat.height(), letters));
        QCOMPARE(bord.Veranderd(ervoor), u"Pic"_s); // the puzzle doesn't count as changed
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void theFontKeepsItsName()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        const QImage leeg = bord.Pic();
        bord.Venster.Pic->ZetLetter({.Naam = u"Courier New"_s, .Punten = 7.0, .Vet = false, .Kleur = qRgb(0, 0, 0)});
        VulLegeVakjes();
        QCOMPARE(bord.Pic(), MetLetters(leeg, 9, 9, Letters, u"Courier New"_s));
        QCOMPARE(Lettersoort(*bord.Venster.Pic), u"Courier New 12 1 ff505050"_s);
    }

    void eachCellIsLookedAtWhenItsTurnComes()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        bord.Klik(Qt::RightButton, 5, 5);
        bool eerste = true;
        KijkKlok klok([&] {
            if (std::exchange(eerste, false)) {
                bord.Klik(Qt::RightButton, 5, 5);
                bord.Klik(Qt::RightButton, 8, 8);
            }
        });
        VulLegeVakjes();
        QCOMPARE(Stappen.count(u"Rnd"_s), 80);
        QVERIFY(HeeftInkt(bord.Pic(), Binnen(5, 5)));
        QCOMPARE(InktVlak(bord.Pic(), Binnen(8, 8), qRgb(60, 60, 60)), Binnen(8, 8)); // no letter on it
        QVERIFY(!HeeftInkt(bord.Pic(), Binnen(8, 8).adjusted(1, 1, -1, -1), qRgb(60, 60, 60)));
    }

    void aSecondFillChangesNothing()
    {
        std::mt19937 reeks(2026);
        for (int keer = 0; keer < 5; ++keer) {
            Letters.clear();
            for (int i = 0; i < 304; ++i)
                Letters += QChar(u'A' + static_cast<char16_t>(reeks() % 26));
            Bord bord;
            bord.Begin(Woordzoeker, 16, 19);
            VulLegeVakjes();
            const Stand eens = bord.Nu();
            VulLegeVakjes();
            QCOMPARE(bord.Veranderd(eens), QString());
        }
    }

    void everyLetterOfTheAlphabetCountsAsFilled()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        bord.Venster.Pic->FontBold = true;
        bord.Venster.Pic->FontSize = 12;
        for (int letter = 0; letter < 26; ++letter) {
            const QChar teken(65 + letter);
            bord.Venster.Pic->PrintOp((letter % 9) * 450 + 165 + LetterVerschuiving(teken), (letter / 9) * 450 + 105,
                                      QString(teken));
        }
        const QImage ervoor = bord.Pic();
        VulLegeVakjes();
        const QImage erna = bord.Pic();
        for (int letter = 0; letter < 26; ++letter)
            QVERIFY2(erna.copy(Binnen(letter % 9, letter / 9)) == ervoor.copy(Binnen(letter % 9, letter / 9)),
                     qPrintable(QString(QChar(65 + letter))));
    }

    void onlyTheMiddleLineDecides_data()
    {
        QTest::addColumn<QPoint>("pixel"); // from the corner of the cell
        QTest::addColumn<QRgb>("kleur");
        QTest::addColumn<bool>("vol");
        Geval("nearly white", QPoint(15, 15), qRgb(254, 255, 255), true);
        Geval("nearly white green", QPoint(15, 15), qRgb(255, 254, 255), true);
        Geval("nearly white blue", QPoint(15, 15), qRgb(255, 255, 254), true);
        Geval("as a black cell", QPoint(15, 15), qRgb(60, 60, 60), true);
        Geval("as a letter", QPoint(15, 15), qRgb(80, 80, 80), true);
        Geval("as a grid line", QPoint(15, 15), qRgb(150, 150, 150), true);
        Geval("white", QPoint(15, 15), qRgb(255, 255, 255), false);
        Geval("first of the line", QPoint(6, 15), qRgb(0, 0, 0), true);
        Geval("last of the line", QPoint(23, 15), qRgb(0, 0, 0), true);
        Geval("before it", QPoint(5, 15), qRgb(0, 0, 0), false);
        Geval("behind it", QPoint(24, 15), qRgb(0, 0, 0), false);
        Geval("the line above", QPoint(15, 14), qRgb(0, 0, 0), false);
        Geval("the line below", QPoint(15, 16), qRgb(0, 0, 0), false);
        Geval("at the top", QPoint(15, 1), qRgb(0, 0, 0), false);
        Geval("where letters begin", QPoint(15, 9), qRgb(0, 0, 0), false);
        Geval("at the foot", QPoint(15, 29), qRgb(0, 0, 0), false);
    }
    void onlyTheMiddleLineDecides()
    {
        QFETCH(QPoint, pixel);
        QFETCH(QRgb, kleur);
        QFETCH(bool, vol);
        Letters = u"M"_s;
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        for (int kolom = 0; kolom < 9; ++kolom)
            for (int rij = 0; rij < 9; ++rij)
                bord.Venster.Pic->SetPixel(kolom * 30 + pixel.x(), rij * 30 + pixel.y(), kleur);
        VulLegeVakjes();
        QCOMPARE(Stappen.count(u"Rnd"_s), vol ? 0 : 81);
    }

    void eachLetterBeginsANewSeries()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 10);
        VulKlok klok;
        Klok::Gebruik(&klok);
        VulLegeVakjes();
        QStringList verwacht;
        for (int cel = 0; cel < 90; ++cel)
            verwacht += {u"Randomize"_s, u"Rnd"_s, u"0.01 s"_s};
        QCOMPARE(Stappen, verwacht);
    }

    void aFilledCellTakesItsTimeToo()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        VulLegeVakjes();
        bord.Klik(Qt::RightButton, 0, 1);
        bord.Klik(Qt::RightButton, 0, 1); // one cell is empty again
        VulKlok klok;
        Klok::Gebruik(&klok);
        Stappen.clear();
        VulLegeVakjes();
        QStringList verwacht(81, u"0.01 s"_s);
        verwacht.insert(1, u"Randomize"_s);
        verwacht.insert(2, u"Rnd"_s);
        QCOMPARE(Stappen, verwacht);
    }

    void theFillCanBeSeenAsItRuns()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        VulKlok klok;
        Klok::Gebruik(&klok);
        VulLegeVakjes();
        QVERIFY(klok.Zandloper);
        QVERIFY(klok.InTwips);
        QCOMPARE(klok.Welke, QEventLoop::AllEvents);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void theFillEndsWhenAnotherBoardAppears_data()
    {
        QTest::addColumn<int>("cel"); // after which it appears
        Geval("in a column", 4);
        Geval("at the end of a column", 9);
        Geval("after the last cell", 81);
    }
    void theFillEndsWhenAnotherBoardAppears()
    {
        QFETCH(int, cel);
        Bord bord;
        bord.Begin(Zweeds, 12, 14);
        const QImage ander = bord.Pic();
        bord.Begin(Woordzoeker, 9, 9);
        int gevuld = 0;
        KijkKlok klok([&] {
            if (++gevuld == cel)
                bord.Begin(Zweeds, 12, 14);
        });
        VulLegeVakjes();
        QCOMPARE(gevuld, cel);
        QCOMPARE(Verschil(bord.Pic(), ander), QString());
        QVERIFY(!QGuiApplication::overrideCursor());
    }
};

RASTER_TEST(tst_Opvullen)
#include "tst_Opvullen.moc"
