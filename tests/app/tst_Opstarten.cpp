#include "app/InstellingenBestand.h"
#include "app/Opstarten.h"
#include "app/Start.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Bewaren.h"
#include "support/HaperendeSchijf.h"
#include "support/Onbevoegd.h"
#include "support/Verwacht.h"

#include <QDir>
#include <QElapsedTimer>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

static const QByteArray Begin = "\"Tessel Hoeksma Software 2017\"\r\n\"--------------------------\"\r\n";

class tst_Opstarten : public QObject
{
    Q_OBJECT
private slots:
    void theFirstStartDrawsTheBoardAndWritesTheDefaults()
    {
        Start start;
        PuzzelType = Sudoku; // which has bands; it begins with a kind that has none
        const Stand gemaakt = StandVan(start.Venster);
        LaadMain();
        Stand geladen = StandVan(start.Venster);
        const QStringList eigen =
            u"BoardHeight BoardWidth KleurVakjes Orgineel PaginaTekst PijlSoort PuzzelType"_s.split(u' ');
        for (const QString &naam : eigen)
            geladen.remove(naam);
        QCOMPARE(Verschil(gemaakt, geladen), u"Frame8 Pic PicGroot PicO PicR"_s); // the puzzle has no name yet
        QCOMPARE(Verschil(start.Venster.Pic->Image(), Raster(16, 19)), QString());
        QCOMPARE(Verschil(start.Venster.PicGroot->Image(), Tegels(start.Venster.PicVak->Image(), 16, 19)), QString());
        QCOMPARE(PuzzelType, Zweeds);
        QCOMPARE(start.Instellingen(), Begin + "230,250,190\r\n1\r\n\"" + PaginaTekst.toLatin1() + "\"\r\n");
        QVERIFY(!PaginaTekst.isEmpty());
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void settingsAreReadAtTheStart()
    {
        Stand zonder; // settings
        {
            const Start start;
            LaadMain();
            zonder = StandVan(start.Venster);
        }
        Start start;
        const QByteArray bewaard = "kop\nstreep\n 1,2,3\n2\nmijn pagina\nnog iets"; // not as it is written
        start.Bank.Schrijf(u"RasterAtelier.INI"_s, bewaard);                        // found ignoring case
        LaadMain();
        QCOMPARE(OrgineelRood, qint16(1));
        QCOMPARE(OrgineelGroen, qint16(2));
        QCOMPARE(OrgineelBlauw, qint16(3));
        QCOMPARE(KleurVakjes, quint8(2));
        QCOMPARE(PaginaTekst, u"mijn pagina"_s);
        QCOMPARE(Verschil(zonder, StandVan(start.Venster)), u"KleurVakjes Orgineel PaginaTekst"_s);
        QCOMPARE(start.Bank.Inhoud(u"RasterAtelier.INI"_s), bewaard);
    }

    void whatIsReadIsTakenAsItStands_data()
    {
        QTest::addColumn<QList<int>>("kleuren");
        QTest::addColumn<int>("keuze");
        Geval("outside the range of the dialog", QList<int>{-5, 300, 32767}, 9);
        Geval("the least", QList<int>{-32768, -32768, -1}, 0);
        Geval("the most", QList<int>{32767, 256, 256}, 255);
    }
    void whatIsReadIsTakenAsItStands()
    {
        QFETCH(QList<int>, kleuren);
        QFETCH(int, keuze);
        Start start;
        QByteArrayList delen;
        for (const int deel : kleuren)
            delen += QByteArray::number(deel);
        const QByteArray bewaard = Begin + delen.join(',') + "\r\n" + QByteArray::number(keuze) + "\r\n\"\"\r\n";
        start.Bank.Schrijf(u"RasterAtelier.INI"_s, bewaard);
        LaadMain();
        QCOMPARE((QList<int>{OrgineelRood, OrgineelGroen, OrgineelBlauw}), kleuren);
        QCOMPARE(int{KleurVakjes}, keuze);
        QCOMPARE(PaginaTekst, QString());
        QVERIFY(QFile::resize(start.Bank.Map() + u"/RasterAtelier.INI"_s, 0));
        BewaarInstellingen(); // as it stands, in the place where it was found
        QCOMPARE(start.Bank.Inhoud(u"RasterAtelier.INI"_s), bewaard);
        QCOMPARE(start.Bank.Bestanden({}), QStringList{u"RasterAtelier.INI"_s});
    }

    void aMissingFileIsWrittenWithWhatTheProgramHolds()
    {
        Start start;
        BeginWaarden();
        OrgineelBlauw = 7;
        KleurVakjes = 3;
        PaginaTekst = u"mijn pagina"_s;
        LaadInstellingen();
        QCOMPARE(start.Instellingen(), Begin + "230,250,7\r\n3\r\n\"mijn pagina\"\r\n");
        QCOMPARE(KleurVakjes, quint8(3));
    }

    void aDamagedFileEndsTheStartAndStaysAsItIs_data()
    {
        QTest::addColumn<QByteArray>("inhoud");
        Geval("empty", QByteArray());
        Geval("cut", Begin + "230,250");
        Geval("words", Begin + "rood,groen,blauw\r\n1\r\n\"x\"\r\n");
        Geval("binary", QByteArray(1000, '\x9D'));
    }
    void aDamagedFileEndsTheStartAndStaysAsItIs()
    {
        QFETCH(QByteArray, inhoud);
        Start start;
        start.Bank.Schrijf(u"Rasteratelier.ini"_s, inhoud);
        BestandenSet rest; // of a save that was killed
        QVERIFY(SterftBij(13, [&] {
            for (const char *naam : {"/Puzzels/a.lst", "/Puzzels/a1.bmp", "/Puzzels/a2.bmp"})
                rest.Zet(start.Bank.Map() + QLatin1String(naam), {"x"});
            rest.PlaatsAlles();
        }));
        QString tekst;
        try {
            LaadMain();
        } catch (const Fout &fout) {
            tekst = fout.tekst();
        }
        const QString pad = start.Bank.Map() + u"/Rasteratelier.ini"_s;
        QVERIFY2(tekst.endsWith(u" (het instellingenbestand "_s + pad + u')'), qPrintable(tekst));
        QCOMPARE(start.Instellingen(), inhoud);
        QCOMPARE(start.Bank.Bestanden(u"Puzzels"_s), (QStringList{"a.lst", "a1.bmp", "a2.bmp"})); // finished before
        QCOMPARE(OrgineelRood, qint16(230));                                                      // nothing half-read
        QCOMPARE(start.Venster.Pic->GetPixel(30, 15), qRgb(150, 150, 150)); // the board was there before
    }

    void aFileThatCannotBeOpenedIsWrittenAnew()
    {
        Start start;
        const QByteArray bewaard = Begin + "1,2,3\r\n2\r\n\"mijn pagina\"\r\n";
        start.Bank.Schrijf(u"Rasteratelier.ini"_s, bewaard);
        QVERIFY(QFile::setPermissions(start.Bank.Map() + u"/Rasteratelier.ini"_s, QFile::WriteOwner));
        {
            const Onbevoegd onbevoegd(start.Bank, {});
            LaadMain();
        }
        QCOMPARE(OrgineelRood, qint16(230));
        QCOMPARE(KleurVakjes, quint8(1));
        QCOMPARE(start.Instellingen(), Begin + "230,250,190\r\n1\r\n\"" + PaginaTekst.toLatin1() + "\"\r\n");
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void aStartThatCannotWriteItsSettingsGoesOn_data()
    {
        QTest::addColumn<bool>("bestaat");
        Geval("missing", false);
        Geval("closed", true);
    }
    void aStartThatCannotWriteItsSettingsGoesOn()
    {
        QFETCH(bool, bestaat);
        Start start;
        const QByteArray bewaard = bestaat ? Begin + "1,2,3\r\n2\r\n\"mijn pagina\"\r\n" : QByteArray();
        if (bestaat) {
            start.Bank.Schrijf(u"Rasteratelier.ini"_s, bewaard);
            QVERIFY(QFile::setPermissions(start.Bank.Map() + u"/Rasteratelier.ini"_s, QFile::WriteOwner));
        }
        {
            const Onbevoegd onbevoegd(start.Bank, {u""_s});
            LaadMain();
        }
        QCOMPARE(OrgineelRood, qint16(230));
        QCOMPARE(start.Instellingen(), bewaard);
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void noFolderIsMade()
    {
        Start start;
        QVERIFY(QDir(start.Bank.Map()).rmdir(u"Puzzels"_s));
        LaadMain();
        const QDir::Filters alles = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
        QCOMPARE(QDir(start.Bank.Map()).entryList(alles), QStringList{u"Rasteratelier.ini"_s});
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void aFolderInThePlaceOfTheSettingsIsPassedOver()
    {
        Start start;
        QVERIFY(QDir(start.Bank.Map()).mkdir(u"Rasteratelier.ini"_s));
        LaadMain();
        QCOMPARE(OrgineelRood, qint16(230));
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    // Whoever opens a pipe waits for somebody at its other end.
    void aStartDoesNotWaitForAPipe()
    {
        Start start;
        const QString map = start.Bank.Map();
        for (const char *naam : {"/Rasteratelier.ini", "/.mydummy.slot", "/Puzzels/.rasteratelier.slot"})
            QCOMPARE(mkfifo(QFile::encodeName(map + QLatin1String(naam)).constData(), 0600), 0);
        start.Bank.Schrijf(u"mydummy.bmp"_s, "rest");
        start.Bank.Schrijf(u"Puzzels/.rasteratelier-0123456789abcdef"_s, "rest");
        QElapsedTimer wachttijd;
        wachttijd.start();
        LaadMain();
        QVERIFY2(wachttijd.elapsed() < 1500, qPrintable(QString::number(wachttijd.elapsed())));
        QCOMPARE(OrgineelRood, qint16(230));
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void anyCallOfAStartMayFail_data()
    {
        QTest::addColumn<bool>("bestaat");
        QTest::addColumn<bool>("sterft");
        Geval("first start, a call fails", false, false);
        Geval("first start, it is killed", false, true);
        Geval("a call fails", true, false);
        Geval("it is killed", true, true);
    }
    void anyCallOfAStartMayFail()
    {
        QFETCH(bool, bestaat);
        QFETCH(bool, sterft);
        const QByteArray eigen = Begin + "1,2,3\r\n2\r\n\"mijn pagina\"\r\n";
        bool bezig = true;
        for (int aanroep = 1; bezig; ++aanroep) {
            Start start;
            BeginWaarden();
            const QByteArray standaard = Begin + "230,250,190\r\n1\r\n\"" + PaginaTekst.toLatin1() + "\"\r\n";
            if (bestaat)
                start.Bank.Schrijf(u"Rasteratelier.ini"_s, eigen);
            BestandenSet rest; // of a save that was killed
            QVERIFY(SterftBij(13, [&] {
                for (const char *naam : {"/Puzzels/a.lst", "/Puzzels/a1.bmp", "/Puzzels/a2.bmp"})
                    rest.Zet(start.Bank.Map() + QLatin1String(naam), {"x"});
                rest.PlaatsAlles();
            }));
            if (sterft) {
                bezig = SterftBij(aanroep, [] { negeer(LaadMain); });
            } else {
                const HaperendeSchijf schijf(aanroep);
                int nummer = FoutVan([] { LaadMain(); });
                QVERIFY(nummer == 0 || nummer == Fout::SchijfFout); // the latter when the settings cannot be read
                bezig = schijf.Logboek.size() >= aanroep;
            }
            QVERIFY(start.Bank.Script.Gezien.isEmpty());
            const QByteArray nu = start.Instellingen();
            QVERIFY2(nu == (bestaat ? eigen : QByteArray()) || nu == standaard, nu);
            LaadMain();
            QCOMPARE(start.Bank.Bestanden({}), QStringList{"Rasteratelier.ini"});
            QCOMPARE(start.Bank.Bestanden(u"Puzzels"_s), (QStringList{"a.lst", "a1.bmp", "a2.bmp"}));
        }
    }
};

RASTER_TEST(tst_Opstarten)
#include "tst_Opstarten.moc"
