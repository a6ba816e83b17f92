#include "platform/Files.h"
#include "support/Testbank.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <optional>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

/// As long as it lives no file of this process can grow beyond so many bytes, as if the disk were full.
class VolleSchijf
{
public:
    explicit VolleSchijf(rlim_t bytes) : oudSignaal_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &oud_);
        rlimit nieuw = oud_;
        nieuw.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &nieuw);
    }
    ~VolleSchijf()
    {
        setrlimit(RLIMIT_FSIZE, &oud_);
        std::signal(SIGXFSZ, oudSignaal_);
    }
    Q_DISABLE_COPY_MOVE(VolleSchijf)

private:
    rlimit oud_{};
    void (*oudSignaal_)(int);
};

class tst_Files : public QObject
{
    Q_OBJECT

private slots:
    void init() { bank_.emplace(); }
    void cleanup() { bank_.reset(); }

    void aPathIgnoresCaseAndKeepsTheStoredSpelling();
    void aNameWithItsOwnSpellingIsPreferred();
    void ofSeveralSpellingsItIsTheFirst();
    void aNewFileTakesTheNameGiven();
    void aNameThatCouldLeaveTheFolderIsRefused_data();
    void aNameThatCouldLeaveTheFolderIsRefused();
    void anOrdinaryNameIsTaken_data();
    void anOrdinaryNameIsTaken();
    void aFolderIsNoFile();
    void theListMatchesAndSortsIgnoringCase();
    void theListLeavesOutWhatCannotBeOpened();
    void killRemovesAFile();
    void mkDirMakesAFolder();

    void aFileIsReadWhole();
    void whatIsNoFileCannotBeRead();
    void aFileThatIsTooLargeIsNotTakenIn();
    void theBeginOfAFileIsRead();
    void aFileIsWrittenByteForByte();
    void aWrittenFileReplacesTheOldOne();
    void aFileInAMissingFolderCannotBeWritten();
    void aWriteThatFailsHalfwayKeepsTheOldFile();
    void aWriteThatFailsHalfwayLeavesNoNewFile();
    void renamingChangesOnlyTheName();
    void renamingCanChangeTheCaseAlone();
    void renamingAMissingFileFails();

private:
    QString Map() const { return bank_->Map(); }
    QString Volledig(const char *naam) const { return Map() + u'/' + QLatin1String(naam); }

    std::optional<Testbank> bank_;
};

void tst_Files::aPathIgnoresCaseAndKeepsTheStoredSpelling()
{
    QVERIFY(QDir(Map()).mkdir(u"Woordlijsten"_s));
    bank_->Schrijf(u"Woordlijsten/Steden.LST"_s, "x");
    QCOMPARE(Files::Pad(Map(), {u"WOORDlijsten"_s, u"sTEDEN.lst"_s}), Map() + u"/Woordlijsten/Steden.LST"_s);
    QCOMPARE(Files::Dir(Files::Pad(Map(), {u"woordlijsten"_s, u"steden.lst"_s})), u"Steden.LST"_s);
    QCOMPARE(Files::Pad(Map(), {u"woordlijsten"_s, u"Nieuw.lst"_s}), Map() + u"/Woordlijsten/Nieuw.lst"_s);
}

void tst_Files::ofSeveralSpellingsItIsTheFirst()
{
    for (const QString &naam : {u"brief"_s, u"lijst"_s, u"puzzel"_s, u"reis"_s}) { // not by the order of the disk
        for (const qsizetype groot : {3, 0, 2, 1})
            bank_->Schrijf(QString(naam).replace(groot, 1, naam[groot].toUpper()), "x");
        const QString eerste = naam[0].toUpper() + naam.mid(1);
        QCOMPARE(Files::Pad(bank_->Map(), {naam.toUpper()}), bank_->Map() + u'/' + eerste);
    }
}

void tst_Files::aNameWithItsOwnSpellingIsPreferred()
{
    bank_->Schrijf(u"AAP.txt"_s, "groot");
    bank_->Schrijf(u"aap.txt"_s, "klein");
    QCOMPARE(Files::Lees(Files::Pad(Map(), {u"aap.txt"_s})), QByteArray("klein"));
    QCOMPARE(Files::Lees(Files::Pad(Map(), {u"AAP.txt"_s})), QByteArray("groot"));
    QCOMPARE(Files::Pad(Map(), {u"Aap.txt"_s}), Volledig("AAP.txt")); // of two others always the same one
}

