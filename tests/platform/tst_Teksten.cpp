#include "platform/CodePage.h"
#include "platform/Teksten.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

class TestTeksten : public QObject
{
    Q_OBJECT

private slots:
    void trimTakesBlanksOffBothEnds_data();
    void trimTakesBlanksOffBothEnds();
    void caseIsOfTheCodePage_data();
    void caseIsOfTheCodePage();
    void noOtherLetterOfTheCodePageHasAPartner();
    void aLetterOutsideTheCodePageStays();
    void aTextKeepsItsLength();
};

void TestTeksten::trimTakesBlanksOffBothEnds_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<QString>("verwacht");
    QTest::newRow("empty") << u""_s << u""_s;
    QTest::newRow("one blank") << u" "_s << u""_s;
    QTest::newRow("blanks") << u"    "_s << u""_s;
    QTest::newRow("nothing to take") << u"aap"_s << u"aap"_s;
    QTest::newRow("in front") << u"  aap"_s << u"aap"_s;
    QTest::newRow("behind") << u"aap  "_s << u"aap"_s;
    QTest::newRow("inside they stay") << u" aap  noot "_s << u"aap  noot"_s;
    QTest::newRow("tab") << u" \taap\t "_s << u"\taap\t"_s;
    QTest::newRow("hard space") << u"\u00A0aap\u00A0"_s << u"\u00A0aap\u00A0"_s;
    QTest::newRow("line end") << u" aap\r\n"_s << u"aap\r\n"_s;
    QTest::newRow("em space") << u"\u2003"_s << u"\u2003"_s;
    QTest::newRow("zero") << QString(QChar(0)) << QString(QChar(0));
}

void TestTeksten::trimTakesBlanksOffBothEnds()
{
    QFETCH(QString, tekst);
    QFETCH(QString, verwacht);
    QCOMPARE(Trim(tekst), verwacht);
}

void TestTeksten::caseIsOfTheCodePage_data()
{
    QTest::addColumn<QString>("klein");
    QTest::addColumn<QString>("groot");
    QTest::newRow("letters") << u"abcdefghijklmnopqrstuvwxyz"_s << u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s;
    QTest::newRow("accents") << u"àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"_s << u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ"_s;
    QTest::newRow("letters from 128 to 159") << u"šœžÿ"_s << u"ŠŒŽŸ"_s;
}

void TestTeksten::caseIsOfTheCodePage()
{
    QFETCH(QString, klein);
    QFETCH(QString, groot);
    QCOMPARE(Hoofdletters(klein), groot);
    QCOMPARE(Hoofdletters(groot), groot);
    QCOMPARE(KleineLetters(groot), klein);
    QCOMPARE(KleineLetters(klein), klein);
}

void TestTeksten::noOtherLetterOfTheCodePageHasAPartner()
{
    QByteArray bytes;
    for (int code = 0; code < 256; ++code)
        bytes += static_cast<char>(code);
    const QString alle = Files::NaarTekst(bytes);
    QString zonder;
    for (const QChar c : alle) {
        QCOMPARE(KleineLetters(Hoofdletters(c)), KleineLetters(c));
        if (c.isLetter() && Hoofdletters(c) == KleineLetters(c))
            zonder += c;
    }
    QCOMPARE(zonder, u"ƒˆªµºß"_s);
}

void TestTeksten::aLetterOutsideTheCodePageStays()
{
    const QString tekst =
        u"łŁŐőıİſμΜẞжЖĳĲ"_s + QChar(0x212A); // the last is the Kelvin sign, with "k" as its small letter
    QCOMPARE(Hoofdletters(tekst), tekst);
    QCOMPARE(KleineLetters(tekst), tekst);
}

void TestTeksten::aTextKeepsItsLength()
{
    const QString tekst = u"stra\u00DFe \U0001F600 \uFB01 "_s + QChar(0xD800);
    QCOMPARE(Hoofdletters(tekst).size(), tekst.size());
    QCOMPARE(KleineLetters(tekst).size(), tekst.size());
    QCOMPARE(Hoofdletters(tekst), u"STRA\u00DFE \U0001F600 \uFB01 "_s + QChar(0xD800));
}

RASTER_TEST(TestTeksten)
#include "tst_Teksten.moc"
