#include "installatie/InstallatieBestanden.h"

#include "platform/CodePage.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

/// What a source is refused with; empty when it isn't.
template <class Maak> static QByteArray Weigering(Maak maak, const QByteArray &bron)
{
    try {
        maak(bron);
    } catch (const BronFout &fout) {
        return fout.what();
    }
    return {};
}

/// A word for each first letter, as a source and as what is made of it.
static QByteArray AlleLetters(const QByteArray &regeleinde)
{
    QByteArray woorden;
    for (char letter = 'a'; letter <= 'z'; ++letter)
        woorden += letter + QByteArray("qq") + regeleinde;
    return woorden;
}

class tst_InstallatieBestanden : public QObject
{
    Q_OBJECT
private slots:
    void whichWordsTheDatabaseHas_data()
    {
        QTest::addColumn<QByteArray>("bron");
        QTest::addColumn<QByteArray>("woorden");
        const auto blijft = [](const QByteArray &naam, const QByteArray &bron, const QByteArray &woorden) {
            Geval(naam, bron, woorden);
        };
        const auto vervalt = [](const QByteArray &naam, const QByteArray &bron) { Geval(naam, bron, QByteArray()); };
        blijft("plain", "aap\nnoot\n", "aap\r\nnoot\r\n");
        blijft("in the order of the source", "noot\naap\n", "noot\r\naap\r\n");
        blijft("the last line without its end", "aap\nnoot", "aap\r\nnoot\r\n");
        blijft("source with CR LF", "aap\r\nnoot\r\n", "aap\r\nnoot\r\n");
        blijft("empty lines", "\n\naap\n\r\n\nnoot\n", "aap\r\nnoot\r\n");
        blijft("two letters", "ja\n", "ja\r\n");
        blijft("longest word", QByteArray(300, 'a') + '\n', QByteArray(300, 'a') + "\r\n");
        vervalt("one letter", "u\n");
        vervalt("one letter with an accent", "é\n");
        blijft("accents", "getiëld\ncafé\nnaïef\ncrème\nenquête\ncoöp\nmenuën\n",
               "getield\r\ncafe\r\nnaief\r\ncreme\r\nenquete\r\ncoop\r\nmenuen\r\n");
        blijft("more accents", "façade\njalapeño\nvoilà\nmañana\nchâlet\nbåtje\n",
               "facade\r\njalapeno\r\nvoila\r\nmanana\r\nchalet\r\nbatje\r\n");
        blijft("a mark behind its letter", "cafe\u0301\n", "cafe\r\n");
        blijft("two marks on a letter", "l\u01DC\n", "lu\r\n");
        blijft("ligatures", "\u0133s\nc\u00E6sium\n\u0153uvre\n", "ijs\r\ncaesium\r\noeuvre\r\n");
        blijft("a ligature is two letters", "\u0133\n", "ij\r\n");
        vervalt("capital first", "Amsterdam\n");
        vervalt("capital within", "cd-rOm\niPad\n");
        vervalt("capitals with an accent", "Één\nÎle\nA\u0301\u0061\n");
        vervalt("capital ligature", "\u0132s\n");
        vervalt("digits", "a4\n4daagse\nh2o\n");
        vervalt("raised and lowered digits", "m\u00B2\nh\u2082o\n");
        vervalt("hyphen", "auto-ongeluk\n-aap\naap-\n");
        vervalt("apostrophe", "foto's\n'aap\n");
        vervalt("full stop, comma, quotes", "enz.\naap,noot\n\"aap\"\n");
        vervalt("blanks", "ad hoc\n aap\naap \na\tb\n");
        vervalt("other letters", "stra\u00DFe\nsm\u00F8rg\n\u03BB\u03BC\n\u0434\u0430\n");
        vervalt("letters beyond the first plane", "\U0001D41A\U0001D41B\n\U0001F600\n");
        vervalt("zero byte", QByteArray("a\0b\n", 4));
        blijft("source with CR", "aap\rnoot\r", "aap\r\nnoot\r\n");
        blijft("there twice", "aap\nnoot\naap\n", "aap\r\nnoot\r\n");
        blijft("the same without accents", "één\neen\nëen\n", "een\r\n");
        blijft("not the same in capitals", "Aap\naap\n", "aap\r\n");
    }
    void whichWordsTheDatabaseHas()
    {
        QFETCH(QByteArray, bron);
        QFETCH(QByteArray, woorden);
        QCOMPARE(MaakWoorden(bron + '\n' + AlleLetters("\n")), woorden + AlleLetters("\r\n"));
    }

    void aByteOrderMarkIsNoPartOfTheFirstWord()
    {
        QCOMPARE(MaakWoorden("\xEF\xBB\xBF" + AlleLetters("\n")), AlleLetters("\r\n"));
        QCOMPARE(MaakLijst("\xEF\xBB\xBFrat\n"), QByteArray("RAT\r\n"));
    }

