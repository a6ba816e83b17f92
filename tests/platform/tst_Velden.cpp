#include "platform/Velden.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

class tst_Velden : public QObject
{
    Q_OBJECT

private slots:
    void fieldsAreRead_data();
    void fieldsAreRead();
    void textFieldsAreCodePage1252();
    void itemsAreReadAsBytes_data();
    void itemsAreReadAsBytes();
    void numberFieldsAreRead();
    void aNumberFieldThatIsNoNumberFails_data();
    void aNumberFieldThatIsNoNumberFails();
    void behindTheLastFieldIsTheEndOfTheFile();
    void linesAreWrittenByteForByte();
    void whatIsWrittenIsReadBack();
};

void tst_Velden::fieldsAreRead_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QStringList>("velden");
    const auto rij = [](const char *naam, const char *inhoud, const QStringList &velden) {
        Geval(naam, QByteArray(inhoud), velden);
    };
    rij("nothing", "", {});
    rij("plain", "aap", {"aap"});
    rij("comma", "aap,noot,mies", {"aap", "noot", "mies"});
    rij("comma and line end", "aap,noot\r\nmies\r\n", {"aap", "noot", "mies"});
    rij("blanks within", "aap noot , mies ", {"aap noot ", "mies "});
    rij("quoted", "\"aap\"\r\n", {"aap"});
    rij("quoted, empty", "\"\"\r\n\"\"", {"", ""});
    rij("quoted, comma inside", "\"aap, noot\",mies", {"aap, noot", "mies"});
    rij("quoted, line end inside", "\"aap\r\nnoot\"\r\nmies", {"aap\r\nnoot", "mies"});
    rij("quoted, blanks inside", "\"  aap  \"", {"  aap  "});
    rij("quoted, blanks around", "  \"aap\"   , \"noot\"  \r\nmies", {"aap", "noot", "mies"});
    rij("a tab is no blank", "\taap, \t noot \t,\t\"mies\"", {"\taap", "\t noot \t", "\t\"mies\""});
    rij("no closing quote", "\"aap,\r\nnoot", {"aap,\r\nnoot"});
    rij("only an opening quote", "\"", {""});
    rij("a quote further on", "a\"b\",c", {"a\"b\"", "c"});
    rij("text behind the closing quote", "\"aap\"noot,mies", {"aap", "noot", "mies"});
    rij("leading blanks", "    aap,  noot", {"aap", "noot"});
    rij("blank line", "aap\r\n\r\nnoot\r\n", {"aap", "", "noot"});
    rij("line of blanks", "aap\r\n   \r\nnoot", {"aap", "", "noot"});
    rij("only a line end", "\r\n", {""});
    rij("two commas", "aap,,noot", {"aap", "", "noot"});
    rij("leading comma", ",aap", {"", "aap"});
    rij("trailing comma", "aap,\r\nnoot", {"aap", "", "noot"});
    rij("only blanks", "   ", {""});
    rij("line feeds", "aap\nnoot\n\nmies\n", {"aap", "noot", "", "mies"});
    rij("carriage returns", "aap\rnoot\r\rmies\r", {"aap", "noot", "", "mies"});
    rij("mixed line ends", "a\nb\r\nc\rd\n\re", {"a", "b", "c", "d", "", "e"});
    rij("no end to the last line", "aap\r\nnoot", {"aap", "noot"});
}

void tst_Velden::fieldsAreRead()
{
    QFETCH(QByteArray, inhoud);
    Files::VeldLezer lezer(inhoud);
    QStringList gelezen;
    while (!lezer.Einde())
        gelezen += lezer.Tekst();
    QTEST(gelezen, "velden");
}

void tst_Velden::textFieldsAreCodePage1252()
{
    const QByteArray inhoud("\"\x80 5\"\r\ngeti\xEBnd");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(lezer.Tekst(), u"\u20AC 5"_s);
    QCOMPARE(lezer.Tekst(), u"geti\u00EBnd"_s);
}

void tst_Velden::itemsAreReadAsBytes_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QByteArrayList>("items");
    const auto rij = [](const char *naam, const char *inhoud, const QByteArrayList &items) {
        Geval(naam, QByteArray(inhoud), items);
    };
    rij("nothing", "", {});
    rij("lines and commas", "aap\r\nnoot,mies\r\n", {"aap", "noot", "mies"});
    rij("blanks around go", "  aap  , noot \r\n\t wim ", {"aap", "noot", "\t wim"});
    rij("blanks within stay", "de  aap", {"de  aap"});
    rij("a tab behind stays", "aap\t\r\nnoot \t \r\n", {"aap\t", "noot \t"});
    rij("a hard space stays",
        "\xA0"
        "aap\xA0",
        {"\xA0"
         "aap\xA0"});
    rij("quotes go, blanks in them stay", "\" aap \" , noot", {" aap ", "noot"});
    rij("comma and line end in quotes", "\"aap,\r\nnoot\",mies", {"aap,\r\nnoot", "mies"});
    rij("quotes that don't close", "\"aap \r\nnoot", {"aap \r\nnoot"});
    rij("a quote further on", "aap\"noot \",mies", {"aap\"noot \"", "mies"});
    rij("empty ones", ",\r\n  \r\n\"\",", {"", "", "", ""});
    rij("bytes of the code page", "caf\xE9,\x80\xFF", {"caf\xE9", "\x80\xFF"});
}

