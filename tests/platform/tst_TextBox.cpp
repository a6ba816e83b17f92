#include "platform/Canvas.h"
#include "platform/TextBox.h"
#include "support/Testbank.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

/// A box of 123 pixels with the letters of a clue.
class OmschrijvingBox : public TextBox
{
public:
    explicit OmschrijvingBox(QWidget *ouder = nullptr) : TextBox(ouder)
    {
        setFont(Lettertype(u"Arial"_s, 12, true));
        resize(123, 60);
    }
    /// The width that a line of text has for itself.
    double Regelbreedte() const { return width() - 2 * frameWidth() - 2 * document()->documentMargin(); }
};

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
    void anIndexOutsideTheTextIsTheNearestOne();
    void aTextWrapsBetweenWordsAtTheWidth();
    void aLongWordIsBroken();
    void wrappedAndEndedLinesCountOn();
    void theWidthDecidesWhereTheTextWraps();
    void theFontDecidesWhereTheTextWraps();
    void typedTextIsLikeSetText_data();
    void typedTextIsLikeSetText();
    void aLineEndWithinAParagraphIsALineEnd();
    void aBoxThatIsShownWrapsLikeOneThatIsNot();
    void aLongTextIsToldToo();
    void everyParagraphIsWrapped();
    void aChangedTextIsToldAnew();
    void theTextIsPlain();
    void pastedTextIsPlain();
    void theTabKeyDoesNotType();
    void whatStandsThereAlreadyIsNoChange_data();
    void whatStandsThereAlreadyIsNoChange();
    void readingTheLinesLaysNothingOutAgain();

    void whereThereIsNoTextNothingIsInserted_data();
    void whereThereIsNoTextNothingIsInserted();
    void droppedTextIsInsertedWhereItFalls();
    void insertedTextTakesThePlaceOfTheSelection();
    void theCaretBehindAnInsertedTextIsInSight();
    void noMoreThanTheMostCharactersAreInserted_data();
    void noMoreThanTheMostCharactersAreInserted();
    void aTextOfMegabytesIsCutOff();
    void noMoreThanTheMostCharactersAreSet();
    void noMoreThanTheMostCharactersAreTyped_data();
    void noMoreThanTheMostCharactersAreTyped();
    void aLineEndWithinAParagraphCountsAsTwo();
    void inAFullBoxOtherKeysWork();
    void inAFullBoxTheSelectionCanBeTypedOver();
    void anInputMethodGivesNoMoreThanTheMostCharacters();
};

static QString LangeTekst()
{
    return u"Deze omschrijving is veel te lang voor zo'n klein vakje en loopt dus over vele regels door"_s;
}

/// The text as the box displays it, line by line.
static QStringList Regels(const TextBox &box)
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

static QList<int> RegelPerTeken(const TextBox &box)
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
}

void tst_TextBox::theTextIsPlain()
{
    OmschrijvingBox box;
    box.SetText(u"<b>a</b> & b"_s);
    QCOMPARE(box.Text(), u"<b>a</b> & b"_s);
}

