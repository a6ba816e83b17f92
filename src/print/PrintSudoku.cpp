#include "print/Pagina.h"
#include "print/PrintTaken.h"

void PrintSudoku(PagedCanvas &blad, const Drukwerk &werk)
{
    constexpr int Maat = 750;
    PrintPaginaKop(blad, werk);
    Pagina pagina(blad, werk);
    pagina.PrintBord(werk.Pic, Maat);
    if (werk.Oplossing)
        pagina.PrintBord(werk.PicGroot, Maat, 8400);
    pagina.SluitAf();
}
