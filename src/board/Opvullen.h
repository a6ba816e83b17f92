#pragma once

/// Fills each empty cell of the visible board with a random letter, so that it can be seen as it runs: 0.01 seconds a
/// cell. A cell is empty when the line of pixels through its middle is white. The large board gets no letters, and the
/// puzzle doesn't count as changed. It ends when another board appears meanwhile.
void VulLegeVakjes();
