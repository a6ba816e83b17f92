#pragma once

#include <QString>

// A place on the board as it is written: "C-07 / 99", column, row and running number of the cell. In the entry list the
// direction of the word stands behind it: "C-07 / 99-H".

/// A row of the board as it is shown, from row 0: "01" up to "19".
QString RijTekst(int rij);
/// A column as it is shown, from column 0: "A" up to "P". Beyond those it is whatever sign comes next.
QString KolomTekst(int kolom);
/// A cell as it is shown. @param kolom,rij from 0  @param vak the running number
QString PlaatsTekst(int kolom, int rij, int vak);

/// What the text of a place says.
struct Plaats
{
    double Kolom;   ///< from 0
    double Rij;     ///< from 0
    QChar Richting; ///< the last character of the text: the letter of a direction, if it has one
};

/// Reads a place by the roles of its characters: the first is the column, the third and fourth are the row, the last is
/// the direction. The text is trusted; another text than a place gives numbers all the same. It must not be empty.
Plaats LeesPlaats(const QString &tekst);
