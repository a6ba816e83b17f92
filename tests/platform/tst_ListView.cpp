#include "platform/ListView.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

/// A list of three rows, shown, with its columns narrower and its rows fewer than it has room for.
class DrieRijen : public ListView
{
public:
    DrieRijen() : ListView({{u"Plaats"_s, 1500}, {u"Woord"_s, 900}}, nullptr)
    {
        resize(300, 200);
        for (const QString &woord : {u"aap"_s, u"noot"_s, u"mies"_s})
            addTopLevelItem(new QTreeWidgetItem({woord.toUpper(), woord}));
        show();
    }
    /// The first text of the row that is chosen; "-" when none is.
    QString Gekozen() const
    {
        const QList<QTreeWidgetItem *> gekozen = selectedItems();
        return gekozen.size() == 1 ? gekozen.first()->text(0) : u"-"_s;
    }
    void Kies(int rij) { setCurrentItem(topLevelItem(rij)); }
    QPoint Plek(int rij, int kolom = 0) const { return visualRect(model()->index(rij, kolom)).center(); }
    QPoint Onder() const { return {50, 150}; }
    QPoint Naast() const { return {250, Plek(1).y()}; }
};

/// The rows that a list has told, in order, as the handler finds them chosen.
class Verteld : public QStringList
{
public:
    explicit Verteld(const DrieRijen &lijst)
    {
        QObject::connect(&lijst, &ListView::ItemClick, &lijst, [&] { *this += lijst.Gekozen(); });
    }
};

class tst_ListView : public QObject
{
    Q_OBJECT

    static void BuitenDeRijen()
    {
        QTest::addColumn<bool>("onder");
        QTest::addColumn<Qt::KeyboardModifiers>("toets");
        for (const bool onder : {true, false})
            for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
                Geval(QByteArray(onder ? "below the rows" : "beside the columns") + ", modifier " +
                          QByteArray::number(toets.toInt(), 16),
                      onder, toets);
    }

private slots:
    void theColumnsHaveTheirCaptionsAndWidths()
    {
        const DrieRijen lijst;
        QCOMPARE(lijst.columnCount(), 2);
        QCOMPARE(lijst.headerItem()->text(0), u"Plaats"_s);
        QCOMPARE(lijst.headerItem()->text(1), u"Woord"_s);
        QCOMPARE(lijst.columnWidth(0), 100);
        QCOMPARE(lijst.columnWidth(1), 60);
        QVERIFY(!lijst.header()->sectionsMovable());
    }

    void theCaptionsAreSeenWhole()
    {
        DrieRijen lijst;
        lijst.show();
        const QRect regel = lijst.fontMetrics().boundingRect(u"Plaats"_s);
        QVERIFY(lijst.header()->height() >= lijst.fontMetrics().height() + 4);
        QVERIFY(lijst.header()->height() <= 2 * lijst.fontMetrics().height());
        QVERIFY(lijst.header()->sectionSizeHint(0) >= regel.width());
    }

    void rowsHaveNoRoomForATree()
    {
        const DrieRijen lijst;
        QCOMPARE(lijst.visualRect(lijst.model()->index(0, 0)).left(), 0);
        QVERIFY(lijst.uniformRowHeights()); // else each row is measured
    }

