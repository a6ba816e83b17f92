#pragma once

class Fotograaf;

/// The pictures of a manual, each window in a state that tells what it is for. They are taken on the main window, with
/// the data of an installation below AppPath, in this order: each makes the puzzle that it needs.
namespace Taferelen {

void Zweeds(Fotograaf &foto);     ///< the first puzzle, and the windows that it takes
void Kruiswoord(Fotograaf &foto); ///< and the windows for a letter and a number
void Filippine(Fotograaf &foto);
void Sudoku(Fotograaf &foto);
void Woordzoeker(Fotograaf &foto);  ///< made by hand and by itself
void Hulpmiddelen(Fotograaf &foto); ///< the word tools
void Programma(Fotograaf &foto);    ///< the main window, and the other windows of the program

} // namespace Taferelen