void tst_Files::aNewFileTakesTheNameGiven()
{
    const QString pad = Files::Pad(Map(), {u"Mijn Puzzel.frt"_s});
    QCOMPARE(pad, Map() + u"/Mijn Puzzel.frt"_s);
    QVERIFY(!Files::FileExists(pad));
    QCOMPARE(Files::Pad(Map(), {}), Map());
    QCOMPARE(Files::Pad(Map() + u"/er niet"_s, {u"A"_s, u"b"_s}), Map() + u"/er niet/A/b"_s);
}

void tst_Files::aNameThatCouldLeaveTheFolderIsRefused_data()
{
    QTest::addColumn<QString>("naam");
    Geval("empty", QString());
    for (const char *naam : {".", "..", "a/b", "../b", "/", "a\\b", "a<", "a>", "c:a", "\"a", "a|b", "a?", "*.lst"})
        Geval(naam, QString::fromLatin1(naam));
    for (int code = 0; code < 32; ++code)
        Geval("control character " + QByteArray::number(code), u"a"_s + QChar(code) + u"b"_s);
    Geval("control character 127", u"a"_s + QChar(127));
    Geval("first half of a pair", u"a"_s + QChar(0xD83D) + u"b"_s);
    Geval("second half of a pair", QString(QChar(0xDE00)));
}

void tst_Files::aNameThatCouldLeaveTheFolderIsRefused()
{
    QFETCH(QString, naam);
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {naam}); }), int{Fout::OngeldigeNaam});
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {naam, u"a"_s}); }), int{Fout::OngeldigeNaam});
    QCOMPARE(FoutVan([&] { Files::Pad(Map(), {u"Puzzels"_s, naam}); }), int{Fout::OngeldigeNaam});
}

void tst_Files::anOrdinaryNameIsTaken_data()
{
    QTest::addColumn<QString>("naam");
    for (const char *naam : {"a", "a b", "a.b.c", "...", ".a", "a'b", "a & b, (c) [d] {e} #1 100% ~$!@^+=;"})
        Geval(naam, QString::fromLatin1(naam));
    Geval("accents", u"caf\u00E9 \u20AC"_s);
    Geval("a whole pair", u"\U0001F600"_s);
}

void tst_Files::anOrdinaryNameIsTaken()
{
    QFETCH(QString, naam);
    const QString pad = Files::Pad(Map(), {naam});
    Files::Schrijf(pad, "x");
    QCOMPARE(Files::Dir(pad), naam);
    QCOMPARE(Files::Dir(Files::Pad(Map(), {naam.toUpper()})), naam);
}

void tst_Files::aFolderIsNoFile()
{
    bank_->Schrijf(u"Aap.txt"_s, "");
    QVERIFY(Files::FileExists(Volledig("Aap.txt")));
    QCOMPARE(Files::Dir(Volledig("Aap.txt")), u"Aap.txt"_s);
    QVERIFY(!Files::FileExists(Volledig("Noot.txt")));
    QCOMPARE(Files::Dir(Volledig("Noot.txt")), QString());
    QVERIFY(!Files::FileExists(Volledig("Puzzels")));
    QCOMPARE(Files::Dir(Volledig("Puzzels")), QString());
}

void tst_Files::theListMatchesAndSortsIgnoringCase()
{
    for (const char *naam : {"b.lst", "A.LST", "C.Lst", ".e.lst", "d.txt", "lst", "a.lst.bak"})
        bank_->Schrijf(QLatin1String(naam), "");
    QVERIFY(QDir(Map()).mkdir(u"map.lst"_s));
    QCOMPARE(Files::Lijst(Map(), u"*.lst"_s), (QStringList{".e.lst", "A.LST", "b.lst", "C.Lst"}));
    QCOMPARE(Files::Lijst(Map(), u"*.LST"_s), (QStringList{".e.lst", "A.LST", "b.lst", "C.Lst"}));
    QCOMPARE(Files::Lijst(Map(), u"*.frt"_s), QStringList());
    QCOMPARE(Files::Lijst(Map() + u"/er niet"_s, u"*"_s), QStringList());
}

