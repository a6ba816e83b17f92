#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"

#include <QComboBox>
#include <QRadioButton>

/// Starts a new design: picks the kind, the size and a name. It doesn't ask about the puzzle that it replaces.
class NieuwForm : public Form
{
public:
    NieuwForm();
    void Combo1_Change();
    void Combo2_Change();
    void Option_Click(int index);
    void CancelKnop_Click();
    void OkKnop_Click();

    QComboBox *Combo1, *Combo2;
    Label *Label1, *Label2, *Label3;
    QList<QRadioButton *> Option; ///< Option1 to Option5, in the order of the kinds
    ImageBox *Image1;
    LineBox *Text1;
    ImageButton *CancelKnop, *OkKnop;
};
