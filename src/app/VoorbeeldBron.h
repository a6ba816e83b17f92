#pragma once

#include <QList>
#include <QString>

// The description of a sample puzzle: a text with one entry a line, fields separated by "|". The first line is the
// name, the second one tells the kind and the size, and what is in the puzzle follows. Blank lines are passed over.
//
//     naam|NAME
//     maat|COLUMNS|ROWS           a Zweeds puzzle, then:
//       vak|A-01|KIND|clue          its lines separated by "\"
//       woord|A-01|H or V|solution|clue
//     woordzoeker|COLUMNS|ROWS    a word search, then:
//       woord|word
//     sudoku|LEVEL                Gemakkelijk, Normaal or Moeilijk, and nothing more

namespace Voorbeeld {

/// A cell, counted from 0.
struct Cel
{
    int Kolom = 0, Rij = 0;
};

struct Vakje
{
    Cel Waar;
    int Soort; ///< 1..8
    QString Omschrijving;
};

struct Woord
{
    Cel Waar;
    bool Horizontaal;
    QString Oplossing, Omschrijving;
};

/// What a description tells. Everything in it is right: the cells are on the board and each word has room there.
struct Puzzel
{
    QString Naam;
    quint8 Soort = 0; ///< Zweeds, Woordzoeker or Sudoku
    int Breedte = 0, Hoogte = 0;
    QList<Vakje> Vakjes;
    QList<Woord> Woorden;
    QStringList Zoekwoorden; ///< of a word search
    int Niveau = 0;          ///< of a Sudoku: from 0, the easiest one
};

/// Reads a whole description. Raises Fout::BestandNietGevonden; Fout::OngeldigeWaarde, with the number of the line, at
/// the first thing wrong.
Puzzel LeesBron(const QString &pad);

} // namespace Voorbeeld
