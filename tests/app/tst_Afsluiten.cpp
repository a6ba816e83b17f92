#include "app/Afsluiten.h"
#include "app/Opstarten.h"
#include "app/Start.h"
#include "support/HaperendeSchijf.h"

#include <QDir>

using namespace Qt::StringLiterals;

class tst_Afsluiten : public QObject
{
    Q_OBJECT
private slots:
    void anyCallOfAnEndMayFail()
    {
        bool bezig = true;
        for (int aanroep = 1; bezig; ++aanroep) {
            Start start;
            LaadMain();
            const QByteArray oud = start.Instellingen();
            KleurVakjes = 3;
            const QByteArray nieuw = QByteArray(oud).replace("\r\n1\r\n", "\r\n3\r\n");
            {
                const HaperendeSchijf schijf(aanroep);
                QVERIFY(SluitMain());
                bezig = schijf.Logboek.size() >= aanroep;
            }
            Klok::ProgrammaEindigt(false);
            const qsizetype gezegd = start.Bank.Script.Gezien.size();
            QCOMPARE(start.Instellingen(), gezegd == 0 ? nieuw : oud);
            QVERIFY(gezegd <= 1);
            LaadMain();
            QCOMPARE(start.Bank.Bestanden({}), QStringList{"Rasteratelier.ini"});
        }
    }

    void anUnchangedPuzzleEndsWithoutAQuestion()
    {
        Start start;
        LaadMain();
        QVERIFY(SluitMain());
        QVERIFY(start.Bank.Script.Gezien.isEmpty());
    }

    void theSettingsAreWrittenAlsoWhenNoneHasChanged()
    {
        Start start;
        LaadMain();
        const QByteArray begin = start.Instellingen();
        for (int keer = 0; keer < 2; ++keer) {
            QVERIFY(QFile::remove(start.Bank.Map() + u"/Rasteratelier.ini"_s));
            QVERIFY(SluitMain());
            QCOMPARE(start.Instellingen(), begin);
        }
    }

    void aChangedPuzzleAsks()
    {
        Start start;
        LaadMain();
        start.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        const QImage pic = start.Venster.Pic->Image();
        const QByteArray instellingen = start.Instellingen();
        PuzzelGewijzigd = true;
        KleurVakjes = 3;
        start.Bank.Script.Antwoorden = {Antwoord::Nee};
        QVERIFY(!SluitMain());
        QCOMPARE(start.Bank.Script.Gezien[0].Tekst, u"Puzzel is gewijzigd, wil je toch afsluiten?"_s);
        QCOMPARE(start.Bank.Script.Gezien[0].Titel, u"Afsluiten"_s);
        QCOMPARE(start.Bank.Script.Gezien[0].Soort, Knoppen::JaNee);
        QCOMPARE(start.Bank.Script.Gezien[0].Plaatje, Icoon::Geen);
        QVERIFY(PuzzelGewijzigd);
        QVERIFY(start.Venster.Pic->Image() == pic);
        QCOMPARE(start.Venster.ListView1->topLevelItemCount(), 1);
        QCOMPARE(start.Instellingen(), instellingen); // nothing is written

        start.Bank.Script.Antwoorden = {Antwoord::Ja};
        QVERIFY(SluitMain());
        QVERIFY(start.Instellingen().contains("230,250,190\r\n3\r\n"));
    }

    void afterTheEndEveryWaitIsGivenUp()
    {
        Start start;
        LaadMain();
        QVERIFY(SluitMain());
        QVERIFY_THROWS_EXCEPTION(Afgebroken, Wachten(0.2));
    }

    void settingsThatCannotBeWrittenAreSaidAndDoNotKeepTheProgramOpen()
    {
        Start start;
        LaadMain();
        QVERIFY(QDir(start.Bank.Map()).removeRecursively());
        QVERIFY(SluitMain());
        QCOMPARE(start.Bank.Script.Gezien.size(), 1);
        QCOMPARE(start.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        const QString tekst = start.Bank.Script.Gezien[0].Tekst;
        QVERIFY2(tekst.contains(u" bij het bewaren van de instellingen: "_s), qPrintable(tekst));
    }
};

RASTER_TEST(tst_Afsluiten)
#include "tst_Afsluiten.moc"
