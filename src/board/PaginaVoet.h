#pragma once

#include <QString>

class Canvas;

/// The foot of a printed page: the text that is on all pages. @param blad in twips
void PrintPaginaVoet(Canvas &blad, const QString &paginaTekst);
