#pragma once

#include "platform/PictureBox.h"

inline constexpr int TegelMaat = 465; ///< an answer cell, twips: it shares its edges with its neighbours

/// Paints an answer cell, with its top left at a place in twips.
void PlakTegel(PictureBox &doel, const QImage &tegel, int x, int y);

// What turns the finished board of a Filippine into the blank puzzle. Both can be done more than once and cannot be
// undone. Events run meanwhile; both end when another board appears. The two kinds of answer cell are told apart by the
// red component of their background alone.

/// Whitens the lines of the raster: every pixel whose red component is 150, whatever it belongs to.
void VerwijderRaster(PictureBox &doel);

/// Paints every answer cell anew without its letter, a column at a time, 0.2 seconds each. It always goes over 16 by 19
/// cells. Number cells and white cells stay as they are.
void VerwijderLetters(PictureBox &doel);
