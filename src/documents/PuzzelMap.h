#pragma once

#include <QString>

/// The folder of puzzles.
QString PuzzelMap();

/// A file in the folder of puzzles. Raises Fout::OngeldigeNaam as Files::Pad does.
QString PuzzelPad(const QString &bestand);

/// Finishes what a program that was killed has left, in all folders that it writes to. For the start; never fails.
void HerstelBestanden();
