#pragma once

#include <QByteArray>

#include <stdexcept>

/// Why no file can be made of a source: an English text of one line, for who builds.
class BronFout : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A source is UTF-8, one entry a line; empty lines are passed over. What is made of it is in code page 1252, with CR LF
// behind each line. All raise BronFout for a source that is not valid UTF-8.

/// The word database: the words of at least two letters in the order of the source, each once, their letters without
/// accents. An entry with a capital, a digit, a hyphen or the like is no word for a puzzle, and is left out.
/// Raises BronFout unless there is a word for each first letter, on which the search rests.
QByteArray MaakWoorden(const QByteArray &bron);

/// A word list: the words of the source in upper case, in the order of a list that is kept sorted.
/// Raises BronFout without a word, for a word that is there twice, and for one that is anything but letters of the code
/// page with single blanks or hyphens between them.
QByteArray MaakLijst(const QByteArray &bron);

/// A table to look things up in: the lines of the source as they stand there, in their order.
/// Raises BronFout without a line, for a line that is there twice, and for one with blanks at an end, control
/// characters, or characters that the code page lacks.
QByteArray MaakTabel(const QByteArray &bron);

/// The proverbs: a table of lines "saying -/- meaning", whose meanings get the lead-in of 12 characters that is never
/// shown. Raises BronFout as MaakTabel does, for a line without these two, and for a saying that is there twice.
QByteArray MaakSpreekwoorden(const QByteArray &bron);
