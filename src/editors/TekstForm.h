#pragma once

#include "board/Richtingen.h"
#include "platform/Form.h"
#include "platform/ImageBox.h"
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
    QList<QRadioButton *> Option; ///< Option1 to Option4, in the order of the directions
    ImageBox *Image1;
    QCheckBox *Check1;
    QComboBox *Combo1;
    ImageButton *CopyKnop, *CancelKnop, *OkKnop;

private:
    void VulVoorSoort();
    bool IsCompleet();
    const Richting &GekozenRichting() const;
    void DrukNummer() const;
    void DrukLetters(const QString &woord) const;
};

extern QString LaatsteOplossing; ///< the word of the last placement
