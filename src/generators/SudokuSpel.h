#pragma once

// A Sudoku on the board of the main window. What is hidden and what the player has chosen lives in the pixels of Pic
// alone.

/// Draws the whole solution on PicGroot.
void TekenOplossing();
/// Makes a new Sudoku of the level that is chosen, and draws it.
void StartKnop_Click();
/// Puts a digit into the current cell, green when it is right and red when it is not.
/// @param index 1..9 for the digit, 11 for the one that belongs there
/// Raises Fout::IndexBuitenBereik when the current cell is none of the 81; nothing has changed then.
void SuMe_Click(int index);
