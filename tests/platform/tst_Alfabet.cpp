#include "platform/Alfabet.h"
#include "support/Testbank.h"

#include <random>

using namespace Qt::StringLiterals;

class tst_Alfabet : public QObject
{
    Q_OBJECT

private slots:
    void textsRise();
    void textsThatDifferInCaseAloneAreOne();
    void sorting_data();
    void sorting();
    void anyTextsAreSortedAsByThePlainSort();
    void aLargeListIsSorted();
};

void tst_Alfabet::textsRise()
{
    const QStringList teksten{u""_s,
                              u" a"_s,
                              u"1"_s,
                              u"a"_s,
                              u"aap"_s,
                              u"Aapje"_s,
                              u"AB"_s,
                              u"abc"_s,
                              u"e"_s,
                              u"\u00E9"_s,
                              u"\u00EB"_s,
                              u"een"_s,
                              u"\u00C9\u00E9n"_s,
                              u"eend"_s,
                              u"\u00E9\u00E9nd"_s,
                              u"f"_s,
                              u"ijs"_s,
                              u"zebra"_s,
                              u"zebrapad"_s,
                              u"Zebrapaden"_s};
    for (qsizetype i = 0; i < teksten.size(); ++i)
        for (qsizetype j = 0; j < teksten.size(); ++j)
            QVERIFY2(AlfabetischVoor(teksten[i], teksten[j]) == (i < j), qPrintable(teksten[i] + u' ' + teksten[j]));
}

void tst_Alfabet::textsThatDifferInCaseAloneAreOne()
{
    for (const auto &[een, ander] : {std::pair(u"aap"_s, u"AAP"_s), std::pair(u"\u00E9\u00E9n"_s, u"\u00C9\u00C9N"_s),
                                     std::pair(u"\u0161\u0153\u00FF"_s, u"\u0160\u0152\u0178"_s)}) {
        QVERIFY(!AlfabetischVoor(een, ander));
        QVERIFY(!AlfabetischVoor(ander, een));
    }
}

void tst_Alfabet::sorting_data()
{
    QTest::addColumn<QStringList>("voor");
    QTest::addColumn<QStringList>("na");
    Geval("nothing", QStringList{}, QStringList{});
    Geval("letters", QStringList{"noot", "aap", "mies"}, QStringList{"aap", "mies", "noot"});
    Geval("ignoring case", QStringList{"b", "C", "A", "B", "a"}, QStringList{"A", "a", "b", "B", "C"});
    Geval("equal ones in the order of their coming", QStringList{"aap", "AAP", "noot", "Aap"},
          QStringList{"aap", "AAP", "Aap", "noot"});
    Geval("accents beside their letter", QStringList{u"\u00E9\u00E9n"_s, u"fee"_s, u"een"_s, u"eend"_s, u"\u00C9en"_s},
          QStringList{u"een"_s, u"\u00C9en"_s, u"\u00E9\u00E9n"_s, u"eend"_s, u"fee"_s});
    Geval("alike in their first eight letters", QStringList{"aardappels", "aardappel", "AARDAPPE", "aardappela"},
          QStringList{"AARDAPPE", "aardappel", "aardappela", "aardappels"});
    Geval("from outside the code page",
          QStringList{u"\u4E00"_s, u"\u03B2a"_s, u"\u0105b"_s, u"z"_s, u"\u03B1z"_s, u"aa"_s},
          QStringList{u"aa"_s, u"\u0105b"_s, u"z"_s, u"\u03B1z"_s, u"\u03B2a"_s, u"\u4E00"_s});
}

void tst_Alfabet::sorting()
{
    QFETCH(QStringList, voor);
    SorteerAlfabetisch(voor);
    QTEST(voor, "na");
}

/// A plain key: all the letters without case and accents, then all with their accents.
static std::pair<QString, QString> Sleutel(const QString &tekst)
{
    QString kaal = tekst.normalized(QString::NormalizationForm_D);
    kaal.removeIf([](QChar teken) { return teken.isMark(); });
    return {kaal.toLower(), tekst.toLower()};
}

void tst_Alfabet::anyTextsAreSortedAsByThePlainSort()
{
    std::mt19937 toeval(1);
    const QString letters = u"aAbB zZe\u00E9\u00E8\u00C9\u00FE\u00FF-1\u03B1\u03B2"_s;
    for (int ronde = 0; ronde < 300; ++ronde) {
        QStringList teksten;
        for (int i = 0; i < 60; ++i) {
            QString tekst(static_cast<qsizetype>(toeval() % 12), u'a');
            for (QChar &letter : tekst)
                letter = toeval() % 3 == 0 ? letters[toeval() % static_cast<unsigned>(letters.size())] : letter;
            teksten += tekst;
        }
        QStringList verwacht = teksten;
        std::stable_sort(verwacht.begin(), verwacht.end(),
                         [](const QString &a, const QString &b) { return Sleutel(a) < Sleutel(b); });
        SorteerAlfabetisch(teksten);
        QCOMPARE(teksten, verwacht);
    }
}

void tst_Alfabet::aLargeListIsSorted()
{
    QStringList teksten, verwacht;
    for (int i = 0; i < 200000; ++i) {
        teksten += QString::number(1000000 + i * 77777LL % 200000);
        verwacht += QString::number(1000000 + i);
    }
    SorteerAlfabetisch(teksten);
    QVERIFY(teksten == verwacht);
}

RASTER_TEST(tst_Alfabet)
#include "tst_Alfabet.moc"
