#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/ListBox.h"

/// Finds the words of the same letters as a word.
class FormMain : public Form
{
public:
    FormMain();

    void OkKnop_Click();
    void ExportKnop_Click();

    LineBox *Text1;
    Label *Label1, *Label2;
    ListBox *List1;
    ImageBox *Image1;
    ImageButton *OkKnop, *ExportKnop;
};
