#pragma once

#include <QByteArray>
#include <QImage>

class QIODevice;
class QSvgRenderer;

/// Draws a vector drawing over a whole surface. @param maat the surface's size in logical pixels
void TekenSvg(QPaintDevice &doel, QSvgRenderer &tekening, QSize maat);

// A picture that was drawn out: its width and height in pixels, four bytes each, then its pixels row by row as they are
// in memory (ARGB32, premultiplied). It is read on the machine that it was made for.

/// @return whether all was written
bool SchrijfBeeld(QIODevice &doel, const QImage &beeld);
QSize BeeldMaat(const QByteArray &bytes);
QImage LeesBeeld(const QByteArray &bytes);
