#include "platform/DrieWoorden.h"
#include "support/Testbank.h"

#include <QElapsedTimer>
#include <QHelpEvent>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QToolTip>

#include <limits>
#include <random>

using namespace Qt::StringLiterals;

/// What the platform of the tests says when a window is shown in front, as a tip is.
static constexpr char GeenVoorgrond[] = "This plugin does not support raise()";

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
    void aSortedListKeepsItsOrder();
    void aSortedListIsSetInOneGo();
    void anySortedListIsThatOfThePlainSort();
    void removingLeavesNothingSelected_data();
    void removingLeavesNothingSelected();
    void removingWhatIsNotThereChangesNothing();
    void aManyThousandItemsFit();
    void aManyThousandItemsAreAddedOneByOne();
    void aTextOfMegabytesIsShownByItsBeginning();
    void rowsAreAsWideAsTheList();
    void whatIsCutOffIsToldUnderThePointer_data();
    void whatIsCutOffIsToldUnderThePointer();
};

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
    QCOMPARE(lijst.Items(), (QStringList{"noot", "aap", "", "noot"}));
    QCOMPARE(lijst.ListIndex(), -1);
}

void tst_ListBox::itemsAreSetInOneGo()
{
    ListBox lijst(nullptr);
    lijst.AddItem(u"oud"_s);
    QSignalSpy opnieuw(lijst.model(), &QAbstractItemModel::modelReset);
    QSignalSpy erbij(lijst.model(), &QAbstractItemModel::rowsInserted);
    lijst.SetItems({u"aap"_s, u"noot"_s});
    QCOMPARE(lijst.Items(), (QStringList{"aap", "noot"}));
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
    lijst.SetItems(QStringList(100, u"wim"_s));
    lijst.scrollToBottom();
    QVERIFY(lijst.verticalScrollBar()->value() > 0);
    lijst.SetItems(QStringList(100, u"zus"_s));
    QCOMPARE(lijst.verticalScrollBar()->value(), 0); // they are shown from the first one on
}

void tst_ListBox::aSortedListKeepsItsOrder()
{
    ListBox lijst(nullptr);
    lijst.Sorted = true;
    for (const QString &tekst : {u"noot"_s, u"Mies"_s, u"aap"_s, u"\u00E9\u00E9n"_s, u"NOOT"_s, u"een"_s, u"f"_s})
        lijst.AddItem(tekst);
    QCOMPARE(lijst.Items(),
             (QStringList{u"aap"_s, u"een"_s, u"\u00E9\u00E9n"_s, u"f"_s, u"Mies"_s, u"noot"_s, u"NOOT"_s}));
    lijst.RemoveItem(3);
    lijst.AddItem(u"Een"_s);
    QCOMPARE(lijst.Items(),
             (QStringList{u"aap"_s, u"een"_s, u"Een"_s, u"\u00E9\u00E9n"_s, u"Mies"_s, u"noot"_s, u"NOOT"_s}));
}

void tst_ListBox::aSortedListIsSetInOneGo()
{
    ListBox lijst(nullptr);
    lijst.Sorted = true;
    lijst.AddItem(u"oud"_s);
    QSignalSpy opnieuw(lijst.model(), &QAbstractItemModel::modelReset);
    lijst.SetItems({u"noot"_s, u"NOOT"_s, u"aap"_s, u"noot"_s});
    QCOMPARE(lijst.Items(), (QStringList{u"aap"_s, u"noot"_s, u"NOOT"_s, u"noot"_s}));
    QCOMPARE(opnieuw.size(), 1);
}

