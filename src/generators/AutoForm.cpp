#include "generators/AutoForm.h"

#include "board/Algemeen.h"
#include "board/Kleuren.h"
#include "board/LangeIJ.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "board/TekstRegels.h"
#include "platform/Berichten.h"
#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"

#include <QMenu>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

// While a grid is made, the long IJ is held as one sign, for it takes one cell: only where it is written in capitals.
constexpr auto LangeIJ = "IJ"_L1;
constexpr auto Code = "?"_L1;

AutoForm::AutoForm() : Form(u"AutoForm"_s, u"Automatische woordzoeker"_s, 10200, 6450, Kleuren::Paneel, true)
{
    picGrid = Maak<PictureBox>("picGrid", u"Puzzelveld"_s);
    Text1 = Maak<TextBox>("Text1", u"Woordenlijst"_s);
    Text2 = Maak<LineBox>("Text2", u"Woord invoer"_s);
    Label5 = MaakLabel("Label5", u"Woord invoer (0)"_s);
    AddKnop = MaakKnop("AddKnop", u"Woord toevoegen"_s, u"knop-toevoegen"_s);
    Label4 = MaakLabel("Label4", u"Woord toevoegen"_s);
    Label3 = MaakUitleg("Label3",
                        u"Typ steeds een woord in de tekstbalk en klik op de button 'Add' om het woord toe te voegen "
                        "aan de lijst. Voor het maken van een nieuwe puzzel klik dan linksboven op het menuitem "
                        "'Bewerken/Nieuwe puzzel'\n\nDe lange 'IJ' wordt tijdelijk vervangen door het vraagteken ? in "
                        "het linker puzzelveld."_s);
    Combo1 = MaakNummers("Combo1", u"Breedte"_s, 9, 16, 12);
    Combo2 = MaakNummers("Combo2", u"Hoogte"_s, 9, 19, 15);
    Label1 = MaakLabel("Label1", u"Breedte          Hoogte"_s);
    Label2 = MaakLabel("Label2", u"Draw puzzel"_s);
    OkKnop = MaakKnop("OkKnop", u"Draw puzzel"_s, u"knop-ok"_s);
    CancelKnop = MaakCancelKnop();
    ExportKnop = MaakKnopMetTip("ExportKnop", u" Puzzel exporteren naar hoofdveld "_s, u"knop-export"_s);
    QMenu *bewerken = MaakMenu("Edit", u"Bewerken"_s);
    EditNew = MaakItem(*bewerken, "EditNew", u"Nieuwe puzzel"_s);
    bewerken->addSeparator()->setObjectName(u"EditStreep1"_s);
    EditVoorbeeld = MaakItem(*bewerken, "EditVoorbeeld", u"Voorbeeld woorden"_s);
    PasOpScherm();

    Zet(picGrid, 180, 210, 4575, 4575);
    Zet(Text1, 4980, 210, 2700, 3750);
    Zet(Text2, 4980, 4050, 2430, 375);
    Zet(Label5, 4980, 4440);
    Zet(AddKnop, 7500, 4065, 930, 330);
    Zet(Label4, 8520, 4110);
    Zet(Label3, 7890, 240, 2010, 3000);
    Zet(Combo1, 180, 4890, 900, 315);
    Zet(Combo2, 1200, 4890, 900, 315);
    Zet(Label1, 180, 5280);
    Zet(Label2, 2760, 4950);
    Zet(OkKnop, 3795, 4890);
    Zet(CancelKnop, 8025, 5130);
    Zet(ExportKnop, 9030, 5130, 870, 360);

    picGrid->BackColor = RGB(220, 220, 240);
    picGrid->ZetLetter({.Naam = u"Arial"_s, .Vet = true});
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    Kleur(Text1, RGB(200, 200, 200), RGB(0, 0, 0));
    Kleur(Text2, RGB(80, 0, 0), RGB(230, 230, 230));
    Kleur(Combo1, RGB(30, 0, 0), RGB(230, 230, 230));
    Kleur(Combo2, RGB(30, 0, 0), RGB(230, 230, 230));
    WordSearch.Canvas = picGrid;
    WordSearch.CannotFitWord = std::bind_front(&AutoForm::WordSearch_CannotFitWord, this);
    Text2->setFocus();

    bij(AddKnop, &ImageButton::clicked, &AutoForm::AddKnop_Click);
    bij(OkKnop, &ImageButton::clicked, &AutoForm::OkKnop_Click);
    bij(ExportKnop, &ImageButton::clicked, &AutoForm::ExportKnop_Click);
    bij(CancelKnop, &ImageButton::clicked, &AutoForm::CancelKnop_Click);
    bij(EditNew, &QAction::triggered, &AutoForm::EditNew_Click);
    bij(EditVoorbeeld, &QAction::triggered, &AutoForm::EditVoorbeeld_Click);
    bij(Text2, &LineBox::textChanged, &AutoForm::Text2_Change);
}

