#pragma once

#include <QByteArray>
#include <QStringList>

// What is read of the two kinds of word files: a word list, of items, and the word database, of whole lines.

/// The items of a word list, as they stand there. An empty item is one too.
QStringList LeesWoordlijst(QByteArrayView inhoud);
/// The words in capitals, one a line.
QByteArray SchrijfWoordlijst(const QStringList &woorden);

/// The lines of a database that take so many cells, in capitals.
QStringList WoordenVanLengte(QByteArray database, qsizetype cellen);
