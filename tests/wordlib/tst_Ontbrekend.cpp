#include "support/Testbank.h"
#include "wordlib/Ontbrekend.h"
#include "wordlib/Tegenproef.h"

#include <random>

class tst_Ontbrekend : public QObject
{
    Q_OBJECT

private slots:
    void wordsThatFitAreFound_data();
    void wordsThatFitAreFound();
    void aDatabaseStaysAsItIs();
    void anyLinesAreSearched();
};

static QByteArray Gevonden(const QByteArray &database, const QByteArray &pattern, qsizetype cellen)
{
    QByteArrayList regels;
    ZoekOntbrekende(database, pattern, cellen, [&](const QByteArray &regel) { regels += regel; });
    return regels.join('|');
}

void tst_Ontbrekend::wordsThatFitAreFound_data()
{
    QTest::addColumn<QByteArray>("database");
    QTest::addColumn<QByteArray>("pattern");
    QTest::addColumn<int>("cellen");
    QTest::addColumn<QByteArray>("gevonden");
    const auto rij = [](const char *naam, const char *database, const char *pattern, int cellen, const char *gevonden) {
        Geval(naam, QByteArray(database), QByteArray(pattern), cellen, QByteArray(gevonden));
    };
    rij("known letters, in the order of the file", "zwaarheen\r\nblaffende\r\nplaatsens\r\nvragenden", "--A---EN-", 9,
        "PLAATSENS");
    rij("all unknown: every word of that length", "noot\naap\nmies\nwim\n", "----", 4, "NOOT|MIES");
    rij("all known", "noot\nnoor\n", "NOOT", 4, "NOOT");
    rij("capitals in the file", "Noot\nNOOR\n", "NO--", 4, "NOOT|NOOR");
    rij("accents in capitals", "\xE9\xE9n\n", "---", 3, "\xC9\xC9N");
    rij("IJ is one cell", "ijsbeer\nijsberg\nlawaai\n", "------", 6, "IJSBEER|IJSBERG|LAWAAI");
    rij("the first cell is IJ", "ijsbeer\nlawaai\n", "IJ-----", 6, "IJSBEER");
    rij("IJ further on", "lijst\nlist\nlajst\n", "-IJ--", 4, "LIJST");
    rij("IJ is no I", "lijst\nlist\n", "-I--", 4, "LIST");
    rij("IJ twice, one known", "ijzerlijm\nijzerlamp\n", "IJ---L-M", 7, "IJZERLIJM");
    rij("IJ twice, both known", "ijlijn\n", "IJLIJN", 4, "IJLIJN");
    rij("I and J in two cells are one, and the last cell isn't looked at", "ijs\nijsb\nijsx\nijzb\n", "IJS-", 4, "");
    rij("so that they fit three cells more", "ijsab\nijsxy\nijzab\n", "IJS-", 4, "IJSAB|IJSXY");
    rij("nineteen cells", "abcdefghijklmnopqrst\nabcdefghiklmnopqrst\nabcdefghiklmnopqrstu\n", "-------------------",
        19, "ABCDEFGHIJKLMNOPQRST|ABCDEFGHIKLMNOPQRST");
    rij("a question mark of the file is IJ", "?sbeer\n", "IJ-----", 6, "IJSBEER");
    rij("a hyphen of the file is a hit too many", "a-b\nacb\n", "A--", 3, "ACB");
    rij("which may stand in for a missing one", "x-b\nacb\n", "A--", 3, "X-B|ACB");
    rij("a line with a comma", "aa,p\n", "A---", 4, "AA,P");
    rij("empty lines", "\n\r\naap\n", "---", 3, "AAP");
    rij("an empty file", "", "---", 3, "");
}

void tst_Ontbrekend::wordsThatFitAreFound()
{
    QFETCH(QByteArray, database);
    QFETCH(QByteArray, pattern);
    QFETCH(int, cellen);
    QTEST(Gevonden(database, pattern, cellen), "gevonden");
}

void tst_Ontbrekend::aDatabaseStaysAsItIs()
{
    const QByteArray database = "aap\n";
    QCOMPARE(Gevonden(database, "---", 3), "AAP");
    QCOMPARE(database, "aap\n");
}

void tst_Ontbrekend::anyLinesAreSearched()
{
    std::mt19937 toeval(1);
    const QByteArray tekens("ijIJa?-\xE9\n\n"), captions("IJA-----");
    for (int ronde = 0; ronde < 1000; ++ronde) {
        QByteArray database, pattern;
        for (int i = 0; i < 300; ++i)
            database += tekens[toeval() % tekens.size()];
        const int cellen = 1 + static_cast<int>(toeval() % 6);
        for (int i = 0; i < cellen; ++i)
            pattern += toeval() % 4 == 0 ? "IJ" : QByteArray(1, captions[toeval() % captions.size()]);
        QByteArrayList verwacht;
        for (const std::string &regel :
             Tegenproef::Ontbrekende(Tegenproef::InHoofdletters(Tegenproef::Regels(database.toStdString())),
                                     pattern.toStdString(), static_cast<size_t>(cellen)))
            verwacht += QByteArray::fromStdString(regel);
        QCOMPARE(Gevonden(database, pattern, cellen), verwacht.join('|'));
    }
}

RASTER_TEST(tst_Ontbrekend)
#include "tst_Ontbrekend.moc"
