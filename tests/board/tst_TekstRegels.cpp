#include "board/TekstRegels.h"
#include "platform/Canvas.h"
#include "platform/TextBox.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

class tst_TekstRegels : public QObject
{
    Q_OBJECT
private slots:
    void theLinesOfABox_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QStringList>("regels"); // without the one that stays empty behind them
        Geval("empty", "", QStringList{""});
        Geval("one", "spin", QStringList{"spin"});
        Geval("hard break", "een\r\ntwee", QStringList{"een", "twee"});
        Geval("empty lines stay", "\r\n\r\nomlaag", QStringList{"", "", "omlaag"});
        Geval("break at the end", "slot\r\n", QStringList{"slot", ""});
        Geval("two breaks at the end", "slot\r\n\r\n", QStringList{"slot", "", ""});
        Geval("soft wrap", "hoeveelheid medicijn", QStringList{"hoeveelheid ", "medicijn"});
        Geval("soft and hard", "hoeveelheid medicijn\r\nx", QStringList{"hoeveelheid ", "medicijn", "x"});
        Geval("line feed only", "een\ntwee", QStringList{"een", "twee"});
    }
    void theLinesOfABox()
    {
        QFETCH(QString, tekst);
        QFETCH(QStringList, regels);
        QWidget venster;
        TextBox box(&venster);
        box.setFont(Lettertype(u"Arial"_s, 12, true));
        box.resize(123, 123);
        box.SetText(tekst);
        QStringList gevonden(9, u"oud"_s); // of an earlier box
        QCOMPARE(TekstRegels(box, gevonden), regels.size());
        regels += QString();
        QCOMPARE(gevonden, regels);
    }

    void aWordWithoutBlanksIsBroken()
    {
        QWidget venster;
        TextBox box(&venster);
        box.setFont(Lettertype(u"Arial"_s, 12, true));
        box.resize(123, 123);
        box.SetText(QString(40, u'm'));
        QStringList regels;
        const int n = TekstRegels(box, regels);
        QVERIFY(n >= 5);
        QCOMPARE(regels.join(QString()), QString(40, u'm'));
    }

    void tenThousandCharactersComeBackWhole()
    {
        QWidget venster;
        TextBox box(&venster);
        box.setFont(Lettertype(u"Arial"_s, 12, true));
        box.resize(123, 123);
        const QString tekst = u"raadsel "_s.repeated(1250);
        box.SetText(tekst);
        QStringList regels;
        const int n = TekstRegels(box, regels);
        QCOMPARE(regels.size(), n + 1);
        QCOMPARE(regels.join(QString()), tekst);
    }
};

RASTER_TEST(tst_TekstRegels)
#include "tst_TekstRegels.moc"
