#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/PictureBox.h"
#include "platform/Shapes.h"

#include <QCheckBox>
#include <QComboBox>

/// Prints the puzzle: on which printer, and with what.
class Afdrukken : public Form
{
public:
    Afdrukken();
    void Combo2_Change();
    void Combo2_Click();
    void CancelKnop_Click();
    void PrintKnop_Click();

    Label *Label1, *Label2, *Label4, *Label6, *Label7;
    PictureBox *Picture1; ///< a sample sheet of the kind
    LineMark *Line1;      ///< sweeps over it
    QComboBox *Combo2;
    QCheckBox *Check1, *Check2;
    ImageBox *Image1;
    ImageButton *CancelKnop, *PrintKnop;
    QString Tag; ///< the index of the printer that was last chosen; "-1" for a name that is none

private:
    void ToonPrinter();
    void Veeg();
    void DrukPuzzel();
};
