#pragma once

#include <QString>

/// What the kind of a puzzle changes on the board.
struct Soort
{
    QString Opschrift;   ///< caption of Label12
    bool MetVakMenu;     ///< a left click shows the pop-up SoortPlaatsing
    bool MetInfovakje;   ///< its item 1 is enabled
    bool MetOpvullen;    ///< its item 5 is enabled
    bool MetVaknummer;   ///< its item 7 is enabled
    bool MetZwart;       ///< a right click blacks a cell out
    QString Richtingen;  ///< the directions of an entry that the line is shown for
    bool MetFrame9;      ///< the Sudoku panel is shown
    bool MetVerwijderen; ///< the two commands that clear a Filippine are enabled
    int VasteBreedte;    ///< the size that a new board always has; 0 when it is as chosen
    int VasteHoogte;
    bool AlleenRij; ///< the coordinates label shows the row only
};

/// @param type the kind, 1..5; nullptr for any other value, which a damaged file may hold
const Soort *SoortVan(quint8 type);
