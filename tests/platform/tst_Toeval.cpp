#include "platform/Toeval.h"
#include "support/Testbank.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <vector>

static std::vector<double> Reeks(int aantal)
{
    std::vector<double> reeks;
    for (int i = 0; i < aantal; ++i)
        reeks.push_back(Toeval::Rnd());
    return reeks;
}

class tst_Toeval : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { Toeval::ZonderZaad(); }

    void everyNumberLiesFromZeroUpToOne()
    {
        double kleinste = 1, grootste = 0;
        for (const double getal : Reeks(20000)) {
            QVERIFY(getal >= 0);
            QVERIFY(getal < 1);
            kleinste = std::min(kleinste, getal);
            grootste = std::max(grootste, getal);
        }
        QVERIFY(kleinste < 0.01);
        QVERIFY(grootste > 0.99);
    }

    void theNumbersGoInStepsOfTwoToTheMinusTwentyFour()
    {
        bool fijn = false;
        for (const double getal : Reeks(1000)) {
            const double stappen = getal * (1 << 24);
            QCOMPARE(stappen, std::floor(stappen));
            fijn = fijn || std::fmod(stappen, 2) == 1;
        }
        QVERIFY(fijn);
    }

    void theSameSeedGivesTheSameSeries()
    {
        Toeval::Zaad(42);
        const auto eerste = Reeks(100);
        Toeval::Zaad(42);
        QVERIFY(Reeks(100) == eerste);
    }

    void anotherSeedGivesAnotherSeries()
    {
        Toeval::Zaad(1);
        const auto eerste = Reeks(10);
        Toeval::Zaad(2);
        QVERIFY(Reeks(10) != eerste);
    }

    void randomizeLeavesASeededSeriesAlone()
    {
        Toeval::Zaad(7);
        const auto eerste = Reeks(20);
        Toeval::Zaad(7);
        auto tweede = Reeks(10);
        Toeval::Randomize();
        for (const double getal : Reeks(10))
            tweede.push_back(getal);
        QVERIFY(tweede == eerste);
    }

    void randomizeDoesNotStartTheSeriesAgain()
    {
        std::set<double> getallen;
        for (int i = 0; i < 1000; ++i) { // all of them within a moment of the clock
            Toeval::Randomize();
            getallen.insert(Toeval::Rnd());
        }
        QVERIFY2(getallen.size() > 990, qPrintable(QString::number(getallen.size())));
    }

    void withoutTheSeedTheSeriesCannotBeForetold()
    {
        Toeval::Zaad(7);
        const auto metZaad = Reeks(20);
        Toeval::Zaad(7);
        Reeks(10);
        Toeval::ZonderZaad();
        const auto zonder = Reeks(10);
        QVERIFY(!std::equal(zonder.begin(), zonder.end(), metZaad.begin()));
        QVERIFY(!std::equal(zonder.begin(), zonder.end(), metZaad.begin() + 10));
    }

    void theLettersComeAboutEquallyOften()
    {
        constexpr int PerLetter = 2000;
        for (const std::uint32_t zaad : {1u, 2026u, 0xFFFFFFFFu}) {
            Toeval::Zaad(zaad);
            std::array<int, 26> aantallen{};
            for (int i = 0; i < 26 * PerLetter; ++i)
                ++aantallen.at(static_cast<std::size_t>(Toeval::Rnd() * 26));
            for (const int aantal : aantallen)
                QVERIFY2(std::abs(aantal - PerLetter) < PerLetter / 8, qPrintable(QString::number(aantal)));
        }
    }
};

RASTER_TEST(tst_Toeval)
#include "tst_Toeval.moc"
