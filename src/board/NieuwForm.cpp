#include "board/NieuwForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "board/Soorten.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

static QStringList SoortOpties()
{
    QStringList opties;
    for (quint8 type = 1; type <= AantalSoorten; ++type)
        opties += SoortVan(type)->Optie;
    return opties;
}

NieuwForm::NieuwForm() : Form(u"NieuwForm"_s, u"Nieuwe puzzel ontwerpen"_s, 6300, 3720, RGB(190, 230, 230))
{
    Combo1 = MaakNummers("Combo1", u"Vakjes Horizontaal"_s, 9, 16, BoardWidth);
    Label1 = MaakLabel("Label1", QString());
    Combo2 = MaakNummers("Combo2", u"Vakjes Vertikaal"_s, 9, 19, BoardHeight);
    Label2 = MaakLabel("Label2", QString());
    Option = MaakOpties(SoortOpties());
    Image1 = MaakBeeld("Image1", u"Voorbeeld van de soort"_s, SoortVan(Zweeds)->Voorbeeld);
    Text1 = Maak<LineBox>("Text1", u"Naam Puzzel"_s);
    Label3 = MaakLabel("Label3", u"Naam Puzzel"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();

    Zet(Combo1, 180, 180, 990, 315);
    Zet(Label1, 1260, 240);
    Zet(Combo2, 180, 600, 990, 315);
    Zet(Label2, 1260, 660);
    for (int i = 0; i < AantalSoorten; ++i)
        Zet(Option[i], 540, 1110 + i * 285, 2700, 360);
    Zet(Image1, 4260, 690, 1800, 1800);
    Zet(Text1, 180, 2760, 2400, 360);
    Zet(Label3, 2640, 2835);
    Zet(CancelKnop, 4080, 2760);
    Zet(OkKnop, 5070, 2760);

    Combo1_Change();
    Combo2_Change();
    Kleur(Combo1, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Combo2, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Text1, RGB(0, 30, 0), RGB(230, 230, 230));
    Text1->setFocus();

    bij(Combo1, &QComboBox::editTextChanged, &NieuwForm::Combo1_Change);
    bij(Combo2, &QComboBox::editTextChanged, &NieuwForm::Combo2_Change);
    bij(Option, &NieuwForm::Option_Click);
    bij(CancelKnop, &ImageButton::clicked, &NieuwForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &NieuwForm::OkKnop_Click);
}

void NieuwForm::Combo1_Change()
{
    Label1->SetCaption(u"Vakjes Horizontaal ("_s + Combo1->currentText() + u")"_s);
}

void NieuwForm::Combo2_Change()
{
    Label2->SetCaption(u"Vakjes Vertikaal ("_s + Combo2->currentText() + u")"_s);
}

void NieuwForm::Option_Click(int index)
{
    const Soort &soort = *SoortVan(static_cast<quint8>(index + 1));
    Image1->SetPicture(soort.Voorbeeld);
    Combo1->setEnabled(soort.VasteBreedte == 0);
    Combo2->setEnabled(soort.VasteBreedte == 0);
}

void NieuwForm::CancelKnop_Click()
{
    Sluit(CancelKnop, 0.2);
}

// What isn't touched, on purpose: PuzzelGewijzigd, VakZwart, the word lists of the panel, CopyLabel.
void NieuwForm::OkKnop_Click()
{
    OkKnop->Druk();
    Wacht(0.2);
    const QString naam = Trim(Text1->text());
    if (naam.isEmpty()) {
        MsgBox(u"Naam Puzzel invullen a.u.b. (Alleen letters a..z)"_s);
        Text1->setFocus();
        return;
    }
    PuzzelNaam = QString(naam).remove(u' ');
    Main().ToonNaam();

    int breedte = Getallen::NaarInt32(Combo1->currentText());
    int hoogte = Getallen::NaarInt32(Combo2->currentText());
    const auto type = static_cast<quint8>(Gekozen(Option) + 1);
    const Soort &soort = *SoortVan(type);
    if (soort.VasteBreedte > 0) {
        breedte = soort.VasteBreedte;
        hoogte = soort.VasteHoogte;
    }
    ControleerBord(breedte, hoogte); // a board that cannot be made leaves the puzzle as it stands

    BoardWidth = breedte;
    BoardHeight = hoogte;
    PuzzelType = type;
    Main().ToonSoort();
    TekenBord(BoardWidth, BoardHeight);
    Main().WisRijen();
    Main().ToonPuzzel(u"Raster Atelier"_s);
    Unload();
}
