#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/PictureBox.h"

/// Saves the puzzle: a text file and two bitmaps in the folder of puzzles, and a JPEG in the user's own picture folder.
class SaveForm : public Form
{
public:
    SaveForm();
    void CancelKnop_Click();
    void SaveKnop_Click();

    /// The whole save. A failure of writing passes in silence: the remaining steps run.
    /// @param Naam comes back capitalised
    void OpslaanPuzzel(QString &Naam);
    /// Writes the text file. @param Naam comes back capitalised
    void SaveLijstPuzzel(QString &Naam);

    LineBox *Text1;
    PictureBox *Bar;
    Label *Label1;
    ImageButton *CancelKnop, *SaveKnop;

private:
    void ToonVoortgang();
};
