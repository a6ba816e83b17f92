#include "editors/Filippine.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Raster.h"
#include "platform/Kleur.h"
#include "platform/Screen.h"

#include <QCoreApplication>

static constexpr int RasterRed = 150;
static constexpr int AnswerRed = 240; ///< of Vak1, a cell of a horizontal answer
static constexpr int SearchRed = 174; ///< of Vak2, a cell of the vertical search word

void PlakTegel(PictureBox &doel, const QImage &tegel, int x, int y)
{
    doel.PaintPicture(tegel, QRectF(x, y, TegelMaat, TegelMaat), QRectF(0, 0, TegelMaat, TegelMaat));
}

void VerwijderRaster(PictureBox &doel)
{
    const Screen::Bezig bezig;
    const int bord = BordNummer();
    for (int x = 0; x <= doel.width() && BordNummer() == bord; ++x) {
        for (int y = 0; y <= doel.height(); ++y)
            if (qRed(doel.GetPixel(x, y)) == RasterRed)
                doel.SetPixel(x, y, RGB(255, 255, 255));
        QCoreApplication::processEvents();
    }
}

/// The picture that a cell is to have, by the pixel at 5, 5 of it; nullptr when it is no answer cell.
static const PictureBox *LeegVak(const PictureBox &doel, int x, int y)
{
    switch (qRed(doel.GetPixel(x + 5, y + 5))) {
    case AnswerRed:
        return Main().Vak1;
    case SearchRed:
        return Main().Vak2;
    default:
        return nullptr;
    }
}

void VerwijderLetters(PictureBox &doel)
{
    constexpr int Cell = 30;
    const Screen::Bezig bezig;
    const int bord = BordNummer();
    for (int kolom = 0; kolom < 16 && BordNummer() == bord; ++kolom) {
        for (int rij = 0; rij < 19; ++rij)
            if (const PictureBox *vak = LeegVak(doel, kolom * Cell, rij * Cell))
                PlakTegel(doel, vak->Image(), kolom * VakMaat, rij * VakMaat);
        Wachten(0.2);
    }
}
