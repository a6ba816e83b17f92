#include "board/Opvullen.h"
#include "platform/Toeval.h"
#include "support/Bord.h"

#include <QGuiApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

/// Sees the pointer while the fill waits.
class ZandloperKlok : public DirecteKlok
{
public:
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        const QCursor *pointer = QGuiApplication::overrideCursor();
        Zandloper = pointer && pointer->shape() == Qt::WaitCursor;
        Welke = welke;
        DirecteKlok::Slaap(seconden, welke);
    }
    bool Zandloper = false;
    QEventLoop::ProcessEventsFlags Welke;
};

class tst_Opvullen : public QObject
{
    Q_OBJECT
private slots:
    void everyEmptyCellGetsALetter()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 16, 19);
        const QImage groot = bord.Groot();
        Toeval::Zaad(1);
        VulLegeVakjes();
        const QImage pic = bord.Pic();
        for (int kolom = 0; kolom < 16; ++kolom)
            for (int rij = 0; rij < 19; ++rij)
                QVERIFY(HeeftInkt(pic, Binnen(kolom, rij)));
        QVERIFY(bord.Groot() == groot);
        QVERIFY(!PuzzelGewijzigd);
        QVERIFY(bord.Venster.Pic->ScaleMode() == ScaleModes::Twips);
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void aSecondFillChangesNothing()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 16, 19);
        for (quint32 zaad = 0; zaad < 5; ++zaad) {
            Toeval::Zaad(zaad);
            TekenRaster(16, 19);
            VulLegeVakjes();
            const QImage eens = bord.Pic();
            VulLegeVakjes();
            QVERIFY(bord.Pic() == eens);
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

    void onlyTheMiddleLineDecides()
    {
        Bord bord;
        bord.Begin(Woordzoeker, 9, 9);
        PictureBox &pic = *bord.Venster.Pic;
        pic.SetPixel(30 + 6, 15, qRgb(254, 255, 255)); // first pixel of the line in cell B-01: filled
        pic.SetPixel(60 + 23, 15, qRgb(0, 0, 0));      // last one in C-01: filled
        pic.SetPixel(90 + 5, 15, qRgb(0, 0, 0));       // one before it in D-01: empty
        pic.SetPixel(120 + 24, 15, qRgb(0, 0, 0));     // one behind it in E-01: empty
        pic.SetPixel(150 + 15, 14, qRgb(0, 0, 0));     // another line in F-01: empty
        VulLegeVakjes();
        const QImage beeld = bord.Pic();
        const auto inktInCel = [&](int kolom) { return InktVlak(beeld, Binnen(kolom, 0)).width() > 3; };
        QVERIFY(!inktInCel(1));
        QVERIFY(!inktInCel(2));
        QVERIFY(inktInCel(3));
        QVERIFY(inktInCel(4));
        QVERIFY(inktInCel(5));
    }

    void wideAndNarrowLettersAreMoved()
    {
        // Of each letter, the first that the series gives: its ink against the same letter printed without moving.
        Bord bord;
        bord.Begin(Woordzoeker, 16, 19);
        Toeval::Zaad(4);
        VulLegeVakjes();
        const QImage pic = bord.Pic();
        Toeval::Zaad(4);
        QStringList gezien;
        for (int kolom = 0; kolom < 16; ++kolom)
            for (int rij = 0; rij < 19; ++rij) {
                const QString letter(QChar(65 + static_cast<int>(Toeval::Rnd() * 26)));
                const int verschuiving = letter == "W"_L1 ? -3 : letter == "I"_L1 ? 4 : 0;
                const QImage los =
                    Gedrukt({31, 31}, letter, 11 + verschuiving, 7, u"Arial"_s, 12, true, qRgb(80, 80, 80));
                QVERIFY(pic.copy(Binnen(kolom, rij)) == los.copy(QRect(1, 1, 29, 29)));
                gezien += letter;
            }
        QVERIFY(gezien.contains(u"W"_s) && gezien.contains(u"I"_s));
    }

    void theFillCanBeSeenAsItRuns()
    {
        Bord bord;
        ZandloperKlok klok;
        Klok::Gebruik(&klok);
        bord.Begin(Woordzoeker, 9, 10);
        VulLegeVakjes();
        QVERIFY(qAbs(klok.Gewacht() - 0.01 * 90) < 1e-6);
        QVERIFY(klok.Zandloper);
        QCOMPARE(klok.Welke, QEventLoop::ExcludeUserInputEvents);
    }
};

RASTER_TEST(tst_Opvullen)
#include "tst_Opvullen.moc"
