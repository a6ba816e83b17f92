#pragma once

#include "editors/SchuifForm.h"

/// Prints one number in the corner of the current cell of both boards, in the place of an earlier one.
class NummerForm : public SchuifForm
{
public:
    NummerForm();
    void HScroll1_Change() override;
    void OkKnop_Click() override;
};

/// The number that was last scrolled to, and 0 before that. It outlives the window: Ok prints it, whatever is shown.
extern quint8 GekozenNummer;
