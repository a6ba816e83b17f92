#include "board/Raster.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "board/Plaats.h"
#include "platform/Kleur.h"
#include "platform/Twips.h"

// Outer sizes of the boards, in twips, as numbers that cannot overflow.
static double PicMaat(int vakjes)
{
    return double{VakMaat} * vakjes + 15;
}

static double PlaatMaat(int vakjes)
{
    return PicMaat(vakjes) + 195;
}

static double GrootMaat(int vakjes)
{
    return double{VakMaatGroot} * vakjes + 45;
}

static constexpr int RowStripWidth = 450;
static constexpr int ColumnStripHeight = 300;

void ControleerBord(int breedte, int hoogte)
{
    const MainForm &main = Main();
    main.Pic->ControleerMaat(PicMaat(breedte), PicMaat(hoogte));
    main.PicGroot->ControleerMaat(GrootMaat(breedte), GrootMaat(hoogte));
    main.PicO->ControleerMaat(PlaatMaat(breedte), ColumnStripHeight);
    main.PicR->ControleerMaat(RowStripWidth, PlaatMaat(hoogte));
}

static void Banden(PictureBox &pic, int van1, int tot1, int van2, int tot2, QRgb kleur)
{
    pic.BoxFull(van1, 0, tot1, pic.Height(), kleur);
    pic.BoxFull(van2, 0, tot2, pic.Height(), kleur);
    pic.BoxFull(0, van1, pic.Width(), tot1, kleur);
    pic.BoxFull(0, van2, pic.Width(), tot2, kleur);
}

/// Prints one number or letter of a ruler. Only its own place is wiped first, as a smoothed letter printed over itself
/// grows bold.
static void DrukOpLiniaal(PictureBox &strook, double x, double y, const QString &tekst)
{
    strook.BoxFull(x, y, x + strook.TextWidth(tekst), y + strook.TextHeight(tekst), strook.BackColor);
    strook.PrintOp(x, y, tekst);
}

// The strips are not cleared: what a larger earlier board left there is only hidden by their size. Wanted so.
static void Linialen(int breedte, int hoogte)
{
    MainForm &main = Main();
    const double plaatBreedte = PlaatMaat(breedte);
    const double plaatHoogte = PlaatMaat(hoogte);

    main.PicR->move(Twips::NaarPixels(plaatBreedte + 195), main.PicR->y());
    main.PicR->SetSize(RowStripWidth, plaatHoogte);
    for (int rij = 0; rij < hoogte; ++rij)
        DrukOpLiniaal(*main.PicR, 90, 210 + rij * VakMaat, RijTekst(rij));

    main.PicO->move(main.PicO->x(), Twips::NaarPixels(plaatHoogte + 795));
    main.PicO->SetSize(plaatBreedte, ColumnStripHeight);
    for (int kolom = 0; kolom < breedte; ++kolom)
        DrukOpLiniaal(*main.PicO, 255 + kolom * VakMaat, 30, KolomTekst(kolom));
    main.Label1->resize(Twips::NaarPixels(plaatBreedte), Twips::NaarPixels(plaatHoogte));
    main.Frame8->resize(Twips::NaarPixels(plaatBreedte), main.Frame8->height());
}

void TekenRaster(int breedte, int hoogte)
{
    ControleerBord(breedte, hoogte);
    PictureBox &pic = *Main().Pic;
    const QRgb lijn = RGB(150, 150, 150);

    pic.SetPicture({});
    pic.SetSize(PicMaat(breedte), PicMaat(hoogte));
    for (int kolom = 0; kolom <= breedte; ++kolom)
        pic.Line(kolom * VakMaat, 0, kolom * VakMaat, pic.Height(), lijn);
    for (int rij = 0; rij <= hoogte; ++rij)
        pic.Line(0, rij * VakMaat, pic.Width(), rij * VakMaat, lijn);
    if (PuzzelType == Sudoku)
        Banden(pic, 1335, 1365, 2685, 2715, lijn);
    Linialen(breedte, hoogte);
}

void TekenGroot(int breedte, int hoogte)
{
    ControleerBord(breedte, hoogte);
    PictureBox &pic = *Main().PicGroot;
    pic.SetSize(GrootMaat(breedte), GrootMaat(hoogte));
    if (breedte == 0 || hoogte == 0)
        pic.Cls(); // a mere edge, without a tile
    else
        pic.Betegel(Main().PicVak->Image(), Twips::NaarPixels(VakMaatGroot));
    if (PuzzelType == Sudoku)
        Banden(pic, 5355, 5490, 10755, 10890, RGB(0, 0, 0));
}

static int bordNummer = 0;

int BordNummer()
{
    return bordNummer;
}

void TekenBord(int breedte, int hoogte)
{
    TekenRaster(breedte, hoogte);
    TekenGroot(breedte, hoogte);
    ++bordNummer;
}
