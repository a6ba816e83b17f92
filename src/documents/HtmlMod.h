#pragma once

#include "board/Rij.h"

#include <QByteArray>
#include <QList>

// The web page of a puzzle. Each line ends in CR LF, the last one too. What the puzzle holds stands there as it is:
// nothing is escaped.

/// The whole page, in code page 1252. It shows the picture "Images\naam.bmp", and beside that the list.
/// @param soort the kind; a number that is none gives the picture as it is and no list
QByteArray HtmlPagina(const QString &naam, quint8 soort, const QList<Rij> &rijen);

/// The style block.
QString HtmlStijl();

/// The rows as lines: of a Woordzoeker the words, of a Kruiswoord and a Filippine the clues with their numbers; of
/// another kind none. A number outside 0..255 is passed over: its row has that of the row before, the first one 0.
QString HtmlLijst(quint8 soort, const QList<Rij> &rijen);
