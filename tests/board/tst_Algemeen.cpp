#include "board/Algemeen.h"
#include "support/Bord.h"

#include <QDesktopServices>

/// Takes what would go to the system's shell.
class Schil : public QObject
{
    Q_OBJECT
public slots:
    void Open(const QUrl &url) { Geopend += url; }

public:
    QList<QUrl> Geopend;
};

class tst_Algemeen : public QObject
{
    Q_OBJECT
private slots:
    void startValues()
    {
        Testbank bank;
        PuzzelNaam = QStringLiteral("oud");
        PuzzelGewijzigd = true;
        VakZwart[7] = true;
        BeginWaarden();
        QCOMPARE(PuzzelType, Zweeds);
        QCOMPARE(BoardWidth, 16);
        QCOMPARE(BoardHeight, 19);
        QCOMPARE(CurCol, 0);
        QCOMPARE(CurRow, 0);
        QCOMPARE(CurCell, 0);
        QVERIFY(PuzzelNaam.isEmpty());
        QVERIFY(!PuzzelGewijzigd);
        QCOMPARE(PijlSoort, quint8(1));
        QCOMPARE(KleurVakjes, quint8(1));
        QCOMPARE(OrgineelRood, qint16(230));
        QCOMPARE(OrgineelGroen, qint16(250));
        QCOMPARE(OrgineelBlauw, qint16(190));
        QVERIFY(PaginaTekst.startsWith(QLatin1String("https://")));
        QCOMPARE(VakZwart.size(), std::size_t(305));
        QVERIFY(std::none_of(VakZwart.begin(), VakZwart.end(), [](bool zwart) { return zwart; }));
    }

    void firstLetterCapital_data()
    {
        QTest::addColumn<QString>("tekst");
        QTest::addColumn<QString>("verwacht");
        QTest::newRow("mixed") << "aMSTERDAM"
                               << "Amsterdam";
        QTest::newRow("two words") << "vakantie PUZZEL"
                                   << "Vakantie puzzel";
        QTest::newRow("blank first") << " Abc"
                                     << " abc";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("keeps its length") << QStringLiteral("ßTEST") << QStringLiteral("ßtest");
        QTest::newRow("accent") << QStringLiteral("ÉÉN") << QStringLiteral("Één");
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
        QVERIFY(qAbs(bank.TestKlok.Gewacht() - 0.21) < 1e-6);
    }

    void theUserIsTheOneLoggedIn()
    {
        qputenv("USER", "tessel");
        QCOMPARE(HaalGebruiker(), QStringLiteral("tessel"));
        qunsetenv("USER");
        qputenv("USERNAME", "jan");
        QCOMPARE(HaalGebruiker(), QStringLiteral("jan"));
    }

    void aFileExistsOrNot()
    {
        Testbank bank;
        bank.Schrijf(QStringLiteral("Puzzels/a.lst"), "x");
        QVERIFY(BestandBestaat(bank.Map() + QStringLiteral("/Puzzels/a.lst")));
        QVERIFY(!BestandBestaat(bank.Map() + QStringLiteral("/Puzzels/b.lst")));
        QVERIFY(!BestandBestaat(bank.Map() + QStringLiteral("/Puzzels")));
    }

    void documentsGoToTheShell()
    {
        Schil schil;
        QDesktopServices::setUrlHandler(QStringLiteral("https"), &schil, "Open");
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &schil, "Open");
        OpenDocument(QStringLiteral("https://woordenboek.example/puzzelwoordenboek/"));
        OpenDocument(QStringLiteral("/een map/Data/Woordlijst Importeren.pdf"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
        QCOMPARE(schil.Geopend.size(), 2);
        QCOMPARE(schil.Geopend[0], QUrl(QStringLiteral("https://woordenboek.example/puzzelwoordenboek/")));
        QCOMPARE(schil.Geopend[1].toLocalFile(), QStringLiteral("/een map/Data/Woordlijst Importeren.pdf"));
    }

    void specialCharactersMessage()
    {
        Testbank bank;
        ToonSpecialeTekens();
        QCOMPARE(bank.Script.Gezien.size(), 1);
        QCOMPARE(bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        const QStringList regels = bank.Script.Gezien[0].Tekst.split(QStringLiteral("\r\n"));
        const QStringList verwacht{
            QStringLiteral("Bijzondere combinaties"),  QStringLiteral("-------------------------"),
            QStringLiteral("á  = Ctrl-Alt - a / 160"), QStringLiteral("é  = Ctrl-Alt - e / 130"),
            QStringLiteral("ó  = Ctrl-Alt - o / 162"), QStringLiteral("ä  = Ctrl-Alt - q / 132"),
            QStringLiteral("ü  = Ctrl-Alt - y / 129"), QStringLiteral("ö  = Ctrl-Alt - p / 148"),
            QStringLiteral("ú  = Ctrl-Alt - u / 163"), QStringLiteral("µ  = Ctrl-Alt - m / 230"),
            QStringLiteral("© = Ctrl-Alt - c"),        QStringLiteral(" ²  = Ctrl-Alt - 2"),
            QStringLiteral(" ³  = Ctrl-Alt - 3"),      QStringLiteral("€   = Ctrl-Alt - 5"),
            QStringLiteral("¼ = Ctrl-Alt - 6 / 172"),  QStringLiteral("½ = Ctrl-Alt - 7 / 171"),
            QStringLiteral("¾ = Ctrl-Alt - 8")};
        QCOMPARE(regels, verwacht);
    }

    void theLongIjIsOneCharacterWhileAWordIsPlaced()
    {
        QCOMPARE(MetCode(QStringLiteral("ijsbeerij")), QStringLiteral("?sbeer?"));
        QCOMPARE(MetCode(QStringLiteral("IJs")), QStringLiteral("IJs"));
        QCOMPARE(ZonderCode(QStringLiteral("?sbeer?")), QStringLiteral("ijsbeerij"));
    }

    void wideAndNarrowLettersMove()
    {
        QCOMPARE(LetterVerschuiving(QStringLiteral("W")), -45);
        QCOMPARE(LetterVerschuiving(QStringLiteral("I")), 60);
        QCOMPARE(LetterVerschuiving(QStringLiteral("IJ")), 0);
        QCOMPARE(LetterVerschuiving(QStringLiteral("Q")), 0);
    }
};

RASTER_TEST(tst_Algemeen)
#include "tst_Algemeen.moc"
