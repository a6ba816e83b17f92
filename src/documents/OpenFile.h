#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/ListBox.h"

/// Lists the puzzles in the folder of puzzles, opens one or deletes one.
class OpenFile : public Form
{
public:
    OpenFile();
    void List1_Click();
    void List1_DblClick();
    void DelKnop_Click();
    void CancelKnop_Click();
    void OkKnop_Click();

    /// Reads the text file of a puzzle into the globals and the entry list. A damaged or missing file ends it quietly:
    /// what was read so far stands. A size that no board can have raises Fout, and nothing has changed then.
    void LoadPuzzel(const QString &Naam);

    ListBox *List1;
    ImageBox *Image1;
    Label *Label2;
    ImageButton *DelKnop, *CancelKnop, *OkKnop;

private:
    void LaadBeelden();
};
