#pragma once

#include <QString>

/// The items of the pop-up of a cell, by their index. Between them, at 4, 6 and 8, stand separators.
namespace VakMenu {
enum Item { Infovakje = 1, Oplossing = 2, Letter = 3, Opvullen = 5, Vaknummer = 7, Annuleren = 9 };
}

/// What a left click on a cell leads to.
enum class LinkerKlik {
    VakMenu,    ///< the pop-up SoortPlaatsing
    SudokuMenu, ///< the pop-up SudokuMenu
    Editor,     ///< the editor of the kind, at once
};

/// What the kind of a puzzle changes.
struct Soort
{
    QString Opschrift; ///< caption of Label12
    QString Optie;     ///< its option in the dialog that begins a puzzle
    QString Voorbeeld; ///< its picture there
    LinkerKlik Klik;
    bool MetInfovakje;   ///< the item of the pop-up is enabled
    bool MetOpvullen;    ///< the same
    bool MetVaknummer;   ///< the same
    bool MetZwart;       ///< a right click blacks a cell out
    QString Richtingen;  ///< the directions of an entry that the line is shown for
    bool MetFrame9;      ///< the Sudoku panel is shown
    bool MetVerwijderen; ///< the two commands that clear a Filippine are enabled
    int VasteBreedte;    ///< the size that a new board always has; 0 when it is as chosen
    int VasteHoogte;
    bool AlleenRij; ///< the coordinates label shows the row only
};

/// How many kinds there are; they are numbered from 1.
inline constexpr int AantalSoorten = 5;

/// @param type the kind; nullptr for a number that is none, which a damaged file may hold
const Soort *SoortVan(quint8 type);
