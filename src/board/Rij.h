#pragma once

#include <QString>

/// A row of the entry list, by its columns: one placed word.
struct Rij
{
    QString Vaknummer;    ///< place and direction, such as "C-07 / 99-H"; "-" for a word that is tied to no place
    QString Omschrijving; ///< the clue, may be empty
    QString Oplossing;    ///< the word, with "ij" as two letters
    QString Nr;           ///< for a Kruiswoord the number of the cell, otherwise "-"

    bool operator==(const Rij &) const = default;
};
