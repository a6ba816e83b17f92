#include "editors/TekstForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Plaatjes.h"
#include "platform/Twips.h"

using namespace Qt::StringLiterals;

QString LaatsteOplossing;

namespace {

/// A direction: its letter, its picture, and the cells that it moves a letter on.
struct RichtingSoort
{
    QLatin1String Letter;
    const char *Plaatje;
    int Kolommen, Rijen;
};

constexpr RichtingSoort Richtingen[]{
    {"H"_L1, "richting-h", 1, 0},
    {"V"_L1, "richting-v", 0, 1},
    {"R"_L1, "richting-r", 1, 1},
    {"L"_L1, "richting-l", -1, 1},
};

} // namespace

TekstForm::TekstForm()
    : Form(u"TekstForm"_s, u"Oplossing Plaatsen op "_s + Main().Label6->Caption(), 6600, 3690, qRgb(230, 250, 190))
{
    Text1 = Maak<LineBox>("Text1", u"Omschrijving"_s, nullptr);
    Label1 = MaakLabel("Label1", u"Omschrijving"_s);
    Text2 = Maak<LineBox>("Text2", u"Oplossing"_s, nullptr);
    Label2 = MaakLabel("Label2", u"Oplossing (0)"_s);
    CopyKnop = Maak<ImageButton>("CopyKnop", u"Copy tekst vanaf hoofdscherm"_s, nullptr, u"knop-kopie"_s);
    Option = MaakOpties({u"Oplossing Horizontaal Plaatsen"_s, u"Oplossing Vertikaal Plaatsen"_s,
                         u"Diagonaal naar rechtsonder Plaatsen"_s, u"Diagonaal naar linksonder plaatsen"_s});
    Image1 = Maak<QLabel>("Image1", u"Richting"_s, nullptr);
    Check1 = Maak<QCheckBox>("Check1", u"Oplossing omgekeerd"_s, nullptr, u"Oplossing omgekeerd"_s);
    Combo1 = MaakNummers("Combo1", u"Vaknummer Kruiswoordpuzzel"_s, 1, 99, 1);
    Label3 = MaakLabel("Label3", u"Vaknummer Kruiswoordpuzzel"_s);
    CancelKnop = MaakCancelKnop();
    OkKnop = MaakOkKnop();
    Plaats();
    Vul();
    Verbind();
}

void TekstForm::Plaats()
{
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
}

void TekstForm::Vul()
{
    for (const RichtingSoort &richting : Richtingen)
        Img += Plaatjes::Pixmap(QLatin1String(richting.Plaatje), Image1->size(), devicePixelRatioF());
    Image1->setPixmap(Img[0]);
    CopyKnop->setToolTip(u" Copy tekst vanaf hoofdscherm "_s);
    Kleur(Text1, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Text2, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Combo1, RGB(30, 0, 0), RGB(230, 230, 230));

    const bool isWoordzoeker = PuzzelType == Woordzoeker;
    for (QWidget *control : std::initializer_list<QWidget *>{Text1, Label1})
        control->setEnabled(!isWoordzoeker);
    for (QWidget *control : std::initializer_list<QWidget *>{Option[2], Option[3], Check1})
        control->setEnabled(isWoordzoeker);
    for (QWidget *control : std::initializer_list<QWidget *>{Combo1, Label3})
        control->setEnabled(PuzzelType == Kruiswoord);
    (isWoordzoeker ? Text2 : Text1)->setFocus();
}

void TekstForm::Verbind()
{
    for (int i = 0; i < Option.size(); ++i)
        bij(Option[i], &QRadioButton::toggled, [this, i](bool aan) {
            if (aan)
                Option_Click(i);
        });
    bij(Text2, &LineBox::textChanged, [this] { Text2_Change(); });
    bij(CopyKnop, &ImageButton::clicked, [this] { CopyKnop_Click(); });
    bij(CancelKnop, &ImageButton::clicked, [this] { CancelKnop_Click(); });
    bij(OkKnop, &ImageButton::clicked, [this] { OkKnop_Click(); });
}

void TekstForm::Option_Click(int index)
{
    Image1->setPixmap(Img[index]);
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
    CancelKnop->Druk();
    Unload();
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

void TekstForm::DrukNummer() const
{
    const auto druk = [this](PictureBox &pic, double punten, int x, int y) {
        pic.FontSize = punten;
        pic.ForeColor = RGB(0, 0, 0);
        pic.CurrentX = x;
        pic.CurrentY = y;
        pic.Print(Combo1->currentText());
    };
    druk(*Main().Pic, 6, CurCol * VakMaat + 165 - 120, CurRow * VakMaat + 105 - 90);
    druk(*Main().PicGroot, 20, CurCol * VakMaatGroot + 600 - 450, CurRow * VakMaatGroot + 360 - 300);
}

// The font names stay what they are: an information cell leaves PicGroot at Arial Narrow.
void TekstForm::DrukLetters(const QString &woord) const
{
    PictureBox &pic = *Main().Pic;
    PictureBox &groot = *Main().PicGroot;
    pic.FontBold = groot.FontBold = true;
    pic.FontSize = 12;
    groot.FontSize = 48;
    pic.ForeColor = groot.ForeColor = RGB(80, 80, 80);
    const RichtingSoort &richting = Richtingen[Gekozen(Option)];
    int kolom = CurCol, rij = CurRow;
    for (const QChar teken : woord) {
        QString letter(teken.toUpper());
        pic.CurrentX = kolom * VakMaat + 165 + LetterVerschuiving(letter);
        pic.CurrentY = rij * VakMaat + 105;
        if (letter == "?"_L1)
            letter = u"IJ"_s;
        pic.Print(letter);
        if (PuzzelType == Woordzoeker) {
            groot.CurrentX = kolom * VakMaatGroot + 600;
            groot.CurrentY = rij * VakMaatGroot + 360;
            groot.Print(letter);
        }
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
    VoegRegelToe(Richtingen[Gekozen(Option)].Letter, Text1->text(), LaatsteOplossing, nummer);
    Main().ToonAantal();
    PuzzelGewijzigd = true;
    Unload();
}

void TekstForm::VoegRegelToe(const QString &Richting, const QString &Omschrijving, const QString &Oplossing,
                             qint32 Nummer)
{
    Main().VoegRijToe(Main().Label6->Caption() + u'-' + Richting, Omschrijving, Oplossing,
                      PuzzelType == Kruiswoord ? QString::number(Nummer) : u"-"_s);
}
