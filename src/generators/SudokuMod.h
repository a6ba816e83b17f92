#pragma once

#include <QString>

#include <array>

/// The finished Sudoku that was made last, row by row: index = row x 9 + column, digits 1 to 9; zeros before there is
/// one. It belongs to the run of the program: it is not saved with a puzzle, and opening one leaves it as it stands.
extern std::array<qint32, 81> SudokuOplossing;

/// Fills SudokuOplossing with a new Sudoku.
void MaakSudoku();

/// A Sudoku that is being filled: 81 cells as in SudokuOplossing, 0 for an empty one.
class SudokuRaster
{
public:
    int operator[](int cel) const { return cellen_[static_cast<size_t>(cel)]; }
    /// Fills a cell that is empty. @param cijfer 1..9
    void Zet(int cel, int cijfer);
    /// The digits that are still free in a cell: bit 1 up to bit 9.
    unsigned Vrij(int cel) const;
    /// The same as a text, ascending; empty when there are none.
    QString Kandidaten(int cel) const;

private:
    std::array<qint16, 81> cellen_{};
    std::array<unsigned, 9> inRij_{}, inKolom_{}, inBlok_{}; ///< the digits that stand there, as in Vrij
};

/// A random number from the first up to the second, both included.
qint32 RandomGetal(qint32 Laag, qint32 Hoog);
