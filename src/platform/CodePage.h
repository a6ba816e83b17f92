#pragma once

#include <QByteArray>
#include <QString>

/// Text at rest: code page 1252, a byte a character.
namespace Files {

QByteArray NaarBytes(const QString &tekst); ///< to the code page; a character that it lacks becomes "?"
QString NaarTekst(QByteArrayView bytes);    ///< from the code page; every byte gives one character
bool InCodePage(QChar teken);               ///< whether the code page has this character

} // namespace Files
