#pragma once

#include <QStringList>

class TextBox;

/// Splits the text of a box into the lines as the box itself wraps them.
/// @param regels gets one element more than there are lines; the last stays empty
/// @return the number of lines
int TekstRegels(TextBox &box, QStringList &regels);
