#pragma once

/// Reads the settings file into the globals. One that is missing or cannot be opened is written with what the globals
/// hold, if that can be done. Raises Fout when the file is damaged, and leaves it and the globals as they are then.
void LaadInstellingen();

/// Writes the settings file from the globals. Raises Fout when it cannot be written.
void BewaarInstellingen();
