#include "generators/SudokuMod.h"
#include "platform/Toeval.h"
#include "support/Testbank.h"

#include <bitset>
#include <limits>
#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

using Raster = std::array<qint32, 81>;

/// Whether a cell sees another one, or is it.
static bool Ziet(int a, int b)
{
    return a / 9 == b / 9 || a % 9 == b % 9 || (a / 27 == b / 27 && a % 9 / 3 == b % 9 / 3);
}

/// The digits that no cell holds that this one sees.
static QString VrijeCijfers(const Raster &raster, int cel)
{
    std::array<bool, 10> gebruikt{};
    for (int ander = 0; ander < 81; ++ander)
        if (Ziet(cel, ander))
            gebruikt.at(static_cast<size_t>(raster.at(static_cast<size_t>(ander)))) = true;
    QString cijfers;
    for (int cijfer = 1; cijfer <= 9; ++cijfer)
        if (!gebruikt.at(static_cast<size_t>(cijfer)))
            cijfers += QString::number(cijfer);
    return cijfers;
}

/// Fills a grid by the rule told in words: the empty cell with the fewest free digits, the lowest of these, takes a
/// random one of them, without a draw when there is but one; where a cell has none left, all starts again.
/// @param pogingen how often it began
static Raster Nagebouwd(int &pogingen)
{
    for (pogingen = 1;; ++pogingen) {
        Raster raster{};
        int gevuld = 0;
        while (gevuld < 81) {
            int beste = -1;
            QString keuze = u"0123456789"_s;
            for (int cel = 0; cel < 81 && !keuze.isEmpty(); ++cel) {
                if (raster.at(static_cast<size_t>(cel)) != 0)
                    continue;
                const QString vrij = VrijeCijfers(raster, cel);
                if (vrij.size() < keuze.size()) {
                    keuze = vrij;
                    beste = cel;
                }
            }
            if (keuze.isEmpty())
                break;
            const auto plaats = keuze.size() == 1 ? 0 : static_cast<int>(Toeval::Rnd() * double(keuze.size()));
            raster.at(static_cast<size_t>(beste)) = keuze.mid(plaats, 1).toInt();
            ++gevuld;
        }
        if (gevuld == 81)
            return raster;
    }
}

/// Whether each row, column and box holds all nine digits.
static bool IsGeldig(const Raster &raster)
{
    std::array<std::bitset<10>, 27> gezien;
    for (size_t cel = 0; cel < 81; ++cel) {
        const int cijfer = raster.at(cel);
        if (cijfer < 1 || cijfer > 9)
            return false;
        for (const size_t groep : {cel / 9, 9 + cel % 9, 18 + cel / 27 * 3 + cel % 9 / 3})
            gezien.at(groep).set(static_cast<size_t>(cijfer));
    }
    return std::all_of(gezien.begin(), gezien.end(), [](const auto &groep) { return groep.count() == 9; });
}

static Raster MetZaad(std::uint32_t zaad)
{
    Toeval::Zaad(zaad);
    MaakSudoku();
    return SudokuOplossing;
}

static QString Tekst(const Raster &raster)
{
    QString tekst;
    for (const int cijfer : raster)
        tekst += QString::number(cijfer);
    return tekst;
}

/// How far counts are from even ones.
template <class Aantallen> static double ChiKwadraat(const Aantallen &aantallen)
{
    const double verwacht = std::accumulate(aantallen.begin(), aantallen.end(), 0.0) / double(aantallen.size());
    double som = 0;
    for (const int aantal : aantallen)
        som += (aantal - verwacht) * (aantal - verwacht) / verwacht;
    return som;
}

class tst_SudokuMod : public QObject
{
    Q_OBJECT
private slots:
    void init() { Toeval::ZonderZaad(); }

    void beforeTheFirstSudokuThereAreZeros() // the first test: later ones make some
    {
        QCOMPARE(Tekst(SudokuOplossing), QString(81, u'0'));
    }

    void aSeedGivesOneSudoku()
    {
        QCOMPARE(Tekst(MetZaad(1)),
                 u"497812365132564789658793214841327596375946821269158473914275638786439152523681947"_s);
        QCOMPARE(Tekst(MetZaad(2026)),
                 u"187364925596287134243195687314926578925748316768531249459813762871652493632479851"_s);
    }

