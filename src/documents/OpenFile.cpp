#include "documents/OpenFile.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "documents/PuzzelBestand.h"
#include "documents/PuzzelMap.h"
#include "platform/Berichten.h"
#include "platform/Bewaren.h"
#include "platform/Files.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/PictureFiles.h"

using namespace Qt::StringLiterals;

OpenFile::OpenFile() : Form(u"OpenFile"_s, u"Puzzel openen"_s, 5160, 4395, RGB(190, 240, 240))
{
    List1 = Maak<ListBox>("List1", u"Puzzels"_s);
    Image1 = MaakBeeld("Image1", QString(), u"map-open"_s);
    Label2 = MaakUitleg("Label2", u"Selecteer d.m.v. de linker lijst een puzzel die je wilt openen."_s);
    DelKnop = MaakKnopMetTip("DelKnop", u" Puzzel verwijderen "_s, u"knop-wissen"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();

    Zet(List1, 180, 180, 2400, 2940);
    Zet(Image1, 3300, 1800, 1440, 1440);
    Zet(Label2, 2700, 180, 2100, 2100);
    Zet(DelKnop, 180, 3390, 960, 360);
    Zet(CancelKnop, 2910, 3390);
    Zet(OkKnop, 3915, 3390);

    Kleur(List1, RGB(30, 0, 0), RGB(250, 250, 250));
    DelKnop->setEnabled(false);
    MaakAf(PuzzelMap());
    QStringList namen = Files::Lijst(PuzzelMap(), u"*.lst"_s);
    for (QString &naam : namen)
        naam.chop(4);
    List1->SetItems(namen);
    List1->setFocus();

    bij(List1, &ListBox::Click, &OpenFile::List1_Click);
    bij(List1, &ListBox::DblClick, &OpenFile::List1_DblClick);
    bij(DelKnop, &ImageButton::clicked, &OpenFile::DelKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &OpenFile::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &OpenFile::OkKnop_Click);
}

// The name changes at once, before anything is opened, and stays so when the dialog is cancelled; wanted so.
void OpenFile::List1_Click()
{
    PuzzelNaam = List1->Text();
    DelKnop->setEnabled(true);
}

void OpenFile::List1_DblClick()
{
    OkKnop_Click();
}

void OpenFile::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

void OpenFile::OkKnop_Click()
{
    OkKnop->Druk();
    if (List1->ListCount() == 0)
        return;
    PuzzelNaam = List1->Text();
    if (PuzzelNaam.isEmpty())
        return;
    LoadPuzzel(PuzzelNaam);
    TekenBord(BoardWidth, BoardHeight);
    LaadBeelden();
    Main().ToonPuzzel(u"Zweedse Raster Atelier"_s); // the word stays "Zweedse" for all kinds
    Unload();
}

void OpenFile::LoadPuzzel(const QString &Naam)
{
    PuzzelLijst lijst;
    MaakAf(PuzzelMap());
    negeer([&] { lijst = LeesPuzzelLijst(Files::LeesBegin(PuzzelPad(Naam + u".lst"_s), GrootsteLijst + 1)); });
    const qint32 breedte = lijst.Breedte.value_or(BoardWidth);
    const qint32 hoogte = lijst.Hoogte.value_or(BoardHeight);
    ControleerBord(breedte, hoogte);

    PuzzelType = lijst.Soort.value_or(PuzzelType);
    BoardWidth = breedte;
    BoardHeight = hoogte;
    Main().WisRijen();
    Main().VoegRijenToe(lijst.Rijen);
    if (lijst.Heel)
        Main().ToonSoort();
}

void OpenFile::LaadBeelden()
{
    const auto laad = [](PictureBox &pic, const QString &bestand) {
        negeer([&] { pic.SetPicture(Files::LoadPicture(PuzzelPad(PuzzelNaam + bestand))); });
    };
    laad(*Main().Pic, u"1.bmp"_s);
    laad(*Main().PicGroot, u"2.bmp"_s);
}

void OpenFile::DelKnop_Click()
{
    DelKnop->Druk();
    const QString naam = List1->Text();
    if (naam.isEmpty())
        return;
    if (!JaNee(u"Wilt je deze puzzel '"_s + naam + u"' verwijderen?"_s, u"Delete"_s))
        return;
    MaakAf(PuzzelMap());
    for (const char *deel : {".lst", "1.bmp", "2.bmp"})
        negeer([&] { Files::Kill(PuzzelPad(naam + QLatin1String(deel))); });
    List1->RemoveItem(List1->ListIndex());
}
