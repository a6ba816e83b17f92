#include "board/Soorten.h"

#include <array>

const Soort *SoortVan(quint8 type)
{
    // clang-format off
    static const std::array<Soort, 5> Soorten{{
        // caption                                     menu   info   fill   number black  lines    F9     clear  width height row
        {QStringLiteral("Soortpuzzel : Zweeds"),       true,  true,  false, false, true,  QStringLiteral("HV"),   false, false, 0,  0,  false},
        {QStringLiteral("Soortpuzzel : Woordzoeker"),  true,  false, true,  false, true,  QStringLiteral("HVRL"), false, false, 0,  0,  false},
        {QStringLiteral("Soortpuzzel : Kruiswoord"),   true,  false, false, true,  true,  QStringLiteral("HV"),   false, false, 0,  0,  false},
        {QStringLiteral("Soortpuzzel : Sudoku"),       false, false, false, false, false, QString(),              true,  false, 9,  9,  false},
        {QStringLiteral("Soortpuzzel : Filippine"),    false, false, false, false, true,  QString(),              false, true,  16, 19, true},
    }};
    // clang-format on
    return type >= 1 && type <= Soorten.size() ? &Soorten[type - 1u] : nullptr;
}
