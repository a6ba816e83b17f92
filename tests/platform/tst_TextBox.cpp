#include "platform/OmschrijvingBox.h"
#include "support/Testbank.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

class tst_TextBox : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void linesAreCounted_data();
    void linesAreCounted();
    void aLineEndIsTwoCharacters();
    void everyLineEndIsMadeTheSame_data();
    void everyLineEndIsMadeTheSame();
    void aHardSpaceStays();
    void anIndexOutsideTheTextIsTheNearestOne();
    void aTextWrapsBetweenWordsAtTheWidth();
    void aLongWordIsBroken();
    void wrappedAndEndedLinesCountOn();
    void theWidthDecidesWhereTheTextWraps();
    void theFontDecidesWhereTheTextWraps();
    void typedTextIsLikeSetText_data();
    void typedTextIsLikeSetText();
    void aLineEndWithinAParagraphIsALineEnd();
    void aTextIsAsWideAsTheBoxLeavesIt();
    void aBoxThatIsShownWrapsLikeOneThatIsNot();
    void aLongTextIsToldToo();
    void everyParagraphIsWrapped();
    void aChangedTextIsToldAnew();
    void theTextIsPlain();
    void theTabKeyDoesNotType();
    void whatStandsThereAlreadyIsNoChange_data();
    void whatStandsThereAlreadyIsNoChange();
    void readingTheLinesLaysNothingOutAgain();
    void aHigherBoxHasLessToScroll();
};

static QString LangeTekst()
{
    return u"Deze omschrijving is veel te lang voor zo'n klein vakje en loopt dus over vele regels door"_s;
}

/// The text as the box displays it, line by line.
static QStringList Regels(TextBox &box)
{
    QStringList regels;
    const QString tekst = box.Text();
    for (qsizetype i = 0; i < tekst.size(); ++i) {
        while (regels.size() <= box.LineFromChar(i))
            regels += QString();
        regels.last() += tekst[i];
    }
    return regels;
}

static QList<int> RegelPerTeken(TextBox &box)
{
    QList<int> regels;
    const qsizetype lengte = box.Text().size();
    for (qsizetype i = 0; i <= lengte; ++i)
        regels += box.LineFromChar(i);
    return regels;
}

void tst_TextBox::linesAreCounted_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<int>("aantal");
    Geval("empty", QString(), 1);
    Geval("one line", u"a"_s, 1);
    Geval("a line end", u"\r\n"_s, 2);
    Geval("a line end behind", u"a\r\n"_s, 2);
    Geval("a line end before", u"\r\na"_s, 2);
    Geval("two lines", u"a\r\nb"_s, 2);
    Geval("an empty line between", u"a\r\n\r\nb"_s, 3);
    Geval("a blank", u" "_s, 1);
}

void tst_TextBox::linesAreCounted()
{
    QFETCH(QString, tekst);
    QFETCH(int, aantal);
    OmschrijvingBox box;
    box.SetText(tekst);
    QCOMPARE(box.LineCount(), aantal);
    QCOMPARE(box.Text(), tekst);
    QCOMPARE(box.LineFromChar(0), 0);
    QCOMPARE(box.LineFromChar(tekst.size()), aantal - 1);
}

void tst_TextBox::aLineEndIsTwoCharacters()
{
    OmschrijvingBox box;
    box.SetText(u"ab\r\nc\r\n\r\nd"_s);
    QCOMPARE(RegelPerTeken(box), (QList{0, 0, 0, 0, 1, 1, 1, 2, 2, 3, 3}));
}

void tst_TextBox::everyLineEndIsMadeTheSame_data()
{
    QTest::addColumn<QString>("tekst");
    Geval("both", u"a\r\nb\r\n"_s);
    Geval("line feed", u"a\nb\n"_s);
    Geval("carriage return", u"a\rb\r"_s);
}

