#pragma once

#include <QString>

struct Drukwerk;
class PagedCanvas;

// A job for each kind of puzzle. It begins the document with the head of the first page and closes it. What fails in
// the head is raised; from there on a statement that fails is passed over, and the next one runs.

/// The board, the puzzle sheet over a whole page, and the list on as many pages as it takes: three pages at least.
void PrintZweeds(PagedCanvas &blad, const Drukwerk &werk);
/// One page: the board, and the words below it in columns.
void PrintWoordzoeker(PagedCanvas &blad, const Drukwerk &werk);
/// Two pages: the puzzle sheet, and the clues in a column for each direction.
void PrintKruiswoord(PagedCanvas &blad, const Drukwerk &werk);
/// One page: the board, and the solution below it when that is asked for.
void PrintSudoku(PagedCanvas &blad, const Drukwerk &werk);
/// One page: the board, and the clues below it, numbered.
void PrintFilippine(PagedCanvas &blad, const Drukwerk &werk);

/// What the kind of a puzzle changes in printing it.
struct PrintTaak
{
    QString Titel;
    QString Sjabloon; ///< the picture of a sample sheet
    void (*Druk)(PagedCanvas &blad, const Drukwerk &werk);
};

/// @param type the kind; nullptr for a number that is none, which a damaged file may hold
const PrintTaak *PrintTaakVan(quint8 type);
