#pragma once

#include <QString>

/// The first characters of a text.
/// @param meeste the most characters (UTF-16 units), 0 and up; one less where a pair would be split: of two surrogates,
/// or of CR LF
QString BeginVan(const QString &tekst, qsizetype meeste);