void tst_TextBox::everyLineEndIsMadeTheSame()
{
    QFETCH(QString, tekst);
    OmschrijvingBox box;
    box.SetText(tekst);
    QCOMPARE(box.Text(), u"a\r\nb\r\n"_s);
    QCOMPARE(box.LineCount(), 3);
}

void tst_TextBox::aHardSpaceStays()
{
    OmschrijvingBox box;
    box.SetText(u"de\u00A0hond\r\n\u00A0"_s);
    QCOMPARE(box.Text(), u"de\u00A0hond\r\n\u00A0"_s);
    const QSignalSpy veranderd(&box, &QTextEdit::textChanged);
    box.SetText(box.Text());
    QCOMPARE(veranderd.size(), 0);
}

void tst_TextBox::anIndexOutsideTheTextIsTheNearestOne()
{
    OmschrijvingBox box;
    box.SetText(u"a\r\nb"_s);
    QCOMPARE(box.LineFromChar(-1), 0);
    QCOMPARE(box.LineFromChar(-1000000), 0);
    QCOMPARE(box.LineFromChar(5), 1);
    QCOMPARE(box.LineFromChar(1000000), 1);
    QCOMPARE(OmschrijvingBox().LineFromChar(3), 0);
}

void tst_TextBox::aTextWrapsBetweenWordsAtTheWidth()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    const QFontMetricsF maten(box.font());
    const QStringList regels = Regels(box);
    QCOMPARE(regels.size(), box.LineCount());
    QVERIFY(regels.size() > 5);
    QCOMPARE(regels.join(QString()), LangeTekst());
    for (int i = 0; i < regels.size(); ++i) {
        QVERIFY2(maten.horizontalAdvance(regels[i].trimmed()) <= box.Regelbreedte(), qPrintable(regels[i]));
        if (i + 1 == regels.size())
            break;
        QVERIFY2(regels[i].endsWith(u' '), qPrintable(regels[i]));
        // A line ends where the next word would not have fitted on it any more.
        const QString metVolgende = regels[i] + regels[i + 1].section(u' ', 0, 0);
        QVERIFY2(maten.horizontalAdvance(metVolgende) > box.Regelbreedte(), qPrintable(metVolgende));
    }
}

void tst_TextBox::aLongWordIsBroken()
{
    OmschrijvingBox box;
    const QString woord(60, u'w');
    box.SetText(woord);
    const QFontMetricsF maten(box.font());
    const QStringList regels = Regels(box);
    QCOMPARE(regels.size(), box.LineCount());
    QVERIFY(regels.size() > 3);
    QCOMPARE(regels.join(QString()), woord);
    for (int i = 0; i < regels.size(); ++i) {
        QVERIFY(maten.horizontalAdvance(regels[i]) <= box.Regelbreedte());
        if (i + 1 < regels.size())
            QVERIFY(maten.horizontalAdvance(regels[i] + u'w') > box.Regelbreedte());
    }
}

void tst_TextBox::wrappedAndEndedLinesCountOn()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    const int regels = box.LineCount();
    box.SetText(u"a\r\n"_s + LangeTekst() + u"\r\nb"_s);
    QCOMPARE(box.LineCount(), regels + 2);
    QCOMPARE(box.LineFromChar(3), 1);
    QCOMPARE(box.LineFromChar(3 + LangeTekst().size() - 1), regels);
    QCOMPARE(box.LineFromChar(3 + LangeTekst().size() + 1), regels);
    QCOMPARE(box.LineFromChar(3 + LangeTekst().size() + 2), regels + 1);
}

void tst_TextBox::theWidthDecidesWhereTheTextWraps()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    const int smal = box.LineCount();
    box.resize(246, 60);
    QVERIFY(box.LineCount() < smal);
    box.resize(3000, 60);
    QCOMPARE(box.LineCount(), 1);
    box.resize(123, 20);
    QCOMPARE(box.LineCount(), smal);
}

