#include "platform/OmschrijvingBox.h"
#include "support/Testbank.h"
#include "support/Venster.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// What comes into the box from elsewhere, and how much of it.
class tst_TextBoxInvoer : public QObject
{
    Q_OBJECT

private slots:
    // The offscreen platform itself warns of menus.
    void init() { QTest::failOnWarning(QRegularExpression(u"^(?!This plugin does not support)"_s)); }

    void pastedTextIsPlain();
    void theMenuOffersWhatCanBeDone();
    void theMenuPastesNoMoreThanTheMostCharacters();
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

void tst_TextBoxInvoer::pastedTextIsPlain()
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

void tst_TextBoxInvoer::theMenuOffersWhatCanBeDone()
{
    OmschrijvingBox box;
    box.show();
    QGuiApplication::clipboard()->clear();
    const QString niets =
        u"(Ongedaan maken)|(Opnieuw)|(Knippen)|(Kopiëren)|(Plakken)|(Verwijderen)|(Alles selecteren)"_s;
    QCOMPARE(RechtsKlik(box), niets);
    QTest::keyClicks(&box, u"aap"_s);
    const auto met = [&niets](const QStringList &items) {
        QString kan = niets;
        for (const QString &item : items)
            kan.replace(u'(' + item + u')', item);
        return kan;
    };
    const QString alles = u"Alles selecteren"_s, ongedaan = u"Ongedaan maken"_s;
    QCOMPARE(RechtsKlik(box, alles), met({ongedaan, alles}));
    const QStringList gekozen{ongedaan, u"Knippen"_s, u"Kopiëren"_s, u"Verwijderen"_s, alles};
    QCOMPARE(RechtsKlik(box, u"Kopiëren"_s), met(gekozen));
    QCOMPARE(QGuiApplication::clipboard()->text(), u"aap"_s);
    QCOMPARE(RechtsKlik(box, u"Verwijderen"_s), met(gekozen + QStringList{u"Plakken"_s}));
    QCOMPARE(box.Text(), QString());
    RechtsKlik(box, ongedaan);
    QCOMPARE(box.Text(), u"aap"_s);
    QVERIFY(RechtsKlik(box, u"Opnieuw"_s).contains(u"|Opnieuw|"_s));
    QCOMPARE(box.Text(), QString());
}

void tst_TextBoxInvoer::theMenuPastesNoMoreThanTheMostCharacters()
{
    OmschrijvingBox box;
    box.MaxLength = 5;
    box.show();
    QGuiApplication::clipboard()->setText(u"aap\nnoot"_s);
    RechtsKlik(box, u"Plakken"_s);
    QCOMPARE(box.Text(), u"aap\r\n"_s);
}

void tst_TextBoxInvoer::whereThereIsNoTextNothingIsInserted_data()
{
    QTest::addColumn<int>("soort");
    Geval("no format", 0);
    Geval("html only", 1);
    Geval("an image only", 2);
    Geval("a format of its own", 3);
    Geval("an empty text", 4);
}

void tst_TextBoxInvoer::whereThereIsNoTextNothingIsInserted()
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

void tst_TextBoxInvoer::droppedTextIsInsertedWhereItFalls()
{
    OmschrijvingBox box;
    box.SetText(u"noot"_s);
    box.show();
    const std::unique_ptr<QMimeData> inhoud(Inhoud(u"aap\nmies "_s));
    inhoud->setHtml(u"<h1>aap</h1>"_s);
    Sleep(box, *inhoud, QPoint(3, 10));
    QCOMPARE(box.Text(), u"aap\r\nmies noot"_s);
}

void tst_TextBoxInvoer::insertedTextTakesThePlaceOfTheSelection()
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

void tst_TextBoxInvoer::theCaretBehindAnInsertedTextIsInSight()
{
    OmschrijvingBox box;
    box.show();
    QGuiApplication::clipboard()->setText(u"aap\n"_s.repeated(50));
    box.paste();
    QVERIFY(box.viewport()->rect().contains(box.cursorRect().center()));
}

void tst_TextBoxInvoer::noMoreThanTheMostCharactersAreInserted_data()
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

void tst_TextBoxInvoer::noMoreThanTheMostCharactersAreInserted()
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

void tst_TextBoxInvoer::aTextOfMegabytesIsCutOff()
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

void tst_TextBoxInvoer::noMoreThanTheMostCharactersAreSet()
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

void tst_TextBoxInvoer::noMoreThanTheMostCharactersAreTyped_data()
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

void tst_TextBoxInvoer::noMoreThanTheMostCharactersAreTyped()
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

void tst_TextBoxInvoer::inAFullBoxOtherKeysWork()
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

void tst_TextBoxInvoer::aLineEndWithinAParagraphCountsAsTwo()
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

void tst_TextBoxInvoer::inAFullBoxTheSelectionCanBeTypedOver()
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

void tst_TextBoxInvoer::anInputMethodGivesNoMoreThanTheMostCharacters()
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

RASTER_TEST(tst_TextBoxInvoer)
#include "tst_TextBoxInvoer.moc"
