#include "documents/HtmlExport.h"
#include "documents/HtmlMod.h"
#include "documents/OpenFile.h"
#include "documents/PuzzelMap.h"
#include "platform/Files.h"
#include "platform/PictureFiles.h"
#include "support/Bord.h"
#include "support/HaperendeSchijf.h"
#include "support/Onbevoegd.h"
#include "support/Schil.h"
#include "support/Verwacht.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

/// A small puzzle on both boards, with a row.
struct Puzzel
{
    Bord Scherm;
    Schil Shell;

    explicit Puzzel(quint8 soort = Zweeds, const QString &naam = u"Reis"_s)
    {
        Scherm.Begin(soort, 3, 2);
        Scherm.Klik(Qt::RightButton, 1, 1);
        Scherm.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"1"_s}});
        PuzzelNaam = naam;
    }
    ~Puzzel() { VakZwart.fill(false); }
    Q_DISABLE_COPY_MOVE(Puzzel)

    QStringList Html() const { return Scherm.Bank.Bestanden(u"Html"_s); }
    QStringList Images() const { return Scherm.Bank.Bestanden(u"Html/Images"_s); }
    QByteArray Pagina() const { return Scherm.Bank.Inhoud(u"Html/Reis.html"_s); }
    QString Map() const { return Scherm.Bank.Map(); }
    QImage Beeld(const QString &naam = u"Reis"_s) const
    {
        return Files::LoadPicture(Map() + u"/Html/Images/"_s + naam + u".bmp"_s);
    }
    QByteArray Hoort(const QString &naam = u"Reis"_s) const
    {
        return HtmlPagina(naam, PuzzelType, Scherm.Venster.Rijen());
    }
    /// The paths that went to the shell.
    QStringList Geopend() const
    {
        QStringList paden;
        for (const QUrl &url : Shell.Geopend)
            paden += url.toLocalFile();
        return paden;
    }
};

class tst_HtmlExport : public QObject
{
    Q_OBJECT

