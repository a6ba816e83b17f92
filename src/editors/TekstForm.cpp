#include "editors/TekstForm.h"

#include "board/Algemeen.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"

using namespace Qt::StringLiterals;

QString LaatsteOplossing;

/// The picture of a direction, by its index.
static QString RichtingPlaatje(int index)
{
    return u"richting-"_s + QChar(Richtingen[static_cast<std::size_t>(index)].Letter).toLower();
}

TekstForm::TekstForm()
    : Form(u"TekstForm"_s, u"Oplossing Plaatsen op "_s + Main().Label6->Caption(), 6600, 3690, RGB(230, 250, 190))
{
    Text1 = Maak<LineBox>("Text1", u"Omschrijving"_s);
    Label1 = MaakLabel("Label1", u"Omschrijving"_s);
    Text2 = Maak<LineBox>("Text2", u"Oplossing"_s);
    Label2 = MaakLabel("Label2", u"Oplossing (0)"_s);
    CopyKnop = MaakKnopMetTip("CopyKnop", u" Copy tekst vanaf hoofdscherm "_s, u"knop-kopie"_s);
    Option = MaakOpties({u"Oplossing Horizontaal Plaatsen"_s, u"Oplossing Vertikaal Plaatsen"_s,
                         u"Diagonaal naar rechtsonder Plaatsen"_s, u"Diagonaal naar linksonder plaatsen"_s});
    Image1 = MaakBeeld("Image1", u"Richting"_s, RichtingPlaatje(0));
    Check1 = Maak<QCheckBox>("Check1", u"Oplossing omgekeerd"_s, nullptr, u"Oplossing omgekeerd"_s);
    Combo1 = MaakNummers("Combo1", u"Vaknummer Kruiswoordpuzzel"_s, 1, 99, 1);
    Label3 = MaakLabel("Label3", u"Vaknummer Kruiswoordpuzzel"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();

    Zet(Text1, 150, 180, 3900, 360);
    Zet(Label1, 4080, 240);
    Zet(Text2, 150, 570, 3900, 360);
    Zet(Label2, 4080, 630);
    Zet(CopyKnop, 5250, 570);
    Zet(Option[0], 390, 1200, 2700, 360);
    Zet(Option[1], 390, 1500, 2700, 360);
    Zet(Option[2], 390, 1800, 3300, 360);
    Zet(Option[3], 390, 2100, 3300, 360);
    Zet(Image1, 3300, 1320, 480, 480);
    Zet(Check1, 4350, 1440, 2100, 315);
    Zet(Combo1, 270, 2640, 810, 315);
    Zet(Label3, 1150, 2700);
    Zet(CancelKnop, 4290, 2670);
    Zet(OkKnop, 5295, 2670);

    VulVoorSoort();

    bij(Option, &TekstForm::Option_Click);
    bij(Text2, &LineBox::textChanged, &TekstForm::Text2_Change);
    bij(CopyKnop, &ImageButton::clicked, &TekstForm::CopyKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &TekstForm::CancelKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &TekstForm::OkKnop_Click);
}

void TekstForm::VulVoorSoort()
{
    Kleur(Text1, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Text2, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Combo1, RGB(30, 0, 0), RGB(230, 230, 230));
    const auto zetAan = [](std::initializer_list<QWidget *> controls, bool aan) {
        for (QWidget *control : controls)
            control->setEnabled(aan);
    };
    const bool isWoordzoeker = PuzzelType == Woordzoeker;
    zetAan({Text1, Label1}, !isWoordzoeker);
    zetAan({Option[2], Option[3], Check1}, isWoordzoeker);
    zetAan({Combo1, Label3}, PuzzelType == Kruiswoord);
    (isWoordzoeker ? Text2 : Text1)->setFocus();
}

void TekstForm::Option_Click(int index)
{
    Image1->SetPicture(RichtingPlaatje(index));
}

void TekstForm::Text2_Change()
{
    Label2->SetCaption(u"Oplossing (%1)"_s.arg(MetCode(Text2->text()).size()));
}

void TekstForm::CopyKnop_Click()
{
    CopyKnop->Druk();
    Text2->setText(Main().CopyLabel->Caption());
}

void TekstForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

bool TekstForm::IsCompleet()
{
    const auto meld = [](const QString &tekst) { MsgBox(tekst, Knoppen::Ok, Icoon::Geen, u"Error"_s); };
    const bool metOmschrijving = PuzzelType == Zweeds || PuzzelType == Kruiswoord;
    if (metOmschrijving && (Text1->text().isEmpty() || Text2->text().isEmpty())) {
        meld(u"Omschrijving en/of Oplossing intypen..."_s);
        return false;
    }
    if (PuzzelType == Woordzoeker && Text2->text().isEmpty()) {
        meld(u"Oplossing intypen..."_s);
        Text2->setFocus();
        return false;
    }
    if (PuzzelType == Kruiswoord && Getallen::NaarInt32(Combo1->currentText()) == 0) {
        meld(u"Vaknummer selecteren (1..99)"_s);
        return false;
    }
    return true;
}

const Richting &TekstForm::GekozenRichting() const
{
    return Richtingen[static_cast<std::size_t>(Gekozen(Option))];
}

void TekstForm::DrukNummer() const
{
    const QString nummer = Combo1->currentText();
    Main().Pic->ZetLetter({.Punten = 6, .Kleur = RGB(0, 0, 0)});
    Main().Pic->PrintOp(CurCol * VakMaat + LetterX - 120, CurRow * VakMaat + LetterY - 90, nummer);
    Main().PicGroot->ZetLetter({.Punten = 20, .Kleur = RGB(0, 0, 0)});
    Main().PicGroot->PrintOp(CurCol * VakMaatGroot + LetterGrootX - 450, CurRow * VakMaatGroot + LetterGrootY - 300,
                             nummer);
}

// The font names stay what they are: an information cell leaves PicGroot at Arial Narrow.
void TekstForm::DrukLetters(const QString &woord) const
{
    PictureBox &pic = *Main().Pic;
    PictureBox &groot = *Main().PicGroot;
    pic.ZetLetter(BordLetter);
    groot.ZetLetter(BordLetterGroot);
    const Richting &richting = GekozenRichting();
    int kolom = CurCol, rij = CurRow;
    for (const QChar teken : Hoofdletters(woord)) {
        const int verschuiving = LetterVerschuiving(teken); // that of the code, which has none
        const QString letter = LetterVan(teken);
        pic.PrintOp(kolom * VakMaat + LetterX + verschuiving, rij * VakMaat + LetterY, letter);
        if (PuzzelType == Woordzoeker)
            groot.PrintOp(kolom * VakMaatGroot + LetterGrootX, rij * VakMaatGroot + LetterGrootY, letter);
        kolom += richting.Kolommen;
        rij += richting.Rijen;
    }
}

// That the word fits on the board isn't tested, nor what is there already: letters beyond the edge are lost, the others
// are printed on top, and the row is added all the same.
void TekstForm::OkKnop_Click()
{
    constexpr qsizetype LongestWord = 254;
    OkKnop->Druk();
    if (!IsCompleet())
        return;
    const qint32 nummer = PuzzelType == Kruiswoord ? Getallen::NaarInt32(Combo1->currentText()) : 0;
    const QString metCode = MetCode(KleineLetters(Text2->text()).remove(u' '));
    if (metCode.size() > LongestWord) // before anything is printed
        throw Fout(Fout::Overloop, u"een woord van meer dan %1 letters"_s.arg(LongestWord));
    Text2->setText(metCode);
    if (PuzzelType == Kruiswoord)
        DrukNummer();
    QString woord = metCode;
    if (Check1->isChecked())
        std::reverse(woord.begin(), woord.end());
    DrukLetters(woord);
    Text2->setText(ZonderCode(Text2->text()));
    LaatsteOplossing = Text2->text();
    VoegRegelToe(QChar(GekozenRichting().Letter), Text1->text(), LaatsteOplossing, nummer);
    Main().ToonAantal();
    PuzzelGewijzigd = true;
    Unload();
}

void TekstForm::VoegRegelToe(const QString &Richting, const QString &Omschrijving, const QString &Oplossing,
                             qint32 Nummer)
{
    Main().VoegRijenToe({{.Vaknummer = Main().Label6->Caption() + u'-' + Richting,
                          .Omschrijving = Omschrijving,
                          .Oplossing = Oplossing,
                          .Nr = PuzzelType == Kruiswoord ? QString::number(Nummer) : u"-"_s}});
}
