#include "platform/Klok.h"
#include "support/Testbank.h"

#include <QTimer>

#include <vector>

/// What a test's clock raises to end a wait that would go on for ever.
struct Genoeg
{
};

/// A clock that follows a list of times, one for each sleep, and notes what it was asked.
class LijstKlok : public Klok
{
public:
    LijstKlok(double begin, std::vector<double> tijden) : timer_(begin), tijden_(std::move(tijden)) {}

    double Timer() override { return timer_; }
    void Slaap(double seconden, QEventLoop::ProcessEventsFlags welke) override
    {
        Gevraagd.push_back(seconden);
        Welke = welke;
        if (Gevraagd.size() > tijden_.size())
            throw Genoeg();
        timer_ = tijden_[Gevraagd.size() - 1];
    }

    std::vector<double> Gevraagd;
    QEventLoop::ProcessEventsFlags Welke;

private:
    double timer_;
    std::vector<double> tijden_;
};

static bool IsAfgebroken(Klok &klok, double seconden = 1)
{
    try {
        klok.Wacht(seconden);
    } catch (const Afgebroken &) {
        return true;
    }
    return false;
}

class tst_Klok : public QObject
{
    Q_OBJECT
private slots:
    void cleanup()
    {
        Klok::Gebruik(nullptr);
        Klok::ProgrammaEindigt(false);
    }

    void aProgramThatHasJustBegunWaits() // the first test: nothing has been set yet
    {
        DirecteKlok klok;
        QVERIFY(!IsAfgebroken(klok));
    }

    void theTimerCountsTheSecondsSinceMidnight()
    {
        Klok klok;
        // Midnight may fall between two readings; then they are read again.
        for (int poging = 0; poging < 2; ++poging) {
            const int voor = QTime::currentTime().msecsSinceStartOfDay();
            const double timer = klok.Timer();
            const int na = QTime::currentTime().msecsSinceStartOfDay();
            if (na < voor)
                continue;
            QVERIFY(timer >= voor / 1000.0);
            QVERIFY(timer <= na / 1000.0);
            return;
        }
        QFAIL("no two readings within one day");
    }

    void nowIsTheDateAndTimeOfToday()
    {
        Klok klok;
        const QDateTime voor = QDateTime::currentDateTime();
        const QDateTime nu = klok.Nu();
        QVERIFY(nu >= voor);
        QVERIFY(nu <= QDateTime::currentDateTime());
    }

    void theClockInUseCanBeReplaced()
    {
        Klok &echte = Klok::Huidig();
        DirecteKlok andere;
        Klok::Gebruik(&andere);
        QCOMPARE(&Klok::Huidig(), &andere);
        Klok::Gebruik(nullptr);
        QCOMPARE(&Klok::Huidig(), &echte);
    }

    void aDirectWaitRunsPendingEventsAndMovesTheClockOn()
    {
        DirecteKlok klok;
        int gedaan = 0;
        QMetaObject::invokeMethod(
            this, [&] { ++gedaan; }, Qt::QueuedConnection);
        klok.ZetTimer(100);
        klok.Wacht(0.25);
        QCOMPARE(gedaan, 1);
        QCOMPARE(klok.Timer(), 100.25);
        klok.Wacht(0.5);
        QCOMPARE(klok.Timer(), 100.75);
        QCOMPARE(klok.Gewacht(), 0.75);
    }

    void aDirectWaitMovesOnlyTheTimer()
    {
        DirecteKlok klok;
        const QDateTime nu(QDate(2024, 2, 29), QTime(23, 59, 59));
        klok.ZetNu(nu);
        klok.Wacht(2);
        QCOMPARE(klok.Nu(), nu);
        klok.ZetTimer(5);
        QCOMPARE(klok.Timer(), 5.0);
        QCOMPARE(klok.Gewacht(), 2.0);
    }

    void aWaitOfNothingRunsPendingEventsOnce()
    {
        LijstKlok klok(86399.9, {0.1}); // midnight doesn't prolong it
        klok.Wacht(0, QEventLoop::ExcludeUserInputEvents);
        QCOMPARE(klok.Gevraagd, std::vector{0.0});
        QCOMPARE(klok.Welke, QEventLoop::ExcludeUserInputEvents);
    }

    void aWaitOfLessThanNothingIsOneOfNothing()
    {
        LijstKlok klok(100, {100});
        klok.Wacht(-1);
        QCOMPARE(klok.Gevraagd, std::vector{0.0});
    }

