#pragma once

#include <QByteArrayView>

#include <functional>

// Words of the same letters in another order.

/// How often a character stands in a word: 0 up to 32767. Raises Fout::Overloop above that.
qint16 FindOccur(QByteArrayView Word, char Character);

/// The lines of a database that consist of exactly the letters of the key, in any order. Only the letters a to z are
/// counted, so that a key with any other character finds nothing.
void ZoekWisselingen(QByteArrayView database, QByteArrayView Key, const std::function<void(QByteArrayView)> &vondst);
