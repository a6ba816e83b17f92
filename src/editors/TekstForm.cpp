#include "editors/TekstForm.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Plaatjes.h"
#include "platform/Twips.h"

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
    {QLatin1String("H"), "richting-h", 1, 0},
    {QLatin1String("V"), "richting-v", 0, 1},
    {QLatin1String("R"), "richting-r", 1, 1},
    {QLatin1String("L"), "richting-l", -1, 1},
};

} // namespace

TekstForm::TekstForm()
    : Form(QStringLiteral("TekstForm"), QStringLiteral("Oplossing Plaatsen op ") + Main().Label6->Caption(), 6600, 3690,
           qRgb(230, 250, 190))
{
    Text1 = Maak<LineBox>("Text1", QStringLiteral("Omschrijving"), nullptr);
    Label1 = MaakLabel("Label1", QStringLiteral("Omschrijving"));
    Text2 = Maak<LineBox>("Text2", QStringLiteral("Oplossing"), nullptr);
    Label2 = MaakLabel("Label2", QStringLiteral("Oplossing (0)"));
    CopyKnop = Maak<ImageButton>("CopyKnop", QStringLiteral("Copy tekst vanaf hoofdscherm"), nullptr,
                                 QStringLiteral("knop-kopie"));
    Option = MaakOpties(
        {QStringLiteral("Oplossing Horizontaal Plaatsen"), QStringLiteral("Oplossing Vertikaal Plaatsen"),
         QStringLiteral("Diagonaal naar rechtsonder Plaatsen"), QStringLiteral("Diagonaal naar linksonder plaatsen")});
    Image1 = Maak<QLabel>("Image1", QStringLiteral("Richting"), nullptr);
    Check1 = Maak<QCheckBox>("Check1", QStringLiteral("Oplossing omgekeerd"), nullptr,
                             QStringLiteral("Oplossing omgekeerd"));
    Combo1 = MaakNummers("Combo1", QStringLiteral("Vaknummer Kruiswoordpuzzel"), 1, 99, 1);
    Label3 = MaakLabel("Label3", QStringLiteral("Vaknummer Kruiswoordpuzzel"));
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
    CopyKnop->setToolTip(QStringLiteral(" Copy tekst vanaf hoofdscherm "));
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
    Label2->SetCaption(QStringLiteral("Oplossing (%1)").arg(MetCode(Text2->text()).size()));
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
    const auto meld = [](const QString &tekst) { MsgBox(tekst, Knoppen::Ok, Icoon::Geen, QStringLiteral("Error")); };
    const bool metOmschrijving = PuzzelType == Zweeds || PuzzelType == Kruiswoord;
    if (metOmschrijving && (Text1->text().isEmpty() || Text2->text().isEmpty())) {
        meld(QStringLiteral("Omschrijving en/of Oplossing intypen..."));
        return false;
    }
    if (PuzzelType == Woordzoeker && Text2->text().isEmpty()) {
        meld(QStringLiteral("Oplossing intypen..."));
        Text2->setFocus();
        return false;
    }
    if (PuzzelType == Kruiswoord && Getallen::NaarInt32(Combo1->currentText()) == 0) {
        meld(QStringLiteral("Vaknummer selecteren (1..99)"));
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
        if (letter == QLatin1String("?"))
            letter = QStringLiteral("IJ");
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
    const QString metCode = MetCode(KleineLetters(Text2->text()).remove(QLatin1Char(' ')));
    if (metCode.size() > LongestWord) // before anything is printed
        throw Fout(Fout::Overloop, QStringLiteral("een woord van meer dan %1 letters").arg(LongestWord));
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
    Main().VoegRijToe(Main().Label6->Caption() + QLatin1Char('-') + Richting, Omschrijving, Oplossing,
                      PuzzelType == Kruiswoord ? QString::number(Nummer) : QStringLiteral("-"));
}
