#include "documents/PuzzelBestand.h"
#include "support/Testbank.h"

using namespace Qt::StringLiterals;

static const QByteArray Streep(28, '-');
static const QByteArray Kop = "Tessel Hoeksma Software \xAE 2018\r\n1\r\n16\r\n19\r\n" + Streep + "\r\n";

static const QByteArray EenRij = "A-01 / 1-H\r\ndier\r\naap\r\n-\r\n" + Streep + "\r\n";

static QString Rijen(const PuzzelLijst &lijst)
{
    QStringList tekst;
    for (const Rij &rij : lijst.Rijen)
        tekst += QStringList{rij.Vaknummer, rij.Omschrijving, rij.Oplossing, rij.Nr}.join(u'|');
    return tekst.join(u'/');
}

class tst_PuzzelBestand : public QObject
{
    Q_OBJECT
private slots:
    void aPuzzleWithoutEntriesIsFiveLines() { QCOMPARE(SchrijfPuzzelLijst(1, 16, 19, {}), Kop); }

    void everyRowIsFiveLines()
    {
        const QList<Rij> rijen{{u"  A-01 / 1-H "_s, u" dier, groot \"grijs\""_s, u" olifant "_s, u" - "_s},
                               {u"B-02 / 18-V"_s, QString(), u"één€"_s, u"12"_s},
                               {u"  "_s, u"twee\nregels"_s, u"\"aap\""_s, QString()},
                               {}};
        QCOMPARE(SchrijfPuzzelLijst(3, 9, 10, rijen),
                 QByteArray("Tessel Hoeksma Software \xAE 2018\r\n3\r\n9\r\n10\r\n" + Streep +
                            "\r\nA-01 / 1-H\r\n dier, groot \"grijs\"\r\n olifant \r\n - \r\n" + Streep +
                            "\r\nB-02 / 18-V\r\n\r\n\xE9\xE9n\x80\r\n12\r\n" + Streep +
                            "\r\n\r\ntwee\nregels\r\n\"aap\"\r\n\r\n" + Streep + "\r\n\r\n\r\n\r\n\r\n" + Streep +
                            "\r\n"));
    }

    void onlyBlanksAreTrimmed()
    {
        const QByteArray kop = SchrijfPuzzelLijst(1, 16, 19, {}), rest = "\r\nx\r\ny\r\n-\r\n" + Streep + "\r\n";
        QCOMPARE(SchrijfPuzzelLijst(1, 16, 19, {{u" \tA-01\u00A0 "_s, u"x"_s, u"y"_s, u"-"_s}}),
                 kop + "\tA-01\xA0" + rest);
    }

    void whatIsWrittenComesBack()
    {
        const QList<Rij> rijen{{u"A-01 / 1-H"_s, u"dier: ä ç µ"_s, u"olifant"_s, u"-"_s},
                               {u"B-02 / 18-V"_s, QString(), u"wijn"_s, u"-"_s},
                               {u"-"_s, u"-"_s, u"zee"_s, u"-"_s}};
        const PuzzelLijst lijst = LeesPuzzelLijst(SchrijfPuzzelLijst(2, 12, 13, rijen));
        QVERIFY(lijst.Heel);
        QCOMPARE(*lijst.Soort, quint8(2));
        QCOMPARE(*lijst.Breedte, 12);
        QCOMPARE(*lijst.Hoogte, 13);
        QCOMPARE(lijst.Rijen, rijen);
    }

