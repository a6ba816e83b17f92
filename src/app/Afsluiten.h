#pragma once

/// The end of the program: asks when the puzzle has changed, and writes the settings. @return whether it may end
bool SluitMain();
