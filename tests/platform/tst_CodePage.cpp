#include "platform/CodePage.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

class tst_CodePage : public QObject
{
    Q_OBJECT

private slots:
    void textIsCodePage1252_data();
    void textIsCodePage1252();
    void aCharacterOutsideTheCodePageBecomesAQuestionMark();
    void everyByteGivesOneCharacter();
    void whatIsInTheCodePage();
};

void tst_CodePage::textIsCodePage1252_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<QByteArray>("bytes");
    Geval("empty", QString(), QByteArray());
    Geval("plain", u"Zweeds 12!"_s, QByteArray("Zweeds 12!"));
    Geval("registered", u"a\u00AEb"_s,
          QByteArray("a\xAE"
                     "b"));
    Geval("euro", u"\u20AC"_s, QByteArray("\x80"));
    Geval("e with dots", u"geti\u00EBnd"_s, QByteArray("geti\xEBnd"));
    Geval("curly quotes", u"\u201Eja\u201D"_s, QByteArray("\x84ja\x94"));
    Geval("line end and tab", u"a\r\n\tb"_s, QByteArray("a\r\n\tb"));
}

void tst_CodePage::textIsCodePage1252()
{
    QFETCH(QString, tekst);
    QFETCH(QByteArray, bytes);
    QCOMPARE(Files::NaarBytes(tekst), bytes);
    QCOMPARE(Files::NaarTekst(bytes), tekst);
}

void tst_CodePage::aCharacterOutsideTheCodePageBecomesAQuestionMark()
{
    QCOMPARE(Files::NaarBytes(u"a\u0142b"_s), QByteArray("a?b"));
    QCOMPARE(Files::NaarBytes(u"\u03A9\u4E2D"_s), QByteArray("??"));
}

void tst_CodePage::everyByteGivesOneCharacter()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes += static_cast<char>(i);
    const QString tekst = Files::NaarTekst(bytes);
    QCOMPARE(tekst.size(), 256);
    for (int i = 0; i < 128; ++i)
        QCOMPARE(tekst[i].unicode(), char16_t(i));
    for (int i = 160; i < 256; ++i)
        QCOMPARE(tekst[i].unicode(), char16_t(i));
    QCOMPARE(Files::NaarBytes(tekst), bytes);
}

void tst_CodePage::whatIsInTheCodePage()
{
    for (const QChar c : u"aZ \u00E9\u20AC\u0178\u0152"_s)
        QVERIFY(Files::InCodePage(c));
    for (const QChar c : u"\u0142\u03BC\u1E9E\uFFFD"_s)
        QVERIFY(!Files::InCodePage(c));
}

RASTER_TEST(tst_CodePage)
#include "tst_CodePage.moc"
