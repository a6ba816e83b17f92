#pragma once

#include <QStringList>

// The order of a list that is kept sorted: upper and lower case are one, a letter with an accent stands beside its
// plain letter.

/// Whether one text comes before another one. Of two that differ in case alone neither does.
bool AlfabetischVoor(QStringView a, QStringView b);
/// Sorts; texts of which neither comes first stay in their order.
void SorteerAlfabetisch(QStringList &teksten);