    void aDatabaseHasEachFirstLetter()
    {
        for (char letter = 'a'; letter <= 'z'; ++letter) {
            QByteArray bron = AlleLetters("\n");
            bron.replace(QByteArray("\n") + letter + "qq", "\n").replace("aqq", letter == 'a' ? "bbb" : "aqq");
            bron += letter + QByteArray("-qq\n") + letter + '\n' + QByteArray(1, letter).toUpper() + "qq\n";
            QCOMPARE(Weigering(MaakWoorden, bron),
                     "no word begins with one of these letters: " + QByteArray(1, letter));
        }
        QCOMPARE(Weigering(MaakWoorden, "aap\nnoot\nmies\n"),
                 "no word begins with one of these letters: bcdefghijklopqrstuvwxyz");
        QCOMPARE(Weigering(MaakWoorden, {}), "no word begins with one of these letters: abcdefghijklmnopqrstuvwxyz");
        QCOMPARE(Weigering(MaakWoorden, AlleLetters("\n").replace("eqq", "éqq")), QByteArray());
    }

    void aSourceThatIsNotUtf8IsRefused_data()
    {
        QTest::addColumn<QByteArray>("bron");
        Geval("a byte of the code page", QByteArray("caf\xE9\n"));
        Geval("cut short at the end", QByteArray("caf\xC3"));
        Geval("a byte that begins nothing", QByteArray("\x80\n"));
        Geval("longer than it need be", QByteArray("\xC1\xA1\n"));
        Geval("half a pair", QByteArray("\xED\xA0\x80\n"));
        Geval("UTF-16", QByteArray("\xFF\xFE"
                                   "a\0a\0",
                                   6));
    }
    void aSourceThatIsNotUtf8IsRefused()
    {
        QFETCH(QByteArray, bron);
        QCOMPARE(Weigering(MaakWoorden, AlleLetters("\n") + bron), "not valid UTF-8");
        QCOMPARE(Weigering(MaakLijst, "aap\n" + bron), "not valid UTF-8");
    }

    void whatAListBecomes_data()
    {
        QTest::addColumn<QByteArray>("bron");
        QTest::addColumn<QString>("lijst");
        Geval("upper case", QByteArray("Aap\nNOOT\nrat\n"), u"AAP\r\nNOOT\r\nRAT\r\n"_s);
        Geval("in order", QByteArray("rat\naap\nNoot\nmier\n"), u"AAP\r\nMIER\r\nNOOT\r\nRAT\r\n"_s);
        Geval("the shorter first", QByteArray("aapje\naap\n"), u"AAP\r\nAAPJE\r\n"_s);
        Geval("accents", QByteArray("pinguïn\nIsère\n"), u"ISÈRE\r\nPINGUÏN\r\n"_s);
        Geval("accents beside their plain letter", QByteArray("zee\nézel\nfret\nezels\nkafee\nkaféa\nçetter\ndas\n"),
              u"ÇETTER\r\nDAS\r\nÉZEL\r\nEZELS\r\nFRET\r\nKAFÉA\r\nKAFEE\r\nZEE\r\n"_s);
        Geval("only an accent between them", QByteArray("één\nén\nen\neen\n"), u"EEN\r\nÉÉN\r\nEN\r\nÉN\r\n"_s);
        Geval("ij is two letters", QByteArray("ijs\nik\nigel\n"), u"IGEL\r\nIJS\r\nIK\r\n"_s);
        Geval("blanks and hyphens before letters", QByteArray("witte\nwit-z\nwit z\nwit\n"),
              u"WIT\r\nWIT Z\r\nWIT-Z\r\nWITTE\r\n"_s);
        Geval("several parts", QByteArray("jeu de boules\njan-van-gent\n"), u"JAN-VAN-GENT\r\nJEU DE BOULES\r\n"_s);
        Geval("no partner in upper case", QByteArray("straße\n"), u"STRAßE\r\n"_s);
        Geval("source with CR LF and empty lines", QByteArray("\r\nrat\r\n\r\naap"), u"AAP\r\nRAT\r\n"_s);
    }
    void whatAListBecomes()
    {
        QFETCH(QByteArray, bron);
        QFETCH(QString, lijst);
        QCOMPARE(Files::NaarTekst(MaakLijst(bron)), lijst);
    }

    void whatNoListMayHold_data()
    {
        QTest::addColumn<QByteArray>("woord");
        for (const char *woord : {" aap", "aap ", "\taap", "a  p", "a -p", "-aap", "aap-", "a--p", " ", "-", "aap,noot",
                                  "\"aap\"", "foto's", "a4", "aap.", "aap;", "a\u00A0p", "cafe\u0301"})
            Geval(QByteArray("\"") + woord + '"', QByteArray(woord));
        Geval("not in the code page", QByteArray("Łódź"));
        Geval("ligature that is not in the code page", QByteArray("\u0133s"));
        Geval("zero byte", QByteArray("a\0b", 3));
        Geval("beyond the first plane", QByteArray("\U0001D41A"));
    }
    void whatNoListMayHold()
    {
        QFETCH(QByteArray, woord);
        QCOMPARE(Weigering(MaakLijst, "mier\n" + woord + "\nrat\n"),
                 "not a word of letters with single blanks or hyphens between them: " +
                     QByteArray(woord.constData())); // up to a zero
    }