    void aRealWaitOfNothingRunsPendingEvents()
    {
        Klok klok;
        int gedaan = 0;
        QMetaObject::invokeMethod(
            this, [&] { ++gedaan; }, Qt::QueuedConnection);
        klok.Wacht(0);
        QCOMPARE(gedaan, 1);
    }

    void theEndOfTheProgramEndsAWaitOfNothingToo()
    {
        DirecteKlok klok;
        QMetaObject::invokeMethod(
            this, [] { Klok::ProgrammaEindigt(); }, Qt::QueuedConnection);
        QVERIFY(IsAfgebroken(klok, 0));
    }

    void aWaitSleepsOnlyWhatIsLeft()
    {
        LijstKlok klok(100, {100.5, 101.5, 102});
        klok.Wacht(2);
        QCOMPARE(klok.Gevraagd, (std::vector{2.0, 1.5, 0.5}));
    }

    void aRestThatIsOnlyRoundingEndsTheWait()
    {
        LijstKlok klok(100, {100.9999999});
        klok.Wacht(1);
        QCOMPARE(klok.Gevraagd, std::vector{1.0});
    }

    void aRestIsRoundingUpToAMicrosecond()
    {
        LijstKlok onder(0, {1 - 9e-7}), boven(0, {1 - 11e-7, 1});
        onder.Wacht(1);
        QCOMPARE(onder.Gevraagd.size(), std::size_t{1});
        boven.Wacht(1);
        QCOMPARE(boven.Gevraagd.size(), std::size_t{2});
    }

    void aSmallRestIsSleptToo()
    {
        LijstKlok klok(100, {100.999, 101});
        klok.Wacht(1);
        QCOMPARE(klok.Gevraagd.size(), std::size_t{2});
        QVERIFY(klok.Gevraagd[1] > 0.0009);
        QVERIFY(klok.Gevraagd[1] < 0.0011);
    }

    void aWaitAcrossMidnightSleepsOn()
    {
        constexpr int Slaapjes = 50;
        std::vector<double> tijden;
        for (int i = 0; i < Slaapjes; ++i)
            tijden.push_back(i * 0.2);
        LijstKlok klok(86399.9, tijden);
        QVERIFY_EXCEPTION_THROWN(klok.Wacht(0.2), Genoeg);
        QCOMPARE(klok.Gevraagd.size(), std::size_t{Slaapjes + 1});
        for (const double seconden : klok.Gevraagd)
            QCOMPARE(seconden, 0.2);
    }

    void midnightEndsAWaitThatHoldsInputBack()
    {
        LijstKlok klok(86399.9, {0.05});
        klok.Wacht(0.2, QEventLoop::ExcludeUserInputEvents);
        QCOMPARE(klok.Gevraagd.size(), std::size_t{1});
    }

    void aClockThatStandsStillIsNoMidnight()
    {
        LijstKlok klok(100, {100, 100.2});
        klok.Wacht(0.2, QEventLoop::ExcludeUserInputEvents);
        QCOMPARE(klok.Gevraagd.size(), std::size_t{2});
    }

    void theKindOfEventsIsHandedOn_data()
    {
        QTest::addColumn<int>("welke");
        Geval("all", int(QEventLoop::AllEvents));
        Geval("no clicks and keys", int(QEventLoop::ExcludeUserInputEvents));
    }
    void theKindOfEventsIsHandedOn()
    {
        QFETCH(int, welke);
        LijstKlok klok(0, {1});
        klok.Wacht(1, QEventLoop::ProcessEventsFlags(welke));
        QCOMPARE(int(klok.Welke), welke);
    }

    void theEndOfTheProgramEndsEveryWait()
    {
        DirecteKlok klok;
        Klok::ProgrammaEindigt();
        QVERIFY(IsAfgebroken(klok));
        QVERIFY(IsAfgebroken(klok));
        Klok::ProgrammaEindigt(false);
        QVERIFY(!IsAfgebroken(klok));
    }

    void theEndOfTheProgramDuringAWaitEndsIt()
    {
        DirecteKlok klok;
        QMetaObject::invokeMethod(
            this, [] { Klok::ProgrammaEindigt(); }, Qt::QueuedConnection);
        QVERIFY(IsAfgebroken(klok));
    }

    void aRealWaitHandlesEventsMeanwhile()
    {
        Klok klok;
        bool gedaan = false;
        QTimer::singleShot(1, this, [&] { gedaan = true; });
        klok.Wacht(0.05);
        QVERIFY(gedaan);
    }
};

RASTER_TEST(tst_Klok)
#include "tst_Klok.moc"
