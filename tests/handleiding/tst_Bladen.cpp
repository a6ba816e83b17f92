#include "handleiding/Bladen.h"

#include "platform/Fout.h"
#include "support/Testbank.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// Pieces below one another, each told by its height, with an "n" behind it when it begins a page and a "v" when it
/// stays with the next one. A height between brackets is a gap.
static QList<Stuk> Lees(const QString &tekst)
{
    QList<Stuk> stukken;
    double onder = 0;
    for (QString woord : tekst.split(u' ', Qt::SkipEmptyParts)) {
        if (woord.startsWith(u'(')) {
            onder += woord.mid(1).chopped(1).toDouble();
            continue;
        }
        Stuk stuk{onder, onder, woord.contains(u'n'), woord.contains(u'v')};
        onder += woord.remove(u'n').remove(u'v').toDouble();
        stuk.Onder = onder;
        stukken += stuk;
    }
    return stukken;
}

class tst_Bladen : public QObject
{
    Q_OBJECT
private slots:
    void piecesAreDividedOverPages_data()
    {
        QTest::addColumn<QString>("stukken");
        QTest::addColumn<QList<int>>("eersten");
        Geval("nothing", u""_s, QList<int>{});
        Geval("one that fills a page", u"100"_s, QList{0});
        Geval("together a page", u"40 60"_s, QList{0});
        Geval("a little more than a page", u"40 60.5"_s, QList{0, 1});
        Geval("gaps between them count", u"40 (1) 60"_s, QList{0, 1});
        Geval("gaps between pages do not", u"60 (70) 100"_s, QList{0, 1});
        Geval("three pages", u"60 60 30 60 10"_s, QList{0, 1, 3});
        Geval("one that begins a page", u"10 10n 10"_s, QList{0, 1});
        Geval("a first one that begins a page", u"10n 10"_s, QList{0});
        Geval("one stays with the next", u"60 20v 30"_s, QList{0, 1});
        Geval("it stays where both fit", u"50 20v 30"_s, QList{0});
        Geval("two stay with the next", u"60 10v 10v 30 10"_s, QList{0, 1});
        Geval("the last one has no next", u"60 20v"_s, QList{0});
        Geval("what begins a page is no next", u"60 20v 100n"_s, QList{0, 2});
        Geval("together a page, from its beginning", u"10 40v 60"_s, QList{0, 1});
    }
    void piecesAreDividedOverPages()
    {
        QFETCH(QString, stukken);
        QFETCH(QList<int>, eersten);
        QCOMPARE(VerdeelOverBladen(Lees(stukken), 100), eersten);
    }

    void whatFitsOnNoPageIsAFailure_data()
    {
        QTest::addColumn<QString>("stukken");
        QTest::addColumn<QString>("nummer");
        Geval("one", u"10 100.5"_s, u"stuk 2 "_s);
        Geval("two that belong together", u"10 10 50v 51"_s, u"stuk 3 "_s);
    }
    void whatFitsOnNoPageIsAFailure()
    {
        QFETCH(QString, stukken);
        QFETCH(QString, nummer);
        try {
            VerdeelOverBladen(Lees(stukken), 100);
        } catch (const Fout &fout) {
            QCOMPARE(fout.nummer(), Fout::OngeldigeWaarde);
            QVERIFY2(fout.tekst().contains(nummer), qPrintable(fout.tekst()));
            return;
        }
        QFAIL("no failure");
    }
};

RASTER_TEST(tst_Bladen)

#include "tst_Bladen.moc"