    void aListHasNoWordTwice()
    {
        QCOMPARE(Weigering(MaakLijst, "rat\naap\nRat\n"), "there twice: Rat");
        QCOMPARE(Weigering(MaakLijst, "één\nÉén\n"), "there twice: Één");
        QCOMPARE(Weigering(MaakLijst, "één\neen\n"), QByteArray());
    }

    void aListHasAWord()
    {
        QCOMPARE(Weigering(MaakLijst, {}), "no word in it");
        QCOMPARE(Weigering(MaakLijst, "\n\r\n\n"), "no word in it");
    }

    void whatATableBecomes_data()
    {
        QTest::addColumn<QByteArray>("bron");
        QTest::addColumn<QByteArray>("tabel");
        Geval("lines as they stand there", QByteArray("rat - 2\nAap, \"1\"\n"),
              QByteArray("rat - 2\r\nAap, \"1\"\r\n"));
        Geval("source with CR LF, empty lines and a mark",
              QByteArray("\xEF\xBB\xBF"
                         "b\r\n\r\na"),
              QByteArray("b\r\na\r\n"));
        Geval("letters of the code page", QByteArray("\u00E9\u20AC\u2019\n"), QByteArray("\xE9\x80\x92\r\n"));
        Geval("another case is another line", QByteArray("cv\nCV\n"), QByteArray("cv\r\nCV\r\n"));
    }
    void whatATableBecomes()
    {
        QFETCH(QByteArray, bron);
        QTEST(MaakTabel(bron), "tabel");
    }

    void whatNoTableMayHold_data()
    {
        QTest::addColumn<QByteArray>("regel");
        for (const char *regel : {" aap", "aap ", "\taap", "a\tb", "aap\u00A0", " ", "\u0141\u00F3d\u017A",
                                  "cafe\u0301", "\U0001D41A", "a\u0081"})
            Geval(QByteArray("\"") + regel + '"', QByteArray(regel));
        Geval("zero byte", QByteArray("a\0b", 3));
    }
    void whatNoTableMayHold()
    {
        QFETCH(QByteArray, regel);
        const QByteArray waarom = "not a text of the code page without blanks at its ends: ";
        QCOMPARE(Weigering(MaakTabel, "mier\n" + regel + "\nrat\n"), waarom + regel.constData()); // up to a zero
        QCOMPARE(Weigering(MaakSpreekwoorden, "a -/- b\n" + regel), waarom + regel.constData());
    }

    void aTableHasALineAndNoneTwice()
    {
        for (const auto maak : {MaakTabel, MaakSpreekwoorden}) {
            QCOMPARE(Weigering(maak, "\n\r\n"), "no line in it");
            QCOMPARE(Weigering(maak, "a -/- b\nc -/- d\na -/- b\n"), "there twice: a -/- b");
            QCOMPARE(Weigering(maak, "caf\xE9\n"), "not valid UTF-8");
        }
    }

    void whatProverbsBecome()
    {
        QCOMPARE(MaakSpreekwoorden("b -/- eerst, dan\n\na -/- \u00E9\u00E9n\n"),
                 QByteArray("b -/- Betekenis : eerst, dan\r\na -/- Betekenis : \xE9\xE9n\r\n"));
    }

    void whatNoProverbsMayHold_data()
    {
        QTest::addColumn<QByteArray>("regel");
        QTest::addColumn<QByteArray>("waarom");
        const QByteArray vorm = "not a saying and its meaning with \" -/- \" between them: ";
        for (const char *regel : {"aap", "a-/-b", "a -/-b", "a -/-", "-/- b", "a -/- b -/- c"})
            Geval(regel, QByteArray(regel), vorm + regel);
        Geval("another meaning of the same", QByteArray("mus -/- anders"), QByteArray("there twice: mus -/- anders"));
    }
    void whatNoProverbsMayHold()
    {
        QFETCH(QByteArray, regel);
        QFETCH(QByteArray, waarom);
        QCOMPARE(Weigering(MaakSpreekwoorden, "mus -/- vogel\n" + regel + "\nrat -/- dier\n"), waarom);
    }

    void aRefusalIsShort()
    {
        const QByteArray lang(100000, 'a');
        QVERIFY(Weigering(MaakLijst, lang + '4').endsWith(": " + lang.first(60)));
        QCOMPARE(Weigering(MaakLijst, lang + '\n' + lang), "there twice: " + lang.first(60));
    }
};

RASTER_TEST(tst_InstallatieBestanden)
#include "tst_InstallatieBestanden.moc"
