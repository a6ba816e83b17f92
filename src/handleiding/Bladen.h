#pragma once

#include <QList>

/// A piece of a document that is as wide as its page and is never divided: a paragraph, an item of a list, a picture, a
/// row of a table. In units of the document, downwards from its top.
struct Stuk
{
    double Boven, Onder;
    bool NieuwBlad = false;  ///< it begins a page
    bool BijVolgend = false; ///< no page ends with it, unless the document does
};

/// Divides pieces, from top to bottom, over pages. @return of each page the index of its first piece
/// Raises Fout::OngeldigeWaarde, with the number of the first piece from 1 on, when pieces that belong together are
/// higher than a page.
QList<int> VerdeelOverBladen(const QList<Stuk> &stukken, double hoogte);