    void everySudokuIsValid()
    {
        std::set<QString> verschillende;
        for (std::uint32_t zaad = 0; zaad < 10'000; ++zaad) {
            const Raster raster = MetZaad(zaad);
            QVERIFY2(IsGeldig(raster), qPrintable(Tekst(raster)));
            verschillende.insert(Tekst(raster));
        }
        QCOMPARE(verschillende.size(), size_t{10'000});
    }

    void sudokusOfTheSameMomentDiffer()
    {
        std::set<QString> verschillende;
        for (int i = 0; i < 100; ++i) {
            MaakSudoku();
            QVERIFY(IsGeldig(SudokuOplossing));
            verschillende.insert(Tekst(SudokuOplossing));
        }
        QCOMPARE(verschillende.size(), size_t{100});
    }

    void itIsFilledByTheRuleOfFewestCandidates()
    {
        int eersteKeer = 0, opnieuw = 0;
        for (std::uint32_t zaad = 0; zaad < 200; ++zaad) {
            const Raster raster = MetZaad(zaad);
            const double volgende = Toeval::Rnd();
            Toeval::Zaad(zaad);
            int pogingen = 0;
            QCOMPARE(Tekst(raster), Tekst(Nagebouwd(pogingen)));
            QCOMPARE(volgende, Toeval::Rnd()); // not a draw more
            ++(pogingen == 1 ? eersteKeer : opnieuw);
        }
        QVERIFY2(eersteKeer > 20 && opnieuw > 20, qPrintable(u"%1 en %2"_s.arg(eersteKeer).arg(opnieuw)));
    }

    void theFirstCellTakesEachDigitEquallyOften()
    {
        std::array<int, 9> aantallen{};
        for (std::uint32_t zaad = 0; zaad < 9000; ++zaad)
            ++aantallen.at(static_cast<size_t>(MetZaad(zaad)[0] - 1));
        QVERIFY2(ChiKwadraat(aantallen) < 26.12, qPrintable(QString::number(ChiKwadraat(aantallen)))); // 0.1%
    }

    void theCandidatesAreTheDigitsThatACellDoesNotSee()
    {
        Toeval::Zaad(3);
        for (int keer = 0; keer < 300; ++keer) {
            SudokuRaster raster;
            Raster plat{};
            for (int gezet = 0; gezet <= keer % 60; ++gezet) {
                const int cel = static_cast<int>(Toeval::Rnd() * 81);
                if (raster[cel] != 0)
                    continue;
                raster.Zet(cel, plat.at(static_cast<size_t>(cel)) = static_cast<int>(Toeval::Rnd() * 9) + 1);
            }
            for (int cel = 0; cel < 81; ++cel) {
                QCOMPARE(raster[cel], plat.at(static_cast<size_t>(cel)));
                QCOMPARE(raster.Kandidaten(cel), VrijeCijfers(plat, cel));
            }
        }
    }

    void anEmptyGridHasAllCandidatesAndASeenCellNone()
    {
        SudokuRaster raster;
        QCOMPARE(raster.Kandidaten(80), u"123456789"_s);
        for (int i = 0; i < 4; ++i)
            raster.Zet(i, i + 1); // in the row of cell 8
        for (int i = 1; i < 5; ++i)
            raster.Zet(8 + i * 9, i + 4); // in its column, two of them in its box
        raster.Zet(16, 9);
        QCOMPARE(raster.Kandidaten(8), QString());
    }

    void randomNumbersLieInTheirRange_data()
    {
        QTest::addColumn<qint32>("laag");
        QTest::addColumn<qint32>("hoog");
        Geval("nine", 1, 9);
        Geval("two", 1, 2);
        Geval("round zero", -3, 3);
        Geval("below zero", -20, -11);
    }
    void randomNumbersLieInTheirRange()
    {
        QFETCH(qint32, laag);
        QFETCH(qint32, hoog);
        constexpr int PerGetal = 10'000;
        Toeval::Zaad(11);
        std::vector<int> aantallen(static_cast<size_t>(hoog - laag + 1));
        for (size_t i = 0; i < PerGetal * aantallen.size(); ++i) {
            const qint32 getal = RandomGetal(laag, hoog);
            QVERIFY(getal >= laag && getal <= hoog);
            ++aantallen[static_cast<size_t>(getal - laag)];
        }
        QVERIFY2(ChiKwadraat(aantallen) < 27.88, qPrintable(QString::number(ChiKwadraat(aantallen)))); // 0.1% for ten
    }

    void theWidestRangeIsTaken()
    {
        constexpr auto Laag = std::numeric_limits<qint32>::min(), Hoog = std::numeric_limits<qint32>::max();
        std::array<int, 4> kwarten{};
        for (int i = 0; i < 1000; ++i)
            ++kwarten.at(static_cast<size_t>((qint64{RandomGetal(Laag, Hoog)} - Laag) >> 30));
        for (const int aantal : kwarten)
            QVERIFY2(aantal > 150 && aantal < 350, qPrintable(QString::number(aantal)));
        QCOMPARE(RandomGetal(Laag, Laag), Laag);
        QCOMPARE(RandomGetal(Hoog, Hoog), Hoog);
    }

    void drawsOfTheSameSecondDiffer()
    {
        std::set<qint32> getallen;
        for (int i = 0; i < 1000; ++i)
            getallen.insert(RandomGetal(1, 1 << 24));
        QVERIFY2(getallen.size() > 990, qPrintable(QString::number(getallen.size())));
    }
};

RASTER_TEST(tst_SudokuMod)
#include "tst_SudokuMod.moc"
