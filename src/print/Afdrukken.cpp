#include "print/Afdrukken.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "platform/Fout.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Klok.h"
#include "platform/Plaatjes.h"
#include "platform/Printers.h"
#include "platform/Screen.h"
#include "print/Drukwerk.h"
#include "print/PrintTaken.h"

using namespace Qt::StringLiterals;

// The sample sheet, in twips.
static constexpr int BladBreedte = 1695, BladHoogte = 2475;

Afdrukken::Afdrukken() : Form(u"Afdrukken"_s, QString(), 6000, 3960, RGB(190, 240, 240))
{
    const QStringList printers = Printers::Lijst(); // first: a choice that has gone is forgotten by it
    const QString neerwaarts = u"A\nF\nD\nR\nU\nK\nK\nE\nN"_s;
    Label2 = MaakLabel("Label2", QString());
    Picture1 = Maak<PictureBox>("Picture1", u"Voorbeeld"_s);
    Line1 = Maak<LineMark>("Line1", QString(), Picture1);
    Label7 = MaakUitleg("Label7", neerwaarts); // the shadow of the next one
    Label6 = MaakUitleg("Label6", neerwaarts);
    Label1 = MaakLabel("Label1", u"Printerkeuze"_s);
    Combo2 = MaakKeuze("Combo2", u"Printerkeuze"_s, printers, Printers::Huidig().DeviceName());
    Check1 = Maak<QCheckBox>("Check1", u"Datum en tijd afdrukken"_s, nullptr, u"Datum en tijd afdrukken"_s);
    Check2 = Maak<QCheckBox>("Check2", u"Tevens oplossing afdrukken"_s, nullptr, u"Tevens oplossing afdrukken"_s);
    Label4 = MaakUitleg("Label4", QString());
    Image1 = MaakBeeld("Image1", QString(), u"printer"_s);
    CancelKnop = MaakKnop("CancelKnop", u"Annuleren"_s, u"knop-annuleren-laag"_s);
    PrintKnop = MaakKnop("PrintKnop", u"Afdrukken"_s, u"knop-afdrukken"_s);

    Zet(Label2, 180, 180, 1800, 2580);
    Zet(Picture1, 240, 240, BladBreedte, BladHoogte);
    Zet(Label6, 2100, 210, 180, 2580);
    Zet(Label7, 2115, 225, 180, 2580);
    Zet(Label1, 2850, 210);
    Zet(Combo2, 2850, 480, 2700, 330);
    Zet(Check1, 3000, 1050, 2100, 255);
    Zet(Check2, 3000, 1350, 3000, 255);
    Zet(Label4, 180, 2850, 2100, 900);
    Zet(Image1, 4290, 1950, 1440, 900);
    Zet(CancelKnop, 3705, 2910, 960, 330);
    Zet(PrintKnop, 4710, 2910, 990, 330);

    Label2->SetBackColor(RGB(150, 180, 180));
    Label6->SetForeColor(RGB(255, 255, 20));
    Label7->SetForeColor(RGB(130, 100, 60));
    for (Label *letters : {Label6, Label7}) {
        letters->SetFont(Lettertype(u"Arial"_s, 11, true));
        letters->setAlignment(Qt::AlignHCenter);
    }
    Kleur(Combo2, RGB(240, 210, 210), RGB(0, 0, 0));
    Check2->setVisible(PuzzelType == Sudoku);
    if (const PrintTaak *taak = PrintTaakVan(PuzzelType)) {
        Label4->SetCaption(taak->Titel);
        Picture1->SetPicture(Plaatjes::Beeld(taak->Sjabloon));
    }
    ToonPrinter();

    bij(Combo2, &QComboBox::editTextChanged, &Afdrukken::Combo2_Change);
    bij(Combo2, &QComboBox::activated, &Afdrukken::Combo2_Click);
    bij(CancelKnop, &ImageButton::clicked, &Afdrukken::CancelKnop_Click);
    bij(PrintKnop, &ImageButton::clicked, &Afdrukken::PrintKnop_Click);
}

void Afdrukken::ToonPrinter()
{
    setWindowTitle(u"Puzzel afdrukken (%1)"_s.arg(Printers::Huidig().DeviceName()));
}

/// The index of the entry that stands in the box; -1 for a text that is none.
static int ListIndex(const QComboBox &combo)
{
    const int index = combo.currentIndex();
    return combo.itemText(index) == combo.currentText() ? index : -1;
}

void Afdrukken::Combo2_Change()
{
    Tag = QString::number(ListIndex(*Combo2));
    for (int index = 0; index < Combo2->count(); ++index)
        if (QString::number(index) == Tag) {
            Printers::Kies(index);
            break;
        }
    ToonPrinter();
}

void Afdrukken::Combo2_Click()
{
    Combo2_Change();
}

void Afdrukken::CancelKnop_Click()
{
    Sluit(CancelKnop);
}

void Afdrukken::PrintKnop_Click()
{
    PrintKnop->Druk();
    Screen::MousePointer(Screen::Hourglass);
    Veeg();
    DrukPuzzel();
    Screen::MousePointer(Screen::Arrow);
    Unload();
}

// It comes before the job, and reports no work. Clicks and keys wait for its end.
void Afdrukken::Veeg()
{
    Line1->X2 = BladBreedte;
    for (int Y = 0; Y <= BladHoogte; Y += 15) {
        Line1->Y1 = Line1->Y2 = Y;
        Line1->BorderColor = RGB(static_cast<int>(Getallen::RondEven(Y / 10.0)), 0, 0);
        Line1->Toon();
        Wachten(0.01, QEventLoop::ExcludeUserInputEvents);
    }
    Line1->hide();
}

// Whatever the printer makes of it, nothing is said.
void Afdrukken::DrukPuzzel()
{
    const PrintTaak *taak = PrintTaakVan(PuzzelType);
    if (!taak)
        return;
    const Drukwerk werk{.PuzzelNaam = PuzzelNaam,
                        .BoardWidth = BoardWidth,
                        .BoardHeight = BoardHeight,
                        .Rijen = Main().Rijen(),
                        .Pic = Main().Pic->Image(),
                        .PicGroot = Main().PicGroot->Image(),
                        .PaginaTekst = PaginaTekst,
                        .MetTijd = Check1->isChecked(),
                        .Oplossing = Check2->isChecked(),
                        .Nu = Klok::Huidig().Nu()};
    negeer([&] { taak->Druk(Printers::Huidig(), werk); });
}
