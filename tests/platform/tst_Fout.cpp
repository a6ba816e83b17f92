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
    void aComponentHasFailuresOfItsOwn();
    void everyNumberHasItsText_data();
    void everyNumberHasItsText();
    void whatAFailureIsAboutStandsBehindItsText();
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

void tst_Fout::aComponentHasFailuresOfItsOwn()
{
    const Fout fout(static_cast<qint32>(0x80040001), u"Onderdeel"_s, u"Its own words."_s);
    const std::exception &gevangen = fout;
    for (const Fout &een : {fout, Fout::Van(gevangen)}) {
        QCOMPARE(een.nummer(), -2147221503);
        QCOMPARE(een.bron(), u"Onderdeel"_s);
        QCOMPARE(een.tekst(), u"Its own words."_s);
    }
    QCOMPARE(Fout(5, u"Onderdeel"_s, u"Its own words."_s).tekst(), u"Its own words."_s);
    QCOMPARE(Fout(Fout::OngeldigArgument).bron(), QString());
    QCOMPARE(Fout(Fout::OngeldigArgument).tekst(), u"Ongeldig argument"_s);
}

void tst_Fout::everyNumberHasItsText_data()
{
    QTest::addColumn<int>("nummer");
    QTest::addColumn<QString>("tekst");
    const auto geval = [](int nummer, const QString &tekst) { Geval(QByteArray::number(nummer), nummer, tekst); };
    geval(5, u"Ongeldig argument"_s);
    geval(6, u"Overloop: het getal is te groot of te klein"_s);
    geval(7, u"Onvoldoende geheugen"_s);
    geval(9, u"Index valt buiten het bereik"_s);
    geval(13, u"Typen komen niet overeen: hier hoort een getal"_s);
    geval(51, u"Interne fout"_s);
    geval(52, u"Ongeldige bestandsnaam"_s);
    geval(53, u"Bestand niet gevonden"_s);
    geval(57, u"Fout bij lezen of schrijven"_s);
    geval(62, u"Het bestand houdt te vroeg op"_s);
    geval(70, u"Geen toegang"_s);
    geval(380, u"Ongeldige waarde"_s);
    geval(457, u"Die sleutel bestaat al"_s);
    geval(481, u"Ongeldige afbeelding"_s);
    geval(8, u"Onbekende fout"_s);
}

void tst_Fout::everyNumberHasItsText()
{
    QFETCH(int, nummer);
    const Fout fout(static_cast<Fout::Nummer>(nummer));
    QCOMPARE(fout.nummer(), nummer);
    QTEST(fout.tekst(), "tekst");
}

void tst_Fout::whatAFailureIsAboutStandsBehindItsText()
{
    const Fout fout(Fout::SleutelBestaatAl, u"appel"_s);
    QCOMPARE(fout.nummer(), 457);
    QCOMPARE(fout.tekst(), u"Die sleutel bestaat al (appel)"_s);
}

RASTER_TEST(tst_Fout)
#include "tst_Fout.moc"
