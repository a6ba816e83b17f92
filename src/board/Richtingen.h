#pragma once

#include <QChar>

#include <array>

/// A direction in which a word runs: its letter, and the cells that each letter of the word is further on.
///
///          * -> H
///        / | \    .
///       L  V  R
struct Richting
{
    char16_t Letter;
    int Kolommen, Rijen;
};

/// To the right, downward, diagonally to the right and down, diagonally to the left and down.
inline constexpr auto Richtingen = std::to_array<Richting>({
    {u'H', 1, 0},
    {u'V', 0, 1},
    {u'R', 1, 1},
    {u'L', -1, 1},
});

/// @return nullptr for a letter that is no direction
constexpr const Richting *RichtingVan(QChar letter)
{
    for (const Richting &richting : Richtingen)
        if (letter == richting.Letter)
            return &richting;
    return nullptr;
}
