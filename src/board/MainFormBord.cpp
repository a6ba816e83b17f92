#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/MainForm.h"
#include "board/Plaats.h"
#include "board/Soorten.h"
#include "platform/Kleur.h"
#include "platform/Klok.h"
#include "platform/Plaatjes.h"

#include <QLocale>

using namespace Qt::StringLiterals;

PictureBox *MainForm::MaakVerborgen(const char *naam, const QString &plaatje)
{
    auto *box = Maak<PictureBox>(naam, QString());
    box->AutoSize = true;
    box->hide();
    box->SetPicture(Plaatjes::Beeld(plaatje));
    return box;
}

void MainForm::MaakBord()
{
    Frame8 = MaakFrame("Frame8", u"Soort puzzel"_s);
    Label12 = MaakLabel("Label12", u"Soortpuzzel : Zweeds"_s, Frame8);
    Label1 = MaakLabel("Label1", QString());
    Pic = Maak<PictureBox>("Pic", u"Puzzelveld"_s);
    PicR = Maak<PictureBox>("PicR", u"Rijnummers"_s);
    PicO = Maak<PictureBox>("PicO", u"Kolomletters"_s);
    PicGroot = Maak<PictureBox>("PicGroot", QString());
    PicVak = MaakVerborgen("PicVak", u"vak"_s);
    Vak1 = MaakVerborgen("Vak1", u"vak1"_s);
    Vak2 = MaakVerborgen("Vak2", u"vak2"_s);
    Shape1 = Maak<RectMark>("Shape1", QString(), Pic);
    Line1 = Maak<LineMark>("Line1", QString(), Pic);
    Label2 = MaakLabel("Label2", u" Load Database "_s);
    Frame1 = MaakFrame("Frame1", u"Statusbalk"_s);
    Label6 = MaakLabel("Label6", u"Coordinaten"_s, Frame1);
    KlokLabel = MaakLabel("KlokLabel", u"00:00"_s, Frame1);
    Timer1 = new QTimer(this);

    Zet(Frame8, 180, 90, 7815, 540);
    Zet(Label12, 90, 180);
    Zet(Label1, 180, 780, 7410, 8760);
    Zet(Pic, 270, 870, 7215, 8565);
    Zet(PicR, 7605, 780, 450, 8760);
    Zet(PicO, 180, 9555, 7410, 300);
    Zet(Label2, 2565, 3000);
    Zet(Frame1, 180, 9855, 7815, 540);
    Zet(Label6, 120, 180);
    Zet(KlokLabel, 7020, 180);

    Label1->SetBackColor(RGB(150, 150, 150));
    Label2->SetFont(Lettertype(u"Arial"_s, 30, false)); // and takes the size of its text: else that would be cut off
    Label2->SetBackColor(RGB(230, 230, 0));
    Label2->hide();
    KlokLabel->setAlignment(Qt::AlignRight); // its texts would be cut off on the other side
    PicGroot->hide();
    PicR->BackColor = PicO->BackColor = Kleuren::Paneel;
    Pic->ZetLetter({.Naam = u"Arial"_s, .Punten = 8.25, .Vet = true});
    PicGroot->ZetLetter({.Naam = u"Arial Narrow"_s, .Punten = 8.25, .Vet = true});
    for (PictureBox *strook : {PicR, PicO})
        strook->ZetLetter({.Naam = u"Arial"_s, .Punten = 9.75, .Vet = true});
    Shape1->BorderWidth = 2;
    Line1->BorderColor = RGB(255, 0, 0);
    Line1->BorderWidth = 2;
    Timer1->setObjectName(u"Timer1"_s);
    Timer1->start(1000);

    bij(Timer1, &QTimer::timeout, &MainForm::Timer1_Timer);
    bij(Pic, &PictureBox::MouseMove, &MainForm::Pic_MouseMove);
    bij(Pic, &PictureBox::MouseDown, &MainForm::Pic_MouseDown);
}

void MainForm::Timer1_Timer()
{
    const QDateTime nu = Klok::Huidig().Nu();
    KlokLabel->SetCaption(QLocale::system().toString(nu.date(), QLocale::ShortFormat) + u" / "_s +
                          nu.time().toString(u"h:mm:ss"_s));
}

void MainForm::ToonSoort()
{
    if (const Soort *soort = SoortVan(PuzzelType))
        Label12->SetCaption(soort->Opschrift);
}

