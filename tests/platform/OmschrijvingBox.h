#pragma once

#include "platform/Canvas.h"
#include "platform/TextBox.h"

/// A box of 123 pixels with the letters of a clue.
class OmschrijvingBox : public TextBox
{
public:
    explicit OmschrijvingBox(QWidget *ouder = nullptr) : TextBox(ouder)
    {
        setFont(Lettertype(QStringLiteral("Arial"), 12, true));
        resize(123, 60);
    }
    /// The width that a line of text has for itself.
    double Regelbreedte() const { return width() - 2 * frameWidth() - 2 * document()->documentMargin(); }
};