void tst_Files::theListLeavesOutWhatCannotBeOpened()
{
    bank_->Schrijf(u"goed.lst"_s, "");
    for (const char *naam : {"a?.lst", "b\\.lst", "c:d.lst", "e\n.lst", "\"f\".lst", "*.lst", "<.lst", "|.lst"})
        bank_->Schrijf(QLatin1String(naam), "");
    QCOMPARE(Files::Lijst(Map(), u"*.lst"_s), QStringList{"goed.lst"});
}

void tst_Files::killRemovesAFile()
{
    bank_->Schrijf(u"a.txt"_s, "x");
    bank_->Schrijf(u"b.txt"_s, "x");
    Files::Kill(Volledig("a.txt"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"b.txt"});
    QCOMPARE(FoutVan([&] { Files::Kill(Volledig("a.txt")); }), int{Fout::BestandNietGevonden});
    QCOMPARE(FoutVan([&] { Files::Kill(Volledig("Puzzels")); }), int{Fout::GeenToegang});
    QVERIFY(QFileInfo(Volledig("Puzzels")).isDir());
}

void tst_Files::mkDirMakesAFolder()
{
    Files::MkDir(Volledig("Html"));
    QVERIFY(QFileInfo(Volledig("Html")).isDir());
    QCOMPARE(FoutVan([&] { Files::MkDir(Volledig("Html")); }), int{Fout::GeenToegang});
    QCOMPARE(FoutVan([&] { Files::MkDir(Volledig("er niet/a")); }), int{Fout::GeenToegang});
}

// --- contents ---

void tst_Files::aFileIsReadWhole()
{
    QByteArray inhoud("a\0b\r\n\x1A\xFF", 7);
    inhoud += QByteArray(100000, 'z');
    bank_->Schrijf(u"a.bin"_s, inhoud);
    QCOMPARE(Files::Lees(Volledig("a.bin")), inhoud);
    bank_->Schrijf(u"leeg"_s, "");
    QCOMPARE(Files::Lees(Volledig("leeg")), QByteArray());
}

void tst_Files::whatIsNoFileCannotBeRead()
{
    QCOMPARE(FoutVan([&] { Files::Lees(Volledig("er niet")); }), int{Fout::BestandNietGevonden});
    QCOMPARE(FoutVan([&] { Files::Lees(Volledig("Puzzels")); }), int{Fout::BestandNietGevonden});
    // Reading these would never end.
    QCOMPARE(mkfifo(QFile::encodeName(Volledig("pijp")).constData(), 0600), 0);
    QVERIFY(QFile::link(u"/dev/zero"_s, Volledig("toestel")));
    for (const char *naam : {"pijp", "toestel"}) {
        QCOMPARE(FoutVan([&] { Files::Lees(Volledig(naam)); }), int{Fout::BestandNietGevonden});
        QCOMPARE(FoutVan([&] { Files::LeesBegin(Volledig(naam), 10); }), int{Fout::BestandNietGevonden});
    }
    QCOMPARE(Files::Lijst(Map(), u"p*"_s), QStringList());
}

void tst_Files::aFileThatIsTooLargeIsNotTakenIn()
{
    QFile bestand(Volledig("groot"));
    QVERIFY(bestand.open(QIODevice::WriteOnly));
    QVERIFY(bestand.resize(2 * GrootsteBeeld)); // takes no room: nothing is written in it
    bestand.close();
    QCOMPARE(FoutVan([&] { Files::Lees(bestand.fileName()); }), int{Fout::GeheugenVol});
    QCOMPARE(Files::LeesBegin(bestand.fileName(), 5), QByteArray(5, 0));
    constexpr qint64 Kop = 56; // the largest picture with the head of its file is
    QVERIFY(bestand.open(QIODevice::ReadWrite) && bestand.resize(GrootsteBeeld + Kop));
    QCOMPARE(Files::Lees(bestand.fileName()).size(), GrootsteBeeld + Kop);
}