void AutoForm::Text2_Change()
{
    Label5->SetCaption(u"Woord invoer (%1)"_s.arg(Text2->text().size()));
}

void AutoForm::EditVoorbeeld_Click()
{
    const QStringList plaatsen{u"Amsterdam"_s,  u"Rotterdam"_s,   u"Assen"_s,      u"Arnhem"_s,
                               u"Doetinchem"_s, u"IJsselstein"_s, u"Maastricht"_s, u"Leeuwarden"_s,
                               u"Almelo"_s,     u"Groningen"_s,   u"Utrecht"_s,    u"Eindhoven"_s,
                               u"Ommen"_s,      u"Ulft"_s,        u"Nijmegen"_s,   u"Urk"_s};
    Text1->SetText(plaatsen.join("\r\n"_L1));
}

void AutoForm::EditNew_Click()
{
    Text1->SetText(QString());
    Text2->clear();
    Text2->setFocus();
    picGrid->Cls();
}

void AutoForm::AddKnop_Click()
{
    AddKnop->Druk();
    const QString woord = Hoofdletters(Trim(Text2->text()));
    if (!woord.isEmpty()) {
        const QString tekst = Text1->Text();
        Text1->SetText(tekst.isEmpty() ? woord : tekst + u"\r\n"_s + woord);
        Text1->moveCursor(QTextCursor::End); // the word comes in sight
    }
    Text2->clear(); // also of nothing but blanks
    Text2->setFocus();
}

/// The size of the letters in points, by the number of cells.
static int Lettermaat(double cellen)
{
    if (cellen >= 240)
        return 8;
    if (cellen >= 200)
        return 9;
    if (cellen >= 160)
        return 10;
    return cellen >= 120 ? 11 : 12;
}

void AutoForm::OkKnop_Click()
{
    OkKnop->Druk();
    const QString hoogte = Combo2->currentText();
    const QString breedte = Combo1->currentText();
    picGrid->ZetLetter({.Punten = Lettermaat(Getallen::Val(hoogte) * Getallen::Val(breedte))});
    Text1->SetText(Text1->Text().replace(LangeIJ, Code));
    const auto zetTerug = qScopeGuard([this] { Text1->SetText(Text1->Text().replace(Code, LangeIJ)); });
    WordSearch.SetGridHeight(Getallen::ValInt16(hoogte));
    WordSearch.SetGridWidth(Getallen::ValInt16(breedte));
    WordSearch.Words.Clear();
    WordSearch.Words.AddFromString(Hoofdletters(Text1->Text()));
    WordSearch.Make();
    WordSearch.Draw();
}

// The grid goes on without the word; the list keeps it.
void AutoForm::WordSearch_CannotFitWord(QString &strWord, bool &Continue)
{
    MsgBox(u"Het woord \""_s + strWord +
               u"\" kan niet worden geplaatst, probeer het raster te vergroten of probeer het nogmaals."_s,
           Knoppen::Ok, Icoon::Informatie);
    Continue = true;
}

// The grid that was made last is taken, whatever the sizes say now. The sheet stays blank, the puzzle doesn't count as
// changed, and the kind changes behind the drawing, which has the bands of a Sudoku once more; wanted so.
void AutoForm::ExportKnop_Click()
{
    ExportKnop->Druk();
    const qint32 breedte = Getallen::NaarInt32(Combo1->currentText());
    const qint32 hoogte = Getallen::NaarInt32(Combo2->currentText());
    ControleerBord(breedte, hoogte); // a board that cannot be made leaves the puzzle as it stands

    BoardWidth = breedte;
    BoardHeight = hoogte;
    TekenBord(BoardWidth, BoardHeight);
    Main().WisRijen();
    PuzzelType = Woordzoeker;
    Main().ToonSoort();
    TekenLetters();
    Main().ToonBord(u"Raster Atelier"_s);
    WoordenNaarLijst();
    Unload();
}

void AutoForm::TekenLetters()
{
    PictureBox &pic = *Main().Pic;
    pic.ZetLetter(BordLetter);
    const qsizetype aantal = std::min<qsizetype>(WoordzoekerRaster.size(), qsizetype{BoardWidth} * BoardHeight);
    for (int i = 0; i < aantal; ++i) {
        const QChar letter = WoordzoekerRaster[i];
        const int x = LetterX + i % BoardWidth * VakMaat;
        const int y = LetterY + i / BoardWidth * VakMaat;
        pic.PrintOp(x + LetterVerschuiving(letter), y, LetterVan(letter));
    }
}

void AutoForm::WoordenNaarLijst()
{
    QStringList regels;
    const int n = TekstRegels(*Text1, regels);
    QList<Rij> rijen;
    for (int i = 0; i < n; ++i)
        rijen += Rij{u"-"_s, u"-"_s, Hoofdletters(regels[i]).replace(Code, LangeIJ), u"-"_s};
    Main().VoegRijenToe(rijen);
    Main().ToonAantal();
}

void AutoForm::CancelKnop_Click()
{
    Sluit(CancelKnop);
}
