#include "platform/ListBox.h"
#include "support/Testbank.h"

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

    void aPressOnARowChoosesIt();
    void aPressOnTheChosenRowIsToldAgain();
    void aPressBelowTheRowsChoosesNothing();
    void theArrowKeysChooseARow();
    void onlyOneRowIsChosenAtATime();
    void aDoubleClickIsToldOnce();
    void aDoubleClickDoesNotEditTheText();

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
    QVERIFY(klik.size() > 0);
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

// --- the person ---

void TestListBox::aPressOnARowChoosesIt()
{
    DrieWoorden lijst;
    QStringList gekozen;
    connect(&lijst, &ListBox::Click, this, [&] { gekozen += lijst.Text(); });
    QSignalSpy dubbel(&lijst, &ListBox::DblClick);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QCOMPARE(lijst.ListIndex(), 1);
    QVERIFY(!gekozen.isEmpty());
    gekozen.removeAll(u"noot"_s);
    QCOMPARE(gekozen, QStringList());
    QCOMPARE(dubbel.size(), 0);
}

void TestListBox::aPressOnTheChosenRowIsToldAgain()
{
    DrieWoorden lijst;
    lijst.SetListIndex(1);
    QSignalSpy klik(&lijst, &ListBox::Click);
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 1));
    QCOMPARE(klik.size(), 1);
    QCOMPARE(lijst.ListIndex(), 1);
}

void TestListBox::aPressBelowTheRowsChoosesNothing()
{
    DrieWoorden lijst;
    QSignalSpy klik(&lijst, &ListBox::Click), dubbel(&lijst, &ListBox::DblClick);
    const QPoint onder(50, 140);
    QVERIFY(!lijst.indexAt(onder).isValid());
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, onder);
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, onder);
    QCOMPARE(klik.size(), 0);
    QCOMPARE(dubbel.size(), 0);
    QCOMPARE(lijst.ListIndex(), -1);
}

void TestListBox::theArrowKeysChooseARow()
{
    DrieWoorden lijst;
    lijst.SetListIndex(0);
    QSignalSpy klik(&lijst, &ListBox::Click);
    QTest::keyClick(&lijst, Qt::Key_Down);
    QCOMPARE(lijst.Text(), u"noot"_s);
    QCOMPARE(klik.size(), 1);
    QTest::keyClick(&lijst, Qt::Key_End);
    QCOMPARE(lijst.Text(), u"mies"_s);
    QCOMPARE(klik.size(), 2);
    QTest::keyClick(&lijst, Qt::Key_Down);
    QCOMPARE(klik.size(), 2);
}

void TestListBox::onlyOneRowIsChosenAtATime()
{
    DrieWoorden lijst;
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, Rij(lijst, 0));
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, Qt::ShiftModifier, Rij(lijst, 2));
    QCOMPARE(lijst.selectionModel()->selectedIndexes().size(), 1);
    QCOMPARE(lijst.Text(), u"mies"_s);
}

static void DubbelKlik(ListBox &lijst, QPoint plaats)
{
    QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, plaats);
    QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, plaats);
    QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, plaats);
}

void TestListBox::aDoubleClickIsToldOnce()
{
    DrieWoorden lijst;
    QStringList gekozen;
    connect(&lijst, &ListBox::DblClick, this, [&] { gekozen += lijst.Text(); });
    DubbelKlik(lijst, Rij(lijst, 2));
    QCOMPARE(gekozen, QStringList{"mies"});
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

RASTER_TEST(TestListBox)
#include "tst_ListBox.moc"
