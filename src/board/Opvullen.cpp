#include "board/Opvullen.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Toeval.h"

/// Looks at a line of pixels through the middle of the cell, from 6 up to 23; a cell is 30.
static bool IsLeeg(const PictureBox &pic, int kolom, int rij)
{
    constexpr int Cell = 30;
    for (int x = 6; x <= 23; ++x)
        if (pic.GetPixel(kolom * Cell + x, rij * Cell + 15) != RGB(255, 255, 255))
            return false;
    return true;
}

static void DrukLetter(PictureBox &pic, int kolom, int rij)
{
    Toeval::Randomize();
    const QChar letter(u'A' + static_cast<int>(Toeval::Rnd() * 26));
    pic.PrintOp(kolom * VakMaat + LetterX + LetterVerschuiving(letter), rij * VakMaat + LetterY, letter);
}

void VulLegeVakjes()
{
    const Screen::Bezig bezig;
    PictureBox &pic = *Main().Pic;
    pic.ZetLetter(BordLetter);
    const int bord = BordNummer();
    for (int kolom = 0; kolom < BoardWidth && BordNummer() == bord; ++kolom) {
        for (int rij = 0; rij < BoardHeight && BordNummer() == bord; ++rij) {
            if (IsLeeg(pic, kolom, rij))
                DrukLetter(pic, kolom, rij);
            Wachten(0.01);
        }
    }
}
