#include "generators/SudokuSpel.h"

#include "board/Algemeen.h"
#include "board/MainForm.h"
#include "generators/SudokuMod.h"
#include "platform/Fout.h"
#include "platform/Kleur.h"
#include "platform/Toeval.h"

constexpr int Hint = 11;

static int Oplossing(int cel)
{
    const auto index = static_cast<size_t>(cel); // huge for a negative one
    if (index >= SudokuOplossing.size())
        throw Fout(Fout::IndexBuitenBereik);
    return SudokuOplossing[index];
}

void TekenOplossing()
{
    PictureBox &groot = *Main().PicGroot;
    groot.ZetLetter(BordLetterGroot);
    for (int cel = 0; cel < 81; ++cel) {
        const int x = 150 + cel % 9 * VakMaatGroot;
        const int y = 150 + cel / 9 * VakMaatGroot;
        groot.BoxFull(x, y, x + 1530, y + 1530, RGB(255, 255, 255));
        groot.PrintOp(x + 330, y + 180, Oplossing(cel));
    }
}

/// Whether a cell is given: 7, 5 or 3 of ten are, by the level, each by chance.
static bool IsGegeven(int niveau)
{
    Toeval::Randomize();
    return static_cast<int>(static_cast<float>(Toeval::Rnd()) * 10 + 1) < niveau;
}

void StartKnop_Click()
{
    MainForm &main = Main();
    main.StartKnop->Druk();
    int niveau = 8;
    for (const QRadioButton *optie : main.Option) {
        if (optie->isChecked())
            break;
        niveau -= 2;
    }
    MaakSudoku();
    TekenOplossing();
    main.Pic->ZetLetter({.Punten = 12, .Vet = true, .Kleur = RGB(30, 30, 30)});
    for (int cel = 0; cel < 81; ++cel) {
        const int x = 105 + cel % 9 * VakMaat;
        const int y = 105 + cel / 9 * VakMaat;
        main.Pic->BoxFull(x - 60, y - 60, x + 300, y + 300, RGB(255, 255, 255));
        if (IsGegeven(niveau)) {
            main.Pic->BoxFull(x - 60, y - 60, x + 300, y + 300, RGB(235, 235, 205));
            main.Pic->PrintOp(x, y, Oplossing(cel));
        }
    }
}

// A given cell isn't protected: it loses its tint. PicGroot shows the solution all along; only its letter is set.
void SuMe_Click(int index)
{
    MainForm &main = Main();
    const int x = CurCol * VakMaat + 105;
    const int y = CurRow * VakMaat + 105;
    const int juist = Oplossing(CurCell - 1);
    main.Pic->BoxFull(x - 45, y - 45, x + 300, y + 300, RGB(255, 255, 255));
    main.Pic->ZetLetter({.Punten = 12, .Kleur = RGB(30, 30, 30)});
    main.PicGroot->ZetLetter({.Punten = 48, .Kleur = RGB(0, 0, 0)});
    if (index < 10) {
        main.Pic->ForeColor = index == juist ? RGB(0, 150, 0) : RGB(150, 0, 0);
        main.Pic->PrintOp(x, y, index);
    }
    if (index == Hint) {
        main.Pic->ForeColor = RGB(0, 150, 0);
        main.Pic->PrintOp(x, y, juist);
    }
    main.Shape1->hide();
}
