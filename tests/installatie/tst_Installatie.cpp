#include "installatie/InstallatieBestanden.h"

#include "platform/CodePage.h"
#include "support/Afloop.h"
#include "support/InhoudVan.h"
#include "support/Testbank.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

/// The lines of a file that was made, without their ends; none when a line doesn't end in CR LF.
static QStringList Regels(const QByteArray &bestand)
{
    const QString tekst = Files::NaarTekst(bestand);
    if (tekst.count(u'\n') != tekst.count("\r\n"_L1) || tekst.count(u'\r') != tekst.count(u'\n') ||
        !tekst.endsWith(u'\n'))
        return {};
    return tekst.chopped(2).split("\r\n"_L1);
}

static QString Kaal(const QString &woord)
{
    static const QRegularExpression accent(u"\\p{Mn}"_s);
    return woord.normalized(QString::NormalizationForm_D).remove(accent).toLower();
}

class tst_Installatie : public QObject
{
    Q_OBJECT
private slots:
    void theProgramMakesAFile_data()
    {
        QTest::addColumn<QString>("wat");
        QTest::addColumn<QByteArray>("bron");
        QTest::addColumn<QByteArray>("inhoud");
        QByteArray woorden;
        for (char letter = 'a'; letter <= 'z'; ++letter)
            woorden += letter + QByteArray("\xC3\xA9\n");
        Geval("words", u"woorden"_s, woorden + "Aap\n",
              QByteArray(woorden).replace("\xC3\xA9", "e").replace("\n", "\r\n"));
        Geval("list", u"lijst"_s, QByteArray("rat\nmier\n"), QByteArray("MIER\r\nRAT\r\n"));
        Geval("table", u"tabel"_s, QByteArray("rat -/- knaagt\ncaf\u00E9\n"),
              QByteArray("rat -/- knaagt\r\ncaf\xE9\r\n"));
        Geval("proverbs", u"spreekwoorden"_s, QByteArray("rat -/- knaagt\n"),
              QByteArray("rat -/- Betekenis : knaagt\r\n"));
    }
    void theProgramMakesAFile()
    {
        QFETCH(QString, wat);
        QFETCH(QByteArray, bron);
        QFETCH(QByteArray, inhoud);
        const Testbank bank;
        bank.Schrijf(u"één bron.txt"_s, bron);
        bank.Schrijf(u"doel.txt"_s, "old");
        const QString doel = bank.Map() + u"/doel.txt"_s;
        const Afloop afloop(QStringLiteral(INSTALLATIE), {wat, bank.Map() + u"/één bron.txt"_s, doel});
        QCOMPARE(afloop.Fouten, QByteArray());
        QCOMPARE(afloop.Code, 0);
        QCOMPARE(afloop.Uit, doel.toUtf8() + ": " + QByteArray::number(inhoud.count('\n')) + " lines\n");
        QCOMPARE(bank.Inhoud(u"doel.txt"_s), inhoud);
    }

    void theProgramSaysInALineWhatIsWrong_data()
    {
        QTest::addColumn<QStringList>("argumenten"); // "@" is the folder of the test
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("fout");
        const QString gebruik = u"it takes woorden|lijst|tabel|spreekwoorden BRON DOEL"_s, bron = u"@/bron.txt"_s,
                      doel = u"@/doel.txt"_s;
        Geval("nothing", QStringList{}, 2, gebruik);
        Geval("too few", QStringList{u"lijst"_s, bron}, 2, gebruik);
        Geval("too many", QStringList{u"lijst"_s, bron, doel, doel}, 2, gebruik);
        Geval("something else", QStringList{u"Lijst"_s, bron, doel}, 2, gebruik);
        Geval("no source", QStringList{u"woorden"_s, u"@/weg.txt"_s, doel}, 1, u"@/weg.txt can't be read"_s);
        Geval("source that is a folder", QStringList{u"lijst"_s, u"@"_s, doel}, 1, u"@ can't be read"_s);
        Geval("letters missing", QStringList{u"woorden"_s, bron, doel}, 1,
              bron + u": no word begins with one of these letters: bcdefghijklmnopqstuvwxyz"_s);
        Geval("no UTF-8", QStringList{u"woorden"_s, u"@/latijn.txt"_s, doel}, 1, u"@/latijn.txt: not valid UTF-8"_s);
        Geval("not for a list", QStringList{u"lijst"_s, u"@/cijfers.txt"_s, doel}, 1,
              u"@/cijfers.txt: not a word of letters with single blanks or hyphens between them: 4é"_s);
        Geval("not for a table", QStringList{u"tabel"_s, u"@/blanks.txt"_s, doel}, 1,
              u"@/blanks.txt: not a text of the code page without blanks at its ends: rat "_s);
        Geval("no proverbs", QStringList{u"spreekwoorden"_s, bron, doel}, 1,
              bron + u": not a saying and its meaning with \" -/- \" between them: rat"_s);
        Geval("no folder for it", QStringList{u"lijst"_s, bron, u"@/weg/doel.txt"_s}, 1,
              u"@/weg/doel.txt can't be written"_s);
    }
    void theProgramSaysInALineWhatIsWrong()
    {
        QFETCH(QStringList, argumenten);
        QFETCH(int, code);
        QFETCH(QString, fout);
        const Testbank bank;
        bank.Schrijf(u"bron.txt"_s, "rat\naap\n");
        bank.Schrijf(u"latijn.txt"_s, "rat\ncaf\xE9\n");
        bank.Schrijf(u"cijfers.txt"_s, "rat\n4\xC3\xA9\n");
        bank.Schrijf(u"blanks.txt"_s, "rat \n");
        const Afloop afloop(QStringLiteral(INSTALLATIE), argumenten.replaceInStrings(u"@"_s, bank.Map()));
        QCOMPARE(QString::fromUtf8(afloop.Fouten), u"installatie: "_s + fout.replace(u'@', bank.Map()) + u'\n');
        QCOMPARE(afloop.Code, code);
        QCOMPARE(afloop.Uit, QByteArray());
        QCOMPARE(bank.Bestanden({}), (QStringList{u"blanks.txt"_s, u"bron.txt"_s, u"cijfers.txt"_s, u"latijn.txt"_s}));
    }

