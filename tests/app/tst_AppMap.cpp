#include "app/AppMap.h"
#include "support/HaperendeSchijf.h"
#include "support/Testbank.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QLockFile>
#include <QThread>

using namespace Qt::StringLiterals;

/// Four folders of a machine: the program's own, the user's (not there yet), what is installed, another one.
struct Machine
{
    QTemporaryDir Map;
    QString Eigen = Map.path() + u"/bin"_s;
    QString Gebruiker = Map.path() + u"/thuis/share/rasteratelier"_s;
    QString Installatie = Map.path() + u"/usr/share/rasteratelier"_s;
    QString Gevraagd = Map.path() + u"/een map"_s;

    Machine()
    {
        for (const QString &map : {Eigen, Installatie + u"/Data"_s, Installatie + u"/Puzzels"_s, Gevraagd})
            QDir().mkpath(map);
        for (const char *naam : {"/Puzzels/Kennismaking.lst", "/Data/help.pdf", "/LICENTIE"}) {
            QFile bestand(Installatie + QLatin1String(naam));
            QVERIFY(bestand.open(QIODevice::WriteOnly));
            bestand.write("inhoud");
            bestand.close();
            bestand.setPermissions(QFile::ReadOwner);
        }
    }
    QString Kies(const QString &gevraagd = {}) const { return KiesAppMap(gevraagd, Eigen, Gebruiker, Installatie); }

    /// Whether the user's folder is whole, with nothing beside it that should not be there.
    bool IsHeel() const
    {
        QStringList alle;
        QDirIterator lus(Map.path() + u"/thuis/share"_s, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
        while (lus.hasNext())
            alle += QDir(Gebruiker).relativeFilePath(lus.next());
        alle.sort();
        for (const char *naam : {"/Puzzels/Kennismaking.lst", "/Data/help.pdf", "/LICENTIE"}) {
            QFile bestand(Gebruiker + QLatin1String(naam));
            if (!bestand.open(QIODevice::ReadOnly) || bestand.readAll() != "inhoud")
                return false;
        }
        return alle == QStringList{u"."_s,        u"Data"_s,    u"Data/help.pdf"_s,
                                   u"LICENTIE"_s, u"Puzzels"_s, u"Puzzels/Kennismaking.lst"_s};
    }
};

/// A disk that starts the program a second time when the first start writes its first file, and dawdles then.
class TweedeStart : public Schijf
{
public:
    explicit TweedeStart(std::function<void()> tweede) : tweede_(std::move(tweede)) { Gebruik(this); }
    ~TweedeStart() override { Gebruik(nullptr); }
    Q_DISABLE_COPY_MOVE(TweedeStart)

