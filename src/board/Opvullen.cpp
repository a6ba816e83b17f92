#include "board/Opvullen.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"
#include "platform/Toeval.h"

// All in pixels: a cell is 30, its letter stands 11 to the right and 7 down.
//
//      x-5    x          x+12
//       |     +--+        |
//  y+8  |-----|/\|--------|    the line that is looked at
static bool IsLeeg(const PictureBox &pic, int x, int y)
{
    for (int i = x - 5; i <= x + 12; ++i)
        if (pic.GetPixel(i, y + 8) != RGB(255, 255, 255))
            return false;
    return true;
}

static void DrukLetter(PictureBox &pic, int x, int y)
{
    Toeval::Randomize();
    const int n = static_cast<int>(Toeval::Rnd() * 26);
    constexpr int IndexI = 8, IndexW = 22;
    int verschuiving = 0;
    if (n == IndexW)
        verschuiving = -3;
    else if (n == IndexI)
        verschuiving = 4;
    pic.PrintOp(x + verschuiving, y, QString(QChar(65 + n)));
}

void VulLegeVakjes()
{
    constexpr int Cell = 30;
    PictureBox &pic = *Main().Pic;
    Screen::MousePointer(Screen::Hourglass);
    pic.ZetLetter({.Punten = 12, .Vet = true, .Kleur = RGB(80, 80, 80)});
    const int bord = BordNummer();
    int x = 11;
    for (int kolom = 1; kolom <= BoardWidth && BordNummer() == bord; ++kolom, x += Cell) {
        int y = 7;
        for (int rij = 1; rij <= BoardHeight && BordNummer() == bord; ++rij, y += Cell) {
            if (IsLeeg(pic, x, y)) {
                pic.SetScaleMode(ScaleModes::Pixels);
                DrukLetter(pic, x, y);
                pic.SetScaleMode(ScaleModes::Twips);
            }
            Wachten(0.01);
        }
    }
    Screen::MousePointer(Screen::Own);
}
