#include "documents/SaveForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/PuzzelBestand.h"
#include "documents/PuzzelJpeg.h"
#include "documents/PuzzelMap.h"
#include "platform/Berichten.h"
#include "platform/Bewaren.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/PictureFiles.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

SaveForm::SaveForm() : Form(u"SaveForm"_s, u"Puzzel opslaan"_s, 4800, 1560, RGB(170, 240, 240))
{
    Text1 = Maak<LineBox>("Text1", u"Naam van de puzzel"_s);
    Bar = Maak<PictureBox>("Bar", u"Voortgang"_s);
    Label1 = MaakLabel("Label1", u"0%"_s);
    CancelKnop = MaakKnop("CancelKnop", u"Annuleren"_s, u"knop-annuleren-laag"_s);
    SaveKnop = MaakKnop("SaveKnop", u"Opslaan"_s, u"knop-opslaan"_s);

    Zet(Text1, 120, 150, 4470, 330);
    Zet(Bar, 120, 150, 4500, 330);
    Zet(Label1, 150, 540);
    Zet(CancelKnop, 2700, 600, 960, 330);
    Zet(SaveKnop, 3720, 600, 840, 330);

    Kleur(Text1, RGB(40, 0, 0), RGB(220, 220, 220));
    Bar->SetScaleMode(ScaleModes::Pixels);
    Bar->hide();
    const QString naam = Main().GetoondeNaam();
    Text1->setText(naam == "Puzzelnaam"_L1 ? QString() : naam);
    Text1->setFocus();

    bij(CancelKnop, &ImageButton::clicked, &SaveForm::CancelKnop_Click);
    bij(SaveKnop, &ImageButton::clicked, &SaveForm::SaveKnop_Click);
}

void SaveForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

// Whatever came of the save, the puzzle counts as saved and the dialog closes: also when the user refused to overwrite.
void SaveForm::SaveKnop_Click()
{
    SaveKnop->Druk();
    if (Trim(Text1->text()).isEmpty()) {
        MsgBox(u"Naam Puzzel ontbreekt!"_s, Knoppen::Ok, Icoon::Kritiek, u"Error"_s);
        Text1->setFocus();
        return;
    }
    QString naam = Text1->text(); // with its outer blanks
    OpslaanPuzzel(naam);
    PuzzelGewijzigd = false;
    Unload();
}

/// Writes the text file as one of a set. A failure passes in silence.
static void ZetLijst(const QString &naam, BestandenSet &set)
{
    negeer([&] {
        const QString bestand = naam + u".lst"_s; // an older file of the name may be spelled otherwise
        const QByteArray inhoud = SchrijfPuzzelLijst(PuzzelType, BoardWidth, BoardHeight, Main().Rijen());
        set.Zet(PuzzelPad(bestand), {inhoud}, bestand);
    });
}

void SaveForm::OpslaanPuzzel(QString &Naam)
{
    GebruikersNaam = HaalGebruiker();
    MaakAf(PuzzelMap());
    bool bestaat = false;
    negeer([&] { bestaat = BestandBestaat(PuzzelPad(Naam + u".lst"_s)); });
    if (bestaat && !JaNee(u"Naam puzzel bestaat al, overschrijven?"_s, u" Exist"_s))
        return;
    Screen::MousePointer(Screen::Hourglass);
    Text1->hide();
    Bar->show();
    BestandenSet set;
    negeer([&] { Files::SavePicture(Main().Pic->Image(), PuzzelPad(Naam + u"1.bmp"_s), set); });
    negeer([&] { Files::SavePicture(Main().PicGroot->Image(), PuzzelPad(Naam + u"2.bmp"_s), set); });
    Naam = EersteHoofdletter(Naam);
    ZetLijst(Naam, set);
    negeer([&] { set.PlaatsAlles(); });
    if (!MaakPuzzelJpeg(Naam)) {
        MsgBox(u"Fout bij opslaan als JPG!"_s);
        return; // the hourglass stays on
    }
    ToonVoortgang();
}

void SaveForm::SaveLijstPuzzel(QString &Naam)
{
    Naam = EersteHoofdletter(Naam);
    BestandenSet set;
    ZetLijst(Naam, set);
    negeer([&] { set.PlaatsAlles(); });
}

// It comes when all is written, and reports no work: some three seconds, whatever the puzzle. Clicks and keys wait, so
// that nothing is changed meanwhile that would then count as saved.
void SaveForm::ToonVoortgang()
{
    for (int i = 0; i <= 300; i += 2) {
        Bar->BoxFull(0, 0, i, 20, RGB(0, 240, 0));
        Label1->SetCaption(u"%1%"_s.arg(Getallen::RondEven(i / 3.0)));
        Wachten(0.02, QEventLoop::ExcludeUserInputEvents);
    }
    Screen::MousePointer(Screen::Arrow);
    Wachten(1, QEventLoop::ExcludeUserInputEvents);
}