void tst_TextBox::theFontDecidesWhereTheTextWraps()
{
    OmschrijvingBox box, kleineBox;
    box.SetText(LangeTekst());
    const int groot = box.LineCount();
    const QFont klein = Lettertype(u"Arial"_s, 8.25, false);
    kleineBox.setFont(klein);
    kleineBox.SetText(LangeTekst());
    QVERIFY(kleineBox.LineCount() < groot);
    box.setFont(klein);
    QCOMPARE(RegelPerTeken(box), RegelPerTeken(kleineBox));
}

void tst_TextBox::typedTextIsLikeSetText_data()
{
    QTest::addColumn<QString>("tekst");
    Geval("wrapped", LangeTekst());
    Geval("ended", u"aap\r\n\r\nnoot\r\n"_s);
    Geval("both", LangeTekst() + u"\r\n"_s + LangeTekst());
    Geval("long word", QString(40, u'm'));
    Geval("many blanks", u"aap                                        noot"_s);
}

void tst_TextBox::typedTextIsLikeSetText()
{
    QFETCH(QString, tekst);
    OmschrijvingBox gezet, getypt;
    gezet.SetText(tekst);
    for (const QChar c : tekst) {
        if (c == u'\r')
            QTest::keyClick(&getypt, Qt::Key_Return);
        else if (c != u'\n')
            QTest::keyClick(&getypt, c.toLatin1());
    }
    QCOMPARE(getypt.Text(), tekst);
    QCOMPARE(getypt.LineCount(), gezet.LineCount());
    QCOMPARE(RegelPerTeken(getypt), RegelPerTeken(gezet));
    QVERIFY(gezet.LineCount() > 1);
}

void tst_TextBox::aLineEndWithinAParagraphIsALineEnd()
{
    OmschrijvingBox box;
    QTest::keyClick(&box, 'a');
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(box.Text(), u"a\r\n"_s);
    QCOMPARE(RegelPerTeken(box), (QList{0, 0, 0, 1}));
    QTest::keyClick(&box, 'b');
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClick(&box, 'c');
    QCOMPARE(box.Text(), u"a\r\nb\r\nc"_s);
    QCOMPARE(RegelPerTeken(box), (QList{0, 0, 0, 1, 1, 1, 2, 2}));
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(RegelPerTeken(box), (QList{0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 4}));
}

void tst_TextBox::aTextIsAsWideAsTheBoxLeavesIt()
{
    OmschrijvingBox box;
    box.resize(123, 100);
    QCOMPARE(box.LineCount(), 1);
    QCOMPARE(box.lineWrapMode(), QTextEdit::FixedPixelWidth);
    QCOMPARE(box.horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(box.verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(box.lineWrapColumnOrWidth(), 121); // within its frame
    QCOMPARE(box.document()->documentMargin(), 2);
    box.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QCOMPARE(box.LineCount(), 1);
    QCOMPARE(box.lineWrapColumnOrWidth(), 121 - box.verticalScrollBar()->sizeHint().width());
}

void tst_TextBox::aBoxThatIsShownWrapsLikeOneThatIsNot()
{
    QWidget venster;
    venster.resize(300, 200);
    OmschrijvingBox getoond(&venster), eerder(&venster), verborgen;
    eerder.SetText(LangeTekst());
    venster.show();
    QVERIFY(QTest::qWaitForWindowExposed(&venster));
    getoond.SetText(LangeTekst());
    verborgen.SetText(LangeTekst());
    QVERIFY(verborgen.LineCount() > 5);
    QCOMPARE(RegelPerTeken(getoond), RegelPerTeken(verborgen));
    QCOMPARE(RegelPerTeken(eerder), RegelPerTeken(verborgen));
}

void tst_TextBox::aLongTextIsToldToo()
{
    OmschrijvingBox box;
    QString tekst;
    while (tekst.size() < 10000)
        tekst += u"woord %1 "_s.arg(tekst.size());
    tekst.truncate(10000);
    box.SetText(tekst);
    const QList<int> regels = RegelPerTeken(box);
    QCOMPARE(regels.size(), 10001);
    QCOMPARE(regels.first(), 0);
    QCOMPARE(regels.last(), box.LineCount() - 1);
    QVERIFY(box.LineCount() > 500);
    for (int i = 1; i < regels.size(); ++i)
        QVERIFY(regels[i] == regels[i - 1] || regels[i] == regels[i - 1] + 1);
}

void tst_TextBox::everyParagraphIsWrapped()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    const int regels = box.LineCount();
    box.show();
    box.SetText((LangeTekst() + u"\r\n"_s).repeated(200));
    QCOMPARE(box.LineCount(), 200 * regels + 1);
}

void tst_TextBox::aChangedTextIsToldAnew()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    QVERIFY(box.LineCount() > 1);
    box.SetText(u"a"_s);
    QCOMPARE(box.LineCount(), 1);
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.LineCount(), 2);
    box.clear();
    QCOMPARE(box.LineCount(), 1);
    QCOMPARE(box.Text(), QString());
    box.SetText(QString(20, u'i'));
    QCOMPARE(box.LineCount(), 1);
    box.SetText(QString(20, u'W')); // as many letters, and wider ones
    QVERIFY(box.LineCount() > 1);
}