void tst_ListBox::anySortedListIsThatOfThePlainSort()
{
    std::mt19937 toeval(1);
    for (int ronde = 0; ronde < 50; ++ronde) {
        QStringList teksten;
        for (int i = 0; i < 40; ++i)
            teksten += QStringLiteral("aAbB").sliced(toeval() % 4, 1) + QStringLiteral("aAbB").sliced(toeval() % 4, 1);
        ListBox eenVoorEen(nullptr), ineens(nullptr);
        eenVoorEen.Sorted = ineens.Sorted = true;
        for (const QString &tekst : teksten)
            eenVoorEen.AddItem(tekst);
        ineens.SetItems(teksten);
        std::stable_sort(teksten.begin(), teksten.end(),
                         [](const QString &a, const QString &b) { return a.toLower() < b.toLower(); });
        QCOMPARE(eenVoorEen.Items(), teksten);
        QCOMPARE(ineens.Items(), teksten);
    }
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
    QTEST(lijst.Items(), "over");
    QCOMPARE(lijst.ListIndex(), -1);
    QCOMPARE(lijst.Text(), QString());
    QCOMPARE(klik.size(), 0);
}

void tst_ListBox::removingWhatIsNotThereChangesNothing()
{
    DrieWoorden lijst;
    lijst.RemoveItem(-1);
    lijst.RemoveItem(3);
    QCOMPARE(lijst.Items(), (QStringList{"aap", "noot", "mies"}));
}

void tst_ListBox::aManyThousandItemsFit()
{
    constexpr int Aantal = 400000;
    QStringList teksten;
    for (int i = 0; i < Aantal; ++i)
        teksten += QString::number(i);
    ListBox lijst(nullptr);
    QVERIFY(lijst.uniformItemSizes()); // else each row is measured
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

/// What is told when the pointer rests on a place of a list.
static QString Verteld(const ListBox &lijst, QPoint plaats)
{
    QToolTip::hideText();
    [] { QTRY_VERIFY(!QToolTip::isVisible()); }();
    QHelpEvent rust(QEvent::ToolTip, plaats, lijst.viewport()->mapToGlobal(plaats));
    QCoreApplication::sendEvent(lijst.viewport(), &rust);
    return QToolTip::text();
}

void tst_ListBox::aTextOfMegabytesIsShownByItsBeginning()
{
    DrieWoorden lijst;
    const QString lang(5000000, u'm');
    lijst.SetItems({lang});
    QCOMPARE(lijst.List(0), lang);
    QTest::ignoreMessage(QtWarningMsg, GeenVoorgrond);
    QCOMPARE(Verteld(lijst, Rij(lijst, 0)).count(u'm'), 260);
}

void tst_ListBox::rowsAreAsWideAsTheList()
{
    DrieWoorden lijst;
    const QString lang(100, u'm');
    for (const QStringList &teksten : {QStringList{u"kort"_s, lang}, QStringList{lang, u"kort"_s}}) {
        lijst.SetItems(teksten);
        QCoreApplication::processEvents();
        for (const int rij : {0, 1})
            QCOMPARE(lijst.visualRect(lijst.model()->index(rij, 0)).width(), lijst.viewport()->width());
        QVERIFY(!lijst.horizontalScrollBar()->isVisible());
    }
}

void tst_ListBox::whatIsCutOffIsToldUnderThePointer_data()
{
    QTest::addColumn<QString>("tekst");
    QTest::addColumn<QString>("verteld");
    Geval("all is seen", "kat", "");
    Geval("a long word", QString(100, u'm'), u"<p>"_s + QString(100, u'm') + u"</p>"_s);
    Geval("as it stands", u"<b>"_s + QString(60, u'm'), u"<p>&lt;b&gt;"_s + QString(60, u'm') + u"</p>"_s);
}
void tst_ListBox::whatIsCutOffIsToldUnderThePointer()
{
    QFETCH(QString, tekst);
    QFETCH(QString, verteld);
    DrieWoorden lijst;
    lijst.SetItems({u"aap"_s, tekst, u"mies"_s});
    if (!verteld.isEmpty())
        QTest::ignoreMessage(QtWarningMsg, GeenVoorgrond);
    QCOMPARE(Verteld(lijst, Rij(lijst, 1)), verteld);
    QCOMPARE(Verteld(lijst, Rij(lijst, 0)), QString());
    QCOMPARE(Verteld(lijst, lijst.viewport()->rect().bottomLeft()), QString()); // below the rows
}

RASTER_TEST(tst_ListBox)
#include "tst_ListBox.moc"
