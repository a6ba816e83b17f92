#include "app/AboutForm.h"
#include "app/ConfigForm.h"
#include "app/Opdrachten.h"
#include "board/NieuwForm.h"
#include "board/Soorten.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "documents/ShowPuzzel.h"
#include "editors/FilippineForm.h"
#include "editors/LetterForm.h"
#include "editors/NummerForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "generators/AutoForm.h"
#include "print/Afdrukken.h"
#include "support/Afloop.h"
#include "support/Bord.h"
#include "support/InhoudVan.h"
#include "support/PdfLezer.h"
#include "wordlib/AddForm.h"
#include "wordlib/ChemischForm.h"
#include "wordlib/FormMain.h"
#include "wordlib/KladblokForm.h"
#include "wordlib/MissingForm.h"
#include "wordlib/SpreekwoordForm.h"
#include "wordlib/ZoekForm.h"

#include <QDir>
#include <QDirIterator>
#include <QMenuBar>
#include <QRegularExpression>

#include <map>

using namespace Qt::StringLiterals;

/// A manual that the build made, beside the texts that it was made of.
struct Handleiding
{
    explicit Handleiding(const QString &naam) : Pdf(QStringLiteral(GEMAAKT "/") + naam + u".pdf"_s)
    {
        const QDir map(QStringLiteral(TEKSTEN "/") + naam);
        for (const QString &bestand : map.entryList({u"*.md"_s}, QDir::Files, QDir::Name))
            Markdown += QString::fromUtf8(InhoudVan(map.filePath(bestand))) + u'\n';
        for (int blad = 1; blad <= Pdf.Paginas(); ++blad)
            Bladen += Pdf.Regels(blad);
    }
    /// One of them: it is read once, which takes its time.
    static const Handleiding &Van(const QString &naam)
    {
        static std::map<QString, Handleiding> gelezen;
        return gelezen.try_emplace(naam, naam).first->second;
    }
    /// What a pattern finds in the texts: its first part.
    QStringList InTekst(const QString &patroon) const
    {
        QStringList gevonden;
        const QRegularExpression regel(patroon, QRegularExpression::MultilineOption);
        for (auto i = regel.globalMatch(Markdown); i.hasNext();)
            gevonden += i.next().captured(1);
        return gevonden;
    }
    /// The lines of the list of headings: each heading with its page.
    QList<std::pair<QString, int>> Inhoud() const
    {
        static const QRegularExpression regel(u"^(.*?) ?[ .]{4,}(\\d+)$"_s);
        QList<std::pair<QString, int>> koppen;
        for (const QStringList &blad : Bladen)
            for (const QString &gelezen : blad.first(blad.size() - 1)) // without its foot
                if (const auto gevonden = regel.match(gelezen); gevonden.hasMatch())
                    koppen += {gevonden.captured(1), gevonden.captured(2).toInt()};
        return koppen;
    }
    /// All that is to be read, in one line.
    QString Alles() const
    {
        QString tekst;
        for (const QStringList &blad : Bladen)
            tekst += blad.join(u' ') + u' ';
        return tekst.simplified();
    }

    PdfLezer Pdf;
    QString Markdown;
    QList<QStringList> Bladen; ///< the lines of each page
};

/// The files below a folder with their sizes and their times.
static QStringList Bestanden(const QString &map)
{
    QStringList bestanden;
    QDirIterator lus(map, QDir::Files, QDirIterator::Subdirectories);
    while (lus.hasNext()) {
        lus.next();
        const QFileInfo bestand = lus.fileInfo();
        bestanden +=
            u"%1 %2 %3"_s.arg(bestand.filePath()).arg(bestand.size()).arg(bestand.lastModified().toMSecsSinceEpoch());
    }
    bestanden.sort();
    return bestanden;
}

/// A caption as it is looked for: without what is different each time, as the name of a cell or a size in brackets.
static QString Vast(QString opschrift)
{
    static const QRegularExpression wisselend(u" (op [A-P].*|op \\d.*|op|\\(.*)$"_s);
    return opschrift.remove(wisselend).remove(u"..."_s).simplified();
}