void MainForm::ToonPuzzel(const QString &programma)
{
    ToonNaam();
    ToonBord(programma);
}

// In the text of an item "&&" is shown as "&"; a single one would only underline what stands behind it.
void MainForm::ToonNaam()
{
    Bestandsnaam->setText(QString(PuzzelNaam).replace("&"_L1, "&&"_L1));
}

QString MainForm::GetoondeNaam() const
{
    return Bestandsnaam->text().replace("&&"_L1, "&"_L1);
}

void MainForm::ToonBord(const QString &programma)
{
    const Soort *soort = SoortVan(PuzzelType);
    setWindowTitle(u"%1 (%2x%3)"_s.arg(programma).arg(BoardWidth).arg(BoardHeight));
    Frame9->setVisible(soort && soort->MetFrame9);
    EditDeleteRaster->setEnabled(soort && soort->MetVerwijderen);
    EditDeleteLetters->setEnabled(soort && soort->MetVerwijderen);
    ToonAantal();
    Shape1->hide();
    Line1->hide();
}

// Both comparisons are strict on purpose: on a grid line the column or the row keeps its earlier value.
void MainForm::Pic_MouseMove(double pointerX, double pointerY)
{
    for (int y = 0; y <= Pic->Height(); y += VakMaat) {
        for (int x = 0; x <= Pic->Width(); x += VakMaat)
            if (pointerX > x && pointerX < x + VakMaat)
                CurCol = x / VakMaat;
        if (pointerY > y && pointerY < y + VakMaat)
            CurRow = y / VakMaat;
    }
    CurCell = BoardWidth * CurRow + CurCol + 1;

    const Soort *soort = SoortVan(PuzzelType);
    const bool alleenRij = soort && soort->AlleenRij;
    Label6->SetCaption(alleenRij ? RijTekst(CurRow) : PlaatsTekst(CurCol, CurRow, CurCell));
}

void MainForm::Pic_MouseDown(Qt::MouseButton knop, QPoint opScherm)
{
    const Soort *soort = SoortVan(PuzzelType);
    if (!soort)
        return;
    CurCell = std::max(CurCell, 1); // a click before the pointer ever moved acts on the first cell
    if (soort->Klik == LinkerKlik::VakMenu) {
        SoortVakTekst[VakMenu::Infovakje]->setEnabled(soort->MetInfovakje);
        SoortVakTekst[VakMenu::Opvullen]->setEnabled(soort->MetOpvullen);
        SoortVakTekst[VakMenu::Vaknummer]->setEnabled(soort->MetVaknummer);
    }
    if (knop == Qt::LeftButton) {
        Shape1->BorderColor = RGB(0, 200, 0);
        Shape1->Toon(CurCol * VakMaat + 15, CurRow * VakMaat + 15, VakMaat, VakMaat);
        if (soort->Klik == LinkerKlik::VakMenu)
            SoortPlaatsing->popup(opScherm);
        else if (soort->Klik == LinkerKlik::SudokuMenu)
            SudokuMenu->popup(opScherm);
        else
            emit EditorGekozen();
    } else if (knop == Qt::RightButton && soort->MetZwart) {
        ZwartOmzetten();
    }
}

// The white box is larger than the dark one by design: it wipes the whole inside of the cell, the dark edge as well.
// Only the array is asked, not the pixels, and the puzzle doesn't count as changed.
void MainForm::ZwartOmzetten()
{
    const auto vak = static_cast<std::size_t>(CurCell);
    if (vak >= VakZwart.size())
        throw Fout(Fout::IndexBuitenBereik, u"vakje %1"_s.arg(CurCell));
    bool &isZwart = VakZwart[vak];
    const int x = CurCol * VakMaat + 15;
    const int y = CurRow * VakMaat + 15;
    const int grootX = CurCol * VakMaatGroot + 45;
    const int grootY = CurRow * VakMaatGroot + 45;
    if (isZwart) {
        Pic->BoxFull(x, y, x + 420, y + 420, RGB(255, 255, 255));
        PicGroot->BoxFull(grootX, grootY, grootX + 1740, grootY + 1740, RGB(255, 255, 255));
    } else {
        Pic->BoxFull(x + 15, y + 15, x + 405, y + 405, RGB(60, 60, 60));
        PicGroot->BoxFull(grootX + 45, grootY + 45, grootX + 1695, grootY + 1695, RGB(60, 60, 60));
    }
    isZwart = !isZwart;
}
