#include "app/AppMap.h"
#include "support/Testbank.h"

#include <QDir>

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
        QFile puzzel(Installatie + u"/Puzzels/Kennismaking.lst"_s);
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
        QDir().mkpath(machine.Eigen + u"/Data"_s);
        QCOMPARE(machine.Kies(machine.Gevraagd), machine.Gevraagd);
        QVERIFY(!QDir(machine.Gebruiker).exists());
    }

    void aFolderAskedForMustBeThere()
    {
        Machine machine;
        QCOMPARE(FoutVan([&] { machine.Kies(machine.Gevraagd + u"/weg"_s); }), int(Fout::BestandNietGevonden));
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
        QCOMPARE(machine.Kies(), machine.Gebruiker);
        QFile puzzel(machine.Gebruiker + u"/Puzzels/Kennismaking.lst"_s);
        QVERIFY(QDir(machine.Gebruiker + u"/Data"_s).exists());
        QVERIFY(puzzel.open(QIODevice::ReadWrite)); // the copy is the user's to change
        QCOMPARE(puzzel.readAll(), QByteArray("inhoud"));
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