/// All items of the menus of a window, the pop-ups among them.
static QStringList Opschriften(const QWidget &venster)
{
    QStringList opschriften;
    for (const QAction *item : venster.findChildren<QAction *>())
        if (!item->isSeparator() && !item->text().isEmpty() && item->parent()->inherits("QMenu"))
            opschriften += Vast(item->text());
    for (const QMenu *menu : venster.findChildren<QMenu *>())
        opschriften += menu->title();
    opschriften.removeAll(QString());
    return opschriften;
}

class tst_Handleidingen : public QObject
{
    Q_OBJECT

    static void Beide()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("titel");
        QTest::addColumn<int>("bladen"); // at least
        Geval("help", u"help"_s, u"Raster Atelier: uitleg en hulp"_s, 30);
        Geval("word lists", u"Woordlijst Importeren"_s, u"Raster Atelier: woordlijsten aanmaken"_s, 6);
    }

    template <class Venster> static void Verzamel(QStringList &titels, QStringList &opschriften)
    {
        const Venster venster;
        titels += Vast(venster.windowTitle());
        opschriften += Opschriften(venster);
    }

private slots:
    void itIsWholeOnPaper_data() { Beide(); }
    void itIsWholeOnPaper()
    {
        QFETCH(QString, naam);
        QFETCH(QString, titel);
        QFETCH(int, bladen);
        const Handleiding &boek = Handleiding::Van(naam);
        QCOMPARE(boek.Pdf.Kenmerk(u"Title"_s), titel);
        QCOMPARE(boek.Bladen[0][0], titel);
        QVERIFY(boek.Pdf.Kenmerk(u"Page size"_s).endsWith(u"(A4)"_s));
        QVERIFY2(boek.Pdf.Paginas() >= bladen, qPrintable(boek.Pdf.Kenmerk(u"Pages"_s)));
        for (int blad = 1; blad <= boek.Bladen.size(); ++blad)
            QCOMPARE(boek.Bladen[blad - 1].last().simplified(), u"%1 %2"_s.arg(titel).arg(blad));
        const QStringList letters = boek.Pdf.Letters();
        QVERIFY(!letters.isEmpty());
        for (const QString &letter : letters)
            QVERIFY2(letter.startsWith("Liberation"_L1) && letter.contains(" ingesloten"_L1), qPrintable(letter));
    }

    void everyHeadingIsListedWithItsPage_data() { Beide(); }
    void everyHeadingIsListedWithItsPage()
    {
        QFETCH(QString, naam);
        const Handleiding &boek = Handleiding::Van(naam);
        const QStringList koppen = boek.InTekst(u"^#+ (.*)$"_s);
        const auto inhoud = boek.Inhoud();
        QStringList gelezen;
        for (const auto &[kop, blad] : inhoud) {
            gelezen += kop;
            QVERIFY2(boek.Bladen.value(blad - 1).contains(kop), qPrintable(u"%1 op bladzijde %2"_s.arg(kop).arg(blad)));
        }
        QVERIFY(koppen.size() > 10);
        QCOMPARE(gelezen, koppen);
    }

    void everyPictureIsInIt_data() { Beide(); }
    void everyPictureIsInIt()
    {
        QFETCH(QString, naam);
        const Handleiding &boek = Handleiding::Van(naam);
        const QStringList beelden = boek.InTekst(u"!\\[.*\\]\\((.*)\\)"_s);
        QVERIFY(!beelden.isEmpty());
        QStringList maten;
        for (const QString &naamVanBeeld : beelden) {
            const QImage bron(QStringLiteral(BEELDEN "/") + naamVanBeeld);
            QVERIFY2(!bron.isNull(), qPrintable(naamVanBeeld));
            maten += u"%1x%2"_s.arg(bron.width()).arg(bron.height());
        }
        QStringList gelezen;
        for (const QString &maat : boek.Pdf.BeeldMaten())
            gelezen += maat.section(u": "_s, 1);
        QCOMPARE(gelezen, maten);
        const QString alles = boek.Alles();
        for (const QString &onderschrift : boek.InTekst(u"!\\[(.*)\\]\\("_s))
            QVERIFY2(alles.contains(onderschrift), qPrintable(onderschrift));
    }

    // A picture that no text shows is taken for nothing.
    void everyPictureThatIsTakenIsShown()
    {
        QStringList getoond, genomen;
        for (const QString &naam : {u"help"_s, u"Woordlijst Importeren"_s})
            getoond += Handleiding::Van(naam).InTekst(u"!\\[.*\\]\\((.*)\\.png\\)"_s);
        for (const QByteArray &regel : InhoudVan(QStringLiteral(BEELDEN "/beelden.txt")).split('\n'))
            if (!regel.isEmpty())
                genomen += QString::fromUtf8(regel.split(' ')[0]);
        getoond.removeDuplicates();
        getoond.sort();
        genomen.sort();
        QCOMPARE(genomen, getoond);
    }

    // Chance, time and the machine have no part in them: what is taken anew is what the build took.
    void picturesAreTheSameEachTime()
    {
        const QTemporaryDir map;
        QFile lijst(map.filePath(u"beelden.txt"_s));
        QVERIFY(lijst.open(QIODevice::WriteOnly) && lijst.write("nieuw 0\n") > 0); // of an earlier time
        lijst.close();
        const QStringList ervoor = Bestanden(QStringLiteral(PROGRAMMA));
        const QStringList argumenten{QStringLiteral(PROGRAMMA), map.path()};
        const Afloop eerste(QStringLiteral(VENSTERBEELDEN), argumenten);
        QVERIFY2(eerste.Code == 0, qPrintable(eerste.Tekst()));
        QCOMPARE(Bestanden(QStringLiteral(PROGRAMMA)), ervoor);
        const QByteArray genomen = InhoudVan(lijst.fileName());
        QVERIFY(genomen.count('\n') > 20);
        QCOMPARE(genomen, InhoudVan(QStringLiteral(BEELDEN "/beelden.txt")));
        QCOMPARE(QDir(map.path()).entryList({u"*.png"_s}).size(), genomen.count('\n'));

        QVERIFY(lijst.open(QIODevice::ReadWrite));
        const QDateTime toen(QDate(2020, 1, 1), QTime(12, 0));
        QVERIFY(lijst.setFileTime(toen, QFileDevice::FileModificationTime));
        lijst.close();
        QCOMPARE(Afloop(QStringLiteral(VENSTERBEELDEN), argumenten).Code, 0);
        QCOMPARE(QFileInfo(lijst.fileName()).lastModified(), toen); // nothing that is made of it is made anew
    }

    void whatGoesWrongInTheBuildIsTold()
    {
        const QTemporaryDir map;
        const QString vensterbeelden = QStringLiteral(VENSTERBEELDEN), handleiding = QStringLiteral(HANDLEIDING);
        const Afloop geenMap(vensterbeelden, {});
        QCOMPARE(geenMap.Code, 1);
        QVERIFY2(geenMap.Tekst().contains("vensterbeelden APPMAP BEELDMAP"_L1), qPrintable(geenMap.Tekst()));
        const Afloop zonderDatabase(vensterbeelden, {map.path(), map.path()});
        QCOMPARE(zonderDatabase.Code, 1);
        QVERIFY2(zonderDatabase.Tekst().contains("Kan database niet vinden"_L1), qPrintable(zonderDatabase.Tekst()));
        QVERIFY(!QFile::exists(map.filePath(u"beelden.txt"_s)));
        const Afloop geenBron(handleiding, {u"Titel"_s, map.path(), map.filePath(u"x.pdf"_s)});
        QCOMPARE(geenBron.Code, 1);
        QVERIFY2(geenBron.Tekst().contains("handleiding TITEL BEELDMAP"_L1), qPrintable(geenBron.Tekst()));
        QFile bron(map.filePath(u"bron.md"_s));
        QVERIFY(bron.open(QIODevice::WriteOnly) && bron.write("# Een\n\n![Weg](weg.png)\n") > 0);
        bron.close();
        const Afloop geenBeeld(handleiding, {u"Titel"_s, map.path(), map.filePath(u"x.pdf"_s), bron.fileName()});
        QCOMPARE(geenBeeld.Code, 1);
        QVERIFY2(geenBeeld.Tekst().contains("weg.png"_L1), qPrintable(geenBeeld.Tekst()));
        const auto weigert = [&](const QByteArray &tekst, const QStringList &bronnen, const QString &doel) {
            if (!bron.open(QIODevice::WriteOnly) || bron.write(tekst) != tekst.size())
                return u"no source"_s;
            bron.close();
            const Afloop afloop(handleiding, QStringList{u"Titel"_s, map.path(), doel} + bronnen);
            return afloop.Code == 1 ? afloop.Tekst().section(u'\n', -2) : u"it ended with %1"_s.arg(afloop.Code);
        };
        const QString doel = map.filePath(u"x.pdf"_s), weg = map.filePath(u"weg/x"_s);
        QCOMPARE(weigert("# Een\n", {bron.fileName(), weg}, doel),
                 u"handleiding: Bestand niet gevonden (%1)\n"_s.arg(weg));
        QCOMPARE(weigert("# Caf\xE9\n", {bron.fileName()}, doel),
                 u"handleiding: Ongeldige waarde (%1)\n"_s.arg(bron.fileName()));
        QCOMPARE(weigert("# Een\n", {bron.fileName()}, weg),
                 u"handleiding: Geen toegang (%1)\n"_s.arg(map.filePath(u"weg"_s)));
        QVERIFY(!QFile::exists(doel));
    }

    void aTextBeginsOnALineOfItsOwn()
    {
        const QTemporaryDir map;
        QStringList bronnen;
        for (const QByteArray &tekst : {QByteArray("# Een\n\neerste"), QByteArray("# Twee\n\ntweede")}) {
            QFile bron(map.filePath(u"%1.md"_s.arg(bronnen.size())));
            QVERIFY(bron.open(QIODevice::WriteOnly) && bron.write(tekst) > 0);
            bronnen += bron.fileName();
        }
        const QString doel = map.filePath(u"x.pdf"_s);
        const Afloop afloop(QStringLiteral(HANDLEIDING), QStringList{u"Titel"_s, map.path(), doel} + bronnen);
        QVERIFY2(afloop.Code == 0, qPrintable(afloop.Tekst()));
        QCOMPARE(PdfLezer(doel).Paginas(), 3); // the list of headings, and a page for each chapter
    }

    void everyWindowAndItsMenusAreTold()
    {
        Bord bord;
        VerbindOpdrachten();
        QStringList titels{Vast(bord.Venster.windowTitle())};
        QStringList opschriften = Opschriften(bord.Venster);
        QVERIFY(opschriften.contains(bord.Venster.ToolsKladblok->text()));
        QVERIFY(opschriften.contains(bord.Venster.SoortVakTekst[VakMenu::Opvullen]->text()));
        Verzamel<AboutForm>(titels, opschriften);
        Verzamel<AddForm>(titels, opschriften);
        Verzamel<Afdrukken>(titels, opschriften);
        Verzamel<AutoForm>(titels, opschriften);
        Verzamel<ChemischForm>(titels, opschriften);
        Verzamel<ConfigForm>(titels, opschriften);
        Verzamel<FilippineForm>(titels, opschriften);
        Verzamel<FormMain>(titels, opschriften);
        Verzamel<KladblokForm>(titels, opschriften);
        Verzamel<LetterForm>(titels, opschriften);
        Verzamel<MissingForm>(titels, opschriften);
        Verzamel<NieuwForm>(titels, opschriften);
        Verzamel<NummerForm>(titels, opschriften);
        Verzamel<OpenFile>(titels, opschriften);
        Verzamel<SaveForm>(titels, opschriften);
        Verzamel<ShowPuzzel>(titels, opschriften);
        Verzamel<SpreekwoordForm>(titels, opschriften);
        Verzamel<TekstForm>(titels, opschriften);
        Verzamel<VakForm>(titels, opschriften);
        Verzamel<ZoekForm>(titels, opschriften);
        const QString alles = Handleiding::Van(u"help"_s).Alles();
        for (const QString &tekst : titels + opschriften)
            QVERIFY2(!tekst.isEmpty() && alles.contains(tekst), qPrintable(tekst));
    }
};

RASTER_TEST(tst_Handleidingen)

#include "tst_Handleidingen.moc"
