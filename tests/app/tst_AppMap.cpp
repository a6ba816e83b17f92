#include "app/AppMap.h"
#include "support/Testbank.h"

#include <QDir>

/// Four folders of a machine: the program's own, the user's (not there yet), what is installed, another one.
struct Machine
{
    QTemporaryDir Map;
    QString Eigen = Map.path() + QStringLiteral("/bin");
    QString Gebruiker = Map.path() + QStringLiteral("/thuis/share/rasteratelier");
    QString Installatie = Map.path() + QStringLiteral("/usr/share/rasteratelier");
    QString Gevraagd = Map.path() + QStringLiteral("/een map");

    Machine()
    {
        for (const QString &map :
             {Eigen, Installatie + QStringLiteral("/Data"), Installatie + QStringLiteral("/Puzzels"), Gevraagd})
            QDir().mkpath(map);
        QFile puzzel(Installatie + QStringLiteral("/Puzzels/Kennismaking.lst"));
        QVERIFY(puzzel.open(QIODevice::WriteOnly));
        puzzel.write("inhoud");
        puzzel.close();
        puzzel.setPermissions(QFile::ReadOwner);
    }
    QString Kies(const QString &gevraagd = {}) const { return KiesAppMap(gevraagd, Eigen, Gebruiker, Installatie); }
};

class tst_AppMap : public QObject
{
    Q_OBJECT
private slots:
    void theFolderAskedForComesFirst()
    {
        Machine machine;
        QDir().mkpath(machine.Eigen + QStringLiteral("/Data"));
        QCOMPARE(machine.Kies(machine.Gevraagd), machine.Gevraagd);
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aFolderAskedForMustBeThere()
    {
        Machine machine;
        QCOMPARE(FoutVan([&] { machine.Kies(machine.Gevraagd + QStringLiteral("/weg")); }),
                 int(Fout::BestandNietGevonden));
    }

    void theProgramsOwnFolderWithDataComesNext()
    {
        Machine machine;
        QDir().mkpath(machine.Eigen + QStringLiteral("/Data"));
        QCOMPARE(machine.Kies(), machine.Eigen);
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void theUsersFolderIsFilledOnFirstUse()
    {
        Machine machine;
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QFile puzzel(machine.Gebruiker + QStringLiteral("/Puzzels/Kennismaking.lst"));
        QVERIFY(QDir(machine.Gebruiker + QStringLiteral("/Data")).exists());
        QVERIFY(puzzel.open(QIODevice::ReadWrite)); // the copy is the user's to change
        QCOMPARE(puzzel.readAll(), QByteArray("inhoud"));
    }

    void whatTheUserHasIsNotFilledAgain()
    {
        Machine machine;
        machine.Kies();
        QVERIFY(QFile::remove(machine.Gebruiker + QStringLiteral("/Puzzels/Kennismaking.lst")));
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QVERIFY(!QFile::exists(machine.Gebruiker + QStringLiteral("/Puzzels/Kennismaking.lst")));
    }

    void withoutWhatIsInstalledNothingIsMade()
    {
        Machine machine;
        QVERIFY(QFile::setPermissions(machine.Installatie + QStringLiteral("/Puzzels/Kennismaking.lst"),
                                      QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QDir(machine.Installatie).removeRecursively());
        QCOMPARE(FoutVan([&] { machine.Kies(); }), int(Fout::BestandNietGevonden));
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aCopyThatFailedHalfwayIsMadeAnew()
    {
        Machine machine;
        QVERIFY(
            QDir().mkpath(machine.Gebruiker + QStringLiteral(".nieuw~/Puzzels/Rest.lst"))); // what such a start left
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QCOMPARE(
            QDir(machine.Gebruiker + QStringLiteral("/Puzzels")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("Kennismaking.lst")});
        QVERIFY(!QDir(machine.Gebruiker + QStringLiteral(".nieuw~")).exists());
    }

    void aFolderThatCannotBeMadeFails()
    {
        Machine machine;
        QFile inDeWeg(machine.Map.path() + QStringLiteral("/thuis"));
        QVERIFY(inDeWeg.open(QIODevice::WriteOnly));
        QCOMPARE(FoutVan([&] { machine.Kies(); }), int(Fout::GeenToegang));
    }
};

RASTER_TEST(tst_AppMap)
#include "tst_AppMap.moc"
