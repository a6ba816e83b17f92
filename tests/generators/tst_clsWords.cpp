#include "generators/clsWords.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

static QStringList InVolgorde(const clsWords &words)
{
    QStringList lijst;
    for (const clsWord &woord : words)
        lijst += woord.Word;
    return lijst;
}

/// A collection of words, none of which has a key.
static clsWords Verzameling(const QStringList &lijst)
{
    clsWords words;
    for (const QString &woord : lijst)
        words.Add(woord);
    return words;
}

class tst_clsWords : public QObject
{
    Q_OBJECT
private slots:
    void wordsAreKeptInTheOrderOfTheirComing()
    {
        clsWords words;
        QCOMPARE(words.Count(), 0);
        QCOMPARE(InVolgorde(words), QStringList());
        words.Add(u"ROOS"_s);
        words.Add(u"AAP"_s);
        words.Add(u"ROOS"_s);
        QCOMPARE(words.Count(), 3);
        QCOMPARE(InVolgorde(words), (QStringList{u"ROOS"_s, u"AAP"_s, u"ROOS"_s}));
        for (int i = 1; i <= 3; ++i)
            QCOMPARE(words.Item(i).Word, InVolgorde(words)[i - 1]);
    }

    void theWordThatWasAddedIsTheOneInTheCollection()
    {
        clsWords words;
        clsWord &eerste = words.Add(u"ROOS"_s);
        for (int i = 0; i < 1000; ++i)
            words.Add(u"AAP"_s);
        eerste.Word = u"TULP"_s;
        QCOMPARE(words.Item(1).Word, u"TULP"_s);
        words.Item(2).Word = u"BEER"_s;
        QCOMPARE(InVolgorde(words).first(3), (QStringList{u"TULP"_s, u"BEER"_s, u"AAP"_s}));
    }

    void theEnumeratorGoesThroughTheWords()
    {
        const clsWords words = Verzameling({u"EEN"_s, u"TWEE"_s});
        auto woord = words.NewEnum();
        QCOMPARE((*woord).Word, u"EEN"_s);
        ++woord;
        QCOMPARE((*woord).Word, u"TWEE"_s);
        QVERIFY(woord != words.end());
        ++woord;
        QVERIFY(woord == words.end());
    }

    void keysAreFoundIgnoringCase()
    {
        clsWords words = Verzameling({u"EEN"_s});
        words.Add(u"TWEE"_s, u"Sleutel"_s);
        words.Add(u"DRIE"_s, u"é"_s);
        words.Add(u"VIER"_s, u" "_s);
        QCOMPARE(words.Item(u"sLEUTEL"_s).Word, u"TWEE"_s);
        QCOMPARE(words.Item(u"É"_s).Word, u"DRIE"_s);
        QCOMPARE(words.Item(u" "_s).Word, u"VIER"_s);
        for (const QString &sleutel : {u"Sleute"_s, u"TWEE"_s, u"2"_s, QString()}) {
            QCOMPARE(FoutVan([&] { words.Item(sleutel); }), int{Fout::OngeldigArgument});
            QCOMPARE(FoutVan([&] { words.Remove(sleutel); }), int{Fout::OngeldigArgument});
        }
        words.Remove(u"SLEUTEL"_s);
        QCOMPARE(InVolgorde(words), (QStringList{u"EEN"_s, u"DRIE"_s, u"VIER"_s}));
    }

    void aKeyThatIsThereIsRefused()
    {
        clsWords words;
        words.Add(u"EEN"_s, u"sleutel"_s);
        QCOMPARE(FoutVan([&] { words.Add(u"TWEE"_s, u"SLEUTEL"_s); }), 457);
        QCOMPARE(InVolgorde(words), QStringList{u"EEN"_s});
        words.Remove(1);
        words.Add(u"TWEE"_s, u"SLEUTEL"_s);
        QCOMPARE(words.Item(u"sleutel"_s).Word, u"TWEE"_s);
    }

    void anIndexThatIsNotThereIsRefused()
    {
        clsWords words = Verzameling({u"EEN"_s, u"TWEE"_s});
        for (const int index : {0, 3, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            QCOMPARE(FoutVan([&] { words.Item(index); }), int{Fout::IndexBuitenBereik});
            QCOMPARE(FoutVan([&] { words.Remove(index); }), int{Fout::IndexBuitenBereik});
        }
        QCOMPARE(words.Count(), 2);
    }

    void whatIsRemovedMovesTheOthersUp()
    {
        clsWords words = Verzameling({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s});
        words.Remove(2);
        QCOMPARE(InVolgorde(words).join(QString()), u"ACDE"_s);
        words.Remove(4);
        QCOMPARE(InVolgorde(words).join(QString()), u"ACD"_s);
        words.Remove(1);
        QCOMPARE(InVolgorde(words).join(QString()), u"CD"_s);
        QCOMPARE(words.Item(2).Word, u"D"_s);
    }

    void clearLeavesNothing()
    {
        clsWords words = Verzameling({u"A"_s, u"B"_s, u"C"_s});
        words.Add(u"D"_s, u"sleutel"_s);
        words.Clear();
        QCOMPARE(words.Count(), 0);
        words.Clear();
        words.Add(u"E"_s, u"sleutel"_s);
        QCOMPARE(InVolgorde(words), QStringList{u"E"_s});
    }

    void everyLineOfATextIsAWord_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QStringList>("woorden");
        Geval("empty", QString(), QStringList{QString()});
        Geval("one", u"AAP"_s, QStringList{u"AAP"_s});
        Geval("three", u"AAP\r\nNOOT\r\nMIES"_s, QStringList{u"AAP"_s, u"NOOT"_s, u"MIES"_s});
        Geval("a line end at the end", u"AAP\r\n"_s, QStringList{u"AAP"_s, QString()});
        Geval("an empty line", u"AAP\r\n\r\nNOOT"_s, QStringList{u"AAP"_s, QString(), u"NOOT"_s});
        Geval("only a line end", u"\r\n"_s, QStringList{QString(), QString()});
        Geval("halves of line ends", u"AAP\nNOOT\rMIES"_s, QStringList{u"AAP\nNOOT\rMIES"_s});
        Geval("blanks", u" AAP \r\n\tB"_s, QStringList{u" AAP "_s, u"\tB"_s});
    }
    void everyLineOfATextIsAWord()
    {
        QFETCH(QString, tekst);
        clsWords words = Verzameling({u"ER AL"_s});
        words.AddFromString(tekst);
        QTEST(InVolgorde(words).mid(1), "woorden");
        words.Remove(1);
        QCOMPARE(words.JoinWords(), tekst);
    }

    void aLongTextTakesNoLongerForEachWord()
    {
        clsWords words;
        QElapsedTimer klok;
        klok.start();
        words.AddFromString(u"AAP\r\n"_s.repeated(200'000));
        words.Clear();
        QVERIFY2(klok.elapsed() < 10'000, qPrintable(QString::number(klok.elapsed())));
    }

    void nothingCannotBeJoined()
    {
        QCOMPARE(FoutVan([] { (void)clsWords().JoinWords(); }), int{Fout::OngeldigArgument});
    }
};

RASTER_TEST(tst_clsWords)
#include "tst_clsWords.moc"