    void aClickOnARowIsToldOnce_data()
    {
        QTest::addColumn<int>("gekozen");
        QTest::addColumn<int>("kolom");
        QTest::addColumn<Qt::KeyboardModifiers>("toets");
        for (const int gekozen : {-1, 0, 1})
            for (const int kolom : {0, 1})
                for (const Qt::KeyboardModifiers toets : {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier})
                    Geval("column " + QByteArray::number(kolom) + " after row " + QByteArray::number(gekozen) +
                              " with modifier " + QByteArray::number(toets.toInt(), 16),
                          gekozen, kolom, toets);
    }
    void aClickOnARowIsToldOnce()
    {
        QFETCH(int, gekozen);
        QFETCH(int, kolom);
        QFETCH(Qt::KeyboardModifiers, toets);
        DrieRijen lijst;
        lijst.Kies(gekozen);
        const Verteld verteld(lijst);
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, toets, lijst.Plek(1, kolom));
        QCOMPARE(verteld, QStringList{"NOOT"});
        QVERIFY(lijst.selectionModel()->isRowSelected(1));
        QCOMPARE(lijst.Gekozen(), u"NOOT"_s);
    }

    void aDoubleClickOnARowIsOneChoice()
    {
        DrieRijen lijst;
        const Verteld verteld(lijst);
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, {}, lijst.Plek(1));
        QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, {}, lijst.Plek(1));
        QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, lijst.Plek(1));
        QCOMPARE(verteld, QStringList{"NOOT"});
    }

    void aClickOutsideTheRowsKeepsTheChosenOne_data() { BuitenDeRijen(); }
    void aClickOutsideTheRowsKeepsTheChosenOne()
    {
        QFETCH(bool, onder);
        QFETCH(Qt::KeyboardModifiers, toets);
        DrieRijen lijst;
        lijst.Kies(2);
        const Verteld verteld(lijst);
        const QPoint plek = onder ? lijst.Onder() : lijst.Naast();
        QVERIFY(!lijst.indexAt(plek).isValid());
        QTest::mouseClick(lijst.viewport(), Qt::LeftButton, toets, plek);
        QTest::mouseDClick(lijst.viewport(), Qt::LeftButton, toets, plek);
        QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, toets, plek);
        QCOMPARE(lijst.Gekozen(), u"MIES"_s);
        QCOMPARE(verteld, QStringList());
    }

    void draggingChoosesTheRowUnderThePointer()
    {
        DrieRijen lijst;
        lijst.Kies(2);
        const Verteld verteld(lijst);
        QTest::mousePress(lijst.viewport(), Qt::LeftButton, {}, lijst.Plek(0));
        for (const QPoint plek : {lijst.Plek(1), lijst.Onder()}) {
            QMouseEvent sleep(QEvent::MouseMove, plek, lijst.viewport()->mapToGlobal(plek), Qt::NoButton,
                              Qt::LeftButton, {});
            QApplication::sendEvent(lijst.viewport(), &sleep);
        }
        QTest::mouseRelease(lijst.viewport(), Qt::LeftButton, {}, lijst.Onder());
        QCOMPARE(verteld, (QStringList{"AAP", "NOOT"}));
        QCOMPARE(lijst.Gekozen(), u"NOOT"_s);
    }

    void onlyTheLeftButtonChooses()
    {
        DrieRijen lijst;
        lijst.Kies(2);
        const Verteld verteld(lijst);
        for (const Qt::MouseButton knop : {Qt::RightButton, Qt::MiddleButton})
            for (const int rij : {0, 2})
                QTest::mouseClick(lijst.viewport(), knop, {}, lijst.Plek(rij));
        QCOMPARE(lijst.Gekozen(), u"MIES"_s);
        QCOMPARE(verteld, QStringList());
    }

    void aKeyChoosesARowAndIsToldOnce_data()
    {
        QTest::addColumn<int>("toets");
        QTest::addColumn<QString>("gekozen");
        Geval("down", int(Qt::Key_Down), "MIES");
        Geval("up", int(Qt::Key_Up), "AAP");
        Geval("home", int(Qt::Key_Home), "AAP");
        Geval("end", int(Qt::Key_End), "MIES");
        Geval("page up", int(Qt::Key_PageUp), "AAP");
        Geval("page down", int(Qt::Key_PageDown), "MIES");
        Geval("letter", int(Qt::Key_M), "MIES");
    }
    void aKeyChoosesARowAndIsToldOnce()
    {
        QFETCH(int, toets);
        QFETCH(QString, gekozen);
        for (const Qt::KeyboardModifiers met : {Qt::NoModifier, Qt::ShiftModifier}) {
            DrieRijen lijst;
            lijst.Kies(1);
            const Verteld verteld(lijst);
            QTest::keyClick(&lijst, Qt::Key(toets), met);
            QCOMPARE(verteld, QStringList{gekozen});
            QCOMPARE(lijst.Gekozen(), gekozen);
            QVERIFY(lijst.selectionModel()->isRowSelected(lijst.currentIndex().row()));
        }
    }

    void keysThatDoNotMoveTellNothing()
    {
        DrieRijen lijst;
        lijst.Kies(2);
        const Verteld verteld(lijst);
        for (const Qt::Key toets : {Qt::Key_Down, Qt::Key_End, Qt::Key_X, Qt::Key_Left, Qt::Key_Right, Qt::Key_Escape})
            QTest::keyClick(&lijst, toets);
        QTest::keyClick(&lijst, Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(verteld, QStringList());
        QCOMPARE(lijst.Gekozen(), u"MIES"_s);
    }

    void keysStartOutsideAListWithoutAChosenRow()
    {
        for (const Qt::Key toets : {Qt::Key_Down, Qt::Key_Home, Qt::Key_A}) {
            DrieRijen lijst;
            lijst.setFocus();
            lijst.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&lijst));
            QCOMPARE(lijst.Gekozen(), u"-"_s);
            const Verteld verteld(lijst);
            QTest::keyClick(&lijst, toets);
            QCOMPARE(verteld, QStringList{"AAP"});
        }
    }

    void aTextOfMegabytesIsShownByItsBeginning()
    {
        const QString lang(5000000, u'm');
        ListView lijst({{u"Woord"_s, 900}}, nullptr);
        lijst.addTopLevelItem(new QTreeWidgetItem({lang}));
        QCOMPARE(lijst.topLevelItem(0)->text(0), lang);
        auto *delegate = qobject_cast<QStyledItemDelegate *>(lijst.itemDelegate());
        QVERIFY(delegate);
        QCOMPARE(delegate->displayText(lang, QLocale()), lang.left(260));
    }

    void theBeginningHasNoHalfLetters()
    {
        const ListView lijst({}, nullptr);
        auto *delegate = qobject_cast<QStyledItemDelegate *>(lijst.itemDelegate());
        const QString lang = QString(259, u'm') + u"\U0001F600"_s + u"mm"_s;
        QCOMPARE(delegate->displayText(lang, QLocale()), QString(259, u'm'));
    }
};

RASTER_TEST(tst_ListView)
#include "tst_ListView.moc"
