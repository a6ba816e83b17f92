#pragma once

#include <QtGlobal>

#include <string_view>
#include <vector>

// Sorting, reversing and hashing of arrays of words. An array is indexed from 0; texts are bytes of the code page and
// are compared as bytes.

/// A word that lies elsewhere, with its beginning at hand to be compared by.
struct Woord
{
    Woord() = default;
    Woord(std::string_view tekst);

    std::string_view Tekst;
    quint64 Begin = 0; ///< its first eight bytes, the first one highest

    friend bool operator<(const Woord &a, const Woord &b)
    {
        return a.Begin != b.Begin ? a.Begin < b.Begin : a.Tekst < b.Tekst;
    }
    friend bool operator>(const Woord &a, const Woord &b) { return b < a; }
};

using Woorden = std::vector<Woord>;

/// Sorts, ascending or descending. Raises Fout::IndexBuitenBereik for an array without elements.
void SortStrings(Woorden &Arr, bool Aflopend);
/// The part of the sort that leaves runs of at most Split + 1 elements between Lo and Hi as they are, a run of two in
/// any case: three samples are needed to part one. Lo and Hi are both included; raises Fout::IndexBuitenBereik for one
/// that is no index of the array, and so does the other part.
void QuickSortStrings(Woorden &Arr, qint32 Split, qint32 Lo, qint32 Hi);
/// The part that puts right an array that is nearly sorted between Lo and Hi.
void InsertionSortStrings(Woorden &Arr, qint32 Lo, qint32 Hi);
/// Raises Fout::IndexBuitenBereik for an array without elements.
void ReverseStrings(Woorden &Arr);
void SwapStrings(Woord &A, Woord &B);

/// What marks a place of the table as free.
inline constexpr qint32 LeegVak = -2147483647 - 1;

/// Gives the table four places for each word, and puts the index of each, in order, into the first free place from its
/// hash on, around the end. Raises Fout::IndexBuitenBereik for an array without elements, and for an empty text, which
/// has no place.
void BuildHashTable(const Woorden &Arr, std::vector<qint32> &Table);
/// The hash of the first so many bytes of a text: 0 up to 2147483647, or -1 for an empty text.
/// @param Lengte -1 for the whole text
qint32 HashString(std::string_view Text, qint32 Lengte);
