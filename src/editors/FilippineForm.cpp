#include "editors/FilippineForm.h"

#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "editors/Filippine.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

FilippineForm::FilippineForm()
    : Form(u"FilippineForm"_s, u"Oplossing Plaatsen op "_s + Main().Label6->Caption(), 6600, 3390, RGB(220, 250, 210))
{
    Text1 = Maak<LineBox>("Text1", u"Omschrijving"_s);
    Label1 = MaakLabel("Label1", u"Omschrijving"_s);
    Text2 = Maak<LineBox>("Text2", u"Oplossing"_s);
    Label2 = MaakLabel("Label2", u"Oplossing (0)"_s);
    PicZwart = Maak<PictureBox>("PicZwart", u"Voorbeeld van het vaknummer"_s);
    Label3 = MaakLabel("Label3", QString());
    HScroll1 = MaakSchuif("HScroll1", u"Vaknummer"_s, 1, 19);
    Label4 = MaakLabel("Label4", u"Vaknummer"_s);
    Option = MaakOpties({u"Horizontaal (Vaknummer met oplossing)"_s, u"Vertikaal (Het te zoeken woord)"_s});
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();

    Zet(Text1, 150, 180, 3900, 360);
    Zet(Label1, 4110, 240);
    Zet(Text2, 150, 570, 3900, 360);
    Zet(Label2, 4110, 630);
    Zet(PicZwart, 225, 1200, TegelMaat, TegelMaat);
    Zet(Label3, 900, 1365, 2100, 330);
    Zet(HScroll1, 930, 1395, 2040, 270);
    Zet(Label4, 3060, 1410);
    Zet(Option[0], 330, 1950, 3300, 300);
    Zet(Option[1], 330, 2250, 3300, 300);
    Zet(CancelKnop, 4290, 2370);
    Zet(OkKnop, 5310, 2370);

    bij(HScroll1, &QScrollBar::valueChanged, &FilippineForm::HScroll1_Change);
    bij(Option, &FilippineForm::Option_Click);
    bij(Text2, &LineBox::textChanged, &FilippineForm::Text2_Change);
    bij(CancelKnop, &ImageButton::clicked, &FilippineForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &FilippineForm::OkKnop_Click);

    Vul();
}

FilippineForm::~FilippineForm()
{
    Main().Shape1->hide();
}

// It opens on the row that was clicked. A row that has no number here gets the nearest one.
void FilippineForm::Vul()
{
    Kleur(Text1, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Text2, RGB(30, 0, 0), RGB(230, 230, 230));
    PicZwart->ZetLetter({.Punten = 12, .Vet = true, .Kleur = RGB(255, 255, 255)});
    Label3->SetBackColor(RGB(150, 180, 180));
    Text1->setFocus();
    HScroll1_Change();
    const double rij = Getallen::Val(Main().Label6->Caption());
    HScroll1->setValue(static_cast<int>(std::clamp<double>(rij, HScroll1->minimum(), HScroll1->maximum())));
}

void FilippineForm::HScroll1_Change()
{
    const int nummer = HScroll1->value();
    PicZwart->Cls();
    PicZwart->Box(0, 0, 450, 450, RGB(0, 0, 0));
    PicZwart->BoxFull(30, 30, 420, 420, RGB(0, 0, 0));
    PicZwart->PrintOp(nummer > 9 ? 90 : 150, 105, QString::number(nummer));
}

// The search word has neither clue nor number; its "n.v.t." passes the test for an empty clue.
void FilippineForm::Option_Click(int index)
{
    const bool isAntwoord = index == 0;
    Text1->setEnabled(isAntwoord);
    Kleur(Text1, isAntwoord ? RGB(30, 0, 0) : RGB(200, 230, 190), RGB(230, 230, 230));
    Text1->setText(isAntwoord ? QString() : u"n.v.t."_s);
    HScroll1->setEnabled(isAntwoord);
}

void FilippineForm::Text2_Change()
{
    Label2->SetCaption(u"Oplossing (%1)"_s.arg(MetCode(Text2->text()).size()));
}

void FilippineForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

/// Places a word, a tile and a letter a cell, with each "ij" as "?". Twips.
static void PlaatsLetters(const QString &woord, const QImage &tegel, int x, int y, QPoint stap)
{
    for (const QChar teken : Hoofdletters(woord)) {
        PlakTegel(*Main().Pic, tegel, x, y);
        Main().Pic->PrintOp(x + 150 + LetterVerschuiving(teken), y + LetterY, LetterVan(teken));
        x += stap.x();
        y += stap.y();
    }
}

void FilippineForm::PlaatsZoekwoord() const
{
    PlaatsLetters(Text2->text(), Main().Vak2->Image(), CurCol * VakMaat, CurRow * VakMaat, {0, VakMaat});
}

void FilippineForm::PlaatsAntwoord()
{
    PlakTegel(*Main().Pic, PicZwart->Image(), CurCol * VakMaat, CurRow * VakMaat);
    PlaatsLetters(Text2->text(), Main().Vak1->Image(), (CurCol + 1) * VakMaat, CurRow * VakMaat, {VakMaat, 0});
    Text2->setText(ZonderCode(Text2->text()));
    VoegFilippineRegelToe(Text1->text(), Text2->text());
    Main().ToonAantal();
}

// That the word fits on the board isn't tested, nor what is there already. Only small letters are joined: a capital
// "IJ" keeps its two cells, and blanks stay.
void FilippineForm::OkKnop_Click()
{
    OkKnop->Druk();
    if (Text1->text().isEmpty() || Text2->text().isEmpty()) {
        MsgBox(u"Omschrijving en/of Oplossing intypen..."_s, Knoppen::Ok, Icoon::Geen, u"Error"_s);
        return;
    }
    Main().Pic->ZetLetter(BordLetter);
    Text2->setText(MetCode(Text2->text()));
    if (Option[1]->isChecked())
        PlaatsZoekwoord();
    else
        PlaatsAntwoord();
    Unload();
}

void FilippineForm::VoegFilippineRegelToe(const QString &Omschrijving, const QString &Oplossing)
{
    Main().VoegRijenToe(
        {{.Vaknummer = Main().Label6->Caption(), .Omschrijving = Omschrijving, .Oplossing = Oplossing, .Nr = u"-"_s}});
}
