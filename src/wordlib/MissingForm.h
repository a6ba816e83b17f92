#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/ListBox.h"
#include "platform/PictureBox.h"

#include <QAction>
#include <QScrollBar>

#include <array>

/// Finds the words that fit a pattern of known and unknown letters, which is set on scroll bars.
class MissingForm : public Form
{
public:
    MissingForm();

    void HScroll1_Change();
    void VScroll_Change(int index); ///< @param index 1..19
    void OkKnop_Click();
    void ExportKnop_Click();
    void CancelKnop_Click();
    void HelpUitleg_Click();

    ListBox *List1;
    Label *Label2, *Label3, *Label4, *Label5, *Label6, *Label7, *Label8;
    std::array<QScrollBar *, 20> VScroll{}; ///< 1..19
    std::array<Label *, 20> Label1{};       ///< 1..19, a letter each
    QScrollBar *HScroll1;
    ImageButton *OkKnop, *CancelKnop, *ExportKnop;
    PictureBox *HelpPic;
    QAction *HelpUitleg;

private:
    void MaakLetters();
    void TekenHelp();
};
