#include "platform/DrieWoorden.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

/// How a person chooses a row.
class tst_ListBoxKeuze : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void aRowCanBeChosenAfterRemoving();
    void aClickOnARowIsToldOnce_data();
    void aClickOnARowIsToldOnce();
    void aClickBelowTheRowsKeepsTheChosenOne_data();
    void aClickBelowTheRowsKeepsTheChosenOne();
    void draggingChoosesTheRowUnderThePointer();
    void onlyTheLeftButtonChooses_data();
    void onlyTheLeftButtonChooses();
    void onlyOneRowIsChosenAtATime();
    void aDoubleClickIsToldOnce_data();
    void aDoubleClickIsToldOnce();
    void aDoubleClickOnAnotherRowIsOnThatRow();
    void aDoubleClickBelowTheRowsIsToldWithoutARow();
    void aDoubleClickBelowTheRowsKeepsTheChosenOne();
    void onlyTheLeftButtonClicksTwice_data();
    void onlyTheLeftButtonClicksTwice();
    void aDoubleClickDoesNotEditTheText();
    void aKeyChoosesARowAndIsToldOnce_data();
    void aKeyChoosesARowAndIsToldOnce();
    void keysThatDoNotMoveTellNothing_data();
    void keysThatDoNotMoveTellNothing();
    void keysStartOutsideAListWithoutAChosenRow_data();
    void keysStartOutsideAListWithoutAChosenRow();
    void theSpaceBarChoosesTheRowWithTheFocus();
};

// What a person's list has told, in order: "noot" for a click that found this row chosen, "noot!" for a double click.
class Verteld : public QStringList
{
public:
    explicit Verteld(const ListBox &lijst)
    {
        QObject::connect(&lijst, &ListBox::Click, &lijst, [&] { *this += lijst.Text(); });
        QObject::connect(&lijst, &ListBox::DblClick, &lijst, [&] { *this += lijst.Text() + u'!'; });
    }
};

/// A place in the three words' list, below the rows.
static constexpr QPoint Onder(50, 140);

void tst_ListBoxKeuze::aRowCanBeChosenAfterRemoving()
{
    DrieWoorden lijst;
    lijst.SetListIndex(0);
    lijst.RemoveItem(0);
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QCOMPARE(verteld, QStringList{"noot"});
    QCOMPARE(lijst.Text(), u"noot"_s);
}

void tst_ListBoxKeuze::aClickOnARowIsToldOnce_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<int>("geklikt");
    QTest::addColumn<Qt::KeyboardModifiers>("toets");
    for (const int gekozen : {-1, 0, 1})
        for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
            Geval("row 1 after " + QByteArray::number(gekozen) + " with modifier " +
                      QByteArray::number(toets.toInt(), 16),
                  gekozen, 1, toets);
}

void tst_ListBoxKeuze::aClickOnARowIsToldOnce()
{
    QFETCH(int, gekozen);
    QFETCH(int, geklikt);
    QFETCH(Qt::KeyboardModifiers, toets);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, toets, Rij(lijst, geklikt));
    QCOMPARE(verteld, QStringList{"noot"});
    QCOMPARE(lijst.ListIndex(), geklikt);
}

void tst_ListBoxKeuze::aClickBelowTheRowsKeepsTheChosenOne_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<Qt::KeyboardModifiers>("toets");
    for (const int gekozen : {-1, 2})
        for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
            Geval(QByteArray::number(gekozen) + " with modifier " + QByteArray::number(toets.toInt(), 16), gekozen,
                  toets);
}

void tst_ListBoxKeuze::aClickBelowTheRowsKeepsTheChosenOne()
{
    QFETCH(int, gekozen);
    QFETCH(Qt::KeyboardModifiers, toets);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    QVERIFY(!lijst.indexAt(Onder).isValid());
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, toets, Onder);
    QCOMPARE(lijst.ListIndex(), gekozen);
    QCOMPARE(verteld, QStringList());
}

// The button goes down on one row, the pointer moves over others and below them, and the button comes up there.
void tst_ListBoxKeuze::draggingChoosesTheRowUnderThePointer()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    QTest::mousePress(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    for (const QPoint plaats : {Rij(lijst, 1), Rij(lijst, 2), Onder}) {
        QMouseEvent sleep(QEvent::MouseMove, plaats, lijst.viewport()->mapToGlobal(plaats), Qt::NoButton,
                          Qt::LeftButton, {});
        QApplication::sendEvent(lijst.viewport(), &sleep);
    }
    QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, Onder);
    QCOMPARE(verteld, (QStringList{"aap", "noot", "mies"}));
    QCOMPARE(lijst.Text(), u"mies"_s);
}

