#include "app/ConfigForm.h"
#include "app/Opdrachten.h"
#include "app/Opstarten.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "generators/SudokuMod.h"
#include "generators/SudokuSpel.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "support/Bestuurder.h"
#include "support/Bord.h"
#include "support/Schil.h"
#include "support/Verloop.h"
#include "support/Verwacht.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QMenuBar>
#include <QRegularExpression>

#include <numeric>

using namespace Qt::StringLiterals;

/// The program as it runs.
struct Programma
{
    Bord Scherm;
    Schil Shell;

    Programma()
    {
        LaadMain();
        VerbindOpdrachten();
        Scherm.Venster.show();
    }
    MainForm &Main() { return Scherm.Venster; }
    QByteArray Instellingen() const { return Scherm.Bank.Inhoud(u"Rasteratelier.ini"_s); }
};

class tst_Opdrachten : public QObject
{
    Q_OBJECT
private slots:
    void aDocumentIsFoundIgnoringCase()
    {
        Programma programma;
        QVERIFY(QDir(programma.Scherm.Bank.Map()).mkdir(u"DATA"_s));
        programma.Scherm.Bank.Schrijf(u"DATA/Help.PDF"_s, "x");
        programma.Main().HelpHelp->trigger();
        QCOMPARE(programma.Shell.Geopend.size(), 1);
        QCOMPARE(programma.Shell.Geopend[0].toLocalFile(), programma.Scherm.Bank.Map() + u"/DATA/Help.PDF"_s);
    }

    void menuItemsWithoutACommandAreDisabled()
    {
        Programma programma;
        QStringList uit;
        for (const QAction *menu : programma.Main().findChild<QMenuBar *>()->actions()) {
            if (!menu->isEnabled())
                uit += menu->objectName();
            if (menu->menu())
                for (const QAction *item : menu->menu()->actions())
                    if (!item->isSeparator() && !item->isEnabled())
                        uit += item->objectName();
        }
        QCOMPARE(uit.join(u' '), // the kind of the puzzle enables the first two
                 u"EditDeleteRaster EditDeleteLetters Spatie Bestandsnaam"_s);
    }

