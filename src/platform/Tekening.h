#pragma once

#include <QSize>

class QPaintDevice;
class QSvgRenderer;

/// Draws a vector drawing over a whole surface. @param maat the surface's size in logical pixels
void TekenSvg(QPaintDevice &doel, QSvgRenderer &tekening, QSize maat);
