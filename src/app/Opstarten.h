#pragma once

/// The load of the main window behind its making: what a killed program left is finished, start values, the empty board
/// of 16 by 19, the settings. Raises what LaadInstellingen raises.
void LaadMain();
