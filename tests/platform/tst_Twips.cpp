#include "platform/Twips.h"
#include "support/Testbank.h"

class tst_Twips : public QObject
{
    Q_OBJECT
private slots:
    void toTheNearestPixel_data()
    {
        QTest::addColumn<double>("twips");
        QTest::addColumn<int>("pixels");
        Geval("none", 0.0, 0);
        Geval("a pixel", 15.0, 1);
        Geval("a cell", 450.0, 30);
        Geval("below a half", 457.0, 30);
        Geval("a half", 457.5, 31);
        Geval("above a half", 458.0, 31);
        Geval("half below zero", -7.5, -1);
        Geval("nearly half below zero", -7.0, 0);
        Geval("below zero", -30.0, -2);
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
