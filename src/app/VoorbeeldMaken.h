#pragma once

#include "app/VoorbeeldBron.h"

#include <functional>

namespace Voorbeeld {

/// Makes a puzzle through the windows of the program and saves it under its name; a Filippine then once more, wiped
/// blank, under the other one. What is left to chance comes out the same each time. Raises Fout::OngeldigeWaarde when
/// the words of a word search cannot be placed together, and Fout::SchijfFout when the puzzle was not saved.
/// @param bewaard called with the name after each save, while the puzzle still stands there
void MaakPuzzel(const Puzzel &puzzel, const std::function<void(const QString &naam)> &bewaard);

/// Writes the web page of the puzzle that was made. Raises Fout::SchijfFout when page or picture isn't there then.
void MaakPagina();

} // namespace Voorbeeld
