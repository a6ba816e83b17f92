#include "platform/CodePage.h"
#include "platform/Teksten.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

class tst_Teksten : public QObject
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
    void bytesAreThoseOfTheText();
    void bytesThatAreHeldElsewhereStay();
};

void tst_Teksten::trimTakesBlanksOffBothEnds_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<QString>("verwacht");
    Geval("empty", u""_s, u""_s);
    Geval("one blank", u" "_s, u""_s);
    Geval("blanks", u"    "_s, u""_s);
    Geval("nothing to take", u"aap"_s, u"aap"_s);
    Geval("in front", u"  aap"_s, u"aap"_s);
    Geval("behind", u"aap  "_s, u"aap"_s);
    Geval("inside they stay", u" aap  noot "_s, u"aap  noot"_s);
    Geval("tab", u" \taap\t "_s, u"\taap\t"_s);
    Geval("hard space", u"\u00A0aap\u00A0"_s, u"\u00A0aap\u00A0"_s);
    Geval("line end", u" aap\r\n"_s, u"aap\r\n"_s);
    Geval("em space", u"\u2003"_s, u"\u2003"_s);
    Geval("zero", QString(QChar(0)), QString(QChar(0)));
}

void tst_Teksten::trimTakesBlanksOffBothEnds()
{
    QFETCH(QString, tekst);
    QFETCH(QString, verwacht);
    QCOMPARE(Trim(tekst), verwacht);
}

void tst_Teksten::caseIsOfTheCodePage_data()
{
    QTest::addColumn<QString>("klein");
    QTest::addColumn<QString>("groot");
    Geval("letters", u"abcdefghijklmnopqrstuvwxyz"_s, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s);
    Geval("accents", u"àáâãäåæçèéêëìíîïðñòóôõöøùúûüýþ"_s, u"ÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞ"_s);
    Geval("letters from 128 to 159", u"šœžÿ"_s, u"ŠŒŽŸ"_s);
}

void tst_Teksten::caseIsOfTheCodePage()
{
    QFETCH(QString, klein);
    QFETCH(QString, groot);
    QCOMPARE(Hoofdletters(klein), groot);
    QCOMPARE(Hoofdletters(groot), groot);
    QCOMPARE(KleineLetters(groot), klein);
    QCOMPARE(KleineLetters(klein), klein);
}

void tst_Teksten::noOtherLetterOfTheCodePageHasAPartner()
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

void tst_Teksten::aLetterOutsideTheCodePageStays()
{
    const QString tekst =
        u"łŁŐőıİſμΜẞжЖĳĲ"_s + QChar(0x212A); // the last is the Kelvin sign, with "k" as its small letter
    QCOMPARE(Hoofdletters(tekst), tekst);
    QCOMPARE(KleineLetters(tekst), tekst);
}

void tst_Teksten::aTextKeepsItsLength()
{
    const QString tekst = u"stra\u00DFe \U0001F600 \uFB01 "_s + QChar(0xD800);
    QCOMPARE(Hoofdletters(tekst).size(), tekst.size());
    QCOMPARE(KleineLetters(tekst).size(), tekst.size());
    QCOMPARE(Hoofdletters(tekst), u"STRA\u00DFE \U0001F600 \uFB01 "_s + QChar(0xD800));
}

void tst_Teksten::bytesAreThoseOfTheText()
{
    QByteArray alle;
    for (int code = 0; code < 256; ++code)
        alle += static_cast<char>(code);
    QCOMPARE(Hoofdletters(alle), Files::NaarBytes(Hoofdletters(Files::NaarTekst(alle))));
    QCOMPARE(KleineLetters(alle), Files::NaarBytes(KleineLetters(Files::NaarTekst(alle))));
    for (int plaats = 0; plaats < 11; ++plaats)
        for (const char teken : std::as_const(alle)) {
            QByteArray bytes(11, 'a');
            bytes[plaats] = teken;
            QCOMPARE(Hoofdletters(bytes), Files::NaarBytes(Hoofdletters(Files::NaarTekst(bytes))));
            QCOMPARE(KleineLetters(bytes), Files::NaarBytes(KleineLetters(Files::NaarTekst(bytes))));
        }
    QCOMPARE(Hoofdletters("aB1\xE9\xFF\xDF"_ba), QByteArray("AB1\xC9\x9F\xDF"));
    QCOMPARE(KleineLetters("aB1\xC9\x9F\xDF"_ba), QByteArray("ab1\xE9\xFF\xDF"));
    QCOMPARE(Hoofdletters(QByteArray()), QByteArray());
}

void tst_Teksten::bytesThatAreHeldElsewhereStay()
{
    const QByteArray bytes("aap"), vast = QByteArray::fromRawData("noot", 4);
    QCOMPARE(Hoofdletters(bytes), QByteArray("AAP"));
    QCOMPARE(bytes, QByteArray("aap"));
    QCOMPARE(Hoofdletters(vast), QByteArray("NOOT"));
    QCOMPARE(vast, QByteArray("noot"));
}

RASTER_TEST(tst_Teksten)
#include "tst_Teksten.moc"
