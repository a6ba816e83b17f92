#pragma once

#include <QString>

class PagedCanvas;

/// Prints words in four columns, on as many pages as they take, and closes the document. PosX and PosY go with each
/// word: they end where the word behind the last one would stand, and a search then goes no further than that.
/// @param titel what stands above the first page, with the date and the time beside it
void DrukLijst(PagedCanvas &blad, const QString &titel, const QStringList &woorden);
