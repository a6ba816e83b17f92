#pragma once

#include <QPainter>

/// Draws an outline within a rectangle, of bars: with a pen a side that falls between two pixels is lost, where the
/// scale of the screen is no whole number.
/// @param dikte how thick the bars are, in the painter's units
inline void TekenKader(QPainter &painter, const QRect &vlak, int dikte, const QColor &kleur)
{
    for (const QRect &zijde :
         {vlak.adjusted(0, 0, 0, dikte - vlak.height()), vlak.adjusted(0, vlak.height() - dikte, 0, 0),
          vlak.adjusted(0, 0, dikte - vlak.width(), 0), vlak.adjusted(vlak.width() - dikte, 0, 0, 0)})
        painter.fillRect(zijde, kleur);
}
