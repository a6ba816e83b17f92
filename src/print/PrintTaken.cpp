#include "print/PrintTaken.h"

#include "board/Soorten.h"

#include <array>

using namespace Qt::StringLiterals;

const PrintTaak *PrintTaakVan(quint8 type)
{
    static const std::array<PrintTaak, AantalSoorten> Taken{{
        {u"Zweedse puzzel afdrukken op meerdere pagina's"_s, u"sjabloon1"_s, PrintZweeds},
        {u"Woordzoeker afdrukken"_s, u"sjabloon2"_s, PrintWoordzoeker},
        {u"Kruiswoordpuzzel afdrukken op 2 pagina's"_s, u"sjabloon3"_s, PrintKruiswoord},
        {u"Sudoku Puzzel afdrukken"_s, u"sjabloon4"_s, PrintSudoku},
        {u"Filippine Puzzel afdrukken"_s, u"sjabloon5"_s, PrintFilippine},
    }};
    return type >= 1 && type <= Taken.size() ? &Taken[type - 1u] : nullptr;
}
