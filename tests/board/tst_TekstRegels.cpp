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
        QTest::newRow("empty") << "" << QStringList{""};
        QTest::newRow("one") << "spin" << QStringList{"spin"};
        QTest::newRow("hard break") << "een\r\ntwee" << QStringList{"een", "twee"};
        QTest::newRow("empty lines stay") << "\r\n\r\nomlaag" << QStringList{"", "", "omlaag"};
        QTest::newRow("break at the end") << "slot\r\n" << QStringList{"slot", ""};
        QTest::newRow("two breaks at the end") << "slot\r\n\r\n" << QStringList{"slot", "", ""};
        QTest::newRow("soft wrap") << "hoeveelheid medicijn" << QStringList{"hoeveelheid ", "medicijn"};
        QTest::newRow("soft and hard") << "hoeveelheid medicijn\r\nx" << QStringList{"hoeveelheid ", "medicijn", "x"};
        QTest::newRow("line feed only") << "een\ntwee" << QStringList{"een", "twee"};
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
        QStringList gevonden;
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
