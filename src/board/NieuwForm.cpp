#include "board/NieuwForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "board/Soorten.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Plaatjes.h"

using namespace Qt::StringLiterals;

static constexpr QRgb Achtergrond = qRgb(190, 230, 230);

NieuwForm::NieuwForm() : Form(u"NieuwForm"_s, u"Nieuwe puzzel ontwerpen"_s, 6300, 3720, Achtergrond)
{
    Combo1 = MaakNummers("Combo1", u"Vakjes Horizontaal"_s, 9, 16, BoardWidth);
    Label1 = MaakLabel("Label1", QString());
    Combo2 = MaakNummers("Combo2", u"Vakjes Vertikaal"_s, 9, 19, BoardHeight);
    Label2 = MaakLabel("Label2", QString());
    Option = MaakOpties(
        {u"Zweedse Puzzel"_s, u"Woordzoeker"_s, u"Kruiswoord Puzzel"_s, u"Sudoku Puzzel"_s, u"Filippine Puzzel"_s});
    Image1 = Maak<QLabel>("Image1", u"Voorbeeld van de soort"_s, nullptr);
    Text1 = Maak<LineBox>("Text1", u"Naam Puzzel"_s, nullptr);
    Label3 = MaakLabel("Label3", u"Naam Puzzel"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();
    Plaats();
    Vul();
    Verbind();
}

void NieuwForm::Plaats()
{
    Zet(Combo1, 180, 180, 990, 315);
    Zet(Label1, 1260, 240);
    Zet(Combo2, 180, 600, 990, 315);
    Zet(Label2, 1260, 660);
    int boven = 1110;
    for (QRadioButton *option : Option) {
        Zet(option, 540, boven, 2700, 360);
        boven += 285;
    }
    Zet(Image1, 4260, 690, 1800, 1800);
    Zet(Text1, 180, 2760, 2400, 360);
    Zet(Label3, 2640, 2835);
    Zet(CancelKnop, 4080, 2760);
    Zet(OkKnop, 5070, 2760);
}

void NieuwForm::Vul()
{
    Combo1_Change();
    Combo2_Change();
    const char *previews[] = {"soort-zweeds", "soort-woordzoeker", "soort-kruiswoord", "soort-sudoku",
                              "soort-filippine"};
    for (const char *preview : previews)
        Img += Plaatjes::Pixmap(QLatin1String(preview), Image1->size(), devicePixelRatioF());
    Image1->setPixmap(Img[0]);
    for (QComboBox *combo : {Combo1, Combo2})
        Kleur(combo, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Text1, RGB(0, 30, 0), RGB(230, 230, 230));
    Text1->setFocus();
}

void NieuwForm::Verbind()
{
    bij(Combo1, &QComboBox::editTextChanged, [this] { Combo1_Change(); });
    bij(Combo2, &QComboBox::editTextChanged, [this] { Combo2_Change(); });
    for (int i = 0; i < Option.size(); ++i)
        bij(Option[i], &QRadioButton::toggled, [this, i](bool aan) {
            if (aan)
                Option_Click(i);
        });
    bij(CancelKnop, &ImageButton::clicked, [this] { CancelKnop_Click(); });
    bij(OkKnop, &ImageButton::clicked, [this] { OkKnop_Click(); });
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
    Image1->setPixmap(Img[index]);
    const bool vrijeMaat = SoortVan(static_cast<quint8>(index + 1))->VasteBreedte == 0;
    Combo1->setEnabled(vrijeMaat);
    Combo2->setEnabled(vrijeMaat);
}

void NieuwForm::CancelKnop_Click()
{
    CancelKnop->Druk();
    Wachten(0.2);
    Unload();
}

// What isn't touched, on purpose: PuzzelGewijzigd, VakZwart, the word lists of the panel, CopyLabel.
void NieuwForm::OkKnop_Click()
{
    OkKnop->Druk();
    Wachten(0.2);
    if (Unloaded()) // closed meanwhile
        return;
    if (Trim(Text1->text()).isEmpty()) {
        MsgBox(u"Naam Puzzel invullen a.u.b. (Alleen letters a..z)"_s);
        Text1->setFocus();
        return;
    }
    PuzzelNaam = Trim(Text1->text()).remove(u' ');
    Main().Bestandsnaam->setText(PuzzelNaam);

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
    Main().ToonSoortDelen();
    TekenRaster(BoardWidth, BoardHeight);
    TekenGroot(BoardWidth, BoardHeight);
    Main().WisRijen();
    Main().setWindowTitle(u"Raster Atelier (%1x%2)"_s.arg(BoardWidth).arg(BoardHeight));
    Main().ToonAantal();
    Main().Shape1->hide();
    Main().Line1->hide();
    Unload();
}
