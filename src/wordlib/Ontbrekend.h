#pragma once

#include <QByteArray>

#include <functional>

/// The words of a database that fit a pattern of known and unknown letters, in capitals.
///
/// The pattern has "-" for an unknown letter; "IJ" is one letter, in it and in the words. A pattern that "IJ" makes
/// shorter than the number of cells leaves the last cells unchecked.
/// @param cellen the length of the words, "IJ" counted once
void ZoekOntbrekende(QByteArray database, const QByteArray &Pattern, qsizetype cellen,
                     const std::function<void(QByteArray)> &vondst);
