#pragma once

#include "platform/Form.h"
#include "platform/ImageBox.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"

#include <QScrollBar>

#include <array>

/// Changes the settings: the colours of clue cells on both boards, and the text on all print pages. It changes the
/// globals alone, and cells that stand on the boards keep their colour.
class ConfigForm : public Form
{
public:
    ConfigForm();

    void HScroll1_Change(); ///< of each of the three colour bars
    void HScroll2_Change();
    void ResetKnop_Click();
    void CancelKnop_Click();
    void OkKnop_Click();

    std::array<QScrollBar *, 3> HScroll1{}; ///< red, green, blue
    std::array<Label *, 3> ColorLabel{};    ///< their values
    QScrollBar *HScroll2;
    LineBox *Text1;
    Label *Label1, *Label2, *Label3, *Label4, *Label5, *Label6, *Label7, *Label8;
    ImageBox *Image1;
    ImageButton *ResetKnop, *CancelKnop, *OkKnop;

private:
    void MaakKleurBalken();
    void ToonKleuren();
};
