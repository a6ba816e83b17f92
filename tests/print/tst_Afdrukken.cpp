#include "platform/Getallen.h"
#include "platform/Plaatjes.h"
#include "print/Afdrukken.h"
#include "support/Bestuurder.h"
#include "support/KijkSchijf.h"
#include "support/Onbevoegd.h"
#include "support/PdfLezer.h"
#include "support/ProefWachtrijen.h"
#include "support/Venster.h"
#include "support/Verwacht.h"

#include <QFileInfo>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::StringLiterals;

/// The dialog on a machine with two queues.
struct Printbord : Bord
{
    ProefWachtrijen Rijen{{u"Kantoor"_s, u"Zolder"_s}, u"Zolder"_s};
};

/// The dialog on a machine without queues, which prints to this file.
struct Pdfbord : Bord
{
    ProefWachtrijen Rijen;
    QString Pad = Bank.Map() + u"/puzzel.pdf"_s;

    Pdfbord() { Bank.Script.Bestanden = {Pad}; }
    /// Prints the puzzle; the dialog closes without a word, whatever came of it.
    void Druk(bool tijd = false, bool oplossing = false)
    {
        Afdrukken form;
        form.Check1->setChecked(tijd);
        form.Check2->setChecked(oplossing);
        form.PrintKnop->click();
        QVERIFY(form.Unloaded());
        QVERIFY(!QGuiApplication::overrideCursor() || !Zandloper());
        QVERIFY(Bank.Script.Gezien.isEmpty());
    }
};

class tst_Afdrukken : public QObject
{
    Q_OBJECT
private slots:
    void controlsAndTheirPlaces()
    {
        Printbord bord;
        bord.Begin(Sudoku, 9, 9);
        Afdrukken form;
        form.ensurePolished();
        // Two are larger than the window has room for; what they say is not.
        QCOMPARE(Misplaatst(form, {{"Label2", 180, 180, 1800, 2580},
                                   {"Picture1", 240, 240, 1695, 2475},
                                   {"Label6", 2100, 210, 180, 2580},
                                   {"Label7", 2115, 225, 180, 2580},
                                   {"Label1", 2850, 210},
                                   {"Combo2", 2850, 480, 2700, 330},
                                   {"Check1", 3000, 1050, 2100, 255},
                                   {"Check2", 3000, 1350, 3000, 255},
                                   {"Label4", 180, 2850, 2100, 900},
                                   {"Image1", 4290, 1950, 1440, 900},
                                   {"CancelKnop", 3705, 2910, 960, 330},
                                   {"PrintKnop", 4710, 2910, 990, 330}}),
                 u"Check2 steekt uit\nLabel4 steekt uit"_s);
        for (const QCheckBox *check : {form.Check1, form.Check2}) {
            QStyleOptionButton hoe;
            hoe.initFrom(check);
            const QRect tekst = check->style()->subElementRect(QStyle::SE_CheckBoxContents, &hoe, check);
            const int einde = tekst.left() + check->fontMetrics().horizontalAdvance(check->text());
            QVERIFY(einde <= check->width() && check->x() + einde <= form.width());
        }
        for (const Label *letters : {form.Label6, form.Label7}) {
            const QRect tekst = letters->fontMetrics().boundingRect(letters->rect(), 0, letters->Caption());
            QVERIFY(tekst.width() <= letters->width() && tekst.height() <= letters->height());
        }
    }

    void theTabKeyGoesFromThePrinterOn()
    {
        Printbord bord;
        {
            Afdrukken form;
            QCOMPARE(TabVolgorde(form), u"Combo2 Check1 CancelKnop PrintKnop"_s);
        }
        bord.Begin(Sudoku, 9, 9);
        Afdrukken form;
        QCOMPARE(TabVolgorde(form), u"Combo2 Check1 Check2 CancelKnop PrintKnop"_s);
    }

