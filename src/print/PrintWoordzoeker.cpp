#include "platform/Kleur.h"
#include "platform/Teksten.h"
#include "print/Pagina.h"
#include "print/PrintTaken.h"

// There is no second page: a very long list runs off the right edge.
void PrintWoordzoeker(PagedCanvas &blad, const Drukwerk &werk)
{
    PrintPaginaKop(blad, werk);
    Pagina pagina(blad, werk);
    pagina.PrintBord(werk.Pic, 600);
    pagina.ZetLetter({.Punten = 9, .Kleur = RGB(50, 50, 50)});
    const int Y0 = werk.BoardHeight * 600 + 1500;
    int X = 600, Y = Y0;
    for (const Rij &rij : werk.Rijen) {
        pagina.PrintOp(X, Y, Hoofdletters(rij.Oplossing));
        Y += 240;
        if (Y > 15450) {
            Y = Y0;
            X += 2400;
        }
    }
    pagina.SluitAf();
}
