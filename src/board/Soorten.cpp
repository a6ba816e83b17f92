#include "board/Soorten.h"

#include <array>

using namespace Qt::StringLiterals;

const Soort *SoortVan(quint8 type)
{
    using enum LinkerKlik;
    // clang-format off
    static const std::array<Soort, AantalSoorten> Soorten{{
        // caption                       option                 preview                 left click  info   fill   number black  lines     F9     clear  width height row
        {u"Soortpuzzel : Zweeds"_s,      u"Zweedse Puzzel"_s,    u"soort-zweeds"_s,      VakMenu,    true,  false, false, true,  u"HV"_s,   false, false, 0,  0,  false},
        {u"Soortpuzzel : Woordzoeker"_s, u"Woordzoeker"_s,       u"soort-woordzoeker"_s, VakMenu,    false, true,  false, true,  u"HVRL"_s, false, false, 0,  0,  false},
        {u"Soortpuzzel : Kruiswoord"_s,  u"Kruiswoord Puzzel"_s, u"soort-kruiswoord"_s,  VakMenu,    false, false, true,  true,  u"HV"_s,   false, false, 0,  0,  false},
        {u"Soortpuzzel : Sudoku"_s,      u"Sudoku Puzzel"_s,     u"soort-sudoku"_s,      SudokuMenu, false, false, false, false, u""_s,     true,  false, 9,  9,  false},
        {u"Soortpuzzel : Filippine"_s,   u"Filippine Puzzel"_s,  u"soort-filippine"_s,   Editor,     false, false, false, true,  u""_s,     false, true,  16, 19, true},
    }};
    // clang-format on
    return type >= 1 && type <= Soorten.size() ? &Soorten[type - 1u] : nullptr;
}