    /// A name that no file may have leaves all as it is, but for the folders.
    static void NietsGeschreven(const Puzzel &puzzel, const Stand &ervoor)
    {
        QVERIFY(puzzel.Html().isEmpty() && puzzel.Images().isEmpty());
        QVERIFY(puzzel.Scherm.Bank.Bestanden(QString()).isEmpty());
        QVERIFY(puzzel.Scherm.Bank.Bestanden(u".."_s).isEmpty());
        QVERIFY(puzzel.Scherm.Bank.Bestanden(u"Puzzels"_s).isEmpty());
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
        QCOMPARE(puzzel.Scherm.Veranderd(ervoor), QString());
    }

private slots:
    void pageAndPictureOfEachKind_data()
    {
        QTest::addColumn<int>("soort");
        QTest::addColumn<bool>("groot");
        Geval("Zweeds", 1, true);
        Geval("Woordzoeker", 2, false);
        Geval("Kruiswoord", 3, true);
        Geval("Sudoku", 4, false);
        Geval("Filippine", 5, false);
        Geval("no kind", 200, false); // as a damaged file may tell
    }
    void pageAndPictureOfEachKind()
    {
        QFETCH(int, soort);
        QFETCH(bool, groot);
        Puzzel puzzel(static_cast<quint8>(soort));
        PuzzelGewijzigd = true;
        const Stand ervoor = puzzel.Scherm.Nu();
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Images(), QStringList{u"Reis.bmp"_s});
        QCOMPARE(puzzel.Pagina(), puzzel.Hoort());
        QCOMPARE(puzzel.Beeld(), groot ? puzzel.Scherm.Groot() : puzzel.Scherm.Pic());
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/Reis.html"_s});
        QCOMPARE(puzzel.Scherm.Veranderd(ervoor), QString());
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void theNameIsThatWhichIsGiven()
    {
        Puzzel puzzel;
        ExporteerHtml(PuzzelNaam);
        PuzzelNaam = u"Ander"_s;
        SchrijfHtml(u"Bergen"_s);
        ExporteerHtml(u"Bergen"_s);
        QCOMPARE(puzzel.Html(), (QStringList{u"Bergen.html"_s, u"Reis.html"_s}));
        QCOMPARE(puzzel.Images(), (QStringList{u"Bergen.bmp"_s, u"Reis.bmp"_s}));
        QCOMPARE(puzzel.Scherm.Bank.Inhoud(u"Html/Bergen.html"_s), puzzel.Hoort(u"Bergen"_s));
        QCOMPARE(puzzel.Geopend().last(), puzzel.Map() + u"/Html/Bergen.html"_s);
        PuzzelNaam = u"Reis"_s; // whose page is not the one to go
        const KijkKlok klok([&] { QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s}); });
        ExporteerHtml(u"Bergen"_s);
        QCOMPARE(klok.Wachttijden.size(), 1);
    }

    void aSecondExportReplacesBoth()
    {
        Puzzel puzzel;
        ExporteerHtml(PuzzelNaam);
        const QByteArray oud = puzzel.Pagina();
        const QImage oudBeeld = puzzel.Beeld();
        puzzel.Scherm.Begin(Sudoku, 2, 2); // of another kind: a shorter page, a smaller picture
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Images(), QStringList{u"Reis.bmp"_s});
        QVERIFY(puzzel.Pagina() != oud && puzzel.Beeld() != oudBeeld);
        QCOMPARE(puzzel.Pagina(), puzzel.Hoort());
        QCOMPARE(puzzel.Beeld(), puzzel.Scherm.Pic());
    }

    // The old page goes, a moment passes, and then the new one is there whole.
    void theOldPageIsGoneDuringTheWait()
    {
        Puzzel puzzel;
        ExporteerHtml(PuzzelNaam);
        puzzel.Scherm.Begin(Sudoku, 2, 2);
        QStringList gezien;
        {
            KijkKlok klok([&] {
                gezien += puzzel.Html() + puzzel.Images();
                QCOMPARE(puzzel.Beeld(), puzzel.Scherm.Pic()); // the picture comes first
                QCOMPARE(puzzel.Shell.Geopend.size(), 1);
            });
            ExporteerHtml(PuzzelNaam);
            QCOMPARE(klok.Wachttijden, QList<double>{0.2});
            QCOMPARE(klok.Welke, QList<QEventLoop::ProcessEventsFlags>{QEventLoop::AllEvents});
        }
        QCOMPARE(gezien, QStringList{u"Reis.bmp"_s});
        QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Shell.Geopend.size(), 2);
    }

    // Events run during the wait: another puzzle may come then.
    void pageAndPictureAreOfOneMoment()
    {
        Puzzel puzzel(Kruiswoord);
        const QByteArray hoort = puzzel.Hoort();
        const QImage groot = puzzel.Scherm.Groot();
        {
            const KijkKlok klok([&] {
                PuzzelNaam = u"Ander"_s;
                puzzel.Scherm.Venster.WisRijen();
                puzzel.Scherm.Begin(Sudoku, 2, 2);
            });
            ExporteerHtml(PuzzelNaam);
        }
        QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Pagina(), hoort);
        QCOMPARE(puzzel.Beeld(), groot);
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/Reis.html"_s});
    }

    void theProgramThatEndsDuringTheWaitLeavesTheExport()
    {
        Puzzel puzzel;
        Klok::ProgrammaEindigt();
        bool afgebroken = false;
        try {
            ExporteerHtml(PuzzelNaam);
        } catch (const Afgebroken &) {
            afgebroken = true;
        }
        Klok::ProgrammaEindigt(false);
        QVERIFY(afgebroken);
        QVERIFY(puzzel.Shell.Geopend.isEmpty());
    }

    void withoutABrowserBothAreWritten()
    {
        Puzzel puzzel;
        SchrijfHtml(PuzzelNaam);
        QCOMPARE(puzzel.Pagina(), puzzel.Hoort());
        QCOMPARE(puzzel.Beeld(), puzzel.Scherm.Groot());
        QVERIFY(puzzel.Shell.Geopend.isEmpty());
    }

    void aPuzzleThatWasNeverNamed()
    {
        Puzzel puzzel(Filippine, QString());
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(QDir(puzzel.Map() + u"/Html"_s).entryList(QDir::Files | QDir::Hidden), QStringList{u".html"_s});
        QCOMPARE(QDir(puzzel.Map() + u"/Html/Images"_s).entryList(QDir::Files | QDir::Hidden), QStringList{u".bmp"_s});
        QCOMPARE(puzzel.Scherm.Bank.Inhoud(u"Html/.html"_s), puzzel.Hoort(QString()));
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/.html"_s});
    }

    void aNameThatWasOnlyClickedCounts()
    {
        Puzzel puzzel;
        puzzel.Scherm.Bank.Schrijf(u"Puzzels/Bergen.lst"_s, "x");
        OpenFile form;
        form.List1->SetListIndex(0);
        form.CancelKnop_Click();
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Html(), QStringList{u"Bergen.html"_s});
        QCOMPARE(puzzel.Scherm.Bank.Inhoud(u"Html/Bergen.html"_s), puzzel.Hoort(u"Bergen"_s));
    }

    void namesThatABrowserReadsInAnotherWayAreOpenedAsTheyAre_data()
    {
        QTest::addColumn<QString>("naam");
        for (const char *naam : {"één € twee", "a#b", "50%25", "a&b", " rand ", "~", "a+b;c=d"})
            Geval(naam, QString::fromUtf8(naam));
    }
    void namesThatABrowserReadsInAnotherWayAreOpenedAsTheyAre()
    {
        QFETCH(QString, naam);
        Puzzel puzzel(Kruiswoord, naam);
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Html(), QStringList{naam + u".html"_s});
        QCOMPARE(puzzel.Images(), QStringList{naam + u".bmp"_s});
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/"_s + naam + u".html"_s});
    }

    // The page looks for its picture by the name as it is now, and not every file system passes over the case.
    void thePictureGetsTheSpellingOfThePage()
    {
        Puzzel puzzel;
        for (const char *naam : {"REIS", "reis", "Reis"}) {
            PuzzelNaam = QLatin1String(naam);
            ExporteerHtml(PuzzelNaam);
            QCOMPARE(puzzel.Html(), QStringList{PuzzelNaam + u".html"_s});
            QCOMPARE(puzzel.Images(), QStringList{PuzzelNaam + u".bmp"_s});
            QCOMPARE(puzzel.Geopend().last(), puzzel.Map() + u"/Html/"_s + PuzzelNaam + u".html"_s);
        }
    }

    void foldersAreFoundIgnoringCase()
    {
        Puzzel puzzel;
        QVERIFY(QDir().mkpath(puzzel.Map() + u"/HTML/images"_s));
        ExporteerHtml(PuzzelNaam);
        QVERIFY(!QDir(puzzel.Map() + u"/Html"_s).exists());
        QCOMPARE(puzzel.Scherm.Bank.Bestanden(u"HTML"_s), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Scherm.Bank.Bestanden(u"HTML/images"_s), QStringList{u"Reis.bmp"_s});
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/HTML/Reis.html"_s});
    }

    void foldersThatAreThereServe_data()
    {
        QTest::addColumn<QString>("map");
        Geval("none", QString());
        Geval("Html", u"Html"_s);
        Geval("both", u"Html/Images"_s);
    }
    void foldersThatAreThereServe()
    {
        QFETCH(QString, map);
        Puzzel puzzel;
        QVERIFY(QDir().mkpath(puzzel.Map() + u'/' + map));
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Pagina(), puzzel.Hoort());
        QCOMPARE(puzzel.Beeld(), puzzel.Scherm.Groot());
    }

    void namesThatNoFileMayHave_data()
    {
        QTest::addColumn<QString>("naam");
        Geval("slash", "a/b");
        Geval("up", "../Puzzels/weg");
        Geval("up with backslashes", "..\\weg");
        Geval("tag", "<b>");
        Geval("quotes", "\"naam\"");
        Geval("colon", "c:weg");
        Geval("question", "wat?");
        Geval("star", "a*");
        Geval("bar", "a|b");
        Geval("line end", "a\r\nb");
        Geval("zero", QString(QChar(0)) + u'a');
        Geval("half a pair", u"a"_s + QChar(0xD800));
    }
    void namesThatNoFileMayHave()
    {
        QFETCH(QString, naam);
        Puzzel puzzel(Zweeds, naam);
        const Stand ervoor = puzzel.Scherm.Nu();
        ExporteerHtml(PuzzelNaam);
        NietsGeschreven(puzzel, ervoor);
        QVERIFY(puzzel.Shell.Geopend.isEmpty());
        QVERIFY(QDir(puzzel.Map() + u"/Html/Images"_s).exists());
    }

    void aNameThatIsTooLongIsPassedOver()
    {
        Puzzel puzzel(Zweeds, QString(300, u'x'));
        const Stand ervoor = puzzel.Scherm.Nu();
        ExporteerHtml(PuzzelNaam);
        NietsGeschreven(puzzel, ervoor);
        QCOMPARE(puzzel.Shell.Geopend.size(), 1); // it may be a name, but nothing is there
    }

    void aFileInThePlaceOfTheFolder()
    {
        Puzzel puzzel;
        puzzel.Scherm.Bank.Schrijf(u"Html"_s, "mijn");
        const Stand ervoor = puzzel.Scherm.Nu();
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Scherm.Bank.Inhoud(u"Html"_s), QByteArray("mijn"));
        QCOMPARE(puzzel.Scherm.Bank.Bestanden(QString()), QStringList{u"Html"_s});
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/Reis.html"_s});
        QCOMPARE(puzzel.Scherm.Veranderd(ervoor), QString());
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void aFileInThePlaceOfThePictures()
    {
        Puzzel puzzel;
        QVERIFY(QDir(puzzel.Map()).mkdir(u"Html"_s));
        puzzel.Scherm.Bank.Schrijf(u"Html/Images"_s, "mijn");
        ExporteerHtml(PuzzelNaam);
        QCOMPARE(puzzel.Scherm.Bank.Inhoud(u"Html/Images"_s), QByteArray("mijn"));
        QCOMPARE(puzzel.Pagina(), puzzel.Hoort()); // the remaining steps run
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void aFolderInThePlaceOfThePage()
    {
        Puzzel puzzel;
        QVERIFY(QDir().mkpath(puzzel.Map() + u"/Html/Reis.html/mijn"_s));
        QVERIFY(QDir().mkpath(puzzel.Map() + u"/Html/Images/Reis.bmp/mijn"_s));
        ExporteerHtml(PuzzelNaam);
        QVERIFY(QDir(puzzel.Map() + u"/Html/Reis.html/mijn"_s).exists());
        QVERIFY(QDir(puzzel.Map() + u"/Html/Images/Reis.bmp/mijn"_s).exists());
        QVERIFY(puzzel.Html().isEmpty() && puzzel.Images().isEmpty()); // nothing beside them
        QCOMPARE(puzzel.Geopend(), QStringList{puzzel.Map() + u"/Html/Reis.html"_s});
    }

    // What is at the path is opened: here the old page.
    void aReadOnlyFolderKeepsTheOldPage()
    {
        Puzzel puzzel;
        ExporteerHtml(PuzzelNaam);
        const QByteArray oud = puzzel.Pagina();
        const QImage groot = puzzel.Beeld();
        puzzel.Scherm.Begin(Kruiswoord, 2, 2);
        const Stand ervoor = puzzel.Scherm.Nu();
        QVERIFY(QFile::setPermissions(puzzel.Map() + u"/Html/Images"_s, QFile::ReadOther | QFile::ExeOther));
        {
            const Onbevoegd onbevoegd(puzzel.Scherm.Bank, {u"Html"_s});
            ExporteerHtml(PuzzelNaam);
        }
        QVERIFY(QFile::setPermissions(puzzel.Map() + u"/Html/Images"_s,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QCOMPARE(puzzel.Html(), QStringList{u"Reis.html"_s});
        QCOMPARE(puzzel.Images(), QStringList{u"Reis.bmp"_s});
        QCOMPARE(puzzel.Pagina(), oud);
        QCOMPARE(puzzel.Beeld(), groot);
        QCOMPARE(puzzel.Shell.Geopend.size(), 2);
        QCOMPARE(puzzel.Scherm.Veranderd(ervoor), QString());
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void aReadOnlyFolderOfTheProgram()
    {
        Puzzel puzzel;
        const Stand ervoor = puzzel.Scherm.Nu();
        {
            const Onbevoegd onbevoegd(puzzel.Scherm.Bank, {QString()});
            ExporteerHtml(PuzzelNaam);
        }
        QVERIFY(!QDir(puzzel.Map() + u"/Html"_s).exists());
        QCOMPARE(puzzel.Shell.Geopend.size(), 1);
        QCOMPARE(puzzel.Scherm.Veranderd(ervoor), QString());
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    // No file may grow beyond 100 bytes, as on a disk without room.
    void aFullDisk()
    {
        Puzzel puzzel;
        ExporteerHtml(PuzzelNaam);
        const QImage oud = puzzel.Beeld();
        puzzel.Scherm.Begin(Kruiswoord, 2, 2);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit vrij{};
        getrlimit(RLIMIT_FSIZE, &vrij);
        rlimit vol{100, vrij.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &vol), 0);
        ExporteerHtml(PuzzelNaam);
        setrlimit(RLIMIT_FSIZE, &vrij);
        QVERIFY(puzzel.Html().isEmpty()); // the old page was removed, and no half one is there
        QCOMPARE(puzzel.Images(), QStringList{u"Reis.bmp"_s});
        QCOMPARE(puzzel.Beeld(), oud);
        QCOMPARE(puzzel.Shell.Geopend.size(), 2);
        QVERIFY(puzzel.Scherm.Bank.Script.Gezien.isEmpty());
    }

    // At whatever call the disk fails: page and picture are the old one, the new one or not there, and never half.
    void whereverTheDiskFails()
    {
        Puzzel puzzel;
        qsizetype aanroepen = 1;
        for (int bij = 1; bij <= aanroepen; ++bij) {
            QDir(puzzel.Map() + u"/Html"_s).removeRecursively();
            puzzel.Scherm.Begin(Zweeds, 3, 2);
            ExporteerHtml(PuzzelNaam);
            const QByteArray oud = puzzel.Pagina();
            const QImage oudBeeld = puzzel.Beeld();
            puzzel.Scherm.Begin(Kruiswoord, 2, 2);
            puzzel.Shell.Geopend.clear();
            {
                const HaperendeSchijf schijf(bij);
                ExporteerHtml(PuzzelNaam);
                aanroepen = schijf.Logboek.size();
            }
            const QByteArray pagina = puzzel.Pagina();
            QVERIFY(pagina.isEmpty() || pagina == oud || pagina == puzzel.Hoort());
            const QImage beeld = puzzel.Beeld();
            QVERIFY(beeld == oudBeeld || beeld == puzzel.Scherm.Groot());
            QCOMPARE(puzzel.Shell.Geopend.size(), 1);
        }
        QVERIFY(aanroepen > 10);
    }

    void theStartFinishesWhatAKilledExportLeft()
    {
        Puzzel puzzel;
        QVERIFY(QDir().mkpath(puzzel.Map() + u"/Html/Images"_s));
        for (const char *map : {"Html", "Html/Images"})
            for (const char *naam : {"/.rasteratelier-0123456789abcdef", "/.rasteratelier-0123456789abcdef-1"})
                puzzel.Scherm.Bank.Schrijf(QLatin1String(map) + QLatin1String(naam), QByteArray());
        HerstelBestanden();
        for (const char *map : {"Html", "Html/Images"})
            QVERIFY(QDir(puzzel.Map() + u'/' + QLatin1String(map)).entryList(QDir::Files | QDir::Hidden).isEmpty());
    }
};

RASTER_TEST(tst_HtmlExport)
#include "tst_HtmlExport.moc"
