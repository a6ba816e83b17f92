#include "platform/Twips.h"

#include <QTest>

class tst_Twips : public QObject
{
    Q_OBJECT
private slots:
    void toTheNearestPixel_data()
    {
        QTest::addColumn<double>("twips");
        QTest::addColumn<int>("pixels");
        QTest::newRow("none") << 0.0 << 0;
        QTest::newRow("a pixel") << 15.0 << 1;
        QTest::newRow("a cell") << 450.0 << 30;
        QTest::newRow("below a half") << 457.0 << 30;
        QTest::newRow("a half") << 457.5 << 31;
        QTest::newRow("above a half") << 458.0 << 31;
        QTest::newRow("half below zero") << -7.5 << -1;
        QTest::newRow("nearly half below zero") << -7.0 << 0;
        QTest::newRow("below zero") << -30.0 << -2;
    }
    void toTheNearestPixel()
    {
        QFETCH(double, twips);
        QTEST(Twips::NaarPixels(twips), "pixels");
    }

    void fromPixels()
    {
        QCOMPARE(Twips::VanPixels(30), 450.0);
        QCOMPARE(Twips::VanPixels(0.5), 7.5);
        QCOMPARE(Twips::VanPixels(-1), -15.0);
    }

    void theUnits()
    {
        QCOMPARE(Twips::PerInch / Twips::PerPixel, 96);
        QCOMPARE(Twips::PerInch, 1440);
        QCOMPARE(Twips::PerPunt, 20);
    }
};

QTEST_GUILESS_MAIN(tst_Twips)
#include "tst_Twips.moc"
