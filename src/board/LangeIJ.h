#pragma once

#include <QString>

// The long IJ takes one cell. How it is held meanwhile differs by the place, on purpose: which case counts, and what
// stands in for it.

/// While a word is placed or searched: each "ij" as "?"; small letters only.
QString MetCode(QString woord);
/// Each "?" as "ij" again.
QString ZonderCode(QString woord);
/// A sign of a word in capitals as it is printed: "?" as "IJ".
QString LetterVan(QChar teken);
/// How many cells a word of the entry list takes: in capitals, with each "IJ" as one.
qsizetype AantalVakjes(const QString &oplossing);
/// How many letters a word of the word panel has: each "IJ" is one, in capitals only.
qsizetype AantalLetters(const QString &woord);
