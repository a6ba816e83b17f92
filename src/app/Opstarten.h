#pragma once

/// The load of the main window behind its making: what a killed program left is finished, start values, the empty board
/// of 16 by 19, the settings. A settings file that is missing or cannot be opened is written with the defaults, if that
/// can be done. Raises Fout when the file is damaged, and leaves it as it is then.
void LaadMain();

/// The shutdown: asks when the puzzle has changed and writes the settings. @return whether the program may end
bool SluitMain();