    void reading_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<QString>("rijen");
        QTest::addColumn<bool>("heel");
        const QByteArray einde = "\r\n" + Streep + "\r\n";
        const QByteArray aap = "A-01 / 1-H\r\ndier\r\naap\r\n-" + einde,
                         mies = "B-01 / 2-H\r\nnoot\r\nmies\r\n-" + einde;
        const char alleenAap[] = "A-01 / 1-H|dier|aap|-", alleenMies[] = "B-01 / 2-H|noot|mies|-";
        Geval("header only", Kop, "", true);
        Geval("no kind, no banner and another line", "\r\n0\r\n9\r\n9\r\nx\r\n" + aap, alleenAap, true);
        Geval("empty clue keeps its place", Kop + "A-01 / 1-H\r\n\r\naap\r\n-" + einde + mies,
              "A-01 / 1-H||aap|-/B-01 / 2-H|noot|mies|-", true);
        Geval("blank first field is skipped", Kop + "   \r\nx\r\ny\r\nz" + einde + mies, alleenMies, true);
        Geval("blanks in quotes are skipped too", Kop + "\"   \"\r\nx\r\ny\r\nz" + einde + mies, alleenMies, true);
        Geval("a tab is no blank", Kop + "\t\r\nx\r\ny\r\nz" + einde + mies, "\t|x|y|z/B-01 / 2-H|noot|mies|-", true);
        Geval("empty first field is skipped", Kop + "\r\nx\r\ny\r\nz" + einde + mies, alleenMies, true);
        // A comma in the clue moves every later field up one; the record's separator begins the next record, and in the
        // end the fields run out within one.
        Geval("comma shifts", Kop + "A-01 / 1-H\r\nrood, wit\r\nvlag\r\n-" + einde + mies,
              QString::fromLatin1("A-01 / 1-H|rood|wit|vlag/" + Streep + "|B-01 / 2-H|noot|mies"), false);
        Geval("five commas fill a record", Kop + "A-01 / 1-H\r\na,b,c,d,e,f\r\nvlag\r\n-" + einde,
              "A-01 / 1-H|a|b|c/e|f|vlag|-", true);
        Geval("quoted clue with a comma", Kop + "A-01 / 1-H\r\n\"rood, wit\"\r\nvlag\r\n-" + einde,
              "A-01 / 1-H|rood, wit|vlag|-", true);
        Geval("blanks behind a field stay", Kop + "A-01 / 1-H \r\ndier \r\naap  \r\n- " + einde,
              "A-01 / 1-H |dier |aap  |- ", true);
        Geval("leading blanks", Kop + "A-01 / 1-H\r\n   dier\r\naap\r\n-" + einde, alleenAap, true);
        Geval("cut in a row", Kop + aap + "B-01 / 2-H\r\nno", alleenAap, false);
        Geval("without the last separator", Kop + "A-01 / 1-H\r\ndier\r\naap\r\n-\r\n", alleenAap, false);
        Geval("a blank line at the end", Kop + aap + "\r\n", alleenAap, false);
        Geval("line feeds only", QByteArray(Kop + aap).replace("\r\n", "\n"), alleenAap, true);
        Geval("records of commas", Kop + QByteArray(1000, ','), "", true);
        Geval("commas that end within a record", Kop + QByteArray(1001, ','), "", false);
    }
    void reading()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(QString, rijen);
        const PuzzelLijst lijst = LeesPuzzelLijst(inhoud);
        QCOMPARE(Rijen(lijst), rijen);
        QTEST(lijst.Heel, "heel");
    }

    void aDamagedHeaderKeepsWhatWasReadSoFar_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        QTest::addColumn<int>("gelezen"); // how many of kind, width and height
        Geval("empty", QByteArray(), 0);
        Geval("banner only", QByteArray("banner\r\n"), 0);
        Geval("kind no number", QByteArray("banner\r\neen\r\n9\r\n9\r\n-\r\n"), 0);
        Geval("kind too large", QByteArray("banner\r\n256\r\n9\r\n9\r\n-\r\n"), 0);
        Geval("width no number", QByteArray("banner\r\n1\r\nnegen\r\n9\r\n-\r\n"), 1);
        Geval("height missing", QByteArray("banner\r\n1\r\n9\r\n"), 2);
        Geval("height too large", QByteArray("banner\r\n1\r\n9\r\n99999999999\r\n-\r\n"), 2);
        Geval("separator missing", QByteArray("banner\r\n1\r\n9\r\n9\r\n"), 3);
        Geval("zero bytes", QByteArray(5000, '\0'), 0);
    }
    void aDamagedHeaderKeepsWhatWasReadSoFar()
    {
        QFETCH(QByteArray, inhoud);
        QFETCH(int, gelezen);
        const PuzzelLijst lijst = LeesPuzzelLijst(inhoud);
        QCOMPARE(lijst.Soort.has_value() + lijst.Breedte.has_value() + lijst.Hoogte.has_value(), gelezen);
        QVERIFY(!lijst.Heel);
        QVERIFY(lijst.Rijen.isEmpty());
    }

    void whereverAFileIsCutWhatIsBeforeItStands()
    {
        const QList<Rij> rijen(3, {u"A-01 / 1-H"_s, u"x"_s, u"y"_s, u"-"_s});
        const QByteArray heel = SchrijfPuzzelLijst(1, 16, 19, rijen).replace("\r\n", "\n");
        for (qsizetype lengte = 0; lengte <= heel.size(); ++lengte) {
            const PuzzelLijst lijst = LeesPuzzelLijst(heel.first(lengte));
            const qsizetype velden = heel.first(lengte).count('\n') + (lengte > 0 && heel[lengte - 1] != '\n');
            QCOMPARE(lijst.Rijen.size(),
                     std::max(qsizetype(0), (velden - 4) / 5)); // a row stands with its fourth field
            QCOMPARE(lijst.Heel, velden > 0 && velden % 5 == 0);
        }
    }

    void aLargeFileIsReadWhole()
    {
        const PuzzelLijst lijst = LeesPuzzelLijst(Kop + EenRij.repeated(100000));
        QVERIFY(lijst.Heel);
        QCOMPARE(lijst.Rijen.size(), 100000);
    }

    void whatIsBeyondTheLargestFileIsAFailure()
    {
        const qsizetype passen = (GrootsteLijst - Kop.size()) / EenRij.size();
        QByteArray inhoud = Kop + EenRij.repeated(passen);
        inhoud.prepend(QByteArray(GrootsteLijst - inhoud.size(), 'x')); // a longer first line, to end where it may
        QVERIFY(LeesPuzzelLijst(inhoud).Heel);
        const PuzzelLijst lijst = LeesPuzzelLijst(inhoud + EenRij.repeated(3));
        QVERIFY(!lijst.Heel);
        QCOMPARE(lijst.Rijen.size(), passen); // those before it stand
        QCOMPARE(*lijst.Hoogte, 19);
    }

    void aFieldThatRunsBeyondTheLargestFileIsNotTaken()
    {
        const PuzzelLijst lijst =
            LeesPuzzelLijst(Kop + EenRij + "B-01 / 2-H\r\nnoot\r\nmies\r\n" + QByteArray(GrootsteLijst, 'x'));
        QVERIFY(!lijst.Heel);
        QCOMPARE(lijst.Rijen.size(), 1);
    }

    void anyBytesAreReadQuietly()
    {
        QByteArray bytes;
        for (quint32 i = 0; i < 100000; ++i)
            bytes += static_cast<char>((i * 2654435761u) >> 24);
        QVERIFY(!LeesPuzzelLijst(bytes).Heel);
        QVERIFY(LeesPuzzelLijst(Kop + bytes).Breedte.has_value());
    }
};

RASTER_TEST(tst_PuzzelBestand)
#include "tst_PuzzelBestand.moc"
