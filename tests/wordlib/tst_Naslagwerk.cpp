#include "platform/CodePage.h"
#include "support/Testbank.h"
#include "wordlib/Naslagwerk.h"

using namespace Qt::StringLiterals;

/// What is read, an entry a line; the last line tells the failure that ended it, if there was one.
static QString Spreekwoorden(const QByteArray &inhoud, const QString &filter = {})
{
    QStringList gezegden, betekenissen;
    const int fout = FoutVan([&] { LeesSpreekwoorden(inhoud, filter, gezegden, betekenissen); });
    if (gezegden.size() != betekenissen.size())
        return u"out of step"_s;
    QStringList regels;
    for (qsizetype i = 0; i < gezegden.size(); ++i)
        regels += gezegden[i] + u'=' + betekenissen[i];
    return (fout ? regels << u"fout %1"_s.arg(fout) : regels).join(u'\n');
}

static QString Lees(void (*lees)(QByteArrayView, QStringList &), const QByteArray &inhoud)
{
    QStringList regels;
    const int fout = FoutVan([&] { lees(inhoud, regels); });
    return (fout ? regels << u"fout %1"_s.arg(fout) : regels).join(u'\n');
}

/// All bytes but those that end a line.
static QByteArray AlleBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n')
            bytes += static_cast<char>(byte);
    return bytes;
}

