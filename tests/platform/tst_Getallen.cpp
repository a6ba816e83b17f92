#include "platform/Getallen.h"
#include "support/Testbank.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

class tst_Getallen : public QObject
{
    Q_OBJECT
private slots:
    void theValueIsThatOfTheLeadingNumber_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<double>("waarde");
        const auto rij = [](const char *tekst, double waarde) { Geval(tekst, tekst, waarde); };
        rij("", 0);
        rij(" ", 0);
        rij("abc", 0);
        rij("a12", 0);
        rij("12", 12);
        rij("12abc", 12);
        rij("07", 7);
        rij("0123456789", 123456789);
        rij("1.5", 1.5);
        rij("1.5.5", 1.5);
        rij("1,5", 1);
        rij(".25", 0.25);
        rij("3.", 3);
        rij(".", 0);
        rij("-", 0);
        rij("+", 0);
        rij("-3", -3);
        rij("+3", 3);
        rij(" - 3", -3);
        rij("  4 2 x", 42);
        rij("\t8", 8);
        rij("--3", 0);
        rij("3-1", 3);
        rij("0x10", 0);
        rij("nan", 0);
        rij("inf", 0);
        rij("2147483648", 2147483648.0);
    }
    void theValueIsThatOfTheLeadingNumber()
    {
        QFETCH(QString, tekst);
        QFETCH(double, waarde);
        QCOMPARE(Getallen::Val(tekst), waarde);
    }

    void theStrictConversionsTakeWholeNumbers_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("getal");
        const auto rij = [](const char *tekst, int getal) { Geval(tekst, tekst, getal); };
        rij("0", 0);
        rij("12", 12);
        rij("007", 7);
        rij("+9", 9);
        rij(" 12", 12);
        rij("12 ", 12);
        rij("\t12 \t", 12);
        rij("1e2", 100);
        rij("0.5", 0);
        rij("0.51", 1);
        rij("1.5", 2);
        rij("2.5", 2);
        rij("3.5", 4);
        rij("-0.5", 0);
    }
    void theStrictConversionsTakeWholeNumbers()
    {
        QFETCH(QString, tekst);
        QFETCH(int, getal);
        QCOMPARE(int{Getallen::NaarByte(tekst)}, getal);
        QCOMPARE(int{Getallen::NaarInt16(tekst)}, getal);
        QCOMPARE(int{Getallen::NaarInt32(tekst)}, getal);
    }

    void whatIsNoNumberIsATypeFailure_data()
    {
        QTest::addColumn<QString>("tekst");
        for (const char *tekst :
             {"",     " ",   "abc", "12abc", "12,5",  "1,234", "nan", "NAN", "inf", "-inf", "infinity",
              "0x10", "1 2", "- 3", "--3",   "1.5.5", ".",     "-",   "e5",  "1e",  "'7'"})
            Geval(tekst, tekst);
    }
    void whatIsNoNumberIsATypeFailure()
    {
        QFETCH(QString, tekst);
        QCOMPARE(FoutVan([&] { Getallen::NaarByte(tekst); }), int{Fout::TypeOnjuist});
        QCOMPARE(FoutVan([&] { Getallen::NaarInt16(tekst); }), int{Fout::TypeOnjuist});
        QCOMPARE(FoutVan([&] { Getallen::NaarInt32(tekst); }), int{Fout::TypeOnjuist});
    }

    void everyTypeHasItsLimits_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<bool>("isByte");
        QTest::addColumn<bool>("isInt16");
        QTest::addColumn<bool>("isInt32");
        const auto rij = [](const char *tekst, bool isByte, bool isInt16, bool isInt32) {
            Geval(tekst, tekst, isByte, isInt16, isInt32);
        };
        rij("255", true, true, true);
        rij("255.4", true, true, true);
        rij("255.5", false, true, true);
        rij("256", false, true, true);
        rij("-1", false, true, true);
        rij("-0.6", false, true, true);
        rij("32767", false, true, true);
        rij("32768", false, false, true);
        rij("-32768", false, true, true);
        rij("-32769", false, false, true);
        rij("2147483647", false, false, true);
        rij("2147483648", false, false, false);
        rij("-2147483648", false, false, true);
        rij("-2147483649", false, false, false);
        rij("1e400", false, false, false);
        rij("-1e400", false, false, false);
    }
    void everyTypeHasItsLimits()
    {
        QFETCH(QString, tekst);
        QFETCH(bool, isByte);
        QFETCH(bool, isInt16);
        QFETCH(bool, isInt32);
        QCOMPARE(FoutVan([&] { Getallen::NaarByte(tekst); }), isByte ? 0 : int{Fout::Overloop});
        QCOMPARE(FoutVan([&] { Getallen::NaarInt16(tekst); }), isInt16 ? 0 : int{Fout::Overloop});
        QCOMPARE(FoutVan([&] { Getallen::NaarInt32(tekst); }), isInt32 ? 0 : int{Fout::Overloop});
        const auto rond = static_cast<qint64>(std::nearbyint(tekst.toDouble()));
        if (isByte)
            QCOMPARE(qint64{Getallen::NaarByte(tekst)}, rond);
        if (isInt16)
            QCOMPARE(qint64{Getallen::NaarInt16(tekst)}, rond);
        if (isInt32)
            QCOMPARE(qint64{Getallen::NaarInt32(tekst)}, rond);
    }

    void aFailureTellsTheText()
    {
        const auto tekstVan = [](const QString &tekst) { return TekstVanFout([&] { Getallen::NaarByte(tekst); }); };
        QVERIFY(tekstVan(u"drie"_s).endsWith("(drie)"_L1));
        QVERIFY(tekstVan(u"300"_s).endsWith("(300)"_L1));
        QVERIFY(tekstVan(QString(1000, u'x')).endsWith(u" ("_s + QString(40, u'x') + u')'));
        QVERIFY(tekstVan(QString(1000, u'9')).endsWith(u" ("_s + QString(40, u'9') + u')'));
    }

    void aValueOutsideSixteenBitsOverflows()
    {
        QCOMPARE(Getallen::AlsInt16(0), qint16{0});
        QCOMPARE(Getallen::AlsInt16(32767), qint16{32767});
        QCOMPARE(Getallen::AlsInt16(-32768), qint16{-32768});
        for (const qint64 waarde : {qint64{32768}, qint64{-32769}, qint64{65536}, std::numeric_limits<qint64>::max(),
                                    std::numeric_limits<qint64>::min()})
            QCOMPARE(FoutVan([&] { Getallen::AlsInt16(waarde); }), int{Fout::Overloop});
        try {
            Getallen::AlsInt16(40000, u"een bord"_s);
        } catch (const Fout &fout) {
            QVERIFY(fout.tekst().endsWith("(een bord)"_L1));
        }
    }

    void aValueOutsideThirtyTwoBitsOverflows()
    {
        QCOMPARE(Getallen::AlsInt32(0), 0);
        QCOMPARE(Getallen::AlsInt32(2147483647), 2147483647);
        QCOMPARE(Getallen::AlsInt32(-qint64{2147483648}), std::numeric_limits<qint32>::min());
        for (const qint64 waarde : {qint64{2147483648}, -qint64{2147483649}, std::numeric_limits<qint64>::max(),
                                    std::numeric_limits<qint64>::min()})
            QCOMPARE(FoutVan([&] { Getallen::AlsInt32(waarde); }), int{Fout::Overloop});
    }

    void theValueOfATextInSixteenBits_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("getal");
        QTest::addColumn<int>("fout");
        const auto rij = [](const char *tekst, int getal, int fout = 0) { Geval(tekst, tekst, getal, fout); };
        rij("", 0);
        rij("12", 12);
        rij("12 vakjes", 12);
        rij("vakjes", 0);
        rij("2.5", 2);
        rij("3.5", 4);
        rij("-0.5", 0);
        rij("32767.4", 32767);
        rij("-32768.5", -32768);
        rij("32767.5", 0, Fout::Overloop);
        rij("-32769", 0, Fout::Overloop);
        rij("65548", 0, Fout::Overloop);
    }
    void theValueOfATextInSixteenBits()
    {
        QFETCH(QString, tekst);
        int getal = 0;
        QTEST(FoutVan([&] { getal = Getallen::ValInt16(tekst); }), "fout");
        QTEST(getal, "getal");
    }

    void theValueOfATextInAByte_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<int>("getal");
        QTest::addColumn<int>("fout");
        const auto rij = [](const char *tekst, int getal, int fout = 0) { Geval(tekst, tekst, getal, fout); };
        rij("", 0);
        rij("12 vakjes", 12);
        rij("vakjes", 0);
        rij("2.5", 2);
        rij("3.5", 4);
        rij("-0.5", 0);
        rij("255.4", 255);
        rij("255.5", 99, Fout::Overloop);
        rij("-0.6", 99, Fout::Overloop);
        rij("-1", 99, Fout::Overloop);
        rij("256", 99, Fout::Overloop);
        rij("99999999999999999999", 99, Fout::Overloop);
    }
    void theValueOfATextInAByte()
    {
        QFETCH(QString, tekst);
        int getal = 99;
        QTEST(FoutVan([&] { getal = Getallen::ValByte(tekst); }), "fout");
        QTEST(getal, "getal");
    }

    void halvesGoToTheEvenNeighbour_data()
    {
        QTest::addColumn<double>("waarde");
        QTest::addColumn<qint64>("rond");
        const auto rij = [](double waarde, qint64 rond) { Geval(QByteArray::number(waarde), waarde, rond); };
        rij(0.5, 0);
        rij(1.5, 2);
        rij(2.5, 2);
        rij(3.5, 4);
        rij(-0.5, 0);
        rij(-1.5, -2);
        rij(-2.5, -2);
        rij(2.4999, 2);
        rij(2.5001, 3);
        rij(7, 7);
        rij(3e9, 3000000000);
    }
    void halvesGoToTheEvenNeighbour()
    {
        QFETCH(double, waarde);
        QTEST(Getallen::RondEven(waarde), "rond");
    }

    void aNumberKeepsABlankForItsSign_data()
    {
        QTest::addColumn<qint64>("waarde");
        QTest::addColumn<QString>("tekst");
        Geval("0", qint64{0}, u" 0"_s);
        Geval("5", qint64{5}, u" 5"_s);
        Geval("-5", qint64{-5}, u"-5"_s);
        Geval("1000000", qint64{1000000}, u" 1000000"_s);
        Geval("largest", std::numeric_limits<qint64>::max(), u" 9223372036854775807"_s);
        Geval("smallest", std::numeric_limits<qint64>::min(), u"-9223372036854775808"_s);
    }
    void aNumberKeepsABlankForItsSign()
    {
        QFETCH(qint64, waarde);
        QTEST(Getallen::MetTeken(waarde), "tekst");
    }
};

RASTER_TEST(tst_Getallen)
#include "tst_Getallen.moc"
