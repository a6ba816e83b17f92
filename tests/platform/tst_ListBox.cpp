#include "platform/ListBox.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSignalSpy>

#include <limits>

using namespace Qt::StringLiterals;

class tst_ListBox : public QObject
{
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"."_s)); }

    void anEmptyListHasNothingSelected();
    void itemsAreAddedAtTheEnd();
    void itemsAreSetInOneGo();
    void clearTakesAllAway();
    void anIndexThatIsNotThereHasNoText_data();
    void anIndexThatIsNotThereHasNoText();
    void aSelectedRowGivesItsText();
    void selectingWhatIsNotThereSelectsNothing_data();
    void selectingWhatIsNotThereSelectsNothing();
    void newItemsAreNotSelected();
    void removingLeavesNothingSelected_data();
    void removingLeavesNothingSelected();
    void removingWhatIsNotThereChangesNothing();
    void aRowCanBeChosenAfterRemoving();
    void aManyThousandItemsFit();
    void aManyThousandItemsAreAddedOneByOne();

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
    void aTextOfMegabytesIsShownByItsBeginning();

private:
    static QPoint Rij(const ListBox &lijst, int rij) { return lijst.visualRect(lijst.model()->index(rij, 0)).center(); }
};

/// A list of three words, shown.
class DrieWoorden : public ListBox
{
public:
    DrieWoorden() : ListBox(nullptr)
    {
        resize(200, 150);
        SetItems({u"aap"_s, u"noot"_s, u"mies"_s});
        show();
    }
};

static QStringList Teksten(const ListBox &lijst)
{
    QStringList teksten;
    for (int i = 0; i < lijst.ListCount(); ++i)
        teksten += lijst.List(i);
    return teksten;
}

void tst_ListBox::anEmptyListHasNothingSelected()
{
    const ListBox lijst(nullptr);
    QCOMPARE(lijst.ListCount(), 0);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void tst_ListBox::itemsAreAddedAtTheEnd()
{
    ListBox lijst(nullptr);
    for (const char *tekst : {"noot", "aap", "", "noot"})
        lijst.AddItem(QLatin1String(tekst));
    QCOMPARE(Teksten(lijst), (QStringList{"noot", "aap", "", "noot"}));
    QCOMPARE(lijst.ListIndex(), -1);
}

void tst_ListBox::itemsAreSetInOneGo()
{
    ListBox lijst(nullptr);
    lijst.AddItem(u"oud"_s);
    QSignalSpy opnieuw(lijst.model(), &QAbstractItemModel::modelReset);
    QSignalSpy erbij(lijst.model(), &QAbstractItemModel::rowsInserted);
    lijst.SetItems({u"aap"_s, u"noot"_s});
    QCOMPARE(Teksten(lijst), (QStringList{"aap", "noot"}));
    QCOMPARE(opnieuw.size(), 1);
    QCOMPARE(erbij.size(), 0);
}

void tst_ListBox::clearTakesAllAway()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    lijst.Clear();
    QCOMPARE(lijst.ListCount(), 0);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void tst_ListBox::anIndexThatIsNotThereHasNoText_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, 3, 1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        Geval(QByteArray::number(index), index);
}

void tst_ListBox::anIndexThatIsNotThereHasNoText()
{
    QFETCH(int, index);
    const DrieWoorden lijst;
    QCOMPARE(lijst.List(2), u"mies"_s);
    QCOMPARE(lijst.List(index), QString());
}

void tst_ListBox::aSelectedRowGivesItsText()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    QCOMPARE(lijst.ListIndex(), 1);
    QCOMPARE(lijst.Text(), u"noot"_s);
    lijst.SetListIndex(0);
    QCOMPARE(lijst.ListIndex(), 0);
    QCOMPARE(lijst.Text(), u"aap"_s);
}

void tst_ListBox::selectingWhatIsNotThereSelectsNothing_data()
{
    anIndexThatIsNotThereHasNoText_data();
}

void tst_ListBox::selectingWhatIsNotThereSelectsNothing()
{
    QFETCH(int, index);
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    lijst.SetListIndex(index);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void tst_ListBox::newItemsAreNotSelected()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    QSignalSpy klik(&lijst, &ListBox::Click);
    lijst.SetItems({u"wim"_s, u"zus"_s, u"jet"_s});
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(klik.size(), 0);
}

void tst_ListBox::removingLeavesNothingSelected_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<int>("weg");
    QTest::addColumn<QStringList>("over");
    Geval("the first", 0, 0, QStringList{"noot", "mies"});
    Geval("the middle", 1, 1, QStringList{"aap", "mies"});
    Geval("the last", 2, 2, QStringList{"aap", "noot"});
    Geval("above the chosen one", 2, 0, QStringList{"noot", "mies"});
    Geval("below the chosen one", 0, 2, QStringList{"aap", "noot"});
}

void tst_ListBox::removingLeavesNothingSelected()
{
    QFETCH(int, gekozen);
    QFETCH(int, weg);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    QSignalSpy klik(&lijst, &ListBox::Click);
    lijst.RemoveItem(weg);
    QTEST(Teksten(lijst), "over");
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
    QCOMPARE(klik.size(), 0);
}

void tst_ListBox::removingWhatIsNotThereChangesNothing()
{
    DrieWoorden lijst;
    lijst.RemoveItem(-1);
    lijst.RemoveItem(3);
    QCOMPARE(Teksten(lijst), (QStringList{"aap", "noot", "mies"}));
}

