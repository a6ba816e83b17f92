#include "board/PaginaVoet.h"

#include "platform/Canvas.h"
#include "platform/Kleur.h"

void PrintPaginaVoet(Canvas &blad, const QString &paginaTekst)
{
    blad.ZetLetter({.Punten = 9, .Vet = false, .Kleur = RGB(0, 0, 0)});
    blad.PrintOp(600, 16200, paginaTekst);
}
