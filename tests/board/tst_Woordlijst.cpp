#include "board/Woordlijst.h"
#include "platform/CodePage.h"
#include "support/Testbank.h"
#include "wordlib/Tegenproef.h"

#include <random>

using namespace Qt::StringLiterals;

class tst_Woordlijst : public QObject
{
    Q_OBJECT

private slots:
    void itemsAreRead_data();
    void itemsAreRead();
    void wordsAreWrittenInCapitals_data();
    void wordsAreWrittenInCapitals();
    void whatIsWrittenIsReadBack();
    void linesOfSoManyCellsAreFound_data();
    void linesOfSoManyCellsAreFound();
    void anyLinesAreSearched();
};

void tst_Woordlijst::itemsAreRead_data()
{
    QTest::addColumn<QByteArray>("inhoud");
    QTest::addColumn<QStringList>("woorden");
    const auto rij = [](const char *naam, const char *inhoud, const QStringList &woorden) {
        Geval(naam, QByteArray(inhoud), woorden);
    };
    rij("empty", "", {});
    rij("lines", "AAP\r\nNoot\r\nmies\r\n", {"AAP", "Noot", "mies"}); // as they stand there
    rij("a comma makes two words, the second without the blank", "AAP, NOOT\r\nMIES", {"AAP", "NOOT", "MIES"});
    rij("quotes go", "\"AAP, NOOT\"\r\n", {"AAP, NOOT"});
    rij("blanks within stay", " DE AAP \r\n", {"DE AAP"});
    rij("one letter", "A\r\nB", {"A", "B"});
    rij("an empty item is an entry", "AAP\r\n\r\nNOOT,,\r\n", {"AAP", "", "NOOT", "", ""});
    rij("code page 1252", "\xC9\xC9N \x80\r\n", {u"\u00C9\u00C9N \u20AC"_s});
}

void tst_Woordlijst::itemsAreRead()
{
    QFETCH(QByteArray, inhoud);
    QTEST(LeesWoordlijst(inhoud), "woorden");
}

void tst_Woordlijst::wordsAreWrittenInCapitals_data()
{
    QTest::addColumn<QStringList>("woorden");
    QTest::addColumn<QByteArray>("inhoud");
    Geval("nothing", QStringList{}, QByteArray());
    Geval("each with its line end", QStringList{"aap", "Noot"}, QByteArray("AAP\r\nNOOT\r\n"));
    Geval("a comma", QStringList{"aap, noot"}, QByteArray("AAP, NOOT\r\n"));
    Geval("accents", QStringList{u"\u00E9\u00E9n\u00DF \u03B1"_s}, QByteArray("\xC9\xC9N\xDF ?\r\n"));
    Geval("an empty word", QStringList{""}, QByteArray("\r\n"));
}

void tst_Woordlijst::wordsAreWrittenInCapitals()
{
    QFETCH(QStringList, woorden);
    QTEST(SchrijfWoordlijst(woorden), "inhoud");
}

void tst_Woordlijst::whatIsWrittenIsReadBack()
{
    const QStringList woorden{"AAP", "", "DE AAP", u"\u00C9\u00C9N"_s, "AAP"};
    QCOMPARE(LeesWoordlijst(SchrijfWoordlijst(woorden)), woorden);
    QCOMPARE(LeesWoordlijst(SchrijfWoordlijst({"aap,noot"})), (QStringList{"AAP", "NOOT"}));
}

void tst_Woordlijst::linesOfSoManyCellsAreFound_data()
{
    QTest::addColumn<QByteArray>("database");
    QTest::addColumn<int>("cellen");
    QTest::addColumn<QStringList>("woorden");
    const auto rij = [](const char *naam, const char *database, int cellen, const QStringList &woorden) {
        Geval(naam, QByteArray(database), cellen, woorden);
    };
    rij("in capitals, in the order of the file", "noot\r\naap\r\nmies\r\nwim", 4, {"NOOT", "MIES"});
    rij("ij is one cell", "ijs\r\naap\r\nij", 2, {"IJS"});
    rij("so it isn't of its letters", "ijs\r\naap\r\n", 3, {"AAP"});
    rij("capitals of the file are small letters first", "IJSBEER\r\niJs\r\n", 6, {"IJSBEER"});
    rij("a question mark becomes ij", "?s\r\n", 2, {"IJS"});
    rij("a line is one word", "aa,p\r\n\"aa\"\r\n", 4, {"AA,P", "\"AA\""});
    rij("blanks are cells", " ab\r\nab \r\nab\r\n\tab\xA0\r\n", 3, {" AB", "AB "});
    rij("accents", "\xE9\xE9n\r\n", 3, {u"\u00C9\u00C9N"_s});
    rij("nothing", "", 2, {});
}

void tst_Woordlijst::linesOfSoManyCellsAreFound()
{
    QFETCH(QByteArray, database);
    QFETCH(int, cellen);
    QTEST(WoordenVanLengte(database, cellen), "woorden");
}

void tst_Woordlijst::anyLinesAreSearched()
{
    std::mt19937 toeval(1);
    const QByteArray tekens("ijIJa?\xE9\xFF\n\r");
    for (int ronde = 0; ronde < 300; ++ronde) {
        QByteArray database;
        for (int i = 0; i < 300; ++i)
            database += tekens[toeval() % tekens.size()];
        QStringList verwacht;
        const size_t cellen = toeval() % 6;
        std::map<size_t, Tegenproef::Lijst> gevonden = Tegenproef::Paneel(Tegenproef::Regels(database.toStdString()));
        for (const std::string &woord : gevonden[cellen])
            verwacht += Files::NaarTekst(QByteArray::fromStdString(woord));
        QCOMPARE(WoordenVanLengte(database, static_cast<qsizetype>(cellen)), verwacht);
    }
}

RASTER_TEST(tst_Woordlijst)
#include "tst_Woordlijst.moc"
