#include "support/Testbank.h"

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

class TestFout : public QObject
{
    Q_OBJECT

private slots:
    void aStatementThatEndsWellIsToldApart();
    void failuresAreDropped_data();
    void failuresAreDropped();
    void aHandlerThatIsGivenUpIsNoFailure();
    void exceptionsOfTheLibraryHaveANumber();
};

void TestFout::aStatementThatEndsWellIsToldApart()
{
    int gedaan = 0;
    QVERIFY(negeer([&] { ++gedaan; }));
    QCOMPARE(gedaan, 1);
}

void TestFout::failuresAreDropped_data()
{
    QTest::addColumn<int>("soort");
    QTest::newRow("one of ours") << 0;
    QTest::newRow("out of memory") << 1;
    QTest::newRow("any other of the standard library") << 2;
}

static void Mislukt(int soort)
{
    if (soort == 0)
        throw Fout(Fout::SchijfFout);
    if (soort == 1)
        throw std::bad_alloc();
    throw std::out_of_range("buiten");
}

void TestFout::failuresAreDropped()
{
    QFETCH(int, soort);
    QVERIFY(!negeer([&] { Mislukt(soort); }));
}

void TestFout::aHandlerThatIsGivenUpIsNoFailure()
{
    QVERIFY_THROWS_EXCEPTION(Afgebroken, negeer([] { throw Afgebroken(); }));
}

void TestFout::exceptionsOfTheLibraryHaveANumber()
{
    const auto van = [](int soort) {
        try {
            Mislukt(soort);
        } catch (const std::exception &fout) {
            return Fout::Van(fout);
        }
        return Fout(Fout::OngeldigArgument);
    };
    QCOMPARE(van(0).nummer(), Fout::SchijfFout);
    QCOMPARE(van(1).nummer(), Fout::GeheugenVol);
    QCOMPARE(van(1).tekst(), u"Onvoldoende geheugen"_s);
    QCOMPARE(van(2).nummer(), Fout::InterneFout);
    QCOMPARE(van(2).tekst(), u"Interne fout (buiten)"_s);
}

RASTER_TEST(TestFout)
#include "tst_Fout.moc"