    void menuItemsOpenTheirWindow_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("venster");
        Geval("FileNew", "FileNew", "NieuwForm");
        Geval("FileOpen", "FileOpen", "OpenFile");
        Geval("FileSave", "FileSave", "SaveForm");
        Geval("FilePrint", "FilePrint", "Afdrukken");
        Geval("BiebInternZoeken", "BiebInternZoeken", "ZoekForm");
        Geval("BiebWoordzoeker", "BiebWoordzoeker", "FormMain");
        Geval("BiebOntbrekendeLetters", "BiebOntbrekendeLetters", "MissingForm");
        Geval("BiebSpreekwoorden", "BiebSpreekwoorden", "SpreekwoordForm");
        Geval("BiebChemisch", "BiebChemisch", "ChemischForm");
        Geval("ToolsAdd", "ToolsAdd", "AddForm");
        Geval("ToolsAutoWoordzoeker", "ToolsAutoWoordzoeker", "AutoForm");
        Geval("ShowOrgineel", "ShowOrgineel", "ShowPuzzel");
        Geval("ToolsConfig", "ToolsConfig", "ConfigForm");
        Geval("ToolsKladblok", "ToolsKladblok", "KladblokForm");
    }
    void menuItemsOpenTheirWindow()
    {
        QFETCH(QString, item);
        QFETCH(QString, venster);
        Programma programma;
        Bestuurder bestuurder(venster, [](Form &form) { QVERIFY(form.isModal()); });
        Vind<QAction>(programma.Main(), item)->trigger();
        QVERIFY(bestuurder.Gezien());
    }

    void aBoardTooWideForTheViewerIsToldOnce()
    {
        Programma programma;
        programma.Scherm.Begin(Zweeds, 40, 40);
        const Stand ervoor = programma.Scherm.Nu();
        Bestuurder bestuurder(u"ShowPuzzel"_s, [](Form &) {});
        programma.Main().ShowOrgineel->trigger();
        QVERIFY(!bestuurder.Gezien());
        const QList<Bericht> &gezien = programma.Scherm.Bank.Script.Gezien;
        QCOMPARE(gezien.size(), 1);
        QCOMPARE(gezien[0].Plaatje, Icoon::Kritiek);
        QCOMPARE(gezien[0].Tekst, u"Fout 6 bij 'Orgineel puzzelveld': Overloop: het getal is te groot of te klein (het "
                                  "puzzelveld is te breed om te tonen)."_s);
        QCOMPARE(programma.Scherm.Veranderd(ervoor), QString());
    }

    // A settings file is not range-checked when it is read: the program starts, and the dialog tells what is wrong.
    void settingsOutsideTheirBarsCanBeMended()
    {
        Bord bord;
        bord.Bank.Schrijf(u"Rasteratelier.ini"_s, "x\r\ny\r\n230,-5,300\r\n9\r\n\"mijn pagina\"\r\n");
        LaadMain();
        VerbindOpdrachten();
        Bestuurder bestuurder(u"ConfigForm"_s, [](Form &form) { static_cast<ConfigForm &>(form).OkKnop_Click(); });
        bord.Venster.ToolsConfig->trigger();
        QVERIFY(bestuurder.Gezien());
        QVERIFY(bord.Bank.Script.Gezien.isEmpty());
        QCOMPARE((std::array{OrgineelRood, OrgineelGroen, OrgineelBlauw}), (std::array<qint16, 3>{230, 0, 255}));
        QCOMPARE(KleurVakjes, quint8(1));
        QCOMPARE(PaginaTekst, u"mijn pagina"_s);
    }

    // The notice lies over the board and the pointer is the hourglass as long as the database is read.
    void theSearchOfTheDatabaseShowsANotice()
    {
        Programma programma;
        MainForm &main = programma.Main();
        QVERIFY(QDir(programma.Scherm.Bank.Map()).mkdir(u"Data"_s));
        programma.Scherm.Bank.Schrijf(u"Data/nederlands.lib"_s, "aal");
        const Stand ervoor = programma.Scherm.Nu();
        QImage notitie;
        Verloop verloop([&] {
            notitie = Getoond(main).copy(QRect(main.Label2->mapTo(&main, QPoint()), main.Label2->size()));
            return programma.Scherm.Veranderd(ervoor);
        });
        for (int keer = 0; keer < 2; ++keer) { // each time it is read anew
            verloop.Stappen.clear();
            bool geladen = false;
            Bestuurder bestuurder(u"ZoekForm"_s, [&](Form &) { geladen = main.Label2->isHidden() && !Zandloper(); });
            main.BiebInternZoeken->trigger();
            QCOMPARE(verloop.Stappen, QStringList{u"0 s zonder invoer | zandloper Label2"_s});
            QCOMPARE(notitie, Getoond(*main.Label2));
            QCOMPARE(notitie.pixel(0, 0), qRgb(230, 230, 0));
            QVERIFY(geladen);
            QCOMPARE(programma.Scherm.Veranderd(ervoor), QString());
        }
    }

    void documentsAndAddresses_data()
    {
        QTest::addColumn<QString>("item");
        QTest::addColumn<QString>("doel");
        Geval("dictionary", "BiebOnlineWoordenboek", "https://[a-z.]+/puzzelwoordenboek/");
        Geval("software", "HelpMeerSoftware", "https://[a-z.]+/software\\.htm");
        Geval("help", "HelpHelp", "file://.*/app/Data/help\\.pdf");
        Geval("word lists", "HelpWoordlijstAanmaken", "file://.*/app/Data/Woordlijst Importeren\\.pdf");
        Geval("mail", "HelpMail",
              "mailto:[a-z]+@[a-z.]+\\?subject=Rasteratelier V\\d+\\.\\d+\\.\\d+ &body=Hallo Tessel,");
    }
    void documentsAndAddresses()
    {
        QFETCH(QString, item);
        QFETCH(QString, doel);
        Programma programma;
        GebruikersNaam.clear();
        qputenv("USER", "tessel");
        Vind<QAction>(programma.Main(), item)->trigger();
        QCOMPARE(programma.Shell.Geopend.size(), 1);
        QVERIFY(programma.Scherm.Bank.Script.Gezien.isEmpty());
        QCOMPARE(programma.Scherm.Bank.TestKlok.Gewacht(), 0.0); // a menu item presses no button
        const QString geopend = programma.Shell.Geopend[0].toString(QUrl::FullyDecoded);
        QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(doel)).match(geopend).hasMatch(),
                 qPrintable(geopend));
        if (item == "HelpMail"_L1)
            QCOMPARE(GebruikersNaam, u"tessel"_s);
    }

    void eachMailAsksForTheUserAnew()
    {
        Programma programma;
        for (const char *naam : {"tessel", "jan"}) {
            qputenv("USER", naam);
            programma.Main().HelpMail->trigger();
            QCOMPARE(GebruikersNaam, QLatin1String(naam));
        }
    }

    void aDocumentThatNothingOpensIsPassedOver()
    {
        Programma programma;
        for (const char *schema : {"file", "https"})
            QDesktopServices::unsetUrlHandler(QLatin1String(schema)); // this platform itself opens nothing
        for (QAction *item : {programma.Main().HelpHelp, programma.Main().HelpWoordlijstAanmaken,
                              programma.Main().HelpMeerSoftware, programma.Main().BiebOnlineWoordenboek})
            item->trigger();
        programma.Main().HelpKnop->click();
        QVERIFY(programma.Shell.Geopend.isEmpty() && programma.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void aSystemWithoutMailIsTold()
    {
        Programma programma;
        QDesktopServices::unsetUrlHandler(u"mailto"_s); // this platform itself opens nothing
        qputenv("USER", "tessel");
        GebruikersNaam.clear();
        programma.Main().HelpMail->trigger();
        QCOMPARE(GebruikersNaam, u"tessel"_s);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien[0].Tekst, u"Cannot send Mail from this System."_s);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien[0].Titel, u"Mail disabled/not installed"_s);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
    }

    void theWebPageIsThatOfThePuzzle()
    {
        Programma programma;
        programma.Main().Export1->trigger(); // of a puzzle without a name
        QCOMPARE(programma.Shell.Geopend, QList<QUrl>{QUrl::fromLocalFile(AppPath + u"/Html/.html"_s)});
        QVERIFY(QDir(AppPath + u"/Html"_s).removeRecursively());
        programma.Shell.Geopend.clear();
        PuzzelNaam = u"Reis"_s;
        programma.Main().Export1->trigger();
        QCOMPARE(programma.Shell.Geopend, QList<QUrl>{QUrl::fromLocalFile(AppPath + u"/Html/Reis.html"_s)});
        QVERIFY(programma.Scherm.Bank.Inhoud(u"Html/Reis.html"_s).contains("Puzzelnaam : Reis<"));
        QCOMPARE(programma.Scherm.Bank.Bestanden(u"Html/Images"_s), QStringList{u"Reis.bmp"_s});
        QCOMPARE(programma.Scherm.Bank.TestKlok.Gewacht(), 0.4); // both
        QVERIFY(programma.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void theHelpButtonOpensTheManual()
    {
        Programma programma;
        KlikMetDruk(*programma.Main().HelpKnop, [&] { QVERIFY(programma.Shell.Geopend.isEmpty()); });
        QCOMPARE(programma.Shell.Geopend, QList<QUrl>{QUrl::fromLocalFile(AppPath + u"/Data/help.pdf"_s)});
    }

    void aSecondClickDuringThePressEffectRunsTheCommandTwice()
    {
        Programma programma;
        ImageButton *knop = programma.Main().HelpKnop;
        const QPoint plaats = knop->pos();
        QMetaObject::invokeMethod(knop, &ImageButton::click, Qt::QueuedConnection);
        knop->click();
        QCOMPARE(programma.Shell.Geopend.size(), 2);
        QCOMPARE(knop->pos(), plaats);
    }

    void theClockShowsNoTimeUntilItsFirstTick()
    {
        Programma programma;
        programma.Main().Timer1->setInterval(3600000);
        QCoreApplication::processEvents();
        QCOMPARE(programma.Main().KlokLabel->Caption(), u"00:00"_s);
    }

    void theClockGoesOnWhileADialogIsOpen()
    {
        Programma programma;
        MainForm &main = programma.Main();
        main.Timer1->setInterval(0);
        QString getikt;
        Bestuurder bestuurder(u"AboutForm"_s, [&](Form &) {
            main.KlokLabel->SetCaption(u"stil"_s);
            QCoreApplication::processEvents();
            getikt = main.KlokLabel->Caption();
        });
        main.AboutKnop->click();
        QVERIFY2(getikt.endsWith(u" / 9:05:03"_s), qPrintable(getikt));
    }

    void theAboutButtonOpensItsWindow()
    {
        Programma programma;
        Bestuurder bestuurder(u"AboutForm"_s, [](Form &form) { QVERIFY(form.isModal()); });
        KlikMetDruk(*programma.Main().AboutKnop, [&] { QVERIFY(!bestuurder.Gezien()); });
        QVERIFY(bestuurder.Gezien());
    }

    void specialCharacters()
    {
        Programma programma;
        programma.Main().HelpSpecialeTekens->trigger();
        QCOMPARE(programma.Scherm.Bank.TestKlok.Gewacht(), 0.0);
        QVERIFY(programma.Scherm.Bank.Script.Gezien[0].Tekst.startsWith(u"Bijzondere combinaties"_s));
    }

    void theVisibleBoardGoesToTheClipboard()
    {
        Programma programma;
        MainForm &main = programma.Main();
        programma.Scherm.Klik(Qt::RightButton, 3, 4);
        programma.Scherm.Klik(Qt::LeftButton, 1, 1);
        main.SoortPlaatsing->close();
        main.VoegRijenToe({{u"A-01 / 1-H"_s, {}, u"aap"_s, u"-"_s}});
        main.ListView1_ItemClick();
        QVERIFY(main.Shape1->isVisible() && main.Line1->isVisible()); // neither is drawn into the board
        QVERIFY(Getoond(*main.Pic) != programma.Scherm.Pic());
        const Stand ervoor = programma.Scherm.Nu();
        QGuiApplication::clipboard()->clear();
        Verloop verloop([] { return QGuiApplication::clipboard()->image().isNull() ? u"leeg"_s : u"vol"_s; });
        main.ToolsKlemboard->trigger();
        const QImage klembord = QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(klembord, programma.Scherm.Pic()); // at screen size, with its grid lines
        QCOMPARE(klembord.pixel(30, 15), qRgb(150, 150, 150));
        QCOMPARE(programma.Scherm.Veranderd(ervoor), QString());
        QCOMPARE(verloop.Stappen, QStringList{u"Rasteratelier: Puzzel is gecopyeerd naar Clipboard en...\n"
                                              "beschikbaar in diverse tekenprogramma's. | vol"_s});
        QCOMPARE(verloop.Gezien[0].Soort, Knoppen::Ok);
        QCOMPARE(verloop.Gezien[0].Plaatje, Icoon::Geen);
        for (const quint8 soort : {Woordzoeker, Kruiswoord, Filippine, Sudoku}) { // a smaller board takes its place
            programma.Scherm.Begin(soort, 9, 9);
            main.ToolsKlemboard->trigger();
            QCOMPARE(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
                     Raster(9, 9, soort == Sudoku ? Banden : QList<int>()));
        }
    }

    void aFilippineCanBeCleared()
    {
        Programma programma;
        programma.Scherm.Begin(Filippine, 16, 19);
        programma.Main().ToonPuzzel(u"Raster Atelier"_s);
        PictureBox &pic = *programma.Main().Pic;
        pic.PaintPicture(programma.Main().Vak1->Image(), QRectF(450, 450, 465, 465), QRectF(0, 0, 465, 465));
        pic.SetPixel(45, 45, qRgb(1, 2, 3));
        programma.Main().PicGroot->BoxFull(0, 0, 1800, 1800, qRgb(150, 240, 174)); // which is left alone
        programma.Scherm.InBewerking();
        const Stand ervoor = programma.Scherm.Nu();
        programma.Main().EditDeleteRaster->trigger();
        QCOMPARE(pic.GetPixel(90, 15), qRgb(255, 255, 255));
        QCOMPARE(pic.GetPixel(45, 45), qRgb(1, 2, 3));
        programma.Main().EditDeleteLetters->trigger();
        QVERIFY(pic.GetPixel(45, 45) != qRgb(1, 2, 3));
        QCOMPARE(programma.Scherm.Veranderd(ervoor), u"Pic"_s);
    }

    void thePopUpOpensItsEditor_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("venster");
        Geval("1", 1, "VakForm");
        Geval("2", 2, "TekstForm");
        Geval("3", 3, "LetterForm");
        Geval("7", 7, "NummerForm");
    }
    void thePopUpOpensItsEditor()
    {
        QFETCH(int, index);
        QFETCH(QString, venster);
        Programma programma;
        if (index == 7)
            programma.Scherm.Begin(Kruiswoord, 16, 19);
        programma.Scherm.InBewerking();
        for (const int kolom : {3, 5}) { // the second one is a new window
            programma.Scherm.Klik(Qt::LeftButton, kolom, 4);
            programma.Main().SoortPlaatsing->close();
            const Stand ervoor = programma.Scherm.Nu();
            bool kader = false;
            Bestuurder bestuurder(venster, [&](Form &form) {
                kader = programma.Main().Shape1->isVisible();
                QVERIFY(form.windowTitle().endsWith(kolom == 3 ? u"D-05 / 68"_s : u"F-05 / 70"_s));
            });
            programma.Main().SoortVakTekst[static_cast<std::size_t>(index)]->trigger();
            QVERIFY(bestuurder.Gezien());
            QVERIFY(kader); // the frame stays while the editor is open
            QVERIFY(programma.Main().Shape1->isHidden());
            QCOMPARE(programma.Scherm.Veranderd(ervoor), u"Shape1"_s); // the line of a word stays
        }
    }

    void aClickOnAFilippineOpensItsEditor()
    {
        Programma programma;
        programma.Scherm.Begin(Filippine, 16, 19);
        bool kader = false;
        Bestuurder bestuurder(u"FilippineForm"_s, [&](Form &form) {
            kader = programma.Main().Shape1->isVisible();
            QVERIFY(form.windowTitle().endsWith(u" 05"_s));
        });
        programma.Scherm.Klik(Qt::LeftButton, 3, 4);
        QVERIFY(bestuurder.Gezien());
        QVERIFY(kader);
        QVERIFY(programma.Main().Shape1->isHidden());
    }

    void anyOtherItemOnlyHidesTheFrame_data()
    {
        QTest::addColumn<int>("index");
        for (const int index : {4, 6, 8, 9}) // "Annuleren" is 9
            Geval(QByteArray::number(index), index);
    }
    void anyOtherItemOnlyHidesTheFrame()
    {
        QFETCH(int, index);
        Programma programma;
        programma.Scherm.InBewerking();
        programma.Scherm.Klik(Qt::LeftButton, 3, 4);
        programma.Main().SoortPlaatsing->close();
        const Stand ervoor = programma.Scherm.Nu();
        emit programma.Main().VakMenuGekozen(index);
        QCOMPARE(programma.Scherm.Veranderd(ervoor), u"Shape1"_s);
        QVERIFY(programma.Main().Shape1->isHidden());
        QVERIFY(programma.Scherm.Bank.Script.Gezien.isEmpty());
    }

    void cancellingThePopUpOnlyHidesTheFrame()
    {
        Programma programma;
        programma.Scherm.Klik(Qt::LeftButton, 3, 4);
        programma.Main().SoortPlaatsing->close();
        const Stand ervoor = programma.Scherm.Nu();
        programma.Main().SoortVakTekst[9]->trigger();
        QCOMPARE(programma.Scherm.Veranderd(ervoor), u"Shape1"_s);
    }

    void aSudokuIsShuffledAndPlayed()
    {
        Programma programma;
        MainForm &main = programma.Main();
        programma.Scherm.Begin(Sudoku, 9, 9);
        main.ToonPuzzel(u"Raster Atelier"_s);
        SudokuOplossing = {};
        main.StartKnop->click();
        QVERIFY(std::accumulate(SudokuOplossing.begin(), SudokuOplossing.end(), 0) == 9 * 45);
        QCOMPARE(programma.Scherm.Bank.TestKlok.Gewacht(), 0.2);
        QList<QImage> gezien;
        for (const int index : {1, 2, 3, 4, 5, 6, 7, 8, 9, 11}) {
            programma.Scherm.Klik(Qt::LeftButton, 4, 7);
            QVERIFY(main.SudokuMenu->isVisible());
            main.SudokuMenu->close();
            QVERIFY(!main.Shape1->isHidden()); // without a choice it stays
            main.SuMe[static_cast<std::size_t>(index)]->trigger();
            QVERIFY(main.Shape1->isHidden());
            const QImage pic = programma.Scherm.Pic();
            QCOMPARE(gezien.contains(pic), index == 11); // the hint is one of the digits
            gezien += pic;
            SuMe_Click(10);
            SuMe_Click(index);
            QCOMPARE(programma.Scherm.Pic(), pic);
        }
        QVERIFY(main.SuMe[10]->isSeparator());
        const QImage pic = programma.Scherm.Pic();
        programma.Scherm.Klik(Qt::RightButton, 4, 7);
        QCOMPARE(programma.Scherm.Pic(), pic);
        QVERIFY(programma.Scherm.Bank.Script.Gezien.isEmpty() && !PuzzelGewijzigd);
    }

    void theSolutionAndTheLevelOutliveTheSudoku()
    {
        Programma programma;
        MainForm &main = programma.Main();
        const auto nieuw = [&](int optie) {
            Bestuurder bestuurder(u"NieuwForm"_s, [&](Form &form) {
                Vind<QRadioButton>(form, u"Option%1"_s.arg(optie))->click();
                Vind<LineBox>(form, u"Text1"_s)->setText(u"puzzel"_s);
                Vind<ImageButton>(form, u"OkKnop"_s)->click();
            });
            main.FileNew->trigger();
            QCOMPARE(int{PuzzelType}, optie);
        };
        nieuw(Sudoku);
        main.Option[2]->click();
        main.StartKnop->click();
        const auto oplossing = SudokuOplossing;
        nieuw(Filippine);
        Bestuurder uitvoer(u"AutoForm"_s, [](Form &form) { Vind<ImageButton>(form, u"ExportKnop"_s)->click(); });
        main.ToolsAutoWoordzoeker->trigger();
        QCOMPARE(PuzzelType, Woordzoeker);
        nieuw(Sudoku);
        QVERIFY(SudokuOplossing == oplossing);
        QVERIFY(main.Option[2]->isChecked());
    }

    void aSudokuOfAnotherSizeKeepsTheWindow()
    {
        Programma programma;
        MainForm &main = programma.Main();
        programma.Scherm.Begin(Sudoku, 16, 19); // as a damaged file may tell
        programma.Scherm.Klik(Qt::LeftButton, 1, 5);
        main.SudokuMenu->close();
        const Stand ervoor = programma.Scherm.Nu();
        main.SuMe[3]->trigger();
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
        const Bericht &bericht = programma.Scherm.Bank.Script.Gezien[0];
        QVERIFY2(bericht.Tekst.startsWith(u"Fout 9 bij "_s), qPrintable(bericht.Tekst));
        QVERIFY2(bericht.Tekst.endsWith(u": Index valt buiten het bereik."_s), qPrintable(bericht.Tekst));
        QCOMPARE(bericht.Plaatje, Icoon::Kritiek);
        QCOMPARE(programma.Scherm.Veranderd(ervoor), QString());
        programma.Scherm.Wijs(0, 5);
        main.SuMe[3]->trigger();
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
        QVERIFY(programma.Scherm.Veranderd(ervoor).contains(u"Pic "_s));
    }

    void theFillAsksFirst()
    {
        Programma programma;
        programma.Scherm.Begin(Woordzoeker, 9, 9);
        for (const Antwoord antwoord : {Antwoord::Nee, Antwoord::Ja}) {
            programma.Scherm.Klik(Qt::LeftButton, 0, 0);
            programma.Main().SoortPlaatsing->close();
            const Stand ervoor = programma.Scherm.Nu();
            Verloop verloop([&] { return programma.Scherm.Veranderd(ervoor); });
            verloop.Antwoorden = {antwoord};
            programma.Main().SoortVakTekst[5]->trigger();
            QCOMPARE(verloop.Stappen[0],
                     u"Fill: Wil je alle lege vakjes opvullen met willekeurige letters? (ja of nee) |"_s);
            QCOMPARE(verloop.Gezien.size(), 1);
            QCOMPARE(programma.Scherm.Veranderd(ervoor), antwoord == Antwoord::Ja ? u"Pic Shape1"_s : u"Shape1"_s);
            QVERIFY(programma.Main().Shape1->isHidden());
        }
    }

    void theFillEndsWithItsPuzzle_data()
    {
        QTest::addColumn<QString>("item");
        Geval("new", "FileNew");
        Geval("opened", "FileOpen");
        Geval("exported", "ToolsAutoWoordzoeker");
    }
    void theFillEndsWithItsPuzzle()
    {
        QFETCH(QString, item);
        Programma programma;
        programma.Scherm.Bank.Schrijf(u"Puzzels/ander.lst"_s, "x\r\n2\r\n12\r\n15\r\n-\r\n");
        programma.Scherm.Begin(Woordzoeker, 9, 9);
        int wachten = 0;
        QImage ander;
        KijkKlok klok([&] {
            if (++wachten != 30)
                return;
            Bestuurder begin(u"NieuwForm"_s, [](Form &form) {
                Vind<LineBox>(form, u"Text1"_s)->setText(u"ander"_s);
                Vind<ImageButton>(form, u"OkKnop"_s)->click();
            });
            Bestuurder open(u"OpenFile"_s, [](Form &form) {
                Vind<ListBox>(form, u"List1"_s)->SetListIndex(0);
                Vind<ImageButton>(form, u"OkKnop"_s)->click();
            });
            Bestuurder maak(u"AutoForm"_s, [](Form &form) { Vind<ImageButton>(form, u"ExportKnop"_s)->click(); });
            Vind<QAction>(programma.Main(), item)->trigger();
            ander = programma.Scherm.Pic();
        });
        programma.Scherm.Bank.Script.Antwoorden = {Antwoord::Ja};
        emit programma.Main().VakMenuGekozen(5);
        QVERIFY(programma.Main().windowTitle() != u"Raster Atelier (16x19)"_s);
        QVERIFY(programma.Scherm.Bank.Script.Gezien.size() == 1 && wachten > 30);
        QCOMPARE(Verschil(programma.Scherm.Pic(), ander), QString());
        QVERIFY(!Zandloper());
    }

    void leavingInTheMidstOfTheFill_data()
    {
        QTest::addColumn<Antwoord>("antwoord");
        QTest::addColumn<int>("gevuld");
        Geval("no", Antwoord::Nee, 81);
        Geval("yes", Antwoord::Ja, 30);
    }
    void leavingInTheMidstOfTheFill()
    {
        QFETCH(Antwoord, antwoord);
        QFETCH(int, gevuld);
        Programma programma;
        programma.Scherm.Begin(Woordzoeker, 9, 9);
        PuzzelGewijzigd = true;
        int wachten = 0;
        KijkKlok klok([&] {
            if (++wachten == 30)
                programma.Main().close();
        });
        programma.Scherm.Bank.Script.Antwoorden = {Antwoord::Ja, antwoord};
        emit programma.Main().VakMenuGekozen(5);
        QCOMPARE(programma.Main().isVisible(), antwoord == Antwoord::Nee);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 2);
        QCOMPARE(wachten, gevuld);
        QVERIFY(!Zandloper());
    }

    // A second press is a click of its own, which asks by itself.
    void exitPressedTwiceAsksTwiceUnlessItIsYes_data()
    {
        QTest::addColumn<QList<Antwoord>>("antwoorden");
        Geval("no", QList<Antwoord>{Antwoord::Nee, Antwoord::Nee});
        Geval("yes", QList<Antwoord>{Antwoord::Ja});
        Geval("no and yes", QList<Antwoord>{Antwoord::Nee, Antwoord::Ja});
    }
    void exitPressedTwiceAsksTwiceUnlessItIsYes()
    {
        QFETCH(QList<Antwoord>, antwoorden);
        Programma programma;
        MainForm &main = programma.Main();
        const QPoint plaats = main.ExitKnop->pos();
        PuzzelGewijzigd = true;
        programma.Scherm.Bank.Script.Antwoorden = antwoorden;
        QMetaObject::invokeMethod(main.ExitKnop, &ImageButton::click, Qt::QueuedConnection);
        main.ExitKnop->click();
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), antwoorden.size());
        QCOMPARE(main.isVisible(), antwoorden.last() == Antwoord::Nee);
        QCOMPARE(main.ExitKnop->pos(), plaats);
    }

    void theExitButtonIsPressedAndRestsBeforeTheEnd()
    {
        Programma programma;
        MainForm &main = programma.Main();
        QList<QPoint> plaatsen{main.ExitKnop->pos()};
        KijkKlok klok([&] {
            QVERIFY(main.isVisible() && main.ExitKnop->isEnabled());
            plaatsen += main.ExitKnop->pos();
            if (plaatsen.size() == 3) // what is so after the waits counts
                PuzzelGewijzigd = true;
        });
        programma.Scherm.Bank.Script.Antwoorden = {Antwoord::Ja};
        main.ExitKnop->click();
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
        QVERIFY(!main.isVisible());
        QCOMPARE(klok.Wachttijden, (QList<double>{0.2, 0.2}));
        QCOMPARE(plaatsen, (QList<QPoint>{plaatsen[0], plaatsen[0] + QPoint(2, 2), plaatsen[0]}));
    }

    void theThreeWaysToEndSaveTheSettings_data()
    {
        QTest::addColumn<QString>("manier");
        QTest::addColumn<double>("gewacht");
        Geval("menu", "menu", 0.0);
        Geval("button", "knop", 0.4);
        Geval("close box", "kruis", 0.0);
    }
    void theThreeWaysToEndSaveTheSettings()
    {
        QFETCH(QString, manier);
        QFETCH(double, gewacht);
        for (const Antwoord antwoord : {Antwoord::Nee, Antwoord::Ja}) {
            Programma programma;
            MainForm &main = programma.Main();
            const QByteArray ervoor = programma.Instellingen();
            programma.Scherm.InBewerking();
            KleurVakjes = 2;
            const Stand stand = programma.Scherm.Nu();
            programma.Scherm.Bank.Script.Antwoorden = {antwoord};
            if (manier == "menu"_L1)
                main.FileExit->trigger();
            else if (manier == "knop"_L1)
                main.ExitKnop->click();
            else
                main.close();
            QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
            QCOMPARE(main.isVisible(), antwoord == Antwoord::Nee);
            QCOMPARE(programma.Scherm.Veranderd(stand), QString());
            const QByteArray bewaard = QByteArray(ervoor).replace("\r\n1\r\n", "\r\n2\r\n");
            QVERIFY(bewaard != ervoor);
            QCOMPARE(programma.Instellingen(), antwoord == Antwoord::Nee ? ervoor : bewaard);
            QCOMPARE(programma.Scherm.Bank.TestKlok.Gewacht(), gewacht);
        }
    }

    void aNewPuzzleKeepsTheQuestionAtTheEnd_data()
    {
        QTest::addColumn<bool>("gewijzigd");
        Geval("after a saved one", false);
        Geval("after unsaved changes", true);
    }
    void aNewPuzzleKeepsTheQuestionAtTheEnd()
    {
        QFETCH(bool, gewijzigd);
        Programma programma;
        PuzzelGewijzigd = gewijzigd;
        Bestuurder bestuurder(u"NieuwForm"_s, [](Form &form) {
            Vind<LineBox>(form, u"Text1"_s)->setText(u"nieuw"_s);
            Vind<ImageButton>(form, u"OkKnop"_s)->click();
        });
        programma.Main().FileNew->trigger();
        QCOMPARE(PuzzelNaam, u"nieuw"_s);
        programma.Scherm.Bank.Script.Antwoorden = {Antwoord::Nee};
        programma.Main().close();
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), gewijzigd ? 1 : 0);
        QCOMPARE(programma.Main().isVisible(), gewijzigd);
    }

    void aFailureInAnEditorKeepsWindowAndPuzzle()
    {
        Programma programma;
        programma.Scherm.Klik(Qt::LeftButton, 3, 4);
        programma.Main().SoortPlaatsing->close();
        const QImage pic = programma.Scherm.Pic();
        bool bleef = false;
        Bestuurder bestuurder(u"TekstForm"_s, [&](Form &form) {
            auto &tekst = dynamic_cast<TekstForm &>(form);
            tekst.Text1->setText(u"lang"_s);
            tekst.Text2->setText(QString(300, u'a'));
            tekst.OkKnop->click();
            bleef = form.isVisible();
        });
        programma.Main().SoortVakTekst[2]->trigger();
        QVERIFY(bleef);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien.size(), 1);
        QCOMPARE(programma.Scherm.Bank.Script.Gezien[0].Plaatje, Icoon::Kritiek);
        QVERIFY(programma.Scherm.Bank.Script.Gezien[0].Tekst.startsWith(u"Fout 6 bij 'Ok': Overloop"_s));
        QVERIFY(programma.Scherm.Pic() == pic);
        QVERIFY(programma.Main().isVisible());
    }
};

RASTER_TEST(tst_Opdrachten)
#include "tst_Opdrachten.moc"