void tst_ListBox::aRowCanBeChosenAfterRemoving()
{
    DrieWoorden lijst;
    lijst.SetListIndex(0);
    lijst.RemoveItem(0);
    QSignalSpy klik(&lijst, &ListBox::Click);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QCOMPARE(klik.size(), 1);
    QCOMPARE(lijst.Text(), u"noot"_s);
}

void tst_ListBox::aManyThousandItemsFit()
{
    constexpr int Aantal = 400000;
    QStringList teksten;
    for (int i = 0; i < Aantal; ++i)
        teksten += QString::number(i);
    ListBox lijst(nullptr);
    lijst.resize(200, 150);
    lijst.SetItems(teksten);
    lijst.show();
    QCOMPARE(lijst.ListCount(), Aantal);
    lijst.SetListIndex(Aantal - 1);
    QCOMPARE(lijst.Text(), QString::number(Aantal - 1));
    QVERIFY(lijst.viewport()->rect().contains(Rij(lijst, Aantal - 1)));
}

// It takes a tenth of a second; were the time to grow with the square of the items, it would be minutes.
void tst_ListBox::aManyThousandItemsAreAddedOneByOne()
{
    constexpr int Aantal = 200000;
    DrieWoorden lijst;
    QElapsedTimer klok;
    klok.start();
    for (int i = 0; i < Aantal; ++i)
        lijst.AddItem(QString::number(i));
    QVERIFY(lijst.visualRect(lijst.model()->index(3, 0)).isValid());
    QVERIFY2(klok.elapsed() < 5000, qPrintable(QString::number(klok.elapsed())));
    QCOMPARE(lijst.ListCount(), Aantal + 3);
    QCOMPARE(lijst.List(Aantal + 2), QString::number(Aantal - 1));
}

// --- the person ---

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

void tst_ListBox::aClickOnARowIsToldOnce_data()
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

void tst_ListBox::aClickOnARowIsToldOnce()
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

void tst_ListBox::aClickBelowTheRowsKeepsTheChosenOne_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<Qt::KeyboardModifiers>("toets");
    for (const int gekozen : {-1, 2})
        for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
            Geval(QByteArray::number(gekozen) + " with modifier " + QByteArray::number(toets.toInt(), 16), gekozen,
                  toets);
}

void tst_ListBox::aClickBelowTheRowsKeepsTheChosenOne()
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
void tst_ListBox::draggingChoosesTheRowUnderThePointer()
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

void tst_ListBox::onlyTheLeftButtonChooses_data()
{
    QTest::addColumn<Qt::MouseButton>("knop");
    Geval("right", Qt::RightButton);
    Geval("middle", Qt::MiddleButton);
}

void tst_ListBox::onlyTheLeftButtonChooses()
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

void tst_ListBox::onlyOneRowIsChosenAtATime()
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

void tst_ListBox::aDoubleClickIsToldOnce_data()
{
    QTest::addColumn<int>("gekozen");
    Geval("nothing chosen before", -1);
    Geval("another row before", 0);
    Geval("the same row before", 2);
}

void tst_ListBox::aDoubleClickIsToldOnce()
{
    QFETCH(int, gekozen);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Rij(lijst, 2));
    QCOMPARE(verteld, (QStringList{"mies", "mies!"}));
}

// The pointer may move a few pixels between the two clicks.
void tst_ListBox::aDoubleClickOnAnotherRowIsOnThatRow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QCOMPARE(verteld, (QStringList{"aap", "noot", "noot!"}));
}

void tst_ListBox::aDoubleClickBelowTheRowsIsToldWithoutARow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"!"});
    QCOMPARE(lijst.ListIndex(), -1);
}

void tst_ListBox::aDoubleClickBelowTheRowsKeepsTheChosenOne()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"noot!"});
    QCOMPARE(lijst.ListIndex(), 1);
}

void tst_ListBox::onlyTheLeftButtonClicksTwice_data()
{
    onlyTheLeftButtonChooses_data();
}

void tst_ListBox::onlyTheLeftButtonClicksTwice()
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

void tst_ListBox::aDoubleClickDoesNotEditTheText()
{
    DrieWoorden lijst;
    DubbelKlik(lijst, Rij(lijst, 1));
    QTest::keyClick(&lijst, Qt::Key_F2);
    QVERIFY(!lijst.indexWidget(lijst.model()->index(1, 0)));
    QVERIFY(lijst.viewport()->findChildren<QWidget *>().isEmpty());
    QCOMPARE(lijst.List(1), u"noot"_s);
}

void tst_ListBox::aKeyChoosesARowAndIsToldOnce_data()
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

void tst_ListBox::aKeyChoosesARowAndIsToldOnce()
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

void tst_ListBox::keysThatDoNotMoveTellNothing_data()
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

void tst_ListBox::keysThatDoNotMoveTellNothing()
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

void tst_ListBox::keysStartOutsideAListWithoutAChosenRow_data()
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

void tst_ListBox::keysStartOutsideAListWithoutAChosenRow()
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

void tst_ListBox::theSpaceBarChoosesTheRowWithTheFocus()
{
    DrieWoorden lijst;
    lijst.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&lijst));
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key_Space);
    QCOMPARE(verteld, QStringList{"aap"});
}

void tst_ListBox::aTextOfMegabytesIsShownByItsBeginning()
{
    ListBox lijst(nullptr);
    const QString lang(5000000, u'm');
    lijst.SetItems({lang});
    QCOMPARE(lijst.List(0), lang);
    QVERIFY(lijst.sizeHintForIndex(lijst.model()->index(0, 0)).width() < 10000);
}

RASTER_TEST(tst_ListBox)
#include "tst_ListBox.moc"
