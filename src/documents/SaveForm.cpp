#include "documents/SaveForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "documents/PuzzelBestand.h"
#include "documents/PuzzelMap.h"
#include "platform/Berichten.h"
#include "platform/Files.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/PictureFiles.h"
#include "platform/Screen.h"
#include "platform/Teksten.h"

#include <QStandardPaths>

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
    const QString naam = Main().Bestandsnaam->text();
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

void SaveForm::OpslaanPuzzel(QString &Naam)
{
    GebruikersNaam = HaalGebruiker();
    bool bestaat = false;
    negeer([&] { bestaat = BestandBestaat(PuzzelPad(Naam + u".lst"_s)); });
    if (bestaat && !JaNee(u"Naam puzzel bestaat al, overschrijven?"_s, u" Exist"_s))
        return;
    Screen::MousePointer(Screen::Hourglass);
    Text1->hide();
    Bar->show();
    negeer([&] { Files::SavePicture(Main().Pic->Image(), PuzzelPad(Naam + u"1.bmp"_s)); });
    negeer([&] { Files::SavePicture(Main().PicGroot->Image(), PuzzelPad(Naam + u"2.bmp"_s)); });
    SaveLijstPuzzel(Naam);
    if (!MaakJpeg(Naam))
        return; // the hourglass stays on
    ToonVoortgang();
}

void SaveForm::SaveLijstPuzzel(QString &Naam)
{
    Naam = EersteHoofdletter(Naam);
    negeer([&] {
        const QString bestand = Naam + u".lst"_s;
        const QString pad = PuzzelPad(bestand);
        Files::Schrijf(pad, SchrijfPuzzelLijst(PuzzelType, BoardWidth, BoardHeight, Main().Rijen()));
        Files::Hernoem(pad, bestand); // an older file of the name may be spelled otherwise
    });
}

/// @return false when there was no bitmap to make it of
bool SaveForm::MaakJpeg(const QString &naam)
{
    const QString tussenNaam = u"mydummy.bmp"_s;
    const QString tussen = Files::Pad(AppPath, {tussenNaam});
    negeer([&] { Files::SavePicture(Main().PicGroot->Image(), tussen); });
    if (Files::Dir(tussen) != tussenNaam) {
        MsgBox(u"Fout bij opslaan als JPG!"_s);
        return false;
    }
    const QString map = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    negeer([&] { Files::BmpToJpeg(tussen, Files::Pad(map, {naam + u".jpg"_s}), 100); });
    negeer([&] { Files::Kill(tussen); });
    return true;
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
    Label1->SetCaption(u"100%"_s);
    Wachten(1, QEventLoop::ExcludeUserInputEvents);
}