    void asItOpens()
    {
        Printbord bord;
        {
            Afdrukken vorige; // nothing of it stays
            vorige.Check1->setChecked(true);
            vorige.Check2->setChecked(true);
            vorige.CancelKnop->click();
        }
        Afdrukken form;
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (Zolder)"_s);
        QCOMPARE(form.size(), QSize((6000 - 90) / 15, (3960 - 450) / 15));
        QCOMPARE(form.palette().color(QPalette::Window), QColor(190, 240, 240));
        for (const QCheckBox *check : {form.Check1, form.Check2})
            QVERIFY(!check->isChecked() && check->palette().color(QPalette::Window) == QColor(190, 240, 240));
        QCOMPARE(form.Check1->text(), u"Datum en tijd afdrukken"_s);
        QCOMPARE(form.Check2->text(), u"Tevens oplossing afdrukken"_s);
        QCOMPARE(form.Label1->Caption(), u"Printerkeuze"_s);
        QCOMPARE(form.Combo2->palette().color(QPalette::Base), QColor(240, 210, 210));
        QCOMPARE(form.Combo2->palette().color(QPalette::Text), QColor(0, 0, 0));
        QCOMPARE(form.Label2->palette().color(QPalette::Window), QColor(150, 180, 180));
        QVERIFY(form.Line1->isHidden());
        for (const Label *label : {form.Label6, form.Label7})
            QVERIFY(label->Caption() == u"A\nF\nD\nR\nU\nK\nK\nE\nN"_s &&
                    label->font() == Lettertype(u"Arial"_s, 11, true) && label->alignment() == Qt::AlignHCenter);
        QCOMPARE(form.Label6->palette().color(QPalette::WindowText), QColor(255, 255, 20));
        QCOMPARE(form.Label7->palette().color(QPalette::WindowText), QColor(130, 100, 60));
        const QList<QObject *> kinderen = form.Label6->parent()->children();
        QVERIFY(kinderen.indexOf(form.Label6) > kinderen.indexOf(form.Label7)); // the shadow lies below
        QCOMPARE(form.Combo2->accessibleName(), u"Printerkeuze"_s);
        for (const QCheckBox *check : {form.Check1, form.Check2})
            QCOMPARE(check->accessibleName(), check->text());
        QCOMPARE(form.Picture1->accessibleName(), u"Voorbeeld"_s);
        QCOMPARE(form.CancelKnop->accessibleName(), u"Annuleren"_s);
        QCOMPARE(form.PrintKnop->accessibleName(), u"Afdrukken"_s);
        QCOMPARE(PlaatjesOp(form), u"CancelKnop knop-annuleren-laag, Image1 printer, PrintKnop knop-afdrukken"_s);
    }

