#pragma once

#include <QString>

/// Makes the JPEG of the large board in the user's own picture folder, by way of a bitmap in the folder of the program.
/// That bitmap has one name for all: programs that run side by side take turns, and one that cannot get its turn within
/// some seconds has no bitmap. What else fails passes in silence.
/// @return false when there was no bitmap to make it of
bool MaakPuzzelJpeg(const QString &naam);

/// The user's own picture folder.
QString FotoMap();

/// Removes the bitmap that a program that was killed has left.
void RuimTussenBeeldOp();
