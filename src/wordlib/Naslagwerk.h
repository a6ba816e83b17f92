#pragma once

#include <QByteArrayView>
#include <QStringList>

// What is read of the tables to look things up in, in the order of the file; lines of blanks alone are passed over.
// What was read before a failing line stays.

/// The proverbs, and at the same places their meanings, which begin with a lead-in of 12 characters.
/// @param filter the first letter of those that are read, in either case; all when it is empty
/// Raises Fout::IndexBuitenBereik for a line without " -/- ".
void LeesSpreekwoorden(QByteArrayView inhoud, const QString &filter, QStringList &gezegden, QStringList &betekenissen);

/// The lines of a table of free text, as they stand there.
void LeesBron(QByteArrayView inhoud, QStringList &regels);

/// The elements: name, symbol and number in columns of 16, 9 and what is left.
/// Raises Fout::IndexBuitenBereik for a line of less than three fields with "-/-" between them, and
/// Fout::OngeldigArgument for a field that is wider than its column.
void LeesElementen(QByteArrayView inhoud, QStringList &regels);
