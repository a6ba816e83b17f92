#include "support/Testbank.h"
#include "wordlib/Tegenproef.h"
#include "wordlib/Wisseling.h"

#include <random>

class tst_Wisseling : public QObject
{
    Q_OBJECT

private slots:
    void charactersAreCounted();
    void moreThanASmallNumberHoldsOverflows();
    void linesOfTheSameLettersAreFound_data();
    void linesOfTheSameLettersAreFound();
    void anyLinesAreSearched();
};

void tst_Wisseling::charactersAreCounted()
{
    QCOMPARE(FindOccur("", 'a'), qint16{0});
    QCOMPARE(FindOccur("aardappel", 'a'), qint16{3});
    QCOMPARE(FindOccur("aardappel", 'l'), qint16{1});
    QCOMPARE(FindOccur("aardappel", 'z'), qint16{0});
    QCOMPARE(FindOccur("Aardappel", 'a'), qint16{2}); // case counts
    QCOMPARE(FindOccur("\xE9\xE9n", '\xE9'), qint16{2});
    QCOMPARE(FindOccur("a b c", ' '), qint16{2});
}

void tst_Wisseling::moreThanASmallNumberHoldsOverflows()
{
    QCOMPARE(FindOccur(QByteArray(32767, 'a'), 'a'), qint16{32767});
    QCOMPARE(FoutVan([] { FindOccur(QByteArray(32768, 'a'), 'a'); }), int{Fout::Overloop});
}

static QByteArray Gevonden(QByteArrayView database, QByteArrayView key)
{
    QByteArrayList regels;
    ZoekWisselingen(database, key, [&](QByteArrayView regel) { regels += regel.toByteArray(); });
    return regels.join('|');
}

void tst_Wisseling::linesOfTheSameLettersAreFound_data()
{
    QTest::addColumn<QByteArray>("database");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QByteArray>("gevonden");
    const auto rij = [](const char *naam, const char *database, const char *key, const char *gevonden) {
        Geval(naam, QByteArray(database), QByteArray(key), QByteArray(gevonden));
    };
    rij("the word itself too", "kerste\r\nreeks\r\nstreek\r\nstreke", "streek", "kerste|streek|streke");
    rij("two letters", "en\r\nne\r\nee\r\nnen\r\nn", "en", "en|ne");
    rij("nine letters", "regelende\ngeleerden\ngeleerde\n", "neerlegde", "regelende|geleerden");
    rij("as often as in the key", "aab\nabb\nbaa\n", "aba", "aab|baa");
    rij("other letters of the same number", "abc\nabd\nzab\n", "abc", "abc");
    rij("a line once, and each line", "aap\naap\n", "paa", "aap|aap");
    rij("capitals in the file are other letters", "Aap\nAAP\n", "aap", "");
    rij("a key in capitals", "aap\nAAP\n", "AAP", "");
    rij("a key with a blank", "a p\np a\nap\n", "a p", "");
    rij("a key with a hyphen", "a-p\n", "a-p", "");
    rij("a key with an accent", "e\xE9n\n", "e\xE9n", "");
    rij("a key with a wildcard", "a?p\naap\n", "a?p", "");
    rij("a line with a comma is one", "aa,p\naap,\naap\n", "aap", "aap");
    rij("an empty key", "\n\naap\n", "", "");
    rij("an empty file", "", "aap", "");
}

void tst_Wisseling::linesOfTheSameLettersAreFound()
{
    QFETCH(QByteArray, database);
    QFETCH(QByteArray, key);
    QTEST(Gevonden(database, key), "gevonden");
}

void tst_Wisseling::anyLinesAreSearched()
{
    std::mt19937 toeval(1);
    const QByteArray tekens("abcz{`-\xE9");
    for (int ronde = 0; ronde < 300; ++ronde) {
        QByteArray database, key;
        for (int i = 0; i < 400; ++i)
            database += toeval() % 4 == 0 ? '\n' : tekens[toeval() % tekens.size()];
        for (auto lengte = 1 + toeval() % 5; lengte > 0; --lengte)
            key += tekens[toeval() % (ronde % 4 == 0 ? tekens.size() : 4)];
        QByteArrayList verwacht;
        for (const std::string &regel :
             Tegenproef::Wisselingen(Tegenproef::Regels(database.toStdString()), key.toStdString()))
            verwacht += QByteArray::fromStdString(regel);
        QCOMPARE(Gevonden(database, key), verwacht.join('|'));
    }
}

RASTER_TEST(tst_Wisseling)
#include "tst_Wisseling.moc"
