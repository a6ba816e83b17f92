#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"
#include "platform/PictureBox.h"

#include <QRadioButton>
#include <QScrollBar>

/// Builds a Filippine on the visible board, a placement at a time: an answer to the right behind its number, with its
/// row in the entry list, or the search word downwards. The large board is left alone, and the puzzle does not count as
/// changed. When it ends, the frame round the cell goes.
class FilippineForm : public Form
{
public:
    FilippineForm();
    ~FilippineForm() override;
    void HScroll1_Change();
    void Option_Click(int index);
    void Text2_Change();
    void CancelKnop_Click();
    void OkKnop_Click();

    /// Adds the row of an answer to the entry list.
    void VoegFilippineRegelToe(const QString &Omschrijving, const QString &Oplossing);

    LineBox *Text1, *Text2;
    Label *Label1, *Label2, *Label3, *Label4;
    PictureBox *PicZwart; ///< the number cell
    QScrollBar *HScroll1;
    QList<QRadioButton *> Option; ///< Option1: an answer; Option2: the search word
    ImageButton *CancelKnop, *OkKnop;

private:
    void Vul();
    void PlaatsZoekwoord() const;
    void PlaatsAntwoord();
};