    void theWordDatabaseIsMadeOfItsSource()
    {
        const QByteArray bestand = InhoudVan(QStringLiteral(GEMAAKT "/Data/nederlands.lib"));
        QVERIFY(!bestand.isEmpty());
        QVERIFY(bestand == MaakWoorden(InhoudVan(QStringLiteral(WOORDEN))));
    }

    void theWordDatabaseHoldsPlainWordsOnly()
    {
        const QStringList woorden = Regels(InhoudVan(QStringLiteral(GEMAAKT "/Data/nederlands.lib")));
        const auto isGewoon = [](QChar teken) { return teken >= u'a' && teken <= u'z'; };
        QSet<QString> gezien;
        QSet<QChar> letters;
        for (const QString &woord : woorden) {
            if (woord.size() < 2 || !std::all_of(woord.begin(), woord.end(), isGewoon) || gezien.contains(woord))
                QFAIL(qPrintable(woord));
            gezien += woord;
            letters += woord.front();
        }
        QCOMPARE(letters.size(), 26);
    }

    void theWordDatabaseIsLarge()
    {
        if (QLatin1String(WOORDEN) != QLatin1String(WDUTCH))
            QSKIP("made of another list of words");
        const QStringList woorden = Regels(InhoudVan(QStringLiteral(GEMAAKT "/Data/nederlands.lib")));
        QVERIFY2(woorden.size() > 300000, qPrintable(QString::number(woorden.size())));
        const QSet<QString> alle(woorden.begin(), woorden.end());
        for (const QString &woord :
             {u"aap"_s, u"een"_s, u"cafe"_s, u"geurig"_s, u"ijs"_s, u"puzzelwoordenboek"_s, u"zee"_s})
            QVERIFY2(alle.contains(woord), qPrintable(woord));
    }

    void theLicenceOfTheWordsLiesBesideThem()
    {
        const QByteArray licentie = InhoudVan(QStringLiteral(GEMAAKT "/Data/nederlands-licentie.txt"));
        const bool isEigen = QLatin1String(WOORDEN) == QLatin1String(WDUTCH);
        QCOMPARE(licentie.contains("Copyright:") && licentie.contains("(c) 1996 Nederlandstalige Tex Gebruikersgroep"),
                 isEigen);
    }

    void thereIsAListForEachSubject()
    {
        const QStringList onderwerpen = QDir(QStringLiteral(LIJSTEN)).entryList(QDir::Files, QDir::Name);
        QVERIFY(onderwerpen.size() >= 16);
        for (const QString &naam : onderwerpen)
            QVERIFY2(QFile::exists(QStringLiteral(GEMAAKT "/Woordlijsten/") + naam), qPrintable(naam));
    }

    void aListIsFitForPuzzles_data()
    {
        QTest::addColumn<QString>("naam");
        for (const QString &naam : QDir(QStringLiteral(LIJSTEN)).entryList(QDir::Files, QDir::Name))
            Geval(naam.toUtf8(), naam);
    }
    void aListIsFitForPuzzles()
    {
        QFETCH(QString, naam);
        static const QRegularExpression onderwerp(u"\\A[A-Z][a-z]+\\.txt\\z"_s),
            vorm(u"\\A[^,\"\\s]([^,\"]*[^,\"\\s])?\\z"_s);
        QVERIFY(onderwerp.match(naam).hasMatch());
        const QByteArray bron = InhoudVan(QStringLiteral(LIJSTEN "/") + naam);
        QVERIFY(bron.isValidUtf8() && bron.endsWith('\n') && !bron.contains('\r'));
        const QStringList woorden = QString::fromUtf8(bron).chopped(1).split(u'\n');
        QVERIFY2(woorden.size() >= 40 && woorden.size() <= 200, qPrintable(QString::number(woorden.size())));
        QSet<QString> gezien;
        for (const QString &woord : woorden) {
            QVERIFY2(vorm.match(woord).hasMatch(), qPrintable(woord));
            QVERIFY2(woord.size() >= 2 && woord.size() <= 19, qPrintable(woord));
            QVERIFY2(std::all_of(woord.begin(), woord.end(), Files::InCodePage), qPrintable(woord));
            QVERIFY2(!gezien.contains(woord.toLower()), qPrintable(woord));
            gezien += woord.toLower();
        }
    }

    void aListIsMadeOfItsSource_data() { aListIsFitForPuzzles_data(); }
    void aListIsMadeOfItsSource()
    {
        QFETCH(QString, naam);
        const QStringList regels = Regels(InhoudVan(QStringLiteral(GEMAAKT "/Woordlijsten/") + naam));
        QStringList woorden =
            QString::fromUtf8(InhoudVan(QStringLiteral(LIJSTEN "/") + naam)).toUpper().split(u'\n', Qt::SkipEmptyParts);
        std::stable_sort(woorden.begin(), woorden.end(),
                         [](const QString &a, const QString &b) { return Kaal(a) < Kaal(b); });
        QCOMPARE(regels, woorden);
    }
};

RASTER_TEST(tst_Installatie)
#include "tst_Installatie.moc"
