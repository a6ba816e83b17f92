#include "support/Afloop.h"
#include "support/InhoudVan.h"
#include "support/PdfLezer.h"
#include "support/Testbank.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

/// Runs the program on a description in a folder of its own.
class Werkplaats
{
public:
    Werkplaats() { QDir(map_.path()).mkdir(u"Puzzels"_s); }
    QString Map() const { return map_.path(); }
    QStringList Puzzels() const { return QDir(Map() + u"/Puzzels"_s).entryList(QDir::Files, QDir::Name); }
    QByteArray Inhoud(const QString &naam) const { return InhoudVan(Map() + u'/' + naam); }
    Afloop Voer(const QString &wat, const QByteArray &beschrijving) const
    {
        QFile bron(Map() + u"/bron.txt"_s);
        if (!bron.open(QIODevice::WriteOnly) || bron.write(beschrijving) != beschrijving.size())
            qFatal("no description");
        bron.close();
        return {QStringLiteral(VOORBEELD), {wat, bron.fileName(), Map()}};
    }

private:
    QTemporaryDir map_;
};

class tst_Voorbeeld : public QObject
{
    Q_OBJECT
    static void WrongKruiswoord()
    {
        Geval("letters that differ where they cross, in a Zweeds",
              QByteArray("naam|Proef\nmaat|10|11\nwoord|C-02|H|wijn|drank\nwoord|D-01|V|raap|knol\n"), 4,
              u"\"raap\" heeft op D-02"_s);
        const QByteArray kruis = "naam|Proef\nkruiswoord|10|11\n";
        Geval("kruiswoord without a size", QByteArray("naam|Proef\nkruiswoord\n"), 2, u"kruiswoord|KOLOMMEN|RIJEN"_s);
        Geval("kruiswoord too narrow", QByteArray("naam|Proef\nkruiswoord|8|11\n"), 2, u"9 tot en met 16"_s);
        Geval("kruiswoord too high", QByteArray("naam|Proef\nkruiswoord|9|20\n"), 2, u"9 tot en met 19"_s);
        Geval("kruiswoord without words", kruis, 3, u"hier hoort woord|PLAATS|"_s);
        Geval("kruiswoord with a cell", kruis + "vak|A-01|1|x\n", 3, u"hier hoort woord|PLAATS|"_s);
        Geval("kruiswoord with letters that differ where they cross",
              kruis + "woord|C-02|H|wijn|drank\n\nwoord|E-01|V|bos|bomen\n", 5,
              u"\"bos\" heeft op E-02 een andere letter dan het woord dat er kruist"_s);
        Geval("kruiswoord with a long ij that crosses an i", kruis + "woord|C-02|H|wijn|drank\nwoord|D-02|V|iep|boom\n",
              4, u"\"iep\" heeft op D-02 een andere letter"_s);
        QByteArray veel = "naam|Proef\nkruiswoord|10|11\n";
        for (int vak = 0; vak < 100; ++vak)
            veel += "woord|" + QByteArray(1, static_cast<char>('A' + vak % 10)) + '-' +
                    QByteArray::number(vak / 10 + 1).rightJustified(2, '0') + "|H|a|x\n";
        Geval("kruiswoord with more numbers than there are", veel, 102, u"meer dan 99 vakjes"_s);
    }
    static void WrongFilippine()
    {
        const QByteArray vorm = "naam|Proef\nfilippine|Leeg|D-02|bij\n";
        Geval("filippine without a search word", QByteArray("naam|Proef\nfilippine|Leeg|D-02\n"), 2,
              u"filippine|LEGE NAAM|PLAATS|ZOEKWOORD"_s);
        Geval("filippine with a blank name that is none", QByteArray("naam|Proef\nfilippine|leeg|D-02|bij\n"), 2,
              u"\"leeg\" is geen naam"_s);
        Geval("filippine with one name twice", QByteArray("naam|Proef\nfilippine|Proef|D-02|bij\n"), 2,
              u"\"Proef\" is al de naam"_s);
        Geval("filippine with a search word beside the board", QByteArray("naam|Proef\nfilippine|Leeg|Q-02|bij\n"), 2,
              u"\"Q-02\""_s);
        Geval("filippine with a search word that leaves the board",
              QByteArray("naam|Proef\nfilippine|Leeg|P-18|rijst\n"), 2, u"\"rijst\" past niet"_s);
        for (const char *woord : {"", "Bij", "b j", "b1"})
            Geval("filippine with search word \"" + QByteArray(woord) + '"',
                  "naam|Proef\nfilippine|Leeg|D-02|" + QByteArray(woord) + '\n', 2,
                  u"\"%1\" is geen woord van kleine letters"_s.arg(QLatin1String(woord)));
        Geval("filippine without answers", vorm, 3, u"hier hoort antwoord|PLAATS|OPLOSSING|OMSCHRIJVING"_s);
        Geval("filippine with a word", vorm + "woord|A-02|H|bol|rond\n", 3, u"hier hoort antwoord|"_s);
        Geval("filippine that lacks an answer", vorm + "antwoord|C-02|bol|rond\n", 4, u"hier hoort antwoord|"_s);
        Geval("filippine with an answer too many",
              vorm + "antwoord|C-02|bol|rond\nantwoord|B-03|wijn|drank\nantwoord|C-04|bol|rond\n", 5,
              u"elke letter van het zoekwoord heeft al een antwoord"_s);
        Geval("filippine with an answer beside the board", vorm + "antwoord|C-20|bol|rond\n", 3, u"\"C-20\""_s);
        Geval("filippine with an answer in another row", vorm + "antwoord|C-03|bol|rond\n", 3,
              u"\"C-03\" is niet op rij 02"_s);
        Geval("filippine without a clue", vorm + "antwoord|C-02|bol|\n", 3, u"omschrijving ontbreekt"_s);
        Geval("filippine with a comma in a clue", vorm + "antwoord|C-02|bol|rond, groot\n", 3,
              u"groot\" komt zo niet terug"_s);
        Geval("filippine with a capital answer", vorm + "antwoord|C-02|Bol|rond\n", 3, u"\"Bol\" is geen woord"_s);
        Geval("filippine with an answer before the search word", vorm + "antwoord|A-02|bo|rond\n", 3,
              u"\"bo\" gaat niet door het zoekwoord"_s);
        Geval("filippine with an answer behind the search word", vorm + "antwoord|D-02|bol|rond\n", 3,
              u"\"bol\" gaat niet door het zoekwoord"_s);
        Geval("filippine with another letter than the search word", vorm + "antwoord|B-02|bol|rond\n", 3,
              u"\"bol\" heeft op D-02 een andere letter"_s);
        Geval("filippine with an answer that leaves the board",
              QByteArray("naam|Proef\nfilippine|Leeg|O-02|bij\nantwoord|N-02|bol|rond\n"), 3, u"\"bol\" past niet"_s);
    }
private slots:
    void aWrongDescriptionIsRefusedWithItsLine_data()
    {
        QTest::addColumn<QByteArray>("beschrijving");
        QTest::addColumn<int>("regel");
        QTest::addColumn<QString>("waarom");
        const QByteArray begin = "naam|Proef\nmaat|10|11\n";
        Geval("empty", QByteArray(), 1, u"naam|NAAM"_s);
        Geval("blank lines only", QByteArray("\n  \n\n"), 4, u"naam|NAAM"_s);
        Geval("no fields", QByteArray("naam"), 1, u"naam|NAAM"_s);
        Geval("only a name", QByteArray("naam|Proef"), 2, u"maat|KOLOMMEN|RIJEN"_s);
        Geval("only a name and a line end", QByteArray("naam|Proef\n"), 2, u"maat|KOLOMMEN|RIJEN"_s);
        Geval("size first", QByteArray("maat|10|11\nnaam|Proef\n"), 1, u"naam|NAAM"_s);
        Geval("no size", QByteArray("naam|Proef\nvak|A-01|1|x\n"), 2, u"maat|KOLOMMEN|RIJEN"_s);
        Geval("empty name", QByteArray("naam|\nmaat|10|11\n"), 1, u"\"\""_s);
        Geval("name of a path", QByteArray("naam|../Proef\nmaat|10|11\n"), 1, u"../Proef"_s);
        Geval("name as it is not saved", QByteArray("naam|proeF\nmaat|10|11\n"), 1, u"proeF"_s);
        Geval("endless name", "naam|P" + QByteArray(300, 'a') + "\nmaat|10|11\n", 1, u"aaa"_s);
        Geval("half a size", QByteArray("naam|Proef\nmaat|10\n"), 2, u"maat|KOLOMMEN|RIJEN"_s);
        Geval("size of words", QByteArray("naam|Proef\nmaat|tien|11\n"), 2, u"tien"_s);
        Geval("columns too few", QByteArray("naam|Proef\nmaat|8|11\n"), 2, u"9 tot en met 16"_s);
        Geval("columns too many", QByteArray("naam|Proef\nmaat|17|11\n"), 2, u"9 tot en met 16"_s);
        Geval("rows too few", QByteArray("naam|Proef\nmaat|10|8\n"), 2, u"9 tot en met 19"_s);
        Geval("rows too many", QByteArray("naam|Proef\nmaat|10|20\n"), 2, u"9 tot en met 19"_s);
        Geval("huge size", QByteArray("naam|Proef\nmaat|99999999999|11\n"), 2, u"99999999999"_s);
        Geval("unknown word", begin + "vlak|A-01|1|x\n", 3, u"vlak"_s);
        Geval("a second size", begin + "maat|10|11\n", 3, u"maat"_s);
        Geval("cell without fields", begin + "vak\n", 3, u"vak|PLAATS|SOORT|OMSCHRIJVING"_s);
        Geval("cell cut short", begin + "vak|A-01|1\n", 3, u"vak|PLAATS|SOORT|OMSCHRIJVING"_s);
        Geval("cell too long", begin + "vak|A-01|1|x|y\n", 3, u"vak|PLAATS|SOORT|OMSCHRIJVING"_s);
        Geval("kind 0", begin + "vak|A-01|0|x\n", 3, u"1 tot en met 8"_s);
        Geval("kind 9", begin + "vak|A-01|9|x\n", 3, u"1 tot en met 8"_s);
        Geval("kind of a letter", begin + "vak|A-01|x|x\n", 3, u"1 tot en met 8"_s);
        Geval("kind empty", begin + "vak|A-01||x\n", 3, u"1 tot en met 8"_s);
        for (const char *plaats : {"", "A", "A-", "A-00", "A-12", "K-01", "Z-99", "a-01", "A-1", "A_01", "A-011"})
            Geval("place \"" + QByteArray(plaats) + '"', begin + "vak|B-02|1|x\nvak|" + plaats + "|1|x\n", 4,
                  u"\"%1\""_s.arg(QLatin1String(plaats)));
        Geval("word cut short", begin + "woord|A-01|H|aap\n", 3, u"woord|PLAATS|"_s);
        Geval("word off the board", begin + "woord|K-01|H|aap|dier\n", 3, u"\"K-01\""_s);
        Geval("direction X", begin + "woord|A-01|X|aap|dier\n", 3, u"\"X\""_s);
        Geval("no solution", begin + "woord|A-01|H||dier\n", 3, u"oplossing"_s);
        Geval("blank solution", begin + "woord|A-01|H|  |dier\n", 3, u"oplossing"_s);
        Geval("no clue", begin + "woord|A-01|H|aap|\n", 3, u"omschrijving"_s);
        Geval("too wide", begin + "woord|I-01|H|aap|dier\n", 3, u"aap"_s);
        Geval("too high", begin + "woord|A-10|V|aap|dier\n", 3, u"aap"_s);
        Geval("endless word", begin + "woord|A-01|V|" + QByteArray(100000, 'a') + "|x\n", 3, u"aaa"_s);
        const QByteArray zoek = "naam|Proef\nwoordzoeker|10|12\n";
        Geval("second line of another kind", QByteArray("naam|Proef\nfilippine|10|11\n"), 2,
              u"hier hoort maat|KOLOMMEN|RIJEN, kruiswoord|KOLOMMEN|RIJEN, woordzoeker|KOLOMMEN|RIJEN, sudoku|NIVEAU "
              "of filippine|LEGE NAAM|PLAATS|ZOEKWOORD"_s);
        Geval("word search without a size", QByteArray("naam|Proef\nwoordzoeker\n"), 2,
              u"woordzoeker|KOLOMMEN|RIJEN"_s);
        Geval("word search with half a size", QByteArray("naam|Proef\nwoordzoeker|10\n"), 2,
              u"woordzoeker|KOLOMMEN|RIJEN"_s);
        Geval("word search too narrow", QByteArray("naam|Proef\nwoordzoeker|8|11\n"), 2, u"9 tot en met 16"_s);
        Geval("word search too high", QByteArray("naam|Proef\nwoordzoeker|9|20\n"), 2, u"9 tot en met 19"_s);
        Geval("word search without words", zoek, 3, u"hier hoort woord|WOORD"_s);
        Geval("word search with a cell", zoek + "vak|A-01|1|x\n", 3, u"hier hoort woord|WOORD"_s);
        Geval("word search with a word of another kind", zoek + "woord|A-01|H|aap|dier\n", 3,
              u"hier hoort woord|WOORD"_s);
        for (const char *woord : {"", "a", "ij", "een twee", "wat?", "a1", "abcdefghijklmn"})
            Geval("word search with \"" + QByteArray(woord) + '"', zoek + "woord|aap\nwoord|" + woord + '\n', 4,
                  u"\"%1\" is geen woord van 2 tot en met 12 letters"_s.arg(QLatin1String(woord)));
        Geval("sudoku without a level", QByteArray("naam|Proef\nsudoku\n"), 2, u"sudoku|NIVEAU"_s);
        Geval("sudoku of a level that is none", QByteArray("naam|Proef\nsudoku|normaal\n"), 2,
              u"\"normaal\" is geen niveau: Gemakkelijk, Normaal, Moeilijk"_s);
        Geval("sudoku with a size", QByteArray("naam|Proef\nsudoku|9|9\n"), 2, u"sudoku|NIVEAU"_s);
        Geval("sudoku with a word", QByteArray("naam|Proef\nsudoku|Normaal\nwoord|aap\n"), 3, u"verder niets"_s);
        WrongKruiswoord();
        WrongFilippine();
        Geval("binary", QByteArray("naam|Pro\0ef\nmaat|10|11\n", 22), 1, u"teken"_s);
        Geval("Latin-1", begin + "vak|A-01|1|caf\xE9\n", 3, u"teken"_s);
        Geval("a character that the puzzle file lacks", begin + "vak|A-01|1|\xCF\x80\n", 3, u"teken"_s);
        const QString terug = u"\" komt zo niet terug uit het puzzelbestand"_s;
        Geval("a comma in a clue", begin + "woord|A-01|H|aap|dier, groot\n", 3, u"groot"_s + terug);
        Geval("a comma in a solution", begin + "woord|A-01|H|a,p|dier\n", 3, u"a,p"_s + terug);
        Geval("a comma at the end", begin + "woord|A-01|H|aap|dier,\n", 3, u"dier,"_s + terug);
        Geval("a blank before a clue", begin + "woord|A-01|H|aap| dier\n", 3, u" dier"_s + terug);
        Geval("quotes round a clue", begin + "woord|A-01|H|aap|\"dier\"\n", 3, u"\"dier\""_s + terug);
        Geval("line end within", begin + "woord|A-01|H|\u2028aap|dier\n", 3, u"teken"_s);
        Geval("blank lines count", "\r\n\r\n" + begin + " \n\nvak|A-01|9|x\n", 7, u"1 tot en met 8"_s);
    }
    void aWrongDescriptionIsRefusedWithItsLine()
    {
        QFETCH(QByteArray, beschrijving);
        QFETCH(int, regel);
        QFETCH(QString, waarom);
        const Werkplaats werk;
        const Afloop afloop = werk.Voer(u"bewaar"_s, beschrijving);
        QVERIFY2(afloop.Code == 1, qPrintable(afloop.Tekst()));
        QVERIFY2(afloop.Tekst().contains(u"regel %1: "_s.arg(regel)), qPrintable(afloop.Tekst()));
        QVERIFY2(afloop.Tekst().contains(waarom), qPrintable(afloop.Tekst()));
        QCOMPARE(QDir(werk.Map()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Name),
                 (QStringList{u"Puzzels"_s, u"bron.txt"_s}));
        QVERIFY(werk.Puzzels().isEmpty());
    }