void tst_ListBoxKeuze::onlyTheLeftButtonChooses_data()
{
    QTest::addColumn<Qt::MouseButton>("knop");
    Geval("right", Qt::RightButton);
    Geval("middle", Qt::MiddleButton);
}

void tst_ListBoxKeuze::onlyTheLeftButtonChooses()
{
    QFETCH(Qt::MouseButton, knop);
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    for (const int rij : {0, 1})
        QTest::mouseClick(lijst.viewport(), knop, {}, Rij(lijst, rij));
    QCOMPARE(lijst.ListIndex(), 1);
    QCOMPARE(verteld, QStringList());
    QTest::keyClick(&lijst, Qt::Key_Down);
    QCOMPARE(verteld, QStringList{"mies"});
}

void tst_ListBoxKeuze::onlyOneRowIsChosenAtATime()
{
    DrieWoorden lijst;
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, Qt::ShiftModifier, Rij(lijst, 2));
    QCOMPARE(lijst.selectionModel()->selectedIndexes().size(), 1);
    QCOMPARE(lijst.Text(), u"mies"_s);
}

static void DubbelKlik(ListBox &lijst, QPoint plaats, Qt::MouseButton knop = Qt::LeftButton)
{
    QTest::mouseClick(lijst.viewport(), knop, {}, plaats);
    QTest::mouseDClick(lijst.viewport(), knop, {}, plaats);
    QTest::mouseRelease(lijst.viewport(), knop, {}, plaats);
}

void tst_ListBoxKeuze::aDoubleClickIsToldOnce_data()
{
    QTest::addColumn<int>("gekozen");
    Geval("nothing chosen before", -1);
    Geval("another row before", 0);
    Geval("the same row before", 2);
}

void tst_ListBoxKeuze::aDoubleClickIsToldOnce()
{
    QFETCH(int, gekozen);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Rij(lijst, 2));
    QCOMPARE(verteld, (QStringList{"mies", "mies!"}));
}

// The pointer may move a few pixels between the two clicks.
void tst_ListBoxKeuze::aDoubleClickOnAnotherRowIsOnThatRow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QCOMPARE(verteld, (QStringList{"aap", "noot", "noot!"}));
}

void tst_ListBoxKeuze::aDoubleClickBelowTheRowsIsToldWithoutARow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"!"});
    QCOMPARE(lijst.ListIndex(), -1);
}

void tst_ListBoxKeuze::aDoubleClickBelowTheRowsKeepsTheChosenOne()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"noot!"});
    QCOMPARE(lijst.ListIndex(), 1);
}

void tst_ListBoxKeuze::onlyTheLeftButtonClicksTwice_data()
{
    onlyTheLeftButtonChooses_data();
}

void tst_ListBoxKeuze::onlyTheLeftButtonClicksTwice()
{
    QFETCH(Qt::MouseButton, knop);
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    for (const QPoint plaats : {Rij(lijst, 0), Rij(lijst, 1), Onder})
        DubbelKlik(lijst, plaats, knop);
    QCOMPARE(verteld, QStringList());
    QCOMPARE(lijst.ListIndex(), 1);
}

void tst_ListBoxKeuze::aDoubleClickDoesNotEditTheText()
{
    DrieWoorden lijst;
    DubbelKlik(lijst, Rij(lijst, 1));
    QTest::keyClick(&lijst, Qt::Key_F2);
    QVERIFY(!lijst.indexWidget(lijst.model()->index(1, 0)));
    QVERIFY(lijst.viewport()->findChildren<QWidget *>().isEmpty());
    QCOMPARE(lijst.List(1), u"noot"_s);
}

