#pragma once

#include "generators/clsWordSearch.h"
#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/PictureBox.h"
#include "platform/TextBox.h"

#include <QAction>
#include <QComboBox>

/// Makes a word search of a list of words, and puts it on the board of the main window.
class AutoForm : public Form
{
public:
    AutoForm();

    void AddKnop_Click();
    void OkKnop_Click();
    void ExportKnop_Click();
    void CancelKnop_Click();
    void EditNew_Click();
    void EditVoorbeeld_Click();
    void Text2_Change();
    void WordSearch_CannotFitWord(QString &strWord, bool &Continue);

    PictureBox *picGrid;
    TextBox *Text1;
    LineBox *Text2;
    Label *Label1, *Label2, *Label3, *Label4, *Label5;
    QComboBox *Combo1, *Combo2;
    ImageButton *AddKnop, *OkKnop, *CancelKnop, *ExportKnop;
    QAction *EditNew, *EditVoorbeeld;

    clsWordSearch WordSearch;

private:
    void TekenLetters();
    void WoordenNaarLijst();
};
