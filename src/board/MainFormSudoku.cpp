#include "board/MainForm.h"

using namespace Qt::StringLiterals;

// The panel under the board of a Sudoku.

void MainForm::MaakSudokuPaneel()
{
    Frame9 = MaakFrame("Frame9", u"Sudoku"_s);
    StartKnop = MaakKnop("StartKnop", u"Nieuwe puzzel"_s, u"knop-ok"_s, Frame9);
    Label13 = MaakLabel("Label13", u"Nieuwe puzzel"_s, Frame9);
    Option = MaakOpties({u"Gemakkelijk"_s, u"Normaal"_s, u"Moeilijk"_s}, Frame9);
    Label14 = MaakUitleg("Label14",
                         u"Klik op de 'Ok' button voor het schudden van de puzzel. Door met de linkermuisknop op een "
                         "leeg vakje te klikken kun je een ontbrekend getal plaatsen. Als de kleur van het getal rood "
                         "is dan heb je een fout getal, is de kleur groen dan is het getal juist."_s,
                         Frame9);

    Zet(Frame9, 180, 5400, 4275, 4410);
    Zet(StartKnop, 180, 285);
    Zet(Label13, 1230, 345);
    Zet(Option[0], 390, 900, 2700, 360);
    Zet(Option[1], 390, 1200, 2700, 360);
    Zet(Option[2], 390, 1500, 3300, 360);
    Zet(Label14, 180, 3210, 3840, 1200);

    Option[1]->setChecked(true);
    Frame9->hide();
}
