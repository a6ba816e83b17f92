#pragma once

#include <QString>

/// The folder of puzzles.
QString PuzzelMap();

/// A file in the folder of puzzles. Raises Fout::OngeldigeNaam as Files::Pad does.
QString PuzzelPad(const QString &bestand);
