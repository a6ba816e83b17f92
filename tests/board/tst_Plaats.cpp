#include "board/Plaats.h"
#include "board/Richtingen.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_Plaats : public QObject
{
    Q_OBJECT

private slots:
    void aRowIsTwoDigits()
    {
        QCOMPARE(RijTekst(0), u"01"_s);
        QCOMPARE(RijTekst(8), u"09"_s);
        QCOMPARE(RijTekst(9), u"10"_s);
        QCOMPARE(RijTekst(18), u"19"_s);
        QCOMPARE(RijTekst(99), u"100"_s);
    }

    void aColumnIsALetter()
    {
        QCOMPARE(KolomTekst(0), u"A"_s);
        QCOMPARE(KolomTekst(15), u"P"_s);
        QCOMPARE(KolomTekst(26), u"["_s); // the sign behind Z
    }

    void aCellIsColumnRowAndNumber() { QCOMPARE(PlaatsTekst(2, 6, 99), u"C-07 / 99"_s); }

    void whatWasWrittenIsRead()
    {
        for (int kolom = 0; kolom < 16; ++kolom)
            for (int rij = 0; rij < 19; ++rij) {
                const Plaats plaats = LeesPlaats(PlaatsTekst(kolom, rij, 16 * rij + kolom + 1) + u"-V"_s);
                QCOMPARE(plaats.Kolom, kolom);
                QCOMPARE(plaats.Rij, rij);
                QCOMPARE(plaats.Richting, u'V');
            }
    }

    void anyTextGivesNumbers()
    {
        const Plaats plaats = LeesPlaats(u"?"_s);
        QCOMPARE(plaats.Kolom, u'?' - u'A');
        QCOMPARE(plaats.Rij, -1); // no row: 0, counted from 1
        QCOMPARE(plaats.Richting, u'?');
        QCOMPARE(LeesPlaats(u"a-01 / 1-h"_s).Kolom, u'a' - u'A'); // a small letter is another sign
        QCOMPARE(LeesPlaats(u"a-01 / 1-h"_s).Richting, u'h');
        QCOMPARE(LeesPlaats(u"B-x9"_s).Rij, -1);
        QCOMPARE(LeesPlaats(u"B-7x"_s).Rij, 6);
        QCOMPARE(LeesPlaats(u"B-123"_s).Rij, 11); // two characters, whatever comes behind
    }

    void aDirectionIsKnownByItsLetter()
    {
        const auto stap = [](char16_t letter) {
            const Richting *richting = RichtingVan(letter);
            return richting ? std::pair(richting->Kolommen, richting->Rijen) : std::pair(0, 0);
        };
        QCOMPARE(stap(u'H'), std::pair(1, 0));
        QCOMPARE(stap(u'V'), std::pair(0, 1));
        QCOMPARE(stap(u'R'), std::pair(1, 1));
        QCOMPARE(stap(u'L'), std::pair(-1, 1));
        QVERIFY(!RichtingVan(u'h'));
        QVERIFY(!RichtingVan(QChar()));
    }
};

QTEST_APPLESS_MAIN(tst_Plaats)
#include "tst_Plaats.moc"