class tst_Naslagwerk : public QObject
{
    Q_OBJECT
private slots:
    void whatIsReadOfProverbs_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("gelezen");
        const auto rij = [](const char *naam, const QByteArray &inhoud, const QString &gelezen) {
            Geval(naam, inhoud, gelezen);
        };
        rij("empty", "", u""_s);
        rij("in the order of the file", "b -/- 2\r\na -/- 1\r\n", u"b=2\na=1"_s);
        rij("the last line without its end", "a -/- 1\r\nb -/- 2", u"a=1\nb=2"_s);
        rij("other line ends", "a -/- 1\nb -/- 2\rc -/- 3", u"a=1\nb=2\nc=3"_s);
        rij("blank lines", "\r\n   \r\na -/- 1\r\n\r\n \r\nb -/- 2\r\n", u"a=1\nb=2"_s);
        rij("a tab is no blank", "a -/- 1\r\n\t\r\nb -/- 2\r\n", u"a=1\nfout 9"_s);
        rij("untrimmed", "  a  -/-  1 \r\n", u"  a = 1 "_s);
        rij("no separator", "a -/- 1\r\nb\r\nc -/- 3\r\n", u"a=1\nfout 9"_s);
        rij("no separator in the first line", "b\r\nc -/- 3\r\n", u"fout 9"_s);
        rij("separator without its blanks", "a -/- 1\r\nb-/-2\r\n", u"a=1\nfout 9"_s);
        rij("separator without a blank behind it", "a -/-\r\n", u"fout 9"_s);
        rij("only the separator", " -/- \r\n", u"="_s);
        rij("more fields", "a -/- 1 -/- 2 -/- 3\r\n", u"a=1"_s);
        rij("the separators share a blank", "a -/- -/- 2\r\n", u"a=-/- 2"_s);
        rij("commas and quotes", "\"a, b\" -/- \"1, 2\"\r\n", u"\"a, b\"=\"1, 2\""_s);
        rij("zero bytes", QByteArray("a\0b -/- \0\r\n", 10), u"a%1b=%1"_s.arg(QChar(u'\0')));
        rij("every byte", AlleBytes() + " -/- " + AlleBytes() + "\r\n",
            Files::NaarTekst(AlleBytes()) + u'=' + Files::NaarTekst(AlleBytes()));
        rij("another program's file",
            QByteArray("\x7F"
                       "ELF\x02\x01\x01\0\0\r\n -/- ",
                       16),
            u"fout 9"_s);
        rij("a long line", QByteArray(1000000, 'a') + " -/- 1", QString(1000000, u'a') + u"=1"_s);
    }
    void whatIsReadOfProverbs()
    {
        QFETCH(QByteArray, inhoud);
        QTEST(Spreekwoorden(inhoud), "gelezen");
    }

    void aLetterPicksProverbs_data()
    {
        QTest::addColumn<QString>("filter");
        QTest::addColumn<QString>("gelezen");
        Geval("none", "", "aap=1\nBeer=2\nbij=3\n\u00C9\u00E9n=4\n=5\nfout 9");
        Geval("small", "b", "Beer=2\nbij=3\nfout 9");
        Geval("capital", "B", "Beer=2\nbij=3\nfout 9");
        Geval("with an accent", "\u00E9", "\u00C9\u00E9n=4\nfout 9");
        Geval("not the plain letter", "e", "fout 9");
        Geval("two letters are no first letter", "be", "fout 9");
    }
    void aLetterPicksProverbs()
    {
        QFETCH(QString, filter);
        QTEST(Spreekwoorden("aap -/- 1\r\nBeer -/- 2\r\nbij -/- 3\r\n\xC9\xE9n -/- 4\r\n -/- 5\r\nbeer", filter),
              "gelezen");
    }

    void whatIsReadOfATable_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("gelezen");
        Geval("empty", QByteArray(), u""_s);
        Geval("lines as they stand there", QByteArray("b - 2\r\n  a\t\r\n\xE9 \r\n"), u"b - 2\n  a\t\n\u00E9 "_s);
        Geval("blank lines", QByteArray("\r\n  \r\na\r\n \r\n\r\nb"), u"a\nb"_s);
        Geval("a tab and a hard space are no blanks", QByteArray("\t\r\n\xA0\r\n"), u"\t\n\u00A0"_s);
        Geval("every byte", AlleBytes(), Files::NaarTekst(AlleBytes()));
        Geval("separators", QByteArray("a -/- b\r\na-/-b"), u"a -/- b\na-/-b"_s);
    }
    void whatIsReadOfATable()
    {
        QFETCH(QByteArray, inhoud);
        QTEST(Lees(LeesBron, inhoud), "gelezen");
    }

    void whatIsReadOfElements_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("gelezen");
        const auto rij = [](const char *naam, const QByteArray &inhoud, const QString &gelezen) {
            Geval(naam, inhoud, gelezen);
        };
        const QString goud = u"goud            Au       79"_s;
        rij("empty", "", u""_s);
        rij("in columns", "goud-/-Au-/-79\r\ntin-/-Sn-/-50", goud + u"\ntin             Sn       50"_s);
        rij("blank lines", "\r\n  \r\ngoud-/-Au-/-79\r\n", goud);
        rij("columns that are full", "zestienlettersxx-/-negenletr-/-1234567890",
            u"zestienlettersxxnegenletr1234567890"_s);
        rij("name too long", "goud-/-Au-/-79\r\nzeventienlettersx-/-S-/-1\r\ntin-/-Sn-/-50", goud + u"\nfout 5"_s);
        rij("symbol too long", "goud-/-Au-/-79\r\nx-/-tienletter-/-1\r\n", goud + u"\nfout 5"_s);
        rij("two fields", "goud-/-Au-/-79\r\ntin-/-Sn\r\nx-/-y-/-1", goud + u"\nfout 9"_s);
        rij("one field", "goud-/-Au-/-79\r\ntin", goud + u"\nfout 9"_s);
        rij("more fields", "goud-/-Au-/-79-/-x-/-y", goud);
        rij("empty fields", "-/--/-", QString(25, u' '));
        rij("blanks count", " goud -/- Au-/- 79", u" goud            Au       79"_s);
        rij("letters of the code page", "r\xF6ntgenium-/-Rg-/-111", u"r\u00F6ntgenium      Rg       111"_s);
        rij("every byte", AlleBytes(), u"fout 9"_s);
        rij("every byte in a number", "a-/-b-/-" + AlleBytes(),
            u"a               b        "_s + Files::NaarTekst(AlleBytes()));
    }
    void whatIsReadOfElements()
    {
        QFETCH(QByteArray, inhoud);
        QTEST(Lees(LeesElementen, inhoud), "gelezen");
    }

    void whatIsReadComesBehindWhatIsThere()
    {
        QStringList regels{u"oud"_s}, betekenissen{u"ouder"_s};
        LeesBron("nieuw", regels);
        QCOMPARE(regels, (QStringList{u"oud"_s, u"nieuw"_s}));
        LeesSpreekwoorden("a -/- 1", {}, regels, betekenissen);
        QCOMPARE(regels, (QStringList{u"oud"_s, u"nieuw"_s, u"a"_s}));
        QCOMPARE(betekenissen, (QStringList{u"ouder"_s, u"1"_s}));
    }
};

RASTER_TEST(tst_Naslagwerk)
#include "tst_Naslagwerk.moc"
