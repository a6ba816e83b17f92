#pragma once

#include <QString>

/// A word of a word search.
class clsWord
{
public:
    QString Word;
};
