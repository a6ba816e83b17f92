#include "platform/Getallen.h"
#include "platform/Kleur.h"
#include "platform/Teksten.h"
#include "print/Pagina.h"
#include "print/PrintTaken.h"

// There is no second page. What moves a number to the right is its row, not the number itself.
void PrintFilippine(PagedCanvas &blad, const Drukwerk &werk)
{
    constexpr int Maat = 450;
    PrintPaginaKop(blad, werk);
    Pagina pagina(blad, werk);
    pagina.PrintBord(werk.Pic, Maat);
    pagina.ZetLetter({.Punten = 9, .Kleur = RGB(50, 50, 50)});
    int Y = werk.BoardHeight * Maat + 1350;
    for (qsizetype I = 1; I <= werk.Rijen.size(); ++I) {
        const Rij &rij = werk.Rijen[I - 1];
        pagina.PrintOp(I < 10 ? 705 : 600, Y, QString::number(Getallen::Val(rij.Vaknummer), 'g', 15) + u'.');
        pagina.PrintOp(990, Y, Hoofdletters(rij.Omschrijving));
        Y += 240;
    }
    pagina.SluitAf();
}
