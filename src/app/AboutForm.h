#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"

/// Tells what the program is, its version, and the size and date of its file.
class AboutForm : public Form
{
public:
    AboutForm();
    void CancelKnop_Click();

    ImageBox *Image1;
    Label *Label1;
    ImageButton *CancelKnop;
};
