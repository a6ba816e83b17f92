#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/PictureBox.h"
#include "platform/TextBox.h"

#include <QScrollBar>

/// Turns the current cell of a Zweeds puzzle into an information cell: a clue, and one or two arrows into the
/// neighbouring cells. Nothing is remembered of it but the pixels of both boards.
class VakForm : public Form
{
public:
    VakForm();
    void HScroll1_Change();
    void Text1_Change();
    void CancelKnop_Click();
    void OkKnop_Click();

    /// Shows a kind in the preview and makes it the current one; the typed text is thrown away. Outside 1..8 no arrow
    /// is shown.
    void VakjeTonen(qint16 soort);
    /// Prints all lines of Text1 in capitals, centred in a cell. Twips.
    /// @param X left edge of the inside of the cell
    /// @param Y top of the first line; comes back below the last line
    void TekstPlaatsen(PictureBox &doel, double X, qint32 &Y);

    PictureBox *Pic, *ImgR, *ImgO;
    QImage Image1; ///< the empty cell
    Label *Label1, *Label2, *Label3, *Label5, *Label6, *Label7, *TextLabel;
    TextBox *Text1;
    QScrollBar *HScroll1;
    ImageButton *CancelKnop, *OkKnop;
    QImage BackPijlen1, BackPijlen2; ///< the arrow strips, for the board and for the preview

private:
    void Vul();
    void PlakTegel();
    void PlakPijlen(int x0, int y0);
};