void tst_Files::theBeginOfAFileIsRead()
{
    bank_->Schrijf(u"a.txt"_s, "0123456789");
    QCOMPARE(Files::LeesBegin(Volledig("a.txt"), 4), QByteArray("0123"));
    QCOMPARE(Files::LeesBegin(Volledig("a.txt"), 10), QByteArray("0123456789"));
    QCOMPARE(Files::LeesBegin(Volledig("a.txt"), 1000), QByteArray("0123456789"));
    QCOMPARE(FoutVan([&] { Files::LeesBegin(Volledig("b.txt"), 4); }), int{Fout::BestandNietGevonden});
}

void tst_Files::aFileIsWrittenByteForByte()
{
    const QByteArray inhoud("a\0b\n\r\n\xFF", 7);
    Files::Schrijf(Volledig("a.bin"), inhoud);
    QCOMPARE(bank_->Inhoud(u"a.bin"_s), inhoud);
    Files::Schrijf(Volledig("leeg"), {});
    QCOMPARE(QFileInfo(Volledig("leeg")).size(), 0);
    QCOMPARE(bank_->Bestanden({}), (QStringList{"a.bin", "leeg"}));
}

void tst_Files::aWrittenFileReplacesTheOldOne()
{
    bank_->Schrijf(u"a.txt"_s, "een veel langere oude inhoud");
    Files::Schrijf(Volledig("a.txt"), "nieuw");
    QCOMPARE(bank_->Inhoud(u"a.txt"_s), QByteArray("nieuw"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.txt"});
}

void tst_Files::aFileInAMissingFolderCannotBeWritten()
{
    QVERIFY(FoutVan([&] { Files::Schrijf(Volledig("er niet/a.txt"), "x"); }) != 0);
    QVERIFY(FoutVan([&] { Files::Schrijf(Volledig("Puzzels"), "x"); }) != 0);
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void tst_Files::aWriteThatFailsHalfwayKeepsTheOldFile()
{
    bank_->Schrijf(u"a.txt"_s, "oud");
    int nummer = 0;
    {
        const VolleSchijf vol(5000);
        nummer = FoutVan([&] { Files::Schrijf(Volledig("a.txt"), QByteArray(100000, 'x')); });
    }
    QCOMPARE(nummer, int{Fout::SchijfFout});
    QCOMPARE(bank_->Inhoud(u"a.txt"_s), QByteArray("oud"));
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.txt"});
}

void tst_Files::aWriteThatFailsHalfwayLeavesNoNewFile()
{
    int nummer = 0;
    {
        const VolleSchijf vol(0);
        nummer = FoutVan([&] { Files::Schrijf(Volledig("a.txt"), "x"); });
    }
    QCOMPARE(nummer, int{Fout::SchijfFout});
    QCOMPARE(bank_->Bestanden({}), QStringList());
}

void tst_Files::renamingChangesOnlyTheName()
{
    bank_->Schrijf(u"Puzzels/a.txt"_s, "x");
    Files::Hernoem(Volledig("Puzzels/a.txt"), u"b.txt"_s);
    QCOMPARE(bank_->Bestanden(u"Puzzels"_s), QStringList{"b.txt"});
    QCOMPARE(bank_->Inhoud(u"Puzzels/b.txt"_s), QByteArray("x"));
}

void tst_Files::renamingCanChangeTheCaseAlone()
{
    bank_->Schrijf(u"puzzel.frt"_s, "x");
    Files::Hernoem(Volledig("puzzel.frt"), u"Puzzel.FRT"_s);
    QCOMPARE(bank_->Bestanden({}), QStringList{"Puzzel.FRT"});
}

void tst_Files::renamingAMissingFileFails()
{
    QCOMPARE(FoutVan([&] { Files::Hernoem(Volledig("er niet"), u"b"_s); }), int{Fout::GeenToegang});
    bank_->Schrijf(u"a.txt"_s, "x");
    for (const QString &naam : {u"../b.txt"_s, QString(), QString(QChar(0xD800))})
        QCOMPARE(FoutVan([&] { Files::Hernoem(Volledig("a.txt"), naam); }), int{Fout::OngeldigeNaam});
    QCOMPARE(bank_->Bestanden({}), QStringList{"a.txt"});
}

RASTER_TEST(tst_Files)
#include "tst_Files.moc"