void tst_Velden::itemsAreReadAsBytes()
{
    QFETCH(QByteArray, inhoud);
    Files::VeldLezer lezer(inhoud);
    QByteArrayList gelezen;
    while (!lezer.Einde())
        gelezen += lezer.Item().toByteArray();
    QTEST(gelezen, "items");
    QCOMPARE(FoutVan([&] { lezer.Item(); }), int{Fout::EindeBestand});
}

void tst_Velden::numberFieldsAreRead()
{
    const QByteArray inhoud(" 255 ,-32768\r\n2147483647\r\n\"12\"\r\n2.5,7");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(int{lezer.Byte()}, 255);
    QCOMPARE(int{lezer.Int16()}, -32768);
    QCOMPARE(lezer.Int32(), 2147483647);
    QCOMPARE(int{lezer.Byte()}, 12);
    QCOMPARE(int{lezer.Int16()}, 2);
    QVERIFY(!lezer.Einde());
    QCOMPARE(lezer.Tekst(), u"7"_s);
    QVERIFY(lezer.Einde());
}

void tst_Velden::aNumberFieldThatIsNoNumberFails_data()
{
    QTest::addColumn<QByteArray>("veld");
    QTest::addColumn<int>("alsByte");
    QTest::addColumn<int>("alsInt16");
    QTest::addColumn<int>("alsInt32");
    const auto rij = [](const char *veld, int alsByte, int alsInt16, int alsInt32) {
        Geval('\'' + QByteArray(veld) + '\'', QByteArray(veld), alsByte, alsInt16, alsInt32);
    };
    rij("aap", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij("\"\"", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij(",5", Fout::TypeOnjuist, Fout::TypeOnjuist, Fout::TypeOnjuist);
    rij("-1", Fout::Overloop, 0, 0);
    rij("256", Fout::Overloop, 0, 0);
    rij("32768", Fout::Overloop, Fout::Overloop, 0);
    rij("2147483648", Fout::Overloop, Fout::Overloop, Fout::Overloop);
    rij("", Fout::EindeBestand, Fout::EindeBestand, Fout::EindeBestand);
}

void tst_Velden::aNumberFieldThatIsNoNumberFails()
{
    QFETCH(QByteArray, veld);
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Byte(); }), "alsByte");
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Int16(); }), "alsInt16");
    QTEST(FoutVan([&] { Files::VeldLezer(veld).Int32(); }), "alsInt32");
}

void tst_Velden::behindTheLastFieldIsTheEndOfTheFile()
{
    const QByteArray inhoud("aap\r\n");
    Files::VeldLezer lezer(inhoud);
    QCOMPARE(lezer.Tekst(), u"aap"_s);
    QVERIFY(lezer.Einde());
    QCOMPARE(FoutVan([&] { lezer.Tekst(); }), int{Fout::EindeBestand});
    QCOMPARE(FoutVan([&] { lezer.Int16(); }), int{Fout::EindeBestand});
}

void tst_Velden::linesAreWrittenByteForByte()
{
    Files::VeldSchrijver schrijver;
    QCOMPARE(schrijver.Inhoud(), QByteArray());
    schrijver.Regel(u"caf\u00E9, \u20AC"_s);
    schrijver.Regel(QString());
    schrijver.Regel({5});
    schrijver.Regel({0, -12, 32767});
    QCOMPARE(schrijver.Inhoud(), QByteArray("\"caf\xE9, \x80\"\r\n\"\"\r\n5\r\n0,-12,32767\r\n"));
}

void tst_Velden::whatIsWrittenIsReadBack()
{
    const QStringList teksten{"aap", "", " aap, noot ", "regel\r\nregel", u"\u00AE"_s};
    Files::VeldSchrijver schrijver;
    for (const QString &tekst : teksten) {
        schrijver.Regel(tekst);
        schrijver.Regel({-7, 300});
    }
    Files::VeldLezer lezer(schrijver.Inhoud());
    for (const QString &tekst : teksten) {
        QCOMPARE(lezer.Tekst(), tekst);
        QCOMPARE(int{lezer.Int16()}, -7);
        QCOMPARE(lezer.Int32(), 300);
    }
    QVERIFY(lezer.Einde());
}

RASTER_TEST(tst_Velden)
#include "tst_Velden.moc"
