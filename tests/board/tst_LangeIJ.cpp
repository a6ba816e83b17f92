#include "board/LangeIJ.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_LangeIJ : public QObject
{
    Q_OBJECT

private slots:
    void itIsOneCharacterWhileAWordIsPlaced()
    {
        QCOMPARE(MetCode(u"ijsbeerij"_s), u"?sbeer?"_s);
        QCOMPARE(MetCode(u"lijst"_s), u"l?st"_s);
        QCOMPARE(MetCode(u"IJs Ijs iJs"_s), u"IJs Ijs iJs"_s); // small letters only
        QCOMPARE(ZonderCode(u"?sbeer?"_s), u"ijsbeerij"_s);
    }

    void itsCodeIsPrintedAsTwoLetters()
    {
        QCOMPARE(LetterVan(u'?'), u"IJ"_s);
        QCOMPARE(LetterVan(u'I'), u"I"_s);
        QCOMPARE(LetterVan(u' '), u" "_s);
    }

    void itIsOneCellOfAnEntry()
    {
        QCOMPARE(AantalVakjes(u"ijsbeer"_s), 6);
        QCOMPARE(AantalVakjes(u"IJSBEER"_s), 6);
        QCOMPARE(AantalVakjes(u"Ijs"_s), 2);
        QCOMPARE(AantalVakjes(u"aap"_s), 3);
        QCOMPARE(AantalVakjes(QString()), 0);
    }

    void itIsOneLetterOfAWordInCapitals()
    {
        QCOMPARE(AantalLetters(u"IJSBEER"_s), 6);
        QCOMPARE(AantalLetters(u"ijsbeer"_s), 7);
        QCOMPARE(AantalLetters(u"IjsbeeriJ"_s), 9);
        QCOMPARE(AantalLetters(u"IJIJ"_s), 2);
        QCOMPARE(AantalLetters(u"IIJJ"_s), 3);
        QCOMPARE(AantalLetters(u"Doetinchem"_s), 10);
        QCOMPARE(AantalLetters(u"DE AAP"_s), 6);
        QCOMPARE(AantalLetters(QString()), 0);
    }
};

QTEST_APPLESS_MAIN(tst_LangeIJ)
#include "tst_LangeIJ.moc"
