#pragma once

#include "board/Rij.h"

#include <QDateTime>
#include <QImage>
#include <QList>

/// A puzzle as it is printed.
struct Drukwerk
{
    QString PuzzelNaam;
    qint32 BoardWidth = 0, BoardHeight = 0; ///< cells
    QList<Rij> Rijen;
    QImage Pic, PicGroot;   ///< the boards
    QString PaginaTekst;    ///< the foot of every page
    bool MetTijd = false;   ///< the head tells the date and the time
    bool Oplossing = false; ///< a Sudoku has its solution below the board
    QDateTime Nu = {};      ///< the date and the time that the head tells
};
