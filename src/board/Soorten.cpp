#include "board/Soorten.h"

#include <array>

using namespace Qt::StringLiterals;

const Soort *SoortVan(quint8 type)
{
    // clang-format off
    static const std::array<Soort, 5> Soorten{{
        // caption                                     menu   info   fill   number black  lines    F9     clear  width height row
        {u"Soortpuzzel : Zweeds"_s,       true,  true,  false, false, true,  u"HV"_s,   false, false, 0,  0,  false},
        {u"Soortpuzzel : Woordzoeker"_s,  true,  false, true,  false, true,  u"HVRL"_s, false, false, 0,  0,  false},
        {u"Soortpuzzel : Kruiswoord"_s,   true,  false, false, true,  true,  u"HV"_s,   false, false, 0,  0,  false},
        {u"Soortpuzzel : Sudoku"_s,       false, false, false, false, false, QString(),              true,  false, 9,  9,  false},
        {u"Soortpuzzel : Filippine"_s,    false, false, false, false, true,  QString(),              false, true,  16, 19, true},
    }};
    // clang-format on
    return type >= 1 && type <= Soorten.size() ? &Soorten[type - 1u] : nullptr;
}
