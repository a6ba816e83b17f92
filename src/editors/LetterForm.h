#pragma once

#include "editors/SchuifForm.h"

/// Prints one letter, "IJ" among them, in the current cell of the visible board, over what is there.
class LetterForm : public SchuifForm
{
public:
    LetterForm();
    void HScroll1_Change() override;
    void OkKnop_Click() override;
};

extern QString GekozenLetter; ///< the letter that was last scrolled to; empty before that
