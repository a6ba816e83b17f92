#pragma once

/// Checks that both boards can be as large as this many cells. Raises Fout::OngeldigeWaarde or Fout::GeheugenVol.
void ControleerBord(int breedte, int hoogte);

/// Draws the visible board from nothing: grid, rulers, plate. Raises what ControleerBord raises, and nothing is drawn
/// then.
void TekenRaster(int breedte, int hoogte);

/// Draws the large board from nothing. Raises the same.
///
/// Each tile is 1845 wide on a pitch of 1800: the frames of neighbours overlap by 45.
///
///     0    45              1800 1845
///     +----+----------------+----+
///     |####|     white      |####|  <- also the left frame of the next tile
void TekenGroot(int breedte, int hoogte);

/// How many boards there have been. What works on one with events running ends when there is another.
int BordNummer();

/// A board appears: both pictures are drawn from nothing. Raises what ControleerBord raises, and nothing is drawn then.
void TekenBord(int breedte, int hoogte);
