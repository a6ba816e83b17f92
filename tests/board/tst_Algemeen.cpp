#include "Adressen.h"

#include "board/Algemeen.h"
#include "support/Bord.h"
#include "support/Schil.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

class tst_Algemeen : public QObject
{
    Q_OBJECT
private slots:
    void startValues()
    {
        PuzzelType = PijlSoort = KleurVakjes = 7;
        BoardWidth = BoardHeight = CurCol = CurRow = CurCell = PosX = PosY = 77;
        OrgineelRood = OrgineelGroen = OrgineelBlauw = 77;
        PuzzelNaam = PaginaTekst = u"oud"_s;
        PuzzelGewijzigd = true;
        VakZwart.fill(true);
        BeginWaarden();
        QCOMPARE(PuzzelType, Zweeds);
        QCOMPARE(BoardWidth, 16);
        QCOMPARE(BoardHeight, 19);
        QCOMPARE(CurCol, 0);
        QCOMPARE(CurRow, 0);
        QCOMPARE(CurCell, 0);
        QCOMPARE(PosX, 0);
        QCOMPARE(PosY, 0);
        QCOMPARE(PuzzelNaam, QString());
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(PijlSoort, quint8(1));
        QCOMPARE(KleurVakjes, quint8(1));
        QCOMPARE(OrgineelRood, qint16(230));
        QCOMPARE(OrgineelGroen, qint16(250));
        QCOMPARE(OrgineelBlauw, qint16(190));
        QCOMPARE(PaginaTekst, Adressen::Uitgever);
        QCOMPARE(VakZwart.size(), std::size_t(305));
        QVERIFY(std::none_of(VakZwart.begin(), VakZwart.end(), [](bool zwart) { return zwart; }));
    }

    void firstLetterCapital_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("verwacht");
        Geval("mixed", "aMSTERDAM", "Amsterdam");
        Geval("two words", "vakantie PUZZEL", "Vakantie puzzel");
        Geval("blank first", " Abc", " abc");
        Geval("empty", "", "");
        Geval("one letter", "a", "A");
        Geval("long ij", "ijsland", "Ijsland"); // two characters
        Geval("hyphen and stop", "zuid-HOLLAND. noord", "Zuid-holland. noord");
        Geval("keeps its length", u"ßTEST"_s, u"ßtest"_s);
        Geval("accent", u"ÉÉN"_s, u"Één"_s);
        Geval("outside the code page", u"ωΩ"_s, u"ωΩ"_s);
    }
    void firstLetterCapital()
    {
        QFETCH(QString, tekst);
        QFETCH(QString, verwacht);
        QCOMPARE(EersteHoofdletter(tekst), verwacht);
    }

    void waitingTakesTheSecondsOfTheClock()
    {
        Testbank bank;
        Wachten(0.2);
        Wachten(0.01);
        QCOMPARE(bank.TestKlok.Gewacht(), 0.21);
    }

    void theUserIsTheOneLoggedIn()
    {
        qputenv("USER", "tessel");
        qputenv("USERNAME", "jan");
        QCOMPARE(HaalGebruiker(), u"tessel"_s);
        qputenv("USER", "");
        QCOMPARE(HaalGebruiker(), u"jan"_s);
        qunsetenv("USER");
        QCOMPARE(HaalGebruiker(), u"jan"_s);
        qunsetenv("USERNAME"); // now the system is asked
        QCOMPARE(HaalGebruiker(), QFileInfo(u"/proc/self"_s).owner());
        QVERIFY(!HaalGebruiker().isEmpty());
    }

    void aFileExistsOrNot()
    {
        Testbank bank;
        bank.Schrijf(u"Puzzels/a.lst"_s, "x");
        QVERIFY(BestandBestaat(bank.Map() + u"/Puzzels/a.lst"_s));
        QVERIFY(!BestandBestaat(bank.Map() + u"/Puzzels/b.lst"_s));
        QVERIFY(!BestandBestaat(bank.Map() + u"/Puzzels"_s));
    }

    void documentsGoToTheShell()
    {
        Schil schil;
        OpenDocument(u"https://woordenboek.example/puzzelwoordenboek/"_s);
        OpenDocument(u"/een map/Data/Woordlijst Importeren.pdf"_s);
        OpenDocument(u"/map #1/100%20?/Html/Zo'n \"dag\" & nacht.html"_s); // what an address would take for its own
        QCOMPARE(schil.Geopend.size(), 3);
        QCOMPARE(schil.Geopend[2].toLocalFile(), u"/map #1/100%20?/Html/Zo'n \"dag\" & nacht.html"_s);
        QCOMPARE(schil.Geopend[0], QUrl(u"https://woordenboek.example/puzzelwoordenboek/"_s));
        QCOMPARE(schil.Geopend[1].toLocalFile(), u"/een map/Data/Woordlijst Importeren.pdf"_s);
    }

    void specialCharactersMessage()
    {
        Testbank bank;
        ToonSpecialeTekens();
        QCOMPARE(bank.Script.Gezien.size(), 1);
        QCOMPARE(bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QCOMPARE(bank.Script.Gezien[0].Titel, u"Rasteratelier"_s);
        const QStringList regels = bank.Script.Gezien[0].Tekst.split(u"\r\n"_s);
        const QStringList verwacht{
            u"Bijzondere combinaties"_s,  u"-------------------------"_s, u"á  = Ctrl-Alt - a / 160"_s,
            u"é  = Ctrl-Alt - e / 130"_s, u"ó  = Ctrl-Alt - o / 162"_s,   u"ä  = Ctrl-Alt - q / 132"_s,
            u"ü  = Ctrl-Alt - y / 129"_s, u"ö  = Ctrl-Alt - p / 148"_s,   u"ú  = Ctrl-Alt - u / 163"_s,
            u"µ  = Ctrl-Alt - m / 230"_s, u"© = Ctrl-Alt - c"_s,          u" ²  = Ctrl-Alt - 2"_s,
            u" ³  = Ctrl-Alt - 3"_s,      u"€   = Ctrl-Alt - 5"_s,        u"¼ = Ctrl-Alt - 6 / 172"_s,
            u"½ = Ctrl-Alt - 7 / 171"_s,  u"¾ = Ctrl-Alt - 8"_s};
        QCOMPARE(regels, verwacht);
    }

    void wideAndNarrowLettersMove()
    {
        QCOMPARE(LetterVerschuiving(u'W'), -45);
        QCOMPARE(LetterVerschuiving(u'I'), 60);
        QCOMPARE(LetterVerschuiving(u'?'), 0);
        QCOMPARE(LetterVerschuiving(u'Q'), 0);
        QCOMPARE(LetterVerschuiving(u'w'), 0); // small letters are none of them
        QCOMPARE(LetterVerschuiving(u'i'), 0);
        QCOMPARE(LetterVerschuiving(u'Ï'), 0);
    }
};

RASTER_TEST(tst_Algemeen)
#include "tst_Algemeen.moc"