void tst_ListBoxKeuze::aKeyChoosesARowAndIsToldOnce_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<Qt::KeyboardModifiers>("met");
    QTest::addColumn<QString>("gekozen");
    Geval("down", int(Qt::Key_Down), Qt::KeyboardModifiers(), "mies");
    Geval("up", int(Qt::Key_Up), Qt::KeyboardModifiers(), "aap");
    Geval("home", int(Qt::Key_Home), Qt::KeyboardModifiers(), "aap");
    Geval("end", int(Qt::Key_End), Qt::KeyboardModifiers(), "mies");
    Geval("page up", int(Qt::Key_PageUp), Qt::KeyboardModifiers(), "aap");
    Geval("page down", int(Qt::Key_PageDown), Qt::KeyboardModifiers(), "mies");
    Geval("letter", int(Qt::Key_M), Qt::KeyboardModifiers(), "mies");
    Geval("control and down", int(Qt::Key_Down), Qt::KeyboardModifiers(Qt::ControlModifier), "mies");
    Geval("shift and up", int(Qt::Key_Up), Qt::KeyboardModifiers(Qt::ShiftModifier), "aap");
}

void tst_ListBoxKeuze::aKeyChoosesARowAndIsToldOnce()
{
    QFETCH(int, toets);
    QFETCH(Qt::KeyboardModifiers, met);
    QFETCH(QString, gekozen);
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key(toets), met);
    QCOMPARE(verteld, QStringList{gekozen});
    QCOMPARE(lijst.Text(), gekozen);
}

void tst_ListBoxKeuze::keysThatDoNotMoveTellNothing_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<Qt::KeyboardModifiers>("met");
    Geval("down on the last", int(Qt::Key_Down), Qt::KeyboardModifiers());
    Geval("end on the last", int(Qt::Key_End), Qt::KeyboardModifiers());
    Geval("a letter that no row begins with", int(Qt::Key_X), Qt::KeyboardModifiers());
    Geval("space", int(Qt::Key_Space), Qt::KeyboardModifiers());
    Geval("control and space", int(Qt::Key_Space), Qt::KeyboardModifiers(Qt::ControlModifier));
    Geval("control", int(Qt::Key_Control), Qt::KeyboardModifiers(Qt::ControlModifier));
    Geval("escape", int(Qt::Key_Escape), Qt::KeyboardModifiers());
}

void tst_ListBoxKeuze::keysThatDoNotMoveTellNothing()
{
    QFETCH(int, toets);
    QFETCH(Qt::KeyboardModifiers, met);
    DrieWoorden lijst;
    lijst.SetListIndex(2);
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key(toets), met);
    QCOMPARE(verteld, QStringList());
    QCOMPARE(lijst.Text(), u"mies"_s);
}

void tst_ListBoxKeuze::keysStartOutsideAListWithoutAChosenRow_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<QStringList>("rijen");
    QTest::addColumn<QString>("gekozen");
    const QStringList drie{"aap", "noot", "mies"}, een{"aap"};
    Geval("down", int(Qt::Key_Down), drie, "aap");
    Geval("up", int(Qt::Key_Up), drie, "aap");
    Geval("home", int(Qt::Key_Home), drie, "aap");
    Geval("end", int(Qt::Key_End), drie, "mies");
    Geval("its first letter", int(Qt::Key_A), drie, "aap");
    Geval("the first letter of two", int(Qt::Key_A), QStringList{"aap", "aak"}, "aap");
    Geval("another letter", int(Qt::Key_N), drie, "noot");
    Geval("down in a list of one", int(Qt::Key_Down), een, "aap");
    Geval("home in a list of one", int(Qt::Key_Home), een, "aap");
    Geval("end in a list of one", int(Qt::Key_End), een, "aap");
    Geval("down in an empty list", int(Qt::Key_Down), QStringList(), QString());
    Geval("end in an empty list", int(Qt::Key_End), QStringList(), QString());
    Geval("a letter in an empty list", int(Qt::Key_A), QStringList(), QString());
}

void tst_ListBoxKeuze::keysStartOutsideAListWithoutAChosenRow()
{
    QFETCH(int, toets);
    QFETCH(QStringList, rijen);
    QFETCH(QString, gekozen);
    DrieWoorden lijst;
    lijst.SetItems(rijen);
    lijst.setFocus();
    lijst.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&lijst));
    QCOMPARE(lijst.ListIndex(), -1);
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key(toets));
    QCOMPARE(lijst.Text(), gekozen);
    QCOMPARE(verteld, gekozen.isEmpty() ? QStringList() : QStringList{gekozen});
}

void tst_ListBoxKeuze::theSpaceBarChoosesTheRowWithTheFocus()
{
    DrieWoorden lijst;
    lijst.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&lijst));
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key_Space);
    QCOMPARE(verteld, QStringList{"aap"});
}

RASTER_TEST(tst_ListBoxKeuze)
#include "tst_ListBoxKeuze.moc"