    void eachKindHasItsTitleAndItsSheet_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("titel");
        Geval("Zweeds", 1, "Zweedse puzzel afdrukken op meerdere pagina's");
        Geval("Woordzoeker", 2, "Woordzoeker afdrukken");
        Geval("Kruiswoord", 3, "Kruiswoordpuzzel afdrukken op 2 pagina's");
        Geval("Sudoku", 4, "Sudoku Puzzel afdrukken");
        Geval("Filippine", 5, "Filippine Puzzel afdrukken");
    }
    void eachKindHasItsTitleAndItsSheet()
    {
        QFETCH(int, type);
        QFETCH(QString, titel);
        Printbord bord;
        bord.Begin(static_cast<quint8>(type), 9, 9);
        Afdrukken form;
        QCOMPARE(form.Label4->Caption(), titel);
        const QRect regels = form.Label4->fontMetrics().boundingRect(form.Label4->rect(), Qt::TextWordWrap, titel);
        QVERIFY(form.Label4->y() + regels.height() <= form.height()); // all of it is seen
        QCOMPARE(form.Check2->isHidden(), type != 4);
        const QImage blad = Plaatjes::Beeld(u"sjabloon%1"_s.arg(type));
        QCOMPARE(blad.size(), QSize(113, 165));
        QVERIFY(form.Picture1->Image() == blad);
        QCOMPARE(Verschil(Getoond(form).copy(form.Picture1->geometry()), blad), QString()); // its frame lies behind it
        for (int ander = 1; ander <= 5; ++ander)
            QCOMPARE(Plaatjes::Beeld(u"sjabloon%1"_s.arg(ander)) == blad, ander == type);
    }

    void aKindThatThereIsntPrintsNothing()
    {
        Pdfbord bord;
        PuzzelType = 6;
        {
            Afdrukken form;
            QCOMPARE(form.Label4->Caption(), QString());
            QVERIFY(form.Picture1->Image() == Doek(113, 165, qRgb(255, 255, 255)));
        }
        bord.Druk();
        QVERIFY(!QFileInfo::exists(bord.Pad));
    }

    void thePrintersAndTheCurrentOne()
    {
        Printbord bord;
        {
            Afdrukken form;
            QCOMPARE(Items(*form.Combo2), (QStringList{u"Kantoor"_s, u"Zolder"_s, u"PDF-bestand"_s}));
            QCOMPARE(form.Combo2->currentText(), u"Zolder"_s);
            QCOMPARE(form.Combo2->currentIndex(), 1);
        }
        Printers::Kies(0);
        Afdrukken form;
        QCOMPARE(form.Combo2->currentText(), u"Kantoor"_s);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (Kantoor)"_s);
    }

    void aChosenPrinterThatHasGoneIsNowhere()
    {
        Printbord bord;
        Printers::Lijst();
        Printers::Kies(0);
        bord.Rijen.Alle = {u"Zolder"_s};
        Afdrukken form;
        QCOMPARE(Items(*form.Combo2), (QStringList{u"Zolder"_s, u"PDF-bestand"_s}));
        QCOMPARE(form.Combo2->currentText(), u"Zolder"_s);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (Zolder)"_s);
    }

    void withoutAnyQueueThereIsThePdfFile()
    {
        Bord bord;
        const ProefWachtrijen geen;
        Afdrukken form;
        QCOMPARE(Items(*form.Combo2), QStringList{u"PDF-bestand"_s});
        QCOMPARE(form.Combo2->currentText(), u"PDF-bestand"_s);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (PDF-bestand)"_s);
    }

    void aChosenPrinterStaysTheOne_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("naam");
        Geval("first", 0, "Kantoor");
        Geval("the same", 1, "Zolder");
        Geval("last", 2, "PDF-bestand");
    }
    void aChosenPrinterStaysTheOne()
    {
        QFETCH(int, index);
        QFETCH(QString, naam);
        Printbord bord;
        {
            Afdrukken form;
            form.Combo2->setCurrentIndex(index);
            emit form.Combo2->activated(index);
            QCOMPARE(form.Tag, QString::number(index));
            QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (%1)"_s.arg(naam));
            form.CancelKnop->click();
        }
        QCOMPARE(Printers::Huidig().DeviceName(), naam);
        QCOMPARE(Afdrukken().windowTitle(), u"Puzzel afdrukken (%1)"_s.arg(naam));
    }

    void twoQueuesOfOneNameAreTwo()
    {
        Bord bord;
        const ProefWachtrijen tweeling({u"Zelfde"_s, u"Zelfde"_s});
        Afdrukken form;
        form.Combo2->setCurrentIndex(1);
        emit form.Combo2->activated(1);
        QCOMPARE(form.Tag, u"1"_s);
    }

    void aTypedName_data()
    {
        QTest::addColumn<QString>("naam");
        QTest::addColumn<QString>("tag");
        QTest::addColumn<QString>("printer");
        Geval("of an entry", "Kantoor", "0", "Kantoor");
        Geval("of no entry", "Kelder", "-1", "Zolder");
        Geval("part of one", "Kant", "-1", "Zolder");
        Geval("in capitals", "KANTOOR", "-1", "Zolder");
        Geval("a blank behind it", "Zolder ", "-1", "Zolder");
        Geval("nothing", "", "-1", "Zolder");
        Geval("its index", "0", "-1", "Zolder");
        Geval("very long", QString(10000, u'x'), "-1", "Zolder");
    }
    void aTypedName()
    {
        QFETCH(QString, naam);
        QFETCH(QString, tag);
        QFETCH(QString, printer);
        Printbord bord;
        Afdrukken form;
        form.Combo2->setEditText(naam);
        QCOMPARE(form.Tag, tag);
        QCOMPARE(Printers::Huidig().DeviceName(), printer);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (%1)"_s.arg(printer));
        QCOMPARE(form.Combo2->currentText(), naam);
        QCOMPARE(form.Combo2->count(), 3); // it becomes no entry
    }

    void typedByKeys()
    {
        Printbord bord;
        Afdrukken form;
        form.show();
        form.Combo2->setFocus();
        QTest::keyClick(form.Combo2, Qt::Key_Down);
        QCOMPARE(form.Tag, u"2"_s);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (PDF-bestand)"_s);
        QTest::keyClicks(form.Combo2, u"x"_s);
        QCOMPARE(form.Tag, u"-1"_s);
        QCOMPARE(form.Combo2->currentText(), u"PDF-bestandx"_s);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (PDF-bestand)"_s);
    }

    void theSweep()
    {
        Pdfbord bord;
        Afdrukken form;
        const QPoint plaats = form.PrintKnop->pos();
        const QImage blad = form.Picture1->Image();
        int ronde = -1; // the first wait is the press effect
        KijkKlok klok([&] {
            if (ronde++ < 0) {
                QCOMPARE(form.PrintKnop->pos(), plaats + QPoint(2, 2));
                QVERIFY(form.Line1->isHidden() && !Zandloper());
                return;
            }
            const int y = ronde - 1;
            QCOMPARE(form.PrintKnop->pos(), plaats);
            QVERIFY(Zandloper());
            Verwacht hoort(blad);
            hoort.Vul(QRect(0, y, 113, 1), qRgb(static_cast<int>(std::nearbyint(y * 1.5)), 0, 0));
            QCOMPARE(Verschil(Getoond(*form.Picture1), hoort.Beeld), QString());
            QVERIFY(!QFileInfo::exists(bord.Pad) && bord.Bank.Script.Voorstellen.isEmpty()); // the job comes behind it
        });
        form.PrintKnop->click();
        QCOMPARE(klok.Wachttijden, QList<double>{0.2} + QList<double>(166, 0.01));
        QCOMPARE(klok.Welke[0], QEventLoop::AllEvents);
        QCOMPARE(klok.Welke.mid(1), QList<QEventLoop::ProcessEventsFlags>(
                                        166, QEventLoop::ExcludeUserInputEvents)); // keys and clicks wait
        QVERIFY(form.Line1->isHidden());
        QVERIFY(!Zandloper());
        QVERIFY(form.Unloaded());
        QVERIFY(QFileInfo::exists(bord.Pad));
    }

    void theJobRunsInTheOpenWindow()
    {
        Pdfbord bord;
        Afdrukken form;
        form.Check1->setChecked(true);
        form.show();
        KijkKlok klok([&] { klok.ZetNu(QDateTime(QDate(2026, 5, 4), QTime(3, 2, 1))); }); // by the end of the sweep
        QStringList gezien;
        const auto kijk = [&] {
            gezien += QLatin1String(form.isVisible() && !form.Unloaded() ? "open" : "dicht") +
                      (form.Line1->isHidden() ? QString() : u" lijn"_s) + (Zandloper() ? u" zandloper"_s : QString());
        };
        bord.Bank.Script.BijBestand = kijk;
        {
            const KijkSchijf schijf(kijk);
            form.PrintKnop->click();
        }
        gezien.removeDuplicates();
        QCOMPARE(gezien, (QStringList{u"open"_s, u"open zandloper"_s})); // a question is not asked under the hourglass
        QVERIFY(form.Unloaded() && !Zandloper());
        QCOMPARE(PdfLezer(bord.Pad).Teksten(1).value(1), u"9000,300 12 vet #5a0000 03:02:01 / 04-05-2026"_s);
    }

    void cancelOnlyCloses()
    {
        Pdfbord bord;
        Afdrukken form;
        KlikMetDruk(*form.CancelKnop, [&] { QVERIFY(!form.Unloaded()); });
        QVERIFY(form.Unloaded());
        QVERIFY(bord.Bank.Script.Voorstellen.isEmpty());
    }

    void whatIsChosenDuringThePressCounts()
    {
        Pdfbord bord;
        bord.Rijen.Alle = QStringList{bord.Rijen.Eerste = u"Kantoor"_s};
        bord.Begin(Sudoku, 9, 9);
        Afdrukken form;
        {
            const KijkKlok klok([&] {
                if (Zandloper())
                    return;
                form.Check1->setChecked(true);
                form.Check2->setChecked(true);
                form.Combo2->setCurrentIndex(1);
            });
            form.PrintKnop->click();
        }
        const PdfLezer pdf(bord.Pad); // it did not go to the queue
        QVERIFY(pdf.Teksten(1).value(1).startsWith("9000,300 "_L1));
        QCOMPARE(pdf.Beelden(1).size(), 2);
    }

    void closingItDuringThePressPrintsNothing()
    {
        Pdfbord bord;
        Afdrukken form;
        form.show();
        const KijkKlok klok([&] { form.close(); });
        form.PrintKnop->click();
        QVERIFY(bord.Bank.Script.Voorstellen.isEmpty());
        QVERIFY(!Zandloper());
    }

    void thePuzzleIsLeftAsItWas()
    {
        Pdfbord bord;
        bord.Begin(Zweeds, 9, 10);
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"-"_s}});
        PuzzelGewijzigd = true;
        const Stand ervoor = bord.Nu();
        bord.Druk();
        QCOMPARE(bord.Veranderd(ervoor), QString());
    }

    void thePuzzleIsPrinted_data()
    {
        QTest::addColumn<bool>("tijd");
        QTest::addColumn<bool>("oplossing");
        for (const bool tijd : {false, true})
            for (const bool oplossing : {false, true})
                Geval(QByteArray(tijd ? "the time" : "no time") + (oplossing ? ", the solution" : ""), tijd, oplossing);
    }
    void thePuzzleIsPrinted()
    {
        QFETCH(bool, tijd);
        QFETCH(bool, oplossing);
        Pdfbord bord;
        bord.Begin(Sudoku, 9, 10);
        BoardWidth = 8; // of the globals, not of the pictures
        BoardHeight = 11;
        bord.Venster.Shape1->Toon(15, 15, VakMaat, VakMaat); // no part of the picture
        PuzzelNaam = u"Reis"_s.repeated(13);
        PaginaTekst = u"www.voorbeeld.nl"_s;
        bord.Bank.TestKlok.ZetNu(QDateTime(QDate(2025, 12, 31), QTime(23, 59, 58)));
        bord.Druk(tijd, oplossing);
        const PdfLezer pdf(bord.Pad);
        QStringList teksten{u"600,300 12 vet #00005a Puzzelnaam : "_s + PuzzelNaam};
        if (tijd)
            teksten += u"9000,300 12 vet #5a0000 23:59:58 / 31-12-2025"_s;
        QCOMPARE(pdf.Teksten(1), teksten + QStringList{u"600,16200 9 #000000 www.voorbeeld.nl"_s});
        QStringList beelden{u"600,900 6000x8250"_s};
        if (oplossing)
            beelden += u"600,8400 6000x8250"_s;
        QCOMPARE(pdf.Beelden(1), beelden);
        QCOMPARE(pdf.Beeld(0).convertToFormat(QImage::Format_RGB32), bord.Pic());
        if (oplossing)
            QCOMPARE(pdf.Beeld(1).convertToFormat(QImage::Format_RGB32), bord.Groot());
    }

    void withoutANameAndAText()
    {
        Pdfbord bord;
        bord.Begin(Filippine, 9, 9);
        PuzzelNaam = u"Reis"_s;
        bord.Venster.ToonNaam(); // what the menu bar says isn't the name
        PuzzelNaam.clear();
        PaginaTekst.clear();
        bord.Druk();
        QCOMPARE(PdfLezer(bord.Pad).Teksten(1),
                 QStringList{u"600,300 12 vet #00005a Puzzelnaam :"_s}); // the reader leaves the last blank out
    }

    void theRowsArePrinted()
    {
        Pdfbord bord;
        bord.Begin(Kruiswoord, 9, 10);
        bord.Venster.VoegRijenToe({{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"12"_s}});
        bord.Druk();
        const PdfLezer pdf(bord.Pad);
        QCOMPARE(pdf.Beeld(0).convertToFormat(QImage::Format_RGB32), bord.Groot());
        QCOMPARE(pdf.Teksten(2).value(2), u"600,900 8 #323232 12. dier"_s);
        PuzzelType = Zweeds;
        bord.Venster.VoegRijenToe(QList<Rij>(299, Rij{u"A-01 / 1-H"_s, u"dier"_s, u"aap"_s, u"12"_s}));
        bord.Bank.Script.Bestanden = {bord.Pad};
        bord.Druk();
        QCOMPARE(PdfLezer(bord.Pad).Paginas(), 2 + 300 / 54 + 1);
    }

    void itProposesThePuzzlesName()
    {
        Pdfbord bord;
        PuzzelNaam = u" Reis  naar zee "_s;
        bord.Druk();
        QCOMPARE(bord.Bank.Script.Voorstellen.size(), 1);
        QCOMPARE(QFileInfo(bord.Bank.Script.Voorstellen[0]).fileName(), u" Reis  naar zee .pdf"_s);
        PuzzelNaam = u"Winter"_s; // the next one, on the same printer
        bord.Bank.Script.Bestanden = {bord.Pad};
        bord.Druk();
        QCOMPARE(QFileInfo(bord.Bank.Script.Voorstellen[1]).fileName(), u"Winter.pdf"_s);
        QCOMPARE(PdfLezer(bord.Pad).Kenmerk(u"Title"_s), u"Winter"_s);
    }

    void withoutAFileNothingIsPrinted()
    {
        Pdfbord bord;
        bord.Bank.Script.Bestanden = {QString()};
        bord.Druk();
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
        bord.Bank.Script.Bestanden = {bord.Pad}; // the next one is printed whole
        bord.Druk();
        QVERIFY(bord.Bank.Inhoud(u"puzzel.pdf"_s).startsWith("%PDF"));
    }

    void aFolderInThePlaceOfTheFile()
    {
        Pdfbord bord;
        QDir().mkpath(bord.Pad);
        bord.Druk();
        QVERIFY(QFileInfo(bord.Pad).isDir());
    }

    void aFolderThatIsntThere()
    {
        Pdfbord bord;
        bord.Bank.Script.Bestanden = {bord.Bank.Map() + u"/weg/puzzel.pdf"_s};
        bord.Druk();
        QVERIFY(bord.Bank.Bestanden(QString()).isEmpty());
    }

    void aReadOnlyFolder()
    {
        Pdfbord bord;
        bord.Bank.Schrijf(u"puzzel.pdf"_s, "oud");
        {
            const Onbevoegd onbevoegd(bord.Bank, {u""_s});
            bord.Druk();
        }
        QCOMPARE(bord.Bank.Inhoud(u"puzzel.pdf"_s), QByteArray("oud"));
    }

    void aFullDisk()
    {
        Pdfbord bord;
        bord.Bank.Schrijf(u"puzzel.pdf"_s, "oud");
        // No file may grow beyond 100 bytes, as on a disk without room.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit vrij{};
        getrlimit(RLIMIT_FSIZE, &vrij);
        const rlimit vol{100, vrij.rlim_max};
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &vol), 0);
        bord.Druk();
        setrlimit(RLIMIT_FSIZE, &vrij);
        QCOMPARE(bord.Bank.Bestanden(QString()), QStringList{u"puzzel.pdf"_s});
        QCOMPARE(bord.Bank.Inhoud(u"puzzel.pdf"_s), QByteArray("oud"));
    }

    void aFailureInTheHeadIsSilentToo()
    {
        Pdfbord bord;
        for (const auto &mislukt : {+[] { throw Fout(Fout::GeheugenVol); }, +[] { throw std::bad_alloc(); }}) {
            bord.Bank.Script.BijBestand = mislukt;
            bord.Druk();
            QVERIFY(!QFileInfo::exists(bord.Pad));
        }
    }

    void aQueueThatHasGone()
    {
        Printbord bord; // these queues are not the system's: it has none of that name
        Afdrukken form;
        bord.Rijen.Alle = {};
        form.PrintKnop->click();
        QVERIFY(form.Unloaded());
        QVERIFY(!Zandloper());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty() && bord.Bank.Script.Voorstellen.isEmpty());
    }

    void chosenWhenTheQueuesHaveChanged()
    {
        Printbord bord;
        Afdrukken form;
        bord.Rijen.Alle = {u"Ander"_s};
        form.Combo2->setCurrentIndex(0);
        emit form.Combo2->activated(0);
        QCOMPARE(form.windowTitle(), u"Puzzel afdrukken (Kantoor)"_s); // as the list of the dialog has it
    }
};

RASTER_TEST(tst_Afdrukken)
#include "tst_Afdrukken.moc"
