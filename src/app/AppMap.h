#pragma once

#include <QString>

/// The folder that AppPath is to be: the one that was asked for; else the program's own when it holds a folder Data;
/// else the user's, filled on first use from what is installed.
/// @param gevraagd the folder given at start-up, empty for none
/// @param eigen the folder that the program's file is in
/// @param gebruiker the user's data folder for this program
/// @param installatie the folder with the installed files
/// Raises Fout when the folder that was asked for is none, or when the user's cannot be made or filled.
QString KiesAppMap(const QString &gevraagd, const QString &eigen, const QString &gebruiker, const QString &installatie);
