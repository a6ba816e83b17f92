#pragma once

#include "app/VoorbeeldBron.h"

namespace Voorbeeld {

/// Makes a puzzle through the windows of the program and saves it under its name. What is left to chance comes out the
/// same each time. Raises Fout::OngeldigeWaarde when the words of a word search cannot be placed together, and
/// Fout::SchijfFout when the puzzle was not saved.
void MaakPuzzel(const Puzzel &puzzel);

/// Writes the web page of the puzzle that was made. Raises Fout::SchijfFout when page or picture isn't there then.
void MaakPagina();

} // namespace Voorbeeld
