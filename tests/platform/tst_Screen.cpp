#include "platform/Screen.h"
#include "support/Testbank.h"

#include <QGuiApplication>

class tst_Screen : public QObject
{
    Q_OBJECT

    static int Pointer()
    {
        const QCursor *pointer = QGuiApplication::overrideCursor();
        return pointer ? int(pointer->shape()) : -1;
    }

private slots:
    void theHourglassStaysUntilAnotherPointerIsAskedFor_data()
    {
        QTest::addColumn<int>("soort");
        Geval("arrow", Screen::Arrow);
        Geval("the program's own", Screen::Own);
    }
    void theHourglassStaysUntilAnotherPointerIsAskedFor()
    {
        QFETCH(int, soort);
        QCOMPARE(Pointer(), -1);
        Screen::MousePointer(Screen::Hourglass);
        QCOMPARE(Pointer(), int(Qt::WaitCursor));
        Screen::MousePointer(Screen::Hourglass); // a second time is no second hourglass
        QCOMPARE(Pointer(), int(Qt::WaitCursor));
        Screen::MousePointer(soort);
        QCOMPARE(Pointer(), -1);
    }

    void busyWorkShowsTheHourglassUntilItEnds()
    {
        {
            const Screen::Bezig bezig;
            QCOMPARE(Pointer(), int(Qt::WaitCursor));
        }
        QCOMPARE(Pointer(), -1);
        QCOMPARE(FoutVan([] {
                     const Screen::Bezig bezig;
                     throw Fout(Fout::Overloop);
                 }),
                 int(Fout::Overloop));
        QCOMPARE(Pointer(), -1); // also when a failure ends the work
    }

    void aQuestionInTheMidstOfWorkHasTheArrow()
    {
        {
            const Screen::Bezig bezig;
            {
                const Screen::Vraagt vraagt;
                QCOMPARE(Pointer(), -1);
            }
            QCOMPARE(Pointer(), int(Qt::WaitCursor));
        }
        {
            const Screen::Vraagt vraagt;
        }
        QCOMPARE(Pointer(), -1); // there was no work
    }

    void whateverPointerWasSetIsTakenAway()
    {
        QGuiApplication::setOverrideCursor(Qt::CrossCursor);
        QGuiApplication::setOverrideCursor(Qt::SizeAllCursor);
        Screen::MousePointer(Screen::Own);
        QCOMPARE(Pointer(), -1);
    }
};

RASTER_TEST(tst_Screen)
#include "tst_Screen.moc"
