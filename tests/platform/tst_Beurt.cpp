#include "platform/Beurt.h"
#include "support/HaperendeSchijf.h"
#include "support/Testbank.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class tst_Beurt : public QObject
{
    Q_OBJECT
private slots:
    void oneAtATimeHasIt()
    {
        const Testbank bank;
        const QString pad = bank.Map() + u"/.slot"_s;
        Beurt ander(pad);
        {
            Beurt beurt(pad);
            QVERIFY(beurt.Neem(0));
            QVERIFY(QFile::exists(pad));
            QElapsedTimer wachttijd;
            wachttijd.start();
            QVERIFY(!ander.Neem(200));
            QVERIFY2(wachttijd.elapsed() >= 190, qPrintable(QString::number(wachttijd.elapsed())));
        }
        QVERIFY(!QFile::exists(pad));
        QVERIFY(ander.Neem(0));
    }

    void thatOfAKilledProcessIsHadByTheNext()
    {
        const Testbank bank;
        const QString pad = bank.Map() + u"/.slot"_s;
        QVERIFY(SterftBij(1, [&] {
            Beurt beurt(pad);
            if (beurt.Neem(0))
                Schijf::Huidig().MaakMap(pad); // here it dies
        }));
        QVERIFY(QFile::exists(pad));
        QVERIFY(Beurt(pad).Neem(0));
    }

    void whatIsNoFileGivesNone_data()
    {
        QTest::addColumn<int>("soort");
        Geval("pipe", 0);
        Geval("link to a pipe", 1);
        Geval("folder", 2);
        Geval("link to nothing", 3);
    }
    void whatIsNoFileGivesNone()
    {
        QFETCH(int, soort);
        const Testbank bank;
        const QString pad = bank.Map() + u"/.slot"_s, pijp = bank.Map() + u"/pijp"_s;
        QCOMPARE(mkfifo(QFile::encodeName(soort == 0 ? pad : pijp).constData(), 0600), 0);
        if (soort == 2)
            QVERIFY(QDir().mkdir(pad));
        else if (soort != 0)
            QVERIFY(QFile::link(soort == 1 ? pijp : bank.Map() + u"/weg"_s, pad));
        QElapsedTimer wachttijd;
        wachttijd.start();
        QVERIFY(!Beurt(pad).Neem(4000));
        QVERIFY2(wachttijd.elapsed() < 2000, qPrintable(QString::number(wachttijd.elapsed())));
    }
};

RASTER_TEST(tst_Beurt)
#include "tst_Beurt.moc"
