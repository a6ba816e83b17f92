#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"
#include "platform/LineBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

/// Writes one solution word on the board, a letter a cell from the current cell on, and adds its row to the entry list.
class TekstForm : public Form
{
public:
    TekstForm();
    void Option_Click(int index);
    void Text2_Change();
    void CopyKnop_Click();
    void CancelKnop_Click();
    void OkKnop_Click();

    /// Adds the row of a word to the entry list.
    /// @param Richting "H", "V", "R" or "L"
    void VoegRegelToe(const QString &Richting, const QString &Omschrijving, const QString &Oplossing, qint32 Nummer);

    LineBox *Text1, *Text2;
    Label *Label1, *Label2, *Label3;
    QList<QRadioButton *> Option; ///< Option1 to Option4: H, V, R, L
    QList<QPixmap> Img;           ///< the pictures of the directions
    QLabel *Image1;
    QCheckBox *Check1;
    QComboBox *Combo1;
    ImageButton *CopyKnop, *CancelKnop, *OkKnop;

private:
    void Plaats();
    void Vul();
    void Verbind();
    bool IsCompleet();
    void DrukNummer() const;
    void DrukLetters(const QString &woord) const;
};

extern QString LaatsteOplossing; ///< the word of the last placement
