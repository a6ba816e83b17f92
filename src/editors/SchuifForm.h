#pragma once

#include "platform/Form.h"
#include "platform/ImageButton.h"

#include <QScrollBar>

/// Picks one value with a scroll bar, shows it big beside it, and places it in the current cell: what the letter editor
/// and the number editor share.
class SchuifForm : public Form
{
public:
    virtual void HScroll1_Change() = 0;
    virtual void OkKnop_Click() = 0;
    void CancelKnop_Click();

    Label *Label1, *Label2, *Label3;
    QScrollBar *HScroll1;
    ImageButton *CancelKnop, *OkKnop;

protected:
    /// What each of them gives of its own.
    struct Eigen
    {
        QString Naam;   ///< of the window
        QString Titel;  ///< the name of the cell comes behind it
        QString Waarde; ///< what is picked, as a screen reader says it
        int Van, Tot;   ///< of the scroll bar, which stands at the first
        QString Begin;  ///< shown before anything is picked
        QString Uitleg;
    };
    explicit SchuifForm(const Eigen &eigen);
};
