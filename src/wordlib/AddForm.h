#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/ListBox.h"
#include "platform/PictureBox.h"

/// Makes and changes the word lists.
class AddForm : public Form
{
public:
    AddForm();

    void List2_Click();
    void AddKnop_Click();
    void DelKnop_Click();
    void NieuwKnop_Click();
    void SaveKnop_Click();
    void CancelKnop_Click();

    /// Writes the words as the list of a subject, unless there is one and the user keeps it. Failures pass in silence.
    void SaveWoorden(const QString &Naam);
    void VulOnderwerpen();

    Label *Label1, *Label2, *Label3, *Label4;
    ListBox *List1, *List2;
    LineBox *Text1, *Text2;
    PictureBox *Bar;
    ImageButton *NieuwKnop, *DelKnop, *AddKnop, *CancelKnop, *SaveKnop;
    ImageBox *Image1;

private:
    void ToonAantal();
    void ToonVoortgang();
};