    bool Schrijf(QFile &bestand, QByteArrayView deel) override
    {
        if (kind_ < 0) {
            kind_ = fork();
            if (kind_ == 0) {
                Gebruik(nullptr);
                _exit(negeer(tweede_) ? 0 : 1);
            }
            QThread::msleep(300);
        }
        return Schijf::Schrijf(bestand, deel);
    }
    int Einde() const
    {
        int einde = -1;
        waitpid(kind_, &einde, 0);
        return einde;
    }

private:
    std::function<void()> tweede_;
    pid_t kind_ = -1;
};

/// The text of the failure that choosing a folder raises.
static QString Klacht(const Machine &machine, const QString &gevraagd = {})
{
    try {
        return machine.Kies(gevraagd);
    } catch (const Fout &fout) {
        return fout.tekst();
    }
}

class tst_AppMap : public QObject
{
    Q_OBJECT
private slots:
    void theFolderAskedForComesFirst()
    {
        Machine machine;
        QDir().mkpath(machine.Eigen + u"/Data"_s);
        QCOMPARE(machine.Kies(machine.Gevraagd), machine.Gevraagd);
        QCOMPARE(machine.Kies(QDir::current().relativeFilePath(machine.Gevraagd)), machine.Gevraagd);
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aFolderAskedForMustBeThere()
    {
        Machine machine;
        const QString weg = machine.Gevraagd + u"/weg"_s;
        QCOMPARE(FoutVan([&] { machine.Kies(weg); }), int(Fout::BestandNietGevonden));
        QVERIFY2(Klacht(machine, weg).endsWith(u" (de map "_s + weg + u')'), qPrintable(Klacht(machine, weg)));
    }

    void theProgramsOwnFolderWithDataComesNext()
    {
        Machine machine;
        QDir().mkpath(machine.Eigen + u"/Data"_s);
        QCOMPARE(machine.Kies(), machine.Eigen);
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void theUsersFolderIsFilledOnFirstUse()
    {
        Machine machine;
        const HaperendeSchijf schijf;
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QFile puzzel(machine.Gebruiker + u"/Puzzels/Kennismaking.lst"_s);
        QVERIFY(QDir(machine.Gebruiker + u"/Data"_s).exists());
        QVERIFY(puzzel.open(QIODevice::ReadWrite)); // the copy is the user's to change
        QCOMPARE(puzzel.readAll(), QByteArray("inhoud"));
        QVERIFY(machine.IsHeel());
        // Each file is on the disk before the folder gets its name, and so is that name in the end.
        for (const char *naam : {"Kennismaking.lst", "help.pdf", "LICENTIE"})
            QVERIFY(schijf.Logboek.contains(QLatin1String("Spoel ") + QLatin1String(naam)));
        QCOMPARE(schijf.Logboek.last(2),
                 (QStringList{u"Verplaats rasteratelier.nieuw~ > rasteratelier"_s, u"SpoelMap share"_s}));
    }

    void aFirstStartThatIsKilledIsDoneAgain()
    {
        int aanroep = 1;
        for (bool bezig = true; bezig; ++aanroep) {
            Machine machine;
            bezig = SterftBij(aanroep, [&] { machine.Kies(); });
            QVERIFY(!QDir(machine.Gebruiker).exists() || QFile::exists(machine.Gebruiker + u"/LICENTIE"_s));
            QCOMPARE(machine.Kies(), machine.Gebruiker);
            QVERIFY2(machine.IsHeel(), qPrintable(QString::number(aanroep)));
        }
        QVERIFY(aanroep > 15);
    }

    void aFirstStartThatFailsIsDoneAgain()
    {
        int mislukt = 0, aanroep = 1;
        for (bool bezig = true; bezig; ++aanroep) {
            Machine machine;
            {
                const HaperendeSchijf schijf(aanroep);
                mislukt += FoutVan([&] { machine.Kies(); }) != 0;
                bezig = schijf.Logboek.size() >= aanroep;
            }
            QCOMPARE(machine.Kies(), machine.Gebruiker);
            QVERIFY2(machine.IsHeel(), qPrintable(QString::number(aanroep)));
        }
        QVERIFY(mislukt > 15);
    }

    void twoFirstStartsAtOnceFillOneFolder()
    {
        Machine machine;
        {
            TweedeStart schijf([&] { machine.Kies(); });
            QCOMPARE(machine.Kies(), machine.Gebruiker);
            QCOMPARE(schijf.Einde(), 0);
        }
        QVERIFY(machine.IsHeel());
    }

    void whatAKilledStartLeftBesideTheFolderIsRemoved()
    {
        Machine machine;
        machine.Kies();
        QVERIFY(SterftBij(1, [&] { // all is done but the giving back of its turn
            QLockFile beurt(machine.Gebruiker + u".slot"_s);
            if (beurt.tryLock())
                Schijf::Huidig().MaakMap(machine.Gebruiker);
        }));
        QVERIFY(!machine.IsHeel());
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QVERIFY(machine.IsHeel());
    }

    void whatTheUserHasIsNotFilledAgain()
    {
        Machine machine;
        machine.Kies();
        QVERIFY(QFile::remove(machine.Gebruiker + u"/Puzzels/Kennismaking.lst"_s));
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QVERIFY(!QFile::exists(machine.Gebruiker + u"/Puzzels/Kennismaking.lst"_s));
    }

    void withoutWhatIsInstalledNothingIsMade()
    {
        Machine machine;
        QVERIFY(QFile::setPermissions(machine.Installatie + u"/Puzzels/Kennismaking.lst"_s,
                                      QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QDir(machine.Installatie).removeRecursively());
        QCOMPARE(FoutVan([&] { machine.Kies(); }), int(Fout::BestandNietGevonden));
        QVERIFY2(Klacht(machine).endsWith(u" (de bestanden van de installatie in "_s + machine.Installatie + u')'),
                 qPrintable(Klacht(machine)));
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aCopyThatFailedHalfwayIsMadeAnew()
    {
        Machine machine;
        QVERIFY(QDir().mkpath(machine.Gebruiker + u".nieuw~/Puzzels/Rest.lst"_s)); // what such a start left
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QCOMPARE(QDir(machine.Gebruiker + u"/Puzzels"_s).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{u"Kennismaking.lst"_s});
        QVERIFY(!QDir(machine.Gebruiker + u".nieuw~"_s).exists());
    }

    void aTurnThatCannotBeHadFails()
    {
        Machine machine;
        QVERIFY(QDir().mkpath(machine.Gebruiker + u".slot"_s));
        QElapsedTimer wachttijd;
        wachttijd.start();
        QCOMPARE(FoutVan([&] { machine.Kies(); }), int(Fout::GeenToegang));
        QVERIFY2(wachttijd.elapsed() < 5000, qPrintable(QString::number(wachttijd.elapsed())));
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aFolderThatCannotBeMadeFails()
    {
        Machine machine;
        QFile inDeWeg(machine.Map.path() + u"/thuis"_s);
        QVERIFY(inDeWeg.open(QIODevice::WriteOnly));
        QCOMPARE(FoutVan([&] { machine.Kies(); }), int(Fout::GeenToegang));
    }
};

RASTER_TEST(tst_AppMap)
#include "tst_AppMap.moc"
