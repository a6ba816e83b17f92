#pragma once

#include <QHash>
#include <QList>
#include <QStringList>

// The description of a sample puzzle: a text with one entry a line, fields separated by "|". The first line is the
// name, the second one tells the kind and the size, and what is in the puzzle follows. Blank lines are passed over.
//
//     naam|NAME
//     maat|COLUMNS|ROWS           a Zweeds puzzle, then:
//       vak|A-01|KIND|clue          its lines separated by "\"
//       woord|A-01|H or V|solution|clue
//     kruiswoord|COLUMNS|ROWS     then the same words; cells without a letter are black, the numbers are made
//     woordzoeker|COLUMNS|ROWS    a word search, then:
//       woord|word
//     sudoku|LEVEL                Gemakkelijk, Normaal or Moeilijk, and nothing more
//     filippine|BLANK|J-01|word   the name of the blank puzzle, where the search word begins and which it is, then for
//                                 each of its letters, from the first:
//       antwoord|D-01|word|clue     where its number stands

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
    Cel Waar; ///< of its first letter; in a Filippine of the number before it
    bool Horizontaal;
    QString Oplossing, Omschrijving;
    int Nummer = 0; ///< of its first cell, in a Kruiswoord only
};

/// What a description tells. Everything in it is right: the cells are on the board, each word has room there, and words
/// that cross share the letter.
struct Puzzel
{
    QString Naam;
    quint8 Soort = 0;
    int Breedte = 0, Hoogte = 0;
    QList<Vakje> Vakjes;
    QList<Woord> Woorden;
    QHash<int, QChar> Letters; ///< by cell, counted from 0; "?" is the long IJ
    QStringList Zoekwoorden;   ///< of a word search
    int Niveau = 0;            ///< of a Sudoku: from 0, the easiest one
    QString LegeNaam;          ///< of a Filippine: the name of the blank puzzle
    Cel WaarZoekwoord;         ///< of a Filippine
    QString Zoekwoord;         ///< of a Filippine

    int Vak(Cel cel) const { return cel.Rij * Breedte + cel.Kolom; }
    /// The names that it is saved under.
    QStringList Namen() const { return LegeNaam.isEmpty() ? QStringList{Naam} : QStringList{Naam, LegeNaam}; }
};

/// Reads a whole description. Raises Fout::BestandNietGevonden; Fout::OngeldigeWaarde, with the number of the line, at
/// the first thing wrong.
Puzzel LeesBron(const QString &pad);

} // namespace Voorbeeld