void tst_TextBox::pastedTextIsPlain()
{
    auto *inhoud = new QMimeData;
    inhoud->setText(u"aap\nnoot"_s);
    inhoud->setHtml(u"<h1>aap</h1><h1>noot</h1>"_s);
    QGuiApplication::clipboard()->setMimeData(inhoud);
    OmschrijvingBox box, gezet;
    box.paste();
    QCOMPARE(box.Text(), u"aap\r\nnoot"_s);
    gezet.SetText(u"aap\r\nnoot"_s);
    QCOMPARE(box.toHtml(), gezet.toHtml());
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

// --- what comes from elsewhere ---

/// What a clipboard or a drag may hold.
static QMimeData *Inhoud(const QString &tekst)
{
    auto *inhoud = new QMimeData;
    inhoud->setText(tekst);
    return inhoud;
}

/// Drops the contents at a point of the box, as the end of a drag from another program.
static void Sleep(TextBox &box, const QMimeData &inhoud, QPoint plaats)
{
    QDragEnterEvent erin(plaats, Qt::CopyAction, &inhoud, Qt::LeftButton, {});
    QApplication::sendEvent(box.viewport(), &erin);
    QDragMoveEvent erover(plaats, Qt::CopyAction, &inhoud, Qt::LeftButton, {});
    QApplication::sendEvent(box.viewport(), &erover);
    QDropEvent los(plaats, Qt::CopyAction, &inhoud, Qt::LeftButton, {});
    QApplication::sendEvent(box.viewport(), &los);
}

void tst_TextBox::whereThereIsNoTextNothingIsInserted_data()
{
    QTest::addColumn<int>("soort");
    Geval("no format", 0);
    Geval("html only", 1);
    Geval("an image only", 2);
    Geval("a format of its own", 3);
    Geval("an empty text", 4);
}

void tst_TextBox::whereThereIsNoTextNothingIsInserted()
{
    QFETCH(int, soort);
    const auto maak = [soort] {
        auto *inhoud = new QMimeData;
        if (soort == 1)
            inhoud->setHtml(u"<b>aap</b>"_s);
        else if (soort == 2)
            inhoud->setImageData(QImage(3, 3, QImage::Format_RGB32));
        else if (soort == 3)
            inhoud->setData(u"application/x-aap"_s, "aap");
        else if (soort == 4)
            inhoud->setText(QString());
        return inhoud;
    };
    QGuiApplication::clipboard()->setMimeData(maak());
    OmschrijvingBox box;
    box.SetText(u"noot"_s);
    box.selectAll();
    box.show();
    QVERIFY(!box.canPaste());
    box.paste();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
    delete box.createStandardContextMenu();
    const std::unique_ptr<QMimeData> gesleept(maak());
    Sleep(box, *gesleept, QPoint(10, 10));
    QCOMPARE(box.Text(), u"noot"_s);
    QVERIFY(!box.document()->isUndoAvailable());
}

void tst_TextBox::droppedTextIsInsertedWhereItFalls()
{
    OmschrijvingBox box;
    box.SetText(u"noot"_s);
    box.show();
    const std::unique_ptr<QMimeData> inhoud(Inhoud(u"aap\nmies "_s));
    inhoud->setHtml(u"<h1>aap</h1>"_s);
    Sleep(box, *inhoud, QPoint(3, 10));
    QCOMPARE(box.Text(), u"aap\r\nmies noot"_s);
}

void tst_TextBox::insertedTextTakesThePlaceOfTheSelection()
{
    QGuiApplication::clipboard()->setText(u"aap\r\nmies"_s);
    OmschrijvingBox box;
    box.SetText(u"noot"_s);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(box.Text(), u"aap\r\nmies"_s);
    QTest::keyClick(&box, Qt::Key_X);
    QCOMPARE(box.Text(), u"aap\r\nmiesx"_s); // the caret stands behind it
    box.undo();
    box.undo();
    QCOMPARE(box.Text(), u"noot"_s);
}

void tst_TextBox::theCaretBehindAnInsertedTextIsInSight()
{
    OmschrijvingBox box;
    box.show();
    QGuiApplication::clipboard()->setText(u"aap\n"_s.repeated(50));
    box.paste();
    QVERIFY(box.viewport()->rect().contains(box.cursorRect().center()));
}

void tst_TextBox::noMoreThanTheMostCharactersAreInserted_data()
{
    QTest::addColumn<QString>("voor");
    QTest::addColumn<bool>("gekozen"); // the whole text
    QTest::addColumn<QString>("geplakt");
    QTest::addColumn<QString>("na");
    const QString lach = u"\U0001F600"_s;
    Geval("room for all", "noot", false, "aapmie", "nootaapmie");
    Geval("too much", "noot", false, "aapmies", "nootaapmie");
    Geval("far too much", "noot", false, QString(1000, u'x'), "nootxxxxxx");
    Geval("no room", "0123456789", false, "aap", "0123456789");
    Geval("in place of the selection", "0123456789", true, "aap", "aap");
    Geval("too much for the selection", "0123456789", true, "abcdefghijkl", "abcdefghij");
    Geval("a pair that fits", "01234567", false, lach, "01234567" + lach);
    Geval("a pair that does not fit", "012345678", false, lach + "x", "012345678");
    Geval("a line end that fits", "01234567", false, "\nx", "01234567\r\n");
    Geval("a line end that does not fit", "012345678", false, "\nx", "012345678");
    Geval("both characters of a line end", "012345678", false, "\r\nx", "012345678");
    Geval("line ends count as two", "a\r\n\r\nb", false, "cdefg", "a\r\n\r\nbcdef");
    Geval("line ends in the selection", "a\r\n\r\n67890", true, "abcdefghijkl", "abcdefghij");
    Geval("many line ends", "", false, QString(100, u'\n'), u"\r\n"_s.repeated(5));
    Geval("what Qt takes for a line end", "0123", false, u"\ufdd0\ufdd1abc"_s, "0123\r\n\r\nab");
    Geval("separators are line ends", "0123", false, u"\u2028\u2029\rxy"_s, "0123\r\n\r\n\r\n");
}

void tst_TextBox::noMoreThanTheMostCharactersAreInserted()
{
    QFETCH(QString, voor);
    QFETCH(bool, gekozen);
    QFETCH(QString, geplakt);
    OmschrijvingBox box;
    box.MaxLength = 10;
    box.SetText(voor);
    box.moveCursor(QTextCursor::End);
    if (gekozen)
        box.selectAll();
    QGuiApplication::clipboard()->setText(geplakt);
    box.paste();
    QTEST(box.Text(), "na");
}

void tst_TextBox::aTextOfMegabytesIsCutOff()
{
    OmschrijvingBox box;
    box.MaxLength = 1000;
    QGuiApplication::clipboard()->setText(QString(5000000, u'x'));
    box.paste();
    QCOMPARE(box.Text(), QString(1000, u'x'));
    box.SetText(QString());
    const std::unique_ptr<QMimeData> inhoud(Inhoud(u"y\n"_s.repeated(5000000)));
    QElapsedTimer klok;
    klok.start();
    Sleep(box, *inhoud, QPoint(3, 10));
    QVERIFY2(klok.elapsed() < 5000, qPrintable(QString::number(klok.elapsed())));
    QCOMPARE(box.Text(), u"y\r\n"_s.repeated(333) + u'y');
}

void tst_TextBox::noMoreThanTheMostCharactersAreSet()
{
    OmschrijvingBox box;
    box.MaxLength = 6;
    box.SetText(u"aap\nnoot"_s);
    QCOMPARE(box.Text(), u"aap\r\nn"_s);
    box.SetText(u"abcde\U0001F600"_s);
    QCOMPARE(box.Text(), u"abcde"_s);
    box.MaxLength = 3; // what stands there stays
    QGuiApplication::clipboard()->setText(u"noot"_s);
    box.paste();
    QTest::keyClick(&box, Qt::Key_X);
    QCOMPARE(box.Text(), u"abcde"_s);
}

void tst_TextBox::noMoreThanTheMostCharactersAreTyped_data()
{
    QTest::addColumn<QString>("voor");
    QTest::addColumn<int>("toets");
    QTest::addColumn<int>("met");
    QTest::addColumn<QString>("teken");
    QTest::addColumn<QString>("na");
    const QString lach = u"\U0001F600"_s;
    const int altGr = int(Qt::ControlModifier) | int(Qt::AltModifier), groepKeuze = int(Qt::GroupSwitchModifier);
    Geval("the last letter", "1234", int(Qt::Key_X), 0, "x", "1234x");
    Geval("a letter too many", "12345", int(Qt::Key_X), 0, "x", "12345");
    Geval("a capital", "12345", int(Qt::Key_X), int(Qt::ShiftModifier), "X", "12345");
    Geval("a blank", "12345", int(Qt::Key_Space), 0, " ", "12345");
    Geval("AltGr", "12345", int(Qt::Key_E), altGr, u"é"_s, "12345");
    Geval("AltGr elsewhere", "12345", int(Qt::Key_E), groepKeuze, u"é"_s, "12345");
    Geval("a line end that fits", "123", int(Qt::Key_Return), 0, "\r", "123\r\n");
    Geval("a line end", "1234", int(Qt::Key_Return), 0, "\r", "1234");
    Geval("of the numbers", "1234", int(Qt::Key_Enter), int(Qt::KeypadModifier), "\r", "1234");
    Geval("within a paragraph", "1234", int(Qt::Key_Return), int(Qt::ShiftModifier), "\r", "1234");
    Geval("a pair that fits", "123", 0, 0, lach, "123" + lach);
    Geval("a pair", "1234", 0, 0, lach, "1234");
}

void tst_TextBox::noMoreThanTheMostCharactersAreTyped()
{
    QFETCH(QString, voor);
    QFETCH(int, toets);
    QFETCH(int, met);
    QFETCH(QString, teken);
    OmschrijvingBox box;
    box.MaxLength = 5;
    box.SetText(voor);
    box.moveCursor(QTextCursor::End);
    QKeyEvent druk(QEvent::KeyPress, toets, Qt::KeyboardModifiers(met), teken);
    QApplication::sendEvent(&box, &druk);
    QTEST(box.Text(), "na");
    QVERIFY(druk.isAccepted()); // the window behind it gets no key that was meant for the text
}

void tst_TextBox::inAFullBoxOtherKeysWork()
{
    OmschrijvingBox box;
    box.MaxLength = 5;
    box.SetText(u"12345"_s);
    box.show();
    box.moveCursor(QTextCursor::End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    QCOMPARE(box.Text(), u"1234"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(box.Text(), u"12345"_s);
    QTest::keyClick(&box, Qt::Key_Home);
    QKeyEvent wis(QEvent::KeyPress, Qt::Key_Delete, {}, u"\x7f"_s);
    QApplication::sendEvent(&box, &wis);
    QCOMPARE(box.Text(), u"2345"_s);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_X, Qt::ControlModifier);
    QCOMPARE(box.Text(), QString());
}

void tst_TextBox::aLineEndWithinAParagraphCountsAsTwo()
{
    OmschrijvingBox box;
    box.MaxLength = 5;
    QTest::keyClick(&box, Qt::Key_A);
    QTest::keyClick(&box, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_B);
    QGuiApplication::clipboard()->setText(u"xyz"_s);
    box.paste();
    QCOMPARE(box.Text(), u"a\r\nbx"_s);
    box.selectAll();
    QGuiApplication::clipboard()->setText(u"123456"_s);
    box.paste();
    QCOMPARE(box.Text(), u"12345"_s);
}

void tst_TextBox::inAFullBoxTheSelectionCanBeTypedOver()
{
    OmschrijvingBox box;
    box.MaxLength = 5;
    box.SetText(u"12\r\n5"_s);
    box.moveCursor(QTextCursor::Start);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&box, Qt::Key_A);
    QCOMPARE(box.Text(), u"a\r\n5"_s);
    QTest::keyClick(&box, Qt::Key_B);
    QTest::keyClick(&box, Qt::Key_C);
    QCOMPARE(box.Text(), u"ab\r\n5"_s);
    QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier); // the line end
    QTest::keyClick(&box, Qt::Key_Return);
    QCOMPARE(box.Text(), u"ab\r\n5"_s);
}

void tst_TextBox::anInputMethodGivesNoMoreThanTheMostCharacters()
{
    OmschrijvingBox box;
    box.MaxLength = 5;
    box.SetText(u"123"_s);
    box.moveCursor(QTextCursor::End);
    QInputMethodEvent bezig(u"abcdefgh"_s, {}), klaar;
    QApplication::sendEvent(&box, &bezig);
    klaar.setCommitString(u"abcdefgh"_s);
    QApplication::sendEvent(&box, &klaar);
    QCOMPARE(box.Text(), u"123ab"_s);
    QInputMethodEvent vervangt;
    vervangt.setCommitString(u"xyz"_s, -2, 2); // in place of the two before the caret
    QApplication::sendEvent(&box, &vervangt);
    QCOMPARE(box.Text(), u"123xy"_s);
}

RASTER_TEST(tst_TextBox)
#include "tst_TextBox.moc"