void tst_TextBox::theTextIsPlain()
{
    OmschrijvingBox box;
    box.SetText(u"<b>a</b> & b"_s);
    QCOMPARE(box.Text(), u"<b>a</b> & b"_s);
}

void tst_TextBox::theTabKeyDoesNotType()
{
    QWidget venster;
    OmschrijvingBox eerste(&venster), tweede(&venster);
    venster.show();
    venster.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&venster));
    eerste.setFocus();
    QTest::keyClick(&eerste, 'a');
    QTest::keyClick(&eerste, Qt::Key_Tab);
    QCOMPARE(eerste.Text(), u"a"_s);
    QVERIFY(tweede.hasFocus());
}

void tst_TextBox::whatStandsThereAlreadyIsNoChange_data()
{
    QTest::addColumn<QString>("tekst");
    Geval("one line", u"aap"_s);
    Geval("two lines", u"aap\r\nnoot"_s);
    Geval("line feed", u"aap\nnoot"_s);
}

void tst_TextBox::whatStandsThereAlreadyIsNoChange()
{
    QFETCH(QString, tekst);
    OmschrijvingBox box;
    box.SetText(tekst);
    const QSignalSpy veranderd(&box, &QTextEdit::textChanged);
    box.SetText(tekst);
    QCOMPARE(veranderd.size(), 0);
    box.SetText(u"x"_s);
    QVERIFY(veranderd.size() > 0);
}

// A long word takes a tenth of a second to lay out.
void tst_TextBox::readingTheLinesLaysNothingOutAgain()
{
    OmschrijvingBox box;
    box.SetText(LangeTekst());
    box.LineCount();
    const QSignalSpy opmaak(box.document()->documentLayout(), &QAbstractTextDocumentLayout::update);
    QTest::keyClick(&box, 'a');
    const auto doorDeToets = opmaak.size();
    QVERIFY(doorDeToets > 0);
    QVERIFY(box.LineCount() > 1);
    QCOMPARE(box.LineFromChar(0), 0);
    QCOMPARE(opmaak.size(), doorDeToets);
}

void tst_TextBox::aHigherBoxHasLessToScroll()
{
    OmschrijvingBox box;
    box.SetText(u"a\r\n"_s.repeated(50));
    box.show();
    const int teRollen = box.verticalScrollBar()->maximum();
    QVERIFY(teRollen > 240);
    box.resize(123, 60 + 240);
    QCOMPARE(box.verticalScrollBar()->maximum(), teRollen - 240);
}

RASTER_TEST(tst_TextBox)
#include "tst_TextBox.moc"
