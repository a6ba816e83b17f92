#pragma once

#include <QByteArray>
#include <QString>

/// The text without the blanks (U+0020) at both its ends. Tabs, hard spaces and line ends stay.
QString Trim(QStringView tekst);

// Upper and lower case within code page 1252, one letter for one: a text keeps its length, and a name goes on meeting
// its files. A letter without a partner on that page stays ("ß", "µ"), and so does a letter from outside it.

QString Hoofdletters(QString tekst);
QString KleineLetters(QString tekst);

// The same of a text at rest, in bytes of that page. One that nobody else holds is changed where it lies.

QByteArray Hoofdletters(QByteArray tekst);
QByteArray KleineLetters(QByteArray tekst);