    void aGoodDescriptionBecomesAPuzzle()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\r\n\r\nmaat|9|19\r\nvak|A-05|3|twee\\regels\r\nvak|E-07|8|\r\n"
                                "woord|B-01|H|ijspegels|lang\r\nwoord|C-19|H|ij ijs|in de hoek\r\n"
                                "woord|B-11|V|IJSBERGEND|tot onderaan \xE2\x80\xA6\r\n";
        const Afloop gemaakt = werk.Voer(u"bewaar"_s, bron);
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        QCOMPARE(werk.Puzzels(), (QStringList{u"Proef.lst"_s, u"Proef1.bmp"_s, u"Proef2.bmp"_s}));
        const QByteArray streep = QByteArray(28, '-') + "\r\n";
        QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s), "Tessel Hoeksma Software \xAE 2018\r\n1\r\n9\r\n19\r\n" + streep +
                                                          "B-01 / 2-H\r\nlang\r\nijspegels\r\n-\r\n" + streep +
                                                          "C-19 / 165-H\r\nin de hoek\r\nijijs\r\n-\r\n" + streep +
                                                          "B-11 / 92-V\r\ntot onderaan \x85\r\nijsbergend\r\n-\r\n" +
                                                          streep);
        QCOMPARE(werk.Inhoud(u"controle/Proef/lijst.txt"_s),
                 QByteArray("B-01 / 2-H\tlang\tijspegels\t-\nC-19 / 165-H\tin de hoek\tijijs\t-\n"
                            "B-11 / 92-V\ttot onderaan \xE2\x80\xA6\tijsbergend\t-\n"));

        const Afloop gelijk = werk.Voer(u"controleer"_s, bron);
        QVERIFY2(gelijk.Code == 0, qPrintable(gelijk.Tekst()));
        QVERIFY2(gelijk.Tekst().contains(u"lijst van 3 woorden"_s), qPrintable(gelijk.Tekst()));
        QVERIFY(werk.Inhoud(u"Html/Proef.html"_s).contains("Puzzelnaam : Proef<"));
        QCOMPARE(werk.Inhoud(u"Html/Images/Proef.bmp"_s), werk.Inhoud(u"Puzzels/Proef2.bmp"_s));
    }

    void aDifferenceIsToldSo()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nmaat|9|9\nwoord|A-01|H|aap|dier\n";
        QCOMPARE(werk.Voer(u"bewaar"_s, bron).Code, 0);
        const QString map = werk.Map() + u"/controle/Proef/"_s;
        const QStringList kenmerken{u"zichtbaar puzzelveld, beeldpunt voor beeldpunt: "_s,
                                    u"orgineel puzzelveld, beeldpunt voor beeldpunt: "_s,
                                    u"lijst van 1 woorden, rij voor rij: "_s};
        const QStringList bestanden{u"Pic.png"_s, u"PicGroot.png"_s, u"lijst.txt"_s};
        for (int anders = -1; anders < 3; ++anders) {
            if (anders >= 0)
                QVERIFY(QFile::rename(map + bestanden[anders], map + u"weg"_s));
            const Afloop afloop = werk.Voer(u"controleer"_s, bron);
            QCOMPARE(afloop.Code, anders < 0 ? 0 : 1);
            QString tekst = u"venster: %1venster.png\n"_s.arg(map);
            for (int i = 0; i < 3; ++i)
                tekst += kenmerken[i] + (i == anders ? u"VERSCHIL\n"_s : u"gelijk\n"_s);
            QVERIFY2(QString::fromUtf8(afloop.Uit).endsWith(tekst), qPrintable(afloop.Tekst()));
            if (anders >= 0)
                QVERIFY(QFile::rename(map + u"weg"_s, map + bestanden[anders]));
        }
        QVERIFY(QFile::remove(map + u"venster.png"_s) && QDir().mkdir(map + u"venster.png"_s));
        const Afloop afloop = werk.Voer(u"controleer"_s, bron);
        QCOMPARE(afloop.Code, 1);
        QVERIFY2(afloop.Tekst().contains(u"voorbeeld: Fout bij lezen of schrijven (%1venster.png)\n"_s.arg(map)),
                 qPrintable(afloop.Tekst()));
    }

    void aPageThatWasNotWrittenIsToldSo_data()
    {
        QTest::addColumn<QString>("inDeWeg");
        Geval("folder", u"Html"_s);
        Geval("page", u"Html/Proef.html"_s);
        Geval("picture", u"Html/Images/Proef.bmp"_s);
    }
    void aPageThatWasNotWrittenIsToldSo()
    {
        QFETCH(QString, inDeWeg);
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nmaat|10|11\n";
        if (inDeWeg == "Html"_L1)
            QVERIFY(QFile(werk.Map() + u"/Html"_s).open(QIODevice::WriteOnly));
        else
            QVERIFY(QDir().mkpath(werk.Map() + u'/' + inDeWeg + u"/bezet"_s));
        QCOMPARE(werk.Voer(u"maak"_s, bron).Code, 0); // which writes none
        const Afloop afloop = werk.Voer(u"bewaar"_s, bron);
        QCOMPARE(afloop.Code, 1);
        const QString bestand = inDeWeg == "Html"_L1 ? u"Html/Proef.html"_s : inDeWeg;
        QVERIFY2(afloop.Tekst().contains(bestand), qPrintable(afloop.Tekst()));
    }

    void cellsAndWordsAreDrawnWhereTheyBelong()
    {
        const Werkplaats werk;
        const Afloop gemaakt = werk.Voer(u"maak"_s, "naam|Proef\nmaat|9|18\nvak|A-05|3|twee\\regels\nvak|E-07|8|\n"
                                                    "woord|B-11|V|aap|dier\nwoord|G-02|H|bij|dier\n");
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        const QImage pic(werk.Map() + u"/Puzzels/Proef1.bmp"_s), groot(werk.Map() + u"/Puzzels/Proef2.bmp"_s);
        QCOMPARE(pic.size(), QSize(9 * 30 + 1, 18 * 30 + 1));
        QCOMPARE(groot.size(), QSize(9 * 120 + 3, 18 * 120 + 3));

        const QList<QPoint> vakjes{{0, 4}, {4, 6}}, letters{{1, 10}, {1, 11}, {1, 12}, {6, 1}, {7, 1}};
        const QList<QPoint> pijlen{{1, 4}, {5, 6}, {4, 7}}; // of kind 3 to the right, of kind 8 to the right and down
        for (int rij = 0; rij < 18; ++rij)
            for (int kolom = 0; kolom < 9; ++kolom) {
                const QPoint plaats(kolom, rij);
                const QRect binnen(kolom * 30 + 1, rij * 30 + 1, 29, 29);
                if (vakjes.contains(plaats))
                    QVERIFY(!HeeftInkt(pic, binnen, qRgb(229, 248, 194)));
                else
                    QCOMPARE(HeeftInkt(pic, binnen), letters.contains(plaats) || pijlen.contains(plaats));
            }
        QVERIFY(InktVlak(pic, QRect(31, 121, 29, 29)).bottom() < 121 + 12); // kind 3 leaves near the top of the cell

        const QRgb kleur = qRgb(230, 250, 190);
        QVERIFY(HeeftInkt(groot, QRect(3, 4 * 120 + 3, 117, 19), kleur));           // the clue: a line,
        QVERIFY(HeeftInkt(groot, QRect(3, 4 * 120 + 23, 117, 19), kleur));          // another one,
        QVERIFY(!HeeftInkt(groot, QRect(3, 4 * 120 + 48, 117, 72), kleur));         // and no more
        QCOMPARE(InktVlak(groot, QRect(4 * 120 + 3, 6 * 120 + 3, 117, 117), kleur), // a split cell without a clue
                 QRect(4 * 120 + 3, 6 * 120 + 3 + 58, 117, 3));
    }

    void aKruiswoordIsMade()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nkruiswoord|9|10\nwoord|A-02|H|wijn|drank\nwoord|I-08|V|aap|dier\n"
                                "woord|B-02|V|ijs|koud\nwoord|B-02|H|ijn|rest\n";
        const Afloop gemaakt = werk.Voer(u"bewaar"_s, bron);
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        const QByteArray streep = QByteArray(28, '-') + "\r\n";
        QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s), // numbered by the place, in the order of the description
                 "Tessel Hoeksma Software \xAE 2018\r\n3\r\n9\r\n10\r\n" + streep +
                     "A-02 / 10-H\r\ndrank\r\nwijn\r\n1\r\n" + streep + "I-08 / 72-V\r\ndier\r\naap\r\n3\r\n" + streep +
                     "B-02 / 11-V\r\nkoud\r\nijs\r\n2\r\n" + streep + "B-02 / 11-H\r\nrest\r\nijn\r\n2\r\n" + streep);
        const QImage pic(werk.Map() + u"/Puzzels/Proef1.bmp"_s), groot(werk.Map() + u"/Puzzels/Proef2.bmp"_s);
        const QList<int> letters{9, 10, 11, 19, 71, 80, 89}, nummers{9, 10, 71};
        for (int vak = 0; vak < 90; ++vak) {
            const int kolom = vak % 9, rij = vak / 9;
            const QRect midden(kolom * 30 + 12, rij * 30 + 9, 17, 20), hoek(kolom * 30 + 1, rij * 30 + 1, 10, 7);
            const QRect grootHoek(kolom * 120 + 4, rij * 120 + 4, 34, 28);
            const bool isWit = letters.contains(vak);
            QCOMPARE(pic.pixel(kolom * 30 + 3, rij * 30 + 27), isWit ? qRgb(255, 255, 255) : qRgb(60, 60, 60));
            QCOMPARE(groot.pixel(kolom * 120 + 60, rij * 120 + 100), isWit ? qRgb(255, 255, 255) : qRgb(60, 60, 60));
            if (isWit) {
                QVERIFY(HeeftInkt(pic, midden));
                QCOMPARE(HeeftInkt(pic, hoek), nummers.contains(vak));
                QCOMPARE(HeeftInkt(groot, grootHoek), nummers.contains(vak));
                QVERIFY(!HeeftInkt(groot, QRect(kolom * 120 + 45, rij * 120 + 35, 60, 60))); // no letter
            }
        }
        // The numbers are those of a puzzle where one word begins at each of them, in another order.
        const Werkplaats enkel;
        const QByteArray ander = "naam|Proef\nkruiswoord|9|10\nwoord|B-02|V|ijs|koud\nwoord|A-02|H|wijn|drank\n";
        QCOMPARE(enkel.Voer(u"maak"_s, ander).Code, 0);
        const QImage anderGroot(enkel.Map() + u"/Puzzels/Proef2.bmp"_s);
        for (const QRect hoek : {QRect(3, 123, 60, 32), QRect(123, 123, 60, 32)})
            QCOMPARE(groot.copy(hoek), anderGroot.copy(hoek));

        const Afloop gelijk = werk.Voer(u"controleer"_s, bron);
        QVERIFY2(gelijk.Code == 0, qPrintable(gelijk.Tekst()));
        QVERIFY2(gelijk.Tekst().contains(u"lijst van 4 woorden"_s), qPrintable(gelijk.Tekst()));
    }

    void aKruiswoordMayHaveEveryNumberThereIs()
    {
        QByteArray bron = "naam|Proef\nkruiswoord|10|11\n";
        for (int vak = 0; vak < 99; ++vak)
            bron += "woord|" + QByteArray(1, static_cast<char>('A' + vak % 10)) + '-' +
                    QByteArray::number(vak / 10 + 1).rightJustified(2, '0') + "|H|a|x\n";
        const Werkplaats werk;
        const Afloop gemaakt = werk.Voer(u"maak"_s, bron);
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        QVERIFY(werk.Inhoud(u"Puzzels/Proef.lst"_s).endsWith("\r\na\r\n99\r\n" + QByteArray(28, '-') + "\r\n"));
    }

    // The JPEG of a save is no business of who builds.
    void thePictureIsNotPutInTheUsersOwnFolder()
    {
        const Werkplaats werk;
        QVERIFY(QDir(werk.Map()).mkdir(u"Pictures"_s));
        QCOMPARE(werk.Voer(u"maak"_s, "naam|Proef\nmaat|9|9\n").Code, 0);
        QVERIFY(QFile::exists(werk.Map() + u"/Pictures/Proef.jpg"_s));
    }

    void aFilippineIsMade()
    {
        const Werkplaats werk;
        const QByteArray bron =
            "naam|Proef\nfilippine|Leeg|D-02|bij\nantwoord|C-02|bol|rond\nantwoord|B-03|wijn|drank\n";
        const Afloop gemaakt = werk.Voer(u"bewaar"_s, bron);
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        QCOMPARE(werk.Puzzels(), (QStringList{u"Leeg.lst"_s, u"Leeg1.bmp"_s, u"Leeg2.bmp"_s, u"Proef.lst"_s,
                                              u"Proef1.bmp"_s, u"Proef2.bmp"_s}));
        const QByteArray streep = QByteArray(28, '-') + "\r\n";
        const QByteArray lijst = "Tessel Hoeksma Software \xAE 2018\r\n5\r\n16\r\n19\r\n" + streep +
                                 "02\r\nrond\r\nbol\r\n-\r\n" + streep + "03\r\ndrank\r\nwijn\r\n-\r\n" + streep;
        QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s), lijst);
        QCOMPARE(werk.Inhoud(u"Puzzels/Leeg.lst"_s), lijst);
        QVERIFY(werk.Inhoud(u"Puzzels/Leeg2.bmp"_s) == werk.Inhoud(u"Puzzels/Proef2.bmp"_s));

        const QList<int> antwoord{20, 21, 34, 36}, zoek{19, 35}, zwart{18, 33}; // the cells by their number from 0
        const QImage vol(werk.Map() + u"/Puzzels/Proef1.bmp"_s), leeg(werk.Map() + u"/Puzzels/Leeg1.bmp"_s);
        for (int vak = 0; vak < 16 * 19; ++vak) {
            const QRect binnen(vak % 16 * 30 + 5, vak / 16 * 30 + 5, 21, 21);
            const QRgb grond = leeg.pixel(binnen.topLeft());
            QCOMPARE(qRed(grond), antwoord.contains(vak) ? 240
                                  : zoek.contains(vak)   ? 174
                                  : zwart.contains(vak)  ? 0
                                                         : 255);
            QCOMPARE(vol.pixel(binnen.topLeft()), grond);
            QCOMPARE(HeeftInkt(leeg, binnen, grond), zwart.contains(vak)); // the number
            QCOMPARE(HeeftInkt(vol, binnen, grond),
                     antwoord.contains(vak) || zoek.contains(vak) || zwart.contains(vak));
        }
        QCOMPARE(qRed(vol.pixel(300, 300)), 150);  // the raster,
        QCOMPARE(qRed(leeg.pixel(300, 300)), 255); // which is wiped

        const Afloop gelijk = werk.Voer(u"controleer"_s, bron);
        QVERIFY2(gelijk.Code == 0, qPrintable(gelijk.Tekst()));
        QCOMPARE(gelijk.Tekst().count(u"lijst van 2 woorden, rij voor rij: gelijk"_s), 2);
        QVERIFY(QFile::remove(werk.Map() + u"/Puzzels/Proef1.bmp"_s)); // each of the two is compared
        const Afloop anders = werk.Voer(u"controleer"_s, bron);
        QCOMPARE(anders.Code, 1);
        QCOMPARE(anders.Tekst().count(u"VERSCHIL"_s), 1);
        QCOMPARE(anders.Tekst().count(u"lijst van 2 woorden, rij voor rij: gelijk"_s), 2);
    }

    void aWordSearchIsMade()
    {
        const QByteArray bron = "naam|Proef\nwoordzoeker|9|12\nwoord|ijspegelsijs\nwoord|Rijp\nwoord|dooi\n";
        const Werkplaats werk, nogEens;
        for (const Werkplaats *plaats : {&werk, &nogEens}) {
            const Afloop gemaakt = plaats->Voer(u"bewaar"_s, bron);
            QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        }
        const QByteArray streep = QByteArray(28, '-') + "\r\n";
        QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s),
                 "Tessel Hoeksma Software \xAE 2018\r\n2\r\n9\r\n12\r\n" + streep + "-\r\n-\r\nIJSPEGELSIJS\r\n-\r\n" +
                     streep + "-\r\n-\r\nRIJP\r\n-\r\n" + streep + "-\r\n-\r\nDOOI\r\n-\r\n" + streep);
        const QImage pic(werk.Map() + u"/Puzzels/Proef1.bmp"_s);
        QCOMPARE(pic.size(), QSize(9 * 30 + 1, 12 * 30 + 1));
        for (int vak = 0; vak < 9 * 12; ++vak)
            QVERIFY(HeeftInkt(pic, QRect(vak % 9 * 30 + 1, vak / 9 * 30 + 1, 29, 29)));
        for (const QString &naam : werk.Puzzels()) // each time the same
            QVERIFY(werk.Inhoud(u"Puzzels/"_s + naam) == nogEens.Inhoud(u"Puzzels/"_s + naam));

        const Afloop gelijk = werk.Voer(u"controleer"_s, bron);
        QVERIFY2(gelijk.Code == 0, qPrintable(gelijk.Tekst()));
        QVERIFY2(gelijk.Tekst().contains(u"lijst van 3 woorden"_s), qPrintable(gelijk.Tekst()));
        QCOMPARE(QImage(werk.Map() + u"/controle/Proef/venster.png"_s).width(), 1234); // the whole window
    }

    void aWordSearchIsDrawnUntilAllItsWordsFit()
    {
        // Words nearly as long as a side: few draws place them all.
        QByteArray bron = "naam|Proef\nwoordzoeker|9|9\n";
        for (const char *woord : {"abcdefgh", "bcdefgha", "cdefghab", "defghabc", "efghabcd", "fghabcde"})
            bron += QByteArray("woord|") + woord + '\n';
        const Werkplaats werk;
        const Afloop gemaakt = werk.Voer(u"maak"_s, bron);
        QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
        QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s).count("\r\n"), 5 + 6 * 5);
    }

    void wordsThatDoNotFitTogetherAreToldSo()
    {
        const Werkplaats werk;
        QByteArray bron = "naam|Proef\nwoordzoeker|9|9\n";
        for (int i = 0; i < 10; ++i)
            bron += "woord|abcdefghk\n";
        const Afloop afloop = werk.Voer(u"maak"_s, bron);
        QCOMPARE(afloop.Code, 1);
        QVERIFY2(afloop.Tekst().contains(u"Het woord \"ABCDEFGHK\" kan niet worden geplaatst"_s),
                 qPrintable(afloop.Tekst()));
        QVERIFY(werk.Puzzels().isEmpty());
    }

    void aSudokuIsMadeOfItsLevel()
    {
        QList<int> gegeven;
        for (const char *niveau : {"Gemakkelijk", "Normaal", "Moeilijk"}) {
            const QByteArray bron = QByteArray("naam|Proef\nsudoku|") + niveau + '\n';
            const Werkplaats werk, nogEens;
            for (const Werkplaats *plaats : {&werk, &nogEens}) {
                const Afloop gemaakt = plaats->Voer(u"bewaar"_s, bron);
                QVERIFY2(gemaakt.Code == 0, qPrintable(gemaakt.Tekst()));
            }
            QCOMPARE(werk.Inhoud(u"Puzzels/Proef.lst"_s),
                     "Tessel Hoeksma Software \xAE 2018\r\n4\r\n9\r\n9\r\n" + QByteArray(28, '-') + "\r\n");
            for (const QString &naam : werk.Puzzels())
                QVERIFY(werk.Inhoud(u"Puzzels/"_s + naam) == nogEens.Inhoud(u"Puzzels/"_s + naam));
            const QImage pic(werk.Map() + u"/Puzzels/Proef1.bmp"_s), groot(werk.Map() + u"/Puzzels/Proef2.bmp"_s);
            gegeven += 0;
            for (int vak = 0; vak < 81; ++vak) {
                gegeven.last() += pic.pixel(vak % 9 * 30 + 4, vak / 9 * 30 + 4) == qRgb(235, 235, 205);
                QVERIFY(HeeftInkt(groot, QRect(vak % 9 * 120 + 12, vak / 9 * 120 + 12, 98, 98)));
            }
            const Afloop gelijk = werk.Voer(u"controleer"_s, bron);
            QVERIFY2(gelijk.Code == 0, qPrintable(gelijk.Tekst()));
        }
        QVERIFY2(gegeven[0] > gegeven[1] && gegeven[1] > gegeven[2], qPrintable(QString::number(gegeven[1])));
    }

    void whatTheBuildMade()
    {
        const QDir bronnen(QStringLiteral(BRONNEN)), puzzels(QStringLiteral(PUZZELS));
        QCOMPARE(bronnen.entryList(QDir::Files, QDir::Name).join(u' '),
                 u"Cijfers.txt Concert.txt Kennismaking.txt Winter.txt Zondag.txt"_s);
        for (const QString &bron : bronnen.entryList(QDir::Files))
            for (const char *einde : {".lst", "1.bmp", "2.bmp"})
                QVERIFY2(puzzels.exists(QFileInfo(bron).baseName() + QLatin1String(einde)), qPrintable(bron));
        for (const char *bestand : {"Concertopgave.lst", "Concertopgave1.bmp", "Concertopgave2.bmp"})
            QVERIFY2(puzzels.exists(QLatin1String(bestand)), bestand);
    }

    void theKruiswoordOfTheBuildIsWhole()
    {
        // Read from its file alone: each run of cells is one of its words, and the numbers run on from cell to cell.
        QFile bestand(QStringLiteral(PUZZELS "/Zondag.lst"));
        QVERIFY(bestand.open(QIODevice::ReadOnly));
        QStringList regels = QString::fromLatin1(bestand.readAll()).split(u"\r\n"_s);
        const int breedte = regels[2].toInt(), hoogte = regels[3].toInt();
        QMap<int, QChar> letters;
        QMap<QString, QString> woorden; // by the place with its direction
        QMap<int, QString> nummers;     // by the cell
        for (qsizetype i = 5; i + 4 < regels.size(); i += 5) {
            const QString plaats = regels[i], woord = regels[i + 2];
            int vak = (plaats.mid(2, 2).toInt() - 1) * breedte + plaats[0].unicode() - u'A';
            QVERIFY2(!woorden.values().contains(woord), qPrintable(woord));
            woorden[QString::number(vak) + plaats.back()] = woord;
            QVERIFY2(nummers.value(vak, regels[i + 3]) == regels[i + 3], qPrintable(plaats));
            nummers[vak] = regels[i + 3];
            for (const QChar letter : woord) {
                QVERIFY2(letters.value(vak, letter) == letter, qPrintable(woord));
                letters[vak] = letter;
                vak += plaats.back() == u'H' ? 1 : breedte;
            }
        }
        QStringList oplopend;
        for (qsizetype i = 1; i <= nummers.size(); ++i)
            oplopend += QString::number(i);
        QCOMPARE(QStringList(nummers.values()), oplopend);
        QMap<QString, QString> gelezen;
        const auto loop = [&](int begin, int stap, int aantal, QChar richting) {
            QString woord;
            for (int i = 0; i <= aantal; ++i)
                if (const int vak = begin + i * stap; i < aantal && letters.contains(vak)) {
                    woord += letters[vak];
                } else {
                    if (woord.size() > 1)
                        gelezen[QString::number(vak - static_cast<int>(woord.size()) * stap) + richting] = woord;
                    woord.clear();
                }
        };
        for (int rij = 0; rij < hoogte; ++rij)
            loop(rij * breedte, 1, breedte, u'H');
        for (int kolom = 0; kolom < breedte; ++kolom)
            loop(kolom, breedte, hoogte, u'V');
        QCOMPARE(gelezen, woorden);
        QVERIFY(woorden.size() > 20);
    }

    void aPuzzleThatWasNotSavedIsToldSo()
    {
        const Werkplaats werk;
        QVERIFY(QDir(werk.Map()).rmdir(u"Puzzels"_s));
        const Afloop afloop = werk.Voer(u"maak"_s, "naam|Proef\nmaat|10|11\n");
        QCOMPARE(afloop.Code, 1);
        QVERIFY2(afloop.Tekst().contains(u"Proef.lst"_s), qPrintable(afloop.Tekst()));
    }

    void aSavedPuzzleIsPrintedWithTheTime()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nmaat|9|11\nwoord|A-01|H|aap|dier\n";
        QCOMPARE(werk.Voer(u"maak"_s, bron).Code, 0);
        const Afloop gedrukt = werk.Voer(u"druk"_s, bron);
        QVERIFY2(gedrukt.Code == 0, qPrintable(gedrukt.Tekst()));
        const QString pad = werk.Map() + u"/Afdrukken/Proef.pdf"_s;
        QVERIFY2(gedrukt.Uit.endsWith(u"afdruk: %1\n"_s.arg(pad).toUtf8()), qPrintable(gedrukt.Tekst()));
        const PdfLezer pdf(pad);
        QCOMPARE(pdf.Paginas(), 3);
        QCOMPARE(pdf.Teksten(1).first(2), (QStringList{u"600,300 12 vet #00005a Puzzelnaam : Proef"_s,
                                                       u"9000,300 12 vet #5a0000 09:05:03 / 07-03-2026"_s}));
        QCOMPARE(pdf.Beelden(1), QStringList{u"600,900 5400x6600"_s});
    }

    void theSolutionOfASudokuIsPrintedToo()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nsudoku|Normaal\n";
        QCOMPARE(werk.Voer(u"maak"_s, bron).Code, 0);
        const Afloop gedrukt = werk.Voer(u"druk"_s, bron);
        QVERIFY2(gedrukt.Code == 0, qPrintable(gedrukt.Tekst()));
        QCOMPARE(PdfLezer(werk.Map() + u"/Afdrukken/Proef.pdf"_s).Beelden(1).size(), 2);
    }

    void aPuzzleThatWasNotPrintedIsToldSo()
    {
        const Werkplaats werk;
        const QByteArray bron = "naam|Proef\nmaat|9|11\n";
        QCOMPARE(werk.Voer(u"maak"_s, bron).Code, 0);
        QFile inDeWeg(werk.Map() + u"/Afdrukken"_s);
        QVERIFY(inDeWeg.open(QIODevice::WriteOnly));
        const Afloop gedrukt = werk.Voer(u"druk"_s, bron);
        QCOMPARE(gedrukt.Code, 1);
        QVERIFY2(gedrukt.Tekst().contains(u"Proef.pdf"_s), qPrintable(gedrukt.Tekst()));
    }

    void anUnknownCommandIsRefused()
    {
        const Werkplaats werk;
        const Afloop afloop = werk.Voer(u"probeer"_s, "naam|Proef\nmaat|10|11\n");
        QCOMPARE(afloop.Code, 1);
        QVERIFY2(afloop.Tekst().contains(u"maak|bewaar|controleer|druk"_s), qPrintable(afloop.Tekst()));
        QVERIFY(werk.Puzzels().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_Voorbeeld)
#include "tst_Voorbeeld.moc"
