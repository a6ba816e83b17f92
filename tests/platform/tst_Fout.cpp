#include "support/Testbank.h"

#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

class tst_Fout : public QObject
{
    Q_OBJECT

private slots:
    void aStatementThatEndsWellIsToldApart();
    void failuresAreDropped_data();
    void failuresAreDropped();
    void aHandlerThatIsGivenUpIsNoFailure();
    void exceptionsOfTheLibraryHaveANumber();
};

void tst_Fout::aStatementThatEndsWellIsToldApart()
{
    int gedaan = 0;
    QVERIFY(negeer([&] { ++gedaan; }));
    QCOMPARE(gedaan, 1);
}

void tst_Fout::failuresAreDropped_data()
{
    QTest::addColumn<int>("soort");
    Geval("one of ours", 0);
    Geval("out of memory", 1);
    Geval("any other of the standard library", 2);
}

static void Mislukt(int soort)
{
    if (soort == 0)
        throw Fout(Fout::SchijfFout);
    if (soort == 1)
        throw std::bad_alloc();
    throw std::out_of_range("buiten");
}

void tst_Fout::failuresAreDropped()
{
    QFETCH(int, soort);
    QVERIFY(!negeer([&] { Mislukt(soort); }));
}

void tst_Fout::aHandlerThatIsGivenUpIsNoFailure()
{
    QVERIFY_THROWS_EXCEPTION(Afgebroken, negeer([] { throw Afgebroken(); }));
}

void tst_Fout::exceptionsOfTheLibraryHaveANumber()
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

RASTER_TEST(tst_Fout)
#include "tst_Fout.moc"
