#include "platform/ListBox.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QSignalSpy>

#include <limits>

using namespace Qt::StringLiterals;

class TestListBox : public QObject
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

void TestListBox::anEmptyListHasNothingSelected()
{
    const ListBox lijst(nullptr);
    QCOMPARE(lijst.ListCount(), 0);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void TestListBox::itemsAreAddedAtTheEnd()
{
    ListBox lijst(nullptr);
    for (const char *tekst : {"noot", "aap", "", "noot"})
        lijst.AddItem(QLatin1String(tekst));
    QCOMPARE(Teksten(lijst), (QStringList{"noot", "aap", "", "noot"}));
    QCOMPARE(lijst.ListIndex(), -1);
}

void TestListBox::itemsAreSetInOneGo()
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

void TestListBox::clearTakesAllAway()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    lijst.Clear();
    QCOMPARE(lijst.ListCount(), 0);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void TestListBox::anIndexThatIsNotThereHasNoText_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, 3, 1000000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", index) << index;
}

void TestListBox::anIndexThatIsNotThereHasNoText()
{
    QFETCH(int, index);
    const DrieWoorden lijst;
    QCOMPARE(lijst.List(2), u"mies"_s);
    QCOMPARE(lijst.List(index), QString());
}

void TestListBox::aSelectedRowGivesItsText()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    QCOMPARE(lijst.ListIndex(), 1);
    QCOMPARE(lijst.Text(), u"noot"_s);
    lijst.SetListIndex(0);
    QCOMPARE(lijst.ListIndex(), 0);
    QCOMPARE(lijst.Text(), u"aap"_s);
}

void TestListBox::selectingWhatIsNotThereSelectsNothing_data()
{
    anIndexThatIsNotThereHasNoText_data();
}

void TestListBox::selectingWhatIsNotThereSelectsNothing()
{
    QFETCH(int, index);
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    lijst.SetListIndex(index);
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
}

void TestListBox::newItemsAreNotSelected()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    QSignalSpy klik(&lijst, &ListBox::Click);
    lijst.SetItems({u"wim"_s, u"zus"_s, u"jet"_s});
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(klik.size(), 0);
}

void TestListBox::removingLeavesNothingSelected_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<int>("weg");
    QTest::addColumn<QStringList>("over");
    QTest::newRow("the first") << 0 << 0 << QStringList{"noot", "mies"};
    QTest::newRow("the middle") << 1 << 1 << QStringList{"aap", "mies"};
    QTest::newRow("the last") << 2 << 2 << QStringList{"aap", "noot"};
    QTest::newRow("above the chosen one") << 2 << 0 << QStringList{"noot", "mies"};
    QTest::newRow("below the chosen one") << 0 << 2 << QStringList{"aap", "noot"};
}

void TestListBox::removingLeavesNothingSelected()
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

void TestListBox::removingWhatIsNotThereChangesNothing()
{
    DrieWoorden lijst;
    lijst.RemoveItem(-1);
    lijst.RemoveItem(3);
    QCOMPARE(Teksten(lijst), (QStringList{"aap", "noot", "mies"}));
}

void TestListBox::aRowCanBeChosenAfterRemoving()
{
    DrieWoorden lijst;
    lijst.SetListIndex(0);
    lijst.RemoveItem(0);
    QSignalSpy klik(&lijst, &ListBox::Click);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QCOMPARE(klik.size(), 1);
    QCOMPARE(lijst.Text(), u"noot"_s);
}

void TestListBox::aManyThousandItemsFit()
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
void TestListBox::aManyThousandItemsAreAddedOneByOne()
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

void TestListBox::aClickOnARowIsToldOnce_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<int>("geklikt");
    QTest::addColumn<Qt::KeyboardModifiers>("toets");
    for (const int gekozen : {-1, 0, 1})
        for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
            QTest::addRow("row 1 after %d with modifier %x", gekozen, toets.toInt()) << gekozen << 1 << toets;
}

void TestListBox::aClickOnARowIsToldOnce()
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

void TestListBox::aClickBelowTheRowsKeepsTheChosenOne_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::addColumn<Qt::KeyboardModifiers>("toets");
    for (const int gekozen : {-1, 2})
        for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
            QTest::addRow("%d with modifier %x", gekozen, toets.toInt()) << gekozen << toets;
}

void TestListBox::aClickBelowTheRowsKeepsTheChosenOne()
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
void TestListBox::draggingChoosesTheRowUnderThePointer()
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

void TestListBox::onlyTheLeftButtonChooses_data()
{
    QTest::addColumn<Qt::MouseButton>("knop");
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
}

void TestListBox::onlyTheLeftButtonChooses()
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

void TestListBox::onlyOneRowIsChosenAtATime()
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

void TestListBox::aDoubleClickIsToldOnce_data()
{
    QTest::addColumn<int>("gekozen");
    QTest::newRow("nothing chosen before") << -1;
    QTest::newRow("another row before") << 0;
    QTest::newRow("the same row before") << 2;
}

void TestListBox::aDoubleClickIsToldOnce()
{
    QFETCH(int, gekozen);
    DrieWoorden lijst;
    lijst.SetListIndex(gekozen);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Rij(lijst, 2));
    QCOMPARE(verteld, (QStringList{"mies", "mies!"}));
}

// The pointer may move a few pixels between the two clicks.
void TestListBox::aDoubleClickOnAnotherRowIsOnThatRow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QCOMPARE(verteld, (QStringList{"aap", "noot", "noot!"}));
}

