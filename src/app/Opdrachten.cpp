#include "app/Opdrachten.h"

#include "Adressen.h"

#include "app/AboutForm.h"
#include "app/Afsluiten.h"
#include "app/ConfigForm.h"
#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/NieuwForm.h"
#include "board/Opvullen.h"
#include "board/Soorten.h"
#include "documents/HtmlExport.h"
#include "documents/OpenFile.h"
#include "documents/SaveForm.h"
#include "documents/ShowPuzzel.h"
#include "editors/Filippine.h"
#include "editors/FilippineForm.h"
#include "editors/LetterForm.h"
#include "editors/NummerForm.h"
#include "editors/TekstForm.h"
#include "editors/VakForm.h"
#include "generators/AutoForm.h"
#include "generators/SudokuSpel.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Screen.h"
#include "print/Afdrukken.h"
#include "wordlib/AddForm.h"
#include "wordlib/ChemischForm.h"
#include "wordlib/FormMain.h"
#include "wordlib/KladblokForm.h"
#include "wordlib/MissingForm.h"
#include "wordlib/SpreekwoordForm.h"
#include "wordlib/ZoekForm.h"

#include <QClipboard>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

static QString DataBestand(const QString &naam)
{
    return Files::Pad(AppPath, {u"Data"_s, naam});
}

static void OpenHelp()
{
    OpenDocument(DataBestand(u"help.pdf"_s));
}

static void Koppel(QAction *item, void (*opdracht)())
{
    item->setEnabled(true);
    Main().bij(item, &QAction::triggered, opdracht);
}

void VerbindOpdrachten()
{
    MainForm &main = Main();
    Koppel(main.FileNew, Toon<NieuwForm>);
    Koppel(main.FileOpen, Toon<OpenFile>);
    Koppel(main.FileSave, Toon<SaveForm>);
    Koppel(main.FilePrint, Toon<Afdrukken>);
    Koppel(main.FileExit, [] { Main().close(); });
    Koppel(main.ShowOrgineel, Toon<ShowPuzzel>);
    Koppel(main.BiebOnlineWoordenboek, [] { OpenDocument(Adressen::Woordenboek); });
    Koppel(main.BiebInternZoeken, BiebInternZoeken_Click);
    Koppel(main.BiebWoordzoeker, Toon<FormMain>);
    Koppel(main.BiebOntbrekendeLetters, Toon<MissingForm>);
    Koppel(main.BiebSpreekwoorden, Toon<SpreekwoordForm>);
    Koppel(main.BiebChemisch, Toon<ChemischForm>);
    Koppel(main.ToolsAdd, Toon<AddForm>);
    Koppel(main.ToolsConfig, Toon<ConfigForm>);
    Koppel(main.ToolsAutoWoordzoeker, Toon<AutoForm>);
    Koppel(main.ToolsKlemboard, ToolsKlemboard_Click);
    Koppel(main.ToolsKladblok, Toon<KladblokForm>);
    Koppel(main.Export1, [] { ExporteerHtml(PuzzelNaam); });
    Koppel(main.HelpHelp, OpenHelp);
    Koppel(main.HelpSpecialeTekens, ToonSpecialeTekens);
    Koppel(main.HelpMeerSoftware, [] { OpenDocument(Adressen::Software); });
    Koppel(main.HelpMail, HelpMail_Click);
    Koppel(main.HelpWoordlijstAanmaken, [] { OpenDocument(DataBestand(u"Woordlijst Importeren.pdf"_s)); });
    // These two are enabled by the kind of the puzzle.
    main.bij(main.EditDeleteRaster, &QAction::triggered, [] { VerwijderRaster(*Main().Pic); });
    main.bij(main.EditDeleteLetters, &QAction::triggered, [] { VerwijderLetters(*Main().Pic); });
    main.bij(&main, &MainForm::VakMenuGekozen, SoortVakTekst_Click);
    main.bij(&main, &MainForm::EditorGekozen, Toon<FilippineForm>);
    main.bij(&main, &MainForm::SudokuMenuGekozen, SuMe_Click);
    main.bij(main.StartKnop, &ImageButton::clicked, [] { StartKnop_Click(); });
    main.bij(main.HelpKnop, &ImageButton::clicked, [] { HelpKnop_Click(); });
    main.bij(main.AboutKnop, &ImageButton::clicked, [] { AboutKnop_Click(); });
    main.bij(main.ExitKnop, &ImageButton::clicked, [] { ExitKnop_Click(); });
    main.MagSluiten = SluitMain;
}

void SoortVakTekst_Click(int index)
{
    switch (index) {
    case VakMenu::Infovakje:
        Toon<VakForm>();
        break;
    case VakMenu::Oplossing:
        Toon<TekstForm>();
        break;
    case VakMenu::Letter:
        Toon<LetterForm>();
        break;
    case VakMenu::Vaknummer:
        Toon<NummerForm>();
        break;
    case VakMenu::Opvullen:
        if (JaNee(u"Wil je alle lege vakjes opvullen met willekeurige letters?"_s, u"Fill"_s))
            VulLegeVakjes();
        break;
    }
    Main().Shape1->hide();
}

// The load takes a moment: the window that loads takes the notice and the hourglass away again.
void BiebInternZoeken_Click()
{
    Main().Label2->show();
    Screen::MousePointer(Screen::Hourglass);
    Toon<ZoekForm>();
}

void ToolsKlemboard_Click()
{
    QGuiApplication::clipboard()->setImage(Main().Pic->Image());
    MsgBox(u"Puzzel is gecopyeerd naar Clipboard en...\nbeschikbaar in diverse tekenprogramma's."_s);
}

QString MailDoel()
{
    return u"mailto:"_s + Adressen::Post + u"?subject=Rasteratelier V"_s + Versie + u" &body=Hallo Tessel,"_s;
}

// What stands in for the shell here can tell that a mail was not sent: then it is said.
void HelpMail_Click()
{
    GebruikersNaam = HaalGebruiker();
    if (VoerUit(MailDoel()) < 0)
        MsgBox(u"Cannot send Mail from this System."_s, Knoppen::Ok, Icoon::Kritiek, u"Mail disabled/not installed"_s);
}

void HelpKnop_Click()
{
    Main().HelpKnop->Druk();
    OpenHelp();
}

void AboutKnop_Click()
{
    Main().AboutKnop->Druk();
    Toon<AboutForm>();
}

void ExitKnop_Click()
{
    Main().ExitKnop->Druk();
    Wachten(0.2);
    Main().close();
}
