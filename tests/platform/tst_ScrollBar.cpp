#include "platform/ScrollBar.h"
#include "support/Testbank.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

class tst_ScrollBar : public QObject
{
    Q_OBJECT
private slots:
    void theKeysMoveIt_data()
    {
        QTest::addColumn<Qt::Key>("toets");
        QTest::addColumn<int>("waarde");
        Geval("Left", Qt::Key_Left, 9);
        Geval("Right", Qt::Key_Right, 11);
        Geval("Up", Qt::Key_Up, 9);
        Geval("Down", Qt::Key_Down, 11);
        Geval("PageUp", Qt::Key_PageUp, 7);
        Geval("PageDown", Qt::Key_PageDown, 13);
        Geval("Home", Qt::Key_Home, 2);
        Geval("End", Qt::Key_End, 19);
        Geval("letter", Qt::Key_A, 10);
    }
    void theKeysMoveIt()
    {
        QFETCH(Qt::Key, toets);
        for (const Qt::Orientation richting : {Qt::Horizontal, Qt::Vertical}) {
            ScrollBar schuif(richting, nullptr);
            QCOMPARE(schuif.orientation(), richting);
            schuif.setRange(2, 19);
            schuif.setPageStep(3);
            schuif.setValue(10);
            QTest::keyClick(&schuif, toets);
            QTEST(schuif.value(), "waarde");
        }
    }

    void itShowsThatItHasTheFocus()
    {
        QWidget venster;
        venster.resize(200, 100);
        QWidget eerste(&venster);
        eerste.setFocusPolicy(Qt::StrongFocus);
        ScrollBar schuif(Qt::Horizontal, &venster);
        schuif.resize(150, 20);
        venster.show();
        venster.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&venster));
        eerste.setFocus();
        QImage verwacht = Getoond(schuif);
        QTest::keyClick(&venster, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), &schuif);
        QPainter painter(&verwacht);
        painter.setPen(schuif.palette().color(QPalette::Highlight));
        painter.drawRect(0, 0, 149, 19);
        QCOMPARE(Getoond(schuif), verwacht);
    }

    void aClickGivesItTheFocus()
    {
        QWidget venster;
        venster.resize(200, 100);
        ScrollBar schuif(Qt::Horizontal, &venster);
        QCOMPARE(schuif.focusPolicy(), Qt::StrongFocus);
    }
};

RASTER_TEST(tst_ScrollBar)
#include "tst_ScrollBar.moc"