void TestListBox::aDoubleClickBelowTheRowsIsToldWithoutARow()
{
    DrieWoorden lijst;
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"!"});
    QCOMPARE(lijst.ListIndex(), -1);
}

void TestListBox::aDoubleClickBelowTheRowsKeepsTheChosenOne()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    const Verteld verteld(lijst);
    DubbelKlik(lijst, Onder);
    QCOMPARE(verteld, QStringList{"noot!"});
    QCOMPARE(lijst.ListIndex(), 1);
}

void TestListBox::onlyTheLeftButtonClicksTwice_data()
{
    onlyTheLeftButtonChooses_data();
}

void TestListBox::onlyTheLeftButtonClicksTwice()
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

void TestListBox::aDoubleClickDoesNotEditTheText()
{
    DrieWoorden lijst;
    DubbelKlik(lijst, Rij(lijst, 1));
    QTest::keyClick(&lijst, Qt::Key_F2);
    QVERIFY(!lijst.indexWidget(lijst.model()->index(1, 0)));
    QVERIFY(lijst.viewport()->findChildren<QWidget *>().isEmpty());
    QCOMPARE(lijst.List(1), u"noot"_s);
}

void TestListBox::aKeyChoosesARowAndIsToldOnce_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<Qt::KeyboardModifiers>("met");
    QTest::addColumn<QString>("gekozen");
    QTest::newRow("down") << int(Qt::Key_Down) << Qt::KeyboardModifiers() << "mies";
    QTest::newRow("up") << int(Qt::Key_Up) << Qt::KeyboardModifiers() << "aap";
    QTest::newRow("home") << int(Qt::Key_Home) << Qt::KeyboardModifiers() << "aap";
    QTest::newRow("end") << int(Qt::Key_End) << Qt::KeyboardModifiers() << "mies";
    QTest::newRow("page up") << int(Qt::Key_PageUp) << Qt::KeyboardModifiers() << "aap";
    QTest::newRow("page down") << int(Qt::Key_PageDown) << Qt::KeyboardModifiers() << "mies";
    QTest::newRow("letter") << int(Qt::Key_M) << Qt::KeyboardModifiers() << "mies";
    QTest::newRow("control and down") << int(Qt::Key_Down) << Qt::KeyboardModifiers(Qt::ControlModifier) << "mies";
    QTest::newRow("shift and up") << int(Qt::Key_Up) << Qt::KeyboardModifiers(Qt::ShiftModifier) << "aap";
}

void TestListBox::aKeyChoosesARowAndIsToldOnce()
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

void TestListBox::keysThatDoNotMoveTellNothing_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<Qt::KeyboardModifiers>("met");
    QTest::newRow("down on the last") << int(Qt::Key_Down) << Qt::KeyboardModifiers();
    QTest::newRow("end on the last") << int(Qt::Key_End) << Qt::KeyboardModifiers();
    QTest::newRow("a letter that no row begins with") << int(Qt::Key_X) << Qt::KeyboardModifiers();
    QTest::newRow("space") << int(Qt::Key_Space) << Qt::KeyboardModifiers();
    QTest::newRow("control and space") << int(Qt::Key_Space) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("control") << int(Qt::Key_Control) << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("escape") << int(Qt::Key_Escape) << Qt::KeyboardModifiers();
}

void TestListBox::keysThatDoNotMoveTellNothing()
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

void TestListBox::keysStartOutsideAListWithoutAChosenRow_data()
{
    QTest::addColumn<int>("toets");
    QTest::addColumn<QStringList>("rijen");
    QTest::addColumn<QString>("gekozen");
    const QStringList drie{"aap", "noot", "mies"}, een{"aap"};
    QTest::newRow("down") << int(Qt::Key_Down) << drie << "aap";
    QTest::newRow("up") << int(Qt::Key_Up) << drie << "aap";
    QTest::newRow("home") << int(Qt::Key_Home) << drie << "aap";
    QTest::newRow("end") << int(Qt::Key_End) << drie << "mies";
    QTest::newRow("its first letter") << int(Qt::Key_A) << drie << "aap";
    QTest::newRow("the first letter of two") << int(Qt::Key_A) << QStringList{"aap", "aak"} << "aap";
    QTest::newRow("another letter") << int(Qt::Key_N) << drie << "noot";
    QTest::newRow("down in a list of one") << int(Qt::Key_Down) << een << "aap";
    QTest::newRow("home in a list of one") << int(Qt::Key_Home) << een << "aap";
    QTest::newRow("end in a list of one") << int(Qt::Key_End) << een << "aap";
    QTest::newRow("down in an empty list") << int(Qt::Key_Down) << QStringList() << QString();
    QTest::newRow("end in an empty list") << int(Qt::Key_End) << QStringList() << QString();
    QTest::newRow("a letter in an empty list") << int(Qt::Key_A) << QStringList() << QString();
}

void TestListBox::keysStartOutsideAListWithoutAChosenRow()
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

void TestListBox::theSpaceBarChoosesTheRowWithTheFocus()
{
    DrieWoorden lijst;
    lijst.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&lijst));
    const Verteld verteld(lijst);
    QTest::keyClick(&lijst, Qt::Key_Space);
    QCOMPARE(verteld, QStringList{"aap"});
}

void TestListBox::aTextOfMegabytesIsShownByItsBeginning()
{
    ListBox lijst(nullptr);
    const QString lang(5000000, u'm');
    lijst.SetItems({lang});
    QCOMPARE(lijst.List(0), lang);
    QVERIFY(lijst.sizeHintForIndex(lijst.model()->index(0, 0)).width() < 10000);
}

RASTER_TEST(TestListBox)
#include "tst_ListBox.moc"
