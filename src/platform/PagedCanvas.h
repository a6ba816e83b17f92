#pragma once

#include "platform/Canvas.h"

/// A document of pages that are drawn one after the other. What is drawn on the page that is there is placed from the
/// top left of its printable area. The first drawing begins the document.
class PagedCanvas : public Canvas
{
public:
    /// The name of the next document that begins, such as the puzzle's.
    QString Titel;

    virtual void NewPage() = 0; ///< ends the page; the next one begins with CurrentX and CurrentY at 0
    virtual void EndDoc() = 0;  ///< ends the document and hands it over; nothing when none has begun

protected:
    PagedCanvas() : Canvas(1) {}
};
